// The result fields panel without its widgets: what its rows show and where, what a choice does to the columns.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <tolvi/foundation/api.h>
#include <tolvi/foundation/strings.h>

namespace tolvi {

class TDSField;
class TDSFieldGroup;
class TJCustomDBStructure;
class TResultField;
class TRFieldList;

/// The texts of the panel in English, lines "key=text".
TOLVI_CORE_API const TStrings& DefaultRFPanelTitles();
/// Where they stand in a file of several panels' titles.
inline constexpr std::string_view RFPanelTitlesHeader = "[Result Fields Panel]";
/// Makes `titles` the default texts, replaced by those that `given` has under that header or before any header
/// (`LoadTitlesFromStrings`). The lists may be the same ones.
TOLVI_CORE_API void LoadRFPanelTitles(TStrings& titles, const TStrings& given);

// What rows show

/// An item of a drop-down label: the section it is in, what it stands for, and its text.
struct TRFItem {
  std::string Group, Value, Text;
  bool operator==(const TRFItem&) const = default;
};

/// The groups of a model in the order in which lists show them: the one without a name first or last, as the model
/// says.
TOLVI_CORE_API std::vector<const TDSFieldGroup*> GroupsInOrder(const TJCustomDBStructure& model);
/// The fields that a column may show, by groups in that order. The values are the fields' IDs.
TOLVI_CORE_API std::vector<TRFItem> ResultFieldItems(const TJCustomDBStructure& model);
/// The first of them, as a field; null when there is none.
TOLVI_CORE_API TDSField* GetFirstResultField(const TJCustomDBStructure& model);
/// The ways to sort; the values are the ordinals of `TSortingType`.
TOLVI_CORE_API std::vector<TRFItem> SortingItems(const TStrings& titles);

/// The texts of a row from left to right. What is empty is not shown.
struct TRFRowTexts {
  std::string Number, Before;
  /// The ID and the caption of the column's first field; none for a column without fields.
  std::optional<std::string> FieldValue;
  std::string FieldCaption, After;
  /// The whole formula with the captions of its fields, for a tip: the line shows no more than the first field. None
  /// for a column of fewer than two fields.
  std::string Tip;
};

/// How captions of fields are written: with the name of the field's group and this separator, or without.
struct TRFCaptionStyle {
  bool ShowGroupName = false;
  std::string NameSeparator = ".";
};

/// The texts for the column in that row (counted from 0). `upperCase` is applied to what stands round the field.
TOLVI_CORE_API TRFRowTexts ResultRowTexts(const TResultField& field, std::size_t rowIndex, const TRFCaptionStyle& style,
                                          const std::function<std::string(std::string_view)>& upperCase);
/// The row as people read it out: "2: SUM( Total ), Ascending"; a formula of several fields with all of their captions.
TOLVI_CORE_API std::string ResultRowPhrase(const TRFRowTexts& texts, std::string_view sorting);

// Where it stands, in pixels

struct TRFPoint {
  int X = 0, Y = 0;
  bool operator==(const TRFPoint&) const = default;
};

struct TRFBox {
  int Left = 0, Top = 0, Width = 0, Height = 0;
  bool operator==(const TRFBox&) const = default;
};

/// Space left free: before all rows, above the first, between rows, between the elements of a row.
struct TRFSpaces {
  int LeftMargin = 5, TopMargin = 5, RowSpace = 3, ElemSpace = 5;
};

/// What a toolkit has measured: the height of the text "1", the widths of the button and of each label that the row
/// has.
struct TRFRowSizes {
  int TextHeight = 0, Button = 0;
  std::optional<int> Before, Field, After;
};

struct TRFRowPlaces {
  TRFBox Button;
  std::optional<TRFPoint> Before, Field, After;
  TRFPoint Sorting;
  bool operator==(const TRFRowPlaces&) const = default;
};

/// The places of a row (counted from 0) in a window scrolled by `scrolled`.
TOLVI_CORE_API TRFRowPlaces PlaceResultRow(std::size_t rowIndex, const TRFRowSizes& sizes, const TRFSpaces& spaces,
                                           TRFPoint scrolled = {});
/// The label that appends a row: its place below the button of the last row, if there is one, and its text.
TOLVI_CORE_API TRFPoint PlaceAddRowLabel(const std::optional<TRFBox>& lastButton, const TRFSpaces& spaces);
TOLVI_CORE_API std::string AddRowText(const TStrings& titles);

// The menu of a row

enum TRFMenuTag : std::uint8_t { mtSeparator = 0, mtDelete = 2, mtMoveUp = 3, mtMoveDown = 4 };

struct TRFMenuItem {
  std::string Caption;
  TRFMenuTag Tag = mtSeparator;
  bool operator==(const TRFMenuItem&) const = default;
};

TOLVI_CORE_API std::vector<TRFMenuItem> ResultRowMenu(const TStrings& titles);
/// Whether the item can be chosen for that row.
TOLVI_CORE_API bool IsRowMenuItemEnabled(TRFMenuTag tag, std::size_t rowIndex, std::size_t rowCount);
/// Where the item moves that row; none for an item that moves nothing, or when it stands there already.
TOLVI_CORE_API std::optional<std::size_t> MovedRowIndex(TRFMenuTag tag, std::size_t rowIndex, std::size_t rowCount);

// Changes of the columns

/// A new column at the end, of the model's first field that columns may use; unsorted. Raises `ERFPanelError`
/// "DBStructure is not specified", or "Structure is empty" when the model has nothing to choose from.
TOLVI_CORE_API TResultField& AppendResultField(TRFieldList& fields, const TJCustomDBStructure* model);
/// Takes over what the labels of a row hold: the field whose ID is `fieldValue` becomes the column's first field, and
/// its display name the caption of a column that is that field alone; an ID that the model lacks leaves both as they
/// are. `sorting` goes to the column at the row's place in the list. Sort orders stay.
TOLVI_CORE_API void RefreshResultField(TRFieldList& fields, std::size_t rowIndex, TResultField& field,
                                       const std::optional<std::string>& fieldValue, int sorting);
/// Moves a column; the sorted ones then sort in column order.
TOLVI_CORE_API void MoveResultField(TRFieldList& fields, std::size_t from, std::size_t to);
/// Gives the sorted columns the sort orders 1, 2, 3, ...; the others keep theirs.
TOLVI_CORE_API void RenumberSortOrders(const TRFieldList& fields);

}  // namespace tolvi
