// What the pages of tables and fields of a model editor do to a model.
#include <gtest/gtest.h>

#include "support/models.h"
#include <tolvi/panel/modelentities.h>
#include <tolvi/panel/modeltables.h>

namespace tolvi {
namespace {

std::string Aliases(const TJCustomDBStructure& model) {
  TStrings aliases;
  model.GetTableNames(tnAlias, aliases);
  return aliases.Joined(" ");
}

/// "root: 1 2 | Name: 3", the root group last, with the fields' IDs.
std::string Outline(TJCustomDBStructure& model) {
  std::string outline;
  for (const std::size_t number : GroupNumbers(model)) {
    const TDSFieldGroup& group = GroupByNumber(model, number);
    outline += (outline.empty() ? "" : " | ") + (number == 0 ? "root" : group.GetGroupName()) + ":";
    for (const TDSField* field : group) outline += " " + std::to_string(field->GetID());
  }
  return outline;
}

TEST(ModelTables, MoveTogetherAndStopAtTheEnds) {
  const auto model = OrdersModel();
  EXPECT_EQ(StepTables(*model, {0, 2}, 1), (std::vector<std::size_t>{1, 3}));
  EXPECT_EQ(Aliases(*model), "Orders Customers Products Order_Details");
  EXPECT_EQ(StepTables(*model, {1, 3}, 1), (std::vector<std::size_t>{2, 3}));
  EXPECT_EQ(StepTables(*model, {2, 3}, 1), (std::vector<std::size_t>{2, 3})) << "both are as low as they can be";
  EXPECT_EQ(StepTables(*model, {3, 0}, -1), (std::vector<std::size_t>{0, 2}));
  EXPECT_EQ(Aliases(*model), "Orders Products Order_Details Customers");
}

TEST(ModelTables, TypedByHandGetAnAliasOfTheirOwn) {
  const auto model = OrdersModel();
  const struct {
    std::string_view name, alias, displayName;
    bool quoted;
  } cases[] = {{"orders", "orders_2", "Orders", false},
               {"shop.\"My Table\"", "My_Table", "My Table", false},
               {"My Table", "My_Table_2", "My Table", true}};
  for (const auto& [name, alias, displayName, quoted] : cases) {
    const TDSTable& table = AddTableByHand(*model, name);
    EXPECT_EQ(table.GetTableName(), name);
    EXPECT_EQ(table.GetTableAlias(), alias);
    EXPECT_EQ(table.GetQuoted(), quoted) << name;
  }
}

TEST(ModelTables, ADefaultMainTableThatIsDeletedIsNoneAnyMore) {
  const auto model = OrdersModel();
  model->SetDefaultMainTable("orders");
  DeleteTables(*model, {0, 3});
  EXPECT_EQ(model->GetDefaultMainTable(), "orders");
  DeleteTables(*model, {0});
  EXPECT_EQ(Aliases(*model), "Order_Details");
  EXPECT_EQ(model->GetDefaultMainTable(), "");
}

TEST(ModelTables, AnotherAliasIsWrittenWhereTheOldOneNamesATable) {
  const auto model = OrdersModel();
  const TDSTable& orders = *model->TableByName(tnAlias, "Orders");
  const struct {
    std::string_view expr, alias, expected;
  } cases[] = {
      {"orders.Total * 2 -- Orders.Total", "O", "O.Total * 2 -- Orders.Total"},
      {"'Orders.Total' || \"Orders\" . Total", "O", "'Orders.Total' || \"O\" . Total"},
      {"count(Orders.*) + MyOrders.x + Orders", "O", "count(O.*) + MyOrders.x + Orders"},
      {"shop.Orders.Total + Orders(1)", "O", "shop.Orders.Total + Orders(1)"},
      {"Orders.Total", "All orders", "\"All orders\".Total"},
  };
  for (const auto& [expr, alias, expected] : cases) EXPECT_EQ(WithOtherAlias(*model, expr, orders, alias), expected);
}

TEST(ModelTables, WhatUsesAnAliasFollowsWhenAsked) {
  const auto model = OrdersModel();
  TDSTable& details = *model->TableByName(tnAlias, "Order_Details");
  TDSTable& orders = *model->TableByName(tnAlias, "Orders");
  EXPECT_EQ(UsesOfAlias(*model, details).Fields, (TFieldIDs{19, 20}));
  EXPECT_EQ(UsesOfAlias(*model, orders).Conditions, (std::vector<std::int32_t>{1, 2}));
  model->SetDefaultMainTable("orders");
  ChangeAlias(*model, orders, "My orders", true);
  EXPECT_EQ(orders.GetTableAlias(), "My_orders");
  EXPECT_EQ(model->GetDefaultMainTable(), "My_orders");
  EXPECT_EQ(model->ConditionByID(2)->GetSQLExpr(), "My_orders.SaleDate between @1 and @2");
  EXPECT_EQ(model->ConditionByID(2)->Tables().Count(), 1u);
  ChangeAlias(*model, details, "D", false);
  EXPECT_EQ(model->FieldByID(20)->GetSQLExpr(), "sum(Order_Details.Qty)");
  EXPECT_EQ(model->FieldByID(20)->Tables().Count(), 0u) << "nobody has written it anew";
}

TEST(ModelEntities, FieldsMoveWithinAndBetweenGroups) {
  const auto model = OrdersModel();
  while (model->Fields().Count() > 6) model->DelField(6);
  const std::size_t people = AddGroup(*model, "People"), more = AddGroup(*model, "people");
  EXPECT_EQ(model->FieldGroups()[1].GetGroupName(), "people 2");
  MoveFields(*model, {1, 2, 3}, people, 0);
  EXPECT_EQ(Outline(*model), "People: 1 2 3 | people 2: | root: 4 5 6");
  MoveFields(*model, {3, 4, 1}, people, 2);
  EXPECT_EQ(Outline(*model), "People: 2 1 3 4 | people 2: | root: 5 6") << "before the one that was at that place";
  StepFields(*model, {1, 5}, -1);
  EXPECT_EQ(Outline(*model), "People: 1 2 3 4 | people 2: | root: 5 6");
  StepFields(*model, {3, 4}, 1);
  StepFields(*model, {3, 4}, 1);
  EXPECT_EQ(Outline(*model), "People: 1 2 | people 2: | root: 3 4 5 6") << "over the edge into the next group";
  StepFields(*model, {3, 5}, -1);
  EXPECT_EQ(Outline(*model), "People: 1 2 | people 2: | root: 3 5 4 6");
  StepFields(*model, {3}, -1);
  EXPECT_EQ(Outline(*model), "People: 1 2 | people 2: 3 | root: 5 4 6");
  EXPECT_EQ(StepGroups(*model, {more, 0}, -1), (std::vector<std::size_t>{1}));
  model->SetRootFieldsFirst(true);
  EXPECT_EQ(Outline(*model), "root: 5 4 6 | people 2: 3 | People: 1 2");
  DeleteGroups(*model, {1, 2});
  DeleteFields(*model, {4, 99, 1});
  EXPECT_EQ(Outline(*model), "root: 5 6 2 3");
}

TEST(ModelEntities, NewFieldsStandWhereTheyAreWantedWithTheirOperators) {
  const auto model = OrdersModel();
  TJDBInfo info;
  info.OnFieldsRequest = [](TJDBInfo&, std::string_view, TDBFieldList& fields) {
    fields.Add("Total", ftFloat);
    fields.Add("Paid on", ftDate);
  };
  model->SetDatabaseInfo(&info);
  TDSTable& orders = *model->TableByName(tnAlias, "Orders");
  EXPECT_EQ(UnusedColumns(*model, orders), TStrings{"Paid on"});
  const std::size_t group = AddGroup(*model, "Money");
  MoveFields(*model, {11}, group, 0);
  const TFieldIDs added = AddColumns(*model, orders, {"Paid on"}, group, 0);
  const std::int32_t expression = AddExpression(*model, "Total", group, 9);
  EXPECT_EQ(Outline(*model).substr(0, 16), "Money: 21 11 22 ");
  const TDSField& paid = *model->FieldByID(added.front());
  EXPECT_EQ(paid.GetFieldType(), ftDate);
  EXPECT_TRUE(paid.GetQuoted());
  EXPECT_GT(paid.GetOperatCount(), 5u);
  EXPECT_EQ(model->FieldByID(expression)->GetDisplayName(), "Total 2");
  EXPECT_THROW(AddColumns(*model, orders, {"Nothing"}, 0, 0), EJDBStructError);
  model->SetDatabaseInfo(nullptr);
  EXPECT_EQ(ColumnsOf(*model, orders).Count(), 7u) << "without a catalogue, what the model has";
}

TEST(ModelEntities, KindTypeAndExpressionChangeWithWhatFollowsThem) {
  const auto model = OrdersModel();
  TDSField& total = FieldOf(*model, "Orders.Total");
  total.SetQuoted(true);
  ChangeKind(total, jfkVirtual);
  EXPECT_EQ(total.GetSQLExpr(), "Orders.\"Total\"");
  ChangeKind(total, jfkData);
  EXPECT_EQ(total.GetFieldName(), "Total");
  EXPECT_TRUE(total.GetQuoted());
  EXPECT_EQ(total.GetTable(), model->TableByName(tnAlias, "Orders"));

  TDSField& sum = FieldOf(*model, "Quantity sold");
  ChangeExpr(sum, "Order_Details.Qty");
  EXPECT_FALSE(sum.GetIsAggregate());
  sum.SetIsAggregate(true);
  ChangeExpr(sum, "Order_Details.Qty + 1");
  EXPECT_TRUE(sum.GetIsAggregate()) << "set apart from the expression";

  const std::size_t before = total.GetOperatCount();
  ChangeType(total, ftMemo);
  EXPECT_LT(total.GetOperatCount(), before);
  total.ClearOperators();
  ChangeType(total, ftString);
  EXPECT_EQ(total.GetOperatCount(), 0u) << "somebody's own choice stays";
}

TEST(ModelEntities, OperatorsAreOfferedBySeveralFieldsAtOnce) {
  const auto model = OrdersModel();
  TDSField &one = FieldOf(*model, "Orders.Total"), &other = FieldOf(*model, "Orders.OrderNo");
  TDSOperator &equal = OperatorOf(*model, "Equal"), &null = OperatorOf(*model, "IsNull");
  for (TDSField* field : {&one, &other}) field->ClearOperators();
  OfferOperators({&one}, {&equal});
  EXPECT_FALSE(OfferedOperators({&one, &other}).front().ByAll);
  EXPECT_EQ(MissingOperators(*model, {&one, &other}).size(), model->GetOperatCount());
  OfferOperators({&one, &other}, {&equal, &null});
  const auto offered = OfferedOperators({&one, &other});
  EXPECT_EQ(offered.size(), 2u);
  EXPECT_TRUE(offered[0].ByAll && offered[1].ByAll);
  StepOperators({&one, &other}, {&null}, -1);
  EXPECT_EQ(&other.GetOperator(0), &null);
  WithdrawOperators({&one, &other}, {&null, &null});
  EXPECT_EQ(one.GetOperatCount() + other.GetOperatCount(), 2u);
}

}  // namespace
}  // namespace tolvi
