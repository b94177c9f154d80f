#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "support/random_models.h"
#include <tolvi/foundation/strings.h>
#include <tolvi/query/querpnl.h>

namespace tolvi {

/// Fills panels with random queries on their models.
///
/// Left out is what a statement cannot tell, or what is wrong in SQL: patterns of parameters, a second sorting by the
/// same SQL, rows of SQL that an operator would say as well, "@" in formulas, numbers as columns, reserved words as
/// aliases, aggregates inside other formulas.
class TQueryMaker final {
 public:
  explicit TQueryMaker(TRandom& random) : FRandom(random) {}

  /// The panel has a model and its locale; it becomes active. Its statement can still be an error, if only for want of
  /// any table.
  void Fill(TJQueryPanel& panel) {
    TSQLOptions options;
    for (const TSQLOption option : {soQuoteAliases, soBracketJoins, soBracketConditions, soSortByNames}) {
      if (FRandom.Chance(30)) options.Include(option);
    }
    panel.SetSQLOptions(options);
    FillPanel(panel, false);
    if (FRandom.Chance(10)) panel.SetQueryTopClause(FRandom.Chance(50) ? "5" : "(10) PERCENT");
    if (FRandom.Chance(10)) panel.SetQueryLimitClause(FRandom.Chance(50) ? "5" : "10 OFFSET 20");
  }

 private:
  void FillPanel(TJQueryPanel& panel, bool isSubQuery) {
    FPanel = &panel;
    FModel = panel.GetDBStruct();
    FSubQuery = isSubQuery;
    TSQLOptions options = panel.GetSQLOptions();
    if (FRandom.Chance(20)) options.Include(soSelectDistinct);
    panel.SetSQLOptions(options);
    panel.SetActive(true);
    AddColumns();
    FillRoot();
  }

  // ---- Columns ----------------------------------------------------------------------------------------------------

  void AddColumns() {
    const std::size_t count = FSubQuery ? 1 : FRandom.Below(6);
    const bool onlySorts = !FSubQuery && FRandom.Chance(10);
    FPanel->RFields().SetJustSorting(onlySorts);
    for (std::size_t i = 0; i < count; ++i) AddColumn(onlySorts);
  }

  void AddColumn(bool onlySorts) {
    static constexpr std::string_view Captions[] = {"Caption",    "Two words", "Größe", "Дата",
                                                    "a \"b\" ]c", "5 %",       "City"};
    TResultField& column = MakeColumn(onlySorts);
    if (column.GetCaption().empty()) column.GenerateCaption();
    if (FRandom.Chance(40)) column.SetCaption(FRandom.Of(Captions));
    if (FSubQuery) return;
    if (!onlySorts && FRandom.Chance(25)) column.SetHidden(true);
    bool isNew = true;
    for (TResultField& other : FPanel->RFields()) {
      if (&other == &column || other.GetSQLExpr() != column.GetSQLExpr()) continue;
      isNew = false;
      column.SetHidden(false);
      other.SetHidden(false);
    }
    // A number or a text sorts by its place among the columns, or not at all.
    if (!isNew || column.DSFields().empty() || FRandom.Chance(50)) return;
    column.SetSorting(FRandom.Chance(50) ? stAscending : stDescending);
    column.SetSortOrder(static_cast<int>(FRandom.Below(4)));
  }

  TResultField& MakeColumn(bool onlySorts) {
    static constexpr std::string_view Formulas[] = {
        "@1 * 2 - @2", "upper(@1)", "(@1 + @2)",    "nullif(@1, ', ''')", "'a  , b'",
        "sum(@1) - 1", "avg( @1 )", "max(@1 + @2)", "count(distinct @1)", "count(*)"};
    TRFieldList& columns = FPanel->RFields();
    if (FSubQuery || FRandom.Chance(60)) return columns.Add(AnyField(!onlySorts && FRandom.Chance(15)));
    const std::string_view formula = FRandom.Of(Formulas);
    TResultField& column = columns.New();
    column.SetFormula(formula);
    for (const std::string_view place : {"@1", "@2"}) {
      if (formula.find(place) != std::string_view::npos) column.AddDSField(AnyField(false));
    }
    if (!onlySorts || !(column.GetAgregate() || column.DSFields().empty())) return column;
    static_cast<void>(columns.Delete(columns.Count() - 1));
    return columns.Add(AnyField(false));
  }

