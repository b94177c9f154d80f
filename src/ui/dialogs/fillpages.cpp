#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QTabWidget>
#include <QToolButton>
#include <algorithm>
#include <limits>

#include <tolvi/ui/controls/contrast.h>
#include <tolvi/ui/dialogs/fillitems.h>
#include <tolvi/ui/dialogs/fillpages.h>
#include <tolvi/ui/dialogs/fillview.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

/// More rows than these are better unfolded one by one.
constexpr int MostRowsUnfolded = 12;

int RowsBelow(const QAbstractItemModel& model) {
  int rows = 0;
  for (int row = 0; row < model.rowCount(); ++row) rows += model.rowCount(model.index(row, 0));
  return rows;
}

QLabel* MakeNote(QWidget& parent) {
  auto* label = new QLabel(&parent);
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  return label;
}

void SetColumnLetters(QTreeView& view, std::initializer_list<int> letters) {
  int column = 0;
  for (const int count : letters) view.setColumnWidth(column++, count * view.fontMetrics().averageCharWidth());
}

}  // namespace

QLineEdit* TFillPage::AddSearch(QBoxLayout& layout) {
  auto* search = new QLineEdit(this);
  search->setClearButtonEnabled(true);
  auto* label = new QLabel(tr("&Find:"), this);
  label->setBuddy(search);
  layout.addWidget(label);
  layout.addWidget(search, 1);
  return search;
}

QPushButton* TFillPage::AddButton(QBoxLayout& layout, const QString& caption, const QString& toolTip,
                                  const std::function<void()>& click) {
  auto* button = new QPushButton(caption, this);
  button->setAutoDefault(false);
  button->setToolTip(toolTip);
  connect(button, &QPushButton::clicked, this, [click] { click(); });
  layout.addWidget(button);
  return button;
}

// Tables

TFillTablesPage::TFillTablesPage(TFillWizard& wizard, QWidget* parent)
    : TFillPage(wizard, parent),
      FItems(new TFillTableItems(wizard, this)),
      FView(new TFillView(*FItems, TFillTableItems::ColTable, tr("Tables of the database"), this)),
      FDatabase(new QComboBox(this)),
      FDatabaseLabel(new QLabel(tr("&Database:"), this)),
      FCount(MakeNote(*this)),
      FFold(new QToolButton(this)) {
  FDatabaseLabel->setBuddy(FDatabase);
  auto* head = new QHBoxLayout;
  head->addWidget(FDatabaseLabel);
  head->addWidget(FDatabase);
  QLineEdit* search = AddSearch(*head);
  connect(search, &QLineEdit::textChanged, this, [this](const QString& text) {
    FItems->Find(text);
    FView->setCurrentIndex(FItems->index(0, 0));
  });
  connect(FDatabase, &QComboBox::activated, this, [this](int row) {
    if (OnDatabase) OnDatabase(FDatabase->itemData(row).toString());
  });
  FView->setRootIsDecorated(false);
  SetColumnLetters(*FView, {0, 10, 20});
  FView->header()->setSectionResizeMode(TFillTableItems::ColTable, QHeaderView::Stretch);
  FView->header()->setStretchLastSection(false);
  FItems->OnChoose = [this] {
    ShowCount();
    Chosen();
  };
  auto* buttons = new QHBoxLayout;
  AddButton(*buttons, tr("&All"), tr("Check all tables that are listed"), [this] { FView->CheckAll(true); });
  AddButton(*buttons, tr("N&one"), tr("Uncheck all tables that are listed"), [this] { FView->CheckAll(false); });
  AddButton(*buttons, tr("Only Ne&w"), tr("Check those that the model does not have, uncheck the others"),
            [this] { CheckNew(); });
  buttons->addWidget(FCount, 1);

  QWidget* options = BuildOptions();
  FFold->setText(tr("O&ptions"));
  FFold->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  FFold->setAutoRaise(true);
  FFold->setCheckable(true);
  const auto fold = [this, options](bool open) {
    FFold->setArrowType(open ? Qt::DownArrow : layoutDirection() == Qt::RightToLeft ? Qt::LeftArrow : Qt::RightArrow);
    options->setVisible(open);
  };
  connect(FFold, &QToolButton::toggled, this, fold);
  fold(false);

  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->addLayout(head);
  rows->addWidget(FView, 1);
  rows->addLayout(buttons);
  rows->addWidget(FFold);
  rows->addWidget(options);
  ShowOptions(wizard.GetOptions());
}

