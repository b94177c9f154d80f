#pragma once

#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QString>
#include <QVariant>
#include <QVariantList>
#include <optional>
#include <string>
#include <string_view>

#include <tolvi/connect/connecturl.h>
#include <tolvi/connect/sqlvalue.h>

// What the files of this folder share: the way from and to the database layer.

namespace tolvi {

QString ToQString(std::string_view text);
std::string FromQString(const QString& text);

/// Drivers are plugins, which an application object loads. Makes one if there is none.
void EnsureApplication();

QString DriverOf(TDatabaseKind kind);

/// The table of query stores, as statements name it.
constexpr std::string_view QueryTable = "tolvi_queries";

/// An open database and what it is.
struct TSqlSession {
  QSqlDatabase Database;
  TDatabaseKind Kind = dkSQLite;
};

/// The open connection of that name. Raises `EConnectError` when there is none, it is closed, belongs to another
/// thread, or its driver is not known.
TSqlSession SessionOf(std::string_view connectionName);

/// What the database said, or else the driver.
std::string WordsOf(const QSqlError& error);
/// Raises `EConnectError` with these words and the statement.
[[noreturn]] void RaiseStatementError(const QSqlError& error, std::string_view sql);

/// Runs a statement with values for its "?", for reading its rows forward only. Raises `EConnectError`, which names the
/// statement, or what it was made of.
QSqlQuery RunSql(const QSqlDatabase& database, std::string_view sql, const QVariantList& values = {},
                 std::string_view madeOf = {});
/// The next row; false after the last one. Raises `EConnectError`.
bool NextRow(QSqlQuery& query, std::string_view sql);
/// The text of a column; empty for NULL.
std::string TextAt(const QSqlQuery& query, int column);

/// The name in quotes for statements, which all kinds take (`TSqlConnection` sees to it).
std::string QuotedName(std::string_view name, TDatabaseKind kind);

/// What the values of a column are that the driver gives as texts, because no other type of it holds all of them.
TSqlValueKind KindOfTexts(TDatabaseKind kind, int typeId);
TSqlValue ToSqlValue(const QVariant& value, bool isNull, TSqlValueKind kindOfTexts = svText);

}  // namespace tolvi
