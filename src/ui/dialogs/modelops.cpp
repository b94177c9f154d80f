#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>
#include <algorithm>
#include <iterator>

#include <tolvi/foundation/consts.h>
#include <tolvi/model/dbstruc.h>
#include <tolvi/panel/modeleditor.h>
#include <tolvi/panel/modeloperators.h>
#include <tolvi/ui/dialogs/checkedline.h>
#include <tolvi/ui/dialogs/checkstyle.h>
#include <tolvi/ui/dialogs/modelops.h>
#include <tolvi/ui/dialogs/partlist.h>
#include <tolvi/ui/dialogs/scrolled.h>
#include <tolvi/ui/dialogs/typecombo.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {

struct TOperatorsPage::TText {
  const char *Label, *Step;
  const std::string& (TDSOperator::*Get)() const;
  void (TDSOperator::*Set)(std::string_view);
};

namespace {

/// The lines of `Texts`.
enum TLine : std::size_t { lnName, lnDisplayName, lnTemplate, lnFormat };

constexpr const char* GroupCaptions[] = {QT_TRANSLATE_NOOP("tolvi::TOperatorsPage", "In &list"),
                                         QT_TRANSLATE_NOOP("tolvi::TOperatorsPage", "Bet&ween"),
                                         QT_TRANSLATE_NOOP("tolvi::TOperatorsPage", "&Starts with"),
                                         QT_TRANSLATE_NOOP("tolvi::TOperatorsPage", "Conta&ins")};
constexpr const char* TypeGroupCaptions[] = {QT_TRANSLATE_NOOP("tolvi::TOperatorsPage", "Te&xt"),
                                             QT_TRANSLATE_NOOP("tolvi::TOperatorsPage", "N&umber"),
                                             QT_TRANSLATE_NOOP("tolvi::TOperatorsPage", "D&ate")};

bool HasError(const TTextFindings& findings) {
  return std::any_of(findings.begin(), findings.end(),
                     [](const TTextFinding& finding) { return finding.Severity == csError; });
}

}  // namespace

const TOperatorsPage::TText TOperatorsPage::Texts[] = {
    {QT_TR_NOOP("&Name:"), QT_TR_NOOP("Change name"), &TDSOperator::GetName, &TDSOperator::SetName},
    {QT_TR_NOOP("Dis&play name:"), QT_TR_NOOP("Change display name"), &TDSOperator::GetDisplayName,
     &TDSOperator::SetDisplayName},
    {QT_TR_NOOP("S&QL template:"), QT_TR_NOOP("Change SQL template"), &TDSOperator::GetSQLExpr,
     &TDSOperator::SetSQLExpr},
    {QT_TR_NOOP("&Between values:"), QT_TR_NOOP("Change value format"), &TDSOperator::GetValFormat,
     &TDSOperator::SetValFormat},
};

TOperatorsPage::TOperatorsPage(TModelEditor& editor, QWidget* parent) : TModelPage(editor, parent) {
  auto* left = new QWidget(this);
  auto* column = new QVBoxLayout(left);
  column->setContentsMargins({});
  column->addWidget(MakeList(), 1);
  column->addWidget(MakeGroups());
  ShowParts("Operators", *left, *Scrolled(MakeForm(), this), 2, 3);
  FSampleTimer.setSingleShot(true);
  FSampleTimer.setInterval(0);
  connect(&FSampleTimer, &QTimer::timeout, this, &TOperatorsPage::ShowSample);
  setFocusProxy(FList);
  UseCheckStyle(*this);
  ShowCurrent();
}

// Controls

QWidget* TOperatorsPage::MakeList() {
  FList = new TPartList(tr("Operators"), {tr("Display name"), tr("Name"), tr("SQL template")}, this);
  FList->OnSelect = [this] { ShowCurrent(); };
  FList->AddAction(tr("New operator"), sgNew, Qt::CTRL | Qt::Key_N, false, [this] { Add(); });
  FDefaults = FList->AddAction(tr("Add defaults"), sgNone, {}, false, [this] { AddDefaults(); });
  FDefaults->setToolTip(tr("Adds the default operators that the model lacks"));
  FList->AddAction(tr("Copy"), sgNone, Qt::CTRL | Qt::SHIFT | Qt::Key_D, true, [this] { Duplicate(); });
  FList->AddAction(tr("Delete"), sgDelete, Qt::Key_Delete, true, [this] { Delete(); });
  FDeleteAll = FList->AddAction(tr("Delete all"), sgNone, {}, false, [this] { DeleteAll(); });
  FList->AddAction(tr("Move up"), sgUp, Qt::ALT | Qt::Key_Up, true, [this] { Step(-1); });
  FList->AddAction(tr("Move down"), sgDown, Qt::ALT | Qt::Key_Down, true, [this] { Step(1); });
  return FList;
}

