#pragma once

#include <string>
#include <string_view>

#include <tolvi/foundation/strings.h>

namespace tolvi {

class TJQueryPanel;

/// The version that is written and the newest that is read.
inline constexpr double CurrentQueryVersion = 3.6;

/// The panel's query as text in the current version of the format, lines ended by CR LF.
std::string WriteQueryText(const TJQueryPanel& panel);

/// Reads a query text of any version into the panel, which has been cleared. Fields, operators and conditions that the
/// model lacks are kept as unknown ones and told by `panel.AddLoadWarning`.
///
/// Raises `EJQueryPanelError` for a text that is no query, `EConvertError` for a value of the wrong kind; the message
/// names section and line.
void ReadQueryText(std::string_view text, TJQueryPanel& panel);

}  // namespace tolvi
