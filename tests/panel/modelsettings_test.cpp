#include <string>

#include <gtest/gtest.h>

#include "support/models.h"
#include <tolvi/model/formatpresets.h>
#include <tolvi/panel/modeleditor.h>
#include <tolvi/panel/modelsettings.h>

namespace tolvi {
namespace {

TEST(ModelSettings, AreAppliedAsOneStepAndUndone) {
  const auto model = OrdersModel();
  TModelEditor editor(*model);
  const TModelSettings before = SettingsOf(*model);
  EXPECT_EQ(PresetOf(before.Formats), "generic");
  TModelSettings after = before;
  ApplyFormatPreset(after.Formats, "mysql");
  EXPECT_EQ(PresetOf(after.Formats), "mysql");
  after.Formats.SetUseAsInFrom(!after.Formats.GetUseAsInFrom());
  EXPECT_EQ(PresetOf(after.Formats), "");
  after.Options.SetDefaultDatabase("Sales");
  after.MainTable = "Orders";
  after.RootFieldsFirst = true;
  after.ExOperators = {xoInList};
  after.DefOperators.SetValue("Equal", "is just");

  int changes = 0;
  model->OnChange = [&changes](TJCustomDBStructure&) { ++changes; };
  EXPECT_TRUE(editor.Edit("Change settings", [&] { ApplySettings(*model, after); }));
  EXPECT_EQ(changes, 1);
  EXPECT_TRUE(SettingsOf(*model) == after);
  EXPECT_EQ(OperatorOf(*model, "Equal").GetDisplayName(), "is just");
  EXPECT_EQ(model->OperatorByName("Contains"), nullptr);
  EXPECT_FALSE(editor.Edit("Change settings", [&] { ApplySettings(*model, after); }));
  editor.Undo();
  EXPECT_TRUE(SettingsOf(*model) == before);
  EXPECT_NE(model->OperatorByName("Contains"), nullptr);
}

TEST(ModelSettings, ShowThemselvesInAStatement) {
  TModelSettings settings = SettingsOf(*OrdersModel());
  settings.Options.SetMultiDB(true);
  settings.Options.SetDefaultDatabase("Sales");
  settings.Options.SetDefaultDBOwner("dbo");
  ApplyFormatPreset(settings.Formats, "sqlserver");
  EXPECT_EQ(SampleStatement(settings),
            "SELECT Orders.[Order date] as Order_date\r\nFROM \r\n"
            "     Orders LEFT OUTER JOIN  Stock.dbo.[Order items] Order_items ON Orders.ID = Order_items.OrderID\r\n"
            "WHERE\r\n(\r\nOrders.[Order date] = '20000101' AND\r\nOrders.Entered < '20000101 12:00:00' AND\r\n"
            "Orders.Paid = 1 AND\r\nLOWER(Order_items.Product) like LOWER('Tea%') AND\r\n"
            "Order_items.[From time] >'09:00:00'\r\n)");
}

}  // namespace
}  // namespace tolvi
