#include <algorithm>
#include <charconv>
#include <cstddef>
#include <iterator>
#include <optional>

#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/text.h>
#include <tolvi/model/sqlformats.h>
#include <tolvi/query/valuedates.h>
#include <tolvi/query/valuenumbers.h>
#include <tolvi/query/values.h>

namespace tolvi {
namespace {

constexpr char Quote = '\'';
constexpr std::size_t ShownBytes = 60;

// ---- Errors ---------------------------------------------------------------------------------------------------------

/// The bytes of the character at the beginning of the text; 0 when it is none that can be shown.
std::size_t ShownCharacter(std::string_view text) {
  const auto lead = static_cast<unsigned char>(text[0]);
  if (lead < 0x80) return lead >= ' ' && lead != 0x7F ? 1 : 0;
  const std::size_t size = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
  const bool isControl = lead == 0xC2 && text.size() > 1 && static_cast<unsigned char>(text[1]) < 0xA0;
  return size <= text.size() && IsValidUtf8(text.substr(0, size)) && !isControl ? size : 0;
}

/// The value for a message: not too long, "?" for what cannot be shown.
std::string Shown(std::string_view value) {
  std::string result;
  for (std::size_t pos = 0; pos < value.size();) {
    const std::size_t size = ShownCharacter(value.substr(pos));
    const std::size_t step = std::max<std::size_t>(size, 1);
    if (value.size() > ShownBytes && pos + step > ShownBytes) return result + "...";
    if (size > 0) {
      result += value.substr(pos, size);
    } else {
      result += '?';
    }
    pos += step;
  }
  return result;
}

[[noreturn]] void Refuse(std::string_view value, const TValueContext& context, std::string_view fault) {
  throw EJQueryPanelError(0, Format("Field \"%s\": \"%s\" %s", {context.Name, Shown(value), fault}));
}

// ---- Contents -------------------------------------------------------------------------------------------------------

/// How the values of a type are read.
enum TValueClass : std::uint8_t { vcText, vcWhole, vcNumber, vcBoolean, vcDate };

TValueClass ClassOf(TFieldType type) {
  if (IntegerFieldTypes.Contains(type)) return vcWhole;
  if (FloatFieldTypes.Contains(type)) return vcNumber;
  if (DateFieldTypes.Contains(type)) return vcDate;
  return type == ftBoolean ? vcBoolean : vcText;
}

void CheckText(std::string_view value, const TValueContext& context) {
  unsigned char bits = 0;
  bool hasNul = false;
  for (const char c : value) {
    bits |= static_cast<unsigned char>(c);
    hasNul |= c == '\0';
  }
  if (hasNul) Refuse(value, context, "holds a NUL character, which SQL cannot hold: take it out");
  if (bits >= 0x80 && !IsValidUtf8(value)) Refuse(value, context, "holds bytes that are no UTF-8 text: enter it anew");
}

std::int64_t ReadWhole(std::string_view value, TFieldType type, const TValueContext& context) {
  if (const auto number = TryReadWhole(value, type)) return *number;
  Refuse(value, context, "is not " + ExpectedNumber(value, type, context.Settings));
}

std::string ReadNumber(std::string_view value, TFieldType type, const TValueContext& context) {
  if (auto number = TryReadNumber(value, type, context.Settings)) return *std::move(number);
  Refuse(value, context, "is not " + ExpectedNumber(value, type, context.Settings));
}

bool ReadBoolean(std::string_view value, const TValueContext& context) {
  if (value.empty()) return false;
  const std::string_view text = Trim(value);
  if (const auto boolean = TryXStrToBool(text)) return *boolean;
  if (SameText(text, context.Formats.GetTrueValue())) return true;
  if (SameText(text, context.Formats.GetFalseValue())) return false;
  Refuse(value, context, "is neither true nor false");
}

const std::string& BooleanText(bool value, const TValueContext& context) {
  return value ? context.Formats.GetTrueValue() : context.Formats.GetFalseValue();
}

TDateValue ReadDate(std::string_view value, TFieldType type, const TValueContext& context) {
  if (const auto date = TryReadDate(value, context.Settings)) return *date;
  Refuse(value, context, "is not " + ExpectedDate(type, context.Settings));
}

/// What stands between the quotes of a literal; nothing for a text of another form, such as a function call.
std::optional<std::string_view> QuotedContent(std::string_view literal, char quote) {
  if (literal.size() < 2 || literal.front() != quote || literal.back() != quote) return std::nullopt;
  const std::string_view content = literal.substr(1, literal.size() - 2);
  for (std::size_t pos = content.find(quote); pos < content.size(); pos = content.find(quote, pos + 2)) {
    if (pos + 1 == content.size() || content[pos + 1] != quote) return std::nullopt;
  }
  return content;
}

/// The content of a date's literal, to stand beside other text in one literal.
std::string DateContent(std::string_view value, TFieldType type, const TValueContext& context) {
  const std::string literal = DateLiteral(ReadDate(value, type, context), type, context.Syntax, context.Formats);
  if (const auto content = QuotedContent(literal, Quote)) return std::string(*content);
  Refuse(value, context,
         Format("becomes %s, which cannot be part of a text: choose another operator for the date", {literal}));
}

// ---- Literals -------------------------------------------------------------------------------------------------------

void AppendDoubled(std::string& out, std::string_view text) {
  for (std::size_t pos; (pos = text.find(Quote)) != std::string_view::npos; text.remove_prefix(pos + 1)) {
    (out += text.substr(0, pos + 1)) += Quote;
  }
  out += text;
}

/// A literal of text: `before` and `after` as they stand.
void AppendText(std::string& out, std::string_view before, std::string_view value, std::string_view after) {
  (out += Quote) += before;
  AppendDoubled(out, value);
  (out += after) += Quote;
}

/// A literal without quotes. A minus sign must not form the beginning of a comment with one that stands before it.
void AppendPlain(std::string& out, std::string_view text) {
  if (text.starts_with('-') && out.ends_with('-')) out += ' ';
  out += text;
}

struct TDigits {
  char Buffer[24];
  std::size_t Size;

