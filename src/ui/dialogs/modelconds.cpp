#include <QAction>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QScrollArea>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <algorithm>

#include <tolvi/foundation/consts.h>
#include <tolvi/model/dbstruc.h>
#include <tolvi/panel/modeleditor.h>
#include <tolvi/panel/modeloperators.h>
#include <tolvi/ui/dialogs/checkedline.h>
#include <tolvi/ui/dialogs/modelconds.h>
#include <tolvi/ui/dialogs/partlist.h>
#include <tolvi/ui/dialogs/scrolled.h>
#include <tolvi/ui/dialogs/typecombo.h>
#include <tolvi/ui/dialogs/valueeditorbox.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

enum TValueColumn : int { vcText, vcType, vcKind };
constexpr int ShownValues = 3;

QString TablesOf(const TJCustomDBStructure& model, std::string_view sql) {
  TSimpleDSTableList tables;
  TStrings references;
  model.ExcludeTablesBySQLExpr(sql, tables, references);
  QStringList names;
  for (const TDSTable* table : tables) names << ToQString(table->GetTableAlias());
  return names.join(QStringLiteral(", "));
}

}  // namespace

TConditionsPage::TConditionsPage(TModelEditor& editor, QWidget* parent) : TModelPage(editor, parent) {
  FList = new TPartList(tr("Predefined conditions"), {tr("Display format"), tr("SQL")}, this);
  FList->OnSelect = [this] { ShowCurrent(); };
  FList->AddAction(tr("New condition"), sgNew, Qt::CTRL | Qt::Key_N, false, [this] { Add(); });
  FList->AddAction(tr("Delete"), sgDelete, Qt::Key_Delete, true, [this] { Delete(); });
  ShowParts("Conditions", *FList, *Scrolled(MakeForm(), this), 2, 3);
  FSampleTimer.setSingleShot(true);
  FSampleTimer.setInterval(0);
  connect(&FSampleTimer, &QTimer::timeout, this, &TConditionsPage::ShowSample);
  setFocusProxy(FList);
  ShowCurrent();
}

// Controls

QWidget* TConditionsPage::MakeForm() {
  FForm = new QWidget(this);
  auto* form = new QFormLayout;
  form->setContentsMargins({});
  form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  FFormat = new TCheckedLine(FForm);
  FSQL = new TCheckedLine(FForm);
  FFormat->OnCheck = [this](const QString& text) {
    return Current() ? CheckConditionFormat(FromQString(FSQL->text()), FromQString(text)) : TTextFindings();
  };
  FSQL->OnCheck = [this](const QString& text) {
    return Current() ? CheckConditionSQL(Editor().Model(), FromQString(text)) : TTextFindings();
  };
  FFormat->OnCommit = [this](const QString& text) { ChangeText(false, text); };
  FSQL->OnCommit = [this](const QString& text) { ChangeText(true, text); };
  connect(FSQL, &QLineEdit::textChanged, this, [this] { FFormat->Check(); });
  for (TCheckedLine* line : {FFormat, FSQL}) {
    connect(line, &QLineEdit::textChanged, &FSampleTimer, qOverload<>(&QTimer::start));
  }
  form->addRow(tr("Display &format:"), FFormat);
  form->addRow(QString(), new QLabel(tr("@ is the place of a value."), FForm));
  form->addRow(tr("S&QL:"), FSQL);
  form->addRow(QString(), new QLabel(tr("@1 and @2 stand for the values."), FForm));
  FFormat->setAccessibleName(tr("Display format"));
  FSQL->setAccessibleName(tr("SQL"));
  FTables = new QLabel(FForm);
  FSample = new QLabel(FForm);
  for (QLabel* label : {FTables, FSample}) {
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  }
  form->addRow(tr("Tables:"), FTables);
  form->addRow(tr("Example:"), FSample);
  auto* layout = new QVBoxLayout(FForm);
  layout->setContentsMargins({});
  layout->addLayout(form);
  layout->addWidget(MakeValues(), 1);
  layout->addStretch();
  return FForm;
}

