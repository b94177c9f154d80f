#pragma once

#include <QLineEdit>
#include <QString>
#include <functional>
#include <vector>

#include <tolvi/model/modelcheck.h>
class QAction;

namespace tolvi {

/// A line of text that is checked as it is typed: what is wrong is told by a mark in the line, its tool tip, and to
/// screen readers. The text is handed over when the user leaves the line or presses Enter; Escape brings back the one
/// that was shown.
class TCheckedLine final : public QLineEdit {
  Q_OBJECT

 public:
  explicit TCheckedLine(QWidget* parent = nullptr);

  /// What is wrong with the text; empty when nothing is.
  std::function<std::vector<TTextFinding>(const QString& text)> OnCheck;
  /// The user has finished a text that differs from the one shown. Not called for texts with errors when
  /// `KeepsWrong` is off: the former text is shown again then.
  std::function<void(const QString& text)> OnCommit;

  /// Shows the text and checks it; not while the user is typing in the line, unless the text was committed.
  void ShowText(const QString& text);
  /// Checks again: what the text depends on has changed.
  void Check();
  /// Hands over what was typed.
  void Commit();
  /// Whether a text with an error may be handed over. Default true.
  void SetKeepsWrong(bool on) { FKeepsWrong = on; }
  const std::vector<TTextFinding>& Findings() const { return FFindings; }

 protected:
  /// Leaves undoing to the window where nothing is being typed.
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void ShowFindings();

  QString FShown;
  std::vector<TTextFinding> FFindings;
  QAction* FMark = nullptr;
  bool FKeepsWrong = true;
};

}  // namespace tolvi
