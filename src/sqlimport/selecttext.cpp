#include <algorithm>
#include <iterator>
#include <limits>

#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/text.h>
#include <tolvi/sqlimport/scanner.h>
#include <tolvi/sqlimport/selecttext.h>
#include <tolvi/sqlimport/selectwords.h>

namespace tolvi {

namespace {

constexpr bool IsDigit(char c) { return c >= '0' && c <= '9'; }
constexpr bool IsWordCharacter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || IsDigit(c) || c == '_' ||
         static_cast<unsigned char>(c) >= 0x80;
}

// What operators consist of. "@" and "#" also begin names and dates.
constexpr std::string_view OperatorCharacters = "=<>!~^|&*/%+-@#";
constexpr std::string_view SignCharacters = "+-~";
constexpr std::string_view Comparisons[] = {"=", "<>", "!=", "<", ">", "<=", ">=", "==", "<=>", "!<", "!>", "^="};
// Longer ones are read in pieces.
constexpr std::size_t LongestOperator = 8;

struct TSymbolWord {
  char Symbol;
  TSelectWord Word;
};
constexpr TSymbolWord SymbolWords[] = {{'(', swOpen}, {')', swClose}, {',', swComma}, {'.', swPoint}, {'*', swStar}};

TSelectWord WordOfSymbol(std::string_view text) {
  if (std::find(std::begin(Comparisons), std::end(Comparisons), text) != std::end(Comparisons)) return swCompare;
  if (text.size() != 1) return swNone;
  const auto* const symbol = std::find_if(std::begin(SymbolWords), std::end(SymbolWords),
                                          [text](const TSymbolWord& entry) { return entry.Symbol == text[0]; });
  return symbol != std::end(SymbolWords) ? symbol->Word : swNone;
}

struct TBracketPair {
  std::string_view Open, Close;
};
constexpr TBracketPair BracketPairs[] = {{"(", ")"}, {"[", "]"}, {"{", "}"}};

bool IsOpening(const TSelectToken& token) {
  return token.Kind == stkSymbol && std::any_of(std::begin(BracketPairs), std::end(BracketPairs),
                                                [&token](const TBracketPair& pair) { return pair.Open == token.Text; });
}

// The bracket that a closing one needs; empty for any other token.
std::string_view OpeningOf(const TSelectToken& token) {
  if (token.Kind != stkSymbol) return {};
  const auto* const pair = std::find_if(std::begin(BracketPairs), std::end(BracketPairs),
                                        [&token](const TBracketPair& entry) { return entry.Close == token.Text; });
  return pair != std::end(BracketPairs) ? pair->Open : std::string_view();
}

constexpr TSelectTokenKind KindOf(TTokenType type) {
  switch (type) {
    case ttIdentifier:
    case ttKeyword:
      return stkName;
    case ttString:
      return stkString;
    case ttReal:
    case ttInteger:
      return stkNumber;
    default:
      return stkSymbol;
  }
}

std::size_t EndOf(const TSelectToken& token) { return token.Pos + token.Text.size(); }

}  // namespace

// ---- Tokens ---------------------------------------------------------------------------------------------------------

bool TSelectToken::EndsOperand() const {
  if (Kind == stkSymbol) return Word == swClose || Text == "]" || Text == "}";
  if (Kind == stkWord) return Word == swEnd || Word == swNull;
  return Kind != stkEnd;
}

bool TSelectToken::BeginsOperand() const {
  if (Kind == stkSymbol) return Word == swOpen || Text == "-" || Text == "+" || Text == "~" || Text == "{";
  if (Kind == stkWord) return Word == swCase || Word == swNull || Word == swExists || Word == swNot;
  return Kind != stkEnd;
}

std::string TSelectToken::Name() const {
  if (Kind != stkQuotedName && Kind != stkString) return std::string(Text);
  const char close = Text.back();
  std::string name;
  name.reserve(Text.size());
  for (std::size_t i = 1; i + 1 < Text.size(); ++i) {
    name += Text[i];
    if (Text[i] == close) ++i;
  }
  return name;
}

TSelectText::TSelectText(std::string_view text, char open, char close, int firstLine)
    : FText(text), FFirstLine(firstLine) {
  if (const std::size_t nul = FText.find('\0'); nul != std::string::npos) FailAt(nul, "The text holds a NUL");
  if (!IsValidUtf8(FText)) FailAt(0, "The text is no UTF-8: save it in that encoding");
  Scan(open, close);
  while (!FTokens.empty() && FTokens.back().Text == ";") FTokens.pop_back();
  FTokens.push_back({{}, FText.size(), stkEnd, swNone, 0});
  PairTokens();
}

