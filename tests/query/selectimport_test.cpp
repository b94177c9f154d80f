#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "support/models.h"
#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/text.h>
#include <tolvi/query/explain.h>
#include <tolvi/query/querpnl.h>

namespace tolvi {
namespace {

/// Imports statements faithfully into a panel on the model of orders, in which Customers also stand as "Payers".
class SelectImport : public testing::Test {
 protected:
  SelectImport() {
    TDSTable& payers = model->GetTable(model->AddTable("Customers", "Payers"));
    payers.SetTableAlias("Payers");
    model->AddField(jfkData, "Company", "Payer", &payers);
    model->AddField(jfkData, "PayerNo", "Payer no", model->TableByName(tnAlias, "Orders"));
    model->AddLinkByExpr("Orders.PayerNo = Payers.CustNo", ltOuterLeft);
    model->AddOperator("EqualAnyCase", "is", "@f = '@1'", "", GeneralFieldTypes);
    model->OperatorByName("EqualAnyCase")->SetCaseInsensative(true);
    model->AddOperator("InYear", "is in the year", "extract(year from @f) = @1", "", {ftDate});
    model->OperatorByName("InYear")->SetExprType(ftInteger);
    panel.SetDBStruct(model.get());
    panel.SetActive(true);
  }

  /// The statement of the query in one line, without the brackets round all conditions; warnings and errors behind "!".
  std::string Import(std::string_view sql, bool fragments = false, bool approximate = false) {
    panel.SetAllowSQLFragments(fragments);
    std::string result;
    try {
      TSQLImportOptions options;
      options.Faithful = true;
      options.Approximate = approximate;
      panel.ParseSQL(sql, options);
      result = panel.GetQueryText();
    } catch (const ESQLImportError& error) {
      return "! " + error.Message();
    }
    for (const std::string_view pair : {"\r\n", "\r", "\n"}) result = ReplaceStr(result, pair, " ");
    while (result.find("  ") != std::string::npos) result = ReplaceStr(result, "  ", " ");
    for (const TImportWarning& warning : panel.ImportWarnings()) result += " ! " + warning.Message();
    return result;
  }
  /// What stands behind WHERE for a condition on customers and their orders.
  std::string Where(std::string_view condition, bool fragments = false) {
    const std::string sql =
        Import("select Company from Customers c join Orders o on o.CustNo = c.CustNo where " + std::string(condition),
               fragments);
    const std::size_t at = sql.find(" WHERE ");
    return at == std::string::npos ? sql : sql.substr(at + 7);
  }
  std::string Sentences() const { return Explain(panel).Joined("|"); }

