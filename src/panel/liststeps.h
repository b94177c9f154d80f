#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

namespace tolvi {

/// Moves the entries of these indexes one place up (`step` -1) or down (1) in a list of `count` entries: by
/// `move(from, to)`, one after the other. Entries at the end of the list stay, those beside them, too, so their order
/// stays. Returns where they are then, ascending.
template <typename TMove>
std::vector<std::size_t> StepEntries(std::vector<std::size_t> indexes, std::size_t count, int step, TMove move) {
  std::sort(indexes.begin(), indexes.end());
  if (step > 0) std::reverse(indexes.begin(), indexes.end());
  // The place that the next one may not reach.
  std::size_t barred = step < 0 ? 0 : count - 1;
  bool isBarred = true;
  for (std::size_t& index : indexes) {
    if (isBarred && index == barred) {
      barred = step < 0 ? index + 1 : index - 1;
      continue;
    }
    isBarred = false;
    const std::size_t to = step < 0 ? index - 1 : index + 1;
    move(index, to);
    index = to;
  }
  if (step > 0) std::reverse(indexes.begin(), indexes.end());
  return indexes;
}

}  // namespace tolvi
