#pragma once

#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "apps/tolvi/output.h"
#include <tolvi/query/values.h>

struct sqlite3;
struct sqlite3_stmt;

namespace tolvi {

/// What SQLite says about a database or a statement.
class ESQLiteError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// An SQLite database, opened for reading only. Raises `ESQLiteError`.
class TSQLiteDatabase final {
 public:
  explicit TSQLiteDatabase(const std::string& fileName);

  /// Runs a statement whose markers are "?" and hands each row to `writer` as it comes. `quotedBooleans`: booleans are
  /// texts in the database. `rowDone` is called after each row; what it raises ends the run.
  void Run(const TBoundStatement& statement, bool quotedBooleans, TRowWriter& writer,
           const std::function<void()>& rowDone) const;

 private:
  struct TClose {
    void operator()(sqlite3* database) const;
  };
  std::unique_ptr<sqlite3, TClose> FDatabase;
};

}  // namespace tolvi
