#include "apps/workbench/results/resultpages.h"

#include <QAbstractTextDocumentLayout>
#include <QClipboard>
#include <QEvent>
#include <QGuiApplication>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStyle>
#include <QStyleOption>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include <tolvi/ui/controls/contrast.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {

TStatusLine::TStatusLine(QWidget* parent) : QLabel(parent) {
  setTextFormat(Qt::PlainText);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
  setContentsMargins(fontMetrics().averageCharWidth(), 0, fontMetrics().averageCharWidth(), 0);
}

void TStatusLine::SetWords(const QString& words) {
  setText(words);
  setToolTip(PlainToolTip(words));
  setAccessibleName(words);
  // Else the tip would be read out with its markup.
  setAccessibleDescription(words);
}

QSize TStatusLine::minimumSizeHint() const {
  constexpr int letters = 8;
  return {fontMetrics().averageCharWidth() * letters, sizeHint().height()};
}

QSize TStatusLine::sizeHint() const {
  constexpr int letters = 24;
  return {fontMetrics().averageCharWidth() * letters, QLabel::minimumSizeHint().height()};
}

void TStatusLine::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QRect rect = contentsRect();
  const QString line = fontMetrics().elidedText(text(), Qt::ElideRight, rect.width());
  const Qt::Alignment alignment = QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft | Qt::AlignVCenter);
  const int flags = static_cast<int>(alignment) | static_cast<int>(Qt::TextSingleLine);
  style()->drawItemText(&painter, rect, flags, palette(), isEnabled(), AsWritten(line, layoutDirection()),
                        foregroundRole());
}

TEmptyPage::TEmptyPage(QWidget* parent) : QWidget(parent), FWords(new QLabel) {
  FWords->setObjectName(QStringLiteral("results.empty"));
  FWords->setAlignment(Qt::AlignCenter);
  FWords->setWordWrap(true);
  FWords->setTextFormat(Qt::PlainText);
  setAutoFillBackground(true);
  setBackgroundRole(QPalette::Base);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(FWords);
  Colour();
}

void TEmptyPage::SetWords(const QString& words) {
  FWords->setText(words);
  FWords->setAccessibleName(words);
}

void TEmptyPage::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) Colour();
}

void TEmptyPage::Colour() {
  constexpr double part = 0.7;
  const QColor base = palette().color(QPalette::Base), text = palette().color(QPalette::Text);
  QPalette weak = FWords->palette();
  weak.setColor(QPalette::WindowText, ReadableColor(MixedColor(text, base, part), base));
  FWords->setPalette(weak);
}

TFaultPage::TFaultPage(QWidget* parent)
    : QScrollArea(parent),
      FSign(new QLabel),
      FHeading(new QLabel),
      FWords(new QPlainTextEdit),
      FButton(new QPushButton),
      FCopy(new QPushButton(tr("&Copy"))) {
  setFrameShape(NoFrame);
  setWidgetResizable(true);
  auto* content = new QWidget;
  content->setAutoFillBackground(true);
  content->setBackgroundRole(QPalette::Base);
  const int side = fontMetrics().height() * 3 / 2;
  FSign->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(QSize(side, side), devicePixelRatioF()));
  QFont bold = FHeading->font();
  bold.setBold(true);
  FHeading->setFont(bold);
  FHeading->setTextFormat(Qt::PlainText);
  FHeading->setForegroundRole(QPalette::Text);
  FHeading->setWordWrap(true);
  FWords->setObjectName(QStringLiteral("results.fault"));
  FWords->setAccessibleName(tr("What went wrong"));
  FWords->setReadOnly(true);
  FWords->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  FWords->setFrameShape(QFrame::NoFrame);
  FWords->setTabChangesFocus(true);
  FWords->setMinimumHeight(fontMetrics().lineSpacing() * 2);
  connect(FWords->document()->documentLayout(), &QAbstractTextDocumentLayout::documentSizeChanged, this,
          &TFaultPage::FitWords);
  FButton->setObjectName(QStringLiteral("results.faultAction"));
  FButton->hide();
  FCopy->setObjectName(QStringLiteral("results.faultCopy"));
  connect(FButton, &QPushButton::clicked, this, [this] {
    if (const auto action = FAction) action();
  });
  connect(FCopy, &QPushButton::clicked, this, [this] { QGuiApplication::clipboard()->setText(FWords->toPlainText()); });
  auto* heading = new QHBoxLayout;
  heading->addWidget(FSign, 0, Qt::AlignTop);
  heading->addWidget(FHeading, 1);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(FButton);
  buttons->addWidget(FCopy);
  buttons->addStretch();
  auto* layout = new QVBoxLayout(content);
  layout->addLayout(heading);
  layout->addWidget(FWords, 1);
  layout->addLayout(buttons);
  layout->addStretch();
  setWidget(content);
  setFocusProxy(FWords);
}

void TFaultPage::FitWords() {
  // The layout of plain texts counts lines.
  const int lines = std::max(2, static_cast<int>(FWords->document()->size().height()) + 1);
  const int margin = static_cast<int>(FWords->document()->documentMargin());
  FWords->setMaximumHeight(lines * fontMetrics().lineSpacing() + 2 * margin);
}

void TFaultPage::SetFault(const QString& heading, const QString& words) {
  SetAction({}, {});
  FHeading->setText(heading);
  FWords->setPlainText(words);
}

void TFaultPage::SetAction(const QString& caption, std::function<void()> action) {
  FAction = std::move(action);
  FButton->setText(caption);
  FButton->setVisible(!caption.isEmpty());
}

}  // namespace tolvi
