#include "display/internal/AxisIndex.h"

namespace om::internal {

AxisIndex::AxisIndex(const PuppetVector<short>& dimensions, const std::vector<int>& sizes,
                     const std::vector<OmDimensionLayout*>& layouts)
    : MultiBase(dimensions, sizes), tableDimensions_(layouts.size()), digits_(size()) {
  places_.reserve(size());
  for (std::size_t k = 0; k < size(); ++k) {
    const auto which = static_cast<std::size_t>(dimension(k));  // of -1, far beyond the end
    if (which < layouts.size()) {
      places_.push_back({layouts[which], which, layouts[which]->size()});
    } else {
      places_.push_back({nullptr, which, 0});
    }
    canCount_ &= radix(k) > 0;
  }
  enterLeaves();
}

void AxisIndex::goTo(std::uint64_t position) const {
  if (position == position_ + 1 && canCount_) {
    increment(digits_);
  } else {
    decode(position, digits_);
  }
  position_ = position;
  enterLeaves();
}

void AxisIndex::enterLeaves() const {
  for (std::size_t k = 0; k < places_.size(); ++k) {
    Place& place = places_[k];
    place.hasLeaf = digits_[k] < place.leaves;
    if (place.hasLeaf) place.subscript = place.layout->positionToSubscript(digits_[k]);
  }
}

}  // namespace om::internal
