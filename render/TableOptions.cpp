#include "render/TableOptions.h"

#include "pivot/OmPivotTable.h"

namespace om::render {

LayerWalk::LayerWalk(OmPivotTable& table, const TableOptions& options)
    : options_(options), layers_(table, options.skipEmptyLayers), count_(layers_.NLayers()) {
  if (options.layers == Layers::ALL || count_ == 0) return;
  first_ = options.layers == Layers::ONE ? options.layer : layers_.restoreLayer();
  const bool exists = first_ >= 0 && static_cast<std::uint64_t>(first_) < count_;
  if (!exists && options.layers == Layers::STORED) first_ = 0;
  count_ = exists || options.layers == Layers::STORED ? 1 : 0;
}

LayerWalk::~LayerWalk() = default;

bool LayerWalk::next() {
  if (done_ == count_) return false;
  marks_.reset();
  view_.reset();
  layers_.SwitchLayer(first_ + static_cast<int>(done_));
  view_ = std::make_unique<TableView>(layers_, options_.view);
  marks_ = std::make_unique<FootnoteMarks>(*view_, options_.marks);
  ++done_;
  return true;
}

std::string_view LayerWalk::noBody() const {
  if (view_ == nullptr && layers_.NLayers() != 0) return "(no such layer)";
  const bool hasBody = view_ != nullptr && view_->rowCount() != 0 && view_->columnCount() != 0;
  return hasBody ? "" : "(no cells)";
}

}  // namespace om::render
