#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <tolvi/foundation/api.h>
#include <tolvi/foundation/objectlist.h>
#include <tolvi/foundation/strings.h>
#include <tolvi/query/params.h>
#include <tolvi/query/resultfields.h>
#include <tolvi/query/sqltypes.h>
#include <tolvi/query/values.h>

namespace tolvi {

class TDSLink;
class TDSTable;
class TJQueryPanel;

/// A table of a statement and the link by which it was reached (null for the first table).
struct TResultTable {
  TDSTable* Table = nullptr;
  TDSLink* Link = nullptr;
  bool Processed = false;
};

/// The tables of a statement, in join order.
class TOLVI_CORE_API TRTableList final {
 public:
  std::size_t Count() const { return FItems.size(); }
  bool Empty() const { return FItems.empty(); }
  TResultTable& operator[](std::size_t index);
  const TResultTable& operator[](std::size_t index) const;
  void Add(TDSTable& table, TDSLink* link) { FItems.push_back({&table, link, false}); }
  void Delete(std::size_t index);
  /// -1, null when the table is not in the list.
  std::ptrdiff_t IndexOf(const TDSTable& table) const;
  TResultTable* Find(std::string_view tableAlias);
  /// Whether the table, or another one of the same alias, is in the list.
  bool Holds(const TDSTable& table) const;
  void Clear() { FItems.clear(); }
  /// Sets `Processed` to false everywhere.
  void ResetAll();

  auto begin() { return FItems.begin(); }
  auto end() { return FItems.end(); }
  auto begin() const { return FItems.begin(); }
  auto end() const { return FItems.end(); }

 private:
  std::vector<TResultTable> FItems;
};

/// The conditions on one table, for hosts that filter tables instead of running a statement. `Table` is null for
/// conditions that belong to no table.
struct TJTableFilter {
  TDSTable* Table = nullptr;
  std::string Filter;
};

class TOLVI_CORE_API TJTableFilterList final {
 public:
  std::size_t Count() const { return FItems.size(); }
  const TJTableFilter& operator[](std::size_t index) const;
  /// Null when there is none; table names ignore case.
  TJTableFilter* FindByTable(const TDSTable* table);
  TJTableFilter* FindByTableName(std::string_view tableName);
  TJTableFilter& Add(TDSTable* table) { return FItems.emplace_back(TJTableFilter{table, {}}); }
  void Clear() { FItems.clear(); }

  auto begin() const { return FItems.begin(); }
  auto end() const { return FItems.end(); }

 private:
  std::vector<TJTableFilter> FItems;
};

/// Something that the statement leaves out or changes, and the row that it concerns (empty: the whole query).
struct TQueryWarning {
  std::string RowID;
  std::string Text;
};

/// Lines of SQL in one buffer: the last line can be appended to.
class TOLVI_CORE_API TSQLLines final {
 public:
  void Clear();
  bool Empty() const { return FStarts.empty(); }
  std::size_t Count() const { return FStarts.size(); }
  void AddLine(std::string_view text = {});
  /// Appends to the last line.
  void Append(std::string_view text) { FText += text; }
  std::string& Buffer() { return FText; }
  /// The lines joined by CR LF.
  const std::string& Text() const { return FText; }
  std::string_view Line(std::size_t index) const;
  void AddLines(const TSQLLines& lines);
  /// Each line as one entry, also when a literal in it holds line breaks.
  TStrings ToStrings() const;
  void Reserve(std::size_t size) { FText.reserve(size); }

 private:
  std::string FText;
  std::vector<std::size_t> FStarts;
};

/// The statement of a query panel: its columns and parameters, and the clauses as of the last `BuildQuery`.
class TOLVI_CORE_API TQueryResult final {
 public:
  explicit TQueryResult(TJQueryPanel& panel);
  TQueryResult(const TQueryResult&) = delete;
  TQueryResult& operator=(const TQueryResult&) = delete;

