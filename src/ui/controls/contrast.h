// Colours that can be read on the background that they meet, whatever the palette is.
#pragma once

#include <QColor>
#include <QPalette>

#include <tolvi/ui/api.h>
class QWidget;

namespace tolvi {

/// The contrast of two opaque colours by their relative luminance, from 1 (none) to 21 (black and white).
TOLVI_WIDGETS_API double ContrastRatio(const QColor& one, const QColor& other);

/// `color`, made lighter on a dark background and darker on a light one until its contrast is at least `ratio`.
TOLVI_WIDGETS_API QColor ReadableColor(const QColor& color, const QColor& background, double ratio = 4.5);

/// What a link of that colour is painted in on `background`, readable; an invalid one stands for the palette's link
/// colour. So does plain blue where it cannot be read: made lighter, it would be violet.
TOLVI_WIDGETS_API QColor ReadableLinkColor(const QColor& color, const QPalette& palette, const QColor& background);

/// `part` (0 to 1) of `color` laid over `background`; opaque.
TOLVI_WIDGETS_API QColor MixedColor(const QColor& color, const QColor& background, double part);

/// A red for what is wrong; to be made readable.
TOLVI_WIDGETS_API QColor FaultColor();

/// What the widget stands on.
TOLVI_WIDGETS_API QColor BackgroundOf(const QWidget& widget);

}  // namespace tolvi
