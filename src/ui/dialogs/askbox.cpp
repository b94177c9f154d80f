#include <QPointer>

#include <tolvi/ui/dialogs/askbox.h>

namespace tolvi {

int Ask(QWidget& parent, QMessageBox::Icon icon, const QString& text, const QString& further,
        QMessageBox::StandardButtons buttons) {
  const QPointer<QMessageBox> box = new QMessageBox(icon, parent.window()->windowTitle(), text, buttons, &parent);
  box->setTextFormat(Qt::PlainText);
  box->setInformativeText(further);
  if (buttons & QMessageBox::No) box->setDefaultButton(QMessageBox::No);
  const int answer = box->exec();
  if (!box) return QMessageBox::NoButton;
  delete box;
  return answer;
}

}  // namespace tolvi
