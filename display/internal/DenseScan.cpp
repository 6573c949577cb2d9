#include "display/internal/DenseScan.h"

#include <algorithm>

#include "display/internal/OmDisplayLayerData.h"
#include "pivot/internal/PivotTableData.h"

namespace om::internal {

DenseScan::DenseScan(const OmDisplayLayerData& layers, const MultiBase& axis,
                     const PuppetVector<short>& others)
    : axis_(axis),
      start_(PivotTableInternals::dataOf(*layers.table).cells.Root()),
      startLevels_(layers.layouts.size()) {
  for (const int subscript : layers.currentCellIndex) levels_.push_back({subscript});

  const MultiBase other(others, layers.table->SizeVector());
  for (std::size_t k = 0; k < other.size(); ++k) {
    if (other.radix(k) == 0) start_ = nullptr;  // no position has any place
    if (const OmDimensionLayout* const layout = layers.layoutOf(other.dimension(k))) {
      admitAny(*layout, static_cast<std::size_t>(other.radix(k)),
               levels_[static_cast<std::size_t>(other.dimension(k))]);
    }
  }
  for (std::size_t k = 0; k < axis.size(); ++k) {
    const OmDimensionLayout* const layout = layers.layoutOf(axis.dimension(k));
    Level* const level =
        layout != nullptr ? &levels_[static_cast<std::size_t>(axis.dimension(k))] : nullptr;
    places_.push_back({layout, level});
  }
  descend();
}

// Without leaves, the subscript stays that of the current cell index.
void DenseScan::admitAny(const OmDimensionLayout& layout, std::size_t size, Level& level) {
  const std::size_t leaves = std::min(layout.size(), size);
  if (leaves == 0) return;
  level.any = true;
  level.subscript = layout.positionToSubscript(0);
  if (layout.subscriptsAreFirst() && leaves == layout.size()) {
    level.below = leaves;
    return;
  }
  level.listed.clear();
  for (std::size_t i = 0; i < leaves; ++i) {
    level.listed.push_back(layout.positionToSubscript(i));
  }
}

// Goes down the levels that the layer settles for all positions.
void DenseScan::descend() {
  const auto settled = [this](const Level& level) {
    return !level.any && std::none_of(places_.begin(), places_.end(),
                                      [&](const auto& place) { return place.level == &level; });
  };
  while (start_ != nullptr && startLevels_ != 0 && settled(levels_[startLevels_ - 1])) {
    start_ = static_cast<const PointerVector*>(start_)->at(levels_[--startLevels_].subscript);
  }
}

// A digit without a leaf leaves the subscript of the position before.
void DenseScan::place(const MultiBase::Digits& digits) {
  for (std::size_t k = 0; k < digits.size(); ++k) {
    const auto& [layout, level] = places_[k];
    if (layout == nullptr || level->any || digits[k] >= layout->size()) continue;
    level->subscript = layout->positionToSubscript(digits[k]);
  }
}

// Whether there is a cell at the subscripts of the last cell, where any will do. A search that
// fails there begins anew with the first subscripts: in them it finds the cells of most positions,
// and comes upon nodes that are in the cache.
bool DenseScan::isBelowLast() const {
  const void* element = start_;
  for (std::size_t i = startLevels_; i != 0 && element != nullptr;) {
    element = static_cast<const PointerVector*>(element)->at(levels_[--i].subscript);
  }
  return element != nullptr;
}

// Whether there is a cell below the element, which is not null.
inline bool DenseScan::find(const void* element, std::size_t levels) {
  for (; levels != 0; --levels) {
    const auto& node = *static_cast<const PointerVector*>(element);
    Level& level = levels_[levels - 1];
    if (level.any) return findAny(node, levels - 1, level);
    element = node.at(level.subscript);
    if (element == nullptr) return false;
  }
  return true;
}

// Calls itself, by way of find, once for each level at most.
bool DenseScan::findAny(const PointerVector& node, std::size_t levels, Level& level) {
  const auto findAt = [&](int subscript, const void* element) {
    if (element == nullptr || !find(element, levels)) return false;
    level.subscript = subscript;
    return true;
  };
  if (!level.listed.empty()) {
    return std::any_of(level.listed.begin(), level.listed.end(),
                       [&](int subscript) { return findAt(subscript, node.at(subscript)); });
  }
  const std::size_t end = std::min(level.below, node.size());
  std::size_t i = levels == 0 ? node.nextNonNull(0) : 0;  // passes the nulls of a leaf quickly
  while (i < end && !findAt(static_cast<int>(i), node[i])) ++i;
  return i < end;
}

std::vector<unsigned long long> DenseScan::operator()() {
  std::vector<unsigned long long> positions;
  if (start_ == nullptr) return positions;
  MultiBase::Digits digits(axis_.size());
  for (unsigned long long position = 0; position != axis_.count(); ++position) {
    place(digits);
    if (isBelowLast() || find(start_, startLevels_)) positions.push_back(position);
    axis_.increment(digits);
  }
  return positions;
}

}  // namespace om::internal
