#include <algorithm>
#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <tolvi/foundation/files.h>
#include <tolvi/foundation/text.h>
#include <tolvi/query/querpnl.h>

// Every sample query gives the rows of an independent formulation in SQL, in its literal and its bound form, with
// joins and in comma style.

namespace tolvi {
namespace {

namespace fs = std::filesystem;
using TRows = std::vector<std::string>;

const fs::path Shop = fs::path(TOLVI_SOURCE_DIR) / "samples/shop";
const fs::path References = fs::path(TOLVI_SOURCE_DIR) / "tests/samples/reference";

/// A hand-written statement and what its head says: "-- param NAME=VALUE", "-- unordered", "-- sql2 only".
struct TReference {
  explicit TReference(const std::string& name) {
    SQL = ReadFile(References / (name + ".sql"));
    for (std::string_view line : SplitLines(SQL)) {
      if (line == "-- unordered") Unordered = true;
      if (line == "-- sql2 only") JoinStyleOnly = true;
      if (!line.starts_with("-- param ")) continue;
      const auto [param, value] = GetNameAndValueSep(line.substr(9), "=");
      Params[std::string(param)] = value;
    }
  }
  std::string SQL;
  bool Unordered = false, JoinStyleOnly = false;
  std::map<std::string, std::string> Params;
};

class TShop {
 public:
  TShop() {
    sqlite3* database = nullptr;
    if (sqlite3_open_v2(TOLVI_SHOP_DATABASE, &database, SQLITE_OPEN_READONLY, nullptr) != SQLITE_OK) {
      throw EException(sqlite3_errmsg(database));
    }
    FDatabase.reset(database);
  }

  /// The rows as text; `bind` binds the values of the statement.
  template <typename TBind>
  TRows Rows(const std::string& sql, TBind bind) {
    sqlite3_stmt* raw = nullptr;
    if (sqlite3_prepare_v2(FDatabase.get(), sql.c_str(), -1, &raw, nullptr) != SQLITE_OK) {
      throw EException(std::string(sqlite3_errmsg(FDatabase.get())) + " in " + sql);
    }
    const std::unique_ptr<sqlite3_stmt, decltype(&sqlite3_finalize)> statement(raw, &sqlite3_finalize);
    bind(raw);
    TRows rows;
    int state = 0;
    while ((state = sqlite3_step(raw)) == SQLITE_ROW) {
      std::string row;
      for (int i = 0; i < sqlite3_column_count(raw); ++i) {
        const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(raw, i));
        row.append(text != nullptr ? text : "<null>").append("|");
      }
      rows.push_back(std::move(row));
    }
    if (state != SQLITE_DONE) throw EException(std::string(sqlite3_errmsg(FDatabase.get())) + " in " + sql);
    return rows;
  }

  TRows ReferenceRows(const TReference& reference) {
    return Rows(reference.SQL, [&reference](sqlite3_stmt* statement) {
      for (const auto& [name, value] : reference.Params) {
        const int index = sqlite3_bind_parameter_index(statement, (":" + name).c_str());
        sqlite3_bind_text(statement, index, value.c_str(), -1, SQLITE_TRANSIENT);
      }
    });
  }

  TRows BoundRows(const TBoundStatement& bound) {
    return Rows(bound.SQL, [&bound](sqlite3_stmt* statement) {
      int index = 0;
      for (const TBoundValue& value : bound.Values) {
        ++index;
        const bool isNumber = TryStrToInt(value.Text) && value.Type == ftBoolean;
        if (const auto* number = std::get_if<std::int64_t>(&value.Value)) {
          sqlite3_bind_int64(statement, index, *number);
        } else if (isNumber) {
          sqlite3_bind_int64(statement, index, *TryStrToInt(value.Text));
        } else if (const auto* real = std::get_if<double>(&value.Value);
                   real != nullptr && !DateFieldTypes.Contains(value.Type)) {
          sqlite3_bind_double(statement, index, *real);
        } else if (FloatFieldTypes.Contains(value.Type)) {
          sqlite3_bind_double(statement, index, StrToFloat(value.Text));
        } else {
          sqlite3_bind_text(statement, index, value.Text.c_str(), -1, SQLITE_TRANSIENT);
        }
      }
    });
  }

 private:
  std::unique_ptr<sqlite3, decltype(&sqlite3_close)> FDatabase{nullptr, &sqlite3_close};
};

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
  TRows expected = shop.ReferenceRows(reference);
  EXPECT_FALSE(expected.empty());
  if (reference.Unordered) std::sort(expected.begin(), expected.end());
  const auto check = [&](TRows rows, const char* what) {
    if (reference.Unordered) std::sort(rows.begin(), rows.end());
    EXPECT_EQ(rows, expected) << what << "\n" << panel.GetQueryText();
  };
  check(shop.BoundRows(panel.GetBoundStatement()), "bound");
  if (reference.Params.empty()) check(shop.Rows(panel.GetQueryText(), [](sqlite3_stmt*) {}), "literal");
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

}  // namespace
}  // namespace tolvi