void TSelectText::Scan(char open, char close) {
  TJScanner scanner;
  scanner.SetSkipComments(false);
  scanner.SetSource(FText);
  scanner.FirstToken();
  while (!scanner.EOS()) {
    const std::size_t pos = scanner.GetTokPos();
    std::size_t scanned = scanner.GetTokEnd();
    std::size_t end = scanned;
    if (scanner.GetTokType() == ttComment) {
      if (scanner.Unterminated()) FailAt(pos, "The comment does not end: close it with \"*/\"");
      scanner.NextToken();
      continue;
    }
    if (scanner.Unterminated()) FailAt(pos, "The text in quotes does not end: a \"'\" is missing");
    TSelectToken token{{}, pos, KindOf(scanner.GetTokType()), swNone, 0};
    if (token.Kind == stkNumber) {
      end = EndOfNumber(end);
    } else if (token.Kind == stkSymbol) {
      if (static_cast<unsigned char>(FText[pos]) < ' ') FailAt(pos, "The text holds a control character");
      if (FText[pos] == '"' || FText[pos] == open) {
        token.Kind = stkQuotedName;
        end = EndOfQuoted(pos, FText[pos] == '"' ? '"' : close);
      } else if (FText[pos] == '.' && IsDigit(FText.c_str()[pos + 1]) && !IsBehindOperand(pos)) {
        scanner.NextToken();
        scanned = scanner.GetTokEnd();
        token.Kind = stkNumber;
        end = EndOfNumber(scanned);
      } else if (const std::size_t endOfParam = EndOfParam(pos); endOfParam > pos) {
        token.Kind = stkParam;
        end = endOfParam;
      } else {
        end = EndOfOperator(pos, end);
      }
    }
    token.Text = std::string_view(FText).substr(pos, end - pos);
    if (token.Kind == stkSymbol) token.Word = WordOfSymbol(token.Text);
    if (token.Kind == stkName && (FTokens.empty() || FTokens.back().Word != swPoint)) {
      token.Word = SelectWordOf(token.Text);
      if (token.Word != swNone) token.Kind = stkWord;
    }
    FTokens.push_back(token);
    if (end == scanned) {
      scanner.NextToken();
    } else {
      scanner.SkipTo(end);
    }
  }
}

bool TSelectText::IsBehindOperand(std::size_t pos) const {
  return !FTokens.empty() && EndOf(FTokens.back()) == pos && FTokens.back().EndsOperand();
}

// A number takes a point behind it, and letters: 1. 0xFF 10L.
std::size_t TSelectText::EndOfNumber(std::size_t end) const {
  if (FText.c_str()[end] == '.' && FText.c_str()[end + 1] != '.') return end + 1;
  while (IsWordCharacter(FText.c_str()[end])) ++end;
  return end;
}

std::size_t TSelectText::EndOfQuoted(std::size_t pos, char close) const {
  for (std::size_t at = FText.find(close, pos + 1); at != std::string::npos; at = FText.find(close, at + 2)) {
    if (FText.c_str()[at + 1] != close) return at + 1;
  }
  FailAt(pos, "The name in quotes does not end: a " + QuotedString(std::string(1, close), close == '"' ? '\'' : '"') +
                  " is missing");
}

// `pos` for no place for a value. Directly behind a value, what else begins one is an operator: "a::int", "v$1".
std::size_t TSelectText::EndOfParam(std::size_t pos) const {
  const char* const text = FText.c_str();
  const char first = text[pos];
  std::size_t end = pos + 1;
  if (first == '?') {
    while (IsDigit(text[end])) ++end;
    return end;
  }
  if (first != ':' && first != '@' && first != '$') return pos;
  if (IsBehindOperand(pos) || (pos > 0 && text[pos - 1] == ':')) return pos;
  if (first == '@' && text[end] == '@') ++end;
  const std::size_t begin = end;
  while (IsWordCharacter(text[end])) ++end;
  if (first == '$' && text[end] == '$') {
    FailAt(pos, "A text between dollar signs cannot be read: put it in single quotes");
  }
  if (end == begin) return pos;
  if (first == '$') return std::all_of(text + begin, text + end, IsDigit) ? end : pos;
  if (IsDigit(text[begin])) return first == ':' && std::all_of(text + begin, text + end, IsDigit) ? end : pos;
  return end;
}

