// CellIteration: walks the stored cells of a cell store, dimension 0 fastest.

#ifndef OM_PIVOT_INTERNAL_CELLITERATION_H_
#define OM_PIVOT_INTERNAL_CELLITERATION_H_

#include <cstddef>
#include <cstdint>
#include <vector>

#include "external/cells/OmCellText.h"
#include "pivot/OmPivotTable.h"
#include "pivot/internal/PointerVector.h"

namespace om::internal {

class CellIteration : public CellPlace {
 public:
  // Not on a cell; First or Complete goes to one. `sizes` has the size of each dimension.
  CellIteration(const PointerVector* root, const std::vector<int>& sizes);

  // Goes to the first child at every level, and deliberately looks no further when there is no cell
  // below it: the iteration has then ended.
  void First();

  // Goes to the first cell, wherever it is.
  void Complete();

  // Goes to the cell at or behind the present place, whatever was passed on the way.
  // REQUIRES: not at the end.
  void Find() { find(0, static_cast<std::size_t>(at - leaf)); }

  // Goes to the next cell. Nothing at the end.
  void Next() {
    if (at != nullptr && !Step()) Find();
  }

  // Null at the end.
  OmCellText* Cell() const { return at != nullptr ? static_cast<OmCellText*>(*at) : nullptr; }
  // The subscripts of the present place.
  const std::vector<int>& Index();

 private:
  // Level i is that of dimension i; the last one is the root's. The position in the leaf is that of
  // the place.
  struct Level {
    std::uint64_t position;
    std::uint64_t size;  // the dimension's, when the iteration began
    const PointerVector* node;
  };

  void find(std::size_t level, std::size_t from);
  void stand(std::size_t position);

  const PointerVector* root_;
  std::vector<Level> levels_;
  std::vector<int> index_;
};

}  // namespace om::internal

#endif  // OM_PIVOT_INTERNAL_CELLITERATION_H_
