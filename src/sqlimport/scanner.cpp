#include <algorithm>
#include <utility>

#include <tolvi/foundation/strings.h>
#include <tolvi/foundation/text.h>
#include <tolvi/sqlimport/scanner.h>

namespace tolvi {

namespace {

// Classes of characters; one character may be in several.
enum : std::uint8_t {
  ccSpace = 1,
  ccLetter = 2,  // begins a word
  ccDigit = 4,
  ccUpper = 8,         // an ASCII letter that folding changes
  ccBeyondAscii = 16,  // a byte of a character that folding may change
};

constexpr std::array<std::uint8_t, 256> MakeClasses() {
  std::array<std::uint8_t, 256> classes{};
  for (const char c : {' ', '\t', '\n', '\v', '\f', '\r'}) classes[static_cast<unsigned char>(c)] = ccSpace;
  for (std::size_t c = 'a'; c <= 'z'; ++c) classes[c] = ccLetter;
  for (std::size_t c = 'A'; c <= 'Z'; ++c) classes[c] = ccLetter | ccUpper;
  for (std::size_t c = '0'; c <= '9'; ++c) classes[c] = ccDigit;
  for (std::size_t c = 0x80; c <= 0xFF; ++c) classes[c] = ccLetter | ccBeyondAscii;
  classes['_'] = ccLetter;
  return classes;
}

constexpr std::array<std::uint8_t, 256> CharacterClasses = MakeClasses();

constexpr std::uint8_t ClassOf(char c) { return CharacterClasses[static_cast<unsigned char>(c)]; }

constexpr char Lower(char c) { return (ClassOf(c) & ccUpper) != 0 ? static_cast<char>(c + ('a' - 'A')) : c; }

// The loops below read up to the zero that ends a std::string; it is in no class and so stops them.
const char* Skip(const char* p, std::uint8_t classes) {
  while ((ClassOf(*p) & classes) != 0) ++p;
  return p;
}

// What begins at a given place, and nothing of the scanner that it is for. Small enough to be returned in registers.
struct TPiece {
  const char* End;
  TTokenType Type;
  std::uint8_t Characters = 0;
  bool Unterminated = false;
};

TPiece ScanWord(const char* begin) {
  std::uint8_t characters = 0;
  const char* p = begin;
  for (std::uint8_t c = ClassOf(*p); (c & (ccLetter | ccDigit)) != 0; c = ClassOf(*++p)) characters |= c;
  return {p, ttIdentifier, characters};
}

TPiece ScanNumber(const char* begin) {
  TTokenType type = ttInteger;
  const char* p = Skip(begin, ccDigit);
  // A point is part of the number only before a digit, so that "1." before a name is an integer and a point.
  if (*p == '.' && (ClassOf(p[1]) & ccDigit) != 0) {
    type = ttReal;
    p = Skip(p + 1, ccDigit);
  }
  if (*p == 'e' || *p == 'E') {
    const char* const exponent = p[1] == '+' || p[1] == '-' ? p + 2 : p + 1;
    if ((ClassOf(*exponent) & ccDigit) != 0) {
      type = ttReal;
      p = Skip(exponent, ccDigit);
    }
  }
  return {p, type};
}

TPiece ScanLiteral(const char* begin, const char* end) {
  for (const char* p = std::find(begin + 1, end, '\''); p != end; p = std::find(p + 2, end, '\'')) {
    if (p[1] != '\'') return {p + 1, ttString};
  }
  return {end, ttString, 0, true};
}

TPiece ScanDelimiter(const char* begin) {
  const char first = begin[0];
  const char second = begin[1];
  const bool pair =
      (second == '=' && (first == '!' || first == '>' || first == '<')) || (second == '>' && first == '<');
  return {begin + (pair ? 2 : 1), ttDelimiter};
}

// Between double quotes a literal must end there. Looks no further than to the next quote that ends one or the other.
TPiece ScanQuotedLiteral(const char* begin, const char* end) {
  for (const char* p = begin + 1; p != end && *p != '"'; ++p) {
    if (*p != '\'') continue;
    if (p[1] != '\'') return {p + 1, ttString};
    ++p;
  }
  return ScanDelimiter(begin);
}

TPiece ScanLineComment(const char* begin, const char* end) {
  const char* const p = std::find(begin, end, '\n');
  return {p[-1] == '\r' ? p - 1 : p, ttComment};
}

TPiece ScanBlockComment(const char* begin, const char* end) {
  const std::string_view rest(begin + 2, static_cast<std::size_t>(end - begin) - 2);
  const std::size_t close = rest.find("*/");
  if (close == std::string_view::npos) return {end, ttComment, 0, true};
  return {rest.data() + close + 2, ttComment};
}

TPiece ScanPiece(const char* begin, const char* end, bool inQuotes) {
  const std::uint8_t first = ClassOf(*begin);
  if ((first & ccLetter) != 0) return ScanWord(begin);
  if ((first & ccDigit) != 0) return ScanNumber(begin);
  if (begin == end) return {end, ttUnknown};
  if (*begin == '\'') return inQuotes ? ScanQuotedLiteral(begin, end) : ScanLiteral(begin, end);
  if (inQuotes) return ScanDelimiter(begin);
  if (begin[0] == '-' && begin[1] == '-') return ScanLineComment(begin, end);
  if (begin[0] == '/' && begin[1] == '*') return ScanBlockComment(begin, end);
  return ScanDelimiter(begin);
}

constexpr std::size_t FirstLetterKey(std::string_view word) { return static_cast<unsigned char>(word.front()) & 31U; }

constexpr std::uint32_t LengthBit(std::string_view word) {
  return std::uint32_t{1} << std::min<std::size_t>(word.size(), 31);
}

}  // namespace

void TKeywordList::Add(std::string_view word) {
  if (word.empty()) return;
  std::string folded = FoldCase(word);
  if (Contains(folded)) return;
  FLengths[FirstLetterKey(folded)] |= LengthBit(folded);
  FWords.push_back(std::move(folded));
}

void TKeywordList::Clear() {
  FWords.clear();
  FLengths.fill(0);
}

bool TKeywordList::Contains(std::string_view word) const {
  if (word.empty() || (FLengths[FirstLetterKey(word)] & LengthBit(word)) == 0) return false;
  return std::any_of(FWords.begin(), FWords.end(), [word](const std::string& keyword) {
    return std::equal(word.begin(), word.end(), keyword.begin(), keyword.end(),
                      [](char written, char folded) { return Lower(written) == folded; });
  });
}

void TJScanner::SetSource(std::string_view text) {
  FText.assign(text);
  FLineMark = {};
  FIndex = 0;
  FKept[0] = {};
  FFoldedKnown = false;
}

void TJScanner::SetSource(const TStrings& lines) { SetSource(lines.Joined(CrLf)); }

void TJScanner::FirstToken() { MoveAfter(BeforeFirst(), 0); }

void TJScanner::NextToken() {
  if (!EOS()) MoveAfter(Current(), FIndex + 1);
}

void TJScanner::SkipTo(std::size_t pos) {
  TSpan skipped;
  skipped.End = std::min(pos, FText.size());
  MoveAfter(skipped, FIndex + 1);
}

void TJScanner::MoveAfter(const TSpan& previous, std::size_t index) {
  FIndex = index;
  FFoldedKnown = false;
  ScanAfter(previous, FKept[index % KeptTokens]);
}

std::string_view TJScanner::GetTokStr() const {
  const TSpan& token = Current();
  const std::string_view written = Text(token);
  if ((token.Characters & (ccUpper | ccBeyondAscii)) == 0) return written;
  if (!FFoldedKnown) {
    if ((token.Characters & ccBeyondAscii) != 0) {
      FFolded = FoldCase(written);
    } else {
      FFolded.resize(written.size());
      std::transform(written.begin(), written.end(), FFolded.begin(), Lower);
    }
    FFoldedKnown = true;
  }
  return FFolded;
}

int TJScanner::GetTokLine() const {
  const std::size_t pos = CurrentOrLast().Pos;
  const auto [first, last] = std::minmax(pos, FLineMark.Pos);
  const auto begin = FText.begin() + static_cast<std::ptrdiff_t>(first);
  const auto breaks = static_cast<int>(std::count(begin, begin + static_cast<std::ptrdiff_t>(last - first), '\n'));
  FLineMark = {pos, FLineMark.Line + (pos < FLineMark.Pos ? -breaks : breaks)};
  return FLineMark.Line;
}

int TJScanner::GetTokColumn() const {
  const std::size_t pos = CurrentOrLast().Pos;
  const std::size_t lineBreak = pos == 0 ? std::string::npos : FText.rfind('\n', pos - 1);
  return static_cast<int>(lineBreak == std::string::npos ? pos + 1 : pos - lineBreak);
}

TJScannerToken TJScanner::GetToken(int offset) const {
  TSpan span = Current();
  if (offset < 0) {
    const auto back = static_cast<std::size_t>(-static_cast<long long>(offset));
    if (back > FIndex) return {};
    if (back < KeptTokens) {
      span = Kept(FIndex - back);
    } else {
      span = BeforeFirst();
      for (std::size_t i = 0; i <= FIndex - back; ++i) ScanAfter(span, span);
    }
  }
  for (int i = 0; i < offset && span.Type != ttUnknown; ++i) ScanAfter(span, span);
  return {span.Type, Text(span), span.Pos};
}

TJScannerBookmark TJScanner::GetBookmark() const {
  TJScannerBookmark bookmark;
  bookmark.Pos = Current().Pos;
  bookmark.End = Current().End;
  bookmark.EndOfPrevious = FIndex > 0 ? Kept(FIndex - 1).End : bookmark.Pos;
  return bookmark;
}

std::string TJScanner::ExtractPiece(const TJScannerBookmark& from, const TJScannerBookmark& to, bool includeTo) const {
  const std::size_t end = std::min(includeTo ? to.End : to.EndOfPrevious, FText.size());
  return from.Pos < end ? FText.substr(from.Pos, end - from.Pos) : std::string();
}

TJScanner::TSpan TJScanner::BeforeFirst() const {
  TSpan span;
  if (FText.starts_with(ByteOrderMark)) span.End = ByteOrderMark.size();
  return span;
}

void TJScanner::ScanAfter(const TSpan& previous, TSpan& span) const {
  const char* const text = FText.data();
  const char* const end = text + FText.size();
  const bool inQuotes = previous.InQuotes;
  const char* begin = Skip(text + previous.End, ccSpace);
  TPiece piece = ScanPiece(begin, end, inQuotes);
  while (piece.Type == ttComment && FSkipComments) {
    begin = Skip(piece.End, ccSpace);
    const bool unterminated = piece.Unterminated;
    piece = ScanPiece(begin, end, inQuotes);
    piece.Unterminated |= unterminated;
  }
  span.Pos = static_cast<std::size_t>(begin - text);
  span.End = static_cast<std::size_t>(piece.End - text);
  span.Type = piece.Type;
  span.Characters = piece.Characters;
  span.Unterminated = piece.Unterminated;
  span.InQuotes = inQuotes != (*begin == '"');
  if (piece.Type == ttIdentifier && IsKeyword(Text(span), piece.Characters)) span.Type = ttKeyword;
}

bool TJScanner::IsKeyword(std::string_view word, std::uint8_t characters) const {
  if ((characters & ccBeyondAscii) == 0) return FKeywords.Contains(word);
  return FKeywords.Count() > 0 && FKeywords.Contains(FoldCase(word));
}

}  // namespace tolvi
