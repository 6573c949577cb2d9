// The labels beside the present row of a table in text, as it goes from row to row.

#ifndef OM_RENDER_INTERNAL_ROWLABELS_H_
#define OM_RENDER_INTERNAL_ROWLABELS_H_

#include <cstddef>
#include <cstdint>
#include <vector>

#include "render/HeadingGrid.h"
#include "render/TableView.h"
#include "render/internal/ShownText.h"
#include "render/internal/TextLines.h"
#include "render/internal/Wrapping.h"

namespace om::render::internal {

class RowLabels {
 public:
  // In front of the first row. `widths` are those of the label columns.
  RowLabels(const TableView& view, TableReader& reader, const std::vector<std::size_t>& widths);

  // Goes to the next row. REQUIRES: there is one.
  void next();

  // Whether an outermost group of rows ends with the present one, while some group has several
  // rows. REQUIRES: there is a next row.
  bool endsGroup() const;
  // Whether there is a line in front of a label column in the present row.
  bool hasLineBefore(std::size_t column) const { return columns_[column].isOwn; }
  // How many lines the present row has to have so that the labels that end with it find room.
  std::size_t lines() const;
  // Draws the labels in the next line of the present row.
  void drawLine(TextLines& lines);

 private:
  struct Column {
    std::size_t next = 0;     // the next span of the level
    std::uint64_t end = 0;    // of the span that covers this row
    std::size_t columns = 1;  // how many label columns it covers
    std::size_t shown = 0;    // how many of its lines are drawn
    WrappedText text;
    bool isOwn = true;  // false: a span of a level above covers it
  };

  void enter(std::size_t level, const HeadingGrid::Span& span);
  bool hasGroups() const;
  std::size_t widthOf(std::size_t level, std::size_t columns) const;

  const HeadingGrid& grid_;
  TableReader& reader_;
  const std::vector<std::size_t>& widths_;
  const Spans spans_;
  const bool hasGroups_;
  std::uint64_t row_ = 0;  // behind the present one
  std::vector<Column> columns_;
};

}  // namespace om::render::internal

#endif  // OM_RENDER_INTERNAL_ROWLABELS_H_
