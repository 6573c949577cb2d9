// The operations that reshape a dimension's tree. Each one first makes everything that may fail,
// and then changes the tree.

#include <algorithm>
#include <deque>
#include <functional>
#include <optional>

#include "dimensions/OmDimension.h"
#include "dimensions/internal/NodeTracker.h"
#include "dimensions/internal/TreePath.h"

using om::internal::shareTracker;
using om::internal::TreePath;

namespace {

using Tree = OmDimension::Tree;
using Entry = Tree::Entry;

constexpr unsigned long long kGroupSubscript = ~0ULL;
constexpr unsigned long long kDissolvedSubscript = ~0ULL - 1;

std::size_t positionOf(const Entry& parent, const Entry& child) {
  return static_cast<std::size_t>(&child - parent.children.begin());
}

// The value of the sibling behind the record, if there is one.
std::optional<OmDimensionNode> nextValue(const Entry& record) {
  if (&record + 1 == record.parent->children.end()) return std::nullopt;
  return std::optional<OmDimensionNode>(std::in_place, (&record + 1)->value);
}

const OmDimensionNode* addressOf(const std::optional<OmDimensionNode>& value) {
  return value ? &*value : nullptr;
}

bool isBelow(const Entry& record, const Entry& top) {
  const Entry* at = record.parent;
  while (at != nullptr && at != &top) at = at->parent;
  return at != nullptr;
}

}  // namespace

void OmDimension::Delete(Node& node) {
  Entry& parent = *node.Record()->parent;
  const std::uint32_t largest = largestSubscriptBut(node.Record());
  const auto offset = static_cast<int>(Tree::OffsetOf(*node.Record()));
  Tree::Erase(node);
  OmVector<int>& index = parent.value.ChildIndex();
  for (std::size_t i = 0; i < index.size();) {
    if (index[i] == offset) {
      index.erase(i);
      continue;
    }
    if (index[i] > offset) --index[i];
    ++i;
  }
  numCategories_ = static_cast<std::int32_t>(largest + 1);
}

OmDimensionNode OmDimension::insertCategory(const OmCellText& text, Node parent, Node sibling,
                                            bool before) {
  OmDimensionNode category(text, largestSubscriptBut(nullptr) + 1, false, nullptr);
  shareTracker(category, *parent);
  Entry& above = *parent.Record();
  Tree::Detached record(
      std::in_place, [&] { return OmDimensionNode(category, &Region()); }, &Region(), &above);

  const OmDimensionNode* place = nullptr;
  if (!above.children.empty()) {
    if (!before) ++sibling;
    if (std::less<>()(sibling.Record(), above.children.end())) place = &*sibling;
  }
  Tree::InsertBefore(above, std::move(record), place);
  Tree::Reparent(above, true);
  ++numCategories_;
  return category;
}

void OmDimension::insertChild(const OmCellText& text, std::vector<Node*> nodes) {
  if (nodes.empty() || nodes.front()->Record()->parent == nullptr) return;
  Entry& parent = *nodes.front()->Record()->parent;

  Tree::Detached group(
      std::in_place, [&] { return OmDimensionNode(text, kGroupSubscript, true, &Region()); },
      &Region(), &parent);
  shareTracker((*group).value, **nodes.front());
  std::vector<std::size_t> positions;
  positions.reserve(nodes.size());
  for (const Node* node : nodes) {
    Tree::Append(*group, *node->Record());
    positions.push_back(Tree::OffsetOf(*node->Record()));
  }

  // From the last to the first, so that no position changes before its turn.
  std::size_t place = positions.front();
  std::sort(positions.begin(), positions.end(), std::greater<>());
  positions.erase(std::unique(positions.begin(), positions.end()), positions.end());
  place -= static_cast<std::size_t>(
      std::count_if(positions.begin(), positions.end(),
                    [place](std::size_t position) { return position < place; }));
  for (const std::size_t position : positions) parent.children.erase(position);

  const bool atEnd = place == parent.children.size();
  Tree::InsertBefore(parent, std::move(group), atEnd ? nullptr : &parent.children[place].value);
  Tree::Reparent(parent, true);
}

void OmDimension::removeChild(Node& node) {
  node->Subscript(kDissolvedSubscript);
  if (node.Depth() == 0 || node.ChildCount() == 0) return;
  Entry& parent = *node.Record()->parent;
  std::size_t offset = Tree::OffsetOf(*node.Record());
  std::size_t place = Tree::IndexOf(node.Parent(), *node);
  if (place >= parent.children.size()) return;

  std::deque<Tree::Detached> copies;
  for (const Entry& child : node.Record()->children) {
    copies.emplace_back(std::in_place, child, Tree::plainCopy, &Region(), &parent);
  }
  parent.children.makeRoom(copies.size());

  // Each copy goes in front of the first sibling that equals the node. That is the node, unless an
  // equal sibling stands before it; a copy that equals the node itself becomes that sibling.
  for (Tree::Detached& copy : copies) {
    const bool equalsNode = (*copy).value == parent.children[offset].value;
    parent.children.insert(place, std::move(copy));
    ++offset;
    if (!equalsNode) ++place;
  }
  parent.children.erase(offset);
  Tree::Reparent(parent, true);
  node = Node(parent.children.begin() + offset, node.Depth());
}

