#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <tolvi/foundation/api.h>
#include <tolvi/foundation/components.h>
#include <tolvi/foundation/numbers.h>
#include <tolvi/model/dbstruc.h>
#include <tolvi/query/panelview.h>
#include <tolvi/query/queryresult.h>
#include <tolvi/query/rows.h>
#include <tolvi/query/sqlmapping.h>
#include <tolvi/query/titles.h>
#include <tolvi/sqlimport/sqlresult.h>

namespace tolvi {

class TJSQLParser;
class TSQLBuilder;

/// A query in the words of a data model: conditions in a tree of brackets, result columns, name and description; and
/// the statement that it stands for. Holds no pixel: a view shows it, programs use it without one.
///
///   TJQueryPanel panel;
///   panel.SetDBStruct(&model);
///   panel.SetActive(true);
///   panel.QResult().RFields().Add(*model.FieldByName(fnFullName, "Orders.ID"));
///   std::string sql = panel.GetQueryText();
///
/// 1. The root bracket exists always; rows belong to their brackets, parameters to the query result.
/// 2. After each completed change the order is: indexes, view, events, `OnChange` as the last. What an event's handler
///    does fires that event not again. A handler may destroy the panel.
/// 3. When the model loses a field, operator or condition that a row names, the row stays and keeps its ID or name.
class TOLVI_CORE_API TJQueryPanel : public TComponent, private TDSListener {
 public:
  using TPanelEvent = std::function<void(TJQueryPanel&)>;
  /// May change the SQL of a condition.
  using TBuildSQLEvent = std::function<void(TFilterCond&, std::string& sqlExpr)>;
  using TImportWarningEvent = std::function<void(TJQueryPanel&, const TImportWarning&)>;

  TJQueryPanel();
  ~TJQueryPanel() override;
  std::string_view ClassName() const override { return "TJQueryPanel"; }

  /// The data model; not owned. Exchanging it looks everything up anew by its ID or name; when the model goes, the
  /// panel is deactivated and cleared.
  TJCustomDBStructure* GetDBStruct() const { return FDBStruct.Get(); }
  void SetDBStruct(TJCustomDBStructure* dbStruct);
  /// Raises `EJQueryPanelError` "DBStruct is not specified" without a model.
  void CheckIfDBStructAssigned() const;
  /// Whether the conditions take part in the statement and views show them. Default false. Activating needs a model.
  bool GetActive() const { return FActive; }
  void SetActive(bool active);

  // Conditions

  TFilterBracket& RootBracket() { return *FRoot; }
  const TFilterBracket& RootBracket() const { return *FRoot; }
  /// Adds a condition, a bracket, a predefined condition at the end of the bracket, or so that it gets the number. It
  /// becomes the current row.
  TSimpleCond& AddCondition(TFilterBracket& bracket, TDSField& field);
  TSimpleCond& AddConditionNum(TFilterBracket& bracket, int rowNum, TDSField& field);
  TFilterBracket& AddBracket(TFilterBracket& bracket);
  TFilterBracket& AddBracketNum(TFilterBracket& bracket, int rowNum);
  TCustomCond& AddCustomCondition(TFilterBracket& bracket, TDSCondition& condition);
  /// The same with SQL. Errors as in `TSQLFragment::SetSQLExpr`; nothing is added then.
  TSQLFragment& AddSQLFragment(TFilterBracket& bracket, std::string_view sql);
  /// Adds a condition with everything set. The current row stays.
  TSimpleCond& AddSimpleCond(TFilterBracket& bracket, TDSField& field, TDSOperator& op, std::string_view value1,
                             std::string_view value2 = {});
  TSimpleCond& ManualAddCond(TFilterBracket& bracket, TDSField& field, TDSOperator& op, std::string_view value) {
    return AddSimpleCond(bracket, field, op, value);
  }
  struct TInsertedRows {
    std::vector<TFilterRow*> Rows;
    std::vector<TQueryWarning> Warnings;
  };
  /// Inserts the rows that a query text holds, so that the first one gets the index. They become one bracket if they
  /// are several and the root of the text links them in another way than "all". `Warnings` tells what the model lacks
  /// (such rows are kept as in a query that is loaded), with the row IDs of the text. The current row stays.
  ///
  /// Raises `EJQueryPanelError` and `EConvertError` for a text that cannot be read, `EJQueryPanelError` for one without
  /// rows and for brackets deeper than `MaxRowLevel`; nothing is inserted then.
  TInsertedRows InsertRowsFromText(TFilterBracket& bracket, std::size_t index, std::string_view text);
  /// The row in that display place (0 the root); null when there is none.
  TFilterRow* RowByNum(int rowNum) const;
  /// The row that keys and menus act on; null for none.
  TFilterRow* GetCurrentRow() const { return FCurrentRow; }
  void SetCurrentRow(TFilterRow* row);
  /// Moves to the next (previous) row in display order; false at the end.
  bool NextRow();
  bool PrevRow();
  /// Destroys the current row, unless it is the root; the next row, else the previous one, becomes the current one.
  void DeleteCurrentRow();
  /// Numbers the rows of the panel in display order. Rows number themselves when asked; a call is never needed.
  void EnumerateBracket(const TFilterBracket& bracket) const;
  /// Empties the tree; the tree, the columns, name, description and user data.
  void ClearRows();
  void ClearAll();

