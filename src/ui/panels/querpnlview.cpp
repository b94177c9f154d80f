#include <QApplication>
#include <QClipboard>
#include <QEvent>
#include <QMessageBox>
#include <utility>

#include <tolvi/model/dbstruc.h>
#include <tolvi/panel/rfldrows.h>
#include <tolvi/panel/titlefiles.h>
#include <tolvi/query/rowerror.h>
#include <tolvi/ui/controls/waitcursor.h>
#include <tolvi/ui/dialogs/titlesdlg.h>
#include <tolvi/ui/dialogs/valuelistdlg.h>
#include <tolvi/ui/panels/linklabel.h>
#include <tolvi/ui/panels/qpaccess.h>
#include <tolvi/ui/panels/qpdrag.h>
#include <tolvi/ui/panels/qprow.h>
#include <tolvi/ui/panels/qpsubquery.h>
#include <tolvi/ui/panels/querpnlview.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

const QEvent::Type ShowChangesEvent = static_cast<QEvent::Type>(QEvent::registerEventType());

}  // namespace

/// What the panel tells the view.
class TJQueryPanelView::TSink final : public TQueryPanelView {
 public:
  explicit TSink(TJQueryPanelView& view) : FView(view) {}

  void RowInserted(TFilterRow& row) override {
    FView.FNewRow = row.GetSerial();
    Reshape();
  }
  void RowRemoved(TFilterRow& row) override {
    FView.ReleaseWidgets(&row);
    Reshape();
  }
  void RowMoved(TFilterRow&) override { Reshape(); }
  void RowChanged(TFilterRow&) override { FView.Schedule(); }
  void CurrentRowChanged(TFilterRow*) override {
    FView.FBringCurrent = true;
    FView.Schedule();
  }
  void ResultFieldsChanged() override { FView.Schedule(); }
  void TitlesChanged() override { FView.Schedule(); }
  void ActiveChanged(bool) override {
    // Another view shows the panel now.
    if (FView.FPanel && FView.FPanel->GetView() != this) return FView.SetQueryPanel(nullptr);
    FView.ReleaseWidgets(nullptr);
    FView.FBringCurrent = true;
    Reshape();
  }
  void CloseEdit(bool accept) override {
    for (const auto& [serial, row] : FView.FWidgets) {
      for (auto* label : row->findChildren<TDropDownLabel*>(Qt::FindDirectChildrenOnly)) {
        if (label->IsDroppedDown()) return label->DropUp(accept);
      }
    }
  }
  void RefreshValueEditors(TFilterBracket& bracket) override {
    ForEachRow(bracket, [](TFilterRow& row) {
      if (row.GetRowType() == frtBracket) return;
      const auto& condition = static_cast<TFilterCond&>(row);
      for (int index = 1; index <= condition.GetValueCount(); ++index) {
        if (auto* editor = dynamic_cast<TDSSQLEditor*>(condition.GetValueEditor(index))) editor->SetOpened(false);
      }
    });
    FView.Schedule();
  }

 private:
  // The rows' places are found again before they are used; their objects may be gone until then.
  void Reshape() {
    FView.FRows.clear();
    FView.FRowsStale = true;
    FView.Schedule();
  }

  TJQueryPanelView& FView;
};

TJQueryPanelView::TJQueryPanelView(QWidget* parent)
    : QAbstractScrollArea(parent),
      FSink(std::make_unique<TSink>(*this)),
      FPanel([this] { PanelGone(); }),
      FAppearance(std::make_unique<TQPAppearance>()),
      FActions(new TQPActions(this, [this](TPanelCommand command) { RunCommand(command); })),
      FAddLabel(new TLinkLabel(viewport())),
      FDrag(new TQPDrag(*this)) {
  InstallPanelAccess();
  setFocusPolicy(Qt::StrongFocus);
  viewport()->setBackgroundRole(QPalette::Base);
  viewport()->setAutoFillBackground(true);
  FAppearance->OnChange = [this] {
    FMeasured = false;
    Schedule();
  };
  FAddLabel->setObjectName(QStringLiteral("addRowLabel"));
  FAddLabel->installEventFilter(this);
  FAddLabel->hide();
  connect(FAddLabel, &QAbstractButton::clicked, this, [this] {
    FAddLabel->setFocus();
    if (!RunCommand(pcAddCond)) OpenAddMenu();
  });
}

TJQueryPanelView::~TJQueryPanelView() {
  if (FPanel && FPanel->GetView() == FSink.get()) FPanel->SetView(nullptr);
  // Labels must not come back here while they are destroyed.
  delete viewport();
}

