// MultiBase: a mixed-radix number over a list of dimensions. It numbers the combinations of
// categories on an axis; the digit of the first dimension listed is the most significant.
//
//   radices 2, 3:   position 0 = (0, 0)   1 = (0, 1)   2 = (0, 2)   3 = (1, 0)   ...
//
// The first digit is deliberately not bounded by its radix, neither when a position is encoded nor
// when it is decoded.
//
// Threads: reading from several threads is safe. Errors: std::bad_alloc.

#ifndef OM_BACKEND_TABLES_MULTIBASE_H_
#define OM_BACKEND_TABLES_MULTIBASE_H_

#include <cstddef>
#include <cstdint>
#include <vector>

#include "backend/tables/PuppetVector.h"

class MultiBase {
 public:
  using Digits = std::vector<std::uint64_t>;

  // Over no dimensions.
  MultiBase() = default;
  // `sizes` has the size of each dimension of the table. An entry that designates none of them has
  // radix 1.
  MultiBase(const PuppetVector<short>& dimensions, const std::vector<int>& sizes);

  // The number of digits.
  std::size_t size() const { return radices_.size(); }
  // REQUIRES: i < size().
  short dimension(std::size_t i) const { return dimensions_[i]; }
  int radix(std::size_t i) const { return radices_[i]; }
  // The number of positions from one value of the digit to the next: the product of the radices
  // behind it.
  std::uint64_t weight(std::size_t i) const { return weights_[i]; }

  // The product of the radices, which is the number of positions; 1 without dimensions.
  std::uint64_t count() const { return count_; }

  // The position with these digits. Reports an assertion when there are not as many of them as
  // radices, and gives what the digits amount to until either ends.
  std::uint64_t encode(const Digits& digits) const;

  // The digits of a position, one for each radix. Where a digit would have to be divided by a radix
  // that is not positive, an assertion is reported and the digit is 0. Allocates nothing when
  // `digits` has its size.
  void decode(std::uint64_t position, Digits& digits) const;

  // Makes the digits those of the next position.
  // REQUIRES: they are the digits of a position, and no radix is 0 or less.
  void increment(Digits& digits) const {
    std::size_t i = digits.size();
    while (i > 1 && ++digits[i - 1] == static_cast<std::uint64_t>(radices_[i - 1])) {
      digits[--i] = 0;
    }
    if (i == 1) ++digits[0];
  }

  // One digit of a position. REQUIRES: i < size(), position < count().
  std::uint64_t digit(std::uint64_t position, std::size_t i) const {
    const std::uint64_t weight = weights_[i];
    // Division is much faster in 32 bits, where most tables stay.
    if (((position | weight) >> 32) == 0) {
      const std::uint32_t quotient =
          static_cast<std::uint32_t>(position) / static_cast<std::uint32_t>(weight);
      return i == 0 ? quotient : quotient % static_cast<std::uint32_t>(radices_[i]);
    }
    const std::uint64_t quotient = position / weight;
    return i == 0 ? quotient : quotient % static_cast<std::uint64_t>(radices_[i]);
  }

 private:
  std::vector<short> dimensions_;
  std::vector<int> radices_;
  std::vector<std::uint64_t> weights_;
  std::uint64_t count_ = 1;
};

#endif  // OM_BACKEND_TABLES_MULTIBASE_H_
