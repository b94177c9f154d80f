#include <charconv>
#include <cmath>
#include <iterator>

#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/numbers.h>
#include <tolvi/foundation/text.h>

namespace tolvi {
namespace {

constexpr int SignificantDigits = 15;

struct TDecimal {
  std::string Digits;  // without trailing zeros
  int Exponent;        // of the first digit
};

TDecimal ToDecimal(double magnitude) {
  char buffer[32];
  const auto end =
      std::to_chars(buffer, std::end(buffer), magnitude, std::chars_format::scientific, SignificantDigits - 1).ptr;
  const std::string_view text(buffer, static_cast<std::size_t>(end - buffer));
  const auto [mantissa, power] = GetNameAndValueSep(text, "e");
  TDecimal result{ReplaceStr(mantissa, ".", ""), static_cast<int>(*TryStrToInt(power))};
  result.Digits.resize(result.Digits.find_last_not_of('0') + 1);
  return result;
}

/// The text with a point for the decimal separator if it is written as a number, else an empty text.
std::string NormalizedNumber(std::string_view text, char decimalSeparator) {
  std::string result;
  std::size_t pos = 0;
  const auto takeDigits = [&] {
    const std::size_t first = pos;
    while (pos < text.size() && text[pos] >= '0' && text[pos] <= '9') result += text[pos++];
    return pos > first;
  };
  const auto takeSign = [&] {
    if (pos >= text.size() || (text[pos] != '-' && text[pos] != '+')) return;
    if (text[pos++] == '-') result += '-';
  };
  takeSign();
  bool hasDigits = takeDigits();
  if (pos < text.size() && text[pos] == decimalSeparator) {
    ++pos;
    result += '.';
    hasDigits = takeDigits() || hasDigits;
  }
  if (!hasDigits) return {};
  if (pos < text.size() && (text[pos] == 'e' || text[pos] == 'E')) {
    ++pos;
    result += 'e';
    takeSign();
    if (!takeDigits()) return {};
  }
  return pos == text.size() ? result : std::string();
}

}  // namespace

std::string FloatToStr(double value, const TFormatSettings& settings) {
  if (std::isnan(value)) return "NAN";
  if (std::isinf(value)) return value < 0 ? "-INF" : "INF";
  if (value == 0) return "0";
  const double magnitude = std::fabs(value);
  auto [digits, exponent] = ToDecimal(magnitude);
  std::string result = value < 0 ? "-" : "";
  const bool withExponent = magnitude >= 1e15;
  const int pointAt = withExponent ? 1 : exponent + 1;
  const int count = static_cast<int>(digits.size());
  if (pointAt <= 0) {
    result += '0';
    result += settings.DecimalSeparator;
    result.append(static_cast<std::size_t>(-pointAt), '0');
    result += digits;
  } else if (pointAt >= count) {
    result += digits;
    result.append(static_cast<std::size_t>(pointAt - count), '0');
  } else {
    digits.insert(static_cast<std::size_t>(pointAt), 1, settings.DecimalSeparator);
    result += digits;
  }
  if (withExponent) result += "E" + std::to_string(exponent);
  return result;
}

std::optional<double> TryStrToFloat(std::string_view text, const TFormatSettings& settings) {
  const std::string number = NormalizedNumber(Trim(text), settings.DecimalSeparator);
  if (number.empty()) return std::nullopt;
  double value = 0;
  const auto result = std::from_chars(number.data(), number.data() + number.size(), value);
  if (result.ec != std::errc() || result.ptr != number.data() + number.size() || !std::isfinite(value)) {
    return std::nullopt;
  }
  return value;
}

double StrToFloat(std::string_view text, const TFormatSettings& settings) {
  if (const auto value = TryStrToFloat(text, settings)) return *value;
  throw EConvertError("'%s' is not a valid floating point value", {text});
}

std::optional<std::int64_t> TryStrToInt(std::string_view text) {
  std::string_view number = Trim(text);
  const bool plus = number.starts_with('+');
  if (plus) number.remove_prefix(1);
  if (plus && number.starts_with('-')) return std::nullopt;
  std::int64_t value = 0;
  const auto result = std::from_chars(number.data(), number.data() + number.size(), value);
  if (result.ec != std::errc() || result.ptr != number.data() + number.size()) return std::nullopt;
  return value;
}

std::int64_t StrToInt(std::string_view text) {
  if (const auto value = TryStrToInt(text)) return *value;
  throw EConvertError("'%s' is not a valid integer value", {text});
}

std::int64_t XStrToInt(std::string_view text, std::int64_t byDefault) { return TryStrToInt(text).value_or(byDefault); }

double XStrToFloat(std::string_view text) { return StrToFloat(text); }

std::string XFloatToStr(double value) { return FloatToStr(value); }

std::optional<bool> TryXStrToBool(std::string_view text) {
  static constexpr struct {
    std::string_view Text;
    bool Value;
  } texts[] = {{"0", false},  {"1", true}, {"true", true}, {"false", false}, {"yes", true},
               {"no", false}, {"T", true}, {"F", false},   {"Y", true},      {"N", false}};
  for (const auto& item : texts) {
    if (AsciiSameText(item.Text, text)) return item.Value;
  }
  return std::nullopt;
}

bool XStrToBool(std::string_view text) {
  if (const auto value = TryXStrToBool(text)) return *value;
  throw EConvertError("'%s' is not a valid boolean value", {text});
}

std::string_view XBoolToStr(bool value) { return value ? "1" : "0"; }

}  // namespace tolvi
