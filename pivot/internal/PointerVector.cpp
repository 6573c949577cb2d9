#include "pivot/internal/PointerVector.h"

#include <cstring>

#include "backend/tables/OmVector.h"

namespace om::internal {

void PointerVector::push_back(void* element) {
  if (end_ == capacityEnd_) relocate(grownCapacity(capacity(), size() + 1));
  *end_++ = element;
}

// Makes room for the element at the position.
void PointerVector::grow(std::size_t position) {
  const std::size_t count = position + 1;
  relocate(2 * capacity() < position ? count : grownCapacity(capacity(), count));
}

void PointerVector::relocate(std::size_t capacity) {
  const std::size_t count = size();
  auto* const storage = static_cast<void**>(region_->AllocateZeroed(capacity * sizeof(void*)));
  if (count != 0) std::memcpy(storage, begin_, count * sizeof(void*));
  OmMemoryRegion::Release(begin_);
  begin_ = storage;
  end_ = storage + count;
  capacityEnd_ = storage + capacity;
}

}  // namespace om::internal
