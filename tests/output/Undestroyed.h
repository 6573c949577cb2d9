// A part of which nobody runs the destructor: the one of two shallow copies that a test lets go of.

#ifndef OM_TESTS_OUTPUT_UNDESTROYED_H_
#define OM_TESTS_OUTPUT_UNDESTROYED_H_

#include <cstddef>
#include <new>
#include <string>
#include <utility>

namespace om::test {

// Texts in such a part leak when they need more room than a string has in itself; keep them short
// or give them back with freeRoom.
template <class Part>
class Undestroyed {
 public:
  template <class... Arguments>
  explicit Undestroyed(Arguments&&... arguments)
      : part_(::new (static_cast<void*>(room_)) Part(std::forward<Arguments>(arguments)...)) {}
  Undestroyed(const Undestroyed&) = delete;
  Undestroyed& operator=(const Undestroyed&) = delete;

  Part& operator*() { return *part_; }
  Part* operator->() { return part_; }

  // For a part that turned out to be the one that is to end.
  void destroy() { part_->~Part(); }

 private:
  alignas(Part) std::byte room_[sizeof(Part)];
  Part* part_;
};

// Frees what a text of such a part has allocated. REQUIRES: the text is not a const object.
inline void freeRoom(const std::string& text) {
  std::string().swap(const_cast<std::string&>(text));
}

}  // namespace om::test

#endif  // OM_TESTS_OUTPUT_UNDESTROYED_H_
