#include <cstdint>
#include <utility>

#include <tolvi/foundation/format.h>
#include <tolvi/foundation/text.h>
#include <tolvi/model/dbstruc.h>
#include <tolvi/query/selectscope.h>

// Sub-queries that stay SQL: they have names of their own, and only those of the statement round them are written anew.

namespace tolvi {

// Which names each select in a range declares itself.
class TSelectScope::TSubQueryText {
 public:
  TSubQueryText(const TSelectScope& scope, TTokenRange range) : FScope(scope), FText(scope.FText) {
    std::vector<TSelect*> open;
    for (std::size_t at = range.Begin; at < range.End; ++at) {
      Leave(open, at);
      const bool isSelect = FScope.EndOfSubQuery(at) > at;
      if (isSelect) open.push_back(&FSelects[at]);
      if (open.empty()) continue;
      if (FText[at].Word == swOpen && !isSelect) ++open.back()->Depth;
      Enter(*open.back(), FText[at].Word);
      // An alias, or a table without one.
      const TSelectToken& next = FText[at + 1];
      const bool isAlone = FText[at].IsName() && next.Word != swPoint && next.Word != swAs && !next.IsName();
      if (!isAlone || open.back()->Place != spFrom) continue;
      FAll.insert(FText[at].Name());
      open.back()->Names.insert(FText[at].Name());
    }
  }

  /// Calls `onName(token, declared, unsure)` for each qualifier and `onOther(token)` for all else.
  template <typename TOnName, typename TOnOther>
  void ForEach(TTokenRange range, TOnName onName, TOnOther onOther) {
    std::vector<TSelect*> open;
    for (std::size_t at = range.Begin; at < range.End; ++at) {
      Leave(open, at);
      if (FScope.EndOfSubQuery(at) > at) open.push_back(&FSelects[at]);
      const bool qualifies = FText[at].IsName() && FText[at + 1].Word == swPoint && FText[at - 1].Word != swPoint;
      if (!qualifies) {
        onOther(at);
        continue;
      }
      bool declared = false, unsure = false;
      for (const TSelect* select : open) {
        if (!select->Names.contains(FText[at].Name())) continue;
        declared = true;
        unsure = unsure || select->HasUnion;
      }
      onName(at, declared, unsure);
    }
  }

  [[nodiscard]] bool Declares(const std::string& name) const { return FAll.contains(name); }

 private:
  // Where in a select: before FROM or behind its tables, among them, in the condition of a join.
  enum TPlace : std::uint8_t { spOther, spFrom, spOn };
  struct TSelect {
    TNames Names;
    TPlace Place = spOther;
    int Depth = 0;
    bool HasUnion = false;
  };

  static void Enter(TSelect& select, TSelectWord word) {
    const bool isJoin = select.Place == spOn && (word == swJoin || (word == swComma && select.Depth == 0));
    if ((word == swFrom && select.Depth == 0) || isJoin) {
      select.Place = spFrom;
    } else if (word == swOn || word == swUsing) {
      select.Place = spOn;
    } else if (word == swUnion || word == swIntersect || word == swExcept) {
      select.HasUnion = true;
    }
    const bool endsFrom = word == swWhere || word == swGroup || word == swHaving || word == swOrder ||
                          word == swLimit || word == swUnion || word == swIntersect || word == swExcept ||
                          word == swWindow;
    if (endsFrom && select.Depth == 0) select.Place = spOther;
  }

  void Leave(std::vector<TSelect*>& open, std::size_t at) const {
    if (FText[at].Word != swClose) return;
    const std::size_t begin = FText[at].Partner;
    if (open.empty()) return;
    if (FSelects.contains(begin)) {
      open.pop_back();
    } else {
      --open.back()->Depth;
    }
  }

  const TSelectScope& FScope;
  const TSelectText& FText;
  std::unordered_map<std::size_t, TSelect> FSelects;
  TNames FAll;
};

// Where a select in brackets that begins at the token ends; the token for any other.
std::size_t TSelectScope::EndOfSubQuery(std::size_t token) const {
  if (FText[token].Word != swOpen) return token;
  const TSelectToken& first = FText[token + 1];
  const bool isSelect = first.Word == swSelect ||
                        (first.IsName() && (AsciiSameText(first.Text, "with") || AsciiSameText(first.Text, "values")) &&
                         FText[token + 2].Word != swComma && FText[token + 2].Word != swClose);
  return isSelect ? FText[token].Partner + 1U : token;
}

void TSelectScope::AppendSubQuery(TTokenRange range, const TTextHandler& onText) const {
  TSubQueryText names(*this, range);
  const auto gap = [&](std::size_t at) {
    if (at > range.Begin && NeedsBlank(at)) onText(" ");
  };
  const auto onName = [&](std::size_t at, bool declared, bool unsure) {
    gap(at);
    const std::size_t table = TableFor(at, 1);
    const bool isOwn = table < FTables.size() && FTables[table] != nullptr;
    if (!isOwn || (declared && !unsure)) {
      CheckQualifier(at, declared);
      onText(FText[at].Text);
      return;
    }
    const std::string& alias = FTables[table]->GetTableAlias();
    if (unsure || (names.Declares(alias) && !SameText(alias, FText[at].Name()))) {
      FLog.Refuse(
          {at, at + 1},
          Format("the model calls this table \"%s\", as the sub-query calls one of its own: give that one an alias",
                 {alias}),
          "taken as the table of the sub-query");
    }
    onText(FTables[table]->GetWhereExpr());
  };
  names.ForEach(range, onName, [&](std::size_t at) {
    gap(at);
    onText(FText[at].Text);
  });
}

// A table of a statement further out has another name there.
void TSelectScope::CheckQualifier(std::size_t token, bool declared) const {
  if (declared) return;
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
