#include <QAction>
#include <QKeyEvent>
#include <QPainter>
#include <QPointer>
#include <algorithm>
#include <utility>

#include <tolvi/ui/controls/contrast.h>
#include <tolvi/ui/controls/drawnicon.h>
#include <tolvi/ui/dialogs/checkedline.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

/// An exclamation mark, in a circle for an error, in a triangle for a warning.
class TMarkEngine final : public TDrawnIconEngine {
 public:
  TMarkEngine(bool isError, const QColor& color) : TDrawnIconEngine(16), FIsError(isError), FColor(color) {}

  QIconEngine* clone() const override { return new TMarkEngine(*this); }

 protected:
  void Draw(QPainter& painter, QIcon::Mode) const override {
    painter.setPen(QPen(FColor, 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    if (FIsError) {
      painter.drawEllipse(QPointF(8, 8), 6.4, 6.4);
    } else {
      painter.drawPolygon(QPolygonF{{8, 1.6}, {14.8, 14}, {1.2, 14}});
    }
    const double top = FIsError ? 4.6 : 6;
    painter.drawLine(QPointF(8, top), QPointF(8, top + 3.8));
    painter.drawPoint(QPointF(8, top + 6.4));
  }

 private:
  const bool FIsError;
  const QColor FColor;
};

bool IsError(const TTextFinding& finding) { return finding.Severity == csError; }

}  // namespace

TCheckedLine::TCheckedLine(QWidget* parent) : QLineEdit(parent) {
  connect(this, &QLineEdit::textChanged, this, &TCheckedLine::Check);
}

void TCheckedLine::ShowText(const QString& text) {
  const bool isTyping = hasFocus() && this->text() != FShown;
  if (isTyping) return;
  FShown = text;
  if (this->text() == text) {
    Check();
  } else {
    setText(text);
    setCursorPosition(0);
  }
}

void TCheckedLine::Check() {
  std::vector<TTextFinding> findings;
  if (OnCheck) findings = OnCheck(text());
  if (findings == FFindings) return;
  FFindings = std::move(findings);
  ShowFindings();
}

void TCheckedLine::ShowFindings() {
  QStringList texts;
  for (const TTextFinding& finding : FFindings) texts << ToQString(finding.Text);
  const QString told = texts.join(u'\n');
  setToolTip(PlainToolTip(told));
  setAccessibleDescription(told);
  if (FMark == nullptr) {
    if (FFindings.empty()) return;
    FMark = addAction(QIcon(), QLineEdit::TrailingPosition);
  }
  FMark->setVisible(!FFindings.empty());
  FMark->setToolTip(toolTip());
  const bool isError = std::any_of(FFindings.begin(), FFindings.end(), IsError);
  const QColor color = isError ? FaultColor() : QColor(200, 130, 0);
  FMark->setIcon(QIcon(new TMarkEngine(isError, ReadableColor(color, palette().color(QPalette::Base), 3))));
}

// What the handler does may destroy the line, or take the focus from it.
void TCheckedLine::Commit() {
  const QString typed = text();
  if (typed == FShown) return;
  if (!FKeepsWrong && std::any_of(FFindings.begin(), FFindings.end(), IsError)) {
    setText(FShown);
    return;
  }
  FShown = typed;
  const auto handler = OnCommit;
  if (handler) handler(typed);
}

bool TCheckedLine::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride && text() == FShown) {
    const auto& pressed = static_cast<QKeyEvent&>(*event);
    if (pressed.matches(QKeySequence::Undo) || pressed.matches(QKeySequence::Redo)) {
      event->ignore();
      return true;
    }
  }
  return QLineEdit::event(event);
}

void TCheckedLine::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      // Enter ends the text; it chooses no button.
      if (event->modifiers() & Qt::ControlModifier) break;
      Commit();
      return;
    case Qt::Key_Escape:
      if (text() == FShown) break;
      setText(FShown);
      return;
    default:
      break;
  }
  QLineEdit::keyPressEvent(event);
}

void TCheckedLine::focusOutEvent(QFocusEvent* event) {
  const QPointer<TCheckedLine> alive(this);
  QLineEdit::focusOutEvent(event);
  // A menu or the list of a completer leaves the line its text; another window takes the user away from it.
  if (alive && event->reason() != Qt::PopupFocusReason) Commit();
}

void TCheckedLine::changeEvent(QEvent* event) {
  QLineEdit::changeEvent(event);
  if (event->type() == QEvent::PaletteChange && !FFindings.empty()) ShowFindings();
}

}  // namespace tolvi
