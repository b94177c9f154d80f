// Adding tables of a catalogue to a model, without the dialog: which there are, and what links them.
#pragma once

#include <cstddef>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include <tolvi/foundation/api.h>
#include <tolvi/model/dbstruc.h>

namespace tolvi {

struct TFillPlan;

/// A table or view of the catalogue.
struct TTableEntry {
  /// As the catalogue gives it; its last part, and what stands before that.
  std::string FullName, Name, Schema;
  bool View = false;
  /// Such a table cannot be chosen.
  bool InModel = false;
  bool Chosen = false;
};

/// A link that the catalogue knows between chosen tables, or one of them and one of the model.
struct TLinkOffer {
  /// Its condition.
  std::string Text;
  /// Set for a second link between two tables, and a link of a table with itself: the further alias that is added.
  std::string Alias;
  bool Wanted = true;
};

/// What of a catalogue is to be added to a model. The catalogue is asked each question once for a database; what its
/// handlers raise goes through, and nothing has changed then.
class TOLVI_CORE_API TTableChoice final {
 public:
  /// The model and its catalogue must outlive this. Raises `EJDBInfoError` when there is no catalogue or it is not
  /// connected.
  explicit TTableChoice(TJCustomDBStructure& model);
  TTableChoice(const TTableChoice&) = delete;
  TTableChoice& operator=(const TTableChoice&) = delete;
  ~TTableChoice();

  /// The databases that there are, perhaps none; and that in use.
  const TStrings& Databases() const { return FDatabases; }
  const std::string& Database() const;
  /// Goes to another database, in which nothing is chosen.
  void SetDatabase(std::string_view name);
  /// Back to the database that was in use at first.
  void RestoreDatabase();

  /// The parts before the names of tables, sorted.
  std::vector<std::string> Schemas() const;
  const std::vector<TTableEntry>& Tables() const { return FTables; }
  std::size_t ChosenCount() const;
  void Choose(std::size_t table, bool chosen);

  /// The links that go with the choice.
  const std::vector<TLinkOffer>& Links();
  /// What the catalogue told besides, in sentences, when it was last asked for links.
  const TStrings& Notes() const { return FNotes; }
  /// Remembered while the choice changes.
  void WantLink(std::size_t link, bool wanted);
  /// Whether the columns of added tables become fields. At first as the model's `AutoAddFields`.
  bool GetAddFields() const { return FAddFields; }
  void SetAddFields(bool on) { FAddFields = on; }

  /// Adds the tables, and the links that are wanted. Returns the aliases of all added tables.
  std::vector<std::string> Add();

 private:
  void ReadTables();
  void ReadLinks();
  TFillPlan Plan(bool valueLists) const;
  void Reduce(TFillPlan& plan) const;

  TJCustomDBStructure& FModel;
  TJDBInfo& FInfo;
  const std::string FFirstDatabase;
  // Asks `FInfo`, and remembers the answers.
  std::unique_ptr<TJDBInfo> FAnswers;
  TStrings FDatabases, FLinkLines, FNotes;
  std::vector<TTableEntry> FTables;
  std::vector<TLinkOffer> FLinks;
  std::set<std::string> FUnwanted;
  bool FAddFields, FLinksRead = true;
};

}  // namespace tolvi
