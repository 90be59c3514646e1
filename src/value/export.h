#pragma once

// Only what a host may call leaves the shared library; everything else stays
// hidden so that the interface is exactly the exported classes and functions.
#if defined(VHMATHLIB_STATIC)
#define VH_EXPORT
#elif defined(_WIN32)
#if defined(VHMATHLIB_BUILDING)
#define VH_EXPORT __declspec(dllexport)
#else
#define VH_EXPORT __declspec(dllimport)
#endif
#else
#define VH_EXPORT __attribute__((visibility("default")))
#endif
