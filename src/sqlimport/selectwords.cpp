#include <algorithm>
#include <initializer_list>
#include <iterator>
#include <string>

#include <tolvi/foundation/text.h>
#include <tolvi/sqlimport/selectwords.h>

namespace tolvi {

namespace {

// A token and its neighbours; there is always one more token, the end, behind the last one.
class TPlace {
 public:
  TPlace(const std::vector<TSelectToken>& tokens, std::size_t index, bool inCase)
      : InCase(inCase), FTokens(tokens), FIndex(index) {}

  [[nodiscard]] const TSelectToken& Before() const {
    static const TSelectToken none;
    return FIndex > 0 ? FTokens[FIndex - 1] : none;
  }
  [[nodiscard]] const TSelectToken& After(std::size_t distance = 1) const {
    return FTokens[std::min(FIndex + distance, FTokens.size() - 1)];
  }
  [[nodiscard]] bool IsAfterOperand() const { return Before().EndsOperand(); }
  [[nodiscard]] bool IsAfterTerm() const { return IsAfterOperand() || IsOneOf(Before(), {swAsc, swDesc}); }
  [[nodiscard]] bool IsBefore(std::initializer_list<TSelectWord> words) const { return IsOneOf(After(), words); }
  [[nodiscard]] bool IsAfter(std::initializer_list<TSelectWord> words) const { return IsOneOf(Before(), words); }
  [[nodiscard]] bool IsBeforeName(std::initializer_list<std::string_view> names) const {
    const TSelectToken& after = After();
    return (after.Kind == stkName || after.Kind == stkWord) &&
           std::any_of(names.begin(), names.end(),
                       [&after](std::string_view name) { return AsciiSameText(after.Text, name); });
  }
  // A word behind this one may turn out to be a name.
  [[nodiscard]] bool IsBeforeOperand() const;
  [[nodiscard]] bool IsBeforeNumber() const {
    return After().Kind == stkNumber || After().Kind == stkParam || After().Word == swOpen;
  }

  const bool InCase;

 private:
  static bool IsOneOf(const TSelectToken& token, std::initializer_list<TSelectWord> words) {
    return std::find(words.begin(), words.end(), token.Word) != words.end();
  }

