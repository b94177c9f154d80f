#include "apps/workbench/window/themes.h"

#include <QApplication>
#include <QFont>
#include <QPalette>
#include <QStyle>
#include <QStyleFactory>
#include <memory>

#include "apps/palette/darkpalette.h"

namespace tolvi {

void UseTheme(TTheme theme, int fontSize) {
  static const QPalette systemPalette = QApplication::palette();
  static const QFont systemFont = QApplication::font();
  static const QString systemStyle = QApplication::style()->objectName();
  // Of the toolkit's styles, this one takes every palette.
  const QString plain = QStringLiteral("fusion");
  const QString style = theme == thSystem ? systemStyle : plain;
  if (QApplication::style()->objectName() != style) QApplication::setStyle(style);
  QPalette palette = systemPalette;
  if (theme == thDark) palette = DarkPalette();
  if (theme == thLight) palette = std::unique_ptr<QStyle>(QStyleFactory::create(plain))->standardPalette();
  QApplication::setPalette(palette);
  QFont font = systemFont;
  if (fontSize > 0) font.setPointSize(fontSize);
  QApplication::setFont(font);
}

}  // namespace tolvi
