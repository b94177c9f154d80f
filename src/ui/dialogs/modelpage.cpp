#include <QPointer>
#include <QSplitter>
#include <QVBoxLayout>
#include <exception>

#include <tolvi/foundation/consts.h>
#include <tolvi/panel/modeleditor.h>
#include <tolvi/ui/dialogs/askbox.h>
#include <tolvi/ui/dialogs/modelpage.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {

void TModelPage::ShowParts(const char* name, QWidget& list, QWidget& form, int listShare, int formShare) {
  auto* splitter = new QSplitter(this);
  splitter->setObjectName(QLatin1String(name));
  splitter->setChildrenCollapsible(false);
  splitter->setHandleWidth(fontMetrics().averageCharWidth());
  splitter->addWidget(&list);
  splitter->addWidget(&form);
  // In proportion; both have at least what they need.
  splitter->setSizes({1000 * listShare, 1000 * formShare});
  splitter->setStretchFactor(0, listShare);
  splitter->setStretchFactor(1, formShare);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(splitter);
}

bool TModelPage::Edit(const QString& name, const std::function<void()>& edit) {
  const QPointer<TModelPage> alive(this);
  QString fault;
  try {
    return FEditor.Edit(FromQString(name), edit);
  } catch (const std::exception& error) {
    fault = ToQString(error.what());
  }
  Ask(*this, QMessageBox::Warning, fault, tr("The model stays as it was."), QMessageBox::Ok);
  // What was typed is shown no longer.
  if (alive) Refresh();
  return false;
}

bool TModelPage::Confirmed(const TMessage& question) {
  return Ask(*this, QMessageBox::Question, ToQString(question.Text), {}, QMessageBox::Yes | QMessageBox::No) ==
         QMessageBox::Yes;
}

}  // namespace tolvi
