// OmDimension: one axis of a pivot table, as a tree of categories. The root carries the dimension's
// name, inner nodes are groups, leaves are categories; a category's subscript is its coordinate in
// the table's cells.
//
// Each node keeps an index of its children in the order of their labels, groups first, by which
// Child and FindChild look them up. AddNewChild is the fast way to add children that nobody looks
// up; it appends to the index in the order of addition. The editing operations leave the indexes
// alone, except where they say otherwise; a position that they leave behind matches nothing.
//
// Subscripts are chosen by whoever adds a category and never renumbered.
//
// Ownership: a dimension owns its tree. Every node and text is copied into the dimension's region
//   when it enters the tree; the root's text alone lives where the node lived that it was made
//   from. Dimensions are made by OmPivotTable::AddDimension and owned by their table.
// Handles: a structural change invalidates the handles to the children of the nodes that it
//   changes and to what is below them; the handle that an operation gives is valid afterwards.
// Depth: no operation calls itself, so a tree may be as deep as memory allows.
// Threads: a dimension belongs to one thread at a time.
// Errors: std::bad_alloc, and what cloning a text throws; the tree is then as before.

#ifndef OM_DIMENSIONS_OMDIMENSION_H_
#define OM_DIMENSIONS_OMDIMENSION_H_

#include <cstddef>
#include <cstdint>
#include <vector>

#include "backend/Export.h"
#include "backend/tables/om/VectorTree.h"
#include "dimensions/OmDimensionNode.h"

namespace om::internal {
struct DimensionFactory;
}

class OM_EXPORT OmDimension {
 public:
  using Tree = OmVectorTree<OmDimensionNode>;
  using Node = Tree::Node;
  using ConstNode = Tree::ConstNode;

  OmDimension(const OmDimension&) = delete;
  OmDimension& operator=(const OmDimension&) = delete;
  ~OmDimension();

  // The label of the root. REQUIRES: the root has a text.
  OmCellText& Name() { return *root_.value.Text(); }
  const OmCellText& Name() const { return *root_.value.Text(); }
  OmMemoryRegion& Region() const { return *root_.children.region(); }
  Node Root() { return {&root_, 0}; }
  ConstNode Root() const { return {&root_, 0}; }

  // How far the table's cells reach along this dimension. One more for each category that is added;
  // one more than the largest subscript after Delete.
  std::int32_t NumCategories() const { return numCategories_; }

  // Kept for the table's users.
  bool DisplayLastCategory() const { return displayLastCategory_; }
  void DisplayLastCategory(bool display) { displayLastCategory_ = display; }

  // The node at the same path in this dimension as `node` has in its own. Where there is none, an
  // assertion is reported, and the result is the end of the children that it was looked for among.
  Node Counterpart(const Node& node) { return Tree::Counterpart(ConstNode(node), Root()); }

  // Adds a child at the end of the parent's children, whatever the parent is. Amortised constant
  // time.
  Node AddNewChild(const Node& parent, const OmCellText& text, unsigned long long subscript,
                   bool isGroup);

  // The child with this label and group flag; where there is none, a new one at the end, with the
  // other properties given. Takes O(log n) comparisons of labels. Throws OMSException
  // "OmDimension::Child -- parent is not group".
  Node Child(const Node& parent, const OmCellText& text, unsigned long long subscript,
             bool isGroup);
  Node Child(const Node& parent, const OmDimensionNode& node);

  // The position of the child with this label and group flag among the parent's children, or -1.
  // Takes O(log n) comparisons. Children that did not come by Child may be missed.
  static int FindChild(ConstNode parent, const OmCellText& text, bool isGroup);

  // Removes the node with its subtree, also from its parent's index. Deliberately restores no
  // parent link: the children of the siblings that move up keep pointing to the siblings' former
  // places, and whoever walks up from them calls Tree::Reparent first. NumCategories becomes one
  // more than the largest subscript, so it is 1 for a dimension without categories. Linear in the
  // whole tree. REQUIRES: `node` is not the root.
  void Delete(Node& node);

  // Adds a category with one more than the largest subscript, before or behind `sibling`, a child
  // of `parent`; at the end of the parent's children when `sibling` is or comes to stand beyond
  // them. It stands in front of the first child that equals the one that it should precede. (In an
  // empty dimension the first category deliberately gets subscript 1.) Gives a copy of the new
  // category's value, on the default heap. The parent's index does not learn of it.
  OmDimensionNode insertCategory(const OmCellText& text, Node parent, Node sibling, bool before);

  // Gathers nodes, which are children of one parent, in the order given, under a new group that
  // takes the place of the first one. Nothing for an empty list or for the root.
  void insertChild(const OmCellText& text, std::vector<Node*> nodes);

  // Dissolves a group: its children take its place. The node's subscript becomes all bits set minus
  // one, also where nothing else happens, which is at the root and at a node without children.
  // Afterwards `node` designates what stands behind the former children.
  void removeChild(Node& node);

  // With a target and without `exchange`: moves the node in front of the first child of the
  // target's parent that equals the target, or to their end when the move leaves none (as it does
  // when the target is the node itself). With both: exchanges the places of node and target. Each
  // goes in front of the sibling that followed the other one; where that is not one of its own
  // former siblings, as it normally is when the two have different parents, it deliberately goes to
  // the end of its own parent's children. Without a target: moves the node to the end of the
  // children of its nearest ancestor that is not hidden, or of the root. Nothing for the root, for
  // a target below the node (or, to exchange, above it), and for a node to exchange with itself.
  void moveChild(Node& node, Node* target, bool exchange);

  // The number of levels, the root's included.
  std::uint32_t getMaximumDepth() const;

  // The largest number, over the levels below the root, of groups that are not hidden, where the
  // childless nodes under one parent that are no such groups count as one together.
  unsigned long long getMaxVisibleGroupCount() const;

  // Writes a line for each node to standard output, parents before children, indented by depth.
  void Print() const;

  // Null, or the first invariant of the tree that does not hold.
  const char* checkInvariants() const { return Tree::checkInvariants(root_); }

 private:
  friend struct om::internal::DimensionFactory;

  // A dimension with a copy of `node` for its root, in the node's own region, and its children on
  // `region`.
  OmDimension(const OmDimensionNode& node, OmMemoryRegion* region);
  // A deep copy in `region`, indexes included. DisplayLastCategory is not taken over.
  OmDimension(const OmDimension& other, OmMemoryRegion* region);

  template <class MakeValue>
  Node add(const Node& parent, std::size_t indexPosition, bool isGroup, const MakeValue& makeValue);
  template <class MakeValue>
  Node findOrAdd(const Node& parent, const OmCellText& text, bool isGroup,
                 const MakeValue& makeValue);
  static std::size_t lowerBound(const Tree::Entry& parent, const OmCellText& text, bool isGroup);
  static bool matchesAt(const Tree::Entry& parent, std::size_t indexPosition,
                        const OmCellText& text, bool isGroup);

  std::uint32_t largestSubscriptBut(const Tree::Entry* left) const;
  void exchangePlaces(const Tree::Entry& a, const Tree::Entry& b);
  void moveInto(const Tree::Entry& record, const Tree::Entry& parent, const Tree::Entry* before);
  std::uint32_t getDepth(ConstNode node) const;
  void getGroupCountsByLevel(ConstNode node, std::vector<unsigned long long>& counts) const;

  Tree::Entry root_;
  std::int32_t numCategories_ = 0;
  bool displayLastCategory_ = false;
};

#endif  // OM_DIMENSIONS_OMDIMENSION_H_
