#include <QMessageBox>
#include <QPointer>
#include <QScrollBar>
#include <algorithm>
#include <utility>

#include <tolvi/foundation/consts.h>
#include <tolvi/foundation/errors.h>
#include <tolvi/panel/titlefiles.h>
#include <tolvi/ui/dialogs/titlesdlg.h>
#include <tolvi/ui/panels/rfldpnl.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {

TJResultFieldsPanel::TJResultFieldsPanel(QWidget* parent)
    : QScrollArea(parent),
      FDBStruct([this] { SetDBStruct(nullptr); }),
      FAppearance(std::make_unique<TRFPAppearance>()),
      FTitles(DefaultRFPanelTitles()),
      FRows(*this),
      FAddRowLabel(nullptr) {
  setWidgetResizable(true);
  setFocusPolicy(Qt::ClickFocus);
  setWidget(new QWidget);
  for (QWidget* area : {viewport(), widget()}) {
    area->setBackgroundRole(QPalette::Base);
    area->setForegroundRole(QPalette::Text);
  }
  FAddRowLabel = new TLinkLabel(widget());
  FAddRowLabel->SetLinkColor(QColor(0, 0, 255));
  FAddRowLabel->hide();
  connect(FAddRowLabel, &QAbstractButton::clicked, this, [this] { Guarded([this] { AddEmptyRow(); }); });
}

TJResultFieldsPanel::~TJResultFieldsPanel() {
  OnChange = {};
  if (FDBStruct) FDBStruct->RemoveListener(*this);
  FResultFields.reset();
  ClearRows();
  ReleaseRowMenu();
}

void TJResultFieldsPanel::SetDBStruct(TJCustomDBStructure* dbStruct) {
  const TJCustomDBStructure* const old = FDBStruct.Get();
  if (dbStruct != nullptr && dbStruct == old) return;
  if (old != nullptr) old->RemoveListener(*this);
  FDBStruct.Set(dbStruct);
  FColumnsHeld = false;
  FFieldItems.clear();
  FFieldItemsRevision = 0;
  FResultFields.reset();
  if (dbStruct == nullptr) return;
  dbStruct->AddListener(*this);
  FResultFields = std::make_unique<TRFieldList>(dbStruct);
}

void TJResultFieldsPanel::SetResultFields(const TRFieldList& fields) {
  if (FResultFields == nullptr) throw ERFPanelError(SDBStructureNotSpecified, {});
  FResultFields->Assign(fields);
  RefreshFieldsList();
}

// Titles

void TJResultFieldsPanel::SetTitles(const TStrings& titles) {
  // They may be our own. NOLINTNEXTLINE(performance-unnecessary-copy-initialization)
  const TStrings given = titles;
  LoadRFPanelTitles(FTitles, given);
}

bool TJResultFieldsPanel::EditTitles() {
  const QPointer<TJResultFieldsPanel> alive(this);
  // Under their header, so that the dialog finds them in a file of several panels' titles.
  TStrings defaults{RFPanelTitlesHeader}, titles{RFPanelTitlesHeader};
  defaults.AddStrings(DefaultRFPanelTitles());
  titles.AddStrings(FTitles);
  if (!tolvi::EditTitles(this, defaults, titles) || !alive) return false;
  SetTitles(titles);
  return true;
}

QString TJResultFieldsPanel::GetTitle(std::string_view key) const { return ToQString(FTitles.Value(key)); }

QStringList TJResultFieldsPanel::GetTitleLines() const {
  return ToQStringList(ChangedTitles(DefaultRFPanelTitles(), FTitles));
}

void TJResultFieldsPanel::SetTitleLines(const QStringList& lines) {
  SetTitles(FromQStringList(lines));
  if (!FActive) return;
  BuildRowMenu();
  RefreshFieldsList();
}

// Columns that refer to parts of the model, which may go at any time. While the model changes, nobody is told: who
// hears of it may look things up, and find what is about to go.

void TJResultFieldsPanel::HoldColumns() {
  if (!std::exchange(FColumnsHeld, true)) FResultFields->BeginUpdate();
}

void TJResultFieldsPanel::FieldRemoved(TDSField& field) {
  HoldColumns();
  FResultFields->FieldRemoved(field);
}

void TJResultFieldsPanel::StructureClearing() {
  HoldColumns();
  FResultFields->ForgetFields();
}

void TJResultFieldsPanel::StructureLoaded() {
  HoldColumns();
  FResultFields->ResolveFields();
}

void TJResultFieldsPanel::ModelChanged() {
  if (std::exchange(FColumnsHeld, false)) FResultFields->EndUpdate();
}

// Active or not

void TJResultFieldsPanel::SetActive(bool active) {
  if (active == FActive) return;
  if (active) {
    Activate();
  } else {
    Deactivate();
  }
}

