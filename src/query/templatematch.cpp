#include <algorithm>
#include <iterator>

#include <tolvi/foundation/text.h>
#include <tolvi/model/dbstruc.h>
#include <tolvi/query/templatematch.h>
#include <tolvi/sqlimport/sqlresult.h>

namespace tolvi {

namespace {

constexpr char Quote = '\'';

// The same comparison in the form that templates have.
struct TRewrite {
  std::string_view Operation;
  TNegation Negation;
  std::string_view As;
};
constexpr TRewrite Rewrites[] = {
    {"!=", ngNone, "<>"},
    {"=", ngBefore, "<>"},
};

bool IsString(const TComparisonTokens::TToken& token) { return token.Type == ttString; }

// Where "@1" or "@2" stands in a text.
std::size_t FindValue(std::string_view text, std::size_t from) {
  for (std::size_t at = text.find('@', from); at != std::string_view::npos; at = text.find('@', at + 1)) {
    if (at + 1 < text.size() && (text[at + 1] == '1' || text[at + 1] == '2')) return at;
  }
  return std::string_view::npos;
}

}  // namespace

std::string DecodeLiteral(std::string_view literal) { return UnquotedString(literal, Quote); }

bool IsWholeLiteral(std::string_view text) {
  if (text.size() < 2 || text.front() != Quote || text.back() != Quote) return false;
  const std::string_view inner = text.substr(1, text.size() - 2);
  for (std::size_t at = inner.find(Quote); at != std::string_view::npos; at = inner.find(Quote, at + 2)) {
    if (at + 1 >= inner.size() || inner[at + 1] != Quote) return false;
  }
  return true;
}

// ---- The comparison -------------------------------------------------------------------------------------------------

void TComparisonTokens::Assign(const TSQLCondition& condition) {
  Assign(condition.GetLeftExpr(), condition.GetOperation(), condition.GetRightExpr(),
         condition.GetNegative() ? ngBefore : ngNone);
}

void TComparisonTokens::Assign(std::string_view left, std::string_view operation, std::string_view right,
                               TNegation negation) {
  const auto* rewrite = std::find_if(std::begin(Rewrites), std::end(Rewrites), [&](const TRewrite& entry) {
    return entry.Operation == operation && entry.Negation == negation;
  });
  const bool isRewritten = rewrite != std::end(Rewrites);
  if (isRewritten) negation = ngNone;
  FOperation = isRewritten ? rewrite->As : operation;
  FText = negation == ngBefore ? "not(" : "";
  const std::size_t leftPos = FText.size();
  FText.append(left).append(" ");
  const std::size_t leftEnd = FText.size();
  if (negation == ngInside && FOperation != "is") FText += "not ";
  FText += FOperation;
  if (negation == ngInside && FOperation == "is") FText += " not";
  FText.append(" ").append(right);
  if (negation == ngBefore) FText += ")";

  FTokens.clear();
  FLeftBegin = FLeftCount = 0;
  FScanner.SetSource(FText);
  for (FScanner.FirstToken(); !FScanner.EOS(); FScanner.NextToken()) {
    FTokens.push_back({FScanner.GetRealStr(), FScanner.GetTokPos(), FScanner.GetTokType()});
    if (FTokens.back().Pos < leftPos) ++FLeftBegin;
    if (FTokens.back().Pos >= leftPos && FTokens.back().Pos < leftEnd) ++FLeftCount;
  }
}

std::string_view TComparisonTokens::TextOf(std::size_t begin, std::size_t end) const {
  if (begin >= end) return {};
  const TToken& last = FTokens[end - 1];
  const std::size_t pos = FTokens[begin].Pos;
  return FScanner.GetSource().substr(pos, last.Pos + last.Text.size() - pos);
}

// ---- The template ---------------------------------------------------------------------------------------------------

TSQLTemplate::TSQLTemplate(std::string_view pattern, char wildcard) : FWildcard(wildcard) {
  TJScanner scanner;
  scanner.SetSource(pattern);
  for (scanner.FirstToken(); !scanner.EOS(); scanner.NextToken()) {
    const std::string_view text = scanner.GetRealStr();
    if (text == "@") {
      const TJScannerToken next = scanner.GetToken(1);
      if (next.Pos == scanner.GetTokPos() + 1 && AddPlaceholder(next.Text.empty() ? ' ' : next.Text.front()) > 0) {
        scanner.NextToken();
        if (next.Text.size() > 1) FItems.push_back({tiText, std::string(next.Text.substr(1)), 0, {}, {}});
        continue;
      }
    }
    if (scanner.GetTokType() == ttString && !scanner.Unterminated()) {
      AddLiteral(text);
    } else {
      FItems.push_back({tiText, std::string(text), 0, {}, {}});
    }
  }
}

std::size_t TSQLTemplate::AddPlaceholder(char what) {
  if (what == 'f') {
    FItems.push_back({tiField, {}, 0, {}, {}});
  } else if (what == '1' || what == '2') {
    FItems.push_back({tiValue, {}, what == '1' ? 0U : 1U, {}, {}});
  } else {
    return 0;
  }
  return 1;
}

void TSQLTemplate::AddLiteral(std::string_view literal) {
  std::string translated(literal);
  std::replace(translated.begin(), translated.end(), '%', FWildcard);
  const std::size_t at = FindValue(literal, 0);
  if (at == std::string_view::npos) {
    FItems.push_back({tiText, std::move(translated), 0, {}, {}});
    return;
  }
  // A literal with two values cannot be taken apart.
  if (FindValue(literal, at + 2) != std::string_view::npos) FUsable = false;
  const auto decoded = [](std::string_view part) { return ReplaceStr(part, "''", "'"); };
  const std::string_view inner = std::string_view(translated).substr(1, translated.size() - 2);
  FItems.push_back({tiQuotedValue,
                    {},
                    literal[at + 1] == '1' ? 0U : 1U,
                    decoded(inner.substr(0, at - 1)),
                    decoded(inner.substr(at + 1))});
}

bool TSQLTemplate::HasToken(std::string_view operation) const {
  return std::any_of(FItems.begin(), FItems.end(),
                     [operation](const TItem& item) { return item.Kind == tiText && SameText(item.Text, operation); });
}

bool TSQLTemplate::HasFieldInside() const {
  const auto isBefore = [](const TItem& item) {
    return item.Kind == tiText && (item.Text == "(" || SameText(item.Text, "not"));
  };
  const auto first = std::find_if_not(FItems.begin(), FItems.end(), isBefore);
  return first != FItems.end() && first->Kind != tiField;
}

bool TSQLTemplate::IsFieldAndValue(std::string_view operation) const {
  return FItems.size() == 3 && FItems[0].Kind == tiField && SameText(FItems[1].Text, operation) &&
         FItems[2].Kind == tiQuotedValue;
}

// One attempt to match. Recursion goes as deep as the template is long.
class TSQLTemplate::TWalk {
 public:
  TWalk(const std::vector<TItem>& items, const TComparisonTokens& comparison, char noWildcard, TValueCaptures& captures)
      : FItems(items),
        FComparison(comparison),
        FTokens(comparison.Tokens()),
        FNoWildcard(noWildcard),
        FCaptures(captures),
        FStepsLeft(StepsPerToken * (FTokens.size() + items.size())) {}

