#include <algorithm>

#include <tolvi/foundation/global.h>
#include <tolvi/foundation/text.h>

namespace tolvi {
namespace {

constexpr std::string_view FieldKindNames[] = {"jfkData", "jfkVirtual"};

}  // namespace

std::string_view FldKindToStr(TJFieldKind kind) { return FieldKindNames[kind]; }

TJFieldKind StrToFldKind(std::string_view text) {
  for (const TJFieldKind kind : {jfkData, jfkVirtual}) {
    if (AsciiSameText(FieldKindNames[kind], text)) return kind;
  }
  throw EConvertError("'%s' is not a valid field kind", {text});
}

std::string TvDateTimeToStr(TDateTime value, const TFormatSettings& settings) { return FloatToStr(value, settings); }

TDateTime TvStrToDateTime(std::string_view text, const TFormatSettings& settings) { return StrToFloat(text, settings); }

std::unique_ptr<char[]> GetStringsAsAnsiChar(const TStrings& strings) {
  const std::string text = strings.GetText();
  auto copy = std::make_unique<char[]>(text.size() + 1);
  std::copy(text.begin(), text.end(), copy.get());
  return copy;
}

}  // namespace tolvi
