// PuppetVector<T>: a growable vector with a default value, which is -1. Asking for an element at or
// beyond the end deliberately lengthens the vector with default values until that element exists.
// As the list of an axis it holds the positions of dimensions in their table, innermost first; -1
// is an entry without a dimension.
//
// Ownership, lifetime: a plain value; adding elements invalidates references to them.
// Threads: one at a time; also asking for an element of a vector that is not const may lengthen it.
// Errors: std::bad_alloc, and std::length_error "vector<T> too long"; the vector is then as before.

#ifndef OM_BACKEND_TABLES_PUPPETVECTOR_H_
#define OM_BACKEND_TABLES_PUPPETVECTOR_H_

#include <algorithm>
#include <cstddef>
#include <stdexcept>
#include <vector>

template <class T>
class PuppetVector {
 public:
  using value_type = T;
  using iterator = typename std::vector<T>::iterator;
  using const_iterator = typename std::vector<T>::const_iterator;

  PuppetVector() = default;

  std::size_t size() const { return elements_.size(); }
  bool empty() const { return elements_.empty(); }

  // The element at the position; beyond the end, after the vector has been lengthened to there.
  T& operator[](std::size_t position) {
    if (position >= elements_.size()) {
      if (position >= elements_.max_size()) throw std::length_error("vector<T> too long");
      elements_.resize(position + 1, defaultValue_);
    }
    return elements_[position];
  }
  // A const vector is not lengthened: beyond the end there is the default value.
  T operator[](std::size_t position) const {
    return position < elements_.size() ? elements_[position] : defaultValue_;
  }

  T defaultValue() const { return defaultValue_; }

  void push_back(T value) { elements_.push_back(value); }
  // Removes the element at the position. REQUIRES: position < size.
  void erase(std::size_t position) {
    elements_.erase(elements_.begin() + static_cast<std::ptrdiff_t>(position));
  }
  void clear() { elements_.clear(); }
  void reverse() { std::reverse(elements_.begin(), elements_.end()); }

  iterator begin() { return elements_.begin(); }
  iterator end() { return elements_.end(); }
  const_iterator begin() const { return elements_.begin(); }
  const_iterator end() const { return elements_.end(); }

  bool operator==(const PuppetVector&) const = default;

 private:
  std::vector<T> elements_;
  T defaultValue_ = -1;
};

#endif  // OM_BACKEND_TABLES_PUPPETVECTOR_H_
