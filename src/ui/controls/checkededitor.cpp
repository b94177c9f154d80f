#include <QEvent>
#include <algorithm>

#include <tolvi/ui/controls/checkededitor.h>
#include <tolvi/ui/controls/contrast.h>

namespace tolvi {

TCheckedEditor::TCheckedEditor(QWidget& typedIn, QWidget* parent)
    : TEditorFrame(parent), FTypedIn(typedIn), FRows(new QVBoxLayout(this)), FFault(new QLabel(this)) {
  setFocusProxy(&FTypedIn);
  FFault->setTextFormat(Qt::PlainText);
  FFault->setWordWrap(true);
  FFault->setMargin(std::max(2, fontMetrics().averageCharWidth() / 2));
  FFault->hide();
  FRows->setContentsMargins(0, 0, 0, 0);
  FRows->setSpacing(0);
  FRows->addWidget(&FTypedIn, 1);
  FRows->addWidget(FFault);
}

void TCheckedEditor::ShowFault(const QString& fault) {
  FFault->setText(fault);
  FFault->setVisible(!fault.isEmpty());
  FTypedIn.setAccessibleDescription(fault);
  QPalette colors = palette();
  colors.setColor(QPalette::WindowText, ReadableColor(FaultColor(), BackgroundOf(*this)));
  FFault->setPalette(colors);
}

void TCheckedEditor::changeEvent(QEvent* event) {
  TEditorFrame::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) ShowFault(FFault->text());
}

QSize TCheckedEditor::sizeHint() const {
  QSize size = FRows->sizeHint();
  if (FFault->text().isEmpty()) return size;
  const int longest = 40 * fontMetrics().averageCharWidth();
  size.setWidth(std::max(FTypedIn.sizeHint().width(),
                         std::min(longest, fontMetrics().horizontalAdvance(FFault->text()) + 4 * FFault->margin())));
  size.setHeight(FRows->totalHeightForWidth(size.width()));
  return size;
}

QSize TCheckedEditor::minimumSizeHint() const {
  return FTypedIn.minimumSizeHint() + QSize(2 * frameWidth(), 2 * frameWidth());
}

}  // namespace tolvi
