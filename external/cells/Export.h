// Marks what the cell library offers to other libraries and programs.

#ifndef OM_EXTERNAL_CELLS_EXPORT_H_
#define OM_EXTERNAL_CELLS_EXPORT_H_

#if defined(_WIN32)
#if defined(OM_CELLS_BUILDING)
#define OM_CELLS_API __declspec(dllexport)
#else
#define OM_CELLS_API __declspec(dllimport)
#endif
#else
#define OM_CELLS_API __attribute__((visibility("default")))
#endif

#endif  // OM_EXTERNAL_CELLS_EXPORT_H_
