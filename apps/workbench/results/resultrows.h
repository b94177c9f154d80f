#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include <tolvi/connect/sqlvalue.h>
#include <tolvi/foundation/fieldtypes.h>

namespace tolvi {

/// One value of a row, as in `TSqlValue`; the text belongs to the rows.
struct TCellView {
  TSqlValueKind Kind = svNull;
  std::string_view Text;
};

/// Some rows as they come from the database: all texts in one buffer, so that a million rows are a few thousand
/// allocations.
class TRowBlock final {
 public:
  explicit TRowBlock(std::size_t columnCount) : FColumnCount(columnCount) {}

  /// Appends a cell; a row is complete when all its cells are there.
  void Add(TSqlValueKind kind, std::string_view text);

  std::size_t GetRowCount() const { return FColumnCount == 0 ? 0 : FKinds.size() / FColumnCount; }
  /// Bytes of text.
  std::size_t GetSize() const { return FText.size(); }
  TCellView Cell(std::size_t row, std::size_t column) const;

 private:
  std::size_t FColumnCount;
  std::string FText;
  std::vector<std::uint64_t> FEnds;
  std::vector<TSqlValueKind> FKinds;
};

/// What a query knows of a column of its statement.
struct TKnownColumn {
  /// Without it, a database that has no type for booleans, dates and times shows them as numbers and texts.
  TFieldType Type = ftUnknown;
  /// What people call it; the name in the statement is shown where there is none.
  std::string Caption = {};
  /// Whether it tells which row is meant, and counts nothing.
  bool IsKey = false;
};
using TKnownColumns = std::vector<TKnownColumn>;

/// How much of a result its rows are.
enum TExtent : std::uint8_t {
  exWhole,
  /// There may be more, which a run reads.
  exBeginning,
  /// There are more than a run reads.
  exMost,
};

/// The rows of a result, as many as have come.
class TResultRows final {
 public:
  /// What is known counts when it is as many columns.
  explicit TResultRows(std::vector<std::string> columns, TKnownColumns known = {});

  /// What people call them.
  const std::vector<std::string>& Columns() const { return FColumns; }
  const TKnownColumn& Known(std::size_t column) const { return FKnown[column]; }
  std::size_t GetRowCount() const { return FRowCount; }
  TCellView Cell(std::size_t row, std::size_t column) const;
  void Append(TRowBlock block);

 private:
  std::vector<std::string> FColumns;
  TKnownColumns FKnown;
  std::vector<TRowBlock> FBlocks;
  // The number of the first row of each block.
  std::vector<std::size_t> FFirstRows;
  std::size_t FRowCount = 0;
};

/// Rows in the order in which a user has sorted them. Refers to both, which must outlive it.
struct TSortedRows {
  const TResultRows& Rows;
  /// Numbers of rows; empty: as they came.
  const std::vector<std::uint32_t>& Order;

  std::size_t GetRowCount() const { return Rows.GetRowCount(); }
  TCellView Cell(std::size_t row, std::size_t column) const {
    return Rows.Cell(Order.empty() ? row : Order[row], column);
  }
};

}  // namespace tolvi
