#pragma once

#include <QTemporaryDir>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <tolvi/connect/sqlconnection.h>
#include <tolvi/connect/sqldbinfo.h>
#include <tolvi/model/dbstruc.h>
#include <tolvi/ui/dialogs/modeldlg.h>

namespace tolvi {

/// A program with which a developer makes a data model: an empty one, and the model editor on it, which connects to the
/// database when it is told to. Where windows stood the last time is forgotten, and where they stand now is not kept.
class TDesignHost final {
 public:
  /// An SQLite file, which is only read.
  explicit TDesignHost(std::filesystem::path database);

  TJDBStructure& Model() { return FModel; }
  /// Shows the editor and makes it the active window.
  T_dlgModelEdit& Open();
  /// The connection's name once the editor has asked for it; raises `EException` before.
  const std::string& GetConnectionName() const;

  /// XML, beside the model text.
  static std::vector<TModelFormat> Formats();

 private:
  void Connect();

  const QTemporaryDir FPlaces;
  const std::filesystem::path FDatabase;
  std::optional<TSqlConnection> FConnection;
  std::unique_ptr<TJSqlDBInfo> FInfo;
  TJDBStructure FModel;
  std::unique_ptr<T_dlgModelEdit> FEditor;
};

}  // namespace tolvi
