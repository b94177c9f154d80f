#pragma once

#include <tolvi/foundation/api.h>

/// Stands before what the library exports; empty in static builds.
#if defined(TOLVI_STATIC)
#define TOLVI_CONNECT_API
#elif defined(tolvi_connect_EXPORTS)
#define TOLVI_CONNECT_API TOLVI_EXPORT
#else
#define TOLVI_CONNECT_API TOLVI_IMPORT
#endif
