// The area of the structure designer on which boxes and lines lie.
#pragma once

#include <QGraphicsView>
#include <functional>

#include <tolvi/panel/stdsgeometry.h>
#include <tolvi/ui/api.h>

namespace tolvi {

class TDesignMinimap;

/// A view of a diagram that scrolls, zooms (Ctrl with the wheel or +, -, 0) and is pushed (middle button, or Space and
/// the left one). What else mouse and keys do is its owner's matter.
class TOLVI_WIDGETS_API TJDesignArea final : public QGraphicsView {
  Q_OBJECT

 public:
  static constexpr double MinZoom = 0.1, MaxZoom = 4;

  explicit TJDesignArea(QWidget* parent);

  /// The size of a pixel of the content on the screen; what is outside the bounds becomes the nearest of them. The
  /// point of the viewport, by default its centre, stays where it is.
  double GetZoom() const { return FZoom; }
  void SetZoom(double zoom);
  void SetZoom(double zoom, QPoint stays);
  /// So that all of the content is seen, at most at its own size.
  void ZoomToFit();

  /// Makes the content begin at (0, 0) and hold the boxes, with some air; also what it held unless it may shrink.
  void SetContent(const QRectF& boxes, bool mayShrink = true);
  TDesignPoint ToContent(QPoint inViewport) const;
  /// Scrolls as far as needed to see the part of the content, or where it begins, with some air.
  void BringIntoView(const QRectF& content);
  /// In pixels of the content.
  int ClientWidth() const;

  /// Whether a small picture of the whole diagram shows where one is, while not all is seen. Default true.
  bool GetShowMinimap() const { return FShowMinimap; }
  void SetShowMinimap(bool show);
  TDesignMinimap& Minimap() const { return *FMinimap; }

  /// These are asked first; what they take is not handled here. Positions of the mouse are those of the viewport.
  std::function<bool(QMouseEvent&event)> OnPress, OnMove, OnRelease, OnDoubleClick;
  std::function<bool(QWheelEvent& event)> OnWheel;
  std::function<bool(QKeyEvent& event)> OnKey;
  /// Whether the key is one of the owner's, whatever short cuts the window has.
  std::function<bool(const QKeyEvent& event)> OwnsKey;
  std::function<void(QPoint globalPos, QPoint inViewport, bool byKey)> OnMenu;
  std::function<void()> OnResize;

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  bool focusNextPrevChild(bool next) override;

 private:
  void ScrollBy(int dx, int dy);
  void Push(QPoint to);
  void EndPush();
  void PlaceMinimap();

  TDesignMinimap* FMinimap;
  double FZoom = 1;
  bool FShowMinimap = true, FSpace = false, FPushing = false;
  QPoint FPushedFrom;
};

/// The whole diagram in small, over a corner of the area; a click or drag goes there.
class TOLVI_WIDGETS_API TDesignMinimap final : public QWidget {
  Q_OBJECT

 public:
  explicit TDesignMinimap(TJDesignArea& area);

  /// The boxes, drawn anew when it is called.
  void SetBoxes(std::vector<QRect> boxes);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;

 private:
  QTransform ToMap() const;
  void GoTo(QPoint point);

  TJDesignArea& FArea;
  std::vector<QRect> FBoxes;
};

}  // namespace tolvi
