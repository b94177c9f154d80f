#include <iterator>

#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/fieldtypes.h>
#include <tolvi/foundation/text.h>

namespace tolvi {
namespace {

constexpr std::string_view FieldTypeNames[] = {
    "ftUnknown",    "ftString",          "ftSmallint",      "ftInteger",     "ftWord",         "ftBoolean",
    "ftFloat",      "ftCurrency",        "ftBCD",           "ftDate",        "ftTime",         "ftDateTime",
    "ftBytes",      "ftVarBytes",        "ftAutoInc",       "ftBlob",        "ftMemo",         "ftGraphic",
    "ftFmtMemo",    "ftParadoxOle",      "ftDBaseOle",      "ftTypedBinary", "ftCursor",       "ftFixedChar",
    "ftWideString", "ftLargeint",        "ftADT",           "ftArray",       "ftReference",    "ftDataSet",
    "ftOraBlob",    "ftOraClob",         "ftVariant",       "ftInterface",   "ftIDispatch",    "ftGuid",
    "ftTimeStamp",  "ftFMTBcd",          "ftFixedWideChar", "ftWideMemo",    "ftOraTimeStamp", "ftOraInterval",
    "ftLongWord",   "ftShortint",        "ftByte",          "ftExtended",    "ftConnection",   "ftParams",
    "ftStream",     "ftTimeStampOffset", "ftObject",        "ftSingle",
};
static_assert(std::size(FieldTypeNames) == FieldTypeCount);

}  // namespace

std::string_view FldTypeToStr(TFieldType fieldType) {
  return fieldType < FieldTypeCount ? FieldTypeNames[fieldType] : FieldTypeNames[ftUnknown];
}

TFieldType StrToFldType(std::string_view text) {
  if (const auto fieldType = TryStrToFldType(text)) return *fieldType;
  throw EConvertError("'%s' is not a valid field type", {text});
}

std::optional<TFieldType> TryStrToFldType(std::string_view text) {
  for (int ordinal = 0; ordinal < FieldTypeCount; ++ordinal) {
    if (AsciiSameText(FieldTypeNames[ordinal], text)) return static_cast<TFieldType>(ordinal);
  }
  return std::nullopt;
}

std::optional<TFieldType> FieldTypeByOrdinal(std::int64_t ordinal) {
  if (ordinal < 0 || ordinal >= FieldTypeCount) return std::nullopt;
  return static_cast<TFieldType>(ordinal);
}

}  // namespace tolvi
