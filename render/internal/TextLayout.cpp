#include "render/internal/TextLayout.h"

#include <algorithm>
#include <limits>
#include <span>
#include <utility>

#include "render/internal/TextLines.h"
#include "render/internal/Wrapping.h"

namespace om::render::internal {

namespace {

using Span = HeadingGrid::Span;
using Widths = std::vector<std::size_t>;

constexpr std::size_t kUnlimited = std::numeric_limits<std::size_t>::max() / 2;
constexpr std::size_t kLeastWidth = 4;     // of a column that has to be made narrower
constexpr std::size_t kLabelWidth = 10;    // of a label column that need not be narrower
constexpr std::size_t kShortLabel = 16;    // of one that is made narrower so that all fits
constexpr std::size_t kBodyRoom = 12;      // beside the labels
constexpr std::size_t kCellWidth = 32;     // longer texts are wrapped
constexpr std::size_t kLongLabel = 60;     // longer row labels are wrapped
constexpr std::size_t kNumberWidth = 64;   // longer numbers are wrapped as texts are
constexpr std::size_t kHeadingWidth = 18;  // of column labels, unless a word is longer

// The width of columns side by side with what lies between them.
template <class Columns, class WidthOf>
std::size_t widthOf(const Columns& columns, WidthOf widthOfOne) {
  std::size_t width = 0;
  for (const auto& column : columns) width += widthOfOne(column) + kBetweenColumns;
  return width != 0 ? width - kBetweenColumns : 0;
}

// Makes columns wider, all by the same if possible, until they have `wanted` together.
void widen(std::size_t have, std::size_t wanted, std::span<std::size_t*> columns) {
  if (have >= wanted) return;
  std::size_t missing = wanted - have;
  for (std::size_t i = 0; i < columns.size(); ++i) {
    const std::size_t share = missing / (columns.size() - i);
    *columns[i] += share;
    missing -= share;
  }
}

class Layout {
 public:
  Layout(const TableView& view, const FootnoteMarks& marks, std::size_t pageWidth)
      : view_(view), reader_(marks), page_(pageWidth != 0 ? pageWidth : kUnlimited) {}

  TextLayout operator()() {
    measureLabels();
    measureCells();
    narrowLabels(page_ / 2, page_ > kBodyRoom ? page_ - kBodyRoom : 0);
    layOutColumns();
    giveLabelsWhatIsLeft();
    splitIntoPanels();
    return std::move(layout_);
  }

 private:
  // ---- Label columns

  void measureLabels() {
    Widths& widths = layout_.labelColumns;
    widths.assign(view_.rows().levels(), 1);
    for (std::size_t level = widths.size(); level-- != 0;) {
      for (const Span& span : view_.rows().spans(level)) {
        if (span.node == nullptr) continue;
        const std::size_t wanted = std::min(reader_.label(span.text()).width, kLongLabel);
        widenLabels(level, level + span.levels, wanted);
      }
    }
    for (const TableView::CornerCell& cell : view_.corner()) {
      widenLabels(cell.begin, cell.end, headingWidth(cell.text, kCellWidth));
    }
    widestLabels_ = widths;
  }

  void widenLabels(std::size_t begin, std::size_t end, std::size_t wanted) {
    const std::span<std::size_t> covered =
        std::span(layout_.labelColumns).subspan(begin, end - begin);
    const std::size_t have = widthOf(covered, [](std::size_t width) { return width; });
    if (have >= wanted) return;
    std::vector<std::size_t*> columns;
    for (std::size_t& width : covered) columns.push_back(&width);
    widen(have, wanted, columns);
  }

  // Makes labels narrower, the widest columns first, until they take no more than is good, but not
  // so narrow that words suffer; then, if need be, until they take no more than is allowed.
  void narrowLabels(std::size_t good, std::size_t allowed) {
    Widths& widths = layout_.labelColumns;
    widths = widestLabels_;
    std::size_t limit = widths.empty() ? 0 : *std::max_element(widths.begin(), widths.end());
    const auto narrow = [&](std::size_t least, std::size_t wanted) {
      const auto narrowed = [&](std::size_t width) { return std::min(width, limit); };
      while (limit > least && widthOf(widths, narrowed) > wanted) --limit;
    };
    narrow(kLabelWidth, good);
    narrow(kLeastWidth, allowed);
    for (std::size_t& width : widths) width = std::min(width, limit);
    // One line in front of all, and behind each column a line and two blanks.
    const std::size_t labels = widthOf(widths, [](std::size_t width) { return width; });
    beforeBody_ = widths.empty() ? 1 : 1 + labels + kBetweenColumns;
  }

  // Labels get all that the body leaves over, and rather less than half of the page than that the
  // table does not fit.
  void giveLabelsWhatIsLeft() {
    const std::size_t body = widthOfColumns({0, layout_.columns.size()}) + 2 * kBetweenColumns + 1;
    if (page_ <= body) return;
    const std::size_t left = page_ - body;
    const auto shortened = [](std::size_t width) { return std::min(width, kShortLabel); };
    if (left > page_ / 2 || widthOf(widestLabels_, shortened) <= left) narrowLabels(left, left);
  }

  // The width that a column label asks for; it is broken at blanks rather than within words.
  std::size_t headingWidth(const OmCellText* text, std::size_t most) {
    const ShownText& shown = reader_.label(text);
    if (shown.width <= kHeadingWidth) return std::min(shown.width, most);
    const std::size_t words = std::min(widthOfWords(shown.text), kCellWidth);
    return std::min({shown.width, std::max(kHeadingWidth, words), most});
  }

