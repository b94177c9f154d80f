#include <algorithm>
#include <cstdint>
#include <iterator>
#include <variant>

#include <tolvi/connect/boundsql.h>
#include <tolvi/connect/sqlaccess.h>
#include <tolvi/foundation/text.h>
#include <tolvi/query/valuenumbers.h>

namespace tolvi {
namespace {

/// What a literal of such a value is for the database.
struct TLiteralType {
  TDatabaseKind Kind;
  TFieldTypes Types;
  std::string_view Name;
};
constexpr TLiteralType LiteralTypes[] = {
    // A marker takes the type of the column: compared with one of whole numbers, 2.5 would become 3.
    {dkPostgreSQL, IntegerFieldTypes, "bigint"},
    {dkPostgreSQL, FloatFieldTypes, "numeric"},
    // A decimal number comes as text, which would be compared as a binary fraction.
    {dkMySQL, DecimalFieldTypes, "decimal(65,30)"},
};

std::string_view LiteralTypeOf(const TBoundValue& value, TDatabaseKind kind) {
  const auto* found = std::find_if(std::begin(LiteralTypes), std::end(LiteralTypes), [&](const TLiteralType& type) {
    return type.Kind == kind && type.Types.Contains(value.Type);
  });
  return found == std::end(LiteralTypes) ? std::string_view() : found->Name;
}

bool BeginsComment(std::string_view sql, std::size_t pos) {
  return sql.substr(pos, 2) == "--" || sql.substr(pos, 2) == "/*";
}

/// Where the text that begins at `pos` with a quote or as a comment ends; the next position for all else.
std::size_t EndOfPart(std::string_view sql, std::size_t pos) {
  const auto after = [sql](std::string_view closer, std::size_t from) {
    const std::size_t found = sql.find(closer, from);
    return found == std::string_view::npos ? sql.size() : found + closer.size();
  };
  if (BeginsComment(sql, pos)) return sql[pos] == '-' ? after("\n", pos) : after("*/", pos + 2);
  const bool isQuote = sql[pos] == '\'' || sql[pos] == '"' || sql[pos] == '`';
  return isQuote ? after(sql.substr(pos, 1), pos + 1) : pos + 1;
}

QVariant Text(const TBoundValue& value) { return ToQString(value.Text); }

/// Where a boolean is no text, its word stands for a number, but for PostgreSQL, which reads both words.
QVariant Boolean(const TBoundValue& value, TDatabaseKind kind, bool quotedBooleans) {
  if (quotedBooleans) return Text(value);
  if (kind != dkPostgreSQL) {
    if (AsciiSameText(value.Text, "true")) return 1;
    if (AsciiSameText(value.Text, "false")) return 0;
  }
  if (const auto number = TryStrToInt(value.Text)) return QVariant::fromValue(static_cast<qlonglong>(*number));
  return Text(value);
}

QVariant ToVariant(const TBoundValue& value, TDatabaseKind kind, bool quotedBooleans) {
  // NULL: nothing compares with it.
  if (value.IsMissing) return {};
  if (value.Type == ftBoolean) return Boolean(value, kind, quotedBooleans);
  if (const auto* whole = std::get_if<std::int64_t>(&value.Value)) {
    return QVariant::fromValue(static_cast<qlonglong>(*whole));
  }
  // SQLite sorts every text behind every number. Where CAST makes a number of it, the text has all digits.
  if (FloatFieldTypes.Contains(value.Type) && LiteralTypeOf(value, kind).empty()) {
    return NumberValue(value.Text);
  }
  return Text(value);
}

}  // namespace

std::string SqlOf(const TBoundStatement& statement, TDatabaseKind kind) {
  const std::string_view sql = statement.SQL;
  std::string result;
  std::size_t number = 0;
  for (std::size_t pos = 0, end; pos < sql.size(); pos = end) {
    end = EndOfPart(sql, pos);
    const std::string_view part = sql.substr(pos, end - pos);
    if (part == "?" && number < statement.Values.size()) {
      const std::string_view type = LiteralTypeOf(statement.Values[number++], kind);
      type.empty() ? result += '?' : result.append("CAST(? AS ").append(type).append(")");
    } else if (kind == dkPostgreSQL && BeginsComment(sql, pos)) {
      // The driver looks for markers in comments, too.
      result += part.ends_with('\n') ? '\n' : ' ';
    } else {
      result += part;
    }
  }
  return result;
}

QVariantList ValuesOf(const TBoundStatement& statement, TDatabaseKind kind, bool quotedBooleans) {
  QVariantList values;
  for (const TBoundValue& value : statement.Values) values << ToVariant(value, kind, quotedBooleans);
  return values;
}

}  // namespace tolvi