  TDSField& AnyField(bool aggregate, bool onlyData = false) {
    std::vector<TDSField*> fields;
    for (TDSField& field : FModel->Fields()) {
      if (field.GetIsAggregate() == aggregate && !(onlyData && field.GetFieldKind() == jfkVirtual))
        fields.push_back(&field);
    }
    return fields.empty() ? FModel->GetField(0) : *FRandom.Of(fields);
  }

  // ---- Conditions -------------------------------------------------------------------------------------------------

  void FillRoot() {
    TFilterBracket& root = FPanel->RootBracket();
    root.SetLinkType(AnyLink());
    FHaving = false;
    FillBracket(root, 0, FRandom.Below(FSubQuery ? 3 : 5));
    FHaving = true;
    if (!AnyField(true).GetIsAggregate() || !FRandom.Chance(30)) return;
    for (std::size_t rows = FRandom.Between(1, 2); rows > 0; --rows) AddRow(root, 1);
    // A second clause is joined to the first by "and".
    root.SetLinkType(fltAll);
  }

  TFilterLinkType AnyLink() {
    static constexpr TFilterLinkType Links[] = {fltAll, fltAll, fltAny, fltAny, fltNone, fltNotAll};
    return FRandom.Of(Links);
  }

  void FillBracket(TFilterBracket& bracket, int level, std::size_t rows) {
    for (; rows > 0; --rows) AddRow(bracket, level + 1);
    const std::size_t count = bracket.GetRowCount();
    // The parameters of sub-queries are numbered behind those of the query, be they on or off.
    if (count > 0 && FPanel->QResult().GetParamCount() == 0 && FRandom.Chance(15))
      bracket.GetRow(FRandom.Below(count)).SetEnabled(false);
  }

  void AddRow(TFilterBracket& bracket, int level) {
    if (level < 5 && FRandom.Chance(25)) {
      TFilterBracket& inner = bracket.AddNewBracket();
      inner.SetLinkType(AnyLink());
      FillBracket(inner, level, FRandom.Below(4));
      // Without a condition of its own, a bracket does not belong to HAVING.
      if (FHaving) AddCondition(inner);
      return;
    }
    TDSConditionList& predefined = FModel->Conditions();
    if (!FHaving && predefined.Count() > 0 && FRandom.Chance(10)) {
      FillValues(FPanel->AddCustomCondition(bracket, predefined[FRandom.Below(predefined.Count())]));
    } else if (FPanel->GetAllowSQLFragments() && FRandom.Chance(10)) {
      AddFragment(bracket);
    } else {
      AddCondition(bracket);
    }
  }

  void AddFragment(TFilterBracket& bracket) {
    static constexpr std::string_view Rows[] = {"# <> # * 2", "not # || # like 'x'", "# in (select y from z)",
                                                "exists (select 1 from z where z.y = 'a;b')", "#"};
    static constexpr std::string_view HavingRows[] = {"sum(#) > 10 * #", "not min(#) = max(#)"};
    std::string sql;
    for (const char c : FHaving ? FRandom.Of(HavingRows) : FRandom.Of(Rows)) {
      sql += c == '#' ? AnyField(false, true).GetSQLExpr() : std::string(1, c);
    }
    FPanel->AddSQLFragment(bracket, sql).SetHaving(FHaving);
  }

  void AddCondition(TFilterBracket& bracket) {
    TDSField& field = AnyField(FHaving);
    TSimpleCond& row = FPanel->AddCondition(bracket, field);
    TDSOperator& op = *FRandom.Of(field.Operators());
    row.SetOperator(op);
    if (op.GetValueKind() != vkSubQuery) {
      FillValues(row);
    } else if (FSubQuery) {
      row.SetOperator(*FModel->OperatorByName("IsNull"));
    } else {
      AddSubQuery(row);
    }
  }

