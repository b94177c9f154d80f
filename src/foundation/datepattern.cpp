#include <algorithm>

#include <tolvi/foundation/datepattern.h>
#include <tolvi/foundation/text.h>

namespace tolvi {
namespace {

constexpr struct {
  char Letter;
  TPatternKind Kind;
} PatternLetters[] = {{'y', pkYear},   {'m', pkMonth}, {'d', pkDay},       {'h', pkHour},   {'n', pkMinute},
                      {'s', pkSecond}, {'z', pkMSec},  {'t', pkShortTime}, {'c', pkGeneral}};

constexpr char Lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c; }

TPatternItem TakeLetters(std::string_view rest) {
  for (const std::string_view clock : {"am/pm", "a/p"}) {
    if (AsciiSameText(rest.substr(0, clock.size()), clock)) return {pkAmPm, rest.substr(0, clock.size())};
  }
  for (const auto& item : PatternLetters) {
    if (item.Letter != Lower(rest[0])) continue;
    std::size_t count = 1;
    while (count < rest.size() && Lower(rest[count]) == item.Letter) ++count;
    return {item.Kind, rest.substr(0, count)};
  }
  return {pkLiteral, rest.substr(0, 1)};
}

}  // namespace

TPattern ParsePattern(std::string_view pattern) {
  TPattern items;
  TPatternKind lastLetter = pkLiteral;
  while (!pattern.empty()) {
    const char first = pattern[0];
    if (first == '\'' || first == '"') {
      const std::string_view quoted = GetBeforeSep(pattern.substr(1), pattern.substr(0, 1));
      items.push_back({pkLiteral, quoted});
      pattern.remove_prefix(std::min(pattern.size(), quoted.size() + 2));
      continue;
    }
    TPatternItem item = first == '/'   ? TPatternItem{pkDateSep, pattern.substr(0, 1)}
                        : first == ':' ? TPatternItem{pkTimeSep, pattern.substr(0, 1)}
                                       : TakeLetters(pattern);
    if (item.Kind == pkMonth && lastLetter == pkHour && item.Count() <= 2) item.Kind = pkMinute;
    if (item.Kind >= pkYear && item.Kind <= pkGeneral) lastLetter = item.Kind;
    items.push_back(item);
    pattern.remove_prefix(item.Count());
  }
  return items;
}

bool HasHalfDays(const TPattern& pattern) {
  return std::any_of(pattern.begin(), pattern.end(), [](const TPatternItem& item) { return item.Kind == pkAmPm; });
}

std::string_view HalfDayText(std::string_view clock, bool afternoon) {
  return afternoon ? GetAfterSep(clock, "/") : GetBeforeSep(clock, "/");
}

}  // namespace tolvi