  explicit TDigits(std::int64_t number)
      : Size(static_cast<std::size_t>(std::to_chars(Buffer, std::end(Buffer), number).ptr - Buffer)) {}
  std::string_view Text() const { return {Buffer, Size}; }
};

}  // namespace

void AppendLiteral(std::string& out, std::string_view value, TFieldType type, const TValueContext& context,
                   std::string_view before, std::string_view after) {
  const bool hasText = !before.empty() || !after.empty();
  const bool quoted = hasText || context.Formats.GetQuotedTypes().Contains(type);
  const auto append = [&](std::string_view text) {
    quoted ? AppendText(out, before, text, after) : AppendPlain(out, text);
  };
  switch (ClassOf(type)) {
    case vcWhole:
      return append(TDigits(ReadWhole(value, type, context)).Text());
    case vcNumber:
      return append(ReadNumber(value, type, context));
    case vcBoolean:
      return append(BooleanText(ReadBoolean(value, context), context));
    case vcDate:
      if (!hasText) {
        out += DateLiteral(ReadDate(value, type, context), type, context.Syntax, context.Formats);
      } else {
        (((out += Quote) += before) += DateContent(value, type, context) += after) += Quote;
      }
      return;
    case vcText:
      CheckText(value, context);
      return AppendText(out, before, value, after);
  }
}

void AppendLiteralList(std::string& out, std::string_view list, TFieldType type, const TValueContext& context,
                       std::string_view before, std::string_view after) {
  const std::vector<std::string> items = SplitCommaText(list);
  if (items.empty()) {
    throw EJQueryPanelError(0, Format("Field \"%s\": the list is empty, give at least one value", {context.Name}));
  }
  bool isFirst = true;
  for (const std::string& item : items) {
    if (!isFirst) out += ',';
    isFirst = false;
    AppendLiteral(out, item, type, context, before, after);
  }
}

// ---- Bound values ---------------------------------------------------------------------------------------------------

namespace {

/// The content of a literal of text as the text that it stands for.
std::string Undoubled(std::string_view content) { return ReplaceStr(content, "''", "'"); }

std::string BoundDateText(const TDateValue& date, TFieldType type, const TValueContext& context) {
  if (context.Syntax != ssOracle && context.Syntax != ssNexusDB) {
    const std::string literal = DateLiteral(date, type, context.Syntax, context.Formats);
    if (const auto content = QuotedContent(literal, Quote)) return Undoubled(*content);
    if (const auto content = QuotedContent(literal, '#')) return std::string(*content);
  }
  return PlainDate(date, type);
}

std::string BesideText(std::string_view value, TFieldType type, const TValueContext& context) {
  switch (ClassOf(type)) {
    case vcWhole:
      return std::string(TDigits(ReadWhole(value, type, context)).Text());
    case vcNumber:
      return ReadNumber(value, type, context);
    case vcBoolean:
      return BooleanText(ReadBoolean(value, context), context);
    case vcDate:
      return Undoubled(DateContent(value, type, context));
    case vcText:
      break;
  }
  CheckText(value, context);
  return std::string(value);
}

}  // namespace

TBoundValue ToBoundValue(std::string_view value, TFieldType type, const TValueContext& context, std::string_view before,
                         std::string_view after) {
  TBoundValue result;
  const TValueClass valueClass = ClassOf(type);
  if (!before.empty() || !after.empty() || valueClass == vcText) {
    result.Type = valueClass == vcText ? type : ftString;
    result.Text = (Undoubled(before) += BesideText(value, type, context)) += Undoubled(after);
    result.Value = result.Text;
    return result;
  }
  result.Type = type;
  switch (valueClass) {
    case vcWhole: {
      const std::int64_t number = ReadWhole(value, type, context);
      result.Value = number;
      result.Text = TDigits(number).Text();
      break;
    }
    case vcNumber:
      result.Text = ReadNumber(value, type, context);
      if (DecimalFieldTypes.Contains(type)) {
        result.Value = result.Text;
      } else {
        result.Value = NumberValue(result.Text);
      }
      break;
    case vcBoolean: {
      const bool boolean = ReadBoolean(value, context);
      result.Value = boolean;
      result.Text = BooleanText(boolean, context);
      break;
    }
    case vcDate: {
      const TDateValue date = ReadDate(value, type, context);
      result.Value = date.Value;
      result.Text = BoundDateText(date, type, context);
      break;
    }
    case vcText:
      break;
  }
  return result;
}

// ---- Values for people and for storing ------------------------------------------------------------------------------

std::string ValueToDisplay(std::string_view value, TFieldType type, const TFormatSettings& settings) {
  if (value.empty() || !DateFieldTypes.Contains(type)) return std::string(value);
  const auto date = TryReadDate(value, settings);
  if (!date) return std::string(value);
  return type == ftTime ? TimeToStr(date->Value, settings) : DateTimeToStr(date->Value, settings);
}

std::string NormalizeValue(std::string_view value, TFieldType type, const TFormatSettings& settings) {
  if (value.empty()) return {};
  switch (ClassOf(type)) {
    case vcWhole:
      if (const auto number = TryReadWhole(value, type)) return std::to_string(*number);
      break;
    case vcNumber:
      if (auto number = TryReadNumber(value, type, settings)) return *std::move(number);
      break;
    case vcBoolean:
      if (const auto boolean = TryXStrToBool(Trim(value))) return *boolean ? "True" : "False";
      break;
    case vcDate:
      if (const auto date = TryReadDate(value, settings)) return XFloatToStr(date->Value);
      break;
    case vcText:
      break;
  }
  return std::string(value);
}

}  // namespace tolvi
