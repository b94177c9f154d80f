#include "apps/workbench/controls/wraplayout.h"

#include <QStyle>
#include <QWidget>
#include <algorithm>

namespace tolvi {

TWrapLayout::TWrapLayout(QWidget* parent) : QLayout(parent) {}

TWrapLayout::~TWrapLayout() = default;

void TWrapLayout::addItem(QLayoutItem* item) {
  FItems.emplace_back(item);
  invalidate();
}

QLayoutItem* TWrapLayout::itemAt(int index) const {
  return index >= 0 && index < count() ? FItems[static_cast<std::size_t>(index)].get() : nullptr;
}

QLayoutItem* TWrapLayout::takeAt(int index) {
  if (index < 0 || index >= count()) return nullptr;
  QLayoutItem* item = FItems[static_cast<std::size_t>(index)].release();
  FItems.erase(FItems.begin() + index);
  invalidate();
  return item;
}

std::vector<TWrapLayout::TLine> TWrapLayout::LinesFor(int width) const {
  std::vector<TLine> lines;
  for (const auto& item : FItems) {
    if (item->isEmpty()) continue;
    const QSize size = item->sizeHint();
    if (lines.empty() || lines.back().Width + spacing() + size.width() > width) lines.emplace_back();
    TLine& line = lines.back();
    line.Width += size.width() + (line.Items.empty() ? 0 : spacing());
    line.Height = std::max(line.Height, size.height());
    line.Items.push_back(item.get());
  }
  return lines;
}

int TWrapLayout::heightForWidth(int width) const {
  const QMargins margins = contentsMargins();
  int height = margins.top() + margins.bottom() - spacing();
  for (const TLine& line : LinesFor(width - margins.left() - margins.right())) height += line.Height + spacing();
  return std::max(0, height);
}

QSize TWrapLayout::sizeHint() const {
  QSize size;
  for (const TLine& line : LinesFor(QWIDGETSIZE_MAX)) size = {line.Width, line.Height};
  return size.grownBy(contentsMargins());
}

QSize TWrapLayout::minimumSize() const {
  QSize size(0, 0);
  for (const auto& item : FItems) {
    if (!item->isEmpty()) size = size.expandedTo(item->minimumSize());
  }
  return size.grownBy(contentsMargins());
}

void TWrapLayout::setGeometry(const QRect& rect) {
  QLayout::setGeometry(rect);
  QRect room = rect.marginsRemoved(contentsMargins());
  for (const TLine& line : LinesFor(room.width())) {
    Place(line, room);
    room.setTop(room.top() + line.Height + spacing());
  }
}

void TWrapLayout::Place(const TLine& line, const QRect& rect) const {
  const auto grows = [](const QLayoutItem* item) { return (item->expandingDirections() & Qt::Horizontal) != 0; };
  auto growing = static_cast<int>(std::count_if(line.Items.begin(), line.Items.end(), grows));
  int left = rect.left(), rest = std::max(0, rect.width() - line.Width);
  const Qt::LayoutDirection direction = parentWidget()->layoutDirection();
  for (QLayoutItem* item : line.Items) {
    QSize size = item->sizeHint();
    if (grows(item)) {
      const int more = rest / growing--;
      rest -= more;
      size.rwidth() += more;
    }
    // One alone in its line may be wider than that.
    size.setWidth(std::min(size.width(), rect.width()));
    const QRect place(left, rect.top() + (line.Height - size.height()) / 2, size.width(), size.height());
    item->setGeometry(QStyle::visualRect(direction, rect, place));
    left += size.width() + spacing();
  }
}

}  // namespace tolvi
