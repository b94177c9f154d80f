#include <QDialog>
#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QFormLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

#include <tolvi/model/dbstruc.h>
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
 public:
  TSubQueryDialog(const TFilterCond& condition, QWidget* parent);

  /// Nothing when the model has gone.
  std::optional<TSubQuery> Result();
  void accept() override;

 private:
  void SetUpQuery(const TFilterCond& condition);
  void AddColumn(QVBoxLayout& rows, const TJQueryPanel& outer);
  void AddSql(QVBoxLayout& rows);
  void AddButtons(QVBoxLayout& rows, const TJQueryPanel& outer);
  void ShowColumn();
  void TakeColumn();
  void ShowSql();
  bool ReadSql();
  void ShowFault(const QString& fault);

  TJQueryPanel FQuery;
  TDropDownPopup* FColumn = nullptr;
  TJQueryPanelView* FView = nullptr;
  QToolButton* FSqlSwitch = nullptr;
  QPlainTextEdit* FSql = nullptr;
  QPushButton* FRead = nullptr;
  QLabel* FFault = nullptr;
  QString FShownSql;
};

TSubQueryDialog::TSubQueryDialog(const TFilterCond& condition, QWidget* parent) : QDialog(parent) {
  const TJQueryPanel& outer = condition.GetQueryPanel();
  setWindowTitle(ToQString(outer.GetTitle("ttlSubQueryCaption")));
  auto* rows = new QVBoxLayout(this);
  AddColumn(*rows, outer);
  FView = new TJQueryPanelView(this);
  rows->addWidget(FView, 3);
  AddSql(*rows);
  AddButtons(*rows, outer);
  SetUpQuery(condition);
  FView->SetQueryPanel(&FQuery);
  FQuery.OnChange = [this](TJQueryPanel&) {
    ShowColumn();
    ShowSql();
  };
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
  };
  const auto add = [this](const TDSFieldGroup& group) {
    for (const TDSField* field : group) {
      if (!field->GetUseInResult()) continue;
      FColumn->AddItem(ToQString(group.GetGroupName()), QString::number(field->GetID()),
                       ToQString(field->GetCompoundName()));
    }
  };
  const TJCustomDBStructure& model = *outer.GetDBStruct();
  add(model.RootGroup());
  for (const TDSFieldGroup& group : model.FieldGroups()) add(group);
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
  FRead = new QPushButton(tr("&Read this SQL"), box);
  FRead->setObjectName(QStringLiteral("readSql"));
  FRead->setAutoDefault(false);
  lines->addWidget(FRead, 0, Qt::AlignLeading);
  box->hide();
  rows.addWidget(box, 2);
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
  });
  connect(FSql, &QPlainTextEdit::textChanged, this, [this] { FRead->setEnabled(FSql->toPlainText() != FShownSql); });
  connect(FRead, &QPushButton::clicked, this, [this] { ReadSql(); });
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
  FColumn->SetValue(QString::number(field.GetID()));
  FColumn->SetCaption(ToQString(column.IsPlainField() ? field.GetCompoundName() : column.GetExpression()));
}

void TSubQueryDialog::TakeColumn() {
  const TJCustomDBStructure* model = FQuery.GetDBStruct();
  TDSField* field = model != nullptr ? model->FieldByID(FColumn->GetValue().toInt()) : nullptr;
  if (field == nullptr) return;
  FQuery.RFields().BeginUpdate();
  FQuery.RFields().Clear();
  FQuery.RFields().Add(*field);
  FQuery.RFields().EndUpdate();
}

// What has been typed and not read yet stays.
void TSubQueryDialog::ShowSql() {
  if (FSql->toPlainText() != FShownSql) return;
  QString sql;
  try {
    if (!FQuery.RFields().Empty()) sql = ToQString(FQuery.GetSQL().Joined("\n"));
  } catch (const EException&) {
    // The row says what is wrong with it.
  }
  FShownSql = sql;
  FSql->setPlainText(sql);
  FRead->setEnabled(false);
}

bool TSubQueryDialog::ReadSql() {
  try {
    const std::string sql = FromQString(FSql->toPlainText());
    // What the change shows is the query again.
    FShownSql = FSql->toPlainText();
    FQuery.ParseSQL(sql, {.Faithful = true});
  } catch (const EException& error) {
    FShownSql = QString(QChar::Null);
    FRead->setEnabled(true);
    FSqlSwitch->setChecked(true);
    ShowFault(ToQString(error.Message()));
    FSql->setFocus();
    return false;
  }
  ShowFault({});
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
  if (FSql->toPlainText() == FShownSql || ReadSql()) QDialog::accept();
}

std::optional<TSubQuery> TSubQueryDialog::Result() {
  if (FQuery.GetDBStruct() == nullptr) return std::nullopt;
  TSubQuery result;
  FQuery.SaveToStrings(result.Lines);
  result.Options = FQuery.GetSQLOptions();
  return result;
}

}  // namespace

std::optional<TSubQuery> RunSubQueryDialog(QWidget& parent, const TFilterCond& condition) {
  const QPointer<TSubQueryDialog> dialog = new TSubQueryDialog(condition, &parent);
  const bool accepted = dialog->exec() == QDialog::Accepted;
  // The parent may have gone with the dialog.
  if (!dialog) return std::nullopt;
  std::optional<TSubQuery> result;
  if (accepted) result = dialog->Result();
  delete dialog;
  return result;
}

}  // namespace tolvi
