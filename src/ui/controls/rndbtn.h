#pragma once

#include <QPushButton>
#include <functional>

#include <tolvi/ui/api.h>

namespace tolvi {

/// A push button with a short text: flat or raised, with round ends or not. Colours come from the palette.
class TOLVI_WIDGETS_API TJRndBtn : public QPushButton {
  Q_OBJECT
  Q_PROPERTY(bool flat READ GetFlat WRITE SetFlat)
  Q_PROPERTY(bool rounded READ GetRounded WRITE SetRounded)
  Q_PROPERTY(bool autoSize READ GetAutoSize WRITE SetAutoSize)

 public:
  explicit TJRndBtn(QWidget* parent = nullptr);
  explicit TJRndBtn(const QString& text, QWidget* parent = nullptr);

  /// By mouse or key (Space, Enter). The handler may destroy the button.
  std::function<void(TJRndBtn& sender)> OnClick;

  /// A flat button has a faint face, and an edge only while it is hovered, pressed or focused. Default false.
  bool GetFlat() const { return isFlat(); }
  void SetFlat(bool on);
  /// Default false.
  bool GetRounded() const { return FRounded; }
  void SetRounded(bool on);
  QString GetText() const { return text(); }
  void SetText(const QString& text);
  /// Keeps the size at `sizeHint`, that is fitting the text, as text and font change. Default false.
  bool GetAutoSize() const { return FAutoSize; }
  void SetAutoSize(bool on);

  /// Fits the text; never narrower than high, so that a single digit in a rounded button stands in a circle.
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }
  /// Of the text, in the height that the button has: pixels from the top.
  int GetBaseline() const;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void changeEvent(QEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  void Refresh();

  bool FRounded = false, FAutoSize = false;
};

}  // namespace tolvi
