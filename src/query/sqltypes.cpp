#include <tolvi/query/sqltypes.h>

namespace tolvi {
namespace {

constexpr struct {
  TSQLOption Option;
  int Bit;
} StoredOptions[] = {
    {soSelectDistinct, 2}, {soQuoteAliases, 8}, {soBracketJoins, 16}, {soBracketConditions, 32}, {soSortByNames, 64},
};

}  // namespace

int SQLOptionsToInt(TSQLOptions options) {
  int number = 0;
  for (const auto& stored : StoredOptions) {
    if (options.Contains(stored.Option)) number |= stored.Bit;
  }
  return number;
}

TSQLOptions IntToSQLOptions(std::int64_t number) {
  TSQLOptions options;
  for (const auto& stored : StoredOptions) options.Assign(stored.Option, (number & stored.Bit) != 0);
  return options;
}

}  // namespace tolvi
