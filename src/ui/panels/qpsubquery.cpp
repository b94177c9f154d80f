#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QFormLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QSignalBlocker>
#include <QToolButton>
#include <QVBoxLayout>

#include <tolvi/model/dbstruc.h>
#include <tolvi/panel/rfldrows.h>
#include <tolvi/query/querpnl.h>
#include <tolvi/ui/controls/contrast.h>
#include <tolvi/ui/controls/ddlist.h>
#include <tolvi/ui/panels/qpsubquery.h>
#include <tolvi/ui/panels/querpnlview.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

/// A query panel of its own, as the sub-query is built.
class TSubQueryDialog final : public QDialog {
  Q_DECLARE_TR_FUNCTIONS(tolvi::TSubQueryDialog)

 public:
  TSubQueryDialog(const TFilterCond& condition, TJQueryPanelView& outerView);

  /// Nothing when the model has gone.
  std::optional<TSubQuery> Result();
  void accept() override;

 private:
  void SetUpQuery(const TFilterCond& condition);
  void AddColumn(QVBoxLayout& rows, const TJQueryPanel& outer);
  void AddSql(QVBoxLayout& rows);
  void AddTextRow(QVBoxLayout& rows);
  void AddButtons(QVBoxLayout& rows, const TJQueryPanel& outer);
  void ShowColumn();
  void TakeColumn();
  // The text in the box is not that of the query.
  bool IsUnread() const { return FConflict || FSql->toPlainText() != FShownSql; }
  void QueryChanged();
  void ShowSql();
  void ShowState();
  bool ReadSql();
  void ShowFault(const QString& fault);

  TJQueryPanel FQuery;
  TDropDownPopup* FColumn = nullptr;
  TJQueryPanelView* FView = nullptr;
  QToolButton* FSqlSwitch = nullptr;
  QPlainTextEdit* FSql = nullptr;
  QWidget* FTextRow = nullptr;
  QPushButton *FRead = nullptr, *FDiscard = nullptr;
  QLabel *FUnread = nullptr, *FFault = nullptr;
  // What the box made of the query's SQL: not every character is as it was.
  QString FShownSql;
  bool FConflict = false, FReading = false;  // the query has changed while the text was unread
};

TSubQueryDialog::TSubQueryDialog(const TFilterCond& condition, TJQueryPanelView& outerView) : QDialog(&outerView) {
  const TJQueryPanel& outer = condition.GetQueryPanel();
  setWindowTitle(ToQString(outer.GetTitle("ttlSubQueryCaption")));
  auto* rows = new QVBoxLayout(this);
  AddColumn(*rows, outer);
  FView = new TJQueryPanelView(this);
  FView->SetAppearance(outerView.GetAppearance());
  FView->SetCommandTitles(outerView.GetCommandTitles().Lines());
  FView->OnCustomEdit = outerView.OnCustomEdit;
  FView->OnEditSubQuery = outerView.OnEditSubQuery;
  FView->OnFetchItems = outerView.OnFetchItems;
  FView->OnError = outerView.OnError;
  rows->addWidget(FView, 3);
  AddSql(*rows);
  AddButtons(*rows, outer);
  SetUpQuery(condition);
  FView->SetQueryPanel(&FQuery);
  FQuery.OnChange = [this](TJQueryPanel&) { QueryChanged(); };
  ShowColumn();
  ShowSql();
}

void TSubQueryDialog::SetUpQuery(const TFilterCond& condition) {
  const TJQueryPanel& outer = condition.GetQueryPanel();
  FQuery.SetDBStruct(outer.GetDBStruct());
  FQuery.SetFormatSettings(outer.GetFormatSettings());
  FQuery.SetAllowSQLFragments(outer.GetAllowSQLFragments());
  FQuery.SetSQLSyntax(outer.GetSQLSyntax());
  FQuery.SetTitles(outer.Titles().Lines());
  FQuery.SetLinkTypes(outer.GetLinkTypes());
  try {
    if (!condition.GetSubQuery().Empty()) FQuery.LoadFromStrings(condition.GetSubQuery());
  } catch (const EException& error) {
    ShowFault(ToQString(error.Message()));
  }
  FQuery.SetSQLOptions(condition.GetSubQueryOptions());
  FQuery.SetActive(true);
}

