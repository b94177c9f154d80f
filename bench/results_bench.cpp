#include <QApplication>
#include <QScrollBar>
#include <QStandardItemModel>
#include <QTableView>
#include <QVBoxLayout>
#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "apps/workbench/results/resultgrid.h"
#include "apps/workbench/results/resultsort.h"

// A million rows of eight columns in the workbench's grid, beside what the toolkit and the standard library do with as
// many or fewer.

namespace tolvi::bench {
namespace {

constexpr int rowCount = 1'000'000, columnCount = 8, blockRows = 10'000;
// What a model of items is given: it would need the memory of a large machine for all of them.
constexpr int itemRowCount = rowCount / 100;

std::string TextOf(int row, int column) {
  if (column % 2 == 0) return std::to_string((row * 7919LL + column) % rowCount) + ".25";
  return "Städtische Werke " + std::to_string(row * 31 % 50'000) + (column == 7 ? ' ' + std::to_string(row) : "");
}

TRowBlock Block(int first, int count) {
  TRowBlock block(columnCount);
  for (int row = first; row < first + count; ++row) {
    for (int column = 0; column < columnCount; ++column) {
      block.Add(column % 2 == 0 ? svNumber : svText, TextOf(row, column));
    }
  }
  return block;
}

std::vector<std::string> Names() {
  std::vector<std::string> names;
  for (int i = 0; i < columnCount; ++i) names.push_back("Column " + std::to_string(i));
  return names;
}

std::shared_ptr<TResultRows> AllRows() {
  auto rows = std::make_shared<TResultRows>(Names());
  for (int row = 0; row < rowCount; row += blockRows) rows->Append(Block(row, blockRows));
  return rows;
}

/// A view that is shown and painted.
void Open(QTableView& view) {
  view.resize(1000, 700);
  view.show();
  QCoreApplication::processEvents();
}

void Scroll(QTableView& view) {
  QScrollBar& bar = *view.verticalScrollBar();
  for (int step = 0; step <= 50; ++step) {
    bar.setValue(static_cast<int>(static_cast<std::int64_t>(bar.maximum()) * step / 50));
    QCoreApplication::processEvents();
    view.viewport()->repaint();
  }
}

std::unique_ptr<QStandardItemModel> Items() {
  auto model = std::make_unique<QStandardItemModel>(0, columnCount);
  for (int row = 0; row < itemRowCount; ++row) {
    QList<QStandardItem*> items;
    for (int column = 0; column < columnCount; ++column) {
      items << new QStandardItem(QString::fromStdString(TextOf(row, column)));
    }
    model->appendRow(items);
  }
  return model;
}

void ResultRowsAppended(benchmark::State& state) {
  for (auto _ : state) {
    state.PauseTiming();
    TResultGrid grid;
    Open(grid);
    std::vector<TRowBlock> blocks;
    for (int row = 0; row < rowCount; row += blockRows) blocks.push_back(Block(row, blockRows));
    state.ResumeTiming();
    grid.SetRows(std::make_shared<TResultRows>(Names()));
    for (TRowBlock& block : blocks) {
      grid.Model().Append(std::move(block));
      QCoreApplication::processEvents();
    }
  }
}
BENCHMARK(ResultRowsAppended)->Unit(benchmark::kMillisecond);

void ItemRowsAppended(benchmark::State& state) {
  for (auto _ : state) {
    const auto items = Items();
    QTableView view;
    view.setModel(items.get());
    Open(view);
  }
}
BENCHMARK(ItemRowsAppended)->Unit(benchmark::kMillisecond);

void ResultRowsScrolled(benchmark::State& state) {
  TResultGrid grid;
  grid.SetRows(AllRows());
  Open(grid);
  if (state.range(0) != 0) grid.selectAll();
  for (auto _ : state) Scroll(grid);
}
BENCHMARK(ResultRowsScrolled)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

void ItemRowsScrolled(benchmark::State& state) {
  const auto items = Items();
  QTableView view;
  view.setModel(items.get());
  Open(view);
  for (auto _ : state) Scroll(view);
}
BENCHMARK(ItemRowsScrolled)->Unit(benchmark::kMillisecond);

void AllSelected(benchmark::State& state) {
  TResultGrid grid;
  grid.SetRows(AllRows());
  Open(grid);
  for (auto _ : state) {
    grid.selectAll();
    QCoreApplication::processEvents();
    grid.clearSelection();
    QCoreApplication::processEvents();
  }
}
BENCHMARK(AllSelected)->Unit(benchmark::kMillisecond);

/// By numbers, by texts of which each stands in twenty rows, by texts that are all different.
void ResultRowsSorted(benchmark::State& state) {
  const auto rows = AllRows();
  const std::atomic<bool> stop{false};
  const QLocale german(QLocale::German);
  for (auto _ : state) {
    benchmark::DoNotOptimize(SortedOrder(*rows, static_cast<std::size_t>(state.range(0)), false, german, stop));
  }
}
BENCHMARK(ResultRowsSorted)->Arg(0)->Arg(1)->Arg(7)->Unit(benchmark::kMillisecond);

/// As many texts, byte for byte.
void PlainTextsSorted(benchmark::State& state) {
  std::vector<std::string> texts;
  for (int row = 0; row < rowCount; ++row) texts.push_back(TextOf(row, 7));
  for (auto _ : state) {
    std::vector<std::string> sorted = texts;
    std::stable_sort(sorted.begin(), sorted.end());
    benchmark::DoNotOptimize(sorted);
  }
}
BENCHMARK(PlainTextsSorted)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tolvi::bench
