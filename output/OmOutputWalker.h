// OmOutputWalker: a visitor that walks an output tree in pre-order and learns where each subtree
// ends. Derive from it, override the visits (and Leave), and call Walk.
//
//   class Outline : public OmOutputWalker {
//     void Visit(OmHeading& part) override { ... }        // on the way down
//     void Leave(OmOutputPart* part, int level) override;  // after everything below the part
//     ...
//   };
//
// Ownership: a walker owns nothing of the tree. Threads: as the tree.
// Cost: linear in the records walked; memory follows the depth, not the size.
// REQUIRES: no record is added to or removed from the tree during a walk, though parts may be
//   changed, and no walk is begun with a walker that is walking.

#ifndef OM_OUTPUT_OMOUTPUTWALKER_H_
#define OM_OUTPUT_OMOUTPUTWALKER_H_

#include "output/OmOutputTree.h"

class OM_EXPORT OmOutputWalker : public OmOutputPart::Visitor {
 public:
  ~OmOutputWalker() override;

  // Walks the whole tree, or the subtree of `top`; an end node has none. True when the walk came to
  // its end, false when Stop ended it. What a visit throws ends the walk and is passed on.
  bool Walk(const OmOutputTree& tree);
  bool Walk(const OmOutputTree::ConstNode& top);

 protected:
  // Called for each record on the way down, with its level. Lets the part accept this visitor,
  // unless it is overridden; a null item is entered and left, but not visited.
  virtual void Enter(OmOutputPart* part, int level);

  // Called for each record that was entered, once its subtree was walked or skipped, children
  // before parents. Not called after Stop. Does nothing, unless it is overridden.
  virtual void Leave(OmOutputPart* part, int level);

  // To be called from a visit or from Enter: leave out everything below the present part.
  void SkipSubtree() { skip_ = true; }
  // To be called from anywhere during a walk: end it.
  void Stop() { stopped_ = true; }

 private:
  bool skip_ = false;
  bool stopped_ = false;
};

#endif  // OM_OUTPUT_OMOUTPUTWALKER_H_
