// Names for people and for statements, made from those of a catalogue.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include <tolvi/foundation/text.h>

namespace tolvi {

/// The parts of a name at its dots, those in quotes ("", [], ``) without them.
std::vector<std::string> NameParts(std::string_view name);

/// The first parts of a name, joined with dots; and all of them: the name without quotes.
std::string WithDots(const std::vector<std::string>& parts, std::size_t count);
std::string PlainName(std::string_view name);

/// The words of a name, as written: "order_items", "OrderItems" and "ORDER-ITEMS" have two.
std::vector<std::string> NameWords(std::string_view name);

/// The words in lower case and without anything between them: equal for spellings of one name.
std::string JoinedWords(const std::vector<std::string>& words);

/// The name of a table without a prefix that tells the kind of object ("tbl", "vw"), unless that is all of it.
std::string_view WithoutTablePrefix(std::string_view name);

/// A sentence-like name: "CustNo" becomes "Cust no", "ORDER_ID" "Order ID".
std::string ReadableName(std::string_view name);

/// The same for a table, without such a prefix.
std::string ReadableTableName(std::string_view name);

/// What a table is to one that refers to it by this column: "manager_id" becomes "manager", "ship_to" stays.
std::string RoleOfColumn(std::string_view column);

/// An English plural ("Addresses") as one of them ("Address").
std::string Singular(std::string_view word);

/// Whether a statement must quote the name: it is no plain identifier (ASCII letters, digits and "_"), a word of SQL
/// or, where asked, in mixed case.
bool NeedsQuotes(std::string_view name, bool mixedCase);

/// A plain identifier like the name that is no word of SQL.
std::string PlainIdentifier(std::string_view name);

/// Names that must differ, ignoring case.
class TNamePool final {
 public:
  void Reserve(std::string_view name) { FNext.try_emplace(std::string(name), 2); }
  bool Has(std::string_view name) const { return FNext.contains(name); }
  /// Takes the name or, where it is taken, the name with the separator and the first free number from 2 on.
  std::string Take(std::string_view name, std::string_view separator);

 private:
  std::unordered_map<std::string, std::size_t, TFoldedHash, TFoldedEqual> FNext;
};

}  // namespace tolvi
