#include <QComboBox>
#include <QCompleter>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <exception>

#include <tolvi/model/dbstruc.h>
#include <tolvi/panel/modelentities.h>
#include <tolvi/ui/dialogs/columnsdlg.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {

T_dlgColumns::T_dlgColumns(const TJCustomDBStructure& model, std::size_t table, QWidget* parent)
    : QDialog(parent),
      FModel(model),
      FTable(new QComboBox(this)),
      FColumns(new QListWidget(this)),
      FTyped(new QLineEdit(this)),
      FTold(new QLabel(this)) {
  setWindowTitle(tr("Add Fields"));
  for (const TDSTable& each : model.Tables()) FTable->addItem(ToQString(each.GetTableAlias()));
  // Found by typing any part of its name.
  FTable->setEditable(true);
  FTable->setInsertPolicy(QComboBox::NoInsert);
  FTable->completer()->setFilterMode(Qt::MatchContains);
  FTable->completer()->setCompletionMode(QCompleter::PopupCompletion);
  FTable->setCurrentIndex(static_cast<int>(table));
  FColumns->setSelectionMode(QAbstractItemView::ExtendedSelection);
  FColumns->setUniformItemSizes(true);
  FTold->setWordWrap(true);
  FTold->setTextFormat(Qt::PlainText);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  auto* rows = new QFormLayout(this);
  rows->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
  rows->addRow(tr("&Table:"), FTable);
  rows->addRow(tr("&Columns:"), FColumns);
  rows->addRow(FTold);
  rows->addRow(tr("&Other column:"), FTyped);
  rows->addRow(buttons);
  connect(FTable, &QComboBox::currentIndexChanged, this, &T_dlgColumns::ShowColumns);
  // What is typed and names no table becomes the former one again.
  connect(FTable->lineEdit(), &QLineEdit::editingFinished, this,
          [this] { FTable->setEditText(FTable->itemText(FTable->currentIndex())); });
  FTable->lineEdit()->installEventFilter(this);
  connect(FColumns, &QListWidget::itemActivated, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  FColumns->setFocus();
  ShowColumns();
}

std::size_t T_dlgColumns::GetTable() const { return static_cast<std::size_t>(std::max(0, FTable->currentIndex())); }

TStrings T_dlgColumns::GetColumns() const {
  TStrings columns;
  for (int row = 0; row < FColumns->count(); ++row) {
    if (FColumns->item(row)->isSelected()) columns.Add(FromQString(FColumns->item(row)->text()));
  }
  const QString typed = FTyped->text().trimmed();
  if (!typed.isEmpty()) columns.Add(FromQString(typed));
  return columns;
}

/// Enter goes from the table to its columns.
bool T_dlgColumns::eventFilter(QObject* watched, QEvent* event) {
  if (watched == FTable->lineEdit() && event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
      Q_EMIT FTable->lineEdit()->editingFinished();
      FColumns->setFocus();
      return true;
    }
  }
  return QDialog::eventFilter(watched, event);
}

void T_dlgColumns::ShowColumns() {
  FColumns->clear();
  FTold->clear();
  if (FTable->currentIndex() < 0) return;
  try {
    FColumns->addItems(ToQStringList(UnusedColumns(FModel, FModel.GetTable(GetTable()))));
    if (FColumns->count() == 0) FTold->setText(tr("No other columns of this table are known."));
  } catch (const std::exception& error) {
    FTold->setText(ToQString(error.what()));
  }
  FTold->setVisible(!FTold->text().isEmpty());
  if (FColumns->count() > 0) FColumns->setCurrentRow(0);
}

}  // namespace tolvi
