#include "render/internal/HtmlTable.h"

#include <optional>
#include <string_view>
#include <vector>

#include "render/internal/CellText.h"
#include "render/internal/HtmlChooser.h"
#include "render/internal/HtmlHeadings.h"
#include "render/internal/HtmlNotes.h"

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

void writeCell(const HtmlLayer& layer, const OmCellText* cell, std::string_view columnIds,
               std::string_view rowIds, TextReader& reader) {
  HtmlOut& out = layer.out;
  if (columnIds.empty() && rowIds.empty()) {
    out.markup("<td");
  } else {
    out.markup("<td headers=\"").ids(columnIds);
    if (!columnIds.empty() && !rowIds.empty()) out.markup(" ");
    out.ids(rowIds).markup("\"");
  }
  if (cell == nullptr) {
    out.markup("></td>");
    return;
  }
  const std::string_view text = reader(cell);
  const bool isNumber = isNumeric(*cell, text);
  if (isNumber) {
    out.markup(">");
  } else {
    out.markup(" class=\"text\">");
  }
  out.isolated(text);
  layer.notes.writeMarks(cell, isNumber);
  out.markup("</td>");
}

void writeBody(const HtmlLayer& layer, const HtmlColumnLabels& columns) {
  HtmlOut& out = layer.out;
  HtmlRowLabels rows(layer);
  std::vector<const OmCellText*> cells;
  TextReader reader;
  out.markup("<tbody>\n");
  for (std::uint64_t row = 0; row < layer.view.rowCount() && !out.failed(); ++row) {
    if (rows.beginsGroup(row)) {
      out.markup("<tr class=\"group\">");
    } else {
      out.markup("<tr>");
    }
    rows.write(row);
    layer.view.row(row, cells);
    for (std::size_t column = 0; column < cells.size(); ++column) {
      writeCell(layer, cells[column], columns.idsOf(column), rows.ids(), reader);
    }
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
