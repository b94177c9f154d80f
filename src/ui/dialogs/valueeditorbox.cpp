#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QStackedWidget>
#include <exception>
#include <utility>

#include <tolvi/model/dbstruc.h>
#include <tolvi/panel/modeleditor.h>
#include <tolvi/ui/controls/contrast.h>
#include <tolvi/ui/dialogs/checkstyle.h>
#include <tolvi/ui/dialogs/entrytable.h>
#include <tolvi/ui/dialogs/sqltext.h>
#include <tolvi/ui/dialogs/typecombo.h>
#include <tolvi/ui/dialogs/valueeditorbox.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

/// How many rows of a query are shown.
constexpr std::size_t MaxRows = 100;
constexpr int ShownLines = 3;

QStringList LinesOf(const QPlainTextEdit& edit) {
  const QString text = edit.toPlainText();
  return text.isEmpty() ? QStringList() : text.split(u'\n');
}

TStrings Lines(const QPlainTextEdit& edit) { return FromQStringList(LinesOf(edit)); }

void ShowLines(QPlainTextEdit& edit, const TStrings& lines) {
  const QString text = ToQStringList(lines).join(u'\n');
  if (edit.toPlainText() != text) edit.setPlainText(text);
}

void ShowText(QLineEdit& edit, const std::string& text) {
  if (FromQString(edit.text()) != text) edit.setText(ToQString(text));
}

}  // namespace

TValueEditorBox::TValueEditorBox(TModelEditor& editor, QWidget* parent)
    : QWidget(parent),
      FEditor(editor),
      FType(new QComboBox(this)),
      FPages(new QStackedWidget(this)),
      FTold(new QLabel(this)),
      FMany(new QLabel(this)) {
  FType->addItems({tr("Automatic (by the data type)"), tr("Text"), tr("Fixed list"), tr("The host's own editor"),
                   tr("List from a query"), tr("Sub-query")});
  FType->setAccessibleName(tr("Value editor"));
  // In the order of the ways.
  auto* nothing = new QLabel(tr("A line of text, a date or a check box, as the data type wants it."), this);
  nothing->setWordWrap(true);
  nothing->setAlignment(Qt::AlignTop | Qt::AlignLeading);
  FPages->addWidget(nothing);
  FPages->addWidget(MakeTextPage());
  FPages->addWidget(MakeListPage());
  FPages->addWidget(MakeLinesPage(FData, tr("Data for the &host:"), {}));
  FPages->addWidget(MakeSQLPage());
  FPages->addWidget(MakeLinesPage(FQuery, tr("&Stored query:"), tr("A query text, as query panels save it.")));

  for (QLabel* label : {FTold, FMany}) {
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->hide();
  }
  auto* form = new QFormLayout;
  form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  form->addRow(tr("Values are entered &by:"), FType);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins({});
  layout->addWidget(FMany);
  layout->addLayout(form);
  layout->addWidget(FPages, 1);
  layout->addWidget(FTold);
  connect(FType, &QComboBox::activated, this, &TValueEditorBox::Commit);
  UseCheckStyle(*this);
  ShowField(nullptr);
}

// Controls

QWidget* TValueEditorBox::MakeTextPage() {
  auto* page = new QWidget(this);
  auto* form = new QFormLayout(page);
  form->setContentsMargins({});
  form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  FDefault = new QLineEdit(page);
  FMask = new QLineEdit(page);
  FKind = new QComboBox(page);
  FKind->addItems({tr("Plain text"), tr("By the mask"), tr("Date"), tr("Time")});
  FCase = new QComboBox(page);
  FCase->addItems({tr("As typed"), tr("Upper case"), tr("Lower case")});
  FValueType = MakeTypeCombo(tr("That of the field"), page);
  FFormatted = new QCheckBox(tr("&With the mask's fixed characters"), page);
  form->addRow(tr("De&fault value:"), FDefault);
  form->addRow(tr("&Kind of text:"), FKind);
  form->addRow(tr("&Mask:"), FMask);
  form->addRow(QString(), FFormatted);
  form->addRow(tr("&Letters:"), FCase);
  form->addRow(tr("Type of the &value:"), FValueType);
  for (QLineEdit* line : {FDefault, FMask}) connect(line, &QLineEdit::editingFinished, this, &TValueEditorBox::Commit);
  for (QComboBox* combo : {FKind, FCase, FValueType}) {
    connect(combo, &QComboBox::activated, this, &TValueEditorBox::Commit);
  }
  connect(FFormatted, &QCheckBox::clicked, this, &TValueEditorBox::Commit);
  return page;
}

