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

/// What a target found.
class TFuzzFault : public std::logic_error {
 public:
  using std::logic_error::logic_error;
};

inline void Require(bool holds, const char* what) {
  if (!holds) throw TFuzzFault(what);
}

}  // namespace tolvi
