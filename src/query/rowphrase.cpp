#include <algorithm>
#include <utility>

#include <tolvi/model/dbstruc.h>
#include <tolvi/query/querpnl.h>
#include <tolvi/query/rowphrase.h>

namespace tolvi {
namespace {

constexpr std::string_view EmptyValue = "<empty>", SQLWord = "SQL:", Ellipsis = "…";

std::string Bracketed(std::string_view text) { return "<" + std::string(text) + ">"; }

/// Collects the parts of a sentence.
class TPhraseMaker {
 public:
  TPhraseMaker(const TJQueryPanel& panel, const TFieldNames& names) : FPanel(panel), FNames(names) {}

  TPhrase Run(const TFilterRow& row) {
    switch (row.GetRowType()) {
      case frtBracket:
        AddBracket(static_cast<const TFilterBracket&>(row));
        break;
      case frtSimpleCondition:
        AddSimple(static_cast<const TSimpleCond&>(row));
        break;
      case frtCustomCondition:
        AddCustom(static_cast<const TCustomCond&>(row));
        break;
      case frtSQLFragment:
        AddWord({.Text = std::string(SQLWord)});
        Add({.Kind = pkSQL, .Text = static_cast<const TSQLFragment&>(row).GetSQLExpr()}, true);
    }
    return std::move(FParts);
  }

 private:
  void Add(TPhrasePart part, bool spaceBefore) {
    part.Text = OneLine(part.Text);
    part.SpaceBefore = spaceBefore;
    FBegun = FBegun || spaceBefore || !part.Text.empty();
    FParts.push_back(std::move(part));
  }

  /// Adds a part behind a blank, unless nothing is to be seen before it or of it.
  void AddWord(TPhrasePart part) {
    const bool spaceBefore = FBegun && !part.Text.empty();
    Add(std::move(part), spaceBefore);
  }

  /// Adds the words of a pattern; `addPart` makes the part for an "@", nothing for one that stands for itself. A single
  /// blank beside a part is not text, but the space round the part.
  template <typename TMakePart>
  void AddPattern(std::string_view pattern, TMakePart makePart) {
    std::string words;
    bool isSpace = false;
    const auto addWords = [&] {
      std::string_view text = words;
      const bool spaceBefore = !FParts.empty() && text.starts_with(' ');
      if (spaceBefore) text.remove_prefix(1);
      if (text.empty()) {
        isSpace = spaceBefore;
      } else {
        isSpace = text.ends_with(' ');
        if (isSpace) text.remove_suffix(1);
        Add({.Text = std::string(text)}, spaceBefore);
      }
      words.clear();
    };
    for (const char c : pattern) {
      TPhrasePart part;
      if (c != '@' || !makePart(part)) {
        words += c;
        continue;
      }
      addWords();
      Add(std::move(part), std::exchange(isSpace, false));
    }
    addWords();
    if (isSpace) Add({}, true);
  }

  void AddBracket(const TFilterBracket& bracket) {
    AddPattern(FPanel.GetTitle(bracket.IsRoot() ? "ttlFilter" : "ttlBracket"), [&bracket](TPhrasePart& part) {
      part = {.Kind = pkLinkWord, .Text = bracket.GetBracketKind()};
      return true;
    });
  }

  /// Field, operator, values with the operator's word between them; what the model lacks as the query names it.
  void AddSimple(const TSimpleCond& condition) {
    const TJCustomDBStructure& model = *FPanel.GetDBStruct();
    const bool unknownField = &condition.GetField() == &model.GetNullField();
    AddWord({.Kind = pkField,
             .Text = unknownField ? Bracketed(condition.GetMissing()) : FNames.Of(condition.GetField()),
             .IsUnknown = unknownField});
    const TDSOperator& op = condition.GetDSOperator();
    if (&op == &model.GetNullOperator()) {
      AddWord({.Kind = pkOperator, .Text = Bracketed(condition.GetOperatorName()), .IsUnknown = true});
      for (const int index : {1, 2}) {
        const std::string value = condition.GetValueCaption(index);
        if (!value.empty()) AddWord({.Kind = pkValue, .ValueIndex = index, .Text = value});
      }
      return;
    }
    AddWord({.Kind = pkOperator, .Text = op.GetDisplayName()});
    for (int index = 1; index <= condition.GetValueCount(); ++index) {
      if (index > 1 && !op.GetValFormat().empty()) AddWord({.Text = op.GetValFormat()});
      AddWord(Value(condition, index));
    }
  }

