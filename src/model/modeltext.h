#pragma once

#include <string>
#include <string_view>

#include <tolvi/foundation/api.h>

namespace tolvi {

class TJCustomDBStructure;

/// The version that is written and the newest that is read.
inline constexpr double CurrentModelVersion = 3.6;

/// The model as text in the current version of the format, lines ended by CR LF.
TOLVI_CORE_API std::string WriteModelText(const TJCustomDBStructure& model);

/// Reads a model text of any version into `model`, which is empty (as after `ClearStructure`) and is left half read
/// when reading fails. Settings sections that the text lacks leave `SQLFormats` and `DMOptions` as they are; in one
/// that it has, a missing key means the default. Returns the version of the text.
///
/// Raises `EJDBStructError` 9 for a missing section, 4 for a table, 6 for an operator that the text does not hold;
/// `EConvertError` for a value of the wrong kind and for a version newer than `CurrentModelVersion`. Messages name the
/// section and the line.
TOLVI_CORE_API double ReadModelText(std::string_view text, TJCustomDBStructure& model);

}  // namespace tolvi
