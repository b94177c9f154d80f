#include <algorithm>
#include <optional>
#include <unordered_map>

#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/text.h>
#include <tolvi/query/querpnl.h>
#include <tolvi/query/querytext.h>
#include <tolvi/query/sqlbuilder.h>
#include <tolvi/query/sqlfragment.h>

// The SQL of one condition: its template with "@f" (the field), "@t" (the condition's first table), "@m" (the first
// table of the statement) and "@1", "@2" (the values) filled in, in one pass, so that no value is ever read as a
// template.

namespace tolvi {
namespace {

constexpr char Quote = '\'';

/// A quoted part of a template that holds a value: what stands before and after it within the quotes.
struct TQuotedValue {
  int index = 0;
  std::string_view before, after;
  // The position behind the closing quote.
  std::size_t end = 0;
};

/// The index of the value whose placeholder stands at `at`; 0 when there is none.
int PlaceholderAt(std::string_view pattern, std::size_t at, int valueCount) {
  if (at + 1 >= pattern.size() || pattern[at] != '@') return 0;
  const int index = pattern[at + 1] - '0';
  return index >= 1 && index <= valueCount ? index : 0;
}

/// The end of the quoted part that begins at `at`, behind its closing quote; npos when it is not closed.
std::size_t EndOfQuoted(std::string_view pattern, std::size_t at) {
  for (std::size_t i = at + 1; i < pattern.size(); ++i) {
    if (pattern[i] != Quote) continue;
    if (i + 1 >= pattern.size() || pattern[i + 1] != Quote) return i + 1;
    ++i;
  }
  return std::string_view::npos;
}

std::optional<TQuotedValue> QuotedValueAt(std::string_view pattern, std::size_t at, int valueCount) {
  const std::size_t end = EndOfQuoted(pattern, at);
  if (end == std::string_view::npos) return std::nullopt;
  std::optional<TQuotedValue> result;
  for (std::size_t i = at + 1; i + 1 < end; ++i) {
    const int index = PlaceholderAt(pattern, i, valueCount);
    if (index == 0) continue;
    if (result) {
      throw EJQueryPanelError(0, "The template %s holds two values in one pair of quotes: give each its own",
                              {pattern});
    }
    result = TQuotedValue{index, pattern.substr(at + 1, i - at - 1), pattern.substr(i + 2, end - 1 - (i + 2)), end};
  }
  return result;
}

std::string WithWildcard(std::string_view text, char wildcard) {
  std::string result(text);
  std::replace(result.begin(), result.end(), '%', wildcard);
  return result;
}

/// One value of a parameter. A format that a user gave goes before the template's, and makes the value a text.
TBoundValue ToBoundParam(const TSQLParam& param, std::string_view value, const TValueContext& context,
                         std::string_view before, std::string_view after) {
  const std::string& format = param.GetValueFormat();
  if (format.empty()) return ToBoundValue(value, param.GetParamType(), context, before, after);
  TBoundValue plain = ToBoundValue(value, param.GetParamType(), context);
  if (format == "@v") return plain;
  return ToBoundValue(ReplaceStr(format, "@v", plain.Text), ftString, context);
}

}  // namespace

/// The values of a bound statement, in the order of their markers.
class TSQLBuilder::TBindings {
 public:
  explicit TBindings(TMarkerStyle style) : FStyle(style) {}

  void AppendLiteral(std::string& out, TBoundValue value) {
    do {
      value.Name = "Value" + std::to_string(++FLiteralCount);
    } while (Find(value.Name) != nullptr);
    Append(out, std::move(value));
  }

  /// With names as markers, one name stands for one value.
  void AppendParam(std::string& out, TBoundValue value) {
    value.IsParam = true;
    const TBoundValue* same = Find(value.Name);
    if (same == nullptr) return Append(out, std::move(value));
    if (!same->IsParam) {
      throw EJQueryPanelError(0,
                              "The parameter name \"%s\" stands for a value of the statement already: choose "
                              "another name",
                              {value.Name});
    }
    if (same->Value != value.Value) {
      throw EJQueryPanelError(0, "Two parameters are called \"%s\" and stand for different values: rename one of them",
                              {value.Name});
    }
    out.append(":").append(same->Name);
  }

