#include <QAction>
#include <QCheckBox>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QTreeView>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <algorithm>

#include <tolvi/foundation/consts.h>
#include <tolvi/model/dbstruc.h>
#include <tolvi/model/linkcheck.h>
#include <tolvi/panel/modeleditor.h>
#include <tolvi/panel/modeltables.h>
#include <tolvi/ui/dialogs/checkedline.h>
#include <tolvi/ui/dialogs/faultdelegate.h>
#include <tolvi/ui/dialogs/joinicon.h>
#include <tolvi/ui/dialogs/listactions.h>
#include <tolvi/ui/dialogs/modeltables.h>
#include <tolvi/ui/dialogs/scrolled.h>
#include <tolvi/ui/dialogs/tablesmodel.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {

namespace {

/// By `TDSLinkType`.
constexpr const char* JoinNames[] = {
    QT_TRANSLATE_NOOP("tolvi::TTablesPage", "Inner"), QT_TRANSLATE_NOOP("tolvi::TTablesPage", "Left"),
    QT_TRANSLATE_NOOP("tolvi::TTablesPage", "Right"), QT_TRANSLATE_NOOP("tolvi::TTablesPage", "Full")};

QStringList FindingsOf(const TDSLink& link) {
  QStringList texts;
  for (const TLinkFinding& finding : CheckLinkPairs(link.GetFields1(), link.GetOperators(), link.GetFields2())) {
    texts << ToQString(finding.Text);
  }
  if (link.GetTable1()->LinkByTable(*link.GetTable2()) != &link) texts << ToQString(LinkComesTooLate);
  return texts;
}

void MarkFindings(QTreeWidgetItem& item, const QStringList& texts) {
  if (texts.isEmpty()) return;
  for (const int column : {0, 2}) item.setData(column, TFaultDelegate::WrongRole, true);
  for (int column = 0; column < item.columnCount(); ++column) item.setToolTip(column, PlainToolTip(texts.join(u'\n')));
  item.setData(0, Qt::AccessibleDescriptionRole, texts.join(u'\n'));
}

}  // namespace

const TTablesPage::TText TTablesPage::Texts[] = {
    {QT_TR_NOOP("&Alias:"), QT_TR_NOOP("Change alias"), &TDSTable::GetTableAlias, nullptr, CheckTableAlias},
    {QT_TR_NOOP("Display &name:"), QT_TR_NOOP("Change display name"), &TDSTable::GetDisplayName,
     &TDSTable::SetDisplayName, nullptr},
    {QT_TR_NOOP("Ta&ble:"), QT_TR_NOOP("Change table name"), &TDSTable::GetTableName, &TDSTable::SetTableName,
     [](const TJCustomDBStructure&, const TDSTable*, std::string_view text) { return CheckTableName(text); }},
    {QT_TR_NOOP("Databa&se:"), QT_TR_NOOP("Change database name"), &TDSTable::GetDatabaseName,
     &TDSTable::SetDatabaseName, nullptr, true},
    {QT_TR_NOOP("&Hints:"), QT_TR_NOOP("Change hints"), &TDSTable::GetTableHints, &TDSTable::SetTableHints, nullptr,
     true},
};

TTablesPage::TTablesPage(TModelEditor& editor, QWidget* parent) : TModelPage(editor, parent) {
  QWidget* list = MakeList();
  auto* right = new QWidget(this);
  auto* column = new QVBoxLayout(right);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(MakeForm());
  column->addWidget(MakeLinks(), 1);
  ShowParts("Tables", *list, *Scrolled(right, this), 1, 1);
  setFocusProxy(FTree);
  ShowCurrent();
}

TTablesPage::~TTablesPage() { FTree->selectionModel()->disconnect(this); }

// Controls

