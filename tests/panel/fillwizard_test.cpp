#include <memory>
#include <stdexcept>
#include <string>

#include <gtest/gtest.h>

#include "support/catalogue_of_text.h"
#include <tolvi/model/dbstruc.h>
#include <tolvi/panel/fillwizard.h>
#include <tolvi/panel/modeleditor.h>

namespace tolvi {
namespace {

// Planned are, by number, the tables Customers, Orders, v_turnover and ShipTo, and the links to Customers and ShipTo.
class FillWizard : public testing::Test {
 protected:
  FillWizard() {
    info.Rows = {{"Customers", "3"}};
    model.SetDatabaseInfo(&info);
  }

  void Start(const TFillOptions& options = {}) {
    wizard = std::make_unique<TFillWizard>(editor, options);
    wizard->ReadTables();
    wizard->ReadPlan();
  }

  TFillChoice& Choice() { return wizard->Choice(); }

  std::size_t FieldNumber(std::string_view name) {
    const TFillPlan& plan = Choice().Plan();
    for (std::size_t field = 0; field < plan.Fields.size(); ++field) {
      if (plan.Tables[plan.Fields[field].Table].Alias + "." + plan.Fields[field].Column == name) return field;
    }
    throw std::runtime_error("no field " + std::string(name));
  }

  std::string TablesOn() {
    std::string text;
    for (std::size_t table = 0; table < wizard->Tables().size(); ++table) {
      if (wizard->IsTableOn(table)) text += wizard->Tables()[table].Name + " ";
    }
    return text;
  }

  static std::string Texts(const TTextFindings& findings) {
    std::string text;
    for (const TTextFinding& found : findings) text += (found.Severity == csError ? "E:" : "W:") + found.Text;
    return text;
  }

  std::string FaultOf(const std::function<void()>& step) {
    try {
      step();
    } catch (const std::exception& error) {
      return error.what();
    }
    return "none";
  }

