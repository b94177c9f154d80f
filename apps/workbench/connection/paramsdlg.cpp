#include "apps/workbench/connection/paramsdlg.h"

#include <QAccessible>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>
#include <vector>

#include "apps/workbench/connection/paramedit.h"
#include <tolvi/foundation/text.h>
#include <tolvi/model/valueeditors.h>
#include <tolvi/query/querpnl.h>
#include <tolvi/ui/controls/contrast.h>
#include <tolvi/ui/dialogs/checkstyle.h>
#include <tolvi/ui/dialogs/scrolled.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

/// Those that have different names, in their order: a name stands for one value.
std::vector<TParamInfo> ParamsOf(TJQueryPanel& panel) {
  std::vector<TParamInfo> params;
  for (TParamInfo& param : ListParams(panel)) {
    const bool isKnown = std::any_of(params.begin(), params.end(),
                                     [&](const TParamInfo& known) { return SameText(known.Name, param.Name); });
    if (!isKnown) params.push_back(std::move(param));
  }
  return params;
}

class TParamsDialog final : public QDialog {
 public:
  TParamsDialog(QWidget* parent, TJQueryPanel& panel, const std::vector<TParamInfo>& params, const TParamMemory& last,
                const QString& source);

  struct TRow {
    TParamInfo Param;
    TParamEdit* Edit;
    QLabel* Fault;
    bool IsTouched;
  };
  const std::vector<TRow>& Rows() const { return FRows; }

  /// While a value is missing or wrong, goes to it and says why.
  void accept() override;

 private:
  void AddRow(QVBoxLayout& form, const TParamInfo& param, const QString& value);
  QLabel* AddText(QVBoxLayout& form, const QString& text, const QColor& color);
  void Check();
  bool IsWrong(const TRow& row) const { return !FaultOfParam(row.Edit->GetValue(), row.Param, FPanel).isEmpty(); }
  // As high as its rows are, if the screen is: a fault is shown below its value.
  void FitHeight();
  void ShowFault(const TRow& row);

  const TJQueryPanel& FPanel;
  std::vector<TRow> FRows;
  QScrollArea* FArea;
  QDialogButtonBox* FButtons;
};

