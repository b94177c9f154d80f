#pragma once

#include <tolvi/ui/api.h>
#include <tolvi/ui/controls/ddlabel.h>

namespace tolvi {

/// A label that is edited as one line, in place. Value and caption are the text.
class TOLVI_WIDGETS_API TDropDownEdit : public TDropDownLabel {
  Q_OBJECT
  Q_PROPERTY(QString inputMask READ GetInputMask WRITE SetInputMask)
  Q_PROPERTY(bool keepsMask READ GetKeepsMask WRITE SetKeepsMask)
  Q_PROPERTY(int maxLength READ GetMaxLength WRITE SetMaxLength)
  Q_PROPERTY(TTextCase textCase READ GetTextCase WRITE SetTextCase)

 public:
  /// What is made of letters as they are typed.
  enum TTextCase { tcNone, tcUpper, tcLower };
  Q_ENUM(TTextCase)

  using TDropDownLabel::TDropDownLabel;

  /// What is wrong with a text, for people; empty when it is good. Asked at every key: it is shown below the line. A
  /// wrong text can be accepted all the same: it is kept as typed, and what is wrong becomes the fault of the label.
  std::function<QString(const QString& text)> OnCheck;

  /// In the notation of QLineEdit ("99.99.9999"). A mask with nothing typed in it counts as an empty text. Default
  /// empty: any text.
  const QString& GetInputMask() const { return FInputMask; }
  void SetInputMask(const QString& mask) { FInputMask = mask; }
  /// Whether the value holds the mask's own characters, too. Default true.
  bool GetKeepsMask() const { return FKeepsMask; }
  void SetKeepsMask(bool on) { FKeepsMask = on; }
  /// Default `tcNone`: kept as typed.
  TTextCase GetTextCase() const { return FTextCase; }
  void SetTextCase(TTextCase textCase) { FTextCase = textCase; }
  /// In characters; 0, the default: no limit.
  int GetMaxLength() const { return FMaxLength; }
  void SetMaxLength(int length) { FMaxLength = length; }

 protected:
  QWidget* CreateEditor(QWidget* parent) override;
  bool TakeFromEditor(QWidget& editor) override;
  bool EditorCoversLabel() const override { return true; }

 private:
  QString FInputMask;
  TTextCase FTextCase = TTextCase::tcNone;
  int FMaxLength = 0;
  bool FKeepsMask = true;
};

using TTextCase = TDropDownEdit::TTextCase;

/// A label that is edited as several lines, in place. Enter begins a line, Ctrl+Enter accepts. The label shows the text
/// as one line.
class TOLVI_WIDGETS_API TDropDownMemo : public TDropDownLabel {
  Q_OBJECT
 public:
  using TDropDownLabel::TDropDownLabel;

  /// As that of `TDropDownEdit`.
  std::function<QString(const QString& text)> OnCheck;

 protected:
  QWidget* CreateEditor(QWidget* parent) override;
  bool TakeFromEditor(QWidget& editor) override;
  bool EditorCoversLabel() const override { return true; }
  bool AcceptsByKey(const QKeyEvent& key) const override;
};

}  // namespace tolvi
