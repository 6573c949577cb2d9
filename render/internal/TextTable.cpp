#include "render/internal/TextTable.h"

#include <algorithm>

#include "render/internal/RowLabels.h"
#include "render/internal/TextGrid.h"

namespace om::render::internal {

namespace {

using Span = HeadingGrid::Span;

}  // namespace

TextTable::TextTable(const TableView& view, const FootnoteMarks& marks, const Page& page,
                     ByteSink& out)
    : view_(view),
      out_(out),
      lines_(out, page.ascii),
      reader_(marks),
      layout_(layOut(view, marks, page.width)) {}

TextTable::~TextTable() = default;

std::string TextTable::noteOf(std::size_t panel) const {
  const Panel& shown = layout_.panels[panel];
  const std::string end = std::to_string(shown.end);
  const std::string columns = shown.end - shown.begin == 1
                                  ? "column " + end
                                  : "columns " + std::to_string(shown.begin + 1) + " to " + end;
  return "(" + columns + " of " + std::to_string(layout_.columns.size()) + ")";
}

void TextTable::draw(std::size_t panel) {
  const Panel& shown = layout_.panels[panel];
  widths_ = layout_.labelColumns;
  for (std::size_t i = shown.begin; i != shown.end; ++i) {
    widths_.push_back(layout_.columns[i].width);
  }
  drawHead(shown);
  drawRows(shown);
}

// ---- Head

// With the line above it and none below. A corner with texts makes a band where there are no column
// labels.
void TextTable::drawHead(const Panel& panel) {
  const HeadingGrid& columns = view_.columns();
  const std::size_t labelColumns = layout_.labelColumns.size();
  const std::size_t bands = view_.headRows();
  if (bands == 0) {
    RowLabels labels(view_, reader_, layout_.labelColumns);
    labels.next();
    return lines_.rule(widths_, {}, boundaries(panel, labels));
  }
  TextGrid grid(widths_, bands);
  for (const TableView::CornerCell& cell : view_.corner()) {
    grid.place({cell.begin, cell.end, 0, bands}, reader_.label(cell.text).text, Align::LEFT);
  }
  const std::size_t toGrid = labelColumns - panel.begin;  // from a place; modulo 2^64
  for (std::size_t level = 0; level < columns.levels(); ++level) {
    const auto& spans = columns.spans(level);
    const auto first = std::partition_point(
        spans.begin(), spans.end(), [&](const Span& span) { return span.end <= panel.begin; });
    for (auto span = first; span != spans.end() && span->begin < panel.end; ++span) {
      const std::size_t begin = std::max<std::size_t>(span->begin, panel.begin);
      const std::size_t end = std::min<std::size_t>(span->end, panel.end);
      const bool isNumeric = end - begin == 1 && layout_.columns[begin].hasNumbers;
      const Align single = isNumeric ? Align::RIGHT : Align::LEFT;
      grid.place({begin + toGrid, end + toGrid, level, level + span->levels},
                 reader_.label(span->text()).text, end - begin == 1 ? single : Align::CENTRE);
    }
  }
  if (columns.levels() == 0) {
    grid.place({labelColumns, widths_.size(), 0, 1}, {}, Align::LEFT);
  }
  lines_.rule(widths_, {}, grid.boundaries(0));
  grid.draw(lines_);
  RowLabels labels(view_, reader_, layout_.labelColumns);
  labels.next();
  lines_.rule(widths_, grid.boundaries(bands - 1), boundaries(panel, labels));
}

// ---- Rows

void TextTable::drawRows(const Panel& panel) {
  wrapped_.clear();
  for (std::size_t i = panel.begin; i != panel.end; ++i) {
    wrapped_.push_back(layout_.columns[i].mayWrap ? std::make_unique<WrappedCell>() : nullptr);
  }
  RowLabels labels(view_, reader_, layout_.labelColumns);
  labels.next();
  for (std::uint64_t row = 0; out_.ok();) {
    view_.row(row, panel.begin, panel.end, cells_);
    drawRow(panel, labels);
    if (++row == view_.rowCount()) break;
    if (labels.endsGroup()) {
      const std::vector<bool> above = boundaries(panel, labels);
      labels.next();
      lines_.rule(widths_, above, boundaries(panel, labels));
    } else {
      labels.next();
    }
  }
  lines_.rule(widths_, boundaries(panel, labels), {});
}

void TextTable::drawRow(const Panel& panel, RowLabels& labels) {
  const std::size_t height = std::max(labels.lines(), wrapCells(panel));
  for (std::size_t line = 0; line < height; ++line) {
    labels.drawLine(lines_);
    visitRow(cells_, [&](std::size_t i) { drawPlace(i, line, layout_.columns[panel.begin + i]); });
    lines_.verticalLine();
    lines_.endLine();
  }
}

// Draws one line of what stands at a place of the present row.
void TextTable::drawPlace(std::size_t place, std::size_t line, const BodyColumn& column) {
  lines_.verticalLine();
  const WrappedCell* const wrapped = wrapped_[place].get();
  if (wrapped != nullptr && !wrapped->text.lines().empty()) {
    const std::vector<TextLine>& text = wrapped->text.lines();
    lines_.text(line < text.size() ? &text[line] : nullptr, column.width, wrapped->align);
  } else if (line == 0 && cells_[place] != nullptr) {
    drawCell(cells_[place], column);
  } else {
    lines_.blanks(column.width + 2);
  }
}

void TextTable::drawCell(const OmCellText* cell, const BodyColumn& column) {
  const ShownText& shown = reader_.cell(cell);
  if (!shown.isNumber) {
    const TextLine line{shown.text, shown.width, 0};
    return lines_.text(&line, column.width, Align::LEFT);
  }
  const std::size_t width = shown.width + shown.marksWidth;
  const std::size_t behind =
      column.isAligned ? column.rest - (width - shown.whole) : std::size_t{0};
  const std::size_t before = 1 + column.width - width - behind;
  if (shown.marks.empty()) return lines_.among(before, shown.text, behind + 1);
  lines_.blanks(before);
  out_.put(shown.text);
  lines_.among(0, shown.marks, behind + 1);
}

// Gives the number of lines that the row needs for them.
std::size_t TextTable::wrapCells(const Panel& panel) {
  std::size_t height = 1;
  for (std::size_t i = 0; i < wrapped_.size(); ++i) {
    if (wrapped_[i] == nullptr) continue;
    wrapCell(cells_[i], layout_.columns[panel.begin + i], *wrapped_[i]);
    height = std::max(height, wrapped_[i]->text.lines().size());
  }
  return height;
}

void TextTable::wrapCell(const OmCellText* cell, const BodyColumn& column, WrappedCell& wrapped) {
  wrapped.text.clear();
  if (cell == nullptr) return;
  const ShownText& shown = reader_.cell(cell);
  if (shown.isNumber && column.isAligned) return;
  wrapped.align = shown.isNumber ? Align::RIGHT : Align::LEFT;
  std::string text(shown.text);
  text += shown.marks;
  wrapped.text.assign(text, {column.width});
}

std::vector<bool> TextTable::boundaries(const Panel& panel, const RowLabels& labels) const {
  const std::size_t labelColumns = layout_.labelColumns.size();
  std::vector<bool> boundaries(labelColumns + panel.end - panel.begin + 1, true);
  for (std::size_t i = 1; i < labelColumns; ++i) boundaries[i] = labels.hasLineBefore(i);
  return boundaries;
}

}  // namespace om::render::internal
