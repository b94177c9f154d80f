#include <QPointer>
#include <exception>

#include <tolvi/foundation/consts.h>
#include <tolvi/panel/modeleditor.h>
#include <tolvi/ui/dialogs/askbox.h>
#include <tolvi/ui/dialogs/modelpage.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {

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
