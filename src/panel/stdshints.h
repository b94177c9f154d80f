// What the structure designer's hint line says.
#pragma once

#include <cstdint>

#include <tolvi/foundation/api.h>
#include <tolvi/foundation/strings.h>

namespace tolvi {

/// How far the adding of a link has got: none is being added, its first, its second field is to be chosen.
enum TAddLinkStage : std::uint8_t { alsIdle, alsSelField1, alsSelField2 };

/// The lines "key=text" of all hints, in English.
TOLVI_CORE_API const TStrings& DefaultActionHints();

/// What the mouse is over while no link is being added.
enum TDesignTarget : std::uint8_t { dtNothing, dtTable, dtLink };

/// The key of the hint for the state.
TOLVI_CORE_API std::string_view ActionHintKey(TAddLinkStage stage, TDesignTarget target);

}  // namespace tolvi
