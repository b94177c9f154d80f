// The query of the window: its statement, its rows, where it is stored.
#include <QDir>
#include <QStatusBar>
#include <QTabWidget>
#include <algorithm>
#include <cstdint>

#include "apps/workbench/controls/askchoice.h"
#include "apps/workbench/export/chartpane.h"
#include "apps/workbench/export/exportdlg.h"
#include "apps/workbench/export/printrows.h"
#include "apps/workbench/results/resultgrid.h"
#include "apps/workbench/results/resultpane.h"
#include "apps/workbench/sql/importdlg.h"
#include "apps/workbench/sql/sqlpane.h"
#include "apps/workbench/store/conflictdlg.h"
#include "apps/workbench/store/storepane.h"
#include "apps/workbench/window/faultfinder.h"
#include "apps/workbench/window/mainwindow.h"
#include "apps/workbench/window/notebar.h"
#include "apps/workbench/window/queryarea.h"
#include <tolvi/foundation/consts.h>
#include <tolvi/foundation/text.h>
#include <tolvi/panel/paneleditor.h>
#include <tolvi/query/explain.h>
#include <tolvi/query/paramvalues.h>
#include <tolvi/query/rowerror.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

bool HasMissingValues(const TBoundStatement& statement) {
  for (const TBoundValue& value : statement.Values) {
    if (value.IsMissing) return true;
  }
  return false;
}

/// Whether the field is a column by which tables are linked, or counts rows.
bool IsKey(const TDSField& field) {
  if (field.GetFieldType() == ftAutoInc) return true;
  const TDSTable* table = field.GetTable();
  if (field.GetFieldKind() != jfkData || table == nullptr) return false;
  const auto isAmong = [&field](const TStrings& entries) {
    return std::any_of(entries.begin(), entries.end(), [&field](const std::string& entry) {
      return !IsLinkConstant(entry) && SameText(LinkEntryText(entry), field.GetFieldName());
    });
  };
  for (const TDSLink* link : table->Links()) {
    if (link->GetTable1() == table && isAmong(link->GetFields1())) return true;
    if (link->GetTable2() == table && isAmong(link->GetFields2())) return true;
  }
  return false;
}

/// Databases tell less of the columns.
TKnownColumns KnownColumns(const TRFieldList& columns) {
  TKnownColumns known;
  if (columns.GetShowsAll()) return known;
  for (const TResultField& column : columns) {
    if (column.GetHidden()) continue;
    TKnownColumn& result = known.emplace_back();
    result.Caption = column.GetCaption();
    if (!column.IsPlainField()) continue;
    const TDSField& field = *column.DSFields()[0];
    result.Type = field.GetFieldType();
    result.IsKey = IsKey(field);
  }
  return known;
}

/// All parameters count as given, so that an empty text is one.
void TakeGiven(TBoundStatement& statement, TJQueryPanel& panel) {
  TParamNames names;
  for (const TParamInfo& param : ListParams(panel)) names.insert(param.Name);
  TakeEmptyTexts(statement, panel, names);
}

}  // namespace

void TMainWindow::QueryChanged() {
  FFaultFinder->Stop();
  FRefresh.start();
}

void TMainWindow::ShowQuery() {
  if (!FWorkspace) return;
  FStorePane->SetModified(FWorkspace->IsQueryModified());
  RefreshTitle();
  const std::unique_ptr<TJQueryPanel> copy = CopyToShow();
  if (!copy) return;
  ShowStatement(*copy);
  ShowRows(*copy);
}

void TMainWindow::QueryLoaded() {
  // What would be composed there could not be saved.
  FQueryArea->setEnabled(FWorkspace->ShowsCurrentQuery());
  FSqlPane->SetStatement({});
  FQueryArea->ForgetSteps();
  FChartPane->SetTitle(QueryName());
  FNote->Pass();
  if (!FResultPane->GetPreview()) FResultPane->ShowNothing(tr("Rows appear here when you run the query."));
  RefreshCommands();
  QueryChanged();
}

void TMainWindow::ShowStatement(TJQueryPanel& copy) {
  // The syntax is one to look at: the query runs in that of its database.
  const TSQLSyntax own = copy.GetSQLSyntax();
  copy.SetSQLSyntax(FSqlPane->GetSyntax());
  try {
    const bool isEmpty = copy.RFields().Empty() && copy.RootBracket().GetRowCount() == 0;
    FSqlPane->SetStatement(isEmpty ? std::string() : copy.GetQueryText());
    if (!isEmpty) FSqlPane->SetWarnings(copy.QResult().Warnings());
  } catch (const EQueryRowError& error) {
    FSqlPane->ShowFault(QString::fromUtf8(error.what()), error.RowID());
  } catch (const EException& error) {
    FSqlPane->ShowFault(QString::fromUtf8(error.what()));
  }
  copy.SetSQLSyntax(own);
}

std::unique_ptr<TJQueryPanel> TMainWindow::CopyOfQuery() const {
  auto copy = std::make_unique<TJQueryPanel>();
  const TJQueryPanel& panel = FWorkspace->Panel();
  copy->SetFormatSettings(panel.GetFormatSettings());
  copy->SetDBStruct(&FWorkspace->Model());
  copy->SetAllowSQLFragments(panel.GetAllowSQLFragments());
  copy->LoadFromText(FWorkspace->QueryText());
  return copy;
}

