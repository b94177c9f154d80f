#pragma once

#include <QIconEngine>

#include <tolvi/ui/api.h>

namespace tolvi {

/// Icons that are drawn, not stored: sharp at every size. Draws on a square field that is scaled to the size of the
/// icon.
class TOLVI_WIDGETS_API TDrawnIconEngine : public QIconEngine {
 public:
  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override;
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override;

 protected:
  /// `fieldSize` is the side of the field, from (0, 0) on.
  explicit TDrawnIconEngine(double fieldSize) : FFieldSize(fieldSize) {}
  TDrawnIconEngine(const TDrawnIconEngine&) = default;

  virtual void Draw(QPainter& painter, QIcon::Mode mode) const = 0;
  /// Whether left and right change places. Default false.
  virtual bool IsMirrored() const { return false; }

 private:
  double FFieldSize;
};

}  // namespace tolvi