TParamsDialog::TParamsDialog(QWidget* parent, TJQueryPanel& panel, const std::vector<TParamInfo>& params,
                             const TParamMemory& last, const QString& source)
    : QDialog(parent), FPanel(panel) {
  constexpr int Columns = 64;
  setObjectName(QStringLiteral("params"));
  const QString name = ToQString(panel.GetQueryName());
  setWindowTitle(name.isEmpty() ? QObject::tr("Values of the query") : QObject::tr("Values of “%1”").arg(name));
  auto* form = new QWidget(this);
  auto* rows = new QVBoxLayout(form);
  for (const TParamInfo& param : params) {
    const QString* known = last.Get(TParamMemory::KeyOf(source, panel.GetQueryName(), param.Name));
    const auto* text = dynamic_cast<const TDSTextEditor*>(param.Editor);
    QString value = ToEditForm(param.Value, param, panel);
    if (value.isEmpty() && known != nullptr) value = *known;
    if (value.isEmpty() && text != nullptr) value = ToEditForm(text->GetDefaultValue(), param, panel);
    AddRow(*rows, param, value);
  }
  rows->addStretch(1);
  UseCheckStyle(*form);
  FButtons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  FButtons->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("params.ok"));
  connect(FButtons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(FButtons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto* layout = new QVBoxLayout(this);
  FArea = Scrolled(form, this);
  FArea->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  layout->addWidget(FArea, 1);
  layout->addWidget(FButtons);
  resize(Columns * fontMetrics().averageCharWidth(), 1);
  Check();
  // The first one that needs a value.
  const auto first = std::find_if(FRows.begin(), FRows.end(),
                                  [this](const TRow& row) { return IsWrong(row) || row.Edit->GetValue().isEmpty(); });
  (first != FRows.end() ? first : FRows.begin())->Edit->setFocus();
}

void TParamsDialog::FitHeight() {
  constexpr double MostOfScreen = 0.8;
  const int rows = FArea->widget()->layout()->totalHeightForWidth(width());
  const int needed = rows + FButtons->sizeHint().height() + 4 * fontMetrics().height();
  const int most = static_cast<int>(screen()->availableGeometry().height() * MostOfScreen);
  if (const int fitting = std::min(needed, most); fitting > height()) resize(width(), fitting);
}

void TParamsDialog::ShowFault(const TRow& row) {
  // The label has its place once the layout has been made.
  QTimer::singleShot(0, row.Fault, [this, label = row.Fault, edit = row.Edit] {
    FArea->ensureWidgetVisible(label);
    FArea->ensureWidgetVisible(edit);
  });
}

void TParamsDialog::accept() {
  const auto first = std::find_if(FRows.begin(), FRows.end(), [this](const TRow& row) { return IsWrong(row); });
  if (first == FRows.end()) return QDialog::accept();
  for (TRow& row : FRows) row.IsTouched = true;
  Check();
  first->Edit->setFocus(Qt::OtherFocusReason);
  ShowFault(*first);
  QAccessibleEvent event(first->Fault, QAccessible::Alert);
  QAccessible::updateAccessibility(&event);
}

QLabel* TParamsDialog::AddText(QVBoxLayout& form, const QString& text, const QColor& color) {
  auto* label = new QLabel(text, form.parentWidget());
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  QPalette colors = palette();
  colors.setColor(QPalette::WindowText, ReadableColor(color, colors.color(QPalette::Window)));
  label->setPalette(colors);
  form.addWidget(label);
  return label;
}

void TParamsDialog::AddRow(QVBoxLayout& form, const TParamInfo& param, const QString& value) {
  constexpr double WeakPart = 0.7;
  const QPalette colors = palette();
  const QColor text = colors.color(QPalette::WindowText);
  // A name that nobody gave says nothing: the condition asks then.
  const QString prompt = ToQString(param.Prompt).replace(u'_', u' '), question = ToQString(param.Question).trimmed();
  QLabel* caption = AddText(form, prompt.isEmpty() ? question : prompt, text);
  if (!prompt.isEmpty()) AddText(form, question, MixedColor(text, colors.color(QPalette::Window), WeakPart));
  QFont bold = caption->font();
  bold.setBold(true);
  caption->setFont(bold);
  TParamEdit* edit = MakeParamEdit(param, FPanel, form.parentWidget());
  edit->setObjectName(QStringLiteral("params.") + ToQString(param.Name));
  edit->SetValue(value);
  QWidget* focus = edit->focusProxy() != nullptr ? edit->focusProxy() : edit;
  focus->setAccessibleName(prompt.isEmpty() ? question : prompt + QStringLiteral(": ") + question);
  caption->setBuddy(focus);
  form.addWidget(edit);
  QLabel* fault = AddText(form, {}, FaultColor());
  fault->setObjectName(edit->objectName() + QStringLiteral(".fault"));
  form.addSpacing(fontMetrics().height() / 2);
  const size_t number = FRows.size();
  FRows.push_back({param, edit, fault, !value.isEmpty()});
  edit->OnChange = [this, number] {
    FRows[number].IsTouched = true;
    Check();
    if (FRows[number].Fault->isVisible()) ShowFault(FRows[number]);
  };
}

// A value that is missing is not complained of before the user has come to it, or has pressed OK.
void TParamsDialog::Check() {
  for (const TRow& row : FRows) {
    const QString fault = FaultOfParam(row.Edit->GetValue(), row.Param, FPanel);
    row.Fault->setText(row.IsTouched ? fault : QString());
    row.Fault->setVisible(!row.Fault->text().isEmpty());
    row.Edit->focusProxy()->setAccessibleDescription(fault);
  }
  FitHeight();
}

}  // namespace

QString TParamMemory::KeyOf(const QString& source, std::string_view queryName, std::string_view paramName) {
  return source + u'\n' + ToQString(FoldCase(queryName)) + u'\n' + ToQString(FoldCase(paramName));
}

const QString* TParamMemory::Get(const QString& key) const {
  for (const auto& [known, value] : FValues) {
    if (known == key) return &value;
  }
  return nullptr;
}

void TParamMemory::Set(const QString& key, const QString& value) {
  std::erase_if(FValues, [&key](const auto& known) { return known.first == key; });
  FValues.insert(FValues.begin(), {key, value});
  if (FValues.size() > Most) FValues.resize(Most);
}

bool AskParams(QWidget* parent, TJQueryPanel& panel, TParamMemory& last, const QString& source) {
  const std::vector<TParamInfo> params = ParamsOf(panel);
  if (params.empty()) return true;
  const QPointer<TParamsDialog> dialog = new TParamsDialog(parent, panel, params, last, source);
  const bool isTaken = dialog->exec() == QDialog::Accepted;
  // It may have gone with its parent.
  if (!dialog) return false;
  if (isTaken) {
    for (const auto& [param, edit, fault, isTouched] : dialog->Rows()) {
      const QString value = edit->GetValue();
      SetParamValue(panel, param.Name, ToStoredForm(value, param, panel));
      last.Set(TParamMemory::KeyOf(source, panel.GetQueryName(), param.Name), value);
    }
  }
  delete dialog;
  return isTaken;
}

}  // namespace tolvi
