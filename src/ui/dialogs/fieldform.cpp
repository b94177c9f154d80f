#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QCompleter>
#include <QFormLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QStringListModel>
#include <algorithm>
#include <exception>
#include <limits>
#include <optional>
#include <utility>

#include <tolvi/model/dbstruc.h>
#include <tolvi/panel/modeleditor.h>
#include <tolvi/ui/dialogs/checkedline.h>
#include <tolvi/ui/dialogs/fieldform.h>
#include <tolvi/ui/dialogs/typecombo.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

/// What all of the fields have; nothing when they differ, or there are none.
template <typename TGet>
auto Common(const std::vector<TDSField*>& fields, TGet get) {
  std::optional<std::decay_t<decltype(get(*fields.front()))>> common;
  for (const TDSField* field : fields) {
    if (common && *common != get(*field)) return std::optional<typename decltype(common)::value_type>();
    common = get(*field);
  }
  return common;
}

/// Fills the box anew only if need be, as it may be open or long.
void SetItems(QComboBox& box, const QStringList& items) {
  QStringList old;
  for (int i = 0; i < box.count(); ++i) old << box.itemText(i);
  if (old == items) return;
  box.clear();
  box.addItems(items);
}

}  // namespace

struct TFieldForm::TFlag {
  const char *Label, *Step, *ToolTip;
  bool (TDSField::*Get)() const;
  void (TDSField::*Set)(bool);
};

const TFieldForm::TFlag TFieldForm::Flags[] = {
    {QT_TR_NOOP("Offered in conditions"), QT_TR_NOOP("Offer in conditions"), "", &TDSField::GetUseInConditions,
     &TDSField::SetUseInConditions},
    {QT_TR_NOOP("Offered as result column"), QT_TR_NOOP("Offer as result column"), "", &TDSField::GetUseInResult,
     &TDSField::SetUseInResult},
    {QT_TR_NOOP("Aggregate"), QT_TR_NOOP("Mark as aggregate"),
     QT_TR_NOOP("The expression calls an aggregate function: conditions on it go to HAVING"), &TDSField::GetIsAggregate,
     &TDSField::SetIsAggregate},
    {QT_TR_NOOP("Quoted column name"), QT_TR_NOOP("Quote column name"), "", &TDSField::GetQuoted, &TDSField::SetQuoted},
};

TFieldForm::TFieldForm(TModelEditor& editor, TEditCall edit, QWidget* parent)
    : QWidget(parent), FEditor(editor), FEdit(std::move(edit)), FRows(new QFormLayout(this)) {
  FRows->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
  Build();
}

QComboBox* TFieldForm::AddChoice(QComboBox* box, const QString& label, const std::function<void(int index)>& chosen) {
  box->setAccessibleName(QString(label).remove(u'&').remove(u':'));
  // A long name must not widen the dialog.
  box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  box->setMinimumContentsLength(12);
  box->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  connect(box, &QComboBox::activated, this, chosen, Qt::QueuedConnection);
  FRows->addRow(label, box);
  return box;
}

