#include "apps/workbench/workspace/workspace.h"

#include <QDir>
#include <QFileInfo>
#include <algorithm>

#include <tolvi/connect/sqlqrybase.h>
#include <tolvi/foundation/files.h>
#include <tolvi/model/formatpresets.h>
#include <tolvi/model/modelfill.h>
#include <tolvi/store/fileqrybase.h>
#include <tolvi/ui/qtext.h>
#include <tolvi/xml/modelxml.h>

namespace tolvi {
namespace {

/// The password of the URL itself goes before the one given.
TConnectionUrl UrlOf(const TSource& source, const std::string& password) {
  TConnectionUrl url = ParseConnectionUrl(source.Url);
  if (url.Password.empty()) url.Password = password;
  return url;
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

}  // namespace

QString FolderOf(const TSource& source, const QString& home) {
  return QDir(home).filePath(QStringLiteral("databases/") + SourceKey(source));
}

TWorkspace::TWorkspace(const TSource& source, const std::string& password, const QString& folder,
                       const TFormatSettings& formats)
    : FSource(source),
      FUrl(UrlOf(source, password)),
      FConnection(FUrl, TSqlConnectOptions{.ReadOnly = !source.QueriesInDatabase}),
      FInfo(FConnection.GetName()),
      FModelEditor(FModel),
      FLink(FPanel) {
  const QDir own(folder);
  FPanel.SetFormatSettings(formats);
  FModel.SetDatabaseInfo(&FInfo);
  OpenModel(source.ModelFile.empty() ? own.filePath(QStringLiteral("database.model")) : ToQString(source.ModelFile));
  FModelEditor.ForgetSteps();
  FPanel.SetDBStruct(&FModel);
  FPanel.SetActive(true);
  OpenStore(source.QueryFolder.empty() ? own.filePath(QStringLiteral("queries")) : ToQString(source.QueryFolder));
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
    if (FModel.GetTableCount() > 0) SaveModel();
  }
}

void TWorkspace::FillModelAnew() {
  ApplyFormatPreset(FModel.SQLFormats(), FormatPresetOf(FUrl.Kind));
  FNotes = FillModel(FModel, FInfo, FillOptionsFor(FUrl.Kind)).Notes;
}

void TWorkspace::LoadModel(const QString& file) {
  try {
    LoadModelFromAnyText(FModel, ReadFile(ToPath(file)));
  } catch (const EFileError&) {
    throw;
  } catch (const EException& error) {
    throw EFileError(FromQString(QDir::toNativeSeparators(file)) + ": " + error.Message());
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
  return FillModel(FModel, FInfo, FillOptionsFor(FUrl.Kind));
}

void TWorkspace::OpenStore(const QString& folder) {
  if (FSource.QueriesInDatabase) {
    FStore = std::make_unique<TJSqlQueryBase>(FConnection.GetName());
  } else {
    auto files = std::make_unique<TJFileQueryBase>();
    files->SetFolder(FromQString(folder));
    FStore = std::move(files);
  }
  FStore->AddLink(FLink);
  try {
    FStore->Open();
  } catch (const EException& error) {
    // One query that cannot be shown does not keep the others away.
    if (!FStore->GetActive()) throw;
    FNotes.Add(error.Message());
  }
  if (FStore->Count() > 0) return;
  FStore->SetItemIndex(FStore->IndexByName(FStore->NewQuery()->GetQueryName()));
  AddFirstColumns(FPanel, FModel);
  SaveQuery();
}

TJStoredQuery* TWorkspace::CurrentQuery() const {
  const int index = FStore->GetItemIndex();
  return index < 0 ? nullptr : &FStore->GetStoredQuery(index);
}

std::string TWorkspace::FreeName(const std::string& wanted) const {
  const std::string base = wanted.empty() ? "New query" : wanted;
  std::string name = base;
  for (int number = 2; FStore->IndexByName(name) >= 0; ++number) name = base + " (" + std::to_string(number) + ")";
  return name;
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
