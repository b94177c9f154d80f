#include "apps/workbench/connection/connectiondlg.h"

#include <QAccessible>
#include <QDialogButtonBox>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMimeData>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTimer>
#include <QVBoxLayout>
#include <exception>
#include <utility>

#include "apps/workbench/connection/connectionform.h"
#include "apps/workbench/connection/connectiontest.h"
#include "apps/workbench/connection/secrets.h"
#include <tolvi/foundation/errors.h>
#include <tolvi/ui/controls/contrast.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

/// The file that is dragged, if it is one.
QString FileOf(const QMimeData* data) {
  if (data == nullptr || !data->hasUrls() || data->urls().size() != 1) return {};
  const QString file = data->urls().front().toLocalFile();
  return QFileInfo(file).isFile() ? file : QString();
}

QString NameOf(const TConnectionUrl& url) {
  return url.Kind == dkSQLite ? QFileInfo(ToQString(url.Database)).fileName() : ToQString(url.Database);
}

/// As high as the form where there is room, else the form can be scrolled.
class TFormArea final : public QScrollArea {
 public:
  explicit TFormArea(TConnectionForm& form) : FForm(form) {
    setObjectName(QStringLiteral("connection.form"));
    setWidget(&form);
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
  }

  QSize sizeHint() const override { return FForm.sizeHint(); }
  QSize minimumSizeHint() const override {
    constexpr int lines = 5;
    return {FForm.minimumSizeHint().width() + verticalScrollBar()->sizeHint().width(),
            lines * fontMetrics().lineSpacing()};
  }

 private:
  TConnectionForm& FForm;
};

TConnectionUrl WithoutPassword(TConnectionUrl url) {
  url.Password.clear();
  return url;
}

}  // namespace

T_dlgConnection::T_dlgConnection(TSecrets& secrets, QWidget* parent)
    : QDialog(parent),
      FSecrets(secrets),
      FRecentList(new QListWidget(this)),
      FForm(new TConnectionForm(this)),
      FFindTimer(new QTimer(this)),
      FConnectionTest(std::make_unique<TConnectionTest>()) {
  setObjectName(QStringLiteral("connection"));
  setWindowTitle(tr("Connect to a database"));
  setAcceptDrops(true);
  FRecentList->setObjectName(QStringLiteral("connection.recent"));
  FRecentList->setAccessibleName(tr("Recent connections"));
  FRecentList->setTextElideMode(Qt::ElideMiddle);
  FRecentList->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  FRecentList->hide();
  FRecentList->setSpacing(fontMetrics().averageCharWidth() / 3);
  connect(FRecentList, &QListWidget::itemSelectionChanged, this, [this] {
    const QList<QListWidgetItem*> chosen = FRecentList->selectedItems();
    if (!chosen.isEmpty()) SetUrl(FRecent[static_cast<size_t>(FRecentList->row(chosen.front()))]);
  });
  connect(FRecentList, &QListWidget::itemDoubleClicked, this, [this] {
    if (FOk->isEnabled()) FOk->click();
  });

  auto* right = new QVBoxLayout;
  right->addWidget(new TFormArea(*FForm), 1);
  right->addWidget(MakeUrlRow());
  right->addWidget(MakeTestRow());
  auto* layout = new QHBoxLayout(this);
  layout->addWidget(FRecentList, 2);
  layout->addLayout(right, 3);

  FForm->OnChange = [this] { FForm->GetUrl().Kind == FShownKind ? FormChanged() : FormBegun(); };
  FFindTimer->setSingleShot(true);
  FFindTimer->setInterval(150);
  connect(FFindTimer, &QTimer::timeout, this, &T_dlgConnection::FindPassword);
  FSecrets.OnKeychain = [self = QPointer(this)] {
    if (self) self->ShowKeychain();
  };
  ShowKeychain();
  FormBegun();
  setTabOrder(FRecentList, FForm);
  FForm->setFocus();
  Resize();
}

void T_dlgConnection::Resize() {
  constexpr int Columns = 76, ColumnsWithList = 116;
  const QSize wanted((FRecent.empty() ? Columns : ColumnsWithList) * fontMetrics().averageCharWidth(),
                     sizeHint().height());
  // With room for a title.
  const QSize most = screen()->availableSize() - QSize(0, 2 * fontMetrics().height());
  resize(wanted.boundedTo(most));
}

T_dlgConnection::~T_dlgConnection() {
  FSecrets.OnKeychain = nullptr;
  // It tells that it loses the focus as it goes.
  FUrlLine->disconnect(this);
}

