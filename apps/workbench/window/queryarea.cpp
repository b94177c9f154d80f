#include "apps/workbench/window/queryarea.h"

#include <QAction>
#include <QLabel>
#include <QShortcut>
#include <QSplitter>
#include <QVBoxLayout>

#include <tolvi/panel/panelcommands.h>
#include <tolvi/panel/paneleditor.h>

namespace tolvi {
namespace {

/// Everything by which columns can differ.
std::string TextOf(const TRFieldList& fields) {
  std::string text = fields.GetJustSorting() ? "sorting" : "";
  for (const TResultField& field : fields) {
    text += '\n' + field.GetExpression() + '\t' + field.GetCaption() + '\t' + std::to_string(field.GetSorting()) +
            '\t' + std::to_string(field.GetSortOrder()) + (field.GetHidden() ? "h" : "");
  }
  return text;
}

/// A caption above a widget, which it names for screen readers and to which its accelerator goes.
QWidget* Captioned(const QString& caption, QWidget* widget) {
  auto* box = new QWidget;
  auto* rows = new QVBoxLayout(box);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(2);
  auto* label = new QLabel(caption);
  label->setBuddy(widget);
  widget->setAccessibleName(QString(caption).remove(u'&'));
  rows->addWidget(label);
  rows->addWidget(widget, 1);
  return box;
}

}  // namespace

TQueryArea::TQueryArea(const TStrings& titles, QWidget* parent)
    : QWidget(parent),
      FTitles(titles),
      FSplitter(new QSplitter(Qt::Vertical)),
      FConditions(new TJQueryPanelView),
      FColumns(new TJResultFieldsPanel) {
  FConditions->setObjectName(QStringLiteral("query.conditions"));
  FColumns->setObjectName(QStringLiteral("query.columns"));
  FConditions->SetCommandTitles(titles);
  FColumns->SetTitles(titles);
  TTitles editorTitles;
  editorTitles.Assign(titles);
  FColumns->SetEditorTitles(editorTitles);
  FSplitter->addWidget(Captioned(tr("C&onditions"), FConditions));
  FSplitter->addWidget(Captioned(tr("Co&lumns of the result"), FColumns));
  FSplitter->setStretchFactor(0, 3);
  FSplitter->setStretchFactor(1, 2);
  FSplitter->setChildrenCollapsible(false);
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->addWidget(FSplitter);
  // Steps are those of the whole query; the commands take keys among the conditions only.
  for (const TPanelCommand command : {pcUndo, pcRedo}) {
    QAction& action = FConditions->GetAction(command);
    for (const QKeySequence& key : action.shortcuts()) {
      auto* shortcut = new QShortcut(key, FColumns);
      shortcut->setContext(Qt::WidgetWithChildrenShortcut);
      connect(shortcut, &QShortcut::activated, &action, &QAction::trigger);
    }
  }
  FConditions->OnError = [this](TJQueryPanelView&, const QString& words) {
    if (OnError) OnError(words);
  };
  FColumns->OnError = [this](TJResultFieldsPanel&, const QString& words) {
    if (OnError) OnError(words);
  };
  FColumns->OnChange = [this](TJResultFieldsPanel&) { ColumnsChanged(); };
}

void TQueryArea::SetPanel(TJQueryPanel* panel, TJDBStructure* model) {
  if (FPanel != nullptr) FPanel->OnChange = nullptr;
  FPanel = panel;
  FConditions->SetQueryPanel(panel);
  FColumns->Deactivate();
  FColumns->SetDBStruct(model);
  FShownColumns.clear();
  if (panel == nullptr) return;
  panel->SetTitles(FTitles);
  FColumns->SetActive(true);
  FColumns->SetResultFields(panel->RFields());
  FShownColumns = TextOf(panel->RFields());
  panel->OnChange = [this](TJQueryPanel&) { PanelChanged(); };
  NoteIfSaved();
}

void TQueryArea::PanelChanged() {
  if (std::string columns = TextOf(FPanel->RFields()); columns != FShownColumns) {
    FShownColumns = std::move(columns);
    FColumns->SetResultFields(FPanel->RFields());
  }
  if (OnChange) OnChange();
}

void TQueryArea::ColumnsChanged() {
  if (FPanel == nullptr) return;
  const TRFieldList& columns = *FColumns->GetResultFields();
  FShownColumns = TextOf(columns);
  FPanel->RFields().Assign(columns);
}

bool TQueryArea::GoToRow(const std::string& rowID) {
  TFilterRow* row = FPanel == nullptr ? nullptr : FPanel->RootBracket().RowByID(rowID);
  if (row == nullptr) return false;
  FConditions->ShowChanges();
  FPanel->SetCurrentRow(row);
  FConditions->setFocus();
  FConditions->FocusRow(*row, 0);
  return true;
}

void TQueryArea::ForgetSteps() {
  TPanelEditor* editor = FConditions->GetEditor();
  if (editor == nullptr) return;
  editor->ClearHistory();
  NoteIfSaved();
}

void TQueryArea::NoteIfSaved() {
  TPanelEditor* editor = FConditions->GetEditor();
  if (editor != nullptr && FPanel != nullptr && !FPanel->GetModified()) editor->NoteSaved();
}

}  // namespace tolvi
