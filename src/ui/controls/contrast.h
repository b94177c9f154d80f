// Colours that can be read on the background that they meet, whatever the palette is.
#pragma once

#include <QColor>
class QWidget;

namespace tolvi {

/// The contrast of two opaque colours by their relative luminance, from 1 (none) to 21 (black and white).
double ContrastRatio(const QColor& one, const QColor& other);

/// `color`, made lighter on a dark background and darker on a light one until its contrast is at least `ratio`.
QColor ReadableColor(const QColor& color, const QColor& background, double ratio = 4.5);

/// `part` (0 to 1) of `color` laid over `background`; opaque.
QColor MixedColor(const QColor& color, const QColor& background, double part);

/// A red for what is wrong; to be made readable.
QColor FaultColor();

/// What the widget stands on.
QColor BackgroundOf(const QWidget& widget);

}  // namespace tolvi
