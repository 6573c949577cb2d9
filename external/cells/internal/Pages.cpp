#include "external/cells/internal/Pages.h"

#include <cstdint>
#include <cstdlib>

#include "external/cells/internal/Poison.h"

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

#if defined(MADV_HUGEPAGE) && !defined(OM_CELLS_POISONS)

// Fresh memory, since pages that were touched before stay as they are. Where it is not aligned, the
// ends of twice as much are given back.
void* takeLargePage(std::size_t bytes) noexcept {
  auto* const taken = static_cast<char*>(takeZeroPages(2 * bytes));
  if (taken == nullptr) return nullptr;
  const std::size_t before = (0 - reinterpret_cast<std::uintptr_t>(taken)) % bytes;
  char* const page = taken + before;
  if (before != 0) giveBackPages(taken, before);
  if (before != bytes) giveBackPages(page + bytes, bytes - before);
  madvise(page, bytes, MADV_HUGEPAGE);
  return page;
}

void giveBackLargePage(void* page, std::size_t bytes) noexcept { giveBackPages(page, bytes); }

#else

// Also with the address sanitizer, whose leak checker looks only into memory of the C library.
void* takeLargePage(std::size_t bytes) noexcept { return std::malloc(bytes); }

void giveBackLargePage(void* page, std::size_t) noexcept { std::free(page); }

#endif

}  // namespace om::internal
