#include "apps/rowformats/celldisplay.h"

#include <algorithm>
#include <iterator>

#include <tolvi/foundation/text.h>

namespace tolvi {
namespace {

struct TRange {
  char32_t first, last;
};
/// Characters that take no column, and those that take two.
constexpr TRange ZeroWidth[] = {{0x300, 0x36F},   {0x483, 0x489},   {0x591, 0x5BD},   {0x610, 0x61A},
                                {0x64B, 0x65F},   {0x200B, 0x200F}, {0x20D0, 0x20F0}, {0x302A, 0x302D},
                                {0x3099, 0x309A}, {0xFE00, 0xFE0F}, {0xFE20, 0xFE2F}, {0xFEFF, 0xFEFF}};
constexpr TRange DoubleWidth[] = {{0x1100, 0x115F},   {0x2E80, 0x303E},   {0x3041, 0xA4CF},  {0xAC00, 0xD7A3},
                                  {0xF900, 0xFAFF},   {0xFE30, 0xFE6F},   {0xFF00, 0xFF60},  {0xFFE0, 0xFFE6},
                                  {0x1F300, 0x1F64F}, {0x1F900, 0x1FAFF}, {0x20000, 0x3FFFD}};

template <std::size_t Count>
bool Contains(const TRange (&ranges)[Count], char32_t character) {
  const auto at = std::partition_point(std::begin(ranges), std::end(ranges),
                                       [character](const TRange& range) { return range.last < character; });
  return at != std::end(ranges) && at->first <= character;
}

/// A character cut off the front of a text that is not empty; a byte that is no UTF-8 is one, too.
struct TCharacter {
  std::string_view bytes;
  char32_t code;
  bool valid;
};
TCharacter CutCharacter(std::string_view& text) {
  const auto lead = static_cast<unsigned char>(text.front());
  const std::size_t length = lead < 0x80 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
  const std::string_view bytes = text.substr(0, length);
  if (length > 1 && (bytes.size() < length || !IsValidUtf8(bytes))) {
    const TCharacter wrong{text.substr(0, 1), 0xFFFD, false};
    text.remove_prefix(1);
    return wrong;
  }
  char32_t code = length == 1 ? lead : lead & (0x7FU >> length);
  for (const char next : bytes.substr(1)) code = (code << 6) | (static_cast<unsigned char>(next) & 0x3FU);
  text.remove_prefix(length);
  return {bytes, code, true};
}

}  // namespace

std::string HexDigits(std::string_view bytes) {
  constexpr std::string_view Digits = "0123456789abcdef";
  std::string text;
  for (const char c : bytes) {
    text += Digits[static_cast<unsigned char>(c) >> 4];
    text += Digits[static_cast<unsigned char>(c) & 15U];
  }
  return text;
}

std::string Harmless(std::string_view text) {
  std::string result;
  while (!text.empty()) {
    const TCharacter character = CutCharacter(text);
    if (character.code < 0x20 || (character.code >= 0x7F && character.code < 0xA0)) {
      result += ' ';
    } else {
      result += character.valid ? character.bytes : "\xEF\xBF\xBD";
    }
  }
  return result;
}

std::size_t DisplayWidth(std::string_view text) {
  std::size_t width = 0;
  while (!text.empty()) {
    const char32_t code = CutCharacter(text).code;
    width += Contains(ZeroWidth, code) ? 0U : Contains(DoubleWidth, code) ? 2U : 1U;
  }
  return width;
}

}  // namespace tolvi
