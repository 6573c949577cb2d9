// HtmlTable: writes one table as HTML: its layers one after the other, with controls over them that
// choose one when there are several, and under each layer its caption and footnotes.
//
//   <fieldset class="chooser">    lists of categories, when there are several layers
//   <section class="layer">
//     <table>
//       <caption>                 title, layer
//       <thead>                   corner and column labels
//       <tbody>                   row labels and cells
//     <p class="caption">
//     <ul class="notes">
//
// The id of a heading cell is made from the number of the table, that of the layer, "c" or "r" for
// columns or rows, the level, and the place where it begins: t1l0c0p3. Every body cell names the
// heading cells that it stands under and beside.

#ifndef OM_RENDER_INTERNAL_HTMLTABLE_H_
#define OM_RENDER_INTERNAL_HTMLTABLE_H_

#include <cstdint>
#include <string>

#include "pivot/OmPivotTable.h"
#include "render/TableOptions.h"
#include "render/internal/HtmlOut.h"

namespace om::render::internal {

// `number` counts the tables of the page from 1, and `name` is what the table is called in it.
void writeHtmlTable(HtmlOut& out, OmPivotTable& table, std::uint64_t number,
                    const std::string& name, const TableOptions& options);

}  // namespace om::render::internal

#endif  // OM_RENDER_INTERNAL_HTMLTABLE_H_
