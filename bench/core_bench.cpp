#include <filesystem>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "bench/import_bench.h"
#include "bench/parser_bench.h"
#include "bench/ratios.h"
#include "support/models.h"
#include <tolvi/foundation/files.h>
#include <tolvi/foundation/text.h>
#include <tolvi/model/modeltext.h>
#include <tolvi/query/querpnl.h>

// What the core does often or with much data, each beside the least work that any program would have to do for it.

namespace tolvi::bench {
namespace {

// A statement: 5 columns, 3 tables joined by path search, 6 conditions in two nested brackets.

struct TQuery {
  TQuery() {
    panel.SetDBStruct(model.get());
    panel.SetActive(true);
    for (const char* name :
         {"Customers.Company", "Customers.City", "Orders.OrderNo", "Order Details.Qty", "Order Details.Discount"}) {
      panel.RFields().Add(FieldOf(*model, name));
    }
    TFilterBracket& any = panel.RootBracket().AddNewBracket();
    any.SetLinkType(fltAny);
    TFilterBracket& all = any.AddNewBracket();
    total = &Add(any, "Orders.Total", "GreaterThan", "100");
    Add(any, "Customers.City", "StartsWith", "Os");
    Add(any, "Customers.CustNo", "Equal", "4711");
    Add(all, "Customers.Company", "Contains", "Ltd");
    Add(all, "Order Details.Qty", "Between", "5", "10");
    Add(all, "Orders.OrderNo", "LessThan", "90000");
  }
  TSimpleCond& Add(TFilterBracket& bracket, const char* field, const char* op, const char* value1,
                   const char* value2 = "") {
    return panel.AddSimpleCond(bracket, FieldOf(*model, field), OperatorOf(*model, op), value1, value2);
  }

  std::unique_ptr<TJDBStructure> model = OrdersModel();
  TJQueryPanel panel;
  TSimpleCond* total = nullptr;
};

/// The pieces of that statement, as any builder has to put together.
std::vector<std::string> Pieces(const std::string& statement) {
  std::vector<std::string> pieces;
  std::size_t start = 0;
  for (std::size_t at = 0; at < statement.size(); ++at) {
    if (statement[at] == ' ' || statement[at] == '\n') {
      pieces.push_back(statement.substr(start, at + 1 - start));
      start = at + 1;
    }
  }
  pieces.push_back(statement.substr(start));
  return pieces;
}

void StatementConcatenated(benchmark::State& state) {
  TQuery query;
  const std::vector<std::string> pieces = Pieces(query.panel.GetQueryText());
  for (auto _ : state) {
    std::string text;
    for (const std::string& piece : pieces) text += piece;
    benchmark::DoNotOptimize(text);
  }
}
BENCHMARK(StatementConcatenated);

void StatementBuilt(benchmark::State& state) {
  TQuery query;
  for (auto _ : state) {
    query.panel.QResult().ForgetBuilt();
    benchmark::DoNotOptimize(query.panel.GetQueryText());
  }
}
BENCHMARK(StatementBuilt);

void StatementAfterOneValue(benchmark::State& state) {
  TQuery query;
  bool other = false;
  for (auto _ : state) {
    query.total->SetValue(1, (other = !other) ? "250" : "100");
    benchmark::DoNotOptimize(query.panel.GetQueryText());
  }
}
BENCHMARK(StatementAfterOneValue);

// Paths: a random connected graph of 10,000 tables and 30,000 links.

struct TGraph {
  TGraph() {
    constexpr std::size_t tables = 10000, links = 30000;
    std::mt19937 random(1);
    std::vector<std::pair<std::size_t, std::size_t>> ends;
    for (std::size_t i = 1; i < tables; ++i) ends.emplace_back(random() % i, i);
    while (ends.size() < links) ends.emplace_back(random() % tables, random() % tables);
    neighbours.resize(tables);
    for (std::size_t i = 0; i < tables; ++i) model.AddTable("T" + std::to_string(i), "");
    for (const auto& [a, b] : ends) {
      auto link = std::make_unique<TDSLink>(model.GetTable(a), model.GetTable(b));
      link->AddPair("x", "=", "y");
      model.AddLinkByRef(std::move(link));
      neighbours[a].push_back(static_cast<std::uint32_t>(b));
      if (a != b) neighbours[b].push_back(static_cast<std::uint32_t>(a));
    }
    for (std::size_t i = 0; i < tables; ++i) {
      starts.push_back(static_cast<std::uint32_t>(flat.size()));
      flat.insert(flat.end(), neighbours[i].begin(), neighbours[i].end());
    }
    starts.push_back(static_cast<std::uint32_t>(flat.size()));
    for (int i = 0; i < 256; ++i) pairs.emplace_back(random() % tables, random() % tables);
  }

