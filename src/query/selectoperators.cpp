#include <algorithm>
#include <iterator>
#include <utility>

#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/text.h>
#include <tolvi/query/joincheck.h>
#include <tolvi/query/querpnl.h>
#include <tolvi/query/selectconditions.h>
#include <tolvi/query/valuefit.h>

// Which operators and predefined conditions write a predicate, and with which values.

namespace tolvi {

namespace {

// Longer ones than a predefined condition and such a list of values are none.
constexpr std::size_t MostListTokens = 4000;

TFieldType ExprTypeOf(const TDSOperator& op, const TDSField& field) {
  return op.GetExprType() != ftUnknown ? op.GetExprType() : field.GetFieldType();
}

bool IgnoresCase(const TDSOperator& op, TFieldType type) {
  return op.GetCaseInsensative() && TextFieldTypes.Contains(type);
}

bool IsParamName(std::string_view text) {
  return text.size() > 1 && text.front() == ':' && text.find_first_of(" \t\r\n,()'\"", 1) == std::string_view::npos;
}

}  // namespace

const std::vector<TOperatorTemplate>& TSelectConditions::Operators() {
  if (!std::exchange(FOperatorsKnown, true)) FOperators = OperatorTemplatesOf(FModel);
  return FOperators;
}

// ---- Predefined conditions ------------------------------------------------------------------------------------------

std::optional<TSelectConditions::TMatch> TSelectConditions::FindCustom(const TSelectCondition& condition,
                                                                       bool negative) {
  if (FModel.Conditions().Count() == 0) return std::nullopt;
  if (!std::exchange(FCustomsKnown, true)) {
    const char wildcard = FModel.SQLFormats().GetWildcardChar();
    for (TDSCondition& condition : FModel.Conditions()) {
      FCustoms.push_back({&condition, TSQLTemplate(condition.GetSQLExpr(), wildcard)});
      FLongestCustom = std::max(FLongestCustom, FCustoms.back().Template.Count());
    }
    FLongestCustom += MostListTokens;
  }
  if (condition.Range.Count() > FLongestCustom) return std::nullopt;
  const std::string sql = FScope.Resolved(condition.Range);
  std::vector<std::string> forms;
  if (negative) forms.push_back("not (" + sql + ")");
  if (negative && condition.Kind == TSelectCondition::ckPredicate) forms.push_back("not " + sql);
  // Beside other conditions, "a or b" without brackets would be torn apart.
  if (!negative && condition.Kind != TSelectCondition::ckAny) forms.push_back(sql);
  if (!negative && condition.Kind != TSelectCondition::ckPredicate) forms.push_back("(" + sql + ")");
  for (const std::string& form : forms) {
    FTokens.Assign(form, {}, {}, ngNone);
    if (auto match = MatchCustom()) return match;
  }
  return std::nullopt;
}

std::optional<TSelectConditions::TMatch> TSelectConditions::MatchCustom() const {
  TValueCaptures captures;
  for (const TCustomTemplate& candidate : FCustoms) {
    if (!candidate.Template.Match(FTokens, true, captures)) continue;
    TMatch match;
    match.Custom = candidate.Condition;
    const TDSValueList& values = candidate.Condition->Values();
    bool fits = values.Count() <= match.Values.size();
    for (std::size_t i = 0; fits && i < values.Count(); ++i) {
      TMatch one;
      fits = values[i].GetDataKind() != vkSubQuery &&
             FitValues(one, {captures[i], {}}, 1, values[i].GetDataKind(), values[i].GetDataType());
      match.Values[i] = std::move(one.Values[0]);
    }
    if (fits) return match;
  }
  return std::nullopt;
}

// ---- Comparisons ----------------------------------------------------------------------------------------------------

// Aggregates belong to HAVING, and nothing else does.
bool TSelectConditions::IsUsable(const TDSField* field) const {
  return field != nullptr && field->GetIsAggregate() == FHaving;
}

// Whether it is a select in brackets.
bool TSelectConditions::IsSelect(TTokenRange range) const {
  return range.Count() > 2 && FText[range.Begin].Word == swOpen && FText[range.Begin].Partner + 1U == range.End &&
         FText[range.Begin + 1].Word == swSelect;
}

// What a field is compared with. Of a select, only its place counts.
std::string TSelectConditions::ValueText(TTokenRange range) const {
  return IsSelect(range) ? "(select)" : FScope.Resolved(range);
}

// With the field on the left: as written, with the sides exchanged, without the function that makes small letters.
std::vector<TSelectConditions::TComparison> TSelectConditions::ComparisonsFor(const TSelectCondition& condition) const {
  std::vector<TComparison> comparisons;
  // "is not not null" has a "not" too many for any operator.
  if (condition.Operation.empty() || FText[condition.Right.Begin].Word == swNot) return comparisons;
  if (TDSField* field = FScope.FieldOf(condition.Left); IsUsable(field)) {
    comparisons.push_back({field, condition.Operation, ValueText(condition.Right), condition.Right});
  }
  if (std::optional<TComparison> lower = WithoutLower(condition)) comparisons.push_back(*std::move(lower));
  const std::string_view mirrored = MirroredSymbol(condition.Operation);
  if (comparisons.empty() && !mirrored.empty()) {
    if (TDSField* field = FScope.FieldOf(condition.Right); IsUsable(field)) {
      comparisons.push_back({field, std::string(mirrored), ValueText(condition.Left), condition.Left});
    }
  }
  return comparisons;
}

// "lower(City) = lower('Linz')" as "City = 'Linz'", which an operator that ignores case writes so.
std::optional<TSelectConditions::TComparison> TSelectConditions::WithoutLower(const TSelectCondition& condition) const {
  const std::string& function = FModel.SQLFormats().GetLowerFunc();
  const auto isCall = [this, &function](std::size_t token) {
    return FText[token].IsName() && SameText(FText[token].Text, function) && FText[token + 1].Word == swOpen;
  };
  const TTokenRange left = FText.WithoutBrackets(condition.Left);
  if (left.Empty() || !isCall(left.Begin) || FText[left.Begin + 1].Partner + 1U != left.End) return std::nullopt;
  const TTokenRange inner{left.Begin + 2, left.End - 1};
  TDSField* field = FScope.FieldOf(inner);
  if (!IsUsable(field)) return std::nullopt;
  TComparison comparison{field, condition.Operation, {}, condition.Right, true};
  for (std::size_t at = condition.Right.Begin; at < condition.Right.End; ++at) {
    const bool isLower = isCall(at) && FText[at + 2].Kind == stkString && FText[at + 3].Word == swClose;
    const std::string_view text = FText[isLower ? at + 2 : at].Text;
    // A text without letters that have another case is the same either way.
    const bool isPlain = std::all_of(
        text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80 && (c < 'A' || c > 'Z'); });
    if (FText[at].Kind == stkString && !isPlain) return std::nullopt;
    comparison.Right.append(comparison.Right.empty() ? "" : " ").append(text);
    if (isLower) at += 3;
  }
  return comparison;
}

