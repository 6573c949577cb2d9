#include "render/TableView.h"

#include <algorithm>
#include <deque>
#include <utility>

#include "pivot/OmPivotTable.h"
#include "render/internal/AxisSubscripts.h"

namespace om::render {

namespace {

using Entry = OmDisplayLayerHeading::ConstNode;
using Path = std::vector<const OmDimensionNode*>;

std::vector<int> layerIndexOf(const OmDisplayLayerHeading& layers) {
  std::vector<int> index(layers.Table().NDimensions());
  layers.Fill(index);
  return index;
}

// No cell can be at a negative subscript, and the table refuses to look there.
bool isNegative(const std::vector<int>& index) {
  return std::any_of(index.begin(), index.end(), [](int subscript) { return subscript < 0; });
}

// Splits paths that stand one behind the other, each from its root down; a category that is its own
// root has none among them.
std::vector<Path> splitPaths(const std::vector<Entry*>& entries,
                             const std::deque<Entry*>& categories) {
  std::vector<Path> paths;
  auto next = entries.begin();
  for (const Entry* const category : categories) {
    Path& path = paths.emplace_back();
    if (category == nullptr) continue;
    if (category->Depth() == 0) {
      path.push_back(&**category);
      continue;
    }
    const auto end = next + static_cast<std::ptrdiff_t>(category->Depth()) + 1;
    for (; next != end; ++next) path.push_back(&***next);
  }
  return paths;
}

}  // namespace

class TableView::Subscripts {
 public:
  explicit Subscripts(const TableView& view)
      : rows_(view.table(), OmDisplayRowHeading(view.layers_, false, false),
              view.options_.skipEmptyRows ? &view.rowHeading_.getNonEmptyRows() : nullptr),
        columns_(
            view.table(), OmDisplayColumnHeading(view.layers_, false),
            view.options_.skipEmptyColumns ? &view.columnHeading_.getNonEmptyColumns() : nullptr) {}

  std::optional<Place> placeOf(const std::vector<int>& index) const {
    const auto row = rows_.placeOf(index);
    const auto column = columns_.placeOf(index);
    if (!row || !column) return std::nullopt;
    return Place{*row, *column};
  }

