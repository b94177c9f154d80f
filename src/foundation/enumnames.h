#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/sets.h>
#include <tolvi/foundation/text.h>

namespace tolvi {

/// A row of a table that names the members of an enumeration in stored texts.
template <typename E>
struct TEnumName {
  E Value;
  std::string_view Name;
};

/// The member of that name, ignoring case. Raises `EConvertError` that lists the names.
template <typename E, std::size_t Count>
E NameToEnum(std::string_view name, const TEnumName<E> (&table)[Count]) {
  std::vector<std::string> names;
  for (const TEnumName<E>& entry : table) {
    if (SameText(entry.Name, name)) return entry.Value;
    names.emplace_back(entry.Name);
  }
  throw EConvertError("'%s' is none of %s", {name, ComposeCommaText(names)});
}

/// The name of the member; empty when the table lacks it.
template <typename E, std::size_t Count>
std::string_view EnumToName(E value, const TEnumName<E> (&table)[Count]) {
  for (const TEnumName<E>& entry : table) {
    if (entry.Value == value) return entry.Name;
  }
  return {};
}

/// The members' names as comma text, in the order of the table; and the reverse.
template <typename E, std::size_t Count>
std::string SetToNames(TSet<E> set, const TEnumName<E> (&table)[Count]) {
  std::vector<std::string> names;
  for (const TEnumName<E>& entry : table) {
    if (set.Contains(entry.Value)) names.emplace_back(entry.Name);
  }
  return ComposeCommaText(names);
}

template <typename E, std::size_t Count>
TSet<E> NamesToSet(std::string_view names, const TEnumName<E> (&table)[Count]) {
  TSet<E> set;
  for (const std::string& name : SplitCommaText(names)) set.Include(NameToEnum(name, table));
  return set;
}

}  // namespace tolvi
