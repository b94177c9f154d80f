#pragma once

#include <cstddef>
#include <vector>

#include <tolvi/foundation/api.h>

namespace tolvi {

class TDSTable;
class TJCustomDBStructure;

/// A chain of linked tables, first to last. Refers to tables that the model owns.
class TOLVI_CORE_API TDSPath final {
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

}  // namespace tolvi
