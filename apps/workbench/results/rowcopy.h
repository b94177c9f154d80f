// Selected cells as texts for the clipboard.
#pragma once

#include <QItemSelection>
#include <QString>
#include <chrono>
#include <cstdint>
#include <memory>
#include <vector>

#include "apps/workbench/results/celltext.h"
#include "apps/workbench/results/resultrows.h"

namespace tolvi {

/// Writes a selection piece by piece, so that a large one keeps nobody waiting: lines with tabs, where a value that
/// holds tabs, breaks or quotes stands in quotes as spreadsheets want it, and a small one as an HTML table also.
/// Rows and columns in which nothing is selected are left out; other cells outside the selection are empty.
class TRowCopy final {
 public:
  using TOrder = std::shared_ptr<const std::vector<std::uint32_t>>;

  /// `columns`: those that can be seen, in their order. Rows may be added meanwhile, in the thread of `Write`.
  TRowCopy(std::shared_ptr<const TResultRows> rows, TOrder order, const QItemSelection& selection,
           const std::vector<int>& columns, bool hasHeaders, TCellText texts);

  std::uint64_t GetCellCount() const { return FRowCount * FColumns.size(); }
  std::uint64_t GetRowCount() const { return FRowCount; }
  std::uint64_t GetRowsWritten() const { return FRowsWritten; }
  /// Writes on for that long; whether all is written.
  bool Write(std::chrono::milliseconds time);

  const QString& GetText() const { return FText; }
  /// Empty for a large selection.
  QString GetHtml() const;

 private:
  /// Rows that follow each other with the same cells selected.
  struct TSpan {
    int First = 0, Last = 0;
    std::vector<bool> IsSelected;
  };

  void MakeSpans(const QItemSelection& selection, const std::vector<int>& columns);
  void WriteHeaders();
  void WriteRow(const TSpan& span, int row);
  void Cell(const QString& text, bool isFirst, bool isNumber, const char* tag);

  std::shared_ptr<const TResultRows> FRows;
  TOrder FOrder;
  TCellText FTexts;
  std::vector<int> FColumns;
  std::vector<TSpan> FSpans;
  std::size_t FSpan = 0;
  int FRow = 0;
  std::uint64_t FRowCount = 0, FRowsWritten = 0;
  bool FHasHeaders, FHasHtml = false;
  QString FText, FHtml;
};

}  // namespace tolvi
