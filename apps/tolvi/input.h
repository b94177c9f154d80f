#pragma once

#include <cstddef>
#include <istream>
#include <stdexcept>
#include <string>
#include <string_view>

#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/sections.h>
#include <tolvi/query/rowerror.h>

namespace tolvi {

/// A fault of the input: exit status 1. The message begins with the file, and the line where it is known.
class EInputError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// A text and the name by which messages call it.
struct TSource {
  std::string Name, Text;

  /// "FILE:LINE: message" for the library's messages that begin with their line ("Line 12, section ..."),
  /// "FILE:LINE:COLUMN: message" for those that name the column, too ("Line 12, column 5: ..."), else "FILE: message";
  /// `kind` ("error: ") stands before the message.
  std::string Located(std::string_view message, std::string_view kind = {}) const;
};

/// Finds sections in a source, which must outlive it.
class TPlaces final {
 public:
  explicit TPlaces(const TSource& source);
  /// "FILE:LINE" of the section's header, "FILE" when the text does not have it.
  std::string Of(std::string_view section) const;

 private:
  const TSource& FSource;
  TSectionedText FText;
};

/// Reads the file; "-" is `in`. Raises `EInputError` when it cannot be read or is no UTF-8.
TSource ReadSource(const std::string& name, std::istream& in);

/// Calls `read`; what the library raises becomes an `EInputError` about the source, or the row in it.
template <typename TRead>
auto Reading(const TSource& source, TRead read) {
  try {
    return read();
  } catch (const EQueryRowError& error) {
    throw EInputError(TPlaces(source).Of("Row" + error.RowID()) + ": Row " + error.RowID() + ": " + error.Message());
  } catch (const EException& error) {
    throw EInputError(source.Located(error.Message()));
  }
}

/// The text with LF for CR LF.
std::string WithLineFeeds(std::string_view text);

}  // namespace tolvi
