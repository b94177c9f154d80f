// What several controls draw alike.
#pragma once

#include <QFrame>
#include <QPalette>
#include <QRect>
class QPainter;

namespace tolvi {

/// The colours of a check box: `plain` for the mark and, weaker, the edge.
struct TCheckColors {
  QColor plain, edge, face;
};

/// A box as large as `box` with its mark.
void DrawCheckBox(QPainter& painter, const QRect& box, Qt::CheckState state, const TCheckColors& colors,
                  double edgeWidth = 1);
/// The side of a check box beside a text: as high as a capital letter with some air.
int CheckBoxSide(const QFontMetrics& metrics);

/// What an editor stands in: opaque, with an edge that can be seen in any palette.
class TEditorFrame : public QFrame {
  Q_OBJECT

 public:
  explicit TEditorFrame(QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace tolvi
