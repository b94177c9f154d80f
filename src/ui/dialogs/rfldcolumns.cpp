#include <QAction>
#include <QButtonGroup>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QToolButton>
#include <QTreeView>
#include <algorithm>
#include <utility>

#include <tolvi/panel/rfldeditor.h>
#include <tolvi/panel/rfldrows.h>
#include <tolvi/ui/controls/contrast.h>
#include <tolvi/ui/controls/rowdrag.h>
#include <tolvi/ui/dialogs/checkstyle.h>
#include <tolvi/ui/dialogs/faultdelegate.h>
#include <tolvi/ui/dialogs/fieldtree.h>
#include <tolvi/ui/dialogs/formulaedit.h>
#include <tolvi/ui/dialogs/rfldcolumns.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

constexpr int MostFunctionsInRow = 4, LeastFunctionsInRow = 2;

QLabel* MakeLabel(const QString& text, QWidget& buddy) {
  auto* label = new QLabel(text, buddy.parentWidget());
  label->setBuddy(&buddy);
  buddy.setAccessibleName(QString(text).remove(u'&'));
  return label;
}

}  // namespace

TRFColumnsPage::TRFColumnsPage(TRFieldEditor& editor, QWidget* parent)
    : QWidget(parent),
      FEditor(editor),
      FTree(new TFieldTree(this)),
      FList(new QListWidget(this)),
      FCaption(new QLineEdit(this)),
      FExpression(new TFormulaEdit(this)),
      FFault(new QLabel(this)),
      FAlias(new QLabel(this)),
      FFunctions(new QButtonGroup(this)) {
  for (const TCommand command :
       {cmCreate, cmNew, cmDelete, cmAdd, cmSubtract, cmMultiply, cmDivide, cmSort, cmUp, cmDown}) {
    FActions[command] = MakeAction(command);
  }
  auto* columns = new QVBoxLayout;
  columns->addLayout(BuildColumns(), 1);
  columns->addLayout(BuildForm());
  auto* layout = new QHBoxLayout(this);
  layout->addLayout(BuildFields(), 2);
  layout->addLayout(BuildStrip());
  layout->addLayout(columns, 3);
  FTree->OnChoose = [this] { Run(cmCreate); };
  FTree->OnSelect = [this] { RefreshActions(); };
  ChainTabs();
  Refresh();
}

QString TRFColumnsPage::Title(std::string_view key) const { return ToQString(FEditor.Titles().GetTitle(key)); }

// Commands

QAction* TRFColumnsPage::MakeAction(TCommand command) {
  struct TRow {
    const char* Title;
    QString Caption;
    TSign Sign;
    QKeySequence Key;
  };
  const TRow rows[] = {
      {"ttlMakeFldHint", {}, sgForward, {}},
      {"ttlNewFldHint", {}, sgNew, Qt::CTRL | Qt::Key_N},
      {"ttlDelFldHint", {}, sgDelete, Qt::Key_Delete},
      {"ttlAddRFldHint", {}, sgPlus, Qt::CTRL | Qt::Key_Plus},
      {"ttlSubRFldHint", {}, sgMinus, Qt::CTRL | Qt::Key_Minus},
      {"ttlMulRFldHint", {}, sgTimes, Qt::CTRL | Qt::Key_Asterisk},
      {"ttlDivRFldHint", {}, sgDivided, Qt::CTRL | Qt::Key_Slash},
      {"ttlSortRFldHint", {}, sgNotSorted, Qt::CTRL | Qt::Key_T},
      {nullptr, tr("Move up"), sgUp, Qt::ALT | Qt::Key_Up},
      {nullptr, tr("Move down"), sgDown, Qt::ALT | Qt::Key_Down},
  };
  const TRow& row = rows[command];
  auto* action = new QAction(SignIcon(row.Sign, *this), row.Title != nullptr ? Title(row.Title) : row.Caption, this);
  action->setShortcut(row.Key);
  // In a text, the key deletes characters.
  if (command == cmDelete) action->setShortcutContext(Qt::WidgetShortcut);
  const QString key = command == cmCreate ? QKeySequence(Qt::Key_Return).toString(QKeySequence::NativeText)
                                          : row.Key.toString(QKeySequence::NativeText);
  action->setToolTip(action->text() + QStringLiteral(" (") + key + u')');
  connect(action, &QAction::triggered, this, [this, command] { Run(command); });
  (command == cmDelete ? static_cast<QWidget*>(FList) : this)->addAction(action);
  return action;
}

