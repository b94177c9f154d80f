// An arrangement of tables that shows how they are linked.
#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include <tolvi/foundation/api.h>
#include <tolvi/panel/stdsgeometry.h>

namespace tolvi {

/// Two boxes, by their indexes, that a line joins.
struct TBoxLink {
  std::size_t One = 0, Other = 0;
};

/// Places boxes so that linked ones are near each other and few lines cross: in columns, from left to right, each box
/// beside those that it is linked with; groups without a link between them one after the other, in rows; boxes without
/// any link last. No boxes overlap; between any two there are at least the gaps of the settings. The same boxes and
/// links give the same places.
///
/// Links of a box with itself and those to boxes that do not exist count as none.
TOLVI_CORE_API std::vector<TDesignPoint> LayOutTables(std::span<const TDesignSize> boxes,
                                                      std::span<const TBoxLink> links,
                                                      const TArrangeSettings& settings = {});

}  // namespace tolvi
