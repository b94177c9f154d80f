#include <algorithm>
#include <utility>

#include <tolvi/foundation/text.h>
#include <tolvi/panel/querysteps.h>
#include <tolvi/query/querpnl.h>
#include <tolvi/query/querytext.h>

namespace tolvi {
namespace {

constexpr std::string_view RowHeader = "[Row", LineBreak = "\r\n";

/// What a query text holds, for as long as this lives.
class TTextSettings {
 public:
  explicit TTextSettings(TJQueryPanel& panel)
      : FPanel(panel), FOptions(panel.GetSaveSQLOptions()), FTitles(panel.GetSaveTitles()) {
    FPanel.SetSaveSQLOptions(true);
    FPanel.SetSaveTitles(false);
  }
  TTextSettings(const TTextSettings&) = delete;
  TTextSettings& operator=(const TTextSettings&) = delete;
  ~TTextSettings() {
    FPanel.SetSaveSQLOptions(FOptions);
    FPanel.SetSaveTitles(FTitles);
  }

 private:
  TJQueryPanel& FPanel;
  bool FOptions, FTitles;
};

/// Lengths of what two sequences have in common at their beginnings and, of the rest, at their ends.
template <typename TSequence>
std::pair<std::size_t, std::size_t> CommonEnds(const TSequence& a, const TSequence& b) {
  const std::size_t shorter = std::min(a.size(), b.size());
  const auto shortEnd = a.begin() + static_cast<std::ptrdiff_t>(shorter);
  const auto start = static_cast<std::size_t>(std::mismatch(a.begin(), shortEnd, b.begin()).first - a.begin());
  std::size_t end = 0;
  while (end < shorter - start && a[a.size() - 1 - end] == b[b.size() - 1 - end]) ++end;
  return {start, end};
}

template <typename TSequence>
void Replace(TSequence& sequence, std::size_t start, std::size_t length, const TSequence& by) {
  const auto at = sequence.begin() + static_cast<std::ptrdiff_t>(start);
  const auto behind = sequence.erase(at, at + static_cast<std::ptrdiff_t>(length));
  sequence.insert(behind, by.begin(), by.end());
}

std::string_view RowText(const TQueryState& state, TRowKey key) {
  const auto found = state.Rows.find(key);
  return found != state.Rows.end() ? std::string_view(found->second) : std::string_view();
}

}  // namespace

void ForEachRow(TFilterRow& row, const std::function<void(TFilterRow&)>& call) {
  call(row);
  if (row.GetRowType() != frtBracket) return;
  for (TFilterRow& inner : static_cast<TFilterBracket&>(row)) ForEachRow(inner, call);
}

// A line that begins as the header of a row is one: the format escapes all others.
TQueryState TakeQueryState(TJQueryPanel& panel, const std::function<TRowKey(TFilterRow&)>& keyOf) {
  std::string text;
  {
    const TTextSettings settings(panel);
    text = WriteQueryText(panel);
  }
  const std::string nextHeader = std::string(LineBreak) + std::string(RowHeader);
  TQueryState state;
  std::size_t at = text.find(nextHeader + "]") + LineBreak.size();
  state.Head = text.substr(0, at);
  std::uint32_t level = 0;
  const std::function<void(TFilterRow&)> take = [&](TFilterRow& row) {
    const std::size_t begin = text.find(LineBreak, at) + LineBreak.size();
    at = text.find(nextHeader, begin);
    if (at != std::string::npos) at += LineBreak.size();
    const TRowKey key = keyOf(row);
    state.Places.push_back({key, level});
    state.Rows.emplace(key, text.substr(begin, at == std::string::npos ? at : at - begin));
    if (row.GetRowType() != frtBracket) return;
    ++level;
    for (TFilterRow& inner : static_cast<TFilterBracket&>(row)) take(inner);
    --level;
  };
  take(panel.RootBracket());
  return state;
}

std::string QueryStateText(const TQueryState& state) {
  std::string text = state.Head, rowID;
  // Of each level: how long its brackets' IDs are, how many rows it had so far.
  std::vector<std::size_t> lengths{0}, counts{0};
  for (const TQueryState::TPlace& place : state.Places) {
    if (place.Level > 0) {
      lengths.resize(place.Level + 1);
      counts.resize(place.Level + 1);
      rowID.resize(lengths[place.Level - 1]);
      rowID.append(".").append(std::to_string(++counts[place.Level]));
      lengths[place.Level] = rowID.size();
    }
    text.append(RowHeader).append(rowID).append("]").append(LineBreak).append(RowText(state, place.Key));
  }
  return text;
}

TTextChange TTextChange::Between(std::string_view before, std::string_view after) {
  const auto [start, end] = CommonEnds(before, after);
  return {start, std::string(before.substr(start, before.size() - start - end)),
          std::string(after.substr(start, after.size() - start - end))};
}

void TTextChange::Apply(std::string& text, bool forward) const {
  text.replace(Start, (forward ? Before : After).size(), forward ? After : Before);
}

std::optional<TQueryStep> TQueryStep::Between(const TQueryState& before, const TQueryState& after) {
  TQueryStep step;
  step.Head = TTextChange::Between(before.Head, after.Head);
  const auto [start, end] = CommonEnds(before.Places, after.Places);
  const auto middle = [start = static_cast<std::ptrdiff_t>(start),
                       end = static_cast<std::ptrdiff_t>(end)](const std::vector<TQueryState::TPlace>& places) {
    return std::vector<TQueryState::TPlace>(places.begin() + start, places.end() - end);
  };
  step.Start = start;
  step.PlacesBefore = middle(before.Places);
  step.PlacesAfter = middle(after.Places);
  for (const auto& [key, text] : after.Rows) {
    if (RowText(before, key) != text) step.Rows.push_back({key, TTextChange::Between(RowText(before, key), text)});
  }
  for (const auto& [key, text] : before.Rows) {
    if (!after.Rows.contains(key)) step.Rows.push_back({key, TTextChange::Between(text, {})});
  }
  if (step.Head.Empty() && step.PlacesBefore.empty() && step.PlacesAfter.empty() && step.Rows.empty()) return {};
  return step;
}

void TQueryStep::Apply(TQueryState& state, bool forward) const {
  Head.Apply(state.Head, forward);
  Replace(state.Places, Start, (forward ? PlacesBefore : PlacesAfter).size(), forward ? PlacesAfter : PlacesBefore);
  for (const TRowChange& change : Rows) {
    std::string& text = state.Rows[change.Key];
    change.Text.Apply(text, forward);
    if (text.empty()) state.Rows.erase(change.Key);
  }
}

}  // namespace tolvi
