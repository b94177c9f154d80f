#include "apps/workbench/controls/askchoice.h"

#include <QGuiApplication>
#include <QPushButton>
#include <algorithm>

namespace tolvi {

std::optional<std::size_t> AskChoice(QWidget* parent, const QString& name, const QString& question,
                                     const std::vector<TChoice>& choices) {
  QMessageBox box(QMessageBox::Question, QGuiApplication::applicationDisplayName(), question, QMessageBox::NoButton,
                  parent);
  box.setObjectName(name);
  // Questions name queries, whose names may hold signs of markup.
  box.setTextFormat(Qt::PlainText);
  const auto add = [&](const QString& choice, const QString& caption, QMessageBox::ButtonRole role) {
    QPushButton* button = box.addButton(caption, role);
    button->setObjectName(name + u'.' + choice);
    return button;
  };
  std::vector<QAbstractButton*> buttons;
  for (const TChoice& choice : choices) {
    QPushButton* button = add(choice.Name, choice.Caption, choice.Role);
    if (buttons.empty()) box.setDefaultButton(button);
    buttons.push_back(button);
  }
  box.setEscapeButton(add(QStringLiteral("cancel"), QMessageBox::tr("Cancel"), QMessageBox::RejectRole));
  box.exec();
  const auto chosen = std::find(buttons.begin(), buttons.end(), box.clickedButton());
  if (chosen == buttons.end()) return std::nullopt;
  return static_cast<std::size_t>(chosen - buttons.begin());
}

}  // namespace tolvi
