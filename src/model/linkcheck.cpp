#include <algorithm>
#include <unordered_set>
#include <utility>

#include <tolvi/foundation/format.h>
#include <tolvi/foundation/text.h>
#include <tolvi/model/link.h>
#include <tolvi/model/linkcheck.h>
#include <tolvi/model/modelfill_names.h>
#include <tolvi/model/table.h>

namespace tolvi {
namespace {

constexpr std::string_view Symbols[] = {"=", "<>", "!=", "<", ">", "<=", ">="};

bool IsEmpty(std::string_view entry) { return Trim(LinkEntryText(entry)).empty(); }

/// The empty columns, or the empty constants.
TLinkFinding EmptyEntries(const TStrings& fields1, const TStrings& fields2, bool constants) {
  TLinkFinding found{csError, constants ? "a constant is empty" : "a column name is empty", {}};
  for (std::size_t pair = 0; pair < std::max(fields1.Count(), fields2.Count()); ++pair) {
    for (const auto& [fields, part] : {std::pair(&fields1, lpSide1), std::pair(&fields2, lpSide2)}) {
      if (pair >= fields->Count()) continue;
      const std::string& entry = (*fields)[pair];
      if (IsEmpty(entry) && IsLinkConstant(entry) == constants) found.Spots.push_back({pair, part});
    }
  }
  return found;
}

/// Equal for entries that are written alike.
std::string KeyOf(std::string_view entry) {
  const std::string text(Trim(LinkEntryText(entry)));
  return IsLinkConstant(entry) ? std::string(LinkConstantPrefix) + text : FoldCase(PlainName(text));
}

class TSidesChecker final {
 public:
  TSidesChecker(const TStrings& fields1, const TStrings& symbols, const TStrings& fields2, const TLinkSideInfo& side1,
                const TLinkSideInfo& side2)
      : FFields1(fields1), FSymbols(symbols), FFields2(fields2), FSide1(side1), FSide2(side2) {}

  TLinkFindings Run(const TDSLink* self) {
    const std::size_t count = std::min(FFields1.Count(), FFields2.Count());
    for (std::size_t pair = 0; pair < count; ++pair) CheckPair(pair);
    if (count > 0 && FHalfConstants == count) {
      Add(csWarning, "no pair compares columns of both tables: every row is joined with all that fit the constants");
    }
    if (FSide1.Table == FSide2.Table) {
      Add(csWarning, "no statement joins a table with itself: add the table again, under another alias");
    } else if (HasLinkBefore(self)) {
      Add(csWarning, LinkComesTooLate);
    }
    return std::move(FFindings);
  }

 private:
  void Add(TCheckSeverity severity, std::string_view text, std::vector<TLinkSpot> spots = {}) {
    FFindings.push_back({severity, std::string(text), std::move(spots)});
  }

  void CheckPair(std::size_t pair) {
    const std::string &entry1 = FFields1[pair], &entry2 = FFields2[pair];
    CheckColumn(entry1, FSide1, {pair, lpSide1});
    CheckColumn(entry2, FSide2, {pair, lpSide2});
    if (IsEmpty(entry1) || IsEmpty(entry2)) return;
    const bool constant1 = IsLinkConstant(entry1), constant2 = IsLinkConstant(entry2);
    const std::vector<TLinkSpot> sides{{pair, lpSide1}, {pair, lpSide2}};
    if (constant1 != constant2) ++FHalfConstants;
    if (constant1 && constant2) return Add(csError, "both sides are constants", sides);
    const std::string key1 = KeyOf(entry1), key2 = KeyOf(entry2);
    if (FSide1.Table == FSide2.Table && key1 == key2) return Add(csError, "a column is compared with itself", sides);
    const std::string_view symbol = pair < FSymbols.Count() ? Trim(FSymbols[pair]) : Symbols[0];
    if (!FPairs.insert(key1 + '\n' + std::string(symbol) + '\n' + key2).second) {
      Add(csWarning, "the pair stands here twice", sides);
    }
  }

  void CheckColumn(std::string_view entry, const TLinkSideInfo& side, TLinkSpot spot) {
    if (IsLinkConstant(entry) || IsEmpty(entry) || side.Columns.Empty()) return;
    const std::string_view column = LinkEntryText(entry);
    if (side.Columns.IndexOf(column) >= 0 || side.Columns.IndexOf(PlainName(column)) >= 0) return;
    const std::string_view text = side.FromCatalogue ? "the catalogue knows no column \"%s\" of table \"%s\""
                                                     : "the model has no field on column \"%s\" of table \"%s\"";
    Add(csWarning, Format(text, {column, side.Table ? side.Table->GetTableAlias() : std::string()}), {spot});
  }

  bool HasLinkBefore(const TDSLink* self) const {
    if (!FSide1.Table || !FSide2.Table) return false;
    const TDSLink* first = FSide1.Table->LinkByTable(*FSide2.Table);
    return first != nullptr && first != self;
  }

  const TStrings &FFields1, &FSymbols, &FFields2;
  const TLinkSideInfo &FSide1, &FSide2;
  TLinkFindings FFindings;
  std::unordered_set<std::string> FPairs;
  std::size_t FHalfConstants = 0;
};

}  // namespace

std::span<const std::string_view> LinkSymbols() { return Symbols; }

TLinkFindings CheckLinkPairs(const TStrings& fields1, const TStrings& symbols, const TStrings& fields2) {
  TLinkFindings findings;
  const auto addIf = [&findings](bool wrong, std::string text) {
    if (wrong) findings.push_back({csError, std::move(text), {}});
  };
  const std::size_t count1 = fields1.Count(), count2 = fields2.Count(), count = std::max(count1, count2);
  addIf(count == 0, "the link has no columns");
  addIf(count1 != count2, Format("the link has %d columns on the first side and %d on the second", {count1, count2}));
  addIf(symbols.Count() != count,
        Format("the link has %d comparison symbols for %d columns", {symbols.Count(), count}));
  for (const bool constants : {false, true}) {
    TLinkFinding empty = EmptyEntries(fields1, fields2, constants);
    if (!empty.Spots.empty()) findings.push_back(std::move(empty));
  }
  for (std::size_t pair = 0; pair < symbols.Count(); ++pair) {
    if (std::find(std::begin(Symbols), std::end(Symbols), Trim(symbols[pair])) != std::end(Symbols)) continue;
    findings.push_back({csWarning, Format("\"%s\" is no comparison symbol", {symbols[pair]}), {{pair, lpSymbol}}});
  }
  return findings;
}

TLinkFindings CheckLinkSides(const TStrings& fields1, const TStrings& symbols, const TStrings& fields2,
                             const TLinkSideInfo& side1, const TLinkSideInfo& side2, const TDSLink* self) {
  return TSidesChecker(fields1, symbols, fields2, side1, side2).Run(self);
}

}  // namespace tolvi
