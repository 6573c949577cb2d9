// OmDisplayLayerData: the state of a layer heading, and the region of its layouts.

#ifndef OM_DISPLAY_INTERNAL_OMDISPLAYLAYERDATA_H_
#define OM_DISPLAY_INTERNAL_OMDISPLAYLAYERDATA_H_

#include <cstddef>
#include <cstdint>
#include <vector>

#include "backend/tables/PuppetVector.h"
#include "display/OmDisplayLayerHeading.h"
#include "display/internal/AxisIndex.h"
#include "display/internal/EmptinessScan.h"
#include "display/internal/OmDimensionLayout.h"
#include "external/cells/OmMemoryRegion.h"
#include "pivot/OmPivotTable.h"

namespace om::internal {

class OmDisplayLayerData : public OmMemoryRegion {
 public:
  OmDisplayLayerData(OmPivotTable& pivotTable, bool skip);

  // The layout of a dimension of the table, or null where the axis entry designates none.
  const OmDimensionLayout* layoutOf(short dimension) const {
    const auto which = static_cast<std::size_t>(dimension);  // of -1, far beyond the end
    return which < layouts.size() ? layouts[which] : nullptr;
  }

  // Whether a layer is current, and its position among all layers. A number that was restored, and
  // is none of a layer that is not skipped, has no position.
  bool currentPosition(std::uint64_t& position) const;

  // The leaf that the current layer shows of the dimension at a heading position.
  struct Category {
    const OmDimensionLayout* layout;  // null when there is none
    std::size_t leaf;
  };
  Category currentCategory(std::size_t headingPosition) const;

  OmPivotTable* const table;
  const bool skipEmpty;
  std::vector<int> currentCellIndex;
  std::vector<OmDimensionLayout*> layouts;
  PuppetVector<short> layerDimensions;
  std::vector<OmDimensionLayout*> layerLayouts;
  std::vector<unsigned long long> nonEmptyLayers;
  CellCensus census;
  std::uint64_t layerCount;
  std::int64_t currentLayer = -1;
  AxisIndex layerIndex;
};

// The way for column and row headings, and for tests, into what a heading does not show.
struct DisplayInternals {
  template <class Heading>
  static auto& dataOf(const Heading& heading) {
    return *heading._my;
  }
};

}  // namespace om::internal

#endif  // OM_DISPLAY_INTERNAL_OMDISPLAYLAYERDATA_H_
