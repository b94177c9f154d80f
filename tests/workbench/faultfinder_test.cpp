#include "apps/workbench/window/faultfinder.h"

#include <QTest>

#include <gtest/gtest.h>

#include <tolvi/query/querpnl.h>

namespace tolvi {
namespace {

class FaultFinder : public testing::Test {
 protected:
  FaultFinder() {
    FModel.LoadFromFile(TOLVI_SOURCE_DIR "/samples/shop/shop.model");
    FFinder.SetConnection(ParseConnectionUrl("sqlite:" TOLVI_SHOP_DATABASE));
    FQuery.SetDBStruct(&FModel);
    FQuery.SetActive(true);
    FQuery.SetAllowSQLFragments(true);
    FQuery.RFields().Add(*FModel.FieldByName(fnFullName, "Customers.Company"));
    TFilterBracket& inner = FQuery.AddBracket(FQuery.RootBracket());
    TDSField& city = *FModel.FieldByName(fnFullName, "Customers.City");
    FQuery.AddSimpleCond(FQuery.RootBracket(), city, *FModel.OperatorByName("Equal"), "Berlin");
    FQuery.AddSimpleCond(inner, city, *FModel.OperatorByName("Equal"), "Paris");
    FInner = &inner;
  }

  /// The row or the number of the column that is found; "none" when none is within the time.
  std::string Find() {
    std::string found = "none";
    const std::string text = FQuery.SaveToText();
    FFinder.Find(
        [&] {
          auto copy = std::make_unique<TJQueryPanel>();
          copy->SetDBStruct(&FModel);
          copy->SetAllowSQLFragments(true);
          copy->LoadFromText(text);
          return copy;
        },
        "1", [&found](const TFaultPart& part) { found = part.Column < 0 ? part.RowID : std::to_string(part.Column); });
    // As long as a fault may take; a row that is none must not come at all.
    (void)QTest::qWaitFor([&found] { return found != "none"; }, 1000);
    return found;
  }

  TJDBStructure FModel;
  TJQueryPanel FQuery;
  TFilterBracket* FInner = nullptr;
  TFaultFinder FFinder;
};

TEST_F(FaultFinder, FindsTheConditionThatTheDatabaseRefuses) {
  FQuery.AddSQLFragment(*FInner, "no_such_function(Customers.City) > 1");
  EXPECT_EQ(Find(), ".1.2");
  FInner->GetRow(1).SetEnabled(false);
  EXPECT_EQ(Find(), "none") << "it does not take part";
}

TEST_F(FaultFinder, FindsTheColumnThatTheDatabaseRefuses) {
  FQuery.RFields().AddBySQLExpr("no_such_function(Customers.City)");
  FQuery.RFields().Add(*FModel.FieldByName(fnFullName, "Customers.City"));
  EXPECT_EQ(Find(), "1");
  FInner->GetRow(0).SetEnabled(false);
  FQuery.RootBracket().SetEnabled(false);
  EXPECT_EQ(Find(), "1") << "also without conditions";
  static_cast<void>(FQuery.RFields().Delete(0));
  static_cast<void>(FQuery.RFields().Delete(1));
  EXPECT_EQ(Find(), "0") << "also alone";
}

TEST_F(FaultFinder, FindsAColumnThatNamesNoTable) {
  FQuery.RFields().AddBySQLExpr("no_such_function(1)");
  EXPECT_EQ(Find(), "1");
  FQuery.RFields().Move(1, 0);
  EXPECT_EQ(Find(), "0");
  // One that is asked for beside it is not taken for it.
  FQuery.RFields().AddBySQLExpr("no_such_function(Customers.City)");
  static_cast<void>(FQuery.RFields().Delete(1));
  FQuery.RFields().Add(*FModel.FieldByName(fnFullName, "Customers.City"));
  EXPECT_EQ(Find(), "1");
}

TEST_F(FaultFinder, BlamesNoColumnForWhatAllOfThemLack) {
  FQuery.RFields().AddBySQLExpr("upper(Customers.City)");
  FModel.TableByName(tnName, "Customers")->SetTableName("Gone");
  EXPECT_EQ(Find(), "none") << "the table is not in the database";
}

TEST_F(FaultFinder, LooksIntoConditionsThoughThereAreManyColumns) {
  FQuery.AddSQLFragment(*FInner, "no_such_function(Customers.City) > 1");
  for (int i = 0; i < 50; ++i) FQuery.RFields().Add(*FModel.FieldByName(fnFullName, "Customers.City"));
  EXPECT_EQ(Find(), ".1.2");
}

TEST_F(FaultFinder, LooksIntoColumnsThoughThereAreManyConditions) {
  FQuery.RFields().AddBySQLExpr("no_such_function(Customers.City)");
  TDSField& city = *FModel.FieldByName(fnFullName, "Customers.City");
  for (int i = 0; i < 50; ++i) FQuery.AddSimpleCond(*FInner, city, *FModel.OperatorByName("Equal"), "Paris");
  EXPECT_EQ(Find(), "1");
}

TEST_F(FaultFinder, IsSilentWhenEachPartAloneIsTaken) { EXPECT_EQ(Find(), "none"); }

}  // namespace
}  // namespace tolvi
