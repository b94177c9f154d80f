#include "apps/rowformats/rowwriter.h"

#include <stdexcept>
#include <unordered_set>

#include "apps/rowformats/celldisplay.h"
#include <tolvi/foundation/json.h>
#include <tolvi/foundation/text.h>

namespace tolvi {
namespace {

class TCsvWriter final : public TRowWriter {
 public:
  TCsvWriter(std::ostream& out, const TCsvOptions& options)
      : FOut(out), FOptions(options), FQuoted{options.Separator, '"', '\r', '\n'} {}

  void Begin(const std::vector<std::string>& columns) override {
    if (FOptions.ByteOrderMark) FOut << "\xEF\xBB\xBF";
    for (const std::string& column : columns) AddField(column, true);
    EndLine();
  }
  void Row(const std::vector<TCell>& cells) override {
    for (const TCell& cell : cells) {
      if (cell.Kind == svBytes) {
        AddField(HexDigits(cell.Text), true);
      } else {
        AddField(cell.Text, cell.Kind != svNull);
      }
    }
    EndLine();
  }
  void End() override {}

 private:
  void AddField(std::string_view text, bool isGiven) {
    if (!FFirst) FLine += FOptions.Separator;
    FFirst = false;
    const bool quoted = isGiven && (text.empty() || text.find_first_of(FQuoted) != std::string_view::npos);
    if (quoted) {
      FLine += QuotedString(text, '"');
    } else {
      FLine += text;
    }
  }
  void EndLine() {
    FOut << FLine << FOptions.LineEnd;
    FLine.clear();
    FFirst = true;
  }

  std::ostream& FOut;
  TCsvOptions FOptions;
  // What a field holds that is in quotes.
  std::string FQuoted;
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
    // "Inf" and "NaN" are no numbers in JSON.
    const bool isNumber = cell.Text.find_first_not_of("0123456789+-.eE") == std::string_view::npos;
    switch (cell.Kind) {
      case svNull:
        line += "null";
        break;
      case svNumber:
        line += isNumber ? cell.Text : "null";
        break;
      case svBoolean:
        line += cell.Text;
        break;
      case svBytes:
        AppendJsonString(line, HexDigits(cell.Text));
        break;
      default:
        AppendJsonString(line, cell.Text);
    }
  }

  std::ostream& FOut;
  std::vector<std::string> FNames;
  bool FFirst = true;
};

}  // namespace

std::unique_ptr<TRowWriter> MakeCsvWriter(std::ostream& out, const TCsvOptions& options) {
  return std::make_unique<TCsvWriter>(out, options);
}

std::unique_ptr<TRowWriter> MakeJsonWriter(std::ostream& out) { return std::make_unique<TJsonWriter>(out); }

std::unique_ptr<TRowWriter> MakeRowWriter(std::string_view format, std::ostream& out) {
  if (format == "table") return MakeTableWriter(out);
  if (format == "csv") return MakeCsvWriter(out);
  if (format == "json") return MakeJsonWriter(out);
  throw std::invalid_argument("no format \"" + std::string(format) + "\"");
}

}  // namespace tolvi
