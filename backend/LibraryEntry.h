// The loader's entry point. The loader calls it when the library enters a process; from then on the
// library knows its own module handle and where the process-wide common blocks are.

#ifndef OM_BACKEND_LIBRARYENTRY_H_
#define OM_BACKEND_LIBRARYENTRY_H_

#include "backend/Export.h"

// The reason for which a loader calls when the library enters a process.
inline constexpr unsigned kOmProcessAttach = 1;

// For the attach reason, keeps `module` and asks the common-blocks library for its blocks, each one
// once; for every other reason it does nothing. Gives 1, success, in any case. Called by the
// loader; a program has no need to.
OM_EXPORT int omLibraryEntry(void* module, unsigned reason, void* reserved);

// The handle that the loader gave for this library.
OM_EXPORT void* omModuleHandle();

#endif  // OM_BACKEND_LIBRARYENTRY_H_