void TRFColumnsPage::Run(TCommand command) {
  const std::optional<std::size_t> current = FEditor.GetCurrent();
  switch (command) {
    case cmCreate:
      return FEditor.Create(FTree->SelectedFields());
    case cmNew:
      FEditor.New();
      return EditExpression();
    case cmDelete:
      return Delete();
    case cmAdd:
    case cmSubtract:
    case cmMultiply:
    case cmDivide:
      return Join(static_cast<TRFOperation>(command - cmAdd));
    case cmSort:
      return Sort();
    case cmUp:
      return FEditor.Move(current.value_or(0) - 1);
    case cmDown:
      return FEditor.Move(current.value_or(0) + 1);
  }
}

void TRFColumnsPage::Delete() {
  if (!FEditor.GetCurrent()) return;
  if (!FEditor.HasOwnFormula()) return FEditor.Delete();
  const QString caption = ToQString(FEditor.Fields()[*FEditor.GetCurrent()].GetCaption());
  auto* box = new QMessageBox(QMessageBox::Question, window()->windowTitle(),
                              Title("ttlMgsDeleteField").replace(QLatin1String("%s"), caption),
                              QMessageBox::Yes | QMessageBox::No, this);
  box->setTextFormat(Qt::PlainText);
  box->setAttribute(Qt::WA_DeleteOnClose);
  connect(box, &QDialog::finished, this, [this](int answer) {
    if (answer == QMessageBox::Yes) FEditor.Delete();
  });
  box->open();
}

void TRFColumnsPage::Sort() {
  if (!FEditor.GetCurrent()) return;
  const int sorting = FEditor.Fields()[*FEditor.GetCurrent()].GetSorting();
  FEditor.SetSorting(*FEditor.GetCurrent(), static_cast<TSortingType>((sorting + 1) % (stDescending + 1)));
}

void TRFColumnsPage::Join(TRFOperation operation) {
  const std::string fault = FEditor.Join(operation, FTree->SelectedFields());
  if (!fault.empty()) TellFault(ToQString(fault));
}

void TRFColumnsPage::EditExpression() {
  FExpression->setFocus();
  FExpression->selectAll();
}

// Parts

void TRFColumnsPage::AddButton(QBoxLayout& layout, TCommand command) {
  layout.addWidget(MakeSignButton(*FActions[command], *this));
}

QBoxLayout* TRFColumnsPage::BuildFields() {
  auto* layout = new QVBoxLayout;
  QLabel* label = MakeLabel(Title("ttlFields"), FTree->Tree());
  label->setBuddy(&FTree->Search());
  layout->addWidget(label);
  layout->addWidget(FTree);
  return layout;
}

QBoxLayout* TRFColumnsPage::BuildStrip() {
  auto* layout = new QVBoxLayout;
  layout->addStretch(2);
  AddButton(*layout, cmCreate);
  layout->addSpacing(fontMetrics().height());
  for (const TCommand command : {cmAdd, cmSubtract, cmMultiply, cmDivide}) AddButton(*layout, command);
  layout->addStretch(3);
  return layout;
}

