#include "apps/workbench/workspace/workspace.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <algorithm>

#include <tolvi/connect/sqlqrybase.h>
#include <tolvi/foundation/files.h>
#include <tolvi/model/formatpresets.h>
#include <tolvi/model/modelfill.h>
#include <tolvi/query/queryhead.h>
#include <tolvi/store/fileqrybase.h>
#include <tolvi/ui/qtext.h>
#include <tolvi/xml/modelxml.h>

namespace tolvi {
namespace {

struct TTexts {
  Q_DECLARE_TR_FUNCTIONS(tolvi::TWorkspace)
};

QString Words(const EException& error) { return ToQString(error.Message()); }

/// Queries are shared by people who have a model each: the same column is to be the same one for all of them.
TFillOptions FillOptionsOf(TDatabaseKind kind) {
  TFillOptions options = FillOptionsFor(kind);
  options.FieldIDsFromNames = true;
  return options;
}

/// The password of the URL itself goes before the one given.
TConnectionUrl UrlOf(const TSource& source, const std::string& password) {
  TConnectionUrl url = ParseConnectionUrl(source.Url);
  if (url.Password.empty()) url.Password = password;
  return url;
}

TSqlConnectOptions OptionsFor(const TSource& source, TDatabaseKind kind) {
  TSqlConnectOptions options{.ReadOnly = !source.QueriesInDatabase};
  if (kind != dkSQLite) options.TimeoutSeconds = TWorkspace::ServerSeconds;
  return options;
}

bool IsXml(const QString& file) { return file.endsWith(QStringLiteral(".xml"), Qt::CaseInsensitive); }

/// So that something is to be seen at once: the first columns of the first table.
void AddFirstColumns(TJQueryPanel& panel, TJDBStructure& model) {
  constexpr int most = 6;
  const TDSTable* first = nullptr;
  int count = 0;
  for (std::size_t i = 0; i < model.Fields().Count() && count < most; ++i) {
    TDSField& field = model.GetField(i);
    if (field.GetFieldKind() != jfkData || !field.GetUseInResult()) continue;
    if (first == nullptr) first = field.GetTable();
    if (field.GetTable() != first) continue;
    panel.RFields().Add(field);
    ++count;
  }
}

std::string NumberedName(const std::string& name, int number) {
  return number == 1 ? name : name + " (" + std::to_string(number) + ")";
}

}  // namespace

QString FolderOf(const TSource& source, const QString& home) {
  return QDir(home).filePath(QStringLiteral("databases/") + SourceKey(source));
}

TWorkspace::TWorkspace(const TSource& source, const std::string& password, const QString& folder,
                       const TFormatSettings& formats, const std::function<void()>& onStep)
    : FSource(source),
      FFolder(folder),
      FUrl(UrlOf(source, password)),
      FConnection(FUrl, OptionsFor(source, FUrl.Kind)),
      FInfo(FConnection.GetName()),
      FModelEditor(FModel),
      FLink(FPanel) {
  const auto step = [&onStep] {
    if (onStep) onStep();
  };
  step();
  FPanel.SetFormatSettings(formats);
  FModel.SetDatabaseInfo(&FInfo);
  OpenModel(source.ModelFile.empty() ? QDir(folder).filePath(QStringLiteral("database.model"))
                                     : ToQString(source.ModelFile));
  FModelEditor.ForgetSteps();
  FPanel.SetDBStruct(&FModel);
  FPanel.SetActive(true);
  step();
  OpenStore();
}

TWorkspace::~TWorkspace() {
  // The link would read and hand over while parts of this go.
  if (FStore) FStore->DelLink(FLink);
}

void TWorkspace::OpenModel(const QString& file) {
  FModelFile = file;
  // A file that was named is not made: its name may be wrong.
  if (QFileInfo::exists(file) || !FSource.ModelFile.empty()) {
    LoadModel(file);
  } else {
    FillModelAnew();
    // Without tables, the catalogue may not have been to be had.
    if (FModel.GetTableCount() > 0) KeepNewModel();
  }
}

void TWorkspace::KeepNewModel() {
  try {
    SaveModel();
  } catch (const EException& error) {
    FNotes.Add(
        FromQString(TTexts::tr("The data model cannot be kept: %1. Model > Save as... keeps it in another place.")
                        .arg(Words(error))));
    FModelEditor.SetUnmodified();
  }
}

void TWorkspace::FillModelAnew() {
  ApplyFormatPreset(FModel.SQLFormats(), FormatPresetOf(FUrl.Kind));
  const TFillReport report = FillModel(FModel, FInfo, FillOptionsOf(FUrl.Kind));
  FNotes = report.Notes;
  if (FUrl.Kind == dkODBC && FModel.GetTableCount() > 1) {
    FNotes.Add(
        FromQString(TTexts::tr("The driver tells nothing of links between tables. %n link(s) were found by the "
                               "names of columns; Model > Diagram... shows them, and can draw others.",
                               nullptr, static_cast<int>(report.AddedLinks.Count()))));
  }
  if (FModel.GetTableCount() == 0) FNotes.Add(NoTables());
}

std::string TWorkspace::NoTables() {
  return FromQString(
      TTexts::tr("The database has no tables that can be read. Once it has some, Model > Read new tables from the "
                 "database finds them."));
}

void TWorkspace::LoadModel(const QString& file) {
  try {
    LoadModelFromAnyText(FModel, ReadFile(ToPath(file)));
  } catch (const EFileError&) {
    throw;
  } catch (const EException& error) {
    throw EFileError(
        FromQString(TTexts::tr("%1 is no data model, or a damaged one: %2. Choose another file; where there "
                               "is none, a model is made from the tables of the database.")
                        .arg(QDir::toNativeSeparators(file), Words(error))));
  }
  FModelFile = file;
  FModelEditor.ForgetSteps();
  FModelEditor.SetUnmodified();
}

void TWorkspace::UseModel(const QString& file) {
  LoadModel(file);
  FSource.ModelFile = FromQString(file);
}

void TWorkspace::SaveModel() {
  QDir().mkpath(QFileInfo(FModelFile).absolutePath());
  const std::filesystem::path path = ToPath(FModelFile);
  if (IsXml(FModelFile)) {
    SaveModelToXmlFile(FModel, path);
  } else {
    FModel.SaveToFile(path);
  }
  FModelEditor.SetUnmodified();
}

void TWorkspace::SaveModelAs(const QString& file) {
  const QString former = std::exchange(FModelFile, file);
  try {
    SaveModel();
  } catch (...) {
    FModelFile = former;
    throw;
  }
  FSource.ModelFile = FromQString(file);
}

TFillReport TWorkspace::RefreshModel() {
  FInfo.Update();
  return FillModel(FModel, FInfo, FillOptionsOf(FUrl.Kind));
}

QString TWorkspace::QueryFolderOf(const TSource& source) const {
  if (source.QueriesInDatabase) return {};
  return source.QueryFolder.empty() ? QDir(FFolder).filePath(QStringLiteral("queries")) : ToQString(source.QueryFolder);
}

std::unique_ptr<TJStoredQueryBase> TWorkspace::StoreOf(const TSource& source) const {
  if (source.QueriesInDatabase) return std::make_unique<TJSqlQueryBase>(FConnection.GetName());
  auto files = std::make_unique<TJFileQueryBase>();
  files->SetFolder(FromQString(QueryFolderOf(source)));
  return files;
}

void TWorkspace::OpenStore() {
  FStore = StoreOf(FSource);
  FStore->AddLink(FLink);
  try {
    FStore->Open();
  } catch (const EException& error) {
    // One query that cannot be shown does not keep the others away.
    // Not even other places can be chosen then.
    if (!FStore->GetActive()) throw EQueryStoreError(FSource.QueriesInDatabase ? NotKept(error) : error.Message());
    FNotes.Add(error.Message());
  }
  if (FStore->Count() == 0) AddFirstQuery();
}

void TWorkspace::AddFirstQuery() {
  try {
    FStore->SetItemIndex(FStore->IndexByName(FStore->NewQuery()->GetQueryName()));
    AddFirstColumns(FPanel, FModel);
    SaveQuery();
  } catch (const EException& error) {
    // Asked for, a place in the database is there or not; a folder that others fill may be one to read only.
    if (FSource.QueriesInDatabase) throw EQueryStoreError(NotKept(error));
    if (FPanel.RFields().Empty()) AddFirstColumns(FPanel, FModel);
    FPanel.SetModified(false);
    FNotes.Add(NotKept(error));
  }
}

std::string TWorkspace::NotKept(const EException& error) const {
  // The errors of a folder name it.
  const QString words = FSource.QueriesInDatabase ? TTexts::tr("Queries cannot be kept in this database: %1")
                                                  : TTexts::tr(
                                                        "Queries cannot be kept: %1. Query > Where queries are "
                                                        "kept has other places.");
  return FromQString(words.arg(Words(error)));
}

int TWorkspace::CopyQueries(const TSource& from) {
  const std::unique_ptr<TJStoredQueryBase> store = StoreOf(from);
  store->Open();
  int count = 0;
  for (int i = 0; i < store->Count(); ++i) {
    TJStoredQuery& query = store->GetStoredQuery(i);
    const std::string name = query.GetQueryName();
    TStrings text;
    query.LoadContent(text);
    if (HasCopy(name, text)) continue;
    FStore->AddQuery(FreeName(name), text);
    ++count;
  }
  return count;
}

bool TWorkspace::HasCopy(const std::string& name, const TStrings& text) const {
  const auto named = [&name](const TStrings& lines) {
    return WithQueryHead(lines, {.Name = name, .Description = ReadQueryHead(lines.GetText()).Description});
  };
  const TStrings wanted = named(text);
  for (int number = 1;; ++number) {
    const int known = FStore->IndexByName(NumberedName(name, number));
    if (known < 0) return false;
    TStrings here;
    FStore->GetStoredQuery(known).LoadContent(here);
    if (named(here) == wanted) return true;
  }
}

TJStoredQuery* TWorkspace::CurrentQuery() const {
  const int index = FStore->GetItemIndex();
  return index < 0 ? nullptr : &FStore->GetStoredQuery(index);
}

std::string TWorkspace::FreeName(const std::string& wanted) const {
  const std::string base = wanted.empty() ? "New query" : wanted;
  return FreeQueryName(*FStore, [&](int number) { return NumberedName(base, number); });
}

void TWorkspace::SaveQuery() {
  TJStoredQuery* query = CurrentQuery();
  if (query == nullptr) {
    TStrings lines;
    lines.SetText(QueryText());
    FStore->SetItemIndex(FStore->AddQuery(FreeName(FPanel.GetQueryName()), lines));
    return;
  }
  try {
    query->Save();
  } catch (...) {
    FPanel.SetModified(true);  // asked for its text, the panel takes itself for saved
    throw;
  }
}

std::string TWorkspace::QueryText() {
  const bool isModified = FPanel.GetModified();
  std::string text = FPanel.SaveToText();
  FPanel.SetModified(isModified);
  return text;
}

TStrings TWorkspace::ShownText() {
  const bool isModified = FPanel.GetModified();
  TStrings lines;
  FLink.GetQueryContent(lines);
  FPanel.SetModified(isModified);
  return lines;
}

bool TWorkspace::ShowsCurrentQuery() {
  if (!ShownText().Empty()) return true;
  FPanel.ClearAll();
  FPanel.SetModified(false);
  return false;
}

void TWorkspace::RevertQuery() {
  if (CurrentQuery() == nullptr) {
    FPanel.ClearAll();
    FPanel.SetModified(false);
  }
  FLink.LoadCurBaseQuery();
}

TUnsavedWork TWorkspace::Unsaved() {
  TUnsavedWork work{FSource};
  if (IsModelModified()) work.ModelText = FModel.GetStructString();
  if (!IsQueryModified()) return work;
  if (const TJStoredQuery* query = CurrentQuery()) {
    work.QueryId = query->Entry().Id;
    work.QueryName = query->GetQueryName();
    work.Revision = query->Entry().Revision;
  }
  work.QueryText = QueryText();
  return work;
}

void TWorkspace::Restore(const TUnsavedWork& work) {
  if (work.ModelText) FModel.SetStructString(*work.ModelText);
  if (!work.QueryText) return;
  int index = -1;
  for (int i = 0; i < FStore->Count() && index < 0; ++i) {
    // One that somebody has stored since is another one.
    const TQueryEntry& entry = FStore->GetStoredQuery(i).Entry();
    if (entry.Id == work.QueryId && entry.Revision == work.Revision) index = i;
  }
  if (index < 0) {
    TStrings lines;
    lines.SetText(*work.QueryText);
    FStore->SetItemIndex(FStore->AddQuery(FreeName(work.QueryName), lines));
    return;
  }
  if (index != FStore->GetItemIndex()) FStore->SetItemIndex(index);
  FPanel.LoadFromText(*work.QueryText);
  FPanel.SetModified(true);
}

}  // namespace tolvi