void TFieldForm::Build() {
  const auto addLine = [this](TCheckedLine*& line, const QString& label) {
    line = new TCheckedLine(this);
    line->setAccessibleName(QString(label).remove(u'&').remove(u':'));
    FRows->addRow(label, line);
  };
  addLine(FGroupName, tr("Group &name:"));
  FGroupName->OnCheck = [this](const QString& typed) {
    const TDSFieldGroup* group = FGroupNumber > 0 ? &GroupByNumber(FEditor.Model(), FGroupNumber) : nullptr;
    return group != nullptr ? CheckGroupName(FEditor.Model(), group, FromQString(typed)) : TTextFindings();
  };
  FGroupName->OnCommit = [this](const QString& typed) {
    FEdit(tr("Change group name"),
          [&] { GroupByNumber(FEditor.Model(), FGroupNumber).SetGroupName(FromQString(typed)); });
  };
  addLine(FName, tr("Display &name:"));
  FName->OnCheck = [this](const QString& typed) {
    const TDSField* field = Only();
    return field != nullptr ? CheckFieldDisplayName(*field, FromQString(typed)) : TTextFindings();
  };
  FName->OnCommit = [this](const QString& typed) {
    EditAll(tr("Change display name"), [&](TDSField& field) { field.SetDisplayName(FromQString(typed)); });
  };
  FKind = AddChoice(new QComboBox(this), tr("&Kind:"), [this](int index) {
    EditAll(tr("Change kind"), [&](TDSField& field) { ChangeKind(field, index == 0 ? jfkData : jfkVirtual); });
  });
  FKind->addItems({tr("Column"), tr("Expression")});
  FTable = AddChoice(new QComboBox(this), tr("Ta&ble:"), [this](int index) {
    EditAll(tr("Change table"), [&](TDSField& field) {
      if (field.GetFieldKind() == jfkData) field.SetTable(&FEditor.Model().GetTable(static_cast<std::size_t>(index)));
    });
  });
  addLine(FExpr, tr("E&xpression:"));
  FExpr->OnCheck = [this](const QString& typed) {
    const TDSField* field = Only();
    if (field == nullptr) return TTextFindings();
    return CheckFieldExpr(FEditor.Model(), field->GetFieldKind(), field->GetIsAggregate(), FromQString(typed));
  };
  FExpr->OnCommit = [this](const QString& typed) {
    EditAll(tr("Change expression"), [&](TDSField& field) { ChangeExpr(field, FromQString(typed)); });
  };
  FMentioned = new QLabel(this);
  FMentioned->setTextFormat(Qt::PlainText);
  FMentioned->setWordWrap(true);
  FRows->addRow(tr("Tables:"), FMentioned);
  FGroup = AddChoice(new QComboBox(this), tr("&Group:"), [this](int index) {
    const std::size_t number = static_cast<std::size_t>(index);
    TFieldIDs ids = FIDs;
    FEdit(tr("Move fields to group"),
          [&] { MoveFields(FEditor.Model(), ids, number, GroupByNumber(FEditor.Model(), number).Count()); });
  });
  FType = AddChoice(MakeTypeCombo(tr("(unknown)"), this), tr("T&ype:"), [this](int) {
    const TFieldType type = TypeOf(*FType);
    EditAll(tr("Change type"), [&](TDSField& field) { ChangeType(field, type); });
  });
  FSize = new QSpinBox(this);
  FSize->setSpecialValueText(QStringLiteral(" "));
  FSize->setAccessibleName(tr("Size"));
  connect(FSize, &QSpinBox::editingFinished, this, [this] {
    const int size = FSize->value();
    if (size < 0 || Common(Fields(), [](const TDSField& field) { return field.GetFieldSize(); }) == size) return;
    EditAll(tr("Change size"), [&](TDSField& field) { field.SetFieldSize(size); });
  });
  FRows->addRow(tr("&Size:"), FSize);
  for (const TFlag& flag : Flags) {
    auto* box = new QCheckBox(tr(flag.Label), this);
    box->setToolTip(*flag.ToolTip != '\0' ? tr(flag.ToolTip) : QString());
    connect(box, &QCheckBox::clicked, this,
            [this, &flag](bool on) { EditAll(tr(flag.Step), [&](TDSField& field) { (field.*flag.Set)(on); }); });
    FRows->addRow(box);
    FFlags.push_back(box);
  }
  FID = new QLabel(this);
  FID->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  FRows->addRow(tr("ID:"), FID);
}

// The fields

std::vector<TDSField*> TFieldForm::Fields() const { return FieldsByIDs(FEditor.Model(), FIDs); }

TDSField* TFieldForm::Only() const { return FIDs.size() == 1 ? FEditor.Model().FieldByID(FIDs.front()) : nullptr; }

void TFieldForm::EditAll(const QString& step, const std::function<void(TDSField& field)>& change) {
  FEdit(step, [&] {
    for (TDSField* field : Fields()) change(*field);
  });
}

void TFieldForm::CommitEdits() {
  for (TCheckedLine* line : {FGroupName, FName, FExpr}) line->Commit();
  if (FSize->hasFocus()) {
    FSize->interpretText();
    Q_EMIT FSize->editingFinished();
  }
}

// Showing

