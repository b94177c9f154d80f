#include "apps/workbench/window/notebar.h"

#include <QAccessible>
#include <QAction>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>

#include <tolvi/ui/dialogs/signicon.h>

namespace tolvi {

TNoteBar::TNoteBar(QWidget* parent) : QFrame(parent), FWords(new QLabel), FChoices(new QHBoxLayout) {
  setObjectName(QStringLiteral("note"));
  setFrameShape(QFrame::StyledPanel);
  setAutoFillBackground(true);
  setBackgroundRole(QPalette::AlternateBase);
  FWords->setObjectName(QStringLiteral("note.words"));
  FWords->setWordWrap(true);
  FWords->setTextFormat(Qt::PlainText);
  FWords->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  auto* closing = new QAction(SignIcon(sgTimes, *this), tr("Close this note"), this);
  connect(closing, &QAction::triggered, this, &QWidget::hide);
  QToolButton* close = MakeSignButton(*closing, *this);
  close->setObjectName(QStringLiteral("note.close"));
  auto* line = new QHBoxLayout(this);
  line->setContentsMargins(8, 4, 4, 4);
  line->addWidget(FWords, 1);
  line->addLayout(FChoices);
  line->addWidget(close);
  hide();
}

void TNoteBar::Tell(const QString& words, const std::vector<TChoice>& choices) {
  FWords->setText(words);
  while (QLayoutItem* item = FChoices->takeAt(0)) {
    // A choice may be what tells the next note.
    item->widget()->hide();
    item->widget()->deleteLater();
    delete item;
  }
  for (const auto& [caption, run] : choices) {
    auto* button = new QPushButton(caption);
    connect(button, &QPushButton::clicked, this, [this, call = run] {
      hide();
      if (call) call();
    });
    FChoices->addWidget(button);
  }
  show();
  QAccessibleEvent event(FWords, QAccessible::Alert);
  QAccessible::updateAccessibility(&event);
}

QString TNoteBar::GetWords() const { return isHidden() ? QString() : FWords->text(); }

}  // namespace tolvi
