#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <tolvi/query/rows.h>
#include <tolvi/query/selectlog.h>
#include <tolvi/query/selectscope.h>
#include <tolvi/query/templatematch.h>

namespace tolvi {

/// A select within a statement as a query.
struct TSubQuery {
  TStrings Lines;
  TSQLOptions Options;
};

/// Makes rows of the conditions of a statement, such that they write the same conditions again: predefined conditions,
/// conditions on fields, or the SQL itself.
class TSelectConditions final {
 public:
  /// Imports the select in a range of tokens. Raises `ESQLImportError`.
  using TSubQueryReader = std::function<TSubQuery(TTokenRange)>;

  TSelectConditions(TJQueryPanel& panel, const TSelectText& text, const TSelectScope& scope, TSelectLog& log,
                    TSubQueryReader readSubQuery);

  /// Whether what follows are conditions of HAVING.
  void SetHaving(bool having) { FHaving = having; }
  /// Makes the bracket say what the condition says; adds it to a bracket as a row or a bracket. `left` are
  /// predicates that are left out, in their order.
  void Fill(TFilterBracket& bracket, const TSelectCondition& condition);
  /// The same for the root, whose conditions may all together be a predefined one.
  void FillRoot(TFilterBracket& root, const TSelectCondition& condition);
  void Add(TFilterBracket& bracket, const TSelectCondition& condition);

 private:
  struct TValue {
    std::string Text, Format;
    bool IsParam = false;
  };
  // What a row is made of.
  struct TMatch {
    TDSField* Field = nullptr;
    TDSOperator* Operator = nullptr;
    TDSCondition* Custom = nullptr;
    std::array<TValue, 2> Values;
    std::optional<TSubQuery> SubQuery;
    // How much of a pattern the operator brings with it.
    std::size_t PatternSize = 0;
  };
  // A comparison in the names of the model, with a field on the left.
  struct TComparison {
    TDSField* Field;
    std::string Operation, Right;
    TTokenRange RightRange;
    bool IgnoringCase = false;
  };
  struct TCustomTemplate {
    TDSCondition* Condition;
    TSQLTemplate Template;
  };

  void AddBracket(TFilterBracket& bracket, const TSelectCondition& condition);
  void AddPredicate(TFilterBracket& bracket, const TSelectCondition& condition);
  bool AddCustom(TFilterBracket& bracket, const TSelectCondition& condition);
  static TFilterBracket& AddNone(TFilterBracket& bracket);
  void AddMatch(TFilterBracket& bracket, const TMatch& match);
  void AddFragment(TFilterBracket& bracket, const TSelectCondition& condition);
  static void SetValues(TFilterCond& row, const TMatch& match);

  std::optional<TMatch> FindCustom(const TSelectCondition& condition, bool negative);
  [[nodiscard]] std::optional<TMatch> MatchCustom() const;
  std::optional<TMatch> FindMatch(const TSelectCondition& condition, bool negative);
  std::optional<TMatch> FindOperator(const TComparison& comparison, TNegation negation);
  std::optional<TMatch> FindByColumns(const TSelectCondition& condition, bool negative);
  std::optional<TMatch> TryOperator(const TComparison& comparison, const TOperatorTemplate& candidate,
                                    bool withWildcards);
  std::optional<TMatch> FindLike(const TComparison& comparison);
  [[nodiscard]] std::vector<TComparison> ComparisonsFor(const TSelectCondition& condition) const;
  [[nodiscard]] std::optional<TComparison> WithoutLower(const TSelectCondition& condition) const;
  [[nodiscard]] bool FitValues(TMatch& match, const TValueCaptures& captures, int count, TValueKind kind,
                               TFieldType type) const;
  [[nodiscard]] bool IsUsable(const TDSField* field) const;
  [[nodiscard]] bool IsSelect(TTokenRange range) const;
  [[nodiscard]] std::string ValueText(TTokenRange range) const;
  [[nodiscard]] const std::vector<TOperatorTemplate>& Operators();

  TJQueryPanel& FPanel;
  TJCustomDBStructure& FModel;
  const TSelectText& FText;
  const TSelectScope& FScope;
  TSelectLog& FLog;
  const TSubQueryReader FReadSubQuery;
  TComparisonTokens FTokens;
  std::vector<TOperatorTemplate> FOperators;
  std::vector<TCustomTemplate> FCustoms;
  // In tokens; what is longer is no predefined condition.
  std::size_t FLongestCustom = 0;
  bool FHaving = false, FOperatorsKnown = false, FCustomsKnown = false;
  // Why the select of the current predicate is no query.
  std::optional<ESQLImportError> FSubQueryError;
};

}  // namespace tolvi