void TJResultFieldsPanel::Activate() {
  if (!FDBStruct) throw ERFPanelError(SDBStructureNotSpecified, {});
  BuildRowMenu();
  FActive = true;
  RefreshFieldsList();
  FRows.SetVisible(true);
  ShowAddRowLabel();
}

void TJResultFieldsPanel::Deactivate() {
  FActive = false;
  FRows.SetVisible(false);
  FAddRowLabel->hide();
}

// Rows

void TJResultFieldsPanel::ClearRows() {
  FCurrentRow = nullptr;
  FRows.Clear();
}

void TJResultFieldsPanel::RefreshFieldsList() {
  // The focus stays at its place: with the row it would leave the panel.
  const auto focused = FocusedPlace();
  if (focused) widget()->setFocus(Qt::OtherFocusReason);
  if (FActive) FAddRowLabel->hide();
  FRefreshing = true;
  ClearRows();
  if (FResultFields != nullptr) {
    for (TResultField& field : *FResultFields) FRows.AddRow(field);
  }
  FRefreshing = false;
  ChainTabs(0);
  FitContent();
  if (FActive) ShowAddRowLabel();
  if (!focused) return;
  if (!FRows.Empty()) return FocusPart(FRows[std::min(focused->first, FRows.Count() - 1)].GetPart(focused->second));
  if (FActive) FAddRowLabel->setFocus(Qt::OtherFocusReason);
}

void TJResultFieldsPanel::Refresh() {
  RefreshFieldsList();
  update();
}

bool TJResultFieldsPanel::EditFields() {
  if (FResultFields == nullptr) throw ERFPanelError(SDBStructureNotSpecified, {});
  const QPointer<TJResultFieldsPanel> alive(this);
  const QPointer<T_dlgRFieldEdit> dialog = new T_dlgRFieldEdit(*FResultFields, FEditorTitles, OnEditorHelp, this);
  const bool accepted = dialog->exec() == QDialog::Accepted;
  if (!dialog) return false;
  // The host may have given the panel another model meanwhile.
  const bool fits =
      accepted && FResultFields != nullptr && FResultFields->GetDBStruct() == dialog->GetFields().GetDBStruct();
  const bool changed = fits && dialog->HasChanged();
  if (changed) FResultFields->Assign(dialog->GetFields());
  delete dialog;
  if (!changed || !alive) return fits;
  RefreshFieldsList();
  Changed();
  return true;
}

void TJResultFieldsPanel::ClearAll() {
  ClearRows();
  const QPointer<TJResultFieldsPanel> alive(this);
  if (FResultFields != nullptr) FResultFields->Clear();
  if (!alive) return;
  ShowAddRowLabel();
  Changed();
}

void TJResultFieldsPanel::AddEmptyRow() {
  const QPointer<TJResultFieldsPanel> alive(this);
  if (FResultFields == nullptr) throw ERFPanelError(SDBStructureNotSpecified, {});
  TResultField& field = AppendResultField(*FResultFields, GetDBStruct());
  if (!alive) return;
  // The focus goes from the label to the new row; hidden, the label would hand it to whatever follows the panel.
  const bool hadFocus = FAddRowLabel->hasFocus();
  if (hadFocus) widget()->setFocus(Qt::OtherFocusReason);
  FAddRowLabel->hide();
  TResultFieldRow& row = FRows.AddRow(field);
  PlaceRows(FRows.Count() - 1);
  if (verticalScrollBar()->isVisible()) verticalScrollBar()->setValue(verticalScrollBar()->maximum());
  if (hadFocus) FocusPart(row.GetPart(rpField));
  if (alive) Changed();
}

void TJResultFieldsPanel::DeleteRow(std::size_t index) {
  const QPointer<TJResultFieldsPanel> alive(this);
  if (FCurrentRow == &FRows[index]) FCurrentRow = nullptr;
  FRows.Delete(index);
  if (FResultFields != nullptr && index < FResultFields->Count()) FResultFields->Delete(index).reset();
  if (!alive) return;
  PlaceRows(index);
  Changed();
}

void TJResultFieldsPanel::MoveRow(std::size_t from, std::size_t to) {
  const QPointer<TJResultFieldsPanel> alive(this);
  FRows.Move(from, to);
  if (FResultFields != nullptr && std::max(from, to) < FResultFields->Count()) {
    MoveResultField(*FResultFields, from, to);
  }
  if (!alive) return;
  PlaceRows(std::min(from, to));
  Changed();
}

void TJResultFieldsPanel::PlaceRows(std::size_t from) {
  FAddRowLabel->hide();
  for (std::size_t i = from; i < FRows.Count(); ++i) FRows[i].Place();
  ChainTabs(from);
  ShowAddRowLabel();
}

