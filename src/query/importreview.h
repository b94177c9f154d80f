#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include <tolvi/model/link.h>
#include <tolvi/query/importlog.h>
#include <tolvi/sqlimport/sqlresult.h>

namespace tolvi {

class TDSTable;
class TJQueryPanel;

/// Compares a statement with the one that the imported query stands for, as far as it is no matter of single columns
/// and conditions: DISTINCT, aliases, tables, joins, GROUP BY, and what the parser did not read. What differs is told.
class TImportReview final {
 public:
  /// The panel's builder has collected tables and columns.
  TImportReview(TJQueryPanel& panel, const TJParserResult& parsed, TImportLog& log);

  void Run();

 private:
  // A table of the statement.
  struct TTable {
    const TSQLTable* Parsed;
    // The model's; null for none.
    TDSTable* Table = nullptr;
    // Whether the model knows it by the alias of the statement.
    bool SameAlias = false;
    // Its join condition; null for none.
    const TSQLDropped* Join = nullptr;
    TDSLinkType JoinType = ltInner;
  };
  // A link by which the query joins, and whether the statement has it, too.
  struct TUsedLink {
    const TDSLink* Link;
    std::vector<std::string> Comparisons;
    bool IsWritten = false;
  };

  void ReviewColumns();
  void CollectTables();
  void FindTable(TTable& table) const;
  void ReviewTables();
  void ReviewJoins();
  void ReviewJoin(std::size_t index, std::vector<TUsedLink>& links);
  void ReviewOrder(const std::vector<TUsedLink>& links);
  void ReviewGroupBy();
  void ReviewRest();

  [[nodiscard]] std::string_view TextOf(const TSQLDropped& dropped) const;
  [[nodiscard]] std::size_t PosOfTables() const;
  [[nodiscard]] std::size_t PosOf(const TDSTable* table) const;
  // How a link joins, seen from the other table to `joined`.
  static TDSLinkType TypeTowards(const TDSLink& link, const TDSTable& joined);

  TJQueryPanel& FPanel;
  const TJParserResult& FParsed;
  TImportLog& FLog;
  std::vector<TTable> FTables;
};

}  // namespace tolvi
