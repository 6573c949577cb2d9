// OmVector<T>: a growable vector whose storage comes from a memory region.
//
// It moves its elements bitwise, so it takes only types that hold no pointer into themselves: see
// omMovesBitwise. Invariants:
//   1. The region is never null.
//   2. begin, end and capacity end are all null, or begin <= end <= capacity end.
//   3. Growth goes to the smallest power of two that is at least 4 and greater than the size; a
//      capacity that was asked for is kept exactly.
//
// Ownership: the vector owns its elements and its storage.
// Lifetime: it must not outlive its region. Adding an element invalidates pointers to all of them;
//   insert and erase, to those from the position on.
// Threads: one at a time.
// Errors: std::bad_alloc, and std::length_error "vector<T> too long", and whatever copying an
//   element throws; the vector is then as before.

#ifndef OM_BACKEND_TABLES_OMVECTOR_H_
#define OM_BACKEND_TABLES_OMVECTOR_H_

#include <cstddef>
#include <cstring>
#include <limits>
#include <new>
#include <stdexcept>
#include <type_traits>
#include <utility>

#include "external/cells/OmMemoryRegion.h"

// Says that an object of T may be moved by copying its bytes and forgetting the source. Specialise
// it for a type that holds no pointer into itself and of which nobody keeps the address.
template <class T>
inline constexpr bool omMovesBitwise = std::is_trivially_copyable_v<T>;

namespace om::internal {

// The capacity that a vector reaches when elements are added one by one, until there is room for
// `count`: from a full one it goes to the smallest power of two that is at least 4 and greater.
inline std::size_t grownCapacity(std::size_t capacity, std::size_t count) {
  while (capacity < count) {
    std::size_t grown = 4;
    while (grown <= capacity) grown *= 2;
    capacity = grown;
  }
  return capacity;
}

}  // namespace om::internal

template <class T>
class OmVector {
 public:
  using value_type = T;
  using iterator = T*;
  using const_iterator = const T*;

  // An element that is not in a vector yet. Made in advance, it goes in without a copy, and so
  // without a failure where there is room.
  class Detached {
   public:
    template <class... Arguments>
    explicit Detached(std::in_place_t, Arguments&&... arguments)
        : element_(::new (static_cast<void*>(room_)) T(std::forward<Arguments>(arguments)...)) {}
    ~Detached() {
      if (element_ != nullptr) element_->~T();
    }
    Detached(const Detached&) = delete;
    Detached& operator=(const Detached&) = delete;

    T& operator*() { return *element_; }

   private:
    friend class OmVector;

    void moveTo(T* place) { moveBytes(place, std::exchange(element_, nullptr), 1); }

    alignas(T) std::byte room_[sizeof(T)];
    T* element_;
  };

  // An empty vector on `region` (null: the default heap) with room for exactly `capacity` elements.
  explicit OmVector(OmMemoryRegion* region = nullptr, std::size_t capacity = 0)
      : region_(OmMemoryRegion::OrDefaultHeap(region)) {
    reserve(capacity);
  }
  // A copy in `region` (null: the default heap), or in the other's region.
  OmVector(const OmVector& other, OmMemoryRegion* region) : OmVector(region, other.size()) {
    for (const T& element : other) emplace_back(element);
  }
  OmVector(const OmVector& other) : OmVector(other, other.region_) {}
  // Takes a copy of the other's elements; the region stays.
  OmVector& operator=(const OmVector& other);
  ~OmVector();

  OmMemoryRegion* region() const { return region_; }
  std::size_t size() const { return static_cast<std::size_t>(end_ - begin_); }
  std::size_t capacity() const { return static_cast<std::size_t>(capacityEnd_ - begin_); }
  bool empty() const { return begin_ == end_; }

  T* begin() { return begin_; }
  T* end() { return end_; }
  const T* begin() const { return begin_; }
  const T* end() const { return end_; }

  // REQUIRES: the position is less than the size; for front and back, the vector is not empty.
  T& operator[](std::size_t position) { return begin_[position]; }
  const T& operator[](std::size_t position) const { return begin_[position]; }
  T& front() { return *begin_; }
  const T& front() const { return *begin_; }
  T& back() { return end_[-1]; }
  const T& back() const { return end_[-1]; }

  // Room for exactly `count` elements, unless there is room for as many already.
  void reserve(std::size_t count) {
    if (count > capacity()) relocate(count);
  }

  // Room for `count` more elements, by the steps in which adding them one by one would grow.
  void makeRoom(std::size_t count = 1);

