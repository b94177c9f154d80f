// How a value is entered, as one plain value: what an editor of fields and of predefined conditions shows and changes.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include <tolvi/foundation/api.h>
#include <tolvi/foundation/fieldtypes.h>
#include <tolvi/foundation/strings.h>
#include <tolvi/model/valueeditors.h>

namespace tolvi {

class TDSField;
class TDSValue;
class TJCustomDBStructure;

/// The ways to enter a value. All but the last can be stored with a field; a sub-query can be that of a value only.
enum TEntryWay : std::uint8_t { ewAuto, ewText, ewList, ewCustom, ewSQL, ewSubQuery };
inline constexpr int EntryWayCount = ewSubQuery + 1;

enum TLetterCase : std::uint8_t { lcAny, lcUpper, lcLower };

/// An item of a fixed list: the text shown, and the value used in SQL.
struct TEntryItem {
  std::string Text, Value;
  bool operator==(const TEntryItem&) const = default;
};

/// The way that is chosen, and the settings of all ways: choosing another one and coming back loses nothing.
struct TValueEntry {
  TEntryWay Way = ewAuto;
  // ewText
  std::string DefaultValue, EditMask;
  TTextEditorKind Kind = tekSimple;
  TLetterCase LetterCase = lcAny;
  TFieldType ValueType = ftUnknown;
  bool UseFormattedValue = false;
  // ewList
  std::vector<TEntryItem> Items;
  // ewCustom, ewSQL, ewSubQuery
  TStrings Data, SQL, SQLParams, QueryData;
  bool operator==(const TValueEntry&) const = default;
};

/// Puts the way that is stored, and its settings, into `entry`; the settings of the other ways there stay.
TOLVI_CORE_API void ReadEntry(const TDSField& field, TValueEntry& entry);
TOLVI_CORE_API void ReadEntry(const TDSValue& value, TValueEntry& entry);

/// Stores the way with its settings and tells the model. `ewSubQuery` raises `EJDBStructError` for a field. The model
/// is that of the condition that has the value.
TOLVI_CORE_API void WriteEntry(TDSField& field, const TValueEntry& entry);
TOLVI_CORE_API void WriteEntry(TDSValue& value, TJCustomDBStructure& model, const TValueEntry& entry);

/// What is typed or pasted, a row a line and text and value divided by a tab; a row of one cell is its own value. Empty
/// lines do not count.
TOLVI_CORE_API std::vector<TEntryItem> ItemsFromTable(std::string_view text);

/// What the query of `entry` gives: the first `limit` rows, and how many there are. Raises what asking the database
/// raises, `EJDBStructError` 11 without database information; the model stays as it is.
struct TQueriedItems {
  std::vector<TEntryItem> Items;
  std::size_t Count = 0;
};
TOLVI_CORE_API TQueriedItems RunEntry(TJCustomDBStructure& model, const TValueEntry& entry, std::size_t limit);

}  // namespace tolvi
