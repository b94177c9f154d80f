#include "apps/workbench/store/nameeditor.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPointer>
#include <algorithm>
#include <utility>

namespace tolvi {

TNameEditor::TNameEditor(QLineEdit& line, QWidget* parent)
    : TCheckedEditor(line, parent), FLine(line), FFormer(line.text()) {
  setObjectName(QStringLiteral("store.nameEditor"));
  // In a list, texts would have another colour than the one of faults.
  for (QLabel* label : findChildren<QLabel*>()) label->setForegroundRole(QPalette::WindowText);
  FLine.setObjectName(QStringLiteral("store.name"));
  FLine.setAccessibleName(tr("Name of the query"));
  FLine.setFrame(false);
  FLine.selectAll();
  FLine.installEventFilter(this);
  connect(&FLine, &QLineEdit::textChanged, this, &TNameEditor::Check);
}

QString TNameEditor::Text() const { return FLine.text().trimmed(); }

void TNameEditor::Check() {
  ShowFault(OnCheck && Text() != FFormer ? OnCheck(Text()) : QString());
  Place();
}

void TNameEditor::Place() {
  const int width = parentWidget()->width() - 2 * x();
  Rows().activate();
  resize(width,
         std::max(Rows().totalHeightForWidth(width - 2 * frameWidth()), Rows().sizeHint().height()) + 2 * frameWidth());
}

bool TNameEditor::eventFilter(QObject* watched, QEvent* event) {
  if (watched != &FLine || FBusy) return TCheckedEditor::eventFilter(watched, event);
  if (event->type() == QEvent::ShortcutOverride) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Escape || key == Qt::Key_Return || key == Qt::Key_Enter) event->accept();
  } else if (event->type() == QEvent::KeyPress) {
    switch (static_cast<QKeyEvent*>(event)->key()) {
      case Qt::Key_Escape:
        Close({});
        return true;
      case Qt::Key_Return:
      case Qt::Key_Enter:
      case Qt::Key_Tab:
      case Qt::Key_Backtab:
        Take(false);
        return true;
      case Qt::Key_Up:
      case Qt::Key_Down:
        return true;
      default:
        break;
    }
  } else if (event->type() == QEvent::FocusOut && static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason &&
             static_cast<QFocusEvent*>(event)->reason() != Qt::ActiveWindowFocusReason) {
    Take(true);
  }
  return TCheckedEditor::eventFilter(watched, event);
}

void TNameEditor::Take(bool isLeft) {
  const QString name = Text();
  if (name == FFormer || name.isEmpty()) return Close({});
  const QPointer<TNameEditor> self = this;
  FBusy = true;
  const QString fault = OnTake ? OnTake(name) : QString();
  if (!self) return;
  FBusy = false;
  if (fault.isEmpty() || isLeft) return Close(fault);
  ShowFault(fault);
  Place();
  FLine.setFocus();
}

void TNameEditor::Close(const QString& fault) {
  if (std::exchange(FBusy, true)) return;
  const bool hadFocus = FLine.hasFocus();
  hide();
  deleteLater();
  if (hadFocus) parentWidget()->parentWidget()->setFocus();
  if (const auto handler = OnDone) handler(fault);
}

}  // namespace tolvi
