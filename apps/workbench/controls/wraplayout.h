#pragma once

#include <QLayout>
#include <memory>
#include <vector>

namespace tolvi {

/// Widgets side by side, in more lines where there is not the room for one: a bar that a narrow window can have.
/// Widgets that may grow share what is left of their line. From right to left where the window is so.
class TWrapLayout final : public QLayout {
 public:
  explicit TWrapLayout(QWidget* parent);
  ~TWrapLayout() override;

  void addItem(QLayoutItem* item) override;
  int count() const override { return static_cast<int>(FItems.size()); }
  QLayoutItem* itemAt(int index) const override;
  QLayoutItem* takeAt(int index) override;

  Qt::Orientations expandingDirections() const override { return {}; }
  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int width) const override;
  QSize sizeHint() const override;
  /// That of the widest widget.
  QSize minimumSize() const override;
  void setGeometry(const QRect& rect) override;

 private:
  /// Some of the items, one behind the other.
  struct TLine {
    std::vector<QLayoutItem*> Items;
    int Width = 0, Height = 0;
  };

  std::vector<TLine> LinesFor(int width) const;
  void Place(const TLine& line, const QRect& rect) const;

  std::vector<std::unique_ptr<QLayoutItem>> FItems;
};

}  // namespace tolvi
