#include "render/internal/TextGrid.h"

#include <algorithm>
#include <utility>

namespace om::render::internal {

TextGrid::TextGrid(std::vector<std::size_t> widths, std::size_t bands)
    : widths_(std::move(widths)), bands_(bands), cover_(widths_.size() * bands) {}

void TextGrid::place(const Area& area, std::string_view text, Align align) {
  Cell& cell = cells_.emplace_back();
  cell.area = area;
  cell.align = align;
  if (!text.empty()) cell.text.assign(text, {widthOf(area)});
  for (std::size_t band = area.band; band != area.bandEnd; ++band) {
    for (std::size_t column = area.column; column != area.columnEnd; ++column) {
      cover_[band * widths_.size() + column] = &cell;
    }
  }
}

std::size_t TextGrid::widthOf(const Area& area) const {
  std::size_t width = (area.columnEnd - area.column - 1) * kBetweenColumns;
  for (std::size_t i = area.column; i != area.columnEnd; ++i) width += widths_[i];
  return width;
}

// The line at which each band begins, counting the lines between them, and the line behind the last
// one. A band is as high as its highest cell of one band; where a cell of several bands needs more,
// the last of them is higher.
std::vector<std::size_t> TextGrid::tops() const {
  std::vector<std::size_t> heights(bands_, 1);
  for (const bool several : {false, true}) {
    for (const Cell& cell : cells_) {
      const std::size_t bands = cell.area.bandEnd - cell.area.band;
      if ((bands > 1) != several) continue;
      std::size_t height = bands - 1;
      for (std::size_t i = cell.area.band; i != cell.area.bandEnd; ++i) height += heights[i];
      const std::size_t wanted = cell.text.lines().size();
      if (wanted > height) heights[cell.area.bandEnd - 1] += wanted - height;
    }
  }
  std::vector<std::size_t> tops = {0};
  for (const std::size_t height : heights) tops.push_back(tops.back() + height + 1);
  return tops;
}

void TextGrid::draw(TextLines& lines) const {
  const std::vector<std::size_t> top = tops();
  for (std::size_t band = 0; band < bands_; ++band) {
    for (std::size_t line = top[band]; line + 1 < top[band + 1]; ++line) {
      drawLine(band, line, top, lines);
    }
    if (band + 1 < bands_) drawRule(band, top, lines);
  }
}

void TextGrid::drawLine(std::size_t band, std::size_t line, const std::vector<std::size_t>& tops,
                        TextLines& lines) const {
  for (std::size_t column = 0; column < widths_.size();) {
    const Cell& cell = *at(column, band);
    lines.verticalLine();
    drawText(cell, line, tops, lines);
    column = cell.area.columnEnd;
  }
  lines.verticalLine();
  lines.endLine();
}

// The line behind a band, in which the cells go on that the next band has as well.
void TextGrid::drawRule(std::size_t band, const std::vector<std::size_t>& tops,
                        TextLines& lines) const {
  const std::vector<bool> up = boundaries(band);
  const std::vector<bool> down = boundaries(band + 1);
  const auto hasRule = [&](std::size_t column) { return at(column, band) != at(column, band + 1); };
  for (std::size_t column = 0; column < widths_.size();) {
    lines.crossing({up[column], down[column], column != 0 && hasRule(column - 1), hasRule(column)});
    if (hasRule(column)) {
      lines.horizontal(widths_[column++]);
    } else {
      const Cell& cell = *at(column, band);
      drawText(cell, tops[band + 1] - 1, tops, lines);
      column = cell.area.columnEnd;
    }
  }
  lines.crossing({true, true, hasRule(widths_.size() - 1), false});
  lines.endLine();
}

// What a cell shows in one line of the grid: its text stands at the end of the cell.
void TextGrid::drawText(const Cell& cell, std::size_t line, const std::vector<std::size_t>& tops,
                        TextLines& lines) const {
  const std::vector<TextLine>& text = cell.text.lines();
  const std::size_t left = tops[cell.area.bandEnd] - 1 - line;  // lines of the cell, this one too
  const TextLine* const shown = left <= text.size() ? &text[text.size() - left] : nullptr;
  lines.text(shown, widthOf(cell.area), cell.align);
}

std::vector<bool> TextGrid::boundaries(std::size_t band) const {
  std::vector<bool> boundaries(widths_.size() + 1, true);
  for (std::size_t i = 1; i < widths_.size(); ++i) boundaries[i] = at(i - 1, band) != at(i, band);
  return boundaries;
}

}  // namespace om::render::internal
