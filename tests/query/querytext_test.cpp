#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "support/models.h"
#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/files.h>
#include <tolvi/foundation/text.h>
#include <tolvi/query/querpnl.h>

namespace tolvi {
namespace {

std::string Fixture(std::string_view name) {
  return ReadFile(std::string(TOLVI_SOURCE_DIR "/tests/query/fixtures/").append(name));
}

class QueryText : public testing::Test {
 protected:
  QueryText() {
    Panel.SetDBStruct(Model.get());
    Other.SetDBStruct(Model.get());
  }

  /// What the panel holds, a line for each column and row.
  static std::string Described(const TJQueryPanel& panel) {
    std::string text = Format("%s, options %d\n", {panel.GetQueryName(), SQLOptionsToInt(panel.GetSQLOptions())});
    for (const TResultField& field : panel.QResult().RFields()) {
      text += Format("%s as %s, %s, %s\n", {field.GetCaption(), field.GetAlias(), field.GetExpression(),
                                            field.GetSorting() == stAscending ? "sorted" : "not sorted"});
    }
    Describe(panel.RootBracket(), text);
    for (const TQueryWarning& warning : panel.LoadWarnings()) {
      text += Format("warning %s: %s\n", {warning.RowID, warning.Text});
    }
    return text;
  }

  static void Describe(const TFilterRow& row, std::string& text) {
    text += Format("%s %s", {row.GetRowID(), row.GetEnabled() ? "on" : "off"});
    if (row.GetRowType() == frtBracket) {
      const auto& bracket = static_cast<const TFilterBracket&>(row);
      text += " " + bracket.GetBracketKind() + "\n";
      for (const TFilterRow& child : bracket) Describe(child, text);
      return;
    }
    const auto& condition = static_cast<const TFilterCond&>(row);
    text += " " + condition.GetValueName(1);
    if (row.GetRowType() == frtSimpleCondition) {
      text += " " + static_cast<const TSimpleCond&>(row).GetDSOperator().GetName();
    }
    for (const int index : {1, 2}) {
      if (condition.GetValue(index).empty()) continue;
      text += " '" + condition.GetValue(index) + "'";
      if (!condition.GetCaption(index).empty()) text += "(" + condition.GetCaption(index) + ")";
      if (const TSQLParam* param = condition.GetParam(index)) {
        text += ":" + param->GetParamName() + " " + param->GetValueFormat();
      }
    }
    text += "\n";
  }

  /// A query that uses everything that a text can hold.
  void BuildRichQuery() {
    Panel.SetQueryName("Late orders");
    Panel.SetDescription({"Orders that were late,", "[Row.1]", " [main]", "[Note]", "", ""});
    Panel.SetUserData({"colour=blue"});
    Panel.SetSQLOptions({soSelectDistinct, soSortByNames});
    Panel.RFields().Add(FieldOf(*Model, "Customers.Company")).SetSorting(stDescending);
    Panel.RFields().AddByExpression("sum({Orders.Total}) / count({Orders.OrderNo})").SetCaption("Mean, \"total\"");
    TFilterBracket& root = Panel.RootBracket();
    TSimpleCond& name =
        Panel.AddSimpleCond(root, FieldOf(*Model, "Customers.Company"), OperatorOf(*Model, "Equal"), "a\\b\r\nc");
    name.SetCaption(1, "two lines");
    TFilterBracket& inner = Panel.AddBracket(root);
    inner.SetLinkType(fltNotAll);
    TSimpleCond& between =
        Panel.AddSimpleCond(inner, FieldOf(*Model, "Total"), OperatorOf(*Model, "Between"), "1.5", "20");
    between.SetValueIsParam(1, true);
    between.GetParam(1)->SetValueFormat("@v%");
    between.SetValueIsParam(2, true);
    between.GetParam(2)->SetParamName("Upper");
    Panel.AddCustomCondition(inner, Model->Conditions()[1]).SetValue(2, "36526");
    TSimpleCond& query =
        Panel.AddSimpleCond(root, FieldOf(*Model, "Orders.CustNo"), OperatorOf(*Model, "InQuery"), "q");
    query.SetSubQuery({"[Main]", "QueryName=A \"b\", c", ""});
    query.SetSubQueryOptions({soQuoteAliases});
    query.SetEnabled(false);
  }

