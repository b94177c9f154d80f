// Words of a sentence that are edited where they stand: a label that looks like a link and opens an editor.
#pragma once

#include <QAccessible>
#include <QColor>
#include <QPointer>
#include <QString>
#include <QWidget>
#include <functional>

#include <tolvi/ui/api.h>
class QKeyEvent;

namespace tolvi {

class TDropDownLabel;

/// The editor has closed; `accepted`: a value was chosen (it may be the old one), not given up.
using TAfterDropUpEvent = std::function<void(TDropDownLabel& sender, bool accepted)>;

/// Shows a caption as a link, or a placeholder where there is none. A click, Space, Enter, F2 or Alt+Down opens the
/// editor; Enter accepts what it holds, Escape gives it up, losing the focus accepts, Tab accepts and moves on.
/// Handlers may destroy the label; other widgets only later (`deleteLater`), for the focus may be on its way to them. A
/// label that is hidden or destroyed closes its editor without a word.
///
/// The caption is what is shown, the value what it stands for; either may be set without the other, no event fires
/// then. The size is that of the caption (`sizeHint`), in the widget's font; whoever places the label gives it that.
class TOLVI_WIDGETS_API TDropDownLabel : public QWidget {
  Q_OBJECT
  Q_PROPERTY(QString caption READ GetCaption WRITE SetCaption)
  Q_PROPERTY(QString value READ GetValue WRITE SetValue)
  Q_PROPERTY(QString placeholder READ GetPlaceholder WRITE SetPlaceholder)
  Q_PROPERTY(QColor linkColor READ GetLinkColor WRITE SetLinkColor RESET ResetLinkColor)
  Q_PROPERTY(bool underlined READ GetUnderlined WRITE SetUnderlined)
  Q_PROPERTY(bool readOnly READ GetReadOnly WRITE SetReadOnly)
  Q_PROPERTY(QString fault READ GetFault WRITE SetFault DESIGNABLE false STORED false)

 public:
  explicit TDropDownLabel(QWidget* parent = nullptr);
  ~TDropDownLabel() override;

  TAfterDropUpEvent OnAfterDropUp;
  /// Fired before the editor opens: for hosts that fill it then.
  std::function<void(TDropDownLabel& sender)> OnBeforeDropDown;

  const QString& GetCaption() const { return FCaption; }
  virtual void SetCaption(const QString& caption);
  const QString& GetValue() const { return FValue; }
  virtual void SetValue(const QString& value);
  /// Default "...", so that there is something to click on.
  const QString& GetPlaceholder() const { return FPlaceholder; }
  void SetPlaceholder(const QString& text);
  /// Default: the palette's link colour (an invalid colour). Adjusted where it could not be read on the background.
  const QColor& GetLinkColor() const { return FLinkColor; }
  void SetLinkColor(const QColor& color);
  void ResetLinkColor() { SetLinkColor({}); }
  /// Default true.
  bool GetUnderlined() const { return FUnderlined; }
  void SetUnderlined(bool on);
  /// Shows, but does not open. Default false.
  bool GetReadOnly() const { return FReadOnly; }
  void SetReadOnly(bool on);
  /// What is wrong with the value, for people: shown by a wavy line, the tool tip and to screen readers. Default empty.
  const QString& GetFault() const { return FFault; }
  void SetFault(const QString& fault);

  bool IsDroppedDown() const { return !FEditor.isNull(); }
  /// Opens the editor, unless it is open, or the label is disabled or read-only.
  void DropDown();
  /// Closes it and fires `OnAfterDropUp`. Does nothing when it is closed.
  void DropUp(bool accept);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }
  /// Of the caption's text, for aligning it with other texts: pixels from the top.
  int GetBaseline() const;

 protected:
  /// Makes the editor, filled with the value; the label places it as a window above everything else and destroys it
  /// when it has closed. The focus goes to it, or to its focus proxy.
  virtual QWidget* CreateEditor(QWidget* parent) = 0;
  /// Takes value and caption over from the editor; false when it holds nothing that can be taken: then the label stays
  /// as it was, and nothing counts as accepted.
  virtual bool TakeFromEditor(QWidget& editor) = 0;
  /// Whether the editor covers the label, as a line to type in does, instead of standing below it. Default false.
  virtual bool EditorCoversLabel() const { return false; }
  /// Whether the key accepts. Default: Enter without Shift, Ctrl and the like.
  virtual bool AcceptsByKey(const QKeyEvent& key) const;
  /// Whether Tab goes from part to part of the editor, instead of accepting and moving on. Default false.
  virtual bool TabMovesInEditor() const { return false; }
  QWidget* Editor() const { return FEditor; }
  /// To be called when the size hint of the editor has changed.
  void PlaceEditor();

  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void changeEvent(QEvent* event) override;
  bool event(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool CanDropDown() const;
  void CloseEditor();
  bool KeyInEditor(const QKeyEvent& key);
  void ShowToolTip(const QPoint& globalPos);
  void TellCaption(bool name);
  void TellOpened();
  void TellState(QAccessible::State changed);
  QString ShownText() const;
  QColor TextColor() const;
  QRect TextRect() const;

  QString FCaption, FValue, FPlaceholder, FFault;
  QColor FLinkColor;
  QPointer<QWidget> FEditor;
  bool FUnderlined = true, FReadOnly = false;
};

}  // namespace tolvi
