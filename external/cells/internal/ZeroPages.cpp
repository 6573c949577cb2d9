#include "external/cells/internal/ZeroPages.h"

#if defined(__unix__)
#include <sys/mman.h>
#else
#include <cstdlib>
#endif

namespace om::internal {

#if defined(__unix__)

void* takeZeroPages(std::size_t bytes) noexcept {
  void* const pages =
      mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  return pages != MAP_FAILED ? pages : nullptr;
}

void giveBackPages(void* pages, std::size_t bytes) noexcept { munmap(pages, bytes); }

#else

void* takeZeroPages(std::size_t bytes) noexcept { return std::calloc(1, bytes); }

void giveBackPages(void* pages, std::size_t) noexcept { std::free(pages); }

#endif

}  // namespace om::internal
