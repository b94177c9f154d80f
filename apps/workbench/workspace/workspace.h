#pragma once

#include <QString>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "apps/workbench/workspace/recovery.h"
#include "apps/workbench/workspace/source.h"
#include <tolvi/connect/sqlconnection.h>
#include <tolvi/connect/sqldbinfo.h>
#include <tolvi/model/dbstruc.h>
#include <tolvi/panel/modeleditor.h>
#include <tolvi/query/qpbaselink.h>
#include <tolvi/query/querpnl.h>
#include <tolvi/store/storedqueries.h>

namespace tolvi {

/// An open source: the connection, the data model over it, the store of queries, and the query that is edited. It knows
/// no window.
class TWorkspace final {
 public:
  /// How long it waits for a server.
  static constexpr int ServerSeconds = 20;

  /// Opens all of it. `folder` is where the workbench keeps what the source has no place of its own for. A database
  /// without a model gets one that is filled from its catalogue, a store without queries a first one. What cannot be
  /// kept, as a folder is not to be written, is there all the same, and told in the notes. Waits for the database.
  /// `onStep` is called once the database is connected, and between later steps; what it raises ends the opening.
  /// Raises `EConnectError`, `EPasswordError`, `EFileError`, `EQueryStoreError`.
  TWorkspace(const TSource& source, const std::string& password, const QString& folder, const TFormatSettings& formats,
             const std::function<void()>& onStep = {});
  TWorkspace(const TWorkspace&) = delete;
  TWorkspace& operator=(const TWorkspace&) = delete;
  ~TWorkspace();

  const TSource& GetSource() const { return FSource; }
  /// With the password: for further connections.
  const TConnectionUrl& GetUrl() const { return FUrl; }
  TSqlConnection& Connection() { return FConnection; }
  /// Whether the database knows LIMIT.
  bool HasLimitClause() const { return FUrl.Kind != dkODBC; }
  TJDBStructure& Model() { return FModel; }
  TJQueryPanel& Panel() { return FPanel; }
  TJStoredQueryBase& Store() { return *FStore; }
  /// What a user can do where the model has no tables, as the database has none.
  static std::string NoTables();
  /// What was noticed on opening, in sentences.
  const TStrings& GetNotes() const { return FNotes; }

  /// Where the model is kept.
  const QString& GetModelFile() const { return FModelFile; }
  /// Whether the model differs from its file.
  bool IsModelModified() { return FModelEditor.GetModified(); }
  /// The history of the model's changes, those by dialogs, too.
  TModelEditor& ModelEditor() { return FModelEditor; }
  void SaveModel();
  /// From then on, the model is kept there: XML or the model text, by the end of the name.
  void SaveModelAs(const QString& file);
  /// Shows the model of the file, which is the source's from then on; the former one stays where it fails.
  void UseModel(const QString& file);
  /// Reads the model's file again.
  void RevertModel() { LoadModel(FModelFile); }
  /// Reads the catalogue again and adds what the model lacks; what it did.
  TFillReport RefreshModel();

  /// The text of the query as it is, be it stored or not.
  std::string QueryText();
  /// The same for the current query of the store; empty when something else is shown, as the query cannot be read.
  TStrings ShownText();
  /// False when the current query could not be read: the panel, which may hold the one before, is emptied then.
  bool ShowsCurrentQuery();
  /// Whether the query differs from the stored one.
  bool IsQueryModified() const { return FPanel.GetModified(); }
  /// Stores the query; one that no query of the store is shown for becomes a new one. Raises `EQueryConflictError` and
  /// what storing raises; the query then stays modified.
  void SaveQuery();
  /// Shows the stored query again.
  void RevertQuery();

  /// Where the source's queries are, for people: a folder, or "" for the database itself. The source is one of this
  /// database.
  QString QueryFolderOf(const TSource& source) const;
  /// Adds the queries that are kept where that source has them, but for those that are here already, be it with a
  /// number behind the name; how many. Those before one that cannot be copied stay.
  int CopyQueries(const TSource& from);

  /// What is not stored; puts back what was not. A query that the store lost becomes a new one there.
  TUnsavedWork Unsaved();
  void Restore(const TUnsavedWork& work);

 private:
  void LoadModel(const QString& file);
  void OpenModel(const QString& file);
  std::unique_ptr<TJStoredQueryBase> StoreOf(const TSource& source) const;
  void OpenStore();
  void AddFirstQuery();
  std::string NotKept(const EException& error) const;
  void FillModelAnew();
  void KeepNewModel();
  TJStoredQuery* CurrentQuery() const;
  std::string FreeName(const std::string& wanted) const;
  bool HasCopy(const std::string& name, const TStrings& text) const;

  TSource FSource;
  const QString FFolder;
  TConnectionUrl FUrl;
  TSqlConnection FConnection;
  TJSqlDBInfo FInfo;
  TJDBStructure FModel;
  TModelEditor FModelEditor;
  QString FModelFile;
  TJQueryPanel FPanel;
  std::unique_ptr<TJStoredQueryBase> FStore;
  TJQPBaseLink FLink;
  TStrings FNotes;
};

/// Where the workbench keeps what belongs to the source, in the folder of all its data.
QString FolderOf(const TSource& source, const QString& home);

}  // namespace tolvi
