// Where the structure designer's boxes stand according to the model.
#pragma once

#include <tolvi/foundation/api.h>
#include <tolvi/panel/stdsgeometry.h>

namespace tolvi {

class TDSTable;
class TJCustomDBStructure;

/// The size of a new box.
inline constexpr TDesignSize NewBoxSize{110, 160};

/// Whether the model holds a place for the table: a width of at least 1 and a height above 0.
TOLVI_CORE_API bool HasStoredPlace(const TDSTable& table);
TOLVI_CORE_API TDesignRect StoredPlace(const TDSTable& table);
TOLVI_CORE_API void StorePlace(TDSTable& table, const TDesignRect& place);

/// Gives tables without a stored place one below those that have one, in rows. Does nothing when none has one: the
/// designer then arranges all. For whoever adds tables to a model that has been arranged.
TOLVI_CORE_API void PlaceNewTables(TJCustomDBStructure& model, const TArrangeSettings& settings = {});

}  // namespace tolvi