  void AddSubQuery(TSimpleCond& row) {
    TJQueryPanel inner;
    inner.SetDBStruct(FModel);
    inner.SetFormatSettings(FPanel->GetFormatSettings());
    inner.SetAllowSQLFragments(FPanel->GetAllowSQLFragments());
    // The statement does not tell how sub-queries differ from it in style.
    TSQLOptions options = FPanel->GetSQLOptions();
    options.Exclude(soSelectDistinct);
    inner.SetSQLOptions(options);
    TQueryMaker(FRandom).FillPanel(inner, true);
    TStrings lines;
    inner.SaveToStrings(lines);
    row.SetSubQuery(lines);
    row.SetSubQueryOptions(inner.GetSQLOptions());
  }

  // ---- Values -----------------------------------------------------------------------------------------------------

  void FillValues(TFilterCond& row) {
    const bool hasPattern = row.GetSQLExpr().find('%') != std::string::npos;
    for (int index = 1; index <= row.GetValueCount(); ++index) {
      if (!hasPattern && FRandom.Chance(10)) {
        row.SetValueIsParam(index, true);
        if (FRandom.Chance(50)) row.GetParam(index)->SetParamName(FRandom.Chance(50) ? "Since" : "x_1");
      } else if (row.GetValueKind(index) == vkList) {
        std::vector<std::string> items;
        for (std::size_t count = FRandom.Between(1, 4); count > 0; --count) {
          items.push_back(AnyValue(row.GetValueType(index)));
        }
        row.SetValue(index, ComposeCommaText(items));
      } else {
        row.SetValue(index, AnyValue(row.GetValueType(index)));
      }
    }
  }

  std::string AnyValue(TFieldType type) {
    static constexpr std::string_view Texts[] = {
        "",       "Linz",     "O'Hara", "''",   "100%",    "%",  "50% of it", "a_b",        "_",      " ends ",
        "a\\b\\", "--",       "/*",     "*/ x", ";",       ":x", "?",         "@1",         "@f",     "a,b",
        "a\"b",   "(a",       "not",    "null", "a and b", "5",  "1.50",      "2024-01-31", "Straße", "ÄRGER",
        "Дом",    "select 1", "a\r\nb", "*x*",  "[a]",     "`",  "\t"};
    static constexpr std::string_view Wholes[] = {"", "0", "1", "32767", "-1", "-32768"};
    static constexpr std::string_view Numbers[] = {"0", "-1", "12.25", "-0.5", "1000000", "1.50", "0.1"};
    static constexpr std::string_view Days[] = {"45678", "36526", "1", "-1000", "73050"};
    static constexpr std::string_view Times[] = {"0", "0.5", "0.25", "0.123456", "0.999988425925926"};
    if (TextFieldTypes.Contains(type)) return std::string(FRandom.Of(Texts));
    if (type == ftBoolean) return FRandom.Chance(50) ? "True" : "0";
    if (type == ftWord) return std::string(Wholes[FRandom.Below(4)]);
    if (IntegerFieldTypes.Contains(type)) return std::string(FRandom.Of(Wholes));
    if (FloatFieldTypes.Contains(type)) {
      const char separator = FRandom.Chance(50) ? FPanel->GetFormatSettings().DecimalSeparator : '.';
      return ReplaceStr(FRandom.Of(Numbers), ".", std::string(1, separator));
    }
    if (type == ftTime) return std::string(FRandom.Of(Times));
    std::string day(FRandom.Of(Days));
    if (type != ftDate && day.front() != '-') day += FRandom.Of(Times).substr(1);
    return day;
  }

  TRandom& FRandom;
  TJQueryPanel* FPanel = nullptr;
  TJCustomDBStructure* FModel = nullptr;
  bool FSubQuery = false, FHaving = false;
};

}  // namespace tolvi
