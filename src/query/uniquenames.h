#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>

#include <tolvi/foundation/api.h>
#include <tolvi/foundation/text.h>

namespace tolvi {

/// The names in use, compared ignoring case. A name may be in use several times; empty names do not count.
class TOLVI_CORE_API TUniqueNames final {
 public:
  void Add(std::string_view name);
  /// Takes one use of the name back.
  void Remove(std::string_view name);
  void Clear();

  /// Whether the name is free, `own` (a name in use once, which may be given up) counted as free.
  bool IsFree(std::string_view name, std::string_view own = {}) const;
  /// The name, or the name, `separator` and the smallest number from 2 on with which it is free. Takes constant time
  /// on average, also for many equal names.
  std::string MakeUnique(std::string_view name, std::string_view separator, std::string_view own = {}) const;

 private:
  using TCounts = std::unordered_map<std::string, std::size_t, TFoldedHash, TFoldedEqual>;

  TCounts FCounts;
  // Per name, a number below which none is free. Holds until a name becomes free.
  mutable TCounts FNextNumbers;
};

/// A name that SQL can hold without quotes, made from a text of people: blanks become "_", and every other character
/// that is no letter, digit or "_" is left out; a first digit gets a "C" before it. Empty when nothing is left.
TOLVI_CORE_API std::string MakeSQLName(std::string_view text);

/// A name that SQL can hold between quote symbols, made from a text of people: control characters, and bytes outside
/// ASCII in a text that is no UTF-8, are left out.
TOLVI_CORE_API std::string MakeQuotableName(std::string_view text);

}  // namespace tolvi