QWidget* TFillTablesPage::BuildOptions() {
  auto* options = new QWidget(this);
  const auto box = [options](const QString& caption) { return new QCheckBox(caption, options); };
  FKeys = box(tr("Links from foreign keys"));
  FNames = box(tr("Links from names of columns"));
  FRoles = box(tr("Further aliases of tables that are linked twice"));
  FKnown = box(tr("New columns of tables that the model has"));
  FTypes = box(tr("Take over types that have changed"));
  FMixedCase = box(tr("Quote names in mixed case"));
  FLists = box(tr("Lists of values for foreign keys, up to"));
  FMaxRows = new QSpinBox(options);
  FMaxRows->setRange(1, std::numeric_limits<int>::max());
  FMaxRows->setSuffix(tr(" rows"));
  FMaxRows->setAccessibleName(tr("Most rows of a list of values"));
  connect(FLists, &QCheckBox::toggled, FMaxRows, &QWidget::setEnabled);
  FLinkType = new QComboBox(options);
  FLinkType->addItems({tr("Only rows that match"), tr("All rows of the table that refers"),
                       tr("All rows of the table referred to"), tr("All rows of both")});
  auto* linkLabel = new QLabel(tr("Rows of &links:"), options);
  linkLabel->setBuddy(FLinkType);

  auto* lists = new QHBoxLayout;
  lists->addWidget(FLists);
  lists->addWidget(FMaxRows);
  lists->addStretch();
  auto* links = new QHBoxLayout;
  links->addWidget(linkLabel);
  links->addWidget(FLinkType, 1);
  auto* grid = new QGridLayout(options);
  grid->setContentsMargins(fontMetrics().height(), 0, 0, 0);
  grid->addWidget(FKeys, 0, 0);
  grid->addWidget(FNames, 1, 0);
  grid->addWidget(FRoles, 2, 0);
  grid->addLayout(links, 3, 0);
  grid->addWidget(FKnown, 0, 1);
  grid->addWidget(FTypes, 1, 1);
  grid->addWidget(FMixedCase, 2, 1);
  grid->addLayout(lists, 3, 1);
  return options;
}

void TFillTablesPage::ShowOptions(const TFillOptions& options) {
  FKeys->setChecked(options.LinksFromKeys);
  FNames->setChecked(options.LinksFromNames);
  FRoles->setChecked(options.RoleTables);
  FKnown->setChecked(options.NewFieldsInKnownTables);
  FTypes->setChecked(options.TakeChangedTypes);
  FMixedCase->setChecked(options.QuoteMixedCase);
  FLists->setChecked(options.ValueLists);
  FMaxRows->setEnabled(options.ValueLists);
  FMaxRows->setValue(static_cast<int>(std::clamp<std::int64_t>(options.MaxListRows, 1, FMaxRows->maximum())));
  FLinkType->setCurrentIndex(options.LinkType);
}

void TFillTablesPage::Commit() {
  TFillOptions options = Wizard().GetOptions();
  options.LinksFromKeys = FKeys->isChecked();
  options.LinksFromNames = FNames->isChecked();
  options.RoleTables = FRoles->isChecked();
  options.NewFieldsInKnownTables = FKnown->isChecked();
  options.TakeChangedTypes = FTypes->isChecked();
  options.QuoteMixedCase = FMixedCase->isChecked();
  options.ValueLists = FLists->isChecked();
  options.MaxListRows = FMaxRows->value();
  options.LinkType = static_cast<TDSLinkType>(FLinkType->currentIndex());
  Wizard().SetOptions(options);
}

void TFillTablesPage::CheckNew() {
  QModelIndexList added, known;
  for (int row = 0; row < FItems->rowCount(); ++row) {
    const QModelIndex index = FItems->index(row, 0);
    (FItems->IsNew(index) ? added : known) << index;
  }
  FItems->Check(known, false);
  FItems->Check(added, true);
}

void TFillTablesPage::Refresh() {
  const QString database = ToQString(Wizard().GetDatabase());
  const QSignalBlocker blocker(FDatabase);
  FDatabase->clear();
  FDatabase->addItem(tr("(that of the connection)"), QString());
  for (const QString& name : ToQStringList(Wizard().Databases())) FDatabase->addItem(name, name);
  if (FDatabase->findData(database) < 0) FDatabase->addItem(database, database);
  FDatabase->setCurrentIndex(FDatabase->findData(database));
  const bool choice = !Wizard().Databases().Empty();
  FDatabase->setVisible(choice);
  FDatabaseLabel->setVisible(choice);
  FView->Reload();
  ShowCount();
}

