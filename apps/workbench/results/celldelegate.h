#pragma once

#include <QStyledItemDelegate>

namespace tolvi {

class TResultModel;

/// Paints the cells of a `TResultModel`: NULL weaker and slanted, all of them weaker while they are out of date. A text
/// that is cut is told whole by a tool tip.
class TCellDelegate final : public QStyledItemDelegate {
  Q_OBJECT

 public:
  TCellDelegate(const TResultModel& model, QObject* parent) : QStyledItemDelegate(parent), FModel(model) {}

  bool GetDimmed() const { return FIsDimmed; }
  void SetDimmed(bool isDimmed) { FIsDimmed = isDimmed; }

  bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                 const QModelIndex& index) override;

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

 private:
  const TResultModel& FModel;
  bool FIsDimmed = false;
};

}  // namespace tolvi
