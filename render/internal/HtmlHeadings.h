// HtmlHeadings: the column labels and the row labels of one layer as heading cells, and which of
// them a body cell stands under and beside.

#ifndef OM_RENDER_INTERNAL_HTMLHEADINGS_H_
#define OM_RENDER_INTERNAL_HTMLHEADINGS_H_

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "render/TableView.h"
#include "render/internal/CellText.h"
#include "render/internal/HtmlNotes.h"
#include "render/internal/HtmlOut.h"

namespace om::render::internal {

// What the parts of one layer share.
struct HtmlLayer {
  HtmlOut& out;
  const TableView& view;
  HtmlNotes& notes;
  const std::string& prefix;  // of the ids

  // Whether a label shows nothing, so that its cell is no heading. `shown` is its text as shown.
  bool isBare(const OmCellText* label, std::string_view shown) const {
    return isBlank(shown) && !notes.hasMarks(label);
  }
};

// The thead, which holds the corner, too.
class HtmlColumnLabels {
 public:
  explicit HtmlColumnLabels(const HtmlLayer& layer);

  void write();

  // The ids of the labels over a column, with blanks between them.
  std::string_view idsOf(std::uint64_t column) const {
    return std::string_view(ids_).substr(ends_[column], ends_[column + 1] - ends_[column]);
  }

 private:
  void writeCorner(std::size_t rows);
  void writeLevel(std::size_t level);

  const HtmlLayer layer_;
  std::vector<bool> isText_;       // for each column, whether its first cell is no number
  std::string ids_;                // of all columns, one behind the other
  std::vector<std::size_t> ends_;  // where those of each column begin and end
};

class HtmlRowLabels {
 public:
  explicit HtmlRowLabels(const HtmlLayer& layer);

  // Writes the labels that begin in the row. To be called for each row in turn.
  void write(std::uint64_t row);

  // The ids of the labels beside the row that was written last, with a blank in front of each.
  const std::string& ids() const { return ids_; }
  // Whether a label of the outermost of several levels begins in the row to be written next.
  bool beginsGroup(std::uint64_t row) const;

 private:
  struct Level {
    std::size_t next = 0;   // the first span that does not end before the row
    std::uint64_t end = 0;  // of the heading cell written last
    std::string id;         // its id, when it has a label
  };

  void write(std::size_t level, const HeadingGrid::Span& span, std::uint64_t row);

  const HtmlLayer layer_;
  std::vector<Level> levels_;
  std::string ids_;
  TextReader reader_;
};

// Whether a cell is set like a number: it is one, or its text looks like one.
bool isNumeric(const OmCellText& cell, std::string_view text);

}  // namespace om::render::internal

#endif  // OM_RENDER_INTERNAL_HTMLHEADINGS_H_
