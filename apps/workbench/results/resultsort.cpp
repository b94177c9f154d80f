#include "apps/workbench/results/resultsort.h"

#include <QCollator>
#include <algorithm>
#include <array>
#include <charconv>
#include <numeric>
#include <string_view>
#include <unordered_map>
#include <utility>

#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

/// Ends a sort from within.
struct TStopped {};

class TStop final {
 public:
  explicit TStop(const std::atomic<bool>& flag) : FFlag(flag) {}
  void Check() const {
    if (FFlag.load(std::memory_order_relaxed)) throw TStopped();
  }

 private:
  const std::atomic<bool>& FFlag;
};

/// Kinds whose values are compared with each other, in their order.
enum TGroup : std::uint8_t { grNumbers, grBooleans, grTimes, grTexts, grBytes, grNulls, groupCount };

constexpr TGroup GroupOf(TSqlValueKind kind) {
  switch (kind) {
    case svNumber:
      return grNumbers;
    case svBoolean:
      return grBooleans;
    case svDate:
    case svTime:
    case svDateTime:
      return grTimes;
    case svText:
      return grTexts;
    case svBytes:
      return grBytes;
    case svNull:
      break;
  }
  return grNulls;
}

struct TEntry {
  std::uint32_t Row = 0;
  std::string_view Text;
};
using TEntries = std::vector<TEntry>;

// Numbers

struct TNumber {
  double Value = 0;
  TEntry Entry;
};

/// The digits of a plain decimal number, without its sign: before the point without leading zeros, after it without
/// trailing ones.
struct TDigits {
  std::string_view Whole, Part;
};

TDigits DigitsOf(std::string_view text) {
  if (!text.empty() && (text.front() == '-' || text.front() == '+')) text.remove_prefix(1);
  const std::size_t point = std::min(text.find('.'), text.size());
  TDigits digits{text.substr(0, point), text.substr(std::min(point + 1, text.size()))};
  while (!digits.Whole.empty() && digits.Whole.front() == '0') digits.Whole.remove_prefix(1);
  while (!digits.Part.empty() && digits.Part.back() == '0') digits.Part.remove_suffix(1);
  return digits;
}

/// Below 0, 0 or above, for numbers that are the same as far as a double can tell.
int CompareDigits(std::string_view left, std::string_view right) {
  constexpr std::size_t exactDigits = 15;
  if (left.size() <= exactDigits && right.size() <= exactDigits) return 0;
  constexpr std::string_view exponents = "eE";
  if (left.find_first_of(exponents) != left.npos || right.find_first_of(exponents) != right.npos) return 0;
  const TDigits one = DigitsOf(left), other = DigitsOf(right);
  int result = one.Whole.size() != other.Whole.size() ? (one.Whole.size() < other.Whole.size() ? -1 : 1)
                                                      : one.Whole.compare(other.Whole);
  if (result == 0) result = one.Part.compare(other.Part);
  return left.starts_with('-') ? -result : result;
}

bool IsLess(const TNumber& left, const TNumber& right) {
  if (left.Value != right.Value) return left.Value < right.Value;
  return CompareDigits(left.Entry.Text, right.Entry.Text) < 0;
}

void SortNumbers(TEntries& entries, bool isDescending, const TStop& stop) {
  std::vector<TNumber> numbers;
  numbers.reserve(entries.size());
  for (const TEntry& entry : entries) {
    TNumber number{0, entry};
    const std::string_view text = entry.Text.starts_with('+') ? entry.Text.substr(1) : entry.Text;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), number.Value);
    // NaN, which has no order, goes with 0.
    if (read.ec != std::errc() || number.Value != number.Value) number.Value = 0;
    numbers.push_back(number);
  }
  std::stable_sort(numbers.begin(), numbers.end(), [&](const TNumber& left, const TNumber& right) {
    stop.Check();
    return isDescending ? IsLess(right, left) : IsLess(left, right);
  });
  for (std::size_t i = 0; i < entries.size(); ++i) entries[i] = numbers[i].Entry;
}

// All else: each value once, sorted, then the rows by the place of their value

using TPlaces = std::vector<std::uint32_t>;

/// Places of values that are compared byte for byte.
TPlaces PlacesByBytes(const std::vector<std::string_view>& values, const TStop& stop) {
  TPlaces sorted(values.size()), places(values.size());
  std::iota(sorted.begin(), sorted.end(), 0U);
  std::sort(sorted.begin(), sorted.end(), [&](std::uint32_t left, std::uint32_t right) {
    stop.Check();
    return values[left] < values[right];
  });
  for (std::uint32_t i = 0; i < sorted.size(); ++i) places[sorted[i]] = i;
  return places;
}