  bool MatchFrom(std::size_t item, std::size_t token) {
    if (item == FItems.size()) return token == FTokens.size();
    if (FStepsLeft == 0 || token > FTokens.size()) return false;
    --FStepsLeft;
    const TItem& expected = FItems[item];
    switch (expected.Kind) {
      case tiText:
        return token < FTokens.size() && IsSame(FTokens[token], expected.Text) && MatchFrom(item + 1, token + 1);
      case tiField:
        return token == FComparison.GetLeftBegin() && MatchFrom(item + 1, token + FComparison.GetLeftCount());
      case tiQuotedValue:
        return MatchQuoted(item, token);
      default:
        return MatchRun(item, token);
    }
  }

 private:
  static constexpr std::size_t StepsPerToken = 64, BytesPerStep = 16;

  static bool IsSame(const TComparisonTokens::TToken& token, std::string_view text) {
    return IsString(token) ? token.Text == text : SameText(token.Text, text);
  }

  bool MatchQuoted(std::size_t item, std::size_t token) {
    const TItem& expected = FItems[item];
    if (token >= FTokens.size()) return false;
    if (!IsString(FTokens[token])) {
      return expected.Before.empty() && expected.After.empty() && MatchRun(item, token);
    }
    std::string text = DecodeLiteral(FTokens[token].Text);
    if (!IsWholeLiteral(FTokens[token].Text) || text.size() < expected.Before.size() + expected.After.size() ||
        !text.starts_with(expected.Before) || !text.ends_with(expected.After)) {
      return false;
    }
    text.erase(text.size() - expected.After.size());
    text.erase(0, expected.Before.size());
    return Take(item, {std::move(text), true, expected.Before, expected.After, token, token + 1});
  }