QWidget* T_dlgConnection::MakeUrlRow() {
  auto* row = new QWidget(this);
  FUrlLine = new QLineEdit(row);
  FUrlLine->setObjectName(QStringLiteral("connection.url"));
  FUrlLine->setAcceptDrops(false);
  auto* label = new QLabel(tr("UR&L:"), row);
  label->setBuddy(FUrlLine);
  FFault = new QLabel(row);
  FFault->setObjectName(QStringLiteral("connection.fault"));
  FFault->setTextFormat(Qt::PlainText);
  FFault->setWordWrap(true);
  FFault->setMinimumHeight(fontMetrics().lineSpacing());
  auto* layout = new QVBoxLayout(row);
  layout->setContentsMargins({});
  layout->setSpacing(2);
  layout->addWidget(label);
  layout->addWidget(FUrlLine);
  layout->addWidget(FFault);
  connect(FUrlLine, &QLineEdit::textEdited, this, &T_dlgConnection::UrlTyped);
  // The password that was typed with it is in its own field.
  connect(FUrlLine, &QLineEdit::editingFinished, this, [this] {
    if (FFault->text().isEmpty() || FForm->Fault() == FFault->text()) ShowUrl();
  });
  return row;
}

QWidget* T_dlgConnection::MakeTestRow() {
  auto* row = new QWidget(this);
  FTest = new QPushButton(tr("&Test"), row);
  FTest->setObjectName(QStringLiteral("connection.test"));
  FTest->setAutoDefault(false);
  FBusy = new QProgressBar(row);
  FBusy->setRange(0, 0);
  FBusy->setTextVisible(false);
  FBusy->setAccessibleName(windowTitle());
  FBusy->hide();
  FTold = new QLabel(row);
  FTold->setObjectName(QStringLiteral("connection.told"));
  FTold->setTextFormat(Qt::PlainText);
  FTold->setWordWrap(true);
  FTold->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  FTold->hide();
  // The room for three lines is there before they come.
  auto* room = new QWidget(row);
  room->setMinimumHeight(3 * fontMetrics().lineSpacing());
  auto* inRoom = new QVBoxLayout(room);
  inRoom->setContentsMargins({});
  inRoom->addWidget(FTold);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, row);
  FOk = buttons->button(QDialogButtonBox::Ok);
  FOk->setObjectName(QStringLiteral("connection.ok"));
  FOk->setDefault(true);
  buttons->addButton(FTest, QDialogButtonBox::ActionRole);
  connect(buttons, &QDialogButtonBox::accepted, this, &T_dlgConnection::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &T_dlgConnection::reject);
  connect(FTest, &QPushButton::clicked, this, &T_dlgConnection::Test);
  auto* layout = new QVBoxLayout(row);
  layout->setContentsMargins({});
  layout->addWidget(room);
  layout->addWidget(FBusy);
  layout->addWidget(buttons);
  FConnectionTest->OnEnd = [this](bool works, const QString& words) {
    FBusy->hide();
    FTest->setText(tr("&Test"));
    ShowTold(words, !works);
  };
  return row;
}

void T_dlgConnection::SetRecent(std::vector<TConnectionUrl> urls) {
  FRecent = std::move(urls);
  FRecentList->clear();
  for (const TConnectionUrl& url : FRecent) {
    auto* item = new QListWidgetItem(NameOf(url) + u'\n' + ToQString(url.Shown()), FRecentList);
    item->setToolTip(PlainToolTip(ToQString(url.Shown())));
  }
  FRecentList->setVisible(!FRecent.empty());
  Resize();
}

TConnectionUrl T_dlgConnection::GetUrl() const { return FForm->GetUrl(); }

std::optional<TGivenPassword> T_dlgConnection::GetGiven() const {
  const TConnectionUrl url = FForm->GetUrl();
  const bool isRemembered = FForm->GetRemember();
  // One that is known may only change its place.
  const bool isMoved = !url.Password.empty() && isRemembered != FSecrets.IsInKeychain(url);
  if (!FForm->TypedPassword() && !isMoved) return std::nullopt;
  return TGivenPassword{url.Password, isRemembered};
}

void T_dlgConnection::SetUrl(const TConnectionUrl& url) {
  FForm->ForgetPassword();
  FForm->SetUrl(url);
  url.Database.empty() ? FormBegun() : FormChanged();
}

