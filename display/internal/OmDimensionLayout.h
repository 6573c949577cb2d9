// OmDimensionLayout: one dimension spread out for display. Its leaves, which are the nodes that are
// no groups, get positions in the order of the tree, and each leaf has a path up to the root.
//
// Paths share what they have in common: an entry is made once for each node, and leads up. (A path
// with a stale link, below, has entries of its own, but for the root.)
//
//   leaf 0 | category, labels, subscript |  ->  entry A ---above---+
//   leaf 1 | category, labels, subscript |  ->  entry B ---above---+--> entry group --> entry root
//
// The labels of a leaf, as a column or row heading shows them, are from the top down the nodes of
// its path that are not hidden, up to the first group with hidden labels. Those above the leaf are
// in an array that the leaves of one group share.
//
// Paths follow the parent links of the tree as they stand, also where OmDimension::Delete has left
// them stale, so that they may show a sibling of the true parent. A link is not followed when it
// designates no record of the level above; the true parent then stands in the path.
//
// Ownership: all storage, the layout's own included, is the region's and ends with it; destructors
//   need not be run. Lifetime: it must not outlive the dimension.
// Errors: std::bad_alloc, std::length_error "vector<T> too long".

#ifndef OM_DISPLAY_INTERNAL_OMDIMENSIONLAYOUT_H_
#define OM_DISPLAY_INTERNAL_OMDIMENSIONLAYOUT_H_

#include <cstddef>
#include <cstdint>
#include <deque>
#include <vector>

#include "backend/tables/OmVector.h"
#include "dimensions/OmDimension.h"
#include "external/cells/OmMemoryRegion.h"

namespace om::internal {

class OmDimensionLayout {
 public:
  using ConstNode = OmDimension::ConstNode;

  // What a path consists of.
  struct Entry {
    ConstNode node;
    Entry* above;          // null at the root
    std::uint32_t labels;  // on the path from the root to here, this entry counted
    bool isLabel;          // it is the last one of them
    bool closed;           // it is at or below a group with hidden labels
  };

  OmDimensionLayout(OmMemoryRegion& region, const OmDimension& dimension);
  OmDimensionLayout(const OmDimensionLayout&) = delete;
  OmDimensionLayout& operator=(const OmDimensionLayout&) = delete;

  static void* operator new(std::size_t size, OmMemoryRegion& region) {
    return region.Allocate(size);
  }
  static void operator delete(void* layout) noexcept { OmMemoryRegion::Release(layout); }
  static void operator delete(void* layout, OmMemoryRegion&) noexcept {
    OmMemoryRegion::Release(layout);
  }

  // The number of leaves.
  std::size_t size() const { return leaves_.size(); }

  // The path of a leaf: its entry, from which the others are found above it.
  // REQUIRES: position < size(), here and below.
  Entry* path(std::size_t position) const { return leaves_[position].category; }
  // Whether the leaf is not the root itself.
  bool isBelowRoot(std::size_t position) const { return path(position)->above != nullptr; }
  // The number of labels that the leaf shows, 65535 at most.
  std::uint16_t visibleDepth(std::size_t position) const { return leaves_[position].visibleDepth; }
  // The label in a row of the leaf's block, or null.
  ConstNode* label(std::size_t position, std::size_t row) const {
    const Leaf& leaf = leaves_[position];
    if (row < leaf.labelsAbove) return leaf.labels[row];
    return row < leaf.visibleDepth ? &leaf.category->node : nullptr;
  }
  // The leaf's coordinate in cell indexes. Negative when no cell can have it.
  int positionToSubscript(std::size_t position) const { return leaves_[position].subscript; }

  // The last leaf with this subscript, or -1.
  int subscriptToPosition(int subscript) const {
    const auto which = static_cast<std::uint32_t>(subscript);  // of a negative one, beyond the end
    return which < subscripts_ ? static_cast<int>(positions_[which]) - 1 : -1;
  }

  // Whether the subscripts are 0 to size() - 1, each once, in whatever order.
  bool subscriptsAreFirst() const { return subscriptsAreFirst_; }

  // The largest number of labels of a leaf; 0 without leaves.
  int maxVisibleDepth() const { return maxVisibleDepth_; }

  // The entry of the root, which every path leads up to; null when the dimension has no categories.
  Entry* root() const { return root_; }
  // Whether the root is the first label of the leaves.
  bool rootIsLabel() const { return !leaves_.empty() && root_->isLabel; }

  // The path from the root down as a layer shows it: with a null for each hidden node, up to the
  // first group that is not hidden but whose labels are.
  std::deque<ConstNode*> layerPath(std::size_t position) const;
  // Appends the whole path from the root down.
  void appendPath(std::size_t position, std::vector<ConstNode*>& out) const;

 private:
  class Walk;

  struct Leaf {
    Entry* category;
    ConstNode** labels;
    int subscript;
    std::uint16_t labelsAbove;  // the leaf itself not counted
    std::uint16_t visibleDepth;
  };

  void enterSubscripts(OmMemoryRegion& region, std::size_t categories);

  OmVector<Leaf> leaves_;
  const std::uint32_t* positions_ = nullptr;  // for each subscript the position plus 1, or 0
  std::uint32_t subscripts_ = 0;              // the number of them
  bool subscriptsAreFirst_ = false;
  int maxVisibleDepth_ = 0;
  Entry* root_ = nullptr;
};

}  // namespace om::internal

#endif  // OM_DISPLAY_INTERNAL_OMDIMENSIONLAYOUT_H_
