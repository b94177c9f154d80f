#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <tolvi/connect/api.h>
#include <tolvi/connect/connecturl.h>
#include <tolvi/connect/sqlvalue.h>
#include <tolvi/foundation/fieldtypes.h>
#include <tolvi/query/values.h>

namespace tolvi {

class TJQueryPanel;

/// A statement was ended by `TJQueryRunner::Cancel`.
class TOLVI_CONNECT_API ECancelledError final : public EConnectError {
 public:
  using EConnectError::EConnectError;
};

/// Runs queries on an open connection and reads their rows one by one. Values are bound, never pasted.
///
///   TJQueryRunner runner(connection.GetName());
///   runner.Run(panel);
///   while (runner.Next()) std::puts(runner.Value(0).Text.c_str());
///
/// Belongs to the thread of its connection, but for `Cancel`. While rows are being read, the connection is not used for
/// anything else. Errors of the database are `EConnectError`s with its words and the statement.
class TOLVI_CONNECT_API TJQueryRunner final {
 public:
  /// Asked for the value of a parameter that has none, as text of the type in the locale of the query; nothing: do not
  /// run the query. The display name is what to ask a person for.
  using TParamRequestEvent =
      std::function<std::optional<std::string>(std::string_view name, std::string_view displayName, TFieldType type)>;

  explicit TJQueryRunner(std::string_view connectionName);
  ~TJQueryRunner();
  TJQueryRunner(const TJQueryRunner&) = delete;
  TJQueryRunner& operator=(const TJQueryRunner&) = delete;

  TParamRequestEvent OnParamRequest;

  /// Builds the statement of the query and runs it; the query stays as it is. Rows of an earlier one are dropped.
  /// Raises what building raises, too, and `EConnectError` when a parameter gets no value.
  void Run(TJQueryPanel& panel);
  /// Runs a statement whose markers are "?". A value that is missing is NULL. `quotedBooleans`: booleans are texts in
  /// the database.
  void Run(const TBoundStatement& statement, bool quotedBooleans = false);
  /// Goes to the next row; false after the last one, and without a statement.
  bool Next();
  /// Drops the rows that have not been read. PostgreSQL sends them all the same, which takes its time: a query that is
  /// only looked into has a LIMIT.
  void Close();
  /// Ends the statement that runs: `Run` or `Next`, in the connection's thread, raises `ECancelledError`. For a server,
  /// a second connection is made. Where that fails, and on an SQLite that the driver holds for itself, it ends with the
  /// next row. May be called from any thread.
  void Cancel();

  /// The columns of the statement that runs, as it calls them.
  const std::vector<std::string>& Columns() const;
  /// Of the current row. Raises `EListError`; all columns are NULL without a row.
  TSqlValue Value(std::size_t column) const;
  /// How many rows have been read, and how long the database has taken for them.
  std::size_t GetRowCount() const;
  std::chrono::microseconds GetTime() const;
  /// The statement as it was sent.
  const std::string& GetSQL() const;

 private:
  struct TState;

  std::unique_ptr<TState> FState;
};

}  // namespace tolvi
