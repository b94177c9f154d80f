#pragma once

#include <QObject>
#include <QPoint>
#include <functional>
class QAbstractItemView;
class QKeyEvent;
class QMouseEvent;
class QWidget;

namespace tolvi {

/// Moves the rows of a list or table by dragging them. A line shows where the row would go; Escape gives up.
class TRowDrag final : public QObject {
  Q_OBJECT

 public:
  /// The view owns it.
  explicit TRowDrag(QAbstractItemView& view);

  /// The row is to move so that it gets the number `to`.
  std::function<void(int from, int to)> OnMove;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Press(const QMouseEvent& event);
  bool MoveTo(const QMouseEvent& event);
  bool Release();
  void Stop();
  /// The row before which the mark stands; the number of rows behind the last.
  int EdgeAt(int y) const;
  void ShowMark(int edge);

  QAbstractItemView& FView;
  QWidget* FMark;
  QPoint FStart;
  int FRow = -1, FEdge = -1;
  bool FDragging = false;
};

}  // namespace tolvi
