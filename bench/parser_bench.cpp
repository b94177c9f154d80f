#include "bench/parser_bench.h"

#include <array>
#include <cstdint>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <tolvi/sqlimport/sqlpars.h>

// Scanning and parsing a corpus of statements, beside the least that can be done with its bytes, and beside what a
// database does with the same statements before it looks for their tables.

namespace tolvi::bench {
namespace {

constexpr std::size_t StatementCount = 20000;

/// Writes statements of all the kinds that are read: joins, nested conditions, quoted texts, lists, sub-queries.
class TCorpus {
 public:
  TCorpus() {
    for (std::size_t i = 0; i < StatementCount; ++i) {
      Statements.push_back(Statement());
      Bytes += Statements.back().size();
    }
  }

  std::vector<std::string> Statements;
  std::size_t Bytes = 0;

 private:
  std::uint32_t Random(std::uint32_t below) { return static_cast<std::uint32_t>(FRandom() % below); }
  template <std::size_t N>
  const char* OneOf(const std::array<const char*, N>& texts) {
    return texts[Random(N)];
  }

  std::string Column() {
    constexpr std::array<const char*, 4> Tables = {"Customers", "o", "Products", "d"};
    constexpr std::array<const char*, 8> Columns = {"CustomerID", "Company", "City",      "OrderDate",
                                                    "Total",      "Qty",     "UnitPrice", "Discontinued"};
    return std::string(OneOf(Tables)) + "." + OneOf(Columns);
  }

  std::string Text() {
    constexpr std::array<const char*, 6> Texts = {"'Oslo'",  "'O''Hara, Scarlett'", "'2024-05-17'",
                                                  "'%Ltd%'", "'and (or) not'",      "'Dąbrowski Dom i Ogród'"};
    return OneOf(Texts);
  }

  std::string Comparison() {
    const std::string number = std::to_string(Random(100000));
    switch (Random(8)) {
      case 0:
        return Column() + " like " + Text();
      case 1:
        return Column() + " BETWEEN " + number + " and " + number + "5";
      case 2:
        return Column() + " in (" + Text() + ", " + Text() + ", " + Text() + ")";
      case 3:
        return Column() + " is not null";
      case 4:
        return Column() + " in (select x.ID from Lines x where x.Qty > " + number + ")";
      case 5:
        return "upper(" + Column() + ") = " + Text();
      default:
        return Column() + (Random(2) == 0 ? " >= " : " <> ") + number;
    }
  }

  std::string Conditions(std::uint32_t depth) {
    const char* const join = Random(2) == 0 ? " AND " : " or ";
    std::string text = Comparison();
    for (std::uint32_t i = Random(2) + 1; i > 0; --i) {
      const bool nested = depth > 0 && Random(3) == 0;
      text += join + (nested ? (Random(4) == 0 ? "not (" : "(") + Conditions(depth - 1) + ")" : Comparison());
    }
    return text;
  }

  std::string Statement() {
    std::string text = Random(4) == 0 ? "SELECT DISTINCT " : "select ";
    for (std::uint32_t i = Random(3) + 1; i > 0; --i) text += Column() + " as Name" + std::to_string(i) + ", ";
    text += "sum(o.Total) AS \"Sum total\"\r\nFROM Customers";
    if (Random(3) != 0) text += "\r\n  left outer join Orders o on Customers.CustomerID = o.CustomerID";
    if (Random(2) != 0) text += "\r\n  inner join Details d on o.OrderID = d.OrderID and d.Qty > 0";
    text += "\r\nWHERE " + Conditions(2);
    if (Random(2) != 0) text += "\r\nGROUP BY " + Column() + ", " + Column();
    return text + "\r\nORDER BY 1 desc";
  }

  std::mt19937 FRandom{3};
};

const TCorpus& Corpus() {
  static const TCorpus corpus;
  return corpus;
}

void TellBytes(benchmark::State& state) {
  state.SetBytesProcessed(static_cast<std::int64_t>(Corpus().Bytes) * static_cast<std::int64_t>(state.iterations()));
}

void StatementBytesLookedUp(benchmark::State& state) {
  std::array<std::uint8_t, 256> table{};
  for (std::size_t i = 0; i < table.size(); ++i) table[i] = static_cast<std::uint8_t>(i * 7 % 5);
  for (auto _ : state) {
    std::uint32_t sum = 0;
    for (const std::string& statement : Corpus().Statements) {
      for (const char c : statement) sum += table[static_cast<unsigned char>(c)];
    }
    benchmark::DoNotOptimize(sum);
  }
  TellBytes(state);
}
BENCHMARK(StatementBytesLookedUp)->Unit(benchmark::kMillisecond);

void StatementsScanned(benchmark::State& state) {
  TJScanner scanner;
  for (auto _ : state) {
    std::size_t tokens = 0;
    for (const std::string& statement : Corpus().Statements) {
      scanner.SetSource(statement);
      for (scanner.FirstToken(); !scanner.EOS(); scanner.NextToken()) ++tokens;
    }
    benchmark::DoNotOptimize(tokens);
  }
  TellBytes(state);
}
BENCHMARK(StatementsScanned)->Unit(benchmark::kMillisecond);

void StatementsParsed(benchmark::State& state) {
  TJSQLParser parser;
  for (auto _ : state) {
    for (const std::string& statement : Corpus().Statements) {
      parser.SetSQL(statement);
      parser.Parse();
    }
  }
  TellBytes(state);
}
BENCHMARK(StatementsParsed)->Unit(benchmark::kMillisecond);

void StatementsPreparedBySqlite(benchmark::State& state) {
  sqlite3* opened = nullptr;
  sqlite3_open(":memory:", &opened);
  const std::unique_ptr<sqlite3, decltype(&sqlite3_close)> database(opened, &sqlite3_close);
  for (auto _ : state) {
    for (const std::string& statement : Corpus().Statements) {
      sqlite3_stmt* prepared = nullptr;
      sqlite3_prepare_v2(opened, statement.data(), static_cast<int>(statement.size()), &prepared, nullptr);
      sqlite3_finalize(prepared);
    }
  }
  TellBytes(state);
}
BENCHMARK(StatementsPreparedBySqlite)->Unit(benchmark::kMillisecond);

constexpr TRatio Ratios[] = {
    {"scan 20,000 statements (7 MB) : look up their bytes in a table", "StatementsScanned", "StatementBytesLookedUp",
     10},
    {"parse them : look up their bytes in a table", "StatementsParsed", "StatementBytesLookedUp", 25},
    {"parse them : SQLite prepares them on an empty schema", "StatementsParsed", "StatementsPreparedBySqlite", 0.33},
};

}  // namespace

std::span<const TRatio> ParserRatios() { return Ratios; }

}  // namespace tolvi::bench
