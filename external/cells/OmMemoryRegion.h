// OmMemoryRegion: the allocator from which cell texts and the containers of a table draw storage.
//
// A region takes chunks from the system, hands out blocks from them by moving a pointer, and keeps
// released blocks in lists by size for the next request. Destroying the region gives back every
// chunk at once, whatever blocks are still in use; no destructor of what lives in them is run, but
// for what was registered as a finalizer.
//
//   chunk   | chunk head | head | block ...      | head | block ... | not handed out yet |
//                          8 B    16-byte steps
//
// Ownership: a region owns its chunks; a block belongs to whoever asked for it until it is given to
//   Release or the region ends. A region never moves, so it can be a member or a base class.
// Lifetime: the default heap lives as long as the process.
// Threads: a region made with `shared` true, as the default heap is, may be used from several
//   threads at once. Any other region, with all blocks that came from it, belongs to one thread at
//   a time.
// Cost: a block has 8 bytes of head and its size is rounded so that both are a multiple of 16.
//   Blocks above 32 KiB are chunks of their own, cost 48 bytes, and go back to the system when they
//   are released. Allocate and Release take constant time, and AllocateZeroed for large blocks too.

#ifndef OM_EXTERNAL_CELLS_OMMEMORYREGION_H_
#define OM_EXTERNAL_CELLS_OMMEMORYREGION_H_

#include <array>
#include <cstddef>
#include <cstdint>
#include <mutex>

#include "external/cells/Export.h"

class OM_CELLS_API OmMemoryRegion {
 public:
  // Called before every allocation of every region, with the size asked for. It may throw, and
  // then nothing has been allocated: this is how a test makes any one allocation fail.
  using AllocationProbe = void (*)(std::size_t size);

  // Something to be done when a region ends: for an object that lives in it and whose destructor
  // may not be run, though it holds memory from elsewhere.
  class Finalizer {
   public:
    Finalizer(const Finalizer&) = delete;
    Finalizer& operator=(const Finalizer&) = delete;

    // The region that it is registered with, or null.
    const OmMemoryRegion* Region() const { return region_; }

   protected:
    Finalizer() = default;
    // Withdraws the finalizer, if it is registered.
    virtual ~Finalizer();

   private:
    friend class OmMemoryRegion;

    // Called once, when the region ends; the finalizer is not registered any more and may delete
    // itself. The blocks of the region are still there.
    virtual void regionEnds() noexcept = 0;

    OmMemoryRegion* region_ = nullptr;
    Finalizer* next_ = nullptr;
    Finalizer* previous_ = nullptr;
  };

  // An empty region; it takes its first chunk with the first request.
  explicit OmMemoryRegion(bool shared);
  virtual ~OmMemoryRegion();

  OmMemoryRegion(const OmMemoryRegion&) = delete;
  OmMemoryRegion& operator=(const OmMemoryRegion&) = delete;

  // A block of at least `size` bytes (0 gives a block of its own as well), aligned for every
  // fundamental type, with undefined content. Throws std::bad_alloc; the region is then unchanged.
  void* Allocate(std::size_t size);

  // The same, filled with zeros. A large block consists of pages that the system fills at the first
  // touch, so that the part of it that is never touched costs nothing.
  void* AllocateZeroed(std::size_t size);

  // Gives a block back to the region it came from; null is harmless.
  // REQUIRES: `block` came from Allocate, was not released since, and its region still lives.
  static void Release(void* block) noexcept;

  // The region that serves whoever names none.
  static OmMemoryRegion* DefaultHeap() noexcept;
  static OmMemoryRegion* OrDefaultHeap(OmMemoryRegion* region) noexcept {
    return region != nullptr ? region : DefaultHeap();
  }

  // Registers a finalizer, which stays the caller's.
  // REQUIRES: it is not registered with any region.
  void AtEnd(Finalizer& finalizer) noexcept;

  // With `reuse` false, as before a bulk destruction, a released block is counted off and then left
  // alone until the region ends. True, the state after construction, makes it available again.
  void WorkingRelease(bool reuse) noexcept;

  // Storage and number of the blocks that were allocated and not released; heads and rounding are
  // counted in.
  std::size_t BytesInUse() const;
  std::size_t BlocksInUse() const;

  // Chunks of regions that ended are kept for later regions, 256 MiB of them at most unless a limit
  // is set here; 0 keeps none. Gives the former limit in bytes. From any thread.
  static std::size_t SetReserveLimit(std::size_t bytes) noexcept;

  // Installs a probe, or none with null, and gives the former one back.
  static AllocationProbe SetAllocationProbe(AllocationProbe probe) noexcept;

 private:
  struct Chunk;
  struct Head;
  struct FreeBlock;

  // The rest of a chunk, which is being handed out.
  struct Rest {
    char* next = nullptr;
    char* end = nullptr;
    Chunk* chunk = nullptr;
  };

  static constexpr std::uint32_t kShortUnits = 16;
  static constexpr std::uint32_t kSmallUnits = 64;  // blocks to 1 KiB: one list a size
  static constexpr std::size_t kRangeLists = 21;    // to 32 KiB: four lists a doubling

  void withdraw(Finalizer& finalizer) noexcept;
  void* allocate(std::size_t size, bool zeroed);
  void* take(std::size_t size, bool zeroed);
  void giveBack(Head* head) noexcept;

  Head* carve(std::uint32_t units);
  void refill(Rest& rest, std::uint32_t units);
  Head* popLarge(std::uint32_t units) noexcept;
  Head* popRange(std::size_t list) noexcept;
  void pushFree(Head* head) noexcept;
  Head* takeChunk(std::size_t size, bool zeroed);
  Chunk* newChunk(std::size_t bytes);
  Chunk* enter(void* place, std::size_t bytes, bool pages);
  void dropChunk(Chunk* chunk) noexcept;
  static void freeChunk(Chunk* chunk) noexcept;

  static Head* pop(FreeBlock*& list) noexcept;
  static Head* lay(Chunk* chunk, char* place, std::uint32_t units) noexcept;
  static Chunk* chunkOf(Head* head) noexcept;
  static std::size_t bytesOf(Head* head) noexcept;

  std::array<FreeBlock*, kSmallUnits> small_{};
  std::array<FreeBlock*, kRangeLists> ranges_{};
  std::uint32_t rangesFilled_ = 0;  // bit i: ranges_[i] is not empty
  bool reuse_ = true;
  const bool shared_;
  Rest shortRest_;  // for blocks to 256 bytes, such as texts
  Rest longRest_;   // for longer ones: arrays that are searched stand closer together without texts
  Chunk* chunks_ = nullptr;
  // Those of zero pages. Leak checkers do not look into them, so no other chunk hangs on them.
  Chunk* pageChunks_ = nullptr;
  Finalizer* finalizers_ = nullptr;
  std::size_t nextChunkBytes_;
  std::size_t bytesInUse_ = 0;
  std::size_t blocksInUse_ = 0;
  mutable std::mutex mutex_;  // taken only when shared_
};

#endif  // OM_EXTERNAL_CELLS_OMMEMORYREGION_H_
