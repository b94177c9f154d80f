#pragma once

#include <tolvi/foundation/api.h>

/// Stands before what the library exports; empty in static builds.
#if defined(TOLVI_STATIC)
#define TOLVI_WIDGETS_API
#elif defined(tolvi_widgets_EXPORTS)
#define TOLVI_WIDGETS_API TOLVI_EXPORT
#else
#define TOLVI_WIDGETS_API TOLVI_IMPORT
#endif