  /// The kinds of brackets that views offer. Default all.
  TFilterLinkTypes GetLinkTypes() const { return FLinkTypes; }
  void SetLinkTypes(TFilterLinkTypes linkTypes) { FLinkTypes = linkTypes; }
  /// Whether statements may hold rows of SQL (`TSQLFragment`). Default false: queries can come from anybody, and what
  /// such a row says reaches the database as it is. Without it, building a statement with one raises
  /// `EJQueryPanelError`. Sub-queries do as the query round them.
  bool GetAllowSQLFragments() const { return FAllowSQLFragments; }
  void SetAllowSQLFragments(bool on);

  // The statement

  TQueryResult& QResult() { return *FQResult; }
  const TQueryResult& QResult() const { return *FQResult; }
  TRFieldList& RFields() { return FQResult->RFields(); }
  /// Collects tables and clauses. Raises `EJQueryPanelError` when there is nothing to build from, two tables have no
  /// path, a value does not fit its type, or an enabled row names what the model lacks; `EQueryRowError` where it is
  /// the fault of a row.
  void BuildQuery();
  /// `BuildQuery` and the whole statement: one text, lines joined by CR LF; lines.
  const std::string& GetQueryText();
  TStrings GetSQL();
  /// The statement with markers for its values.
  TBoundStatement GetBoundStatement(TMarkerStyle style = msQuestion);
  /// Fills `TableFilters` with the conditions of each table, joined by " AND ".
  void BuildFilters();
  const TJTableFilterList& TableFilters() const { return FQResult->FTableFilters; }
  /// The literal of value 1 or 2 of a condition, as the statement writes it.
  std::string ExtractValue(const TFilterCond& condition, int index) const;
  /// The first table of every statement: the model's default main table; null when it has none.
  TDSTable* GetMainTable() const { return FMainTable; }
  void RefreshMainTable();

  TSQLOptions GetSQLOptions() const { return FQResult->GetSQLOptions(); }
  void SetSQLOptions(TSQLOptions options) { FQResult->SetSQLOptions(options); }
  TSQLSyntax GetSQLSyntax() const { return FQResult->GetSQLSyntax(); }
  void SetSQLSyntax(TSQLSyntax syntax) { FQResult->SetSQLSyntax(syntax); }
  /// Written after SELECT as " TOP ..." and as the last line "LIMIT ...": the query's own clause where it has one, else
  /// the host's. Setting one sets the host's own SQL, as it stands, and takes the query's own away. Default empty.
  const std::string& GetSQLTopClause() const { return FQueryTopClause.empty() ? FSQLTopClause : FQueryTopClause; }
  void SetSQLTopClause(std::string_view clause);
  const std::string& GetSQLLimitClause() const {
    return FQueryLimitClause.empty() ? FSQLLimitClause : FQueryLimitClause;
  }
  void SetSQLLimitClause(std::string_view clause);
  /// The query's own clauses: its text holds them, `ClearAll` and loading another query take them away. TOP "n" or
  /// "(n)", and "PERCENT" behind it; LIMIT "n", "n OFFSET m" or "n, m". Raise `EJQueryPanelError` for any other text.
  /// Default empty.
  const std::string& GetQueryTopClause() const { return FQueryTopClause; }
  void SetQueryTopClause(std::string_view clause);
  const std::string& GetQueryLimitClause() const { return FQueryLimitClause; }
  void SetQueryLimitClause(std::string_view clause);
  /// The locale in which values are read and shown. Default the C locale.
  const TFormatSettings& GetFormatSettings() const { return FFormatSettings; }
  void SetFormatSettings(const TFormatSettings& settings);

  // The query as text

