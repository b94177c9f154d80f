#include "apps/workbench/results/typedvalue.h"

#include <algorithm>
#include <string_view>

namespace tolvi {
namespace {

constexpr std::string_view datePattern = "0000-00-00", timePattern = "00:00:00";

/// Whether the text has a digit for each "0", and all else as it stands.
bool Fits(std::string_view text, std::string_view pattern) {
  return std::equal(text.begin(), text.end(), pattern.begin(), pattern.end(), [](char letter, char wanted) {
    return wanted == '0' ? letter >= '0' && letter <= '9' : letter == wanted;
  });
}

/// With or without a part of a second.
bool IsTime(std::string_view text) {
  const std::string_view part = text.substr(std::min(timePattern.size(), text.size()));
  const bool isPart = part.empty() || (part.size() > 1 && part.front() == '.' &&
                                       part.find_first_not_of("0123456789", 1) == std::string_view::npos);
  return isPart && Fits(text.substr(0, timePattern.size()), timePattern);
}

bool IsDate(std::string_view text) { return Fits(text, datePattern); }

bool IsDateTime(std::string_view text) {
  return text.size() > datePattern.size() && text[datePattern.size()] == ' ' &&
         IsDate(text.substr(0, datePattern.size())) && IsTime(text.substr(datePattern.size() + 1));
}

}  // namespace

TSqlValue TypedValue(TSqlValue value, TFieldType type) {
  if (value.Kind == svNumber && type == ftBoolean && (value.Text == "0" || value.Text == "1")) {
    return {svBoolean, value.Text == "1" ? "true" : "false"};
  }
  if (value.Kind != svText) return value;
  const bool isMoment = type == ftDateTime || type == ftTimeStamp;
  if ((type == ftDate || isMoment) && IsDate(value.Text)) value.Kind = svDate;
  if (type == ftTime && IsTime(value.Text)) value.Kind = svTime;
  if ((type == ftDate || isMoment) && IsDateTime(value.Text)) value.Kind = svDateTime;
  return value;
}

}  // namespace tolvi
