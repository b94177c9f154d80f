#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>

#include <tolvi/foundation/text.h>

namespace tolvi {

/// An index from a key to the first item of a list that has it. Items appended to the list are taken in at the next
/// look-up; when the list's revision differs, the index is built anew.
template <typename TKey, typename TItem, typename THash = std::hash<TKey>, typename TEqual = std::equal_to<TKey>>
class TFirstIndex {
 public:
  /// The first item with `key`, null when there is none. `keyOf(item)` gives an item's key.
  template <typename TList, typename TLookup, typename TKeyOf>
  TItem* Find(const TList& list, std::uint64_t revision, const TLookup& key, TKeyOf keyOf) const {
    if (FRevision != revision || FIndexed > list.Count()) {
      FItems.clear();
      FIndexed = 0;
      FRevision = revision;
    }
    if (FIndexed == 0) FItems.reserve(list.Count());
    for (; FIndexed < list.Count(); ++FIndexed) {
      TItem& item = list[FIndexed];
      FItems.try_emplace(keyOf(item), &item);
    }
    const auto found = FItems.find(key);
    return found == FItems.end() ? nullptr : found->second;
  }

 private:
  mutable std::unordered_map<TKey, TItem*, THash, TEqual> FItems;
  mutable std::size_t FIndexed = 0;
  mutable std::uint64_t FRevision = 0;
};

/// The same for names, ignoring case.
template <typename TItem>
using TNameIndex = TFirstIndex<std::string, TItem, TFoldedHash, TFoldedEqual>;

}  // namespace tolvi
