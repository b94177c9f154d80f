#include <QAccessible>
#include <QApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QScreen>
#include <QStyle>
#include <QToolTip>
#include <algorithm>
#include <utility>

#include <tolvi/ui/controls/contrast.h>
#include <tolvi/ui/controls/ddlabel.h>
#include <tolvi/ui/controls/ddlabelaccess.h>
#include <tolvi/ui/controls/wave.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {

namespace {

constexpr int maxShownChars = 80;      // longer captions are cut, the tool tip has all of them
constexpr double outlineContrast = 3;  // enough for lines, which are no text

int HorizontalMargin(const QFontMetrics& metrics) { return std::max(2, metrics.averageCharWidth() / 2); }
int VerticalMargin(const QFontMetrics& metrics) { return std::max(1, metrics.height() / 10); }

bool IsPlain(const QKeyEvent& key) { return !(key.modifiers() & ~Qt::KeypadModifier); }

}  // namespace

TDropDownLabel::TDropDownLabel(QWidget* parent) : QWidget(parent), FPlaceholder(QStringLiteral("...")) {
  InstallLabelAccess();
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_Hover);
  setCursor(Qt::PointingHandCursor);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

TDropDownLabel::~TDropDownLabel() { CloseEditor(); }

void TDropDownLabel::SetCaption(const QString& caption) {
  if (caption == FCaption) return;
  FCaption = caption;
  updateGeometry();
  update();
  TellCaption(accessibleName().isEmpty());
}

void TDropDownLabel::SetValue(const QString& value) { FValue = value; }

void TDropDownLabel::SetPlaceholder(const QString& text) {
  FPlaceholder = text;
  updateGeometry();
  update();
}

void TDropDownLabel::SetLinkColor(const QColor& color) {
  FLinkColor = color;
  update();
}

void TDropDownLabel::SetUnderlined(bool on) {
  FUnderlined = on;
  update();
}

void TDropDownLabel::SetReadOnly(bool on) {
  if (on == FReadOnly) return;
  FReadOnly = on;
  setCursor(on ? Qt::ArrowCursor : Qt::PointingHandCursor);
  update();
  QAccessible::State changed;
  changed.readOnly = true;
  TellState(changed);
}

void TDropDownLabel::SetFault(const QString& fault) {
  if (fault == FFault) return;
  FFault = fault;
  update();
  QAccessibleEvent told(this, QAccessible::DescriptionChanged);
  QAccessible::updateAccessibility(&told);
}

void TDropDownLabel::TellState(QAccessible::State changed) {
  QAccessibleStateChangeEvent told(this, changed);
  QAccessible::updateAccessibility(&told);
}

void TDropDownLabel::TellOpened() {
  QAccessible::State changed;
  changed.expanded = changed.collapsed = true;
  TellState(changed);
}

void TDropDownLabel::TellCaption(bool name) {
  if (!QAccessible::isActive()) return;
  QAccessibleValueChangeEvent value(this, FCaption.isEmpty() ? FPlaceholder : FCaption);
  QAccessible::updateAccessibility(&value);
  if (!name) return;
  QAccessibleEvent told(this, QAccessible::NameChanged);
  QAccessible::updateAccessibility(&told);
}

bool TDropDownLabel::CanDropDown() const { return !FEditor && !FReadOnly && isEnabled(); }

void TDropDownLabel::DropDown() {
  if (!CanDropDown()) return;
  if (const auto handler = OnBeforeDropDown) {
    const QPointer<TDropDownLabel> self = this;
    handler(*this);
    if (!self || !CanDropDown()) return;
  }
  setFocus(Qt::PopupFocusReason);
  // A window of its own, so that no scroll area clips it; not our child, so that it outlives us while it handles a key.
  FEditor = CreateEditor(window());
  FEditor->setParent(window(), Qt::Popup | Qt::FramelessWindowHint);
  FEditor->setFont(font());
  FEditor->setPalette(parentWidget() ? parentWidget()->palette() : palette());
  FEditor->setLayoutDirection(layoutDirection());
  FEditor->setLocale(locale());
  QWidget* typedIn = FEditor->focusProxy() ? FEditor->focusProxy() : FEditor.data();
  if (typedIn->accessibleName().isEmpty())
    typedIn->setAccessibleName(accessibleName().isEmpty() ? ShownText() : accessibleName());
  FEditor->installEventFilter(this);
  if (typedIn != FEditor) typedIn->installEventFilter(this);
  PlaceEditor();
  FEditor->show();
  typedIn->setFocus(Qt::PopupFocusReason);
  update();
  TellOpened();
}

