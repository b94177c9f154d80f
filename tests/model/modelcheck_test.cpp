#include <functional>
#include <string>

#include <gtest/gtest.h>

#include "support/models.h"
#include <tolvi/model/modelcheck.h>

namespace tolvi {
namespace {

std::string Lines(const std::vector<TCheckFinding>& findings) {
  std::string lines;
  for (const TCheckFinding& finding : findings) {
    lines += finding.Severity == csError ? "error " : "warning ";
    lines += "[" + finding.Section + "] " + (finding.Place.empty() ? "" : finding.Place + ": ") + finding.Text + "\n";
  }
  return lines;
}

TEST(ModelCheck, FindsNothingInASoundModel) { EXPECT_EQ(Lines(CheckModel(*OrdersModel())), ""); }

TEST(ModelCheck, TellsOfAnEmptyModel) {
  EXPECT_EQ(Lines(CheckModel(TJDBStructure())),
            "warning [Main] the model has no tables\nwarning [Main] the model has no fields\n");
}

struct TFault {
  std::function<void(TJDBStructure&)> make;
  std::string expected;
};

void Expect(std::initializer_list<TFault> faults) {
  for (const TFault& fault : faults) {
    const auto model = OrdersModel();
    fault.make(*model);
    EXPECT_EQ(Lines(CheckModel(*model)), fault.expected);
  }
}

TEST(ModelCheck, FindsFaultsOfTablesAndLinks) {
  Expect({
      {[](auto& model) { model.SetDefaultMainTable("Clients"); },
       "error [Main] the default main table \"Clients\" is no alias of a table\n"},
      {[](auto& model) { model.GetTable(3).SetTableAlias("orders"); },
       "error [Table:4] Table \"orders\": another table has the same alias\n"},
      {[](auto& model) {
         model.GetLink(0).SetOperators({"=", "=>"});
       },
       "error [Link:Orders-Customers] Link \"Orders - Customers\": the link has 2 comparison symbols for 1 columns\n"
       "warning [Link:Orders-Customers] Link \"Orders - Customers\": \"=>\" is no comparison symbol\n"},
      {[](auto& model) {
         model.GetLink(0).SetFields2({"CustNo", ""});
       },
       "error [Link:Orders-Customers] Link \"Orders - Customers\": the link has 1 columns on the first side and 2 on "
       "the "
       "second\n"
       "error [Link:Orders-Customers] Link \"Orders - Customers\": the link has 1 comparison symbols for 2 columns\n"
       "error [Link:Orders-Customers] Link \"Orders - Customers\": a column name is empty\n"},
      {[](auto& model) { model.AddLinkByExpr("Customers.Seller = Orders.Seller"); },
       "warning [Link:Customers-Orders] Link \"Customers - Orders\": the two tables have a link before this one: joins "
       "always use that\n"},
      {[](auto& model) { model.DelLink(1); },
       "warning [Table:3] Table \"Order_Details\": no chain of links leads from it and the 1 tables linked with it to "
       "table \"Customers\"\n"},
      {[](auto& model) {
         model.DelLink(0);
         model.SetDefaultMainTable("Products");
       },
       "warning [Table:1] Table \"Customers\": no chain of links leads from it to table \"Products\"\n"},
  });
}

TEST(ModelCheck, FindsFaultsOfOperatorsAndConditions) {
  const auto first = [](auto& model) -> TDSOperator& { return model.GetOperator(0); };
  Expect({
      {[&](auto& model) { first(model).SetSQLExpr("@f between @1 and @3"); },
       "error [Operator:1] Operator \"Equal\": the template has \"@3\" but no \"@2\": the value is never filled in\n"},
      {[&](auto& model) { first(model).SetSQLExpr("@1 + @2 = @3"); },
       "error [Operator:1] Operator \"Equal\": the template has 3 values; conditions have at most 2\n"
       "warning [Operator:1] Operator \"Equal\": the template does not mention the field (\"@f\")\n"},
      {[&](auto& model) { first(model).SetName("ISNULL"); },
       "error [Operator:7] Operator \"IsNull\": another operator has the same name\n"},
      {[&](auto& model) { first(model).SetValueKind(vkList), first(model).SetSQLExpr(" "); },
       "error [Operator:1] Operator \"Equal\": the SQL template is empty\n"
       "warning [Operator:1] Operator \"Equal\": the template does not mention the field (\"@f\")\n"
       "warning [Operator:1] Operator \"Equal\": the template has no place for the list (\"@1\")\n"},
      {[](auto& model) { model.Conditions()[1].SetID(1); },
       "error [Cond:2] Condition \"Sold between @ and @\": another condition has the same ID, 1\n"},
      {[](auto& model) { model.Conditions()[1].SetSQLExpr("Sales.Date > @1"); },
       "error [Cond:2] Condition \"Sold between @ and @\": the SQL has 1 places (\"@1\", \"@2\") for 2 values\n"
       "warning [Cond:2] Condition \"Sold between @ and @\": the SQL mentions no table of the model: it brings none "
       "into "
       "the statement\n"},
      {[](auto& model) { model.Conditions()[1].SetDisplayFormat("Sold after @"); },
       "error [Cond:2] Condition \"Sold after @\": the display format has 1 places (\"@\") for 2 values\n"},
  });
}

TEST(ModelCheck, FindsFaultsOfFieldsAndGroups) {
  Expect({
      {[](auto& model) { model.GetField(1).SetID(1); },
       "error [Field:2] Field \"Company\": another field has the same ID, 1\n"},
      {[](auto& model) { model.GetField(1).SetDisplayName("City"), model.GetField(1).SetTable(nullptr); },
       "error [Field:2] Field \"City\": the field has no table\n"
       "warning [Field:3] Field \"City\": another field of its group has the same display name\n"},
      {[](auto& model) { model.GetField(0).ClearOperators(), model.GetField(0).SetDisplayName(""); },
       "warning [Field:1] Field number 1: the display name is empty\n"
       "warning [Field:1] Field number 1: conditions may use the field, but it offers no operator\n"},
      {[](auto& model) { model.GetField(18).SetSQLExpr("1 + 1"), model.GetField(18).SetIsAggregate(true); },
       "warning [Field:19] Field \"Item price\": the SQL expression mentions no table of the model\n"
       "warning [Field:19] Field \"Item price\": the field is marked as an aggregate, but the SQL expression calls no "
       "aggregate function\n"},
      {[](auto& model) { model.GetField(19).SetIsAggregate(false); },
       "warning [Field:20] Field \"Quantity sold\": the SQL expression calls an aggregate function, but the field is "
       "not "
       "marked as an aggregate: conditions on it go to WHERE\n"},
      {[](auto& model) { model.GetField(0).SetEditType(etList), model.GetField(2).SetEditType(etSQL); },
       "warning [Field:1] Field \"Customer no\": the list of values is empty\n"
       "warning [Field:3] Field \"City\": the list of values has no SQL\n"},
      {[](auto& model) { model.FieldGroups().AddGroup("A").Add(model.GetField(0)), model.FieldGroups().AddGroup("a"); },
       "warning [FieldGroup2] Field group \"a\": another group has the same name\n"
       "warning [FieldGroup2] Field group \"a\": the group has no fields\n"},
  });
}

std::string Lines(const TTextFindings& findings) {
  std::string lines;
  for (const TTextFinding& finding : findings) {
    lines += (finding.Severity == csError ? "error " : "warning ") + finding.Text + "\n";
  }
  return lines;
}

TEST(ModelCheck, ChecksNamesAgainstTheOthers) {
  const auto model = OrdersModel();
  model->FieldGroups().AddGroup("Dates");
  const TDSTable* orders = model->TableByName(tnAlias, "Orders");
  EXPECT_EQ(Lines(CheckTableAlias(*model, orders, "ORDERS")), "");
  EXPECT_EQ(Lines(CheckTableAlias(*model, nullptr, "order details")), "error another table has the same alias\n");
  EXPECT_EQ(Lines(CheckTableAlias(*model, orders, "")), "error the alias is empty: nothing can refer to the table\n");
  EXPECT_EQ(Lines(CheckOperatorName(*model, nullptr, "equal")), "error another operator has the same name\n");
  EXPECT_EQ(Lines(CheckOperatorName(*model, &OperatorOf(*model, "Equal"), "equal")), "");
  EXPECT_EQ(Lines(CheckGroupName(*model, nullptr, "dates")), "warning another group has the same name\n");
  EXPECT_EQ(Lines(CheckFieldDisplayName(FieldOf(*model, "Customers.City"), "company")),
            "warning another field of its group has the same display name\n");
}

TEST(ModelCheck, ChecksTypedSQL) {
  const auto model = OrdersModel();
  const auto expr = [&model](std::string_view sql) { return Lines(CheckFieldExpr(*model, jfkVirtual, false, sql)); };
  const auto condition = [&model](std::string_view sql) { return Lines(CheckConditionSQL(*model, sql)); };
  EXPECT_EQ(Lines(CheckOperatorTemplate(vkScalar, "@f like '%@1%' escape '@' or @x@x@0")),
            "warning \"@'\" is no placeholder: those are \"@f\", \"@1\" and \"@2\"\n"
            "warning \"@x\" is no placeholder: those are \"@f\", \"@1\" and \"@2\"\n"
            "warning \"@0\" is no placeholder: those are \"@f\", \"@1\" and \"@2\"\n");
  EXPECT_EQ(Lines(CheckOperatorTemplate(vkList, "exists (@2) @")),
            "error the template has \"@2\" but no \"@1\": the value is never filled in\n"
            "warning the template does not mention the field (\"@f\")\n"
            "warning the template has no place for the list (\"@1\")\n"
            "warning nothing follows the \"@\" at the end\n");
  EXPECT_EQ(expr("upper(Orders.OrderNo) || 'Customers.Nobody' || \"Order_Details\".\"Qty\""), "");
  EXPECT_EQ(expr("Orders.Weight + Ordrs.OrderNo + util.f(Orders.Total)"),
            "warning the model has no field for the column \"Weight\" of table \"Orders\"\n"
            "warning the model has no table \"Ordrs\"\n");
  EXPECT_EQ(expr("(select max(o.Total) from Orders o where o.CustNo = Customers.CustNo)"), "");
  EXPECT_EQ(condition("Orders.Total > @1 and Orders.Total < @f"),
            "warning \"@f\" is no placeholder: those are \"@1\" and \"@2\"\n");
  EXPECT_EQ(condition(" "), "error the SQL template is empty\n");
  EXPECT_EQ(Lines(CheckConditionFormat("Orders.Total > @1", "more than @ and @")),
            "error the display format has 2 places (\"@\") for 1 values\n");
}

}  // namespace
}  // namespace tolvi
