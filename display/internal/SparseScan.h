// SparseScan: finds the positions of an axis that hold a cell in whatever layer, by walking the
// cell store as an iteration over the table's cells does.

#ifndef OM_DISPLAY_INTERNAL_SPARSESCAN_H_
#define OM_DISPLAY_INTERNAL_SPARSESCAN_H_

#include <cstddef>
#include <cstdint>
#include <vector>

#include "backend/tables/MultiBase.h"
#include "display/internal/PositionSet.h"
#include "pivot/internal/PointerVector.h"

namespace om::internal {

class OmDimensionLayout;
class OmDisplayLayerData;

class SparseScan {
 public:
  SparseScan(const OmDisplayLayerData& layers, const MultiBase& axis);

  // The positions with a cell, ascending.
  std::vector<unsigned long long> operator()();

 private:
  // The level of a dimension in the cell store.
  struct Level {
    const OmDimensionLayout* layout = nullptr;  // null for a dimension that is not on the axis
    int radix = 0;
    std::uint64_t weight = 0;
  };

  void enter(const void* element, std::size_t levels, std::uint64_t position);
  void walk(const PointerVector& node, std::size_t levels, std::uint64_t position);
  static bool holdsCell(const void* element, std::size_t levels);

  const void* root_;
  std::vector<Level> levels_;  // of dimension 0, 1, ...
  std::size_t lowest_;         // the first one on the axis
  PositionSet positions_;
};

}  // namespace om::internal

#endif  // OM_DISPLAY_INTERNAL_SPARSESCAN_H_
