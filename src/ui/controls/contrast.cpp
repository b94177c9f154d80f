#include <QPalette>
#include <QWidget>
#include <algorithm>
#include <cmath>

#include <tolvi/ui/controls/contrast.h>

namespace tolvi {

namespace {

double Linear(double channel) {
  return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor& color) {
  return 0.2126 * Linear(color.redF()) + 0.7152 * Linear(color.greenF()) + 0.0722 * Linear(color.blueF());
}

}  // namespace

double ContrastRatio(const QColor& one, const QColor& other) {
  const auto [dark, light] = std::minmax({Luminance(one), Luminance(other)});
  return (light + 0.05) / (dark + 0.05);
}

QColor ReadableColor(const QColor& color, const QColor& background, double ratio) {
  const QColor goal =
      ContrastRatio(Qt::white, background) > ContrastRatio(Qt::black, background) ? Qt::white : Qt::black;
  constexpr int steps = 20;
  for (int step = 0; step < steps; ++step) {
    const QColor candidate = MixedColor(goal, color, static_cast<double>(step) / steps);
    if (ContrastRatio(candidate, background) >= ratio) return candidate;
  }
  return goal;
}

QColor ReadableLinkColor(const QColor& color, const QPalette& palette, const QColor& background) {
  constexpr double readable = 4.5;
  const bool isUsable = color.isValid() && (color != Qt::blue || ContrastRatio(color, background) >= readable);
  return ReadableColor(isUsable ? color : palette.color(QPalette::Link), background, readable);
}

QColor MixedColor(const QColor& color, const QColor& background, double part) {
  const auto mix = [part](float over, float under) {
    return static_cast<float>(std::clamp(part * over + (1 - part) * under, 0.0, 1.0));
  };
  return QColor::fromRgbF(mix(color.redF(), background.redF()), mix(color.greenF(), background.greenF()),
                          mix(color.blueF(), background.blueF()));
}

QColor FaultColor() { return {0xd3, 0x2f, 0x2f}; }

QColor BackgroundOf(const QWidget& widget) { return widget.palette().color(widget.backgroundRole()); }

}  // namespace tolvi
