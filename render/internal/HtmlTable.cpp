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
void writeTitle(const HtmlLayer& layer, const std::string& name) {
  layer.out.markup("<span class=\"title\">").isolated(name);
  layer.notes.writeMarks(&titleOf(layer.view.table()), false);
  layer.out.markup("</span>");
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

void writeCaption(const HtmlLayer& layer, const std::string& name) {
  HtmlOut& out = layer.out;
  out.markup("<caption id=\"").ids(layer.prefix).markup("t\"><span class=\"stay\">");
  writeTitle(layer, name);
  if (!layer.view.layerLabels().empty()) {
    out.markup(" <span class=\"at\">");
    bool isFirst = true;
    for (const TableView::LayerLabel& label : layer.view.layerLabels()) {
      if (!isFirst) out.markup("; ");
      isFirst = false;
      writeLayerLabel(layer, label);
    }
    out.markup("</span>");
  }
  out.markup("</span></caption>\n");
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

void writeNoGrid(HtmlOut& out, const std::string& name) {
  out.markup("<p class=\"title\">").isolated(name).markup("</p>\n");
  out.markup("<p class=\"empty\">This table is empty.</p>\n");
}

void writeGrid(const HtmlLayer& layer, const std::string& name) {
  HtmlOut& out = layer.out;
  if (layer.view.rowCount() == 0 || layer.view.columnCount() == 0) return writeNoGrid(out, name);
  out.markup("<div class=\"scroll\" role=\"group\" tabindex=\"0\" aria-labelledby=\"");
  out.ids(layer.prefix).markup("t\">\n<table>\n");
  writeCaption(layer, name);
  HtmlColumnLabels columns(layer);
  columns.write();
  writeBody(layer, columns);
  out.markup("</table>\n</div>\n");
}

std::string prefixOf(std::uint64_t table, int layer) {
  std::string prefix("t");
  prefix += std::to_string(table);
  prefix += 'l';
  prefix += std::to_string(layer);
  return prefix;
}

void writeUnder(const HtmlLayer& layer) {
  const OmCellText* const caption = layer.view.table().Caption();
  if (caption != nullptr && layer.view.table().showCaption()) {
    layer.out.markup("<p class=\"caption\">").isolated(std::string(*caption));
    layer.notes.writeMarks(caption, false);
    layer.out.markup("</p>\n");
  }
  layer.notes.writeList();
}

}  // namespace

void writeHtmlTable(HtmlOut& out, OmPivotTable& table, std::uint64_t number,
                    const std::string& name, const TableOptions& options) {
  std::optional<HtmlChooser> chooser;
  if (options.layers == Layers::ALL) chooser.emplace(table, options.skipEmptyLayers);
  const bool isChooserNeeded = chooser && chooser->isNeeded();
  if (isChooserNeeded) chooser->write(out, name);

  LayerWalk walk(table, options);
  if (walk.count() == 0) writeNoGrid(out, name);
  while (!out.failed() && walk.next()) {
    const TableView& view = walk.view();
    const std::string prefix = prefixOf(number, view.layer());
    HtmlNotes notes(out, walk.marks(), prefix);
    const HtmlLayer layer{out, view, notes, prefix};
    if (isChooserNeeded) {
      if (chooser->isChosen(view.layer())) {
        out.markup("<section class=\"layer chosen\" data-at=\"");
      } else {
        out.markup("<section class=\"layer\" data-at=\"");
      }
      chooser->writePositions(out, view.layer());
      out.markup("\">\n");
    }
    writeGrid(layer, name);
    writeUnder(layer);
    if (isChooserNeeded) out.markup("</section>\n");
  }
}

}  // namespace om::render::internal
