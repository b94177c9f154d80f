#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tolvi {

// The words of component texts. The functions that cut take what they read off the beginning of `text`.

/// White space and tabulators.
void SkipBlanks(std::string_view& text);

/// Letters, digits, underscores and all that is not ASCII; empty when `text` begins with something else.
std::string_view CutIdentifier(std::string_view& text);

/// A text literal: runs in single quotes with inner quotes doubled, and control characters as their decimal code
/// after "#", without anything between them: 'It''s'#13#10'here'. Cutting gives nothing, with `text` cut anywhere,
/// when it does not begin with a whole literal.
std::string TextLiteral(std::string_view text);
std::optional<std::string> CutTextLiteral(std::string_view& text);

/// The name of a component: an identifier, or a text literal when it is none.
std::string NameLiteral(std::string_view name);
std::optional<std::string> CutName(std::string_view& text);

}  // namespace tolvi
