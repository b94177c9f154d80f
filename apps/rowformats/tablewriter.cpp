// Formats with columns that are aligned.
#include <algorithm>
#include <cctype>

#include "apps/rowformats/celldisplay.h"
#include "apps/rowformats/rowwriter.h"

namespace tolvi {
namespace {

constexpr std::size_t MeasuredRows = 100;

bool IsNumeric(TSqlValueKind kind) { return kind == svNumber || kind == svBoolean; }

/// Keeps the first rows until it is known how wide the columns are.
class TAlignedWriter : public TRowWriter {
 public:
  explicit TAlignedWriter(std::ostream& out) : FOut(out) {}

  void Begin(const std::vector<std::string>& columns) final {
    for (const std::string& column : columns) {
      FHead.push_back({TextOf(svText, column), svNull});
      FColumns.push_back({std::max(DisplayWidth(FHead.back().text), LeastWidth()), svNull});
    }
  }

  void Row(const std::vector<TCell>& cells) final {
    TLine line;
    for (const TCell& cell : cells) line.push_back({TextOf(cell.Kind, cell.Text), cell.Kind});
    ++FCount;
    if (FMeasured) return Write(line);
    for (std::size_t i = 0; i < line.size(); ++i) {
      FColumns[i].width = std::max(FColumns[i].width, DisplayWidth(line[i].text));
      if (FColumns[i].kind == svNull) FColumns[i].kind = line[i].kind;
    }
    FLines.push_back(std::move(line));
    if (FLines.size() == MeasuredRows) WriteMeasured();
  }

  void End() final {
    if (!FMeasured) WriteMeasured();
    WriteEnd(FCount);
  }

 protected:
  struct TText {
    std::string text;
    TSqlValueKind kind;
  };
  struct TColumn {
    std::size_t width;
    // Of the first value that is not NULL.
    TSqlValueKind kind;
  };
  using TLine = std::vector<TText>;

  virtual std::string TextOf(TSqlValueKind kind, std::string_view text) const = 0;
  virtual std::size_t LeastWidth() const { return 0; }
  virtual void WriteRule() = 0;
  virtual void Write(const TLine& line) = 0;
  virtual void WriteEnd(std::size_t) {}

  /// Blanks up to the width of the column.
  std::string Pad(const TLine& line, std::size_t column) const {
    const std::size_t width = DisplayWidth(line[column].text);
    return std::string(width < FColumns[column].width ? FColumns[column].width - width : 0, ' ');
  }

  std::ostream& FOut;
  std::vector<TColumn> FColumns;

 private:
  void WriteMeasured() {
    FMeasured = true;
    Write(FHead);
    WriteRule();
    for (const TLine& line : FLines) Write(line);
    FLines.clear();
  }

  TLine FHead;
  std::vector<TLine> FLines;
  std::size_t FCount = 0;
  bool FMeasured = false;
};

class TTableWriter final : public TAlignedWriter {
 public:
  using TAlignedWriter::TAlignedWriter;

 private:
  std::string TextOf(TSqlValueKind kind, std::string_view text) const override {
    return kind == svNull ? "NULL" : kind == svBytes ? HexDigits(text) : Harmless(text);
  }

  void WriteRule() override {
    TLine rule;
    for (const TColumn& column : FColumns) rule.push_back({std::string(column.width, '-'), svText});
    Write(rule);
  }

  void Write(const TLine& line) override {
    std::string text;
    for (std::size_t i = 0; i < line.size(); ++i) {
      if (i > 0) text += "  ";
      text += IsNumeric(line[i].kind) ? Pad(line, i) + line[i].text : line[i].text + Pad(line, i);
    }
    text.erase(text.find_last_not_of(' ') + 1);
    FOut << text << '\n';
  }

  void WriteEnd(std::size_t count) override {
    FOut << (count == 1 ? "(1 row)" : "(" + std::to_string(count) + " rows)") << '\n';
  }
};

class TMarkdownWriter final : public TAlignedWriter {
 public:
  using TAlignedWriter::TAlignedWriter;

 private:
  std::string TextOf(TSqlValueKind kind, std::string_view text) const override {
    if (kind == svNull) return {};
    return kind == svBytes ? HexDigits(text) : kind == svText ? Escaped(text) : Harmless(text);
  }

  static std::string Escaped(std::string_view text) {
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
      const char c = text[i];
      if (c == '\n' || c == '\r') {
        if (c == '\r' && text.substr(i + 1, 1) == "\n") ++i;
        result += "<br>";
        continue;
      }
      // Within a word, "_" is no markup.
      const bool inWord = c == '_' && i > 0 && i + 1 < text.size() && IsLetter(text[i - 1]) && IsLetter(text[i + 1]);
      if (std::string_view("\\`*_[<&|~").find(c) != std::string_view::npos && !inWord) result += '\\';
      result += c;
    }
    return Harmless(result);
  }
  static bool IsLetter(char c) { return std::isalnum(static_cast<unsigned char>(c)) != 0 || (c & 0x80) != 0; }

  // A rule has three signs.
  std::size_t LeastWidth() const override { return 3; }

  void WriteRule() override {
    std::string text = "|";
    for (const TColumn& column : FColumns) {
      const bool right = IsRight(column);
      text += " " + std::string(column.width - (right ? 1 : 0), '-') + (right ? ": |" : " |");
    }
    FOut << text << '\n';
  }

  void Write(const TLine& line) override {
    std::string text = "|";
    for (std::size_t i = 0; i < line.size(); ++i) {
      text += " " + (IsRight(FColumns[i]) ? Pad(line, i) + line[i].text : line[i].text + Pad(line, i)) + " |";
    }
    FOut << text << '\n';
  }

  static bool IsRight(const TColumn& column) { return column.kind == svNumber; }
};

}  // namespace

std::unique_ptr<TRowWriter> MakeTableWriter(std::ostream& out) { return std::make_unique<TTableWriter>(out); }

std::unique_ptr<TRowWriter> MakeMarkdownWriter(std::ostream& out) { return std::make_unique<TMarkdownWriter>(out); }

}  // namespace tolvi
