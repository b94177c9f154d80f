#pragma once

#include <QBasicTimer>
#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QWidget>
#include <cstdint>
#include <optional>

#include <tolvi/panel/paneleditor.h>
class QKeyEvent;
class QMouseEvent;

namespace tolvi {

class TJQueryPanelView;
class TQPRow;

/// Moves a row, or a bracket with all that is in it, by dragging its button. A line shows where it would go; how far to
/// the side the mouse is chooses among the brackets that end there; held above or below the view, it scrolls. Escape
/// gives up, and so does the end of the button; other keys and mouse buttons do nothing meanwhile.
class TQPDrag final : public QObject {
  Q_OBJECT

 public:
  explicit TQPDrag(TJQueryPanelView& view);
  ~TQPDrag() override;

  /// To be called for each button of a row.
  void Watch(QWidget& button);
  bool IsDragging() const { return FDragging; }
  void Cancel();
  /// Where the row would go if it were dropped there, in the viewport; nothing where it cannot go.
  std::optional<TRowPlace> PlaceAt(const TFilterRow& row, QPoint at) const;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void timerEvent(QTimerEvent* event) override;

 private:
  bool Press(QObject* button, const QMouseEvent& event);
  bool MoveTo(QObject* button, const QMouseEvent& event);
  bool Release(const QMouseEvent& event);
  bool KeyPress(QKeyEvent& event);
  int StepAtEdge() const;
  void ShowMark(QPoint at);
  TFilterRow* DraggedRow() const;

  TJQueryPanelView& FView;
  QPointer<QWidget> FMark;
  QBasicTimer FScrolling;
  // Only compared.
  const QObject* FButton = nullptr;
  std::uint64_t FSerial = 0;
  QPoint FStart, FLast;
  bool FPressed = false, FDragging = false;
};

}  // namespace tolvi