QWidget* TConditionsPage::MakeValues() {
  FValuesBox = new QGroupBox(tr("Values"), FForm);
  FValues = new QTreeWidget(FValuesBox);
  FValues->setHeaderLabels({tr("Text before it"), tr("Type"), tr("Kind")});
  FValues->setAccessibleName(tr("Values"));
  FValues->setRootIsDecorated(false);
  FValues->setUniformRowHeights(true);
  FValues->header()->setSectionResizeMode(QHeaderView::Stretch);
  const int line = fontMetrics().lineSpacing() * 3 / 2;
  FValues->setFixedHeight((ShownValues + 1) * line);
  connect(FValues, &QTreeWidget::currentItemChanged, this, [this] {
    if (!FShowing) ShowValue();
  });
  FType = MakeTypeCombo(tr("Not known"), FValuesBox);
  connect(FType, &QComboBox::activated, this, [this] {
    ChangeValue(tr("Change value type"), [this](TDSValue& value) { value.SetDataType(TypeOf(*FType)); });
  });
  FKind = new QComboBox(FValuesBox);
  FKind->addItems({tr("A single value"), tr("A list of values"), tr("A sub-query")});
  connect(FKind, &QComboBox::activated, this, [this](int kind) {
    ChangeValue(tr("Change value kind"), [kind](TDSValue& value) { value.SetDataKind(static_cast<TValueKind>(kind)); });
  });
  FEditorBox = new TValueEditorBox(Editor(), FValuesBox);
  auto* form = new QFormLayout;
  form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  form->addRow(tr("Data t&ype:"), FType);
  form->addRow(tr("&Kind:"), FKind);
  auto* layout = new QVBoxLayout(FValuesBox);
  layout->addWidget(FValues);
  layout->addLayout(form);
  layout->addWidget(FEditorBox, 1);
  return FValuesBox;
}

// Showing

TDSCondition* TConditionsPage::Current() const {
  TDSConditionList& conditions = Editor().Model().Conditions();
  const std::optional<std::size_t> current = FList->Current();
  return current && *current < conditions.Count() ? &conditions[*current] : nullptr;
}

std::optional<std::size_t> TConditionsPage::CurrentValue() const {
  const TDSCondition* condition = Current();
  const int row = FValues->indexOfTopLevelItem(FValues->currentItem());
  const bool isThere = condition != nullptr && row >= 0 && static_cast<std::size_t>(row) < condition->Values().Count();
  return isThere ? std::optional(static_cast<std::size_t>(row)) : std::nullopt;
}

void TConditionsPage::Refresh() {
  std::vector<TPartRow> rows;
  for (const TDSCondition& condition : Editor().Model().Conditions()) {
    const std::string &sql = condition.GetSQLExpr(), &format = condition.GetDisplayFormat();
    const bool isWrong = sql.empty() || TemplateParamCount(sql) != condition.Values().Count();
    rows.push_back({QString::number(condition.GetID()), {ToQString(format), ToQString(sql)}, isWrong});
  }
  FList->ShowRows(std::move(rows));
  ShowCurrent();
}

void TConditionsPage::ShowCurrent() {
  const TDSCondition* condition = Current();
  FForm->setEnabled(condition != nullptr);
  FSQL->ShowText(condition != nullptr ? ToQString(condition->GetSQLExpr()) : QString());
  FFormat->ShowText(condition != nullptr ? ToQString(condition->GetDisplayFormat()) : QString());
  FSQL->Check();
  FFormat->Check();
  ShowValues(condition);
  FSampleTimer.start();
}

