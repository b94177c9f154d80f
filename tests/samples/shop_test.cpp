#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "shop_database.h"
#include "support/shop_reference.h"
#include <tolvi/foundation/files.h>
#include <tolvi/foundation/text.h>
#include <tolvi/panel/rfldeditor.h>
#include <tolvi/query/querpnl.h>

// Every sample query gives the rows of an independent formulation in SQL, in its literal and its bound form, with
// joins and in comma style.

namespace tolvi {
namespace {

namespace fs = std::filesystem;

const fs::path Shop = fs::path(TOLVI_SOURCE_DIR) / "samples/shop";

TRows ReferenceRows(TShop& shop, const TReference& reference) {
  return shop.Rows(reference.SQL, [&reference](sqlite3_stmt* statement) {
    for (const auto& [name, value] : reference.Params) {
      const int index = sqlite3_bind_parameter_index(statement, (":" + name).c_str());
      sqlite3_bind_text(statement, index, value.c_str(), -1, SQLITE_TRANSIENT);
    }
  });
}

class ShopQuery : public testing::TestWithParam<std::string> {};

TEST_P(ShopQuery, GivesTheRowsOfItsReference) {
  const TReference reference(GetParam());
  TJDBStructure model;
  model.LoadFromFile(Shop / "shop.model");
  TJQueryPanel panel;
  panel.SetDBStruct(&model);
  panel.LoadFromFile(Shop / "queries" / (GetParam() + ".qry"));
  EXPECT_TRUE(panel.LoadWarnings().empty());
  const std::string saved = ReadFile(Shop / "queries" / (GetParam() + ".qry"));
  EXPECT_EQ(ReplaceStr(panel.SaveToText(), "\r\n", "\n"), saved) << "the sample is in the current format";
  for (const auto& [name, value] : reference.Params) {
    TSQLParam* param = panel.QResult().FindParameter(name);
    ASSERT_NE(param, nullptr) << name;
    param->SetValue(value);
  }

  TShop shop;
  TRows expected = ReferenceRows(shop, reference);
  EXPECT_FALSE(expected.empty());
  if (reference.Unordered) std::sort(expected.begin(), expected.end());
  const auto check = [&](TRows rows, const char* what) {
    if (reference.Unordered) std::sort(rows.begin(), rows.end());
    EXPECT_EQ(rows, expected) << what << "\n" << panel.GetQueryText();
  };
  check(shop.BoundRows(panel.GetBoundStatement()), "bound");
  if (reference.Params.empty()) check(shop.Rows(panel.GetQueryText()), "literal");
  EXPECT_TRUE(panel.QResult().Warnings().empty());
  if (reference.JoinStyleOnly) return;
  panel.SetSQLSyntax(ssSQL1);
  check(shop.BoundRows(panel.GetBoundStatement()), "comma style");
}

std::vector<std::string> QueryNames() {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(Shop / "queries")) names.push_back(entry.path().stem().string());
  std::sort(names.begin(), names.end());
  return names;
}

INSTANTIATE_TEST_SUITE_P(All, ShopQuery, testing::ValuesIn(QueryNames()),
                         [](const auto& instance) { return ReplaceStr(instance.param, "-", "_"); });

TEST(ShopModel, IsWrittenAsItStands) {
  TJDBStructure model;
  model.LoadFromFile(Shop / "shop.model");
  EXPECT_EQ(ReplaceStr(model.GetStructString(), "\r\n", "\n"), ReadFile(Shop / "shop.model"));
}

TEST(ShopModel, ListsValuesByTheFunctionOfItsDatabase) {
  TJDBStructure model;
  model.LoadFromFile(Shop / "shop.model");
  TJQueryPanel panel;
  panel.SetDBStruct(&model);
  TRFieldEditor editor(panel.RFields(), TTitles());
  for (const char* name : {"Countries.Region", "Countries.CountryName"}) {
    editor.Create(std::vector{model.FieldByName(fnFullName, name)});
  }
  editor.SetAggregate(agList);
  panel.RFields().Assign(editor.Fields());
  TShop shop;
  TRows rows = shop.Rows(panel.GetQueryText());
  TRows expected = shop.Rows("select Region, group_concat(CountryName) from Countries group by Region");
  EXPECT_GT(rows.size(), 1u);
  std::sort(rows.begin(), rows.end());
  std::sort(expected.begin(), expected.end());
  EXPECT_EQ(rows, expected) << panel.GetQueryText();
}

}  // namespace
}  // namespace tolvi
