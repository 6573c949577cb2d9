#include "render/internal/HtmlHeadings.h"

#include <algorithm>

namespace om::render::internal {

namespace {

using Span = HeadingGrid::Span;

// Browsers cut longer spans off, so these go on in another cell with the same label.
constexpr std::uint64_t kMostColumns = 1000;
constexpr std::uint64_t kMostRows = 65534;

void appendId(std::string& ids, const std::string& prefix, char axis, std::size_t level,
              std::uint64_t place) {
  if (!ids.empty()) ids += ' ';
  ids += prefix;
  ids += axis;
  ids += std::to_string(level);
  ids += 'p';
  ids += std::to_string(place);
}

void writeSpan(HtmlOut& out, std::uint64_t columns, std::uint64_t rows) {
  if (columns > 1) out.markup(" colspan=\"").number(columns).markup("\"");
  if (rows > 1) out.markup(" rowspan=\"").number(rows).markup("\"");
}

// By its level, a label stays in its place when the cells are scrolled.
void writeRowClass(HtmlOut& out, std::uint64_t level) {
  out.markup(" class=\"row");
  if (level != 0) out.markup(" l").number(level);
  out.markup("\"");
}

}  // namespace

bool isNumeric(const OmCellText& cell, std::string_view text) {
  if (cell.Kind() == OmCellText::NUMBER) return true;
  constexpr std::string_view kDigits = "0123456789";
  return text.find_first_of(kDigits) != text.npos &&
         text.find_first_not_of("0123456789.,+-<>=()%eE ") == text.npos;
}

HtmlColumnLabels::HtmlColumnLabels(const HtmlLayer& layer) : layer_(layer), ends_{0} {
  const TableView& view = layer.view;
  const HeadingGrid& grid = view.columns();
  TextReader reader;
  std::vector<const OmCellText*> cells;
  if (view.rowCount() != 0) view.row(0, cells);
  isText_.resize(view.columnCount());
  for (std::size_t column = 0; column < cells.size(); ++column) {
    const OmCellText* const cell = cells[column];
    isText_[column] = cell != nullptr && !isNumeric(*cell, reader(cell));
  }

  std::vector<std::size_t> next(grid.levels());
  std::string ids;
  for (std::uint64_t column = 0; column < view.columnCount(); ++column) {
    ids.clear();
    for (std::size_t level = 0; level < grid.levels(); ++level) {
      const std::vector<Span>& spans = grid.spans(level);
      std::size_t& at = next[level];
      while (at != spans.size() && spans[at].end <= column) ++at;
      if (at == spans.size() || spans[at].begin > column) continue;
      if (layer.isBare(spans[at].text(), reader(spans[at].text()))) continue;
      const std::uint64_t begin = column - (column - spans[at].begin) % kMostColumns;
      appendId(ids, layer.prefix, 'c', level, begin);
    }
    ids_ += ids;
    ends_.push_back(ids_.size());
  }
}

void HtmlColumnLabels::write() {
  const std::size_t rows = layer_.view.headRows();
  if (rows == 0) return;
  layer_.out.markup("<thead>\n");
  for (std::size_t row = 0; row < rows; ++row) {
    layer_.out.markup("<tr>");
    if (row == 0) writeCorner(rows);
    if (row < layer_.view.columns().levels()) writeLevel(row);
    layer_.out.markup("</tr>\n");
  }
  layer_.out.markup("</thead>\n");
}

// Without column labels, the row of the corner has an empty cell for each column.
void HtmlColumnLabels::writeCorner(std::size_t rows) {
  HtmlOut& out = layer_.out;
  TextReader reader;
  for (const TableView::CornerCell& cell : layer_.view.corner()) {
    const std::string_view text = reader(cell.text);
    if (layer_.isBare(cell.text, text)) {
      out.markup("<td");
      writeRowClass(out, cell.begin);
      writeSpan(out, cell.end - cell.begin, rows);
      out.markup("></td>");
    } else {
      out.markup("<th scope=\"col\" id=\"").ids(layer_.prefix).markup("k").number(cell.begin);
      out.markup("\"");
      writeRowClass(out, cell.begin);
      writeSpan(out, cell.end - cell.begin, rows);
      out.markup(">").isolated(text);
      layer_.notes.writeMarks(cell.text, false);
      out.markup("</th>");
    }
  }
  if (layer_.view.columns().levels() != 0) return;
  for (std::uint64_t column = 0; column < layer_.view.columnCount(); ++column) {
    out.markup("<td></td>");
  }
}

void HtmlColumnLabels::writeLevel(std::size_t level) {
  HtmlOut& out = layer_.out;
  TextReader reader;
  std::string id;
  for (const Span& span : layer_.view.columns().spans(level)) {
    if (out.failed()) return;
    const std::string_view text = reader(span.text());
    const bool isOver = level + span.levels < layer_.view.columns().levels();
    for (std::uint64_t begin = span.begin; begin < span.end; begin += kMostColumns) {
      const std::uint64_t columns = std::min(span.end - begin, kMostColumns);
      if (layer_.isBare(span.text(), text)) {
        out.markup("<td");
        writeSpan(out, columns, span.levels);
        out.markup("></td>");
        continue;
      }
      id.clear();
      appendId(id, layer_.prefix, 'c', level, begin);
      out.markup("<th scope=\"col\" id=\"").ids(id).markup("\"");
      if (isOver) {
        out.markup(" class=\"over\"");
      } else if (isText_[begin]) {
        out.markup(" class=\"text\"");
      }
      writeSpan(out, columns, span.levels);
      out.markup(isOver ? Markup("><span>") : Markup(">")).isolated(text);
      layer_.notes.writeMarks(span.text(), !isOver && !isText_[begin] && !isBlank(text));
      out.markup(isOver ? Markup("</span></th>") : Markup("</th>"));
    }
  }
}

HtmlRowLabels::HtmlRowLabels(const HtmlLayer& layer)
    : layer_(layer), levels_(layer.view.rows().levels()) {}

bool HtmlRowLabels::beginsGroup(std::uint64_t row) const {
  return row != 0 && levels_.size() > 1 && levels_[0].end == row;
}

void HtmlRowLabels::write(std::uint64_t row) {
  ids_.clear();
  for (std::size_t level = 0; level < levels_.size(); ++level) {
    Level& at = levels_[level];
    if (at.end <= row) {
      const std::vector<Span>& spans = layer_.view.rows().spans(level);
      at.id.clear();
      while (at.next != spans.size() && spans[at.next].end <= row) ++at.next;
      if (at.next == spans.size() || spans[at.next].begin > row) continue;
      write(level, spans[at.next], row);
    }
    if (at.id.empty()) continue;
    ids_ += ' ';
    ids_ += at.id;
  }
}

void HtmlRowLabels::write(std::size_t level, const Span& span, std::uint64_t row) {
  HtmlOut& out = layer_.out;
  Level& at = levels_[level];
  at.end = std::min(span.end, row + kMostRows);
  const std::string_view text = reader_(span.text());
  if (layer_.isBare(span.text(), text)) {
    out.markup("<td");
    writeRowClass(out, level);
    writeSpan(out, span.levels, at.end - row);
    out.markup("></td>");
    return;
  }
  appendId(at.id, layer_.prefix, 'r', level, row);
  out.markup("<th scope=\"row\" id=\"").ids(at.id).markup("\"");
  writeRowClass(out, level);
  writeSpan(out, span.levels, at.end - row);
  // The label of several rows is wrapped, so that it can stay in view as long as one of them is.
  const bool isOver = at.end - row > 1;
  out.markup(isOver ? Markup("><span>") : Markup(">")).isolated(text);
  layer_.notes.writeMarks(span.text(), false);
  out.markup(isOver ? Markup("</span></th>") : Markup("</th>"));
}

}  // namespace om::render::internal