QWidget* TValueEditorBox::MakeListPage() {
  auto* page = new QWidget(this);
  auto* layout = new QVBoxLayout(page);
  layout->setContentsMargins({});
  FList = new TEntryTable(page);
  FList->OnChange = [this] { Commit(); };
  layout->addWidget(FList, 1);
  struct TRow {
    QString Caption, Key;
    void (*Run)(TEntryTable&);
  };
  const TRow rows[] = {
      {tr("&Paste"),
       tr("Insert rows from the clipboard (%1)")
           .arg(QKeySequence(QKeySequence::Paste).toString(QKeySequence::NativeText)),
       [](TEntryTable& list) { list.Paste(); }},
      {tr("&Remove"),
       tr("Remove the selected rows (%1)").arg(QKeySequence(Qt::Key_Delete).toString(QKeySequence::NativeText)),
       [](TEntryTable& list) { list.DeleteRows(); }},
      {tr("&Up"), tr("Move the row up (%1)").arg(QKeySequence(Qt::ALT | Qt::Key_Up).toString(QKeySequence::NativeText)),
       [](TEntryTable& list) { list.Step(-1); }},
      {tr("Do&wn"),
       tr("Move the row down (%1)").arg(QKeySequence(Qt::ALT | Qt::Key_Down).toString(QKeySequence::NativeText)),
       [](TEntryTable& list) { list.Step(1); }},
  };
  auto* buttons = new QHBoxLayout;
  for (const TRow& row : rows) {
    auto* button = new QPushButton(row.Caption, page);
    button->setToolTip(row.Key);
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, [this, run = row.Run] { run(*FList); });
    buttons->addWidget(button);
  }
  buttons->addStretch();
  layout->addLayout(buttons);
  return page;
}

QPlainTextEdit* TValueEditorBox::MakeLines(const QString& name) {
  auto* lines = new QPlainTextEdit(this);
  MakeCodeText(*lines);
  lines->setAccessibleName(name);
  lines->setMinimumHeight(ShownLines * lines->fontMetrics().lineSpacing());
  lines->installEventFilter(this);
  return lines;
}

QWidget* TValueEditorBox::MakeLinesPage(QPlainTextEdit*& lines, const QString& caption, const QString& hint) {
  auto* page = new QWidget(this);
  auto* layout = new QVBoxLayout(page);
  layout->setContentsMargins({});
  lines = MakeLines(QString(caption).remove(u'&'));
  auto* label = new QLabel(caption, page);
  label->setBuddy(lines);
  layout->addWidget(label);
  layout->addWidget(lines, 1);
  if (!hint.isEmpty()) layout->addWidget(new QLabel(hint, page));
  return page;
}

QWidget* TValueEditorBox::MakeSQLPage() {
  auto* page = new QWidget(this);
  auto* layout = new QVBoxLayout(page);
  layout->setContentsMargins({});
  FSQL = MakeLines(tr("Query"));
  FSQL->setPlaceholderText(tr("SELECT value, text FROM ..."));
  FParams = MakeLines(tr("Parameters"));
  FParams->setPlaceholderText(tr("name=value, one in a line; :name in the query stands for it"));
  for (const auto& [caption, lines] : {std::pair(tr("&Query:"), FSQL), std::pair(tr("&Parameters:"), FParams)}) {
    auto* label = new QLabel(caption, page);
    label->setBuddy(lines);
    layout->addWidget(label);
    layout->addWidget(lines, lines == FSQL ? 3 : 1);
  }
  FRun = new QPushButton(tr("&Run"), page);
  FRun->setToolTip(tr("Shows what the query gives"));
  FRun->setAutoDefault(false);
  connect(FRun, &QPushButton::clicked, this, &TValueEditorBox::Run);
  FRows = new QTableWidget(0, 2, page);
  FRows->setHorizontalHeaderLabels({tr("Text shown"), tr("Value in SQL")});
  FRows->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  FRows->horizontalHeader()->setDefaultAlignment(Qt::AlignLeading | Qt::AlignVCenter);
  FRows->verticalHeader()->hide();
  FRows->setEditTriggers(QAbstractItemView::NoEditTriggers);
  FRows->setTabKeyNavigation(false);
  FRows->setAccessibleName(tr("Values that the query gives"));
  FRows->hide();
  layout->addWidget(FRun, 0, Qt::AlignLeading);
  layout->addWidget(FRows, 3);
  return page;
}

