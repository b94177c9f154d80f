#include <stdexcept>
#include <string>

#include <gtest/gtest.h>

#include "support/models.h"
#include <tolvi/panel/tablechoice.h>

namespace tolvi {
namespace {

class TableChoice : public testing::Test {
 protected:
  TableChoice() {
    info.OnDBNamesRequest = [](TJDBInfo&, TStrings& names) { names.AddStrings({"live", "old"}); };
    info.OnTablesRequest = [this](TJDBInfo& sender, TStrings& tables) {
      if (broken) throw std::runtime_error("connection lost");
      if (sender.GetCurrentDBName() == "old") return void(tables.Add("Archive"));
      tables.AddStrings({"Orders", "Customers", "Sellers", "hr.Staff", "Rates"});
    };
    info.OnViewsRequest = [](TJDBInfo&, TStrings& views) { views.AddStrings({"Rates"}); };
    info.OnFieldsRequest = [this](TJDBInfo&, std::string_view table, TDBFieldList& fields) {
      asked += std::string(table) + " ";
      for (const std::string_view column : {"id", "name", "CustNo", "Seller", "Deputy"}) fields.Add(column, ftInteger);
    };
    info.OnLinksRequest = [](TJDBInfo&, TStrings& links) {
      links.AddStrings({"Orders.CustNo = Customers.id", "Orders.Seller = Sellers.id", "Orders.Deputy = Sellers.id",
                        "Sellers.Deputy = Sellers.id", "Sellers.name = hr.Staff.name", "Sellers.x = hr.Staff.id"});
    };
    model->SetDatabaseInfo(&info);
  }

  static std::string Shown(const std::vector<TLinkOffer>& links) {
    std::string text;
    for (const TLinkOffer& link : links) {
      text += (link.Wanted ? "+ " : "- ") + link.Text + (link.Alias.empty() ? "" : " as " + link.Alias) + "\n";
    }
    return text;
  }
  std::string NewParts(std::size_t tables, std::size_t links) const {
    std::string text;
    for (std::size_t i = tables; i < model->GetTableCount(); ++i) {
      text += model->GetTable(i).GetFromExpr() + ": ";
      for (const TDSField& field : model->Fields()) {
        if (field.GetTable() == &model->GetTable(i)) text += field.GetFieldName() + " ";
      }
      text += "\n";
    }
    for (std::size_t i = links; i < model->GetLinkCount(); ++i) text += model->GetLink(i).GetSQLExpr() + "\n";
    return text;
  }

  bool broken = false;
  std::string asked;
  TJDBInfo info;
  std::unique_ptr<TJDBStructure> model = OrdersModel();
};

TEST_F(TableChoice, AddsTablesWithTheLinksThatAreWanted) {
  TTableChoice choice(*model);
  std::string tables;
  for (const TTableEntry& table : choice.Tables()) {
    tables += table.Schema + "/" + table.Name + (table.View ? "v" : "") + (table.InModel ? "m" : "") + " ";
  }
  EXPECT_EQ(tables, "/Ordersm /Customersm /Sellers hr/Staff /Ratesv ");
  EXPECT_EQ(choice.Schemas(), (std::vector<std::string>{"", "hr"}));
  EXPECT_EQ(Shown(choice.Links()), "");
  choice.Choose(0, true);
  EXPECT_EQ(choice.ChosenCount(), 0u) << "it is in the model";
  choice.Choose(2, true);
  EXPECT_EQ(Shown(choice.Links()),
            "+ Orders.Seller = Sellers.id\n"
            "+ Orders.Deputy = Deputy.id as Deputy\n"
            "+ Sellers.Deputy = Sellers_Deputy.id as Sellers_Deputy\n")
      << "not the one between tables of the model, which the model lacks";
  EXPECT_EQ(asked, "Orders Sellers ");
  choice.Choose(3, true);
  choice.WantLink(1, false);
  choice.WantLink(3, false);
  choice.WantLink(3, true);
  choice.Choose(3, false);
  choice.Choose(3, true);
  EXPECT_EQ(Shown(choice.Links()),
            "+ Orders.Seller = Sellers.id\n"
            "- Orders.Deputy = Deputy.id as Deputy\n"
            "+ Sellers.Deputy = Sellers_Deputy.id as Sellers_Deputy\n"
            "+ Sellers.name = Staff.name\n");
  EXPECT_EQ(choice.Notes(), TStrings{"Link \"Sellers.x = hr.Staff.id\": table \"Sellers\" has no column \"x\""});
  EXPECT_EQ(asked, "Orders Sellers hr.Staff ") << "each question is asked once";
  EXPECT_EQ(choice.Add(), (std::vector<std::string>{"Sellers", "Staff", "Sellers_Deputy"}));
  EXPECT_EQ(NewParts(4, 3),
            "Sellers: id name CustNo Seller Deputy \n"
            "hr.Staff: id name CustNo Seller Deputy \n"
            "Sellers Sellers_Deputy: id name CustNo Seller Deputy \n"
            "Orders.Seller = Sellers.id\n"
            "Sellers.Deputy = Sellers_Deputy.id\n"
            "Sellers.name = hr.Staff.name\n");
}

TEST_F(TableChoice, AddsTablesWithoutFields) {
  model->SetAutoAddFields(false);
  model->ClearOperators();
  TTableChoice choice(*model);
  EXPECT_FALSE(choice.GetAddFields());
  choice.Choose(4, true);
  choice.Add();
  EXPECT_EQ(NewParts(4, 3), "Rates: \n");
  EXPECT_TRUE(model->Operators().Empty());
  EXPECT_EQ(model->FieldGroups().Count(), 0u);
}

TEST_F(TableChoice, GoesToAnotherDatabaseAndBack) {
  info.SetCurrentDBName("live");
  TTableChoice choice(*model);
  EXPECT_EQ(choice.Databases(), (TStrings{"live", "old"}));
  choice.Choose(2, true);
  broken = true;
  EXPECT_THROW(choice.SetDatabase("old"), std::runtime_error);
  EXPECT_EQ(choice.Database(), "live");
  EXPECT_EQ(choice.ChosenCount(), 1u) << "nothing has changed";
  broken = false;
  choice.SetDatabase("old");
  EXPECT_EQ(choice.Tables().size(), 2u) << "and the view";
  EXPECT_EQ(choice.ChosenCount(), 0u);
  choice.RestoreDatabase();
  EXPECT_EQ(info.GetCurrentDBName(), "live");
}

TEST_F(TableChoice, NeedsAConnectedCatalogue) {
  class TOffline final : public TJDBInfo {
    bool GetConnected() const override { return false; }
  } offline;
  for (TJDBInfo* source : {static_cast<TJDBInfo*>(nullptr), static_cast<TJDBInfo*>(&offline)}) {
    model->SetDatabaseInfo(source);
    try {
      const TTableChoice choice(*model);
      ADD_FAILURE();
    } catch (const EJDBInfoError& error) {
      EXPECT_EQ(error.Message(), source ? "Database not connected" : "Database info component is not specified");
    }
  }
}

}  // namespace
}  // namespace tolvi
