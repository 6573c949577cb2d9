#include "dimensions/OmDimension.h"

#include "backend/OMSException.h"
#include "dimensions/internal/NodeTracker.h"

using om::internal::shareTracker;

namespace {

using Tree = OmDimension::Tree;

}  // namespace

OmDimension::OmDimension(const OmDimensionNode& node, OmMemoryRegion* region)
    : root_([&node] { return OmDimensionNode(node); }, region, nullptr) {}

OmDimension::OmDimension(const OmDimension& other, OmMemoryRegion* region)
    : root_(
          other.root_,
          [region](const OmDimensionNode& node) { return OmDimensionNode(node, region); }, region,
          nullptr),
      numCategories_(other.numCategories_) {}

OmDimension::~OmDimension() = default;

OmDimension::Node OmDimension::AddNewChild(const Node& parent, const OmCellText& text,
                                           unsigned long long subscript, bool isGroup) {
  return add(parent, parent->ChildIndex().size(), isGroup,
             [&] { return OmDimensionNode(text, subscript, isGroup, &Region()); });
}

OmDimension::Node OmDimension::Child(const Node& parent, const OmCellText& text,
                                     unsigned long long subscript, bool isGroup) {
  return findOrAdd(parent, text, isGroup,
                   [&] { return OmDimensionNode(text, subscript, isGroup, &Region()); });
}

OmDimension::Node OmDimension::Child(const Node& parent, const OmDimensionNode& node) {
  return findOrAdd(parent, *node.Text(), node.IsGroup(),
                   [&] { return OmDimensionNode(node, &Region()); });
}

int OmDimension::FindChild(ConstNode parent, const OmCellText& text, bool isGroup) {
  const Tree::Entry& record = *parent.Record();
  const std::size_t position = lowerBound(record, text, isGroup);
  return matchesAt(record, position, text, isGroup) ? record.value.ChildIndex()[position] : -1;
}

void OmDimension::Print() const {
  Tree::Walk(Root(), [](const ConstNode& node) {
    node->Print(node.Depth());
    return true;
  });
}

// The index takes the new child's position, which by definition is its own count. Room for it comes
// first: after the child is there, nothing may fail.
template <class MakeValue>
OmDimension::Node OmDimension::add(const Node& parent, std::size_t indexPosition, bool isGroup,
                                   const MakeValue& makeValue) {
  OmVector<int>& index = parent->ChildIndex();
  index.makeRoom();
  OmDimensionNode& added = Tree::AppendValue(*parent.Record(), makeValue).value;
  shareTracker(added, *parent);
  added.ChildIndex().clear();
  index.insert(indexPosition, static_cast<int>(index.size()));
  if (!isGroup) ++numCategories_;
  return parent.ChildAt(parent.ChildCount() - 1);
}

template <class MakeValue>
OmDimension::Node OmDimension::findOrAdd(const Node& parent, const OmCellText& text, bool isGroup,
                                         const MakeValue& makeValue) {
  if (!parent->IsGroup()) throw OMSException("OmDimension::Child -- parent is not group");
  const std::size_t position = lowerBound(*parent.Record(), text, isGroup);
  if (matchesAt(*parent.Record(), position, text, isGroup)) {
    return parent.ChildAt(static_cast<std::size_t>(parent->ChildIndex()[position]));
  }
  return add(parent, position, isGroup, makeValue);
}

// The first position in the parent's index whose child does not precede the text, by halving: the
// index need not be in order. Positions that editing has left behind count as preceding everything.
std::size_t OmDimension::lowerBound(const Tree::Entry& parent, const OmCellText& text,
                                    bool isGroup) {
  const OmVector<int>& index = parent.value.ChildIndex();
  const auto precedes = [&](std::size_t indexPosition) {
    const auto place = static_cast<std::size_t>(index[indexPosition]);
    if (place >= parent.children.size()) return true;
    const OmDimensionNode& child = parent.children[place].value;
    return OmDimensionNode::Precedes(child.IsGroup(), *child.Text(), isGroup, text);
  };
  std::size_t first = 0;
  for (std::size_t count = index.size(); count != 0;) {
    const std::size_t half = count / 2;
    if (precedes(first + half)) {
      first += half + 1;
      count -= half + 1;
    } else {
      count = half;
    }
  }
  return first;
}

// REQUIRES: the position is the lower bound of the text.
bool OmDimension::matchesAt(const Tree::Entry& parent, std::size_t indexPosition,
                            const OmCellText& text, bool isGroup) {
  const OmVector<int>& index = parent.value.ChildIndex();
  if (indexPosition == index.size()) return false;
  const OmDimensionNode& child =
      parent.children[static_cast<std::size_t>(index[indexPosition])].value;
  return !OmDimensionNode::Precedes(isGroup, text, child.IsGroup(), *child.Text());
}
