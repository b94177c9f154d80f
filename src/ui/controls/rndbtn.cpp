#include <QEvent>
#include <QKeyEvent>
#include <QPainter>
#include <algorithm>

#include <tolvi/ui/controls/contrast.h>
#include <tolvi/ui/controls/rndbtn.h>

namespace tolvi {

TJRndBtn::TJRndBtn(QWidget* parent) : TJRndBtn(QString(), parent) {}

TJRndBtn::TJRndBtn(const QString& text, QWidget* parent) : QPushButton(text, parent) {
  setAutoDefault(false);
  setAttribute(Qt::WA_Hover);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  connect(this, &QPushButton::clicked, this, [this] {
    if (const auto handler = OnClick) handler(*this);
  });
}

void TJRndBtn::SetFlat(bool on) {
  setFlat(on);
  update();
}

void TJRndBtn::SetRounded(bool on) {
  FRounded = on;
  Refresh();
}

void TJRndBtn::SetText(const QString& text) {
  setText(text);
  Refresh();
}

void TJRndBtn::SetAutoSize(bool on) {
  FAutoSize = on;
  Refresh();
}

void TJRndBtn::Refresh() {
  if (FAutoSize) resize(sizeHint());
  updateGeometry();
  update();
}

QSize TJRndBtn::sizeHint() const {
  const QFontMetrics metrics = fontMetrics();
  const int height = metrics.height() + 2 * std::max(2, metrics.height() / 8);
  return {std::max(height, metrics.size(Qt::TextShowMnemonic, text()).width() + height / 2), height};
}

int TJRndBtn::GetBaseline() const { return (height() - fontMetrics().height()) / 2 + fontMetrics().ascent(); }

void TJRndBtn::changeEvent(QEvent* event) {
  QPushButton::changeEvent(event);
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) Refresh();
}

void TJRndBtn::showEvent(QShowEvent* event) {
  Refresh();  // the text may have been set by `setText`
  QPushButton::showEvent(event);
}

void TJRndBtn::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (!enter || (event->modifiers() & ~Qt::KeypadModifier)) return QPushButton::keyPressEvent(event);
  event->accept();
  if (menu())
    showMenu();
  else
    click();
}

void TJRndBtn::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QColor background = BackgroundOf(*this);
  const QPalette::ColorGroup group = isEnabled() ? QPalette::Active : QPalette::Disabled;
  const QColor plain = palette().color(group, QPalette::ButtonText);
  const bool hovered = underMouse() && isEnabled(), pressed = isDown() || isChecked();

  QColor face = isFlat() ? MixedColor(plain, background, 0.1) : palette().color(group, QPalette::Button);
  if (pressed)
    face = MixedColor(plain, face, 0.25);
  else if (hovered)
    face = MixedColor(palette().color(QPalette::Highlight), face, 0.2);
  QColor edge = MixedColor(plain, background, isFlat() ? 0.35 : 0.5);
  const bool focused = hasFocus() && isEnabled();
  if (focused) edge = ReadableColor(palette().color(QPalette::Highlight), background, 3);

  const double width = focused ? 2 : 1;
  const QRectF frame = QRectF(rect()).adjusted(width / 2, width / 2, -width / 2, -width / 2);
  const double radius = FRounded ? frame.height() / 2 : std::max(2.0, frame.height() / 10);
  painter.setBrush(face);
  painter.setPen(isFlat() && !focused && !hovered && !pressed ? QPen(Qt::NoPen) : QPen(edge, width));
  painter.drawRoundedRect(frame, radius, radius);
  painter.setPen(isEnabled() ? ReadableColor(plain, face) : plain);
  // On the line of labels that are as high: centred, the text might stand between two pixels.
  QRect line = rect();
  line.setTop(GetBaseline() - fontMetrics().ascent());
  painter.drawText(line, static_cast<int>(Qt::AlignHCenter | Qt::AlignTop) | Qt::TextShowMnemonic | Qt::TextSingleLine,
                   text());
}

}  // namespace tolvi