void TSubQueryDialog::AddColumn(QVBoxLayout& rows, const TJQueryPanel& outer) {
  FColumn = new TDropDownPopup(this);
  FColumn->setObjectName(QStringLiteral("column"));
  FColumn->OnAfterDropUp = [this](TDropDownLabel&, bool accepted) {
    if (accepted) TakeColumn();
    ShowColumn();
  };
  for (const TDSFieldGroup* group : GroupsInOrder(*outer.GetDBStruct())) {
    for (const TDSField* field : *group) {
      if (!field->GetUseInResult()) continue;
      FColumn->AddItem(ToQString(group->GetGroupName()), QString::number(field->GetID()),
                       ToQString(field->GetCompoundName()));
    }
  }
  auto* caption = new QLabel(ToQString(outer.GetTitle("ttlResultField")), this);
  caption->setBuddy(FColumn);
  auto* form = new QFormLayout;
  form->addRow(caption, FColumn);
  rows.addLayout(form);
}

void TSubQueryDialog::AddSql(QVBoxLayout& rows) {
  FSqlSwitch = new QToolButton(this);
  FSqlSwitch->setObjectName(QStringLiteral("sqlSwitch"));
  FSqlSwitch->setText(tr("&SQL"));
  FSqlSwitch->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  FSqlSwitch->setArrowType(isRightToLeft() ? Qt::LeftArrow : Qt::RightArrow);
  FSqlSwitch->setAutoRaise(true);
  FSqlSwitch->setCheckable(true);
  rows.addWidget(FSqlSwitch);
  auto* box = new QWidget(this);
  auto* lines = new QVBoxLayout(box);
  lines->setContentsMargins({});
  FSql = new QPlainTextEdit(box);
  FSql->setObjectName(QStringLiteral("sql"));
  FSql->setAccessibleName(tr("SQL"));
  FSql->setTabChangesFocus(true);
  FSql->setLayoutDirection(Qt::LeftToRight);
  QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  fixed.setPointSizeF(font().pointSizeF());
  FSql->setFont(fixed);
  lines->addWidget(FSql);
  box->hide();
  rows.addWidget(box, 2);
  AddTextRow(rows);
  FFault = new QLabel(this);
  FFault->setObjectName(QStringLiteral("fault"));
  FFault->setTextFormat(Qt::PlainText);
  FFault->setWordWrap(true);
  FFault->hide();
  rows.addWidget(FFault);
  connect(FSqlSwitch, &QToolButton::toggled, box, [this, box](bool on) {
    box->setVisible(on);
    const Qt::ArrowType closed = isRightToLeft() ? Qt::LeftArrow : Qt::RightArrow;
    FSqlSwitch->setArrowType(on ? Qt::DownArrow : closed);
    ShowState();
  });
  connect(FSql, &QPlainTextEdit::textChanged, this, [this] {
    ShowFault({});
    ShowState();
  });
}

// What can be done with the text; also to be seen while the box is closed, if there is unread text in it.
void TSubQueryDialog::AddTextRow(QVBoxLayout& rows) {
  FTextRow = new QWidget(this);
  auto* parts = new QHBoxLayout(FTextRow);
  parts->setContentsMargins({});
  const auto addButton = [&](const QString& text, const QString& objectName) {
    auto* button = new QPushButton(text, FTextRow);
    button->setObjectName(objectName);
    button->setAutoDefault(false);
    parts->addWidget(button);
    return button;
  };
  FRead = addButton(tr("&Read this SQL"), QStringLiteral("readSql"));
  FDiscard = addButton(tr("&Discard"), QStringLiteral("discardSql"));
  FUnread = new QLabel(tr("The text is not read yet"), FTextRow);
  FUnread->setObjectName(QStringLiteral("unread"));
  FUnread->setWordWrap(true);
  parts->addWidget(FUnread, 1);
  parts->addStretch();
  rows.addWidget(FTextRow);
  connect(FRead, &QPushButton::clicked, this, [this] { ReadSql(); });
  connect(FDiscard, &QPushButton::clicked, this, [this] {
    ShowFault({});
    ShowSql();
    FSql->setFocus();
  });
}

