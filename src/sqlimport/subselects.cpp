#include <tolvi/sqlimport/subselects.h>

namespace tolvi {

namespace {

bool IsSetOperation(TSelectWord word) { return word == swUnion || word == swIntersect || word == swExcept; }

bool EndsFrom(TSelectWord word) {
  return word == swWhere || word == swGroup || word == swHaving || word == swOrder || word == swLimit ||
         word == swWindow || IsSetOperation(word);
}

}  // namespace

std::size_t EndOfSubSelect(const TSelectText& text, std::size_t token) {
  if (text[token].Word != swOpen) return token;
  const TSelectToken &first = text[token + 1], &second = text[token + 2];
  const bool mayBegin = first.IsName() && second.Word != swComma && second.Word != swClose;
  const bool isSelect = first.Word == swSelect ||
                        (mayBegin && (AsciiSameText(first.Text, "with") || AsciiSameText(first.Text, "values")));
  return isSelect ? text[token].Partner + 1U : token;
}

TSubSelects::TSubSelects(const TSelectText& text, TTokenRange range) : FText(text), FRange(range) {
  std::vector<TSelect*> open;
  for (std::size_t at = range.Begin; at < range.End; ++at) {
    const TSelectToken &token = text[at], &next = text[at + 1];
    const bool isSelect = EndOfSubSelect(text, at) > at;
    if (isSelect) open.push_back(&FSelects[at]);
    if (open.empty()) continue;
    TSelect& select = *open.back();
    if (token.Word == swOpen && !isSelect) ++select.Depth;
    if (token.Word == swClose && FSelects.contains(token.Partner)) {
      open.pop_back();
      continue;
    }
    if (token.Word == swClose) --select.Depth;
    Enter(select, token.Word);
    // A table with an alias is called by that alone.
    const bool isAlone = token.IsName() && next.Word != swPoint && next.Word != swAs && !next.IsName();
    if (!isAlone || select.Place != spFrom) continue;
    FAll.insert(token.Name());
    select.Names.insert(token.Name());
  }
}

void TSubSelects::Enter(TSelect& select, TSelectWord word) {
  const bool isJoin = select.Place == spOn && (word == swJoin || (word == swComma && select.Depth == 0));
  if ((word == swFrom && select.Depth == 0) || isJoin) select.Place = spFrom;
  if (word == swOn || word == swUsing) select.Place = spOn;
  if (EndsFrom(word) && select.Depth == 0) select.Place = spOther;
  select.HasUnion = select.HasUnion || IsSetOperation(word);
}

TSubSelects::TQualifier TSubSelects::MeaningOf(std::size_t token, const std::vector<const TSelect*>& open) const {
  const std::string name = FText[token].Name();
  TQualifier meaning = sqOuter;
  for (const TSelect* select : open) {
    if (!select->Names.contains(name)) continue;
    if (select->HasUnion) return sqUnsure;
    meaning = sqOwn;
  }
  return meaning;
}

void TSubSelects::ForEach(const std::function<void(std::size_t, TQualifier)>& onQualifier,
                          const std::function<void(std::size_t)>& onOther) const {
  std::vector<const TSelect*> open;
  for (std::size_t at = FRange.Begin; at < FRange.End; ++at) {
    const TSelectToken& token = FText[at];
    if (const auto found = FSelects.find(at); found != FSelects.end()) open.push_back(&found->second);
    if (token.Word == swClose && FSelects.contains(token.Partner)) open.pop_back();
    const bool qualifies =
        !open.empty() && token.IsName() && FText[at + 1].Word == swPoint && FText[at - 1].Word != swPoint;
    if (qualifies) {
      onQualifier(at, MeaningOf(at, open));
    } else {
      onOther(at);
    }
  }
}

}  // namespace tolvi
