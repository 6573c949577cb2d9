#include "display/OmDisplayLayerHeading.h"

#include "display/internal/OmDisplayLayerData.h"

using om::internal::OmDisplayLayerData;

OmDisplayLayerHeading::OmDisplayLayerHeading(OmPivotTable& table, bool skipEmpty)
    : _my(new OmDisplayLayerData(table, skipEmpty)) {}

OmDisplayLayerHeading::~OmDisplayLayerHeading() { delete _my; }

OmPivotTable& OmDisplayLayerHeading::Table() const { return *_my->table; }

bool OmDisplayLayerHeading::SkipEmpty() const { return _my->skipEmpty; }

unsigned long long OmDisplayLayerHeading::NLayers() const { return _my->layerCount; }

int OmDisplayLayerHeading::NDimensions() const {
  return static_cast<int>(_my->layerDimensions.size());
}

int OmDisplayLayerHeading::getDimensionIndex(int position) const {
  return _my->layerDimensions[static_cast<std::size_t>(position)];
}

int OmDisplayLayerHeading::VisibleWidth(int position) const {
  const PuppetVector<short>& dimensions = _my->layerDimensions;
  const auto* const layout = _my->layoutOf(dimensions[static_cast<std::size_t>(position)]);
  return layout != nullptr ? layout->maxVisibleDepth() : 0;
}

int OmDisplayLayerHeading::getLayer() const { return static_cast<int>(_my->currentLayer); }

bool OmDisplayLayerHeading::SwitchLayer(int layer) {
  const bool exists = layer >= 0 && static_cast<unsigned>(layer) < _my->layerCount;
  if (exists || layer == -1) _my->currentLayer = layer;
  if (exists) Fill(_my->currentCellIndex);
  return exists;
}

bool OmDisplayLayerHeading::NextLayer() {
  return SwitchLayer(static_cast<int>(_my->currentLayer + 1));
}

void OmDisplayLayerHeading::LastLayer() { SwitchLayer(static_cast<int>(_my->layerCount - 1)); }

int OmDisplayLayerHeading::restoreLayer() const {
  _my->currentLayer = _my->table->getLayerLoc();
  return getLayer();
}

void OmDisplayLayerHeading::Fill(std::vector<int>& index) const {
  std::uint64_t position = 0;
  if (_my->currentPosition(position)) _my->layerIndex.fill(position, index);
}

std::vector<int> OmDisplayLayerHeading::getCurrentCellIndex() const {
  return _my->currentCellIndex;
}

std::deque<OmDisplayLayerHeading::ConstNode*> OmDisplayLayerHeading::Nodes(int position) const {
  getDimensionIndex(position);  // lengthens the list
  const auto [layout, leaf] = _my->currentCategory(static_cast<std::size_t>(position));
  return layout != nullptr ? layout->layerPath(leaf) : std::deque<ConstNode*>();
}

void OmDisplayLayerHeading::DimAllNodes(int position, std::vector<ConstNode*>& out) const {
  const auto [layout, leaf] = _my->currentCategory(static_cast<std::size_t>(position));
  if (layout != nullptr && layout->isBelowRoot(leaf)) layout->appendPath(leaf, out);
}

void OmDisplayLayerHeading::DimCatNodes(int position, ConstNode*& dimension,
                                        ConstNode*& category) const {
  const auto [layout, leaf] = _my->currentCategory(static_cast<std::size_t>(position));
  if (layout == nullptr || !layout->isBelowRoot(leaf)) return;
  dimension = &layout->root()->node;
  category = &layout->path(leaf)->node;
}