  // Adds an element at the end. The arguments may refer to elements of this vector.
  void push_back(const T& value) { emplace_back(value); }
  template <class... Arguments>
  T& emplace_back(Arguments&&... arguments);

  // Adds a copy of `value`, which may be an element of this vector, in front of the position.
  // REQUIRES: position <= size.
  T& insert(std::size_t position, const T& value) {
    return insert(position, Detached(std::in_place, value));
  }
  // Takes an element over. Its bytes move: what refers to its address has to follow.
  // REQUIRES: position <= size; the element was not taken over before.
  T& insert(std::size_t position, Detached&& element);

  // Destroys the element at the position and closes the gap. REQUIRES: position < size.
  void erase(std::size_t position);

  // Destroys all elements and keeps the storage.
  void clear();

  // Gives the storage back and is then empty, without destroying the elements.
  // REQUIRES: they have been destroyed, one way or another.
  void abandon();

  // Null, or the first invariant that does not hold.
  const char* checkInvariants() const;

 private:
  static void moveBytes(T* to, const T* from, std::size_t count) {
    if (count != 0) {
      std::memmove(static_cast<void*>(to), static_cast<const void*>(from), count * sizeof(T));
    }
  }

  void relocate(std::size_t capacity);

  OmMemoryRegion* region_;
  T* begin_ = nullptr;
  T* end_ = nullptr;
  T* capacityEnd_ = nullptr;
};

template <class T>
OmVector<T>& OmVector<T>::operator=(const OmVector& other) {
  if (this == &other) return *this;
  OmVector copy(other, region_);
  std::swap(begin_, copy.begin_);
  std::swap(end_, copy.end_);
  std::swap(capacityEnd_, copy.capacityEnd_);
  return *this;
}

template <class T>
OmVector<T>::~OmVector() {
  clear();
  abandon();
}

template <class T>
void OmVector<T>::makeRoom(std::size_t count) {
  if (capacity() - size() >= count) return;
  relocate(om::internal::grownCapacity(capacity(), size() + count));
}

template <class T>
template <class... Arguments>
T& OmVector<T>::emplace_back(Arguments&&... arguments) {
  if (end_ == capacityEnd_) {
    // Made before the vector grows: the arguments may stand in the storage that is about to go.
    Detached element(std::in_place, std::forward<Arguments>(arguments)...);
    makeRoom();
    element.moveTo(end_);
  } else {
    ::new (static_cast<void*>(end_)) T(std::forward<Arguments>(arguments)...);
  }
  return *end_++;
}

template <class T>
T& OmVector<T>::insert(std::size_t position, Detached&& element) {
  makeRoom();
  T* const place = begin_ + position;
  moveBytes(place + 1, place, size() - position);
  element.moveTo(place);
  ++end_;
  return *place;
}

template <class T>
void OmVector<T>::erase(std::size_t position) {
  T* const place = begin_ + position;
  place->~T();
  moveBytes(place, place + 1, size() - position - 1);
  --end_;
}

template <class T>
void OmVector<T>::clear() {
  for (T* element = begin_; element != end_; ++element) element->~T();
  end_ = begin_;
}

template <class T>
void OmVector<T>::abandon() {
  OmMemoryRegion::Release(begin_);
  begin_ = end_ = capacityEnd_ = nullptr;
}

template <class T>
void OmVector<T>::relocate(std::size_t capacity) {
  static_assert(omMovesBitwise<T>, "OmVector moves its elements bitwise; see omMovesBitwise");
  if (capacity > std::numeric_limits<std::ptrdiff_t>::max() / sizeof(T)) {
    throw std::length_error("vector<T> too long");
  }
  T* const storage = static_cast<T*>(region_->Allocate(capacity * sizeof(T)));
  const std::size_t count = size();
  moveBytes(storage, begin_, count);
  OmMemoryRegion::Release(begin_);
  begin_ = storage;
  end_ = storage + count;
  capacityEnd_ = storage + capacity;
}

template <class T>
const char* OmVector<T>::checkInvariants() const {
  if (region_ == nullptr) return "the region is never null";
  if (begin_ == nullptr && (end_ != nullptr || capacityEnd_ != nullptr)) {
    return "without storage all three pointers are null";
  }
  if (begin_ > end_ || end_ > capacityEnd_) return "begin <= end <= capacity end";
  return nullptr;
}

#endif  // OM_BACKEND_TABLES_OMVECTOR_H_
