#pragma once

#include <QAbstractButton>
#include <QColor>

#include <tolvi/ui/api.h>

namespace tolvi {

/// A text that does something when it is clicked: looks like a link, works as a button (Space, Enter).
class TOLVI_WIDGETS_API TLinkLabel final : public QAbstractButton {
  Q_OBJECT
  Q_PROPERTY(QColor linkColor READ GetLinkColor WRITE SetLinkColor RESET ResetLinkColor)

 public:
  explicit TLinkLabel(QWidget* parent = nullptr);

  /// Default: the palette's link colour (an invalid colour). Adjusted where it could not be read on the background.
  const QColor& GetLinkColor() const { return FLinkColor; }
  void SetLinkColor(const QColor& color);
  void ResetLinkColor() { SetLinkColor({}); }

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QColor FLinkColor;
};

}  // namespace tolvi
