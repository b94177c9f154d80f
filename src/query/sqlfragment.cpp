#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <iterator>
#include <utility>
#include <vector>

#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/format.h>
#include <tolvi/foundation/text.h>
#include <tolvi/query/sqlfragment.h>
#include <tolvi/sqlimport/scanner.h>
#include <tolvi/sqlimport/subselects.h>

namespace tolvi {
namespace {

enum TKind : std::uint8_t { tkSymbol, tkWord, tkNumber, tkLiteral, tkName };

struct TToken {
  TKind Kind;
  // As written; of a symbol one character or two ("<>").
  std::string_view Text;
  // Whether nothing stands between it and the token before.
  bool Adjacent;

  bool Is(std::string_view symbol) const { return Kind == tkSymbol && Text == symbol; }
  bool IsWord(std::string_view word) const { return Kind == tkWord && AsciiSameText(Text, word); }
};

/// Which symbols besides '"' quote names.
struct TReading {
  bool Backticks, Brackets;

  char CloserOf(std::string_view symbol) const {
    if (symbol == "\"") return '"';
    if (symbol == "`" && Backticks) return '`';
    return symbol == "[" && Brackets ? ']' : '\0';
  }
};

std::vector<TReading> ReadingsFor(char openQuote) {
  if (openQuote == '[') return {{false, true}, {true, true}};
  if (openQuote == '`') return {{true, false}, {true, true}};
  return {{false, false}, {true, false}, {false, true}, {true, true}};
}

/// The place behind the closing quote, in which a doubled one stands for one; npos when it is missing.
std::size_t EndOfName(std::string_view sql, std::size_t start, char closer) {
  for (std::size_t at = sql.find(closer, start + 1); at != std::string_view::npos; at = sql.find(closer, at + 2)) {
    if (at + 1 == sql.size() || sql[at + 1] != closer) return at + 1;
  }
  return std::string_view::npos;
}

TKind KindOf(TTokenType type) {
  if (type == ttIdentifier) return tkWord;
  if (type == ttString) return tkLiteral;
  return type == ttInteger || type == ttReal ? tkNumber : tkSymbol;
}

std::string NotClosed(std::string_view symbol) { return Format("a %s is not closed", {symbol}); }

/// Splits the text. Returns why it cannot be split, empty when it can.
std::string Split(std::string_view sql, const TReading& reading, std::vector<TToken>& tokens) {
  TJScanner scanner;
  scanner.SetSkipComments(false);
  scanner.SetSource(sql);
  scanner.FirstToken();
  std::size_t previousEnd = std::string_view::npos;
  while (!scanner.EOS()) {
    const std::size_t start = scanner.GetTokPos();
    std::size_t end = scanner.GetTokEnd();
    const std::string_view text = sql.substr(start, end - start);
    if (scanner.GetTokType() == ttComment) return "it holds a comment: take it out";
    if (scanner.Unterminated()) return NotClosed("'");
    TKind kind = KindOf(scanner.GetTokType());
    if (const char closer = kind == tkSymbol ? reading.CloserOf(text) : '\0'; closer != '\0') {
      kind = tkName;
      end = EndOfName(sql, start, closer);
      if (end == std::string_view::npos) return NotClosed(text);
      scanner.SkipTo(end);
    } else {
      scanner.NextToken();
    }
    tokens.push_back({kind, sql.substr(start, end - start), start == previousEnd});
    previousEnd = end;
  }
  return {};
}

// ---- One closed expression ------------------------------------------------------------------------------------------

constexpr std::string_view Opening = "([{", Closing = ")]}";

// Words that no condition holds outside brackets.
constexpr std::string_view ClauseWords[] = {"by",   "except", "fetch",  "from",   "having", "intersect", "into",
                                            "join", "limit",  "offset", "select", "union",  "where"};

bool IsOneOf(std::string_view symbol, std::string_view characters) {
  return symbol.size() == 1 && characters.find(symbol) != std::string_view::npos;
}

class TFragmentCheck {
 public:
  TFragmentCheck(std::string_view sql, const std::vector<TToken>& tokens) : FSQL(sql), FTokens(tokens) {}

  std::string Fault() {
    if (FTokens.empty()) return "it is empty";
    for (FAt = 0; FAt < FTokens.size(); ++FAt) {
      std::string fault = FTokens[FAt].Kind == tkSymbol ? SymbolFault() : OtherFault();
      if (!fault.empty()) return fault;
    }
    return FOpen.empty() ? std::string() : NotClosed(std::string(1, FOpen.back()));
  }

