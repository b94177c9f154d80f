#pragma once

#include <QTimer>
#include <QWidget>

namespace tolvi {

/// A thin line along the top of its parent in which something moves: there is work going on. It shows itself a moment
/// after `SetBusy(true)`, so that quick work does not make it flash.
class TBusyLine final : public QWidget {
  Q_OBJECT

 public:
  explicit TBusyLine(QWidget* parent);

  bool GetBusy() const { return FIsBusy; }
  void SetBusy(bool isBusy);

 Q_SIGNALS:
  /// It shows or hides itself.
  void shownChanged(bool isShown);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void timerEvent(QTimerEvent* event) override;

 private:
  void Place();
  void SetShown(bool isShown);

  QTimer FDelay;
  bool FIsBusy = false;
  int FTimer = 0, FStep = 0;
};

}  // namespace tolvi
