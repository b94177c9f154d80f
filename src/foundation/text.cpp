#include <algorithm>
#include <cstdint>
#include <cstring>
#include <optional>

#include <tolvi/foundation/casefold.h>
#include <tolvi/foundation/text.h>

namespace tolvi {
namespace {

// ---- UTF-8 ----------------------------------------------------------------------------------------------------------

/// A code point, or one byte that is not part of well-formed UTF-8 (as `InvalidBase` plus the byte).
struct TUnit {
  char32_t Code;
  std::size_t Size;
};

constexpr char32_t InvalidBase = 0x110000;

constexpr std::uint8_t ByteAt(std::string_view text, std::size_t pos) { return static_cast<std::uint8_t>(text[pos]); }

TUnit DecodeUnit(std::string_view text, std::size_t pos) {
  const std::uint8_t lead = ByteAt(text, pos);
  if (lead < 0x80) return {lead, 1};
  const TUnit invalid{InvalidBase + lead, 1};
  const std::size_t size = lead < 0xC2 ? 0 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : lead < 0xF5 ? 4 : 0;
  if (size == 0 || text.size() - pos < size) return invalid;
  char32_t code = lead & (0x7Fu >> size);
  for (std::size_t i = 1; i < size; ++i) {
    const std::uint8_t next = ByteAt(text, pos + i);
    if ((next & 0xC0) != 0x80) return invalid;
    code = (code << 6) | (next & 0x3Fu);
  }
  const bool overlong = (size == 3 && code < 0x800) || (size == 4 && code < 0x10000);
  const bool surrogate = code >= 0xD800 && code <= 0xDFFF;
  if (overlong || surrogate || code >= InvalidBase) return invalid;
  return {code, size};
}

void AppendUnit(std::string& out, char32_t code) {
  const auto put = [&out](char32_t byte) { out += static_cast<char>(static_cast<std::uint8_t>(byte)); };
  if (code < 0x80 || code >= InvalidBase) return put(code & 0xFF);
  if (code < 0x800) {
    put(0xC0 | (code >> 6));
  } else {
    if (code < 0x10000) {
      put(0xE0 | (code >> 12));
    } else {
      put(0xF0 | (code >> 18));
      put(0x80 | ((code >> 12) & 0x3F));
    }
    put(0x80 | ((code >> 6) & 0x3F));
  }
  put(0x80 | (code & 0x3F));
}

/// The folded unit at `pos`, which moves behind it.
char32_t TakeFolded(std::string_view text, std::size_t& pos) {
  const TUnit unit = DecodeUnit(text, pos);
  pos += unit.Size;
  return FoldCodePoint(unit.Code);
}

// ---- ASCII, eight bytes at a time -----------------------------------------------------------------------------------

constexpr std::uint64_t EachByte(std::uint8_t value) { return 0x0101010101010101u * value; }

constexpr bool HasNonAscii(std::uint64_t word) { return (word & EachByte(0x80)) != 0; }

/// The eight ASCII characters in lower case: bit 7 of `upper` marks the letters from 'A' to 'Z'.
constexpr std::uint64_t LowerWord(std::uint64_t word) {
  const std::uint64_t upper = (word + EachByte(0x80 - 'A')) & ~(word + EachByte(0x80 - 'Z' - 1)) & EachByte(0x80);
  return word | (upper >> 2);
}

std::uint64_t LoadWord(const char* from, std::size_t size) {
  std::uint64_t word = 0;
  std::memcpy(&word, from, size);
  return word;
}

constexpr char AsciiLowerChar(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c; }

constexpr std::uint64_t Mix(std::uint64_t hash, std::uint64_t word) {
  hash = (hash ^ word) * 0x9E3779B97F4A7C15u;
  return hash ^ (hash >> 32);
}

/// The hash of bytes that are folded already; `AsciiHash` gives the same for texts of ASCII alone without folding them.
std::uint64_t HashBytes(std::string_view bytes) {
  std::uint64_t hash = bytes.size();
  for (std::size_t pos = 0; pos < bytes.size(); pos += 8) {
    hash = Mix(hash, LoadWord(bytes.data() + pos, std::min<std::size_t>(8, bytes.size() - pos)));
  }
  return hash;
}

std::optional<std::uint64_t> AsciiHash(std::string_view text) {
  std::uint64_t hash = text.size();
  std::size_t pos = 0;
  for (; pos + 8 <= text.size(); pos += 8) {
    const std::uint64_t word = LoadWord(text.data() + pos, 8);
    if (HasNonAscii(word)) return std::nullopt;
    hash = Mix(hash, LowerWord(word));
  }
  if (pos < text.size()) {
    const std::uint64_t word = LoadWord(text.data() + pos, text.size() - pos);
    if (HasNonAscii(word)) return std::nullopt;
    hash = Mix(hash, LowerWord(word));
  }
  return hash;
}

constexpr bool IsSpace(char c) { return static_cast<std::uint8_t>(c) <= ' '; }

/// The length of the piece of `text` at `pos` that equals `part` ignoring case, or nothing.
std::optional<std::size_t> FoldedMatch(std::string_view text, std::size_t pos, std::string_view part) {
  std::size_t end = pos;
  for (std::size_t at = 0; at < part.size();) {
    if (end >= text.size() || TakeFolded(text, end) != TakeFolded(part, at)) return std::nullopt;
  }
  return end - pos;
}

struct TMatch {
  std::size_t Pos;
  std::size_t Size;
};

std::optional<TMatch> FindPart(std::string_view part, std::string_view text, std::size_t start, bool ignoreCase) {
  if (part.empty() || start >= text.size()) return std::nullopt;
  if (!ignoreCase) {
    const std::size_t pos = text.find(part, start);
    return pos == std::string_view::npos ? std::nullopt : std::optional(TMatch{pos, part.size()});
  }
  for (std::size_t pos = start; pos < text.size(); pos += DecodeUnit(text, pos).Size) {
    if (const auto size = FoldedMatch(text, pos, part)) return TMatch{pos, *size};
  }
  return std::nullopt;
}

}  // namespace

// ---- Case -----------------------------------------------------------------------------------------------------------

std::string FoldCase(std::string_view text) {
  std::string result;
  result.reserve(text.size());
  for (std::size_t pos = 0; pos < text.size();) AppendUnit(result, TakeFolded(text, pos));
  return result;
}

bool SameText(std::string_view a, std::string_view b) {
  const std::size_t common = std::min(a.size(), b.size());
  std::size_t posA = 0;
  for (; posA + 8 <= common; posA += 8) {
    const std::uint64_t wordA = LoadWord(a.data() + posA, 8);
    const std::uint64_t wordB = LoadWord(b.data() + posA, 8);
    if (HasNonAscii(wordA | wordB)) break;
    if (LowerWord(wordA) != LowerWord(wordB)) return false;
  }
  std::size_t posB = posA;
  while (posA < a.size() && posB < b.size()) {
    if (TakeFolded(a, posA) != TakeFolded(b, posB)) return false;
  }
  return posA == a.size() && posB == b.size();
}

std::string AsciiLower(std::string_view text) {
  std::string result(text);
  std::transform(result.begin(), result.end(), result.begin(), AsciiLowerChar);
  return result;
}

bool AsciiSameText(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](char x, char y) { return AsciiLowerChar(x) == AsciiLowerChar(y); });
}

