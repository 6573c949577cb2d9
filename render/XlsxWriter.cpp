#include "render/XlsxWriter.h"

#include <algorithm>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "pivot/OmPivotTable.h"
#include "render/DocumentWalk.h"
#include "render/internal/CellText.h"
#include "render/internal/Workbook.h"
#include "render/internal/XlsxText.h"

namespace om::render {

namespace {

using internal::Workbook;
using Span = HeadingGrid::Span;
using Style = Workbook::Style;

constexpr std::uint64_t kMostSheetsAtOnce = 100;
constexpr double kLeastWidth = 8;
constexpr double kMostWidth = 40;

class SheetCount : public DocumentWalk {
 public:
  SheetCount(const OmOutputTree& document, const DocumentTableOptions& options)
      : options_(options) {
    walk(document);
  }
  std::uint64_t count() const { return count_; }

 private:
  void table(OmPivotTable& table, int) override {
    count_ += std::max<std::uint64_t>(LayerWalk(table, options_.of(table)).count(), 1);
  }

  const DocumentTableOptions& options_;
  std::uint64_t count_ = 0;
};

// One sheet, written from the top down.
class Sheet {
 public:
  Sheet(Workbook& workbook, const std::string& name, const FootnoteMarks& marks)
      : workbook_(workbook), sheet_(workbook.addSheet(name)), marks_(marks) {}

  // A table without a layer.
  void write(const OmPivotTable& table, std::string_view message) {
    writeLine(&titleOf(table), Style::TITLE);
    writeMessage(message);
    writeUnder(table);
  }

  void write(const LayerWalk& walk) {
    const TableView& view = walk.view();
    labelColumns_ = view.rows().levels();
    requireRoom(view);
    widths_.assign(labelColumns_ + view.columnCount(), kLeastWidth);
    writeLine(&titleOf(view.table()), Style::TITLE);
    for (const TableView::LayerLabel& label : view.layerLabels()) writeLayer(label);
    if (walk.noBody().empty()) {
      writeHeading(view);
      worksheet_freeze_panes(sheet_, static_cast<lxw_row_t>(row_),
                             static_cast<lxw_col_t>(labelColumns_));
      writeBody(view);
    } else {
      writeMessage(walk.noBody());
    }
    writeUnder(view.table());
    for (std::size_t i = 0; i < widths_.size(); ++i) workbook_.setWidth(sheet_, i, widths_[i]);
  }

 private:
  static void requireRoom(const TableView& view) {
    const std::uint64_t columns = view.rows().levels() + view.columnCount();
    const std::uint64_t rows = view.columns().levels() + view.rowCount();
    // Title, layers, corner, caption and notes come on top.
    const std::uint64_t others = view.layerLabels().size() + view.table().Footnotes().size() + 4;
    if (columns <= LXW_COL_MAX && rows + others <= LXW_ROW_MAX) return;
    throw std::runtime_error("the table \"" + std::string(titleOf(view.table())) + "\" has " +
                             std::to_string(view.rowCount()) + " rows and " +
                             std::to_string(view.columnCount()) +
                             " columns, which is too large for a sheet");
  }

  void writeText(std::uint64_t row, std::uint64_t column, const std::string& text,
                 const std::string& marks, Style style) {
    const std::string raised = internal::xlsxText(marks, 1000);
    const std::size_t room = internal::kMostXlsxUnits - internal::xlsxUnits(raised);
    workbook_.writeText(sheet_, row, column, internal::xlsxText(text, room), raised, style);
  }

  void writeText(std::uint64_t row, std::uint64_t column, const OmCellText* text, Style style) {
    if (text == nullptr) return;
    writeText(row, column, std::string(read_(text)), marks_.marksOf(text), style);
  }

  void writeLine(const OmCellText* text, Style style) { writeText(row_++, 0, text, style); }

  void writeMessage(std::string_view message) {
    writeText(row_++, 0, std::string(message), {}, Style::TEXT);
  }

  // "Dimension: group: category", each with its marks.
  void writeLayer(const TableView::LayerLabel& label) {
    std::string line;
    for (const OmDimensionNode* const node : label.path) {
      if (!line.empty()) line += ": ";
      line += read_(node->Text());
      const std::string marks = marks_.marksOf(node->Text());
      if (!marks.empty()) line += " (" + marks + ')';
    }
    writeText(row_++, 0, line, {}, Style::LAYER);
  }

  void widen(std::uint64_t column, std::string_view text) {
    const auto wanted = static_cast<double>(internal::xlsxUnits(text)) + 2;
    widths_[column] = std::max(widths_[column], std::min(wanted, kMostWidth));
  }

