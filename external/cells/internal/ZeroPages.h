// Memory that reads as zero and takes no room until it is touched.

#ifndef OM_EXTERNAL_CELLS_INTERNAL_ZEROPAGES_H_
#define OM_EXTERNAL_CELLS_INTERNAL_ZEROPAGES_H_

#include <cstddef>

namespace om::internal {

// At least `bytes` bytes, aligned to a page, or null. From the system itself where it can be asked:
// the C library may hand out memory that was in use before, which it then has to fill.
void* takeZeroPages(std::size_t bytes) noexcept;

// REQUIRES: `pages` came from takeZeroPages with the same number of bytes.
void giveBackPages(void* pages, std::size_t bytes) noexcept;

}  // namespace om::internal

#endif  // OM_EXTERNAL_CELLS_INTERNAL_ZEROPAGES_H_
