#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <tolvi/model/sqlformats.h>
#include <tolvi/sqlimport/scanner.h>

namespace tolvi {

class TDSTable;
class TJCustomDBStructure;

/// A name as it stands in an SQL expression.
struct TExprName {
  std::string Text;          // without quotes
  std::string_view Written;  // with them
  bool Quoted = false;
};

/// Names joined by dots, the last of them a column: [[database.]owner.]table.column.
struct TColumnName {
  std::vector<TExprName> Names;
  int Line = 0, Column = 0;

  const TExprName& Last() const { return Names.back(); }
  /// What stands before the column, as written or without quotes, and without white space.
  std::string TableText(bool written) const;
};

/// Reads the names in an SQL expression and the tokens between them. The views that it hands out point into its own
/// copy of the expression.
class TExprReader {
 public:
  TExprReader(std::string_view expr, const TSQLFormats& formats);

  TJScanner& Scanner() { return FScanner; }
  bool AtEnd() const { return FScanner.EOS(); }
  bool At(std::string_view symbol) const { return FScanner.GetRealStr() == symbol && !AtEnd(); }
  bool Skip(std::string_view symbol);
  /// " (+)" behind a column.
  bool SkipOuterMark();
  /// The names at the current token, none when it begins no name. A dot without a name behind it stays unread.
  TColumnName ReadNames();

 private:
  char CloserOf(std::string_view token) const;
  bool BeginsName(const TJScannerToken& token) const;
  std::optional<TExprName> ReadName();
  std::optional<TExprName> ReadQuoted(char closer);

  TJScanner FScanner;
  char FOpen, FClose;
};

/// The table of the model that stands before the column: by alias or name, or in one of the qualified forms that the
/// model writes. Null when there is none.
TDSTable* FindTable(const TJCustomDBStructure& model, const TColumnName& name);

}  // namespace tolvi