  void writeHeading(const TableView& view) {
    const HeadingGrid& columns = view.columns();
    const std::uint64_t height = view.headRows();
    for (const TableView::CornerCell& cell : view.corner()) {
      if (height == 0) break;
      if (cell.end - cell.begin == 1) widen(cell.begin, read_(cell.text));
      writeText(row_, cell.begin, cell.text, Style::CORNER);
      workbook_.merge(sheet_, row_, row_ + height, cell.begin, cell.end);
    }
    for (std::size_t level = 0; level < columns.levels(); ++level) {
      for (const Span& span : columns.spans(level)) {
        const std::uint64_t column = labelColumns_ + span.begin;
        if (span.places() == 1) widen(column, read_(span.text()));
        writeText(row_ + level, column, span.text(), Style::COLUMN_LABEL);
        workbook_.merge(sheet_, row_ + level, row_ + level + span.levels, column,
                        labelColumns_ + span.end);
      }
    }
    row_ += height;
  }

  void writeBody(const TableView& view) {
    std::vector<std::size_t> next(labelColumns_);  // at each level, the next span
    std::vector<const OmCellText*> cells;
    for (std::uint64_t row = 0; row < view.rowCount(); ++row, ++row_) {
      for (std::size_t level = 0; level < labelColumns_; ++level) {
        const std::vector<Span>& spans = view.rows().spans(level);
        if (next[level] == spans.size() || spans[next[level]].begin != row) continue;
        writeRowLabel(level, spans[next[level]++]);
      }
      view.row(row, cells);
      for (std::size_t column = 0; column < cells.size(); ++column) {
        if (cells[column] != nullptr) writeCell(labelColumns_ + column, *cells[column]);
      }
    }
  }

  void writeRowLabel(std::size_t level, const Span& span) {
    if (span.levels == 1) widen(level, read_(span.text()));
    writeText(row_, level, span.text(), Style::ROW_LABEL);
    workbook_.merge(sheet_, row_, row_ + span.places(), level, level + span.levels);
  }

  void writeCell(std::uint64_t column, const OmCellText& cell) {
    widen(column, read_(&cell));
    const OmNumber* const number = internal::numberOf(&cell);
    if (number != nullptr && internal::isAllOf(cell, *number)) {
      const std::string marks = marks_.marksOf(&cell);
      const std::string code = internal::xlsxNumberFormat(*number, marks);
      if (internal::fitXlsxFormat(marks) && workbook_.hasFormat(code)) {
        return workbook_.writeNumber(sheet_, row_, column, number->Value(), code);
      }
    }
    writeText(row_, column, &cell, Style::TEXT);
  }

  // The caption and the footnotes, each with an empty row above it.
  void writeUnder(const OmPivotTable& table) {
    if (const OmCellText* const caption = captionOf(table)) {
      ++row_;
      writeLine(caption, Style::TEXT);
    }
    if (!marks_.notes().empty()) ++row_;
    for (const FootnoteMarks::Note& note : marks_.notes()) {
      writeText(row_++, 0, note.mark + ". " + note.text, {}, Style::TEXT);
    }
  }

  Workbook& workbook_;
  lxw_worksheet* const sheet_;
  const FootnoteMarks& marks_;
  internal::TextReader read_;
  std::uint64_t row_ = 0;
  std::size_t labelColumns_ = 0;
  std::vector<double> widths_;
};

class XlsxDocument : public DocumentWalk {
 public:
  XlsxDocument(const XlsxOptions& options, Workbook& workbook)
      : options_(options), workbook_(workbook) {}

 private:
  void table(OmPivotTable& table, int) override {
    const std::string number = std::to_string(++tables_);
    const std::string title(titleOf(table));
    const TableOptions& options = options_.tables.of(table);
    LayerWalk walk(table, options);
    if (walk.count() == 0) {
      const FootnoteMarks marks(table, options.marks);
      Sheet sheet(workbook_, internal::xlsxSheetName(number, title), marks);
      sheet.write(table, walk.noBody());
    }
    for (int layer = 1; walk.next(); ++layer) {
      const std::string which = walk.count() > 1 ? number + '.' + std::to_string(layer) : number;
      Sheet(workbook_, internal::xlsxSheetName(which, title), walk.marks()).write(walk);
    }
  }

  const XlsxOptions& options_;
  Workbook& workbook_;
  std::size_t tables_ = 0;
};

}  // namespace

bool canWriteXlsx() { return true; }

void writeXlsx(const OmOutputTree& document, const std::string& path, const XlsxOptions& options) {
  const std::uint64_t sheets = SheetCount(document, options.tables).count();
  Workbook workbook(path, sheets <= kMostSheetsAtOnce);
  if (sheets == 0) workbook.addSheet("Output");  // a workbook has at least one
  XlsxDocument(options, workbook).walk(document);
  workbook.close();
}

}  // namespace om::render
