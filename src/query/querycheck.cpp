#include <algorithm>

#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/format.h>
#include <tolvi/query/querpnl.h>
#include <tolvi/query/querycheck.h>
#include <tolvi/query/rowerror.h>
#include <tolvi/query/sqlbuilder.h>

namespace tolvi {
namespace {

class TQueryChecker {
 public:
  TQueryChecker(TJQueryPanel& panel, int depth) : FPanel(panel), FDepth(depth) {}

  std::vector<TCheckFinding> Run() {
    if (!FPanel.GetDBStruct()) {
      Add(csError, {}, {}, "the query has no data model");
      return std::move(FFindings);
    }
    CheckBracket(FPanel.RootBracket(), true);
    CheckColumns();
    for (const TQueryWarning& warning : FPanel.LoadWarnings()) AddOnce(csWarning, warning);
    CheckBuild();
    return std::move(FFindings);
  }

 private:
  void Add(TCheckSeverity severity, std::string section, std::string place, std::string text) {
    FFindings.push_back({severity, std::move(section), std::move(place), std::move(text)});
  }
  void AddAtRow(TCheckSeverity severity, const std::string& rowID, std::string text) {
    Add(severity, rowID.empty() ? std::string() : "Row" + rowID, rowID.empty() ? std::string() : "Row " + rowID,
        std::move(text));
  }
  /// What has been found already at its row, or anywhere in the same words, is not told again.
  void AddOnce(TCheckSeverity severity, const TQueryWarning& warning) {
    const bool known = std::any_of(FFindings.begin(), FFindings.end(), [&warning](const TCheckFinding& finding) {
      return finding.Text.find(warning.Text) != std::string::npos ||
             warning.Text.find(finding.Text) != std::string::npos;
    });
    if (!known) AddAtRow(severity, warning.RowID, warning.Text);
  }

  void CheckBracket(const TFilterBracket& bracket, bool enabled) {
    for (const TFilterRow& row : bracket) {
      const bool on = enabled && row.GetEnabled();
      if (row.GetRowType() == frtBracket) {
        const auto& inner = static_cast<const TFilterBracket&>(row);
        if (inner.GetRowCount() == 0) AddAtRow(csWarning, row.GetRowID(), "the bracket is empty");
        CheckBracket(inner, on);
      } else {
        CheckCondition(static_cast<const TFilterCond&>(row), on);
      }
    }
  }

  void CheckCondition(const TFilterCond& condition, bool on) {
    const std::string rowID = condition.GetRowID();
    if (const std::string missing = condition.GetMissing(); !missing.empty()) {
      AddAtRow(on ? csError : csWarning, rowID, missing);
      return;
    }
    if (condition.GetRowType() == frtSQLFragment) CheckFragment(static_cast<const TSQLFragment&>(condition), on, rowID);
    if (condition.GetRowType() == frtSimpleCondition) CheckOffer(static_cast<const TSimpleCond&>(condition), rowID);
    for (int index = 1; index <= std::min(condition.GetValueCount(), 2); ++index) {
      if (!condition.GetValueIsParam(index)) CheckValue(condition, index, on, rowID);
    }
  }

  void CheckFragment(const TSQLFragment& fragment, bool on, const std::string& rowID) {
    const std::string fault = fragment.GetFault();
    if (!fault.empty()) return AddAtRow(on ? csError : csWarning, rowID, fault);
    AddAtRow(csWarning, rowID, "holds SQL: it is not bound, and the statement depends on the database");
  }

  void CheckOffer(const TSimpleCond& condition, const std::string& rowID) {
    const TDSField& field = condition.GetField();
    if (!field.GetUseInConditions()) {
      AddAtRow(csWarning, rowID, Format("the model keeps field \"%s\" out of conditions", {field.GetDisplayName()}));
    }
    if (field.IndexOfOperator(condition.GetDSOperator()) < 0) {
      AddAtRow(
          csWarning, rowID,
          Format("field \"%s\" does not offer operator \"%s\"", {field.GetDisplayName(), condition.GetOperatorName()}));
    }
  }

