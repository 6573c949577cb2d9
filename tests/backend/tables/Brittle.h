// An item that counts how often it is copied and how many of it are alive, writes down who dies,
// and refuses to be copied on demand. To move it never fails.

#ifndef OM_TESTS_BACKEND_TABLES_BRITTLE_H_
#define OM_TESTS_BACKEND_TABLES_BRITTLE_H_

#include <compare>
#include <vector>

#include "backend/tables/OmVector.h"

namespace om::test {

struct CopyRefused {};

class Brittle {
 public:
  explicit Brittle(int value) : value_(value) { ++live; }
  Brittle(const Brittle& other) : value_(other.value_) {
    countCopy();
    ++live;
  }
  Brittle(Brittle&& other) noexcept : value_(other.value_) { ++live; }
  Brittle& operator=(const Brittle& other) {
    countCopy();
    value_ = other.value_;
    return *this;
  }
  Brittle& operator=(Brittle&& other) noexcept {
    value_ = other.value_;
    return *this;
  }
  ~Brittle() {
    --live;
    if (deaths != nullptr) deaths->push_back(value_);
  }

  int value() const { return value_; }
  auto operator<=>(const Brittle&) const = default;

  static inline long live = 0;
  static inline long copies = 0;
  static inline long copiesUntilRefusal = 0;         // the copy that is refused; 0: none
  static inline std::vector<int>* deaths = nullptr;  // takes the values of those that die

 private:
  static void countCopy() {
    if (copiesUntilRefusal != 0 && --copiesUntilRefusal == 0) throw CopyRefused();
    ++copies;
  }

  int value_;
};

// Runs the operation with its n-th copy refused, n from 1. True when a copy was refused.
template <class Operation>
bool refusesCopy(long n, Operation operation) {
  Brittle::copiesUntilRefusal = n;
  bool refused = false;
  try {
    operation();
  } catch (const CopyRefused&) {
    refused = true;
  }
  Brittle::copiesUntilRefusal = 0;
  return refused;
}

// The values of those that die while it lives.
class Deaths {
 public:
  Deaths() { Brittle::deaths = &values_; }
  ~Deaths() { Brittle::deaths = nullptr; }
  Deaths(const Deaths&) = delete;
  Deaths& operator=(const Deaths&) = delete;

  const std::vector<int>& values() const { return values_; }

 private:
  std::vector<int> values_;
};

}  // namespace om::test

template <>
inline constexpr bool omMovesBitwise<om::test::Brittle> = true;

#endif  // OM_TESTS_BACKEND_TABLES_BRITTLE_H_
