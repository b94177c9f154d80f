#include <algorithm>
#include <iterator>
#include <utility>

#include <tolvi/foundation/text.h>
#include <tolvi/model/dbstruc.h>
#include <tolvi/query/joincheck.h>
#include <tolvi/query/joinform.h>
#include <tolvi/query/queryresult.h>

namespace tolvi {

namespace {

std::string SortedText(std::vector<std::string> texts) {
  std::sort(texts.begin(), texts.end());
  std::string joined;
  for (const std::string& text : texts) joined.append(text).append(";");
  return joined;
}

std::vector<std::string> KeysOf(const TJoinComparisons& comparisons) {
  std::vector<std::string> keys;
  for (const TJoinComparison& comparison : comparisons) keys.push_back(comparison.Key);
  return keys;
}

template <typename T>
void MoveTo(std::vector<T>& target, std::vector<T> source) {
  target.insert(target.end(), std::make_move_iterator(source.begin()), std::make_move_iterator(source.end()));
}

TJoinComparisons ComparisonsOfLink(const TDSLink& link, const TSQLFormats& formats) {
  TJoinComparisons comparisons;
  for (std::string& key : ComparisonsOf(link.GetSQLExpr(), formats)) {
    comparisons.push_back({std::move(key), {link.GetTable1(), link.GetTable2()}, true, nullptr});
  }
  return comparisons;
}

}  // namespace

TJoinForm::TJoinForm(const TDSTable& table) : FOperands{FoldCase(table.GetWhereExpr())}, FTables{&table} {}

bool TJoinForm::Holds(const TDSTable& table) const {
  return std::find(FTables.begin(), FTables.end(), &table) != FTables.end();
}

void TJoinForm::Merge(TJoinForm other) {
  MoveTo(FOperands, std::move(other.FOperands));
  MoveTo(FTables, std::move(other.FTables));
  MoveTo(FComparisons, std::move(other.FComparisons));
  MoveTo(FOuter, std::move(other.FOuter));
}

void TJoinForm::Require(const TDSTable& table) {
  std::vector<const TDSTable*> required{&table};
  while (!required.empty()) {
    const TDSTable& next = *required.back();
    required.pop_back();
    const auto found =
        std::find_if(FOuter.begin(), FOuter.end(), [&next](const TOuter& outer) { return outer.Form.Holds(next); });
    if (found == FOuter.end()) continue;
    TOuter outer = std::move(*found);
    FOuter.erase(found);
    for (const TJoinComparison& comparison : outer.Comparisons) {
      if (!comparison.RejectsNull) continue;
      required.insert(required.end(), comparison.Tables.begin(), comparison.Tables.end());
    }
    Merge(std::move(outer.Form));
    MoveTo(FComparisons, std::move(outer.Comparisons));
  }
}

void TJoinForm::RequireAll(const TJoinComparisons& comparisons) {
  for (const TJoinComparison& comparison : comparisons) {
    if (!comparison.RejectsNull) continue;
    for (const TDSTable* table : comparison.Tables) Require(*table);
  }
}

void TJoinForm::JoinInner(TJoinForm other, TJoinComparisons comparisons) {
  Merge(std::move(other));
  Restrict(std::move(comparisons));
}

void TJoinForm::Restrict(TJoinComparisons comparisons) {
  RequireAll(comparisons);
  MoveTo(FComparisons, std::move(comparisons));
}

void TJoinForm::JoinLeft(TJoinForm other, TJoinComparisons comparisons) {
  other.RequireAll(comparisons);
  // What is joined to the other side from outside depends on nothing else.
  std::vector<TOuter> outer = std::exchange(other.FOuter, {});
  FOuter.push_back({std::move(other), std::move(comparisons)});
  MoveTo(FOuter, std::move(outer));
}

void TJoinForm::JoinFull(const TJoinForm& other, const TJoinComparisons& comparisons) {
  std::string operand = "full(" + SortedText({Text(), other.Text()}) + SortedText(KeysOf(comparisons)) + ")";
  FOperands = {std::move(operand)};
  FTables.clear();
  FComparisons.clear();
  FOuter.clear();
}

std::vector<std::string> TJoinForm::OuterTexts() const {
  std::vector<std::string> texts;
  for (const TOuter& outer : FOuter) {
    texts.push_back(outer.Form.Text() + " on " + SortedText(KeysOf(outer.Comparisons)));
  }
  std::sort(texts.begin(), texts.end());
  return texts;
}

std::string TJoinForm::Text() const {
  return "{" + SortedText(FOperands) + "|" + SortedText(KeysOf(FComparisons)) + "|" + SortedText(OuterTexts()) + "}";
}

bool TJoinForm::HasSameTables(const TJoinForm& other) const {
  return SortedText(FOperands) == SortedText(other.FOperands);
}

bool TJoinForm::HasSameOuter(const TJoinForm& other) const { return OuterTexts() == other.OuterTexts(); }

// ---- The joins of a query -------------------------------------------------------------------------------------------

// Goes through the tables in the way in which FROM is written.
class TJoinForm::TBuilder {
 public:
  TBuilder(const TRTableList& tables, bool brackets)
      : FTables(tables), FBrackets(brackets), FDone(tables.Count(), false) {}

  [[nodiscard]] const std::vector<const TDSTable*>& Order() const { return FOrder; }

  TJoinForm Build(std::size_t table) {
    if (FOrder.empty()) FOrder.push_back(FTables[table].Table);
    TJoinForm form(*FTables[table].Table);
    JoinTo(form, table);
    return form;
  }

 private:
  void JoinTo(TJoinForm& form, std::size_t from) {
    FDone[from] = true;
    for (std::size_t i = 0; i < FTables.Count(); ++i) {
      const TResultTable& entry = FTables[i];
      bool leftSide = false;
      if (FDone[i] || entry.Link == nullptr || !entry.Link->ContainsTableEx(*FTables[from].Table, leftSide)) continue;
      FDone[i] = true;
      FOrder.push_back(entry.Table);
      Join(form, FBrackets ? Build(i) : TJoinForm(*entry.Table), *entry.Link, leftSide);
      if (!FBrackets) JoinTo(form, i);
    }
  }

  static void Join(TJoinForm& form, TJoinForm other, const TDSLink& link, bool leftSide) {
    TJoinComparisons comparisons = ComparisonsOfLink(link, FormatsOf(link.GetTable1()->GetDBStruct()));
    const TDSLinkType type = link.GetLinkType();
    if (type == ltInner) {
      form.JoinInner(std::move(other), std::move(comparisons));
    } else if (type == ltOuterFull) {
      form.JoinFull(other, comparisons);
    } else if ((type == ltOuterLeft) == leftSide) {
      form.JoinLeft(std::move(other), std::move(comparisons));
    } else {
      std::swap(form, other);
      form.JoinLeft(std::move(other), std::move(comparisons));
    }
  }

  const TRTableList& FTables;
  const bool FBrackets;
  std::vector<bool> FDone;
  std::vector<const TDSTable*> FOrder;
};

TJoinForm TJoinForm::Of(const TRTableList& tables, bool brackets) { return TBuilder(tables, brackets).Build(0); }

std::vector<const TDSTable*> TJoinForm::OrderOf(const TRTableList& tables, bool brackets) {
  TBuilder builder(tables, brackets);
  static_cast<void>(builder.Build(0));
  return builder.Order();
}

}  // namespace tolvi
