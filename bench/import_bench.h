#pragma once

#include <span>

#include "bench/ratios.h"

namespace tolvi::bench {

/// The figures for making queries of SQL.
std::span<const TRatio> ImportRatios();

}  // namespace tolvi::bench
