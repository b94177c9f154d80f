#include <algorithm>
#include <set>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include <tolvi/model/dbstruc.h>
#include <tolvi/model/modelfill_links.h>

namespace tolvi {
namespace {

/// Two tables, in either order.
std::uint64_t PairOf(std::size_t a, std::size_t b) {
  return (static_cast<std::uint64_t>(std::min(a, b)) << 32U) + std::max(a, b);
}

/// Pairs of columns, in either order where both are of one table.
using TColumnPairs = std::set<std::pair<std::size_t, std::size_t>>;

class TLinkPlanner final {
 public:
  TLinkPlanner(const TJCustomDBStructure& model, const TCatalogue& catalogue, const TFillOptions& options,
               TPlannedTables& tables, TFillPlan& plan)
      : FModel(model), FCat(catalogue), FOptions(options), FTables(tables), FPlan(plan) {}

  void Run() {
    for (const TDSLink& link : FModel.Links()) LookAt(link);
    ChooseMainLinks();
    for (std::size_t number = 0; number < FCat.Links.size(); ++number) Plan(number);
  }

 private:
  /// The number of a link's column; `None` for a constant, `gone` becomes true when the catalogue lacks the column.
  std::size_t ColumnOf(std::string_view entry, const TCatTable& table, bool& gone) const {
    if (IsLinkConstant(entry)) return None;
    entry = LinkEntryText(entry);
    std::size_t column = table.ColumnByName(entry);
    if (column == None) column = table.ColumnByName(PlainName(entry));
    if (column == None) gone = true;
    return column;
  }

  /// The pair with the column of the table of the smaller number first.
  static std::pair<std::size_t, std::size_t> Ordered(std::size_t from, std::size_t to, std::size_t column1,
                                                     std::size_t column2) {
    const bool swap = from == to ? column1 > column2 : from > to;
    return swap ? std::pair(column2, column1) : std::pair(column1, column2);
  }

  void LookAt(const TDSLink& link) {
    const std::size_t table1 = FTables.NumberOfTable(*link.GetTable1());
    const std::size_t table2 = FTables.NumberOfTable(*link.GetTable2());
    if (table1 == None || table2 == None) return;
    FLinked.insert(PairOf(table1, table2));
    const std::size_t from = FTables.SourceOf(table1), to = FTables.SourceOf(table2);
    if (!FCat.Tables[from].Used || !FCat.Tables[to].Used) return;
    bool gone = false;
    TColumnPairs pairs;
    const std::size_t count = std::min(link.GetFields1().Count(), link.GetFields2().Count());
    for (std::size_t index = 0; index < count; ++index) {
      const std::size_t column1 = ColumnOf(link.GetFields1()[index], FCat.Tables[from], gone);
      const std::size_t column2 = ColumnOf(link.GetFields2()[index], FCat.Tables[to], gone);
      const bool equal = index >= link.GetOperators().Count() || Trim(link.GetOperators()[index]) == "=";
      if (column1 != None && column2 != None && equal) pairs.insert(Ordered(from, to, column1, column2));
    }
    if (gone) FPlan.Found.VanishedLinks.Add(link.GetSQLExpr());
    FJoined[PairOf(from, to)].push_back(std::move(pairs));
  }

  /// Of several links between two tables, that between columns of one name joins the tables themselves, else the first.
  void ChooseMainLinks() {
    FMain.assign(FCat.Links.size(), false);
    std::unordered_map<std::uint64_t, std::pair<std::size_t, bool>> main;
    for (std::size_t number = 0; number < FCat.Links.size(); ++number) {
      const TCatLink& link = FCat.Links[number];
      if (link.From == link.To) continue;
      const bool named = std::all_of(link.Columns.begin(), link.Columns.end(), [&](const auto& pair) {
        return SameText(FCat.Tables[link.From].Columns[pair.first].Name,
                        FCat.Tables[link.To].Columns[pair.second].Name);
      });
      const auto [entry, first] = main.try_emplace(PairOf(link.From, link.To), number, named);
      if (!first && named && !entry->second.second) entry->second = {number, true};
    }
    for (const auto& [pair, chosen] : main) FMain[chosen.first] = true;
  }

  bool IsKnown(const TCatLink& link, const TColumnPairs& pairs) {
    std::vector<TColumnPairs>& joined = FJoined[PairOf(link.From, link.To)];
    const bool known = std::any_of(joined.begin(), joined.end(), [&pairs](const TColumnPairs& other) {
      return std::includes(other.begin(), other.end(), pairs.begin(), pairs.end());
    });
    if (!known) joined.push_back(pairs);
    return known;
  }

  void Plan(std::size_t number) {
    const TCatLink& link = FCat.Links[number];
    if (!link.Guessed && !FOptions.LinksFromKeys) return;
    const std::size_t table1 = FTables.MainTableOf(link.From);
    std::size_t table2 = FTables.MainTableOf(link.To);
    if (table1 == None || table2 == None) return;
    const bool free = link.From != link.To && !FLinked.contains(PairOf(table1, table2));
    if (!free && (link.Guessed || !FOptions.RoleTables)) return;
    TColumnPairs pairs;
    for (const auto& [from, to] : link.Columns) pairs.insert(Ordered(link.From, link.To, from, to));
    if (IsKnown(link, pairs)) return;
    if (!free || !FMain[number]) {
      if (!FOptions.RoleTables) return;
      const TCatColumn& column = FCat.Tables[link.From].Columns[link.Columns.back().first];
      table2 = FTables.AddRole(table1, column, link.To, FOptions.QuoteMixedCase);
    }
    FLinked.insert(PairOf(table1, table2));
    Add(link, table1, table2);
  }

  void Add(const TCatLink& from, std::size_t table1, std::size_t table2) {
    TPlannedLink link;
    link.Table1 = table1;
    link.Table2 = table2;
    link.LinkType = from.From == from.To ? ltOuterLeft : FOptions.LinkType;
    for (const auto& [column1, column2] : from.Columns) {
      const std::string& name1 = FCat.Tables[from.From].Columns[column1].Name;
      const std::string& name2 = FCat.Tables[from.To].Columns[column2].Name;
      link.Fields1.Add(name1);
      link.Fields2.Add(name2);
      for (const std::string& name : {name1, name2}) {
        if (NeedsQuotes(name, FOptions.QuoteMixedCase)) link.QuoteFields = true;
      }
    }
    FPlan.Links.push_back(std::move(link));
  }

  const TJCustomDBStructure& FModel;
  const TCatalogue& FCat;
  const TFillOptions& FOptions;
  TPlannedTables& FTables;
  TFillPlan& FPlan;
  /// Planned tables that a link joins.
  std::unordered_set<std::uint64_t> FLinked;
  /// What joins two tables of the catalogue.
  std::unordered_map<std::uint64_t, std::vector<TColumnPairs>> FJoined;
  std::vector<bool> FMain;
};

}  // namespace

void PlanLinks(const TJCustomDBStructure& model, const TCatalogue& catalogue, const TFillOptions& options,
               TPlannedTables& tables, TFillPlan& plan) {
  TLinkPlanner(model, catalogue, options, tables, plan).Run();
}

}  // namespace tolvi
