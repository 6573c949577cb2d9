#include "external/cells/internal/Pages.h"

#include <cstdlib>

#if defined(__unix__)
#include <sys/mman.h>
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

// From the C library, so that leak checkers look into it.
void* takeLargePage(std::size_t bytes) noexcept {
#if defined(__unix__)
  void* const page = std::aligned_alloc(bytes, bytes);
#else
  void* const page = std::malloc(bytes);
#endif
#if defined(MADV_HUGEPAGE)
  if (page != nullptr) madvise(page, bytes, MADV_HUGEPAGE);
#endif
  return page;
}

void giveBackLargePage(void* page) noexcept { std::free(page); }

}  // namespace om::internal
