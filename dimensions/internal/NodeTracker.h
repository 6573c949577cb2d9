// A new node's text converts between code pages as another node's text does.

#ifndef OM_DIMENSIONS_INTERNAL_NODETRACKER_H_
#define OM_DIMENSIONS_INTERNAL_NODETRACKER_H_

#include "dimensions/OmDimensionNode.h"

namespace om::internal {

// REQUIRES: `node` has a text.
inline void shareTracker(OmDimensionNode& node, const OmDimensionNode& model) {
  if (model.Text() != nullptr) node.Text()->setTracker(model.Text()->getTracker());
}

}  // namespace om::internal

#endif  // OM_DIMENSIONS_INTERNAL_NODETRACKER_H_
