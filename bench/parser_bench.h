#pragma once

#include <span>

#include "bench/ratios.h"

namespace tolvi::bench {

/// The figures for reading SQL.
std::span<const TRatio> ParserRatios();

}  // namespace tolvi::bench
