#include "render/internal/HtmlTable.h"

#include <optional>
#include <string_view>
#include <vector>

#include "render/internal/CellText.h"
#include "render/internal/HtmlChooser.h"
#include "render/internal/HtmlHeadings.h"
#include "render/internal/HtmlNotes.h"
#include "render/internal/ShownText.h"

namespace om::render::internal {

namespace {

// The marks of a blank title stay with the name that stands for it.
void writeTitle(HtmlOut& out, const OmPivotTable& table, const std::string& name,
                HtmlNotes& notes) {
  out.markup("<span class=\"title\">").isolated(name);
  notes.writeMarks(&titleOf(table), false);
  out.markup("</span>");
}

void writeLayerLabel(const HtmlLayer& layer, const TableView::LayerLabel& label) {
  TextReader reader;
  bool hasName = false;
  bool hasCategory = false;
  for (const OmDimensionNode* const node : label.path) {
    const std::string_view text = reader(node->Text());
    if (isBlank(text)) continue;
    const bool isName = node == label.dimension;
    if (hasCategory) layer.out.markup(" › ");
    if (hasName && !hasCategory) layer.out.markup(": ");
    layer.out.isolated(text);
    layer.notes.writeMarks(node->Text(), false);
    hasName = hasName || isName;
    hasCategory = hasCategory || !isName;
  }
}

// The title and which layer it is.
void writeOver(const HtmlLayer& layer, const std::string& name) {
  HtmlOut& out = layer.out;
  writeTitle(out, layer.view.table(), name, layer.notes);
  if (layer.view.layerLabels().empty()) return;
  out.markup(" <span class=\"at\">");
  bool isFirst = true;
  for (const TableView::LayerLabel& label : layer.view.layerLabels()) {
    if (!isFirst) out.markup("; ");
    isFirst = false;
    writeLayerLabel(layer, label);
  }
  out.markup("</span>");
}

// `rowIds` have a blank in front of each.
void beginCell(HtmlOut& out, std::string_view columnIds, std::string_view rowIds) {
  if (!columnIds.empty()) {
    out.markup("<td headers=\"").ids(columnIds).ids(rowIds).markup("\"");
  } else if (!rowIds.empty()) {
    out.markup("<td headers=\"").ids(rowIds.substr(1)).markup("\"");
  } else {
    out.markup("<td");
  }
}

class CellWriter {
 public:
  explicit CellWriter(const HtmlLayer& layer) : out_(layer.out), notes_(layer.notes) {}

  // Behind the start of its tag.
  void operator()(const OmCellText* cell) {
    if (cell == nullptr) {
      out_.markup("></td>");
      return;
    }
    if (cell->Kind() == OmCellText::NUMBER) {
      number_.assign(*static_cast<const OmNumber*>(cell));
      out_.markup(">").number(number_);
      notes_.writeMarks(cell, true);
    } else {
      writeText(*cell);
    }
    out_.markup("</td>");
  }

 private:
  void writeText(const OmCellText& cell) {
    const std::string_view text = read_(&cell);
    const bool isNumber = isNumeric(cell, text);
    out_.markup(isNumber ? Markup(">") : Markup(" class=\"text\">"));
    out_.isolated(text);
    notes_.writeMarks(&cell, isNumber);
  }

  HtmlOut& out_;
  HtmlNotes& notes_;
  NumberText number_;
  TextReader read_;
};

void writeBody(const HtmlLayer& layer, const HtmlColumnLabels& columns) {
  HtmlOut& out = layer.out;
  HtmlRowLabels rows(layer);
  std::vector<const OmCellText*> cells;
  CellWriter writeCell(layer);
  out.markup("<tbody>\n");
  for (std::uint64_t row = 0; row < layer.view.rowCount() && !out.failed(); ++row) {
    if (rows.beginsGroup(row)) {
      out.markup("<tr class=\"group\">");
    } else {
      out.markup("<tr>");
    }
    rows.write(row);
    layer.view.row(row, cells);
    visitRow(cells, [&](std::size_t column) {
      beginCell(out, columns.idsOf(column), rows.ids());
      writeCell(cells[column]);
    });
    out.markup("</tr>\n");
  }
  out.markup("</tbody>\n");
}

void writeGrid(const HtmlLayer& layer, const std::string& name) {
  HtmlOut& out = layer.out;
  out.markup("<div class=\"scroll\" role=\"group\" tabindex=\"0\" aria-labelledby=\"");
  out.ids(layer.prefix).markup("t\">\n<table>\n<caption id=\"").ids(layer.prefix);
  out.markup("t\"><span class=\"stay\">");
  writeOver(layer, name);
  out.markup("</span></caption>\n");
  HtmlColumnLabels columns(layer);
  columns.write();
  writeBody(layer, columns);
  out.markup("</table>\n</div>\n");
}

std::string prefixOf(std::uint64_t table) { return 't' + std::to_string(table); }
std::string prefixOf(std::uint64_t table, int layer) {
  return prefixOf(table) + 'l' + std::to_string(layer);
}

void writeMessage(HtmlOut& out, std::string_view message) {
  out.markup("<p class=\"empty\">").text(message).markup("</p>\n");
}

void writeUnder(HtmlOut& out, const OmPivotTable& table, HtmlNotes& notes) {
  if (const OmCellText* const caption = captionOf(table)) {
    out.markup("<p class=\"caption\">").isolated(std::string(*caption));
    notes.writeMarks(caption, false);
    out.markup("</p>\n");
  }
  notes.writeList();
}

void writeLayer(const HtmlLayer& layer, const std::string& name, std::string_view noBody) {
  if (noBody.empty()) {
    writeGrid(layer, name);
  } else {
    layer.out.markup("<div>");
    writeOver(layer, name);
    layer.out.markup("</div>\n");
    writeMessage(layer.out, noBody);
  }
  writeUnder(layer.out, layer.view.table(), layer.notes);
}

void writeWithoutLayer(HtmlOut& out, const OmPivotTable& table, std::uint64_t number,
                       const std::string& name, std::string_view message, Marks defaultMarks) {
  const FootnoteMarks marks(table, defaultMarks);
  const std::string prefix = prefixOf(number);
  HtmlNotes notes(out, marks, prefix);
  out.markup("<div>");
  writeTitle(out, table, name, notes);
  out.markup("</div>\n");
  writeMessage(out, message);
  writeUnder(out, table, notes);
}

}  // namespace

void writeHtmlTable(HtmlOut& out, OmPivotTable& table, std::uint64_t number,
                    const std::string& name, const TableOptions& options) {
  LayerWalk walk(table, options);
  if (walk.count() == 0) {
    writeWithoutLayer(out, table, number, name, walk.noBody(), options.marks);
  }
  std::optional<HtmlChooser> chooser;
  if (walk.count() > 1) {
    chooser.emplace(walk.layers());
    chooser->write(out, name);
  }
  while (!out.failed() && walk.next()) {
    const TableView& view = walk.view();
    const std::string prefix = prefixOf(number, view.layer());
    HtmlNotes notes(out, walk.marks(), prefix);
    const HtmlLayer layer{out, view, notes, prefix};
    if (chooser) {
      if (chooser->isChosen(view.layer())) {
        out.markup("<section class=\"layer chosen\" data-at=\"");
      } else {
        out.markup("<section class=\"layer\" data-at=\"");
      }
      chooser->writePositions(out);
      out.markup("\">\n");
    }
    writeLayer(layer, name, walk.noBody());
    if (chooser) out.markup("</section>\n");
  }
}

}  // namespace om::render::internal