  /// The display format with the values in their places.
  void AddCustom(const TCustomCond& condition) {
    if (const std::string missing = condition.GetMissing(); !missing.empty()) {
      return AddWord({.Text = Bracketed(missing), .IsUnknown = true});
    }
    int index = 0;
    AddPattern(condition.GetDSCondition().GetDisplayFormat(), [&](TPhrasePart& part) {
      if (index >= condition.GetValueCount()) return false;
      part = Value(condition, ++index);
      return true;
    });
  }

  TPhrasePart Value(const TFilterCond& condition, int index) const {
    TPhrasePart part{.Kind = pkValue, .ValueIndex = index, .Text = {}};
    if (condition.GetValueKind(index) == vkSubQuery && !condition.GetValueIsParam(index)) {
      part.Kind = pkSubQuery;
      part.Text = Bracketed(FPanel.GetTitle("ttlSubQueryCaption"));
      part.IsPlaceholder = condition.GetSubQuery().Empty();
      return part;
    }
    part.Text = Words(condition, index);
    if (const TSQLParam* param = condition.GetParam(index)) {
      part.Kind = pkParameter;
      part.Text = Bracketed(param->GetParamName() + (part.Text.empty() ? "" : ": " + part.Text));
    } else if (part.Text.empty()) {
      part.Text = EmptyValue;
      part.IsPlaceholder = true;
    }
    return part;
  }

  std::string Words(const TFilterCond& condition, int index) const {
    if (condition.GetCaption(index).empty()) {
      const std::string& value = condition.GetValue(index);
      if (condition.GetValueKind(index) == vkList) {
        return TStrings(SplitCommaText(value)).Joined(", ");
      }
      if (condition.GetValueType(index) == ftBoolean) {
        if (const auto truth = TryXStrToBool(value)) return FPanel.GetTitle(*truth ? "ttlTrue" : "ttlFalse");
      }
    }
    return condition.GetValueCaption(index);
  }

  const TJQueryPanel& FPanel;
  const TFieldNames& FNames;
  TPhrase FParts;
  // Whether the sentence has any text yet.
  bool FBegun = false;
};

}  // namespace

std::string OneLine(std::string_view text) {
  std::string line(text);
  std::replace_if(
      line.begin(), line.end(), [](char c) { return c == '\r' || c == '\n' || c == '\t'; }, ' ');
  return line;
}

TFieldNames::TFieldNames(const TJCustomDBStructure* model) {
  if (model == nullptr) return;
  for (const TDSField& field : model->Fields()) ++FCounts[field.GetDisplayName()];
}

std::string TFieldNames::Of(const TDSField& field) const {
  const auto count = FCounts.find(field.GetDisplayName());
  return count != FCounts.end() && count->second > 1 ? field.GetCompoundName() : field.GetDisplayName();
}

TPhrase RowPhrase(const TFilterRow& row, const TFieldNames& names) {
  return TPhraseMaker(row.GetQueryPanel(), names).Run(row);
}

std::string PhraseText(const TPhrase& phrase) {
  std::string text;
  for (const TPhrasePart& part : phrase) {
    if (part.SpaceBefore) text += ' ';
    text += part.Text;
  }
  return text;
}

std::string RowsText(const TFilterBracket& bracket, const TFieldNames& names, std::size_t limit) {
  std::string text;
  for (const TFilterRow& row : bracket) {
    if (!row.GetEnabled() || row.GetHidden()) continue;
    if (!text.empty()) text += "; ";
    if (text.size() >= limit) return text.append(Ellipsis);
    text += PhraseText(RowPhrase(row, names));
    if (row.GetRowType() != frtBracket) continue;
    const std::size_t room = limit - std::min(limit, text.size());
    text += " (" + RowsText(static_cast<const TFilterBracket&>(row), names, room) + ")";
  }
  return text;
}

}  // namespace tolvi
