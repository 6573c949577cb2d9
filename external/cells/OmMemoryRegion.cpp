#include "external/cells/OmMemoryRegion.h"

#include <algorithm>
#include <atomic>
#include <bit>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <new>
#include <utility>

#include "external/cells/internal/ChunkReserve.h"
#include "external/cells/internal/Pages.h"
#include "external/cells/internal/Poison.h"

using om::internal::chunkReserve;
using om::internal::poison;
using om::internal::unpoison;

// Stands at the start of what the system gave. Its size leaves the first block aligned.
struct OmMemoryRegion::Chunk {
  Chunk* next;
  Chunk* previous;
  OmMemoryRegion* region;
  std::size_t bytes;
  std::size_t pages;  // 1: it came from takeZeroPages, 0: from malloc or the reserve
};

// Stands before every block. A block that is a chunk of its own has 0 units.
struct OmMemoryRegion::Head {
  std::uint32_t unitsFromChunk;
  std::uint32_t units;

  static Head* of(void* block) noexcept { return static_cast<Head*>(block) - 1; }
  void* block() noexcept { return this + 1; }
};

// What a released block holds.
struct OmMemoryRegion::FreeBlock {
  FreeBlock* next;
};

namespace {

constexpr std::size_t kUnit = 16;
constexpr std::size_t kHeadBytes = 8;
constexpr std::size_t kChunkHeadBytes = 40;
constexpr std::size_t kLargestCarved = std::size_t{32} * 1024;
constexpr std::size_t kFirstChunkBytes = std::size_t{4} * 1024;
constexpr std::size_t kLargestChunkBytes = om::internal::ChunkReserve::kChunkBytes;
constexpr std::size_t kFewestPageBytes = std::size_t{256} * 1024;

static_assert(alignof(std::max_align_t) <= kUnit);
static_assert((kChunkHeadBytes + kHeadBytes) % kUnit == 0);

std::atomic<OmMemoryRegion::AllocationProbe> allocationProbe{nullptr};

std::uint32_t unitsFor(std::size_t size) noexcept {
  return static_cast<std::uint32_t>((size + kHeadBytes + kUnit - 1) / kUnit);
}

// REQUIRES: units > 64. Four lists for each doubling, by the two bits after the leading one.
std::size_t rangeOf(std::uint32_t units) noexcept {
  const auto width = static_cast<std::uint32_t>(std::bit_width(units));
  return (width - 7) * 4 + ((units >> (width - 3)) & 3);
}

class LockWhen {
 public:
  LockWhen(std::mutex& mutex, bool needed) : mutex_(needed ? &mutex : nullptr) {
    if (mutex_ != nullptr) mutex_->lock();
  }
  ~LockWhen() {
    if (mutex_ != nullptr) mutex_->unlock();
  }
  LockWhen(const LockWhen&) = delete;
  LockWhen& operator=(const LockWhen&) = delete;

 private:
  std::mutex* mutex_;
};

}  // namespace

OmMemoryRegion::OmMemoryRegion(bool shared) : shared_(shared), nextChunkBytes_(kFirstChunkBytes) {
  static_assert(sizeof(Chunk) == kChunkHeadBytes && sizeof(Head) == kHeadBytes);
}

OmMemoryRegion::~OmMemoryRegion() {
  while (Finalizer* const finalizer = finalizers_) {
    withdraw(*finalizer);
    finalizer->regionEnds();
  }
  for (Chunk* chunk : {chunks_, pageChunks_}) {
    while (chunk != nullptr) freeChunk(std::exchange(chunk, chunk->next));
  }
}

// REQUIRES: the list is not empty.
inline OmMemoryRegion::Head* OmMemoryRegion::pop(FreeBlock*& list) noexcept {
  FreeBlock* const block = list;
  unpoison(block, sizeof(FreeBlock));
  list = block->next;
  poison(block, sizeof(FreeBlock));
  return Head::of(block);
}

inline OmMemoryRegion::Head* OmMemoryRegion::lay(Chunk* chunk, char* place,
                                                 std::uint32_t units) noexcept {
  const auto distance = static_cast<std::size_t>(place - reinterpret_cast<char*>(chunk + 1));
  unpoison(place, kHeadBytes);
  return ::new (static_cast<void*>(place))
      Head{static_cast<std::uint32_t>(distance / kUnit), units};
}

inline OmMemoryRegion::Head* OmMemoryRegion::carve(std::uint32_t units) {
  if (units <= kSmallUnits) {
    if (FreeBlock*& list = small_[units - 1]; list != nullptr) return pop(list);
  } else if (rangesFilled_ != 0) {
    if (Head* const released = popLarge(units)) return released;
  }
  Rest& rest = units <= kShortUnits ? shortRest_ : longRest_;
  if (static_cast<std::size_t>(rest.end - rest.next) < units * kUnit) refill(rest, units);
  Head* const head = lay(rest.chunk, rest.next, units);
  rest.next += units * kUnit;
  return head;
}

