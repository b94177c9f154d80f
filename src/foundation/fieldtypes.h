#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include <tolvi/foundation/api.h>
#include <tolvi/foundation/sets.h>

namespace tolvi {

/// The types of database fields, in a fixed order: the ordinals are stored in model texts.
enum TFieldType : std::uint8_t {
  ftUnknown,
  ftString,
  ftSmallint,
  ftInteger,
  ftWord,
  ftBoolean,
  ftFloat,
  ftCurrency,
  ftBCD,
  ftDate,
  ftTime,
  ftDateTime,
  ftBytes,
  ftVarBytes,
  ftAutoInc,
  ftBlob,
  ftMemo,
  ftGraphic,
  ftFmtMemo,
  ftParadoxOle,
  ftDBaseOle,
  ftTypedBinary,
  ftCursor,
  ftFixedChar,
  ftWideString,
  ftLargeint,
  ftADT,
  ftArray,
  ftReference,
  ftDataSet,
  ftOraBlob,
  ftOraClob,
  ftVariant,
  ftInterface,
  ftIDispatch,
  ftGuid,
  ftTimeStamp,
  ftFMTBcd,
  ftFixedWideChar,
  ftWideMemo,
  ftOraTimeStamp,
  ftOraInterval,
  ftLongWord,
  ftShortint,
  ftByte,
  ftExtended,
  ftConnection,
  ftParams,
  ftStream,
  ftTimeStampOffset,
  ftObject,
  ftSingle,
};

inline constexpr int FieldTypeCount = ftSingle + 1;

using TFieldTypes = TSet<TFieldType>;

/// The identifier of the type ("ftString").
TOLVI_CORE_API std::string_view FldTypeToStr(TFieldType fieldType);

/// The type of that identifier, ignoring case. Raises `EConvertError` for any other text.
TOLVI_CORE_API TFieldType StrToFldType(std::string_view text);

/// As `StrToFldType`, with nothing for an unknown identifier.
TOLVI_CORE_API std::optional<TFieldType> TryStrToFldType(std::string_view text);

/// The type with that ordinal, or nothing when there is none.
TOLVI_CORE_API std::optional<TFieldType> FieldTypeByOrdinal(std::int64_t ordinal);

/// Types whose values are texts, whatever their length: `ftString`, `ftMemo`, `ftFmtMemo`, `ftFixedChar`,
/// `ftWideString`. Comparison without regard to case applies to these.
inline constexpr TFieldTypes TextFieldTypes{ftString, ftMemo, ftFmtMemo, ftFixedChar, ftWideString};

/// `ftDate`, `ftTime`, `ftDateTime`, `ftTimeStamp`.
inline constexpr TFieldTypes DateFieldTypes{ftDate, ftTime, ftDateTime, ftTimeStamp};

}  // namespace tolvi