 private:
  const TToken* Before() const { return FAt > 0 ? &FTokens[FAt - 1] : nullptr; }
  /// The next token if nothing stands between, or null.
  const TToken* Touching() const {
    return FAt + 1 < FTokens.size() && FTokens[FAt + 1].Adjacent ? &FTokens[FAt + 1] : nullptr;
  }
  bool TouchesWord() const { return FTokens[FAt].Adjacent && Before()->Kind == tkWord; }

  std::string SymbolFault() {
    const std::string_view symbol = FTokens[FAt].Text;
    if (IsOneOf(symbol, Opening)) FOpen += symbol;
    if (IsOneOf(symbol, Closing)) {
      if (FOpen.empty() || Closing[Opening.find(FOpen.back())] != symbol[0]) {
        return Format("a %s closes nothing", {symbol});
      }
      FOpen.pop_back();
    }
    if (symbol == ";") return "it holds a \";\"";
    if (symbol == "," && FOpen.empty()) return "it holds a comma outside brackets";
    if (symbol == "#" && !SkipDate()) return "it holds a \"#\", which begins a comment in some databases";
    if (symbol == "?") return PlaceFault();
    if (symbol == ":") return ColonFault();
    if (symbol == "@" && Touching() != nullptr && Touching()->Kind != tkSymbol) return PlaceFault();
    // Behind a word it is a part of the name.
    if (symbol == "$" && !TouchesWord()) {
      const bool isPlace = Touching() != nullptr && Touching()->Kind == tkNumber;
      return isPlace ? PlaceFault() : "it holds a \"$\", which quotes in some databases";
    }
    return {};
  }

  std::string ColonFault() {
    const TToken* next = Touching();
    if (next == nullptr) return {};
    if (next->Is(":")) ++FAt;  // a cast
    return next->Kind == tkSymbol ? std::string() : PlaceFault();
  }

  std::string PlaceFault() const {
    std::string place(FTokens[FAt].Text);
    if (place != "?" && Touching() != nullptr) place += Touching()->Text;
    return Format("it holds a place for a value, %s: write the value itself", {place});
  }

  std::string OtherFault() const {
    const TToken& token = FTokens[FAt];
    if (token.Kind == tkLiteral && TouchesWord()) {
      if (std::string fault = PrefixFault(token.Text); !fault.empty()) return fault;
    }
    const bool isEscape = token.Text == "'\\'" && Before() != nullptr && Before()->IsWord("escape");
    if (token.Kind == tkLiteral && !isEscape && token.Text.find("\\'") != std::string_view::npos) {
      return "it holds a backslash before a quote, which some databases take for a part of the text";
    }
    if (token.Kind != tkWord || !FOpen.empty() || (Before() != nullptr && Before()->Is("."))) return {};
    const auto isWord = [&token](std::string_view word) { return token.IsWord(word); };
    if (std::none_of(std::begin(ClauseWords), std::end(ClauseWords), isWord)) return {};
    // "is distinct from" is a comparison.
    if (token.IsWord("from") && Before() != nullptr && Before()->IsWord("distinct")) return {};
    return Format("it holds \"%s\", which is no part of a condition", {token.Text});
  }

  // Words before literals by which some databases read them in other ways.
  std::string PrefixFault(std::string_view literal) const {
    const TToken& prefix = *Before();
    const bool otherQuotes = prefix.IsWord("q") || prefix.IsWord("nq");
    const bool otherEnd = prefix.IsWord("e") && literal.find("\\'") != std::string_view::npos;
    if (!otherQuotes && !otherEnd) return {};
    return Format("it holds a literal with %s before it: write it in single quotes alone, doubled inside",
                  {prefix.Text});
  }

  // "#2024-12-31 10:30#". Where it is a comment, a line break would end it.
  bool SkipDate() {
    if (FSQL.find_first_of("\r\n") != std::string_view::npos) return false;
    std::size_t at = FAt + 1;
    const auto isPart = [](const TToken& token) { return token.Kind == tkNumber || IsOneOf(token.Text, "-/:."); };
    while (at < FTokens.size() && isPart(FTokens[at])) ++at;
    if (at == FAt + 1 || at == FTokens.size() || !FTokens[at].Is("#")) return false;
    FAt = at;
    return true;
  }

