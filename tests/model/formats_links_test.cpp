#include <memory>
#include <string>

#include <gtest/gtest.h>

#include <tolvi/model/dbstruc.h>

namespace tolvi {
namespace {

std::string Quoted(const TSQLFormats& formats, std::string_view name) {
  std::string text = "x";
  formats.AppendQuoted(text, name);
  return text;
}

TEST(SQLFormats, QuoteNamesWithTheClosingSymbolDoubled) {
  TSQLFormats formats;
  EXPECT_EQ(Quoted(formats, "a\"b"), "x\"a\"\"b\"");
  formats.SetQuoteSymbol1('[');
  formats.SetQuoteSymbol2(']');
  EXPECT_EQ(Quoted(formats, "[a]"), "x[[a]]]");
  formats.SetQuoteSymbol1('\0');
  formats.SetQuoteSymbol2('\0');
  EXPECT_EQ(Quoted(formats, "a b"), "xa b");
}

TEST(SQLFormats, QuoteSwitchesFollowTheQuotedTypes) {
  TSQLFormats formats;
  EXPECT_TRUE(formats.GetQuoteBool() && formats.GetQuoteDate());
  formats.SetQuoteDate(false);
  EXPECT_EQ(formats.GetQuotedTypes(), TextFieldTypes + TFieldTypes{ftBoolean});
  formats.SetQuoteBool(false);
  formats.SetQuoteDate(true);
  EXPECT_EQ(formats.GetQuotedTypes(), TextFieldTypes + DateFieldTypes);
}

TEST(SQLFormats, AssignmentCopiesEverythingAndTellsOnce) {
  int changes = 0;
  TSQLFormats target([&] { ++changes; });
  TSQLFormats source;
  source.SetLowerFunc("lcase");
  source.SetUseAsInFrom(true);
  source.SetListFunction("group_concat(@1)");
  target = source;
  target = source;
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(target, source);
  target.SetLowerFunc("lcase");
  target.SetTrueValue("1");
  EXPECT_EQ(changes, 2) << "the target still tells its own owner";
  TDMOptions options([&] { ++changes; });
  TDMOptions other;
  other.SetDefaultDatabase("Main");
  options = other;
  options = other;
  EXPECT_EQ(changes, 3);
}

class Links : public testing::Test {
 protected:
  Links() {
    model.AddTable("Orders", "Orders placed");
    model.AddTable("Customer", "Customers");
    model.AddTable("Order Details", "Lines");
    model.GetTable(1).SetTableAlias("c");
  }
  TDSLink& Add(std::string_view expr, TDSLinkType linkType = ltInner) {
    return model.GetLink(model.AddLinkByExpr(expr, linkType));
  }
  std::string ErrorOf(std::string_view expr, TDSLinkType linkType = ltInner) {
    const std::size_t count = model.GetLinkCount();
    try {
      model.AddLinkByExpr(expr, linkType);
    } catch (const EJDBStructError& error) {
      EXPECT_EQ(model.GetLinkCount(), count);
      return std::to_string(error.ErrorCode()) + ": " + error.what();
    }
    return "no error";
  }
  TJDBStructure model;
};

TEST_F(Links, WriteTheirConditionInBothNotations) {
  TDSLink link(model.GetTable(0), model.GetTable(1));
  link.AddPair("CustNo", "=", "fld:No");
  link.AddPair("val:1", "<", "Kind");
  EXPECT_EQ(link.GetSQLExpr(), "Orders.CustNo = c.No and 1 < c.Kind");
  EXPECT_EQ(link.GetOracleSQLExpr(), link.GetSQLExpr());
  link.SetLinkType(ltOuterLeft);
  EXPECT_EQ(link.GetOracleSQLExpr(), "Orders.CustNo = c.No (+) and 1 < c.Kind (+)");
  link.SetLinkType(ltOuterRight);
  EXPECT_EQ(link.GetOracleSQLExpr(), "Orders.CustNo (+) = c.No and 1 < c.Kind");
  link.SetQuoteFields(true);
  EXPECT_EQ(link.GetDisplayName(), "Orders placed -> Customers: Orders.\"CustNo\" = c.\"No\" and 1 < c.\"Kind\"");
  link.SetLinkType(ltOuterFull);
  try {
    link.GetOracleSQLExpr();
    FAIL();
  } catch (const EJQueryPanelError& error) {
    EXPECT_STREQ(error.what(),
                 "The full outer join of tables \"Orders\" and \"Customer\" cannot be written with \"(+)\": choose "
                 "another SQL syntax, or a left, right or inner join");
  }
}

TEST_F(Links, KnowTheirEndsAndTellOfChanges) {
  auto owned = std::make_unique<TDSLink>(model.GetTable(0), model.GetTable(1));
  owned->SetFields1({"A", "B"});
  owned->SetFields2({"A", "B"});
  TDSLink& link = model.GetLink(model.AddLinkByRef(std::move(owned)));
  EXPECT_EQ(link.GetOperators(), (TStrings{"=", "="}));
  bool left = false;
  EXPECT_TRUE(link.ContainsTableEx(model.GetTable(0), left) && left);
  EXPECT_TRUE(link.ContainsTableEx(model.GetTable(1), left) && !left);
  EXPECT_FALSE(link.ContainsTableEx(model.GetTable(2), left));
  int changes = 0;
  model.OnChange = [&](TJCustomDBStructure&) { ++changes; };
  link.SetOperators({"=", "<"});
  link.SetOperators({"=", "<"});
  link.SetLinkType(ltOuterLeft);
  EXPECT_EQ(changes, 2);
}

TEST_F(Links, AreMadeOfTheConditionsThatLinksWrite) {
  EXPECT_EQ(Add("orders.CustNo=Customer.No").GetSQLExpr(), "Orders.CustNo = c.No");
  const TDSLink& turned = Add("(c.Kind >= 2) AND (Orders.A <> c.A and c.B > Orders.B and 'x' < orders.C)", ltOuterFull);
  EXPECT_EQ(turned.GetSQLExpr(), "2 <= c.Kind and Orders.A <> c.A and Orders.B < c.B and Orders.C > 'x'");
  EXPECT_EQ(turned.GetLinkType(), ltOuterFull);
  const TDSLink& itself = Add("Orders.Boss = Orders.No and Orders.Level != -1");
  EXPECT_EQ(itself.GetTable1(), itself.GetTable2());
  EXPECT_EQ(itself.GetSQLExpr(), "Orders.Boss = Orders.No and Orders.Level != -1");
  const TDSLink& quoted = Add("Orders.\"No\" = \"Order Details\".\"Order \"\"No\"\"\"");
  EXPECT_TRUE(quoted.GetQuoteFields());
  EXPECT_EQ(quoted.GetFields2(), TStrings{"Order \"No\""});
  EXPECT_EQ(quoted.GetSQLExpr(), "Orders.\"No\" = Order_Details.\"Order \"\"No\"\"\"");
  EXPECT_EQ(Add("Orders.No = Order_Details.\"Order No\"").GetSQLExpr(), "Orders.No = Order_Details.\"Order No\"");
  model.SQLFormats().SetQuoteSymbol1('[');
  model.SQLFormats().SetQuoteSymbol2(']');
  EXPECT_EQ(Add("Orders.[Buyer's -- \"No\"]]] = c.[No]").GetSQLExpr(), "Orders.[Buyer's -- \"No\"]]] = c.[No]");
}

TEST_F(Links, TakeTheirKindFromOuterMarks) {
  for (const TDSLinkType linkType : {ltOuterLeft, ltOuterRight}) {
    TDSLink link(model.GetTable(0), model.GetTable(1));
    link.AddPair("A", "=", "A");
    link.AddPair("B", "<=", "B");
    link.SetLinkType(linkType);
    const TDSLink& read = Add(link.GetOracleSQLExpr());
    EXPECT_EQ(read.GetLinkType(), linkType);
    EXPECT_EQ(read.GetSQLExpr(), link.GetSQLExpr());
  }
  const std::string disagree =
      "0: Join condition, line 1, column 1: the marks \"(+)\" disagree with each other or with the kind of join: mark "
      "every column of one table, or none";
  EXPECT_EQ(ErrorOf("Orders.A = c.A (+) and Orders.B = c.B"), disagree);
  EXPECT_EQ(ErrorOf("Orders.A (+) = c.A (+)"), disagree);
  EXPECT_EQ(ErrorOf("Orders.A (+) = c.A", ltOuterLeft), disagree);
}

TEST_F(Links, SayWhereAConditionIsNoJoin) {
  const struct {
    std::string_view Expr, Message;
  } cases[] = {
      {"Orders.A = Nowhere.A", "4: No such table Nowhere"},
      {" ", "0: The join condition is empty: write it as \"table1.column1 = table2.column2\""},
      {"Orders.A =\n  B", "0: Join condition, line 2, column 3: the column B lacks its table: write it as \"table.B\""},
      {"Orders.A like c.A",
       "0: Join condition, line 1, column 10: found \"like\" where a comparison (= <> != < > <= "
       ">=) is expected"},
      {"Orders.A =", "0: Join condition, line 1, column 10: the text ends where a column or a constant is expected"},
      {"(Orders.A = c.A or", "0: Join condition, line 1, column 17: found \"or\" where \"and\" or \")\" is expected"},
      {"(Orders.A = c.A", "0: Join condition, line 1, column 15: the text ends where \")\" is expected"},
      {"Orders.A = c.A)", "0: Join condition, line 1, column 15: found \")\" where \"and\" or the end is expected"},
      {"Orders.A = 'x", "0: Join condition, line 1, column 12: found \"'x\" where a column or a constant is expected"},
      {"1 = 1", "0: Join condition, line 1, column 1: both sides are constants: compare a column with one"},
      {"Orders.A = 1",
       "0: Join condition, line 1, column 1: no comparison joins two tables: add one such as "
       "\"table1.column1 = table2.column2\""},
      {"Orders.A = c.A and Orders.B = Order_Details.B",
       "0: Join condition, line 1, column 20: the comparison does not have one column of table \"Orders\" and one of "
       "table \"Customer\": a link joins these two"},
  };
  for (const auto& [expr, message] : cases) EXPECT_EQ(ErrorOf(expr), message) << expr;
}

}  // namespace
}  // namespace tolvi
