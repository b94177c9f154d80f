#include <QPainter>
#include <QStyle>
#include <algorithm>

#include <tolvi/ui/controls/contrast.h>
#include <tolvi/ui/controls/drawing.h>
#include <tolvi/ui/controls/flatcheckbox.h>

namespace tolvi {

namespace {

int Margin(const QFontMetrics& metrics) { return std::max(2, metrics.height() / 8); }

}  // namespace

TJFlatCheckBox::TJFlatCheckBox(QWidget* parent) : TJFlatCheckBox(QString(), parent) {}

TJFlatCheckBox::TJFlatCheckBox(const QString& text, QWidget* parent) : QCheckBox(text, parent) {
  setAttribute(Qt::WA_Hover);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  connect(this, &QCheckBox::clicked, this, [this] {
    if (const auto handler = OnClick) handler(*this);
  });
}

QSize TJFlatCheckBox::sizeHint() const {
  const QFontMetrics metrics = fontMetrics();
  const int margin = Margin(metrics);
  const int words = text().isEmpty() ? 0 : metrics.size(Qt::TextShowMnemonic, text()).width() + 2 * margin;
  return {CheckBoxSide(metrics) + 2 * margin + words, metrics.height() + 2 * margin};
}

int TJFlatCheckBox::GetBaseline() const {
  return (sizeHint().height() - fontMetrics().height()) / 2 + fontMetrics().ascent();
}

void TJFlatCheckBox::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QFontMetrics metrics = fontMetrics();
  const QPalette::ColorGroup group = isEnabled() ? QPalette::Active : QPalette::Disabled;
  const QColor background = BackgroundOf(*this), plain = palette().color(group, foregroundRole());
  const QColor highlight = ReadableColor(palette().color(QPalette::Highlight), background, 3);
  const bool hovered = underMouse() && isEnabled(), focused = hasFocus() && isEnabled();

  const int side = CheckBoxSide(metrics), margin = Margin(metrics);
  QRect box(margin, (height() - side) / 2, side, side);
  QRect words = rect().adjusted(side + 3 * margin, 0, 0, 0);
  if (layoutDirection() == Qt::RightToLeft) {
    box.moveRight(width() - margin);
    words = rect().adjusted(0, 0, -(side + 3 * margin), 0);
  }
  const QColor edge = hovered || focused ? highlight : MixedColor(plain, background, 0.7);
  const QColor face = hovered ? MixedColor(highlight, background, isDown() ? 0.35 : 0.15) : background;
  const QColor mark = isEnabled() ? ReadableColor(plain, face) : plain;
  DrawCheckBox(painter, box, checkState(), {mark, edge, face}, focused ? 2 : 1);

  if (text().isEmpty()) return;
  painter.setPen(plain);
  const Qt::Alignment start = QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft) | Qt::AlignVCenter;
  painter.drawText(words, static_cast<int>(start) | Qt::TextShowMnemonic | Qt::TextSingleLine, text());
}

}  // namespace tolvi
