#include <algorithm>
#include <optional>
#include <utility>

#include <tolvi/foundation/enumnames.h>
#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/files.h>
#include <tolvi/foundation/text.h>
#include <tolvi/query/querpnl.h>
#include <tolvi/query/querytext.h>
#include <tolvi/query/sqlfragment.h>

// Saving, loading and streaming of the panel.

namespace tolvi {

void TJQueryPanel::SaveToStrings(TStrings& lines) { lines.SetText(SaveToText()); }

void TJQueryPanel::LoadFromStrings(const TStrings& lines) { LoadFromText(lines.GetText()); }

std::string TJQueryPanel::SaveToText() {
  std::string text = WriteQueryText(*this);
  FModified = false;
  return text;
}

/// What loading replaces. Parameters go before the rows that they belong to.
struct TJQueryPanel::TQueryParts {
  std::unique_ptr<TFilterBracket> root;
  TSQLParamList params;
  TRFieldList rFields;
  TSQLOptions options;
  TTitles titles;
  std::string name, topClause, limitClause;
  TStrings description, userData;
  std::vector<TQueryWarning> warnings;
};

void TJQueryPanel::ExchangeParts(TQueryParts& parts) {
  std::swap(FRoot, parts.root);
  std::swap(FQResult->FParams, parts.params);
  std::swap(FTitles, parts.titles);
  std::swap(FQueryName, parts.name);
  std::swap(FQueryTopClause, parts.topClause);
  std::swap(FQueryLimitClause, parts.limitClause);
  std::swap(FDescription, parts.description);
  std::swap(FUserData, parts.userData);
  std::swap(FLoadWarnings, parts.warnings);
  RowsMoved();
}

// Leaves events held back.
void TJQueryPanel::ReplaceQuery(const std::function<void()>& read, bool active) {
  TQueryParts parts{.root = std::make_unique<TFilterBracket>(*this),
                    .params = {},
                    .rFields = TRFieldList(GetDBStruct()),
                    .options = GetSQLOptions(),
                    .titles = FTitles,
                    .name = {},
                    .topClause = {},
                    .limitClause = {},
                    .description = {},
                    .userData = {},
                    .warnings = {}};
  parts.params.SetParentParamCount(FQResult->Params().GetParentParamCount());
  HoldBack();
  ++FLoading;
  const bool wasActive = FActive;
  const TSet<TEvent> pending = FPending;
  const bool wasModified = FModified;
  RFields().Exchange(parts.rFields);
  ExchangeParts(parts);
  try {
    read();
  } catch (...) {
    FActive = wasActive;
    ExchangeParts(parts);
    SetSQLOptions(parts.options);
    RFields().Exchange(parts.rFields);
    FPending = pending;
    FModified = wasModified;
    --FLoading;
    --FHeldBack;
    throw;
  }
  FActive = wasActive;
  --FLoading;
  SetCurrentRow(nullptr);
  SetActive(false);
  // The view has let go of the old rows.
  parts.params.Clear();
  parts.root.reset();
  if (TQueryPanelView* view = Viewer()) {
    view->TitlesChanged();
    view->ResultFieldsChanged();
  }
  SetActive(active);
  ShapeChanged();
}

void TJQueryPanel::LoadFromText(std::string_view text) {
  CheckIfDBStructAssigned();
  ReplaceQuery([this, text] { ReadQueryText(text, *this); }, true);
  FModified = false;
  Release();
}

TJQueryPanel::TInsertedRows TJQueryPanel::InsertRowsFromText(TFilterBracket& bracket, std::size_t index,
                                                             std::string_view text) {
  CheckIfDBStructAssigned();
  TInsertedRows result;
  auto read = std::make_unique<TFilterBracket>(*this);
  ++FLoading;
  FLoadWarnings.swap(result.Warnings);
  try {
    ReadRowsText(text, *read);
  } catch (...) {
    FLoadWarnings.swap(result.Warnings);
    read.reset();
    --FLoading;
    throw;
  }
  FLoadWarnings.swap(result.Warnings);
  --FLoading;
  if (read->GetRowCount() == 0) throw EJQueryPanelError(0, "The text holds no conditions");
  const bool isJoinOfAll = read->GetLinkType() == fltAll || (read->GetLinkType() == fltAny && read->GetRowCount() == 1);
  Together([&] {
    // What is too deep raises the error before the first row is in its place.
    if (!isJoinOfAll || bracket.GetRowLevel() + read->Depth() > MaxRowLevel) {
      result.Rows.push_back(&bracket.InsertRow(index, std::move(read)));
      return;
    }
    while (read->GetRowCount() > 0) result.Rows.push_back(&bracket.InsertRow(index++, read->TakeRow(0)));
  });
  return result;
}

void TJQueryPanel::SetQueryTopClause(std::string_view clause) {
  std::optional<std::string> top = Trim(clause).empty() ? std::string() : ReadTopClause(clause);
  if (!top) {
    throw EJQueryPanelError(
        0,
        "\"%s\" is no TOP clause of a query: write a whole number or one in brackets, and PERCENT behind it if need be",
        {clause});
  }
  if (*top == FQueryTopClause) return;
  FQueryTopClause = *std::move(top);
  ShapeChanged();
}

void TJQueryPanel::SetQueryLimitClause(std::string_view clause) {
  std::optional<std::string> limit = Trim(clause).empty() ? std::string() : ReadLimitClause(clause);
  if (!limit) {
    throw EJQueryPanelError(
        0, "\"%s\" is no LIMIT clause of a query: write a whole number n, \"n OFFSET m\" or \"n, m\"", {clause});
  }
  if (*limit == FQueryLimitClause) return;
  FQueryLimitClause = *std::move(limit);
  ShapeChanged();
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

constexpr TEnumName<TFilterLinkType> LinkTypeNames[] = {
    {fltAll, "fltAll"}, {fltAny, "fltAny"}, {fltNone, "fltNone"}, {fltNotAll, "fltNotAll"}};

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
      [this](TComponent* component) {
        auto* model = dynamic_cast<TJCustomDBStructure*>(component);
        if (model == nullptr) throw EStreamError("%s is no data model", {component->GetName()});
        SetDBStruct(model);
      });
  filer.Boolean(
      "Active", [this] { return GetActive(); }, [this](bool active) { FStoredActive = active; }, false);
  filer.Text(
      "SQLSyntax", [this] { return std::string(EnumToName(GetSQLSyntax(), SyntaxNames)); },
      [this](const std::string& text) { SetSQLSyntax(NameToEnum(text, SyntaxNames)); },
      EnumToName(ssSQL2, SyntaxNames));
  filer.Text(
      "SQLOptions", [this] { return SetToNames(GetSQLOptions(), OptionNames); },
      [this](const std::string& text) { SetSQLOptions(NamesToSet(text, OptionNames)); }, "");
  filer.Text(
      "LinkTypes", [this] { return SetToNames(GetLinkTypes(), LinkTypeNames); },
      [this](const std::string& text) { SetLinkTypes(NamesToSet(text, LinkTypeNames)); },
      "fltAll,fltAny,fltNone,fltNotAll");
  filer.Boolean(
      "SaveSQLOptions", [this] { return GetSaveSQLOptions(); }, [this](bool on) { SetSaveSQLOptions(on); }, true);
  filer.Boolean(
      "SaveTitles", [this] { return GetSaveTitles(); }, [this](bool on) { SetSaveTitles(on); }, false);
  filer.Boolean(
      "AllowSQLFragments", [this] { return GetAllowSQLFragments(); }, [this](bool on) { SetAllowSQLFragments(on); },
      false);
  filer.Text(
      "SQLTopClause", [this] { return FSQLTopClause; }, [this](const std::string& clause) { SetSQLTopClause(clause); },
      "");
  filer.Text(
      "SQLLimitClause", [this] { return FSQLLimitClause; },
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
  if (!lines.Empty()) RFields().LoadFromStrings(lines);
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
