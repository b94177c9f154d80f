// The settings of a model as one value, for editors that work on a copy.
#pragma once

#include <string>

#include <tolvi/foundation/api.h>
#include <tolvi/foundation/strings.h>
#include <tolvi/model/operators.h>
#include <tolvi/model/sqlformats.h>

namespace tolvi {

class TJCustomDBStructure;

struct TModelSettings {
  TSQLFormats Formats;
  TDMOptions Options;
  /// An alias; empty for none.
  std::string MainTable;
  bool RootFieldsFirst = false;
  TExOperators ExOperators;
  /// Lines "name=display name".
  TStrings DefOperators;
  bool operator==(const TModelSettings&) const = default;
};

TOLVI_CORE_API TModelSettings SettingsOf(const TJCustomDBStructure& model);
/// Sets what differs, as one change.
TOLVI_CORE_API void ApplySettings(TJCustomDBStructure& model, const TModelSettings& settings);

/// The preset whose formats these are; empty when there is none.
TOLVI_CORE_API std::string PresetOf(const TSQLFormats& formats);

/// A statement as a model with these settings writes it: names of several databases, aliases, an outer join, and values
/// of all kinds. Where it cannot be made, why.
TOLVI_CORE_API std::string SampleStatement(const TModelSettings& settings);

}  // namespace tolvi
