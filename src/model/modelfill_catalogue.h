// A catalogue as filling a model reads it: checked, and with numbers in place of names.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

#include <tolvi/foundation/fieldtypes.h>
#include <tolvi/foundation/strings.h>
#include <tolvi/foundation/text.h>
#include <tolvi/model/modelfill.h>

namespace tolvi {

inline constexpr std::size_t None = static_cast<std::size_t>(-1);

using TNameNumbers = std::unordered_map<std::string, std::size_t, TFoldedHash, TFoldedEqual>;

/// The number of the name; `None` when there is none.
std::size_t NumberOf(const TNameNumbers& numbers, std::string_view name);

inline constexpr TFieldTypes NumberTypes{ftSmallint, ftInteger, ftWord,     ftFloat, ftCurrency, ftBCD,      ftAutoInc,
                                         ftLargeint, ftFMTBcd,  ftLongWord, ftByte,  ftShortint, ftExtended, ftSingle};
/// Texts short enough for names.
inline constexpr TFieldTypes NameTypes{ftString, ftFixedChar, ftWideString, ftFixedWideChar};

struct TCatColumn {
  std::string Name;
  TFieldType Type;
  int Size;
  /// Whether it takes part in a primary or a foreign key, on either side.
  bool InKey = false;
  /// The link that makes it a foreign key of its own; `None`.
  std::size_t Link = None;
};

struct TCatTable {
  /// As the catalogue gives it.
  std::string FullName;
  std::string Schema, Name;
  bool View = false;
  /// Whether filling reads the table; only then the following are known.
  bool Used = false;
  std::vector<TCatColumn> Columns;
  TNameNumbers ColumnNumbers;
  std::vector<std::size_t> PrimaryKey;

  /// Without quotes.
  std::string PlainName() const { return Schema.empty() ? Name : Schema + "." + Name; }
  std::size_t ColumnByName(std::string_view column) const { return NumberOf(ColumnNumbers, column); }
};

/// A foreign key: columns of `From` refer to columns of `To`, pair by pair.
struct TCatLink {
  std::size_t From = None, To = None;
  std::vector<std::pair<std::size_t, std::size_t>> Columns;
  /// Guessed by the names.
  bool Guessed = false;
};

class TCatalogue final {
 public:
  std::vector<TCatTable> Tables;
  std::vector<TCatLink> Links;
  /// Those whose tables are asked for.
  std::unordered_set<std::string, TFoldedHash, TFoldedEqual> Schemas;
  TStrings Notes;
  /// Without a connection there is nothing in it.
  bool Connected = true;

  /// The table of that name, with or without its schema where only one is called so; `None`.
  std::size_t TableByName(std::string_view name) const;

 private:
  friend class TCatalogueReader;
  TNameNumbers FFullNames, FBareNames;
};

/// Asks for the tables that the options want, their columns and keys, and the links. Views that the options leave out
/// are read if `isKnown` says so of their schema and name. What handlers raise goes through.
TCatalogue ReadCatalogue(TJDBInfo& info, const TFillOptions& options,
                         const std::function<bool(const TCatTable&)>& isKnown);

/// Asks for the names of tables and views alone. The source must be connected.
TCatalogue ReadCatalogueTables(TJDBInfo& info);

}  // namespace tolvi
