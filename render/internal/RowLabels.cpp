#include "render/internal/RowLabels.h"

#include <algorithm>

namespace om::render::internal {

namespace {

constexpr std::size_t kHang = 2;           // of the further lines of a label
constexpr std::size_t kWidthForHang = 10;  // narrower columns have no room for it

}  // namespace

RowLabels::RowLabels(const TableView& view, TableReader& reader,
                     const std::vector<std::size_t>& widths)
    : grid_(view.rows()),
      reader_(reader),
      widths_(widths),
      spans_(view.options().rowSpans),
      hasGroups_(hasGroups()),
      columns_(widths.size()) {}

// Rows whose labels are repeated are no groups to the eye.
bool RowLabels::hasGroups() const {
  if (grid_.levels() < 2 || spans_ == Spans::REPEAT) return false;
  const auto& outermost = grid_.spans(0);
  return std::any_of(outermost.begin(), outermost.end(), [&](const HeadingGrid::Span& span) {
    return span.places() > 1 || (spans_ == Spans::FIRST && span.node == nullptr);
  });
}

bool RowLabels::endsGroup() const {
  if (!hasGroups_ || columns_[0].end != row_) return false;
  return spans_ == Spans::MERGE || grid_.spans(0)[columns_[0].next].node != nullptr;
}

void RowLabels::next() {
  for (std::size_t level = 0; level < columns_.size();) {
    Column& column = columns_[level];
    const auto& spans = grid_.spans(level);
    if (column.next < spans.size() && spans[column.next].begin == row_) {
      enter(level, spans[column.next++]);
    }
    for (std::size_t i = level + 1; i < level + column.columns; ++i) columns_[i].isOwn = false;
    level += column.columns;
    if (level < columns_.size()) columns_[level].isOwn = true;
  }
  ++row_;
}

void RowLabels::enter(std::size_t level, const HeadingGrid::Span& span) {
  Column& column = columns_[level];
  column.end = span.end;
  column.columns = span.levels;
  column.shown = 0;
  column.text.clear();
  const ShownText& shown = reader_.label(span.text());
  if (shown.text.empty()) return;
  const std::size_t width = widthOf(level, span.levels);
  column.text.assign(shown.text, {width, width < kWidthForHang ? 0 : kHang});
}

std::size_t RowLabels::widthOf(std::size_t level, std::size_t columns) const {
  std::size_t width = (columns - 1) * kBetweenColumns;
  for (std::size_t i = level; i < level + columns; ++i) width += widths_[i];
  return width;
}

std::size_t RowLabels::lines() const {
  std::size_t lines = 1;
  for (std::size_t level = 0; level < columns_.size(); level += columns_[level].columns) {
    const Column& column = columns_[level];
    if (column.end == row_) lines = std::max(lines, column.text.lines().size() - column.shown);
  }
  return lines;
}

void RowLabels::drawLine(TextLines& lines) {
  for (std::size_t level = 0; level < columns_.size(); level += columns_[level].columns) {
    Column& column = columns_[level];
    const std::vector<TextLine>& text = column.text.lines();
    const TextLine* const line = column.shown < text.size() ? &text[column.shown++] : nullptr;
    lines.verticalLine();
    lines.text(line, widthOf(level, column.columns), Align::LEFT);
  }
}

}  // namespace om::render::internal
