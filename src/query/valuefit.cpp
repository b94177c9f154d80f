#include <utility>
#include <vector>

#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/numbers.h>
#include <tolvi/foundation/text.h>
#include <tolvi/model/dbstruc.h>
#include <tolvi/query/importvalues.h>
#include <tolvi/query/querpnl.h>
#include <tolvi/query/valuefit.h>
#include <tolvi/query/values.h>

namespace tolvi {

namespace {

constexpr char Quote = '\'';
// So many digits a double tells apart.
constexpr std::size_t ExactDigits = 15;

// Whether two numbers without quotes are the same, or two words in any case.
bool IsSameValue(std::string_view a, std::string_view b) {
  if (a == b || (a.front() != Quote && SameText(a, b))) return true;
  if (std::max(a.size(), b.size()) > ExactDigits) return false;
  const auto first = TryStrToFloat(a), second = TryStrToFloat(b);
  return first && second && *first == *second;
}

// The value as a condition would keep it, whether or not it then writes the same.
std::optional<std::string> ReadValue(const TJQueryPanel& panel, const std::string& text, TFieldType type) {
  if (type == ftBoolean) return ReadSQLBoolean(text, panel.GetDBStruct()->SQLFormats());
  if (!ImportDateTypes.Contains(type)) return text;
  if (!TryReadSQLDate(type, text, panel.GetFormatSettings())) return std::nullopt;
  return panel.ProcessSQLDateValue(type, text);
}

bool WritesSame(const TJQueryPanel& panel, const std::string& value, const TValueCapture& capture, TFieldType type) {
  const std::string before = ReplaceStr(capture.Before, "'", "''"), after = ReplaceStr(capture.After, "'", "''");
  const std::string written =
      capture.IsLiteral ? QuotedString(capture.Before + capture.Text + capture.After, Quote) : capture.Text;
  const TSQLFormats& formats = panel.GetDBStruct()->SQLFormats();
  static const TSQLFormats usual;
  const std::pair<const TSQLFormats*, TSQLSyntax> forms[] = {
      {&formats, panel.GetSQLSyntax()}, {&formats, ssSQL2}, {&usual, ssSQL2}};
  for (const auto& [form, syntax] : forms) {
    if (form == &usual && !ImportDateTypes.Contains(type)) break;
    std::string literal;
    try {
      AppendLiteral(literal, value, type, {*form, panel.GetFormatSettings(), syntax, {}}, before, after);
    } catch (const EException&) {
      return false;
    }
    if (!literal.empty() && !written.empty() && IsSameValue(literal, written)) return true;
  }
  return false;
}

}  // namespace

std::optional<std::string> FitValue(const TJQueryPanel& panel, const TValueCapture& capture, TFieldType type) {
  std::optional<std::string> value = ReadValue(panel, capture.Text, type);
  if (value && !WritesSame(panel, *value, capture, type)) value.reset();
  return value;
}

std::optional<std::string> FitList(const TJQueryPanel& panel, const TValueCapture& capture, TFieldType type) {
  std::vector<TSQLListItem> items = SplitSQLList(capture.IsLiteral ? QuotedString(capture.Text, Quote) : capture.Text);
  for (TSQLListItem& item : items) {
    TValueCapture one;
    one.Text = item.Text;
    one.IsLiteral = item.IsLiteral;
    std::optional<std::string> value = FitValue(panel, one, type);
    if (!value) return std::nullopt;
    item.Text = *std::move(value);
    item.Before = {};
  }
  return ListToCommaText(items);
}

}  // namespace tolvi