std::size_t FoldedHash(std::string_view text) {
  const auto hash = AsciiHash(text);
  return static_cast<std::size_t>(hash ? *hash : HashBytes(FoldCase(text)));
}

bool IsValidUtf8(std::string_view text) {
  for (std::size_t pos = 0; pos < text.size();) {
    const TUnit unit = DecodeUnit(text, pos);
    if (unit.Code >= InvalidBase) return false;
    pos += unit.Size;
  }
  return true;
}

std::string ReduceToAscii(std::string_view text) {
  std::string result;
  result.reserve(text.size());
  for (std::size_t pos = 0; pos < text.size();) {
    const TUnit unit = DecodeUnit(text, pos);
    pos += unit.Size;
    const char plain = unit.Code < 0x80 ? static_cast<char>(unit.Code) : PlainLetter(unit.Code);
    if (plain != '\0' || unit.Code == 0) result += plain;
  }
  return result;
}

// ---- Parts of texts -------------------------------------------------------------------------------------------------

std::string_view Trim(std::string_view text) {
  while (!text.empty() && IsSpace(text.front())) text.remove_prefix(1);
  while (!text.empty() && IsSpace(text.back())) text.remove_suffix(1);
  return text;
}

std::pair<std::string_view, std::string_view> GetNameAndValueSep(std::string_view text, std::string_view separator) {
  const std::size_t pos = separator.empty() ? std::string_view::npos : text.find(separator);
  if (pos == std::string_view::npos) return {text, {}};
  return {text.substr(0, pos), text.substr(pos + separator.size())};
}

std::string_view GetBeforeSep(std::string_view text, std::string_view separator) {
  return GetNameAndValueSep(text, separator).first;
}

std::string_view GetAfterSep(std::string_view text, std::string_view separator) {
  return GetNameAndValueSep(text, separator).second;
}

std::string ReplaceStr(std::string_view text, std::string_view from, std::string_view to) {
  return XReplaceStr(text, from, to, false);
}

