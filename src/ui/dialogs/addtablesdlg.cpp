#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QSplitter>
#include <QTreeView>
#include <QVBoxLayout>
#include <algorithm>
#include <exception>
#include <memory>
#include <optional>

#include <tolvi/foundation/consts.h>
#include <tolvi/panel/modeleditor.h>
#include <tolvi/ui/controls/contrast.h>
#include <tolvi/ui/controls/flatcheckbox.h>
#include <tolvi/ui/controls/waitcursor.h>
#include <tolvi/ui/dialogs/addtablesdlg.h>
#include <tolvi/ui/dialogs/addtablesmodel.h>
#include <tolvi/ui/dialogs/checkstyle.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

constexpr qsizetype toldNotes = 3;

QLabel* LabelFor(QWidget& buddy, const QString& text) {
  auto* label = new QLabel(text, buddy.parentWidget());
  label->setBuddy(&buddy);
  return label;
}

}  // namespace

T_dlgAddTables::T_dlgAddTables(TTableChoice& choice, TModelEditor& editor, QWidget* parent)
    : QDialog(parent),
      FChoice(choice),
      FEditor(editor),
      FTables(new TCatalogueTablesModel(choice, this)),
      FFilter(new TCatalogueTablesFilter(*FTables, this)),
      FDatabases(new QComboBox(this)),
      FSchemas(new QComboBox(this)),
      FSearch(new QLineEdit(this)),
      FTree(new QTreeView(this)),
      FLinks(new QListWidget(this)),
      FAddFields(new TJFlatCheckBox(tr("Add their &fields"), this)),
      FTold(new QLabel(this)) {
  setWindowTitle(ToQString(STableViewListCaption));
  auto* layout = new QVBoxLayout(this);
  BuildSearch(*layout);
  auto* parts = new QSplitter(Qt::Vertical, this);
  parts->setChildrenCollapsible(false);
  parts->addWidget(BuildTables());
  parts->addWidget(BuildLinks());
  parts->setStretchFactor(0, 2);
  parts->setStretchFactor(1, 1);
  layout->addWidget(parts, 1);
  FAddFields->setChecked(choice.GetAddFields());
  connect(FAddFields, &QCheckBox::toggled, this, [this](bool on) { FChoice.SetAddFields(on); });
  layout->addWidget(FAddFields);
  FTold->setTextFormat(Qt::PlainText);
  FTold->setWordWrap(true);
  layout->addWidget(FTold);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  FOk = buttons->button(QDialogButtonBox::Ok);
  FOk->setText(tr("Add"));
  connect(buttons, &QDialogButtonBox::accepted, this, &T_dlgAddTables::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &T_dlgAddTables::reject);
  layout->addWidget(buttons);
  for (const Qt::Key enter : {Qt::Key_Return, Qt::Key_Enter}) {
    connect(new QShortcut(Qt::CTRL | enter, this), &QShortcut::activated, this, &T_dlgAddTables::accept);
  }
  FTables->OnChoose = [this] { ShowLinks(); };
  ShowSchemas();
  ShowLinks();
  FSearch->setFocus();
  const QSize wanted(80 * fontMetrics().averageCharWidth(), 36 * fontMetrics().height());
  resize(wanted.expandedTo(minimumSizeHint()).boundedTo(screen()->availableSize() * 0.9));
}

// Controls

void T_dlgAddTables::BuildSearch(QBoxLayout& layout) {
  FSearch->setClearButtonEnabled(true);
  FSearch->installEventFilter(this);
  connect(FSearch, &QLineEdit::textChanged, this, [this](const QString& text) {
    FFilter->Find(text);
    ShowState();
  });
  for (QComboBox* box : {FDatabases, FSchemas}) box->setSizeAdjustPolicy(QComboBox::AdjustToContents);
  FDatabases->addItems(ToQStringList(FChoice.Databases()));
  FDatabases->setCurrentIndex(FDatabases->findText(ToQString(FChoice.Database())));
  connect(FDatabases, &QComboBox::textActivated, this, &T_dlgAddTables::ChooseDatabase);
  connect(FSchemas, &QComboBox::activated, this, [this](int item) {
    FFilter->SetSchema(item > 0 ? std::optional(FSchemas->itemData(item).toString()) : std::nullopt);
    ShowState();
  });
  auto* row = new QHBoxLayout;
  row->addWidget(LabelFor(*FSearch, tr("F&ind:")));
  row->addWidget(FSearch, 1);
  FSchemasLabel = LabelFor(*FSchemas, tr("&Schema:"));
  row->addWidget(FSchemasLabel);
  row->addWidget(FSchemas);
  QLabel* databases = LabelFor(*FDatabases, QLatin1Char('&') + ToQString(SDBListCaption) + u':');
  row->addWidget(databases);
  row->addWidget(FDatabases);
  // There is nothing to choose from a single one.
  for (QWidget* widget : {static_cast<QWidget*>(databases), static_cast<QWidget*>(FDatabases)}) {
    widget->setVisible(FDatabases->count() > 1);
  }
  layout.addLayout(row);
}

