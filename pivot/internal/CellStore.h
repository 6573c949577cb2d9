// CellStore: the stored cells of a table, as a tree of pointer vectors with a level for each
// dimension. The root is indexed by the subscript along the last dimension, the leaves by that
// along dimension 0:
//
//   cell at (s0, s1, s2):   root[s2] -> [s1] -> [s0] -> text
//
// Nodes are made when a cell is stored below them. A table whose dimensions were all added before
// the first cell has leaves at exactly the depth of its dimensions; each dimension that is added
// later puts a new root above the former one.
//
// Ownership: the store owns its nodes and cells; both are on the table's region.
// Errors: std::bad_alloc; the store then finds and iterates what it did before.

#ifndef OM_PIVOT_INTERNAL_CELLSTORE_H_
#define OM_PIVOT_INTERNAL_CELLSTORE_H_

#include <cstddef>
#include <memory>
#include <vector>

#include "external/cells/OmCellText.h"
#include "external/cells/OmMemoryRegion.h"
#include "pivot/internal/PointerVector.h"

namespace om::internal {

class CellStore {
 public:
  explicit CellStore(OmMemoryRegion& region) : region_(region) {}
  CellStore(const CellStore&) = delete;
  CellStore& operator=(const CellStore&) = delete;

  // Null while no cell was stored.
  const PointerVector* Root() const { return static_cast<const PointerVector*>(root_); }

  // The cell at the index, or null, as for a negative subscript.
  // REQUIRES: the index has a subscript for each level.
  OmCellText* Find(const std::vector<int>& index) const {
    void* element = root_;
    for (auto subscript = index.end(); subscript != index.begin() && element != nullptr;) {
      element = static_cast<const PointerVector*>(element)->at(*--subscript);
    }
    return static_cast<OmCellText*>(element);
  }

  // Makes the way to the index. `Put` on what it gives stores a cell there.
  // REQUIRES: a subscript for each level and at least one, none of them negative.
  class Place;
  Place Reach(const std::vector<int>& index);

  // Destroys the cell at the index and then every node on the way there, but the root, that leads
  // to no cell any more. Nothing where the way does not exist.
  void Erase(const std::vector<int>& index) noexcept;

  // Puts the cells at position 0 of a new last dimension.
  void AddLevel();

  // Destroys all cells and nodes, `depth` levels of them. (Cells that end with the region are left
  // to it.) Calls itself once for each level.
  void Destroy(std::size_t depth) noexcept;

 private:
  void*& addWay(const std::vector<int>& index, std::size_t levels, void*& link);
  static void destroy(void* element, std::size_t depth) noexcept;

  OmMemoryRegion& region_;
  void* root_ = nullptr;
  bool cellsEndWithRegion_ = true;
};

// Where a cell is stored.
class CellStore::Place {
 public:
  // The cell that stands there, or null.
  OmCellText* Cell() const { return static_cast<OmCellText*>(element_); }

  // Stores a cell, or none, and destroys the one that stood there.
  void Put(std::unique_ptr<OmCellText> cell) noexcept {
    if (cell && !cell->endsWith(store_.region_)) store_.cellsEndWithRegion_ = false;
    OmCellText* const former = Cell();
    element_ = cell.release();
    delete former;
  }

 private:
  friend class CellStore;

  Place(CellStore& store, void*& element) : store_(store), element_(element) {}

  CellStore& store_;
  void*& element_;
};

}  // namespace om::internal

#endif  // OM_PIVOT_INTERNAL_CELLSTORE_H_
