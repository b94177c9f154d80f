#pragma once

#include <QStyledItemDelegate>

namespace tolvi {

/// Draws a wavy line below the text of the items that are wrong.
class TFaultDelegate : public QStyledItemDelegate {
  Q_OBJECT

 public:
  /// True for an item that is wrong.
  static constexpr int WrongRole = Qt::UserRole + 1;

  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

}  // namespace tolvi