QBoxLayout* TRFColumnsPage::BuildColumns() {
  auto* head = new QHBoxLayout;
  head->addWidget(MakeLabel(Title("ttlResFields"), *FList), 1);
  for (const TCommand command : {cmNew, cmDelete, cmSort, cmUp, cmDown}) AddButton(*head, command);
  auto* style = new TCheckStyle;
  style->setParent(FList);
  FList->setStyle(style);
  FList->setItemDelegate(new TFaultDelegate(FList));
  const int side = fontMetrics().height();
  FList->setIconSize(QSize(side, side));
  FList->setSelectionMode(QAbstractItemView::SingleSelection);
  FList->setEditTriggers(QAbstractItemView::NoEditTriggers);
  auto* drag = new TRowDrag(*FList);
  drag->OnMove = [this](int from, int to) {
    FEditor.SetCurrent(static_cast<std::size_t>(from));
    FEditor.Move(static_cast<std::size_t>(to));
  };
  connect(FList, &QListWidget::currentRowChanged, this, [this](int row) {
    if (!FRefreshing && row >= 0) FEditor.SetCurrent(static_cast<std::size_t>(row));
  });
  connect(FList, &QListWidget::itemChanged, this, [this](const QListWidgetItem* item) {
    if (!FRefreshing)
      FEditor.SetHidden(static_cast<std::size_t>(FList->row(item)), item->checkState() == Qt::Unchecked);
  });
  connect(FList, &QListWidget::itemDoubleClicked, this, [this] { FCaption->setFocus(); });
  auto* layout = new QVBoxLayout;
  layout->addLayout(head);
  layout->addWidget(FList);
  return layout;
}

QGridLayout* TRFColumnsPage::BuildForm() {
  FFault->setWordWrap(true);
  FFault->setTextFormat(Qt::PlainText);
  FAlias->setTextFormat(Qt::PlainText);
  FAlias->setTextInteractionFlags(Qt::TextSelectableByMouse);
  FAlias->setToolTip(tr("The name of the column in SQL. It follows the name above."));
  FExpression->setPlaceholderText(tr("Type an expression; { offers the fields"));
  FExpression->OnNames = [this] {
    std::vector<TFormulaName> names;
    const TJCustomDBStructure* model = FEditor.GetModel();
    if (model == nullptr) return names;
    for (const TRFItem& item : ResultFieldItems(*model)) {
      TDSField* field = model->FieldByID(std::stoi(item.Value));
      if (field == nullptr) continue;
      const QString reference = ToQString(FEditor.ReferenceTo(*field));
      names.push_back({ToQString(item.Text) + QStringLiteral("  ") + reference, reference});
    }
    return names;
  };
  for (QLineEdit* line : {FCaption, static_cast<QLineEdit*>(FExpression)}) {
    connect(line, &QLineEdit::textEdited, this, [this, line](const QString& text) {
      FTyped = line;
      line == FCaption ? FEditor.SetCaption(FromQString(text)) : FEditor.SetExpression(FromQString(text));
      FTyped = nullptr;
    });
    // What was made of the text is shown when the user goes on.
    connect(line, &QLineEdit::editingFinished, this, &TRFColumnsPage::RefreshForm);
  }
  auto* form = new QGridLayout;
  form->addWidget(MakeLabel(Title("ttlFieldNmColName"), *FCaption), 0, 0);
  form->addWidget(FCaption, 0, 1);
  form->addWidget(MakeLabel(Title("ttlFieldExprColName"), *FExpression), 1, 0);
  form->addWidget(FExpression, 1, 1);
  form->addWidget(FFault, 2, 1);
  form->addWidget(new QLabel(tr("Alias"), this), 3, 0);
  form->addWidget(FAlias, 3, 1);
  form->addLayout(BuildFunctions(), 4, 0, 1, 2);
  form->setColumnStretch(1, 1);
  return form;
}