  const std::vector<TSelectToken>& FTokens;
  const std::size_t FIndex;
};

using TRule = bool (*)(const TPlace&);

constexpr TRule Always = nullptr;

bool BeginsQuantifiedList(const TPlace& at) {
  return at.IsAfter({swSelect, swUnion, swIntersect, swExcept}) && at.After().Kind != stkEnd &&
         !at.IsBefore({swComma, swFrom, swAs, swPoint, swCompare, swClose});
}
bool LimitsList(const TPlace& at) { return at.IsAfter({swSelect, swDistinct, swAll}) && at.IsBeforeNumber(); }
bool LimitsRows(const TPlace& at) {
  if (!at.IsAfterTerm()) return false;
  return at.IsBeforeNumber() || at.IsBefore({swAll, swNull}) || at.After().Text == "-" || at.After().Text == "+";
}
bool FetchesRows(const TPlace& at) { return at.IsAfterTerm() && at.IsBeforeName({"first", "next"}); }
bool PlacesNulls(const TPlace& at) { return at.IsAfterTerm() && at.IsBeforeName({"first", "last"}); }
bool IsBeforePlainName(const TPlace& at) { return at.IsAfterTerm() && at.After().Kind == stkName; }
bool NamesWindow(const TPlace& at) { return at.IsAfterTerm() && at.After().IsName() && at.After(2).Word == swAs; }
bool IsBeforeSelect(const TPlace& at) {
  return at.IsBefore({swSelect}) || (at.IsBefore({swOpen, swAll}) && at.After(2).Word == swSelect);
}
bool IsBeforeJoin(const TPlace& at) { return at.IsBefore({swJoin}); }
bool IsBeforeCrossJoin(const TPlace& at) { return at.IsBefore({swJoin}) || at.IsBeforeName({"apply"}); }
bool IsBeforeOuterJoin(const TPlace& at) { return at.IsBefore({swJoin, swOuter}); }
bool IsBeforeAnyJoin(const TPlace& at) { return at.IsBefore({swJoin, swInner, swLeft, swRight, swFull}); }
bool IsAfterOperand(const TPlace& at) { return at.IsAfterOperand(); }
bool IsBeforeBracket(const TPlace& at) { return at.IsBefore({swOpen}); }
bool IsInCase(const TPlace& at) { return at.InCase; }
bool TakesBracket(const TPlace& at) { return at.IsAfterOperand() && at.IsBefore({swOpen}); }
bool TakesTarget(const TPlace& at) { return at.IsAfterOperand() && (at.IsBeforeOperand() || at.After().Text == "#"); }
bool TakesRows(const TPlace& at) { return at.IsAfterTerm() && at.After().Kind == stkNumber; }
bool TakesIndex(const TPlace& at) { return at.IsAfterOperand() && at.IsBeforeName({"index", "key"}); }
bool TakesMode(const TPlace& at) { return at.IsAfterTerm() && at.IsBefore({swIn}); }
bool TakesBy(const TPlace& at) { return at.IsAfterOperand() && at.IsBefore({swBy}); }
bool TakesWith(const TPlace& at) { return at.IsAfterOperand() && at.IsBeforeName({"with"}); }
bool TakesOptions(const TPlace& at) {
  return at.IsAfterTerm() &&
         (at.IsBefore({swOpen}) || at.IsBeforeName({"rollup", "cube", "ur", "cs", "rs", "rr", "no", "check"}));
}
bool ReplacesDistinct(const TPlace& at) {
  return at.IsAfter({swSelect}) && (at.IsBeforeOperand() || at.IsBefore({swStar}));
}
bool CountsRows(const TPlace& at) { return at.IsAfter({swSelect, swDistinct}) && at.After().Kind == stkNumber; }

struct TWordRule {
  std::string_view Text;
  TSelectWord Word;
  // What makes the word more than a name.
  TRule Rule = Always;
};

// In the order of the alphabet.
constexpr TWordRule WordRules[] = {
    {"all", swAll, BeginsQuantifiedList},
    {"and", swAnd},
    {"as", swAs},
    {"asc", swAsc, IsAfterOperand},
    {"between", swBetween},
    {"by", swBy},
    {"case", swCase},
    {"connect", swClause, TakesBy},
    {"cross", swCross, IsBeforeCrossJoin},
    {"desc", swDesc, IsAfterOperand},
    {"distinct", swDistinct},
    {"distinctrow", swClause, ReplacesDistinct},
    {"end", swEnd, IsInCase},
    {"except", swExcept},
    {"exists", swExists, IsBeforeBracket},
    {"fetch", swFetch, FetchesRows},
    {"first", swClause, CountsRows},
    {"for", swFor, IsBeforePlainName},
    {"force", swClause, TakesIndex},
    {"from", swFrom},
    {"full", swFull, IsBeforeOuterJoin},
    {"group", swGroup},
    {"having", swHaving},
    {"high_priority", swClause, ReplacesDistinct},
    {"ignore", swClause, TakesIndex},
    {"in", swIn},
    {"inner", swInner, IsBeforeJoin},
    {"intersect", swIntersect},
    {"into", swClause, TakesTarget},
    {"is", swIs},
    {"join", swJoin},
    {"left", swLeft, IsBeforeOuterJoin},
    {"like", swLike},
    {"limit", swLimit, LimitsRows},
    {"lock", swClause, TakesMode},
    {"minus", swExcept, IsBeforeSelect},
    {"natural", swNatural, IsBeforeAnyJoin},
    {"not", swNot},
    {"null", swNull},
    {"nulls", swNulls, PlacesNulls},
    {"offset", swOffset, LimitsRows},
    {"on", swOn},
    {"option", swClause, TakesBracket},
    {"or", swOr},
    {"order", swOrder},
    {"outer", swOuter, IsBeforeJoin},
    {"partition", swClause, TakesBracket},
    {"pivot", swClause, TakesBracket},
    {"procedure", swClause, TakesTarget},
    {"qualify", swClause, TakesTarget},
    {"right", swRight, IsBeforeOuterJoin},
    {"rows", swClause, TakesRows},
    {"select", swSelect},
    {"skip", swClause, CountsRows},
    {"sql_calc_found_rows", swClause, ReplacesDistinct},
    {"sql_no_cache", swClause, ReplacesDistinct},
    {"start", swClause, TakesWith},
    {"straight_join", swClause, ReplacesDistinct},
    {"tablesample", swClause, TakesTarget},
    {"top", swTop, LimitsList},
    {"union", swUnion},
    {"unique", swClause, ReplacesDistinct},
    {"unpivot", swClause, TakesBracket},
    {"use", swClause, TakesIndex},
    {"using", swUsing},
    {"where", swWhere},
    {"window", swWindow, NamesWindow},
    {"with", swClause, TakesOptions},
};

constexpr std::string_view NamesThatTakeNames[] = {
    "against", "at", "collate", "contains", "div",    "escape", "glob",    "ilike", "match", "member",
    "mod",     "of", "over",    "overlaps", "regexp", "rlike",  "similar", "to",    "xor",   "zone",
};

constexpr std::size_t LongestWord = 19;

const TWordRule* RuleFor(std::string_view text) {
  if (text.empty() || text.size() > LongestWord) return nullptr;
  const std::string word = AsciiLower(text);
  const auto* const rule =
      std::lower_bound(std::begin(WordRules), std::end(WordRules), std::string_view(word),
                       [](const TWordRule& entry, std::string_view key) { return entry.Text < key; });
  return rule != std::end(WordRules) && rule->Text == word ? rule : nullptr;
}

bool TPlace::IsBeforeOperand() const {
  if (After().BeginsOperand()) return true;
  const TWordRule* const rule = After().Kind == stkWord ? RuleFor(After().Text) : nullptr;
  return rule != nullptr && rule->Rule != Always;
}

}  // namespace

TSelectWord SelectWordOf(std::string_view text) {
  const TWordRule* const rule = RuleFor(text);
  return rule != nullptr ? rule->Word : swNone;
}

bool IsSelectWordHere(const std::vector<TSelectToken>& tokens, std::size_t index, bool inCase) {
  const TWordRule* const rule = RuleFor(tokens[index].Text);
  return rule == nullptr || rule->Rule == Always || rule->Rule(TPlace(tokens, index, inCase));
}

bool IsNameText(const TSelectToken& token, std::string_view word) {
  return token.Kind == stkName && AsciiSameText(token.Text, word);
}

bool TakesNameBehind(const TSelectToken& token) {
  return std::any_of(std::begin(NamesThatTakeNames), std::end(NamesThatTakeNames),
                     [&token](std::string_view name) { return IsNameText(token, name); });
}

}  // namespace tolvi