QWidget* TOperatorsPage::MakeGroups() {
  auto* box = new QGroupBox(tr("Default operators that the model has"), this);
  box->setToolTip(tr("Switching a group off deletes its operators"));
  auto* grid = new QGridLayout(box);
  for (int group = xoInList; group <= xoContains; ++group) {
    auto* check = new QCheckBox(tr(GroupCaptions[group]), box);
    grid->addWidget(check, group / 2, group % 2);
    connect(check, &QCheckBox::clicked, this, [this, group](bool on) {
      Edit(tr("Change default operators"), [&] {
        TJCustomDBStructure& model = Editor().Model();
        TExOperators groups = model.GetExOperators();
        groups.Assign(static_cast<TExOperator>(group), on);
        model.SetExOperators(groups);
      });
    });
    FGroups.push_back(check);
  }
  return box;
}

QWidget* TOperatorsPage::MakeForm() {
  FForm = new QWidget(this);
  auto* form = new QFormLayout(FForm);
  form->setContentsMargins({});
  form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  for (const TText& text : Texts) {
    auto* line = new TCheckedLine(FForm);
    line->setAccessibleName(tr(text.Label).remove(u'&').remove(u':'));
    line->OnCommit = [this, &text](const QString& typed) {
      Change(tr(text.Step), [&](TDSOperator& op) { (op.*text.Set)(FromQString(typed)); });
    };
    connect(line, &QLineEdit::textChanged, &FSampleTimer, qOverload<>(&QTimer::start));
    form->addRow(tr(text.Label), line);
    FLines.push_back(line);
    if (&text == &Texts[lnTemplate]) {
      auto* hint = new QLabel(tr("@f stands for the field, @1 and @2 for the values."), FForm);
      hint->setWordWrap(true);
      form->addRow(QString(), hint);
    }
  }
  FLines[lnName]->OnCheck = [this](const QString& text) {
    return CheckOperatorName(Editor().Model(), Current(), FromQString(text));
  };
  // Fields know their operators by names.
  FLines[lnName]->SetKeepsWrong(false);
  FLines[lnTemplate]->OnCheck = [this](const QString& text) {
    return CheckOperatorTemplate(static_cast<TValueKind>(FKind->currentIndex()), FromQString(text));
  };
  FLines[lnFormat]->setToolTip(tr("What users read between the two values, as \"and\""));

  FKind = new QComboBox(FForm);
  FKind->addItems({tr("Single values"), tr("A list of values"), tr("A sub-query")});
  connect(FKind, &QComboBox::activated, this, [this](int kind) {
    Change(tr("Change value kind"), [kind](TDSOperator& op) { op.SetValueKind(static_cast<TValueKind>(kind)); });
  });
  FType = MakeTypeCombo(tr("The type of the field"), FForm);
  connect(FType, &QComboBox::activated, this,
          [this] { Change(tr("Change value type"), [this](TDSOperator& op) { op.SetExprType(TypeOf(*FType)); }); });
  FIgnoresCase = new QCheckBox(tr("Texts are compared without re&gard to case"), FForm);
  connect(FIgnoresCase, &QCheckBox::clicked, this,
          [this](bool on) { Change(tr("Change letter case"), [on](TDSOperator& op) { op.SetCaseInsensative(on); }); });
  form->addRow(tr("&Kind of values:"), FKind);
  form->addRow(tr("T&ype of values:"), FType);
  form->addRow(FIgnoresCase);
  FSample = new QLabel(FForm);
  FSample->setTextFormat(Qt::PlainText);
  FSample->setWordWrap(true);
  FSample->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  FSample->setAccessibleName(tr("Example"));
  form->addRow(tr("Example:"), FSample);
  form->addRow(MakeTypes());
  return FForm;
}

