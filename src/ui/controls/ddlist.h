#pragma once

#include <QStringList>
#include <functional>
#include <vector>

#include <tolvi/ui/api.h>
#include <tolvi/ui/controls/ddlabel.h>

namespace tolvi {

class TItemList;

/// An item: what it stands for, what is shown, and the section that it is in (empty for none).
struct TDropDownItem {
  QString Group, Value, Text;
  bool operator==(const TDropDownItem&) const = default;
};

/// A label that opens a list. A line above the list finds items as you type: those that hold the text anywhere,
/// ignoring case and accents; the arrow keys choose among them.
class TOLVI_WIDGETS_API TDropDownList : public TDropDownLabel {
  Q_OBJECT
  Q_PROPERTY(QStringList items READ GetItemLines WRITE SetItemLines)
  Q_PROPERTY(int itemIndex READ GetItemIndex WRITE SetItemIndex)

 public:
  using TDropDownLabel::TDropDownLabel;

  void AddItem(const QString& group, const QString& value, const QString& text);
  /// Replaces all items; value and caption stay.
  void SetItems(std::vector<TDropDownItem> items);
  void ClearItems() { SetItems({}); }
  const std::vector<TDropDownItem>& Items() const { return FItems; }
  /// The items as lines "value=text", or "text" where both are the same, below lines "[group]"; "[]" ends a group. No
  /// value has a "=". Setting keeps the item index, even one set before there were items, and shows the text that the
  /// item has now: forms set properties in any order, and items again in another language.
  QStringList GetItemLines() const;
  void SetItemLines(const QStringList& lines);

  /// The item chosen; -1 for none. Setting it sets value and caption to those of the item, and empty ones for an index
  /// outside the list, which is taken as -1.
  int GetItemIndex() const { return FItemIndex; }
  void SetItemIndex(int index);
  /// Sets the item index to the first item of that value, too, -1 without one; the caption stays.
  void SetValue(const QString& value) override;

  /// Instead of the list, or below it: that the items are being fetched, or why they cannot be. Both may be set while
  /// the list is open. Default empty.
  void SetBusy(bool busy);
  void SetListFault(const QString& fault);

 protected:
  QWidget* CreateEditor(QWidget* parent) override;
  bool TakeFromEditor(QWidget& editor) override;
  /// Whether a group is a section with a heading, rather than a word beside the text. Default false.
  virtual bool HasHeadings() const { return false; }
  TItemList* MakeList(bool checkable, QWidget* parent);
  /// Shows the items and what is chosen.
  virtual void FillList(TItemList& list);

 private:
  TItemList* List() const;
  void TellList();
  int FindValue(const QString& value) const;

  std::vector<TDropDownItem> FItems;
  int FItemIndex = -1, FAwaitedIndex = -1;
  bool FBusy = false;
  QString FListFault;
};

/// Shows the items as one list; the group stands beside the text.
class TOLVI_WIDGETS_API TDropDownListBox : public TDropDownList {
  Q_OBJECT
 public:
  using TDropDownList::TDropDownList;
};

/// Shows each group as a section with a heading, in the order of their first items; a line is above the items without a
/// group when they are not the first.
class TOLVI_WIDGETS_API TDropDownPopup : public TDropDownList {
  Q_OBJECT
 public:
  using TDropDownList::TDropDownList;

 protected:
  bool HasHeadings() const override { return true; }
};

/// Chooses any number of items. The value is the comma text of the values chosen, the caption their texts with ", "
/// between, both in the order of the list. Values that no item has are kept at the end. A click switches an item, and
/// so does Space while nothing is typed or an arrow key was the last one.
class TOLVI_WIDGETS_API TDropDownCheckList : public TDropDownList {
  Q_OBJECT
 public:
  using TDropDownList::TDropDownList;

 protected:
  QWidget* CreateEditor(QWidget* parent) override;
  bool TakeFromEditor(QWidget& editor) override;
  bool HasHeadings() const override { return true; }
  void FillList(TItemList& list) override;
};

}  // namespace tolvi
