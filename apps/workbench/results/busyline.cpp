#include "apps/workbench/results/busyline.h"

#include <QEvent>
#include <QPainter>
#include <algorithm>
#include <chrono>
#include <cmath>

namespace tolvi {
namespace {

using namespace std::chrono_literals;

constexpr auto delay = 300ms, pace = 40ms;
constexpr int stepsAcross = 30;

}  // namespace

TBusyLine::TBusyLine(QWidget* parent) : QWidget(parent) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
  hide();
  FDelay.setSingleShot(true);
  FDelay.setInterval(delay);
  connect(&FDelay, &QTimer::timeout, this, [this] { SetShown(true); });
  parent->installEventFilter(this);
}

void TBusyLine::SetBusy(bool isBusy) {
  if (isBusy == FIsBusy) return;
  FIsBusy = isBusy;
  if (isBusy) {
    FDelay.start();
  } else {
    FDelay.stop();
    SetShown(false);
  }
}

void TBusyLine::SetShown(bool isShown) {
  if (isShown == !isHidden()) return;
  if (FTimer != 0) killTimer(FTimer);
  FTimer = isShown ? startTimer(pace) : 0;
  FStep = 0;
  Place();
  setVisible(isShown);
  raise();
  Q_EMIT shownChanged(isShown);
}

void TBusyLine::Place() {
  constexpr int least = 2, part = 6;
  setGeometry(0, 0, parentWidget()->width(), std::max(least, fontMetrics().height() / part));
}

bool TBusyLine::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Resize) Place();
  return QWidget::eventFilter(watched, event);
}

void TBusyLine::timerEvent(QTimerEvent*) {
  ++FStep;
  update();
}

void TBusyLine::paintEvent(QPaintEvent*) {
  // Goes to and fro, slower at the ends.
  const double turn = std::cos(FStep * 3.14159265 / stepsAcross);
  const double part = (1 - turn) / 2, length = width() / 4.0;
  const double x = (isRightToLeft() ? 1 - part : part) * (width() - length);
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.fillRect(QRectF(x, 0, length, height()), palette().color(QPalette::Highlight));
}

}  // namespace tolvi
