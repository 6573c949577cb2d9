// HtmlChooser: the controls over a table by which a reader chooses one of its layers: a list of
// categories for each layer dimension.
//
// Every layer carries the positions of its categories in these lists, which is how the script of
// the page finds the layer that was chosen. A combination that has no layer is said to be empty.
//
// Ownership, lifetime: refers to the layer heading, whose table must not change. Memory: follows
// the number of categories, not of layers. Errors: std::bad_alloc.

#ifndef OM_RENDER_INTERNAL_HTMLCHOOSER_H_
#define OM_RENDER_INTERNAL_HTMLCHOOSER_H_

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "dimensions/OmDimensionNode.h"
#include "display/OmDisplayLayerHeading.h"
#include "render/internal/HtmlOut.h"

namespace om::render::internal {

class HtmlChooser {
 public:
  // REQUIRES: no layer is current yet.
  explicit HtmlChooser(OmDisplayLayerHeading& layers);

  // Whether this is the layer that is shown first: the one that the table remembers.
  bool isChosen(int layer) const { return layer == chosen_; }

  // The controls. `name` is that of the table.
  void write(HtmlOut& out, std::string_view name) const;
  // The value by which the current layer is found.
  void writePositions(HtmlOut& out) const;

 private:
  struct Dimension {
    std::string name;
    std::vector<std::string> categories;  // in the order of the layers
    // Null stands for positions of a dimension that have no category.
    std::unordered_map<const OmDimensionNode*, std::size_t> positions;
    std::size_t chosen = 0;

    bool isChoice() const { return categories.size() > 1; }
  };

  void enterLayer();
  const OmDimensionNode* categoryOf(int dimension) const;
  std::string nameOf(int dimension) const;

  const OmDisplayLayerHeading& layers_;
  std::vector<Dimension> dimensions_;  // the outermost first
  int chosen_ = 0;
};

}  // namespace om::render::internal

#endif  // OM_RENDER_INTERNAL_HTMLCHOOSER_H_
