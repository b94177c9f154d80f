#pragma once

#include <QString>
#include <QStringList>
#include <cstddef>
#include <vector>

#include "apps/workbench/results/resultrows.h"

namespace tolvi {

/// What a chart draws of two columns of a result.
struct TChartData {
  /// One for each value.
  QStringList Labels;
  std::vector<double> Values;
  /// Rows whose y is NULL or no number, and those behind the last that is drawn.
  std::size_t WithoutNumber = 0, LeftOut = 0;
  /// How many rows a point stands for at most: 1, unless points are averages of neighbours.
  std::size_t RowsPerPoint = 1;
  /// What was left out or put together, as sentences; empty if everything is shown.
  QString Told;
};

enum TChartKind : std::uint8_t { chBar, chLine };

/// How many points each kind shows at most. Of more rows, bars show the first ones, a line the averages of equally many
/// neighbours.
constexpr std::size_t MaxBars = 60, MaxLinePoints = 500;

TChartData MakeChartData(const TSortedRows& rows, std::size_t x, std::size_t y, TChartKind kind);

/// The columns to begin with: the first that holds texts, dates or times; the last that holds numbers, if there is one
/// neither the x nor a key, known as one or called like one ("Customer no", "OrderID"). By the first rows that are not
/// NULL. -1 for none.
struct TChartColumns {
  int X = -1, Y = -1;
};
TChartColumns SuggestedColumns(const TResultRows& rows);

/// The numbers of the columns that hold numbers.
std::vector<std::size_t> NumberColumns(const TResultRows& rows);

}  // namespace tolvi
