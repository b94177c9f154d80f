#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScreen>
#include <QTextBlock>
#include <QValidator>
#include <algorithm>

#include <tolvi/ui/controls/checkededitor.h>
#include <tolvi/ui/controls/ddedit.h>

namespace tolvi {

namespace {

constexpr int minLineChars = 8, minMemoChars = 40, minMemoLines = 4, maxMemoLines = 15;

int HalfScreen(const QWidget& widget) { return widget.screen()->availableGeometry().width() / 2; }

/// Changes the case of the letters as they come, and takes anything.
class TCaseValidator final : public QValidator {
 public:
  TCaseValidator(TTextCase textCase, QObject* parent) : QValidator(parent), FTextCase(textCase) {}

  State validate(QString& text, int& position) const override {
    const QString changed = FTextCase == TTextCase::tcUpper ? text.toUpper() : text.toLower();
    position += static_cast<int>(changed.size() - text.size());
    text = changed;
    return Acceptable;
  }

 private:
  const TTextCase FTextCase;
};

/// What stands in the places of the mask that are there to be typed in. `shown` has a character for each place.
QString WithoutMask(const QString& shown, const QString& mask) {
  static const QString places = QStringLiteral("AaNnXx90Dd#HhBb"), switches = QStringLiteral("><!");
  const qsizetype end = mask.lastIndexOf(u';');
  const QChar blank = end >= 0 && end + 1 < mask.size() ? mask[end + 1] : QChar(u' ');
  QString text;
  qsizetype place = 0;
  for (qsizetype i = 0; i < (end < 0 ? mask.size() : end) && place < shown.size(); ++i) {
    if (switches.contains(mask[i])) continue;
    const bool isTyped = places.contains(mask[i]);
    if (mask[i] == u'\\') ++i;
    if (isTyped && shown[place] != blank) text += shown[place];
    ++place;
  }
  return text;
}

/// As wide as its text.
class TGrowingLine final : public QLineEdit {
 public:
  using QLineEdit::QLineEdit;

  QSize sizeHint() const override {
    const QFontMetrics metrics = fontMetrics();
    const int frame = QLineEdit::sizeHint().width() - 17 * metrics.horizontalAdvance(u'x');  // how it makes its hint
    const int text = metrics.horizontalAdvance(displayText()) + 2 * metrics.averageCharWidth();
    const int width = std::max(text, minLineChars * metrics.averageCharWidth()) + std::max(0, frame);
    return {std::min(width, HalfScreen(*this)), QLineEdit::sizeHint().height()};
  }
  QSize minimumSizeHint() const override { return {QLineEdit::minimumSizeHint().width(), sizeHint().height()}; }

  /// Empty when nothing is typed in the mask.
  QString TypedText(bool keepsMask) const {
    if (inputMask().isEmpty()) return text();
    if (!keepsMask) return WithoutMask(displayText(), inputMask());
    QLineEdit empty;
    empty.setInputMask(inputMask());
    return text() == empty.text() ? QString() : text();
  }
};

/// As wide and high as its text, within limits.
class TGrowingMemo final : public QPlainTextEdit {
 public:
  using QPlainTextEdit::QPlainTextEdit;

  QSize sizeHint() const override {
    const QFontMetrics metrics = fontMetrics();
    int width = minMemoChars * metrics.averageCharWidth();
    for (QTextBlock line = document()->begin(); line.isValid(); line = line.next())
      if (line.blockNumber() < maxMemoLines) width = std::max(width, metrics.horizontalAdvance(line.text()));
    const int lines = std::clamp(document()->blockCount() + 1, minMemoLines, maxMemoLines);
    const int frame = 2 * (frameWidth() + static_cast<int>(document()->documentMargin()));
    return {std::min(width + frame + 4 * metrics.averageCharWidth(), HalfScreen(*this)),
            lines * metrics.lineSpacing() + frame};
  }
  QSize minimumSizeHint() const override {
    return {QPlainTextEdit::minimumSizeHint().width(),
            fontMetrics().lineSpacing() + 2 * (frameWidth() + static_cast<int>(document()->documentMargin()))};
  }
};

QString Fault(const std::function<QString(const QString&)>& onCheck, const QString& text) {
  return onCheck ? onCheck(text) : QString();
}

}  // namespace

QWidget* TDropDownEdit::CreateEditor(QWidget* parent) {
  auto* line = new TGrowingLine;
  line->setFont(font());
  line->setFrame(false);
  if (FTextCase != TTextCase::tcNone) line->setValidator(new TCaseValidator(FTextCase, line));
  if (FMaxLength > 0) line->setMaxLength(FMaxLength);
  line->setInputMask(FInputMask);
  line->setText(GetValue());
  line->selectAll();
  auto* editor = new TCheckedEditor(*line, parent);
  const auto check = [this, line, editor] {
    editor->ShowFault(Fault(OnCheck, line->TypedText(FKeepsMask)));
    line->updateGeometry();
    PlaceEditor();
  };
  check();
  connect(line, &QLineEdit::textChanged, this, check);
  return editor;
}

bool TDropDownEdit::TakeFromEditor(QWidget& editor) {
  const QString text = static_cast<TGrowingLine*>(editor.focusProxy())->TypedText(FKeepsMask);
  SetValue(text);
  SetCaption(text);
  if (OnCheck) SetFault(OnCheck(text));
  return true;
}

QWidget* TDropDownMemo::CreateEditor(QWidget* parent) {
  auto* memo = new TGrowingMemo;
  memo->setFont(font());
  memo->setFrameShape(QFrame::NoFrame);
  memo->setPlainText(GetValue());
  memo->selectAll();
  auto* editor = new TCheckedEditor(*memo, parent);
  const auto check = [this, memo, editor] {
    editor->ShowFault(Fault(OnCheck, memo->toPlainText()));
    memo->updateGeometry();
    PlaceEditor();
  };
  check();
  connect(memo, &QPlainTextEdit::textChanged, this, check);
  return editor;
}

bool TDropDownMemo::TakeFromEditor(QWidget& editor) {
  const QString text = static_cast<TGrowingMemo*>(editor.focusProxy())->toPlainText();
  SetValue(text);
  SetCaption(text);
  if (OnCheck) SetFault(OnCheck(text));
  return true;
}

bool TDropDownMemo::AcceptsByKey(const QKeyEvent& key) const {
  const bool enter = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
  return enter && (key.modifiers() & ~Qt::KeypadModifier) == Qt::KeyboardModifiers(Qt::ControlModifier);
}

}  // namespace tolvi
