// AxisSubscripts: finds the row, or column, that the subscripts of a cell index belong to.

#ifndef OM_RENDER_INTERNAL_AXISSUBSCRIPTS_H_
#define OM_RENDER_INTERNAL_AXISSUBSCRIPTS_H_

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

#include "pivot/OmPivotTable.h"

namespace om::render::internal {

class AxisSubscripts {
 public:
  // `all` is a heading of the axis that leaves nothing out. `shown` lists the positions that are
  // shown, ascending; null when all of them are.
  template <class Heading>
  AxisSubscripts(const OmPivotTable& table, const Heading& all,
                 const std::vector<unsigned long long>* shown)
      : shown_(shown) {
    std::uint64_t weight = 1;
    for (int k = all.NDimensions(); k-- != 0;) {
      const int dimension = all.getDimensionIndex(k);
      if (dimension < 0 || static_cast<std::size_t>(dimension) >= table.NDimensions()) continue;
      dimensions_.push_back(subscriptsOf(table, all, dimension, weight));
      weight *= table.Size(dimension);
    }
  }

  // The first place with these subscripts.
  std::optional<std::uint64_t> placeOf(const std::vector<int>& index) const {
    const std::optional<std::uint64_t> first = positionOf(index, false);
    if (!first || shown_ == nullptr) return first;
    const std::optional<std::uint64_t> place = shownAt(*first);
    // Of several categories with one subscript, a sparse table shows the last one only.
    return place ? place : shownAt(*positionOf(index, true));
  }

 private:
  using Digit = std::pair<int, std::uint64_t>;  // a subscript and the digit of its category
  struct Dimension {
    std::size_t number;
    std::uint64_t weight;
    std::vector<Digit> digits;  // by subscript, then by digit
  };

  template <class Heading>
  static Dimension subscriptsOf(const OmPivotTable& table, const Heading& all, int dimension,
                                std::uint64_t weight) {
    constexpr int kNone = -1;  // stays where a position has no category
    Dimension result{static_cast<std::size_t>(dimension), weight, {}};
    std::vector<int> index(table.NDimensions());
    for (std::uint64_t digit = 0; digit < table.Size(dimension); ++digit) {
      int& subscript = index[result.number];
      subscript = kNone;
      all.Fill(index, static_cast<int>(digit * weight));
      if (subscript != kNone) result.digits.emplace_back(subscript, digit);
    }
    std::sort(result.digits.begin(), result.digits.end());
    return result;
  }

  // The position of the first categories with these subscripts, or of the last ones.
  std::optional<std::uint64_t> positionOf(const std::vector<int>& index, bool last) const {
    std::uint64_t position = 0;
    for (const Dimension& dimension : dimensions_) {
      const std::vector<Digit>& digits = dimension.digits;
      const auto [begin, end] =
          std::equal_range(digits.begin(), digits.end(), Digit(index[dimension.number], 0),
                           [](const Digit& a, const Digit& b) { return a.first < b.first; });
      if (begin == end) return std::nullopt;
      position += (last ? *(end - 1) : *begin).second * dimension.weight;
    }
    return position;
  }

  std::optional<std::uint64_t> shownAt(std::uint64_t position) const {
    const auto found = std::lower_bound(shown_->begin(), shown_->end(), position);
    if (found == shown_->end() || *found != position) return std::nullopt;
    return static_cast<std::uint64_t>(found - shown_->begin());
  }

  const std::vector<unsigned long long>* shown_;
  std::vector<Dimension> dimensions_;
};

}  // namespace om::render::internal

#endif  // OM_RENDER_INTERNAL_AXISSUBSCRIPTS_H_