void TFillTablesPage::ShowCount() {
  FCount->setText(tr("%1 of %2 tables are checked").arg(Wizard().TablesOn()).arg(Wizard().Tables().size()));
}

QWidget* TFillTablesPage::FirstFocus() const { return FView; }

// What is added

TFillChoicePage::TFillChoicePage(TFillWizard& wizard, QWidget* parent)
    : TFillPage(wizard, parent),
      FFields(new TFillFieldItems(wizard.Choice(), this)),
      FLinks(new TFillLinkItems(wizard.Choice(), this)),
      FTabs(new QTabWidget(this)),
      FState(MakeNote(*this)) {
  FTabs->addTab(BuildFields(), {});
  FTabs->addTab(BuildLinks(), {});
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->addWidget(FTabs, 1);
  rows->addWidget(FState);
  for (TFillItems* items : {static_cast<TFillItems*>(FFields), static_cast<TFillItems*>(FLinks)}) {
    items->OnChoose = [this] {
      // A table takes its links with it, a link its tables.
      FFieldView->viewport()->update();
      FLinkView->viewport()->update();
      ShowState();
      Chosen();
    };
  }
}

QWidget* TFillChoicePage::BuildFields() {
  auto* page = new QWidget(this);
  FFieldView = new TFillView(*FFields, TFillFieldItems::ColDisplayName, tr("Tables and fields that are added"), page);
  SetColumnLetters(*FFieldView, {26, 0, 18, 18});
  FFieldView->header()->setSectionResizeMode(TFillFieldItems::ColDisplayName, QHeaderView::Stretch);
  FFieldView->header()->setSectionResizeMode(TFillFieldItems::ColList, QHeaderView::ResizeToContents);
  FFieldView->header()->setStretchLastSection(false);
  auto* head = new QHBoxLayout;
  QLineEdit* search = AddSearch(*head);
  connect(search, &QLineEdit::textChanged, this, [this](const QString& text) {
    FFields->Find(text);
    const bool unfolds = !text.trimmed().isEmpty() || FFields->rowCount() <= MostRowsUnfolded;
    if (unfolds) FFieldView->expandAll();
    FFieldView->setCurrentIndex(FFields->index(0, 0));
  });
  auto* buttons = new QHBoxLayout;
  AddButton(*buttons, tr("&All"), tr("Check all that is listed"), [this] { FFieldView->CheckAll(true); });
  AddButton(*buttons, tr("N&one"), tr("Uncheck all that is listed"), [this] { FFieldView->CheckAll(false); });
  FRename =
      AddButton(*buttons, tr("&Rename"), tr("Change the display name (F2)"), [this] { FFieldView->EditCurrent(); });
  FLists = AddButton(*buttons, tr("&Lists of Values"), tr("With or without lists of values (Ctrl+L)"),
                     [this] { FFieldView->ToggleSelected(TFillFieldItems::ColList); });
  auto* key = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_L), page, nullptr, nullptr, Qt::WidgetWithChildrenShortcut);
  connect(key, &QShortcut::activated, FLists, &QPushButton::click);
  connect(FFieldView->selectionModel(), &QItemSelectionModel::currentChanged, this, [this] { ShowState(); });
  buttons->addStretch();
  auto* rows = new QVBoxLayout(page);
  rows->addLayout(head);
  rows->addWidget(FFieldView, 1);
  rows->addLayout(buttons);
  return page;
}

QWidget* TFillChoicePage::BuildLinks() {
  auto* page = new QWidget(this);
  FLinkView = new TFillView(*FLinks, TFillLinkItems::ColJoin, tr("Links that are added"), page);
  FLinkView->setRootIsDecorated(false);
  SetColumnLetters(*FLinkView, {0, 32});
  FLinkView->header()->setSectionResizeMode(TFillLinkItems::ColLink, QHeaderView::Stretch);
  FLinkView->header()->setStretchLastSection(false);
  auto* head = new QHBoxLayout;
  QLineEdit* search = AddSearch(*head);
  connect(search, &QLineEdit::textChanged, this, [this](const QString& text) {
    FLinks->Find(text);
    FLinkView->setCurrentIndex(FLinks->index(0, 0));
  });
  auto* buttons = new QHBoxLayout;
  AddButton(*buttons, tr("&All"), tr("Check all links that are listed"), [this] { FLinkView->CheckAll(true); });
  AddButton(*buttons, tr("N&one"), tr("Uncheck all links that are listed"), [this] { FLinkView->CheckAll(false); });
  AddButton(*buttons, tr("&Rows..."), tr("Choose which rows a link keeps (F2)"), [this] { FLinkView->EditCurrent(); });
  buttons->addStretch();
  auto* rows = new QVBoxLayout(page);
  rows->addLayout(head);
  rows->addWidget(FLinkView, 1);
  rows->addLayout(buttons);
  return page;
}