void OmDimension::moveChild(Node& node, Node* target, bool exchange) {
  const Entry& record = *node.Record();
  if (record.parent == nullptr) return;
  if (target == nullptr) {
    const Entry* ancestor = record.parent;
    while (ancestor->value.Hide() && ancestor->parent != nullptr) ancestor = ancestor->parent;
    moveInto(record, *ancestor, nullptr);
    return;
  }
  const Entry& other = *target->Record();
  if (other.parent == nullptr || isBelow(other, record)) return;
  if (!exchange) {
    moveInto(record, *other.parent, &other);
  } else if (&other != &record && !isBelow(record, other)) {
    exchangePlaces(record, other);
  }
}

// Moves the record in front of the first child of `parent` that equals `before`, or to the end.
void OmDimension::moveInto(const Entry& record, const Entry& parent, const Entry* before) {
  TreePath from = TreePath::of(*record.parent);
  TreePath to = TreePath::of(parent);
  const std::size_t offset = Tree::OffsetOf(record);
  std::optional<OmDimensionNode> sibling;
  if (before != nullptr) sibling.emplace(before->value);
  Tree::Detached copy(std::in_place, record, Tree::plainCopy, &Region(), nullptr);
  if (!(from == to)) to.in(root_).children.makeRoom();

  from.in(root_).children.erase(offset);
  to.erased(from, offset);
  Entry& above = to.in(root_);
  const Entry& moved = Tree::InsertBefore(above, std::move(copy), addressOf(sibling));
  from.inserted(to, positionOf(above, moved));
  Tree::Reparent(from.in(root_), true);
  Tree::Reparent(to.in(root_), true);
}

void OmDimension::exchangePlaces(const Entry& a, const Entry& b) {
  TreePath aParent = TreePath::of(*a.parent);
  TreePath bParent = TreePath::of(*b.parent);
  const std::size_t aOffset = Tree::OffsetOf(a);
  const std::optional<OmDimensionNode> behindA = nextValue(a);
  const std::optional<OmDimensionNode> behindB = nextValue(b);
  const bool bFollowsA = &a + 1 == &b && a.parent == b.parent;
  const bool aFollowsB = &b + 1 == &a && a.parent == b.parent;
  const OmDimensionNode* const placeOfA = addressOf(aFollowsB ? behindA : behindB);
  const OmDimensionNode* const placeOfB = addressOf(bFollowsA ? behindB : behindA);
  Tree::Detached aCopy(std::in_place, a, Tree::plainCopy, &Region(), nullptr);
  Tree::Detached bCopy(std::in_place, b, Tree::plainCopy, &Region(), nullptr);

  // Both parents have room for what they get, once they have lost what they give.
  aParent.in(root_).children.erase(aOffset);
  bParent.erased(aParent, aOffset);
  Entry& former = bParent.in(root_);
  const std::size_t bOffset = Tree::IndexOf(Node(&former, 0), (*bCopy).value);
  former.children.erase(bOffset);
  aParent.erased(bParent, bOffset);

  const auto put = [this](Tree::Detached& copy, const TreePath& parent, TreePath& other,
                          const OmDimensionNode* place) {
    Entry& above = parent.in(root_);
    other.inserted(parent, positionOf(above, Tree::InsertBefore(above, std::move(copy), place)));
  };
  if (bFollowsA) put(bCopy, bParent, aParent, placeOfB);
  put(aCopy, aParent, bParent, placeOfA);
  if (!bFollowsA) put(bCopy, bParent, aParent, placeOfB);
  Tree::Reparent(aParent.in(root_), true);
  Tree::Reparent(bParent.in(root_), true);
}

std::uint32_t OmDimension::getMaximumDepth() const { return getDepth(Root()) + 1; }

unsigned long long OmDimension::getMaxVisibleGroupCount() const {
  std::vector<unsigned long long> counts(getMaximumDepth(), 0);
  getGroupCountsByLevel(Root(), counts);
  return *std::max_element(counts.begin(), counts.end());
}

// The largest subscript of all nodes that are no groups, by its low 32 bits; 0 when there is none.
// A record and its subtree are left out.
std::uint32_t OmDimension::largestSubscriptBut(const Entry* left) const {
  std::uint32_t largest = 0;
  Tree::Walk(Root(), [&](const ConstNode& node) {
    if (node.Record() == left) return false;
    if (!node->IsGroup()) {
      largest = std::max(largest, static_cast<std::uint32_t>(node->Subscript()));
    }
    return true;
  });
  return largest;
}

std::uint32_t OmDimension::getDepth(ConstNode node) const {
  std::uint32_t deepest = node.Depth();
  Tree::Walk(node, [&](const ConstNode& each) {
    deepest = std::max(deepest, each.Depth());
    return true;
  });
  return deepest;
}

void OmDimension::getGroupCountsByLevel(ConstNode node,
                                        std::vector<unsigned long long>& counts) const {
  Tree::Walk(node, [&](const ConstNode& parent) {
    bool childlessCounted = false;
    for (const ConstNode child : parent.Children()) {
      if (child->IsGroup() && !child->Hide()) {
        ++counts[child.Depth()];
      } else if (!childlessCounted && child.ChildCount() == 0) {
        ++counts[child.Depth()];
        childlessCounted = true;
      }
    }
    return true;
  });
}
