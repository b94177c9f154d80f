#include <algorithm>
#include <exception>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include <tolvi/panel/fillwizard.h>
#include <tolvi/panel/modeleditor.h>
#include <tolvi/panel/stdsplaces.h>

namespace tolvi {

TFillWizard::TFillWizard(TModelEditor& editor, const TFillOptions& options)
    : FEditor(editor), FOptions(options), FChoice(editor.Model()), FFirstTables(options.Tables) {
  FInfo.Set(editor.Model().GetDatabaseInfo());
  FFormerDatabase = GetDatabase();
}

TFillWizard::~TFillWizard() {
  if (FFilled || !FInfo) return;
  try {
    FInfo->SetCurrentDBName(FFormerDatabase);
  } catch (const std::exception&) {
    // The next question to the catalogue tells.
  }
}

TJDBInfo& TFillWizard::Info() const {
  if (!FInfo) throw EJDBStructError(0, "The model has no database information");
  if (!FInfo->GetConnected()) throw EJDBStructError(0, "The database is not connected");
  return *FInfo.Get();
}

// Tables

std::string TFillWizard::GetDatabase() const { return FInfo ? FInfo->GetCurrentDBName() : std::string(); }

void TFillWizard::SetDatabase(std::string_view name) {
  const std::string former = GetDatabase();
  Info().SetCurrentDBName(name);
  try {
    ReadTables();
  } catch (...) {
    if (FInfo) FInfo->SetCurrentDBName(former);
    throw;
  }
}

void TFillWizard::ReadTables() {
  TJDBInfo& info = Info();
  TStrings databases;
  info.GetDatabaseNames(databases);
  std::vector<TFillTable> tables = TablesForFill(FEditor.Model(), info);
  std::unordered_map<std::string, bool> before;
  for (std::size_t table = 0; table < FTables.size(); ++table) before.emplace(FTables[table].Name, FOn[table]);
  const std::unordered_set<std::string, TFoldedHash, TFoldedEqual> first(FFirstTables.begin(), FFirstTables.end());
  const bool anyFirst = std::any_of(tables.begin(), tables.end(),
                                    [&first](const TFillTable& table) { return first.contains(table.Name); });
  const bool anyKnown = std::any_of(tables.begin(), tables.end(), [](const TFillTable& table) { return table.Known; });
  std::vector<bool> on;
  for (const TFillTable& table : tables) {
    const auto found = before.find(table.Name);
    if (found != before.end()) {
      on.push_back(found->second);
    } else if (anyFirst || anyKnown) {
      on.push_back(anyFirst ? first.contains(table.Name) : table.Known);
    } else {
      on.push_back(!table.View || FOptions.Views);
    }
  }
  FDatabases = std::move(databases);
  FTables = std::move(tables);
  FOn = std::move(on);
}

std::size_t TFillWizard::TablesOn() const { return static_cast<std::size_t>(std::count(FOn.begin(), FOn.end(), true)); }

// The plan

TFillPlan TFillWizard::Plan() const {
  TJDBInfo& info = Info();
  TFillOptions options = FOptions;
  options.Views = true;  // those that are on were chosen one by one
  options.Tables.Clear();
  for (std::size_t table = 0; table < FTables.size(); ++table) {
    if (FOn[table]) options.Tables.Add(FTables[table].Name);
  }
  // No names would mean all tables.
  return options.Tables.Empty() ? TFillPlan() : PlanFill(FEditor.Model(), info, options);
}

void TFillWizard::ReadPlan() { FChoice.SetPlan(Plan()); }

void TFillWizard::Fill(std::string_view stepName) {
  TFillPlan now = Plan();
  if (now != FChoice.Plan()) {
    FChoice.SetPlan(std::move(now));
    throw EJDBStructError(0, "The database or the model has changed meanwhile: look again at what is added");
  }
  const TFillPlan chosen = FChoice.Chosen();
  // Who hears of the change may destroy the editor.
  FFilled = true;
  try {
    FEditor.Edit(stepName, [&] {
      ApplyFillPlan(FEditor.Model(), chosen);
      // A model that has been arranged in the designer keeps its arrangement.
      PlaceNewTables(FEditor.Model());
    });
  } catch (...) {
    FFilled = false;
    throw;
  }
}

}  // namespace tolvi
