#include <QApplication>
#include <algorithm>

#include <tolvi/ui/controls/contrast.h>
#include <tolvi/ui/controls/wave.h>
#include <tolvi/ui/dialogs/faultdelegate.h>

namespace tolvi {

void TFaultDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
  QStyledItemDelegate::paint(painter, option, index);
  if (!index.data(WrongRole).toBool()) return;
  QStyleOptionViewItem shown(option);
  initStyleOption(&shown, index);
  const QStyle& style = shown.widget != nullptr ? *shown.widget->style() : *QApplication::style();
  const int margin = style.pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, shown.widget) + 1;
  const QRect place =
      style.subElementRect(QStyle::SE_ItemViewItemText, &shown, shown.widget).adjusted(margin, 0, -margin, 0);
  const int width = std::min(shown.fontMetrics.horizontalAdvance(shown.text), place.width());
  const QRect text =
      QStyle::alignedRect(shown.direction, shown.displayAlignment, QSize(width, shown.fontMetrics.height()), place);
  const bool isSelected = shown.state & QStyle::State_Selected;
  // Lines are no text: less contrast is enough. On the selection, red would not stand out.
  const QColor color = isSelected ? shown.palette.color(QPalette::HighlightedText)
                                  : ReadableColor(FaultColor(), shown.palette.color(QPalette::Base), 3);
  const double wave = std::max(1.5, shown.fontMetrics.height() / 10.0);
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  painter->setClipRect(shown.rect);
  painter->setPen(QPen(color, std::max(1.0, wave / 2)));
  DrawWave(*painter, text.left(), text.right() + 1,
           text.top() + shown.fontMetrics.ascent() + 0.6 * shown.fontMetrics.descent() + 1, wave);
  painter->restore();
}

}  // namespace tolvi
