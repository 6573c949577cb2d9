// A small grid of cells that cover several bands and columns, as lines of text: the head of a
// table.
//
//   band 0   │        │       Female    │       a cell that covers two columns
//            │        ├────────┬────────┤
//   band 1   │ Class  │ First  │ Second │       "Class" covers two bands and stands at their end
//
// Ownership: a grid keeps the texts. Memory: what they take, and 8 bytes a column and band.

#ifndef OM_RENDER_INTERNAL_TEXTGRID_H_
#define OM_RENDER_INTERNAL_TEXTGRID_H_

#include <cstddef>
#include <deque>
#include <string_view>
#include <vector>

#include "render/internal/TextLines.h"

namespace om::render::internal {

class TextGrid {
 public:
  struct Area {
    std::size_t column;
    std::size_t columnEnd;
    std::size_t band;
    std::size_t bandEnd;
  };

  TextGrid(std::vector<std::size_t> widths, std::size_t bands);

  // REQUIRES: the area lies in the grid, and nothing has been put there.
  void place(const Area& area, std::string_view text, Align align);

  // Draws the bands with the lines between them, but none above and below. REQUIRES: every place
  // is covered.
  void draw(TextLines& lines) const;

  // Which of the boundaries in front of, between and behind the columns have a line in a band.
  std::vector<bool> boundaries(std::size_t band) const;

 private:
  struct Cell {
    Area area{};
    Align align = Align::LEFT;
    WrappedText text;
  };

  const Cell* at(std::size_t column, std::size_t band) const {
    return cover_[band * widths_.size() + column];
  }
  std::size_t widthOf(const Area& area) const;
  std::vector<std::size_t> tops() const;
  void drawLine(std::size_t band, std::size_t line, const std::vector<std::size_t>& tops,
                TextLines& lines) const;
  void drawRule(std::size_t band, const std::vector<std::size_t>& tops, TextLines& lines) const;
  void drawText(const Cell& cell, std::size_t line, const std::vector<std::size_t>& tops,
                TextLines& lines) const;

  const std::vector<std::size_t> widths_;
  const std::size_t bands_;
  std::deque<Cell> cells_;
  std::vector<const Cell*> cover_;  // band by band
};

}  // namespace om::render::internal

#endif  // OM_RENDER_INTERNAL_TEXTGRID_H_
