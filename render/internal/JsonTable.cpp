#include "render/internal/JsonTable.h"

#include <string>
#include <utility>
#include <vector>

#include "render/internal/CellText.h"
#include "render/internal/FootnoteNumbers.h"
#include "render/internal/JsonPlaces.h"
#include "render/internal/ShownText.h"
#include "render/internal/Utf8.h"

namespace om::render::internal {

namespace {

using Layout = JsonEmitter::Layout;

class JsonTable {
 public:
  JsonTable(OmPivotTable& table, const JsonOptions& options, JsonEmitter& json)
      : table_(table), options_(options), json_(json) {}

  void operator()() {
    json_.beginObject();
    json_.member("kind", "table");
    writeText("label", &table_.Label());
    writeText("title", &titleOf(table_));
    writeText("template", std::as_const(table_).TemplateName());
    writeText("caption", std::as_const(table_).Caption());
    if (!table_.showCaption()) json_.member("captionHidden", true);
    writeText("corner", std::as_const(table_).CornerText());
    writeDimensions();
    writeAxes();
    writeJsonFootnotes(std::as_const(table_).Footnotes(), {}, json_);
    json_.key("layers");
    json_.beginArray();
    for (LayerWalk walk(table_, options_.tables.of(table_)); json_.ok() && walk.next();)
      writeLayer(walk);
    json_.end();
    json_.end();
  }

 private:
  void writeString(const OmCellText* text) {
    if (text == nullptr) return json_.null();
    json_.string(read_(text));
  }

  // The member "footnotes" of a text that has some.
  void writeNumbers(const OmCellText* text) {
    readFootnoteNumbers(text, std::as_const(table_).Footnotes().size(), numbers_);
    if (!numbers_.empty()) json_.member("footnotes", numbers_);
  }

  void writeText(const char* name, const OmCellText* text) {
    json_.key(name);
    if (text == nullptr) return json_.null();
    json_.beginObject(Layout::LINE);
    json_.key("text");
    writeString(text);
    writeNumbers(text);
    json_.end();
  }

  void writeDimensions() {
    json_.key("dimensions");
    json_.beginArray();
    for (std::size_t d = 0; d < table_.NDimensions(); ++d) {
      json_.beginObject();
      writeCategories(std::as_const(table_).Dimension(static_cast<int>(d)));
      json_.end();
    }
    json_.end();
  }

  // The open groups are objects that end with the array of their categories.
  void writeCategories(const OmDimension& dimension) {
    std::uint32_t open = 0;
    const auto closeTo = [&](std::uint32_t depth) {
      for (; open > depth; --open) {
        json_.end();
        if (open > 1) json_.end();
      }
    };
    OmDimension::Tree::Walk(dimension.Root(), [&](const OmDimension::ConstNode& node) {
      closeTo(node.Depth());
      if (node.Depth() != 0) json_.beginObject(node->IsGroup() ? Layout::LINES : Layout::LINE);
      writeNode(*node);
      if (node->IsGroup()) {
        json_.key("categories");
        json_.beginArray();
        ++open;
      } else if (node.Depth() != 0) {
        json_.end();
      }
      return node->IsGroup();
    });
    closeTo(0);
  }

  void writeNode(const OmDimensionNode& node) {
    json_.key("label");
    writeString(node.Text());
    if (!node.IsGroup()) json_.member("subscript", node.Subscript());
    if (node.Hide()) json_.member("hidden", true);
    if (node.HideLabels()) json_.member("labelsHidden", true);
    writeNumbers(node.Text());
  }

  // From the outermost dimension in; null where an entry of an axis is no dimension.
  void writeAxes() {
    json_.key("axes");
    json_.beginObject();
    writeAxis("layers", std::as_const(table_).Layers());
    writeAxis("rows", std::as_const(table_).Rows());
    writeAxis("columns", std::as_const(table_).Columns());
    json_.end();
  }

  void writeAxis(const char* name, const PuppetVector<short>& axis) {
    json_.key(name);
    json_.beginArray(Layout::LINE);
    for (std::size_t k = axis.size(); k-- != 0;) {
      const bool exists = axis[k] >= 0 && static_cast<std::size_t>(axis[k]) < table_.NDimensions();
      exists ? json_.number(axis[k]) : json_.null();
    }
    json_.end();
  }

  void writeLayer(const LayerWalk& walk) {
    const TableView& view = walk.view();
    json_.beginObject();
    json_.member("number", view.layer());
    json_.key("categories");
    json_.beginArray();
    for (const TableView::LayerLabel& label : view.layerLabels()) writeLayerLabel(label);
    json_.end();
    json_.key("notes");
    json_.beginArray();
    for (const FootnoteMarks::Note& note : walk.marks().notes()) {
      json_.beginObject(Layout::LINE);
      json_.member("mark", note.mark);
      json_.member("footnote", note.number);
      json_.end();
    }
    json_.end();
    json_.member("rows", view.rowCount());
    json_.member("columns", view.columnCount());
    if (options_.grid) writeGrid(view);
    writeCells(view);
    json_.end();
  }

