#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include <tolvi/query/joinform.h>
#include <tolvi/query/selectlog.h>
#include <tolvi/query/selectscope.h>

namespace tolvi {

class TJCustomDBStructure;

/// The joins of a statement, beside those that a query makes of the links of its model.
class TSelectJoins final {
 public:
  TSelectJoins(const TJCustomDBStructure& model, const TSelectStatement& statement, const TSelectScope& scope,
               TSelectLog& log);

  /// Whether the condition of WHERE is a join by a link of the model.
  [[nodiscard]] bool IsJoin(const TSelectCondition& condition) const;
  /// The conditions after ON that are no links and say the same in WHERE.
  [[nodiscard]] const std::vector<const TSelectCondition*>& Conditions() const { return FConditions; }

  /// Whether a column stands after USING, so that "*" shows it once.
  [[nodiscard]] bool HasUsing() const { return HasUsing(*FStatement.From); }

  /// Whether the query with these tables joins as the statement does; why it does not, and where.
  [[nodiscard]] bool IsSame(const TRTableList& tables, bool brackets) const;
  void RefuseDifference(const TRTableList& tables, bool brackets) const;

 private:
  struct TDifference {
    TTokenRange Range;
    std::string Reason;
  };
  static bool HasUsing(const TSelectSource& source) {
    return source.Left != nullptr && (!source.Using.empty() || HasUsing(*source.Left) || HasUsing(*source.Right));
  }
  TJoinForm FormOf(const TSelectSource& source);
  TJoinComparisons ComparisonsOfSource(const TSelectSource& source) const;
  // Whether it compares two columns, so that it rejects rows in which one has no value.
  [[nodiscard]] bool ComparesColumns(const TSelectCondition& condition) const;
  [[nodiscard]] TJoinComparison ComparisonOf(const TSelectCondition& condition) const;
  [[nodiscard]] TJoinComparisons UsingOf(const TSelectSource& source) const;
  void CollectTables(const TSelectSource& source, std::vector<TDSTable*>& tables) const;
  [[nodiscard]] bool IsLink(const TJoinComparison& comparison, const TJoinComparisons& all) const;
  void AddWhere();
  void MoveOthers();
  [[nodiscard]] std::optional<TDifference> Difference(const TRTableList& tables, bool brackets) const;
  [[nodiscard]] TTokenRange From() const;

  const TJCustomDBStructure& FModel;
  const TSelectStatement& FStatement;
  const TSelectScope& FScope;
  TSelectLog& FLog;
  std::optional<TJoinForm> FForm;
  std::vector<const TSelectCondition*> FJoins, FConditions;
};

}  // namespace tolvi
