#pragma once

#include <QTreeView>
#include <functional>

namespace tolvi {

class TFillItems;

/// Shows `TFillItems`. Space switches the selected rows as the current one, F2 renames the current one, Enter is left
/// to the window.
class TFillView final : public QTreeView {
  Q_OBJECT

 public:
  /// `nameColumn`: what F2 edits.
  TFillView(TFillItems& items, int nameColumn, const QString& name, QWidget* parent);

  /// The first column of the selected rows; of the current one when none is selected.
  QModelIndexList SelectedRows() const;
  void CheckSelected(int column, bool on);
  /// Checks the selected rows, or unchecks them if the current one is checked.
  void ToggleSelected(int column);
  void CheckAll(bool on);
  void EditCurrent();
  /// Takes over what is being typed.
  void Commit();
  /// Shows the rows anew; the current one is found again by its text.
  void Reload();

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  TFillItems& FItems;
  const int FNameColumn;
  // Of the current row and the one above it. When rows are shown anew, what they showed may be gone.
  QString FCurrentText, FTextAbove;
};

}  // namespace tolvi
