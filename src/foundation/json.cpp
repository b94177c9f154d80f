#include <algorithm>

#include <tolvi/foundation/json.h>
#include <tolvi/foundation/text.h>

namespace tolvi {

namespace {

constexpr std::string_view ReplacementCharacter = "\xEF\xBF\xBD";
constexpr std::string_view HexDigits = "0123456789abcdef";

void AppendAscii(std::string& out, char c) {
  const auto code = static_cast<unsigned char>(c);
  if (c == '"' || c == '\\') {
    (out += '\\') += c;
  } else if (c == '\n') {
    out += "\\n";
  } else if (code < 0x20 || code == 0x7F) {
    ((out += "\\u00") += HexDigits[code >> 4]) += HexDigits[code & 15U];
  } else {
    out += c;
  }
}

// The character beyond ASCII with which the text begins; empty if it is none.
std::string_view Character(std::string_view text) {
  const auto lead = static_cast<unsigned char>(text.front());
  const std::string_view bytes = text.substr(0, lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4);
  return IsValidUtf8(bytes) ? bytes : std::string_view();
}

}  // namespace

void AppendJsonString(std::string& out, std::string_view text) {
  out += '"';
  while (!text.empty()) {
    if (static_cast<unsigned char>(text.front()) < 0x80) {
      AppendAscii(out, text.front());
      text.remove_prefix(1);
    } else {
      const std::string_view character = Character(text);
      out += character.empty() ? ReplacementCharacter : character;
      text.remove_prefix(std::max<std::size_t>(character.size(), 1));
    }
  }
  out += '"';
}

}  // namespace tolvi
