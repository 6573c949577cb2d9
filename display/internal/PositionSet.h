// PositionSet: gathers positions of an axis, in any order and as often as they come, and gives each
// of them once, ascending. Its memory follows the number of positions to come, not the axis.

#ifndef OM_DISPLAY_INTERNAL_POSITIONSET_H_
#define OM_DISPLAY_INTERNAL_POSITIONSET_H_

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace om::internal {

class PositionSet {
 public:
  // For `expected` calls of insert, or some more. A bit for each position of the axis is kept where
  // that takes no more room than the positions themselves.
  PositionSet(std::uint64_t axisCount, std::uint64_t expected) {
    if (axisCount / 64 <= expected) {
      bits_.resize(axisCount / 64 + 1);
    } else {
      positions_.reserve(expected);
    }
  }

  // REQUIRES: position < axisCount.
  void insert(std::uint64_t position) {
    if (!bits_.empty()) {
      bits_[position / 64] |= std::uint64_t{1} << (position % 64);
    } else {
      positions_.push_back(position);
    }
  }

  // What was inserted. The set is then empty.
  std::vector<unsigned long long> ascending() {
    if (!bits_.empty()) return fromBits();
    std::sort(positions_.begin(), positions_.end());
    positions_.erase(std::unique(positions_.begin(), positions_.end()), positions_.end());
    return std::move(positions_);
  }

 private:
  std::vector<unsigned long long> fromBits() const {
    std::size_t count = 0;
    for (const std::uint64_t word : bits_) count += static_cast<std::size_t>(std::popcount(word));
    std::vector<unsigned long long> positions;
    positions.reserve(count);
    for (std::size_t i = 0; i < bits_.size(); ++i) {
      for (std::uint64_t word = bits_[i]; word != 0; word &= word - 1) {
        positions.push_back(i * 64 + static_cast<std::size_t>(std::countr_zero(word)));
      }
    }
    return positions;
  }

  std::vector<std::uint64_t> bits_;
  std::vector<unsigned long long> positions_;
};

}  // namespace om::internal

#endif  // OM_DISPLAY_INTERNAL_POSITIONSET_H_