  TJDBStructure model;
  std::vector<std::vector<std::uint32_t>> neighbours;
  std::vector<std::uint32_t> starts, flat;
  std::vector<std::pair<std::size_t, std::size_t>> pairs;
};

const TGraph& Graph() {
  static const TGraph graph;
  return graph;
}

void PathByPlainSearch(benchmark::State& state) {
  const TGraph& graph = Graph();
  const std::size_t count = graph.starts.size() - 1;
  std::vector<std::uint32_t> stamps(count), previous(count), queue(count);
  std::uint32_t stamp = 0;
  std::size_t next = 0;
  for (auto _ : state) {
    const auto [from, to] = graph.pairs[next++ % graph.pairs.size()];
    ++stamp;
    std::size_t head = 0, tail = 0;
    queue[tail++] = static_cast<std::uint32_t>(from);
    stamps[from] = stamp;
    bool found = from == to;
    while (head < tail && !found) {
      const std::uint32_t at = queue[head++];
      for (std::uint32_t i = graph.starts[at]; i < graph.starts[at + 1]; ++i) {
        const std::uint32_t other = graph.flat[i];
        if (stamps[other] == stamp) continue;
        stamps[other] = stamp;
        previous[other] = at;
        if (other == to) {
          found = true;
          break;
        }
        queue[tail++] = other;
      }
    }
    std::vector<std::uint32_t> path;
    if (found) {
      for (std::size_t at = to; at != from; at = previous[at]) path.push_back(static_cast<std::uint32_t>(at));
    }
    benchmark::DoNotOptimize(path);
  }
}
BENCHMARK(PathByPlainSearch);

void PathByModel(benchmark::State& state) {
  const TGraph& graph = Graph();
  std::size_t next = 0;
  for (auto _ : state) {
    const auto [from, to] = graph.pairs[next++ % graph.pairs.size()];
    benchmark::DoNotOptimize(graph.model.GetPath(graph.model.GetTable(from), graph.model.GetTable(to)));
  }
}
BENCHMARK(PathByModel);

/// 40 tables with 30 links between each two of them, and one that no link reaches.
void PathInDenseModel(benchmark::State& state) {
  TJDBStructure model;
  for (int i = 0; i < 41; ++i) model.AddTable("T" + std::to_string(i), "");
  for (std::size_t a = 0; a < 40; ++a) {
    for (std::size_t b = a + 1; b < 40; ++b) {
      for (int i = 0; i < 30; ++i) {
        auto link = std::make_unique<TDSLink>(model.GetTable(a), model.GetTable(b));
        link->AddPair("x", "=", "y");
        model.AddLinkByRef(std::move(link));
      }
    }
  }
  for (auto _ : state) benchmark::DoNotOptimize(model.GetPath(model.GetTable(0), model.GetTable(40)));
}
BENCHMARK(PathInDenseModel)->Unit(benchmark::kMicrosecond);

// A model text of 5,000 tables and 200,000 fields, about 50 MB.

const std::string& LargeModelFile() {
  static const std::string file = [] {
    TJDBStructure model;
    std::mt19937 random(2);
    for (int t = 0; t < 5000; ++t) {
      TDSTable& table = model.GetTable(model.AddTable("TABLE_" + std::to_string(t), "Table " + std::to_string(t)));
      for (int f = 0; f < 40; ++f) {
        const std::string name = "COLUMN_" + std::to_string(f);
        TDSField& field = model.GetField(model.AddField(jfkData, name, "Column " + std::to_string(f), &table));
        field.SetFieldType(f % 2 == 0 ? ftInteger : ftString);
        field.AddAppliedOperators();
      }
      if (t > 0) {
        auto link = std::make_unique<TDSLink>(table, model.GetTable(random() % static_cast<unsigned>(t)));
        link->AddPair("COLUMN_0", "=", "COLUMN_0");
        model.AddLinkByRef(std::move(link));
      }
    }
    const std::string path = (std::filesystem::temp_directory_path() / "tolvi_bench.model").string();
    WriteFileAtomically(path, WriteModelText(model));
    return path;
  }();
  return file;
}

void LargeModelReadAndSplit(benchmark::State& state) {
  const std::string& file = LargeModelFile();
  for (auto _ : state) {
    const std::string text = ReadFile(file);
    std::vector<std::string> lines;
    for (std::string_view line : SplitLines(text)) lines.emplace_back(line);
    benchmark::DoNotOptimize(lines);
  }
  state.counters["MB"] = static_cast<double>(std::filesystem::file_size(file)) / 1e6;
}
BENCHMARK(LargeModelReadAndSplit)->Unit(benchmark::kMillisecond)->Repetitions(3);

void LargeModelLoad(benchmark::State& state) {
  const std::string& file = LargeModelFile();
  const auto size = static_cast<double>(std::filesystem::file_size(file));
  for (auto _ : state) {
    const std::size_t before = HeapInUse();
    ResetPeak();
    TJDBStructure model;
    model.LoadFromFile(file);
    state.counters["peak/text"] = static_cast<double>(HeapPeak() - before) / size;
    benchmark::DoNotOptimize(model.Fields().Count());
  }
}
BENCHMARK(LargeModelLoad)->Unit(benchmark::kMillisecond)->Repetitions(3);

TJDBStructure& LargeModel() {
  static TJDBStructure model;
  if (model.GetEmpty()) model.LoadFromFile(LargeModelFile());
  return model;
}

void LargeModelSave(benchmark::State& state) {
  const TJDBStructure& model = LargeModel();
  const std::string file = LargeModelFile() + ".saved";
  for (auto _ : state) model.SaveToFile(file);
  std::filesystem::remove(file);
}
BENCHMARK(LargeModelSave)->Unit(benchmark::kMillisecond)->Repetitions(3);

void LookUpByName(benchmark::State& state) {
  const TJDBStructure& model = LargeModel();
  benchmark::DoNotOptimize(model.FieldByName(fnFullName, ""));
  std::size_t next = 0;
  for (auto _ : state) {
    next = (next + 7919) % 5000;
    const std::string name = "table_" + std::to_string(next) + ".column_33";
    benchmark::DoNotOptimize(model.FieldByName(fnFullName, name));
  }
}
BENCHMARK(LookUpByName);

void LookUpByID(benchmark::State& state) {
  const TJDBStructure& model = LargeModel();
  std::int32_t next = 1;
  for (auto _ : state) {
    next = (next + 7919) % 200000;
    benchmark::DoNotOptimize(model.FieldByID(next));
  }
}
BENCHMARK(LookUpByID);

// Queries of many rows.

std::unique_ptr<TQuery> LargeQuery(std::size_t rows) {
  auto query = std::make_unique<TQuery>();
  query->panel.ClearRows();
  TFilterBracket* bracket = &query->panel.RootBracket();
  for (std::size_t i = 0; i < rows; ++i) {
    if (i % 100 == 0) bracket = &query->panel.RootBracket().AddNewBracket();
    query->Add(*bracket, "Orders.Total", "GreaterThan", "100");
  }
  return query;
}

void SaveAndLoad(benchmark::State& state, std::size_t rows) {
  const auto query = LargeQuery(rows);
  for (auto _ : state) {
    const std::string text = query->panel.SaveToText();
    query->panel.LoadFromText(text);
  }
}
void SaveAndLoad1000Rows(benchmark::State& state) { SaveAndLoad(state, 1000); }
void SaveAndLoad10000Rows(benchmark::State& state) { SaveAndLoad(state, 10000); }
BENCHMARK(SaveAndLoad1000Rows)->Unit(benchmark::kMicrosecond);
BENCHMARK(SaveAndLoad10000Rows)->Unit(benchmark::kMicrosecond);

/// Numbers all rows, switches each off and on, and deletes one after the other.
void Edit(benchmark::State& state, std::size_t rows) {
  for (auto _ : state) {
    state.PauseTiming();
    const auto query = LargeQuery(rows);
    state.ResumeTiming();
    TFilterBracket& root = query->panel.RootBracket();
    for (TFilterRow& bracket : root) {
      for (TFilterRow& row : static_cast<TFilterBracket&>(bracket)) {
        benchmark::DoNotOptimize(row.GetRowNum());
        benchmark::DoNotOptimize(row.GetRowID());
        row.SetEnabled(false);
        row.SetEnabled(true);
      }
    }
    for (TFilterRow& row : root) {
      auto& bracket = static_cast<TFilterBracket&>(row);
      while (bracket.GetRowCount() > 0) bracket.DeleteRow(0);
    }
  }
}
void Edit1000Rows(benchmark::State& state) { Edit(state, 1000); }
void Edit10000Rows(benchmark::State& state) { Edit(state, 10000); }
BENCHMARK(Edit1000Rows)->Unit(benchmark::kMicrosecond);
BENCHMARK(Edit10000Rows)->Unit(benchmark::kMicrosecond);

constexpr TRatio Ratios[] = {
    {"build and write a statement : concatenate its pieces", "StatementBuilt", "StatementConcatenated", 10},
    {"the same after a change of one value : concatenate its pieces", "StatementAfterOneValue", "StatementConcatenated",
     5},
    {"path in 10,000 tables, 30,000 links : plain search on index arrays", "PathByModel", "PathByPlainSearch", 2},
    {"load a model of 200,000 fields : read and split the file", "LargeModelLoad", "LargeModelReadAndSplit", 12},
    {"save it : read and split the file", "LargeModelSave", "LargeModelReadAndSplit", 6},
    {"save and load 10,000 rows of a query : 1,000 rows", "SaveAndLoad10000Rows", "SaveAndLoad1000Rows", 15},
    {"number, switch, delete 10,000 rows : 1,000 rows", "Edit10000Rows", "Edit1000Rows", 15},
};

}  // namespace
}  // namespace tolvi::bench

int main(int argc, char** argv) {
  using namespace tolvi::bench;
  std::vector<TRatio> ratios(std::begin(Ratios), std::end(Ratios));
  ratios.insert(ratios.end(), ImportRatios().begin(), ImportRatios().end());
  ratios.insert(ratios.end(), ParserRatios().begin(), ParserRatios().end());
  return RunAndCompare(argc, argv, ratios);
}
