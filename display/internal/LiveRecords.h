// LiveRecords: which addresses are those of records of a dimension's tree, level by level. A parent
// link that an edit has left stale may lead to any of them, or to none.

#ifndef OM_DISPLAY_INTERNAL_LIVERECORDS_H_
#define OM_DISPLAY_INTERNAL_LIVERECORDS_H_

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

#include "dimensions/OmDimension.h"

namespace om::internal {

class LiveRecords {
 public:
  using Record = OmDimension::Tree::Entry;

  LiveRecords() = default;
  explicit LiveRecords(const OmDimension& dimension) {
    OmDimension::Tree::Walk(dimension.Root(), [&](const OmDimension::ConstNode& node) {
      const std::size_t level = node.Depth() + std::size_t{1};
      if (level >= levels_.size()) levels_.resize(level + 1);
      if (node.ChildCount() != 0) {
        levels_[level].emplace_back(addressOf(node.FirstChild().Record()),
                                    addressOf(node.ChildrenEnd().Record()));
      }
      return true;
    });
    for (Ranges& ranges : levels_) std::sort(ranges.begin(), ranges.end());
  }

  bool empty() const { return levels_.empty(); }

  // Whether a record of this level is there. REQUIRES: 0 < level < the number of levels.
  bool contains(const Record* record, std::size_t level) const {
    const std::uintptr_t address = addressOf(record);
    const Ranges& ranges = levels_[level];
    const auto behind =
        std::upper_bound(ranges.begin(), ranges.end(), Range(address, ~std::uintptr_t{0}));
    if (behind == ranges.begin()) return false;
    const auto& [begin, end] = *(behind - 1);
    return address < end && (address - begin) % sizeof(Record) == 0;
  }

 private:
  using Range = std::pair<std::uintptr_t, std::uintptr_t>;  // the children of one node
  using Ranges = std::vector<Range>;

  static std::uintptr_t addressOf(const Record* record) {
    return reinterpret_cast<std::uintptr_t>(record);
  }

  std::vector<Ranges> levels_;
};

}  // namespace om::internal

#endif  // OM_DISPLAY_INTERNAL_LIVERECORDS_H_
