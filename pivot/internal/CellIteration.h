// CellIteration: walks the stored cells of a cell store, dimension 0 fastest.

#ifndef OM_PIVOT_INTERNAL_CELLITERATION_H_
#define OM_PIVOT_INTERNAL_CELLITERATION_H_

#include <cstddef>
#include <cstdint>
#include <vector>

#include "external/cells/OmCellText.h"
#include "pivot/internal/PointerVector.h"

namespace om::internal {

class CellIteration {
 public:
  // Not on a cell; First or Complete goes to one. `sizes` has the size of each dimension.
  CellIteration(const PointerVector* root, const std::vector<int>& sizes);

  // Goes to the first child at every level, and deliberately looks no further when there is no cell
  // below it: the iteration has then ended.
  void First();

  // Goes to the first cell, wherever it is.
  void Complete();

  // Goes to the next cell, whatever was passed on the way. Nothing at the end.
  void Next();

  // Null at the end.
  OmCellText* Cell() const { return cell_; }
  const std::vector<int>& Index() const { return index_; }

 private:
  // Level i is that of dimension i; the last one is the root's.
  struct Level {
    std::uint64_t position;
    std::uint64_t size;  // the dimension's, when the iteration began
    const PointerVector* node;
  };

  void find(std::size_t level, std::size_t from);

  const PointerVector* root_;
  std::vector<Level> levels_;
  std::vector<int> index_;
  OmCellText* cell_ = nullptr;
};

}  // namespace om::internal

#endif  // OM_PIVOT_INTERNAL_CELLITERATION_H_
