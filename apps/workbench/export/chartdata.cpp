#include "apps/workbench/export/chartdata.h"

#include <QCoreApplication>
#include <QLocale>
#include <algorithm>
#include <charconv>
#include <cmath>
#include <iterator>
#include <optional>

#include "apps/workbench/results/celltext.h"
#include <tolvi/foundation/text.h>

namespace tolvi {
namespace {

struct TTexts {
  Q_DECLARE_TR_FUNCTIONS(tolvi::TChartData)
};

/// Last words of the names of keys.
constexpr std::string_view KeyWords[] = {"id", "key", "no", "nr"};

std::optional<double> NumberOf(const TCellView& cell) {
  double value = 0;
  const char* end = cell.Text.data() + cell.Text.size();
  const auto [at, error] = std::from_chars(cell.Text.data(), end, value);
  if (cell.Kind != svNumber || error != std::errc() || at != end || !std::isfinite(value)) return {};
  return value;
}

/// The kind of the first value that is not NULL.
TSqlValueKind KindOf(const TResultRows& rows, std::size_t column) {
  for (std::size_t row = 0; row < std::min(rows.GetRowCount(), RowsLookedInto); ++row) {
    if (const TCellView cell = rows.Cell(row, column); cell.Kind != svNull) return cell.Kind;
  }
  return svNull;
}

/// Whether the last word is one of those: "order_id", "OrderID", "Order no", but not "Paid".
bool IsCalledLikeKey(std::string_view name) {
  const auto isUpper = [name](std::size_t i) { return name[i] >= 'A' && name[i] <= 'Z'; };
  const auto isLetter = [&](std::size_t i) { return isUpper(i) || (name[i] >= 'a' && name[i] <= 'z'); };
  std::size_t begin = name.size();
  while (begin > 0 && isLetter(begin - 1)) {
    const bool isHump = begin < name.size() && isUpper(begin) && !isUpper(begin - 1);
    if (isHump) break;
    --begin;
  }
  const std::string word = AsciiLower(name.substr(begin));
  return std::find(std::begin(KeyWords), std::end(KeyWords), word) != std::end(KeyWords);
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
  int bestRank = 0;
  for (const std::size_t number : numbers) {
    const bool isKey = rows.Known(number).IsKey || IsCalledLikeKey(rows.Columns()[number]);
    const int rank = static_cast<int>(number) == columns.X ? 0 : isKey ? 1 : 2;
    if (rank < bestRank) continue;
    bestRank = rank;
    columns.Y = static_cast<int>(number);
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
