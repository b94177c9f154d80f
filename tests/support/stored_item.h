#pragma once

#include <map>
#include <string>
#include <string_view>

#include <tolvi/foundation/strings.h>
#include <tolvi/schema/qrybase.h>

namespace tolvi {

/// An item of a query base that keeps its text in a map.
class TStoredItem final : public TJQueryItem {
 public:
  TStoredItem(std::map<std::string, TStrings>& store, std::string_view name) : TJQueryItem(name), FStore(store) {}
  void LoadContent(TStrings& strings) override { strings = FStore[GetQueryName()]; }
  void SaveContent(const TStrings& strings) override { FStore[GetQueryName()] = strings; }

 private:
  std::map<std::string, TStrings>& FStore;
};

}  // namespace tolvi