  std::vector<TBoundValue> Values;

 private:
  const TBoundValue* Find(std::string_view name) const {
    const auto found = FNamed.find(name);
    return found == FNamed.end() ? nullptr : &Values[found->second];
  }

  void Append(std::string& out, TBoundValue value) {
    if (FStyle == msColonName) FNamed.emplace(value.Name, Values.size());
    Values.push_back(std::move(value));
    if (FStyle == msQuestion) out += '?';
    if (FStyle == msColonName) out.append(":").append(Values.back().Name);
    if (FStyle == msDollarNumber) out.append("$").append(std::to_string(Values.size()));
  }

  TMarkerStyle FStyle;
  std::size_t FLiteralCount = 0;
  // Where the value of each name stands, if names are the markers.
  std::unordered_map<std::string, std::size_t, TFoldedHash, TFoldedEqual> FNamed;
};

bool IsCaseInsensitive(const TFilterCond& condition) {
  if (condition.GetRowType() != frtSimpleCondition) return false;
  const auto& simple = static_cast<const TSimpleCond&>(condition);
  return simple.GetDSOperator().GetCaseInsensative() && TextFieldTypes.Contains(simple.GetExprType());
}

std::string TemplateValueFormat(const TFilterCond& condition, int index) {
  const std::string_view pattern = condition.GetSQLExpr();
  const char wildcard = condition.GetQueryPanel().GetDBStruct()->SQLFormats().GetWildcardChar();
  for (std::size_t at = 0; at < pattern.size(); ++at) {
    if (pattern[at] != Quote) continue;
    const auto value = QuotedValueAt(pattern, at, condition.GetValueCount());
    if (value && value->index == index) {
      if (value->before.empty() && value->after.empty()) return {};
      return WithWildcard(ReplaceStr(value->before, "''", "'"), wildcard) + "@v" +
             WithWildcard(ReplaceStr(value->after, "''", "'"), wildcard);
    }
    const std::size_t end = EndOfQuoted(pattern, at);
    if (end == std::string_view::npos) break;
    at = end - 1;
  }
  return {};
}

const std::string& TSQLBuilder::TextOf(TFilterCond& condition) {
  if (FBindings == nullptr && condition.FTextStamp == FStamp) return condition.FText;
  // The values of a predefined condition may have changed their type without the model's knowing; a sub-query is made
  // anew for its warnings and for the numbers of the parameters behind it.
  const bool isLasting = condition.GetValueCount() == 0 ||
                         (condition.GetRowType() == frtSimpleCondition && condition.GetValueKind(1) != vkSubQuery);
  std::string& text = condition.FText;
  condition.FTextStamp = 0;
  text.clear();
  AppendCondition(text, condition);
  if (FPanel.OnBuildSQL) FPanel.OnBuildSQL(condition, text);
  if (FBindings == nullptr && isLasting) condition.FTextStamp = FStamp;
  return text;
}

void TSQLBuilder::AppendCondition(std::string& out, TFilterCond& condition) {
  if (condition.GetRowType() == frtSQLFragment) return AppendFragment(out, static_cast<TSQLFragment&>(condition));
  const std::string_view pattern = condition.GetSQLExpr();
  const int valueCount = condition.GetValueCount();
  for (std::size_t at = 0; at < pattern.size();) {
    const char c = pattern[at];
    if (c == Quote) {
      at = AppendQuotedPart(out, condition, pattern, at);
    } else if (const int index = PlaceholderAt(pattern, at, valueCount)) {
      AppendValue(out, condition, index, {}, {});
      at += 2;
    } else if (c == '@' && at + 1 < pattern.size() && AppendPlaceholder(out, condition, pattern[at + 1])) {
      at += 2;
    } else {
      const std::size_t start = at++;
      while (at < pattern.size() && pattern[at] != Quote && pattern[at] != '@') ++at;
      out += pattern.substr(start, at - start);
    }
  }
}

void TSQLBuilder::AppendFragment(std::string& out, const TSQLFragment& fragment) {
  const bool brackets = NeedsBrackets(fragment.GetSQLExpr(), fragment.OpenQuote());
  out.append(brackets ? "(" : "").append(fragment.GetSQLExpr()).append(brackets ? ")" : "");
}

// Returns the position behind what was written: with a value in them, quotes and all else between them belong to the
// value's literal.
std::size_t TSQLBuilder::AppendQuotedPart(std::string& out, const TFilterCond& condition, std::string_view pattern,
                                          std::size_t at) {
  const char wildcard = FPanel.GetDBStruct()->SQLFormats().GetWildcardChar();
  if (const auto value = QuotedValueAt(pattern, at, condition.GetValueCount())) {
    if (value->before.empty() && value->after.empty()) {
      AppendValue(out, condition, value->index, {}, {});
    } else {
      AppendValue(out, condition, value->index, WithWildcard(value->before, wildcard),
                  WithWildcard(value->after, wildcard));
    }
    return value->end;
  }
  const std::size_t end = std::min(EndOfQuoted(pattern, at), pattern.size());
  const std::string text = WithWildcard(pattern.substr(at, end - at), wildcard);
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '@' && i + 1 < text.size() && AppendPlaceholder(out, condition, text[i + 1])) {
      ++i;
    } else {
      out += text[i];
    }
  }
  return end;
}

