#pragma once

#include <QObject>
#include <QPoint>
#include <cstdint>
#include <optional>

#include <tolvi/panel/paneleditor.h>
class QMouseEvent;
class QWidget;

namespace tolvi {

class TJQueryPanelView;
class TQPRow;

/// Moves a row, or a bracket with all that is in it, by dragging its button. A line shows where it would go; how far to
/// the side the mouse is chooses among the brackets that end there. Escape gives up.
class TQPDrag final : public QObject {
  Q_OBJECT

 public:
  explicit TQPDrag(TJQueryPanelView& view);

  /// To be called for each button of a row.
  void Watch(QWidget& button);
  bool IsDragging() const { return FDragging; }
  void Cancel();
  /// Where the row would go if it were dropped there, in the viewport; nothing where it cannot go.
  std::optional<TRowPlace> PlaceAt(const TFilterRow& row, QPoint at) const;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool Press(QObject* button, const QMouseEvent& event);
  bool MoveTo(QObject* button, const QMouseEvent& event);
  bool Release(QObject* button);
  void ShowMark(QPoint at);
  TFilterRow* DraggedRow() const;

  TJQueryPanelView& FView;
  QWidget* FMark;
  std::uint64_t FSerial = 0;
  QPoint FStart, FLast;
  bool FPressed = false, FDragging = false;
};

}  // namespace tolvi
