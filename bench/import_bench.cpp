#include "bench/import_bench.h"

#include <string>
#include <string_view>

#include <benchmark/benchmark.h>

#include <tolvi/query/querpnl.h>
#include <tolvi/sqlimport/selectreader.h>

// Importing one statement on a large model, beside reading the same statement without a model.

namespace tolvi::bench {
namespace {

constexpr int TableCount = 1000;
constexpr int ColumnCount = 20;

/// Four tables in a chain, six conditions with one bracket, two columns that sort.
constexpr std::string_view Statement =
    "select a.COLUMN_1, b.COLUMN_3 as Town, c.COLUMN_4, d.COLUMN_6\r\n"
    "from TABLE_25 a\r\n"
    "  join TABLE_77 b on b.COLUMN_0 = a.COLUMN_2\r\n"
    "  join TABLE_233 c on c.COLUMN_0 = b.COLUMN_2\r\n"
    "  join TABLE_700 d on d.COLUMN_0 = c.COLUMN_2\r\n"
    "where a.COLUMN_1 = 'O''Hara' and b.COLUMN_3 like '%Linz%' and c.COLUMN_4 between 5 and 10\r\n"
    "  and (d.COLUMN_6 in (1, 2, 3) or d.COLUMN_5 not like 'x%' or c.COLUMN_8 >= 1000)\r\n"
    "order by 2 desc, 1";

/// Each table but the first is linked to one before it.
TJDBStructure& Model() {
  static TJDBStructure model;
  if (!model.GetEmpty()) return model;
  for (int t = 0; t < TableCount; ++t) {
    TDSTable& table = model.GetTable(model.AddTable("TABLE_" + std::to_string(t), "Table " + std::to_string(t)));
    for (int c = 0; c < ColumnCount; ++c) {
      TDSField& field =
          model.GetField(model.AddField(jfkData, "COLUMN_" + std::to_string(c), "Column " + std::to_string(c), &table));
      field.SetFieldType(c % 2 == 0 ? ftInteger : ftString);
      field.AddAppliedOperators();
    }
    if (t == 0) continue;
    auto link = std::make_unique<TDSLink>(table, model.GetTable(static_cast<std::size_t>((t - 1) / 3)));
    link->AddPair("COLUMN_0", "=", "COLUMN_2");
    model.AddLinkByRef(std::move(link));
  }
  return model;
}

void StatementRead(benchmark::State& state) {
  for (auto _ : state) {
    const TSelectText text(Statement);
    benchmark::DoNotOptimize(ReadSelect(text, text.All()));
  }
}
BENCHMARK(StatementRead)->Unit(benchmark::kMicrosecond);

void Import(benchmark::State& state, const TSQLImportOptions& options) {
  TJQueryPanel panel;
  panel.SetDBStruct(&Model());
  panel.SetActive(true);
  for (auto _ : state) panel.ParseSQL(Statement, options);
}
void ImportPlainly(benchmark::State& state) { Import(state, {}); }
void ImportFaithfully(benchmark::State& state) { Import(state, {.Faithful = true}); }
BENCHMARK(ImportPlainly)->Unit(benchmark::kMicrosecond);
BENCHMARK(ImportFaithfully)->Unit(benchmark::kMicrosecond);

constexpr TRatio Ratios[] = {
    {"import a statement plainly, 1,000 tables : read it", "ImportPlainly", "StatementRead", 6},
    {"import it faithfully : read it", "ImportFaithfully", "StatementRead", 15},
};

}  // namespace

std::span<const TRatio> ImportRatios() { return Ratios; }

}  // namespace tolvi::bench
