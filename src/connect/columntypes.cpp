#include <algorithm>
#include <charconv>
#include <iterator>
#include <limits>
#include <string>

#include <tolvi/connect/columntypes.h>
#include <tolvi/foundation/text.h>

namespace tolvi {
namespace {

/// Which number in a type's brackets is its size.
enum TSizeFrom : std::uint8_t { sfNone, sfLength, sfScale };

struct TTypeName {
  std::string_view Name;
  TFieldType Type;
  TSizeFrom SizeFrom = sfNone;
};

/// What is shown as text and compared with nothing.
constexpr TFieldType ShownOnly = ftWideMemo;

// Whole numbers are those that the words mean elsewhere, although SQLite keeps 64 bits in all of them.
constexpr TTypeName SQLiteTypes[] = {
    {"bigint", ftLargeint},
    {"binary", ftBlob},
    {"bit", ftBoolean},
    {"blob", ftBlob},
    {"bool", ftBoolean},
    {"boolean", ftBoolean},
    {"char", ftFixedChar, sfLength},
    {"character", ftFixedChar, sfLength},
    {"character varying", ftString, sfLength},
    {"clob", ftMemo},
    {"currency", ftCurrency},
    {"date", ftDate},
    {"datetime", ftDateTime},
    {"dec", ftBCD, sfScale},
    {"decimal", ftBCD, sfScale},
    {"double", ftFloat},
    {"double precision", ftFloat},
    {"float", ftFloat},
    {"guid", ftString},
    {"int", ftInteger},
    {"int2", ftSmallint},
    {"int4", ftInteger},
    {"int8", ftLargeint},
    {"integer", ftInteger},
    {"json", ftMemo},
    {"logical", ftBoolean},
    {"longtext", ftMemo},
    {"mediumint", ftInteger},
    {"memo", ftMemo},
    {"money", ftCurrency},
    {"native character", ftFixedChar, sfLength},
    {"nchar", ftFixedChar, sfLength},
    {"number", ftBCD, sfScale},
    {"numeric", ftBCD, sfScale},
    {"nvarchar", ftString, sfLength},
    {"real", ftFloat},
    {"smallint", ftSmallint},
    {"string", ftString, sfLength},
    {"text", ftString, sfLength},
    {"time", ftTime},
    {"timestamp", ftDateTime},
    {"tinyint", ftSmallint},
    {"unsigned big int", ftLargeint},
    {"uuid", ftString},
    {"varbinary", ftBlob},
    {"varchar", ftString, sfLength},
    {"varchar2", ftString, sfLength},
    {"varying character", ftString, sfLength},
};

/// Parts of a name that decide where it is not well known; the first that it holds.
constexpr TTypeName Affinities[] = {{"int", ftLargeint}, {"char", ftString}, {"clob", ftString}, {"text", ftString},
                                    {"blob", ftBlob},    {"real", ftFloat},  {"floa", ftFloat},  {"doub", ftFloat}};

constexpr TTypeName PostgreSQLTypes[] = {
    {"bool", ftBoolean},
    {"bpchar", ftFixedChar, sfLength},
    {"bytea", ftBlob},
    {"date", ftDate},
    {"float4", ftFloat},
    {"float8", ftFloat},
    {"int2", ftSmallint},
    {"int4", ftInteger},
    {"int8", ftLargeint},
    {"interval", ftOraInterval},
    {"money", ftCurrency},
    {"numeric", ftBCD, sfScale},
    {"oid", ftLargeint},
    {"text", ftString},
    {"time", ftTime},
    {"timestamp", ftDateTime},
    {"timestamptz", ftDateTime},
    {"timetz", ftTime},
    {"uuid", ftGuid},
    {"varchar", ftString, sfLength},
};

/// Types that a database defines: texts, among them those that ignore case, and lists of words.
constexpr TTypeName PostgreSQLCategories[] = {{"S", ftString}, {"E", ftString}};

constexpr TTypeName MySQLTypes[] = {
    {"bigint", ftLargeint},
    {"binary", ftBytes, sfLength},
    {"bit", ftLargeint},
    {"blob", ftBlob},
    {"char", ftFixedChar, sfLength},
    {"date", ftDate},
    {"datetime", ftDateTime},
    {"decimal", ftBCD, sfScale},
    {"double", ftFloat},
    {"enum", ftString, sfLength},
    {"float", ftFloat},
    {"inet4", ftString},
    {"inet6", ftString},
    {"int", ftInteger},
    {"json", ftMemo},
    {"longblob", ftBlob},
    {"longtext", ftMemo},
    {"mediumblob", ftBlob},
    {"mediumint", ftInteger},
    {"mediumtext", ftMemo},
    {"set", ftString, sfLength},
    {"smallint", ftSmallint},
    {"text", ftMemo},
    {"time", ftTime},
    {"timestamp", ftDateTime},
    {"tinyblob", ftBlob},
    {"tinyint", ftSmallint},
    {"tinytext", ftMemo},
    {"uuid", ftGuid},
    {"varbinary", ftVarBytes, sfLength},
    {"varchar", ftString, sfLength},
    {"year", ftSmallint},
};

/// The next larger type where there is no sign.
constexpr TTypeName MySQLUnsigned[] = {{"smallint", ftWord}, {"int", ftLargeint}};

/// The numbers that ODBC has for types, of those that their values do not tell.
enum TOdbcType {
  odbcGuid = -11,
  odbcWLongVarchar = -10,
  odbcWChar = -8,
  odbcBit = -7,
  odbcTinyInt = -6,
  odbcLongVarchar = -1,
  odbcChar = 1,
  odbcNumeric = 2,
  odbcDecimal = 3,
  odbcSmallInt = 5,
};
struct TTypeNumber {
  TOdbcType Number;
  TFieldType Type;
};
constexpr TTypeNumber OdbcTypes[] = {
    {odbcNumeric, ftBCD},    {odbcDecimal, ftBCD},     {odbcSmallInt, ftSmallint}, {odbcTinyInt, ftSmallint},
    {odbcBit, ftBoolean},    {odbcGuid, ftGuid},       {odbcLongVarchar, ftMemo},  {odbcWLongVarchar, ftMemo},
    {odbcChar, ftFixedChar}, {odbcWChar, ftFixedChar},
};

template <std::size_t Count>
const TTypeName* FindType(std::string_view name, const TTypeName (&table)[Count]) {
  const auto* found =
      std::find_if(std::begin(table), std::end(table), [name](const TTypeName& type) { return type.Name == name; });
  return found == std::end(table) ? nullptr : found;
}

int ToSize(std::int64_t number) {
  return static_cast<int>(std::clamp<std::int64_t>(number, 0, std::numeric_limits<int>::max()));
}

TColumnType Sized(const TTypeName& type, std::int64_t length, std::int64_t scale) {
  const std::int64_t sizes[] = {0, length, scale};
  return {type.Type, ToSize(sizes[type.SizeFrom])};
}

std::int64_t LeadingNumber(std::string_view text) {
  text = Trim(text);
  std::int64_t number = 0;
  std::from_chars(text.data(), text.data() + text.size(), number);
  return number;
}

/// In lower case, words with one blank between them.
std::string Normalized(std::string_view text) {
  std::string result;
  for (const char c : AsciiLower(Trim(text))) {
    if (c > ' ') {
      result += c;
    } else if (!result.ends_with(' ')) {
      result += ' ';
    }
  }
  return result;
}

/// A counter is no number to reckon with; one of 64 bits keeps its range.
TColumnType Counted(const TColumnType& type, bool isCounted) {
  return isCounted && (type.Type == ftInteger || type.Type == ftSmallint) ? TColumnType{ftAutoInc} : type;
}

}  // namespace

TColumnType SQLiteColumnType(std::string_view declared) {
  const auto [word, brackets] = GetNameAndValueSep(declared, "(");
  const std::string name = Normalized(word);
  if (name.empty()) return {ShownOnly};
  if (const TTypeName* type = FindType(name, SQLiteTypes)) {
    return Sized(*type, LeadingNumber(brackets), LeadingNumber(GetAfterSep(brackets, ",")));
  }
  const auto* affinity = std::find_if(std::begin(Affinities), std::end(Affinities), [&name](const TTypeName& part) {
    return name.find(part.Name) != std::string::npos;
  });
  return {affinity == std::end(Affinities) ? ftFloat : affinity->Type};
}

TColumnType PostgreSQLColumnType(std::string_view name, std::string_view category, std::int32_t modifier,
                                 bool isCounted) {
  constexpr std::int32_t Header = 4;
  constexpr std::uint32_t ScaleMask = 0x7FF, ScaleSign = 0x400;
  std::int32_t length = 0, scale = 0;
  if (modifier >= Header) {
    length = modifier - Header;
    const std::uint32_t bits = static_cast<std::uint32_t>(length) & ScaleMask;
    // A negative scale rounds before the point.
    scale = bits >= ScaleSign ? 0 : static_cast<std::int32_t>(bits);
  }
  const TTypeName* type = FindType(name, PostgreSQLTypes);
  if (type == nullptr) type = FindType(category, PostgreSQLCategories);
  return type == nullptr ? TColumnType{ShownOnly} : Counted(Sized(*type, length, scale), isCounted);
}

TColumnType MySQLColumnType(std::string_view name, std::string_view full, std::int64_t length, std::int64_t scale,
                            bool isCounted) {
  const std::string lower = AsciiLower(name), whole = AsciiLower(full);
  if (whole.starts_with("tinyint(1)") || whole == "bit(1)") return {ftBoolean};
  const TTypeName* type = nullptr;
  if (whole.find(" unsigned") != std::string::npos) type = FindType(lower, MySQLUnsigned);
  if (type == nullptr) type = FindType(lower, MySQLTypes);
  // The rest are shapes on a map.
  return type == nullptr ? TColumnType{ftBlob} : Counted(Sized(*type, length, scale), isCounted);
}

TColumnType OdbcColumnType(int typeId, QMetaType metaType, int length, int precision) {
  constexpr int LongestText = 4000;
  if (const auto* type = std::find_if(std::begin(OdbcTypes), std::end(OdbcTypes),
                                      [typeId](const TTypeNumber& known) { return known.Number == typeId; });
      type != std::end(OdbcTypes)) {
    return {type->Type, type->Type == ftBCD ? std::max(precision, 0) : 0};
  }
  switch (metaType.id()) {
    case QMetaType::Bool:
      return {ftBoolean};
    case QMetaType::Int:
    case QMetaType::UInt:
      return {ftInteger};
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
      return {ftLargeint};
    case QMetaType::Double:
      return {ftFloat};
    case QMetaType::QDate:
      return {ftDate};
    case QMetaType::QTime:
      return {ftTime};
    case QMetaType::QDateTime:
      return {ftDateTime};
    case QMetaType::QString:
      return {ftString, length > 0 && length <= LongestText ? length : 0};
    default:
      return {ftBlob};
  }
}

}  // namespace tolvi
