#include <array>
#include <cstddef>

#include <tolvi/sqlimport/sqlwords.h>

namespace tolvi {

namespace {

struct TWordName {
  std::string_view Text;
  TSQLWord Word;
};

// In the order of the alphabet.
constexpr TWordName WordNames[] = {
    {"and", wdAnd},
    {"as", wdAs},
    {"asc", wdAsc},
    {"between", wdBetween},
    {"by", wdBy},
    {"desc", wdDesc},
    {"distinct", wdDistinct},
    {"from", wdFrom},
    {"full", wdFull},
    {"group", wdGroup},
    {"in", wdIn},
    {"inner", wdInner},
    {"is", wdIs},
    {"join", wdJoin},
    {"left", wdLeft},
    {"like", wdLike},
    {"not", wdNot},
    {"on", wdOn},
    {"or", wdOr},
    {"order", wdOrder},
    {"outer", wdOuter},
    {"right", wdRight},
    {"select", wdSelect},
    {"where", wdWhere},
};

constexpr TWordName SymbolNames[] = {
    {"*", wdStar},      {".", wdPoint},   {"(", wdOpen},     {")", wdClose},    {"\"", wdQuote},
    {";", wdSemicolon}, {",", wdComma},   {"=", wdCompare},  {"<>", wdCompare}, {"!=", wdCompare},
    {">", wdCompare},   {"<", wdCompare}, {">=", wdCompare}, {"<=", wdCompare},
};

// The low five bits of a letter are the same in both cases.
constexpr std::size_t Letter(char c) { return static_cast<unsigned char>(c) & 31U; }

constexpr std::uint32_t LengthBit(std::string_view word) { return word.size() < 32 ? 1U << word.size() : 0; }

// The lengths of the words that begin with each letter. This alone tells most of the words that have no meaning.
constexpr std::array<std::uint32_t, 32> MakeLengths() {
  std::array<std::uint32_t, 32> lengths{};
  for (const TWordName& name : WordNames) lengths[Letter(name.Text.front())] |= LengthBit(name.Text);
  return lengths;
}
constexpr std::array<std::uint32_t, 32> Lengths = MakeLengths();

// The words that begin with each letter are those from its entry up to the next one's.
constexpr std::array<std::uint8_t, 33> MakeStarts() {
  std::array<std::uint8_t, 33> starts{};
  for (const TWordName& name : WordNames) {
    for (std::size_t i = Letter(name.Text.front()) + 1; i < starts.size(); ++i) ++starts[i];
  }
  return starts;
}
constexpr std::array<std::uint8_t, 33> Starts = MakeStarts();

constexpr std::array<TSQLWord, 128> MakeSymbols() {
  std::array<TSQLWord, 128> symbols{};
  for (const TWordName& name : SymbolNames) {
    if (name.Text.size() == 1) symbols[static_cast<unsigned char>(name.Text.front())] = name.Word;
  }
  return symbols;
}
constexpr std::array<TSQLWord, 128> Symbols = MakeSymbols();

// Words hold letters, digits and underscores, so the bit that makes a capital small makes no other one a letter.
bool IsWord(std::string_view written, std::string_view name) {
  if (written.size() != name.size()) return false;
  for (std::size_t i = 0; i < name.size(); ++i) {
    if ((static_cast<unsigned char>(written[i]) | 0x20U) != static_cast<unsigned char>(name[i])) return false;
  }
  return true;
}

TSQLWord WordOf(std::string_view text) {
  const std::size_t letter = Letter(text.front());
  if ((Lengths[letter] & LengthBit(text)) == 0) return wdOther;
  for (std::size_t i = Starts[letter]; i < Starts[letter + 1]; ++i) {
    if (IsWord(text, WordNames[i].Text)) return WordNames[i].Word;
  }
  return wdOther;
}

}  // namespace

TSQLWord SQLWordOf(TTokenType type, std::string_view text) {
  switch (type) {
    case ttIdentifier:
    case ttKeyword:
      return WordOf(text);
    case ttDelimiter: {
      // Those of two characters are all comparisons.
      if (text.size() == 2) return wdCompare;
      const auto symbol = static_cast<unsigned char>(text.front());
      return symbol < Symbols.size() ? Symbols[symbol] : wdOther;
    }
    case ttUnknown:
      return wdEnd;
    default:
      return wdOther;
  }
}

}  // namespace tolvi
