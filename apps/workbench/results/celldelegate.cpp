#include "apps/workbench/results/celldelegate.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QToolTip>

#include "apps/workbench/results/resultmodel.h"
#include <tolvi/ui/controls/contrast.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

constexpr double dimmedPart = 0.55;

void Weaken(QPalette& palette, double ratio) {
  const QColor base = palette.color(QPalette::Base);
  const QColor weak = ReadableColor(MixedColor(palette.color(QPalette::Text), base, dimmedPart), base, ratio);
  palette.setColor(QPalette::Text, weak);
}

/// Keeps the signs of a value together where lines run from right to left.
QString Isolated(const QString& text, bool isPlain) {
  constexpr QChar leftToRight(0x2066), firstStrong(0x2068), end(0x2069);
  return (isPlain ? firstStrong : leftToRight) + text + end;
}

}  // namespace

void TCellDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
  const TCellView cell = FModel.CellAt(index.row(), index.column());
  option->index = index;
  option->features |= QStyleOptionViewItem::HasDisplay;
  option->text = FModel.LineAt(index.row(), index.column());
  if (option->direction == Qt::RightToLeft) option->text = Isolated(option->text, cell.Kind == svText);
  option->displayAlignment = (IsRightAligned(cell.Kind) ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter;
  constexpr double readable = 4.5, weak = 2.5;
  if (cell.Kind == svNull) {
    option->font.setItalic(true);
    Weaken(option->palette, readable);
  }
  if (FIsDimmed) Weaken(option->palette, weak);
}

bool TCellDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                              const QModelIndex& index) {
  if (event->type() != QEvent::ToolTip || !index.isValid()) {
    return QStyledItemDelegate::helpEvent(event, view, option, index);
  }
  const TCellView cell = FModel.CellAt(index.row(), index.column());
  const bool isCut = cell.Kind != svNull && sizeHint(option, index).width() > option.rect.width();
  if (!isCut && FModel.Texts().Line(cell) == FModel.Texts().Whole(cell)) {
    QToolTip::hideText();
    return true;
  }
  constexpr qsizetype most = 1000;
  const QString whole = cell.Kind == svBytes || cell.Kind == svNull ? QString() : FModel.Texts().Whole(cell);
  const QString shown = whole.size() > most ? whole.left(most) + QChar(0x2026) : whole;
  QToolTip::showText(event->globalPos(), PlainToolTip(shown), view->viewport(), option.rect);
  return true;
}

}  // namespace tolvi
