#include "display/internal/OmDimensionLayout.h"

#include <algorithm>
#include <cstring>
#include <limits>

#include "display/internal/LiveRecords.h"

namespace om::internal {

namespace {

// Beyond that many leaves or subscripts, memory is taken only as it is needed.
constexpr std::size_t kMostExpected = std::size_t{1} << 20;

}  // namespace

// Goes through the tree and makes the entries, those of one node's children side by side.
class OmDimensionLayout::Walk {
 public:
  Walk(OmMemoryRegion& region, const OmDimension& dimension, OmVector<Leaf>& leaves)
      : region_(region), dimension_(dimension), leaves_(leaves) {}

  // Gives the entry of the root.
  Entry* operator()() {
    Entry* const root = entries(1);
    OmDimension::Tree::Walk(dimension_.Root(), [&](const ConstNode& node) {
      if (node.Depth() == 0) return enterRoot(root, node);
      while (ways_.size() > node.Depth()) ways_.pop_back();
      return enterBelow(node, ways_.back());
    });
    return root;
  }

 private:
  // A group on the way down to where the walk is.
  struct Way {
    Entry* group;
    Entry* next;                   // the entry of its next child
    bool followed;                 // the links up from the group are those of the way
    ConstNode** labels = nullptr;  // down to the group; made for its first leaf
  };

  bool enterBelow(const ConstNode& node, Way& way) {
    Entry* const entry = way.next++;
    if (node->IsGroup()) {
      const bool followed = way.followed && leadsTo(way, node);
      make(entry, node, way.group);
      return enterGroup(entry, followed);
    }
    if (!way.followed || !leadsTo(way, node)) {
      Entry* const own = pathByLinks(node);
      add(own, labelsOf(own->above));
      return false;
    }
    make(entry, node, way.group);
    if (way.labels == nullptr) way.labels = labelsOf(way.group);
    add(entry, way.labels);
    return false;
  }

  bool enterRoot(Entry* root, const ConstNode& node) {
    make(root, node, nullptr);
    if (node->IsGroup()) return enterGroup(root, true);
    add(root, nullptr);
    return false;
  }

  static bool leadsTo(const Way& way, const ConstNode& node) {
    return node.Record()->parent == way.group->node.Record();
  }

  bool enterGroup(Entry* group, bool followed) {
    ways_.push_back({group, entries(group->node.ChildCount()), followed});
    return true;
  }

  void add(Entry* leaf, ConstNode** labels) {
    constexpr std::uint32_t kMost = std::numeric_limits<std::uint16_t>::max();
    const auto above = static_cast<std::uint16_t>(std::min(labelsTo(leaf->above), kMost));
    const auto shown = static_cast<std::uint16_t>(std::min(leaf->labels, kMost));
    leaves_.push_back({leaf, labels, static_cast<int>(leaf->node->Subscript()), above, shown});
  }

  ConstNode** labelsOf(Entry* group) {
    const std::uint32_t count = labelsTo(group);
    auto** const labels = static_cast<ConstNode**>(region_.Allocate(count * sizeof(ConstNode*)));
    for (Entry* entry = group; entry != nullptr; entry = entry->above) {
      if (entry->isLabel) labels[entry->labels - 1] = &entry->node;
    }
    return labels;
  }

  static std::uint32_t labelsTo(const Entry* entry) { return entry != nullptr ? entry->labels : 0; }

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

  // Member by member: compilers copy a whole entry in pieces that overlap, which takes long.
  static void make(Entry* entry, const ConstNode& node, Entry* above) {
    const OmDimensionNode& value = *node;
    const bool closed =
        (above != nullptr && above->closed) || (value.IsGroup() && value.HideLabels());
    const bool isLabel = !closed && !value.Hide();
    entry->node = node;
    entry->above = above;
    entry->labels = labelsTo(above) + (isLabel ? 1 : 0);
    entry->isLabel = isLabel;
    entry->closed = closed;
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
  if (dimension.NumCategories() <= 0) return;
  const auto categories = static_cast<std::size_t>(dimension.NumCategories());
  // As many as there are leaves, unless Delete has counted up to a far subscript.
  leaves_.reserve(std::min(categories, kMostExpected));
  root_ = Walk(region, dimension, leaves_)();
  for (const Leaf& leaf : leaves_) {
    maxVisibleDepth_ = std::max<int>(maxVisibleDepth_, leaf.visibleDepth);
  }
  enterSubscripts(region, categories);
}

void OmDimensionLayout::enterSubscripts(OmMemoryRegion& region, std::size_t categories) {
  std::int64_t largest = -1;
  for (const Leaf& leaf : leaves_) largest = std::max<std::int64_t>(largest, leaf.subscript);
  const std::size_t count = std::max(categories, static_cast<std::size_t>(largest + 1));

  const std::size_t bytes = count * sizeof(std::uint32_t);
  auto* const positions = static_cast<std::uint32_t*>(
      count <= kMostExpected ? std::memset(region.Allocate(bytes), 0, bytes)
                             : region.AllocateZeroed(bytes));
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
