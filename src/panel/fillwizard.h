// Filling a model step by step: the tables, what is added of them, and the change.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include <tolvi/foundation/api.h>
#include <tolvi/foundation/components.h>
#include <tolvi/panel/fillchoice.h>
#include <tolvi/schema/dbinfo.h>

namespace tolvi {

class TModelEditor;

/// Asks the model's database information once in each step; errors of its handlers go through, and what was read before
/// stays. Each of the steps raises `EJDBStructError` when the model has no database information, or that is not
/// connected.
class TOLVI_CORE_API TFillWizard final {
 public:
  /// `options.Tables` and `options.Views` say which tables are on at first; without
  /// tables there, those that the model has or, when it has none of them, all.
  TFillWizard(TModelEditor& editor, const TFillOptions& options);
  /// Unless the model was filled, the database in use is the former one again.
  ~TFillWizard();
  TFillWizard(const TFillWizard&) = delete;
  TFillWizard& operator=(const TFillWizard&) = delete;

  /// What is asked for; its tables do not count.
  const TFillOptions& GetOptions() const { return FOptions; }
  void SetOptions(const TFillOptions& options) { FOptions = options; }

  /// First step: the databases and the tables of the one in use. Tables that were there before stay on or off.
  void ReadTables();
  const TStrings& Databases() const { return FDatabases; }
  std::string GetDatabase() const;
  /// Uses another database, and reads its tables; when that fails, the former one again.
  void SetDatabase(std::string_view name);
  const std::vector<TFillTable>& Tables() const { return FTables; }
  bool IsTableOn(std::size_t table) const { return FOn[table]; }
  void SetTableOn(std::size_t table, bool on) { FOn[table] = on; }
  std::size_t TablesOn() const;

  /// Second step: what the tables that are on would add.
  void ReadPlan();
  TFillChoice& Choice() { return FChoice; }
  const TFillChoice& Choice() const { return FChoice; }

  /// Last step, one of the editor's history called `stepName`. What was planned must still be so: when the database or
  /// the model has changed, `EJDBStructError` says so, the choice has the new plan, and the model is as it was.
  void Fill(std::string_view stepName);

 private:
  TJDBInfo& Info() const;
  TFillPlan Plan() const;

  TModelEditor& FEditor;
  // The editor may be gone before the wizard.
  TRef<TJDBInfo> FInfo;
  TFillOptions FOptions;
  TFillChoice FChoice;
  TStrings FFirstTables;
  std::string FFormerDatabase;
  TStrings FDatabases;
  std::vector<TFillTable> FTables;
  std::vector<bool> FOn;
  bool FFilled = false;
};

}  // namespace tolvi