bool TSQLBuilder::AppendPlaceholder(std::string& out, const TFilterCond& condition, char what) {
  const TRTableList& resultTables = FPanel.QResult().RTables();
  const TSimpleDSTableList& tables = condition.GetTables();
  if (what == 'f' && condition.GetRowType() == frtSimpleCondition) {
    AppendFieldExpr(out, condition);
  } else if (what == 't' && !tables.Empty()) {
    out += tables[0].GetTableName();
  } else if (what == 'm' && !resultTables.Empty()) {
    out += resultTables[0].Table->GetTableName();
  } else {
    return false;
  }
  return true;
}

void TSQLBuilder::AppendFieldExpr(std::string& out, const TFilterCond& condition) const {
  const TDSField& field = static_cast<const TSimpleCond&>(condition).GetField();
  const TQueryResult& result = FPanel.QResult();
  const bool lower = IsCaseInsensitive(condition);
  if (lower) out.append(FPanel.GetDBStruct()->SQLFormats().GetLowerFunc()).append("(");
  if (FFilters || (result.GetSQLOptions().Contains(soFilter) && result.RTables().Count() < 2)) {
    out += field.GetFilterSQLExpr();
  } else {
    out += field.GetSQLExpr();
  }
  if (lower) out += ')';
}

TValueContext TSQLBuilder::ContextOf(std::string_view name) const {
  return {FPanel.GetDBStruct()->SQLFormats(), FPanel.GetFormatSettings(), FPanel.GetSQLSyntax(), name};
}

std::string TSQLBuilder::ExtractValue(const TFilterCond& condition, int index) const {
  const std::string name = condition.GetValueName(index);
  std::string result;
  if (condition.GetValueKind(index) == vkList) {
    AppendLiteralList(result, condition.GetValue(index), condition.GetValueType(index), ContextOf(name));
  } else {
    AppendLiteral(result, condition.GetValue(index), condition.GetValueType(index), ContextOf(name));
  }
  return result;
}

void TSQLBuilder::AppendValue(std::string& out, const TFilterCond& condition, int index, std::string_view before,
                              std::string_view after) {
  const TValueKind kind = condition.GetValueKind(index);
  if (kind == vkSubQuery) {
    AppendSubQuery(out, condition);
  } else if (condition.GetValueIsParam(index)) {
    AppendParam(out, condition, index, before, after);
  } else if (kind == vkList) {
    const std::vector<std::string> items = SplitCommaText(condition.GetValue(index));
    if (items.empty())
      AppendLiteralList(out, {}, condition.GetValueType(index), ContextOf(condition.GetValueName(index)));
    for (std::size_t i = 0; i < items.size(); ++i) {
      if (i > 0) out += ',';
      AppendOneValue(out, condition, index, items[i], before, after);
    }
  } else {
    AppendOneValue(out, condition, index, condition.GetValue(index), before, after);
  }
}

