#include "apps/tolvi/output.h"

#include <algorithm>
#include <iterator>
#include <stdexcept>
#include <unordered_set>

#include <tolvi/foundation/json.h>
#include <tolvi/foundation/text.h>

namespace tolvi {
namespace {

constexpr std::size_t MeasuredRows = 100;

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

std::string HexDigits(std::string_view bytes) {
  constexpr std::string_view Digits = "0123456789abcdef";
  std::string text;
  for (const char c : bytes) {
    text += Digits[static_cast<unsigned char>(c) >> 4];
    text += Digits[static_cast<unsigned char>(c) & 15U];
  }
  return text;
}

/// Text that can neither break a line nor steer a terminal.
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

class TTableWriter final : public TRowWriter {
 public:
  explicit TTableWriter(std::ostream& out) : FOut(out) {}

  void Begin(const std::vector<std::string>& columns) override {
    for (const std::string& column : columns) {
      FHeader.push_back({Harmless(column), false});
      FWidths.push_back(DisplayWidth(FHeader.back().text));
    }
  }

  void Row(const std::vector<TCell>& cells) override {
    TLine line;
    for (const TCell& cell : cells) {
      std::string text = cell.Kind == ckNull    ? "NULL"
                         : cell.Kind == ckBytes ? HexDigits(cell.Text)
                                                : Harmless(cell.Text);
      line.push_back({std::move(text), cell.Kind == ckNumber});
    }
    ++FCount;
    if (FMeasured) return Write(line);
    for (std::size_t i = 0; i < line.size(); ++i) FWidths[i] = std::max(FWidths[i], DisplayWidth(line[i].text));
    FLines.push_back(std::move(line));
    if (FLines.size() == MeasuredRows) WriteMeasured();
  }

  void End() override {
    if (!FMeasured) WriteMeasured();
    FOut << (FCount == 1 ? "(1 row)" : "(" + std::to_string(FCount) + " rows)") << '\n';
  }

 private:
  struct TText {
    std::string text;
    bool right;
  };
  using TLine = std::vector<TText>;

  void WriteMeasured() {
    FMeasured = true;
    Write(FHeader);
    TLine rule;
    for (const std::size_t width : FWidths) rule.push_back({std::string(width, '-'), false});
    Write(rule);
    for (const TLine& line : FLines) Write(line);
    FLines.clear();
  }

  void Write(const TLine& line) {
    std::string text;
    for (std::size_t i = 0; i < line.size(); ++i) {
      const std::size_t width = DisplayWidth(line[i].text);
      const std::string pad(width < FWidths[i] ? FWidths[i] - width : 0, ' ');
      if (i > 0) text += "  ";
      text += line[i].right ? pad + line[i].text : line[i].text + pad;
    }
    text.erase(text.find_last_not_of(' ') + 1);
    FOut << text << '\n';
  }

  std::ostream& FOut;
  TLine FHeader;
  std::vector<TLine> FLines;
  std::vector<std::size_t> FWidths;
  std::size_t FCount = 0;
  bool FMeasured = false;
};

class TCsvWriter final : public TRowWriter {
 public:
  explicit TCsvWriter(std::ostream& out) : FOut(out) {}

  void Begin(const std::vector<std::string>& columns) override {
    for (const std::string& column : columns) AddField(column, true);
    EndLine();
  }
  void Row(const std::vector<TCell>& cells) override {
    for (const TCell& cell : cells) {
      if (cell.Kind == ckBytes) {
        AddField(HexDigits(cell.Text), true);
      } else {
        AddField(cell.Text, cell.Kind != ckNull);
      }
    }
    EndLine();
  }
  void End() override {}

 private:
  void AddField(std::string_view text, bool isGiven) {
    if (!FFirst) FLine += ',';
    FFirst = false;
    const bool quoted = isGiven && (text.empty() || text.find_first_of(",\"\r\n") != std::string_view::npos);
    FLine += quoted ? QuotedString(text, '"') : std::string(text);
  }
  void EndLine() {
    FOut << FLine << '\n';
    FLine.clear();
    FFirst = true;
  }

  std::ostream& FOut;
  std::string FLine;
  bool FFirst = true;
};

class TJsonWriter final : public TRowWriter {
 public:
  explicit TJsonWriter(std::ostream& out) : FOut(out) {}

  void Begin(const std::vector<std::string>& columns) override {
    std::unordered_set<std::string> used;
    for (const std::string& column : columns) {
      std::string name = column;
      for (int number = 2; !used.insert(name).second; ++number) name = column + "_" + std::to_string(number);
      AppendJsonString(FNames.emplace_back(), name);
    }
    FOut << "[";
  }
  void Row(const std::vector<TCell>& cells) override {
    std::string line = FFirst ? "\n{" : ",\n{";
    FFirst = false;
    for (std::size_t i = 0; i < cells.size(); ++i) {
      line.append(i > 0 ? ", " : "").append(FNames[i]).append(": ");
      AppendValue(line, cells[i]);
    }
    FOut << line << "}";
  }
  void End() override { FOut << "\n]\n"; }

 private:
  static void AppendValue(std::string& line, const TCell& cell) {
    // "Inf" and "-Inf" are no numbers in JSON.
    const bool isFinite = cell.Text.find('I') == std::string_view::npos;
    switch (cell.Kind) {
      case ckNumber:
        line += isFinite ? cell.Text : "null";
        break;
      case ckText:
        AppendJsonString(line, cell.Text);
        break;
      case ckBytes:
        AppendJsonString(line, HexDigits(cell.Text));
        break;
      case ckNull:
        line += "null";
        break;
    }
  }

  std::ostream& FOut;
  std::vector<std::string> FNames;
  bool FFirst = true;
};

}  // namespace

std::unique_ptr<TRowWriter> MakeRowWriter(std::string_view format, std::ostream& out) {
  if (format == "table") return std::make_unique<TTableWriter>(out);
  if (format == "csv") return std::make_unique<TCsvWriter>(out);
  if (format == "json") return std::make_unique<TJsonWriter>(out);
  throw std::invalid_argument("no format \"" + std::string(format) + "\"");
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
