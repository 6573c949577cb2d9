// How wide the columns of a table are in text, and how they are spread over panels that are no
// wider than a page.
//
//   | label columns |   body columns   |        each column takes its width, a blank on both sides
//   | Town   | Sex  |  12.5  | 1 234.0 |        and one line
//
// Memory: 40 bytes a column.

#ifndef OM_RENDER_INTERNAL_TEXTLAYOUT_H_
#define OM_RENDER_INTERNAL_TEXTLAYOUT_H_

#include <cstddef>
#include <cstdint>
#include <vector>

#include "render/FootnoteMarks.h"
#include "render/TableView.h"
#include "render/internal/ShownText.h"

namespace om::render::internal {

struct BodyColumn {
  std::size_t width = 1;
  // Of its numbers: what stands in front of the decimal mark, and what from there on, with marks.
  std::size_t whole = 0;
  std::size_t rest = 0;
  std::size_t widest = 0;  // the widest cell
  bool hasNumbers = false;
  bool isAligned = true;  // by the decimal mark; else its numbers are too long for that
  bool mayWrap = false;   // some cells have more than one line
};

struct Panel {
  std::size_t begin;  // body columns
  std::size_t end;
};

struct TextLayout {
  std::vector<std::size_t> labelColumns;
  std::vector<BodyColumn> columns;
  std::vector<Panel> panels;
};

// Looks at every text of the view once. `pageWidth` 0 means as wide as it needs. Lines are wider
// than the page only where even one column does not fit beside the labels.
// REQUIRES: the view has a row and a column.
TextLayout layOut(const TableView& view, const FootnoteMarks& marks, std::size_t pageWidth);

}  // namespace om::render::internal

#endif  // OM_RENDER_INTERNAL_TEXTLAYOUT_H_
