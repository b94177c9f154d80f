#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <tolvi/query/sqlmapping.h>
#include <tolvi/sqlimport/sqlpars.h>

namespace tolvi {

/// How deep sub-queries may be nested: each level doubles the quotes in the query text of the one below.
inline constexpr int MaxImportLevel = 8;

/// What an import has to tell about a statement.
class TImportLog final {
 public:
  /// `parser` has read the statement; without one, lines are not known.
  TImportLog(const TJSQLParser* parser, int firstLine) : FParser(parser), FFirstLine(firstLine) {}

  /// The whole statement, empty without a parser.
  [[nodiscard]] std::string_view Statement() const { return FParser ? FParser->GetText() : std::string_view(); }
  [[nodiscard]] int LineOf(std::size_t pos) const { return FParser ? FParser->LineAt(pos) + FFirstLine - 1 : 0; }

  void Warn(std::size_t pos, std::string_view text, std::string action) {
    FWarnings.push_back({LineOf(pos), std::string(text), std::move(action)});
  }
  void Add(const std::vector<TImportWarning>& warnings) {
    FWarnings.insert(FWarnings.end(), warnings.begin(), warnings.end());
  }
  /// Hands the warnings over in the order of their lines.
  [[nodiscard]] std::vector<TImportWarning> Take();

 private:
  const TJSQLParser* FParser;
  int FFirstLine;
  std::vector<TImportWarning> FWarnings;
};

}  // namespace tolvi