std::optional<TSelectConditions::TMatch> TSelectConditions::FindMatch(const TSelectCondition& condition,
                                                                      bool negative) {
  for (const TComparison& comparison : ComparisonsFor(condition)) {
    for (const TNegation negation : {ngBefore, ngInside}) {
      if (auto match = FindOperator(comparison, negative ? negation : ngNone)) return match;
      if (!negative) break;
    }
    if (!negative && comparison.Operation == "like") {
      if (auto match = FindLike(comparison)) return match;
    }
  }
  return std::nullopt;
}

// The operators that the field offers go before the others.
std::optional<TSelectConditions::TMatch> TSelectConditions::FindOperator(const TComparison& comparison,
                                                                         TNegation negation) {
  // Only the place of the field counts: its name could hold quotes that the tokens do not know.
  FTokens.Assign("f", comparison.Operation, comparison.Right, negation);
  std::optional<TMatch> best;
  for (const bool withWildcards : {false, true}) {
    for (const bool offered : {true, false}) {
      for (const TOperatorTemplate& candidate : Operators()) {
        if ((comparison.Field->IndexOfOperator(*candidate.Operator) >= 0) != offered) continue;
        std::optional<TMatch> match = TryOperator(comparison, candidate, withWildcards);
        if (match && !withWildcards) return match;
        // '%50% off%' contains "50% off" rather than starting with "%50% off".
        if (match && (!best || match->PatternSize > best->PatternSize)) best = std::move(match);
      }
      if (best) return best;
    }
  }
  return std::nullopt;
}

std::optional<TSelectConditions::TMatch> TSelectConditions::TryOperator(const TComparison& comparison,
                                                                        const TOperatorTemplate& candidate,
                                                                        bool withWildcards) {
  const TDSOperator& op = *candidate.Operator;
  const TFieldType type = ExprTypeOf(op, *comparison.Field);
  if (IgnoresCase(op, type) != comparison.IgnoringCase) return std::nullopt;
  if (!candidate.Template.HasToken(FTokens.Operation())) return std::nullopt;
  const bool isSubQuery = IsSelect(comparison.RightRange);
  if ((op.GetValueKind() == vkSubQuery) != isSubQuery) return std::nullopt;
  TMatch match;
  TValueCaptures captures;
  if (!candidate.Template.Match(FTokens, withWildcards || isSubQuery, captures)) return std::nullopt;
  match.Field = comparison.Field;
  match.Operator = candidate.Operator;
  if (isSubQuery) {
    if (FSubQueryError) return std::nullopt;
    try {
      match.SubQuery = FReadSubQuery({comparison.RightRange.Begin + 1, comparison.RightRange.End - 1});
    } catch (const ESQLImportError& error) {
      FSubQueryError = error;
      return std::nullopt;
    }
    return match;
  }
  if (op.GetParamCount() > captures.size()) return std::nullopt;
  if (!FitValues(match, captures, static_cast<int>(op.GetParamCount()), op.GetValueKind(), type)) return std::nullopt;
  match.PatternSize = captures[0].Before.size() + captures[0].After.size();
  return match;
}

