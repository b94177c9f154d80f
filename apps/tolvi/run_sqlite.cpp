#include "apps/tolvi/run_sqlite.h"

#include <cstdint>
#include <optional>

#include <sqlite3.h>

#include <tolvi/foundation/text.h>

namespace tolvi {
namespace {

constexpr int BusyMilliseconds = 5000;

class TStatement {
 public:
  TStatement(sqlite3* database, const std::string& sql) : FDatabase(database) {
    Check(sqlite3_prepare_v2(database, sql.data(), static_cast<int>(sql.size()), &FHandle, nullptr));
  }
  ~TStatement() { sqlite3_finalize(FHandle); }
  TStatement(const TStatement&) = delete;
  TStatement& operator=(const TStatement&) = delete;

  void Bind(int index, const TBoundValue& value, bool quotedBooleans) {
    if (value.IsMissing) {
      Check(sqlite3_bind_null(FHandle, index));
    } else if (const auto truth = Truth(value, quotedBooleans)) {
      Check(sqlite3_bind_int(FHandle, index, *truth ? 1 : 0));
    } else if (const auto* whole = std::get_if<std::int64_t>(&value.Value)) {
      Check(sqlite3_bind_int64(FHandle, index, *whole));
    } else if (const auto number = Number(value)) {
      Check(sqlite3_bind_double(FHandle, index, *number));
    } else {
      Check(sqlite3_bind_text64(FHandle, index, value.Text.data(), value.Text.size(), SQLITE_TRANSIENT, SQLITE_UTF8));
    }
  }

  /// False after the last row.
  bool Next() {
    const int code = sqlite3_step(FHandle);
    if (code != SQLITE_ROW && code != SQLITE_DONE) Check(code);
    return code == SQLITE_ROW;
  }

  std::vector<std::string> Columns() const {
    std::vector<std::string> names;
    for (int i = 0; i < sqlite3_column_count(FHandle); ++i) names.emplace_back(sqlite3_column_name(FHandle, i));
    return names;
  }

  void Read(std::vector<TCell>& cells) const {
    cells.clear();
    for (int i = 0; i < sqlite3_column_count(FHandle); ++i) cells.push_back(Cell(i));
  }

 private:
  void Check(int code) const {
    if (code != SQLITE_OK) throw ESQLiteError(sqlite3_errmsg(FDatabase));
  }

  TCell Cell(int column) const {
    const int type = sqlite3_column_type(FHandle, column);
    if (type == SQLITE_NULL) return {};
    // The pointer must be asked for before the size.
    const void* data =
        type == SQLITE_BLOB ? sqlite3_column_blob(FHandle, column) : sqlite3_column_text(FHandle, column);
    const auto size = static_cast<std::size_t>(sqlite3_column_bytes(FHandle, column));
    const std::string_view text(static_cast<const char*>(data), size);
    return {type == SQLITE_BLOB ? ckBytes : type == SQLITE_TEXT ? ckText : ckNumber, text};
  }

  /// SQLite has no booleans: the words true and false are its numbers 1 and 0.
  static std::optional<bool> Truth(const TBoundValue& value, bool quotedBooleans) {
    if (value.Type != ftBoolean || quotedBooleans) return {};
    if (AsciiSameText(value.Text, "true") || value.Text == "1") return true;
    if (AsciiSameText(value.Text, "false") || value.Text == "0") return false;
    return {};
  }

  /// Numbers must be bound as such: SQLite sorts every text behind every number.
  static std::optional<double> Number(const TBoundValue& value) {
    if (value.Type == ftBoolean) return TryStrToFloat(value.Text);
    if (!FloatFieldTypes.Contains(value.Type)) return {};
    if (const auto* number = std::get_if<double>(&value.Value)) return *number;
    return TryStrToFloat(value.Text);
  }

  sqlite3* FDatabase;
  sqlite3_stmt* FHandle = nullptr;
};

}  // namespace

void TSQLiteDatabase::TClose::operator()(sqlite3* database) const { sqlite3_close(database); }

TSQLiteDatabase::TSQLiteDatabase(const std::string& fileName) {
  sqlite3* database = nullptr;
  const int code = sqlite3_open_v2(fileName.c_str(), &database, SQLITE_OPEN_READONLY, nullptr);
  FDatabase.reset(database);
  if (code != SQLITE_OK) throw ESQLiteError(database ? sqlite3_errmsg(database) : sqlite3_errstr(code));
  sqlite3_busy_timeout(database, BusyMilliseconds);
}

void TSQLiteDatabase::Run(const TBoundStatement& statement, bool quotedBooleans, TRowWriter& writer,
                          const std::function<void()>& rowDone) const {
  TStatement prepared(FDatabase.get(), statement.SQL);
  int index = 0;
  for (const TBoundValue& value : statement.Values) prepared.Bind(++index, value, quotedBooleans);
  // The first step shows whether the statement runs at all, before anything is printed.
  bool isRow = prepared.Next();
  writer.Begin(prepared.Columns());
  std::vector<TCell> cells;
  for (; isRow; isRow = prepared.Next()) {
    prepared.Read(cells);
    writer.Row(cells);
    rowDone();
  }
  writer.End();
}

}  // namespace tolvi
