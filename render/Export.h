// OM_RENDER_API marks what the shared library om-render exports.

#ifndef OM_RENDER_EXPORT_H_
#define OM_RENDER_EXPORT_H_

#if defined(OM_STATIC)
#define OM_RENDER_API
#elif defined(_WIN32)
#if defined(OM_RENDER_BUILDING)
#define OM_RENDER_API __declspec(dllexport)
#else
#define OM_RENDER_API __declspec(dllimport)
#endif
#else
#define OM_RENDER_API __attribute__((visibility("default")))
#endif

#endif  // OM_RENDER_EXPORT_H_
