#include <QAbstractItemView>
#include <QAction>
#include <QBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QShortcut>
#include <QToolButton>

#include <tolvi/ui/dialogs/listactions.h>

namespace tolvi {
namespace {

class TSearchLine final : public QLineEdit {
 public:
  TSearchLine(QAbstractItemView& list, QWidget& parent) : QLineEdit(&parent), FList(list) {
    setClearButtonEnabled(true);
    auto* find = new QShortcut(QKeySequence::Find, &parent);
    find->setContext(Qt::WidgetWithChildrenShortcut);
    connect(find, &QShortcut::activated, this, [this] {
      setFocus(Qt::ShortcutFocusReason);
      selectAll();
    });
  }

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    switch (event->key()) {
      case Qt::Key_Up:
      case Qt::Key_Down:
      case Qt::Key_Return:
      case Qt::Key_Enter:
        if (event->modifiers() & Qt::ControlModifier) break;
        FList.setFocus(Qt::TabFocusReason);
        return;
      case Qt::Key_Escape:
        if (text().isEmpty()) break;
        clear();
        return;
      default:
        break;
    }
    QLineEdit::keyPressEvent(event);
  }

 private:
  QAbstractItemView& FList;
};

}  // namespace

QString WithKey(const QString& text, const QKeySequence& key) {
  return key.isEmpty() ? text : text + QStringLiteral(" (") + key.toString(QKeySequence::NativeText) + u')';
}

QAction* AddListAction(QAbstractItemView& list, QBoxLayout& row, const QString& text, TSign sign,
                       const QKeySequence& key, const std::function<void()>& run) {
  auto* action = new QAction(text, &list);
  if (sign != sgNone) action->setIcon(SignIcon(sign, list));
  action->setShortcut(key);
  action->setShortcutContext(Qt::WidgetShortcut);
  action->setToolTip(WithKey(text, key));
  QObject::connect(action, &QAction::triggered, &list, run, Qt::QueuedConnection);
  list.addAction(action);
  QToolButton* button = MakeSignButton(*action, *list.parentWidget());
  if (sign == sgNone) button->setToolButtonStyle(Qt::ToolButtonTextOnly);
  row.addWidget(button);
  return action;
}

QLineEdit* MakeSearchLine(QAbstractItemView& list, const QString& accessibleName, QWidget& parent) {
  auto* line = new TSearchLine(list, parent);
  line->setPlaceholderText(WithKey(accessibleName, QKeySequence::Find));
  line->setAccessibleName(accessibleName);
  return line;
}

void SelectRows(QAbstractItemView& list, const std::vector<int>& rows) {
  QItemSelection selection;
  QModelIndex first;
  for (const int row : rows) {
    if (row < 0) continue;
    const QModelIndex index = list.model()->index(row, 0);
    if (!first.isValid()) first = index;
    selection.select(index, index);
  }
  QItemSelectionModel& model = *list.selectionModel();
  model.setCurrentIndex(first, QItemSelectionModel::NoUpdate);
  model.select(selection, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
  if (first.isValid()) list.scrollTo(first);
}

}  // namespace tolvi
