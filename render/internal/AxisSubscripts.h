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
    std::uint64_t position = 0;
    for (const Dimension& dimension : dimensions_) {
      const std::pair wanted(index[dimension.number], std::uint64_t{0});
      const auto found = std::lower_bound(dimension.digits.begin(), dimension.digits.end(), wanted);
      if (found == dimension.digits.end() || found->first != wanted.first) return std::nullopt;
      position += found->second * dimension.weight;
    }
    if (shown_ == nullptr) return position;
    const auto found = std::lower_bound(shown_->begin(), shown_->end(), position);
    if (found == shown_->end() || *found != position) return std::nullopt;
    return static_cast<std::uint64_t>(found - shown_->begin());
  }

 private:
  struct Dimension {
    std::size_t number;
    std::uint64_t weight;
    std::vector<std::pair<int, std::uint64_t>> digits;  // by subscript
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

  const std::vector<unsigned long long>* shown_;
  std::vector<Dimension> dimensions_;
};

}  // namespace om::render::internal

#endif  // OM_RENDER_INTERNAL_AXISSUBSCRIPTS_H_
