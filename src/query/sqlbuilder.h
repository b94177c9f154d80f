#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include <tolvi/foundation/strings.h>
#include <tolvi/query/queryresult.h>
#include <tolvi/query/rows.h>
#include <tolvi/query/values.h>

namespace tolvi {

/// Fills the clauses of a panel's query result from its columns and its condition tree.
///
/// What has been built is kept until the shape of the query or the model changes: after a change of values, only the
/// texts of their conditions are made anew.
class TSQLBuilder final {
 public:
  explicit TSQLBuilder(TJQueryPanel& panel) : FPanel(panel) {}
  TSQLBuilder(const TSQLBuilder&) = delete;
  TSQLBuilder& operator=(const TSQLBuilder&) = delete;

  void BuildQuery();
  /// Tables, columns and sorting alone, without conditions. Errors as those of `BuildQuery` about tables.
  void BuildOutline();
  void BuildFilters();
  TBoundStatement BuildBound(TMarkerStyle style);
  std::string ExtractValue(const TFilterCond& condition, int index) const;

  /// How deep sub-queries may be nested.
  static constexpr int MaxSubQueryLevel = 50;

 private:
  struct TFrame;
  class TBindings;

  // What the last build was made from.
  struct TBuilt {
    std::uint64_t shape = 0, columns = 0, model = 0;
    bool filters = false, handled = false;
    bool operator==(const TBuilt&) const = default;
  };

  void Build(bool filters);
  void BuildShape();
  void AddTables(const TSimpleDSTableList& tables);
  void AddTable(TDSTable& table);
  void CollectTables(const TFilterBracket& bracket, bool having);
  void CollectTables(const TFilterCond& condition);
  void BuildResultFields();
  void WarnOfJoins();
  void WarnOfHiddenSorting(const TResultField& field);

  // Writes the conditions to FWhere and FHaving. The walks for one of both tell whether they wrote something.
  void WalkTree();
  bool WalkRoot(bool having);
  bool Walk(const TFilterBracket& bracket, TFrame* outer);
  void WriteCondition(TFilterCond& condition, TFrame& frame);
  void Open(TFrame& frame);
  void BeginRow(TFrame& frame);
  void Close(const TFrame& frame);
  void WarnOfLeftOut(const TFilterRow& row);
  void WarnOfSplit();
  void WarnOfMissingGroups();
  void WarnOfFilter(const TFilterCond& condition);

  // One condition.
  const std::string& TextOf(TFilterCond& condition);
  void AppendCondition(std::string& out, TFilterCond& condition);
  void AppendFragment(std::string& out, const TSQLFragment& fragment);
  void AppendFieldExpr(std::string& out, const TFilterCond& condition) const;
  std::size_t AppendQuotedPart(std::string& out, const TFilterCond& condition, std::string_view pattern,
                               std::size_t at);
  bool AppendPlaceholder(std::string& out, const TFilterCond& condition, char what);
  void AppendValue(std::string& out, const TFilterCond& condition, int index, std::string_view before,
                   std::string_view after);
  void AppendOneValue(std::string& out, const TFilterCond& condition, int index, std::string_view value,
                      std::string_view before, std::string_view after) const;
  void AppendParam(std::string& out, const TFilterCond& condition, int index, std::string_view before,
                   std::string_view after);
  void AppendSubQuery(std::string& out, const TFilterCond& condition);
  TValueContext ContextOf(std::string_view name) const;

  TJQueryPanel& FPanel;
  TBuilt FBuilt;
  // Conditions whose text bears this stamp are up to date.
  std::uint64_t FStamp = 0;
  std::size_t FSubParamCount = 0;
  int FLevel = 0;
  bool FFilters = false, FHavingPart = false;
  std::vector<TQueryWarning> FShapeWarnings;
  TSQLLines* FWhere = nullptr;
  std::string* FHaving = nullptr;
  // Where values go instead of literals; null for literals.
  TBindings* FBindings = nullptr;
};

/// Whether the condition compares texts without regard to case.
bool IsCaseInsensitive(const TFilterCond& condition);

/// The pattern that the condition's template puts round value `index` within quotes, with "@v" in the value's place;
/// empty when there is nothing but the value.
std::string TemplateValueFormat(const TFilterCond& condition, int index);

}  // namespace tolvi
