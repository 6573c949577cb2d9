// OmOutputTree: the document that a run of the engine produces. It is a tree of output parts under
// a root heading that is labelled "Output", and it owns its parts: Erase, Prune and the destructor
// delete them.
//
// Ownership: every record's item is a part made with `new`, or null. What leaves the tree through
//   the operations of ListTree is not deleted: by a qualified call of ListTree's Erase or Prune it
//   goes to the caller, by Move to the tree that receives it.
// Copies: deliberately shallow. A copied or assigned tree shares its parts with its source, and
//   only one of the two may be destroyed or edited through the operations that delete; the other
//   one is let go by `List().clear()`. The parts that a tree held before it was assigned to are
//   not deleted.
// Lifetime, handles, cost, threads: as for ListTree.

#ifndef OM_OUTPUT_OMOUTPUTTREE_H_
#define OM_OUTPUT_OMOUTPUTTREE_H_

#include <memory>
#include <string>

#include "backend/Export.h"
#include "backend/tables/ListTree.h"
#include "output/OmOutputPart.h"

extern template class OM_EXPORT ListTree<OmOutputPart*>;

class OM_EXPORT OmOutputTree : public ListTree<OmOutputPart*> {
 public:
  // A tree of its root alone.
  OmOutputTree();
  OmOutputTree(const OmOutputTree& other);
  OmOutputTree& operator=(const OmOutputTree& other);
  ~OmOutputTree();

  // Adds `part`, which may be null, as the last child of `parent` and gives its record. Linear in
  // the parent's subtree. Throws OMSException "OmOutputTree::Append() -- parent is the end" for an
  // end node, and std::bad_alloc; tree and part are then as before.
  Node Append(const Node& parent, std::unique_ptr<OmOutputPart>&& part);

  // Adds `part`, which may be null, as the last record of the tree, at `level`, and gives its
  // record: it is a child of the last record that is less deep. In constant time.
  // Throws OMSException, with the level and the highest level that would do,
  // "OmOutputTree::AppendLast() -- level < 1" (in an empty tree, "-- level != 0") and
  // "OmOutputTree::AppendLast() -- level > last level + 1", and std::bad_alloc; tree and part are
  // then as before.
  Node AppendLast(std::unique_ptr<OmOutputPart>&& part, int level);

  // Deletes the part of `n` and removes its record; its children take its place. Nothing for the
  // end node.
  void Erase(Node& n);

  // Deletes the parts of `n` and of its whole subtree, children in order before the node itself,
  // and removes their records. Nothing for the end node.
  void Prune(Node& n);
};

// Removes what an output tree holds at `n` and leaves a text block in its place.
//
// At the root and at level 1: prunes all children of `n`, adds a block labelled `text` as its only
// child, and gives the block's record. `text` may be the label of a part that goes.
// Deeper: replaces `n` by its children, in order, followed by a block with the label of the part of
// `n`; `text` plays no part. Gives the first of these records, with the level of `n`. Where `n` has
// a null item, there is no label to take: nothing is changed, and the result is `n`.
//
// `localeCodePage` is the code page of the new block, which has no lines. Throws std::bad_alloc and
// what cloning the label throws; the tree is then as before.
// REQUIRES: `n` is of an OmOutputTree and not its end; `text` is not null on the first path.
OM_EXPORT OmOutputTree::Node Amputate(OmOutputTree::Node n, const OmCellText* text,
                                      const std::string& localeCodePage);

#endif  // OM_OUTPUT_OMOUTPUTTREE_H_
