#include <algorithm>
#include <utility>

#include <tolvi/foundation/errors.h>
#include <tolvi/model/dbstruc.h>
#include <tolvi/model/pathfinder.h>

namespace tolvi {

TDSTable& TDSPath::GetTable(std::size_t index) const {
  if (index >= FTables.size()) throw EListError::OutOfBounds(static_cast<std::int64_t>(index));
  return *FTables[index];
}

void TDSPath::DelTable(std::size_t index) {
  GetTable(index);
  FTables.erase(FTables.begin() + static_cast<std::ptrdiff_t>(index));
}

bool TPathFinder::Find(const TJCustomDBStructure& model, std::uint64_t revision, const TDSTable& from,
                       const TDSTable& to, TDSPath& path) {
  if (FRevision != revision) {
    Build(model);
    FRevision = revision;
  }
  path.Clear();
  const std::uint32_t start = from.FPathNumber;
  const std::uint32_t target = to.FPathNumber;
  if (start == target) return FindCycle(start, path);
  if (!Search(start, target)) return false;
  for (std::uint32_t at = target; at != start; at = FPrevious[at]) path.FTables.push_back(FTables[at]);
  path.FTables.push_back(FTables[start]);
  std::reverse(path.FTables.begin(), path.FTables.end());
  return true;
}

void TPathFinder::Build(const TJCustomDBStructure& model) {
  FTables.clear();
  FStarts.clear();
  FNeighbours.clear();
  for (TDSTable& table : model.Tables()) {
    table.FPathNumber = static_cast<std::uint32_t>(FTables.size());
    FTables.push_back(&table);
  }
  // Of several links between the same tables, the first decides.
  FStamps.assign(FTables.size(), 0);
  for (const TDSTable* table : FTables) {
    FStarts.push_back(static_cast<std::uint32_t>(FNeighbours.size()));
    const auto stamp = static_cast<std::uint32_t>(FStarts.size());
    for (const TDSLink* link : table->Links()) {
      const std::uint32_t other = link->OtherTable(*table)->FPathNumber;
      if (std::exchange(FStamps[other], stamp) != stamp) FNeighbours.push_back(other);
    }
  }
  FStarts.push_back(static_cast<std::uint32_t>(FNeighbours.size()));
  std::fill(FStamps.begin(), FStamps.end(), 0u);
  FPrevious.resize(FTables.size());
  FQueue.resize(FTables.size());
  FStamp = 0;
}

// The shortest way from a table back to itself: over a link with itself, else over its first link and back.
bool TPathFinder::FindCycle(std::uint32_t table, TDSPath& path) const {
  const auto first = FNeighbours.begin() + FStarts[table];
  const auto last = FNeighbours.begin() + FStarts[table + 1];
  if (first == last) return false;
  path.FTables = {FTables[table], FTables[table]};
  if (std::find(first, last, table) == last) path.FTables.insert(path.FTables.begin() + 1, FTables[*first]);
  return true;
}

// Leaves the way in FPrevious. The first table that reaches another one in breadth-first order is its predecessor,
// so that among the shortest chains the first in link order wins.
bool TPathFinder::Search(std::uint32_t from, std::uint32_t to) {
  if (++FStamp == 0) {
    std::fill(FStamps.begin(), FStamps.end(), 0u);
    FStamp = 1;
  }
  std::size_t head = 0, tail = 0;
  FQueue[tail++] = from;
  FStamps[from] = FStamp;
  while (head < tail) {
    const std::uint32_t at = FQueue[head++];
    for (std::uint32_t i = FStarts[at]; i < FStarts[at + 1]; ++i) {
      const std::uint32_t next = FNeighbours[i];
      if (FStamps[next] == FStamp) continue;
      FPrevious[next] = at;
      if (next == to) return true;
      FStamps[next] = FStamp;
      FQueue[tail++] = next;
    }
  }
  return false;
}

}  // namespace tolvi
