#include <map>
#include <stdexcept>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/catalogue_of_text.h"
#include <tolvi/foundation/text.h>
#include <tolvi/model/dbstruc.h>
#include <tolvi/model/modelcheck.h>
#include <tolvi/model/modelfill.h>

namespace tolvi {
namespace {

// Tables: "alias = name "display name"", "!" for a quoted name; fields by group; links with their type.
std::string Described(const TJCustomDBStructure& model) {
  std::string text;
  for (const TDSTable& table : model.Tables()) {
    text += table.GetTableAlias() + " = " + (table.GetQuoted() ? "!" : "") + table.GetCompoundName() + " \"" +
            table.GetDisplayName() + "\"\n";
  }
  for (const TDSFieldGroup& group : model.FieldGroups()) {
    text += "[" + group.GetGroupName() + "]\n";
    for (const TDSField* field : group) {
      text += field->GetSQLExpr() + " \"" + field->GetDisplayName() + "\" " + (field->GetUseInConditions() ? "c" : "") +
              (field->GetUseInResult() ? "r" : "") + "\n";
    }
  }
  for (const TDSLink& link : model.Links()) {
    text += std::string(LinkTypeToStr(link.GetLinkType())) + " " + link.GetSQLExpr() + "\n";
  }
  return text;
}

// Fills an empty model; what a preview says, a second filling and the model check must agree.
std::string Filled(TCatalogueOfText& info, const TFillOptions& options = {}, bool sound = true) {
  TJDBStructure model;
  const TFillReport preview = PreviewFill(model, info, options);
  const TFillReport report = FillModel(model, info, options);
  EXPECT_EQ(report, preview);
  const std::string text = model.GetStructString();
  const TFillReport again = FillModel(model, info, options);
  EXPECT_EQ(model.GetStructString(), text);
  if (sound) {
    EXPECT_EQ(again.ToStrings().GetText(), "");
    for (const TCheckFinding& finding : CheckModel(model)) ADD_FAILURE() << finding.Place << ": " << finding.Text;
  }
  TJDBStructure copy;
  copy.SetStructString(text);
  EXPECT_EQ(copy.GetStructString(), text);
  return Described(model);
}

TEST(ModelFill, MakesTablesGroupsFieldsAndLinksOfACatalogue) {
  TCatalogueOfText info(
      "customers: cust_no* i, company s, country s, notes m, photo b, shape u\n"
      "countries: code* s, name s\n"
      "tblOrderItem: OrderNo* i, LineNo* i, CustNo i, VATRate f, item_id g\n"
      "~v_turnover: total f",
      {"customers.country = countries.code", "tblOrderItem.CustNo = customers.cust_no", ""});
  EXPECT_EQ(Filled(info, {}, false),
            "customers = customers \"Customers\"\n"
            "countries = countries \"Countries\"\n"
            "tblOrderItem = tblOrderItem \"Order item\"\n"
            "v_turnover = v_turnover \"Turnover\"\n"
            "[Customers]\n"
            "customers.cust_no \"Cust no\" c\n"
            "customers.company \"Company\" cr\n"
            "customers.country \"Country\" cr\n"
            "customers.notes \"Notes\" cr\n"
            "customers.photo \"Photo\" \n"
            "customers.shape \"Shape\" \n"
            "[Countries]\n"
            "countries.code \"Code\" cr\n"
            "countries.name \"Name\" cr\n"
            "[Order item]\n"
            "tblOrderItem.OrderNo \"Order no\" c\n"
            "tblOrderItem.LineNo \"Line no\" c\n"
            "tblOrderItem.CustNo \"Cust no\" c\n"
            "tblOrderItem.VATRate \"VAT rate\" cr\n"
            "tblOrderItem.item_id \"Item ID\" r\n"
            "[Turnover]\n"
            "v_turnover.total \"Total\" cr\n"
            "Inner customers.country = countries.code\n"
            "Inner tblOrderItem.CustNo = customers.cust_no\n");
  TFillOptions some;
  some.Tables = {"COUNTRIES", "v_turnover", "customers"};
  some.Views = false;
  some.LinkType = ltOuterLeft;
  const std::string text = Filled(info, some);
  EXPECT_EQ(text.substr(text.rfind('\n', text.size() - 2) + 1), "Left customers.country = countries.code\n");
  EXPECT_EQ(text.find("Turnover"), std::string::npos);
}

TEST(ModelFill, MakesReadableNamesOfTechnicalOnes) {
  const std::vector<std::pair<std::string, std::string>> names = {
      {"order_items", "Order items"},
      {"OrderItems", "Order items"},
      {"ORDER_ITEMS", "Order items"},
      {"order items", "Order items"},
      {"CustomerID", "Customer ID"},
      {"CUST_ID", "Cust ID"},
      {"CustomerIDs", "Customer IDs"},
      {"Qty", "Qty"},
      {"OrderQTY", "Order QTY"},
      {"Address1", "Address 1"},
      {"B2B_flag", "B2B flag"},
      {"Line2Text", "Line 2 text"},
      {"HTMLPage", "HTML page"},
      {"größe", "Größe"},
      {"GRÖSSE", "Grösse"},
      {"ÄNDERUNG_VON", "Änderung von"},
      {"tbl", "Tbl"},
      {"__", "__"},
      {"unit-price", "Unit price"},
      {"\xC3\x28x", "\xC3 x"},
  };
  for (const auto& [name, readable] : names) {
    TCatalogueOfText info("t: " + name + " f", {});
    TJDBStructure model;
    FillModel(model, info, {});
    EXPECT_EQ(model.GetField(0).GetDisplayName(), readable) << name;
  }
}

TEST(ModelFill, QuotesWhatNeedsItAndGivesPlainUniqueAliases) {
  TCatalogueOfText info(
      "Order Details: Order ID* i, Größe s, select s, Unit f\n"
      "order: id* i, x# f\n"
      "Straße: id* i\n"
      "2024: id* i\n"
      "Order_Details: name s",
      {"Order Details.Order ID = \"order\".[id]"});
  TFillOptions options;
  EXPECT_EQ(Filled(info, options, false),
            "Order_Details_2 = !Order Details \"Order details\"\n"
            "order_ = !order \"Order\"\n"
            "Strae = !Straße \"Straße\"\n"
            "T2024 = !2024 \"2024\"\n"
            "Order_Details = Order_Details \"Order details 2\"\n"
            "[Order details]\n"
            "Order_Details_2.\"Order ID\" \"Order ID\" c\n"
            "Order_Details_2.\"Größe\" \"Größe\" cr\n"
            "Order_Details_2.\"select\" \"Select\" cr\n"
            "Order_Details_2.Unit \"Unit\" cr\n"
            "[Order]\norder_.id \"ID\" c\norder_.\"x#\" \"X\" cr\n"
            "[Straße]\nStrae.id \"ID\" c\n"
            "[2024]\nT2024.id \"ID\" c\n"
            "[Order details 2]\nOrder_Details.name \"Name\" cr\n"
            "Inner Order_Details_2.\"Order ID\" = order_.\"id\"\n");
  options.QuoteMixedCase = true;
  options.Tables = {"Order_Details", "order"};
  EXPECT_NE(Filled(info, options, false).find("Order_Details = !Order_Details"), std::string::npos);
}

TEST(ModelFill, GivesFurtherAliasesToTablesThatAreReferredToTwice) {
  TCatalogueOfText info(
      "orders: id* i, ship_to i, address_id i, seller_id i\n"
      "addresses: address_id* i, city s\n"
      "employees: id* i, name s, manager_id i, home i\n"
      "rooms: floor* i, room* i, floor2 i, room2 i, ship_to i",
      {"orders.ship_to = addresses.address_id", "orders.address_id = addresses.address_id",
       "orders.seller_id = employees.id", "employees.manager_id = employees.id",
       "employees.home = addresses.address_id", "rooms.floor = employees.id AND rooms.room = employees.home",
       "rooms.floor2=employees.id and rooms.room2=employees.home", "rooms.ship_to = addresses.address_id"});
  const std::string text = Filled(info);
  const std::size_t groups = text.find('['), links = text.find("Inner");
  EXPECT_EQ(text.substr(0, groups),
            "orders = orders \"Orders\"\n"
            "addresses = addresses \"Addresses\"\n"
            "employees = employees \"Employees\"\n"
            "rooms = rooms \"Rooms\"\n"
            "ship_to = addresses \"Ship to\"\n"
            "manager = employees \"Manager\"\n"
            "room2 = employees \"Room 2\"\n");
  EXPECT_NE(text.find("[Manager]\nmanager.id \"ID\" c\nmanager.name \"Name\" cr\n"), std::string::npos);
  EXPECT_EQ(text.substr(links),
            "Inner orders.ship_to = ship_to.address_id\n"
            "Inner orders.address_id = addresses.address_id\n"
            "Inner orders.seller_id = employees.id\n"
            "Left employees.manager_id = manager.id\n"
            "Inner employees.home = addresses.address_id\n"
            "Inner rooms.floor = employees.id and rooms.room = employees.home\n"
            "Inner rooms.floor2 = room2.id and rooms.room2 = room2.home\n"
            "Inner rooms.ship_to = addresses.address_id\n");
  TFillOptions plain;
  plain.RoleTables = false;
  const std::string without = Filled(info, plain);
  EXPECT_EQ(without.find("\"Ship to\"\n"), std::string::npos);
  EXPECT_EQ(without.find("orders.ship_to = "), std::string::npos);
}

TEST(ModelFill, TellsRolesOfOneNameApart) {
  TCatalogueOfText info("a: x i, owner i\nb: x i, owner i\nuser: id* i, name s\nowner: id* i",
                        {"a.x = user.id", "a.owner = user.id", "b.x = user.id", "b.owner = user.id"});
  const std::string text = Filled(info, {}, false);
  EXPECT_NE(text.find("a_owner = !user \"Owner (A)\"\nb_owner = !user \"Owner (B)\"\n"), std::string::npos) << text;
}

TEST(ModelFill, GuessesLinksFromNamesWhereNoKeyTells) {
  TCatalogueOfText info(
      "customers: id* i, name s\n"
      "Parts: PartNo* i, supplier_id i\n"
      "suppliers: id* i, code s\n"
      "companies: Id* g, code s\n"
      "orders: id* i, customer_id n, CustomerId i, part_no i, company_id i, code s, seller_id i\n"
      "sellers: id* i\n"
      "tbl_sellers: id* i\n"
      "details: PartNo* i, extra s",
      {"Parts.supplier_id = suppliers.id"});
  TFillOptions options;
  EXPECT_EQ(Filled(info, options, false).find("customers.id\n"), std::string::npos);
  options.LinksFromNames = true;
  const std::string text = Filled(info, options, false);
  // Neither a type that differs, nor a name that two keys have ("PartNo", "seller_id"), nor a second column.
  EXPECT_EQ(text.substr(text.find("Inner")),
            "Inner Parts.supplier_id = suppliers.id\nInner orders.customer_id = customers.id\n");
}

TEST(ModelFill, GivesColumnsTheSameIDsInEveryModelIfWanted) {
  TFillOptions options;
  options.FieldIDsFromNames = true;
  const auto filled = [&options](const char* tables, TJDBStructure& model) {
    TCatalogueOfText info(tables, {});
    model.SetDatabaseInfo(&info);
    FillModel(model, info, options);
    std::map<std::string, std::int32_t> ids;
    for (const TDSField& field : model.Fields()) {
      ids[FoldCase(field.GetTable()->GetTableAlias() + "." + field.GetFieldName())] = field.GetID();
    }
    model.SetDatabaseInfo(nullptr);
    return ids;
  };
  TJDBStructure mine, theirs;
  const auto here = filled("Books: id* i, title s\nAuthors: id* i, name s", mine);
  auto there = filled("authors: email s, id* i, name s\nbooks: id* i, title s", theirs);
  // Never another one: queries that are stored hold it.
  EXPECT_EQ(here.at("books.title"), 88685444);
  EXPECT_EQ(there.erase("authors.email"), 1U);
  EXPECT_EQ(here, there);

  // Fields that people have made keep their IDs, and those that are counted up find room.
  TCatalogueOfText more("Books: id* i, title s, year i\nAuthors: id* i, name s", {});
  mine.SetDatabaseInfo(&more);
  options.FieldIDsFromNames = false;
  const std::int32_t last = mine.GetLastFieldID();
  FillModel(mine, more, options);
  EXPECT_EQ(mine.GetLastFieldID(), last + 1);
  mine.SetDatabaseInfo(nullptr);
}

TEST(ModelFill, OffersListsOfValuesFromSmallTables) {
  const char* const tables =
      "Orders: id* i, pay i, region s, state i, kind i\n"
      "Payment: id* i, remark s, pay_name s\n"
      "Customers: id* i, name s\n"
      "geo.Regions: code* s, Region s\n"
      "States: id* i\n"
      "Kinds: id* i, name s";
  TCatalogueOfText info(tables, {"Orders.pay = Payment.id", "Orders.region = Regions.code", "Orders.state = States.id",
                                 "Orders.kind = Kinds.id"});
  info.Rows = {{"Payment", "3"}, {"geo.Regions", "200"}, {"Kinds", "many"}};
  TJDBStructure model;
  model.SetDatabaseInfo(&info);
  const TFillReport report = FillModel(model, info, {});
  EXPECT_EQ(report.AddedLists, (TStrings{"Orders.pay", "Orders.region"}));
  EXPECT_EQ(report.Notes, (TStrings{"Statements name the tables with their schema: MultiDB is switched on",
                                    "The rows of table \"Kinds\" could not be counted"}));
  std::string queries;
  for (const TDSField& field : model.Fields()) {
    if (auto* editor = dynamic_cast<TDSSQLEditor*>(field.GetValueEditor())) queries += editor->GetSQLText();
  }
  EXPECT_EQ(queries,
            "select id, pay_name from Payment order by pay_name\r\n"
            "select code, Region from geo.Regions order by Region\r\n");
  for (const auto& [rows, lists] : {std::pair("0", 0U), std::pair("2", 2U), std::pair("3", 0U)}) {
    TJDBStructure other;
    TFillOptions options;
    options.MaxListRows = 2;
    info.Rows = {{"Payment", rows}, {"geo.Regions", rows}};
    EXPECT_EQ(PreviewFill(other, info, options).AddedLists.Count(), lists) << rows;
  }
  // A source that runs no queries is asked once.
  info.Rows.clear();
  info.Queries.Clear();
  EXPECT_TRUE(PreviewFill(TJDBStructure(), info, {}).AddedLists.Empty());
  EXPECT_EQ(info.Queries.Count(), 1U);
}

TEST(ModelFill, QualifiesTablesWithTheirSchemas) {
  const char* const tables = "sales.orders: id* i\narchive.orders: id* i\n\"dbo\".parts: id* i";
  TCatalogueOfText info(tables, {"sales.orders.id = archive.orders.id", "orders.id = parts.id"});
  TJDBStructure model;
  model.DMOptions().SetDefaultDBOwner("DBO");
  FillModel(model, info, {});
  EXPECT_EQ(Described(model).substr(0, Described(model).find('[')),
            "orders = sales.orders \"Orders\"\n"
            "archive_orders = archive.orders \"Orders (archive)\"\n"
            "parts = parts \"Parts\"\n");
  EXPECT_TRUE(model.DMOptions().GetMultiDB());
  EXPECT_EQ(model.GetTable(1).GetFromExpr(), "archive.DBO.orders archive_orders");
  EXPECT_TRUE(FillModel(model, info, {}).AddedTables.Empty());
  TJDBStructure plain;
  TFillOptions some;
  some.Tables = {"sales.orders"};
  FillModel(plain, info, some);
  EXPECT_EQ(plain.GetTable(0).GetFromExpr(), "sales.orders");
  // What statements on known tables say stays as it is.
  plain.DMOptions().SetMultiDB(false);
  EXPECT_EQ(FillModel(plain, info, {}).Notes[1], "Statements name the new tables without their schema: MultiDB is off");
  EXPECT_FALSE(plain.DMOptions().GetMultiDB());
}

constexpr const char* Shop =
    "Customers: CustNo* i, Company s, City s\n"
    "Orders: OrderNo* i, CustNo i, Total f, ShipTo i\n";
const TStrings ShopLinks = {"Orders.CustNo = Customers.CustNo", "Orders.ShipTo = Customers.CustNo"};

TEST(ModelFill, KeepsWhatPeopleMadeAndAddsWhatIsNew) {
  TCatalogueOfText info(Shop, ShopLinks);
  TJDBStructure model;
  FillModel(model, info, {});
  TDSField& total = *model.FieldByName(fnFullName, "Orders.Total");
  total.SetDisplayName("Turnover");
  total.SetGroup(model.FieldGroups()[0]);
  total.ClearOperators();
  model.GetTable(0).SetDisplayName("Clients");
  model.MoveTable(0, 1);
  model.GetLink(0).SetLinkType(ltOuterRight);
  model.GetLink(0).SetOperators({"<="});
  model.GetLink(0).SetOperators({"="});
  model.DelField(0);
  const std::size_t last = model.Fields().Count() - 1;
  EXPECT_EQ(model.GetField(last).GetSQLExpr(), "ShipTo.City");
  model.DelField(last);
  const std::string before = model.GetStructString();
  TFillOptions options;
  options.NewFieldsInKnownTables = false;
  EXPECT_TRUE(FillModel(model, info, options).Empty());
  EXPECT_EQ(model.GetStructString(), before);

  info.Columns["Orders"] += ", total f, Total_ f, Ship_Date d";
  info.Columns["Parts"] = "PartNo* i";
  info.Tables.Add("Parts");
  info.Links.Add("Customers.CustNo = Parts.PartNo");
  EXPECT_EQ(PreviewFill(model, info, options).ToStrings(),
            (TStrings{"table: Parts", "group: Parts", "field: Parts.PartNo", "link: Customers.CustNo = Parts.PartNo",
                      "note: Table \"Orders\" has the column \"total\" twice"}));
  const std::int32_t lastID = model.GetLastFieldID();
  const TFillReport report = FillModel(model, info, {});
  // A deleted column comes back to the table, not to its further aliases.
  EXPECT_EQ(report.AddedFields, (TStrings{"Orders.Total_", "Orders.Ship_Date", "Customers.CustNo", "Parts.PartNo"}));
  EXPECT_EQ(model.FieldByName(fnFullName, "Parts.PartNo")->GetID(), lastID + 4);
  EXPECT_EQ(model.FieldByName(fnFullName, "Orders.Ship_Date")->GetGroupName(), "Orders");
  EXPECT_EQ(total.GetDisplayName(), "Turnover");
  EXPECT_EQ(total.GetOperatCount(), 0U);
  EXPECT_EQ(model.GetLink(0).GetLinkType(), ltOuterRight);
}

TEST(ModelFill, ReportsWhatHasVanishedOrChanged) {
  TCatalogueOfText info(Shop, ShopLinks);
  TJDBStructure model;
  FillModel(model, info, {});
  TDSField& total = *model.FieldByName(fnFullName, "Orders.Total");
  TDSField& city = *model.FieldByName(fnFullName, "Customers.City");
  city.DelOperator(0);
  const std::size_t cityOperators = city.GetOperatCount();
  model.AddTable("Legacy", "Legacy");
  model.AddField(jfkVirtual, "sum(Orders.Total)", "Sum", nullptr);
  info.Columns["Orders"] = "OrderNo* i, CustNo i, Total s";
  info.Columns["Customers"] = "CustNo* i, Company u, City d";
  info.Links.Clear();
  const std::string before = model.GetStructString();
  const TStrings expected{
      "vanished table: Legacy",
      "vanished field: Orders.ShipTo",
      "vanished link: Orders.ShipTo = ShipTo.CustNo",
      "changed type: Customers.City: ftString(20) is ftDate in the catalogue",
      "changed type: Orders.Total: ftFloat is ftString(20) in the catalogue",
      "changed type: ShipTo.City: ftString(20) is ftDate in the catalogue",
  };
  EXPECT_EQ(FillModel(model, info, {}).ToStrings(), expected);
  EXPECT_EQ(model.GetStructString(), before);
  TFillOptions options;
  options.TakeChangedTypes = true;
  EXPECT_EQ(FillModel(model, info, options).ToStrings(), expected);
  EXPECT_EQ(FldTypeToStr(total.GetFieldType()), "ftString");
  EXPECT_EQ(total.GetFieldSize(), 20);
  EXPECT_GE(total.IndexOfOperator(*model.OperatorByName("Contains")), 0);
  EXPECT_EQ(city.GetFieldType(), ftDate);
  EXPECT_EQ(city.GetOperatCount(), cityOperators);
  EXPECT_TRUE(FillModel(model, info, options).ChangedTypes.Empty());
}

TEST(ModelFill, FindsTablesUnderOtherNamesAndLinksWithMoreConditions) {
  TCatalogueOfText info("main.Orders: id* i, cust i\nmain.Customers: id* i", {"Orders.cust = Customers.id"});
  TJDBStructure model;
  model.AddTable("Customers", "Customers");
  model.GetTable(0).SetTableAlias("c");
  model.AddTable("\"Orders\"", "Orders");
  model.GetTable(1).SetTableAlias("o");
  model.AddLinkByExpr("c.\"ID\" = o.CUST and o.id > 7");
  const TFillReport report = FillModel(model, info, {});
  EXPECT_EQ(report.AddedFields, (TStrings{"c.id", "o.id", "o.cust"}));
  EXPECT_TRUE(report.AddedTables.Empty() && report.AddedLinks.Empty() && report.VanishedLinks.Empty());
  // A table whose link was deleted is linked again, not doubled.
  TCatalogueOfText shop(Shop, ShopLinks);
  TJDBStructure other;
  FillModel(other, shop, {});
  other.DelLink(1);
  EXPECT_EQ(FillModel(other, shop, {}).ToStrings(), TStrings{"link: Orders.ShipTo = ShipTo.CustNo"});
}

TEST(ModelFill, NotesNonsenseAndGoesOn) {
  TCatalogueOfText info(
      "A: id* i, ID s, x i\n: y i\na: z i\nEmpty:\nB: id* i, x i",
      {"A.x = B.id or 1 = 1", "A.x", "A.x = Nowhere.id", "A.x = B.nothing", "A.x <= B.id", "A.x = A.x",
       "A.x = B.id and A.x = A.id", "A.x = ", "= B.id and", "A.x = B.id = B.x", "A.\"x = B.id", "A.x = B.id"});
  info.OnKeysRequest = [](TJDBInfo&, std::string_view, TStrings& keys) { keys = {"id", "id", "none"}; };
  TJDBStructure model;
  TFillOptions options;
  options.Tables = {"a", "b", "empty", "ghost", ""};
  const TFillReport report = FillModel(model, info, options);
  EXPECT_EQ(Described(model),
            "A = A \"A\"\nB = B \"B\"\n[A]\nA.id \"ID\" c\nA.x \"X\" c\n[B]\nB.id \"ID\" c\nB.x \"X\" cr\n"
            "Inner A.x = B.id\n");
  constexpr const char* Form = "is not of the form \"table.column = table.column [and ...]\"";
  EXPECT_EQ(report.Notes.GetText(),
            Format("A table without a name is left out: \"\"\r\n"
                   "Table \"a\" is in the catalogue twice\r\n"
                   "Table \"ghost\" is not in the catalogue\r\n"
                   "Table \"\" is not in the catalogue\r\n"
                   "Table \"A\" has the column \"ID\" twice\r\n"
                   "Table \"A\" has no column \"none\" for its primary key\r\n"
                   "Table \"Empty\" has no columns in the catalogue\r\n"
                   "Table \"B\" has no column \"none\" for its primary key\r\n"
                   "Link \"A.x = B.id or 1 = 1\" %s\r\n"
                   "Link \"A.x\" %s\r\n"
                   "Link \"A.x = Nowhere.id\": there is no table \"Nowhere\"\r\n"
                   "Link \"A.x = B.nothing\": table \"B\" has no column \"nothing\"\r\n"
                   "Link \"A.x <= B.id\": table \"A\" has no column \"x <\"\r\n"
                   "Link \"A.x = A.x\" compares a column with itself\r\n"
                   "Link \"A.x = B.id and A.x = A.id\" does not have the same two tables in all comparisons\r\n"
                   "Link \"A.x = \" %s\r\n"
                   "Link \"= B.id and\" %s\r\n"
                   "Link \"A.x = B.id = B.x\" %s\r\n"
                   "Link \"A.\"x = B.id\" %s\r\n",
                   {Form, Form, Form, Form, Form, Form}));
}

TEST(ModelFill, LeavesTheModelAsItIsWhenTheCatalogueFails) {
  TCatalogueOfText info("Good: id* i\nBroken: id* i", {});
  TJDBStructure model;
  FillModel(model, info, {});
  model.DelTable(0);
  const std::string before = model.GetStructString();
  info.Broken = true;
  EXPECT_THROW(FillModel(model, info, {}), std::runtime_error);
  info.Connected = false;
  EXPECT_EQ(FillModel(model, info, {}).ToStrings(), TStrings{"note: The catalogue is not connected"});
  EXPECT_EQ(model.GetStructString(), before);
  const auto messageOf = [&] {
    try {
      FillModel(model, info, {});
    } catch (const EJDBStructError& error) {
      return error.Message();
    }
    return std::string();
  };
  info.Connected = true;
  info.Broken = false;
  info.OnViewsRequest = [&model](TJDBInfo&, TStrings&) { model.DelTable(0); };
  EXPECT_EQ(messageOf(), "The model has changed since its catalogue was read: fill it again");
  info.OnViewsRequest = nullptr;
  model.AddField(jfkVirtual, "1", "One", nullptr);
  model.GetField(0).SetID(0x7fffffff - 1);
  EXPECT_EQ(messageOf(),
            "2 new fields need IDs, but only 1 are left: give the field with the largest ID a smaller one");
}

TEST(ModelFill, TellsOfOneChangeAndGivesAModelItsOperators) {
  TCatalogueOfText info(Shop, ShopLinks);
  TJDBStructure model;
  model.ClearStructure();
  int changes = 0;
  model.OnChange = [&changes](TJCustomDBStructure&) { ++changes; };
  EXPECT_EQ(FillModel(model, info, {}).Notes, TStrings{"The model had no operators: it gets the default ones"});
  EXPECT_GT(model.GetField(0).GetOperatCount(), 0U);
  FillModel(model, info, {});
  PreviewFill(model, info, {});
  EXPECT_EQ(changes, 1);
}

TEST(ModelFill, TakesLargeCataloguesInTime) {
  std::string text;
  TStrings links;
  for (int table = 0; table < 2500; ++table) {
    const std::string name = "Table" + std::to_string(table);
    text += name + ": id* i";
    for (int column = 1; column < 20; ++column) text += ", column" + std::to_string(column) + " s";
    text += "\n";
    if (table > 0) links.Add(name + ".column1 = Table0.id");
  }
  TCatalogueOfText info(text, links);
  TJDBStructure model;
  FillModel(model, info, {});
  EXPECT_TRUE(FillModel(model, info, {}).Empty());
  EXPECT_EQ(model.Fields().Count(), 50000U);
  EXPECT_EQ(model.GetLinkCount(), 2499U);
}

}  // namespace
}  // namespace tolvi
