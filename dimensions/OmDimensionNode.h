// OmDimensionNode: the value of one node of a dimension's category tree: the dimension's name at
// the root, a group heading at an inner node, a category at a leaf.
//
// Ownership: a node owns its text, a clone in the node's region, and the index over its children.
// Lifetime: it must not outlive its region. Threads: one at a time.
// Errors: std::bad_alloc and what cloning a text throws; the node is then as before.

#ifndef OM_DIMENSIONS_OMDIMENSIONNODE_H_
#define OM_DIMENSIONS_OMDIMENSIONNODE_H_

#include <cstdint>
#include <memory>

#include "backend/Export.h"
#include "backend/tables/OmVector.h"
#include "external/cells/OmCellText.h"

struct OmSort {
  enum Order : std::int32_t { UP = 0, DOWN = 1, NONE = 2 };
};

class OM_EXPORT OmDimensionNode {
 public:
  // A category without a text, with all bits of its subscript set. A null region means the default
  // heap.
  explicit OmDimensionNode(OmMemoryRegion* region = nullptr);
  OmDimensionNode(const OmCellText& text, unsigned long long subscript, bool isGroup,
                  OmMemoryRegion* region);
  // A copy in the other's region, or in `region`.
  OmDimensionNode(const OmDimensionNode& other);
  OmDimensionNode(const OmDimensionNode& other, OmMemoryRegion* region);

  // Deliberately takes the text out of `other`, which is then without one, and copies the rest; the
  // region stays. Whoever needs a copy of a node uses the copy constructor.
  OmDimensionNode& operator=(const OmDimensionNode& other);
  ~OmDimensionNode();

  // Groups stand before others; among themselves both are ordered by their texts, whatever their
  // subscripts. REQUIRES: both nodes have a text.
  bool operator<(const OmDimensionNode& other) const {
    return Precedes(isGroup_, *text_, other.isGroup_, *other.text_);
  }
  // The order of `<` for nodes that are not there.
  static bool Precedes(bool aIsGroup, const OmCellText& a, bool bIsGroup, const OmCellText& b) {
    return aIsGroup != bIsGroup ? aIsGroup : a.Compare(b) < 0;
  }

  // The same group flag, the same subscript and equal texts: of the same size, comparing as 0. So
  // two nodes can be unequal while neither precedes the other. REQUIRES: both nodes have a text.
  bool operator==(const OmDimensionNode& other) const;

  OmMemoryRegion* Region() const { return childIndex_.region(); }

  // The label; null in a node that has none.
  OmCellText* Text() { return text_.get(); }
  const OmCellText* Text() const { return text_.get(); }
  void Text(const OmCellText& text);

  // A category's coordinate along the dimension in the table's cells. Without a meaning on groups.
  unsigned long long Subscript() const { return subscript_; }
  void Subscript(unsigned long long subscript) { subscript_ = subscript; }
  bool IsGroup() const { return isGroup_; }
  void IsGroup(bool isGroup) { isGroup_ = isGroup; }
  bool Hide() const { return hide_; }
  void Hide(bool hide) { hide_ = hide; }
  bool HideLabels() const { return hideLabels_; }
  void HideLabels(bool hideLabels) { hideLabels_ = hideLabels; }
  OmSort::Order Sort() const { return sort_; }
  void Sort(OmSort::Order sort) { sort_ = sort; }

  // Writes one line to standard output: the fields, behind `indent` times two blanks.
  void Print(unsigned indent) const;

 private:
  friend class OmDimension;

  // Positions of the node's children among themselves, in the order of `<` where OmDimension::Child
  // has added them.
  OmVector<int>& ChildIndex() { return childIndex_; }
  const OmVector<int>& ChildIndex() const { return childIndex_; }

  mutable std::unique_ptr<OmCellText> text_;  // mutable: assignment takes it out of a const node
  unsigned long long subscript_;
  OmVector<int> childIndex_;
  OmSort::Order sort_ = OmSort::NONE;
  bool isGroup_ = false;
  bool hide_ = false;
  bool hideLabels_ = false;
};

template <>
inline constexpr bool omMovesBitwise<OmDimensionNode> = true;

#endif  // OM_DIMENSIONS_OMDIMENSIONNODE_H_
