#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include <tolvi/foundation/api.h>

namespace tolvi {

class TFilterRow;
class TJQueryPanel;

/// Names a row through undo and redo, which make its object anew. The root's key is 0.
using TRowKey = std::uint32_t;
inline constexpr TRowKey RootKey = 0, NoRowKey = 0xFFFFFFFF;

/// A query as text in pieces that do not change with the place of a row: inserting or moving one changes little.
struct TQueryState {
  struct TPlace {
    TRowKey Key;
    std::uint32_t Level;
    bool operator==(const TPlace&) const = default;
  };

  /// What stands before the rows.
  std::string Head;
  /// The rows in display order, the root first.
  std::vector<TPlace> Places;
  /// The section of each row, without its header.
  std::unordered_map<TRowKey, std::string> Rows;
};

/// The panel's query with the SQL options, without the titles. `keyOf` gives the key of each row, in display order.
TOLVI_CORE_API TQueryState TakeQueryState(TJQueryPanel& panel, const std::function<TRowKey(TFilterRow&)>& keyOf);
/// The query text.
TOLVI_CORE_API std::string QueryStateText(const TQueryState& state);
/// Calls for each row in display order, the root first.
TOLVI_CORE_API void ForEachRow(TFilterRow& row, const std::function<void(TFilterRow&)>& call);

/// The part of a text between what two states of it have in common at their beginnings and ends.
struct TOLVI_CORE_API TTextChange {
  std::size_t Start = 0;
  std::string Before, After;

  static TTextChange Between(std::string_view before, std::string_view after);
  bool Empty() const { return Before.empty() && After.empty(); }
  void Apply(std::string& text, bool forward) const;
};

/// The way from one state of a query to the next, and back.
struct TOLVI_CORE_API TQueryStep {
  struct TRowChange {
    TRowKey Key;
    TTextChange Text;
  };

  TTextChange Head;
  /// The changed middle of the places.
  std::size_t Start = 0;
  std::vector<TQueryState::TPlace> PlacesBefore, PlacesAfter;
  std::vector<TRowChange> Rows;
  TRowKey CurrentBefore = NoRowKey, CurrentAfter = NoRowKey;
  bool ActiveBefore = false, ActiveAfter = false;

  /// Nothing when the states are the same.
  static std::optional<TQueryStep> Between(const TQueryState& before, const TQueryState& after);
  void Apply(TQueryState& state, bool forward) const;
};

}  // namespace tolvi
