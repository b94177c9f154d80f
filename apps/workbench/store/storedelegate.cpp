#include "apps/workbench/store/storedelegate.h"

#include <QApplication>
#include <QFontMetrics>
#include <QPainter>
#include <algorithm>

#include "apps/workbench/store/storemodel.h"
#include <tolvi/ui/controls/contrast.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

int SpaceOf(const QStyleOptionViewItem& option) { return std::max(3, option.fontMetrics.averageCharWidth() / 2); }

QRect TextRect(const QStyleOptionViewItem& option) {
  const int space = SpaceOf(option);
  return option.rect.adjusted(2 * space, space, -2 * space, -space);
}

struct TRowColors {
  QColor Name, Weak, Fault, Bar;
};

TRowColors ColorsOf(const QStyleOptionViewItem& option) {
  constexpr double WeakPart = 0.7;
  const bool isSelected = option.state & QStyle::State_Selected;
  const auto group = option.state & QStyle::State_Active ? QPalette::Active : QPalette::Inactive;
  const QColor face = option.palette.color(group, isSelected ? QPalette::Highlight : QPalette::Base);
  const QColor name = option.palette.color(group, isSelected ? QPalette::HighlightedText : QPalette::Text);
  const QColor accent = option.palette.color(QPalette::Active, QPalette::Highlight);
  // There is no red on every colour of a selection.
  if (isSelected) return {name, name, name, name};
  return {name, ReadableColor(MixedColor(name, face, WeakPart), face), ReadableColor(FaultColor(), face),
          ReadableColor(accent, face, 3)};
}

void DrawLine(QPainter& painter, const QStyleOptionViewItem& option, const QRect& rect, const QString& text) {
  const Qt::Alignment side = QStyle::visualAlignment(option.direction, Qt::AlignLeft);
  const QString line = painter.fontMetrics().elidedText(text, Qt::ElideRight, rect.width());
  painter.drawText(rect, static_cast<int>(side | Qt::AlignVCenter) | Qt::TextSingleLine,
                   AsWritten(line, option.direction));
}

}  // namespace

QRect TStoreDelegate::NameRect(const QStyleOptionViewItem& option) {
  QRect rect = TextRect(option);
  rect.setHeight(option.fontMetrics.height());
  return rect;
}

void TStoreDelegate::paint(QPainter* painter, const QStyleOptionViewItem& given, const QModelIndex& index) const {
  QStyleOptionViewItem option = given;
  initStyleOption(&option, index);
  option.text.clear();
  const QWidget* widget = option.widget;
  const QStyle& style = widget != nullptr ? *widget->style() : *QApplication::style();
  style.drawControl(QStyle::CE_ItemViewItem, &option, painter, widget);

  const TRowColors colors = ColorsOf(option);
  const bool isCurrent = index.data(TStoreModel::RoleIsCurrent).toBool();
  const int space = SpaceOf(option);
  QRect name = NameRect(option);
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  if (isCurrent) {
    const QRect bar(option.rect.left() + space / 2, option.rect.top() + space, std::max(2, space * 2 / 3),
                    option.rect.height() - 2 * space);
    painter->fillRect(QStyle::visualRect(option.direction, option.rect, bar), colors.Bar);
  }
  if (index.data(TStoreModel::RoleIsModified).toBool()) {
    const int side = option.fontMetrics.xHeight();
    const QRect dot(name.right() - side, name.center().y() - side / 2, side, side);
    painter->setPen(Qt::NoPen);
    painter->setBrush(colors.Bar);
    painter->drawEllipse(QStyle::visualRect(option.direction, TextRect(option), dot));
    name = QStyle::visualRect(option.direction, TextRect(option),
                              QRect(name.left(), name.top(), name.width() - side - space, name.height()));
  }
  QFont font = option.font;
  font.setBold(isCurrent);
  painter->setFont(font);
  painter->setPen(colors.Name);
  DrawLine(*painter, option, name, index.data().toString());

  const QString outside = index.data(TStoreModel::RoleOutside).toString();
  font.setBold(false);
  painter->setFont(font);
  painter->setPen(outside.isEmpty() ? colors.Weak : colors.Fault);
  const QRect text = TextRect(option);
  const QRect second(text.left(), text.bottom() + 1 - option.fontMetrics.height(), text.width(),
                     option.fontMetrics.height());
  DrawLine(*painter, option, second, outside.isEmpty() ? index.data(TStoreModel::RoleDescription).toString() : outside);
  painter->restore();
}

QSize TStoreDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const {
  return {12 * option.fontMetrics.averageCharWidth(), 2 * option.fontMetrics.height() + 2 * SpaceOf(option)};
}

}  // namespace tolvi
