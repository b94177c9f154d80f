#include "apps/workbench/window/notebar.h"

#include <QAccessible>
#include <QAction>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>
#include <algorithm>

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
  connect(closing, &QAction::triggered, this, &TNoteBar::Answered);
  FClose = MakeSignButton(*closing, *this);
  FClose->setObjectName(QStringLiteral("note.close"));
  auto* line = new QHBoxLayout(this);
  line->setContentsMargins(8, 4, 4, 4);
  line->addWidget(FWords, 1);
  line->addLayout(FChoices);
  line->addWidget(FClose);
  hide();
}

void TNoteBar::Tell(const QString& words, const std::vector<TChoice>& choices, const QString& topic) {
  const TNote note{topic, words, choices, ++FTold};
  const auto same = std::find_if(FNotes.begin(), FNotes.end(), [&](const TNote& told) { return told.Topic == topic; });
  if (same != FNotes.end()) {
    *same = note;
  } else {
    FNotes.insert(topic.isEmpty() ? FNotes.begin() : FNotes.end(), note);
  }
  ShowFirst();
}

void TNoteBar::Withdraw(const QString& topic) {
  std::erase_if(FNotes, [&](const TNote& note) { return note.Topic == topic; });
  ShowFirst();
}

void TNoteBar::Answered() {
  std::erase_if(FNotes, [this](const TNote& note) { return note.Number == FShown; });
  ShowFirst();
}

QStringList TNoteBar::GetTopics() const {
  QStringList topics;
  for (const TNote& note : FNotes) {
    if (!note.Topic.isEmpty()) topics << note.Topic;
  }
  return topics;
}

void TNoteBar::ShowFirst() {
  if (FNotes.empty()) {
    FShown = 0;
    return hide();
  }
  if (FNotes.front().Number == FShown) return;
  FShown = FNotes.front().Number;
  ShowNote(FNotes.front());
}

void TNoteBar::ShowNote(const TNote& note) {
  FWords->setText(note.Words);
  while (QLayoutItem* item = FChoices->takeAt(0)) {
    // A choice may be what tells the next note.
    item->widget()->hide();
    item->widget()->setObjectName({});
    item->widget()->deleteLater();
    delete item;
  }
  QWidget* before = FWords;
  int number = 0;
  for (const auto& [caption, run] : note.Choices) {
    auto* button = new QPushButton(caption);
    button->setObjectName(QStringLiteral("note.choice%1").arg(++number));
    connect(button, &QPushButton::clicked, this, [this, call = run] {
      Answered();
      if (call) call();
    });
    FChoices->addWidget(button);
    setTabOrder(before, button);
    before = button;
  }
  setTabOrder(before, FClose);
  show();
  QAccessibleEvent event(FWords, QAccessible::Alert);
  QAccessible::updateAccessibility(&event);
}

void TNoteBar::GoThere() {
  QWidget* first = FChoices->isEmpty() ? FClose : FChoices->itemAt(0)->widget();
  if (!isHidden()) first->setFocus(Qt::ShortcutFocusReason);
}

QString TNoteBar::GetWords() const { return isHidden() ? QString() : FWords->text(); }

}  // namespace tolvi
