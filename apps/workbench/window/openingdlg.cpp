#include "apps/workbench/window/openingdlg.h"

#include <QAccessible>
#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include "apps/workbench/connection/connectiontest.h"
#include "apps/workbench/workspace/opening.h"
#include <tolvi/ui/controls/waitcursor.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

constexpr int MillisecondsPerSecond = 1000;
static_assert(TOpeningPatience{}.Server < TWorkspace::ServerSeconds * MillisecondsPerSecond);

class TOpeningDialog final : public QDialog {
  Q_DECLARE_TR_FUNCTIONS(tolvi::TOpeningDialog)

 public:
  TOpeningDialog(QWidget* parent, const TOpening& opening, const TSource& source, int serverPatience)
      : QDialog(parent), FOpening(opening), FServerPatience(serverPatience) {
    constexpr int Columns = 50, Pause = 100;
    setObjectName(QStringLiteral("opening"));
    setWindowTitle(tr("Open a database"));
    FReading = tr("Reading the tables of %1...").arg(SourceName(source));
    FWords = new QLabel(tr("Waiting for %1...").arg(ToQString(source.Url)), this);
    FWords->setObjectName(QStringLiteral("opening.words"));
    FWords->setTextFormat(Qt::PlainText);
    FWords->setWordWrap(true);
    FWords->setMinimumWidth(Columns * fontMetrics().averageCharWidth());
    auto* busy = new QProgressBar(this);
    busy->setRange(0, 0);
    busy->setTextVisible(false);
    busy->setAccessibleName(windowTitle());
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("opening.cancel"));
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* rows = new QVBoxLayout(this);
    rows->addWidget(FWords);
    rows->addWidget(busy);
    rows->addWidget(buttons);
    auto* look = new QTimer(this);
    connect(look, &QTimer::timeout, this, [this] { Look(); });
    look->start(Pause);
    FSince.start();
  }

  bool IsLate() const { return FIsLate; }

 private:
  void Look() {
    if (FOpening.IsConnected()) return SetWords(FReading);
    if (!FSince.hasExpired(FServerPatience)) return;
    FIsLate = true;
    reject();
  }

  void SetWords(const QString& words) {
    if (words == FWords->text()) return;
    FWords->setText(words);
    QAccessibleEvent event(FWords, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
  }

  const TOpening& FOpening;
  const int FServerPatience;
  QString FReading;
  QLabel* FWords;
  QElapsedTimer FSince;
  bool FIsLate = false;
};

}  // namespace

std::unique_ptr<TWorkspace> OpenWorkspace(QWidget* parent, const TSource& source, const std::string& password,
                                          const QString& folder, const TFormatSettings& formats,
                                          const TOpeningPatience& patience) {
  // Most files are open within that: nothing flickers then.
  constexpr int AtOnce = 100;
  TOpening opening(source, password, folder, formats);
  if (opening.WaitFor(AtOnce)) return opening.Take();
  bool isOver = false;
  {
    const TWaitCursor wait;
    QEventLoop loop;
    opening.OnEnd = [&] {
      isOver = true;
      loop.quit();
    };
    QTimer::singleShot(patience.Dialog, &loop, &QEventLoop::quit);
    loop.exec(QEventLoop::ExcludeUserInputEvents);
  }
  if (isOver) return opening.Take();
  TOpeningDialog dialog(parent, opening, source, patience.Server);
  opening.OnEnd = [&dialog] { dialog.accept(); };
  if (dialog.exec() == QDialog::Accepted) return opening.Take();
  if (!dialog.IsLate()) return nullptr;
  throw EConnectError(FromQString(
      TConnectionTest::NoAnswer(ParseConnectionUrl(source.Url).Kind, patience.Server / MillisecondsPerSecond)));
}

}  // namespace tolvi
