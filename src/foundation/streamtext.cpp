#include <tolvi/foundation/streamtext.h>

namespace tolvi {
namespace {

bool IsControl(char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; }

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

bool IsNameChar(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || IsDigit(c) || c == '_' ||
         static_cast<unsigned char>(c) >= 0x80;
}

bool CutQuotedRun(std::string_view& text, std::string& value) {
  for (std::size_t i = 1; i < text.size(); ++i) {
    if (text[i] == '\'') {
      if (i + 1 == text.size() || text[i + 1] != '\'') {
        text.remove_prefix(i + 1);
        return true;
      }
      ++i;
    }
    value += text[i];
  }
  return false;
}

bool CutCharacterCode(std::string_view& text, std::string& value) {
  std::size_t end = 1;
  int code = 0;
  for (; end < text.size() && IsDigit(text[end]) && code < 128; ++end) code = code * 10 + (text[end] - '0');
  if (end == 1 || code >= 128) return false;
  value += static_cast<char>(code);
  text.remove_prefix(end);
  return true;
}

}  // namespace

void SkipBlanks(std::string_view& text) {
  while (!text.empty() && (text.front() == ' ' || text.front() == '\t')) text.remove_prefix(1);
}

std::string_view CutIdentifier(std::string_view& text) {
  std::size_t length = 0;
  while (length < text.size() && IsNameChar(text[length])) ++length;
  const std::string_view result = text.substr(0, length);
  text.remove_prefix(length);
  return result;
}

std::string TextLiteral(std::string_view text) {
  if (text.empty()) return "''";
  std::string literal;
  bool quoted = false;
  for (const char c : text) {
    if (IsControl(c) == quoted) {
      literal += '\'';
      quoted = !quoted;
    }
    if (IsControl(c))
      literal.append("#").append(std::to_string(static_cast<int>(c)));
    else
      literal.append(c == '\'' ? 2 : 1, c);
  }
  if (quoted) literal += '\'';
  return literal;
}

std::optional<std::string> CutTextLiteral(std::string_view& text) {
  if (!text.starts_with('\'') && !text.starts_with('#')) return std::nullopt;
  std::string value;
  while (text.starts_with('\'') || text.starts_with('#'))
    if (!(text.front() == '#' ? CutCharacterCode(text, value) : CutQuotedRun(text, value))) return std::nullopt;
  return value;
}

std::string NameLiteral(std::string_view name) {
  std::string_view rest = name;
  const bool plain = !CutIdentifier(rest).empty() && rest.empty() && !IsDigit(name.front());
  return plain ? std::string(name) : TextLiteral(name);
}

std::optional<std::string> CutName(std::string_view& text) {
  if (std::optional<std::string> quoted = CutTextLiteral(text)) return quoted;
  const std::string_view name = CutIdentifier(text);
  if (name.empty()) return std::nullopt;
  return std::string(name);
}

}  // namespace tolvi