  TJQueryPanel& GetQueryPanel() const { return FQueryPanel; }
  TRFieldList& RFields() { return FRFields; }
  const TRFieldList& RFields() const { return FRFields; }
  /// Other names of the columns, the tables and the parameters.
  TRFieldList& ResultFields() { return FRFields; }
  TRTableList& ResultTables() { return FRTables; }
  TSQLParamList& Parameters() { return FParams; }
  /// Copies the columns.
  void SetResultFields(const TRFieldList& fields) { FRFields.Assign(fields); }
  /// The captions of the columns, one a line.
  void GetResFieldCaptions(TStrings& captions) const;
  TRTableList& RTables() { return FRTables; }
  const TRTableList& RTables() const { return FRTables; }
  TSQLParamList& Params() { return FParams; }
  const TSQLParamList& Params() const { return FParams; }

  TSQLOptions GetSQLOptions() const { return FSQLOptions; }
  /// `soASCIIRFields` and `soQuoteAliases` go to the columns, too.
  void SetSQLOptions(TSQLOptions options);
  TSQLSyntax GetSQLSyntax() const { return FSQLSyntax; }
  void SetSQLSyntax(TSQLSyntax syntax);

  /// The whole statement, as lines and as one text (lines joined by CR LF), with what has been added and set since the
  /// last `BuildQuery`: conditions, options, TOP and LIMIT.
  TStrings GetSQL();
  const std::string& GetSQLText();
  const TSQLLines& GetSQLLines();
  std::string GetSelectClause();
  /// Raises `EJQueryPanelError` 8 "Query was not built properly" when no table was collected.
  TStrings GetFromClause();
  /// The conditions of comma-style joins, lines joined by CR LF.
  std::string GetJoinConditions();
  TStrings GetWhereClause() const { return FWhereClause.ToStrings(); }
  const std::string& GetGroupClause() const { return FGroupClause; }
  const std::string& GetHavingClause() const { return FHavingClause; }
  const std::string& GetOrderClause() const { return FOrderClause; }
  const std::vector<TQueryWarning>& Warnings() const { return FWarnings; }

  /// "(" and ")" round the text when `soBracketConditions` is set.
  std::string AdjustCondition(std::string_view text) const;
  void AddCondition(std::string_view text);
  void AddHavingCondition(std::string_view text);
  void AddTableFilterCondition(TDSTable* table, std::string_view text);
  /// Appends the conditions of comma-style joins; whether there were any.
  bool AddSQL1Joins(TSQLLines& lines);

  /// Parameters. `AddParameter` returns the one that the value has already.
  TSQLParam& AddParameter(TFilterCond& condition, int valueIndex);
  void DeleteParameters(TFilterCond& condition);
  void DeleteParameter(TSQLParam& param);
  TSQLParam* FindParameter(std::string_view name) const;
  TSQLParam* FindParameterByCondition(const TFilterCond& condition, int valueIndex) const;
  void ClearParams();
  TSQLParam& GetParam(std::size_t index) const { return FParams[index]; }
  std::size_t GetParamCount() const { return FParams.Count(); }
  void ReindexParams() { FParams.Reindex(FParams.GetParentParamCount() + 1); }
  /// The title "ttlParameter", with " 1" or " 2" where the condition has two values.
  std::string GenerateParamDisplayName(const TSQLParam& param) const;

  /// Lets the next build start from nothing; only measuring needs it.
  void ForgetBuilt();
  /// Hands the panel's model to the columns.
  void DbStructChanged();

 private:
  friend class TSQLBuilder;
  void Assemble(TSQLLines& out, const TSQLLines& where, std::string_view having);
  std::string MakeSelectClause();
  void BuildFrom();
  void RefreshClauses();
  void BuildTableJoins(std::size_t table, std::string_view indent, std::string& out, bool addTableExpr);
  void AppendJoin(std::size_t joined, bool leftSide, std::string_view indent, std::string& out);

  TJQueryPanel& FQueryPanel;
  TRFieldList FRFields;
  TRTableList FRTables;
  TSQLParamList FParams;
  TSQLOptions FSQLOptions;
  TSQLSyntax FSQLSyntax = ssSQL2;
  std::string FSelectClause, FOrderClause, FGroupClause, FHavingClause;
  TSQLLines FFromLines, FWhereClause, FSQL;
  bool FWasSQL1Joins = false, FFromBuilt = false;
  // The panel's revision for which the SELECT and FROM clauses and the statement were made.
  std::uint64_t FClausesRevision = 0;
  std::vector<TQueryWarning> FWarnings;
  TJTableFilterList FTableFilters;
  friend class TJQueryPanel;
};

}  // namespace tolvi