  // ---- Body columns

  void layOutColumns() {
    room_ = page_ > beforeBody_ + kBetweenColumns + kLeastWidth
                ? page_ - beforeBody_ - kBetweenColumns
                : kLeastWidth;
    for (BodyColumn& column : layout_.columns) settle(column);
    for (std::size_t level = view_.columns().levels(); level-- != 0;) {
      for (const Span& span : view_.columns().spans(level)) {
        widenColumns({span.begin, span.end}, headingWidth(span.text(), room_));
      }
    }
    for (BodyColumn& column : layout_.columns) column.mayWrap |= column.widest > column.width;
  }

  void measureCells() {
    layout_.columns.resize(view_.columnCount());
    std::vector<const OmCellText*> cells;
    for (std::uint64_t row = 0; row < view_.rowCount(); ++row) {
      view_.row(row, cells);
      visitRow(cells, [&](std::size_t i) {
        if (cells[i] != nullptr) add(reader_.size(cells[i]), layout_.columns[i]);
      });
    }
  }

  static void add(const ShownText& cell, BodyColumn& column) {
    column.widest = std::max(column.widest, cell.width + cell.marksWidth);
    if (cell.isNumber) {
      column.hasNumbers = true;
      column.whole = std::max(column.whole, cell.whole);
      column.rest = std::max(column.rest, cell.width - cell.whole + cell.marksWidth);
    } else if (cell.text.find('\n') != cell.text.npos) {
      column.mayWrap = true;
    }
  }

  void settle(BodyColumn& column) const {
    const std::size_t numbers = column.whole + column.rest;
    column.isAligned = numbers <= std::min(kNumberWidth, room_);
    column.width = std::max({column.width, std::min({column.widest, kCellWidth, room_}),
                             column.isAligned ? numbers : 1});
  }

  void widenColumns(const Panel& range, std::size_t wanted) {
    const auto covered = std::span(layout_.columns).subspan(range.begin, range.end - range.begin);
    const std::size_t have = widthOf(covered, [](const auto& column) { return column.width; });
    if (have >= wanted) return;
    std::vector<std::size_t*> columns;
    for (BodyColumn& column : covered) columns.push_back(&column.width);
    widen(have, wanted, columns);
  }

  // ---- Panels

  void splitIntoPanels() {
    const std::size_t count = layout_.columns.size();
    for (std::size_t begin = 0; begin < count;) {
      Panel panel{begin, begin + 1};
      std::size_t width = widthWith(layout_.columns[begin].width, beforeBody_);
      while (panel.end < count && widthWith(layout_.columns[panel.end].width, width) <= page_) {
        width = widthWith(layout_.columns[panel.end].width, width);
        ++panel.end;
      }
      if (panel.end < count) panel.end = endAtGroup(panel);
      layout_.panels.push_back(panel);
      begin = panel.end;
    }
    if (layout_.panels.size() > 1) {
      for (const Panel& panel : layout_.panels) widenCutLabels(panel);
    }
  }

  static std::size_t widthWith(std::size_t column, std::size_t before) {
    return before + column + kBetweenColumns;
  }

  // Ends a panel in front of a group that it would cut, if half of its columns stay.
  std::size_t endAtGroup(const Panel& panel) const {
    const HeadingGrid& grid = view_.columns();
    for (std::size_t level = 0; level < grid.levels(); ++level) {
      const Span* const group = grid.find(level, panel.end);
      if (group == nullptr || group->begin == panel.end) return panel.end;
      if (group->begin > panel.begin &&
          2 * (group->begin - panel.begin) >= panel.end - panel.begin) {
        return group->begin;
      }
    }
    return panel.end;
  }

  // A label of which the panel shows only some places needs room there as well, if there is any.
  void widenCutLabels(const Panel& panel) {
    for (std::size_t level = view_.columns().levels(); level-- != 0;) {
      for (const std::size_t place : {panel.begin, panel.end - 1}) {
        const Span* const span = view_.columns().find(level, place);
        if (span == nullptr || (span->begin >= panel.begin && span->end <= panel.end)) continue;
        const Panel shown{std::max<std::size_t>(panel.begin, span->begin),
                          std::min<std::size_t>(panel.end, span->end)};
        const std::size_t have = widthOfColumns(shown);
        const std::size_t used = beforeBody_ + widthOfColumns(panel) + kBetweenColumns;
        const std::size_t spare = page_ > used ? page_ - used : 0;
        widenColumns(shown, std::min(headingWidth(span->text(), room_), have + spare));
      }
    }
  }

  std::size_t widthOfColumns(const Panel& range) const {
    const auto columns = std::span(layout_.columns).subspan(range.begin, range.end - range.begin);
    return widthOf(columns, [](const auto& column) { return column.width; });
  }

  const TableView& view_;
  TableReader reader_;
  const std::size_t page_;
  std::size_t beforeBody_ = 0;  // the width of what stands in front of the first body column
  std::size_t room_ = 0;        // for the width of a body column
  Widths widestLabels_;         // what the label columns ask for
  TextLayout layout_;
};

}  // namespace

TextLayout layOut(const TableView& view, const FootnoteMarks& marks, std::size_t pageWidth) {
  return Layout(view, marks, pageWidth)();
}

}  // namespace om::render::internal