QWidget* TTablesPage::MakeList() {
  auto* box = new QWidget(this);
  FModel = new TTablesModel(this);
  FTree = new QTreeView(box);
  FTree->setModel(FModel);
  FTree->setItemDelegate(new TFaultDelegate(FTree));
  FTree->setAccessibleName(tr("Tables"));
  FTree->setRootIsDecorated(false);
  FTree->setUniformRowHeights(true);
  FTree->setSelectionMode(QAbstractItemView::ExtendedSelection);
  FTree->header()->setStretchLastSection(true);
  FTree->header()->setDefaultSectionSize(18 * fontMetrics().averageCharWidth());
  FSearch = MakeSearchLine(*FTree, tr("Find tables"), *this);
  FHint = new QLabel(tr("There are no tables yet: add some from the database, or by hand."), box);
  FHint->setWordWrap(true);
  auto* buttons = new QHBoxLayout;
  AddListAction(*FTree, *buttons, tr("Add from database..."), sgNone, Qt::Key_Insert, [this] { AddFromCatalogue(); });
  AddListAction(*FTree, *buttons, tr("New table"), sgNew, Qt::CTRL | Qt::Key_N, [this] { AddByHand(); });
  FDelete = AddListAction(*FTree, *buttons, tr("Delete"), sgDelete, Qt::Key_Delete, [this] { DeleteSelected(); });
  FUp = AddListAction(*FTree, *buttons, tr("Move up"), sgUp, Qt::ALT | Qt::Key_Up, [this] { Step(-1); });
  FDown = AddListAction(*FTree, *buttons, tr("Move down"), sgDown, Qt::ALT | Qt::Key_Down, [this] { Step(1); });
  buttons->addStretch();
  auto* column = new QVBoxLayout(box);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(FSearch);
  column->addWidget(FTree, 1);
  column->addWidget(FHint);
  column->addLayout(buttons);
  connect(FSearch, &QLineEdit::textChanged, this, &TTablesPage::Find);
  connect(FTree->selectionModel(), &QItemSelectionModel::selectionChanged, this, &TTablesPage::ShowCurrent);
  return box;
}

QWidget* TTablesPage::MakeForm() {
  FForm = new QWidget(this);
  auto* rows = new QFormLayout(FForm);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
  for (const TText& text : Texts) {
    auto* line = new TCheckedLine(FForm);
    const QString label = tr(text.Label);
    line->setAccessibleName(QString(label).remove(u'&').remove(u':'));
    if (text.Check != nullptr) {
      line->OnCheck = [this, &text](const QString& typed) -> TTextFindings {
        const TDSTable* table = Current();
        return table != nullptr ? text.Check(Editor().Model(), table, FromQString(typed)) : TTextFindings();
      };
    }
    // An alias that another table has would take over what refers to that.
    line->SetKeepsWrong(text.Set != nullptr);
    line->OnCommit = [this, &text](const QString& typed) { CommitText(text, typed); };
    rows->addRow(label, line);
    FLines.push_back(line);
    if (text.Set == &TDSTable::SetTableName) FTableName = line;
  }
  FQuoted = new QCheckBox(tr("&Quoted name"), FForm);
  FMain = new QCheckBox(tr("Default &main table"), FForm);
  FMain->setToolTip(tr("Queries start from this table"));
  connect(FQuoted, &QCheckBox::clicked, this, &TTablesPage::SetQuoted);
  connect(FMain, &QCheckBox::clicked, this, &TTablesPage::SetMain);
  rows->addRow(FQuoted);
  rows->addRow(FMain);
  return FForm;
}