void TFieldForm::ShowFields(const TFieldIDs& ids, std::size_t group) {
  FIDs = ids;
  FGroupNumber = group;
  const std::vector<TDSField*> fields = Fields();
  const TDSField* only = fields.size() == 1 && group == 0 ? fields.front() : nullptr;
  FRows->setRowVisible(FGroupName, group > 0);
  FRows->setRowVisible(FName, group == 0);
  FRows->setRowVisible(FExpr, group == 0);
  FGroupName->ShowText(group > 0 ? ToQString(GroupByNumber(FEditor.Model(), group).GetGroupName()) : QString());
  FName->setEnabled(only != nullptr);
  FName->ShowText(only != nullptr ? ToQString(only->GetDisplayName()) : QString());
  const auto kind = Common(fields, [](const TDSField& field) { return field.GetFieldKind(); });
  FKind->setCurrentIndex(!kind ? -1 : *kind == jfkData ? 0 : 1);
  ShowTables();
  const auto table = Common(fields, [](const TDSField& field) { return field.GetTable(); });
  FTable->setCurrentIndex(table && *table != nullptr ? static_cast<int>(FEditor.Model().Tables().IndexOf(*table)) : -1);
  FRows->setRowVisible(FTable, !kind || *kind == jfkData);
  ShowSource(only);
  ShowGroups();
  const auto fieldGroup = Common(fields, [](const TDSField& field) { return field.GetGroup(); });
  FGroup->setCurrentIndex(
      fieldGroup && *fieldGroup != nullptr ? static_cast<int>(NumberOfGroup(FEditor.Model(), **fieldGroup)) : -1);
  const auto type = Common(fields, [](const TDSField& field) { return field.GetFieldType(); });
  if (type) {
    ShowType(*FType, *type);
  } else {
    FType->setCurrentIndex(-1);
  }
  const auto size = Common(fields, [](const TDSField& field) { return field.GetFieldSize(); });
  const QSignalBlocker quiet(FSize);
  FSize->setRange(size ? 0 : -1, std::numeric_limits<int>::max());
  FSize->setValue(size.value_or(-1));
  ShowFlags(fields);
  for (QWidget* widget : {static_cast<QWidget*>(FKind), static_cast<QWidget*>(FTable), static_cast<QWidget*>(FGroup),
                          static_cast<QWidget*>(FType), static_cast<QWidget*>(FSize)}) {
    widget->setEnabled(!fields.empty());
  }
  FID->setText(only != nullptr  ? QString::number(only->GetID())
               : fields.empty() ? QString()
                                : tr("(fields chosen: %1)").arg(fields.size()));
}

void TFieldForm::ShowTables() {
  QStringList aliases;
  for (const TDSTable& table : FEditor.Model().Tables()) aliases << ToQString(table.GetTableAlias());
  SetItems(*FTable, aliases);
}

void TFieldForm::ShowGroups() {
  QStringList names{tr("(no group)")};
  for (const TDSFieldGroup& group : FEditor.Model().FieldGroups()) names << ToQString(group.GetGroupName());
  SetItems(*FGroup, names);
}

// The columns of the table, or the tables that the expression mentions.
void TFieldForm::ShowSource(const TDSField* only) {
  const bool isColumn = only != nullptr && only->GetFieldKind() == jfkData;
  const QString label = isColumn ? tr("Colu&mn:") : tr("E&xpression:");
  static_cast<QLabel*>(FRows->labelForField(FExpr))->setText(label);
  FExpr->setAccessibleName(QString(label).remove(u'&').remove(u':'));
  FExpr->setEnabled(only != nullptr);
  FExpr->ShowText(only != nullptr ? ToQString(only->GetFieldExpr()) : QString());
  FExpr->Check();
  QStringList columns;
  if (isColumn && only->GetTable() != nullptr) {
    try {
      columns = ToQStringList(ColumnsOf(FEditor.Model(), *only->GetTable()));
    } catch (const std::exception&) {
      // A catalogue that cannot be asked suggests nothing.
    }
  }
  const auto* known =
      FExpr->completer() != nullptr ? static_cast<QStringListModel*>(FExpr->completer()->model()) : nullptr;
  if (known == nullptr ? !columns.isEmpty() : known->stringList() != columns) {
    auto* completer = new QCompleter(columns, FExpr);
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    FExpr->setCompleter(completer);
  }
  QStringList mentioned;
  if (only != nullptr && !isColumn) {
    for (const TDSTable* table : only->Tables()) mentioned << ToQString(table->GetTableAlias());
  }
  FRows->setRowVisible(FMentioned, only != nullptr && !isColumn);
  FMentioned->setText(mentioned.isEmpty() ? tr("(none)") : mentioned.join(QStringLiteral(", ")));
}

void TFieldForm::ShowFlags(const std::vector<TDSField*>& fields) {
  for (std::size_t i = 0; i < FFlags.size(); ++i) {
    QCheckBox& box = *FFlags[i];
    const auto common = Common(fields, [&](const TDSField& field) { return (field.*Flags[i].Get)(); });
    const bool isMixed = !common && !fields.empty();
    box.setTristate(isMixed);
    box.setCheckState(isMixed ? Qt::PartiallyChecked : common.value_or(false) ? Qt::Checked : Qt::Unchecked);
    box.setEnabled(!fields.empty());
  }
}

}  // namespace tolvi