inline void* OmMemoryRegion::take(std::size_t size, bool zeroed) {
  Head* head;
  if (size <= kLargestCarved) {
    const std::uint32_t units = unitsFor(size);
    head = carve(units);
    bytesInUse_ += units * kUnit;
    unpoison(head->block(), size);
    if (zeroed) std::memset(head->block(), 0, size);
  } else {
    head = takeChunk(size, zeroed);
    bytesInUse_ += bytesOf(head);
    unpoison(head->block(), size);
  }
  ++blocksInUse_;
  return head->block();
}

inline void* OmMemoryRegion::allocate(std::size_t size, bool zeroed) {
  if (const AllocationProbe probe = allocationProbe.load(std::memory_order_relaxed)) probe(size);
  if (!shared_) return take(size, zeroed);
  const LockWhen lock(mutex_, true);
  return take(size, zeroed);
}

void* OmMemoryRegion::Allocate(std::size_t size) { return allocate(size, false); }

void* OmMemoryRegion::AllocateZeroed(std::size_t size) { return allocate(size, true); }

void OmMemoryRegion::Release(void* block) noexcept {
  if (block == nullptr) return;
  Head* const head = Head::of(block);
  OmMemoryRegion* const region = chunkOf(head)->region;
  if (!region->shared_) return region->giveBack(head);
  const LockWhen lock(region->mutex_, true);
  region->giveBack(head);
}

OmMemoryRegion* OmMemoryRegion::DefaultHeap() noexcept {
  // Never destroyed: texts that live in it may outlast every static object.
  alignas(OmMemoryRegion) static std::byte storage[sizeof(OmMemoryRegion)];
  static OmMemoryRegion* const heap = ::new (static_cast<void*>(storage)) OmMemoryRegion(true);
  return heap;
}

OmMemoryRegion::Finalizer::~Finalizer() {
  if (region_ == nullptr) return;
  const LockWhen lock(region_->mutex_, region_->shared_);
  region_->withdraw(*this);
}

void OmMemoryRegion::AtEnd(Finalizer& finalizer) noexcept {
  const LockWhen lock(mutex_, shared_);
  finalizer.region_ = this;
  finalizer.next_ = finalizers_;
  if (finalizers_ != nullptr) finalizers_->previous_ = &finalizer;
  finalizers_ = &finalizer;
}

void OmMemoryRegion::withdraw(Finalizer& finalizer) noexcept {
  Finalizer* const next = finalizer.next_;
  Finalizer* const previous = finalizer.previous_;
  (previous != nullptr ? previous->next_ : finalizers_) = next;
  if (next != nullptr) next->previous_ = previous;
  finalizer.region_ = nullptr;
  finalizer.next_ = finalizer.previous_ = nullptr;
}

void OmMemoryRegion::WorkingRelease(bool reuse) noexcept {
  const LockWhen lock(mutex_, shared_);
  reuse_ = reuse;
}

std::size_t OmMemoryRegion::BytesInUse() const {
  const LockWhen lock(mutex_, shared_);
  return bytesInUse_;
}

std::size_t OmMemoryRegion::BlocksInUse() const {
  const LockWhen lock(mutex_, shared_);
  return blocksInUse_;
}

std::size_t OmMemoryRegion::SetReserveLimit(std::size_t bytes) noexcept {
  return chunkReserve.setLimit(bytes);
}

OmMemoryRegion::AllocationProbe OmMemoryRegion::SetAllocationProbe(AllocationProbe probe) noexcept {
  return allocationProbe.exchange(probe);
}

void OmMemoryRegion::giveBack(Head* head) noexcept {
  bytesInUse_ -= bytesOf(head);
  --blocksInUse_;
  if (!reuse_) {
    poison(head->block(), bytesOf(head) - kHeadBytes);
  } else if (head->units != 0) {
    pushFree(head);
  } else {
    dropChunk(chunkOf(head));
  }
}

// Finds new room to carve from, once the present room is too short; what was left of it becomes a
// released block. Small requests eat up the largest released block before a chunk is added.
void OmMemoryRegion::refill(Rest& rest, std::uint32_t units) {
  Chunk* chunk;
  char* begin;
  std::size_t available;
  if (units <= kSmallUnits && rangesFilled_ != 0) {
    Head* const largest = popRange(static_cast<std::size_t>(std::bit_width(rangesFilled_)) - 1);
    chunk = chunkOf(largest);
    begin = reinterpret_cast<char*>(largest);
    available = largest->units;
  } else {
    chunk = newChunk(std::max(nextChunkBytes_, kChunkHeadBytes + units * kUnit));
    nextChunkBytes_ = std::min(2 * nextChunkBytes_, kLargestChunkBytes);
    begin = reinterpret_cast<char*>(chunk + 1);
    available = (chunk->bytes - kChunkHeadBytes) / kUnit;
  }
  const auto left =
      static_cast<std::uint32_t>(static_cast<std::size_t>(rest.end - rest.next) / kUnit);
  if (left != 0) pushFree(lay(rest.chunk, rest.next, left));
  rest = {begin, begin + available * kUnit, chunk};
}

