#include <QKeyEvent>
#include <QStyleOptionFocusRect>
#include <QStylePainter>

#include <tolvi/ui/controls/contrast.h>
#include <tolvi/ui/panels/linklabel.h>

namespace tolvi {

TLinkLabel::TLinkLabel(QWidget* parent) : QAbstractButton(parent) {
  setCursor(Qt::PointingHandCursor);
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_Hover);
}

void TLinkLabel::SetLinkColor(const QColor& color) {
  if (color == FLinkColor) return;
  FLinkColor = color;
  update();
}

QSize TLinkLabel::sizeHint() const {
  const QFontMetrics metrics(font());
  return {metrics.horizontalAdvance(text()), metrics.height()};
}

void TLinkLabel::paintEvent(QPaintEvent*) {
  QStylePainter painter(this);
  QFont textFont = font();
  textFont.setUnderline(underMouse() && isEnabled());
  painter.setFont(textFont);
  painter.setPen(isEnabled() ? ReadableLinkColor(FLinkColor, palette(), BackgroundOf(*this))
                             : palette().color(QPalette::Disabled, QPalette::WindowText));
  painter.drawText(rect(), static_cast<int>(Qt::AlignLeading | Qt::AlignVCenter | Qt::TextSingleLine), text());
  if (!hasFocus()) return;
  QStyleOptionFocusRect focus;
  focus.initFrom(this);
  focus.backgroundColor = BackgroundOf(*this);
  painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
}

// The arrow keys are left to whoever holds the label.
void TLinkLabel::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (!event->isAutoRepeat()) click();
      return;
    case Qt::Key_Space:
      return QAbstractButton::keyPressEvent(event);
    default:
      event->ignore();
  }
}

}  // namespace tolvi
