#include "apps/workbench/export/chartdata.h"

#include <QCoreApplication>
#include <QLocale>
#include <algorithm>
#include <charconv>
#include <cmath>
#include <optional>

#include "apps/workbench/results/celltext.h"

namespace tolvi {
namespace {

struct TTexts {
  Q_DECLARE_TR_FUNCTIONS(tolvi::TChartData)
};

/// How many rows tell what a column holds.
constexpr std::size_t SampledRows = 200;

std::optional<double> NumberOf(const TCellView& cell) {
  double value = 0;
  const char* end = cell.Text.data() + cell.Text.size();
  const auto [at, error] = std::from_chars(cell.Text.data(), end, value);
  if (cell.Kind != svNumber || error != std::errc() || at != end || !std::isfinite(value)) return {};
  return value;
}

/// The kind of the first value that is not NULL.
TSqlValueKind KindOf(const TResultRows& rows, std::size_t column) {
  for (std::size_t row = 0; row < std::min(rows.GetRowCount(), SampledRows); ++row) {
    if (const TCellView cell = rows.Cell(row, column); cell.Kind != svNull) return cell.Kind;
  }
  return svNull;
}

void Tell(TChartData& data, TChartKind kind, std::size_t rows) {
  const auto number = [](std::size_t count) { return QLocale().toString(qulonglong{count}); };
  QStringList told;
  if (data.LeftOut > 0) {
    told << TTexts::tr("The first %1 of %2 rows.").arg(number(rows - data.LeftOut), number(rows));
  }
  if (data.RowsPerPoint > 1 && kind == chLine) {
    told << TTexts::tr("%1 rows: each point is the average of %2 rows that follow each other.")
                .arg(number(rows), number(data.RowsPerPoint));
  }
  if (data.WithoutNumber > 0) {
    told << TTexts::tr("%n rows without a number are left out.", nullptr, static_cast<int>(data.WithoutNumber));
  }
  data.Told = told.join(u' ');
}

}  // namespace

TChartData MakeChartData(const TSortedRows& rows, std::size_t x, std::size_t y, TChartKind kind) {
  TChartData data;
  const std::size_t all = rows.GetRowCount();
  const std::size_t count = kind == chBar ? std::min(all, MaxBars) : all;
  data.LeftOut = all - count;
  data.RowsPerPoint = kind == chBar ? 1 : (count + MaxLinePoints - 1) / MaxLinePoints;
  const TCellText text;
  for (std::size_t first = 0; first < count; first += data.RowsPerPoint) {
    double sum = 0;
    std::size_t numbers = 0;
    const std::size_t end = std::min(first + data.RowsPerPoint, count);
    for (std::size_t row = first; row < end; ++row) {
      const auto number = NumberOf(rows.Cell(row, y));
      if (!number) ++data.WithoutNumber;
      if (!number) continue;
      sum += *number;
      ++numbers;
    }
    if (numbers == 0) continue;
    data.Labels << text.Line(rows.Cell(first, x));
    data.Values.push_back(sum / static_cast<double>(numbers));
  }
  Tell(data, kind, all);
  return data;
}

TChartColumns SuggestedColumns(const TResultRows& rows) {
  TChartColumns columns;
  const std::vector<std::size_t> numbers = NumberColumns(rows);
  for (std::size_t i = 0; i < rows.Columns().size() && columns.X < 0; ++i) {
    const TSqlValueKind kind = KindOf(rows, i);
    if (kind == svText || kind == svDate || kind == svTime || kind == svDateTime) columns.X = static_cast<int>(i);
  }
  if (columns.X < 0 && !rows.Columns().empty()) columns.X = 0;
  for (const std::size_t number : numbers) {
    if (columns.Y < 0 || columns.Y == columns.X) columns.Y = static_cast<int>(number);
  }
  return columns;
}

std::vector<std::size_t> NumberColumns(const TResultRows& rows) {
  std::vector<std::size_t> columns;
  for (std::size_t i = 0; i < rows.Columns().size(); ++i) {
    if (KindOf(rows, i) == svNumber) columns.push_back(i);
  }
  return columns;
}

}  // namespace tolvi
