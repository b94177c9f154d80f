#include "bench/ratios.h"

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <new>
#include <string>

#include <benchmark/benchmark.h>
#include <malloc.h>

namespace {

std::atomic<std::size_t> inUse{0}, peak{0};

void Count(void* block) {
  const std::size_t now = inUse += malloc_usable_size(block);
  std::size_t seen = peak;
  while (now > seen && !peak.compare_exchange_weak(seen, now)) {
  }
}

}  // namespace

// Not inlined: the compiler would take the pair of malloc and free for a mismatch.
[[gnu::noinline]] void* operator new(std::size_t size) {
  void* block = std::malloc(size > 0 ? size : 1);
  if (block == nullptr) throw std::bad_alloc();
  Count(block);
  return block;
}

[[gnu::noinline]] void operator delete(void* block) noexcept {
  if (block != nullptr) inUse -= malloc_usable_size(block);
  std::free(block);
}

void operator delete(void* block, std::size_t) noexcept { operator delete(block); }

namespace tolvi::bench {
namespace {

/// Keeps the least processor time of each benchmark, the run least disturbed: by its name and, where it has arguments,
/// by "name/argument", too.
class TCollector final : public benchmark::ConsoleReporter {
 public:
  TCollector() : ConsoleReporter(OO_None) {}
  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      if (run.run_type != Run::RT_Iteration || run.error_occurred) continue;
      const double time = run.cpu_accumulated_time / static_cast<double>(run.iterations);
      Take(run.run_name.function_name, time);
      if (!run.run_name.args.empty()) Take(run.run_name.function_name + "/" + run.run_name.args, time);
    }
    ConsoleReporter::ReportRuns(runs);
  }
  std::map<std::string, double, std::less<>> Times;

 private:
  void Take(const std::string& name, double time) {
    const auto [place, isNew] = Times.try_emplace(name, time);
    if (!isNew) place->second = std::min(place->second, time);
  }
};

}  // namespace

int RunAndCompare(int argc, char** argv, std::span<const TRatio> ratios) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
  TCollector collector;
  benchmark::RunSpecifiedBenchmarks(&collector);
  bool allWithin = true;
  std::printf("\n%-68s %9s %9s\n", "ratio", "measured", "at most");
  for (const TRatio& ratio : ratios) {
    const auto measured = collector.Times.find(ratio.Measured);
    const auto baseline = collector.Times.find(ratio.Baseline);
    if (measured == collector.Times.end() || baseline == collector.Times.end()) continue;
    const double value = measured->second / baseline->second;
    allWithin = allWithin && value <= ratio.Limit;
    std::printf("%-68s %9.2f %9.2f%s\n", std::string(ratio.What).c_str(), value, ratio.Limit,
                value <= ratio.Limit ? "" : "  over");
  }
  return allWithin ? 0 : 1;
}

std::size_t HeapInUse() { return inUse; }
std::size_t HeapPeak() { return peak; }
void ResetPeak() { peak = inUse.load(); }

}  // namespace tolvi::bench