QWidget* T_dlgAddTables::BuildTables() {
  FTree->setModel(FFilter);
  FTree->setAccessibleName(ToQString(STableViewListCaption));
  FTree->setRootIsDecorated(false);
  FTree->setUniformRowHeights(true);
  FTree->setAllColumnsShowFocus(true);
  FTree->setSelectionMode(QAbstractItemView::ExtendedSelection);
  FTree->setSortingEnabled(true);
  FTree->sortByColumn(TCatalogueTablesModel::ColName, Qt::AscendingOrder);
  auto* style = new TCheckStyle;
  style->setParent(FTree);
  FTree->setStyle(style);
  FTree->installEventFilter(this);
  QHeaderView& header = *FTree->header();
  header.setStretchLastSection(false);
  header.setSectionResizeMode(TCatalogueTablesModel::ColName, QHeaderView::Stretch);
  // As wide as those that are seen need.
  header.setResizeContentsPrecision(0);
  for (const int column : {TCatalogueTablesModel::ColSchema, TCatalogueTablesModel::ColNote}) {
    header.setSectionResizeMode(column, QHeaderView::ResizeToContents);
  }
  return FTree;
}

QWidget* T_dlgAddTables::BuildLinks() {
  auto* part = new QWidget(this);
  auto* layout = new QVBoxLayout(part);
  layout->setContentsMargins(0, 0, 0, 0);
  FLinks->setParent(part);
  layout->addWidget(LabelFor(*FLinks, tr("&Links to be made:")));
  layout->addWidget(FLinks);
  FLinks->setUniformItemSizes(true);
  FLinks->setMinimumHeight(4 * fontMetrics().lineSpacing());
  auto* style = new TCheckStyle;
  style->setParent(FLinks);
  FLinks->setStyle(style);
  connect(FLinks, &QListWidget::itemChanged, this, [this](const QListWidgetItem* item) {
    if (!FShowing) FChoice.WantLink(static_cast<std::size_t>(FLinks->row(item)), item->checkState() == Qt::Checked);
  });
  return part;
}

// Databases and tables

void T_dlgAddTables::ChooseDatabase(const QString& name) {
  Try([&] {
    const TWaitCursor wait;
    FTables->Reset([&] { FChoice.SetDatabase(FromQString(name)); });
  });
  const QString fault = FFault;
  FDatabases->setCurrentIndex(FDatabases->findText(ToQString(FChoice.Database())));
  ShowSchemas();
  ShowLinks();
  if (!fault.isEmpty()) FFault = fault;
  ShowState();
}

void T_dlgAddTables::ShowSchemas() {
  const std::vector<std::string> schemas = FChoice.Schemas();
  FSchemas->clear();
  FSchemas->addItem(tr("(all)"));
  for (const std::string& schema : schemas) {
    FSchemas->addItem(schema.empty() ? tr("(none)") : ToQString(schema), ToQString(schema));
  }
  FFilter->SetSchema(std::nullopt);
  const bool isShown = schemas.size() > 1;
  FSchemas->setVisible(isShown);
  FSchemasLabel->setVisible(isShown);
  FTree->setColumnHidden(TCatalogueTablesModel::ColSchema, !isShown);
}

void T_dlgAddTables::ToggleSelected() {
  QModelIndexList tables;
  for (const QModelIndex& index : FTree->selectionModel()->selectedRows()) tables << FFilter->mapToSource(index);
  FTables->Toggle(tables);
}

