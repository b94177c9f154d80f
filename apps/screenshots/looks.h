#pragma once

#include <QImage>
#include <string>

class QWidget;

namespace tolvi {

/// How windows look while a session is played.
struct TLook {
  std::string Name;
  int FontSize = 10;
  bool IsDark = false, IsMirrored = false;
};

/// Sets colours, font and direction of the program.
void Apply(const TLook& look);

/// What is seen of the window, with the lists and menus that are open.
QImage PictureOf(QWidget& window);

}  // namespace tolvi
