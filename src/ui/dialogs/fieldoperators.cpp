#include <QAction>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPointer>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include <tolvi/foundation/consts.h>
#include <tolvi/model/dbstruc.h>
#include <tolvi/panel/modeleditor.h>
#include <tolvi/ui/dialogs/askbox.h>
#include <tolvi/ui/dialogs/fieldoperators.h>
#include <tolvi/ui/dialogs/listactions.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

/// The operator's place in the model.
constexpr int RoleIndex = Qt::UserRole;

struct TRow {
  int Index;
  QString Text;
};

/// Keeps what is selected, by the operators.
void ShowRows(QListWidget& list, const std::vector<TRow>& rows) {
  QList<int> selected;
  for (const QListWidgetItem* item : list.selectedItems()) selected << item->data(RoleIndex).toInt();
  const int current = list.currentRow();
  list.clear();
  for (const TRow& row : rows) {
    auto* item = new QListWidgetItem(row.Text, &list);
    item->setData(RoleIndex, row.Index);
    item->setSelected(selected.contains(row.Index));
    if (item->isSelected()) list.setCurrentItem(item, QItemSelectionModel::NoUpdate);
  }
  if (list.selectedItems().isEmpty() && list.count() > 0) {
    list.setCurrentRow(std::min(std::max(current, 0), list.count() - 1));
  }
}

}  // namespace

TFieldOperators::TFieldOperators(TModelEditor& editor, TEditCall edit, QWidget* parent)
    : QWidget(parent), FEditor(editor), FEdit(std::move(edit)) {
  auto* columns = new QHBoxLayout(this);
  columns->addWidget(MakeOffered(), 1);
  columns->addWidget(MakeMissing(), 1);
  for (QListWidget* list : {FOffered, FMissing}) {
    list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    connect(list, &QListWidget::itemSelectionChanged, this, &TFieldOperators::ShowEnabled);
  }
  connect(FOffered, &QListWidget::itemActivated, FWithdraw, &QAction::trigger);
  connect(FMissing, &QListWidget::itemActivated, FOffer, &QAction::trigger);
}

QWidget* TFieldOperators::MakeOffered() {
  auto* box = new QWidget(this);
  FOffered = new QListWidget(box);
  FOffered->setAccessibleName(tr("Offered operators"));
  auto* label = new QLabel(tr("O&ffered:"), box);
  label->setBuddy(FOffered);
  auto* buttons = new QHBoxLayout;
  FUp = AddListAction(*FOffered, *buttons, tr("Move up"), sgUp, Qt::ALT | Qt::Key_Up, [this] { Step(-1); });
  FDown = AddListAction(*FOffered, *buttons, tr("Move down"), sgDown, Qt::ALT | Qt::Key_Down, [this] { Step(1); });
  FWithdraw = AddListAction(*FOffered, *buttons, tr("Remove"), sgDelete, Qt::Key_Delete,
                            [this] { Change(tr("Remove operator"), *FOffered, WithdrawOperators); });
  FWithdrawAll = AddListAction(*FOffered, *buttons, tr("Remove all"), sgNone, {}, [this] { WithdrawAll(); });
  buttons->addStretch();
  auto* column = new QVBoxLayout(box);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(label);
  column->addWidget(FOffered, 1);
  column->addLayout(buttons);
  return box;
}

QWidget* TFieldOperators::MakeMissing() {
  auto* box = new QWidget(this);
  FMissing = new QListWidget(box);
  FMissing->setAccessibleName(tr("Operators that are not offered"));
  auto* label = new QLabel(tr("&Not offered:"), box);
  label->setBuddy(FMissing);
  auto* buttons = new QHBoxLayout;
  FOffer = AddListAction(*FMissing, *buttons, tr("Offer"), sgNew, Qt::Key_Insert,
                         [this] { Change(tr("Offer operator"), *FMissing, OfferOperators); });
  FOfferAll = AddListAction(*FMissing, *buttons, tr("All that apply"), sgNone, {}, [this] { OfferAll(); });
  FOfferAll->setToolTip(tr("Offer just the operators that are made for the type of the field"));
  buttons->addStretch();
  auto* column = new QVBoxLayout(box);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(label);
  column->addWidget(FMissing, 1);
  column->addLayout(buttons);
  return box;
}

// Showing

std::vector<TDSField*> TFieldOperators::Fields() const { return FieldsByIDs(FEditor.Model(), FIDs); }

void TFieldOperators::ShowFields(const TFieldIDs& ids) {
  FIDs = ids;
  const TJCustomDBStructure& model = FEditor.Model();
  const std::vector<TDSField*> fields = Fields();
  const auto row = [&](const TDSOperator& op, const QString& note) {
    return TRow{static_cast<int>(model.IndexOfOperator(op)),
                ToQString(op.GetDisplayName()) + QStringLiteral(" (") + ToQString(op.GetName()) + u')' + note};
  };
  std::vector<TRow> offered, missing;
  for (const TOffered& entry : OfferedOperators(fields)) {
    offered.push_back(row(*entry.Operator, entry.ByAll ? QString() : u' ' + tr("- by some")));
  }
  if (!fields.empty()) {
    for (const TDSOperator* op : MissingOperators(model, fields)) missing.push_back(row(*op, {}));
  }
  ShowRows(*FOffered, offered);
  ShowRows(*FMissing, missing);
  setEnabled(!fields.empty());
  ShowEnabled();
}

void TFieldOperators::ShowEnabled() {
  const bool offered = !FOffered->selectedItems().isEmpty();
  for (QAction* action : {FUp, FDown, FWithdraw}) action->setEnabled(offered);
  FWithdrawAll->setEnabled(FOffered->count() > 0);
  FOffer->setEnabled(!FMissing->selectedItems().isEmpty());
}

// Changing

std::vector<TDSOperator*> TFieldOperators::Selected(const QListWidget& list) const {
  std::vector<TDSOperator*> operators;
  for (int i = 0; i < list.count(); ++i) {
    if (!list.item(i)->isSelected()) continue;
    operators.push_back(&FEditor.Model().GetOperator(list.item(i)->data(RoleIndex).toULongLong()));
  }
  return operators;
}

void TFieldOperators::Change(const QString& step, const QListWidget& list, TOperatorsCall change) {
  FEdit(step, [&] { change(Fields(), Selected(list)); });
}

void TFieldOperators::Step(int step) {
  FEdit(tr("Move operator"), [&] { StepOperators(Fields(), Selected(*FOffered), step); });
}

void TFieldOperators::OfferAll() {
  FEdit(tr("Offer all operators that apply"), [this] {
    for (TDSField* field : Fields()) field->AddAppliedOperators();
  });
}

void TFieldOperators::WithdrawAll() {
  const QPointer<TFieldOperators> alive(this);
  const int answer =
      Ask(*this, QMessageBox::Question, ToQString(SDeleteAllOperators.Text), {}, QMessageBox::Yes | QMessageBox::No);
  if (!alive || answer != QMessageBox::Yes) return;
  FEdit(tr("Remove all operators"), [this] {
    for (TDSField* field : Fields()) field->ClearOperators();
  });
}

}  // namespace tolvi
