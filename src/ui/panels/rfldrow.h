#pragma once

#include <QLabel>
#include <QString>
#include <cstddef>
#include <cstdint>
#include <memory>

#include <tolvi/foundation/objectlist.h>
#include <tolvi/panel/rfldrows.h>
#include <tolvi/ui/api.h>
#include <tolvi/ui/controls/ddlist.h>
#include <tolvi/ui/controls/rndbtn.h>

namespace tolvi {

class TJResultFieldsPanel;
class TResultField;
class TResultFieldRow;
class TResultFieldRows;

/// The numbered button of a row; it opens the row menu.
class TOLVI_WIDGETS_API TRFRowButton final : public TJRndBtn {
  Q_OBJECT

 public:
  explicit TRFRowButton(TResultFieldRow& row, QWidget* parent) : TJRndBtn(parent), FRow(row) {}
  TResultFieldRow& GetRow() const { return FRow; }

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  TResultFieldRow& FRow;
};

/// The elements of a row that take the focus.
enum TRFRowPart : std::uint8_t { rpButton, rpField, rpSorting };

/// A row of the panel, which shows one column: button, text, field label, text, sort label. It owns these widgets; the
/// two texts and the field label are made anew whenever the row is placed.
class TOLVI_WIDGETS_API TResultFieldRow final {
 public:
  /// Raises `ERFPanelError` "DBStructure is not specified" when the panel has no model.
  explicit TResultFieldRow(TResultFieldRows& list);
  TResultFieldRow(const TResultFieldRow&) = delete;
  TResultFieldRow& operator=(const TResultFieldRow&) = delete;

  TResultFieldRows& GetList() const { return FList; }
  TJResultFieldsPanel& GetRFPanel() const;
  /// Counted from 0; -1 for a row outside the list. The text counts from 1.
  std::ptrdiff_t GetRowIndex() const;
  QString GetRowNumStr() const { return QString::number(GetRowIndex() + 1); }

  /// The column shown, owned by the panel's list; null once that has let it go. Setting places the row.
  TResultField* GetRField() const;
  void SetRField(TResultField* field);
  /// What the sort label holds, as ordinal of `TSortingType`. Setting does not change the column.
  int GetSorting() const { return FSortLabel->GetValue().toInt(); }
  void SetSorting(int sorting) { FSortLabel->SetItemIndex(sorting); }
  /// Of the button, the field label and the sort label; the two texts always stay. Default false.
  bool GetVisible() const { return FVisible; }
  void SetVisible(bool visible);

  TRFRowButton& GetButton() const { return *FButton; }
  TDropDownPopup& GetSortLabel() const { return *FSortLabel; }
  /// Null where the row has none.
  QLabel* GetTextLabel1() const { return FTextLabel1.get(); }
  TDropDownList* GetFieldLabel() const { return FFieldLabel.get(); }
  QLabel* GetTextLabel2() const { return FTextLabel2.get(); }
  /// The element; the button where the row has no field label.
  QWidget& GetPart(TRFRowPart part) const;
  /// The element that has the focus, or whose list has it; null when none has.
  QWidget* GetFocusedPart() const;
  /// With ", not shown" for a hidden column, whose texts are slanted and weaker.
  QString GetPhrase() const;

  /// Shows the column anew. Does nothing while the row has none.
  void Place();
  /// Takes the colours of a hidden column from the palette as it is now.
  void Colour();
  /// Moves what there is to its place, as font and number may have changed.
  void Arrange();
  /// The places in the panel's content, from the left in any language; where they end on the right.
  const TRFRowPlaces& GetPlaces() const { return FPlaces; }
  int GetRight() const;

  /// Takes over into the column what field label and sort label hold, and fires the panel's `OnChange`, which may
  /// destroy the row.
  void RefreshResultField();

 private:
  std::unique_ptr<QLabel> MakeTextLabel(const std::string& text) const;
  std::unique_ptr<TDropDownList> MakeFieldLabel() const;
  void Watch(TDropDownList& label, TRFRowPart part);
  void TellIsHidden();

  TResultFieldRows& FList;
  TResultField* FRField = nullptr;
  TRFRowTexts FTexts;
  TRFRowPlaces FPlaces;
  bool FVisible = false, FIsHidden = false;
  // The labels go before the button.
  std::unique_ptr<TRFRowButton> FButton;
  std::unique_ptr<TDropDownPopup> FSortLabel;
  std::unique_ptr<TDropDownList> FFieldLabel;
  std::unique_ptr<QLabel> FTextLabel2, FTextLabel1;
};

/// The rows of the panel, owned, in the order of its columns.
class TOLVI_WIDGETS_API TResultFieldRows final {
 public:
  explicit TResultFieldRows(TJResultFieldsPanel& panel) : FPanel(panel) {}

  TJResultFieldsPanel& GetPanel() const { return FPanel; }
  std::size_t Count() const { return FItems.Count(); }
  bool Empty() const { return FItems.Empty(); }
  TResultFieldRow& operator[](std::size_t index) const { return FItems[index]; }
  std::ptrdiff_t IndexOf(const TResultFieldRow* row) const { return FItems.IndexOf(row); }
  auto begin() const { return FItems.begin(); }
  auto end() const { return FItems.end(); }

  TResultFieldRow& Add(std::unique_ptr<TResultFieldRow> row) { return FItems.Add(std::move(row)); }
  /// A new row at the end for a column of the panel, placed and shown.
  TResultFieldRow& AddRow(TResultField& field);
  void Delete(std::size_t index) { FItems.Delete(index).reset(); }
  void Move(std::size_t from, std::size_t to) { FItems.Move(from, to); }
  void Clear() { FItems.Clear(); }

  /// Setting another value shows or hides every row. Default false; rows that are added later are shown all the same.
  bool GetVisible() const { return FVisible; }
  void SetVisible(bool visible);

 private:
  TJResultFieldsPanel& FPanel;
  TJObjectList<TResultFieldRow> FItems;
  bool FVisible = false;
};

}  // namespace tolvi
