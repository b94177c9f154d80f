#include <algorithm>
#include <unordered_map>
#include <utility>
#include <vector>

#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/text.h>
#include <tolvi/query/explain.h>
#include <tolvi/query/querpnl.h>
#include <tolvi/query/resultformula.h>
#include <tolvi/query/sqlbuilder.h>

namespace tolvi {
namespace {

constexpr std::string_view OffMark = "(off) ", EmptyValue = "<empty>", AllColumns = "*";
constexpr std::string_view SortTitles[] = {"ttlNotSorted", "ttlAscending", "ttlDescending"};

std::string OneLine(std::string_view text) {
  std::string line(text);
  std::replace_if(
      line.begin(), line.end(), [](char c) { return c == '\r' || c == '\n' || c == '\t'; }, ' ');
  return line;
}

/// Appends a word to a sentence.
void AddWord(std::string& sentence, std::string_view word) {
  if (word.empty()) return;
  if (!sentence.empty()) sentence += ' ';
  sentence += word;
}

/// How people tell the fields of a model apart.
class TFieldNames {
 public:
  explicit TFieldNames(const TJCustomDBStructure* model) {
    if (!model) return;
    for (const TDSField& field : model->Fields()) ++FCounts[field.GetDisplayName()];
  }
  std::string Of(const TDSField& field) const {
    const auto count = FCounts.find(field.GetDisplayName());
    return count != FCounts.end() && count->second > 1 ? field.GetCompoundName() : field.GetDisplayName();
  }

 private:
  std::unordered_map<std::string_view, int, TFoldedHash, TFoldedEqual> FCounts;
};

class TExplainer {
 public:
  TExplainer(const TJQueryPanel& panel, const TFieldNames& names, int level, int depth)
      : FPanel(&panel), FNames(names), FLevel(level), FDepth(depth) {}

  TStrings Run() {
    FParamCount = FPanel->QResult().Params().GetParentParamCount() + FPanel->QResult().GetParamCount();
    const TFilterBracket& root = FPanel->RootBracket();
    AddLine(BracketText(root, "ttlFilter"), root.GetEnabled() || root.GetRowCount() == 0);
    AddRows(root);
    AddColumns();
    AddSorting();
    return std::move(FLines);
  }

  std::string Sentence(const TFilterCond& condition) const {
    if (condition.GetRowType() == frtSQLFragment) return "SQL: " + condition.GetSQLExpr();
    return condition.GetRowType() == frtSimpleCondition ? SimpleSentence(static_cast<const TSimpleCond&>(condition))
                                                        : CustomSentence(static_cast<const TCustomCond&>(condition));
  }

 private:
  void AddLine(std::string_view text, bool enabled = true) {
    std::string line(static_cast<std::size_t>(FLevel) * 2, ' ');
    if (!enabled) line += OffMark;
    FLines.Add(line += OneLine(text));
  }

  std::string BracketText(const TFilterBracket& bracket, std::string_view title) const {
    return ReplaceStr(FPanel->GetTitle(title), "@", bracket.GetBracketKind());
  }

  void AddRows(const TFilterBracket& bracket) {
    ++FLevel;
    for (const TFilterRow& row : bracket) {
      if (row.GetRowType() == frtBracket) {
        const auto& inner = static_cast<const TFilterBracket&>(row);
        AddLine(BracketText(inner, "ttlBracket"), inner.GetEnabled());
        AddRows(inner);
      } else {
        const auto& condition = static_cast<const TFilterCond&>(row);
        AddLine(Sentence(condition), condition.GetEnabled());
        AddSubQuery(condition);
      }
    }
    --FLevel;
  }

  /// Field, operator, values with the operator's word between them; what the model lacks as the query names it.
  std::string SimpleSentence(const TSimpleCond& condition) const {
    const TJCustomDBStructure& model = *FPanel->GetDBStruct();
    const bool unknownField = &condition.GetField() == &model.GetNullField();
    const TDSOperator& op = condition.GetDSOperator();
    std::string sentence = unknownField ? "<" + condition.GetMissing() + ">" : FNames.Of(condition.GetField());
    if (&op == &model.GetNullOperator()) {
      AddWord(sentence, "<" + condition.GetOperatorName() + ">");
      for (const int index : {1, 2}) AddWord(sentence, condition.GetValueCaption(index));
      return sentence;
    }
    AddWord(sentence, op.GetDisplayName());
    for (int index = 1; index <= condition.GetValueCount(); ++index) {
      if (index > 1) AddWord(sentence, op.GetValFormat());
      AddWord(sentence, ValueText(condition, index));
    }
    return sentence;
  }

  /// The display format with the values in their places.
  std::string CustomSentence(const TCustomCond& condition) const {
    if (!condition.GetMissing().empty()) return "<" + condition.GetMissing() + ">";
    std::string sentence;
    int index = 0;
    for (const char c : condition.GetDSCondition().GetDisplayFormat()) {
      if (c == '@' && index < condition.GetValueCount()) {
        sentence += ValueText(condition, ++index);
      } else {
        sentence += c;
      }
    }
    return sentence;
  }

  std::string ValueText(const TFilterCond& condition, int index) const {
    if (condition.GetValueKind(index) == vkSubQuery && !condition.GetValueIsParam(index)) {
      return "<" + FPanel->GetTitle("ttlSubQueryCaption") + ">";
    }
    std::string text = Words(condition, index);
    if (const TSQLParam* param = condition.GetParam(index)) {
      return "<" + param->GetParamName() + (text.empty() ? "" : ": " + text) + ">";
    }
    return text.empty() ? std::string(EmptyValue) : text;
  }

