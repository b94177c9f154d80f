#include <algorithm>
#include <array>
#include <utility>

#include <tolvi/foundation/text.h>
#include <tolvi/model/sqlformats.h>
#include <tolvi/query/joincheck.h>
#include <tolvi/sqlimport/scanner.h>

namespace tolvi {

namespace {

struct TSymbol {
  std::string_view Text, Mirrored;
};
constexpr TSymbol Symbols[] = {
    {"=", "="}, {"<>", "<>"}, {"!=", "!="}, {"<", ">"}, {">", "<"}, {"<=", ">="}, {">=", "<="},
};

bool IsQuote(char c, const TSQLFormats& formats) {
  return c == '"' || c == formats.GetQuoteSymbol1() || c == formats.GetQuoteSymbol2();
}

bool IsQuote(std::string_view token, const TSQLFormats& formats) {
  return token.size() == 1 && IsQuote(token.front(), formats);
}

// Gathers the two sides of a comparison.
class TComparisonText {
 public:
  void Append(std::string_view token) {
    const auto* symbol = std::find_if(std::begin(Symbols), std::end(Symbols),
                                      [token](const TSymbol& entry) { return entry.Text == token; });
    if (symbol == std::end(Symbols) || FSymbol != nullptr) {
      FSides[FSymbol != nullptr ? 1 : 0] += token;
    } else {
      FSymbol = symbol;
    }
  }
  [[nodiscard]] bool IsEmpty() const { return FSides[0].empty() && FSymbol == nullptr; }
  std::string Take() {
    std::array<std::string, 2> sides = std::exchange(FSides, {});
    const TSymbol* symbol = std::exchange(FSymbol, nullptr);
    if (symbol == nullptr) return sides[0];
    const bool mirror = sides[1] < sides[0];
    return sides[mirror ? 1 : 0] + " " + std::string(mirror ? symbol->Mirrored : symbol->Text) + " " +
           sides[mirror ? 0 : 1];
  }

 private:
  std::array<std::string, 2> FSides;
  const TSymbol* FSymbol = nullptr;
};

}  // namespace

std::string_view WithoutJoinWords(std::string_view condition) {
  TJScanner scanner;
  scanner.SetSource(condition);
  std::size_t end = 0;
  for (scanner.FirstToken(); !scanner.EOS(); scanner.NextToken()) {
    if (!StrInList(scanner.GetTokStr(), {"inner", "left", "right", "full", "outer"})) end = scanner.GetTokEnd();
  }
  return condition.substr(0, end);
}

std::size_t FindHaving(std::string_view text) {
  TJScanner scanner;
  scanner.SetSource(text);
  int depth = 0;
  for (scanner.FirstToken(); !scanner.EOS(); scanner.NextToken()) {
    const std::string_view token = scanner.GetTokStr();
    if (token == "(") ++depth;
    if (token == ")") --depth;
    if (depth == 0 && token == "having") return scanner.GetTokPos();
  }
  return text.size();
}

std::vector<std::string> ComparisonsOf(std::string_view condition, const TSQLFormats& formats) {
  std::vector<std::string> comparisons;
  TComparisonText comparison;
  int depth = 0;  // of brackets round comparisons
  TJScanner scanner;
  scanner.SetSource(condition);
  for (scanner.FirstToken(); !scanner.EOS(); scanner.NextToken()) {
    const std::string_view token = scanner.GetTokStr();
    if (IsQuote(token, formats)) continue;
    if (token == "(" && comparison.IsEmpty()) {
      ++depth;
    } else if (token == ")" && depth > 0) {
      --depth;
    } else if (token == "and") {
      comparisons.push_back(comparison.Take());
    } else {
      comparison.Append(token);
    }
  }
  comparisons.push_back(comparison.Take());
  std::sort(comparisons.begin(), comparisons.end());
  return comparisons;
}

std::vector<std::string> ExpressionsOf(std::string_view list, std::string_view table, const TSQLFormats& formats) {
  std::vector<std::string> expressions;
  std::string expression;
  bool isName = true;
  int depth = 0;
  const auto add = [&] {
    if (isName && !table.empty()) expression.insert(0, ".").insert(0, FoldCase(table));
    expressions.push_back(std::exchange(expression, {}));
    isName = true;
  };
  TJScanner scanner;
  scanner.SetSource(list);
  for (scanner.FirstToken(); !scanner.EOS(); scanner.NextToken()) {
    const std::string_view token = scanner.GetTokStr();
    if (IsQuote(token, formats)) continue;
    if (token == "," && depth == 0) {
      add();
      continue;
    }
    if (token == "(") ++depth;
    if (token == ")") --depth;
    isName = isName && expression.empty() && scanner.GetTokType() == ttIdentifier;
    expression += token;
  }
  add();
  std::sort(expressions.begin(), expressions.end());
  return expressions;
}

TDSLinkType JoinTypeBefore(std::string_view words) {
  constexpr std::pair<std::string_view, TDSLinkType> Types[] = {
      {"left", ltOuterLeft}, {"right", ltOuterRight}, {"full", ltOuterFull}};
  std::array<std::string, 3> last;
  TJScanner scanner;
  scanner.SetSource(words);
  for (scanner.FirstToken(); !scanner.EOS(); scanner.NextToken()) {
    last[0] = std::exchange(last[1], std::exchange(last[2], std::string(scanner.GetTokStr())));
  }
  if (last[2] != "join") return ltInner;
  const std::string& type = last[1] == "outer" ? last[0] : last[1];
  for (const auto& [word, linkType] : Types) {
    if (type == word) return linkType;
  }
  return ltInner;
}

std::string_view MirroredSymbol(std::string_view symbol) {
  for (const TSymbol& entry : Symbols) {
    if (entry.Text == symbol) return entry.Mirrored;
  }
  return {};
}

std::string UnquotedName(std::string_view name, const TSQLFormats& formats) {
  std::string result(name);
  std::erase_if(result, [&formats](char c) { return IsQuote(c, formats); });
  return result;
}

}  // namespace tolvi
