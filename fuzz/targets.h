#pragma once

#include <stdexcept>
#include <string_view>

namespace tolvi {

// The fuzz targets: each takes any bytes. What they raise is a fault.

/// Scans the bytes and parses them as SQL: the scanner covers them, the parser ends with a result or one of its errors.
void FuzzParser(std::string_view text);

/// Reads a model: when it can be read, what is written of it reads as the same model.
void FuzzModel(std::string_view text);

/// The same with a query on a small model, whose statement is built, too.
void FuzzQuery(std::string_view text);

/// Reads the bytes as a SELECT statement and as a condition: what is read is part of the text and in its order, errors
/// name a place.
void FuzzSelect(std::string_view text);

/// Imports the bytes as a statement, plainly and faithfully, on a small model: it becomes a query or one of the
/// documented errors. A query that keeps the statement reads as the same query, and its own statement becomes the same
/// statement again: at once, or, where it keeps SQL that may be anything, in the end.
void FuzzImport(std::string_view sql);

/// What a target found.
class TFuzzFault : public std::logic_error {
 public:
  using std::logic_error::logic_error;
};

inline void Require(bool holds, const char* what) {
  if (!holds) throw TFuzzFault(what);
}

}  // namespace tolvi