// Links

void T_dlgAddTables::ShowLinks() {
  FShowing = true;
  FLinks->clear();
  Try([this] {
    const TWaitCursor wait;
    for (const TLinkOffer& link : FChoice.Links()) {
      QString text = ToQString(link.Text);
      if (!link.Alias.empty()) text += tr(" - by a further alias of the table, \"%1\"").arg(ToQString(link.Alias));
      auto* item = new QListWidgetItem(text, FLinks);
      item->setToolTip(PlainToolTip(text));
      item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
      item->setCheckState(link.Wanted ? Qt::Checked : Qt::Unchecked);
    }
  });
  FShowing = false;
}

void T_dlgAddTables::ShowState() {
  const std::size_t count = FChoice.ChosenCount();
  FOk->setEnabled(count > 0);
  QString text = FFault;
  if (text.isEmpty() && FFilter->rowCount() == 0) text = tr("No match");
  if (text.isEmpty()) {
    text = tr("Tables chosen: %1").arg(count);
    QStringList notes = ToQStringList(FChoice.Notes());
    const auto more = notes.size() - toldNotes;
    notes = notes.first(std::min<qsizetype>(notes.size(), toldNotes));
    if (more > 0) notes << tr("and %n more", nullptr, static_cast<int>(more));
    notes.prepend(text);
    text = notes.join(u'\n');
  }
  QPalette colors = palette();
  if (!FFault.isEmpty()) {
    colors.setColor(QPalette::WindowText, ReadableColor(FaultColor(), colors.color(QPalette::Window)));
  }
  FTold->setPalette(colors);
  FTold->setText(text);
}

bool T_dlgAddTables::Try(const std::function<void()>& operation) {
  FFault.clear();
  try {
    operation();
  } catch (const std::exception& error) {
    FFault = QString::fromUtf8(error.what());
  }
  ShowState();
  return FFault.isEmpty();
}

// Keys, and the end

void T_dlgAddTables::keyPressEvent(QKeyEvent* event) {
  // Enter goes from the search to the tables; it chooses no button that has not the focus.
  const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (isEnter && qobject_cast<QPushButton*>(focusWidget()) == nullptr) return;
  QDialog::keyPressEvent(event);
}

bool T_dlgAddTables::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return QDialog::eventFilter(watched, event);
  const int key = static_cast<QKeyEvent&>(*event).key();
  if (watched == FSearch && (key == Qt::Key_Down || key == Qt::Key_Return || key == Qt::Key_Enter)) {
    if (!FTree->currentIndex().isValid()) FTree->setCurrentIndex(FFilter->index(0, 0));
    FTree->setFocus();
    return true;
  }
  if (watched == FTree && key == Qt::Key_Space) {
    ToggleSelected();
    return true;
  }
  return QDialog::eventFilter(watched, event);
}

void T_dlgAddTables::accept() {
  if (FChoice.ChosenCount() == 0) return;
  const bool worked = Try([this] {
    const TWaitCursor wait;
    FEditor.Edit(FromQString(tr("Add tables")), [this] { FAdded = FChoice.Add(); });
  });
  if (worked) QDialog::accept();
}

void T_dlgAddTables::reject() {
  FAdded.clear();
  // Whether the database can be had again is no matter of the user who leaves.
  Try([this] { FChoice.RestoreDatabase(); });
  QDialog::reject();
}

bool AddTables(QWidget* parent, TModelEditor& editor, std::vector<std::string>& addedAliases) {
  addedAliases.clear();
  std::unique_ptr<TTableChoice> choice;
  try {
    const TWaitCursor wait;
    choice = std::make_unique<TTableChoice>(editor.Model());
  } catch (const std::exception& error) {
    QMessageBox::warning(parent, ToQString(SError), QString::fromUtf8(error.what()));
    return false;
  }
  // Whoever is closed meanwhile takes the dialog with it.
  const QPointer<T_dlgAddTables> dialog = new T_dlgAddTables(*choice, editor, parent);
  const bool accepted = dialog->exec() == QDialog::Accepted;
  if (!dialog) return false;
  if (accepted) addedAliases = dialog->AddedAliases();
  delete dialog;
  return !addedAliases.empty();
}

}  // namespace tolvi
