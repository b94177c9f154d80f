#pragma once

#include <string>
#include <string_view>

#include <tolvi/foundation/api.h>
#include <tolvi/foundation/strings.h>

namespace tolvi {

/// What a query text says of itself, known without a model.
struct TQueryHead {
  std::string Name;
  /// Lines are separated by LF.
  std::string Description;

  bool operator==(const TQueryHead&) const = default;
};

/// A text that is no query has neither. Raises nothing.
TOLVI_CORE_API TQueryHead ReadQueryHead(std::string_view text);

/// The query text with another head, all else as it stands. A blank text becomes that of an empty query; a text that is
/// no query stays as it is.
TOLVI_CORE_API TStrings WithQueryHead(const TStrings& lines, const TQueryHead& head);

}  // namespace tolvi
