#pragma once

#include <cstdint>
#include <vector>

#include <tolvi/model/path.h>

namespace tolvi {

/// Breadth-first search over the links of a model. Numbers the tables and keeps their neighbours in index arrays,
/// which are built anew when the model's links have changed.
class TPathFinder final {
 public:
  /// Fills `path` with the chain and returns true, or returns false. Time linear in tables and links.
  bool Find(const TJCustomDBStructure& model, std::uint64_t revision, const TDSTable& from, const TDSTable& to,
            TDSPath& path);

 private:
  void Build(const TJCustomDBStructure& model);
  bool FindCycle(std::uint32_t table, TDSPath& path) const;
  bool Search(std::uint32_t from, std::uint32_t to);

  std::uint64_t FRevision = 0;
  std::vector<TDSTable*> FTables;
  // Neighbours of table n, in link order: FNeighbours[FStarts[n]] to FNeighbours[FStarts[n + 1] - 1].
  std::vector<std::uint32_t> FStarts, FNeighbours;
  // A table is visited in this search when its stamp equals FStamp.
  std::vector<std::uint32_t> FStamps, FPrevious, FQueue;
  std::uint32_t FStamp = 0;
};

}  // namespace tolvi