  enum { Customers, Orders, Turnover, ShipTo };
  TCatalogueOfText info{"Customers: CustNo* i, Company s\nOrders: OrderNo* i, CustNo i, ShipTo i\n~v_turnover: total f",
                        {"Orders.CustNo = Customers.CustNo", "Orders.ShipTo = Customers.CustNo"}};
  TJDBStructure model;
  TModelEditor editor{model};
  std::unique_ptr<TFillWizard> wizard;
};

TEST_F(FillWizard, FillsAsItWasPlannedWhereNothingElseIsChosenInOneStep) {
  TJDBStructure filled;
  const TFillReport report = FillModel(filled, info, {});
  const std::string before = model.GetStructString();
  Start();
  EXPECT_EQ(Choice().Chosen().Report(), report);
  wizard->Fill("Fill");
  EXPECT_EQ(model.GetStructString(), filled.GetStructString());
  EXPECT_EQ(editor.UndoName(), "Fill");
  editor.Undo();
  EXPECT_EQ(model.GetStructString(), before);
}

TEST_F(FillWizard, SwitchesWhatBelongsTogether) {
  Start();
  const std::size_t custNo = FieldNumber("Orders.CustNo");
  Choice().SetTableOn(Orders, false);
  EXPECT_FALSE(Choice().IsLinkOn(0) || Choice().IsTableOn(ShipTo) || Choice().IsFieldOn(custNo));
  EXPECT_EQ(Choice().Chosen().Report().ToStrings(),
            (TStrings{"table: Customers", "table: v_turnover", "group: Customers", "group: Turnover",
                      "field: Customers.CustNo", "field: Customers.Company", "field: v_turnover.total"}));
  Choice().SetListOn(custNo, true);
  EXPECT_EQ(Choice().TableState(Orders), fsSome) << "with the one field that was turned on";
  EXPECT_TRUE(Choice().IsListOn(custNo) && Choice().IsTableOn(ShipTo) && !Choice().IsFieldOn(custNo + 1));
  Choice().SetLinkOn(1, false);
  EXPECT_FALSE(Choice().IsTableOn(ShipTo)) << "its only use is the link";
  Choice().SetTableOn(Orders, false);
  Choice().SetLinkOn(1, true);
  EXPECT_TRUE(Choice().IsTableOn(Orders) && Choice().IsTableOn(ShipTo) && Choice().IsLinkOn(1));
  for (const std::size_t field : Choice().FieldsOf(Orders)) Choice().SetFieldOn(field, false);
  EXPECT_EQ(Choice().TableState(Orders), fsSome) << "a table may come without fields";
  Choice().SetListOn(custNo, false);
  Choice().SetTableOn(Customers, false);
  Choice().SetTableOn(Turnover, false);
  Choice().SetLinkType(1, ltOuterFull);
  EXPECT_EQ(Choice().Chosen().Report().ToStrings(),
            (TStrings{"table: Orders", "table: ShipTo", "group: Ship to", "field: ShipTo.CustNo",
                      "field: ShipTo.Company", "link: Orders.ShipTo = ShipTo.CustNo"}));
  wizard->Fill("Fill");
  EXPECT_EQ(model.GetLink(0).GetLinkType(), ltOuterFull);
}

TEST_F(FillWizard, NamesTablesGroupsAndFieldsAndTellsWhatIsWrongWithThem) {
  const std::size_t one = model.AddField(jfkVirtual, "1", "Company", nullptr);
  model.GetField(one).SetGroup(model.FieldGroups().AddGroup("Sales"));
  Start();
  const std::size_t company = FieldNumber("Customers.Company"), shipped = FieldNumber("ShipTo.Company");
  Choice().SetTableName(Customers, "Clients");
  EXPECT_EQ(Choice().GroupName(Customers), "Clients");
  Choice().SetGroupName(ShipTo, "CLIENTS");
  EXPECT_EQ(Texts(Choice().CheckField(company)), "W:another field of its group has the same display name");
  Choice().SetFieldName(shipped, "Receiver");
  EXPECT_EQ(Texts(Choice().CheckField(company)), "");
  Choice().SetGroupName(Customers, "sales");
  EXPECT_EQ(Texts(Choice().CheckField(company)), "W:another field of its group has the same display name");
  Choice().SetFieldOn(company, false);
  EXPECT_EQ(Texts(Choice().CheckField(company)), "");
  Choice().SetTableName(Orders, "clients");
  EXPECT_EQ(Texts(Choice().CheckTable(Customers)), "W:another table has the same display name");
  EXPECT_FALSE(Choice().HasErrors());
  Choice().SetTableName(Orders, " ");
  Choice().SetGroupName(Orders, "");
  EXPECT_EQ(Texts(Choice().CheckTable(Orders)) + Texts(Choice().CheckGroup(Orders)),
            "E:the display name is emptyE:the name is empty");
  EXPECT_TRUE(Choice().HasErrors());
  Choice().SetTableOn(Orders, false);
  EXPECT_FALSE(Choice().HasErrors());
  wizard->Fill("Fill");
  EXPECT_EQ(model.GetTable(0).GetDisplayName(), "Clients");
  TStrings groups;
  model.FieldGroups().GetGroupNames(groups);
  EXPECT_EQ(groups, (TStrings{"Sales", "Turnover"}));
  EXPECT_EQ(model.FieldByName(fnFullName, "Customers.CustNo")->GetGroupName(), "Sales");

  // Tables of the model keep their names; their new fields can get another group.
  info.Columns["Customers"] += ", City s";
  Start();
  Choice().SetTableName(Customers, "x");
  EXPECT_EQ(Choice().TableName(Customers) + ", " + Choice().GroupName(Customers), "Clients, Sales");
  Choice().SetGroupName(Customers, "Places");
  wizard->Fill("Fill");
  EXPECT_EQ(model.FieldByName(fnFullName, "Customers.City")->GetGroupName(), "Places");
}

TEST_F(FillWizard, KeepsChoicesInAnotherPlan) {
  Start();
  Choice().SetTableName(Customers, "Clients");
  Choice().SetFieldOn(FieldNumber("Orders.CustNo"), false);
  Choice().SetLinkType(0, ltOuterLeft);
  wizard->SetTableOn(Customers, false);
  wizard->ReadPlan();
  EXPECT_TRUE(Choice().Plan().Links.empty());
  info.Tables = {"Parts", "Orders", "Customers"};
  info.Columns["Parts"] = "PartNo* i";
  wizard->ReadTables();
  EXPECT_EQ(TablesOn(), "Parts Orders v_turnover ");
  wizard->SetTableOn(2, true);
  wizard->ReadPlan();
  EXPECT_EQ(Choice().TableName(2), "Clients");
  EXPECT_FALSE(Choice().IsFieldOn(FieldNumber("Orders.CustNo")));
  EXPECT_EQ(Choice().LinkType(0), ltOuterLeft);
}

TEST_F(FillWizard, RefusesAPlanThatNoLongerFits) {
  constexpr const char* Changed = "The database or the model has changed meanwhile: look again at what is added";
  Start();
  Choice().SetTableName(Customers, "Clients");
  info.Columns["Orders"] += ", Paid f";
  const std::string before = model.GetStructString();
  EXPECT_EQ(FaultOf([this] { wizard->Fill("Fill"); }), Changed);
  model.AddTable("Legacy", "Legacy");
  EXPECT_EQ(FaultOf([this] { wizard->Fill("Fill"); }), Changed);
  EXPECT_EQ(FaultOf([this] { ApplyFillPlan(model, TFillPlan()); }),
            "The model has changed since its catalogue was read: fill it again");
  info.OnFieldsRequest = [](TJDBInfo&, std::string_view, TDBFieldList&) { throw std::runtime_error("lost"); };
  EXPECT_EQ(FaultOf([this] { wizard->Fill("Fill"); }), "lost");
  info.OnFieldsRequest = nullptr;
  editor.Undo();
  EXPECT_EQ(model.GetStructString(), before);
  EXPECT_EQ(FaultOf([this] { wizard->Fill("Fill"); }), Changed);
  EXPECT_EQ(FaultOf([this] { wizard->Fill("Fill"); }), "none");
  EXPECT_EQ(model.GetTable(0).GetDisplayName(), "Clients");
  EXPECT_NE(model.FieldByName(fnFullName, "Orders.Paid"), nullptr);
}

TEST_F(FillWizard, BeginsWithTheTablesThatMatter) {
  TFillOptions options;
  options.Views = false;
  Start(options);
  EXPECT_EQ(TablesOn(), "Customers Orders ");
  wizard->SetTableOn(Turnover, true);
  wizard->ReadPlan();
  EXPECT_EQ(Choice().Tables().size(), 4U) << "a view that is chosen is added";
  for (std::size_t table = 0; table < 3; ++table) wizard->SetTableOn(table, false);
  wizard->ReadPlan();
  EXPECT_TRUE(Choice().Plan().Empty());
  options.Tables = {"ORDERS"};
  Start(options);
  EXPECT_EQ(TablesOn(), "Orders ");
  wizard->Fill("Fill");
  Start();
  EXPECT_EQ(TablesOn(), "Orders ") << "those of the model";
  EXPECT_TRUE(wizard->Tables()[Orders].Known && wizard->Tables()[Turnover].View);
}

TEST_F(FillWizard, ChoosesTheDatabase) {
  info.Databases = {"archive", "main"};
  Start();
  EXPECT_EQ(wizard->Databases(), info.Databases);
  model.AddTable("Orders", "Orders");
  wizard->SetDatabase("archive");
  EXPECT_TRUE(wizard->Tables().empty());
  EXPECT_TRUE(PreviewFill(model, info, {}).VanishedTables.Empty()) << "tables of other databases have not vanished";
  wizard.reset();
  EXPECT_EQ(info.GetCurrentDBName(), "");
  Start();
  info.Connected = false;
  EXPECT_EQ(FaultOf([this] { wizard->ReadTables(); }), "The database is not connected");
  model.SetDatabaseInfo(nullptr);
  EXPECT_EQ(FaultOf([this] { Start(); }), "The model has no database information");
  model.SetDatabaseInfo(&info);
  info.Connected = true;
  Start();
  info.OnTablesRequest = [](TJDBInfo&, TStrings&) { throw std::runtime_error("no such database"); };
  EXPECT_EQ(FaultOf([this] { wizard->SetDatabase("main"); }), "no such database");
  EXPECT_EQ(info.GetCurrentDBName() + "|" + TablesOn(), "|Orders ");
}

}  // namespace
}  // namespace tolvi
