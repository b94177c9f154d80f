#pragma once

#include <QCheckBox>
#include <functional>

#include <tolvi/ui/api.h>

namespace tolvi {

/// A check box that stands in a line of text: as high as the font, drawn flat in the colours of the palette.
class TOLVI_WIDGETS_API TJFlatCheckBox : public QCheckBox {
  Q_OBJECT

 public:
  explicit TJFlatCheckBox(QWidget* parent = nullptr);
  explicit TJFlatCheckBox(const QString& text, QWidget* parent = nullptr);

  /// After the user has switched it, by mouse or key. The handler may destroy the check box.
  std::function<void(TJFlatCheckBox& sender)> OnClick;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }
  /// Of the text, whether there is one or not: pixels from the top.
  int GetBaseline() const;

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool hitButton(const QPoint& position) const override { return rect().contains(position); }
};

}  // namespace tolvi
