#include <algorithm>
#include <charconv>
#include <cstddef>
#include <iterator>
#include <limits>

#include <tolvi/foundation/format.h>
#include <tolvi/foundation/text.h>
#include <tolvi/query/valuenumbers.h>

namespace tolvi {
namespace {

struct TWholeType {
  TFieldType Type;
  std::int64_t Low, High;
};
template <typename T>
constexpr TWholeType WholeType(TFieldType type) {
  return {type, std::numeric_limits<T>::min(), std::numeric_limits<T>::max()};
}
constexpr TWholeType WholeTypes[] = {WholeType<std::int32_t>(ftInteger),  WholeType<std::int16_t>(ftSmallint),
                                     WholeType<std::int64_t>(ftLargeint), WholeType<std::int32_t>(ftAutoInc),
                                     WholeType<std::uint16_t>(ftWord),    WholeType<std::uint8_t>(ftByte),
                                     WholeType<std::int8_t>(ftShortint),  WholeType<std::uint32_t>(ftLongWord)};

const TWholeType& WholeTypeOf(TFieldType type) {
  return *std::find_if(std::begin(WholeTypes), std::end(WholeTypes) - 1,
                       [type](const TWholeType& item) { return item.Type == type; });
}

constexpr std::size_t MaxDecimalDigits = 64;
constexpr std::string_view CurrencyLimit = "922337203685477.5807";

/// The parts of a number as written, without leading zeros.
struct TNumberParts {
  bool Negative = false, NegativeExponent = false;
  std::string_view Whole, Fraction, Exponent;
};

class TNumberReader {
 public:
  TNumberReader(std::string_view text, char separator) : FRest(Trim(text)), FSeparator(separator) {}

  std::optional<TNumberParts> Read(bool withExponent) {
    TNumberParts parts;
    parts.Negative = TakeSign();
    const std::string_view whole = TakeDigits();
    if (!FRest.empty() && (FRest[0] == '.' || FRest[0] == FSeparator)) {
      FRest.remove_prefix(1);
      parts.Fraction = TakeDigits();
    }
    if (whole.empty() && parts.Fraction.empty()) return std::nullopt;
    if (withExponent && !FRest.empty() && (FRest[0] == 'e' || FRest[0] == 'E')) {
      FRest.remove_prefix(1);
      parts.NegativeExponent = TakeSign();
      const std::string_view exponent = TakeDigits();
      if (exponent.empty()) return std::nullopt;
      parts.Exponent = WithoutZeros(exponent);
    }
    if (!FRest.empty()) return std::nullopt;
    parts.Whole = WithoutZeros(whole);
    if (parts.Whole.empty() && WithoutZeros(parts.Fraction).empty()) parts.Negative = false;
    return parts;
  }

 private:
  bool TakeSign() {
    if (FRest.empty() || (FRest[0] != '-' && FRest[0] != '+')) return false;
    const bool negative = FRest[0] == '-';
    FRest.remove_prefix(1);
    return negative;
  }

  std::string_view TakeDigits() {
    const auto end = std::find_if(FRest.begin(), FRest.end(), [](char c) { return c < '0' || c > '9'; });
    const std::string_view digits = FRest.substr(0, static_cast<std::size_t>(end - FRest.begin()));
    FRest.remove_prefix(digits.size());
    return digits;
  }

  static std::string_view WithoutZeros(std::string_view digits) {
    return digits.substr(std::min(digits.find_first_not_of('0'), digits.size()));
  }

  std::string_view FRest;
  char FSeparator;
};

std::optional<TNumberParts> ReadParts(std::string_view text, TFieldType type, const TFormatSettings& settings) {
  return TNumberReader(text, settings.DecimalSeparator).Read(!DecimalFieldTypes.Contains(type));
}

std::string Written(const TNumberParts& parts) {
  std::string result = parts.Negative ? "-" : "";
  if (parts.Whole.empty()) result += '0';
  result += parts.Whole;
  if (!parts.Fraction.empty()) (result += '.') += parts.Fraction;
  if (!parts.Exponent.empty()) (result += parts.NegativeExponent ? "E-" : "E") += parts.Exponent;
  return result;
}

bool IsCurrency(const TNumberParts& parts) {
  const std::size_t wholeDigits = CurrencyLimit.find('.');
  if (parts.Whole.size() != wholeDigits) return parts.Whole.size() < wholeDigits;
  // With as many digits before the point, the order of the texts is that of the numbers.
  return (std::string(parts.Whole) + '.').append(parts.Fraction) <= CurrencyLimit;
}

template <typename T>
bool Fits(std::string_view number) {
  T value = 0;
  return std::from_chars(number.data(), number.data() + number.size(), value).ec == std::errc();
}

bool IsInRange(const TNumberParts& parts, std::string_view number, TFieldType type) {
  if (type == ftCurrency) return IsCurrency(parts);
  if (DecimalFieldTypes.Contains(type)) return parts.Whole.size() + parts.Fraction.size() <= MaxDecimalDigits;
  return type == ftSingle ? Fits<float>(number) : Fits<double>(number);
}

}  // namespace

std::optional<std::int64_t> TryReadWhole(std::string_view text, TFieldType type) {
  if (text.empty()) return 0;
  const auto value = TryStrToInt(text);
  const TWholeType& range = WholeTypeOf(type);
  return value && *value >= range.Low && *value <= range.High ? value : std::nullopt;
}

std::optional<std::string> TryReadNumber(std::string_view text, TFieldType type, const TFormatSettings& settings) {
  if (text.empty()) return "0";
  const auto parts = ReadParts(text, type, settings);
  if (!parts) return std::nullopt;
  std::string number = Written(*parts);
  if (!IsInRange(*parts, number, type)) return std::nullopt;
  return number;
}

double NumberValue(std::string_view number) {
  double value = 0;
  std::from_chars(number.data(), number.data() + number.size(), value);
  return value;
}

std::string ExpectedNumber(std::string_view text, TFieldType type, const TFormatSettings& settings) {
  const TWholeType& whole = WholeTypeOf(type);
  if (whole.Type == type) {
    return "a whole number from " + std::to_string(whole.Low) + " to " + std::to_string(whole.High);
  }
  if (!ReadParts(text, type, settings)) return std::string("a number such as 12") + settings.DecimalSeparator + "5";
  if (type == ftCurrency) return Format("an amount from -%s to %s", {CurrencyLimit, CurrencyLimit});
  if (DecimalFieldTypes.Contains(type)) return Format("a number of at most %d digits", {MaxDecimalDigits});
  const std::string_view sizes = type == ftSingle ? "1.2E-38 to 3.4E38" : "2.2E-308 to 1.7E308";
  return Format("a number whose size is 0 or from %s", {sizes});
}

}  // namespace tolvi
