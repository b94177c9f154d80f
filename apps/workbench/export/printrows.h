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
/// printed only if the user says so; otherwise the first ones. Nobody may add to the rows meanwhile.
void PrintRows(QWidget* parent, std::shared_ptr<const TResultRows> rows, std::vector<std::uint32_t> order,
               const QString& title, TExtent extent = exWhole);

/// The title of pages with so many of the rows: it says when these are not all.
QString PrintedTitle(const QString& title, std::size_t printed, std::size_t rows, TExtent extent);

constexpr std::size_t PrintedRowsUnasked = 5000;

/// Paints the first `count` rows on pages of the printer: the head of the columns on each page, below the title, the
/// date and the number of the page. Columns are as wide as what they hold, long texts are cut with "…"; those that
/// do not fit on a page side by side go to further pages. How many pages it were.
int PaintRows(QPrinter& printer, const TSortedRows& rows, std::size_t count, const QString& title);

}  // namespace tolvi
