// Marks what the settings library offers to other libraries and programs.

#ifndef OM_EXTERNAL_SETTINGS_EXPORT_H_
#define OM_EXTERNAL_SETTINGS_EXPORT_H_

#if defined(_WIN32)
#if defined(OM_SETTINGS_BUILDING)
#define OM_SETTINGS_API __declspec(dllexport)
#else
#define OM_SETTINGS_API __declspec(dllimport)
#endif
#else
#define OM_SETTINGS_API __attribute__((visibility("default")))
#endif

#endif  // OM_EXTERNAL_SETTINGS_EXPORT_H_
