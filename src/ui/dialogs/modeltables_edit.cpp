#include <QAction>
#include <QCheckBox>
#include <QLineEdit>
#include <QPointer>
#include <QTreeView>
#include <QTreeWidget>
#include <algorithm>
#include <functional>
#include <memory>

#include <tolvi/foundation/consts.h>
#include <tolvi/model/dbstruc.h>
#include <tolvi/panel/modeleditor.h>
#include <tolvi/panel/modeltables.h>
#include <tolvi/panel/stdsplaces.h>
#include <tolvi/ui/dialogs/addtablesdlg.h>
#include <tolvi/ui/dialogs/askbox.h>
#include <tolvi/ui/dialogs/checkedline.h>
#include <tolvi/ui/dialogs/linkdlg.h>
#include <tolvi/ui/dialogs/modeltables.h>
#include <tolvi/ui/dialogs/tablesmodel.h>
#include <tolvi/ui/qtext.h>

// What the page of tables changes.

namespace tolvi {

// Tables

void TTablesPage::AddFromCatalogue() {
  CommitEdits();
  const QPointer<TTablesPage> alive(this);
  std::vector<std::string> aliases;
  // The places in the diagram belong to the step.
  Editor().Begin(FromQString(tr("Add tables")));
  const bool added = AddTables(this, Editor(), aliases);
  if (!alive) return;
  if (added) PlaceNewTables(Editor().Model());
  Editor().End();
  if (!added) return;
  FSearch->clear();
  Refresh();
  std::vector<std::size_t> rows;
  for (const std::string& alias : aliases) rows.push_back(FModel->Locate(ToQString(alias), FModel->Count()));
  Select(rows);
}

void TTablesPage::AddByHand() {
  CommitEdits();
  TJCustomDBStructure& model = Editor().Model();
  const std::string name = FromQString(tr("NewTable"));
  const auto add = [&] {
    AddTableByHand(model, name);
    PlaceNewTables(model);
  };
  if (!Edit(tr("Add table"), add)) return;
  FSearch->clear();
  Refresh();
  Select({model.GetTableCount() - 1});
  FTableName->setFocus();
  FTableName->selectAll();
}

void TTablesPage::DeleteSelected() {
  CommitEdits();
  if (Selected().empty() || !Confirmed(SDeleteTable)) return;
  if (Edit(tr("Delete table"), [this] { DeleteTables(Editor().Model(), Selected()); })) Refresh();
}

void TTablesPage::Step(int step) {
  CommitEdits();
  std::vector<std::size_t> selected = Selected();
  if (!Edit(tr("Move table"), [&] { selected = StepTables(Editor().Model(), selected, step); })) return;
  Refresh();
  Select(selected);
}

void TTablesPage::CommitText(const TText& text, const QString& typed) {
  TDSTable* table = Current();
  if (table == nullptr) return;
  if (text.Set == nullptr) return CommitAlias(*table, typed);
  const std::string value = FromQString(typed);
  Edit(tr(text.Step), [&] {
    for (const std::size_t index : Selected()) (Editor().Model().GetTable(index).*text.Set)(value);
  });
}

// What names the table by its alias breaks unless it follows.
void TTablesPage::CommitAlias(TDSTable& table, const QString& typed) {
  const TAliasUses uses = UsesOfAlias(Editor().Model(), table);
  bool follow = false;
  if (uses.Count() > 0) {
    const QPointer<TTablesPage> alive(this);
    const QString question = tr("The SQL of fields (%1) and conditions (%2) names the table \"%3\". Change it, too?")
                                 .arg(uses.Fields.size())
                                 .arg(uses.Conditions.size())
                                 .arg(ToQString(table.GetTableAlias()));
    const int answer = Ask(*this, QMessageBox::Question, question, tr("Unchanged, it no longer finds the table."),
                           QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
    if (!alive) return;
    if (answer == QMessageBox::Yes) follow = true;
    if (answer != QMessageBox::Yes && answer != QMessageBox::No) return Refresh();
  }
  const std::string alias = FromQString(typed);
  Edit(tr("Change alias"), [&] { ChangeAlias(Editor().Model(), *Current(), alias, follow); });
}

void TTablesPage::SetQuoted(bool on) {
  Edit(tr("Quote table name"), [&] {
    for (const std::size_t index : Selected()) Editor().Model().GetTable(index).SetQuoted(on);
  });
}

void TTablesPage::SetMain(bool on) {
  const TDSTable* table = Current();
  if (table == nullptr) return;
  const std::string alias = on ? table->GetTableAlias() : std::string();
  Edit(tr("Set default main table"), [&] { Editor().Model().SetDefaultMainTable(alias); });
}

// Links

TDSLink* TTablesPage::CurrentLink() const {
  const int row = FLinks->indexOfTopLevelItem(FLinks->currentItem());
  if (row < 0) return nullptr;
  const std::size_t index = FLinkIndexes[static_cast<std::size_t>(row)];
  return index < Editor().Model().GetLinkCount() ? &Editor().Model().GetLink(index) : nullptr;
}

void TTablesPage::AddLink() {
  CommitEdits();
  TDSTable* table = Current();
  if (table == nullptr) return;
  TJCustomDBStructure& model = Editor().Model();
  // A table that it is not linked with yet, where there is one.
  const auto free = std::find_if(model.Tables().begin(), model.Tables().end(), [table](const TDSTable& other) {
    return &other != table && table->LinkByTable(other) == nullptr;
  });
  auto link = std::make_unique<TDSLink>(*table, free == model.Tables().end() ? *table : *free);
  const QPointer<TTablesPage> alive(this);
  if (!EditLink(this, model, *link) || !alive) return;
  if (!Edit(tr("Add link"), [&] { model.AddLinkByRef(std::move(link)); })) return;
  Refresh();
  FLinks->setCurrentItem(FLinks->topLevelItem(FLinks->topLevelItemCount() - 1));
}

void TTablesPage::EditCurrentLink() {
  CommitEdits();
  TDSLink* link = CurrentLink();
  if (link == nullptr) return;
  const QPointer<TTablesPage> alive(this);
  Editor().Begin(FromQString(tr("Edit link")));
  EditLink(this, Editor().Model(), *link);
  if (alive) Editor().End();
}

void TTablesPage::DeleteLinks() {
  CommitEdits();
  std::vector<std::size_t> links;
  for (QTreeWidgetItem* item : FLinks->selectedItems()) {
    links.push_back(FLinkIndexes[static_cast<std::size_t>(FLinks->indexOfTopLevelItem(item))]);
  }
  std::sort(links.begin(), links.end(), std::greater<>());
  if (links.empty() || !Confirmed(SDeleteLink)) return;
  Edit(tr("Delete link"), [&] {
    for (const std::size_t link : links) Editor().Model().DelLink(link);
  });
}

}  // namespace tolvi
