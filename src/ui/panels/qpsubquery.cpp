#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

#include <tolvi/model/dbstruc.h>
#include <tolvi/query/querpnl.h>
#include <tolvi/ui/controls/ddlist.h>
#include <tolvi/ui/panels/qpsubquery.h>
#include <tolvi/ui/panels/querpnlview.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

/// The fields that the query may yield, and the one that it does yield.
void FillColumn(TDropDownList& column, TJQueryPanel& query) {
  TJCustomDBStructure& model = *query.GetDBStruct();
  const auto add = [&column](const TDSFieldGroup& group) {
    for (const TDSField* field : group) {
      if (!field->GetUseInResult()) continue;
      column.AddItem(ToQString(group.GetGroupName()), QString::number(field->GetID()),
                     ToQString(field->GetCompoundName()));
    }
  };
  add(model.RootGroup());
  for (const TDSFieldGroup& group : model.FieldGroups()) add(group);
  if (query.RFields().Empty() || query.RFields()[0].DSFields().empty()) return;
  const TDSField& field = *query.RFields()[0].DSFields().front();
  column.SetValue(QString::number(field.GetID()));
  column.SetCaption(ToQString(field.GetCompoundName()));
}

}  // namespace

std::optional<TStrings> RunSubQueryDialog(QWidget& parent, const TFilterCond& condition) {
  const TJQueryPanel& outer = condition.GetQueryPanel();
  const QString caption = ToQString(outer.GetTitle("ttlSubQueryCaption"));
  TJQueryPanel query;
  query.SetDBStruct(outer.GetDBStruct());
  query.SetFormatSettings(outer.GetFormatSettings());
  query.SetTitles(outer.Titles().Lines());
  if (!condition.GetSubQuery().Empty()) query.LoadFromStrings(condition.GetSubQuery());
  query.SetActive(true);

  QPointer<QDialog> dialog = new QDialog(&parent);
  dialog->setWindowTitle(caption);
  auto* rows = new QVBoxLayout(dialog);
  auto* form = new QFormLayout;
  rows->addLayout(form);
  auto* column = new TDropDownPopup(dialog);
  column->setObjectName(QStringLiteral("column"));
  FillColumn(*column, query);
  auto* columnCaption = new QLabel(ToQString(outer.GetTitle("ttlResultField")), dialog);
  columnCaption->setBuddy(column);
  form->addRow(columnCaption, column);
  auto* view = new TJQueryPanelView(dialog);
  view->SetQueryPanel(&query);
  rows->addWidget(view, 1);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, dialog);
  buttons->button(QDialogButtonBox::Ok)->setText(ToQString(outer.GetTitle("ttlOkBtnCaption")));
  buttons->button(QDialogButtonBox::Cancel)->setText(ToQString(outer.GetTitle("ttlCancelBtnCaption")));
  rows->addWidget(buttons);
  QObject::connect(buttons, &QDialogButtonBox::accepted, dialog.data(), &QDialog::accept);
  QObject::connect(buttons, &QDialogButtonBox::rejected, dialog.data(), &QDialog::reject);
  column->OnAfterDropUp = [&query](TDropDownLabel& sender, bool accepted) {
    const TJCustomDBStructure* model = query.GetDBStruct();
    TDSField* field = model != nullptr ? model->FieldByID(sender.GetValue().toInt()) : nullptr;
    if (!accepted || field == nullptr) return;
    query.RFields().Clear();
    query.RFields().Add(*field);
  };
  const bool accepted = dialog->exec() == QDialog::Accepted;
  delete dialog;
  if (!accepted || query.GetDBStruct() == nullptr) return std::nullopt;
  TStrings lines;
  query.SaveToStrings(lines);
  return lines;
}

}  // namespace tolvi
