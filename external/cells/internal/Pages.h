// What the system can be asked about pages of memory. The only part of this library that is made
// for one system or another; where a system cannot be asked, the C library serves.

#ifndef OM_EXTERNAL_CELLS_INTERNAL_PAGES_H_
#define OM_EXTERNAL_CELLS_INTERNAL_PAGES_H_

#include <cstddef>

namespace om::internal {

// At least `bytes` bytes that read as zero, aligned to a page, or null. They come from the system
// itself and take no room until they are touched: the C library may hand out memory that was in use
// before, which it then has to fill.
void* takeZeroPages(std::size_t bytes) noexcept;

// REQUIRES: `pages` came from takeZeroPages with the same number of bytes.
void giveBackPages(void* pages, std::size_t bytes) noexcept;

// `bytes` bytes, the size of a large page of the processor, on such a page if there is one to be
// had; or null.
void* takeLargePage(std::size_t bytes) noexcept;

// REQUIRES: `page` came from takeLargePage with the same number of bytes.
void giveBackLargePage(void* page, std::size_t bytes) noexcept;

}  // namespace om::internal

#endif  // OM_EXTERNAL_CELLS_INTERNAL_PAGES_H_
