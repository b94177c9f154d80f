#include <QAbstractItemView>
#include <QCompleter>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QScrollBar>
#include <QStandardItemModel>
#include <algorithm>

#include <tolvi/ui/dialogs/formulaedit.h>

namespace tolvi {

TFormulaEdit::TFormulaEdit(QWidget* parent) : QLineEdit(parent), FCompleter(new QCompleter(this)) {
  // An expression reads from the left in any language.
  setLayoutDirection(Qt::LeftToRight);
  FCompleter->setWidget(this);
  FCompleter->setModel(new QStandardItemModel(FCompleter));
  FCompleter->setCaseSensitivity(Qt::CaseInsensitive);
  FCompleter->setFilterMode(Qt::MatchContains);
  FCompleter->setMaxVisibleItems(12);
  FCompleter->popup()->installEventFilter(this);
  connect(FCompleter, qOverload<const QModelIndex&>(&QCompleter::activated), this,
          [this](const QModelIndex& index) { Take(index.data(Qt::UserRole).toString()); });
  connect(this, &QLineEdit::textEdited, this, &TFormulaEdit::Offer);
}

// "{{" outside a name and "}}" inside one stand for the brace itself.
int TFormulaEdit::OpenBrace() const {
  const QString before = text().left(cursorPosition());
  int open = -1;
  for (int at = 0; at < before.size(); ++at) {
    const QChar brace = open < 0 ? u'{' : u'}';
    if (before[at] != brace) continue;
    if (at + 1 < before.size() && before[at + 1] == brace) {
      ++at;
    } else {
      open = open < 0 ? at : -1;
    }
  }
  return open;
}

int TFormulaEdit::EndOfName() const {
  const QString all = text();
  for (int at = cursorPosition(); at < all.size() && all[at] != u'{'; ++at) {
    if (all[at] != u'}') continue;
    if (at + 1 == all.size() || all[at + 1] != u'}') return at + 1;
    ++at;
  }
  return cursorPosition();
}

void TFormulaEdit::Offer() {
  const int open = OpenBrace();
  if (open < 0 || !OnNames) return FCompleter->popup()->hide();
  if (!FNamesKnown) {
    auto& model = static_cast<QStandardItemModel&>(*FCompleter->model());
    model.clear();
    for (const TFormulaName& name : OnNames()) {
      auto* item = new QStandardItem(name.Text);
      item->setData(name.Reference, Qt::UserRole);
      model.appendRow(item);
    }
    FNamesKnown = true;
  }
  FCompleter->setCompletionPrefix(text().mid(open + 1, cursorPosition() - open - 1).trimmed());
  QAbstractItemView& popup = *FCompleter->popup();
  if (FCompleter->completionCount() == 0) return popup.hide();
  QRect place = cursorRect();
  place.setWidth(std::min(
      popup.sizeHintForColumn(0) + popup.verticalScrollBar()->sizeHint().width() + fontMetrics().averageCharWidth() * 2,
      window()->width()));
  FCompleter->complete(place);
  popup.setCurrentIndex(FCompleter->completionModel()->index(0, 0));
}

void TFormulaEdit::Take(const QString& reference) {
  const int open = OpenBrace();
  if (open < 0) return;
  setSelection(open, EndOfName() - open);
  insert(reference);
}

// In the list of names, Tab takes one as Enter does.
bool TFormulaEdit::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress || static_cast<QKeyEvent&>(*event).key() != Qt::Key_Tab) {
    return QLineEdit::eventFilter(watched, event);
  }
  QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
  QCoreApplication::sendEvent(watched, &enter);
  return true;
}

}  // namespace tolvi