  const std::string& GetQueryName() const { return FQueryName; }
  void SetQueryName(std::string_view name);
  const TStrings& GetDescription() const { return FDescription; }
  void SetDescription(const TStrings& lines);
  const TStrings& GetUserData() const { return FUserData; }
  void SetUserData(const TStrings& lines);
  /// Whether query texts hold the SQL options (default true), the titles (default false).
  bool GetSaveSQLOptions() const { return FSaveSQLOptions; }
  void SetSaveSQLOptions(bool on) { FSaveSQLOptions = on; }
  bool GetSaveTitles() const { return FSaveTitles; }
  void SetSaveTitles(bool on) { FSaveTitles = on; }
  /// Saving clears `Modified`. Loading replaces the query and activates the panel; when the text cannot be read
  /// (`EJQueryPanelError`, `EConvertError`) the panel keeps its old query. What the text names and the model lacks is
  /// kept and listed in `LoadWarnings`.
  void SaveToStrings(TStrings& lines);
  void LoadFromStrings(const TStrings& lines);
  std::string SaveToText();
  void LoadFromText(std::string_view text);
  void SaveToFile(const std::filesystem::path& file);
  void LoadFromFile(const std::filesystem::path& file);
  const std::vector<TQueryWarning>& LoadWarnings() const { return FLoadWarnings; }
  void AddLoadWarning(std::string_view rowID, std::string_view text);
  bool GetModified() const { return FModified; }
  void SetModified(bool modified) { FModified = modified; }

  // The query from SQL

  /// Replaces the query by what a SELECT statement says, as nearly as the model can say it; `ImportWarnings` lists what
  /// was dropped, guessed or replaced. The panel stays active or inactive.
  ///
  /// Raises `EJQueryPanelError` without a model, before anything changes; `ESQLParserError` and `EListError` for a
  /// wrong statement, `EConvertError` for a wrong time: the query is then empty and the panel inactive.
  ///
  /// With `Faithful`, the query says exactly what the statement says. Raises `ESQLImportError` for what it cannot say
  /// and for a wrong statement; the panel then keeps its old query.
  void ParseSQL(const TStrings& sql, const TSQLImportOptions& options = {});
  void ParseSQL(std::string_view sql, const TSQLImportOptions& options = {});
  /// Those of the last import, in the order of the statement's lines.
  const std::vector<TImportWarning>& ImportWarnings() const { return FImportWarnings; }
  /// The steps of which an import consists. Sets the link type of a bracket and adds its rows; columns without a table
  /// are those of the first one.
  void ProcessSQLBracket(TFilterBracket& filterBracket, const TSQLBracket& sqlBracket, const TSQLTableList& tables);
  /// The first predefined condition of the same SQL, ignoring case and white space; null when there is none.
  TDSCondition* FindCustomCondition(const TSQLCondition& condition);
  /// The first operator whose template fits, with its values; those of a list go to `values`, too. For a "like" that
  /// none fits, "contains" or else "startswith". Null when there is none.
  TDSOperator* OperatorBySQLCond(const TSQLCondition& condition, std::string& value1, std::string& value2,
                                 TStrings& values);
  /// The text of a date or time as conditions keep it. What is no date is today; what is no time raises
  /// `EConvertError`.
  std::string ProcessSQLDateValue(TFieldType fieldType, std::string_view text) const;

  // Titles

  TTitles& Titles() { return FTitles; }
  const TTitles& Titles() const { return FTitles; }
  std::string GetTitle(std::string_view name) const { return FTitles.GetTitle(name); }
  void SetTitle(std::string_view name, std::string_view text);
  void SetTitles(const TStrings& lines);
  void LoadDefTitles();

  // Change notification

  /// Between these, which may be nested, events wait; the last `EndUpdate` fires each that is due once. The panel may
  /// be gone then. Views are told at once.
  void BeginUpdate() { HoldBack(); }
  void EndUpdate() { Release(); }
  /// Null for none; must outlive the panel or be taken off. A view that another one replaces is told that the panel is
  /// inactive.
  TQueryPanelView* GetView() const { return FView; }
  void SetView(TQueryPanelView* view);
  /// After any change of the query.
  TPanelEvent OnChange;
  TPanelEvent OnActiveChange;
  TPanelEvent OnCurrentRowChange;
  TBuildSQLEvent OnBuildSQL;
  /// After an import, for each of its warnings.
  TImportWarningEvent OnImportWarning;

 protected:
  void DefineProperties(TPropertyFiler& filer) override;
  void Loaded() override;

