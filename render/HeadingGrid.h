// HeadingGrid: the labels over the columns or beside the rows of a table, as the cells that a
// writer draws. It speaks of places (columns, or rows) and levels (label rows, or label columns);
// level 0 is the outermost.
//
//   places      0        1        2        3
//   level 0   [ Sex                              ]    one span of four places
//   level 1   [ Female          ][ Male          ]
//   level 2   [ First ][ Second ][ First ][ Second]
//
// A span covers a run of places on one level, and the levels below it where its category has no
// further labels. Labels are merged when they are of the same node, from the outermost level in; a
// span never crosses an end of a span on the level above.
//
// Ownership: a grid refers to the texts of its table and must not outlive it, but needs the
// headings only while it is built. Threads: reading from several threads is safe. Memory: 32 bytes
// a span. Errors: std::bad_alloc.

#ifndef OM_RENDER_HEADINGGRID_H_
#define OM_RENDER_HEADINGGRID_H_

#include <cstddef>
#include <cstdint>
#include <vector>

#include "display/OmDisplayColumnHeading.h"
#include "display/OmDisplayRowHeading.h"
#include "render/Export.h"

namespace om::render {

// What is done with a label that stands at several places in a row.
enum class Spans {
  MERGE,   // it is one span
  FIRST,   // it stands at the first place; the others are spans without a label
  REPEAT,  // it stands at each of them
};

class OM_RENDER_API HeadingGrid {
 public:
  struct Span {
    std::uint64_t begin;          // the first place
    std::uint64_t end;            // one behind the last place
    const OmDimensionNode* node;  // null: a cell without a label
    std::uint32_t levels;         // how many levels it covers, its own included

    std::uint64_t places() const { return end - begin; }
    const OmCellText* text() const { return node != nullptr ? node->Text() : nullptr; }
    bool operator==(const Span&) const = default;
  };

  // Without places and levels.
  HeadingGrid() = default;
  HeadingGrid(const OmDisplayColumnHeading& columns, Spans spans);
  HeadingGrid(const OmDisplayRowHeading& rows, Spans spans);

  std::uint64_t places() const { return places_; }
  std::size_t levels() const { return levels_.size(); }

  // The spans that begin on a level, in the order of their places. Where a place is missing between
  // two of them, a span of a level above covers it. REQUIRES: level < levels().
  const std::vector<Span>& spans(std::size_t level) const { return levels_[level]; }

  // The span that begins on this level and covers the place, or null. Takes O(log n).
  const Span* find(std::size_t level, std::uint64_t place) const;

 private:
  std::uint64_t places_ = 0;
  std::vector<std::vector<Span>> levels_;
};

}  // namespace om::render

#endif  // OM_RENDER_HEADINGGRID_H_
