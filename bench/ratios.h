#pragma once

#include <span>
#include <string_view>

namespace tolvi::bench {

/// A figure that counts: how many times the baseline's time (or another counter) a benchmark takes in the same run.
struct TRatio {
  std::string_view What;
  std::string_view Measured;
  std::string_view Baseline;
  double Limit;
};

/// Runs the benchmarks that the arguments choose and prints the ratios of those that have run. 1 when a ratio is over
/// its limit, else 0.
int RunAndCompare(int argc, char** argv, std::span<const TRatio> ratios);

/// Heap bytes in use now, and the most since the last `ResetPeak`.
std::size_t HeapInUse();
std::size_t HeapPeak();
void ResetPeak();

}  // namespace tolvi::bench
