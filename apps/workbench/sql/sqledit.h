#pragma once

#include <QString>

#include "apps/workbench/controls/keyline.h"
#include "apps/workbench/sql/scintilla.h"

namespace tolvi {

/// A text of SQL as the workbench shows it: letters of the same width and of the size of all others, words in colours
/// that can be read on the background of the palette, numbered lines, Tab leaves it.
class TSqlEdit final : public QsciScintilla {
  Q_OBJECT

 public:
  explicit TSqlEdit(QWidget* parent = nullptr);

  /// Replaces the text where it differs; the view stays where it is. Line breaks become LF.
  void ShowSql(const QString& sql);
  /// Letters in the colour of what is out of use.
  bool GetGreyed() const { return FGreyed; }
  void SetGreyed(bool greyed);
  /// Takes colours, and the size of letters from the parent: to be called when its font changes.
  void Dress();

  /// What can be done in a text that is only read.
  TKeyLines Keys() const;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  bool event(QEvent* event) override;
  void changeEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool focusNextPrevChild(bool next) override;

 private:
  void DressLexer(const QFont& font);
  void FitNumbers();

  bool FGreyed = false;
};

}  // namespace tolvi
