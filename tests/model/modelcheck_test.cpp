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

}  // namespace
}  // namespace tolvi
