#include <tolvi/foundation/listtext.h>
#include <tolvi/foundation/numbers.h>
#include <tolvi/foundation/text.h>
#include <tolvi/model/modeltext_legacy.h>

namespace tolvi {
namespace {

enum TLegacyColumn : std::size_t { lcDatabase, lcName, lcDisplayName, lcAlias, lcQuoted, lcHints, lcPosition, lcLinks };

}  // namespace

void ReadLegacyOperator(const TSection& section, std::span<const TModelKey<TDSOperator>> keys, TDSOperator& op) {
  for (const TModelKey<TDSOperator>& key : keys) {
    if (key.Key == "ValueKind") {
      op.SetValueKind(AsciiSameText(Trim(section.Value(key.Key)), "vtSubQuery") ? vkSubQuery : vkScalar);
    } else {
      key.Read(section, key.Key, op);
    }
  }
}

TLegacyTable ReadLegacyTable(const TSection& section, std::string_view key, std::string_view value, TDSTable& table) {
  const std::vector<std::string> columns = SplitCommaText(value);
  const auto column = [&columns](TLegacyColumn which) {
    return which < columns.size() ? columns[which] : std::string();
  };

  const std::string name = column(lcName);
  const std::string alias = columns.size() > lcAlias ? column(lcAlias) : name;
  table.SetDatabaseName(column(lcDatabase));
  table.SetTableName(name);
  table.SetDisplayName(columns.size() > lcDisplayName ? column(lcDisplayName) : name);
  table.SetTableAlias(alias);
  if (const std::string quoted = column(lcQuoted); !quoted.empty()) {
    const std::optional<bool> isQuoted = TryXStrToBool(quoted);
    if (!isQuoted) RaiseWrongValue(section, key, quoted, "boolean value");
    table.SetQuoted(*isQuoted);
  }
  table.SetTableHints(column(lcHints));
  table.SetDesignPositions(ParseDesignPositions(section, key, column(lcPosition)));
  return {alias, SplitList(column(lcLinks))};
}

}  // namespace tolvi
