#include "apps/workbench/results/resultpane.h"

#include <QAction>
#include <QElapsedTimer>
#include <QEvent>
#include <QLocale>
#include <QPointer>
#include <QStackedWidget>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>
#include <optional>
#include <utility>

#include "apps/workbench/results/busyline.h"
#include "apps/workbench/results/fire.h"
#include "apps/workbench/results/resultgrid.h"
#include "apps/workbench/results/resultpages.h"
#include "apps/workbench/results/resultreader.h"
#include "apps/workbench/results/runicon.h"

namespace tolvi {
namespace {

using namespace std::chrono_literals;

// Changes that follow each other more quickly are run once.
constexpr auto previewPause = 150ms;

int Count(std::size_t rows) { return static_cast<int>(rows); }

QString TimeText(std::chrono::microseconds time) {
  const double seconds = std::chrono::duration<double>(time).count();
  const int digits = seconds < 0.1 ? 3 : seconds < 10 ? 2 : 1;
  return TResultPane::tr("%1 s").arg(QLocale().toString(seconds, 'f', digits));
}

QString EndText(const TRunStats& stats) {
  const int count = Count(stats.RowCount);
  const QString time = TimeText(stats.Time);
  if (stats.IsCancelled) {
    if (count == 0) return TResultPane::tr("Stopped after %1").arg(time);
    return (count == 1 ? TResultPane::tr("Stopped after 1 row · %1")
                       : TResultPane::tr("Stopped after %Ln rows · %1", nullptr, count))
        .arg(time);
  }
  if (stats.IsLimited) {
    return (count == 1 ? TResultPane::tr("First row · %1") : TResultPane::tr("First %Ln rows · %1", nullptr, count))
        .arg(time);
  }
  if (count == 0) return TResultPane::tr("No rows · %1").arg(time);
  return (count == 1 ? TResultPane::tr("1 row · %1") : TResultPane::tr("%Ln rows · %1", nullptr, count)).arg(time);
}

}  // namespace

struct TResultPane::TParts {
  explicit TParts(TResultPane& pane);

  struct TRequest {
    TBoundStatement Statement;
    bool QuotedBooleans = false;
    std::size_t MaxRows = 0;
    TKnownColumns Known;
  };

  void MakeBar();
  void FitIcons();
  void MakeContent();
  void ListenToReader();
  QAction* MakeAction(TRunSign sign, const QString& text, const char* name);

  bool IsRunning() const { return Reader.IsRunning() || Pending; }
  bool CanRun() const { return Url.has_value(); }
  void Begin(TRequest request);
  void StartPending();
  void Drop();
  /// Forgets the rows that are on show and shows a page instead of them.
  void ShowPage(QWidget& page);
  void ShowIncoming();
  void Update();
  void TellEnd();

  TResultPane& Pane;
  QToolBar* Bar = nullptr;
  QAction *Run = nullptr, *Stop = nullptr, *Preview = nullptr;
  TStatusLine* Status = nullptr;
  QStackedWidget* Pages = nullptr;
  TResultGrid* Grid = nullptr;
  TEmptyPage* Empty = nullptr;
  TFaultPage* Fault = nullptr;
  TBusyLine* Busy = nullptr;

