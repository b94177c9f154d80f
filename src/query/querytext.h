#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <tolvi/foundation/api.h>
#include <tolvi/foundation/strings.h>

namespace tolvi {

class TFilterBracket;
class TFilterRow;
class TJQueryPanel;

/// The version that is written and the newest that is read.
inline constexpr double CurrentQueryVersion = 3.6;

/// The panel's query as text in the current version of the format, lines ended by CR LF.
TOLVI_CORE_API std::string WriteQueryText(const TJQueryPanel& panel);

/// Reads a query text of any version into the panel, which has been cleared. Fields, operators and conditions that the
/// model lacks are kept as unknown ones and told by `panel.AddLoadWarning`.
///
/// Raises `EJQueryPanelError` for a text that is no query, `EConvertError` for a value of the wrong kind; the message
/// names section and line.
TOLVI_CORE_API void ReadQueryText(std::string_view text, TJQueryPanel& panel);

/// Some rows as a query text of its own, without columns and options. Automatic names of parameters are left out.
TOLVI_CORE_API std::string WriteRowsText(const TJQueryPanel& panel, const std::vector<const TFilterRow*>& rows);
/// Reads the rows of a query text, and how its root links them, into an empty bracket of a panel that is loading.
/// Errors and warnings as in `ReadQueryText`.
TOLVI_CORE_API void ReadRowsText(std::string_view text, TFilterBracket& bracket);
/// Whether the text is a query text with rows. Does not read them.
TOLVI_CORE_API bool HasRows(std::string_view text);

}  // namespace tolvi