// What is shown

void TValueEditorBox::ShowField(TDSField* field) {
  ShowFields(field != nullptr ? std::vector<TDSField*>{field} : std::vector<TDSField*>());
}

void TValueEditorBox::ShowFields(const std::vector<TDSField*>& fields) {
  std::vector<TPart> parts;
  parts.reserve(fields.size());
  for (const TDSField* field : fields) {
    // For one field the place costs a walk through the list; for many, the ID must do.
    const std::ptrdiff_t place = fields.size() == 1 ? FEditor.Model().Fields().IndexOf(field) : 0;
    parts.push_back({static_cast<std::size_t>(place), field->GetID()});
  }
  ShowParts(std::move(parts), false, 0);
}

void TValueEditorBox::ShowValue(TDSCondition* condition, std::size_t value) {
  std::vector<TPart> parts;
  if (condition != nullptr && value < condition->Values().Count()) {
    const std::ptrdiff_t place = FEditor.Model().Conditions().IndexOf(*condition);
    parts.push_back({static_cast<std::size_t>(place), condition->GetID()});
  }
  ShowParts(std::move(parts), true, value);
}

void TValueEditorBox::ShowParts(std::vector<TPart> parts, bool isValue, std::size_t value) {
  const bool same = parts == FParts && isValue == FIsValue && value == FValue;
  FParts = std::move(parts);
  FIsValue = isValue;
  FValue = value;
  TValueEntry entry = same ? FEntry : TValueEntry();
  ReadModel(entry);
  // What is being typed stays.
  if (same && entry == FEntry) return;
  FEntry = std::move(entry);
  Tell({}, false);
  FRows->hide();
  ShowEntry();
}

TDSField* TValueEditorBox::FindField(const TPart& part) const {
  const TJCustomDBStructure& model = FEditor.Model();
  const bool isThere = part.Place < model.Fields().Count() && model.GetField(part.Place).GetID() == part.ID;
  return isThere ? &model.GetField(part.Place) : model.FieldByID(part.ID);
}

TDSCondition* TValueEditorBox::FindCondition(const TPart& part) const {
  TJCustomDBStructure& model = FEditor.Model();
  TDSConditionList& conditions = model.Conditions();
  const bool isThere = part.Place < conditions.Count() && conditions[part.Place].GetID() == part.ID;
  TDSCondition* condition = isThere ? &conditions[part.Place] : model.ConditionByID(part.ID);
  return condition != nullptr && FValue < condition->Values().Count() ? condition : nullptr;
}

bool TValueEditorBox::ReadModel(TValueEntry& entry) const {
  if (FParts.empty()) return false;
  if (FIsValue) {
    const TDSCondition* condition = FindCondition(FParts.front());
    if (condition != nullptr) ReadEntry(condition->Values()[FValue], entry);
    return condition != nullptr;
  }
  const TDSField* field = FindField(FParts.front());
  if (field != nullptr) ReadEntry(*field, entry);
  return field != nullptr;
}

void TValueEditorBox::WriteModel(const TValueEntry& entry) const {
  for (const TPart& part : FParts) {
    if (FIsValue) {
      TDSCondition* condition = FindCondition(part);
      if (condition != nullptr) WriteEntry(condition->Values()[FValue], FEditor.Model(), entry);
    } else if (TDSField* field = FindField(part)) {
      WriteEntry(*field, entry);
    }
  }
}

void TValueEditorBox::ShowEntry() {
  FShowing = true;
  // Fields have no sub-queries of their own.
  const int count = FIsValue ? EntryWayCount : EntryWayCount - 1;
  if (FType->count() > count) FType->removeItem(count);
  if (FType->count() < count) FType->addItem(tr("Sub-query"));
  FType->setCurrentIndex(FEntry.Way);
  ShowText(*FDefault, FEntry.DefaultValue);
  ShowText(*FMask, FEntry.EditMask);
  FKind->setCurrentIndex(FEntry.Kind);
  FCase->setCurrentIndex(FEntry.LetterCase);
  ShowType(*FValueType, FEntry.ValueType);
  FFormatted->setChecked(FEntry.UseFormattedValue);
  if (FList->rowCount() == 0 || FList->GetItems() != FEntry.Items) FList->ShowItems(FEntry.Items);
  ShowLines(*FData, FEntry.Data);
  ShowLines(*FSQL, FEntry.SQL);
  ShowLines(*FParams, FEntry.SQLParams);
  ShowLines(*FQuery, FEntry.QueryData);
  FShowing = false;
  ShowState();
}

