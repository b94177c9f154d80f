#pragma once

#include <QByteArray>
#include <QJsonArray>
#include <QJsonObject>
#include <QString>
#include <cstdint>
#include <vector>

#include "apps/workbench/workspace/source.h"

namespace tolvi {

enum TTheme : std::uint8_t { thSystem, thLight, thDark };

/// What the workbench remembers from one time to the next. No passwords.
struct TSettings {
  /// The code of a language ("de"); empty for the system's.
  QString Language = {};
  TTheme Theme = thSystem;
  /// In points; 0 for the system's.
  int FontSize = 0;
  /// Whether the first rows are shown while a query is edited, and how many.
  bool Preview = true;
  int PreviewRows = 100;
  /// How many rows a run reads at most; 0 for all.
  std::int64_t MaxRows = 1'000'000;
  /// Whether queries may hold rows of SQL, which reach the database as they are.
  bool AllowSQLFragments = false;
  /// The last one first.
  std::vector<TSource> Recent = {};
  QByteArray Geometry = {}, Layout = {};
  QString ExportFolder = {}, ExportFormat = {};
  /// By `SourceKey`: the order of the queries, the one shown last, the syntax of the statement that is shown.
  QJsonObject Orders = {}, LastQueries = {}, Syntaxes = {};
  /// The last values of parameters, keys and values by turns.
  QJsonArray Params = {};

  /// Puts the source at the head of `Recent`.
  void Remember(const TSource& source);
};

/// Keeps the settings in a file. A file that cannot be read is kept beside, as ".broken", and told in `GetNote`.
class TSettingsFile final {
 public:
  explicit TSettingsFile(QString file);

  const QString& GetNote() const { return FNote; }
  TSettings Settings;
  /// Writes them whole or not at all, if they have changed. What another program has changed meanwhile in the same file
  /// stays, and is taken over. Raises `EFileError`.
  void Save();

 private:
  QString FFile, FNote;
  // As they were read or written last.
  QJsonObject FSaved;
};

}  // namespace tolvi
