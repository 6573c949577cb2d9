// TableView: one layer of a pivot table as a grid, which is what every writer draws.
//
//   | corner      | column grid                    |
//   |             |                                |
//   +-------------+--------------------------------+
//   | row grid    | cell | cell | cell | ...       |
//
// It is built from the three headings of the table for the layer that is current in the layer
// heading, and does not follow when another one is selected.
//
// Ownership, lifetime: a view refers to its layer heading and must not outlive it, nor the table
//   change while the view lives. Threads: one at a time, together with its layer heading.
// Errors: std::bad_alloc, std::length_error.
// REQUIRES: an axis shows less than 2^31 rows or columns.
// Cost: building takes constant time for each label of each row and column shown, and what skipping
//   costs (see OmDisplayColumnHeading); a cell takes two heading lookups and one of the cell.

#ifndef OM_RENDER_TABLEVIEW_H_
#define OM_RENDER_TABLEVIEW_H_

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "display/OmDisplayColumnHeading.h"
#include "display/OmDisplayLayerHeading.h"
#include "display/OmDisplayRowHeading.h"
#include "render/Export.h"
#include "render/HeadingGrid.h"

namespace om::render {

struct ViewOptions {
  bool skipEmptyRows = true;
  bool skipEmptyColumns = true;
  bool namesInCorner = true;  // the names of the row dimensions, instead of beside every row
  Spans rowSpans = Spans::MERGE;
  Spans columnSpans = Spans::MERGE;
};

class OM_RENDER_API TableView {
 public:
  // A place in the body.
  struct Place {
    std::uint64_t row;
    std::uint64_t column;
    bool operator==(const Place&) const = default;
  };
  // A cell of the corner: it covers label columns from `begin` on and all label rows.
  struct CornerCell {
    std::size_t begin;
    std::size_t end;
    const OmCellText* text;  // null: an empty cell
    bool operator==(const CornerCell&) const = default;
  };
  // What the layer shows of one layer dimension.
  struct LayerLabel {
    const OmDimensionNode* dimension;
    const OmDimensionNode* category;
    std::vector<const OmDimensionNode*> path;  // what is not hidden, from the dimension down
  };

  // REQUIRES: a layer is current in `layers`.
  TableView(OmDisplayLayerHeading& layers, const ViewOptions& options);
  ~TableView();
  TableView(const TableView&) = delete;
  TableView& operator=(const TableView&) = delete;

  const OmPivotTable& table() const { return layers_.Table(); }
  const ViewOptions& options() const { return options_; }
  // The number of the layer shown.
  int layer() const { return layer_; }
  // For each layer dimension, the outermost first.
  const std::vector<LayerLabel>& layerLabels() const { return layerLabels_; }

  std::uint64_t rowCount() const { return rowGrid_.places(); }
  std::uint64_t columnCount() const { return columnGrid_.places(); }
  // The label columns are the levels of the row grid, the label rows those of the column grid.
  const HeadingGrid& rows() const { return rowGrid_; }
  const HeadingGrid& columns() const { return columnGrid_; }
  // Cells side by side that cover all label columns; none when there are no label columns.
  const std::vector<CornerCell>& corner() const { return corner_; }
  // How many rows stand over the body: the label rows, or one for a corner with a text where there
  // are none.
  std::size_t headRows() const;

  // The index of the cell at a place; it has one subscript for each dimension. Allocates nothing
  // when `index` has its size. REQUIRES: the place is in the body.
  void indexOf(const Place& place, std::vector<int>& index) const;
  // The text at a place, or null. REQUIRES: the place is in the body.
  const OmCellText* cell(const Place& place) const;
  // The texts of one row, null for an empty cell. Faster than one by one.
  // REQUIRES: row < rowCount().
  void row(std::uint64_t row, std::vector<const OmCellText*>& cells) const;
  // The same for the columns from `begin` to `end`. REQUIRES: begin <= end <= columnCount().
  void row(std::uint64_t row, std::uint64_t begin, std::uint64_t end,
           std::vector<const OmCellText*>& cells) const;

  // Where a cell index stands in the body; nothing when it is of another layer, its row or column
  // is not shown, or no category has one of its subscripts. The first call takes time in proportion
  // to the categories of the table.
  std::optional<Place> placeOf(const std::vector<int>& index) const;

  // For each dimension of the axis, outermost first, the whole path to the category of one row or
  // column, from the dimension down, hidden or not; empty where there is no category.
  // REQUIRES: the row or column is shown.
  std::vector<std::vector<const OmDimensionNode*>> rowPaths(std::uint64_t row) const;
  std::vector<std::vector<const OmDimensionNode*>> columnPaths(std::uint64_t column) const;

 private:
  class Subscripts;

  void enterColumns();
  void enterLayer();
  void enterCorner();
  void goToRow(std::uint64_t row) const;

  OmDisplayLayerHeading& layers_;
  const ViewOptions options_;
  const int layer_;
  const std::vector<int> layerIndex_;
  OmDisplayColumnHeading columnHeading_;
  OmDisplayRowHeading rowHeading_;
  HeadingGrid columnGrid_;
  HeadingGrid rowGrid_;
  std::vector<std::size_t> columnDimensions_;
  std::vector<int> columnSubscripts_;  // for each column, one for each of its dimensions
  bool areColumnsSure_ = true;         // all of these are subscripts that a cell can have
  std::vector<CornerCell> corner_;
  std::vector<LayerLabel> layerLabels_;
  mutable std::vector<int> index_;                  // of the last cell, to have room for it
  mutable std::vector<int> rowIndex_;               // of the last row
  mutable std::optional<std::uint64_t> row_;        // its number
  mutable std::unique_ptr<Subscripts> subscripts_;  // made by the first placeOf
};

// The title that stands over a table: its table title, or its label when that is not set.
OM_RENDER_API const OmCellText& titleOf(const OmPivotTable& table);
// The caption that stands under a table, or null: there may be none, or it is not to be shown.
OM_RENDER_API const OmCellText* captionOf(const OmPivotTable& table);

}  // namespace om::render

#endif  // OM_RENDER_TABLEVIEW_H_
