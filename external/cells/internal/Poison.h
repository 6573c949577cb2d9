// Tells the address sanitizer which bytes of a region may be touched, so that it finds a use after
// Release or past the end of a block as it does for the system's heap. Nothing in other builds.

#ifndef OM_EXTERNAL_CELLS_INTERNAL_POISON_H_
#define OM_EXTERNAL_CELLS_INTERNAL_POISON_H_

#include <cstddef>

#if defined(__SANITIZE_ADDRESS__)
#define OM_CELLS_POISONS 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define OM_CELLS_POISONS 1
#endif
#endif

#if defined(OM_CELLS_POISONS)
#include <sanitizer/asan_interface.h>
#endif

namespace om::internal {

inline void poison([[maybe_unused]] const void* place, [[maybe_unused]] std::size_t size) noexcept {
#if defined(OM_CELLS_POISONS)
  __asan_poison_memory_region(place, size);
#endif
}

inline void unpoison([[maybe_unused]] const void* place,
                     [[maybe_unused]] std::size_t size) noexcept {
#if defined(OM_CELLS_POISONS)
  __asan_unpoison_memory_region(place, size);
#endif
}

}  // namespace om::internal

#endif  // OM_EXTERNAL_CELLS_INTERNAL_POISON_H_
