#include <QCheckBox>
#include <QListWidget>
#include <QStyleOption>
#include <QWidget>

#include <tolvi/ui/controls/contrast.h>
#include <tolvi/ui/controls/drawing.h>
#include <tolvi/ui/dialogs/checkstyle.h>

namespace tolvi {

int TCheckStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
  const bool isBox = metric == PM_IndicatorWidth || metric == PM_IndicatorHeight;
  return isBox && widget != nullptr ? CheckBoxSide(widget->fontMetrics())
                                    : QProxyStyle::pixelMetric(metric, option, widget);
}

void TCheckStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                const QWidget* widget) const {
  if (element != PE_IndicatorItemViewItemCheck) {
    return QProxyStyle::drawPrimitive(element, option, painter, widget);
  }
  const QColor text = option->palette.color(QPalette::WindowText), face = option->palette.color(QPalette::Base);
  const Qt::CheckState unset = option->state & State_NoChange ? Qt::PartiallyChecked : Qt::Unchecked;
  DrawCheckBox(*painter, option->rect, option->state & State_On ? Qt::Checked : unset,
               {ReadableColor(text, face), MixedColor(text, face, 0.6), face});
}

void UseCheckStyle(QWidget& parent) {
  auto* style = new TCheckStyle;
  style->setParent(&parent);
  for (QCheckBox* box : parent.findChildren<QCheckBox*>()) box->setStyle(style);
  for (QListWidget* list : parent.findChildren<QListWidget*>()) list->setStyle(style);
}

}  // namespace tolvi