  std::unique_ptr<TJDBStructure> Model = OrdersModel();
  TJQueryPanel Panel, Other;
};

TEST_F(QueryText, OfAnEmptyQueryHoldsEverySection) {
  const std::string text =
      "[Main]\r\nQueryName=\r\nVersion=3.6\r\nOptions=0\r\n\r\n[Description]\r\n\r\n[UserData]\r\n\r\n"
      "[RFields]\r\nCount=0\r\nVersion=3.6\r\nJustSorting=0\r\n\r\n"
      "[Row]\r\nEnabled=1\r\nRowType=1\r\nLinkType=0\r\nRowCount=0\r\n\r\n";
  EXPECT_EQ(Panel.SaveToText(), text);
  Panel.SetSaveSQLOptions(false);
  EXPECT_EQ(Panel.SaveToText(), ReplaceStr(text, "Options=0", "Options="));
  BuildRichQuery();
  Panel.LoadFromText("\n");
  EXPECT_EQ(Described(Panel), ", options 66\n on all\n");
}

TEST_F(QueryText, IsThatOfTheGoldenFileToTheByte) {
  BuildRichQuery();
  EXPECT_EQ(Panel.SaveToText(), Fixture("current.qry"));
  EXPECT_FALSE(Panel.GetModified());
}

TEST_F(QueryText, ReadsBackToTheSameQuery) {
  BuildRichQuery();
  const std::string text = Panel.SaveToText();
  for (const std::string& form : {text, "\xEF\xBB\xBF" + ReplaceStr(text, CrLf, "\n")}) {
    Other.LoadFromText(form);
    EXPECT_EQ(Described(Other), Described(Panel));
    EXPECT_EQ(Other.GetDescription(), Panel.GetDescription());
    EXPECT_EQ(Other.GetUserData(), Panel.GetUserData());
    EXPECT_EQ(Other.SaveToText(), text);
  }
  const auto& query = static_cast<const TFilterCond&>(*Other.RootBracket().LastRow());
  EXPECT_EQ(query.GetHint(1), "[Main]\r\nQueryName=A \"b\", c\r\n");
  EXPECT_TRUE(Other.GetActive());
}

TEST_F(QueryText, KeepsWhichRowsAreOn) {
  const std::string text =
      ReplaceStr(ReplaceStr(Fixture("current.qry"), "Enabled=0", "Enabled=x"), "Enabled=1", "Enabled=0");
  const std::string inverted = ReplaceStr(text, "Enabled=x", "Enabled=1");
  Other.LoadFromText(inverted);
  EXPECT_EQ(Other.SaveToText(), inverted);
  Other.RootBracket().GetRow(0).SetEnabled(true);
  EXPECT_TRUE(Other.RootBracket().GetEnabled());
}

TEST_F(QueryText, IsReadAsItsVersionMeantIt) {
  const struct {
    std::string_view file, described;
  } cases[] = {
      {"unnumbered.qry",
       "First release, options 0\nFirm as FIRM, {Customers.Company}, sorted\n on any\n"
       ".1 off City Equal 'London'\n.2 on Unrecognized field Equal '1'\n.3 on Sold between   and '36526' '36890'\n"
       "warning .2: Unrecognized field \"Fax\"\n"},
      {"v1.2.qry",
       "With parameters, options 2\nSum as SUM_1, sum({Orders.Total}), not sorted\n on alle\n"
       ".1 on Total Between '10':Param1 %@v% '20'\n"},
      {"v1.4.qry",
       "Full names, options 2\nLate as LATE, {Orders.ShipDate} - {Orders.SaleDate}, not sorted\n on none\n"
       ".1 on Order IsNull\n.2 on City StartsWith 'B'\n"},
      {"v2.0.qry",
       "IDs, options 2\nCompany as Company, {Customers.Company}, not sorted\n on not all\n.1 off any\n"
       ".1.1 on Quantity GreaterThan '5'\n"},
      {"v2.1.qry", "Captions, options 2\n on alle\n.1 on Customer no InQuery 'q'(the best customers)\n"},
  };
  for (const auto& each : cases) {
    Panel.LoadFromText(Fixture(each.file));
    EXPECT_EQ(Described(Panel), each.described) << each.file;
    // Written in the current version, it is the same query.
    Other.SetTitle("ttlAll", Panel.GetTitle("ttlAll"));
    Other.LoadFromText(Panel.SaveToText());
    EXPECT_EQ(Described(Other), Described(Panel)) << each.file;
    EXPECT_EQ(Other.SaveToText(), Panel.SaveToText()) << each.file;
  }
}

TEST_F(QueryText, KeepsWhatTheModelLacks) {
  BuildRichQuery();
  std::string text = Panel.SaveToText();
  for (const auto& [from, to] :
       {std::pair("FieldID=2\r\n", "FieldID=-7\r\n"), std::pair("CondID=2\r\n", "CondID=12\r\n"),
        std::pair("Operator=InQuery\r\n", "Operator=Sounds like\r\n")}) {
    text = ReplaceStr(text, from, to);
  }
  Other.LoadFromText(text);
  EXPECT_EQ(Other.SaveToText(), text);
  std::vector<std::string> warnings;
  for (const TQueryWarning& warning : Other.LoadWarnings()) warnings.push_back(warning.RowID + " " + warning.Text);
  EXPECT_EQ(warnings, (std::vector<std::string>{".1 Unrecognized field \"-7\"", ".2.2 Unrecognized condition \"12\"",
                                                ".3 Unrecognized operator \"Sounds like\""}));
  const auto& first = static_cast<const TSimpleCond&>(Other.RootBracket().GetRow(0));
  EXPECT_EQ(&first.GetField(), &Model->GetNullField());
  // Once the model has the operator, the row has it, too.
  Model->AddOperator("Sounds like", "sounds like", "@f sounds '@1'", "", GeneralFieldTypes);
  Panel.LoadFromText(text);
  EXPECT_EQ(Panel.LoadWarnings().size(), 2U);
}

TEST_F(QueryText, TellsOfRowsThatNoCountTakesIn) {
  Panel.LoadFromText(ReplaceStr(Fixture("current.qry"), "RowCount=3", "RowCount=1"));
  ASSERT_EQ(Panel.LoadWarnings().size(), 1U);
  EXPECT_EQ(Panel.LoadWarnings()[0].RowID, ".2");
  EXPECT_EQ(Panel.LoadWarnings()[0].Text, "Section Row.2 lies beyond the row count and was not read");
  Panel.LoadFromText("[Main]\nQueryName=Cut off");
  ASSERT_EQ(Panel.LoadWarnings().size(), 1U);
  EXPECT_EQ(Panel.LoadWarnings()[0].Text, "Can not find section Row");
  Panel.LoadFromText("[Main]\n[RFields]\nCount=1\n[RField1]\nFormula=1\n[RField2]\nFormula=2\n[Row]\nRowCount=0\n");
  ASSERT_EQ(Panel.LoadWarnings().size(), 1U);
  EXPECT_EQ(Panel.LoadWarnings()[0].Text, "RFields: Section RField2 lies beyond the count and was not read");
}

TEST_F(QueryText, HoldsTitlesOnDemand) {
  Panel.SetTitle("ttlAny", "wenigstens eine");
  EXPECT_TRUE(Panel.SaveToText().starts_with("[Main]"));
  Panel.SetSaveTitles(true);
  const std::string text = Panel.SaveToText();
  EXPECT_TRUE(text.starts_with("[Query Panel]\r\nttlFilter=Choose records where @ of the following apply\r\n")) << text;
  EXPECT_NE(text.find("\r\n \r\n[Result Fields Editor]\r\n"), std::string::npos);
  EXPECT_NE(text.find("\r\n\r\n[Main]\r\n"), std::string::npos);
  Other.LoadFromText(text);
  EXPECT_EQ(Other.Titles().Lines(), Panel.Titles().Lines());
  Other.LoadFromText(Fixture("current.qry"));
  EXPECT_EQ(Other.GetTitle("ttlAny"), "wenigstens eine") << "a text without titles leaves them";
}

/// "the query's top, the host's top | the query's limit, the host's limit" as the statement has them.
std::string Clauses(const TJQueryPanel& panel) {
  return Format("%s, %s | %s, %s", {panel.GetQueryTopClause(), panel.GetSQLTopClause(), panel.GetQueryLimitClause(),
                                    panel.GetSQLLimitClause()});
}

TEST_F(QueryText, HoldsTheClausesThatAreTheQuerysOwn) {
  Panel.SetSQLLimitClause("1000; host");
  Panel.SetSQLTopClause("50");
  const std::string without = Panel.SaveToText();
  EXPECT_EQ(without.find("50"), std::string::npos) << "the host's are none of the query";
  Panel.SetQueryTopClause(" ( 5 )PERCENT");
  Panel.SetQueryLimitClause("10  Offset 20");
  EXPECT_TRUE(Panel.GetModified());
  const std::string text = Panel.SaveToText();
  EXPECT_EQ(text, ReplaceStr(without, "Options=0\r\n", "Options=0\r\nTop=(5) PERCENT\r\nLimit=10 Offset 20\r\n"));
  Other.SetSQLLimitClause("7");
  Other.LoadFromText(text);
  EXPECT_EQ(Clauses(Other), "(5) PERCENT, (5) PERCENT | 10 Offset 20, 10 Offset 20");
  EXPECT_EQ(Other.SaveToText(), text);
  // A text that cannot be read changes nothing; one without clauses leaves those of the host.
  EXPECT_THROW(Other.LoadFromText("[Main]\nTop=1\nLimit=2\nOptions=x"), EConvertError);
  EXPECT_EQ(Clauses(Other), "(5) PERCENT, (5) PERCENT | 10 Offset 20, 10 Offset 20");
  Other.LoadFromText(without);
  EXPECT_EQ(Clauses(Other), ",  | , 7");
  Other.LoadFromText(text);
  Other.SetSQLTopClause("");
  EXPECT_EQ(Clauses(Other), ",  | 10 Offset 20, 10 Offset 20") << "what the host sets holds";
  Other.ClearAll();
  EXPECT_EQ(Clauses(Other), ",  | , 7");
  Other.SetQueryLimitClause("3,4");
  EXPECT_EQ(Other.GetQueryLimitClause(), "3, 4");
  Other.SetQueryLimitClause(" ");
  EXPECT_EQ(Clauses(Other), ",  | , 7");
}

TEST_F(QueryText, TakesHarmlessClausesOnly) {
  for (const std::string_view text :
       {"5;", "5 --", "5/**/", "-5", "1.5", "5e1", "(5", "((5))", "5 6", "percent", "5 PERCENT x", "5 with ties", "n",
        "\xEF\xBC\x95", "(select 1)", ":n", "?", "5 offset 6", "5, 6"}) {
    const std::string key = "\": \"" + std::string(text) +
                            "\" is no TOP clause of a query: write a whole number or one "
                            "in brackets, and PERCENT behind it if need be";
    try {
      Panel.LoadFromText("[Main]\nTop=" + std::string(text));
      ADD_FAILURE() << text;
    } catch (const EConvertError& error) {
      EXPECT_EQ(error.Message(), "Line 2, section \"Main\", key \"Top" + key);
    }
  }
  for (const std::string_view text : {"5;", "5 offset", "offset 5", "5,", "5, 6, 7", "5 offset 6 rows", "(5)", "all",
                                      "5 PERCENT", "5\n) or (1=1", "5 for update"}) {
    try {
      Panel.SetQueryLimitClause(text);
      ADD_FAILURE() << text;
    } catch (const EJQueryPanelError& error) {
      EXPECT_EQ(error.Message(), "\"" + std::string(text) +
                                     "\" is no LIMIT clause of a query: write a whole number n, \"n OFFSET m\" or "
                                     "\"n, m\"");
    }
  }
  EXPECT_EQ(Clauses(Panel), ",  | , ");
}

TEST_F(QueryText, ThatCannotBeReadNamesThePlaceAndLeavesTheOldQuery) {
  const std::string main = "[Main]\nVersion=3.6\nOptions=0\n\n";
  const std::string condition = main + "[Row]\nRowType=1\nRowCount=1\n[Row.1]\nRowType=0\nFieldID=1\nOperator=Equal\n";
  const struct {
    std::string text, message;
  } cases[] = {
      {"SELECT 1", "Can not find section Main: the text is no query"},
      {"[Main]\nVersion=abc", "Line 2, section \"Main\", key \"Version\": 'abc' is not a valid version"},
      {"[Main]\nVersion=3.7",
       "Line 2, section \"Main\", key \"Version\": the query was written in version 3.7 of the format; this program "
       "reads versions up to 3.6. Use a newer release of the program, or save the query in version 3.6"},
      {"[Main]\nOptions=many", "Line 2, section \"Main\", key \"Options\": 'many' is not a valid integer value"},
      {main + "[Row]\nRowType=0", "Line 6, section \"Row\", key \"RowType\": '0' is not a valid row type of the root"},
      {main + "[Row]\nRowCount=-1", "Line 6, section \"Row\", key \"RowCount\": '-1' is not a valid row count"},
      {main + "[Row]\nRowCount=4000000000", "Line 6, section \"Row\", key \"RowCount\": Can not find section Row.1"},
      {main + "[Row]\nRowCount=99999999999999999999",
       "Line 6, section \"Row\", key \"RowCount\": '99999999999999999999' is not a valid integer value"},
      {main + "[Row]\nEnabled=perhaps",
       "Line 6, section \"Row\", key \"Enabled\": 'perhaps' is not a valid boolean value"},
      {main + "[Row]\nRowCount=1\n[Row.1]\nRowType=4",
       "Line 8, section \"Row.1\", key \"RowType\": '4' is not a valid row type"},
      {main + "[Row]\nRowCount=1\n[Row.1]\nRowType=0\nFieldID=2147483648",
       "Line 9, section \"Row.1\", key \"FieldID\": '2147483648' is not a valid integer value"},
      {condition + "Param1=1\nPName1=1st; drop",
       "Line 13, section \"Row.1\", key \"PName1\": \"1st; drop\" is no parameter name: use letters A to Z, digits "
       "and \"_\", a letter first"},
  };
  BuildRichQuery();
  for (const auto& each : cases) {
    try {
      Panel.LoadFromText(each.text);
      ADD_FAILURE() << "read: " << each.text;
    } catch (const EException& error) {
      EXPECT_EQ(error.Message(), each.message);
    }
    EXPECT_EQ(Panel.SaveToText(), Fixture("current.qry")) << each.text;
  }
}

TEST_F(QueryText, ReadsBracketsToTheDeepestLevelAndNoFurther) {
  const auto nested = [](int levels) {
    std::string text = "[Main]\nVersion=3.6\n", name = "Row";
    for (int level = 0; level < levels; ++level) {
      text += Format("[%s]\nRowType=1\nRowCount=1\n", {name});
      name += ".1";
    }
    return text + Format("[%s]\nRowType=0\nFieldID=1\nOperator=IsNull\n", {name});
  };
  Panel.LoadFromText(nested(MaxRowLevel));
  Other.LoadFromText(Panel.SaveToText());
  EXPECT_EQ(Other.SaveToText(), Panel.SaveToText());
  const std::string before = Panel.SaveToText();
  for (const int levels : {MaxRowLevel + 1, 3 * MaxRowLevel}) {
    try {
      Panel.LoadFromText(nested(levels));
      ADD_FAILURE();
    } catch (const EJQueryPanelError& error) {
      EXPECT_EQ(error.Message(),
                "Line 3006: brackets are nested deeper than 1000 levels: put the conditions into fewer brackets");
    }
    EXPECT_EQ(Panel.SaveToText(), before);
  }
}

}  // namespace
}  // namespace tolvi