 private:
  friend class TFilterRow;
  friend class TFilterBracket;
  friend class TFilterCond;
  friend class TSimpleCond;
  friend class TCustomCond;
  friend class TSQLBuilder;
  friend class TSQLMapper;
  friend class TSelectImport;
  friend class TQueryResult;
  friend class TQueryReader;
  friend class TSQLParam;

  void FieldRemoved(TDSField& field) override;
  void OperatorRemoved(TDSOperator& op) override;
  void ConditionRemoved(TDSCondition& condition) override;
  void TablesChanging() override;
  void StructureClearing() override;
  void StructureLoaded() override;
  void ModelChanged() override;

  // A change of what the statement consists of; of one value only.
  void ShapeChanged();
  void ContentChanged();
  // Between these, events are held back and fired once at the end; the panel may be gone then. `Together` is the same
  // round a call that may throw.
  enum TEvent : std::uint8_t { evActiveChange, evCurrentRowChange, evChange };
  struct TFiring;
  void HoldBack() { ++FHeldBack; }
  void Release() {
    if (--FHeldBack == 0) Fire();
  }
  template <typename TCall>
  void Together(TCall call) {
    HoldBack();
    try {
      call();
    } catch (...) {
      --FHeldBack;
      throw;
    }
    Release();
  }
  void Raise(TEvent event);
  void Fire();
  // The view, unless a query is being read.
  TQueryPanelView* Viewer() const { return FLoading > 0 ? nullptr : FView; }
  void RowInserted(TFilterRow& row);
  // Before a row is taken out: moves the current row out of it.
  void LeaveRow(const TFilterRow& row);
  void RowsMoved() { FNumbered = false; }
  void EachCondition(TFilterBracket& bracket, const std::function<void(TFilterCond&)>& call);
  TDSField* GetDefaultField() const;
  TDSOperator* GetDefaultOperator(const TDSField& field) const;
  template <typename TRow>
  TRow& AddAsCurrent(TFilterBracket& bracket, std::size_t index, std::unique_ptr<TRow> row);
  void ModelDestroyed();
  void PartGoes(const void* part);
  void SetHostClause(std::string& own, std::string_view clause, std::string& ofQuery);
  struct TQueryParts;
  void ExchangeParts(TQueryParts& parts);
  void ReplaceQuery(const std::function<void()>& read, bool active);
  // `level` counts the statements round a sub-query.
  void ImportSQL(std::string_view sql, const TSQLImportOptions& options, int level);
  void ImportSelect(std::string_view sql, const TSQLImportOptions& options);
  void MapSQL(TJSQLParser& parser, const TSQLImportOptions& options, int level);
  // Collects tables and columns as if the panel were active; why that cannot be, empty if it can.
  std::string BuildOutline();
  void TellImport();

  TRef<TJCustomDBStructure> FDBStruct;
  TQueryPanelView* FView = nullptr;
  std::unique_ptr<TQueryResult> FQResult;
  std::unique_ptr<TSQLBuilder> FBuilder;
  // Rows take their numbers from it.
  std::uint64_t FLastRowSerial = 0;
  std::unique_ptr<TFilterBracket> FRoot;
  TFilterRow* FCurrentRow = nullptr;
  TDSTable* FMainTable = nullptr;
  TTitles FTitles;
  TFormatSettings FFormatSettings;
  TFilterLinkTypes FLinkTypes{fltAll, fltAny, fltNone, fltNotAll};
  std::string FQueryName, FSQLTopClause, FSQLLimitClause, FQueryTopClause, FQueryLimitClause;
  TStrings FDescription, FUserData, FStoredRFields;
  std::vector<TQueryWarning> FLoadWarnings;
  std::vector<TImportWarning> FImportWarnings;
  bool FActive = false, FModified = false, FSaveSQLOptions = true, FSaveTitles = false, FStoredActive = false,
       FAllowSQLFragments = false;
  // Whether the rows' numbers are up to date.
  mutable bool FNumbered = false;
  std::uint64_t FShapeRevision = 1;
  int FLoading = 0, FHeldBack = 0;
  // Events that wait; those whose handler runs; whether the model is losing parts.
  TSet<TEvent> FPending;
  TFiring* FFiring = nullptr;
  bool FPartsGoing = false;
};

/// Reads all query files ("*.qry") of a folder, by name. Raises `EFileError` when the folder cannot be read.
struct TStoredQuery {
  std::string FileName;
  TStrings Lines;
};
TOLVI_CORE_API std::vector<TStoredQuery> ReadQueries(const std::filesystem::path& folder);

}  // namespace tolvi
