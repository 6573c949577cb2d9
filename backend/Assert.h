// Reports of broken internal invariants. They are active in every build; after the report execution
// goes on, at the place that reported, in the way that the place documents.
//
// Threads: both functions may be called from any thread.

#ifndef OM_BACKEND_ASSERT_H_
#define OM_BACKEND_ASSERT_H_

#include "backend/Export.h"

// Receives the condition that did not hold, the name of the source and the line. Both names are
// fixed parts of the report, not the file and line of the code that happens to make it.
using OmAssertHandler = void (*)(const wchar_t* message, const wchar_t* source, unsigned line);

// Calls the installed handler.
OM_EXPORT void omAssertFailed(const wchar_t* message, const wchar_t* source, unsigned line);

// Installs a handler and gives the former one back; null brings back the default, which writes
// "Assertion failed: MESSAGE, file SOURCE, line LINE" to standard error.
OM_EXPORT OmAssertHandler omSetAssertHandler(OmAssertHandler handler);

#endif  // OM_BACKEND_ASSERT_H_