std::unique_ptr<TJQueryPanel> TMainWindow::CopyToShow() {
  try {
    return CopyOfQuery();
  } catch (const EException& error) {
    const QString words = QString::fromUtf8(error.what());
    FSqlPane->ShowFault(words);
    if (FResultPane->GetPreview()) FResultPane->ShowFault(words);
    return nullptr;
  }
}

void TMainWindow::ShowRows(TJQueryPanel& copy) {
  if (!FResultPane->GetPreview()) return;
  try {
    if (copy.RFields().Empty()) return FResultPane->ShowNothing(tr("Add a column to the result to see rows."));
    // So that the database need not make more rows than are shown, and one to know that there are more.
    if (FWorkspace->HasLimitClause() && copy.GetSQLLimitClause().empty() && copy.GetSQLTopClause().empty()) {
      copy.SetSQLLimitClause(std::to_string(FSettings.PreviewRows + 1));
    }
    const TBoundStatement statement = copy.GetBoundStatement(msQuestion);
    if (HasMissingValues(statement)) {
      return FResultPane->ShowNothing(tr("The query asks for values: run it to give them."));
    }
    FResultPane->Preview(statement, FWorkspace->Model().SQLFormats().GetQuoteBool(),
                         static_cast<std::size_t>(FSettings.PreviewRows), KnownColumns(copy.RFields()));
  } catch (const EException& error) {
    ShowQueryFault(error);
  }
}

void TMainWindow::RunQuery() {
  if (!FWorkspace) return;
  try {
    const std::unique_ptr<TJQueryPanel> copy = CopyOfQuery();
    copy->SetQueryName(FromQString(QueryName()));
    if (!AskParams(this, *copy, FParams, SourceKey(FWorkspace->GetSource()))) return;
    FFaultFinder->Stop();
    FResultTabs->setCurrentWidget(FResultPane);
    TBoundStatement statement = copy->GetBoundStatement(msQuestion);
    TakeGiven(statement, *copy);
    FResultPane->Run(statement, FWorkspace->Model().SQLFormats().GetQuoteBool(),
                     FSettings.MaxRows == 0 ? SIZE_MAX : static_cast<std::size_t>(FSettings.MaxRows),
                     KnownColumns(copy->RFields()));
  } catch (const EException& error) {
    FResultTabs->setCurrentWidget(FResultPane);
    ShowQueryFault(error);
  }
}

void TMainWindow::ShowQueryFault(const EException& error) {
  if (FWorkspace->Panel().RFields().Empty() && error.Message() == std::string(SNotEnoughInfo)) {
    return FResultPane->ShowNothing(tr("Add a column to the result to see rows."));
  }
  FResultPane->ShowFault(QString::fromUtf8(error.what()));
  const auto* ofRow = dynamic_cast<const EQueryRowError*>(&error);
  if (ofRow == nullptr) return;
  FResultPane->SetFaultAction(tr("Show in query"), [this, id = ofRow->RowID()] { FQueryArea->GoToRow(id); });
}

void TMainWindow::ShowDatabaseFault(const QString& words) {
  if (!FWorkspace) return;
  const std::string limit = FWorkspace->HasLimitClause() ? "1" : "";
  try {
    FFaultFinder->Find([this] { return CopyOfQuery(); }, limit,
                       [this, words](const TFaultPart& part) {
                         if (part.Column < 0) return ShowFaultOfRow(words, part.RowID);
                         ShowFaultOfColumn(words, static_cast<std::size_t>(part.Column));
                       });
  } catch (const EException&) {
    // The query has changed since: so will what is shown.
  }
}

void TMainWindow::ShowFaultOfRow(const QString& words, const std::string& rowID) {
  const auto* row = FWorkspace->Panel().RootBracket().RowByID(rowID);
  if (row == nullptr || FResultPane->IsRunning()) return;
  const auto* condition = dynamic_cast<const TFilterCond*>(row);
  const QString sentence = condition == nullptr ? ToQString(rowID.substr(1)) : ToQString(ExplainCondition(*condition));
  FResultPane->ShowFault(tr("The database refuses the condition “%1”:\n%2").arg(sentence, words));
  FResultPane->SetFaultAction(tr("Show in query"), [this, rowID] { FQueryArea->GoToRow(rowID); });
}

void TMainWindow::ShowFaultOfColumn(const QString& words, std::size_t column) {
  const TRFieldList& columns = FWorkspace->Panel().RFields();
  if (column >= columns.Count() || FResultPane->IsRunning()) return;
  FResultPane->ShowFault(
      tr("The database refuses the column “%1”:\n%2").arg(ToQString(columns[column].GetCaption()), words));
  FResultPane->SetFaultAction(tr("Show in query"), [this, column] {
    TResultFieldRows& rows = FQueryArea->Columns().GetRows();
    if (column < rows.Count()) rows[column].GetPart(rpField).setFocus(Qt::OtherFocusReason);
  });
}