void TDropDownLabel::DropUp(bool accept) {
  if (!FEditor) return;
  const QPointer<TDropDownLabel> self = this;
  bool accepted = accept && TakeFromEditor(*FEditor);
  if (!self) return;
  CloseEditor();
  setFocus(Qt::PopupFocusReason);
  update();
  TellOpened();
  if (const auto handler = OnAfterDropUp) handler(*this, accepted);
}

void TDropDownLabel::CloseEditor() {
  QWidget* editor = FEditor;
  if (!editor) return;
  FEditor = nullptr;
  editor->removeEventFilter(this);
  if (editor->focusProxy()) editor->focusProxy()->removeEventFilter(this);
  editor->hide();
  editor->deleteLater();
}

void TDropDownLabel::PlaceEditor() {
  if (!FEditor) return;
  const QRect label(mapToGlobal(QPoint()), size());
  const QRect room = screen()->availableGeometry();
  QSize wanted = FEditor->sizeHint().expandedTo(QSize(label.width(), 0)).boundedTo(room.size());
  QRect place(label.topLeft(), wanted);
  if (layoutDirection() == Qt::RightToLeft) place.moveRight(label.right());
  if (EditorCoversLabel()) {
    place.moveTop(label.center().y() - std::min(wanted.height(), FEditor->minimumSizeHint().height()) / 2);
  } else {
    const int below = room.bottom() - label.bottom(), above = label.top() - room.top();
    const bool fitsBelow = wanted.height() <= below || below >= above;
    place.setHeight(
        std::min(wanted.height(), std::max(fitsBelow ? below : above, FEditor->minimumSizeHint().height())));
    if (fitsBelow)
      place.moveTop(label.bottom() + 1);
    else
      place.moveBottom(label.top() - 1);
  }
  place.moveLeft(std::max(room.left(), std::min(place.left(), room.right() - place.width() + 1)));
  place.moveTop(std::max(room.top(), std::min(place.top(), room.bottom() - place.height() + 1)));
  FEditor->setGeometry(place);
}

bool TDropDownLabel::AcceptsByKey(const QKeyEvent& key) const {
  return (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter) && IsPlain(key);
}

bool TDropDownLabel::KeyInEditor(const QKeyEvent& key) {
  const bool back = key.key() == Qt::Key_Backtab || (key.modifiers() & Qt::ShiftModifier);
  if (key.key() == Qt::Key_Escape && IsPlain(key)) {
    DropUp(false);
  } else if (AcceptsByKey(key)) {
    DropUp(true);
  } else if ((key.key() == Qt::Key_Tab || key.key() == Qt::Key_Backtab) && !TabMovesInEditor()) {
    const QPointer<TDropDownLabel> self = this;
    DropUp(true);
    if (self) focusNextPrevChild(!back);
  } else {
    return false;
  }
  return true;
}

bool TDropDownLabel::eventFilter(QObject* watched, QEvent* event) {
  if (!FEditor) return QWidget::eventFilter(watched, event);
  if (event->type() == QEvent::KeyPress) return KeyInEditor(static_cast<QKeyEvent&>(*event));
  if (watched != FEditor) return false;
  if (event->type() == QEvent::MouseButtonPress) {
    // The click that closes the editor must not open it again.
    const QPoint at = mapFromGlobal(static_cast<QMouseEvent*>(event)->globalPosition().toPoint());
    FEditor->setAttribute(Qt::WA_NoMouseReplay, rect().contains(at));
  } else if (event->type() == QEvent::Hide) {
    DropUp(true);
  }
  return false;
}

void TDropDownLabel::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || !CanDropDown()) return event->ignore();
  event->accept();
  DropDown();
}

void TDropDownLabel::keyPressEvent(QKeyEvent* event) {
  static constexpr int openers[] = {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter, Qt::Key_F2};
  const bool altDown = event->key() == Qt::Key_Down &&
                       (event->modifiers() & ~Qt::KeypadModifier) == Qt::KeyboardModifiers(Qt::AltModifier);
  const bool opens = altDown || (IsPlain(*event) && std::ranges::find(openers, event->key()) != std::end(openers));
  if (!opens || !CanDropDown()) return QWidget::keyPressEvent(event);
  event->accept();
  DropDown();
}

void TDropDownLabel::hideEvent(QHideEvent* event) {
  CloseEditor();
  QWidget::hideEvent(event);
}

