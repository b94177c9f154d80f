#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace tolvi {

class TDSTable;
class TJCustomDBStructure;

/// A chain of linked tables, first to last. Refers to tables that the model owns.
class TDSPath final {
 public:
  explicit TDSPath(const TJCustomDBStructure* dbStruct = nullptr) : FDBStruct(dbStruct) {}

  const TJCustomDBStructure* GetDBStruct() const { return FDBStruct; }
  std::size_t GetTableCount() const { return FTables.size(); }
  bool Empty() const { return FTables.empty(); }
  /// An index outside the chain raises `EListError`; so do the end points of an empty chain.
  TDSTable& GetTable(std::size_t index) const;
  TDSTable& GetStartPoint() const { return GetTable(0); }
  TDSTable& GetEndPoint() const { return GetTable(FTables.size() - 1); }
  void AddTable(TDSTable& table) { FTables.push_back(&table); }
  void DelTable(std::size_t index);
  void Clear() { FTables.clear(); }
  void Assign(const TDSPath& path) { FTables = path.FTables; }

  auto begin() const { return FTables.begin(); }
  auto end() const { return FTables.end(); }

 private:
  friend class TPathFinder;
  const TJCustomDBStructure* FDBStruct;
  std::vector<TDSTable*> FTables;
};

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
