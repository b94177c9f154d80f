#include <algorithm>
#include <iterator>
#include <utility>

#include <tolvi/foundation/format.h>
#include <tolvi/foundation/text.h>
#include <tolvi/model/dbstruc.h>
#include <tolvi/query/joincheck.h>
#include <tolvi/query/queryresult.h>
#include <tolvi/query/selectjoins.h>

namespace tolvi {

namespace {

bool HasKey(const TJoinComparisons& comparisons, std::string_view key) {
  return std::any_of(comparisons.begin(), comparisons.end(),
                     [key](const TJoinComparison& comparison) { return comparison.Key == key; });
}

}  // namespace

TSelectJoins::TSelectJoins(const TJCustomDBStructure& model, const TSelectStatement& statement,
                           const TSelectScope& scope, TSelectLog& log)
    : FModel(model), FStatement(statement), FScope(scope), FLog(log) {
  const auto& tables = scope.Tables();
  if (std::find(tables.begin(), tables.end(), nullptr) != tables.end()) return;
  FForm = FormOf(*statement.From);
  AddWhere();
  MoveOthers();
}

TTokenRange TSelectJoins::From() const { return FStatement.Tables.front().Range; }

// ---- The joins of the statement -------------------------------------------------------------------------------------

bool TSelectJoins::ComparesColumns(const TSelectCondition& condition) const {
  const auto isColumn = [this](TTokenRange range) { return FScope.NameOf(range).Table != nullptr; };
  return condition.Kind == TSelectCondition::ckPredicate && !condition.Negated && !condition.NotInside &&
         !MirroredSymbol(condition.Operation).empty() && isColumn(condition.Left) && isColumn(condition.Right);
}

// A predicate that compares columns of two tables is known by that, any other by its whole SQL.
TJoinComparison TSelectJoins::ComparisonOf(const TSelectCondition& condition) const {
  const std::string sql = FScope.Resolved(condition.Range);
  TJoinComparison comparison{{}, {}, ComparesColumns(condition), &condition};
  if (condition.Kind == TSelectCondition::ckPredicate && !condition.Negated) {
    comparison.Key = ComparisonsOf(sql, FModel.SQLFormats()).front();
  } else {
    comparison.Key = std::string(condition.Negated ? "not " : "") + "(" + SQLKey(sql) + ")";
  }
  for (std::size_t at = condition.Range.Begin; at < condition.Range.End; ++at) {
    const TSelectName name = FScope.NameAt(at, condition.Range.Begin);
    if (name.Table != nullptr) comparison.Tables.push_back(name.Table);
  }
  return comparison;
}

void TSelectJoins::CollectTables(const TSelectSource& source, std::vector<TDSTable*>& tables) const {
  if (source.Left == nullptr) {
    tables.push_back(FScope.Tables()[source.Table]);
    return;
  }
  CollectTables(*source.Left, tables);
  CollectTables(*source.Right, tables);
}

// USING names columns of any table on either side: those of a link between two of them.
TJoinComparisons TSelectJoins::UsingOf(const TSelectSource& source) const {
  std::vector<TDSTable*> lefts, rights;
  CollectTables(*source.Left, lefts);
  CollectTables(*source.Right, rights);
  if (lefts.size() > 1 || rights.size() > 1 || source.Join == sjRight || source.Join == sjFull) {
    FLog.Refuse({source.Token, source.Token + 1},
                "which tables' columns USING joins here depends on the database: write the condition with ON");
  }
  TJoinComparisons comparisons;
  for (const TDSTable* left : lefts) {
    for (const TDSTable* right : rights) {
      comparisons.clear();
      std::vector<std::string> keys;
      for (const std::string& column : source.Using) {
        const std::string sql = left->GetWhereExpr() + "." + column + "=" + right->GetWhereExpr() + "." + column;
        keys.push_back(ComparisonsOf(sql, FModel.SQLFormats()).front());
        comparisons.push_back({keys.back(), {left, right}, true, nullptr});
      }
      std::sort(keys.begin(), keys.end());
      for (const TDSLink* link : left->Links()) {
        if (link->ContainsTable(*right) && ComparisonsOf(link->GetSQLExpr(), FModel.SQLFormats()) == keys) {
          return comparisons;
        }
      }
    }
  }
  FLog.Refuse({source.Token, source.Token + 1},
              "no link of the model joins by the columns after USING: write the condition with ON");
  return comparisons;
}

TJoinComparisons TSelectJoins::ComparisonsOfSource(const TSelectSource& source) const {
  if (source.Join == sjNatural) {
    FLog.Refuse({source.Token, source.Token + 1},
                "which columns NATURAL joins is not known: write the condition with ON");
  }
  if (!source.Using.empty()) return UsingOf(source);
  TJoinComparisons comparisons;
  if (!source.On) return comparisons;
  for (const TSelectCondition* term : source.On->Terms()) comparisons.push_back(ComparisonOf(*term));
  return comparisons;
}

TJoinForm TSelectJoins::FormOf(const TSelectSource& source) {
  if (source.Left == nullptr) return TJoinForm(*FScope.Tables()[source.Table]);
  TJoinForm left = FormOf(*source.Left), right = FormOf(*source.Right);
  TJoinComparisons comparisons = ComparisonsOfSource(source);
  switch (source.Join) {
    case sjLeft:
      left.JoinLeft(std::move(right), std::move(comparisons));
      return left;
    case sjRight:
      right.JoinLeft(std::move(left), std::move(comparisons));
      return right;
    case sjFull:
      left.JoinFull(right, comparisons);
      return left;
    default:
      left.JoinInner(std::move(right), std::move(comparisons));
      return left;
  }
}

// Whether a link of the model has the comparison, and all its others are among them, too.
bool TSelectJoins::IsLink(const TJoinComparison& comparison, const TJoinComparisons& all) const {
  if (comparison.Tables.size() != 2 || comparison.Tables[0] == comparison.Tables[1]) return false;
  const TDSTable& table = *comparison.Tables[0];
  return std::any_of(table.Links().begin(), table.Links().end(), [&](const TDSLink* link) {
    if (!link->ContainsTable(*comparison.Tables[1])) return false;
    const std::vector<std::string> keys = ComparisonsOf(link->GetSQLExpr(), FModel.SQLFormats());
    return std::find(keys.begin(), keys.end(), comparison.Key) != keys.end() &&
           std::all_of(keys.begin(), keys.end(), [&all](const std::string& key) { return HasKey(all, key); });
  });
}

// Conditions of WHERE that are links join, as in "from a, b where a.x = b.x".
void TSelectJoins::AddWhere() {
  if (!FStatement.Where || FStatement.Tables.size() < 2) return;
  TJoinComparisons comparisons;
  for (const TSelectCondition* term : FStatement.Where->Terms()) {
    if (ComparesColumns(*term)) comparisons.push_back(ComparisonOf(*term));
  }
  TJoinComparisons all = FForm->Comparisons();
  all.insert(all.end(), comparisons.begin(), comparisons.end());
  const auto isOther = [this, &all](const TJoinComparison& comparison) {
    return HasKey(FForm->Comparisons(), comparison.Key) || !IsLink(comparison, all);
  };
  std::erase_if(comparisons, isOther);
  for (const TJoinComparison& comparison : comparisons) FJoins.push_back(comparison.Condition);
  FForm->Restrict(std::move(comparisons));
}

void TSelectJoins::MoveOthers() {
  for (const TJoinComparison& comparison : FForm->Comparisons()) {
    if (comparison.Condition != nullptr && !IsLink(comparison, FForm->Comparisons())) {
      FConditions.push_back(comparison.Condition);
    }
  }
}

bool TSelectJoins::IsJoin(const TSelectCondition& condition) const {
  return std::find(FJoins.begin(), FJoins.end(), &condition) != FJoins.end();
}

// ---- Beside those of the query --------------------------------------------------------------------------------------

std::optional<TSelectJoins::TDifference> TSelectJoins::Difference(const TRTableList& tables, bool brackets) const {
  if (tables.Empty()) return TDifference{From(), "the query refers to no table"};
  const TJoinForm form = TJoinForm::Of(tables, brackets);
  const auto& own = FScope.Tables();
  for (const TResultTable& entry : tables) {
    if (std::find(own.begin(), own.end(), entry.Table) != own.end()) continue;
    return TDifference{From(), Format("the model joins these tables through \"%s\", which the statement does not have: "
                                      "add it to the statement, or a link between them to the model",
                                      {entry.Table->GetWhereExpr()})};
  }
  for (const TJoinComparison& comparison : FForm->Comparisons()) {
    if (comparison.Condition == nullptr || !IsLink(comparison, FForm->Comparisons())) continue;
    if (HasKey(form.Comparisons(), comparison.Key) || !form.HasSameTables(*FForm)) continue;
    return TDifference{comparison.Condition->Range,
                       "the query joins these tables on another way: the links of the model make a circle here"};
  }
  if (!form.HasSameTables(*FForm) || !form.HasSameOuter(*FForm)) {
    return TDifference{From(),
                       "outer joins differ: the links of the model join these tables in another way, or in "
                       "another direction"};
  }
  for (const TJoinComparison& comparison : form.Comparisons()) {
    if (HasKey(FForm->Comparisons(), comparison.Key)) continue;
    return TDifference{
        From(), Format("the query joins on %s by a link of the model, the statement does not", {comparison.Key})};
  }
  return std::nullopt;
}

bool TSelectJoins::IsSame(const TRTableList& tables, bool brackets) const {
  return !FForm || !Difference(tables, brackets);
}

void TSelectJoins::RefuseDifference(const TRTableList& tables, bool brackets) const {
  if (!FForm) return;
  if (const auto difference = Difference(tables, brackets)) {
    FLog.Refuse(difference->Range, difference->Reason, "joined by the links of the model");
  }
}

}  // namespace tolvi