QWidget* TTablesPage::MakeLinks() {
  auto* box = new QWidget(this);
  FLinks = new QTreeWidget(box);
  FLinks->setHeaderLabels({tr("Linked with"), tr("Join"), tr("Condition")});
  FLinks->setAccessibleName(tr("Links of the table"));
  FLinks->setRootIsDecorated(false);
  FLinks->setUniformRowHeights(true);
  FLinks->setItemDelegate(new TFaultDelegate(FLinks));
  FLinks->setMinimumHeight(5 * fontMetrics().lineSpacing());
  FLinks->setSelectionMode(QAbstractItemView::ExtendedSelection);
  auto* label = new QLabel(tr("&Links:"), box);
  label->setBuddy(FLinks);
  auto* buttons = new QHBoxLayout;
  FAddLink = AddListAction(*FLinks, *buttons, tr("Add link..."), sgNew, Qt::Key_Insert, [this] { AddLink(); });
  FEditLink = AddListAction(*FLinks, *buttons, tr("Edit..."), sgNone, Qt::Key_F2, [this] { EditCurrentLink(); });
  FDeleteLink =
      AddListAction(*FLinks, *buttons, tr("Delete link"), sgDelete, Qt::Key_Delete, [this] { DeleteLinks(); });
  buttons->addStretch();
  auto* column = new QVBoxLayout(box);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(label);
  column->addWidget(FLinks, 1);
  column->addLayout(buttons);
  connect(FLinks, &QTreeWidget::itemSelectionChanged, this, &TTablesPage::ShowEnabled);
  connect(FLinks, &QTreeWidget::itemActivated, this, &TTablesPage::EditCurrentLink, Qt::QueuedConnection);
  return box;
}

// Showing

void TTablesPage::CommitEdits() {
  for (TCheckedLine* line : FLines) line->Commit();
}

std::vector<std::size_t> TTablesPage::Selected() const {
  std::vector<std::size_t> tables;
  for (const QModelIndex& index : FTree->selectionModel()->selectedRows()) {
    tables.push_back(FModel->TableOfRow(index.row()));
  }
  std::sort(tables.begin(), tables.end());
  return tables;
}

TDSTable* TTablesPage::Current() const {
  const QModelIndexList rows = FTree->selectionModel()->selectedRows();
  if (rows.isEmpty()) return nullptr;
  const QModelIndex& row = rows.contains(FTree->currentIndex().siblingAtColumn(0)) ? FTree->currentIndex() : rows[0];
  const std::size_t table = FModel->TableOfRow(row.row());
  return table < Editor().Model().GetTableCount() ? &Editor().Model().GetTable(table) : nullptr;
}

void TTablesPage::Select(const std::vector<std::size_t>& tables) {
  std::vector<int> rows;
  for (const std::size_t table : tables) rows.push_back(FModel->RowOfTable(table));
  SelectRows(*FTree, rows);
}

void TTablesPage::Refresh() {
  struct TKept {
    std::size_t Table;
    QString Alias;
  };
  std::vector<TKept> kept;
  for (const std::size_t table : Selected()) kept.push_back({table, FModel->Alias(table)});
  const std::size_t count = FModel->Count();
  const bool wasReset = [&] {
    bool reset = false;
    const auto connection = connect(FModel, &QAbstractItemModel::modelReset, this, [&reset] { reset = true; });
    FModel->Read(Editor().Model());
    disconnect(connection);
    return reset;
  }();
  if (wasReset) {
    std::vector<std::size_t> selected;
    for (const auto& [before, alias] : kept) {
      std::size_t table = FModel->Locate(alias, before);
      // With as many tables as before, one of them got another alias.
      if (table == FModel->Count() && count == table) table = before;
      if (table < FModel->Count()) selected.push_back(table);
    }
    // What is next to one that went; the first of all at the beginning.
    if (selected.empty() && FModel->Count() > 0) {
      selected.push_back(kept.empty() ? 0 : std::min(kept.front().Table, FModel->Count() - 1));
    }
    Select(selected);
  }
  ShowCurrent();
}

void TTablesPage::Find(const QString& text) {
  const std::vector<std::size_t> selected = Selected();
  FModel->Find(text);
  Select(selected);
  if (Selected().empty() && FModel->rowCount() > 0) Select({FModel->TableOfRow(0)});
  ShowCurrent();
}

