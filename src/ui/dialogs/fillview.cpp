#include <QComboBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>

#include <tolvi/ui/dialogs/checkstyle.h>
#include <tolvi/ui/dialogs/faultdelegate.h>
#include <tolvi/ui/dialogs/fillitems.h>
#include <tolvi/ui/dialogs/fillview.h>

namespace tolvi {
namespace {

/// Lets the user choose where there are choices, and gives editors the name of what they edit.
class TChoiceDelegate final : public TFaultDelegate {
 public:
  using TFaultDelegate::TFaultDelegate;

  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    const QStringList choices = index.data(TFillItems::ChoicesRole).toStringList();
    QWidget* editor = nullptr;
    if (choices.isEmpty()) {
      editor = TFaultDelegate::createEditor(parent, option, index);
    } else {
      auto* box = new QComboBox(parent);
      box->addItems(choices);
      connect(box, &QComboBox::activated, this,
              [this, box] { Q_EMIT const_cast<TChoiceDelegate*>(this)->commitData(box); });
      editor = box;
    }
    editor->setAutoFillBackground(true);
    const QString column = index.model()->headerData(index.column(), Qt::Horizontal).toString();
    editor->setAccessibleName(column + QStringLiteral(": ") + index.siblingAtColumn(0).data().toString());
    return editor;
  }

  void setEditorData(QWidget* editor, const QModelIndex& index) const override {
    if (auto* box = qobject_cast<QComboBox*>(editor)) return box->setCurrentIndex(index.data(Qt::EditRole).toInt());
    TFaultDelegate::setEditorData(editor, index);
  }

  void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override {
    if (auto* box = qobject_cast<QComboBox*>(editor)) {
      model->setData(index, box->currentIndex());
    } else {
      TFaultDelegate::setModelData(editor, model, index);
    }
  }

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    // Room for the editor's margins.
    return TFaultDelegate::sizeHint(option, index) + QSize(0, option.fontMetrics.height() / 3);
  }
};

}  // namespace

TFillView::TFillView(TFillItems& items, int nameColumn, const QString& name, QWidget* parent)
    : QTreeView(parent), FItems(items), FNameColumn(nameColumn) {
  setModel(&items);
  setItemDelegate(new TChoiceDelegate(this));
  auto* look = new TCheckStyle;
  look->setParent(this);
  setStyle(look);
  setAccessibleName(name);
  setUniformRowHeights(true);
  setAlternatingRowColors(true);
  setAllColumnsShowFocus(true);
  setSelectionMode(QAbstractItemView::ExtendedSelection);
  setEditTriggers(QAbstractItemView::DoubleClicked);
  setExpandsOnDoubleClick(false);
  connect(selectionModel(), &QItemSelectionModel::currentChanged, this, [this](const QModelIndex& current) {
    if (!current.isValid()) return;
    FCurrentText = current.siblingAtColumn(0).data().toString();
    FTextAbove = current.parent().data().toString();
  });
  header()->setSectionsMovable(false);
  header()->setDefaultAlignment(Qt::AlignLeading | Qt::AlignVCenter);
}

QModelIndexList TFillView::SelectedRows() const {
  // Rows are selected as a whole; `selectedRows` looks at every range for each of them.
  QModelIndexList rows;
  for (const QItemSelectionRange& range : selectionModel()->selection()) {
    for (int row = range.top(); row <= range.bottom(); ++row) rows << FItems.index(row, 0, range.parent());
  }
  if (rows.isEmpty() && currentIndex().isValid()) rows << currentIndex().siblingAtColumn(0);
  return rows;
}

void TFillView::CheckSelected(int column, bool on) {
  QModelIndexList indexes;
  for (const QModelIndex& row : SelectedRows()) indexes << row.siblingAtColumn(column);
  if (!indexes.isEmpty()) FItems.Check(indexes, on);
}

void TFillView::ToggleSelected(int column) {
  const QModelIndex current = currentIndex().siblingAtColumn(0);
  const auto isOn = [column](const QModelIndex& row) {
    return row.siblingAtColumn(column).data(Qt::CheckStateRole).toInt() == Qt::Checked;
  };
  bool on = isOn(current);
  // A row without a box stands for those below it.
  if (!current.siblingAtColumn(column).data(Qt::CheckStateRole).isValid()) {
    for (int below = 0; below < FItems.rowCount(current); ++below) on = on || isOn(FItems.index(below, 0, current));
  }
  CheckSelected(column, !on);
}

void TFillView::CheckAll(bool on) {
  QModelIndexList indexes;
  for (int row = 0; row < FItems.rowCount(); ++row) {
    const QModelIndex top = FItems.index(row, 0);
    if (FItems.IsWhole(top)) {
      indexes << top;
      continue;
    }
    for (int below = 0; below < FItems.rowCount(top); ++below) indexes << FItems.index(below, 0, top);
  }
  FItems.Check(indexes, on);
}

void TFillView::EditCurrent() {
  const QModelIndex name = currentIndex().siblingAtColumn(FNameColumn);
  if (!(name.flags() & Qt::ItemIsEditable)) return;
  selectionModel()->setCurrentIndex(name, QItemSelectionModel::NoUpdate);
  edit(name);
}

void TFillView::Commit() {
  const QWidget* focus = window()->focusWidget();
  if (focus != nullptr && viewport()->isAncestorOf(focus)) setFocus();
}

void TFillView::Reload() {
  const QString text = FCurrentText, above = FTextAbove;
  FItems.Reset();
  const auto find = [this](const QString& sought, const QModelIndex& parent) {
    const QModelIndexList found =
        FItems.match(FItems.index(0, 0, parent), Qt::DisplayRole, sought, 1, Qt::MatchExactly | Qt::MatchCaseSensitive);
    return found.isEmpty() ? QModelIndex() : found.front();
  };
  QModelIndex current = find(above.isEmpty() ? text : above, {});
  if (!above.isEmpty() && current.isValid()) current = find(text, current);
  setCurrentIndex(current.isValid() ? current : FItems.index(0, 0));
}

void TFillView::keyPressEvent(QKeyEvent* event) {
  const bool plain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
  if (plain && event->key() == Qt::Key_Space) return ToggleSelected(0);
  if (plain && event->key() == Qt::Key_F2) return EditCurrent();
  QTreeView::keyPressEvent(event);
}

}  // namespace tolvi
