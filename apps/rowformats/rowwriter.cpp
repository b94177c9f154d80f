#include "apps/rowformats/rowwriter.h"

#include <algorithm>
#include <optional>
#include <stdexcept>
#include <unordered_set>

#include "apps/rowformats/celldisplay.h"
#include <tolvi/foundation/json.h>
#include <tolvi/foundation/text.h>

namespace tolvi {
namespace {

/// The number as JSON wants it, with all its digits: databases also write ".5", "1." and "+1". Nothing for any other
/// text.
std::optional<std::string> JsonNumber(std::string_view text) {
  const auto cutDigits = [&text] {
    const std::string_view digits = text.substr(0, text.find_first_not_of("0123456789"));
    text.remove_prefix(digits.size());
    return digits;
  };
  // One of these characters, if it comes next.
  const auto cutOne = [&text](std::string_view characters) {
    const bool isThere = !text.empty() && characters.find(text.front()) != std::string_view::npos;
    const std::string_view one = text.substr(0, isThere ? 1 : 0);
    text.remove_prefix(one.size());
    return one;
  };
  std::string number(cutOne("+-") == "-" ? "-" : "");
  std::string_view whole = cutDigits();
  const std::string_view decimals = cutOne(".").empty() ? std::string_view() : cutDigits();
  if (whole.empty() && decimals.empty()) return {};
  whole.remove_prefix(std::min(whole.find_first_not_of('0'), whole.size()));
  number += whole.empty() ? "0" : whole;
  if (!decimals.empty()) number.append(".").append(decimals);
  if (const std::string_view exponent = cutOne("eE"); !exponent.empty()) {
    number.append(exponent).append(cutOne("+-"));
    const std::string_view digits = cutDigits();
    if (digits.empty()) return {};
    number += digits;
  }
  if (!text.empty()) return {};
  return number;
}

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
        // Readers skip an empty line.
        AddField(cell.Text, cell.Kind != svNull || cells.size() == 1);
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
    switch (cell.Kind) {
      case svNull:
        line += "null";
        break;
      case svNumber:
        if (const auto number = JsonNumber(cell.Text)) {
          line += *number;
        } else {
          AppendJsonString(line, cell.Text);
        }
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