// Operators are as long as they can be, but for the signs of what follows: "->>", but not "=-".
std::size_t TSelectText::EndOfOperator(std::size_t pos, std::size_t end) const {
  const char* const text = FText.c_str();
  const auto isIn = [](std::string_view characters, char c) {
    return c != '\0' && characters.find(c) != characters.npos;
  };
  if (!isIn(OperatorCharacters, text[pos])) return end;
  // A number and "#" are the end of a date.
  const bool afterNumber = !FTokens.empty() && EndOf(FTokens.back()) == pos && FTokens.back().Kind == stkNumber;
  if (text[pos] == '#' && (text[pos + 1] != '>' || afterNumber)) return end;
  std::size_t last = end;
  for (; last < pos + LongestOperator && isIn(OperatorCharacters, text[last]); ++last) {
    const char next = text[last + 1];
    if (text[last] == '#' || (text[last] == '@' && (IsWordCharacter(next) || next == '@'))) break;
    if ((text[last] == '-' && next == '-') || (text[last] == '/' && next == '*')) break;
  }
  while (last > end && isIn(SignCharacters, text[last - 1])) --last;
  return last;
}

// Settles which words are more than names, and what belongs together.
void TSelectText::PairTokens() {
  std::vector<std::size_t> open;
  int depth = 0;
  const auto isInCase = [this, &open] { return !open.empty() && FTokens[open.back()].Word == swCase; };
  for (std::size_t i = 0; i < FTokens.size(); ++i) {
    TSelectToken& token = FTokens[i];
    if (token.Kind == stkWord && !IsSelectWordHere(FTokens, i, isInCase())) {
      token.Kind = stkName;
      token.Word = swNone;
    }
    const std::string_view opening = OpeningOf(token);
    if (token.Word == swCase || IsOpening(token)) {
      if (token.Word != swCase && ++depth > MaxDepth) {
        Fail(i, Format("Brackets are nested deeper than %d levels: use fewer of them", {MaxDepth}));
      }
      open.push_back(i);
    } else if (token.Word == swEnd || !opening.empty()) {
      if (!opening.empty() && isInCase()) Fail(open.back(), "CASE has no END");
      if (!opening.empty() && (open.empty() || FTokens[open.back()].Text != opening)) {
        Fail(i, Format("\"%s\" has no \"%s\" before it", {token.Text, opening}));
      }
      token.Partner = static_cast<std::uint32_t>(open.back());
      FTokens[open.back()].Partner = static_cast<std::uint32_t>(i);
      open.pop_back();
      if (!opening.empty()) --depth;
    }
  }
  if (isInCase()) Fail(open.back(), "CASE has no END");
  if (!open.empty()) Fail(open.back(), Format("\"%s\" is not closed", {FTokens[open.back()].Text}));
}

// ---- Ranges and places ----------------------------------------------------------------------------------------------

std::string_view TSelectText::TextOf(TTokenRange range) const {
  range.End = std::min(range.End, Count());
  if (range.Empty()) return {};
  const std::size_t begin = FTokens[range.Begin].Pos;
  return std::string_view(FText).substr(begin, EndOf(FTokens[range.End - 1]) - begin);
}

TTokenRange TSelectText::WithoutBrackets(TTokenRange range) const {
  while (range.Count() > 1 && (*this)[range.Begin].Word == swOpen && (*this)[range.Begin].Partner == range.End - 1 &&
         (*this)[range.Begin + 1].Word != swSelect) {
    ++range.Begin;
    --range.End;
  }
  return range;
}

std::size_t TSelectText::PlaceOf(std::size_t index) const {
  if (index < Count()) return FTokens[index].Pos;
  if (Count() > 0) return EndOf(FTokens[Count() - 1]);
  return FText.starts_with(ByteOrderMark) ? ByteOrderMark.size() : 0;
}

std::size_t TSelectText::LineIndexAt(std::size_t pos) const {
  if (FLineStarts.empty()) {
    FLineStarts.push_back(FText.starts_with(ByteOrderMark) ? ByteOrderMark.size() : 0);
    for (std::size_t at = FText.find('\n'); at != std::string::npos; at = FText.find('\n', at + 1)) {
      FLineStarts.push_back(at + 1);
    }
  }
  const auto after = std::upper_bound(FLineStarts.begin() + 1, FLineStarts.end(), pos);
  return static_cast<std::size_t>(after - FLineStarts.begin()) - 1;
}

int TSelectText::LineOf(std::size_t index) const { return FFirstLine + static_cast<int>(LineIndexAt(PlaceOf(index))); }

int TSelectText::ColumnOf(std::size_t index) const {
  const std::size_t pos = PlaceOf(index);
  return static_cast<int>(pos - FLineStarts[LineIndexAt(pos)]) + 1;
}

void TSelectText::Fail(std::size_t index, const std::string& reason) const {
  throw ESQLImportError(LineOf(index), ColumnOf(index), reason);
}

void TSelectText::FailAt(std::size_t pos, const std::string& reason) const {
  const std::size_t line = LineIndexAt(pos);
  // A byte order mark is no part of the first line.
  const std::size_t column = std::max(pos, FLineStarts[line]) - FLineStarts[line] + 1;
  throw ESQLImportError(FFirstLine + static_cast<int>(line), static_cast<int>(column), reason);
}

}  // namespace tolvi
