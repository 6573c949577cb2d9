#include "render/internal/HtmlChooser.h"

#include <cstdint>
#include <deque>

#include "pivot/OmPivotTable.h"

namespace om::render::internal {

namespace {

using Entry = OmDisplayLayerHeading::ConstNode;

std::string stringOf(const Entry& entry) {
  const OmCellText* const text = (*entry).Text();
  return text != nullptr ? std::string(*text) : std::string();
}

// The labels from below the dimension on; empty when all are hidden or blank.
std::string pathOf(const std::deque<Entry*>& entries) {
  std::string path;
  for (std::size_t i = 1; i < entries.size(); ++i) {
    if (entries[i] == nullptr) continue;
    const std::string label = stringOf(*entries[i]);
    if (isBlank(label)) continue;
    if (!path.empty()) path += " › ";
    path += label;
  }
  return path;
}

}  // namespace

HtmlChooser::HtmlChooser(OmDisplayLayerHeading& layers) : layers_(layers) {
  const int stored = layers.Table().getLayerLoc();
  if (stored >= 0 && static_cast<std::uint64_t>(stored) < layers.NLayers()) chosen_ = stored;
  for (int k = 0; k < layers.NDimensions(); ++k) dimensions_.emplace_back().name = nameOf(k);
  while (layers.NextLayer()) enterLayer();
}

void HtmlChooser::enterLayer() {
  for (std::size_t k = 0; k < dimensions_.size(); ++k) {
    Dimension& dimension = dimensions_[k];
    const auto [found, isNew] =
        dimension.positions.emplace(categoryOf(static_cast<int>(k)), dimension.categories.size());
    if (isNew) {
      std::string path = pathOf(layers_.Nodes(static_cast<int>(k)));
      if (path.empty()) path = std::to_string(found->second + 1);
      dimension.categories.push_back(std::move(path));
    }
    if (isChosen(layers_.getLayer())) dimension.chosen = found->second;
  }
}

const OmDimensionNode* HtmlChooser::categoryOf(int dimension) const {
  Entry* root = nullptr;
  Entry* category = nullptr;
  layers_.DimCatNodes(dimension, root, category);
  return category != nullptr ? &**category : nullptr;
}

std::string HtmlChooser::nameOf(int dimension) const {
  const OmPivotTable& table = layers_.Table();
  const int number = layers_.getDimensionIndex(dimension);
  std::string name;
  if (number >= 0 && static_cast<std::size_t>(number) < table.NDimensions()) {
    name = stringOf(table.Dimension(number).Root());
  }
  if (isBlank(name)) {
    name = "Layer ";
    name += std::to_string(dimension + 1);
  }
  return name;
}

void HtmlChooser::write(HtmlOut& out, std::string_view name) const {
  out.markup("<fieldset class=\"chooser\">\n<legend>Layers of ").isolated(name);
  out.markup("</legend>\n");
  for (const Dimension& dimension : dimensions_) {
    if (!dimension.isChoice()) continue;
    out.markup("<label><span>").isolated(dimension.name);
    out.markup("</span> <select autocomplete=\"off\">\n");
    for (std::size_t i = 0; i < dimension.categories.size(); ++i) {
      out.markup("<option value=\"").number(i).markup("\"");
      if (mayRunRightToLeft(dimension.categories[i])) out.markup(" dir=\"auto\"");
      if (i == dimension.chosen) out.markup(" selected");
      out.markup(">").attribute(dimension.categories[i]).markup("</option>\n");
    }
    out.markup("</select></label>\n");
  }
  out.markup(
      "</fieldset>\n<p class=\"none\" aria-live=\"polite\"><span hidden>This layer is empty."
      "</span></p>\n");
}

void HtmlChooser::writePositions(HtmlOut& out) const {
  bool isFirst = true;
  for (std::size_t k = 0; k < dimensions_.size(); ++k) {
    if (!dimensions_[k].isChoice()) continue;
    if (!isFirst) out.markup(" ");
    isFirst = false;
    out.number(dimensions_[k].positions.at(categoryOf(static_cast<int>(k))));
  }
}

}  // namespace om::render::internal
