// Reads a SELECT statement.
//
//   TJSQLParser parser;
//   parser.SetSQL("select c.Name from Customers c where c.City = 'Oslo'");
//   parser.Parse();
//   Use(parser.ParserResult());
//
// What is read:
//
//   select [distinct] (* | ITEM {, ITEM}) from TABLE {, TABLE} [where CONDITIONS] [group by EXPRESSION {, EXPRESSION}]
//   [order by NAME-OR-NUMBER [asc | desc] {, ...}]
//
// It is shallow on purpose: expressions and values are cut out of the text as they stand, up to the word or symbol that
// ends them. GROUP BY and join conditions are read and passed over, and so is whatever follows what was understood;
// TJParserResult::Dropped tells them.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <tolvi/foundation/api.h>
#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/strings.h>
#include <tolvi/sqlimport/scanner.h>
#include <tolvi/sqlimport/sqlresult.h>
#include <tolvi/sqlimport/sqlwords.h>

namespace tolvi {

/// Reads one statement after the other; the result is reused. Not safe for use by several threads at once.
class TOLVI_CORE_API TJSQLParser {
 public:
  TJSQLParser();
  virtual ~TJSQLParser() = default;
  TJSQLParser(const TJSQLParser&) = delete;
  TJSQLParser& operator=(const TJSQLParser&) = delete;

  /// Copies a statement, whose lines end with LF or CR LF. A ";" as its last token counts as white space.
  /// Clears the result, which refers to the statement before.
  void SetSQL(std::string_view text);
  void SetSQL(const TStrings& lines);
  [[nodiscard]] TStrings GetSQL() const;
  /// The statement as one text, to which all positions refer.
  [[nodiscard]] std::string_view GetText() const { return FScanner.GetSource(); }

  /// Whether what stands between double quotes is one name everywhere. By default (false) it is that only where a table
  /// or an alias is expected: in expressions and values, a comma, keyword or operation between double quotes ends them
  /// as it would elsewhere, and ORDER BY does not find an alias that it has in double quotes.
  [[nodiscard]] bool GetWholeQuotedNames() const { return FWholeQuotedNames; }
  void SetWholeQuotedNames(bool whole) { FWholeQuotedNames = whole; }

  /// Reads the statement into ParserResult. Raises `ESQLParserError`, and `EListError` for a column number in ORDER BY
  /// that is none of the select list; the result is then partly filled and of no use. Brackets nested by more than
  /// 1,000 levels in a condition are an error, too.
  void Parse();

  [[nodiscard]] TJParserResult& ParserResult() { return FResult; }
  [[nodiscard]] const TJParserResult& ParserResult() const { return FResult; }

  /// The line of the current token, which after an error is the one at fault; at the end, that of the last token.
  [[nodiscard]] int GetLine() const { return FScanner.GetTokLine(); }
  /// The line, counted from 1, in which a position of the statement lies.
  [[nodiscard]] int LineAt(std::size_t pos) const;

 protected:
  // The clauses. Each begins at its first word and leaves the parser after its last.
  virtual void ProcessSelect();
  virtual void ProcessFrom();
  virtual void ProcessWhere();
  virtual void ProcessOrderBy();
  virtual void ProcessGroupBy();

  // The steps of which they consist, for classes that read more.
  [[nodiscard]] const TJScanner& Scanner() const { return FScanner; }
  /// The current token; wdEnd at the end of the statement.
  [[nodiscard]] TSQLWord Word() const { return FWord; }
  void NextToken();
  /// Raises `ESQLParserError` with the current line.
  [[noreturn]] void Error(std::string_view message) const;
  /// Raises "Wrong SQL statement" unless the current token is `word`; goes on to the next.
  void Expect(TSQLWord word);
  /// The text from a position up to the end of the token before the current one; empty if that stands before it.
  [[nodiscard]] std::string_view PieceFrom(std::size_t pos) const;
  [[nodiscard]] std::string_view ProcessSQLExpr();
  /// A word, or what stands between double quotes.
  [[nodiscard]] TSQLText ProcessIdentifier();
  /// The same without the quotes.
  [[nodiscard]] TSQLText ProcessAlias();
  [[nodiscard]] std::unique_ptr<TSQLNode> ProcessBoolExpr();

 private:
  struct TValue {
    std::string_view Text;
    bool IsSubQuery;
  };
  class TSortNames;

  void Forget();
  void Enter();
  void SkipToken();
  void AddDropped(TSQLDropKind kind, std::size_t pos);

  void ProcessResultField();
  void ProcessTable();
  void ProcessTableJoins();
  TSQLText ProcessQualifiedName(std::size_t parts);
  std::unique_ptr<TSQLTable> ReadTable();
  std::unique_ptr<TSQLNode> ProcessOperands(TSQLWord word, std::string_view name,
                                            std::unique_ptr<TSQLNode> (TJSQLParser::*next)());
  std::unique_ptr<TSQLNode> ProcessBoolTerm();
  std::unique_ptr<TSQLNode> ProcessBoolFactor();
  std::unique_ptr<TSQLNode> ProcessCondition();
  TValue ProcessConditionValue();
  TSQLResultField& FieldByNumber();

  TJScanner FScanner;
  TJParserResult FResult;
  TSQLWord FWord = wdEnd;
  int FDepth = 0;
  bool FWholeQuotedNames = false;
  mutable std::vector<std::size_t> FLineStarts;  // of the statement, once asked for
};

}  // namespace tolvi