void TFillChoicePage::Refresh() {
  FFieldView->Reload();
  if (FFields->rowCount() <= MostRowsUnfolded) FFieldView->expandAll();
  FLinkView->Reload();
  ShowState();
}

void TFillChoicePage::Commit() {
  FFieldView->Commit();
  FLinkView->Commit();
}

void TFillChoicePage::ShowState() {
  const TFillChoice& choice = Wizard().Choice();
  const TFillPlan& plan = choice.Plan();
  std::size_t fields = 0, links = 0;
  for (std::size_t field = 0; field < plan.Fields.size(); ++field) fields += choice.IsFieldOn(field) ? 1 : 0;
  for (std::size_t link = 0; link < plan.Links.size(); ++link) links += choice.IsLinkOn(link) ? 1 : 0;
  FTabs->setTabText(0, tr("&Tables and Fields (%1)").arg(fields));
  FTabs->setTabText(1, tr("Lin&ks (%1)").arg(links));
  const QModelIndex current = FFieldView->currentIndex();
  FRename->setEnabled(current.siblingAtColumn(TFillFieldItems::ColDisplayName).flags() & Qt::ItemIsEditable);
  FLists->setEnabled(
      std::any_of(plan.Fields.begin(), plan.Fields.end(), [](const auto& field) { return !field.ListSQL.empty(); }));

  QString text = ToQString(choice.FirstFault(csError));
  const bool wrong = !text.isEmpty();
  if (!wrong) text = ToQString(choice.FirstFault(csWarning));
  if (text.isEmpty() && plan.Fields.empty() && plan.Links.empty() && choice.Tables().empty()) {
    text = tr("Nothing is added: the model has all that these tables have.");
  }
  QPalette colors = palette();
  if (wrong) colors.setColor(QPalette::WindowText, ReadableColor(FaultColor(), colors.color(QPalette::Window)));
  FState->setPalette(colors);
  FState->setText(text);
  FState->setVisible(!text.isEmpty());
  FFieldView->setAccessibleDescription(text);
}

QWidget* TFillChoicePage::FirstFocus() const { return FTabs->currentIndex() == 0 ? FFieldView : FLinkView; }

// Preview

TFillPreviewPage::TFillPreviewPage(TFillWizard& wizard, QWidget* parent)
    : TFillPage(wizard, parent),
      FItems(new TFillReportItems(this)),
      FTree(new QTreeView(this)),
      FHead(MakeNote(*this)),
      FVanished(MakeNote(*this)) {
  FVanished->setText(tr("What the database no longer has stays in the model. Delete it there if nothing needs it."));
  FTree->setModel(FItems);
  FTree->setAccessibleName(tr("What changes"));
  FTree->setHeaderHidden(true);
  FTree->setUniformRowHeights(true);
  FTree->setAlternatingRowColors(true);
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->addWidget(FHead);
  rows->addWidget(FTree, 1);
  rows->addWidget(FVanished);
}

void TFillPreviewPage::Refresh() {
  const TFillPlan plan = Wizard().Choice().Chosen();
  const TFillReport report = plan.Report();
  FSomething = !plan.Empty();
  const std::size_t vanished =
      report.VanishedTables.Count() + report.VanishedFields.Count() + report.VanishedLinks.Count();
  QStringList counts;
  counts << tr("Added: %1 tables, %2 fields, %3 links.")
                .arg(report.AddedTables.Count())
                .arg(report.AddedFields.Count())
                .arg(report.AddedLinks.Count())
         << tr("Changed: %1 types.").arg(plan.Types.size()) << tr("Vanished: %1.").arg(vanished);
  if (!FSomething) counts << tr("There is nothing to fill in.");
  FHead->setText(counts.join(QLatin1Char(' ')));
  FVanished->setVisible(vanished > 0);
  FItems->SetReport(report, Wizard().GetOptions().TakeChangedTypes);
  constexpr int mostRows = 200;
  if (RowsBelow(*FItems) <= mostRows) FTree->expandAll();
  FTree->setCurrentIndex(FItems->index(0, 0));
}

QWidget* TFillPreviewPage::FirstFocus() const { return FTree; }

}  // namespace tolvi
