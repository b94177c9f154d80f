// Signs in the rows of the query panel.
#pragma once

#include <QAbstractButton>
class QPainter;

namespace tolvi {

/// A triangle that points down beside an open bracket, and to the text beside a collapsed one. Takes no focus: keys
/// reach the same command from the row.
class TQPTriangle final : public QAbstractButton {
  Q_OBJECT

 public:
  explicit TQPTriangle(QWidget* parent);

  void SetCollapsed(bool collapsed);
  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  bool FCollapsed = false;
};

/// A padlock as high as the rectangle.
void PaintPadlock(QPainter& painter, const QRectF& place, const QColor& color);

}  // namespace tolvi
