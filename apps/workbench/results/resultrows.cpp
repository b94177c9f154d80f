#include "apps/workbench/results/resultrows.h"

#include <algorithm>
#include <utility>

namespace tolvi {

void TRowBlock::Add(TSqlValueKind kind, std::string_view text) {
  FText += text;
  FEnds.push_back(FText.size());
  FKinds.push_back(kind);
}

TCellView TRowBlock::Cell(std::size_t row, std::size_t column) const {
  const std::size_t index = row * FColumnCount + column;
  const std::uint64_t begin = index == 0 ? 0 : FEnds[index - 1];
  return {FKinds[index], std::string_view(FText).substr(begin, FEnds[index] - begin)};
}

TResultRows::TResultRows(std::vector<std::string> columns, TKnownColumns known)
    : FColumns(std::move(columns)), FKnown(std::move(known)) {
  if (FKnown.size() != FColumns.size()) FKnown.assign(FColumns.size(), {});
  for (std::size_t i = 0; i < FColumns.size(); ++i) {
    if (!FKnown[i].Caption.empty()) FColumns[i] = FKnown[i].Caption;
  }
}

TCellView TResultRows::Cell(std::size_t row, std::size_t column) const {
  const auto next = std::upper_bound(FFirstRows.begin(), FFirstRows.end(), row);
  const auto block = static_cast<std::size_t>(next - FFirstRows.begin()) - 1;
  return FBlocks[block].Cell(row - FFirstRows[block], column);
}

void TResultRows::Append(TRowBlock block) {
  if (block.GetRowCount() == 0) return;
  FFirstRows.push_back(FRowCount);
  FRowCount += block.GetRowCount();
  FBlocks.push_back(std::move(block));
}

}  // namespace tolvi
