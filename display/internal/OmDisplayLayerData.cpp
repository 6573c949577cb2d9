#include "display/internal/OmDisplayLayerData.h"

namespace om::internal {

OmDisplayLayerData::OmDisplayLayerData(OmPivotTable& pivotTable, bool skip)
    : OmMemoryRegion(false),
      table(&pivotTable),
      skipEmpty(skip),
      currentCellIndex(pivotTable.NDimensions()),
      layerDimensions(pivotTable.Layers()),
      census(takeCensus(pivotTable)) {
  layerDimensions.reverse();
  layouts.reserve(table->NDimensions());
  for (std::size_t d = 0; d < table->NDimensions(); ++d) {
    layouts.push_back(new (*this) OmDimensionLayout(*this, table->Dimension(static_cast<int>(d))));
  }
  layerIndex = AxisIndex(layerDimensions, table->SizeVector(), layouts);
  // An entry that designates no dimension is passed over, so that later layouts move up.
  for (const short dimension : layerDimensions) {
    const auto which = static_cast<std::size_t>(dimension);
    if (which < layouts.size()) layerLayouts.push_back(layouts[which]);
  }
  layerCount = layerIndex.count();
  if (skipEmpty) {
    PuppetVector<short> others = table->Rows();
    for (const short dimension : table->Columns()) others.push_back(dimension);
    nonEmptyLayers = nonEmptyPositions(*this, layerIndex, others);
    layerCount = nonEmptyLayers.size();
  }
}

bool OmDisplayLayerData::currentPosition(std::uint64_t& position) const {
  if (currentLayer < 0) return false;
  position = static_cast<std::uint64_t>(currentLayer);
  if (!skipEmpty) return true;
  if (position >= nonEmptyLayers.size()) return false;
  position = nonEmptyLayers[position];
  return true;
}

OmDisplayLayerData::Category OmDisplayLayerData::currentCategory(
    std::size_t headingPosition) const {
  std::uint64_t position = 0;
  if (!currentPosition(position) || headingPosition >= layerIndex.size() ||
      headingPosition >= layerLayouts.size()) {
    return {nullptr, 0};
  }
  const OmDimensionLayout* const layout = layerLayouts[headingPosition];
  const std::uint64_t leaf = layerIndex.digitsOf(position)[headingPosition];
  return {leaf < layout->size() ? layout : nullptr, leaf};
}

}  // namespace om::internal
