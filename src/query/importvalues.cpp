#include <cmath>

#include <tolvi/foundation/numbers.h>
#include <tolvi/foundation/text.h>
#include <tolvi/model/sqlformats.h>
#include <tolvi/query/importvalues.h>
#include <tolvi/query/templatematch.h>

namespace tolvi {

namespace {

// In the order in which they are tried.
constexpr std::string_view DateFormats[] = {"yyyy-mm-dd", "mm/dd/yyyy", "mm/dd/yy", "dd.mm.yyyy", "dd.mm.yy"};
constexpr std::string_view DateTimeFormats[] = {"yyyy-mm-dd hh:nn:ss", "mm/dd/yyyy hh:nn:ss", "mm/dd/yy hh:nn:ss",
                                                "dd.mm.yyyy hh:nn:ss", "dd.mm.yy hh:nn:ss"};
constexpr std::string_view TimeFormats[] = {"hh:nn:ss", "hh:nn", "hh:nn:ss.zzz"};

template <typename TFormats>
std::optional<TDateTime> TryFormats(std::string_view text, const TFormats& formats) {
  for (const std::string_view format : formats) {
    if (const auto value = TryStrToDateTimeByFormat(text, format)) return value;
  }
  return std::nullopt;
}

bool IsBlank(char c) { return static_cast<unsigned char>(c) <= ' '; }

std::string_view LeadingBlanks(std::string_view text) {
  std::size_t count = 0;
  while (count < text.size() && IsBlank(text[count])) ++count;
  return text.substr(0, count);
}

}  // namespace

std::optional<TDateTime> TryReadSQLDate(TFieldType type, std::string_view text, const TFormatSettings& settings) {
  if (type == ftDate) return TryFormats(text, DateFormats);
  if (type == ftDateTime || type == ftTimeStamp) return TryFormats(text, DateTimeFormats);
  if (const auto value = TryFormats(text, TimeFormats)) return value;
  // A time of the locale has no day.
  const auto value = TryStrToDateTime(text, settings);
  return value && *value >= 0 && *value < 1 ? value : std::nullopt;
}

TDateTime Today() { return std::floor(Now()); }

std::string ReadSQLBoolean(std::string_view text, const TSQLFormats& formats) {
  if (!TryXStrToBool(text)) {
    if (SameText(text, formats.GetTrueValue())) return "1";
    if (SameText(text, formats.GetFalseValue())) return "0";
  }
  return std::string(text);
}

bool IsPlainValue(std::string_view text, TFieldType type, const TSQLFormats& formats) {
  if (type == ftBoolean && TryXStrToBool(ReadSQLBoolean(text, formats))) return true;
  return TryStrToFloat(text).has_value();
}

std::vector<TSQLListItem> SplitSQLList(std::string_view list) {
  std::vector<TSQLListItem> items;
  int depth = 0;
  bool inLiteral = false;
  std::size_t start = 0;
  for (std::size_t at = 0; at <= list.size(); ++at) {
    const char c = at < list.size() ? list[at] : ',';
    if (c == '\'') inLiteral = !inLiteral;
    if (!inLiteral && c == '(') ++depth;
    if (!inLiteral && c == ')') --depth;
    if (at < list.size() && (c != ',' || inLiteral || depth > 0)) continue;
    const std::string_view written = list.substr(start, at - start);
    const std::string_view item = Trim(written);
    const bool isLiteral = IsWholeLiteral(item);
    items.push_back({isLiteral ? DecodeLiteral(item) : std::string(item), isLiteral, LeadingBlanks(written)});
    start = at + 1;
  }
  return items;
}

std::string ListToCommaText(const std::vector<TSQLListItem>& items) {
  std::string text;
  for (const TSQLListItem& item : items) {
    if (!text.empty()) text += ',';
    text.append(item.Before).append(item.IsLiteral ? QuotedString(item.Text, '"') : ComposeCommaText({item.Text}));
  }
  return text;
}

}  // namespace tolvi
