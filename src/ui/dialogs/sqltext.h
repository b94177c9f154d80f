#pragma once

#include <QFontDatabase>
#include <QPlainTextEdit>

namespace tolvi {

/// Makes it a text of code: letters of the same width and of the size of all others, from left to right, each line as
/// it stands; Tab leaves it.
inline void MakeCodeText(QPlainTextEdit& edit) {
  QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  if (edit.font().pointSizeF() > 0) font.setPointSizeF(edit.font().pointSizeF());
  edit.setFont(font);
  edit.setLayoutDirection(Qt::LeftToRight);
  edit.setLineWrapMode(QPlainTextEdit::NoWrap);
  edit.setTabChangesFocus(true);
}

}  // namespace tolvi