QWidget* TOperatorsPage::MakeTypes() {
  auto* box = new QGroupBox(tr("Types of fields to which it applies"), FForm);
  auto* layout = new QVBoxLayout(box);
  auto* groups = new QHBoxLayout;
  FTypes = new QListWidget(box);
  FTypes->setAccessibleName(tr("Types of fields"));
  FTypes->setMinimumHeight(6 * fontMetrics().lineSpacing());
  std::vector<TFieldType> types;
  TFieldTypes listed;
  const auto list = [&](TFieldTypes some) {
    for (int type = ftUnknown + 1; type < FieldTypeCount; ++type) {
      const auto fieldType = static_cast<TFieldType>(type);
      if (some.Contains(fieldType) && !listed.Contains(fieldType)) types.push_back(fieldType);
    }
    listed = listed + some;
  };
  for (std::size_t i = 0; i < std::size(TypeGroups); ++i) {
    const TFieldTypes ofGroup = TypeGroups[i];
    list(ofGroup);
    auto* check = new QCheckBox(tr(TypeGroupCaptions[i]), box);
    check->setTristate(true);
    connect(check, &QCheckBox::clicked, this, [this, ofGroup] {
      const TDSOperator* op = Current();
      if (op == nullptr) return;
      const TFieldTypes applied = op->GetAppliedTypes();
      const bool hasAll = (ofGroup - applied).Empty();
      ChangeTypes(hasAll ? applied - ofGroup : applied + ofGroup);
      ShowCurrent();
    });
    groups->addWidget(check);
    FTypeGroups.push_back(check);
  }
  TFieldTypes others;
  for (int type = ftUnknown + 1; type < FieldTypeCount; ++type) others.Include(static_cast<TFieldType>(type));
  list(others);
  for (const TFieldType type : types) {
    auto* item = new QListWidgetItem(ToQString(FldTypeToStr(type)), FTypes);
    item->setData(Qt::UserRole, int{type});
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    item->setCheckState(Qt::Unchecked);
  }
  connect(FTypes, &QListWidget::itemChanged, this, [this](QListWidgetItem* item) {
    const TDSOperator* op = Current();
    if (FShowing || op == nullptr) return;
    TFieldTypes applied = op->GetAppliedTypes();
    applied.Assign(static_cast<TFieldType>(item->data(Qt::UserRole).toInt()), item->checkState() == Qt::Checked);
    ChangeTypes(applied);
  });
  groups->addStretch();
  FUse = new QLabel(box);
  FUse->setWordWrap(true);
  FOffer = new QPushButton(tr("Offe&r for all of them"), box);
  FOffer->setToolTip(tr("All fields of these types offer the operator then"));
  FOffer->setAutoDefault(false);
  connect(FOffer, &QPushButton::clicked, this, &TOperatorsPage::Offer);
  auto* use = new QHBoxLayout;
  use->addWidget(FUse, 1);
  use->addWidget(FOffer);
  layout->addLayout(groups);
  layout->addWidget(FTypes, 1);
  layout->addLayout(use);
  return box;
}

// Showing

TDSOperator* TOperatorsPage::Current() const {
  const TJCustomDBStructure& model = Editor().Model();
  const std::optional<std::size_t> current = FList->Current();
  return current && *current < model.GetOperatCount() ? &model.GetOperator(*current) : nullptr;
}

void TOperatorsPage::Refresh() {
  const TJCustomDBStructure& model = Editor().Model();
  std::vector<TPartRow> rows;
  for (const TDSOperator& op : model.Operators()) {
    const QString name = ToQString(op.GetName());
    rows.push_back({name,
                    {ToQString(op.GetDisplayName()), name, ToQString(op.GetSQLExpr())},
                    HasError(CheckOperatorTemplate(op.GetValueKind(), op.GetSQLExpr()))});
  }
  FList->ShowRows(std::move(rows));
  ShowCurrent();
}

void TOperatorsPage::ShowCurrent() {
  const TJCustomDBStructure& model = Editor().Model();
  const TDSOperator* op = Current();
  FShowing = true;
  FForm->setEnabled(op != nullptr);
  FKind->setCurrentIndex(op != nullptr ? op->GetValueKind() : vkScalar);
  ShowType(*FType, op != nullptr ? op->GetExprType() : ftUnknown);
  FIgnoresCase->setChecked(op != nullptr && op->GetCaseInsensative());
  for (std::size_t i = 0; i < FLines.size(); ++i) {
    FLines[i]->ShowText(op != nullptr ? ToQString((op->*Texts[i].Get)()) : QString());
    FLines[i]->Check();
  }
  ShowTypes(op != nullptr ? op->GetAppliedTypes() : TFieldTypes());
  const TOperatorUse use = op != nullptr ? UseOfOperator(model, *op) : TOperatorUse();
  FUse->setText(tr("Fields of these types: %1. Fields that offer it: %2.").arg(use.Applies).arg(use.Offers));
  FOffer->setEnabled(!use.Lacking.empty());
  for (std::size_t i = 0; i < FGroups.size(); ++i) {
    FGroups[i]->setChecked(model.GetExOperators().Contains(static_cast<TExOperator>(i)));
  }
  FDefaults->setEnabled(CountLackingDefaults(model) > 0);
  FDeleteAll->setEnabled(model.GetOperatCount() > 0);
  FShowing = false;
  FSampleTimer.start();
}