  std::unique_ptr<TJDBStructure> model = OrdersModel();
  TJQueryPanel panel;
};

TEST_F(SelectImport, KeepsConditionsByTheOperatorsThatWriteThem) {
  const std::pair<std::string_view, std::string_view> cases[] = {
      {"City not like '%a%'", "( not(Customers.City like '%a%') )"},
      {"not City not in ('a','b')", "( Customers.City in ('a','b') )"},
      {"Total not between 1 and 2.50", "( NOT (Orders.Total between 1 and 2.50) )"},
      {"City is not null", "( NOT ( Customers.City is null ) )"},
      {"100 >= Total", "( Orders.Total <= 100 )"},
      {"(((c.City) = 'O''Hara')) /* who */", "( Customers.City = 'O''Hara' )"},
      {"lower(City) = lower('Linz') and LOWER(City) = 'wien'",
       "( LOWER(Customers.City) = LOWER('Linz') AND LOWER(Customers.City) = LOWER('wien') )"},
      {"extract(year from SaleDate) = 2025", "( extract(year from Orders.SaleDate) = 2025 )"},
      {"SaleDate >= '2025-01-31' and ShipDate is null",
       "( Orders.SaleDate >= '2025-01-31' AND Orders.ShipDate is null )"},
      {"o.SaleDate between '2025-01-01' and '2025-12-31'", "( Orders.SaleDate between '2025-01-01' and '2025-12-31' )"},
      {"City like :Pattern or City in (:Cities)", "( Customers.City like :Pattern OR Customers.City in (:Cities) )"},
      {"not (City = 'a' or not (City = 'b' and Total > 1))",
       "NOT ( Customers.City = 'a' OR NOT ( Customers.City = 'b' AND Orders.Total >1 ) )"},
      {"c.CustNo in (select CustNo from Orders where Total > 5)",
       "( Customers.CustNo in (SELECT Orders.CustNo FROM Orders WHERE ( Orders.Total >5 )) )"},
  };
  for (const auto& [condition, expected] : cases) EXPECT_EQ(Where(condition), expected) << condition;
}

TEST_F(SelectImport, KeepsOtherConditionsAsSQLWhereThatIsAllowed) {
  const std::pair<std::string_view, std::string_view> cases[] = {
      {"City <> Company", "( Customers.City <> Customers.Company )"},
      {"not o.Total * 2 > 5 + c.CustNo", "( not Orders.Total * 2 > 5 + Customers.CustNo )"},
      {"City = 'x' collate nocase", "( Customers.City = 'x' collate nocase )"},
      {"City = 5", "( Customers.City = 5 )"},
      {"Total = '5'", "( Orders.Total = '5' )"},
      {"ShipDate < '2025-01-01'", "( Orders.ShipDate < '2025-01-01' )"},
      {"City like 'a_c'", "( Customers.City like 'a_c' )"},
      {"case when\"c\".City='a'then\"o\".\"Total\"else 0 end > 5",
       "( case when Customers.City='a'then Orders.Total else 0 end > 5 )"},
      {"lower(select y.City from Payers y) = 'x'", "( lower(select y.City from Payers y) = 'x' )"},
      {"x = (select max(y.Total) from Orders y)", "( x = (select max(y.Total) from Orders y) )"},
      {"lower(City) = 'Linz'", "( lower(Customers.City) = 'Linz' )"},
      {"c.CustNo in (select o.CustNo from Orders x)", "( Customers.CustNo in (select Orders.CustNo from Orders x) )"},
      {"not exists (select * from Products where Products.PartNo = o.OrderNo and o.Total in (select o.y from z o))",
       "( not exists (select * from Products where Products.PartNo = Orders.OrderNo and Orders.Total in (select o.y "
       "from "
       "z o)) )"},
  };
  for (const auto& [condition, expected] : cases) {
    EXPECT_EQ(Where(condition).substr(0, 1), "!") << condition;
    EXPECT_EQ(Where(condition, true), expected) << condition;
  }
}

TEST_F(SelectImport, KeepsColumnsSortingAndGroups) {
  const std::pair<std::string_view, std::string_view> cases[] = {
      {"select distinct c.City Town, upper(Company) as \"Of whom\" from Customers as c order by 2 desc, Town limit 5 "
       "offset 10",
       "SELECT DISTINCT Customers.City as \"Town\", upper(Customers.Company) as \"Of whom\" FROM Customers ORDER BY 2 "
       "DESC, 1 ASC LIMIT 5 offset 10"},
      {"select top 3 Company from Customers order by City",
       "SELECT TOP 3 Customers.Company FROM Customers ORDER BY "
       "Customers.City ASC"},
      {"select * from Customers t order by length(t.City) desc",
       "SELECT * FROM Customers ORDER BY length(Customers.City) DESC"},
      {"select t.* from Products t", "SELECT * FROM Products"},
      {"select count ( * ) n from Orders", "SELECT count( * ) as n FROM Orders"},
      // No alias is reserved by SQL, or hides a name that the model does not know.
      {"select (null), -Town from Customers order by Town",
       "SELECT (null) as Column_1, -Town as Column_2 FROM Customers ORDER BY Town ASC"},
      {"select Customers.Town from Customers order by Town",
       "SELECT Customers.Town as Town FROM Customers ORDER BY 1 ASC"},
      {"select City, count(distinct Company) as n, Active from Customers group by Active, 1 having n > 1 order by n",
       "SELECT Customers.City, count(distinct Customers.Company) as n, Customers.Active FROM Customers GROUP BY "
       "Customers.City, Customers.Active HAVING ( count(distinct Customers.Company) > 1 ) ORDER BY 2 ASC"},
      {"select City from Customers group by City, Active",
       "SELECT Customers.City FROM Customers GROUP BY Customers.City, Customers.Active"},
      {"select p.Description, sum(d.Qty) s from Products p, \"Order Details\" d where d.PartNo = p.PartNo group by "
       "p.Description having sum(d.Qty) > 5 and not sum(d.Qty) in (7, 8)",
       "SELECT Products.Description, sum(Order_Details.Qty) as s FROM Products INNER JOIN \"Order Details\" "
       "Order_Details "
       "ON Order_Details.PartNo = Products.PartNo GROUP BY Products.Description HAVING ( sum(Order_Details.Qty) >5 AND "
       "NOT (sum(Order_Details.Qty) in (7,8)) )"},
  };
  for (const auto& [sql, expected] : cases) {
    panel.SetSQLOptions({});
    EXPECT_EQ(Import(sql, true), expected) << sql;
  }
  EXPECT_EQ(Import("select Total from Orders order by SaleDate, OrderNo desc"),
            "SELECT Orders.Total FROM Orders ORDER BY Orders.SaleDate ASC, Orders.OrderNo DESC");
  EXPECT_TRUE(panel.RFields()[1].GetHidden());
  EXPECT_EQ(panel.RFields()[2].GetSortOrder(), 2);
}

TEST_F(SelectImport, TakesTablesByTheLinksOfTheModel) {
  const std::pair<std::string_view, std::string_view> cases[] = {
      // A table that nothing else needs, and one that stands twice.
      {"select c.Company from Customers c inner join Orders o using (CustNo)",
       "SELECT Customers.Company FROM Customers INNER JOIN Orders ON Orders.CustNo = Customers.CustNo"},
      {"select a.Company, b.Company as p from Orders o left join main.Customers b on b.CustNo = o.PayerNo, Customers a "
       "where o.CustNo = a.CustNo",
       "SELECT Customers.Company, Payers.Company as p FROM Customers INNER JOIN Orders ON Orders.CustNo = "
       "Customers.CustNo LEFT OUTER JOIN Customers Payers ON Orders.PayerNo = Payers.CustNo"},
      // More than the link after ON.
      {"select o.Total from Orders o join Customers c on (c.CustNo = o.CustNo and c.City = 'Linz')",
       "SELECT Orders.Total FROM Orders INNER JOIN Customers ON Orders.CustNo = Customers.CustNo WHERE ( "
       "Customers.City = 'Linz' )"},
      // In another order where that says the same, and held in order where it does not.
      {"select p.Company from Customers p right join Orders o on o.PayerNo = p.CustNo",
       "SELECT Payers.Company FROM Customers Payers RIGHT OUTER JOIN Orders ON Orders.PayerNo = Payers.CustNo"},
      {"select * from Orders, Customers where Customers.CustNo = Orders.CustNo and City = 'x'",
       "SELECT * FROM Orders INNER JOIN Customers ON Orders.CustNo = Customers.CustNo WHERE ( Customers.City = 'x' )"},
  };
  for (const auto& [sql, expected] : cases) EXPECT_EQ(Import(sql), expected) << sql;
}

TEST_F(SelectImport, RefusesWhatAQueryCannotSay) {
  const std::pair<std::string_view, std::string_view> cases[] = {
      {"select x from Nowhere",
       "! Line 1, column 15: the model has no table \"Nowhere\": add it to the model, or take it out of the statement"},
      {"select\r\n  z.Company from Customers c", "! Line 2, column 3: \"z\" is no table of the statement"},
      {"select CustNo from Orders o join Customers c on o.CustNo = c.CustNo",
       "! Line 1, column 8: \"CustNo\" is a column of \"Orders\" and of \"Customers\": write its table before it"},
      {"select 1 from Products a, Products b",
       "! Line 1, column 27: the statement has the table \"Products\" more often than the model: give the model "
       "another "
       "table \"Products\" with an alias of its own"},
      {"select Company from Customers where City = ?",
       "! Line 1, column 44: no operator of the model takes a parameter here: compare a field with it, as an operator "
       "of "
       "the model does"},
      {"select Company, :P from Customers", "! Line 1, column 17: a column cannot hold a parameter"},
      {"select Company as a, City as A from Customers",
       "! Line 1, column 30: a query would call this column \"A_2\": choose another alias, of which there is no second "
       "one"},
      {"select City, count(*) from Customers",
       "! Line 1, column 8: a query with aggregates groups by every other column, the statement not by "
       "\"Customers.City\": add it to GROUP BY"},
      {"select 0, City, count(*) from Customers group by 1, 2",
       "! Line 1, column 8: \"0\" would be the number of a column in the GROUP BY of the query: leave it out"},
      {"select Company from Customers order by 2", "! Line 1, column 40: there is no column 2 in the select list"},
      {"select c.Company from Customers c left join Orders o on o.CustNo = c.CustNo",
       "! Line 1, column 23: outer joins differ: the links of the model join these tables in another way, or in "
       "another "
       "direction"},
      {"select c.Company from Customers c join Products p on p.PartNo = c.CustNo",
       "! Line 1, column 23: the model joins these tables through \"Orders\", which the statement does not have: add "
       "it "
       "to the statement, or a link between them to the model"},
      {"select c.Company from Customers c join Orders o on o.OrderNo = c.CustNo",
       "! Line 1, column 23: the query joins on customers.custno = orders.custno by a link of the model, the statement "
       "does not"},
      {"select c.City., Company from Customers c", "! Line 1, column 14: A name is missing behind the point"},
      {"select c.*, 1 from Customers c",
       "! Line 1, column 8: a query names its columns: write those of the table instead of \"*\""},
  };
  for (const auto& [sql, expected] : cases) EXPECT_EQ(Import(sql, true), expected) << sql;
  EXPECT_EQ(Import("select Company from Customers where CustNo in (select o.CustNo from Orders o where o.Total > z.y)"),
            "! Line 1, column 94: \"z\" is no table of the statement");
  EXPECT_EQ(
      Import("select Company from Customers where City = Company"),
      "! Line 1, column 37: no field and operator of the model say this: allow SQL in queries to keep it as it is, "
      "or give the model a field, an operator or a condition for it");
}

TEST_F(SelectImport, KeepsTheOldQueryWhenItRefuses) {
  panel.SetSQLOptions({soSortByNames});
  Import("select distinct City as \"My town\" from Customers where City = :Town order by Company limit 3");
  const std::string text = panel.SaveToText();
  int changes = 0;
  panel.OnChange = [&changes](TJQueryPanel&) { ++changes; };
  EXPECT_EQ(Import("select Company from Customers where City = 'a' union select 1").substr(0, 1), "!");
  EXPECT_EQ(Import("select top 5 Company from Customers where City = Company").substr(0, 1), "!");
  EXPECT_EQ(panel.SaveToText(), text);
  EXPECT_TRUE(panel.GetActive());
  EXPECT_EQ(changes, 0);
  panel.SetActive(false);
  Import("select Company from Customers");
  EXPECT_FALSE(panel.GetActive());
  EXPECT_EQ(panel.GetQueryLimitClause(), "");
}

TEST_F(SelectImport, RefusesWhatDatabasesReadInDifferentWays) {
  const std::pair<std::string_view, std::string_view> cases[] = {
      {"select @1 from Customers",
       "\"@\" stands for fields in the formulas of a query: make a field of the model of this "
       "expression"},
      {"select upper(Company) as City, count(*) n from Orders, Customers where Orders.CustNo = Customers.CustNo group "
       "by "
       "upper(Company) having PayerNo > 1",
       "no error"},
      {"select Total + 1 as Description, count(*) n from Orders group by Description",
       "\"Description\" is an alias here and may be a column of the database, too: give the column another alias"},
      {"select Qty as a, OrderNo as b from \"Order Details\" order by a collate nocase",
       "an alias with a collation: sort by the expression itself"},
      {"select City 'Town' from Customers", "a value follows another one: an alias stands after AS"},
      {"select `City` from Customers",
       "names stand between \" and \" in this database, as the formats of the model say"},
      {"select * from Customers join Orders using (CustNo)",
       "\"*\" shows the columns after USING once, a query twice: write the columns"},
      {"select Company from Customers order by 1 + 1", "a constant sorts nothing: leave it out"},
      {"select City from Customers a where exists (select 1 from Orders b where exists (select 1 from Products p where "
       "p.PartNo = a.CustNo) union select 1 from Products a)",
       "the model calls this table \"Customers\", as the sub-query calls one of its own: give that one an alias"},
      {"select Company from Customers a where CustNo in (select b.CustNo from Orders b where exists (select 1 from "
       "Products p "
       "where p.PartNo = a.CustNo))",
       "no error"},
  };
  for (const auto& [sql, reason] : cases) {
    const std::string result = Import(sql, true);
    const std::size_t at = result.starts_with("! ") ? result.find(": ") : std::string::npos;
    EXPECT_EQ(at == std::string::npos ? "no error" : result.substr(at + 2), reason) << sql;
  }
  EXPECT_EQ(
      Where("c.CustNo in (select b.CustNo from Orders b where exists (select 1 from Products p where p.PartNo = "
            "c.CustNo))",
            true),
      "( Customers.CustNo in (select b.CustNo from Orders b where exists (select 1 from Products p where p.PartNo = "
      "Customers.CustNo)) )")
      << "an outer table two levels up";
  EXPECT_EQ(Where("City is not not null", true), "( Customers.City is not not null )");
  EXPECT_EQ(Where("c.CustNo in ((select CustNo from Orders))", true),
            "( Customers.CustNo in ((select CustNo from Orders)) )");
}

TEST_F(SelectImport, WarnsInsteadWhenApproximating) {
  EXPECT_EQ(
      Import("select Company, x.y from Customers\nwhere City = Company and City = 'a'\nunion select 1", false, true),
      "SELECT Customers.Company, x.y as y FROM Customers WHERE ( Customers.City = 'a' ) ! \"x.y\": kept word for "
      "word: \"x\" is no table of the statement ! \"City = Company\": left out: no field and operator of the model "
      "say this: allow SQL in queries to keep it as it is, or give the model a field, an operator or a condition "
      "for it ! \"union select 1\": left out: UNION: a query is one SELECT; import each of them on its own");
  EXPECT_EQ(Where("c.CustNo in (select z.CustNo from Orders x)", true),
            "( Customers.CustNo in (select z.CustNo from Orders x) )");
  TSQLImportOptions options;
  options.Faithful = options.Approximate = true;
  panel.ParseSQL("select x from Nowhere", options);
  EXPECT_EQ(panel.ImportWarnings().size(), 1U);
}

TEST_F(SelectImport, LetsASubQueryKeepTheTablesItHas) {
  EXPECT_EQ(
      Import("select o.Total from Orders o where exists (select 1 from Orders where Orders.Total > o.Total)", true),
      "! Line 1, column 86: the model calls this table \"Orders\", as the sub-query calls one of its own: give that "
      "one an alias");
  EXPECT_EQ(Import("select o.Total from Orders o where exists (select 1 from Orders x where x.Total > o.Total)", true),
            "SELECT Orders.Total FROM Orders WHERE ( exists (select 1 from Orders x where x.Total > Orders.Total) )");
}

TEST_F(SelectImport, TakesPredefinedConditionsOfSeveralComparisons) {
  for (const auto& [format, sql] : {std::pair("Small or early", "(Orders.Total < 5 or Orders.SaleDate < '2020-01-01')"),
                                    std::pair("Torn apart", "Orders.Total < 6 or Orders.SaleDate < '2020-01-01'"),
                                    std::pair("Large and late", "Orders.Total > 5 and Orders.SaleDate > '2020-01-01'"),
                                    std::pair("Not both", "not (Orders.Total = 1 and Orders.OrderNo = 1)")}) {
    auto condition = std::make_unique<TDSCondition>(model.get());
    condition->SetDisplayFormat(format);
    condition->SetSQLExpr(sql);
    model->Conditions().Add(std::move(condition));
  }
  const auto rows = [this](std::string_view where) {
    Import("select OrderNo from Orders where " + std::string(where));
    const std::string text = Sentences();
    return text.substr(0, text.find("|Result"));
  };
  EXPECT_EQ(rows("Total < 5 or SaleDate < '2020-01-01'"),
            "Choose records where all of the following apply|  Small or early");
  EXPECT_EQ(rows("(Total < 6 or SaleDate < '2020-01-01') and OrderNo = 1"),
            "Choose records where all of the following apply|  any of the following apply|    Total is less than 6|    "
            "Sale date is less than 2020-01-01|  Order no is equal to 1");
  EXPECT_EQ(rows("(Total > 5 and SaleDate > '2020-01-01') or not (Total = 1 and OrderNo = 1)"),
            "Choose records where any of the following apply|  Large and late|  Not both");
}

TEST_F(SelectImport, TakesPredefinedConditionsWithTheirValues) {
  Import("select OrderNo from Orders where SaleDate between '2025-01-01' and :Last or not (ShipDate is null)");
  EXPECT_EQ(Sentences(),
            "Choose records where any of the following apply|  Sold between 2025-01-01 and <Last>|  none of the "
            "following apply|    Orders that have not been shipped|Result fields:|  OrderNo = Order no");
}

}  // namespace
}  // namespace tolvi
