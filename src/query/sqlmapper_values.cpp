#include <algorithm>
#include <functional>

#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/format.h>
#include <tolvi/foundation/global.h>
#include <tolvi/foundation/text.h>
#include <tolvi/query/importvalues.h>
#include <tolvi/query/querpnl.h>
#include <tolvi/query/sqlmapper.h>

// The values of conditions.

namespace tolvi {

namespace {

// Where a text that was cut out of the statement stands in it; `otherwise` for any other text.
std::size_t PosIn(std::string_view statement, std::string_view text, std::size_t otherwise) {
  const std::less_equal<> notAfter;
  const bool isPiece = notAfter(statement.data(), text.data()) &&
                       notAfter(text.data() + text.size(), statement.data() + statement.size());
  return isPiece && !text.empty() ? static_cast<std::size_t>(text.data() - statement.data()) : otherwise;
}

std::string_view WithoutBrackets(std::string_view text) {
  text = Trim(text);
  while (text.size() >= 2 && text.front() == '(' && text.back() == ')') text = Trim(text.substr(1, text.size() - 2));
  return text;
}

}  // namespace

void TSQLMapper::SetValue(TSimpleCond& row, int index, const TSQLCondition& condition, const TOperatorMatch& match) {
  const TValueCapture& value = match.Values[static_cast<std::size_t>(index - 1)];
  if (!value.IsSet()) return;
  if (row.GetValueKind(index) == vkSubQuery) {
    SetSubQuery(row, condition, value.Text);
  } else if (!value.IsLiteral && value.Text.starts_with(':')) {
    SetParam(row, index, condition, match);
  } else if (row.GetValueKind(index) == vkList) {
    SetList(row, index, condition, value.IsLiteral ? QuotedString(value.Text) : value.Text);
  } else {
    row.SetValue(index, ScalarOf(row, index, condition, value.Text, value.IsLiteral));
  }
}

void TSQLMapper::SetParam(TSimpleCond& row, int index, const TSQLCondition& condition, const TOperatorMatch& match) {
  const std::string& text = match.Values[static_cast<std::size_t>(index - 1)].Text;
  row.SetValueIsParam(index, true);
  TSQLParam& param = *row.GetParam(index);
  try {
    param.SetParamName(Trim(std::string_view(text).substr(1)));
  } catch (const EJQueryPanelError&) {
    FLog.Warn(condition.GetPos(), text, Format("no name of a parameter: called \"%s\"", {param.GetParamName()}));
  }
  if (match.IsFallback) param.SetValueFormat("@v");
}

void TSQLMapper::SetList(TSimpleCond& row, int index, const TSQLCondition& condition, std::string_view list) {
  std::vector<TSQLListItem> items = SplitSQLList(list);
  for (TSQLListItem& item : items) item.Text = ScalarOf(row, index, condition, item.Text, item.IsLiteral);
  row.SetValue(index, ListToCommaText(items));
}

std::string TSQLMapper::ScalarOf(const TSimpleCond& row, int index, const TSQLCondition& condition,
                                 const std::string& text, bool isLiteral) {
  const TFieldType type = row.GetValueType(index);
  if (ImportDateTypes.Contains(type)) return DateOf(type, condition, text, isLiteral);
  if (!isLiteral && !IsPlainValue(text, type, FModel.SQLFormats())) {
    FLog.Warn(condition.GetPos(), text, "no value: taken as text");
  }
  return type == ftBoolean ? ReadSQLBoolean(text, FModel.SQLFormats()) : text;
}

std::string TSQLMapper::DateOf(TFieldType type, const TSQLCondition& condition, const std::string& text,
                               bool isLiteral) {
  if (!TryReadSQLDate(type, text, FPanel.GetFormatSettings())) {
    if (type == ftTime) {
      throw EConvertError("Line %d: '%s' is not a valid time", {FLog.LineOf(condition.GetPos()), text});
    }
    FLog.Warn(condition.GetPos(), text, "cannot be read as a date: taken as today");
  } else if (!isLiteral) {
    FLog.Warn(condition.GetPos(), text, "no value: taken as a date");
  }
  return FPanel.ProcessSQLDateValue(type, text);
}

void TSQLMapper::SetSubQuery(TSimpleCond& row, const TSQLCondition& condition, std::string_view text) {
  text = WithoutBrackets(text);
  const std::string_view value = condition.GetRightExpr();
  const std::size_t pos = PosIn(FLog.Statement(), value, condition.GetPos()) + std::min(value.find(text), value.size());
  if (FLevel >= MaxImportLevel) {
    FLog.Warn(condition.GetPos(), text,
              Format("left out: sub-queries are nested deeper than %d levels", {MaxImportLevel}));
    return;
  }
  TJQueryPanel inner;
  inner.SetDBStruct(&FModel);
  inner.SetFormatSettings(FPanel.GetFormatSettings());
  TSQLImportOptions options;
  options.FirstLine = FLog.LineOf(pos);
  try {
    inner.ImportSQL(text, options, FLevel + 1);
  } catch (const EException& error) {
    const std::string message = error.Message();
    FLog.Warn(condition.GetPos(), text, Format("left out: %s", {GetBeforeSep(message, CrLf)}));
    return;
  }
  FLog.Add(inner.ImportWarnings());
  TStrings lines;
  inner.SaveToStrings(lines);
  row.SetSubQuery(lines);
  row.SetHint(1, lines.Joined(CrLf));
}

}  // namespace tolvi
