#pragma once

#include <QJsonObject>
#include <QString>
#include <string>

namespace tolvi {

/// What a user opens: a database, with the data model and the queries that belong to it.
struct TSource {
  /// As `ParseConnectionUrl` takes it, without a password.
  std::string Url = {};
  /// Empty: the workbench keeps a model of its own for the database.
  std::string ModelFile = {};
  /// Empty: the workbench keeps them.
  std::string QueryFolder = {};
  /// Whether the queries are in the database itself.
  bool QueriesInDatabase = false;

  bool operator==(const TSource&) const = default;
};

/// What to call it: the name of the file or the database.
QString SourceName(const TSource& source);
/// A name for files that differs for each database: "shop-1f03ab42".
QString SourceKey(const TSource& source);

QJsonObject ToJson(const TSource& source);
/// With an empty URL where it is none.
TSource SourceFromJson(const QJsonObject& json);

/// The source of an SQLite file or a URL, which may have a password: that is left out. Raises `EConnectError`.
TSource SourceOf(const QString& fileOrUrl);

}  // namespace tolvi
