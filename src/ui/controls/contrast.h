// Colours that can be read on the background that they meet, whatever the palette is.
#pragma once

#include <QColor>

#include <tolvi/ui/api.h>
class QWidget;

namespace tolvi {

/// The contrast of two opaque colours by their relative luminance, from 1 (none) to 21 (black and white).
TOLVI_WIDGETS_API double ContrastRatio(const QColor& one, const QColor& other);

/// `color`, made lighter on a dark background and darker on a light one until its contrast is at least `ratio`.
TOLVI_WIDGETS_API QColor ReadableColor(const QColor& color, const QColor& background, double ratio = 4.5);

/// `part` (0 to 1) of `color` laid over `background`; opaque.
TOLVI_WIDGETS_API QColor MixedColor(const QColor& color, const QColor& background, double part);

/// A red for what is wrong; to be made readable.
TOLVI_WIDGETS_API QColor FaultColor();

/// What the widget stands on.
TOLVI_WIDGETS_API QColor BackgroundOf(const QWidget& widget);

}  // namespace tolvi
