#include <algorithm>
#include <iterator>

#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/text.h>
#include <tolvi/model/sqlformats.h>
#include <tolvi/query/valuedates.h>
#include <tolvi/query/valuenumbers.h>

namespace tolvi {
namespace {

/// How the values of a type are written.
struct TDateForm {
  TFieldType Type;
  bool HasDate, HasTime;
  std::string_view Keyword;
  const std::string& (TSQLFormats::*Pattern)() const;
  std::string_view Expected;
};
constexpr TDateForm DateForms[] = {
    {ftDate, true, false, "DATE", &TSQLFormats::GetDate, "a date"},
    {ftTime, false, true, "TIME", &TSQLFormats::GetTime, "a time"},
    {ftDateTime, true, true, "TIMESTAMP", &TSQLFormats::GetDateTime, "a date and time"},
    {ftTimeStamp, true, true, "TIMESTAMP", &TSQLFormats::GetDateTime, "a date and time"},
};

const TDateForm& FormOf(TFieldType type) {
  return *std::find_if(std::begin(DateForms), std::end(DateForms) - 1,
                       [type](const TDateForm& form) { return form.Type == type; });
}

void AppendNumber(std::string& out, int number, std::size_t digits) {
  const std::size_t start = out.size();
  out.append(digits, '0');
  for (std::size_t pos = start + digits; pos > start; number /= 10) out[--pos] = static_cast<char>('0' + number % 10);
}

void AppendTime(std::string& out, const TDateTimeParts& parts) {
  AppendNumber(out, parts.hour, 2);
  AppendNumber(out += ':', parts.minute, 2);
  AppendNumber(out += ':', parts.second, 2);
}

std::string OracleLiteral(const TDateTimeParts& parts) {
  std::string result = "TO_DATE('";
  AppendNumber(result, parts.day, 2);
  AppendNumber(result += '-', parts.month, 2);
  AppendNumber(result += '-', parts.year, 4);
  AppendTime(result += ' ', parts);
  return result += "', 'dd-mm-yyyy hh24:mi:ss')";
}

/// The pattern inside the quotes if all of it is one quoted part. Such a pattern would write the same text for every
/// date; its quotes are meant as those of the literal.
std::string_view QuotedPattern(std::string_view pattern) {
  const bool quoted = pattern.size() > 2 && pattern.front() == '\'' && pattern.find('\'', 1) == pattern.size() - 1;
  return quoted ? pattern.substr(1, pattern.size() - 2) : std::string_view();
}

}  // namespace

std::optional<TDateValue> TryReadDate(std::string_view text, const TFormatSettings& settings) {
  TDateValue result;
  if (const auto number = TryReadNumber(text, ftFloat, settings)) {
    result.Value = NumberValue(*number);
  } else if (auto value = TryStrToDateTime(text, settings); value || (value = TryStrToDateTime(text))) {
    result.Value = *value;
  } else {
    return std::nullopt;
  }
  try {
    result.Parts = DecodeDateTime(result.Value);
  } catch (const EConvertError&) {
    return std::nullopt;
  }
  return result;
}

std::string PlainDate(const TDateValue& date, TFieldType type) {
  const TDateForm& form = FormOf(type);
  std::string result;
  if (form.HasDate) {
    AppendNumber(result, date.Parts.year, 4);
    AppendNumber(result += '-', date.Parts.month, 2);
    AppendNumber(result += '-', date.Parts.day, 2);
    if (form.HasTime) result += ' ';
  }
  if (form.HasTime) AppendTime(result, date.Parts);
  return result;
}

std::string DateLiteral(const TDateValue& date, TFieldType type, TSQLSyntax syntax, const TSQLFormats& formats) {
  if (syntax == ssOracle) return OracleLiteral(date.Parts);
  const TDateForm& form = FormOf(type);
  const bool isNexus = syntax == ssNexusDB;
  const std::string& pattern = (formats.*form.Pattern)();
  if (isNexus || pattern.empty()) {
    std::string result;
    if (isNexus) (result += form.Keyword) += ' ';
    return ((result += '\'') += PlainDate(date, type)) += '\'';
  }
  const std::string_view quoted = QuotedPattern(pattern);
  if (quoted.empty()) return FormatDateTime(pattern, date.Value);
  return QuotedString(FormatDateTime(quoted, date.Value));
}

std::string ExpectedDate(TFieldType type, const TFormatSettings& settings) {
  constexpr TDateTime day = 36525, time = 0.5;
  const TDateForm& form = FormOf(type);
  std::string result = std::string(form.Expected) + " such as ";
  if (!form.HasDate) return result += TimeToStr(time, settings);
  return result += DateTimeToStr(form.HasTime ? day + time : day, settings);
}

}  // namespace tolvi
