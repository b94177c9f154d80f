#include <tolvi/foundation/format.h>
#include <tolvi/foundation/text.h>
#include <tolvi/model/dbstruc.h>
#include <tolvi/query/selectscope.h>
#include <tolvi/sqlimport/subselects.h>

// Sub-queries that stay SQL: they have names of their own, and only those of the statement round them are written anew.

namespace tolvi {

void TSelectScope::AppendSubQuery(TTokenRange range, const TTextHandler& onText) const {
  const TSubSelects selects(FText, range);
  const auto append = [&](std::size_t at, std::string_view text) {
    if (at > range.Begin && FText[at - 1].Pos + FText[at - 1].Text.size() < FText[at].Pos) onText(" ");
    onText(text);
  };
  const auto onQualifier = [&](std::size_t at, TSubSelects::TQualifier meaning) {
    const std::size_t table = TableFor(at, 1);
    if (meaning == TSubSelects::sqOwn || table == FTables.size() || FTables[table] == nullptr) {
      if (meaning == TSubSelects::sqOuter) CheckQualifier(at);
      return append(at, FText[at].Text);
    }
    const std::string& alias = FTables[table]->GetTableAlias();
    if (meaning == TSubSelects::sqUnsure || (selects.Declares(alias) && !SameText(alias, FText[at].Name()))) {
      FLog.Refuse(
          {at, at + 1},
          Format("the model calls this table \"%s\", as the sub-query calls one of its own: give that one an alias",
                 {alias}),
          "taken as the table of the sub-query");
    }
    append(at, FTables[table]->GetWhereExpr());
  };
  selects.ForEach(onQualifier, [&](std::size_t at) { append(at, FText[at].Text); });
}

// A table of a statement further out has another name there.
void TSelectScope::CheckQualifier(std::size_t token) const {
  for (const TSelectScope* outer = FOuter; outer != nullptr; outer = outer->FOuter) {
    if (outer->TableFor(token, 1) == outer->FTables.size()) continue;
    FLog.Refuse({token, token + 1},
                Format("\"%s\" is a table of the statement round the sub-query, which a query cannot refer to",
                       {FText[token].Text}),
                "kept word for word");
    return;
  }
}

}  // namespace tolvi
