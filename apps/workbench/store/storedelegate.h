#pragma once

#include <QStyledItemDelegate>

namespace tolvi {

/// Draws a query as two lines: its name, bold with a bar before it for the current one and a dot behind it where there
/// are unsaved changes; and its description, or what others have done to it. All rows have the same height.
class TStoreDelegate final : public QStyledItemDelegate {
  Q_OBJECT

 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

  /// Where the name stands within a row.
  static QRect NameRect(const QStyleOptionViewItem& option);
};

}  // namespace tolvi