void TSubQueryDialog::AddButtons(QVBoxLayout& rows, const TJQueryPanel& outer) {
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  buttons->button(QDialogButtonBox::Ok)->setText(ToQString(outer.GetTitle("ttlOkBtnCaption")));
  buttons->button(QDialogButtonBox::Cancel)->setText(ToQString(outer.GetTitle("ttlCancelBtnCaption")));
  rows.addWidget(buttons);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

void TSubQueryDialog::ShowColumn() {
  if (FQuery.RFields().Empty() || FQuery.RFields()[0].DSFields().empty()) {
    FColumn->SetValue({});
    return FColumn->SetCaption({});
  }
  const TResultField& column = FQuery.RFields()[0];
  const TDSField& field = *column.DSFields().front();
  // A computed column is none of those in the list.
  FColumn->SetValue(column.IsPlainField() ? QString::number(field.GetID()) : QString());
  FColumn->SetCaption(ToQString(column.IsPlainField() ? field.GetCompoundName() : column.GetExpression()));
}

void TSubQueryDialog::TakeColumn() {
  const TJCustomDBStructure* model = FQuery.GetDBStruct();
  TDSField* field = model != nullptr ? model->FieldByID(FColumn->GetValue().toInt()) : nullptr;
  if (field == nullptr) return;
  const bool isPlain = !FQuery.RFields().Empty() && FQuery.RFields()[0].IsPlainField();
  if (isPlain && FQuery.RFields()[0].DSFields().front() == field) return;
  FQuery.RFields().BeginUpdate();
  FQuery.RFields().Clear();
  FQuery.RFields().Add(*field);
  FQuery.RFields().EndUpdate();
}

// What has been typed and not read yet stays, until the user says which of both is meant.
void TSubQueryDialog::QueryChanged() {
  ShowColumn();
  if (FReading) return;
  if (!IsUnread()) return ShowSql();
  FConflict = true;
  ShowState();
}

void TSubQueryDialog::ShowSql() {
  QString sql;
  try {
    if (!FQuery.RFields().Empty()) sql = ToQString(FQuery.GetSQL().Joined("\n"));
  } catch (const EException&) {
    // The row says what is wrong with it.
  }
  const QSignalBlocker quiet(FSql);
  FSql->setPlainText(sql);
  FShownSql = FSql->toPlainText();
  FConflict = false;
  ShowState();
}

void TSubQueryDialog::ShowState() {
  const bool unread = IsUnread();
  FRead->setEnabled(unread);
  FDiscard->setEnabled(unread);
  FUnread->setVisible(FConflict);
  FRead->setAccessibleDescription(FConflict ? FUnread->text() : QString());
  FTextRow->setVisible(unread || FSqlSwitch->isChecked());
}

bool TSubQueryDialog::ReadSql() {
  QString fault;
  FReading = true;
  try {
    FQuery.ParseSQL(FromQString(FSql->toPlainText()), {.Faithful = true});
  } catch (const EException& error) {
    fault = ToQString(error.Message());
  }
  FReading = false;
  ShowFault(fault);
  if (!fault.isEmpty()) {
    FSqlSwitch->setChecked(true);
    FSql->setFocus();
    return false;
  }
  ShowSql();
  return true;
}

void TSubQueryDialog::ShowFault(const QString& fault) {
  QPalette colors = palette();
  colors.setColor(QPalette::WindowText, ReadableColor(FaultColor(), colors.color(QPalette::Window)));
  FFault->setPalette(colors);
  FFault->setText(fault);
  FFault->setVisible(!fault.isEmpty());
}

void TSubQueryDialog::accept() {
  if (FConflict) {
    FSqlSwitch->setChecked(true);
    return FRead->setFocus();
  }
  if (!IsUnread() || ReadSql()) QDialog::accept();
}

std::optional<TSubQuery> TSubQueryDialog::Result() {
  if (FQuery.GetDBStruct() == nullptr) return std::nullopt;
  TSubQuery result;
  FQuery.SaveToStrings(result.Lines);
  result.Options = FQuery.GetSQLOptions();
  return result;
}

}  // namespace

std::optional<TSubQuery> RunSubQueryDialog(TJQueryPanelView& outer, const TFilterCond& condition) {
  const QPointer<TSubQueryDialog> dialog = new TSubQueryDialog(condition, outer);
  const bool accepted = dialog->exec() == QDialog::Accepted;
  // The outer view may have gone with the dialog.
  if (!dialog) return std::nullopt;
  std::optional<TSubQuery> result;
  if (accepted) result = dialog->Result();
  delete dialog;
  return result;
}

}  // namespace tolvi
