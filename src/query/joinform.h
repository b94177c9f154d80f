// Joins by what they say, so that two ways of writing them can be compared.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include <tolvi/sqlimport/selecttext.h>

namespace tolvi {

class TDSTable;
class TRTableList;
struct TSelectCondition;

/// A comparison of columns on which tables are joined.
struct TJoinComparison {
  /// Equal for equal comparisons, whichever side stands first.
  std::string Key;
  std::vector<const TDSTable*> Tables;
  /// Whether rows in which one of its columns has no value never fulfil it.
  bool RejectsNull = true;
  /// Where it stands in a statement; null for one that a link makes.
  const TSelectCondition* Condition = nullptr;
};
using TJoinComparisons = std::vector<TJoinComparison>;

/// What a FROM clause joins: tables whose rows are always there, the comparisons between them, and what is joined to
/// them from outside. Inner joins in any order, and outer joins that do not depend on each other, have one form. A
/// comparison with a table that was joined from outside drops the rows without a match, so that it is then an inner
/// join.
class TJoinForm final {
 public:
  explicit TJoinForm(const TDSTable& table);
  /// The form of the joins of a query, which are nested with `brackets`.
  static TJoinForm Of(const TRTableList& tables, bool brackets);
  /// The tables in the order in which the query's FROM has them.
  static std::vector<const TDSTable*> OrderOf(const TRTableList& tables, bool brackets);

  /// Joins the other side to this one; keeps the rows of this side that have no match; those of both sides.
  void JoinInner(TJoinForm other, TJoinComparisons comparisons);
  void JoinLeft(TJoinForm other, TJoinComparisons comparisons);
  void JoinFull(const TJoinForm& other, const TJoinComparisons& comparisons);
  /// Keeps only the rows that fulfil the comparisons.
  void Restrict(TJoinComparisons comparisons);

  [[nodiscard]] const TJoinComparisons& Comparisons() const { return FComparisons; }
  /// Whether both join the same tables from inside; whether they join the same from outside.
  [[nodiscard]] bool HasSameTables(const TJoinForm& other) const;
  [[nodiscard]] bool HasSameOuter(const TJoinForm& other) const;

 private:
  struct TOuter;
  class TBuilder;

  void Merge(TJoinForm other);
  // Makes the table one whose rows are always there, if it was joined from outside.
  void Require(const TDSTable& table);
  void RequireAll(const TJoinComparisons& comparisons);
  [[nodiscard]] bool Holds(const TDSTable& table) const;
  [[nodiscard]] std::vector<std::string> OuterTexts() const;
  [[nodiscard]] std::string Text() const;

  // Names of tables, or of what cannot be taken apart.
  std::vector<std::string> FOperands;
  std::vector<const TDSTable*> FTables;
  TJoinComparisons FComparisons;
  std::vector<TOuter> FOuter;
};

struct TJoinForm::TOuter {
  TJoinForm Form;
  TJoinComparisons Comparisons;
};

}  // namespace tolvi
