#include <stdexcept>
#include <string>

#include <gtest/gtest.h>

#include "support/models.h"
#include <tolvi/panel/linkeditor.h>

namespace tolvi {
namespace {

/// "error 1.1 3.2: text" for the first side of the first pair and the second side of the third one; 1.0 is its symbol.
std::string Lines(const TLinkFindings& findings) {
  constexpr std::string_view Parts[] = {".1", ".0", ".2"};
  std::string lines;
  for (const TLinkFinding& finding : findings) {
    lines += finding.Severity == csError ? "error" : "warning";
    for (const TLinkSpot& spot : finding.Spots) lines += " " + std::to_string(spot.Pair + 1) += Parts[spot.Part];
    lines += ": " + finding.Text + "\n";
  }
  return lines;
}

class LinkEditor : public testing::Test {
 protected:
  LinkEditor() {
    info.OnFieldsRequest = [this](TJDBInfo&, std::string_view table, TDBFieldList& fields) {
      if (broken) throw std::runtime_error("connection lost");
      if (table == "Orders") fields.Add("OrderNo"), fields.Add("CustNo"), fields.Add("Seller");
      if (table == "Customers") fields.Add("CustNo"), fields.Add("Company");
      if (table == "hr.Products") fields.Add("Code");
    };
  }
  TDSTable& Table(std::string_view alias) { return *model->TableByName(tnAlias, alias); }
  TLinkEditor NewLink(std::string_view table1, std::string_view table2) {
    const TDSLink link(Table(table1), Table(table2));
    return {*model, link};
  }