void T_dlgConnection::SetTestSeconds(int seconds) { FTestSeconds = seconds; }

void T_dlgConnection::ShowUrl() { FUrlLine->setText(ToQString(FForm->GetUrl().Shown())); }

void T_dlgConnection::FormChanged() {
  ShowUrl();
  ShowFault(FForm->Fault());
}

void T_dlgConnection::FormBegun() {
  ShowUrl();
  ShowFault({});
}

bool T_dlgConnection::IsFilled() {
  const QString fault = FFault->text().isEmpty() ? FForm->Fault() : FFault->text();
  if (fault.isEmpty()) return true;
  ShowFault(fault);
  FForm->GoToFault();
  return false;
}

void T_dlgConnection::UrlTyped(const QString& text) {
  try {
    const std::string typed = FromQString(text.trimmed());
    FForm->SetUrl(ParseConnectionUrl(typed));
    ShowFault(FForm->Fault());
  } catch (const EException& error) {
    ShowFault(ToQString(error.Message()));
  }
}

// Whatever was tested or found belongs to another connection then.
void T_dlgConnection::ShowFault(const QString& fault) {
  FShownKind = FForm->GetUrl().Kind;
  QPalette colors = palette();
  colors.setColor(QPalette::WindowText, ReadableColor(FaultColor(), colors.color(QPalette::Window)));
  FFault->setPalette(colors);
  FFault->setText(fault);
  FUrlLine->setAccessibleDescription(fault);
  FOk->setEnabled(fault.isEmpty());
  FTest->setEnabled(fault.isEmpty());
  if (FConnectionTest->IsRunning()) {
    FConnectionTest->Stop();
    FBusy->hide();
    FTest->setText(tr("&Test"));
  }
  FTold->hide();
  // What is known stays while only the password is typed.
  if (FFindUrl == WithoutPassword(FForm->GetUrl())) return;
  FFindUrl.reset();
  FForm->SetKnownPassword(std::nullopt);
  FFindTimer->start();
}

void T_dlgConnection::FindPassword() {
  const TConnectionUrl url = WithoutPassword(FForm->GetUrl());
  if (url.Kind == dkSQLite || !FOk->isEnabled() || !FForm->Fault().isEmpty()) return;
  FFindUrl = url;
  FSecrets.Find(url, [self = QPointer(this), url](const std::optional<std::string>& password) {
    if (!self || WithoutPassword(self->FForm->GetUrl()) != url) return;
    self->FForm->SetKnownPassword(password, self->FSecrets.IsInKeychain(url));
  });
}

void T_dlgConnection::ShowKeychain() {
  if (FSecrets.GetKeychain() == TSecrets::kcReady) return FForm->ShowKeychain(true, {});
  const bool isKnown = FSecrets.GetKeychain() == TSecrets::kcNone;
  FForm->ShowKeychain(false, isKnown ? tr("This system has no keychain: passwords are forgotten when the program ends.")
                                     : tr("Looking for the keychain of this system..."));
}

void T_dlgConnection::Test() {
  if (FConnectionTest->IsRunning()) {
    FConnectionTest->Stop();
    FBusy->hide();
    FTest->setText(tr("&Test"));
    return;
  }
  if (!IsFilled()) return;
  FTold->hide();
  FBusy->show();
  FTest->setText(tr("S&top"));
  FConnectionTest->Start(FForm->GetUrl(), FTestSeconds);
}

void T_dlgConnection::ShowTold(const QString& words, bool isFault) {
  QPalette colors = palette();
  if (isFault) colors.setColor(QPalette::WindowText, ReadableColor(FaultColor(), colors.color(QPalette::Window)));
  FTold->setPalette(colors);
  FTold->setText(words.simplified());
  FTold->show();
  QAccessibleEvent event(FTold, QAccessible::Alert);
  QAccessible::updateAccessibility(&event);
}

void T_dlgConnection::accept() {
  if (!IsFilled()) return;
  FConnectionTest->Stop();
  QDialog::accept();
}

void T_dlgConnection::dragEnterEvent(QDragEnterEvent* event) {
  if (!FileOf(event->mimeData()).isEmpty()) event->acceptProposedAction();
}

void T_dlgConnection::dropEvent(QDropEvent* event) {
  const QString file = FileOf(event->mimeData());
  if (file.isEmpty()) return;
  SetUrl({.Kind = dkSQLite, .Database = FromQString(file)});
  event->acceptProposedAction();
}

}  // namespace tolvi
