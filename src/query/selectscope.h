// What the names in a SELECT statement mean in a data model.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include <tolvi/foundation/text.h>
#include <tolvi/query/selectlog.h>
#include <tolvi/sqlimport/selectreader.h>

namespace tolvi {

class TDSField;
class TDSTable;
class TJCustomDBStructure;

/// A name at a token, with what stands before it: "o.City".
struct TSelectName {
  /// How many tokens it takes; 0 where no name stands.
  std::size_t Count = 0;
  /// Null for a name without a table that the model does not know.
  TDSTable* Table = nullptr;
  /// Null where the model does not know the column.
  TDSField* Field = nullptr;
  /// Whether it is "o.*".
  bool IsAll = false;
};

/// The tables of a statement as tables of the model, and through them its columns. The model must not change meanwhile.
class TSelectScope final {
 public:
  /// `outer` is the scope of the statement round a sub-query, null for none.
  TSelectScope(TJCustomDBStructure& model, const TSelectText& text, const TSelectStatement& statement, TSelectLog& log,
               const TSelectScope* outer);

  /// In the order of the statement; null, when approximating, for one that the model lacks.
  [[nodiscard]] const std::vector<TDSTable*>& Tables() const { return FTables; }

  /// Whether names may be aliases of the select list, as in HAVING and ORDER BY; columns go before them. Default false.
  void SetAliasesKnown(bool known) { FAliasesKnown = known; }

  /// The name at a token of an expression that begins at `begin`. Raises `ESQLImportError` for a name whose table is
  /// none of the statement, and for one that several tables have.
  [[nodiscard]] TSelectName NameAt(std::size_t token, std::size_t begin) const;
  /// The name that the whole range is.
  [[nodiscard]] TSelectName NameOf(TTokenRange range) const;

  /// The field that the range stands for: a column, or the SQL of a virtual field however it is written; null for none.
  [[nodiscard]] TDSField* FieldOf(TTokenRange range) const;

  /// Goes through the range: pieces of text in the names of the model, white space as single blanks, and fields.
  using TTextHandler = std::function<void(std::string_view text)>;
  using TFieldHandler = std::function<void(TDSField& field)>;
  void Walk(TTokenRange range, const TTextHandler& onText, const TFieldHandler& onField) const;
  /// The range as SQL in the names of the model.
  [[nodiscard]] std::string Resolved(TTokenRange range) const;

  /// The first place for a value in the range; `range.End` for none.
  [[nodiscard]] std::size_t FindParam(TTokenRange range) const;
  /// The first item of the select list with that alias; the number of items for none.
  [[nodiscard]] std::size_t ColumnByAlias(std::string_view alias) const;
  /// Whether a name stands in the statement's expressions word for word, without a table.
  [[nodiscard]] bool IsKeptName(std::string_view name) const { return FKeptNames.contains(std::string(name)); }
  /// Refuses an alias of the select list where a column of the database could go by the same name, unless it is that
  /// column's own.
  void CheckAlias(TTokenRange range, std::size_t column) const;
  /// Whether any table of the model, and so maybe one of the statement, has a column of that name.
  [[nodiscard]] bool IsColumnOfModel(std::string_view name) const;
  /// Whether there are names of columns in the range, sub-queries aside.
  [[nodiscard]] bool HasNames(TTokenRange range) const;

 private:
  using TCandidates = std::vector<std::vector<TDSTable*>>;

  [[nodiscard]] std::vector<TDSTable*> CandidatesFor(const TSelectTable& table) const;
  void Assign();
  bool AssignDistinct(const TCandidates& candidates, std::size_t table, std::vector<TDSTable*>& chosen,
                      std::size_t& steps) const;
  [[nodiscard]] bool JoinsAreLinks(const std::vector<TDSTable*>& tables) const;
  [[nodiscard]] std::size_t TableFor(std::size_t token, std::size_t qualifiers) const;
  [[nodiscard]] bool IsCalled(std::size_t table, std::size_t token, std::size_t qualifiers) const;
  [[nodiscard]] bool MayBeColumn(std::size_t token, std::size_t end, std::size_t begin) const;
  [[nodiscard]] TSelectName Unqualified(std::size_t token) const;
  void CollectUsing(const TSelectSource& source);
  [[nodiscard]] TSelectName Qualified(std::size_t token, std::size_t parts, bool isAll) const;
  [[nodiscard]] TDSField* ColumnOf(const TDSTable& table, std::string_view column) const;
  [[nodiscard]] TTokenRange ExprOfAlias(std::size_t token, const TSelectName& name) const;
  [[nodiscard]] bool IsCall(TTokenRange expr) const;
  [[nodiscard]] bool NeedsBlank(std::size_t token) const;
  void AppendSubQuery(TTokenRange range, const TTextHandler& onText) const;
  void CheckQualifier(std::size_t token) const;

  TJCustomDBStructure& FModel;
  const TSelectText& FText;
  const TSelectStatement& FStatement;
  TSelectLog& FLog;
  const TSelectScope* FOuter;
  std::vector<TDSTable*> FTables;
  using TNames = std::unordered_set<std::string, TFoldedHash, TFoldedEqual>;
  mutable std::unordered_map<std::string, std::size_t, TFoldedHash, TFoldedEqual> FAliases;
  mutable TNames FKeptNames;
  // The columns after USING, and whether an outer join has some.
  TNames FUsing;
  bool FOuterUsing = false;
  // Virtual fields by their SQL, once asked for.
  mutable std::unordered_map<std::string, TDSField*> FVirtuals;
  mutable bool FVirtualsKnown = false, FAliasesKnown = false;
};

/// SQL in a form that is equal for equal SQL: words in lower case, without the quotes of names, one blank between
/// tokens.
[[nodiscard]] std::string SQLKey(std::string_view sql);

}  // namespace tolvi
