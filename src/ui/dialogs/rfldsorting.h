// The page of the result fields editor on which the order of the rows is chosen.
#pragma once

#include <QWidget>
#include <string_view>
class QCheckBox;
class QKeyEvent;
class QMenu;
class QPushButton;
class QTableWidget;

namespace tolvi {

class TRFieldEditor;

/// The columns that sort, the first sort key on top; they change places by dragging or Alt+Up and Alt+Down.
/// In a closed sorting box, Up and Down go to other rows. Delete takes a column out of the order.
class TRFSortingPage final : public QWidget {
  Q_OBJECT

 public:
  /// The editor must outlive the page.
  TRFSortingPage(TRFieldEditor& editor, QWidget* parent);

  void Refresh();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QString Title(std::string_view key) const;
  void BuildTable();
  void FillMenu();
  void ShowRow(int row, std::size_t column);
  void MakeSortingBox(int row);
  bool HandleKey(const QKeyEvent& pressed, QWidget& sender);
  /// The row of a sorting box; -1 for none.
  int RowOf(const QObject& box) const;
  void GoTo(int row, bool toBox);
  void Choose(int row, int sorting);
  void Move(int from, int to);

  TRFieldEditor& FEditor;
  QTableWidget* FTable;
  QPushButton* FAdd;
  QMenu* FMenu;
  QCheckBox* FJustSorting;
  bool FRefreshing = false;
};

}  // namespace tolvi