  void writeLayerLabel(const TableView::LayerLabel& label) {
    std::size_t number = 0;
    while (&*std::as_const(table_).Dimension(static_cast<int>(number)).Root() != label.dimension) {
      ++number;
    }
    json_.beginObject(Layout::LINE);
    json_.member("dimension", number);
    json_.member("subscript", label.category->Subscript());
    json_.key("labels");
    json_.beginArray();
    for (const OmDimensionNode* const node : label.path) writeString(node->Text());
    json_.end();
    json_.end();
  }

  void writeGrid(const TableView& view) {
    json_.key("grid");
    json_.beginObject();
    json_.key("corner");
    json_.beginArray();
    for (const TableView::CornerCell& cell : view.corner()) {
      writeSpan({cell.begin, cell.end, nullptr, 1}, cell.text);
    }
    json_.end();
    writeHeading("columnHeading", view.columns());
    writeHeading("rowHeading", view.rows());
    json_.end();
  }

  void writeHeading(const char* name, const HeadingGrid& grid) {
    json_.key(name);
    json_.beginArray();
    for (std::size_t level = 0; level < grid.levels(); ++level) {
      json_.beginArray();
      for (const HeadingGrid::Span& span : grid.spans(level)) writeSpan(span, span.text());
      json_.end();
    }
    json_.end();
  }

  void writeSpan(const HeadingGrid::Span& span, const OmCellText* text) {
    json_.beginObject(Layout::LINE);
    json_.member("begin", span.begin);
    json_.member("end", span.end);
    if (span.levels != 1) json_.member("levels", span.levels);
    json_.key("label");
    writeString(text);
    writeNumbers(text);
    json_.end();
  }

  void writeCells(const TableView& view) {
    std::vector<const OmCellText*> cells;
    JsonPlaces places(view);
    json_.key("cells");
    json_.beginArray();
    for (std::uint64_t row = 0; row < view.rowCount() && json_.ok(); ++row) {
      view.row(row, cells);
      places.goToRow(row);
      visitRow(cells, [&](std::size_t column) {
        const OmCellText* const cell = cells[column];
        if (cell == nullptr) return;
        if (const OmNumber* const number = numberOf(cell); number == cell && isBare(*cell)) {
          return writeNumber(places, column, *number);
        }
        json_.beginObject(Layout::LINE);
        places.write(column, json_.next());
        writeCell(*cell);
        json_.end();
      });
    }
    json_.end();
  }

  // Whether a cell has nothing but what it says.
  bool isBare(const OmCellText& cell) const {
    return !cell.hasMeta() &&
           (std::as_const(table_).Footnotes().empty() || cell.Footnotes().empty());
  }

  // What most cells are, in one go. Needs no escape.
  void writeNumber(const JsonPlaces& places, std::uint64_t column, const OmNumber& number) {
    ByteSink& out = json_.next();
    number_.assign(number);
    out.put('{');
    places.write(column, out);
    out.put(",\"text\":\"");
    out.put(number_.view());
    out.put("\",\"number\":");
    out.putNumber(number.Value());
    out.put('}');
  }

  void writeCell(const OmCellText& cell) {
    json_.key("text");
    writeString(&cell);
    if (const OmNumber* const number = numberOf(&cell)) json_.member("number", number->Value());
    writeNumbers(&cell);
    if (!cell.hasMeta()) return;
    const OmCellMetaData& meta = cell.getMeta();
    json_.key("meta");
    json_.beginObject();
    json_.member("statistic", meta.statistic);
    json_.key("variables");
    json_.beginArray();
    for (const std::string& variable : meta.variables) json_.string(variable);
    json_.end();
    json_.member("details", meta.details);
    json_.end();
  }

  OmPivotTable& table_;
  const JsonOptions& options_;
  JsonEmitter& json_;
  TextReader read_;
  NumberText number_;
  std::vector<std::size_t> numbers_;  // of the footnotes of the last text
};

}  // namespace

void writeJsonTable(OmPivotTable& table, const JsonOptions& options, JsonEmitter& json) {
  JsonTable(table, options, json)();
}

void writeJsonFootnotes(const OmVector<OmFootnote>& footnotes, const std::string& codePage,
                        JsonEmitter& json) {
  TextReader reader;
  const auto read = [&](const OmCellText* text) { return toUtf8(reader(text), codePage); };
  json.key("footnotes");
  json.beginArray();
  for (const OmFootnote& footnote : footnotes) {
    json.beginObject(Layout::LINE);
    json.member("text", read(footnote.Text()));
    if (footnote.Marker() != nullptr) json.member("marker", read(footnote.Marker()));
    json.end();
  }
  json.end();
}

}  // namespace om::render::internal
