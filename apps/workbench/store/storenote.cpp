#include "apps/workbench/store/storenote.h"

#include <QAccessible>
#include <QAction>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>
#include <utility>

#include <tolvi/ui/controls/contrast.h>
#include <tolvi/ui/dialogs/signicon.h>

namespace tolvi {

TStoreNote::TStoreNote(QWidget* parent) : QFrame(parent), FWords(new QLabel(this)), FButton(new QPushButton(this)) {
  setObjectName(QStringLiteral("store.note"));
  setFrameShape(QFrame::StyledPanel);
  setAutoFillBackground(true);
  FWords->setObjectName(QStringLiteral("store.noteText"));
  FWords->setTextFormat(Qt::PlainText);
  FWords->setWordWrap(true);
  FWords->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  FButton->setObjectName(QStringLiteral("store.noteButton"));
  auto* close = new QAction(SignIcon(sgTimes, *this), tr("Close"), this);
  connect(close, &QAction::triggered, this, [this] {
    hide();
    if (const auto handler = OnClose) handler();
  });
  connect(FButton, &QPushButton::clicked, this, [this] {
    hide();
    if (const auto run = std::exchange(FRun, {})) run();
  });
  auto* layout = new QGridLayout(this);
  const int space = fontMetrics().averageCharWidth() / 2 + 1;
  layout->setContentsMargins(2 * space, space, space, space);
  layout->setColumnStretch(0, 1);
  layout->addWidget(FWords, 0, 0);
  QToolButton* button = MakeSignButton(*close, *this);
  button->setObjectName(QStringLiteral("store.noteClose"));
  layout->addWidget(button, 0, 1, Qt::AlignTop);
  layout->addWidget(FButton, 1, 0, Qt::AlignLeft);
  hide();
}

void TStoreNote::Show(const QString& words, bool isFault, const QString& button, std::function<void()> run) {
  FIsFault = isFault;
  FRun = std::move(run);
  FWords->setText(words);
  FButton->setText(button);
  FButton->setVisible(!button.isEmpty());
  ShowColors();
  show();
  QAccessibleEvent event(FWords, QAccessible::Alert);
  QAccessible::updateAccessibility(&event);
}

void TStoreNote::ShowColors() {
  constexpr double Part = 0.12;
  const QPalette parent = parentWidget()->palette();
  const QColor accent = FIsFault ? FaultColor() : parent.color(QPalette::Active, QPalette::Highlight);
  const QColor face = MixedColor(accent, parent.color(QPalette::Window), Part);
  QPalette colors = parent;
  colors.setColor(QPalette::Window, face);
  colors.setColor(QPalette::WindowText, FIsFault ? ReadableColor(FaultColor(), face)
                                                 : ReadableColor(parent.color(QPalette::WindowText), face));
  if (colors != palette()) setPalette(colors);
}

void TStoreNote::changeEvent(QEvent* event) {
  QFrame::changeEvent(event);
  if (event->type() == QEvent::StyleChange || event->type() == QEvent::ApplicationPaletteChange) ShowColors();
}

}  // namespace tolvi
