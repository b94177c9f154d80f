// Turns what the parser has read of a statement into the columns and conditions of a query.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include <tolvi/foundation/fieldtypes.h>
#include <tolvi/query/importlog.h>
#include <tolvi/query/templatematch.h>
#include <tolvi/sqlimport/sqlresult.h>

namespace tolvi {

class TDSCondition;
class TDSField;
class TDSOperator;
class TFilterBracket;
class TJCustomDBStructure;
class TJQueryPanel;
class TSimpleCond;

/// The operator that a comparison fits, and its values.
struct TOperatorMatch {
  TDSOperator* Operator = nullptr;
  TValueCaptures Values;
  /// Whether its template does not fit, and it only stands for a "like".
  bool IsFallback = false;
};

/// Maps one statement; the model must not change meanwhile. Templates and predefined conditions are read once, at the
/// first condition.
class TSQLMapper final {
 public:
  /// `level` counts the statements round a sub-query.
  TSQLMapper(TJQueryPanel& panel, TImportLog& log, int level);

  void MapResultFields(const TSQLResultFieldList& fields);
  void MapBracket(TFilterBracket& target, const TSQLBracket& bracket, const TSQLTableList& tables);

  /// The first predefined condition with the SQL of the comparison, ignoring case and white space; null for none.
  TDSCondition* FindCustomCondition(const TSQLCondition& condition);
  /// The first operator whose template fits; those that ignore case only if no other does.
  TOperatorMatch FindOperator(const TSQLCondition& condition);

 private:
  void WarnOfUnknownNames(const TSQLResultField& field, std::string_view formula);
  void WarnOfNegation(const TSQLBracket& bracket);
  void WarnOfNegation(const TSQLCondition& condition);
  void WarnOfLiterals(const TSQLCondition& condition, const TDSCondition& custom);
  void MapCondition(TFilterBracket& target, const TSQLCondition& condition, const TSQLTableList& tables);
  TDSField& FieldFor(const TSQLCondition& condition, const TSQLTableList& tables);
  TDSOperator& OperatorFor(const TSQLCondition& condition, const TDSField& field, const TOperatorMatch& match);
  void WarnOfOperator(const TSimpleCond& row, const TSQLCondition& condition, const TOperatorMatch& match);

  void SetValue(TSimpleCond& row, int index, const TSQLCondition& condition, const TOperatorMatch& match);
  void SetParam(TSimpleCond& row, int index, const TSQLCondition& condition, const TOperatorMatch& match);
  void SetList(TSimpleCond& row, int index, const TSQLCondition& condition, std::string_view list);
  void SetSubQuery(TSimpleCond& row, const TSQLCondition& condition, std::string_view text);
  std::string ScalarOf(const TSimpleCond& row, int index, const TSQLCondition& condition, const std::string& text,
                       bool isLiteral);
  std::string DateOf(TFieldType type, const TSQLCondition& condition, const std::string& text, bool isLiteral);

  void CollectOperators();
  bool FindFitting(bool ignoringCase, bool withWildcards, bool isSubQuery, TOperatorMatch& match) const;
  TOperatorMatch LikeFallback(const TSQLCondition& condition) const;

  TJQueryPanel& FPanel;
  TJCustomDBStructure& FModel;
  TImportLog& FLog;
  const int FLevel;
  TComparisonTokens FTokens;
  std::vector<TOperatorTemplate> FOperators;
  // By their SQL in lower case without white space.
  std::unordered_map<std::string, TDSCondition*> FCustoms;
  bool FOperatorsKnown = false, FCustomsKnown = false;
};

}  // namespace tolvi
