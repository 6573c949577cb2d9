// PointerVector: one node of a table's cell store: a vector of pointers, to nodes of the next level
// or, in a leaf, to cells.
//
//   node, 32 bytes      | region | begin | end | capacity end |
//   elements                     | 0 | 1 | ... |  null ...    |
//
// Invariant: the storage beyond the end holds nulls, so that lengthening the vector writes nothing.
//
// Ownership: a node owns its storage, not what its elements point to.

#ifndef OM_PIVOT_INTERNAL_POINTERVECTOR_H_
#define OM_PIVOT_INTERNAL_POINTERVECTOR_H_

#include <cstddef>
#include <cstdint>

#include "external/cells/OmMemoryRegion.h"

namespace om::internal {

class PointerVector {
 public:
  explicit PointerVector(OmMemoryRegion& region) noexcept : region_(&region) {}
  ~PointerVector() { OmMemoryRegion::Release(begin_); }
  PointerVector(const PointerVector&) = delete;
  PointerVector& operator=(const PointerVector&) = delete;

  static void* operator new(std::size_t size, OmMemoryRegion& region) {
    return region.Allocate(size);
  }
  static void operator delete(void* node) noexcept { OmMemoryRegion::Release(node); }
  static void operator delete(void* node, OmMemoryRegion&) noexcept {
    OmMemoryRegion::Release(node);
  }

  std::size_t size() const { return static_cast<std::size_t>(end_ - begin_); }
  std::size_t capacity() const { return static_cast<std::size_t>(capacityEnd_ - begin_); }

  void* const* begin() const { return begin_; }
  void* const* end() const { return end_; }
  // REQUIRES: position < size.
  void*& operator[](std::size_t position) { return begin_[position]; }
  void* operator[](std::size_t position) const { return begin_[position]; }

  // The element at a subscript, or null where there is none, as for negative ones.
  void* at(int subscript) const {
    // Taken as unsigned, a negative one is beyond every end. In bytes, so as not to divide.
    const std::uint64_t offset =
        std::uint64_t{static_cast<std::uint32_t>(subscript)} * sizeof(void*);
    const std::uintptr_t end = reinterpret_cast<std::uintptr_t>(end_);
    const bool within = offset < end - reinterpret_cast<std::uintptr_t>(begin_);
    return within ? begin_[static_cast<std::uint32_t>(subscript)] : nullptr;
  }

  // Room for exactly `count` elements, unless there is room for as many already.
  void reserve(std::size_t count) {
    if (count > capacity()) relocate(count);
  }

  // Adds an element; the capacity grows to 4, 8, 16, ...
  void push_back(void* element);

  // The element at the position, after the vector was lengthened to there with nulls. Room is made
  // for exactly as many elements when the position is beyond twice the capacity, and by doubling
  // otherwise: a far subscript costs one allocation, subscripts in order a few.
  void*& reach(std::size_t position) {
    if (position >= size()) {
      if (position >= capacity()) grow(position);
      end_ = begin_ + position + 1;
    }
    return begin_[position];
  }

  // The first position from `from` on whose element is not null, or the size.
  std::size_t nextNonNull(std::size_t from) const {
    void* const* element = begin_ + from;
    // Null runs are long in a sparse table: they are passed eight at a time.
    for (; end_ - element >= 8 && *element == nullptr; element += 8) {
      std::uintptr_t any = 0;
      for (int i = 0; i < 8; ++i) any |= reinterpret_cast<std::uintptr_t>(element[i]);
      if (any != 0) break;
    }
    while (element != end_ && *element == nullptr) ++element;
    return static_cast<std::size_t>(element - begin_);
  }
  bool allNull() const { return nextNonNull(0) == size(); }

 private:
  void grow(std::size_t position);
  void relocate(std::size_t capacity);

  OmMemoryRegion* region_;
  void** begin_ = nullptr;
  void** end_ = nullptr;
  void** capacityEnd_ = nullptr;
};

}  // namespace om::internal

#endif  // OM_PIVOT_INTERNAL_POINTERVECTOR_H_