void TSQLBuilder::AppendOneValue(std::string& out, const TFilterCond& condition, int index, std::string_view value,
                                 std::string_view before, std::string_view after) const {
  const bool lower = IsCaseInsensitive(condition);
  const std::string name = condition.GetValueName(index);
  const TFieldType type = condition.GetValueType(index);
  if (lower) out.append(FPanel.GetDBStruct()->SQLFormats().GetLowerFunc()).append("(");
  if (FBindings != nullptr) {
    FBindings->AppendLiteral(out, ToBoundValue(value, type, ContextOf(name), before, after));
  } else {
    AppendLiteral(out, value, type, ContextOf(name), before, after);
  }
  if (lower) out += ')';
}

// In a bound statement a parameter with a list stands for one marker an item.
void TSQLBuilder::AppendParam(std::string& out, const TFilterCond& condition, int index, std::string_view before,
                              std::string_view after) {
  const TSQLParam& param = *condition.GetParam(index);
  if (FBindings == nullptr) {
    out.append(":").append(param.GetParamName());
    return;
  }
  if (param.GetValue().empty()) {
    TBoundValue missing;
    missing.Name = param.GetParamName();
    missing.IsMissing = true;
    missing.Type = param.GetParamType();
    FBindings->AppendParam(out, std::move(missing));
    return;
  }
  std::vector<std::string> items{param.GetValue()};
  if (condition.GetValueKind(index) == vkList) items = SplitCommaText(param.GetValue());
  const std::string name = condition.GetValueName(index);
  for (std::size_t i = 0; i < items.size(); ++i) {
    if (i > 0) out += ',';
    TBoundValue value = ToBoundParam(param, items[i], ContextOf(name), before, after);
    value.Name = param.GetParamName();
    if (i > 0) value.Name += "_" + std::to_string(i + 1);
    FBindings->AppendParam(out, std::move(value));
  }
}

void TSQLBuilder::AppendSubQuery(std::string& out, const TFilterCond& condition) {
  const std::string name = condition.GetValueName(1);
  if (condition.GetSubQuery().Empty()) {
    throw EJQueryPanelError(0, "Field \"%s\": no sub-query is chosen: choose one or switch the row off", {name});
  }
  if (FLevel >= MaxSubQueryLevel) {
    throw EJQueryPanelError(0, "Field \"%s\": sub-queries are nested deeper than %d levels", {name, MaxSubQueryLevel});
  }
  TJQueryPanel inner;
  inner.SetDBStruct(FPanel.GetDBStruct());
  inner.SetFormatSettings(FPanel.GetFormatSettings());
  inner.SetAllowSQLFragments(FPanel.GetAllowSQLFragments());
  inner.LoadFromStrings(condition.GetSubQuery());
  inner.SetSQLOptions(condition.GetSubQueryOptions());
  inner.SetSQLSyntax(FPanel.GetSQLSyntax());
  inner.FBuilder->FLevel = FLevel + 1;
  TSQLParamList& params = inner.QResult().Params();
  params.SetParentParamCount(FPanel.QResult().Params().GetParentParamCount() + FPanel.QResult().GetParamCount() +
                             FSubParamCount);
  inner.QResult().ReindexParams();
  inner.FBuilder->FBindings = FBindings;
  inner.BuildQuery();
  out += inner.QResult().GetSQLText();
  for (const auto* warnings : {&inner.LoadWarnings(), &inner.QResult().Warnings()}) {
    for (const TQueryWarning& warning : *warnings) {
      FPanel.QResult().FWarnings.push_back({condition.GetRowID(), "In the sub-query: " + warning.Text});
    }
  }
  FSubParamCount += params.Count() + inner.FBuilder->FSubParamCount;
}

// The clauses without values stay; those with values are written apart, so that the literal ones stay, too.
TBoundStatement TSQLBuilder::BuildBound(TMarkerStyle style) {
  Build(false);
  TBindings bindings(style);
  TSQLLines where;
  std::string having;
  FWhere = &where;
  FHaving = &having;
  FBindings = &bindings;
  const std::vector<TQueryWarning> warnings = FPanel.QResult().FWarnings;
  try {
    WalkTree();
  } catch (...) {
    FBindings = nullptr;
    throw;
  }
  FBindings = nullptr;
  FPanel.QResult().FWarnings = warnings;
  TSQLLines statement;
  FPanel.QResult().Assemble(statement, where, having);
  return {statement.Text(), std::move(bindings.Values)};
}

}  // namespace tolvi
