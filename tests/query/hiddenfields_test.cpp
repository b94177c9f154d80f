// Result columns that are not shown.
#include <string>

#include <gtest/gtest.h>

#include "support/models.h"
#include <tolvi/foundation/text.h>
#include <tolvi/query/explain.h>
#include <tolvi/query/querpnl.h>

namespace tolvi {
namespace {

class HiddenColumns : public testing::Test {
 protected:
  HiddenColumns() {
    panel.SetDBStruct(model.get());
    panel.SetActive(true);
  }
  TResultField& Add(TResultField& column, TSortingType sorting, bool hidden) {
    column.SetSorting(sorting);
    column.SetHidden(hidden);
    return column;
  }
  TResultField& Shown(std::string_view field, TSortingType sorting = stNoSort) {
    return Add(panel.RFields().Add(FieldOf(*model, field)), sorting, false);
  }
  TResultField& Hidden(std::string_view field, TSortingType sorting = stNoSort) {
    return Add(panel.RFields().Add(FieldOf(*model, field)), sorting, true);
  }
  TResultField& HiddenExpr(std::string_view expression, TSortingType sorting = stNoSort) {
    return Add(panel.RFields().AddByExpression(expression), sorting, true);
  }
  /// The statement without the lines of FROM; the tables in their order.
  std::string SQL() {
    panel.BuildQuery();
    TQueryResult& result = panel.QResult();
    std::string sql = result.GetSelectClause();
    if (!result.GetGroupClause().empty()) sql += "|GROUP BY " + result.GetGroupClause();
    if (!result.GetOrderClause().empty()) sql += "|ORDER BY " + result.GetOrderClause();
    return sql;
  }
  std::string Tables() {
    std::string names;
    for (const TResultTable& table : panel.QResult().RTables()) names += table.Table->GetTableAlias() + " ";
    return names;
  }
  std::string Warnings() {
    std::string texts;
    for (const TQueryWarning& warning : panel.QResult().Warnings()) texts += warning.Text + "\n";
    return texts;
  }

  std::unique_ptr<TJDBStructure> model = OrdersModel();
  TJQueryPanel panel;
};

TEST_F(HiddenColumns, SortByTheirExpressionsAndLeaveNoGapInTheNumbers) {
  Hidden("Orders.Total", stDescending);
  Shown("Customers.Company", stAscending);
  HiddenExpr("{Customers.City} || '!'", stAscending).SetSortOrder(-1);
  Shown("Orders.SaleDate", stDescending).SetCaption("Orders");
  EXPECT_EQ(SQL(),
            "SELECT Customers.Company, Orders.SaleDate as Orders|"
            "ORDER BY Customers.City || '!' ASC, Orders.Total DESC, 1 ASC, 2 DESC");
  EXPECT_EQ(Tables(), "Orders Customers ") << "in the order of the columns";
  const TRFieldList& columns = panel.RFields();
  EXPECT_EQ(columns[0].GetNumber() * 100 + columns[1].GetNumber() * 10 + columns[3].GetNumber(), 12);
  EXPECT_EQ(columns[0].GetAlias() + columns[2].GetAlias(), "");
  EXPECT_EQ(columns.GetCaption(), "Company, Orders");
  TStrings captions;
  panel.QResult().GetResFieldCaptions(captions);
  EXPECT_EQ(captions, (TStrings{"Company", "Orders"}));
  panel.RFields()[3].SetCaption("Total");
  EXPECT_EQ(panel.RFields()[3].GetCaption(), "Total 2") << "captions are unique over all columns";
  panel.RFields()[0].SetHidden(false);
  EXPECT_EQ(SQL(),
            "SELECT Orders.Total, Customers.Company, Orders.SaleDate as Total_2|"
            "ORDER BY Customers.City || '!' ASC, 1 DESC, 2 ASC, 3 DESC");
  EXPECT_FALSE(columns.GetShowsAll());
}

TEST_F(HiddenColumns, AreLeftOutOfWhatPeopleSeeButNotOfTheSorting) {
  Shown("Customers.Company");
  Hidden("Orders.Total", stDescending);
  EXPECT_EQ(Explain(panel).Joined("|"),
            "Choose records where all of the following apply|Result fields:|  Company|Sorted fields:|"
            "  Total (Descending)");
  panel.RFields()[0].SetHidden(true);
  EXPECT_EQ(Explain(panel)[2], "  *");
}

TEST_F(HiddenColumns, GroupLikeAnyOther) {
  Shown("Customers.City");
  HiddenExpr("sum({Orders.Total})", stDescending);
  Hidden("Customers.Company");
  EXPECT_EQ(SQL(), "SELECT Customers.City|GROUP BY Customers.City, Customers.Company|ORDER BY sum(Orders.Total) DESC");
  EXPECT_EQ(Warnings(), "");
}

TEST_F(HiddenColumns, AloneShowAllColumns) {
  TResultField& city = Hidden("Customers.City", stAscending);
  panel.SetSQLOptions({soSelectDistinct});
  EXPECT_EQ(SQL(), "SELECT DISTINCT *|ORDER BY Customers.City ASC");
  EXPECT_EQ(Warnings(), "") << "the column is among all";
  EXPECT_EQ(panel.RFields().GetCaption(), "*");
  EXPECT_TRUE(panel.RFields().GetShowsAll());
  city.SetFormula("max(@1)");
  Hidden("Customers.Company");
  EXPECT_EQ(SQL(), "SELECT DISTINCT *|GROUP BY Customers.Company|ORDER BY max(Customers.City) ASC");
  EXPECT_EQ(Warnings(),
            "The column \"City\" sorts without being shown: with DISTINCT, many databases refuse that\n"
            "Sorting by an aggregate groups the rows, although no column is chosen\n");
}

TEST_F(HiddenColumns, ThatSortAreWarnedOfWithDistinct) {
  Shown("Customers.Company", stAscending);
  TResultField& city = Hidden("Customers.City", stAscending);
  SQL();
  EXPECT_EQ(Warnings(), "");
  panel.SetSQLOptions({soSelectDistinct});
  SQL();
  EXPECT_EQ(Warnings(), "The column \"City\" sorts without being shown: with DISTINCT, many databases refuse that\n");
  city.SetSorting(stNoSort);
  SQL();
  EXPECT_EQ(Warnings(), "");
}

TEST_F(HiddenColumns, AreStoredAndCopied) {
  Shown("Customers.Company");
  const std::string without = panel.SaveToText();
  int changes = 0;
  panel.OnChange = [&changes](TJQueryPanel&) { ++changes; };
  Hidden("Customers.City", stDescending);
  panel.RFields()[1].SetHidden(true);
  EXPECT_EQ(changes, 3) << "added, sorted, hidden; not hidden again";
  const std::string text = panel.SaveToText();
  EXPECT_EQ(without.find("Hidden"), std::string::npos);
  EXPECT_NE(text.find("Caption=City\r\nSorting=2\r\nSortOrder=0\r\nHidden=1\r\n\r\n[Row]"), std::string::npos) << text;
  TJQueryPanel other;
  other.SetDBStruct(model.get());
  other.LoadFromText(text);
  EXPECT_EQ(other.GetQueryText(), panel.GetQueryText());
  EXPECT_EQ(other.SaveToText(), panel.SaveToText());
  TRFieldList copy(model.get());
  copy.Assign(panel.RFields());
  EXPECT_EQ(copy.GetCaption(), "Company");
  other.LoadFromText(ReplaceStr(text, "Hidden=1", "Hidden=0"));
  EXPECT_EQ(other.RFields().GetCaption(), "Company, City");
}

}  // namespace
}  // namespace tolvi
