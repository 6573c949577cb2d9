#include "display/internal/SparseScan.h"

#include <algorithm>

#include "display/internal/OmDisplayLayerData.h"
#include "pivot/internal/PivotTableData.h"

namespace om::internal {

SparseScan::SparseScan(const OmDisplayLayerData& layers, const MultiBase& axis)
    : root_(PivotTableInternals::dataOf(*layers.table).cells.Root()),
      levels_(layers.layouts.size()),
      lowest_(layers.layouts.size()),
      positions_(axis.count(), layers.census.cells) {
  // An iteration that meets no cell ends at once, though there may be some.
  if (layers.census.cells == 0) root_ = nullptr;
  for (std::size_t k = 0; k < axis.size(); ++k) {
    const OmDimensionLayout* const layout = layers.layoutOf(axis.dimension(k));
    if (layout == nullptr) continue;
    const auto dimension = static_cast<std::size_t>(axis.dimension(k));
    Level& level = levels_[dimension];
    level.layout = layout;
    level.radix = axis.radix(k);
    level.weight += axis.weight(k);  // a dimension may be listed twice
    lowest_ = std::min(lowest_, dimension);
  }
}

inline void SparseScan::enter(const void* element, std::size_t levels, std::uint64_t position) {
  if (levels > lowest_) {
    walk(*static_cast<const PointerVector*>(element), levels - 1, position);
  } else if (holdsCell(element, levels)) {
    positions_.insert(position);
  }
}

// Calls itself, by way of enter, once for each level at most.
void SparseScan::walk(const PointerVector& node, std::size_t levels, std::uint64_t position) {
  const Level& level = levels_[levels];
  for (std::size_t i = node.nextNonNull(0); i != node.size(); i = node.nextNonNull(i + 1)) {
    std::uint64_t below = position;
    if (level.layout != nullptr) {
      const int digit = level.layout->subscriptToPosition(static_cast<int>(i));
      if (digit < 0 || digit >= level.radix) continue;
      below += static_cast<std::uint64_t>(digit) * level.weight;
    }
    enter(node[i], levels, below);
  }
}

bool SparseScan::holdsCell(const void* element, std::size_t levels) {
  if (levels == 0) return true;
  const auto& node = *static_cast<const PointerVector*>(element);
  std::size_t i = node.nextNonNull(0);
  while (i != node.size() && !holdsCell(node[i], levels - 1)) i = node.nextNonNull(i + 1);
  return i != node.size();
}

std::vector<unsigned long long> SparseScan::operator()() {
  if (root_ != nullptr) enter(root_, levels_.size(), 0);
  return positions_.ascending();
}

}  // namespace om::internal
