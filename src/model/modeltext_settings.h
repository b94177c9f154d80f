#pragma once

#include <tolvi/foundation/sections.h>
#include <tolvi/model/sqlformats.h>

namespace tolvi {

// The settings of a model in its text: one section each, which holds only what differs from the defaults.

inline constexpr std::string_view SQLFormatsSection = "SQLFormats";
inline constexpr std::string_view DMOptionsSection = "DMOptions";

/// The keys without the header.
void WriteSettings(TSectionWriter& writer, const TSQLFormats& formats);
void WriteSettings(TSectionWriter& writer, const TDMOptions& options);

/// A missing key gives the default.
TSQLFormats ReadSQLFormats(const TSection& section);
TDMOptions ReadDMOptions(const TSection& section);

}  // namespace tolvi
