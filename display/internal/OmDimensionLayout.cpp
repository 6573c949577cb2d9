#include "display/internal/OmDimensionLayout.h"

#include <algorithm>
#include <limits>

#include "display/internal/LiveRecords.h"

namespace om::internal {

// Goes through the tree and makes the entries, those of one node's children side by side.
class OmDimensionLayout::Walk {
 public:
  Walk(OmMemoryRegion& region, const OmDimension& dimension, OmVector<Leaf>& leaves)
      : region_(region), dimension_(dimension), leaves_(leaves) {}

  // Gives the entry of the root.
  Entry* operator()() {
    Entry* const root = entries(1);
    OmDimension::Tree::Walk(dimension_.Root(), [&](const ConstNode& node) {
      const std::size_t depth = node.Depth();
      ways_.erase(ways_.begin() + static_cast<std::ptrdiff_t>(depth), ways_.end());
      return depth == 0 ? enter(node, root, nullptr, true) : enterBelow(node, ways_.back());
    });
    return root;
  }

 private:
  // A group on the way down to where the walk is.
  struct Way {
    Entry* group;
    Entry* next;    // the entry of its next child
    bool followed;  // the links up from the group are those of the way
  };

  bool enterBelow(const ConstNode& node, Way& way) {
    const bool followed = way.followed && node.Record()->parent == way.group->node.Record();
    return enter(node, way.next++, way.group, followed);
  }

  bool enter(const ConstNode& node, Entry* entry, Entry* above, bool followed) {
    make(entry, node, above);
    if (node->IsGroup()) {
      leaves_.makeRoom(node.ChildCount());
      ways_.push_back({entry, entries(node.ChildCount()), followed});
      return true;
    }
    leaves_.push_back(
        {followed ? entry : pathByLinks(node), nullptr, static_cast<int>(node->Subscript()), 0});
    return false;
  }

  // A path of its own for a leaf, or a group above it, with a link that is not that of the way.
  Entry* pathByLinks(const ConstNode& leaf) {
    if (live_.empty()) live_ = LiveRecords(dimension_);
    const std::size_t depth = leaf.Depth();
    Entry* const path = entries(depth);  // but the root's
    path[depth - 1].node = leaf;
    for (std::size_t level = depth - 1; level != 0; --level) {
      const OmDimension::Tree::Entry* record = path[level].node.Record()->parent;
      if (!live_.contains(record, level)) record = ways_[level].group->node.Record();
      path[level - 1].node = ConstNode(record, static_cast<std::uint32_t>(level));
    }
    Entry* above = ways_.front().group;
    for (Entry* entry = path; entry != path + depth; above = entry++) {
      make(entry, entry->node, above);
    }
    return above;
  }

  static void make(Entry* entry, const ConstNode& node, Entry* above) {
    const bool closed =
        (above != nullptr && above->closed) || (node->IsGroup() && node->HideLabels());
    const bool isLabel = !closed && !node->Hide();
    const std::uint32_t labels = (above != nullptr ? above->labels : 0) + (isLabel ? 1 : 0);
    *entry = {node, above, labels, isLabel, closed};
  }

  Entry* entries(std::size_t count) {
    return static_cast<Entry*>(region_.Allocate(count * sizeof(Entry)));
  }

  OmMemoryRegion& region_;
  const OmDimension& dimension_;
  OmVector<Leaf>& leaves_;
  std::vector<Way> ways_;
  LiveRecords live_;
};

OmDimensionLayout::OmDimensionLayout(OmMemoryRegion& region, const OmDimension& dimension)
    : leaves_(&region) {
  const std::int32_t categories = dimension.NumCategories();
  if (categories <= 0) return;
  root_ = Walk(region, dimension, leaves_)();
  enterLabels(region);
  enterSubscripts(region, static_cast<std::size_t>(categories));
}

void OmDimensionLayout::enterLabels(OmMemoryRegion& region) {
  std::size_t total = 0;
  for (Leaf& leaf : leaves_) {
    constexpr std::uint32_t kMost = std::numeric_limits<std::uint16_t>::max();
    leaf.visibleDepth = static_cast<std::uint16_t>(std::min(leaf.category->labels, kMost));
    maxVisibleDepth_ = std::max<int>(maxVisibleDepth_, leaf.visibleDepth);
    total += leaf.category->labels;
  }
  auto** labels = static_cast<ConstNode**>(region.Allocate(total * sizeof(ConstNode*)));
  for (Leaf& leaf : leaves_) {
    leaf.labels = labels;
    labels += leaf.category->labels;
    for (Entry* entry = leaf.category; entry != nullptr; entry = entry->above) {
      if (entry->isLabel) leaf.labels[entry->labels - 1] = &entry->node;
    }
  }
}

void OmDimensionLayout::enterSubscripts(OmMemoryRegion& region, std::size_t categories) {
  std::int64_t largest = -1;
  for (const Leaf& leaf : leaves_) largest = std::max<std::int64_t>(largest, leaf.subscript);
  const std::size_t count = std::max(categories, static_cast<std::size_t>(largest + 1));

  auto* const positions =
      static_cast<std::uint32_t*>(region.AllocateZeroed(count * sizeof(std::uint32_t)));
  std::size_t distinct = 0;
  std::uint32_t position = 0;
  for (const Leaf& leaf : leaves_) {
    ++position;
    if (leaf.subscript < 0) continue;
    if (positions[leaf.subscript] == 0) ++distinct;
    positions[leaf.subscript] = position;
  }
  positions_ = positions;
  subscripts_ = static_cast<std::uint32_t>(count);
  subscriptsAreFirst_ = distinct == size() && static_cast<std::size_t>(largest + 1) == size();
}

std::deque<OmDimensionLayout::ConstNode*> OmDimensionLayout::layerPath(std::size_t position) const {
  std::size_t shown = path(position)->node.Depth() + std::size_t{1};
  std::deque<ConstNode*> result(shown);
  for (Entry* entry = path(position); entry != nullptr; entry = entry->above) {
    const OmDimensionNode& value = *entry->node;
    if (value.Hide()) continue;
    result[entry->node.Depth()] = &entry->node;
    if (value.IsGroup() && value.HideLabels()) shown = entry->node.Depth();
  }
  result.resize(shown);
  return result;
}

void OmDimensionLayout::appendPath(std::size_t position, std::vector<ConstNode*>& out) const {
  out.resize(out.size() + path(position)->node.Depth() + 1);
  auto end = out.end();
  for (Entry* entry = path(position); entry != nullptr; entry = entry->above) {
    *--end = &entry->node;
  }
}

}  // namespace om::internal
