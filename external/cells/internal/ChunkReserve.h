// The large chunks of regions. Those that a region gave up are kept for later regions: fresh memory
// costs a page fault for every page at the first touch, and giving it back costs again; a chunk
// from the reserve costs neither. A chunk is one large page of the processor where the system can
// be asked for that, so that finding a cell in a big table does not wait for address translations
// too.
//
// Threads: any number at once. Only chunks of the one largest size pass through here, so the lock
// is taken once for many blocks.

#ifndef OM_EXTERNAL_CELLS_INTERNAL_CHUNKRESERVE_H_
#define OM_EXTERNAL_CELLS_INTERNAL_CHUNKRESERVE_H_

#include <cstddef>
#include <mutex>

namespace om::internal {

class ChunkReserve {
 public:
  static constexpr std::size_t kChunkBytes = std::size_t{2} * 1024 * 1024;
  static constexpr std::size_t kUsualLimit = 128 * kChunkBytes;

  // A chunk of kChunkBytes that is the caller's to give back, or null when the system has no
  // memory.
  void* take() noexcept;

  // Takes a chunk back; beyond the limit it goes to the system.
  void giveBack(void* chunk) noexcept;

  // Sets how many bytes to keep at most, gives what is beyond back to the system, and answers the
  // former limit.
  std::size_t setLimit(std::size_t bytes) noexcept;

 private:
  void* takeKept() noexcept;

  struct Kept {
    Kept* next;
  };

  std::mutex mutex_;
  Kept* kept_ = nullptr;
  std::size_t bytes_ = 0;
  std::size_t limit_ = kUsualLimit;
};

// The one of the process. It is never destroyed, and needs not be: regions may end at any time.
extern ChunkReserve chunkReserve;

}  // namespace om::internal

#endif  // OM_EXTERNAL_CELLS_INTERNAL_CHUNKRESERVE_H_