bool TSelectConditions::FitValues(TMatch& match, const TValueCaptures& captures, int count, TValueKind kind,
                                  TFieldType type) const {
  for (std::size_t i = 0; i < static_cast<std::size_t>(count); ++i) {
    const TValueCapture& capture = captures[i];
    if (!capture.IsSet()) return false;
    TValue& value = match.Values[i];
    if (!capture.IsLiteral && IsParamName(capture.Text)) {
      value = {capture.Text.substr(1), {}, true};
      continue;
    }
    std::optional<std::string> text = kind == vkList ? FitList(FPanel, capture, type) : FitValue(FPanel, capture, type);
    if (!text) return false;
    value.Text = *std::move(text);
  }
  return true;
}

// A parameter is compared as it is, without the wildcards of the template.
std::optional<TSelectConditions::TMatch> TSelectConditions::FindLike(const TComparison& comparison) {
  if (!IsParamName(comparison.Right)) return std::nullopt;
  for (const std::string_view name : {"contains", "startswith"}) {
    TDSOperator* op = FModel.OperatorByName(name);
    const auto candidate = std::find_if(Operators().begin(), Operators().end(),
                                        [op](const TOperatorTemplate& entry) { return entry.Operator == op; });
    if (candidate == Operators().end() || !candidate->Template.IsFieldAndValue("like")) continue;
    if (IgnoresCase(*op, comparison.Field->GetFieldType()) != comparison.IgnoringCase) continue;
    TMatch match;
    match.Field = comparison.Field;
    match.Operator = op;
    match.Values[0] = {comparison.Right.substr(1), "@v", true};
    return match;
  }
  return std::nullopt;
}

// Operators in whose templates the field stands within an expression: any column may be it.
std::optional<TSelectConditions::TMatch> TSelectConditions::FindByColumns(const TSelectCondition& condition,
                                                                          bool negative) {
  struct TPlace {
    TDSField* Field;
    std::size_t Begin, End;
  };
  const auto hasFieldInside = [](const TOperatorTemplate& entry) { return entry.Template.HasFieldInside(); };
  if (std::none_of(Operators().begin(), Operators().end(), hasFieldInside)) return std::nullopt;
  constexpr std::size_t mostPlaces = 32;
  std::string sql;
  std::vector<TPlace> places;
  FScope.Walk(
      condition.Range, [&sql](std::string_view text) { sql += text; },
      [&](TDSField& field) {
        const std::size_t begin = sql.size();
        sql += field.GetSQLExpr();
        if (IsUsable(&field) && places.size() < mostPlaces) places.push_back({&field, begin, sql.size()});
      });
  FTokens.Assign(sql, {}, {}, negative ? ngBefore : ngNone);
  const auto& tokens = FTokens.Tokens();
  const std::size_t start = places.empty() ? 0 : tokens[FTokens.GetLeftBegin()].Pos;
  std::size_t at = 0;
  for (const auto& [field, begin, end] : places) {
    while (at < tokens.size() && tokens[at].Pos < start + begin) ++at;
    std::size_t next = at;
    while (next < tokens.size() && tokens[next].Pos < start + end) ++next;
    FTokens.SetLeft(at, next - at);
    for (const TOperatorTemplate& candidate : Operators()) {
      const TDSOperator& op = *candidate.Operator;
      if (!candidate.Template.HasFieldInside()) continue;
      const TFieldType type = ExprTypeOf(op, *field);
      if (op.GetValueKind() == vkSubQuery || IgnoresCase(op, type)) continue;
      TMatch match;
      TValueCaptures captures;
      if (op.GetParamCount() > captures.size() || !candidate.Template.Match(FTokens, true, captures) ||
          !FitValues(match, captures, static_cast<int>(op.GetParamCount()), op.GetValueKind(), type)) {
        continue;
      }
      match.Field = field;
      match.Operator = candidate.Operator;
      return match;
    }
  }
  return std::nullopt;
}

}  // namespace tolvi
