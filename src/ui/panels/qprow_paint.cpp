// Where the parts of a row stand, and what is drawn between them.
#include <QEvent>
#include <QPainter>
#include <algorithm>

#include <tolvi/query/querpnl.h>
#include <tolvi/ui/controls/contrast.h>
#include <tolvi/ui/panels/qprow.h>
#include <tolvi/ui/panels/qpsigns.h>
#include <tolvi/ui/panels/querpnlview.h>

namespace tolvi {
namespace {

constexpr int minElidedChars = 20;

}  // namespace

QRect TQPRow::Mirrored(const QRect& rect) const {
  return isRightToLeft() ? QRect(width() - rect.x() - rect.width(), rect.y(), rect.width(), rect.height()) : rect;
}

int TQPRow::StartOf(int level) const { return FView.Metrics().Left + level * FView.Metrics().Indent; }

int TQPRow::Arrange() {
  const TQPMetrics& metrics = FView.Metrics();
  int x = StartOf(FLevel);
  const auto place = [&](QWidget& widget, int width, int baseline) {
    widget.setGeometry(Mirrored({x, metrics.Baseline - baseline, width, widget.sizeHint().height()}));
    x += width;
  };
  FButton->resize(FButton->sizeHint());
  place(*FButton, metrics.ButtonWidth, FButton->GetBaseline());
  x += metrics.ElemSpace;
  if (FCheckBox != nullptr) {
    FCheckBox->resize(FCheckBox->sizeHint());
    place(*FCheckBox, FCheckBox->width(), FCheckBox->GetBaseline());
  }
  const QFontMetrics fonts = fontMetrics();
  if (FTriangle != nullptr) {
    // On the middle of small letters.
    place(*FTriangle, FTriangle->sizeHint().width(), (FTriangle->sizeHint().height() + fonts.xHeight()) / 2);
    FTriangle->resize(FTriangle->sizeHint());
  }
  for (TPart& part : FParts) {
    if (part.SpaceBefore) x += metrics.ElemSpace;
    if (part.Label != nullptr) {
      part.Label->resize(part.Label->sizeHint());
      place(*part.Label, part.Label->width(), part.Label->GetBaseline());
    } else if (!part.Text.isEmpty()) {
      // Words keep the distance from each other that labels have by their margins.
      if (&part == &FParts.front()) x += metrics.ElemSpace;
      x = ArrangeText(part, x);
    }
  }
  if (FLocked) {
    x += metrics.ElemSpace;
    FLockPlace = Mirrored({x, metrics.Baseline - fonts.capHeight(), fonts.capHeight(), fonts.capHeight()});
    x += fonts.capHeight();
  }
  update();
  return x + metrics.Left;
}

int TQPRow::ArrangeText(TPart& part, int x) const {
  const QFontMetrics fonts(FontOf(part));
  int width = fonts.horizontalAdvance(part.Text);
  if (part.IsElided) {
    const int room = FView.viewport()->width() - x - FView.Metrics().Left;
    width = std::min(width, std::max(room, minElidedChars * fonts.averageCharWidth()));
  }
  const int padding = part.Kind == pkSQL ? FView.Metrics().ElemSpace : 0;
  part.Place = Mirrored({x + padding, FView.Metrics().Baseline - fonts.ascent(), width, fonts.height()});
  return x + width + 2 * padding;
}

void TQPRow::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  Arrange();
}

bool TQPRow::event(QEvent* event) {
  const QEvent::Type type = event->type();
  if (type == QEvent::HoverEnter || type == QEvent::HoverLeave) UpdateColors();
  return QWidget::event(event);
}

void TQPRow::PaintTreeLines(QPainter& painter) const {
  const TQPMetrics& metrics = FView.Metrics();
  const QColor background = palette().color(backgroundRole());
  painter.setPen(QPen(MixedColor(palette().color(QPalette::Text), background, 0.35), 0));
  const int middle = FButton->geometry().center().y();
  const auto line = [&](int x1, int y1, int x2, int y2) {
    if (isRightToLeft()) {
      x1 = width() - 1 - x1;
      x2 = width() - 1 - x2;
    }
    painter.drawLine(x1, y1, x2, y2);
  };
  const TFilterRow* row = FRow;
  for (int level = FLevel - 1; level >= 0 && row->GetParentBracket() != nullptr; --level) {
    const TFilterBracket& bracket = *row->GetParentBracket();
    bool isLast = true;
    for (std::size_t i = row->GetRowIndex() + 1; isLast && i < bracket.GetRowCount(); ++i) {
      isLast = bracket.GetRow(i).GetHidden();
    }
    const int x = StartOf(level) + metrics.ButtonWidth / 2;
    if (level == FLevel - 1) {
      line(x, 0, x, isLast ? middle : height());
      line(x, middle, StartOf(FLevel) - 2, middle);
    } else if (!isLast) {
      line(x, 0, x, height());
    }
    row = &bracket;
  }
  if (FRow->GetRowType() != frtBracket || FView.GetEditor()->IsCollapsed(*FRow)) return;
  const auto& own = static_cast<const TFilterBracket&>(*FRow);
  if (std::all_of(own.begin(), own.end(), [](const TFilterRow& inner) { return inner.GetHidden(); })) return;
  const int x = StartOf(FLevel) + metrics.ButtonWidth / 2;
  line(x, FButton->geometry().bottom() + 1, x, height());
}

void TQPRow::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QColor background = palette().color(backgroundRole()), text = palette().color(QPalette::Text);
  painter.fillRect(rect(), background);
  if (FRow == nullptr || FView.GetEditor() == nullptr) return;
  if (FView.GetAppearance().GetOptions().testFlag(TQPAppearance::aoTreeLines)) PaintTreeLines(painter);
  if (FCurrent) {
    const int bar = std::max(2, FView.Metrics().ElemSpace / 2);
    painter.fillRect(Mirrored({0, 0, bar, height()}),
                     ReadableColor(palette().color(QPalette::Highlight), background, 3));
  }
  for (const TPart& part : FParts) {
    if (part.Label == nullptr && !part.Text.isEmpty()) PaintPart(painter, part);
  }
  if (FLocked) PaintPadlock(painter, FLockPlace, ReadableColor(MixedColor(text, background, 0.7), background, 3));
}

// Words as they are; SQL in a frame of its own.
void TQPRow::PaintPart(QPainter& painter, const TPart& part) const {
  const QColor background = palette().color(backgroundRole()), text = palette().color(QPalette::Text);
  const QColor color = part.IsElided && part.Kind == pkText ? MixedColor(text, background, 0.75) : ColorOf(part);
  QColor ground = background;
  if (part.Kind == pkSQL) {
    ground = MixedColor(text, background, 0.06);
    const int padding = FView.Metrics().ElemSpace;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(MixedColor(text, background, 0.3), 1));
    painter.setBrush(ground);
    painter.drawRoundedRect(QRectF(part.Place.adjusted(-padding, -1, padding, 1)).adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
  }
  painter.setPen(ReadableColor(color.isValid() ? color : text, ground));
  painter.setFont(FontOf(part));
  painter.drawText(
      part.Place, static_cast<int>(Qt::AlignLeading | Qt::AlignTop) | Qt::TextSingleLine | Qt::TextDontClip,
      part.IsElided ? painter.fontMetrics().elidedText(part.Text, Qt::ElideRight, part.Place.width()) : part.Text);
}

}  // namespace tolvi
