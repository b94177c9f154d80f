#pragma once

#include <QMetaType>
#include <cstdint>
#include <string_view>

#include <tolvi/foundation/fieldtypes.h>

// The field types for what databases call their types. A type is chosen by what its values can be compared with: texts
// that take no LIKE, or nothing but their own kind, become types that are shown and that no operator suits.

namespace tolvi {

struct TColumnType {
  TFieldType Type = ftUnknown;
  /// Characters of a text, digits after the point of a decimal number; 0 where there is no limit or none is known.
  int Size = 0;

  bool operator==(const TColumnType&) const = default;
};

/// Of a type as a table declares it ("DECIMAL(10,2)"): SQLite keeps any text. What is no well-known name goes by the
/// rules of affinity. Nothing is known of an expression's values, whose type is empty.
TColumnType SQLiteColumnType(std::string_view declared);

/// `category` and `modifier` are those of the type and column; `isCounted`: a sequence or identity gives the values.
TColumnType PostgreSQLColumnType(std::string_view name, std::string_view category, std::int32_t modifier,
                                 bool isCounted);

/// `full` is the type with its brackets ("tinyint(1) unsigned"); `length` and `scale` as the catalogue has them.
TColumnType MySQLColumnType(std::string_view name, std::string_view full, std::int64_t length, std::int64_t scale,
                            bool isCounted);

/// `typeId` is the number of the type in ODBC, `metaType` what its driver makes of a value.
TColumnType OdbcColumnType(int typeId, QMetaType metaType, int length, int precision);

}  // namespace tolvi
