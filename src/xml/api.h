#pragma once

#include <tolvi/foundation/api.h>

/// Stands before what the library exports; empty in static builds.
#if defined(TOLVI_STATIC)
#define TOLVI_XML_API
#elif defined(tolvi_xml_EXPORTS)
#define TOLVI_XML_API TOLVI_EXPORT
#else
#define TOLVI_XML_API TOLVI_IMPORT
#endif
