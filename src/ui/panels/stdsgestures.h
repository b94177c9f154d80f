// What mouse and keys do to the boxes and lines of the structure designer.
#pragma once

#include <QPoint>
#include <QPointF>
#include <QRect>
#include <QTimer>
#include <cstdint>
#include <utility>
#include <vector>

#include <tolvi/panel/stdsgeometry.h>
#include <tolvi/ui/panels/stdstable.h>

class QKeyEvent;
class QMouseEvent;
class QRubberBand;
class QWheelEvent;

namespace tolvi {

class TJStructDesignPanel;

/// The gesture that goes on, from the press of a button or key to its release.
class TDesignGestures final : public QObject {
  Q_OBJECT

 public:
  explicit TDesignGestures(TJStructDesignPanel& panel);
  ~TDesignGestures() override;

  /// Ends what goes on, as letting go does.
  void Stop();
  /// The box is about to go.
  void Forget(const TTableRep& box);
  /// The topmost box at the point; null for none.
  TTableRep* BoxAt(TDesignPoint point) const;

 private:
  // A press on a title or an edge becomes a move or a resize when the mouse goes away from there.
  enum TGesture : std::uint8_t {
    gsNone,
    gsPressTitle,
    gsPressEdge,
    gsMove,
    gsResize,
    gsBand,
    gsThumb,
    gsField,
    gsDragField,
    gsArrows
  };
  using TPlaces = std::vector<std::pair<TTableRep*, TDesignRect>>;

  bool Press(const QMouseEvent& event);
  bool PressBox(TTableRep& box, const QMouseEvent& event);
  bool Move(const QMouseEvent& event);
  bool Release(const QMouseEvent& event);
  bool DoubleClick(const QMouseEvent& event);
  bool Wheel(const QWheelEvent& event);
  bool Key(QKeyEvent& event);
  bool CancelByEscape();
  bool KeyWhileAdding(const QKeyEvent& event);
  bool KeyOnBox(const QKeyEvent& event);

  void Begin(TGesture gesture, const QString& stepName);
  bool BeginDrag(const QMouseEvent& event, TDesignPoint point);
  bool IsHere(const TTableRep* box) const;
  void MoveBy(int dx, int dy);
  void Hover(TDesignPoint point);
  void DragField(const QMouseEvent& event);
  void ChooseInBand(const QRect& inViewport);
  bool ArrowKey(const QKeyEvent& event);
  bool eventFilter(QObject* watched, QEvent* event) override;
  void NextBox(bool forward);
  void NextLink(bool forward);

  TJStructDesignPanel& FPanel;
  TGesture FGesture = gsNone;
  TTableRep* FBox = nullptr;
  Qt::Edges FEdges;
  QPoint FStart;
  TDesignPoint FStartContent;
  /// The places of the boxes that move, as the gesture found them.
  TPlaces FStartPlaces;
  QRubberBand* FBand;
  /// What the wheel has turned and the fields have not yet followed, in its own units times fields.
  int FWheelRest = 0;
  /// Ends a series of arrow keys.
  QTimer FArrowsEnd;
};

}  // namespace tolvi