void TMainWindow::RowsEnded() {
  RefreshCommands();
  if (FResultPane->IsRunning()) return;
  FChartPane->SetRows(FResultPane->GetRows(), *FResultPane->GetOrder(), FResultPane->GetExtent());
}

void TMainWindow::ReadAllForChart() {
  RunQuery();
  if (FResultPane->IsRunning()) FResultTabs->setCurrentWidget(FChartPane);
}

bool TMainWindow::SaveQuery() {
  if (!FWorkspace) return false;
  bool isSaved = false;
  try {
    FWorkspace->SaveQuery();
    isSaved = true;
  } catch (const EQueryConflictError& conflict) {
    isSaved = SettleConflict(conflict);
  } catch (const std::exception& error) {
    TellFault(QString::fromUtf8(error.what()));
  }
  if (isSaved) {
    if (TPanelEditor* editor = FQueryArea->Conditions().GetEditor()) editor->NoteSaved();
    statusBar()->showMessage(tr("“%1” is saved.").arg(QueryName()), 5'000);
  }
  FStorePane->SetModified(FWorkspace->IsQueryModified());
  RefreshTitle();
  return isSaved;
}

bool TMainWindow::SettleConflict(const EQueryConflictError& conflict) {
  const TConflictChoice choice = AskConflict(this, conflict, &FWorkspace->Model());
  if (choice == ccCancel) return false;
  const bool isSettled = Try([&] {
    tolvi::SettleConflict(FWorkspace->Store(), FWorkspace->Store().GetItemIndex(), conflict, choice);
    FWorkspace->Panel().SetModified(false);
  });
  if (isSettled) QueryLoaded();
  return isSettled;
}

void TMainWindow::RevertQuery() {
  if (FWorkspace && Try([this] { FWorkspace->RevertQuery(); })) QueryLoaded();
}

void TMainWindow::PasteSql(const std::string& sql) {
  if (!FWorkspace) return;
  TImportOptions options{sql, FSettings.AllowSQLFragments, [this](TJQueryPanel& panel) {
                           panel.SetFormatSettings(FWorkspace->Panel().GetFormatSettings());
                           panel.SetTitles(FWorkspace->Panel().Titles().Lines());
                         }};
  const std::optional<TImported> imported = ImportSql(this, FWorkspace->Model(), options);
  if (!imported) return;
  Try([&] {
    TJQueryPanel& panel = FWorkspace->Panel();
    // A statement says nothing of these.
    const TStrings description = panel.GetDescription(), userData = panel.GetUserData();
    panel.LoadFromText(imported->QueryText);
    panel.SetQueryName(FromQString(QueryName()));
    panel.SetDescription(description);
    panel.SetUserData(userData);
    panel.SetModified(true);
  });
  QueryChanged();
}

bool TMainWindow::MayTakeRows() {
  const std::shared_ptr<const TResultRows> rows = FResultPane->GetRows();
  if (FResultPane->IsRunning() || !rows) return false;
  const TExtent extent = FResultPane->GetExtent();
  if (extent == exWhole) return true;
  const TChoice run{QStringLiteral("run"), tr("&Run")}, take{QStringLiteral("take"), tr("&These rows only")};
  const QString words = extent == exBeginning
                            ? tr("Only the first %L1 rows are here. Run the query first to have all of them.")
                            : tr("Only the first %L1 rows are here: the settings let a run read no more.");
  const std::vector<TChoice> choices = extent == exBeginning ? std::vector{run, take} : std::vector{take};
  const auto answer = AskChoice(this, QStringLiteral("rows"), words.arg(rows->GetRowCount()), choices);
  if (!answer) return false;
  if (choices[*answer].Name == run.Name) RunQuery();
  // They may have gone while the box was open.
  return choices[*answer].Name == take.Name && FResultPane->GetRows() == rows && !FResultPane->IsRunning();
}

void TMainWindow::ExportRows() {
  if (!MayTakeRows()) return;
  const TMemory memory{
      [this](const QString& key) -> QVariant {
        return key == QStringLiteral("export.folder") ? FSettings.ExportFolder : FSettings.ExportFormat;
      },
      [this](const QString& key, const QVariant& value) {
        (key == QStringLiteral("export.folder") ? FSettings.ExportFolder : FSettings.ExportFormat) = value.toString();
      }};
  const std::shared_ptr<const TResultRows> rows = FResultPane->GetRows();
  const QString file = tolvi::ExportRows(this, rows, *FResultPane->GetOrder(), QueryName(), memory);
  if (file.isEmpty()) return;
  const auto count = static_cast<int>(rows->GetRowCount());
  const QString words = count == 1 ? tr("1 row is in %1.") : tr("%Ln rows are in %1.", nullptr, count);
  statusBar()->showMessage(words.arg(QDir::toNativeSeparators(file)), 15'000);
}

void TMainWindow::PrintRows() {
  if (!MayTakeRows()) return;
  tolvi::PrintRows(this, FResultPane->GetRows(), *FResultPane->GetOrder(), QueryName(), FResultPane->GetExtent());
}

}  // namespace tolvi