  // A value without quotes of its own: the shortest run of tokens, with all its brackets, after which the rest fits.
  bool MatchRun(std::size_t item, std::size_t token) {
    const std::size_t rest = FItems.size() - item - 1;
    std::size_t end = token + 1, last = FTokens.size();
    if (HasOnlyText(item + 1)) {
      if (end + rest > FTokens.size()) return false;
      end = last = FTokens.size() - rest;
    }
    std::ptrdiff_t depth = 0;
    std::size_t checked = token;
    for (; end <= last && FStepsLeft > 0; ++end) {
      for (; checked < end; ++checked) {
        const std::string_view text = FTokens[checked].Text;
        if (FItems[item].Kind == tiQuotedValue && text.find(Quote) != std::string_view::npos) return false;
        if (text == "(") ++depth;
        if (text == ")" && --depth < 0) return false;
      }
      if (depth > 0) continue;
      if (rest > 0 && FItems[item + 1].Kind == tiText &&
          (end == FTokens.size() || !IsSame(FTokens[end], FItems[item + 1].Text))) {
        continue;
      }
      const std::string_view text = FComparison.TextOf(token, end);
      FStepsLeft -= std::min(FStepsLeft, text.size() / BytesPerStep);
      const bool isLiteral = IsWholeLiteral(text);
      if (Take(item, {isLiteral ? DecodeLiteral(text) : std::string(text), isLiteral, {}, {}, token, end})) return true;
    }
    return false;
  }

  bool Take(std::size_t item, TValueCapture capture) {
    if (FNoWildcard != '\0' && capture.Text.find(FNoWildcard) != std::string::npos) return false;
    TValueCapture& place = FCaptures[FItems[item].Value];
    const std::size_t next = capture.End;
    if (place.IsSet()) {
      return place.Text == capture.Text && place.IsLiteral == capture.IsLiteral && MatchFrom(item + 1, next);
    }
    place = std::move(capture);
    if (MatchFrom(item + 1, next)) return true;
    place = {};
    return false;
  }

  [[nodiscard]] bool HasOnlyText(std::size_t from) const {
    return std::all_of(FItems.begin() + static_cast<std::ptrdiff_t>(from), FItems.end(),
                       [](const TItem& item) { return item.Kind == tiText; });
  }

  const std::vector<TItem>& FItems;
  const TComparisonTokens& FComparison;
  const std::vector<TComparisonTokens::TToken>& FTokens;
  // Values must not hold it; NUL for none.
  const char FNoWildcard;
  TValueCaptures& FCaptures;
  // Templates with several values without quotes could cost the square of the text.
  std::size_t FStepsLeft;
};

std::vector<TOperatorTemplate> OperatorTemplatesOf(const TJCustomDBStructure& model) {
  std::vector<TOperatorTemplate> templates;
  templates.reserve(model.GetOperatCount());
  const char wildcard = model.SQLFormats().GetWildcardChar();
  for (TDSOperator& op : model.Operators()) templates.push_back({&op, TSQLTemplate(op.GetSQLExpr(), wildcard)});
  return templates;
}

bool TSQLTemplate::Match(const TComparisonTokens& comparison, bool withWildcards, TValueCaptures& captures) const {
  captures = {};
  if (!FUsable || FItems.empty()) return false;
  return TWalk(FItems, comparison, withWildcards ? '\0' : FWildcard, captures).MatchFrom(0, 0);
}

}  // namespace tolvi