QGridLayout* TRFColumnsPage::BuildFunctions() {
  auto* layout = new QGridLayout;
  layout->setSpacing(fontMetrics().height() / 4);
  for (const TRFAggregate aggregate : AllAggregates) {
    auto* button = new QPushButton(Title(AggregateTitle(aggregate)), this);
    button->setCheckable(true);
    button->setAutoDefault(false);
    FFunctions->addButton(button, aggregate);
  }
  // As many in a row as the wider part of a screen takes.
  int width = 0;
  for (const QAbstractButton* button : FFunctions->buttons()) width = std::max(width, button->sizeHint().width());
  int inRow = MostFunctionsInRow;
  while (inRow > LeastFunctionsInRow && inRow * width > screen()->availableSize().width() / 2) inRow /= 2;
  for (const TRFAggregate aggregate : AllAggregates) {
    layout->addWidget(FFunctions->button(aggregate), aggregate / inRow, aggregate % inRow);
    layout->setColumnMinimumWidth(aggregate % inRow, width);
    layout->setColumnStretch(aggregate % inRow, 1);
  }
  connect(FFunctions, &QButtonGroup::idClicked, this,
          [this](int id) { FEditor.SetAggregate(static_cast<TRFAggregate>(id)); });
  return layout;
}

// As one reads: the fields, the buttons between, the columns and what they hold.
void TRFColumnsPage::ChainTabs() {
  QList<QWidget*> chain{&FTree->Search(), &FTree->Tree()};
  for (const TCommand command :
       {cmCreate, cmAdd, cmSubtract, cmMultiply, cmDivide, cmNew, cmDelete, cmSort, cmUp, cmDown}) {
    for (QObject* object : FActions[command]->associatedObjects()) {
      if (auto* button = qobject_cast<QToolButton*>(object)) chain << button;
    }
  }
  chain << FList << FCaption << FExpression;
  for (QAbstractButton* button : FFunctions->buttons()) chain << button;
  for (qsizetype i = 1; i < chain.size(); ++i) setTabOrder(chain[i - 1], chain[i]);
}

void TRFColumnsPage::StartSearch() { FTree->Search().setFocus(); }

// What is shown

void TRFColumnsPage::Refresh() {
  if (std::exchange(FRefreshing, true)) return;
  FTree->ShowFields(FEditor.GetModel());
  FExpression->ForgetNames();
  RefreshList();
  RefreshForm();
  RefreshFunctions();
  RefreshActions();
  FRefreshing = false;
}

void TRFColumnsPage::RefreshList() {
  constexpr TSign sorts[] = {sgNone, sgAscending, sgDescending};
  constexpr const char* sortTitles[] = {"ttlNotSorted", "ttlAscending", "ttlDescending"};
  const int count = static_cast<int>(FEditor.Fields().Count());
  while (FList->count() > count) delete FList->takeItem(count);
  while (FList->count() < count) FList->addItem(new QListWidgetItem);
  const QColor fault = ReadableColor(FaultColor(), FList->palette().color(QPalette::Base));
  for (int row = 0; row < count; ++row) {
    const auto index = static_cast<std::size_t>(row);
    const TResultField& column = FEditor.Fields()[index];
    QListWidgetItem& item = *FList->item(row);
    const QString wrong = ToQString(FEditor.GetProblem(index)), expression = ToQString(FEditor.GetExpression(index));
    const QString sorting = Title(sortTitles[column.GetSorting()]);
    item.setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable | Qt::ItemNeverHasChildren);
    item.setText(ToQString(column.GetCaption()));
    item.setIcon(SignIcon(sorts[column.GetSorting()], *FList));
    item.setCheckState(column.GetHidden() ? Qt::Unchecked : Qt::Checked);
    item.setForeground(wrong.isEmpty() ? QBrush() : QBrush(fault));
    item.setData(TFaultDelegate::WrongRole, !wrong.isEmpty());
    const QString shown = column.GetHidden() ? tr("not shown") : tr("shown");
    item.setToolTip(PlainToolTip(expression + QStringLiteral(" (") + shown + u')'));
    QString text = item.text() + QStringLiteral(", ") + expression + QStringLiteral(", ") + sorting;
    item.setData(Qt::AccessibleTextRole, wrong.isEmpty() ? text : text + QStringLiteral(", ") + wrong);
  }
  FList->setCurrentRow(FEditor.GetCurrent() ? static_cast<int>(*FEditor.GetCurrent()) : -1);
}

