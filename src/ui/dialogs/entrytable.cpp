#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <algorithm>

#include <tolvi/ui/dialogs/entrytable.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

enum TColumn { ecText, ecValue, ecCount };

}  // namespace

TEntryTable::TEntryTable(QWidget* parent) : QTableWidget(0, ecCount, parent) {
  setHorizontalHeaderLabels({tr("Text shown"), tr("Value in SQL")});
  horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  horizontalHeader()->setHighlightSections(false);
  horizontalHeader()->setDefaultAlignment(Qt::AlignLeading | Qt::AlignVCenter);
  verticalHeader()->hide();
  setSelectionMode(ExtendedSelection);
  setTabKeyNavigation(false);
  setAccessibleName(tr("List of values"));
  connect(this, &QTableWidget::cellChanged, this, &TEntryTable::CellChanged);
}

void TEntryTable::ShowItems(const std::vector<TEntryItem>& items) {
  FShowing = true;
  const int row = currentRow(), column = currentColumn();
  FItems = items;
  setRowCount(static_cast<int>(items.size()) + 1);
  for (std::size_t i = 0; i < items.size(); ++i) PutRow(static_cast<int>(i), items[i]);
  PutRow(rowCount() - 1, {});
  if (row >= 0) setCurrentCell(std::min(row, rowCount() - 1), std::max(column, 0));
  FShowing = false;
}

void TEntryTable::PutRow(int row, const TEntryItem& item) {
  setItem(row, ecText, new QTableWidgetItem(ToQString(item.Text)));
  setItem(row, ecValue, new QTableWidgetItem(ToQString(item.Value)));
}

QString TEntryTable::Cell(int row, int column) const {
  const QTableWidgetItem* cell = item(row, column);
  return cell != nullptr ? cell->text() : QString();
}

std::vector<TEntryItem> TEntryTable::GetItems() const {
  std::vector<TEntryItem> items;
  for (int row = 0; row < rowCount(); ++row) {
    const bool isNew = row == rowCount() - 1;
    TEntryItem item{FromQString(Cell(row, ecText)), FromQString(Cell(row, ecValue))};
    if (!isNew || item != TEntryItem()) items.push_back(std::move(item));
  }
  return items;
}

void TEntryTable::CellChanged(int row, int column) {
  if (FShowing) return;
  const auto index = static_cast<std::size_t>(row);
  const TEntryItem old = index < FItems.size() ? FItems[index] : TEntryItem();
  // A value that is the text itself goes with it; a new value without a text is its own text.
  if (column == ecText && old.Text == old.Value) {
    FShowing = true;
    PutRow(row, {FromQString(Cell(row, ecText)), FromQString(Cell(row, ecText))});
    FShowing = false;
  } else if (column == ecValue && old.Text.empty()) {
    FShowing = true;
    PutRow(row, {FromQString(Cell(row, ecValue)), FromQString(Cell(row, ecValue))});
    FShowing = false;
  }
  Tell();
}

void TEntryTable::Tell() {
  ShowItems(GetItems());
  if (const auto handler = OnChange) handler();
}

std::vector<int> TEntryTable::SelectedRows() const {
  std::vector<int> rows;
  for (const QModelIndex& index : selectedIndexes()) rows.push_back(index.row());
  std::sort(rows.begin(), rows.end());
  rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
  return rows;
}

void TEntryTable::Copy() {
  QString text;
  for (const int row : SelectedRows()) text += Cell(row, ecText) + u'\t' + Cell(row, ecValue) + u'\n';
  if (!text.isEmpty()) QGuiApplication::clipboard()->setText(text);
}

void TEntryTable::Paste() {
  const std::vector<TEntryItem> pasted = ItemsFromTable(FromQString(QGuiApplication::clipboard()->text()));
  if (pasted.empty()) return;
  std::vector<TEntryItem> items = GetItems();
  const std::size_t at =
      currentRow() < 0 ? items.size() : std::min(items.size(), static_cast<std::size_t>(currentRow()));
  items.insert(items.begin() + static_cast<std::ptrdiff_t>(at), pasted.begin(), pasted.end());
  ShowItems(items);
  setCurrentCell(static_cast<int>(at + pasted.size()), ecText);
  Tell();
}

void TEntryTable::DeleteRows() {
  const std::vector<int> rows = SelectedRows();
  std::vector<TEntryItem> items = GetItems(), kept;
  for (std::size_t i = 0; i < items.size(); ++i) {
    if (!std::binary_search(rows.begin(), rows.end(), static_cast<int>(i))) kept.push_back(items[i]);
  }
  if (kept.size() == items.size()) return;
  const int first = rows.front();
  ShowItems(kept);
  setCurrentCell(std::min(first, rowCount() - 1), ecText);
  Tell();
}

void TEntryTable::Step(int step) {
  std::vector<TEntryItem> items = GetItems();
  const int row = currentRow(), to = row + step, count = static_cast<int>(items.size());
  if (row < 0 || row >= count || to < 0 || to >= count) return;
  std::swap(items[static_cast<std::size_t>(row)], items[static_cast<std::size_t>(to)]);
  const int column = currentColumn();
  ShowItems(items);
  setCurrentCell(to, column);
  Tell();
}

void TEntryTable::keyPressEvent(QKeyEvent* event) {
  const bool isAlt = event->modifiers() == Qt::AltModifier;
  if (event->matches(QKeySequence::Copy)) return Copy();
  if (event->matches(QKeySequence::Paste)) return Paste();
  if (event->key() == Qt::Key_Delete) return DeleteRows();
  if (isAlt && event->key() == Qt::Key_Up) return Step(-1);
  if (isAlt && event->key() == Qt::Key_Down) return Step(1);
  // Enter edits the cell, and chooses no button of the dialog.
  if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && currentIndex().isValid()) {
    // The Enter that ends an edit comes here, too.
    if (state() != EditingState) edit(currentIndex());
    return;
  }
  QTableWidget::keyPressEvent(event);
}

}  // namespace tolvi
