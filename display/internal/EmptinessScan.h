// Which positions of an axis hold a cell.

#ifndef OM_DISPLAY_INTERNAL_EMPTINESSSCAN_H_
#define OM_DISPLAY_INTERNAL_EMPTINESSSCAN_H_

#include <cstdint>
#include <vector>

#include "backend/tables/MultiBase.h"
#include "backend/tables/PuppetVector.h"
#include "pivot/OmPivotTable.h"

namespace om::internal {

class OmDisplayLayerData;

// Whether an iteration over the table's cells meets fewer of them than one per cent of its places,
// rounded half up; and how many it meets, as far as it was necessary to know.
struct CellCensus {
  bool sparse;
  std::uint64_t cells;
};
CellCensus takeCensus(const OmPivotTable& table);

// The positions of the axis, ascending, that hold a cell.
//
// In a table that is not sparse these are the positions with a cell at some position of `others`,
// whose order does not matter, in the layer of the current cell index. Where a category has no
// leaf, the subscript of the position before stands, or of the current cell index. Takes O(1) for a
// position that holds a cell where the position before has one, and otherwise looks at no more than
// the nodes of the cell store that the position shares in.
//
// In a sparse table these are the positions of all cells that an iteration meets, deliberately in
// whatever layer. A cell is left out where its subscript is that of no leaf within the sizes.
std::vector<unsigned long long> nonEmptyPositions(const OmDisplayLayerData& layers,
                                                  const MultiBase& axis,
                                                  const PuppetVector<short>& others);

}  // namespace om::internal

#endif  // OM_DISPLAY_INTERNAL_EMPTINESSSCAN_H_
