// DenseScan: finds the positions of an axis that hold a cell in the current layer, by asking the
// cell store.
//
// On some levels of the store the subscript is known: on those of the axis, at a given position,
// and on those that the layer settles. On the others any category of a dimension will do. The
// search goes down from the root and tries first the subscripts under which it found a cell last.

#ifndef OM_DISPLAY_INTERNAL_DENSESCAN_H_
#define OM_DISPLAY_INTERNAL_DENSESCAN_H_

#include <cstddef>
#include <vector>

#include "backend/tables/MultiBase.h"
#include "backend/tables/PuppetVector.h"
#include "pivot/internal/PointerVector.h"

namespace om::internal {

class OmDimensionLayout;
class OmDisplayLayerData;

class DenseScan {
 public:
  DenseScan(const OmDisplayLayerData& layers, const MultiBase& axis,
            const PuppetVector<short>& others);

  // The positions with a cell, ascending.
  std::vector<unsigned long long> operator()();

 private:
  struct Level {
    int subscript;              // the one that is known, or under which a cell was found last
    bool any = false;           // any of these will do:
    std::size_t below = 0;      // the subscripts less than this number
    std::vector<int> listed{};  // or, when there are some, those in the list
  };
  struct AxisDimension {
    const OmDimensionLayout* layout;
    Level* level;
  };

  static void admitAny(const OmDimensionLayout& layout, std::size_t size, Level& level);
  void descend();
  void place(const MultiBase::Digits& digits);
  bool isBelowLast() const;
  bool find(const void* element, std::size_t levels);
  bool findAny(const PointerVector& node, std::size_t levels, Level& level);

  const MultiBase& axis_;
  std::vector<Level> levels_;          // of dimension 0, 1, ...
  std::vector<AxisDimension> places_;  // for each digit
  const void* start_;                  // the node, or cell, from which every search goes down
  std::size_t startLevels_;            // the number of levels there
};

}  // namespace om::internal

#endif  // OM_DISPLAY_INTERNAL_DENSESCAN_H_