void TRFColumnsPage::RefreshForm() {
  const std::optional<std::size_t> current = FEditor.GetCurrent();
  const QString caption = current ? ToQString(FEditor.Fields()[*current].GetCaption()) : QString();
  const QString expression = current ? ToQString(FEditor.GetExpression(*current)) : QString();
  for (const auto& [line, text] :
       {std::pair(FCaption, caption), std::pair<QLineEdit*, QString>(FExpression, expression)}) {
    line->setEnabled(current.has_value());
    // Under the user's hands, a text stays as it is typed.
    if (line == FTyped) continue;
    if (line->text() != text) line->setText(text);
    if (!line->hasFocus()) line->home(false);
  }
  FAlias->setText(current ? ToQString(FEditor.GetAlias(*current)) : QString());
  TellFault(current ? ToQString(FEditor.GetProblem(*current)) : QString());
}

void TRFColumnsPage::TellFault(const QString& fault) {
  QPalette colors = palette();
  colors.setColor(QPalette::WindowText, ReadableColor(FaultColor(), BackgroundOf(*this)));
  FFault->setPalette(colors);
  FFault->setText(fault);
  FExpression->setAccessibleDescription(fault);
}

void TRFColumnsPage::RefreshFunctions() {
  for (QAbstractButton* button : FFunctions->buttons()) {
    const auto aggregate = static_cast<TRFAggregate>(FFunctions->id(button));
    const QString fault = ToQString(FEditor.AggregateFault(aggregate));
    button->setEnabled(fault.isEmpty());
    button->setToolTip(PlainToolTip(fault));
    button->setAccessibleDescription(fault);
    const bool isUsed = aggregate == FEditor.GetAggregate();
    button->setChecked(isUsed);
    QPalette colors = palette();
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
      if (!isUsed) break;
      colors.setColor(group, QPalette::Button, colors.color(group, QPalette::Highlight));
      colors.setColor(group, QPalette::ButtonText, colors.color(group, QPalette::HighlightedText));
    }
    button->setPalette(colors);
  }
}

void TRFColumnsPage::RefreshActions() {
  constexpr TSign sorts[] = {sgNotSorted, sgAscending, sgDescending};
  const std::optional<std::size_t> current = FEditor.GetCurrent();
  const bool hasFields = !FTree->SelectedFields().empty();
  const QString fault = hasFields ? ToQString(FEditor.JoinFault()) : tr("Select a field first.");
  FActions[cmCreate]->setEnabled(hasFields);
  FActions[cmNew]->setEnabled(FEditor.GetModel() != nullptr);
  for (const TCommand command : {cmAdd, cmSubtract, cmMultiply, cmDivide}) {
    QAction& action = *FActions[command];
    action.setEnabled(fault.isEmpty());
    const QString key = action.shortcut().toString(QKeySequence::NativeText);
    action.setToolTip(fault.isEmpty() ? action.text() + QStringLiteral(" (") + key + u')' : PlainToolTip(fault));
    // Else the tip would be read out with its markup.
    for (QObject* shown : action.associatedObjects()) {
      if (auto* button = qobject_cast<QToolButton*>(shown)) button->setAccessibleDescription(fault);
    }
  }
  for (const TCommand command : {cmDelete, cmSort}) FActions[command]->setEnabled(current.has_value());
  FActions[cmUp]->setEnabled(current && *current > 0);
  FActions[cmDown]->setEnabled(current && *current + 1 < FEditor.Fields().Count());
  FActions[cmSort]->setIcon(SignIcon(sorts[current ? FEditor.Fields()[*current].GetSorting() : stNoSort], *this));
}

void TRFColumnsPage::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange && FFunctions != nullptr) Refresh();
}

}  // namespace tolvi