void TTablesPage::ShowCurrent() {
  const TDSTable* table = Current();
  const std::vector<std::size_t> selected = Selected();
  const bool isOne = selected.size() == 1;
  for (std::size_t i = 0; i < FLines.size(); ++i) {
    const TText& text = Texts[i];
    bool isCommon = isOne || text.ForAll;
    for (const std::size_t other : selected) {
      isCommon = isCommon && (Editor().Model().GetTable(other).*text.Get)() == (table->*text.Get)();
    }
    FLines[i]->setEnabled(isOne || (text.ForAll && table != nullptr));
    FLines[i]->ShowText(table != nullptr && isCommon ? ToQString((table->*text.Get)()) : QString());
  }
  const auto isQuoted = [this](std::size_t index) { return Editor().Model().GetTable(index).GetQuoted(); };
  const auto quoted = std::count_if(selected.begin(), selected.end(), isQuoted);
  const bool isMixed = quoted > 0 && static_cast<std::size_t>(quoted) < selected.size();
  FQuoted->setTristate(isMixed);
  FQuoted->setCheckState(isMixed ? Qt::PartiallyChecked : quoted > 0 ? Qt::Checked : Qt::Unchecked);
  const std::string& main = Editor().Model().GetDefaultMainTable();
  FMain->setChecked(isOne && !main.empty() && Editor().Model().TableByName(tnAlias, main) == table);
  ShowLinks(isOne ? table : nullptr);
  ShowEnabled();
}

void TTablesPage::ShowLinks(const TDSTable* table) {
  const int current = FLinks->indexOfTopLevelItem(FLinks->currentItem());
  FLinks->clear();
  FLinkIndexes.clear();
  const TJCustomDBStructure& model = Editor().Model();
  if (table == nullptr) return;
  for (const TDSLink* link : table->Links()) {
    auto* item = new QTreeWidgetItem(FLinks);
    item->setText(0, ToQString(link->OtherTable(*table)->GetTableAlias()));
    item->setText(1, tr(JoinNames[link->GetLinkType()]));
    item->setIcon(1, JoinIcon(link->GetLinkType(), *FLinks));
    item->setText(2, ToQString(link->GetSQLExpr()));
    item->setToolTip(2, PlainToolTip(item->text(2)));
    MarkFindings(*item, FindingsOf(*link));
    FLinkIndexes.push_back(static_cast<std::size_t>(model.Links().IndexOf(link)));
  }
  if (current >= 0 && FLinks->topLevelItemCount() > 0) {
    FLinks->setCurrentItem(FLinks->topLevelItem(std::min(current, FLinks->topLevelItemCount() - 1)));
  }
}

void TTablesPage::ShowEnabled() {
  const bool any = FTree->selectionModel()->hasSelection();
  const bool one = any && Selected().size() == 1;
  for (QAction* action : {FDelete, FUp, FDown}) action->setEnabled(any);
  FForm->setEnabled(any);
  FMain->setEnabled(one);
  FLinks->setEnabled(one);
  FAddLink->setEnabled(one);
  const bool anyLink = !FLinks->selectedItems().isEmpty();
  FEditLink->setEnabled(anyLink);
  FDeleteLink->setEnabled(anyLink);
  FHint->setVisible(FModel->Count() == 0);
}

bool TTablesPage::GoTo(std::string_view section) {
  const TJCustomDBStructure& model = Editor().Model();
  if (section == "Main") return model.GetTableCount() == 0;
  std::size_t number = 0;
  for (const TDSTable& table : model.Tables()) {
    bool found = section == "Table:" + std::to_string(number + 1);
    int row = -1;
    for (std::size_t i = 0; i < table.GetLinkCount() && !found; ++i) {
      const TDSLink& link = table.GetLink(i);
      found = link.GetTable1() == &table &&
              section == "Link:" + table.GetTableAlias() + "-" + link.GetTable2()->GetTableAlias();
      if (found) row = static_cast<int>(i);
    }
    if (found) {
      if (FModel->RowOfTable(number) < 0) FSearch->clear();
      Select({number});
      if (row >= 0) FLinks->setCurrentItem(FLinks->topLevelItem(row));
      return true;
    }
    ++number;
  }
  return false;
}

}  // namespace tolvi
