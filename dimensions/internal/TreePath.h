// TreePath: where a record stands in its tree, as positions from the root down. Records move when
// children are inserted or erased around them; a path that is told of each such change leads to the
// same record afterwards.
//
// Only `of` and copying a path need memory, so a change can be prepared with paths and then carried
// out without a failure.

#ifndef OM_DIMENSIONS_INTERNAL_TREEPATH_H_
#define OM_DIMENSIONS_INTERNAL_TREEPATH_H_

#include <algorithm>
#include <cstddef>
#include <vector>

#include "dimensions/OmDimension.h"

namespace om::internal {

class TreePath {
 public:
  using Entry = OmDimension::Tree::Entry;

  // REQUIRES: the parent links are right.
  static TreePath of(const Entry& record) {
    TreePath path;
    for (const Entry* at = &record; at->parent != nullptr; at = at->parent) {
      path.positions_.push_back(OmDimension::Tree::OffsetOf(*at));
    }
    std::reverse(path.positions_.begin(), path.positions_.end());
    return path;
  }

  Entry& in(Entry& root) const {
    Entry* at = &root;
    for (const std::size_t position : positions_) at = &at->children[position];
    return *at;
  }

  // The child at the position below the parent was erased. REQUIRES: it is not on this path.
  void erased(const TreePath& parent, std::size_t position) {
    if (leadsThrough(parent) && positions_[parent.positions_.size()] > position) {
      --positions_[parent.positions_.size()];
    }
  }

  // A child was inserted at the position below the parent.
  void inserted(const TreePath& parent, std::size_t position) {
    if (leadsThrough(parent) && positions_[parent.positions_.size()] >= position) {
      ++positions_[parent.positions_.size()];
    }
  }

  bool operator==(const TreePath&) const = default;

 private:
  bool leadsThrough(const TreePath& other) const {
    return positions_.size() > other.positions_.size() &&
           std::equal(other.positions_.begin(), other.positions_.end(), positions_.begin());
  }

  std::vector<std::size_t> positions_;
};

}  // namespace om::internal

#endif  // OM_DIMENSIONS_INTERNAL_TREEPATH_H_