void TJQueryPanelView::SetQueryPanel(TJQueryPanel* panel) {
  if (panel == FPanel.Get()) return;
  if (FPanel && FPanel->GetView() == FSink.get()) FPanel->SetView(nullptr);
  ReleaseWidgets(nullptr);
  FEditor.reset();
  ++FSession;
  FPanel.Set(panel);
  FRows.clear();
  FRowsStale = true;
  FPart = 0;
  if (panel != nullptr) {
    panel->SetView(FSink.get());
    FEditor = std::make_unique<TPanelEditor>(*panel);
    FEditor->SetAllowLocking(FAllowLocking);
    FEditor->OnReadClipboard = [] { return FromQString(QApplication::clipboard()->text()); };
    FEditor->OnWriteClipboard = [](const std::string& text) { QApplication::clipboard()->setText(ToQString(text)); };
    FEditor->OnRowStateChange = [this](TFilterRow&) {
      FRowsStale = true;
      Schedule();
    };
  }
  Schedule();
}

// The panel, its rows and their objects are as good as gone.
void TJQueryPanelView::PanelGone() {
  ReleaseWidgets(nullptr);
  FRows.clear();
  FRowsStale = true;
  Schedule();
}

void TJQueryPanelView::SetCommandTitles(const TStrings& lines) {
  FCommandTitles.Assign(lines);
  Schedule();
}

QStringList TJQueryPanelView::GetCommandTitleLines() const {
  return ToQStringList(ChangedTitles(TCommandTitles::DefaultLines(), FCommandTitles.Lines()));
}

void TJQueryPanelView::SetCommandTitleLines(const QStringList& lines) {
  SetCommandTitles(TitlesFromFile(TCommandTitles::DefaultLines(), FromQStringList(lines)));
}

void TJQueryPanelView::SetAllowLocking(bool allow) {
  FAllowLocking = allow;
  if (FEditor) FEditor->SetAllowLocking(allow);
}

// What rows show

TJCustomDBStructure* TJQueryPanelView::SeenModel() {
  TJCustomDBStructure* model = FPanel ? FPanel->GetDBStruct() : nullptr;
  // The reference tells a model from a later one in the same place.
  const bool isSeen = model != nullptr && model == FSeenModel.Get() && model->GetRevision() == FSeenRevision;
  if (!isSeen) {
    FNames.reset();
    FFieldItems.reset();
    FSeenModel.Set(model);
    FSeenRevision = model != nullptr ? model->GetRevision() : 0;
  }
  return model;
}

const TFieldNames& TJQueryPanelView::Names() {
  const TJCustomDBStructure* model = SeenModel();
  if (!FNames) FNames = std::make_unique<TFieldNames>(model);
  return *FNames;
}

const std::vector<TDropDownItem>& TJQueryPanelView::FieldItems() {
  const TJCustomDBStructure* model = SeenModel();
  if (FFieldItems) return *FFieldItems;
  std::vector<TDropDownItem> items;
  const auto groups = model != nullptr ? GroupsInOrder(*model) : std::vector<const TDSFieldGroup*>();
  for (const TDSFieldGroup* group : groups) {
    for (const TDSField* field : *group) {
      if (!field->GetUseInConditions()) continue;
      items.push_back(
          {ToQString(group->GetGroupName()), QString::number(field->GetID()),
           group->GetGroupName().empty() ? ToQString(Names().Of(*field)) : ToQString(field->GetDisplayName())});
    }
  }
  return FFieldItems.emplace(std::move(items));
}

// Changes

void TJQueryPanelView::Schedule() {
  if (std::exchange(FPosted, true)) return;
  QCoreApplication::postEvent(this, new QEvent(ShowChangesEvent), Qt::HighEventPriority);
}

bool TJQueryPanelView::event(QEvent* event) {
  if (event->type() == ShowChangesEvent) {
    ShowChanges();
    return true;
  }
  return QAbstractScrollArea::event(event);
}

void TJQueryPanelView::ReleaseWidgets(const TFilterRow* within) {
  const bool wasReleasing = std::exchange(FReleasing, true);
  for (auto at = FWidgets.begin(); at != FWidgets.end();) {
    TQPRow* widget = at->second;
    const TFilterRow* row = widget->GetRow();
    // A removed row has no bracket any more; those in it still have theirs.
    if (within != nullptr && (row == nullptr || !row->IsWithin(*within))) {
      ++at;
      continue;
    }
    widget->Forget();
    // While an editor is open, its label has the focus of the window only.
    if (widget->isAncestorOf(window()->focusWidget())) setFocus();
    widget->hide();
    widget->deleteLater();
    at = FWidgets.erase(at);
  }
  FReleasing = wasReleasing;
}

void TJQueryPanelView::CollectRows() {
  if (!FRowsStale) return;
  FRows.clear();
  if (FEditor && FPanel) {
    for (TFilterRow* row : FEditor->VisibleRows()) FRows.push_back({row, row->GetRowLevel()});
  }
  FContentWidth = 0;
  if (DigitsOfRows() != FDigits) FMeasured = false;
  FRowsStale = false;
}

