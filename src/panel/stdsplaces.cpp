#include <algorithm>
#include <vector>

#include <tolvi/model/dbstruc.h>
#include <tolvi/panel/stdsplaces.h>

namespace tolvi {
namespace {

/// In pixels: rows of new boxes are at least as long.
constexpr int RowWidth = 1000;

}  // namespace

bool HasStoredPlace(const TDSTable& table) {
  const TDesignPositions& place = table.GetDesignPositions();
  return place.Width >= 1 && place.Height > 0;
}

TDesignRect StoredPlace(const TDSTable& table) {
  const TDesignPositions& place = table.GetDesignPositions();
  return {place.Left, place.Top, place.Width, place.Height};
}

void StorePlace(TDSTable& table, const TDesignRect& place) {
  table.SetDesignPositions({place.Left, place.Top, place.Width, place.Height});
}

void PlaceNewTables(TJCustomDBStructure& model, const TArrangeSettings& settings) {
  std::vector<TDSTable*> added;
  int right = 0, bottom = 0;
  for (TDSTable& table : model.Tables()) {
    if (!HasStoredPlace(table)) {
      added.push_back(&table);
      continue;
    }
    const TDesignRect place = StoredPlace(table);
    right = std::max(right, place.Left + place.Width);
    bottom = std::max(bottom, place.Top + place.Height);
  }
  if (added.empty() || added.size() == model.GetTableCount()) return;
  TArrangeSettings below = settings;
  below.YStart = bottom + settings.YMargin;
  const std::vector<TDesignSize> sizes(added.size(), NewBoxSize);
  const std::vector<TDesignPoint> places = ArrangeTables(sizes, std::max(right + settings.XMargin, RowWidth), below);
  model.AsOneChange([&] {
    for (std::size_t i = 0; i < added.size(); ++i) {
      StorePlace(*added[i], {places[i].X, places[i].Y, NewBoxSize.Width, NewBoxSize.Height});
    }
  });
}

}  // namespace tolvi
