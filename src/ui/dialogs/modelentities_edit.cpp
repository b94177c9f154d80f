#include <QLineEdit>
#include <QPointer>
#include <QTabWidget>
#include <QTreeView>
#include <utility>

#include <tolvi/foundation/consts.h>
#include <tolvi/model/dbstruc.h>
#include <tolvi/panel/modeleditor.h>
#include <tolvi/ui/dialogs/checkedline.h>
#include <tolvi/ui/dialogs/columnsdlg.h>
#include <tolvi/ui/dialogs/fieldform.h>
#include <tolvi/ui/dialogs/modelentities.h>
#include <tolvi/ui/qtext.h>

// What the page of entities changes.

namespace tolvi {

TEntitiesModel::TEntry TEntitiesPage::NewPlace(std::size_t& place) const {
  const QModelIndex current = FTree->currentIndex();
  if (!current.isValid()) {
    place = Editor().Model().RootGroup().Count();
    return {};
  }
  const TEntry entry = FModel->EntryOf(current);
  place = FModel->PlaceOf(current) + (entry.Field ? 1 : 0);
  return entry;
}

void TEntitiesPage::AddColumns() {
  CommitEdits();
  TJCustomDBStructure& model = Editor().Model();
  if (model.GetTableCount() == 0) return;
  std::size_t place = 0, table = 0;
  const TEntry entry = NewPlace(place);
  // The table of the field that is current, or of the first one of the group.
  const TDSFieldGroup& group = GroupByNumber(model, entry.Group);
  const TDSField* field = entry.Field ? model.FieldByID(*entry.Field) : group.Empty() ? nullptr : &group[0];
  if (field != nullptr && field->GetTable() != nullptr) {
    table = static_cast<std::size_t>(model.Tables().IndexOf(field->GetTable()));
  }
  const QPointer<TEntitiesPage> alive(this);
  const QPointer<T_dlgColumns> dialog = new T_dlgColumns(model, table, this);
  const bool accepted = dialog->exec() == QDialog::Accepted;
  if (!alive || !dialog) return;
  const TStrings columns = dialog->GetColumns();
  table = dialog->GetTable();
  delete dialog;
  if (!accepted || columns.Empty()) return;
  TFieldIDs added;
  if (!Edit(tr("Add columns"),
            [&] { added = tolvi::AddColumns(model, model.GetTable(table), columns, entry.Group, place); })) {
    return;
  }
  FSearch->clear();
  Refresh();
  SelectFields(added);
}

void TEntitiesPage::AddExpression() {
  CommitEdits();
  std::size_t place = 0;
  const TEntry entry = NewPlace(place);
  const std::string name = FromQString(tr("New field"));
  std::int32_t added = 0;
  if (!Edit(tr("Add expression"), [&] { added = tolvi::AddExpression(Editor().Model(), name, entry.Group, place); })) {
    return;
  }
  FSearch->clear();
  Refresh();
  SelectFields({added});
  FForms->setCurrentIndex(0);
  FGeneral->Name().setFocus();
  FGeneral->Name().selectAll();
}

void TEntitiesPage::AddGroup() {
  CommitEdits();
  const std::string name = FromQString(tr("New group"));
  std::size_t added = 0;
  if (!Edit(tr("Add group"), [&] { added = tolvi::AddGroup(Editor().Model(), name); })) return;
  FSearch->clear();
  Refresh();
  Select({{added, std::nullopt}});
  FForms->setCurrentIndex(0);
  FGeneral->GroupName().setFocus();
  FGeneral->GroupName().selectAll();
}

void TEntitiesPage::DeleteSelected() {
  CommitEdits();
  std::vector<std::size_t> groups = SelectedGroups();
  TFieldIDs fields;
  for (const TEntry& entry : Selected()) {
    if (entry.Field) fields.push_back(*entry.Field);
  }
  // Groups of what was found are not meant.
  if (!fields.empty() && !FSearch->text().isEmpty()) groups.clear();
  const bool onlyGroups = fields.empty();
  if ((onlyGroups && groups.empty()) || !Confirmed(onlyGroups ? SDeleteGroup : SDeleteField)) return;
  const auto edit = [&] {
    DeleteFields(Editor().Model(), fields);
    DeleteGroups(Editor().Model(), groups);
  };
  if (Edit(onlyGroups ? tr("Delete group") : tr("Delete field"), edit)) Refresh();
}

void TEntitiesPage::Step(int step) {
  CommitEdits();
  const std::vector<std::size_t> groups = SelectedGroups();
  if (groups.empty()) {
    const TFieldIDs fields = SelectedFields();
    if (!Edit(tr("Move field"), [&] { StepFields(Editor().Model(), fields, step); })) return;
    Refresh();
    SelectFields(fields);
    return;
  }
  std::vector<std::size_t> moved;
  if (!Edit(tr("Move group"), [&] { moved = StepGroups(Editor().Model(), groups, step); })) return;
  Refresh();
  std::vector<TEntry> entries;
  for (const std::size_t group : moved) entries.push_back({group, std::nullopt});
  Select(entries);
}

void TEntitiesPage::Drop(const std::vector<TEntry>& entries, std::size_t group, std::optional<std::size_t> place) {
  CommitEdits();
  TJCustomDBStructure& model = Editor().Model();
  TFieldIDs fields;
  std::vector<std::size_t> groups;
  for (const TEntry& entry : entries) {
    if (entry.Field) {
      fields.push_back(*entry.Field);
    } else {
      groups.push_back(entry.Group);
    }
  }
  // Groups of fields go where groups are, whatever is dropped with them.
  if (groups.size() == 1) {
    // The root group stands before the others or behind them.
    std::size_t to = group > 0 ? group : model.GetRootFieldsFirst() ? 1 : model.FieldGroups().Count();
    if (group > 0 && !place && groups.front() < group) --to;
    Edit(tr("Move group"), [&] { MoveGroup(model, groups.front(), to); });
  }
  if (!groups.empty()) return;
  const std::size_t target = place.value_or(GroupByNumber(model, group).Count());
  Edit(tr("Move field"), [&] { MoveFields(model, fields, group, target); });
}

}  // namespace tolvi