void TJQueryPanelView::ShowChanges() {
  FPosted = false;
  if (std::exchange(FShowing, true)) return;
  if (FEditor && FPanel) FEditor->NoteChange();
  if (FPanel) FActions->SetTexts(FCommandTitles, FPanel->Titles());
  FActions->SetRightToLeft(isRightToLeft());
  CollectRows();
  if (!FMeasured) Measure();
  UpdateScrollBars();
  const TFilterRow* current = FPanel ? FPanel->GetCurrentRow() : nullptr;
  const bool bring = std::exchange(FBringCurrent, false) && current != nullptr;
  if (bring) {
    const std::ptrdiff_t index = IndexOfRow(*current);
    if (index >= 0) BringIntoView(static_cast<std::size_t>(index));
  }
  for (const auto& [serial, widget] : FWidgets) widget->Refresh();
  PlaceRows();
  RestoreFocus();
  UpdateActions();
  FNewRow = 0;
  FShowing = false;
}

void TJQueryPanelView::Edit(TFilterRow& row, const std::function<void()>& change) {
  if (!FEditor || !FEditor->CanEdit(row)) return Schedule();
  const QPointer<TJQueryPanelView> self(this);
  const int session = FSession;
  QString fault;
  Schedule();
  FEditor->BeginStep();
  try {
    change();
  } catch (const std::exception& error) {
    fault = QString::fromUtf8(error.what());
  }
  // The host's handlers may have destroyed the view, or given it another panel.
  if (self && FSession == session) FEditor->EndStep();
  if (self && !fault.isEmpty()) ShowError(fault);
}

void TJQueryPanelView::ShowError(const QString& message) {
  if (const auto handler = OnError) return handler(*this, message);
  QMessageBox::warning(this, window()->windowTitle(), message);
}

void TJQueryPanelView::ReportError(const std::exception& error) {
  QString message = QString::fromUtf8(error.what());
  const auto* rowError = dynamic_cast<const EQueryRowError*>(&error);
  TFilterRow* row = rowError != nullptr && FPanel ? FPanel->RootBracket().RowByID(rowError->RowID()) : nullptr;
  if (row != nullptr) {
    message = ToQString(PhraseText(RowPhrase(*row, Names()))) + QStringLiteral(":\n") + message;
    if (!MakeCurrent(row)) return;
    setFocus();
    FocusRow(*row, 0);
    if (TQPRow* widget = RowWidget(*row)) FocusPart(*widget, widget->GetFaultPart());
  }
  ShowError(message);
}

bool TJQueryPanelView::EditTitles() {
  if (!FPanel) return false;
  const QPointer<TJQueryPanelView> self(this);
  TStrings titles = FPanel->Titles().Lines();
  if (!tolvi::EditTitles(this, TTitles::DefaultLines(), titles) || !self || !FPanel) return false;
  FPanel->SetTitles(titles);
  return true;
}

void TJQueryPanelView::ToggleCollapsed(TFilterRow& bracket) {
  if (FEditor) FEditor->SetCollapsed(bracket, !FEditor->IsCollapsed(bracket));
}

void TJQueryPanelView::FetchItems(TDSSQLEditor& editor, const std::function<void(const QString& fault)>& done) {
  if (const auto handler = OnFetchItems) return handler(*this, editor, done);
  QString fault;
  try {
    const TWaitCursor wait;
    editor.SetOpened(true);
  } catch (const std::exception& error) {
    fault = QString::fromUtf8(error.what());
  }
  done(fault);
}

void TJQueryPanelView::EditCustom(TFilterCond& condition, int index) {
  const auto handler = OnCustomEdit;
  if (handler) Edit(condition, [&] { handler(*this, condition, index); });
}

void TJQueryPanelView::EditSubQuery(TFilterCond& condition, int index) {
  if (const auto handler = OnEditSubQuery) return Edit(condition, [&] { handler(*this, condition, index); });
  const std::uint64_t serial = condition.GetSerial();
  const QPointer<TJQueryPanelView> self(this);
  const std::optional<TSubQuery> query = RunSubQueryDialog(*this, condition);
  // The row may have gone while the dialog was open.
  auto* target = self && query ? static_cast<TFilterCond*>(RowBySerial(serial)) : nullptr;
  if (target == nullptr) return;
  Edit(*target, [&] {
    target->SetSubQuery(query->Lines);
    target->SetSubQueryOptions(query->Options);
  });
}

void TJQueryPanelView::EditValueList(TFilterCond& condition, int index) {
  const std::uint64_t serial = condition.GetSerial();
  const QPointer<TJQueryPanelView> self(this);
  const auto check = [this, self, serial, index](const QString& value) {
    auto* target = self ? static_cast<TFilterCond*>(RowBySerial(serial)) : nullptr;
    return target != nullptr ? FaultOfItem(*target, index, value) : QString();
  };
  TStrings values(SplitCommaText(condition.GetValue(index)));
  const QString caption = ToQString(condition.GetValueName(index));
  const TTitles titles = FPanel->Titles();
  if (!tolvi::EditValueList(this, values, caption, titles, check) || !self) return;
  if (auto* target = static_cast<TFilterCond*>(RowBySerial(serial))) {
    Edit(*target, [&] { target->SetValue(index, values.GetCommaText()); });
  }
}

}  // namespace tolvi
