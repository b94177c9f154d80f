// Where the parts of a row stand, and what is drawn between them.
#include <QEvent>
#include <QPainter>
#include <algorithm>

#include <tolvi/query/querpnl.h>
#include <tolvi/ui/controls/contrast.h>
#include <tolvi/ui/panels/qprow.h>
#include <tolvi/ui/panels/querpnlview.h>

namespace tolvi {

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
  for (TPart& part : FParts) {
    if (part.SpaceBefore) x += metrics.ElemSpace;
    if (part.Label != nullptr) {
      part.Label->resize(part.Label->sizeHint());
      place(*part.Label, part.Label->width(), part.Label->GetBaseline());
    } else if (!part.Text.isEmpty()) {
      // Words keep the distance from each other that labels have by their margins.
      if (&part == &FParts.front()) x += metrics.ElemSpace;
      const int width = fonts.horizontalAdvance(part.Text);
      part.Place = Mirrored({x, metrics.Baseline - fonts.ascent(), width, fonts.height()});
      x += width;
    }
  }
  update();
  return x + metrics.Left;
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
    if (part.Label != nullptr || part.Text.isEmpty()) continue;
    const QColor color = ColorOf(part);
    painter.setPen(ReadableColor(color.isValid() ? color : text, background));
    painter.drawText(part.Place,
                     static_cast<int>(Qt::AlignLeading | Qt::AlignTop) | Qt::TextSingleLine | Qt::TextDontClip,
                     part.Text);
  }
}

}  // namespace tolvi