// REQUIRES: units > kSmallUnits.
OmMemoryRegion::Head* OmMemoryRegion::popLarge(std::uint32_t units) noexcept {
  // Blocks of this list may be shorter than asked for; those of every later list are long enough.
  std::size_t list = rangeOf(units);
  const bool firstFits = ranges_[list] != nullptr && Head::of(ranges_[list])->units >= units;
  if (!firstFits) {
    const std::uint32_t later = rangesFilled_ & ~((std::uint32_t{2} << list) - 1);
    if (later == 0) return nullptr;
    list = static_cast<std::size_t>(std::countr_zero(later));
  }
  Head* const head = popRange(list);
  const std::uint32_t left = head->units - units;
  head->units = units;
  if (left != 0) pushFree(lay(chunkOf(head), reinterpret_cast<char*>(head) + units * kUnit, left));
  return head;
}

void OmMemoryRegion::pushFree(Head* head) noexcept {
  FreeBlock** list;
  if (head->units <= kSmallUnits) {
    list = &small_[head->units - 1];
  } else {
    const std::size_t range = rangeOf(head->units);
    list = &ranges_[range];
    rangesFilled_ |= std::uint32_t{1} << range;
  }
  unpoison(head->block(), sizeof(FreeBlock));
  *list = ::new (head->block()) FreeBlock{*list};
  poison(head->block(), bytesOf(head) - kHeadBytes);
}

// REQUIRES: the list is not empty.
OmMemoryRegion::Head* OmMemoryRegion::popRange(std::size_t list) noexcept {
  Head* const head = pop(ranges_[list]);
  if (ranges_[list] == nullptr) rangesFilled_ &= ~(std::uint32_t{1} << list);
  return head;
}

OmMemoryRegion::Head* OmMemoryRegion::takeChunk(std::size_t size, bool zeroed) {
  constexpr std::size_t kAround = kChunkHeadBytes + kHeadBytes;
  if (size > std::numeric_limits<std::size_t>::max() - kAround) throw std::bad_alloc();
  const std::size_t bytes = size + kAround;
  Chunk* chunk;
  if (!zeroed) {
    chunk = newChunk(bytes);
  } else if (bytes < kFewestPageBytes) {
    chunk = newChunk(bytes);
    unpoison(chunk + 1, size + kHeadBytes);
    std::memset(static_cast<void*>(chunk + 1), 0, size + kHeadBytes);
  } else {
    chunk = enter(om::internal::takeZeroPages(bytes), bytes, true);
  }
  return lay(chunk, reinterpret_cast<char*>(chunk + 1), 0);
}

OmMemoryRegion::Chunk* OmMemoryRegion::newChunk(std::size_t bytes) {
  void* const place = bytes == kLargestChunkBytes ? chunkReserve.take() : std::malloc(bytes);
  Chunk* const chunk = enter(place, bytes, false);
  poison(chunk + 1, bytes - kChunkHeadBytes);
  return chunk;
}

// Makes a chunk of what the system gave; null means that it gave nothing.
OmMemoryRegion::Chunk* OmMemoryRegion::enter(void* place, std::size_t bytes, bool pages) {
  if (place == nullptr) throw std::bad_alloc();
  unpoison(place, kChunkHeadBytes);
  Chunk*& chunks = pages ? pageChunks_ : chunks_;
  auto* const chunk = ::new (place) Chunk{chunks, nullptr, this, bytes, pages};
  if (chunks != nullptr) chunks->previous = chunk;
  chunks = chunk;
  return chunk;
}

void OmMemoryRegion::dropChunk(Chunk* chunk) noexcept {
  Chunk*& chunks = chunk->pages != 0 ? pageChunks_ : chunks_;
  (chunk->previous != nullptr ? chunk->previous->next : chunks) = chunk->next;
  if (chunk->next != nullptr) chunk->next->previous = chunk->previous;
  freeChunk(chunk);
}

void OmMemoryRegion::freeChunk(Chunk* chunk) noexcept {
  const std::size_t bytes = chunk->bytes;
  if (chunk->pages != 0) return om::internal::giveBackPages(chunk, bytes);
  unpoison(chunk, bytes);
  bytes == kLargestChunkBytes ? chunkReserve.giveBack(chunk) : std::free(chunk);
}

OmMemoryRegion::Chunk* OmMemoryRegion::chunkOf(Head* head) noexcept {
  return reinterpret_cast<Chunk*>(reinterpret_cast<char*>(head) - head->unitsFromChunk * kUnit) - 1;
}

std::size_t OmMemoryRegion::bytesOf(Head* head) noexcept {
  return head->units != 0 ? head->units * kUnit : chunkOf(head)->bytes;
}
