#include <algorithm>
#include <utility>
#include <vector>

#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/text.h>
#include <tolvi/query/explain.h>
#include <tolvi/query/querpnl.h>
#include <tolvi/query/resultformula.h>
#include <tolvi/query/rowphrase.h>
#include <tolvi/query/sqlbuilder.h>

namespace tolvi {
namespace {

constexpr std::string_view OffMark = "(off) ", EmptyValue = "<empty>", AllColumns = "*";
constexpr std::string_view SortTitles[] = {"ttlNotSorted", "ttlAscending", "ttlDescending"};

class TExplainer {
 public:
  TExplainer(const TJQueryPanel& panel, const TFieldNames& names, int level, int depth)
      : FPanel(&panel), FNames(names), FLevel(level), FDepth(depth) {}

  TStrings Run() {
    FParamCount = FPanel->QResult().Params().GetParentParamCount() + FPanel->QResult().GetParamCount();
    const TFilterBracket& root = FPanel->RootBracket();
    AddRow(root, root.GetEnabled() || root.GetRowCount() == 0);
    AddRows(root);
    AddColumns();
    AddSorting();
    return std::move(FLines);
  }

 private:
  void AddLine(std::string_view text, bool enabled = true) {
    std::string line(static_cast<std::size_t>(FLevel) * 2, ' ');
    if (!enabled) line += OffMark;
    FLines.Add(line += OneLine(text));
  }

  void AddRow(const TFilterRow& row, bool enabled) { AddLine(PhraseText(RowPhrase(row, FNames)), enabled); }

  void AddRows(const TFilterBracket& bracket) {
    ++FLevel;
    for (const TFilterRow& row : bracket) {
      AddRow(row, row.GetEnabled());
      if (row.GetRowType() == frtBracket) {
        AddRows(static_cast<const TFilterBracket&>(row));
      } else {
        AddSubQuery(static_cast<const TFilterCond&>(row));
      }
    }
    --FLevel;
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
  return PhraseText(RowPhrase(condition, TFieldNames(condition.GetQueryPanel().GetDBStruct())));
}

}  // namespace tolvi
