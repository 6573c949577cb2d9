#include "render/internal/JsonPlaces.h"

#include "pivot/OmPivotTable.h"

namespace om::render::internal {

namespace {

std::vector<bool> dimensionsOf(const PuppetVector<short>& axis, std::size_t dimensions) {
  std::vector<bool> isThere(dimensions);
  for (std::size_t k = 0; k < axis.size(); ++k) {
    if (axis[k] >= 0 && static_cast<std::size_t>(axis[k]) < dimensions) {
      isThere[static_cast<std::size_t>(axis[k])] = true;
    }
  }
  return isThere;
}

// Adds the subscripts of an index along the dimensions of which `isOwn` has this value. The texts
// of columns begin, as a row and a column take turns with the row first.
void addSubscripts(const std::vector<int>& index, const std::vector<bool>& isOfColumns, bool isOwn,
                   std::string* texts) {
  for (std::size_t d = 0; d < index.size(); ++d) {
    const bool isRowsTurn = !isOfColumns[d] && (d == 0 || isOfColumns[d - 1]);
    if (isRowsTurn) ++texts;
    if (isOfColumns[d] != isOwn) continue;
    if (d != 0) *texts += ',';
    *texts += std::to_string(index[d]);
  }
}

}  // namespace

JsonPlaces::JsonPlaces(const TableView& view) : view_(view) {
  const OmPivotTable& table = view.table();
  isOfColumns_ = dimensionsOf(table.Columns(), table.NDimensions());
  const std::vector<bool> isOfRows = dimensionsOf(table.Rows(), table.NDimensions());
  for (std::size_t d = 0; d < isOfColumns_.size(); ++d) {
    if (!isOfColumns_[d] && (d == 0 || isOfColumns_[d - 1])) ++turns_;
    isOnBothAxes_ = isOnBothAxes_ || (isOfColumns_[d] && isOfRows[d]);
  }
  row_.resize(turns_);
  columns_.resize(view.columnCount() * turns_);
}

void JsonPlaces::goToRow(std::uint64_t row) {
  if (columns_.empty()) return;
  if (row == 0 || isOnBothAxes_) enterColumns(row);
  for (std::string& text : row_) text.clear();
  row_[0] = "\"row\":" + std::to_string(row) + ",\"column\":";
  view_.indexOf({row, 0}, index_);
  addSubscripts(index_, isOfColumns_, false, row_.data());
}

void JsonPlaces::enterColumns(std::uint64_t row) {
  for (std::uint64_t column = 0; column < view_.columnCount(); ++column) {
    std::string* const texts = columns_.data() + column * turns_;
    for (std::size_t turn = 0; turn < turns_; ++turn) texts[turn].clear();
    texts[0] = std::to_string(column) + ",\"index\":[";
    view_.indexOf({row, column}, index_);
    addSubscripts(index_, isOfColumns_, true, texts);
    texts[turns_ - 1] += ']';
  }
}

}  // namespace om::render::internal