  TResultReader Reader;
  std::optional<TConnectionUrl> Url;
  // A preview that waits for more changes.
  std::optional<TRequest> Pending;
  QTimer PendingTimer;
  QElapsedTimer SincePreview;
  // Of the columns of the run that is on.
  TKnownColumns Known;
  // Its rows; they take the place of the old ones with the first block.
  std::shared_ptr<TResultRows> Incoming;
  // What the status says when all is done.
  QString EndWords;
  bool IsPreviewRun = false;
  TExtent Extent = exWhole;
};

TResultPane::TParts::TParts(TResultPane& pane) : Pane(pane) {
  MakeBar();
  MakeContent();
  ListenToReader();
  PendingTimer.setSingleShot(true);
  PendingTimer.setInterval(previewPause);
  QObject::connect(&PendingTimer, &QTimer::timeout, &Pane, [this] { StartPending(); });
  auto* layout = new QVBoxLayout(&Pane);
  layout->setContentsMargins({});
  layout->setSpacing(0);
  auto* top = new QHBoxLayout;
  top->setSpacing(0);
  top->addWidget(Bar);
  top->addWidget(Status, 1);
  layout->addLayout(top);
  layout->addWidget(Pages, 1);
  Update();
}

QAction* TResultPane::TParts::MakeAction(TRunSign sign, const QString& text, const char* name) {
  auto* action = new QAction(RunIcon(sign, *Bar), text, &Pane);
  action->setObjectName(QLatin1String(name) + QLatin1String("Action"));
  Pane.QWidget::addAction(action);
  Bar->addAction(action);
  QWidget* button = Bar->widgetForAction(action);
  button->setObjectName(QLatin1String(name));
  button->setFocusPolicy(Qt::TabFocus);
  return action;
}

void TResultPane::TParts::MakeBar() {
  Bar = new QToolBar(&Pane);
  Bar->setAccessibleName(tr("Result"));
  Bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  FitIcons();
  Run = MakeAction(rsRun, tr("&Run"), "results.run");
  Run->setShortcut(Qt::Key_F5);
  Run->setToolTip(tr("Fetch all rows (F5)"));
  Stop = MakeAction(rsStop, tr("S&top"), "results.stop");
  Stop->setShortcut(Qt::Key_Escape);
  Stop->setToolTip(tr("Stop the query that runs (Esc)"));
  Preview = MakeAction(rsPreview, tr("Live &preview"), "results.preview");
  Preview->setCheckable(true);
  Preview->setChecked(true);
  Preview->setToolTip(tr("Show the first rows whenever the query changes"));
  Status = new TStatusLine;
  Status->setObjectName(QStringLiteral("results.status"));
  QObject::connect(Run, &QAction::triggered, &Pane, [this] { Fire(Pane.OnRunRequest); });
  QObject::connect(Stop, &QAction::triggered, &Pane, [this] { Pane.Cancel(); });
  QObject::connect(Preview, &QAction::toggled, &Pane, [this](bool isOn) {
    if (!isOn && IsRunning() && IsPreviewRun) Pane.Cancel();
    Fire(Pane.OnPreviewChange);
  });
}

void TResultPane::TParts::FitIcons() {
  const int side = Pane.fontMetrics().height();
  Bar->setIconSize(QSize(side, side));
}

void TResultPane::TParts::MakeContent() {
  Pages = new QStackedWidget(&Pane);
  Pages->addWidget(Empty = new TEmptyPage);
  Pages->addWidget(Grid = new TResultGrid);
  Pages->addWidget(Fault = new TFaultPage);
  Grid->setFrameShape(QFrame::NoFrame);
  Busy = new TBusyLine(Pages);
  Empty->SetWords(tr("Rows appear here when you run a query."));
  Grid->OnMessage = [this](const QString& words) { Status->SetWords(words); };
  Grid->Model().OnSortingChange = [this] {
    Update();
    if (!IsRunning() && !Grid->Model().IsSorting()) Status->SetWords(EndWords);
  };
  QObject::connect(Busy, &TBusyLine::shownChanged, &Pane, [this](bool isShown) {
    Grid->SetDimmed(isShown && Reader.IsRunning() && Grid->Model().GetRows() != Incoming);
    if (!isShown) return;
    if (IsRunning() && !Incoming) Status->SetWords(tr("Running…"));
    if (!IsRunning()) Status->SetWords(tr("Sorting…"));
  });
}

void TResultPane::TParts::ListenToReader() {
  Reader.OnBegin = [this](const std::vector<std::string>& columns) {
    Incoming = std::make_shared<TResultRows>(columns, Known);
  };
  Reader.OnRows = [this](TRowBlock&& block) {
    const bool isShown = Grid->Model().GetRows() == Incoming;
    if (isShown) {
      Grid->Model().Append(std::move(block));
    } else {
      Incoming->Append(std::move(block));
      ShowIncoming();
    }
    const int count = Count(Incoming->GetRowCount());
    if (!IsPreviewRun) Status->SetWords(count == 1 ? tr("1 row so far…") : tr("%Ln rows so far…", nullptr, count));
    if (!isShown) Fire(Pane.OnStateChange);
  };
  Reader.OnEnd = [this](const TRunStats& stats) {
    // Stopped before anything came: what was there stays.
    if (Incoming && !(stats.IsCancelled && stats.RowCount == 0)) {
      if (Grid->Model().GetRows() != Incoming) ShowIncoming();
      Grid->Model().SetComplete();
      if (stats.IsLimited && !IsPreviewRun) {
        Extent = exMost;
      } else {
        Extent = stats.IsLimited || stats.IsCancelled ? exBeginning : exWhole;
      }
    }
    Incoming.reset();
    Status->SetWords(EndWords = EndText(stats));
    Update();
    TellEnd();
  };
  Reader.OnFault = [this](const QString& words, const QString& sql) {
    Fault->SetFault(
        sql.isEmpty() ? tr("There is no connection to the database") : tr("The database could not run the query"),
        words);
    Status->SetWords(EndWords = QString());
    ShowPage(*Fault);
    const QPointer<TResultPane> pane(&Pane);
    Fire(Pane.OnFault, words, sql);
    if (pane) TellEnd();
  };
}

void TResultPane::TParts::TellEnd() {
  const QPointer<TResultPane> pane(&Pane);
  Fire(Pane.OnStateChange);
  if (pane) Fire(pane->OnEnd);
}

void TResultPane::TParts::Begin(TRequest request) {
  Pending.reset();
  PendingTimer.stop();
  Incoming.reset();
  Known = std::move(request.Known);
  std::vector<TFieldType> types;
  for (const TKnownColumn& column : Known) types.push_back(column.Type);
  Reader.Start(std::move(request.Statement), request.QuotedBooleans, request.MaxRows, std::move(types));
  Update();
}

void TResultPane::TParts::StartPending() {
  if (Pending) Begin(*std::exchange(Pending, std::nullopt));
}

void TResultPane::TParts::Drop() {
  Pending.reset();
  PendingTimer.stop();
  Reader.Drop();
  Incoming.reset();
}

void TResultPane::TParts::ShowPage(QWidget& page) {
  Grid->StopCopying();
  Incoming.reset();
  Pages->setCurrentWidget(&page);
  Update();
}

void TResultPane::TParts::ShowIncoming() {
  Extent = exBeginning;
  Grid->SetRows(Incoming);
  Grid->SetDimmed(false);
  Pages->setCurrentWidget(Grid);
}

void TResultPane::TParts::Update() {
  const bool isRunning = IsRunning();
  Run->setEnabled(CanRun());
  Stop->setEnabled(isRunning);
  // A preview that comes and goes takes no key from the window.
  const auto context = IsPreviewRun ? Qt::WidgetWithChildrenShortcut : Qt::WindowShortcut;
  if (Stop->shortcutContext() != context) Stop->setShortcutContext(context);
  Busy->SetBusy(isRunning || Grid->Model().IsSorting());
  if (!isRunning) Grid->SetDimmed(false);
}

TResultPane::TResultPane(QWidget* parent) : QWidget(parent), FParts(std::make_unique<TParts>(*this)) {}

TResultPane::~TResultPane() = default;

void TResultPane::SetConnection(const TConnectionUrl& url) {
  FParts->Drop();
  FParts->Url = url;
  FParts->Reader.SetConnection(url);
  FParts->Grid->SetRows(nullptr);
  FParts->Status->SetWords(FParts->EndWords = QString());
  FParts->Empty->SetWords(tr("Rows appear here when you run a query."));
  FParts->ShowPage(*FParts->Empty);
  Fire(OnStateChange);
}

void TResultPane::SetNoConnection(const QString& why) {
  FParts->Url.reset();
  FParts->Reader.SetConnection({});
  FParts->Grid->SetRows(nullptr);
  ShowNothing(why);
}

void TResultPane::Preview(const TBoundStatement& statement, bool quotedBooleans, std::size_t rows,
                          TKnownColumns known) {
  if (!GetPreview() || !FParts->CanRun()) return;
  QElapsedTimer& since = FParts->SincePreview;
  const bool isQuick = since.isValid() && since.elapsed() < previewPause.count();
  since.start();
  FParts->Drop();
  FParts->IsPreviewRun = true;
  TParts::TRequest request{statement, quotedBooleans, rows, std::move(known)};
  if (!isQuick) return FParts->Begin(std::move(request));
  FParts->Pending = std::move(request);
  FParts->PendingTimer.start();
  FParts->Update();
}

void TResultPane::Run(const TBoundStatement& statement, bool quotedBooleans, std::size_t maxRows, TKnownColumns known) {
  if (!FParts->CanRun()) return;
  FParts->IsPreviewRun = false;
  FParts->Begin({statement, quotedBooleans, maxRows, std::move(known)});
}

void TResultPane::Cancel() {
  if (FParts->Pending) {
    FParts->Drop();
    TRunStats stats;
    stats.IsCancelled = true;
    const auto end = FParts->Reader.OnEnd;
    return end(stats);
  }
  FParts->Reader.Cancel();
}

void TResultPane::ShowFault(const QString& words) {
  FParts->Drop();
  FParts->Fault->SetFault(tr("The query cannot be run"), words);
  FParts->Status->SetWords(FParts->EndWords = QString());
  FParts->ShowPage(*FParts->Fault);
  Fire(OnStateChange);
}

void TResultPane::ShowNothing(const QString& why) {
  FParts->Drop();
  FParts->Empty->SetWords(why);
  FParts->Status->SetWords(FParts->EndWords = QString());
  FParts->ShowPage(*FParts->Empty);
  Fire(OnStateChange);
}

void TResultPane::SetFaultAction(const QString& caption, std::function<void()> action) {
  FParts->Fault->SetAction(caption, std::move(action));
}

bool TResultPane::GetPreview() const { return FParts->Preview->isChecked(); }

void TResultPane::SetPreview(bool isOn) { FParts->Preview->setChecked(isOn); }

bool TResultPane::IsRunning() const { return FParts->IsRunning(); }

TExtent TResultPane::GetExtent() const { return FParts->Extent; }

std::shared_ptr<const TResultRows> TResultPane::GetRows() const {
  return FParts->Pages->currentWidget() == FParts->Grid ? FParts->Grid->Model().GetRows() : nullptr;
}

std::shared_ptr<const std::vector<std::uint32_t>> TResultPane::GetOrder() const {
  return FParts->Grid->Model().GetOrder();
}

QString TResultPane::GetStatusText() const { return FParts->Status->text(); }

TResultGrid& TResultPane::Grid() { return *FParts->Grid; }

QWidget& TResultPane::ShownPart() {
  if (FParts->Pages->currentWidget() == FParts->Empty) return *FParts->Bar->widgetForAction(FParts->Run);
  return *FParts->Pages->currentWidget();
}

QAction* TResultPane::RunAction() const { return FParts->Run; }

QAction* TResultPane::StopAction() const { return FParts->Stop; }

QAction* TResultPane::PreviewAction() const { return FParts->Preview; }

void TResultPane::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  // The base class may send some before there are parts.
  if (event->type() == QEvent::FontChange && FParts) FParts->FitIcons();
}

void TResultPane::AddAction(QAction* action) {
  FParts->Bar->addAction(action);
  if (QWidget* button = FParts->Bar->widgetForAction(action)) button->setFocusPolicy(Qt::TabFocus);
}

}  // namespace tolvi
