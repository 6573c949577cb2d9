#include "external/cells/internal/ChunkReserve.h"

#include <new>
#include <type_traits>
#include <utility>

#include "external/cells/internal/Pages.h"
#include "external/cells/internal/Poison.h"

namespace om::internal {

constinit ChunkReserve chunkReserve;
static_assert(std::is_trivially_destructible_v<ChunkReserve>);

void* ChunkReserve::take() noexcept {
  if (void* const chunk = takeKept()) return chunk;
  return takeLargePage(kChunkBytes);
}

void* ChunkReserve::takeKept() noexcept {
  const std::lock_guard lock(mutex_);
  Kept* const chunk = kept_;
  if (chunk == nullptr) return nullptr;
  kept_ = chunk->next;
  bytes_ -= kChunkBytes;
  return chunk;
}

void ChunkReserve::giveBack(void* chunk) noexcept {
  {
    const std::lock_guard lock(mutex_);
    if (bytes_ + kChunkBytes <= limit_) {
      kept_ = ::new (chunk) Kept{kept_};
      bytes_ += kChunkBytes;
      // The link stays open: the leak checker follows it.
      poison(static_cast<char*>(chunk) + sizeof(Kept), kChunkBytes - sizeof(Kept));
      return;
    }
  }
  giveBackLargePage(chunk, kChunkBytes);
}

std::size_t ChunkReserve::setLimit(std::size_t bytes) noexcept {
  const std::lock_guard lock(mutex_);
  while (bytes_ > bytes) {
    Kept* const chunk = kept_;
    unpoison(chunk, kChunkBytes);
    kept_ = chunk->next;
    bytes_ -= kChunkBytes;
    giveBackLargePage(chunk, kChunkBytes);
  }
  return std::exchange(limit_, bytes);
}

}  // namespace om::internal