void TValueEditorBox::ShowState() {
  setEnabled(!FParts.empty());
  FMany->setVisible(FParts.size() > 1);
  FMany->setText(tr("What is changed here is changed for all %1 selected fields.").arg(FParts.size()));
  FPages->setCurrentIndex(FEntry.Way);
  FFormatted->setEnabled(!FMask->text().isEmpty());
  FRun->setEnabled(FEditor.Model().GetDatabaseInfo() != nullptr);
  FRun->setToolTip(FRun->isEnabled() ? tr("Shows what the query gives")
                                     : tr("The model is not connected to a database"));
}

// Changes

TValueEntry TValueEditorBox::TypedEntry() const {
  TValueEntry entry;
  entry.Way = static_cast<TEntryWay>(FType->currentIndex());
  entry.DefaultValue = FromQString(FDefault->text());
  entry.EditMask = FromQString(FMask->text());
  entry.Kind = static_cast<TTextEditorKind>(FKind->currentIndex());
  entry.LetterCase = static_cast<TLetterCase>(FCase->currentIndex());
  entry.ValueType = TypeOf(*FValueType);
  entry.UseFormattedValue = FFormatted->isChecked();
  entry.Items = FList->GetItems();
  entry.Data = Lines(*FData);
  entry.SQL = Lines(*FSQL);
  entry.SQLParams = Lines(*FParams);
  entry.QueryData = Lines(*FQuery);
  return entry;
}

void TValueEditorBox::Commit() {
  if (FShowing || FParts.empty()) return;
  TValueEntry entry = TypedEntry();
  if (entry == FEntry) return;
  const QPointer<TValueEditorBox> alive(this);
  QString fault;
  FEntry = entry;
  try {
    FEditor.Edit(FromQString(tr("Change value editor")), [&] { WriteModel(entry); });
  } catch (const std::exception& error) {
    fault = ToQString(error.what());
  }
  if (!alive) return;
  if (!fault.isEmpty()) {
    ReadModel(FEntry);
    ShowEntry();
  } else {
    ShowState();
  }
  Tell(fault, true);
}

void TValueEditorBox::CommitEdits() {
  const QWidget* focus = focusWidget();
  // Ends the editing of a cell.
  if (focus != nullptr && FList->viewport()->isAncestorOf(focus)) FList->setFocus();
  Commit();
}

bool TValueEditorBox::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::FocusOut) {
    const QPointer<TValueEditorBox> alive(this);
    Commit();
    // What was left is gone, too.
    if (!alive) return true;
  }
  return QWidget::eventFilter(watched, event);
}

void TValueEditorBox::Run() {
  const QPointer<TValueEditorBox> alive(this);
  Commit();
  if (!alive) return;
  TQueriedItems found;
  try {
    found = RunEntry(FEditor.Model(), FEntry, MaxRows);
  } catch (const std::exception& error) {
    FRows->hide();
    return Tell(ToQString(error.what()), true);
  }
  FRows->setRowCount(static_cast<int>(found.Items.size()));
  for (std::size_t i = 0; i < found.Items.size(); ++i) {
    FRows->setItem(static_cast<int>(i), 0, new QTableWidgetItem(ToQString(found.Items[i].Text)));
    FRows->setItem(static_cast<int>(i), 1, new QTableWidgetItem(ToQString(found.Items[i].Value)));
  }
  FRows->setVisible(!found.Items.empty());
  Tell(found.Count > found.Items.size()
           ? tr("Rows: %1; the first %2 are shown").arg(found.Count).arg(found.Items.size())
           : tr("Rows: %1").arg(found.Count),
       false);
}

void TValueEditorBox::Tell(const QString& text, bool isFault) {
  QPalette colors = palette();
  if (isFault) colors.setColor(QPalette::WindowText, ReadableColor(FaultColor(), colors.color(QPalette::Window)));
  FTold->setPalette(colors);
  FTold->setText(text);
  FTold->setVisible(!text.isEmpty());
}

}  // namespace tolvi
