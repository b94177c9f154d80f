#include "apps/palette/darkpalette.h"

namespace tolvi {

QPalette DarkPalette() {
  QPalette palette;
  const std::pair<QPalette::ColorRole, QColor> colors[] = {{QPalette::Window, {45, 47, 51}},
                                                           {QPalette::WindowText, {230, 230, 230}},
                                                           {QPalette::Base, {30, 31, 34}},
                                                           {QPalette::AlternateBase, {45, 47, 51}},
                                                           {QPalette::Text, {230, 230, 230}},
                                                           {QPalette::PlaceholderText, {150, 150, 150}},
                                                           {QPalette::Button, {60, 63, 68}},
                                                           {QPalette::ButtonText, {230, 230, 230}},
                                                           {QPalette::Highlight, {52, 110, 190}},
                                                           {QPalette::HighlightedText, Qt::white},
                                                           {QPalette::Link, {110, 170, 255}},
                                                           {QPalette::ToolTipBase, {60, 63, 68}},
                                                           {QPalette::ToolTipText, {230, 230, 230}},
                                                           {QPalette::Light, {80, 83, 88}},
                                                           {QPalette::Mid, {50, 52, 56}},
                                                           {QPalette::Dark, {25, 26, 28}}};
  for (const auto& [role, color] : colors) palette.setColor(role, color);
  for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, QColor(130, 130, 130));
  }
  return palette;
}

}  // namespace tolvi