  std::string Words(const TFilterCond& condition, int index) const {
    if (condition.GetCaption(index).empty()) {
      const std::string& value = condition.GetValue(index);
      if (condition.GetValueKind(index) == vkList) {
        return TStrings(SplitCommaText(value)).Joined(", ");
      }
      if (condition.GetValueType(index) == ftBoolean) {
        if (const auto truth = TryXStrToBool(value)) return FPanel->GetTitle(*truth ? "ttlTrue" : "ttlFalse");
      }
    }
    return condition.GetValueCaption(index);
  }

  void AddSubQuery(const TFilterCond& condition) {
    for (int index = 1; index <= condition.GetValueCount(); ++index) {
      if (condition.GetValueKind(index) != vkSubQuery || condition.GetValueIsParam(index)) continue;
      ++FLevel;
      if (condition.GetSubQuery().Empty()) {
        AddLine(EmptyValue);
      } else if (FDepth == TSQLBuilder::MaxSubQueryLevel) {
        AddLine("...");
      } else {
        AddLines(condition);
      }
      --FLevel;
    }
  }

  void AddLines(const TFilterCond& condition) {
    try {
      TJQueryPanel panel;
      panel.SetDBStruct(FPanel->GetDBStruct());
      panel.SetFormatSettings(FPanel->GetFormatSettings());
      panel.SetAllowSQLFragments(FPanel->GetAllowSQLFragments());
      panel.SetTitles(FPanel->Titles().Lines());
      panel.LoadFromStrings(condition.GetSubQuery());
      panel.SetSQLOptions(condition.GetSubQueryOptions());
      // Names of parameters as the whole statement numbers them.
      panel.QResult().Params().SetParentParamCount(FParamCount);
      panel.QResult().ReindexParams();
      TExplainer inner(panel, FNames, FLevel, FDepth + 1);
      FLines.AddStrings(inner.Run());
      if (condition.GetEnabled()) FParamCount = inner.FParamCount;
    } catch (const EException& error) {
      AddLine("<" + error.Message() + ">");
    }
  }

  void AddColumns() {
    const TRFieldList& columns = FPanel->QResult().RFields();
    std::string title = FPanel->GetTitle("ttlResFields");
    if (FPanel->GetSQLOptions().Contains(soSelectDistinct)) title += ", each row once";
    AddLine(title + ":");
    ++FLevel;
    if (columns.GetShowsAll()) {
      AddLine(AllColumns);
    } else {
      for (const TResultField& column : columns) {
        if (!column.GetHidden()) AddLine(ColumnText(column));
      }
    }
    --FLevel;
  }

  /// The caption; behind it what is in the column unless the caption is the field's name.
  std::string ColumnText(const TResultField& column) const {
    std::string content;
    if (column.IsPlainField() && !HoldsUnknown(column)) {
      const TDSField& field = *column.DSFields().front();
      content = FNames.Of(field);
      if (SameText(column.GetCaption(), field.GetDisplayName())) return content;
    } else {
      content = Expression(column);
    }
    return column.GetCaption().empty() ? content : column.GetCaption() + " = " + content;
  }

  bool HoldsUnknown(const TResultField& column) const {
    const std::vector<TDSField*>& fields = column.DSFields();
    const TDSField* unknown = FPanel->GetDBStruct() ? &FPanel->GetDBStruct()->GetNullField() : nullptr;
    return std::find(fields.begin(), fields.end(), unknown) != fields.end();
  }

  /// The formula with the fields' names in braces.
  std::string Expression(const TResultField& column) const {
    const std::vector<TDSField*>& fields = column.DSFields();
    if (HoldsUnknown(column)) return column.GetExpression();
    std::string text;
    ForEachPlaceholder(
        column.GetFormula(), fields.size(), [&text](std::string_view literal) { text += literal; },
        [this, &text, &fields](std::size_t index) { text += "{" + FNames.Of(*fields[index]) + "}"; });
    return text;
  }

  void AddSorting() {
    std::vector<const TResultField*> sorted;
    for (const TResultField& column : FPanel->QResult().RFields()) {
      if (column.GetSorting() != stNoSort) sorted.push_back(&column);
    }
    if (sorted.empty()) return;
    std::stable_sort(sorted.begin(), sorted.end(), [](const TResultField* a, const TResultField* b) {
      return a->GetSortOrder() < b->GetSortOrder();
    });
    AddLine(FPanel->GetTitle("ttlSortCaption") + ":");
    ++FLevel;
    for (const TResultField* column : sorted) {
      const std::string name = column->GetCaption().empty() ? ColumnText(*column) : column->GetCaption();
      AddLine(name + " (" + FPanel->GetTitle(SortTitles[column->GetSorting()]) + ")");
    }
    --FLevel;
  }

  const TJQueryPanel* FPanel;
  const TFieldNames& FNames;
  int FLevel, FDepth;
  // Parameters that have their names: those of the query and of the sub-queries so far.
  std::size_t FParamCount = 0;
  TStrings FLines;
};

}  // namespace

TStrings Explain(const TJQueryPanel& panel) {
  const TFieldNames names(panel.GetDBStruct());
  return TExplainer(panel, names, 0, 0).Run();
}

std::string ExplainCondition(const TFilterCond& condition) {
  const TFieldNames names(condition.GetQueryPanel().GetDBStruct());
  return OneLine(TExplainer(condition.GetQueryPanel(), names, 0, 0).Sentence(condition));
}

}  // namespace tolvi