TPlaces PlacesByLocale(const std::vector<std::string_view>& values, const QLocale& locale, const TStop& stop) {
  const QCollator collator(locale);
  // The locale without a language sorts by code: there, capitals would stand before all small letters.
  const bool isFolded = locale.language() == QLocale::C;
  std::vector<std::pair<QCollatorSortKey, std::uint32_t>> keys;
  std::vector<std::pair<QString, std::uint32_t>> foldedKeys;
  isFolded ? foldedKeys.reserve(values.size()) : keys.reserve(values.size());
  for (std::uint32_t i = 0; i < values.size(); ++i) {
    stop.Check();
    const QString text = ToQString(values[i]);
    if (isFolded) {
      foldedKeys.emplace_back(text.toCaseFolded(), i);
    } else {
      keys.emplace_back(collator.sortKey(text), i);
    }
  }
  TPlaces places(values.size());
  const auto sort = [&](auto& list) {
    std::stable_sort(list.begin(), list.end(), [&](const auto& left, const auto& right) {
      stop.Check();
      return left.first < right.first;
    });
    // Texts that the locale holds for the same share a place.
    std::uint32_t place = 0;
    for (std::size_t i = 0; i < list.size(); ++i) {
      if (i > 0 && list[i - 1].first < list[i].first) ++place;
      places[list[i].second] = place;
    }
  };
  isFolded ? sort(foldedKeys) : sort(keys);
  return places;
}

void SortByValue(TEntries& entries, TGroup group, bool isDescending, const QLocale& locale, const TStop& stop) {
  std::unordered_map<std::string_view, std::uint32_t> numbers;
  std::vector<std::string_view> values;
  std::vector<std::uint32_t> valueOf;
  valueOf.reserve(entries.size());
  for (const TEntry& entry : entries) {
    stop.Check();
    const auto [found, isNew] = numbers.try_emplace(entry.Text, static_cast<std::uint32_t>(values.size()));
    if (isNew) values.push_back(entry.Text);
    valueOf.push_back(found->second);
  }
  const TPlaces places = group == grTexts ? PlacesByLocale(values, locale, stop) : PlacesByBytes(values, stop);
  // Where the rows of each place begin.
  std::vector<std::size_t> begins(values.size() + 1);
  const auto placeOf = [&](std::size_t entry) {
    const std::size_t place = places[valueOf[entry]];
    return isDescending ? values.size() - 1 - place : place;
  };
  for (std::size_t i = 0; i < entries.size(); ++i) ++begins[placeOf(i) + 1];
  std::partial_sum(begins.begin(), begins.end(), begins.begin());
  TEntries sorted(entries.size());
  for (std::size_t i = 0; i < entries.size(); ++i) sorted[begins[placeOf(i)]++] = entries[i];
  entries = std::move(sorted);
}

std::vector<std::uint32_t> Sorted(const TResultRows& rows, std::size_t column, bool isDescending, const QLocale& locale,
                                  const TStop& stop) {
  std::array<TEntries, groupCount> groups;
  for (std::size_t row = 0; row < rows.GetRowCount(); ++row) {
    const TCellView cell = rows.Cell(row, column);
    groups[GroupOf(cell.Kind)].push_back({static_cast<std::uint32_t>(row), cell.Text});
  }
  for (std::uint8_t group = 0; group < grNulls; ++group) {
    stop.Check();
    if (groups[group].empty()) continue;
    if (group == grNumbers) {
      SortNumbers(groups[group], isDescending, stop);
    } else {
      SortByValue(groups[group], static_cast<TGroup>(group), isDescending, locale, stop);
    }
  }
  if (isDescending) std::reverse(groups.begin(), groups.begin() + grNulls);
  std::vector<std::uint32_t> order;
  order.reserve(rows.GetRowCount());
  for (const TEntries& group : groups) {
    for (const TEntry& entry : group) order.push_back(entry.Row);
  }
  return order;
}

}  // namespace

std::optional<std::vector<std::uint32_t>> SortedOrder(const TResultRows& rows, std::size_t column, bool isDescending,
                                                      const QLocale& locale, const std::atomic<bool>& stop) {
  try {
    return Sorted(rows, column, isDescending, locale, TStop(stop));
  } catch (const TStopped&) {
    return std::nullopt;
  }
}

}  // namespace tolvi