void TOperatorsPage::ShowTypes(TFieldTypes types) {
  for (int row = 0; row < FTypes->count(); ++row) {
    QListWidgetItem& item = *FTypes->item(row);
    const bool applies = types.Contains(static_cast<TFieldType>(item.data(Qt::UserRole).toInt()));
    item.setCheckState(applies ? Qt::Checked : Qt::Unchecked);
  }
  for (std::size_t i = 0; i < FTypeGroups.size(); ++i) {
    const TFieldTypes ofGroup = TypeGroups[i];
    const bool all = (ofGroup - types).Empty(), none = (ofGroup - types) == ofGroup;
    FTypeGroups[i]->setCheckState(all ? Qt::Checked : none ? Qt::Unchecked : Qt::PartiallyChecked);
  }
}

// Of what is typed, not of what is stored.
void TOperatorsPage::ShowSample() {
  const TDSOperator* op = Current();
  if (op == nullptr || !isVisible()) return FSample->clear();
  TDSOperator typed;
  for (std::size_t i = 0; i < FLines.size(); ++i) (typed.*Texts[i].Set)(FromQString(FLines[i]->text()));
  typed.SetValueKind(op->GetValueKind());
  typed.SetExprType(op->GetExprType());
  typed.SetCaseInsensative(op->GetCaseInsensative());
  typed.SetAppliedTypes(op->GetAppliedTypes());
  const TSampleCondition sample = SampleOfOperator(Editor().Model(), typed);
  QStringList lines;
  for (const std::string& line : {sample.Sentence, sample.SQL, sample.Fault}) {
    if (!line.empty()) lines << ToQString(line);
  }
  FSample->setText(lines.join(u'\n'));
}

bool TOperatorsPage::GoTo(std::string_view section) {
  for (std::size_t i = 0; i < Editor().Model().GetOperatCount(); ++i) {
    if (section != "Operator:" + std::to_string(i + 1)) continue;
    FList->Select({i});
    return true;
  }
  return false;
}

void TOperatorsPage::CommitEdits() {
  for (TCheckedLine* line : FLines) line->Commit();
}

// Changing

void TOperatorsPage::Change(const QString& name, const std::function<void(TDSOperator&)>& change) {
  Edit(name, [&] {
    if (TDSOperator* op = Current()) change(*op);
  });
}

void TOperatorsPage::ChangeTypes(TFieldTypes types) {
  Change(tr("Change types"), [types](TDSOperator& op) { op.SetAppliedTypes(types); });
}

void TOperatorsPage::Add() {
  CommitEdits();
  std::size_t added = 0;
  if (!Edit(tr("Add operator"), [&] { added = AddNewOperator(Editor().Model()); })) return;
  Refresh();
  FList->Select({added});
  FLines[lnName]->setFocus();
  FLines[lnName]->selectAll();
}

void TOperatorsPage::AddDefaults() {
  CommitEdits();
  if (Edit(tr("Add default operators"), [this] { Editor().Model().AddDefOperators(true); })) Refresh();
}

void TOperatorsPage::Duplicate() {
  CommitEdits();
  std::vector<std::size_t> copies;
  const auto selected = FList->Selected();
  if (!Edit(tr("Copy operator"), [&] { copies = DuplicateOperators(Editor().Model(), selected); })) return;
  Refresh();
  FList->Select(copies);
}

void TOperatorsPage::Delete() {
  CommitEdits();
  const std::vector<std::size_t> selected = FList->Selected();
  if (selected.empty() || !Confirmed(SDeleteOperator)) return;
  if (Edit(tr("Delete operator"), [&] { DeleteOperators(Editor().Model(), selected); })) Refresh();
}

void TOperatorsPage::DeleteAll() {
  CommitEdits();
  if (!Confirmed(SDeleteAllOperators)) return;
  if (Edit(tr("Delete all operators"), [this] { Editor().Model().ClearOperators(); })) Refresh();
}

void TOperatorsPage::Step(int step) {
  CommitEdits();
  std::vector<std::size_t> places;
  const auto selected = FList->Selected();
  const bool moved = Edit(tr("Move operator"), [&] { places = StepModelOperators(Editor().Model(), selected, step); });
  if (!moved) return;
  Refresh();
  FList->Select(places);
}

void TOperatorsPage::Offer() {
  Change(tr("Offer operator"), [this](TDSOperator& op) { OfferToAll(Editor().Model(), op); });
}

}  // namespace tolvi
