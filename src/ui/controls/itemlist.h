#pragma once

#include <vector>

#include <tolvi/ui/controls/drawing.h>
#include <tolvi/ui/controls/itemmodel.h>
class QLabel;
class QLineEdit;
class QListView;
class QProgressBar;

namespace tolvi {

/// A list with a line above it in which one types what is sought. The line has the focus and hands the keys that move
/// on to the list.
class TItemList final : public TEditorFrame {
  Q_OBJECT

 public:
  enum TOption { PlainList = 0, WithHeadings = 1, Checkable = 2 };

  TItemList(int options, QWidget* parent);

  void SetItems(const std::vector<TDropDownItem>& items);
  TItemModel& Model() { return *FModel; }

  /// The item highlighted; -1 for none.
  int GetItemIndex() const;
  void SetItemIndex(int item);
  void SetState(bool busy, const QString& fault);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 Q_SIGNALS:
  void Accepted();

 protected:
  void changeEvent(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  bool MoveByKey(int key);
  void Find(const QString& text);
  void Choose(const QModelIndex& index);
  void Highlight(int row);
  void ShowState();
  /// In pixels, of the items with the longest texts.
  int WidestRow() const;

  TItemModel* FModel;
  QLineEdit* FSearch;
  QListView* FView;
  QLabel* FTold;
  QProgressBar* FProgress;
  mutable int FWidestRow = -1;  // not known
  const bool FHeadings, FCheckable;
  bool FBusy = false, FMoved = false;
  QString FFault;
};

}  // namespace tolvi
