#pragma once

#include <QLabel>
#include <QVBoxLayout>

#include <tolvi/ui/controls/drawing.h>

namespace tolvi {

/// Something to type in, and below it what is wrong with what was typed.
class TCheckedEditor : public TEditorFrame {
  Q_OBJECT

 public:
  /// Takes the widget typed in over.
  TCheckedEditor(QWidget& typedIn, QWidget* parent);

  /// Shown, and told to screen readers; nothing for an empty one.
  void ShowFault(const QString& fault);

  QSize sizeHint() const override;
  /// Without a fault.
  QSize minimumSizeHint() const override;

 protected:
  QVBoxLayout& Rows() { return *FRows; }
  void changeEvent(QEvent* event) override;

 private:
  QWidget& FTypedIn;
  QVBoxLayout* FRows;
  QLabel* FFault;
};

}  // namespace tolvi
