// Values of an SQL statement in the form in which conditions keep them.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <tolvi/foundation/datetime.h>
#include <tolvi/foundation/fieldtypes.h>

namespace tolvi {

class TSQLFormats;

/// Types whose values an import reads as dates.
inline constexpr TFieldTypes ImportDateTypes{ftDate, ftTime, ftDateTime, ftTimeStamp};

/// A date of `ftDate`, `ftDateTime` or `ftTimeStamp` in one of the forms that statements have: "2020-12-31",
/// "12/31/2020", "12/31/20", "31.12.2020", "31.12.20", for the latter types followed by " 23:59:59". For any other
/// type a time such as "23:59:59" or in the form of the locale. Nothing for another text.
std::optional<TDateTime> TryReadSQLDate(TFieldType type, std::string_view text, const TFormatSettings& settings);

/// Today, at midnight.
TDateTime Today();

/// A boolean as the model's formats write it, as "1" or "0"; another text as it is.
std::string ReadSQLBoolean(std::string_view text, const TSQLFormats& formats);

/// Whether a text without quotes is a number, or for `ftBoolean` a boolean.
bool IsPlainValue(std::string_view text, TFieldType type, const TSQLFormats& formats);

/// An item of a list of values.
struct TSQLListItem {
  /// Decoded if it was a literal.
  std::string Text;
  bool IsLiteral = false;
  /// The white space before it.
  std::string_view Before;
};

/// Takes a list of values ("1, 'x'") apart at the commas outside literals and brackets. Views point into `list`.
std::vector<TSQLListItem> SplitSQLList(std::string_view list);

/// The list as comma text: literals in double quotes.
std::string ListToCommaText(const std::vector<TSQLListItem>& items);

}  // namespace tolvi