std::string XReplaceStr(std::string_view text, std::string_view from, std::string_view to, bool ignoreCase) {
  std::string result;
  result.reserve(text.size());
  std::size_t done = 0;
  while (const auto match = FindPart(from, text, done, ignoreCase)) {
    result += text.substr(done, match->Pos - done);
    result += to;
    done = match->Pos + match->Size;
  }
  return result += text.substr(done);
}

std::size_t CXPos(std::string_view part, std::string_view text, std::size_t start, bool ignoreCase) {
  const auto match = FindPart(part, text, start, ignoreCase);
  return match ? match->Pos : std::string_view::npos;
}

bool StrInList(std::string_view text, std::initializer_list<std::string_view> list) {
  return std::find(list.begin(), list.end(), text) != list.end();
}

bool EqualToSpaces(std::string_view a, std::string_view b) {
  std::size_t posA = 0;
  std::size_t posB = 0;
  while (true) {
    while (posA < a.size() && IsSpace(a[posA])) ++posA;
    while (posB < b.size() && IsSpace(b[posB])) ++posB;
    if (posA == a.size() || posB == b.size()) return posA == a.size() && posB == b.size();
    if (a[posA++] != b[posB++]) return false;
  }
}

std::size_t CharCount(std::string_view text, char character) {
  return static_cast<std::size_t>(std::count(text.begin(), text.end(), character));
}

// ---- Quotes and comma text ------------------------------------------------------------------------------------------

std::string QuotedString(std::string_view text, char quote) {
  std::string result;
  result.reserve(text.size() + 2);
  result += quote;
  for (const char c : text) {
    if (c == quote) result += quote;
    result += c;
  }
  return result += quote;
}

std::string UnquotedString(std::string_view text, char quote) {
  if (text.size() < 2 || text.front() != quote || text.back() != quote) return std::string(text);
  const std::string_view inner = text.substr(1, text.size() - 2);
  std::string result;
  result.reserve(inner.size());
  for (std::size_t i = 0; i < inner.size(); ++i) {
    if (inner[i] == quote && (++i == inner.size() || inner[i] != quote)) return std::string(text);
    result += inner[i];
  }
  return result;
}

std::string ComposeCommaText(const std::vector<std::string>& items) {
  std::string result;
  bool first = true;
  for (const std::string& item : items) {
    if (!first) result += ',';
    first = false;
    const bool plain = !item.empty() && std::none_of(item.begin(), item.end(),
                                                     [](char c) { return IsSpace(c) || c == ',' || c == '"'; });
    result += plain ? item : QuotedString(item, '"');
  }
  return result;
}

std::vector<std::string> SplitCommaText(std::string_view text) {
  std::vector<std::string> items;
  std::size_t pos = 0;
  const auto skipBlanks = [&] {
    while (pos < text.size() && IsSpace(text[pos])) ++pos;
  };
  const auto takeItem = [&] {
    std::string item;
    if (pos < text.size() && text[pos] == '"') {
      for (++pos; pos < text.size(); ++pos) {
        if (text[pos] == '"' && (++pos == text.size() || text[pos] != '"')) break;
        item += text[pos];
      }
    } else {
      while (pos < text.size() && !IsSpace(text[pos]) && text[pos] != ',') item += text[pos++];
    }
    return item;
  };
  skipBlanks();
  bool afterComma = false;
  while (pos < text.size() || afterComma) {
    items.push_back(takeItem());
    skipBlanks();
    afterComma = pos < text.size() && text[pos] == ',';
    if (afterComma) ++pos;
    skipBlanks();
  }
  return items;
}

// ---- Lines ----------------------------------------------------------------------------------------------------------

std::vector<std::string_view> SplitLines(std::string_view text) {
  std::vector<std::string_view> lines;
  while (!text.empty()) {
    const std::size_t end = text.find_first_of(CrLf);
    lines.push_back(text.substr(0, end));
    if (end == std::string_view::npos) break;
    text.remove_prefix(end + (text.substr(end, CrLf.size()) == CrLf ? CrLf.size() : 1));
  }
  return lines;
}

std::string EscapeLineBreaks(std::string_view text) {
  std::string result;
  result.reserve(text.size());
  for (const char c : text) {
    switch (c) {
      case '\r':
        result += "\\r";
        break;
      case '\n':
        result += "\\n";
        break;
      case '\\':
        result += "\\\\";
        break;
      default:
        result += c;
    }
  }
  return result;
}

std::string UnescapeLineBreaks(std::string_view text) {
  std::string result;
  result.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char next = text[i] == '\\' && i + 1 < text.size() ? text[i + 1] : '\0';
    const char meant = next == 'r' ? '\r' : next == 'n' ? '\n' : next == '\\' ? '\\' : '\0';
    result += meant != '\0' ? meant : text[i];
    if (meant != '\0') ++i;
  }
  return result;
}

}  // namespace tolvi
