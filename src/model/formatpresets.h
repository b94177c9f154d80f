#pragma once

#include <string_view>

#include <tolvi/foundation/api.h>
#include <tolvi/foundation/strings.h>

namespace tolvi {

class TSQLFormats;

/// The names of the presets: "generic", then the database engines ("sqlite", "postgresql", ...).
TOLVI_CORE_API TStrings FormatPresetNames();

/// Sets all formats to what the engine of that name (ignoring case) wants; "generic" sets the defaults. An owner of the
/// formats is told once, if anything differs. Raises `EJDBStructError` for an unknown name; the message lists the
/// known ones.
TOLVI_CORE_API void ApplyFormatPreset(TSQLFormats& formats, std::string_view name);

/// The name of the SQL syntax that goes with the preset ("ssSQL2"). Raises as `ApplyFormatPreset`.
TOLVI_CORE_API std::string_view FormatPresetSyntax(std::string_view name);

}  // namespace tolvi
