// Marks what the library offers to other libraries and programs; everything else stays inside.

#ifndef OM_BACKEND_EXPORT_H_
#define OM_BACKEND_EXPORT_H_

#if defined(_WIN32)
#if defined(OM_BUILDING)
#define OM_EXPORT __declspec(dllexport)
#elif defined(OM_STATIC)
#define OM_EXPORT
#else
#define OM_EXPORT __declspec(dllimport)
#endif
#else
#define OM_EXPORT __attribute__((visibility("default")))
#endif

#endif  // OM_BACKEND_EXPORT_H_
