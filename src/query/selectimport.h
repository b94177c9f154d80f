#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include <tolvi/query/joinform.h>
#include <tolvi/query/resultfields.h>
#include <tolvi/query/selectconditions.h>
#include <tolvi/query/selectlog.h>
#include <tolvi/query/selectscope.h>
#include <tolvi/sqlimport/selectreader.h>

namespace tolvi {

class TJQueryPanel;
class TSelectJoins;

/// Makes a query of a statement that says the same as it. Raises `ESQLImportError` for what a query cannot say; when
/// approximating, that is a warning of the log instead.
class TSelectImport final {
 public:
  /// The panel is empty and inactive. `range` is the statement within the text; `outer` the scope of the statement
  /// round it and `level` how many there are.
  TSelectImport(TJQueryPanel& panel, const TSelectText& text, TTokenRange range, TSelectLog& log,
                const TSelectScope* outer = nullptr, int level = 0);
  ~TSelectImport();

  void Run();

 private:
  void ReadOptions();
  void MapColumns();
  void MapSorting();
  void MapGroups();
  void MapConditions();
  void MapTables();
  void CheckAliases();

  [[nodiscard]] bool IsAllColumns() const;
  void CheckText() const;
  void CheckOperands(TTokenRange expr) const;
  void CheckOrder(TTokenRange expr);
  // A column that is in no list yet.
  [[nodiscard]] std::unique_ptr<TResultField> MakeColumn(TTokenRange expr) const;
  TResultField& AddColumn(std::unique_ptr<TResultField> column, std::string_view caption);
  [[nodiscard]] std::string CaptionOf(TTokenRange expr, const TResultField& column) const;
  // The column that ORDER BY or GROUP BY means by a number, an alias or an expression; null for none.
  TResultField* ColumnFor(TTokenRange expr, bool aliasFirst);
  [[nodiscard]] TTokenRange Expanded(TTokenRange expr, bool aliasFirst) const;
  [[nodiscard]] std::size_t ColumnByName(TTokenRange expr, bool aliasFirst) const;
  [[nodiscard]] bool HasAggregate() const;
  [[nodiscard]] bool IsGrouped() const;
  void CheckGroups(const std::vector<std::string>& groups);

  TSubQuery ReadSubQuery(TTokenRange range);
  // Makes sure that every table takes part; from the first on, in the order of the statement, if `inOrder`. Whether the
  // tables can be joined then.
  bool HoldTables(bool inOrder);
  void HoldTable(std::size_t index, bool inOrder);
  bool CollectTables();

  TJQueryPanel& FPanel;
  const TSelectText& FText;
  TSelectLog& FLog;
  std::vector<TSelectSkipped> FSkipped;
  const TSelectStatement FStatement;
  TSelectScope FScope;
  const int FLevel;
  std::unique_ptr<TSelectJoins> FJoins;
  // The columns of the select list, in its order.
  std::vector<TResultField*> FColumns;
  // The first column of each SQL, of so many columns.
  std::unordered_map<std::string, TResultField*> FKeys;
  std::size_t FKeyed = 0;
  // Those that only bring a table into the statement.
  std::vector<TResultField*> FHolders;
};

}  // namespace tolvi
