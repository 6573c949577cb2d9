// Makes dimensions, which only their table may do.

#ifndef OM_DIMENSIONS_INTERNAL_DIMENSIONFACTORY_H_
#define OM_DIMENSIONS_INTERNAL_DIMENSIONFACTORY_H_

#include <memory>

#include "dimensions/OmDimension.h"

namespace om::internal {

struct DimensionFactory {
  static std::unique_ptr<OmDimension> make(const OmDimensionNode& node, OmMemoryRegion* region) {
    return std::unique_ptr<OmDimension>(new OmDimension(node, region));
  }
  static std::unique_ptr<OmDimension> copy(const OmDimension& other, OmMemoryRegion* region) {
    return std::unique_ptr<OmDimension>(new OmDimension(other, region));
  }
};

}  // namespace om::internal

#endif  // OM_DIMENSIONS_INTERNAL_DIMENSIONFACTORY_H_
