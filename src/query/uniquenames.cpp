#include <algorithm>
#include <iterator>
#include <utility>

#include <tolvi/query/uniquenames.h>

namespace tolvi {
namespace {

// The characters outside ASCII that are no letters, digits or marks of letters: punctuation, symbols, blanks, private
// use. Databases may take some of them for an ASCII quote or semicolon.
constexpr std::pair<char32_t, char32_t> NoLetters[] = {
    {0x80, 0xA9},        {0xAB, 0xB4},     {0xB6, 0xB9},     {0xBB, 0xBF},     {0xD7, 0xD7},     {0xF7, 0xF7},
    {0x2B9, 0x2DF},      {0x37E, 0x37E},   {0x387, 0x387},   {0x55A, 0x55F},   {0x589, 0x58F},   {0x5BE, 0x5BE},
    {0x5C0, 0x5C0},      {0x5C3, 0x5C3},   {0x5F3, 0x5F4},   {0x600, 0x60F},   {0x61B, 0x61F},   {0x66A, 0x66D},
    {0x6D4, 0x6D4},      {0x1680, 0x1680}, {0x2000, 0x2BFF}, {0x2E00, 0x2E7F}, {0x3000, 0x3004}, {0x3008, 0x3020},
    {0x3030, 0x3030},    {0x303D, 0x303F}, {0x30FB, 0x30FB}, {0xD800, 0xF8FF}, {0xFD3E, 0xFD3F}, {0xFE00, 0xFE6F},
    {0xFEFF, 0xFF0F},    {0xFF1A, 0xFF20}, {0xFF3B, 0xFF40}, {0xFF5B, 0xFF65}, {0xFFE0, 0xFFFF}, {0x1F000, 0x1FAFF},
    {0xE0000, 0x10FFFF},
};

bool IsLetter(char32_t code) {
  const auto range = std::lower_bound(std::begin(NoLetters), std::end(NoLetters), code,
                                      [](const auto& entry, char32_t value) { return entry.second < value; });
  return range == std::end(NoLetters) || code < range->first;
}

bool IsAsciiWord(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
}

// The length of the sequence that begins with `lead`, and its character. The text is known to be UTF-8.
std::size_t SequenceLength(unsigned char lead) { return lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2; }

char32_t Decode(std::string_view sequence) {
  char32_t code = static_cast<unsigned char>(sequence[0]) & (0x7Fu >> sequence.size());
  for (const char c : sequence.substr(1)) code = (code << 6) | (static_cast<unsigned char>(c) & 0x3Fu);
  return code;
}

}  // namespace

void TUniqueNames::Add(std::string_view name) {
  if (name.empty()) return;
  const auto found = FCounts.find(name);
  if (found != FCounts.end()) {
    ++found->second;
  } else {
    FCounts.emplace(name, 1);
  }
}

void TUniqueNames::Remove(std::string_view name) {
  const auto found = FCounts.find(name);
  if (found == FCounts.end() || --found->second > 0) return;
  FCounts.erase(found);
  FNextNumbers.clear();
}

void TUniqueNames::Clear() {
  FCounts.clear();
  FNextNumbers.clear();
}

bool TUniqueNames::IsFree(std::string_view name, std::string_view own) const {
  const auto found = FCounts.find(name);
  return found == FCounts.end() || (found->second == 1 && SameText(found->first, own));
}

std::string TUniqueNames::MakeUnique(std::string_view name, std::string_view separator, std::string_view own) const {
  if (IsFree(name, own)) return std::string(name);
  std::string candidate(name);
  candidate += separator;
  const std::size_t stem = candidate.size();
  // What is known of the numbers counts `own` as in use.
  const auto known = own.empty() ? FNextNumbers.find(name) : FNextNumbers.end();
  std::size_t number = known == FNextNumbers.end() ? 2 : known->second;
  for (candidate += std::to_string(number); !IsFree(candidate, own); candidate += std::to_string(++number)) {
    candidate.resize(stem);
  }
  if (own.empty()) FNextNumbers.insert_or_assign(std::string(name), number);
  return candidate;
}

std::string MakeSQLName(std::string_view text) {
  const bool isUtf8 = IsValidUtf8(text);
  std::string name;
  name.reserve(text.size());
  for (std::size_t pos = 0; pos < text.size();) {
    const char c = text[pos];
    if (static_cast<unsigned char>(c) < 0x80) {
      if (c == ' ') name += '_';
      if (IsAsciiWord(c)) name += c;
      ++pos;
      continue;
    }
    const std::string_view sequence = text.substr(pos, isUtf8 ? SequenceLength(static_cast<unsigned char>(c)) : 1);
    if (isUtf8 && IsLetter(Decode(sequence))) name += sequence;
    pos += sequence.size();
  }
  if (!name.empty() && name.front() >= '0' && name.front() <= '9') name.insert(0, 1, 'C');
  return name;
}

std::string MakeQuotableName(std::string_view text) {
  const bool isUtf8 = IsValidUtf8(text);
  std::string name(text);
  std::erase_if(name, [isUtf8](char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte < 0x20 || byte == 0x7F || (byte >= 0x80 && !isUtf8);
  });
  return name;
}

}  // namespace tolvi
