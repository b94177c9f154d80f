#pragma once

/// What the shared libraries export: the classes and functions of the public headers that carry a macro of this kind,
/// TOLVI_CORE_API here. In static libraries (TOLVI_STATIC, which the CMake targets set) it is empty.
#if defined(_WIN32)
#define TOLVI_EXPORT __declspec(dllexport)
#define TOLVI_IMPORT __declspec(dllimport)
#else
#define TOLVI_EXPORT __attribute__((visibility("default")))
#define TOLVI_IMPORT TOLVI_EXPORT
#endif

#if defined(TOLVI_STATIC)
#define TOLVI_CORE_API
#elif defined(tolvi_core_EXPORTS)
#define TOLVI_CORE_API TOLVI_EXPORT
#else
#define TOLVI_CORE_API TOLVI_IMPORT
#endif
