#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <string_view>

#include <tolvi/foundation/files.h>
#include <tolvi/foundation/strings.h>
#include <tolvi/foundation/text.h>

namespace tolvi {

/// The hand-written statement for a sample query and what its head says: "-- param NAME=VALUE", "-- unordered",
/// "-- sql2 only".
struct TReference {
  explicit TReference(const std::string& name) {
    SQL = ReadFile(std::filesystem::path(TOLVI_SOURCE_DIR) / "tests/samples/reference" / (name + ".sql"));
    for (const std::string_view line : SplitLines(SQL)) {
      if (line == "-- unordered") Unordered = true;
      if (line == "-- sql2 only") JoinStyleOnly = true;
      if (!line.starts_with("-- param ")) continue;
      const auto [param, value] = GetNameAndValueSep(line.substr(9), "=");
      Params[std::string(param)] = value;
    }
  }
  std::string SQL;
  bool Unordered = false, JoinStyleOnly = false;
  std::map<std::string, std::string> Params;
};

}  // namespace tolvi