void TJResultFieldsPanel::Changed() {
  if (!OnChange || FInsideEventHandler) return;
  const QPointer<TJResultFieldsPanel> alive(this);
  struct TInside {
    const QPointer<TJResultFieldsPanel>& panel;
    ~TInside() {
      if (panel) panel->FInsideEventHandler = false;
    }
  } inside{alive};
  FInsideEventHandler = true;
  const TRFPanelChangeEvent handler = OnChange;
  handler(*this);
}

void TJResultFieldsPanel::RowEdited(TResultFieldRow& row, TRFRowPart part) {
  const QPointer<TJResultFieldsPanel> alive(this);
  TResultFieldRow* const edited = &row;
  const std::ptrdiff_t index = row.GetRowIndex();
  const bool takesFocus = !HasFocusElsewhere();
  Guarded([&row] { row.RefreshResultField(); });
  if (!alive) return;
  if (FRows.IndexOf(edited) < 0) {
    // The handler has made the rows anew.
    if (takesFocus && index >= 0 && !HasFocusElsewhere()) FocusRow(static_cast<std::size_t>(index));
    return;
  }
  edited->Place();
  ChainTabs(static_cast<std::size_t>(edited->GetRowIndex()));
  FitContent();
  if (takesFocus) FocusPart(edited->GetPart(part));
}

// The row menu

void TJResultFieldsPanel::BuildRowMenu() {
  ReleaseRowMenu();
  FRowPopup = new QMenu(this);
  for (const TRFMenuItem& item : ResultRowMenu(FTitles)) {
    if (item.Tag == mtSeparator) {
      FRowPopup->addSeparator();
      continue;
    }
    QAction* action = FRowPopup->addAction(ToQString(item.Caption));
    action->setData(static_cast<int>(item.Tag));
    connect(action, &QAction::triggered, this, [this, tag = item.Tag] {
      const QPointer<TJResultFieldsPanel> alive(this);
      FMenuItemRuns = true;
      Guarded([this, tag] { MenuItemClick(tag); });
      if (alive) FMenuItemRuns = false;
    });
  }
}

// A menu must outlive the click on its item, which may be where this comes from.
void TJResultFieldsPanel::ReleaseRowMenu() {
  QMenu* menu = std::exchange(FRowPopup, nullptr);
  if (!FMenuItemRuns) {
    delete menu;
  } else if (menu != nullptr) {
    menu->setParent(nullptr);
    menu->deleteLater();
  }
}

void TJResultFieldsPanel::RowButtonClick(TResultFieldRow& row) {
  FCurrentRow = &row;
  if (!FActive || FRowPopup == nullptr) return;
  const auto index = static_cast<std::size_t>(row.GetRowIndex());
  for (QAction* action : FRowPopup->actions()) {
    const auto tag = static_cast<TRFMenuTag>(action->data().toInt());
    if (tag != mtSeparator) action->setEnabled(IsRowMenuItemEnabled(tag, index, FRows.Count()));
  }
  const QRect button = row.GetButton().geometry();
  QPoint below(button.left(), button.top() + button.height());
  if (isRightToLeft()) below.setX(button.left() + button.width() - FRowPopup->sizeHint().width());
  FRowPopup->popup(widget()->mapToGlobal(below));
}

void TJResultFieldsPanel::MenuItemClick(TRFMenuTag tag) {
  if (FCurrentRow == nullptr) return;
  const auto index = static_cast<std::size_t>(FCurrentRow->GetRowIndex());
  const std::optional<std::size_t> moved = MovedRowIndex(tag, index, FRows.Count());
  const QPointer<TJResultFieldsPanel> alive(this);
  if (tag == mtDelete) DeleteRow(index);
  if (moved) MoveRow(index, *moved);
  if (alive) FocusRow(moved.value_or(index));
}

void TJResultFieldsPanel::Guarded(const std::function<void()>& operation) {
  const QPointer<TJResultFieldsPanel> alive(this);
  try {
    operation();
  } catch (const EException& error) {
    if (!alive) return;
    const QString message = ToQString(error.Message());
    if (OnError) {
      const auto handler = OnError;
      return handler(*this, message);
    }
    auto* box = new QMessageBox(QMessageBox::Warning, ToQString(SError.Text), message, QMessageBox::Ok, this);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
  }
}

const std::vector<TDropDownItem>& TJResultFieldsPanel::FieldItems() {
  const TJCustomDBStructure& model = *FDBStruct.Get();
  if (FFieldItemsRevision == model.GetRevision()) return FFieldItems;
  FFieldItems.clear();
  for (const TRFItem& item : ResultFieldItems(model)) {
    FFieldItems.push_back({ToQString(item.Group), ToQString(item.Value), ToQString(item.Text)});
  }
  FFieldItemsRevision = model.GetRevision();
  return FFieldItems;
}

}  // namespace tolvi
