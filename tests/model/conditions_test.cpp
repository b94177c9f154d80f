#include <limits>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <tolvi/model/dbstruc.h>

namespace tolvi {
namespace {

TDSCondition& AddCondition(TJCustomDBStructure& model, std::int32_t id, std::string_view expr = {}) {
  auto condition = std::make_unique<TDSCondition>();
  condition->SetID(id);
  condition->SetSQLExpr(expr);
  return model.Conditions().Add(std::move(condition));
}

TEST(Conditions, DisplayFormatGivesEachPlaceItsValue) {
  TDSCondition condition;
  condition.SetDisplayFormat("no places");
  EXPECT_EQ(condition.GetCaption(), "no places");
  condition.SetDisplayFormat("from @ to @ only");
  ASSERT_EQ(condition.Values().Count(), 2U);
  EXPECT_EQ(condition.Values()[0].GetText(), "from ");
  EXPECT_EQ(condition.Values()[1].GetText(), " to ");
  EXPECT_EQ(condition.Values()[1].GetDataType(), ftString);
  EXPECT_EQ(condition.GetCaption(), "from   to ");
  condition.Values()[0].SetDataType(ftDate);
  condition.SetDisplayFormat("since @");
  EXPECT_EQ(condition.Values().Count(), 2U) << "values beyond the places stay";
  EXPECT_EQ(condition.Values()[0].GetText(), "since ");
  EXPECT_EQ(condition.Values()[0].GetDataType(), ftDate);
}

TEST(Conditions, IDsAreHandedOutAboveTheLargest) {
  TJDBStructure model;
  EXPECT_EQ(AddCondition(model, 0).GetID(), 1);
  EXPECT_EQ(AddCondition(model, 7).GetID(), 7);
  EXPECT_EQ(AddCondition(model, 3).GetID(), 3);
  TDSCondition& last = AddCondition(model, 0);
  EXPECT_EQ(last.GetID(), 8);
  EXPECT_EQ(model.Conditions().GetMaxID(), 8);
  last.SetID(20);
  EXPECT_EQ(model.ConditionByID(20), &last);
  EXPECT_EQ(model.ConditionByID(8), nullptr);
  EXPECT_EQ(model.Conditions().IndexByID(20), 3);
  EXPECT_EQ(AddCondition(model, 0).GetID(), 21) << "no ID twice";
  AddCondition(model, std::numeric_limits<std::int32_t>::max());
  EXPECT_EQ(AddCondition(model, 0).GetID(), 2) << "the smallest free one when there is none above";
}

struct TConditionListener final : TDSListener {
  std::vector<std::int32_t> Removed;
  void ConditionRemoved(TDSCondition& condition) override { Removed.push_back(condition.GetID()); }
};

TEST(Conditions, DeletedOnesAreTakenOutAndForgotten) {
  TJDBStructure model;
  model.AddTable("Orders", "Orders");
  TConditionListener listener;
  model.AddListener(listener);
  for (int i = 0; i < 3; ++i) AddCondition(model, 0, "Orders.No > 1").SetDisplayFormat("c" + std::to_string(i));
  auto editor = std::make_unique<TDSSQLEditor>(&model);
  TDSSQLEditor& query = *editor;
  model.Conditions()[0].Values().Add(std::make_unique<TDSValue>()).SetValueEditor(std::move(editor));
  TJDBInfo info;
  model.SetDatabaseInfo(&info);
  query.Refresh();
  int changes = 0;
  model.OnChange = [&](TJCustomDBStructure&) { ++changes; };
  const std::unique_ptr<TDSCondition> taken = model.Conditions().Delete(0);
  EXPECT_THROW(query.Refresh(), EJDBStructError) << "it asks the model no more";
  EXPECT_EQ(taken->GetDBStruct(), nullptr);
  EXPECT_TRUE(taken->Tables().Empty());
  taken->SetDisplayFormat("nobody listens");
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(model.ConditionByID(1), nullptr);
  TStrings captions;
  model.GetConditionCaptions(captions);
  EXPECT_EQ(captions, (TStrings{"c1", "c2"}));
  EXPECT_THROW(static_cast<void>(model.Conditions().Delete(2)), EListError);
  model.Conditions().Clear();
  model.Conditions().Clear();
  EXPECT_EQ(listener.Removed, (std::vector<std::int32_t>{1, 2, 3}));
  EXPECT_EQ(changes, 2);
  EXPECT_EQ(model.ConditionByID(2), nullptr);
  model.RemoveListener(listener);
}

TEST(Conditions, FindTheTablesThatTheyMention) {
  TJDBStructure model;
  model.AddTable("Orders", "Orders");
  model.AddTable("Customer", "Customer");
  TDSCondition& condition = AddCondition(model, 0, "orders.Total > customer.Limit and Orders.Paid = 0");
  EXPECT_EQ(condition.Tables().GetCommaText(), "Orders,Customer");
  condition.SetSQLExpr("exists (select * from x)");
  EXPECT_TRUE(condition.Tables().Empty());
}

TEST(Conditions, MentionTablesByAliasOrNameInFrontOfAColumn) {
  TJDBStructure model;
  model.AddTable("Orders", "Orders");
  model.AddTable("Order Details", "Lines");
  model.AddTable("Staff", "Staff");
  model.GetTable(2).SetTableAlias("Orders2");
  model.AddTable("Orders2", "An alias wins over this name");
  const struct {
    std::string_view Expr, Tables, References;
  } cases[] = {
      {"Total * 1.5 + x.y", "", ""},
      {"sum(ORDERS . Total) + Orders.Tax + Orders.Tax", "Orders", "ORDERS.Total|Orders.Tax"},
      {"Orders2.No", "Staff", "Orders2.No"},
      {"Order_Details.\"Unit Price\" * \"Order Details\".Qty", "\"Order Details\"",
       "Order_Details.\"Unit Price\"|\"Order Details\".Qty"},
      {"'Orders.A' -- Orders.B\n/* Orders.C */ + \"Orders.D\"", "", ""},
      {"Main.Staff.No + dbo.Orders.No", "Staff,Orders", "Main.Staff.No|dbo.Orders.No"},
      {"count(Orders.*)", "Orders", ""},
      {"Orders.Fn(1) + Orders.", "", ""},
      {"\"it's\" + Orders.No || Orders.\"open", "Orders", "Orders.No"},
  };
  for (const auto& [expr, mentioned, qualified] : cases) {
    TSimpleDSTableList tables;
    TStrings references;
    model.ExcludeTablesBySQLExpr(expr, tables, references);
    EXPECT_EQ(tables.GetCommaText(), mentioned) << expr;
    EXPECT_EQ(references.Joined("|"), qualified) << expr;
  }
}

TEST(ValueEditors, QueriesTakeTheirParameters) {
  TDSSQLEditor editor(nullptr);
  editor.SetSQL({"select a from t where x = :Id and t = '10:30'"});
  editor.SetSQLParams({"Id=:Other", "Other=5=5", "", "=x", "10"});
  EXPECT_EQ(editor.GetSQLText(), "select a from t where x = 5=5 and t = '10:30'\r\n");
  EXPECT_TRUE(editor.HasParameter("I"));
  EXPECT_FALSE(editor.HasParameter("id"));
}

TEST(ValueEditors, OpeningAsksTheDatabaseInfo) {
  TJDBStructure model;
  TDSSQLEditor editor(&model);
  editor.SetSQL({"select :x"});
  try {
    editor.SetOpened(true);
    FAIL();
  } catch (const EJDBStructError& error) {
    EXPECT_EQ(error.ErrorCode(), 11);
    EXPECT_STREQ(error.what(), "DatabaseInfo is not specified");
  }
  TJDBInfo info;
  std::vector<std::string> asked;
  info.OnGetSQLValues = [&](TJDBInfo&, std::string_view sql, TStrings& values, TStrings& items) {
    asked.emplace_back(sql);
    values.Add("1");
    items.Add("one");
    if (asked.size() == 3) throw EException("connection lost");
  };
  model.SetDatabaseInfo(&info);
  editor.SetOpened(true);
  editor.SetOpened(true);
  EXPECT_EQ(editor.Items(), TStrings{"one"});
  editor.SetSQLParams({"x=7"});
  EXPECT_FALSE(editor.GetOpened());
  EXPECT_TRUE(editor.Items().Empty() && editor.Values().Empty());
  editor.SetOpened(true);
  EXPECT_EQ(editor.Values(), TStrings{"1"});
  EXPECT_THROW(editor.Refresh(), EException);
  EXPECT_FALSE(editor.GetOpened());
  EXPECT_TRUE(editor.Items().Empty() && editor.Values().Empty());
  EXPECT_EQ(asked, (std::vector<std::string>{"select :x\r\n", "select 7\r\n", "select 7\r\n"}));
}

}  // namespace
}  // namespace tolvi