  void CheckValue(const TFilterCond& condition, int index, bool on, const std::string& rowID) {
    if (condition.GetValueKind(index) == vkSubQuery) {
      CheckSubQuery(condition.GetSubQuery(), on, rowID);
      return;
    }
    const bool isText = TextFieldTypes.Contains(condition.GetValueType(index));
    if (condition.GetValueKind(index) == vkScalar && condition.GetValue(index).empty() && !isText) {
      AddAtRow(csWarning, rowID,
               Format("value %d of \"%s\" is empty: 0, False or the first day stands for it",
                      {index, condition.GetValueName(index)}));
    }
    try {
      static_cast<void>(FPanel.ExtractValue(condition, index));
    } catch (const EException& error) {
      AddAtRow(on ? csError : csWarning, rowID, error.Message());
    }
  }

  void CheckSubQuery(const TStrings& lines, bool on, const std::string& rowID) {
    const TCheckSeverity worst = on ? csError : csWarning;
    if (FDepth == TSQLBuilder::MaxSubQueryLevel)
      return AddAtRow(csWarning, rowID, "sub-queries deeper than this are not checked");
    try {
      TJQueryPanel panel;
      panel.SetDBStruct(FPanel.GetDBStruct());
      panel.SetFormatSettings(FPanel.GetFormatSettings());
      panel.SetAllowSQLFragments(FPanel.GetAllowSQLFragments());
      panel.LoadFromStrings(lines);
      for (TCheckFinding& finding : TQueryChecker(panel, FDepth + 1).Run()) {
        const std::string place = finding.Place.empty() ? std::string() : ", " + finding.Place;
        Add(std::max(finding.Severity, worst), "Row" + rowID, "Row " + rowID + ", sub-query" + place, finding.Text);
      }
    } catch (const EException& error) {
      AddAtRow(worst, rowID, "the sub-query cannot be read: " + error.Message());
    }
  }

  void CheckColumns() {
    std::size_t number = 0;
    for (const TResultField& column : FPanel.QResult().RFields()) {
      const std::string section = "RField" + std::to_string(++number);
      const std::string place = "Result column \"" + column.GetCaption() + "\"";
      std::size_t fieldNumber = 0;
      for (const TDSField* field : column.DSFields()) {
        ++fieldNumber;
        if (field == &FPanel.GetDBStruct()->GetNullField()) {
          Add(csError, section, place, UnknownField(section, fieldNumber));
        } else if (!field->GetUseInResult() && FDepth == 0) {
          // A sub-query may well give keys that nobody wants to see.
          Add(csWarning, section, place,
              Format("the model keeps field \"%s\" out of result columns", {field->GetDisplayName()}));
        }
      }
      if (column.GetFormula().empty()) Add(csError, section, place, "the formula is empty");
    }
  }

  /// In the words in which reading told it, where the query was read.
  std::string UnknownField(const std::string& section, std::size_t number) const {
    for (const TQueryWarning& warning : FPanel.LoadWarnings()) {
      if (warning.RowID.empty() && warning.Text.starts_with(section + ": ")) {
        return warning.Text.substr(section.size() + 2);
      }
    }
    return Format("the model lacks field @%d", {number});
  }

  void CheckBuild() {
    try {
      static_cast<void>(FPanel.GetQueryText());
    } catch (const EQueryRowError& error) {
      AddOnce(csError, {error.RowID(), error.Message()});
      return;
    } catch (const EException& error) {
      AddOnce(csError, {{}, error.Message()});
      return;
    }
    for (const TQueryWarning& warning : FPanel.QResult().Warnings()) AddOnce(csWarning, warning);
  }

  TJQueryPanel& FPanel;
  int FDepth;
  std::vector<TCheckFinding> FFindings;
};

}  // namespace

std::vector<TCheckFinding> CheckQuery(TJQueryPanel& panel) { return TQueryChecker(panel, 0).Run(); }

}  // namespace tolvi
