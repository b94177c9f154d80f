#pragma once

#include <QPalette>

namespace tolvi {

/// Light letters on dark grounds, for styles that take every palette.
QPalette DarkPalette();

}  // namespace tolvi
