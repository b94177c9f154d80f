#pragma once

#include "apps/workbench/workspace/settings.h"

namespace tolvi {

/// Dresses all windows: light or dark, and letters of that size in points (0: the system's).
void UseTheme(TTheme theme, int fontSize);

}  // namespace tolvi
