// The order of rows by the values of a column.
#pragma once

#include <QLocale>
#include <atomic>
#include <cstdint>
#include <optional>
#include <vector>

#include "apps/workbench/results/resultrows.h"

namespace tolvi {

/// The numbers of the rows, sorted by a column: numbers by what they are, digit for digit, texts as the locale sorts
/// them, dates and times by time. Numbers come before booleans, dates, texts and bytes, and NULL comes last in either
/// direction; equal values keep their order. Any thread may call it. Nothing when `stop` was set meanwhile.
std::optional<std::vector<std::uint32_t>> SortedOrder(const TResultRows& rows, std::size_t column, bool isDescending,
                                                      const QLocale& locale, const std::atomic<bool>& stop);

}  // namespace tolvi