 private:
  internal::AxisSubscripts rows_;
  internal::AxisSubscripts columns_;
};

TableView::TableView(OmDisplayLayerHeading& layers, const ViewOptions& options)
    : layers_(layers),
      options_(options),
      layer_(layers.getLayer()),
      layerIndex_(layerIndexOf(layers)),
      columnHeading_(layers, options.skipEmptyColumns),
      rowHeading_(layers, options.skipEmptyRows, options.namesInCorner),
      columnGrid_(columnHeading_, options.columnSpans),
      rowGrid_(rowHeading_, options.rowSpans),
      index_(layerIndex_) {
  enterColumns();
  enterLayer();
  enterCorner();
}

TableView::~TableView() = default;

void TableView::enterColumns() {
  for (int k = 0; k < columnHeading_.NDimensions(); ++k) {
    const int dimension = columnHeading_.getDimensionIndex(k);
    if (dimension < 0 || static_cast<std::size_t>(dimension) >= layerIndex_.size()) continue;
    columnDimensions_.push_back(static_cast<std::size_t>(dimension));
  }
  columnSubscripts_.reserve(columnDimensions_.size() * columnCount());
  std::vector<int> index;
  for (std::uint64_t column = 0; column < columnCount(); ++column) {
    index.assign(layerIndex_.size(), -1);  // stays where a column has no category
    columnHeading_.Fill(index, static_cast<int>(column));
    for (const std::size_t dimension : columnDimensions_) {
      columnSubscripts_.push_back(index[dimension]);
      areColumnsSure_ = areColumnsSure_ && index[dimension] >= 0;
    }
  }
}

void TableView::enterLayer() {
  for (int k = 0; k < layers_.NDimensions(); ++k) {
    Entry* dimension = nullptr;
    Entry* category = nullptr;
    layers_.DimCatNodes(k, dimension, category);
    if (category == nullptr) continue;
    LayerLabel& label = layerLabels_.emplace_back();
    label.dimension = &**dimension;
    label.category = &**category;
    for (const Entry* const entry : layers_.Nodes(k)) {
      if (entry != nullptr) label.path.push_back(&**entry);
    }
  }
}

// A text stands over the empty places behind it.
void TableView::enterCorner() {
  const std::vector<const OmCellText*> texts = rowHeading_.CornerText();
  for (std::size_t i = 0; i < rowGrid_.levels(); ++i) {
    const OmCellText* const text = i < texts.size() ? texts[i] : nullptr;
    if (corner_.empty() || text != nullptr) corner_.push_back({i, i, text});
    corner_.back().end = i + 1;
  }
}

std::size_t TableView::headRows() const {
  const bool hasCorner = std::any_of(corner_.begin(), corner_.end(),
                                     [](const CornerCell& cell) { return cell.text != nullptr; });
  return std::max<std::size_t>(columnGrid_.levels(), hasCorner ? 1 : 0);
}

void TableView::indexOf(const Place& place, std::vector<int>& index) const {
  goToRow(place.row);
  index = rowIndex_;
  if (!areColumnsSure_) return columnHeading_.Fill(index, static_cast<int>(place.column));
  const int* subscript = columnSubscripts_.data() + place.column * columnDimensions_.size();
  for (const std::size_t dimension : columnDimensions_) index[dimension] = *subscript++;
}

void TableView::goToRow(std::uint64_t row) const {
  if (row_ == row) return;
  row_.reset();
  rowIndex_ = layerIndex_;
  rowHeading_.Fill(rowIndex_, static_cast<int>(row));
  row_ = row;
}

const OmCellText* TableView::cell(const Place& place) const {
  indexOf(place, index_);
  return isNegative(index_) ? nullptr : table().Cell(index_);
}

void TableView::row(std::uint64_t row, std::vector<const OmCellText*>& cells) const {
  this->row(row, 0, columnCount(), cells);
}

void TableView::row(std::uint64_t row, std::uint64_t begin, std::uint64_t end,
                    std::vector<const OmCellText*>& cells) const {
  cells.resize(end - begin);
  if (cells.empty()) return;
  if (!areColumnsSure_) {
    for (const OmCellText*& cell : cells) cell = this->cell({row, begin++});
    return;
  }
  indexOf({row, begin}, index_);
  if (isNegative(index_)) return std::fill(cells.begin(), cells.end(), nullptr);
  const OmPivotTable& table = this->table();
  const int* subscript = columnSubscripts_.data() + begin * columnDimensions_.size();
  for (const OmCellText*& cell : cells) {
    for (const std::size_t dimension : columnDimensions_) index_[dimension] = *subscript++;
    cell = table.Cell(index_);
  }
}

std::optional<TableView::Place> TableView::placeOf(const std::vector<int>& index) const {
  if (index.size() != layerIndex_.size()) return std::nullopt;
  if (subscripts_ == nullptr) subscripts_ = std::make_unique<Subscripts>(*this);
  const std::optional<Place> place = subscripts_->placeOf(index);
  if (!place) return std::nullopt;
  // The subscripts of the layer must be the same, too, and of dimensions that are on no axis.
  indexOf(*place, index_);
  return index_ == index ? place : std::nullopt;
}

std::vector<Path> TableView::rowPaths(std::uint64_t row) const {
  std::vector<Entry*> entries;
  rowHeading_.DimAllNodes(static_cast<int>(row), entries);
  return splitPaths(entries, rowHeading_.RowCategories(static_cast<int>(row)));
}

std::vector<Path> TableView::columnPaths(std::uint64_t column) const {
  std::vector<Entry*> entries;
  columnHeading_.DimAllNodes(static_cast<int>(column), entries);
  return splitPaths(entries, columnHeading_.ColumnCategories(static_cast<int>(column)));
}

const OmCellText& titleOf(const OmPivotTable& table) {
  const OmCellText* const title = table.GetTableTitle();
  return title != nullptr ? *title : table.Label();
}

const OmCellText* captionOf(const OmPivotTable& table) {
  return table.showCaption() ? table.Caption() : nullptr;
}

}  // namespace om::render
