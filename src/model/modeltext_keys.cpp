#include <algorithm>
#include <iterator>

#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/listtext.h>
#include <tolvi/foundation/numbers.h>
#include <tolvi/foundation/text.h>
#include <tolvi/model/modeltext_keys.h>

namespace tolvi {

void RaiseWrongValue(const TSection& section, std::string_view key, std::string_view value, std::string_view what) {
  throw EConvertError("%s: '%s' is not a valid %s", {section.Where(key), value, what});
}

std::int32_t ReadInt32(const TSection& section, std::string_view key, std::int32_t byDefault, std::int32_t min,
                       std::int32_t max, std::string_view what) {
  const std::int64_t value = section.Integer(key, byDefault);
  if (value < min || value > max) RaiseWrongValue(section, key, std::to_string(value), what);
  return static_cast<std::int32_t>(value);
}

std::string TypesToList(TFieldTypes types) {
  std::string list;
  for (int ordinal = 0; ordinal < FieldTypeCount; ++ordinal) {
    const auto type = static_cast<TFieldType>(ordinal);
    if (types.Contains(type)) AppendListItem(list, FldTypeToStr(type));
  }
  return list;
}

TFieldTypes ReadTypes(const TSection& section, std::string_view key, TFieldTypes byDefault) {
  const std::optional<std::string_view> list = section.Find(key);
  if (!list) return byDefault;
  TFieldTypes types;
  for (const std::string& item : SplitList(*list)) {
    const std::optional<TFieldType> type = TryStrToFldType(item);
    if (!type) RaiseWrongValue(section, key, item, "field type");
    types.Include(*type);
  }
  return types;
}

TDesignPositions ParseDesignPositions(const TSection& section, std::string_view key, std::string_view text) {
  TDesignPositions positions;
  int* const parts[] = {&positions.Left, &positions.Top, &positions.Width, &positions.Height};
  const std::vector<std::string> items = SplitCommaText(text);
  for (std::size_t i = 0; i < std::min(items.size(), std::size(parts)); ++i) {
    const std::optional<std::int64_t> value = TryStrToInt(items[i]);
    if (!value || *value != static_cast<int>(*value)) RaiseWrongValue(section, key, items[i], "integer value");
    *parts[i] = static_cast<int>(*value);
  }
  return positions;
}

std::optional<TValueKind> TryReadValueKind(std::string_view text) {
  if (SameText(text, "vtSubQuery")) return vkSubQuery;
  return TryStrToValueKind(text);
}

}  // namespace tolvi
