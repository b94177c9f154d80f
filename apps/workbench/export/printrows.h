#pragma once

#include <QString>
#include <cstdint>
#include <memory>
#include <vector>

#include "apps/workbench/results/resultrows.h"

class QPrinter;
class QWidget;

namespace tolvi {

/// Shows rows as they will be printed, as a table on pages, and prints them. More than `PrintedRowsUnasked` rows are
/// printed only if the user says so; otherwise the first ones. The rows must be complete.
void PrintRows(QWidget* parent, std::shared_ptr<const TResultRows> rows, std::vector<std::uint32_t> order,
               const QString& title);

constexpr std::size_t PrintedRowsUnasked = 5000;

/// Paints the first `count` rows on pages of the printer: the head of the columns on each page, below the title, the
/// date and the number of the page. Columns are as wide as what they hold, long texts are cut with "…"; those that
/// do not fit on a page side by side go to further pages. How many pages it were.
int PaintRows(QPrinter& printer, const TSortedRows& rows, std::size_t count, const QString& title);

}  // namespace tolvi
