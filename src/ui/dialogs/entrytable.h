#pragma once

#include <QTableWidget>
#include <functional>
#include <vector>

#include <tolvi/panel/valueentry.h>

namespace tolvi {

/// The items of a fixed list, a row each: the text shown and the value used in SQL. The empty row at the end becomes
/// another item when something is typed there. Rows are pasted from, and copied for, a spreadsheet.
///
/// Keys: Delete deletes the selected rows, Alt+Up and Alt+Down move the current one, Ctrl+C and Ctrl+V copy and paste.
class TEntryTable final : public QTableWidget {
  Q_OBJECT

 public:
  explicit TEntryTable(QWidget* parent = nullptr);

  void ShowItems(const std::vector<TEntryItem>& items);
  std::vector<TEntryItem> GetItems() const;

  void Copy();
  /// Inserts what the clipboard holds before the current row.
  void Paste();
  void DeleteRows();
  /// Moves the current row one place up (-1) or down (1).
  void Step(int step);

  /// The user has changed something.
  std::function<void()> OnChange;

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void CellChanged(int row, int column);
  QString Cell(int row, int column) const;
  void PutRow(int row, const TEntryItem& item);
  std::vector<int> SelectedRows() const;
  void Tell();

  bool FShowing = false;
  // The texts as they were, to see which value goes with its text.
  std::vector<TEntryItem> FItems;
};

}  // namespace tolvi