  bool broken = false;
  TJDBInfo info;
  std::unique_ptr<TJDBStructure> model = OrdersModel();
};

TEST_F(LinkEditor, ChangesALinkOfTheModelAsOneChange) {
  TDSLink& link = model->GetLink(0);
  int changes = 0;
  model->OnChange = [&](TJCustomDBStructure&) { ++changes; };
  TLinkEditor editor(*model, link);
  EXPECT_FALSE(editor.CanChooseTables());
  editor.SetTable(1, Table("Products"));
  editor.AddPair();
  editor.SetSide(1, 0, "val:'open'");
  editor.SetSymbol(1, "<=");
  editor.SetSide(1, 1, "fld:State");
  editor.SetLinkType(ltOuterLeft);
  editor.SetQuoteFields(true);
  model->SQLFormats().SetQuoteSymbol1('[');
  model->SQLFormats().SetQuoteSymbol2(']');
  const std::string condition = "Orders.[CustNo] = Customers.[CustNo] and 'open' <= Customers.[State]";
  EXPECT_EQ(editor.Condition(), condition) << "in the quotes of the model";
  EXPECT_EQ(link.GetSQLExpr(), "Orders.CustNo = Customers.CustNo");
  changes = 0;
  editor.Apply(link);
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(link.GetSQLExpr(), condition);
  EXPECT_EQ(link.GetFields2(), (TStrings{"CustNo", "fld:State"}));

  editor.Swap();
  EXPECT_EQ(editor.Condition(), "Customers.[CustNo] = Orders.[CustNo] and Customers.[State] >= 'open'");
  editor.Apply(link);
  EXPECT_EQ(changes, 2);
  EXPECT_EQ(link.GetTable1(), &Table("Customers"));
  EXPECT_EQ(link.GetLinkType(), ltOuterRight);
  TJDBStructure copy;
  copy.SetStructString(model->GetStructString());
  EXPECT_EQ(copy.FindLink("Orders", "Customers")->GetSQLExpr(), editor.Condition());
}

TEST_F(LinkEditor, OffersColumnsAndTakesThoseOfOneNameTogether) {
  TLinkEditor editor = NewLink("Orders", "Products");
  EXPECT_EQ(editor.Columns(1), (TStrings{"PartNo", "Description", "Price"})) << "those of the model's fields";
  model->SetDatabaseInfo(&info);
  editor.SetTable(1, Table("Customers"));
  EXPECT_EQ(editor.Columns(1), (TStrings{"CustNo", "Company"}));
  editor.SetTable(0, Table("Customers"));
  editor.SetTable(0, Table("Orders"));
  EXPECT_EQ(editor.Columns(0), (TStrings{"OrderNo", "CustNo", "Seller"}));
  for (const std::string_view column : {"custno", "OrderNo", "val:1"}) {
    editor.AddPair();
    editor.SetSide(editor.Pairs().size() - 1, 0, column);
  }
  editor.SetSide(0, 0, "Seller");
  EXPECT_EQ(editor.Pairs(),
            (std::vector<TLinkPair>{{"Seller", "=", "CustNo"}, {"OrderNo", "=", ""}, {"val:1", "=", ""}}));
  editor.MovePair(2, 0);
  editor.DeletePair(1);
  editor.MovePair(0, 2);
  editor.DeletePair(2);
  EXPECT_EQ(editor.Pairs(), (std::vector<TLinkPair>{{"val:1", "=", ""}, {"OrderNo", "=", ""}}));
  Table("Products").SetDatabaseName("hr");
  EXPECT_EQ(NewLink("Orders", "Products").Columns(1), TStrings{"Code"});
  Table("Customers").SetDisplayName("Orders");
  EXPECT_EQ(editor.TableName(0) + ", " + editor.TableName(1), "Orders (Orders), Orders (Customers)");
}

TEST_F(LinkEditor, TellsWhatIsWrong) {
  model->SetDatabaseInfo(&info);
  struct TCase {
    std::string_view table1, table2;
    std::vector<TLinkPair> pairs;
    std::string expected;
  };
  const std::string late = "warning: the two tables have a link before this one: joins always use that\n";
  for (const TCase& row : std::vector<TCase>{
           {"Orders", "Products", {}, "error: the link has no columns\n"},
           {"Orders", "Customers", {{"fld:\"Seller\"", "=", "company"}}, late},
           {"Customers",
            "Orders",
            {{"City", " < ", "Seller"}},
            "warning 1.1: the catalogue knows no column \"City\" of table \"Customers\"\n" + late},
           {"Orders",
            "Products",
            {{"Seller", "=>", "Seller"}},
            "warning 1.0: \"=>\" is no comparison symbol\n"
            "warning 1.2: the model has no field on column \"Seller\" of table \"Products\"\n"},
           {"Orders",
            "Products",
            {{"", "=", "val: "}, {"fld:", "=", "Price"}, {"Seller", "=", "PartNo"}},
            "error 1.1 2.1: a column name is empty\nerror 1.2: a constant is empty\n"},
           {"Orders",
            "Products",
            {{"val:1", "=", "val:1"}, {"Seller", "=", "PartNo"}, {"SELLER", "= ", "fld:PartNo"}},
            "error 1.1 1.2: both sides are constants\nwarning 3.1 3.2: the pair stands here twice\n"},
           {"Orders",
            "Products",
            {{"Seller", "=", "PartNo"}, {"Seller", "<", "PartNo"}, {"val:A", "=", "Price"}, {"val:a", "=", "Price"}},
            ""},
           {"Orders",
            "Products",
            {{"val:1", "=", "Price"}},
            "warning: no pair compares columns of both tables: every row is joined with all that fit the constants\n"},
           {"Orders",
            "Orders",
            {{"Seller", "=", "seller"}},
            "error 1.1 1.2: a column is compared with itself\n"
            "warning: no statement joins a table with itself: add the table again, under another alias\n"},
       }) {
    TDSLink link(Table(row.table1), Table(row.table2));
    for (const TLinkPair& pair : row.pairs) link.AddPair(pair.Side1, pair.Symbol, pair.Side2);
    const TLinkEditor editor(*model, link);
    EXPECT_EQ(Lines(editor.Findings()), row.expected) << editor.Condition();
  }
  EXPECT_EQ(Lines(TLinkEditor(*model, model->GetLink(0)).Findings()), "") << "it is the first one";
  broken = true;
  info.ForgetFields();
  EXPECT_EQ(Lines(TLinkEditor(*model, model->GetLink(0)).Findings()),
            "warning: the columns of table \"Orders\" cannot be read: connection lost\n"
            "warning: the columns of table \"Customers\" cannot be read: connection lost\n");
}

TEST_F(LinkEditor, MendsListsOfDifferentLengths) {
  TDSLink& link = model->GetLink(0);
  link.SetFields2({"CustNo", "Company"});
  link.SetOperators(TStrings());
  TLinkEditor editor(*model, link);
  EXPECT_EQ(editor.Pairs(), (std::vector<TLinkPair>{{"CustNo", "=", "CustNo"}, {"", "=", "Company"}}));
  EXPECT_EQ(Lines(editor.Findings()), "error 2.1: a column name is empty\n");
  EXPECT_THROW(TLinkEditor(*model, TDSLink()), EJDBStructError);
}

}  // namespace
}  // namespace tolvi
