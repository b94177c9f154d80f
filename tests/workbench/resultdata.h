// Results without a database.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "apps/workbench/results/resultrows.h"

namespace tolvi {

struct TTestCell {
  TSqlValueKind kind;
  std::string text;
};

inline std::shared_ptr<TResultRows> ResultOf(const std::vector<std::string>& columns,
                                             const std::vector<std::vector<TTestCell>>& rows) {
  auto result = std::make_shared<TResultRows>(columns);
  TRowBlock block(columns.size());
  for (const auto& row : rows) {
    for (const TTestCell& cell : row) block.Add(cell.kind, cell.text);
  }
  if (!rows.empty()) result->Append(std::move(block));
  return result;
}

/// Rows "Name 0", 0; "Name 1", 1; ...
inline std::shared_ptr<TResultRows> CountedResult(std::size_t count) {
  auto result = std::make_shared<TResultRows>(std::vector<std::string>{"Name", "Number"});
  TRowBlock block(2);
  for (std::size_t i = 0; i < count; ++i) {
    block.Add(svText, "Name " + std::to_string(i));
    block.Add(svNumber, std::to_string(i));
  }
  if (count > 0) result->Append(std::move(block));
  return result;
}

}  // namespace tolvi
