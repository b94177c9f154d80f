#include <algorithm>

#include <tolvi/foundation/enumnames.h>
#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/files.h>
#include <tolvi/foundation/text.h>
#include <tolvi/query/querpnl.h>
#include <tolvi/query/querytext.h>

// Saving, loading and streaming of the panel.

namespace tolvi {

void TJQueryPanel::SaveToStrings(TStrings& lines) { lines.SetText(SaveToText()); }

void TJQueryPanel::LoadFromStrings(const TStrings& lines) { LoadFromText(lines.GetText()); }

std::string TJQueryPanel::SaveToText() {
  std::string text = WriteQueryText(*this);
  FModified = false;
  return text;
}

void TJQueryPanel::LoadFromText(std::string_view text) {
  CheckIfDBStructAssigned();
  const std::string old = WriteQueryText(*this);
  const TSQLOptions oldOptions = GetSQLOptions();
  const TTitles oldTitles = FTitles;
  const bool wasActive = FActive;
  const bool wasModified = FModified;
  std::vector<TQueryWarning> oldWarnings = std::exchange(FLoadWarnings, {});
  try {
    ReadQuery(text);
  } catch (...) {
    ReadQuery(old);
    SetSQLOptions(oldOptions);
    FTitles = oldTitles;
    FLoadWarnings = std::move(oldWarnings);
    SetActive(wasActive);
    FModified = wasModified;
    throw;
  }
}

void TJQueryPanel::ReadQuery(std::string_view text) {
  SetActive(false);
  SetCurrentRow(nullptr);
  ++FLoading;
  try {
    ClearAll();
    ReadQueryText(text, *this);
  } catch (...) {
    --FLoading;
    throw;
  }
  --FLoading;
  RowsMoved();
  SetActive(true);
  ShapeChanged();
  FModified = false;
}

void TJQueryPanel::SaveToFile(const std::filesystem::path& file) {
  WriteFileAtomically(file, WriteQueryText(*this));
  FModified = false;
}

void TJQueryPanel::LoadFromFile(const std::filesystem::path& file) { LoadFromText(ReadFile(file)); }

void TJQueryPanel::AddLoadWarning(std::string_view rowID, std::string_view text) {
  FLoadWarnings.push_back({std::string(rowID), std::string(text)});
}

namespace {

constexpr TEnumName<TSQLSyntax> SyntaxNames[] = {
    {ssSQL1, "ssSQL1"}, {ssSQL2, "ssSQL2"}, {ssOracle, "ssOracle"}, {ssAccess, "ssAccess"}, {ssNexusDB, "ssNexusDB"},
};

constexpr TEnumName<TSQLOption> OptionNames[] = {
    {soASCIIRFields, "soASCIIRFields"},
    {soSelectDistinct, "soSelectDistinct"},
    {soQuoteAliases, "soQuoteAliases"},
    {soBracketJoins, "soBracketJoins"},
    {soBracketConditions, "soBracketConditions"},
    {soSortByNames, "soSortByNames"},
    {soFilter, "soFilter"},
};

}  // namespace

void TJQueryPanel::DefineProperties(TPropertyFiler& filer) {
  TComponent::DefineProperties(filer);
  filer.Reference(
      "DBStruct", [this]() -> TComponent* { return GetDBStruct(); },
      [this](TComponent* component) { SetDBStruct(dynamic_cast<TJCustomDBStructure*>(component)); });
  filer.Boolean(
      "Active", [this] { return GetActive(); }, [this](bool active) { FStoredActive = active; }, false);
  filer.Text(
      "SQLSyntax", [this] { return std::string(EnumToName(GetSQLSyntax(), SyntaxNames)); },
      [this](const std::string& text) { SetSQLSyntax(NameToEnum(text, SyntaxNames)); },
      EnumToName(ssSQL2, SyntaxNames));
  filer.Text(
      "SQLOptions", [this] { return SetToNames(GetSQLOptions(), OptionNames); },
      [this](const std::string& text) { SetSQLOptions(NamesToSet(text, OptionNames)); }, "");
  filer.Boolean(
      "SaveSQLOptions", [this] { return GetSaveSQLOptions(); }, [this](bool on) { SetSaveSQLOptions(on); }, true);
  filer.Boolean(
      "SaveTitles", [this] { return GetSaveTitles(); }, [this](bool on) { SetSaveTitles(on); }, false);
  filer.Text(
      "SQLTopClause", [this] { return GetSQLTopClause(); },
      [this](const std::string& clause) { SetSQLTopClause(clause); }, "");
  filer.Text(
      "SQLLimitClause", [this] { return GetSQLLimitClause(); },
      [this](const std::string& clause) { SetSQLLimitClause(clause); }, "");
  filer.Lines(
      "Titles", [this] { return FTitles.Lines(); }, [this](const TStrings& lines) { SetTitles(lines); },
      !FTitles.IsDefault());
  filer.Lines(
      "RFields",
      [this] {
        TStrings lines;
        RFields().SaveToStrings(lines);
        return lines;
      },
      [this](const TStrings& lines) { FStoredRFields = lines; }, true);
  // The options as forms stored them before "SQLOptions".
  filer.ReadOnlyInteger("Options", [this](std::int64_t number) { SetSQLOptions(IntToSQLOptions(number)); });
}

// The columns name fields of the model, which may come after the panel in the stream.
void TJQueryPanel::Loaded() {
  TComponent::Loaded();
  const TStrings lines = std::exchange(FStoredRFields, {});
  if (FDBStruct && !lines.Empty()) RFields().LoadFromStrings(lines);
  if (FStoredActive && FDBStruct) SetActive(true);
  FStoredActive = false;
  FModified = false;
}

std::vector<TStoredQuery> ReadQueries(const std::filesystem::path& folder) {
  namespace fs = std::filesystem;
  std::vector<TStoredQuery> result;
  std::error_code error;
  for (fs::directory_iterator at(folder, error), end; !error && at != end; at.increment(error)) {
    if (!AsciiSameText(at->path().extension().string(), ".qry") || !at->is_regular_file()) continue;
    TStoredQuery& query = result.emplace_back();
    query.FileName = at->path().string();
    query.Lines.LoadFromFile(at->path());
  }
  if (error) throw EFileError("Cannot read the folder %s: %s", {folder.string(), error.message()});
  std::sort(result.begin(), result.end(),
            [](const TStoredQuery& a, const TStoredQuery& b) { return a.FileName < b.FileName; });
  return result;
}

}  // namespace tolvi
