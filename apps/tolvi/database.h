#pragma once

#include <cstdint>
#include <string_view>

#include "apps/tolvi/session.h"
#include <tolvi/connect/sqlconnection.h>

namespace tolvi {

/// What to do with the database.
enum TDatabaseUse : std::uint8_t { duRead, duChange, duCreate };

/// Opens what a URL names, or the SQLite database of a file name; `duCreate` makes a file that is
/// missing. A password that the environment lacks is asked for on a terminal. Raises `EInputError`.
TSqlConnection OpenDatabase(TSession& session, std::string_view urlOrFile, TDatabaseUse use = duRead);

/// An error about a database or a store in one line, without the statement, which `tolvi sql` prints.
EInputError DatabaseError(std::string_view place, const EException& error);

/// Calls `use`; what the library raises becomes an `EInputError` about the place.
template <typename TUse>
auto Using(std::string_view place, TUse use) {
  try {
    return use();
  } catch (const EException& error) {
    throw DatabaseError(place, error);
  }
}

}  // namespace tolvi
