#include "backend/LibraryEntry.h"

#include "backend/internal/CommonBlockCache.h"
#include "external/blocks/CommonBlocks.h"

// Everything here is initialised before any code runs: the loader may call before the static
// objects of the library are constructed.
constinit std::array<void*, 22> om::internal::commonBlocks{};

namespace {

constinit void* moduleHandle = nullptr;

}  // namespace

int omLibraryEntry(void* module, unsigned reason, void*) {
  if (reason == kOmProcessAttach) {
    moduleHandle = module;
    om::internal::commonBlocks = {
        commonBlock01(), commonBlock02(), commonBlock03(), commonBlock04(), commonBlock05(),
        commonBlock06(), commonBlock07(), commonBlock08(), commonBlock09(), commonBlock10(),
        commonBlock11(), commonBlock12(), commonBlock13(), commonBlock14(), commonBlock15(),
        commonBlock16(), commonBlock17(), commonBlock18(), commonBlock19(), commonBlock20(),
        commonBlock21(), commonBlock22()};
  }
  return 1;
}

void* omModuleHandle() { return moduleHandle; }

#if defined(_WIN32)

extern "C" int __stdcall DllMain(void* module, unsigned long reason, void* reserved) {
  return omLibraryEntry(module, static_cast<unsigned>(reason), reserved);
}

#else

// Each module has one of its own; its address serves as the module's handle.
extern "C" void* __dso_handle;  // NOLINT(bugprone-reserved-identifier): the loader's own name

namespace {

__attribute__((constructor)) void enterProcess() {
  omLibraryEntry(&__dso_handle, kOmProcessAttach, nullptr);
}

}  // namespace

#endif
