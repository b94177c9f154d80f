// The sample database as tests read it: rows as texts.
#pragma once

#include <array>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include <sqlite3.h>

#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/fieldtypes.h>
#include <tolvi/foundation/numbers.h>
#include <tolvi/query/querpnl.h>

namespace tolvi {

/// A row is its cells, each followed by "|".
using TRows = std::vector<std::string>;

/// Raises `EException` with SQLite's message and the statement.
class TShop {
 public:
  TShop() {
    sqlite3* database = nullptr;
    const int state = sqlite3_open_v2(TOLVI_SHOP_DATABASE, &database, SQLITE_OPEN_READONLY, nullptr);
    FDatabase.reset(database);
    if (state != SQLITE_OK) throw EException(sqlite3_errmsg(database));
  }

  /// `bind` binds the values of the statement.
  template <typename TBind>
  TRows Rows(const std::string& sql, TBind bind) {
    sqlite3_stmt* raw = nullptr;
    if (sqlite3_prepare_v2(FDatabase.get(), sql.c_str(), -1, &raw, nullptr) != SQLITE_OK) Fail(sql);
    const std::unique_ptr<sqlite3_stmt, decltype(&sqlite3_finalize)> statement(raw, &sqlite3_finalize);
    bind(raw);
    TRows rows;
    int state = 0;
    while ((state = sqlite3_step(raw)) == SQLITE_ROW) {
      std::string row;
      for (int i = 0; i < sqlite3_column_count(raw); ++i) row.append(Cell(raw, i)).append("|");
      rows.push_back(std::move(row));
    }
    if (state != SQLITE_DONE) Fail(sql);
    return rows;
  }

  TRows Rows(const std::string& sql) {
    return Rows(sql, [](sqlite3_stmt*) {});
  }

  TRows BoundRows(const TBoundStatement& bound) {
    return Rows(bound.SQL, [&bound](sqlite3_stmt* statement) {
      int index = 0;
      for (const TBoundValue& value : bound.Values) Bind(statement, ++index, value);
    });
  }

  /// Makes SQLite turn round whatever order a statement does not ask for.
  void ReverseUnordered() { Rows("pragma reverse_unordered_selects = on"); }

 private:
  [[noreturn]] void Fail(const std::string& sql) const {
    throw EException(std::string(sqlite3_errmsg(FDatabase.get())) + " in " + sql);
  }

  // Sums of fractions hang on the order of the rows in their last digits: 12 are kept.
  static std::string Cell(sqlite3_stmt* statement, int column) {
    if (sqlite3_column_type(statement, column) == SQLITE_FLOAT) {
      std::array<char, 32> digits{};
      std::snprintf(digits.data(), digits.size(), "%.12g", sqlite3_column_double(statement, column));
      return digits.data();
    }
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
    return text != nullptr ? text : "<null>";
  }

  static void Bind(sqlite3_stmt* statement, int index, const TBoundValue& value) {
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

  std::unique_ptr<sqlite3, decltype(&sqlite3_close)> FDatabase{nullptr, &sqlite3_close};
};

}  // namespace tolvi
