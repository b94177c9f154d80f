#include <algorithm>
#include <cstddef>
#include <optional>

#include <tolvi/foundation/text.h>
#include <tolvi/xml/xmltext.h>

namespace tolvi {
namespace {

constexpr std::string_view HexDigits = "0123456789ABCDEF", LineBreaks = "\r\n";
constexpr std::size_t EscapeLength = 5;

void AppendEscape(std::string& out, char c) {
  const auto byte = static_cast<unsigned char>(c);
  out += "_x";
  out += HexDigits[byte >> 4U];
  out += HexDigits[byte & 15U];
  out += '_';
}

/// The byte of the escape with which the text begins; nothing when there is none.
std::optional<char> EscapeAt(std::string_view text) {
  if (text.size() < EscapeLength || !text.starts_with("_x") || text[4] != '_') return std::nullopt;
  const std::size_t high = HexDigits.find(text[2]), low = HexDigits.find(text[3]);
  if (high == std::string_view::npos || low == std::string_view::npos) return std::nullopt;
  return static_cast<char>(static_cast<unsigned char>(high << 4U | low));
}

bool IsControl(char c) { return static_cast<unsigned char>(c) < ' ' && c != '\t' && c != '\n' && c != '\r'; }

/// Bytes of the character that begins a text and that XML can hold; 0 when it cannot.
std::size_t CharacterLength(std::string_view text) {
  const auto first = static_cast<unsigned char>(text.front());
  if (first < 0x80) return IsControl(text.front()) ? 0 : 1;
  const std::size_t length = first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
  const std::string_view character = text.substr(0, length);
  // U+FFFE and U+FFFF are no characters.
  if (character == "\xEF\xBF\xBE" || character == "\xEF\xBF\xBF") return 0;
  return character.size() == length && IsValidUtf8(character) ? length : 0;
}

void AppendEscaped(std::string& out, std::string_view text, std::string_view alsoEscaped) {
  while (!text.empty()) {
    const std::size_t length = CharacterLength(text);
    if (length == 0 || EscapeAt(text) || alsoEscaped.find(text.front()) != std::string_view::npos) {
      AppendEscape(out, text.front());
      text.remove_prefix(1);
    } else {
      out += text.substr(0, length);
      text.remove_prefix(length);
    }
  }
}

}  // namespace

std::string EscapeForXml(std::string_view text) {
  std::string escaped;
  escaped.reserve(text.size());
  AppendEscaped(escaped, text, {});
  return escaped;
}

std::string UnescapeFromXml(std::string_view text) {
  std::string plain;
  plain.reserve(text.size());
  for (std::size_t at = 0; at < text.size();) {
    const std::optional<char> byte = EscapeAt(text.substr(at));
    plain += byte.value_or(text[at]);
    at += byte ? EscapeLength : 1;
  }
  return plain;
}

std::string LinesToXml(const TStrings& lines) {
  std::string text;
  for (std::size_t i = 0; i < lines.Count(); ++i) {
    if (i > 0) text += '\n';
    AppendEscaped(text, lines[i], LineBreaks);
  }
  return text;
}

TStrings LinesFromXml(std::string_view text) {
  TStrings lines;
  for (;;) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    lines.Add(UnescapeFromXml(text.substr(0, end)));
    if (end == text.size()) return lines;
    text.remove_prefix(end + 1);
  }
}

}  // namespace tolvi
