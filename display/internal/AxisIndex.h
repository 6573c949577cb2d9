// AxisIndex: the positions of an axis with the layouts of its dimensions: from a position to the
// leaf of each dimension, and to its subscript.
//
// It remembers the digits of the position that was asked for last. Callers go from one place to the
// next, or ask for one several times, and then nothing is divided.

#ifndef OM_DISPLAY_INTERNAL_AXISINDEX_H_
#define OM_DISPLAY_INTERNAL_AXISINDEX_H_

#include <cstddef>
#include <cstdint>
#include <vector>

#include "backend/tables/MultiBase.h"
#include "display/internal/OmDimensionLayout.h"

namespace om::internal {

class AxisIndex : public MultiBase {
 public:
  AxisIndex() = default;
  // `layouts` has those of all dimensions of the table.
  AxisIndex(const PuppetVector<short>& dimensions, const std::vector<int>& sizes,
            const std::vector<OmDimensionLayout*>& layouts);

  // The layout of a dimension of the axis; null for an entry that designates none.
  // REQUIRES: k < size().
  const OmDimensionLayout* layout(std::size_t k) const { return places_[k].layout; }

  // The digits of a position, until another one is asked for.
  const Digits& digitsOf(std::uint64_t position) const {
    moveTo(position);
    return digits_;
  }

  // Calls visit(k, layout, leaf) for each dimension that has a leaf at the position, in order.
  template <class Visit>
  void visitLeaves(std::uint64_t position, const Visit& visit) const {
    moveTo(position);
    for (std::size_t k = 0; k < places_.size(); ++k) {
      if (places_[k].hasLeaf) visit(k, *places_[k].layout, digits_[k]);
    }
  }

  // Writes the subscripts of the leaves at a position into a cell index, after sizing it to the
  // number of the table's dimensions. A dimension without a leaf there keeps its entry.
  void fill(std::uint64_t position, std::vector<int>& index) const {
    moveTo(position);
    if (index.size() != tableDimensions_) index.resize(tableDimensions_);
    for (const Place& place : places_) {
      if (place.hasLeaf) index[place.dimension] = place.subscript;
    }
  }

 private:
  // A dimension of the axis, and what stands there at the position that was asked for last.
  struct Place {
    const OmDimensionLayout* layout;
    std::size_t dimension;
    std::size_t leaves;
    bool hasLeaf = false;
    int subscript = 0;
  };

  void moveTo(std::uint64_t position) const {
    if (position != position_ || !canCount_) goTo(position);
  }
  void goTo(std::uint64_t position) const;
  void enterLeaves() const;

  std::size_t tableDimensions_ = 0;
  bool canCount_ = true;  // all radices are positive: positions are decoded without a report
  mutable std::vector<Place> places_;
  mutable std::uint64_t position_ = 0;
  mutable Digits digits_;
};

}  // namespace om::internal

#endif  // OM_DISPLAY_INTERNAL_AXISINDEX_H_