void TDropDownLabel::changeEvent(QEvent* event) {
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) updateGeometry();
  if (event->type() == QEvent::EnabledChange && !isEnabled()) CloseEditor();
  update();
  QWidget::changeEvent(event);
}

bool TDropDownLabel::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip) {
    ShowToolTip(static_cast<QHelpEvent*>(event)->globalPos());
    return true;
  }
  if (event->type() == QEvent::Move || event->type() == QEvent::Resize) PlaceEditor();
  return QWidget::event(event);
}

void TDropDownLabel::ShowToolTip(const QPoint& globalPos) {
  QStringList lines;
  if (!FFault.isEmpty()) lines << FFault;
  const bool cut = fontMetrics().horizontalAdvance(ShownText()) > TextRect().width();
  if (cut || FCaption.contains(u'\n')) lines << FCaption;
  if (lines.isEmpty() && !toolTip().isEmpty()) return QToolTip::showText(globalPos, toolTip(), this);
  QToolTip::showText(globalPos, PlainToolTip(lines.join(u'\n')), this);
}

QString TDropDownLabel::ShownText() const {
  QString text = FCaption.isEmpty() ? FPlaceholder : FCaption;
  for (QChar& letter : text)
    if (letter.isSpace()) letter = u' ';
  return text;
}

QSize TDropDownLabel::sizeHint() const {
  const QFontMetrics metrics = fontMetrics();
  const int width = std::min(metrics.horizontalAdvance(ShownText()), maxShownChars * metrics.averageCharWidth());
  return {std::max(width, metrics.averageCharWidth()) + 2 * HorizontalMargin(metrics),
          metrics.height() + 2 * VerticalMargin(metrics)};
}

int TDropDownLabel::GetBaseline() const { return TextRect().top() + fontMetrics().ascent(); }

QRect TDropDownLabel::TextRect() const {
  const QFontMetrics metrics = fontMetrics();
  const int margin = HorizontalMargin(metrics);
  return {margin, (height() - metrics.height()) / 2, std::max(0, width() - 2 * margin), metrics.height()};
}

QColor TDropDownLabel::TextColor() const {
  if (!isEnabled()) return palette().color(QPalette::Disabled, QPalette::WindowText);
  const QColor background = BackgroundOf(*this);
  const QColor plain = palette().color(foregroundRole());
  if (FCaption.isEmpty()) return ReadableColor(MixedColor(plain, background, 0.6), background);
  if (FReadOnly) return ReadableColor(plain, background);
  return ReadableLinkColor(FLinkColor, palette(), background);
}

void TDropDownLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QColor background = BackgroundOf(*this), color = TextColor();
  const QRectF frame = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
  const double radius = VerticalMargin(fontMetrics()) + 1.0;
  const bool open = IsDroppedDown(), hovered = underMouse() && CanDropDown();
  if (open || hovered) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(MixedColor(color, background, 0.12));
    painter.drawRoundedRect(frame, radius, radius);
    painter.setBrush(Qt::NoBrush);
  }
  if (open || hasFocus()) {
    painter.setPen(QPen(ReadableColor(palette().color(QPalette::Highlight), background, outlineContrast), 1.5));
    painter.drawRoundedRect(frame, radius, radius);
  }

  const QRect place = TextRect();
  QFont underlined = font();
  underlined.setUnderline(FUnderlined && !FReadOnly && isEnabled() && FFault.isEmpty());
  painter.setFont(underlined);
  painter.setPen(color);
  // Asked in whole pixels, as the size hint is: eliding looks at fractions.
  const bool fits = fontMetrics().horizontalAdvance(ShownText()) <= place.width();
  const QString text = fits ? ShownText() : fontMetrics().elidedText(ShownText(), Qt::ElideRight, place.width());
  const int direction = text.isRightToLeft() ? Qt::TextForceRightToLeft : Qt::TextForceLeftToRight;
  const Qt::Alignment side = QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft) | Qt::AlignTop;
  painter.drawText(place, Qt::TextSingleLine | Qt::TextDontClip | direction | static_cast<int>(side), text);

  if (FFault.isEmpty()) return;
  const double wave = std::max(1.5, fontMetrics().height() / 10.0);
  const double length = std::min(fontMetrics().horizontalAdvance(text), place.width());
  const double left = side & Qt::AlignRight ? place.right() + 1 - length : place.left();
  painter.setPen(QPen(ReadableColor(FaultColor(), background, outlineContrast), std::max(1.0, wave / 2)));
  DrawWave(painter, left, left + length, GetBaseline() + fontMetrics().descent() * 0.6 + 1, wave);
}

}  // namespace tolvi
