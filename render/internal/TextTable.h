// Draws one layer of a table as text: its head and its rows, panel by panel.
//
// Row labels are written once, at the top of the rows that they cover; their further lines stand
// beside the next ones of these rows. The outermost groups of rows are parted by lines.
//
// Nothing is kept of a cell once its row is written. Drawing ends early when the output fails.

#ifndef OM_RENDER_INTERNAL_TEXTTABLE_H_
#define OM_RENDER_INTERNAL_TEXTTABLE_H_

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "render/FootnoteMarks.h"
#include "render/TableView.h"
#include "render/internal/ByteSink.h"
#include "render/internal/ShownText.h"
#include "render/internal/TextLayout.h"
#include "render/internal/TextLines.h"

namespace om::render::internal {

class RowLabels;

class TextTable {
 public:
  struct Page {
    std::size_t width;  // 0: as wide as it needs
    bool ascii;
  };

  // REQUIRES: the view has a row and a column.
  TextTable(const TableView& view, const FootnoteMarks& marks, const Page& page, ByteSink& out);
  ~TextTable();

  std::size_t panels() const { return layout_.panels.size(); }
  // What says which columns a panel has, when there are several.
  std::string noteOf(std::size_t panel) const;
  void draw(std::size_t panel);

 private:
  // A cell that may have several lines; none when it is drawn like others.
  struct WrappedCell {
    WrappedText text;
    Align align = Align::LEFT;
  };

  void drawHead(const Panel& panel);
  void drawRows(const Panel& panel);
  void drawRow(const Panel& panel, RowLabels& labels);
  void drawPlace(std::size_t place, std::size_t line, const BodyColumn& column);
  void drawCell(const OmCellText* cell, const BodyColumn& column);
  std::size_t wrapCells(const Panel& panel);
  void wrapCell(const OmCellText* cell, const BodyColumn& column, WrappedCell& wrapped);
  std::vector<bool> boundaries(const Panel& panel, const RowLabels& labels) const;

  const TableView& view_;
  ByteSink& out_;
  TextLines lines_;
  TableReader reader_;
  const TextLayout layout_;
  std::vector<const OmCellText*> cells_;               // of the present row and panel
  std::vector<std::unique_ptr<WrappedCell>> wrapped_;  // null in columns without such cells
  std::vector<std::size_t> widths_;  // of the present panel's columns, labels first
};

}  // namespace om::render::internal

#endif  // OM_RENDER_INTERNAL_TEXTTABLE_H_