  std::string_view FSQL;
  const std::vector<TToken>& FTokens;
  std::size_t FAt = 0;
  std::string FOpen;
};

/// Whether a word or symbol that binds less than AND stands outside brackets, or a BETWEEN lacks its AND.
bool BindsLoosely(const std::vector<TToken>& tokens) {
  std::size_t depth = 0, cases = 0, betweens = 0;
  const TToken* before = nullptr;
  for (const TToken& token : tokens) {
    const TToken* previous = std::exchange(before, &token);
    if (token.Kind == tkSymbol && IsOneOf(token.Text, Opening)) ++depth;
    if (token.Kind == tkSymbol && IsOneOf(token.Text, Closing)) --depth;
    if (depth > 0 || (previous != nullptr && previous->Is("."))) continue;
    if (token.IsWord("case")) ++cases;
    if (token.IsWord("end") && cases > 0) --cases;
    if (cases > 0) continue;
    if (token.IsWord("or") || token.IsWord("xor")) return true;
    // A concatenation to most databases, OR to some.
    if (token.Is("|") && token.Adjacent && previous->Is("|")) return true;
    if (token.IsWord("between")) ++betweens;
    if (token.IsWord("and") && betweens > 0) --betweens;
  }
  return cases > 0 || betweens > 0;
}

// ---- TOP and LIMIT --------------------------------------------------------------------------------------------------

/// The clause if its tokens, numbers as "1" and words in lower case, are one of the shapes: joined by blanks, none
/// inside brackets and before commas.
std::optional<std::string> ReadClause(std::string_view text, std::initializer_list<std::string_view> shapes) {
  constexpr std::size_t mostTokens = 4;
  TJScanner scanner;
  scanner.SetSkipComments(false);
  scanner.SetSource(text);
  std::string clause, shape;
  std::size_t count = 0;
  for (scanner.FirstToken(); !scanner.EOS() && count <= mostTokens; scanner.NextToken(), ++count) {
    const bool isClosing = scanner.GetRealStr() == ")" || scanner.GetRealStr() == ",";
    if (!clause.empty() && !isClosing && clause.back() != '(') clause += ' ';
    clause += scanner.GetRealStr();
    shape += scanner.GetTokType() == ttInteger ? std::string_view("1") : scanner.GetTokStr();
    shape += ' ';
  }
  if (!StrInList(shape, shapes)) return std::nullopt;
  return clause;
}

}  // namespace

std::string FragmentFault(std::string_view sql, char openQuote) {
  if (sql.find('\0') != std::string_view::npos) return "it holds a zero byte";
  for (const TReading& reading : ReadingsFor(openQuote)) {
    std::vector<TToken> tokens;
    std::string fault = Split(sql, reading, tokens);
    if (fault.empty()) fault = TFragmentCheck(sql, tokens).Fault();
    if (!fault.empty()) return fault;
  }
  return {};
}

std::string FormulaFault(std::string_view formula, char openQuote, bool allowSelects) {
  // Most formulas are a field alone.
  if (formula == "@1") return {};
  const std::string sql = ReplaceStr(formula, "@", "f");
  std::string fault = FragmentFault(sql, openQuote);
  if (!fault.empty() || allowSelects) return fault;
  for (const TReading& reading : ReadingsFor(openQuote)) {
    std::vector<TToken> tokens;
    static_cast<void>(Split(sql, reading, tokens));
    const auto isSelect = [](const TToken& token) { return token.IsWord("select"); };
    if (std::any_of(tokens.begin(), tokens.end(), isSelect)) return "it holds a SELECT: allow SQL in queries";
  }
  return {};
}

bool NeedsBrackets(std::string_view sql, char openQuote) {
  const std::vector<TReading> readings = ReadingsFor(openQuote);
  return std::any_of(readings.begin(), readings.end(), [sql](const TReading& reading) {
    std::vector<TToken> tokens;
    return !Split(sql, reading, tokens).empty() || BindsLoosely(tokens);
  });
}

std::string WithoutInnerTables(std::string_view sql, char openQuote, char closeQuote) {
  std::string result(sql);
  try {
    const TSelectText text(sql, openQuote, closeQuote);
    const auto blank = [&](std::size_t at, TSubSelects::TQualifier meaning) {
      const TSelectToken& token = text[at];
      if (meaning != TSubSelects::sqOuter) result.replace(token.Pos, token.Text.size(), token.Text.size(), ' ');
    };
    TSubSelects(text, text.All()).ForEach(blank, [](std::size_t) {});
  } catch (const ESQLImportError&) {
    // No statement is built with such a text.
  }
  return result;
}

std::optional<std::string> ReadTopClause(std::string_view text) {
  return ReadClause(text, {"1 ", "1 percent ", "( 1 ) ", "( 1 ) percent "});
}

std::optional<std::string> ReadLimitClause(std::string_view text) {
  return ReadClause(text, {"1 ", "1 offset 1 ", "1 , 1 "});
}

}  // namespace tolvi
