#pragma once

#include <string_view>

// The sections and keys by which a query text is known without a model.

namespace tolvi {

inline constexpr std::string_view MainSection = "Main", DescriptionSection = "Description", QueryNameKey = "QueryName",
                                  VersionKey = "Version";

/// Whether the format itself writes or once wrote a header of that name, in any case: lines of a description that
/// look so are told apart by a blank before them.
bool IsQueryHeader(std::string_view name);

}  // namespace tolvi
