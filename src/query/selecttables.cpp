#include <algorithm>
#include <iterator>

#include <tolvi/foundation/format.h>
#include <tolvi/foundation/text.h>
#include <tolvi/model/dbstruc.h>
#include <tolvi/query/joincheck.h>
#include <tolvi/query/selectscope.h>

// Which tables of the model those of a statement are.

namespace tolvi {

namespace {

// Schemas in which tables stand that are named without one.
constexpr std::string_view UsualSchemas[] = {"main", "public", "dbo"};

// Enough for any statement that people write; the choice among several tables of one name.
constexpr std::size_t MaxSteps = 1000;

std::string JoinNames(const std::vector<std::string>& names) {
  std::string joined;
  for (const std::string& name : names) joined.append(joined.empty() ? "" : ".").append(name);
  return joined;
}

bool IsNamed(const TDSTable& table, const std::vector<std::string>& names, const TJCustomDBStructure& model) {
  const std::string& last = names.back();
  if (names.size() == 1) return table.GetTableName().size() == last.size() && SameText(table.GetTableName(), last);
  const std::string whole = JoinNames(names);
  if (SameText(table.GetTableName(), whole) || SameText(table.GetFullName(), whole) ||
      SameText(table.GetCompoundName(), whole) ||
      SameText(UnquotedName(table.GetMainExpr(), model.SQLFormats()), whole)) {
    return true;
  }
  if (names.size() > 2 || !SameText(table.GetTableName(), last)) return false;
  const std::string& schema = names.front();
  const TDMOptions& options = model.DMOptions();
  return SameText(schema, options.GetDefaultDBOwner()) || SameText(schema, options.GetDefaultDatabase()) ||
         (table.GetDatabaseName().empty() &&
          std::any_of(std::begin(UsualSchemas), std::end(UsualSchemas),
                      [&schema](std::string_view usual) { return SameText(schema, usual); }));
}

// The comparisons of columns of two tables on which the statement joins.
struct TColumnPair {
  std::size_t Table1, Table2;
  std::string Column1, Column2;
};

}  // namespace

TSelectScope::TSelectScope(TJCustomDBStructure& model, const TSelectText& text, const TSelectStatement& statement,
                           TSelectLog& log, const TSelectScope* outer)
    : FModel(model), FText(text), FStatement(statement), FLog(log), FOuter(outer) {
  Assign();
  CollectUsing(*statement.From);
}

// The model's tables of that name: the one of the same alias alone, else the one that has no other alias first.
std::vector<TDSTable*> TSelectScope::CandidatesFor(const TSelectTable& table) const {
  const std::string& alias = table.Alias.empty() ? table.Names.back() : table.Alias;
  TDSTable* byAlias = FModel.TableByName(tnAlias, alias);
  if (byAlias != nullptr && IsNamed(*byAlias, table.Names, FModel)) return {byAlias};
  std::vector<TDSTable*> candidates;
  for (TDSTable& entry : FModel.Tables()) {
    if (!IsNamed(entry, table.Names, FModel)) continue;
    const bool isMain = SameText(entry.GetTableAlias(), entry.GetTableName());
    candidates.insert(isMain ? candidates.begin() : candidates.end(), &entry);
  }
  return candidates;
}

void TSelectScope::Assign() {
  TCandidates candidates;
  for (const TSelectTable& table : FStatement.Tables) {
    candidates.push_back(CandidatesFor(table));
    if (!candidates.back().empty()) continue;
    FLog.Refuse(table.Range,
                Format("the model has no table \"%s\": add it to the model, or take it out of the statement",
                       {JoinNames(table.Names)}));
    candidates.back().push_back(nullptr);
  }
  std::size_t steps = 0;
  std::vector<TDSTable*> chosen;
  if (AssignDistinct(candidates, 0, chosen, steps)) {
    FTables = std::move(chosen);
    return;
  }
  // The first choice that has no table twice; there may be none.
  for (std::size_t i = 0; i < candidates.size(); ++i) {
    const auto isFree = [this](const TDSTable* table) {
      return table == nullptr || std::find(FTables.begin(), FTables.end(), table) == FTables.end();
    };
    const auto free = std::find_if(candidates[i].begin(), candidates[i].end(), isFree);
    if (free == candidates[i].end()) {
      const TSelectTable& table = FStatement.Tables[i];
      FLog.Refuse(table.Range,
                  Format("the statement has the table \"%s\" more often than the model: give the model another table "
                         "\"%s\" with an alias of its own",
                         {JoinNames(table.Names), table.Names.back()}));
    }
    FTables.push_back(free == candidates[i].end() ? nullptr : *free);
  }
}

// Tries the candidates in their order until all comparisons between the statement's tables are links of the model.
bool TSelectScope::AssignDistinct(const TCandidates& candidates, std::size_t table, std::vector<TDSTable*>& chosen,
                                  std::size_t& steps) const {
  if (table == candidates.size()) {
    const auto isOnly = [](const std::vector<TDSTable*>& entries) { return entries.size() == 1; };
    return std::all_of(candidates.begin(), candidates.end(), isOnly) || JoinsAreLinks(chosen);
  }
  for (TDSTable* candidate : candidates[table]) {
    if (++steps > MaxSteps) return false;
    if (candidate != nullptr && std::find(chosen.begin(), chosen.end(), candidate) != chosen.end()) continue;
    chosen.push_back(candidate);
    if (AssignDistinct(candidates, table + 1, chosen, steps)) return true;
    chosen.pop_back();
  }
  return false;
}

bool TSelectScope::JoinsAreLinks(const std::vector<TDSTable*>& tables) const {
  std::vector<TColumnPair> pairs;
  const auto addPair = [this, &pairs](const TSelectCondition& condition) {
    if (condition.Kind != TSelectCondition::ckPredicate || condition.Negated || condition.Operation != "=") return;
    const TTokenRange left = condition.Left, right = condition.Right;
    if (left.Count() < 3 || right.Count() < 3 || left.Count() % 2 == 0 || right.Count() % 2 == 0) return;
    if (!FText[left.Begin].IsName() || FText[left.End - 2].Word != swPoint || !FText[right.Begin].IsName() ||
        FText[right.End - 2].Word != swPoint) {
      return;
    }
    const std::size_t table1 = TableFor(left.Begin, left.Count() / 2),
                      table2 = TableFor(right.Begin, right.Count() / 2);
    if (std::max(table1, table2) >= FStatement.Tables.size() || table1 == table2) return;
    pairs.push_back({table1, table2, FText[left.End - 1].Name(), FText[right.End - 1].Name()});
  };
  const auto addPairs = [&addPair](const std::optional<TSelectCondition>& condition) {
    if (!condition) return;
    for (const TSelectCondition* term : condition->Terms()) addPair(*term);
  };
  std::vector<const TSelectSource*> sources{FStatement.From.get()};
  while (!sources.empty()) {
    const TSelectSource* source = sources.back();
    sources.pop_back();
    if (source == nullptr) continue;
    addPairs(source->On);
    sources.push_back(source->Left.get());
    sources.push_back(source->Right.get());
  }
  addPairs(FStatement.Where);
  const TSQLFormats& formats = FModel.SQLFormats();
  return std::all_of(pairs.begin(), pairs.end(), [&tables, &formats](const TColumnPair& pair) {
    const TDSTable *table1 = tables[pair.Table1], *table2 = tables[pair.Table2];
    if (table1 == nullptr || table2 == nullptr) return true;
    const std::string written =
        table1->GetWhereExpr() + "." + pair.Column1 + "=" + table2->GetWhereExpr() + "." + pair.Column2;
    const std::vector<std::string> comparison = ComparisonsOf(written, formats);
    return std::any_of(table1->Links().begin(), table1->Links().end(), [&](const TDSLink* link) {
      if (!link->ContainsTable(*table2)) return false;
      const std::vector<std::string> comparisons = ComparisonsOf(link->GetSQLExpr(), formats);
      return std::find(comparisons.begin(), comparisons.end(), comparison.front()) != comparisons.end();
    });
  });
}

// ---- Qualifiers -----------------------------------------------------------------------------------------------------

// The statement's table that so many names before the last one mean; the number of tables for none.
std::size_t TSelectScope::TableFor(std::size_t token, std::size_t qualifiers) const {
  for (std::size_t table = 0; table < FStatement.Tables.size(); ++table) {
    if (IsCalled(table, token, qualifiers)) return table;
  }
  return FStatement.Tables.size();
}

bool TSelectScope::IsCalled(std::size_t index, std::size_t token, std::size_t qualifiers) const {
  const TSelectTable& table = FStatement.Tables[index];
  if (!table.Alias.empty()) return qualifiers == 1 && SameText(FText[token].Name(), table.Alias);
  if (qualifiers > table.Names.size()) return false;
  for (std::size_t i = 0; i < qualifiers; ++i) {
    if (!SameText(FText[token + i * 2].Name(), table.Names[table.Names.size() - qualifiers + i])) return false;
  }
  return true;
}

}  // namespace tolvi