void TConditionsPage::ShowValues(const TDSCondition* condition) {
  FShowing = true;
  const int current = FValues->indexOfTopLevelItem(FValues->currentItem());
  FValues->clear();
  if (condition != nullptr) {
    for (const TDSValue& value : condition->Values()) {
      auto* item = new QTreeWidgetItem(FValues);
      item->setText(vcText, ToQString(value.GetText()));
      item->setText(vcType, FType->itemText(FType->findData(int{value.GetDataType()})));
      item->setText(vcKind, FKind->itemText(value.GetDataKind()));
    }
  }
  const int count = FValues->topLevelItemCount();
  if (count > 0) FValues->setCurrentItem(FValues->topLevelItem(std::clamp(current, 0, count - 1)));
  FValuesBox->setVisible(count > 0);
  FShowing = false;
  ShowValue();
}

void TConditionsPage::ShowValue() {
  TDSCondition* condition = Current();
  const std::optional<std::size_t> index = CurrentValue();
  FEditorBox->ShowValue(index ? condition : nullptr, index.value_or(0));
  if (!index) return;
  const TDSValue& value = condition->Values()[*index];
  ShowType(*FType, value.GetDataType());
  FKind->setCurrentIndex(value.GetDataKind());
}

// Of what is typed, not of what is stored.
void TConditionsPage::ShowSample() {
  const TDSCondition* condition = Current();
  FTables->setText(condition != nullptr ? TablesOf(Editor().Model(), FromQString(FSQL->text())) : QString());
  if (condition == nullptr || !isVisible()) return FSample->clear();
  TDSCondition typed(nullptr);
  typed.SetSQLExpr(FromQString(FSQL->text()));
  ChangeDisplayFormat(typed, FromQString(FFormat->text()));
  for (std::size_t i = 0; i < std::min(typed.Values().Count(), condition->Values().Count()); ++i) {
    typed.Values()[i].SetDataType(condition->Values()[i].GetDataType());
    typed.Values()[i].SetDataKind(condition->Values()[i].GetDataKind());
  }
  const TSampleCondition sample = SampleOfCondition(Editor().Model(), typed);
  QStringList lines;
  for (const std::string& line : {sample.Sentence, sample.SQL, sample.Fault}) {
    if (!line.empty()) lines << ToQString(line);
  }
  FSample->setText(lines.join(u'\n'));
}

bool TConditionsPage::GoTo(std::string_view section) {
  for (std::size_t i = 0; i < Editor().Model().Conditions().Count(); ++i) {
    if (section != "Cond:" + std::to_string(i + 1)) continue;
    FList->Select({i});
    return true;
  }
  return false;
}

void TConditionsPage::CommitEdits() {
  FFormat->Commit();
  FSQL->Commit();
  FEditorBox->CommitEdits();
}

// Changing

void TConditionsPage::ChangeText(bool isSQL, const QString& text) {
  Edit(isSQL ? tr("Change SQL") : tr("Change display format"), [&] {
    TDSCondition* condition = Current();
    if (condition == nullptr) return;
    if (isSQL) {
      condition->SetSQLExpr(FromQString(text));
    } else {
      ChangeDisplayFormat(*condition, FromQString(text));
    }
  });
}

void TConditionsPage::ChangeValue(const QString& name, const std::function<void(TDSValue&)>& change) {
  Edit(name, [&] {
    TDSCondition* condition = Current();
    const std::optional<std::size_t> index = CurrentValue();
    if (condition == nullptr || !index) return;
    change(condition->Values()[*index]);
    Editor().Model().Changed();
  });
}

void TConditionsPage::Add() {
  CommitEdits();
  std::size_t added = 0;
  if (!Edit(tr("Add condition"), [&] { added = AddNewCondition(Editor().Model()); })) return;
  Refresh();
  FList->Select({added});
  FFormat->setFocus();
  FFormat->selectAll();
}

void TConditionsPage::Delete() {
  CommitEdits();
  const std::vector<std::size_t> selected = FList->Selected();
  if (selected.empty() || !Confirmed(SDeleteCondition)) return;
  if (Edit(tr("Delete condition"), [&] { DeleteConditions(Editor().Model(), selected); })) Refresh();
}

}  // namespace tolvi
