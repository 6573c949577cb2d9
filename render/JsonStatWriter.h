// Writes tables as JSON-stat 2.0: a dataset for one table, a collection of datasets for a document.
//
// A dataset has all cells of a table, in whatever layer. Its dimensions are those of the table, in
// the table's order, with the ids d0, d1, ...; their categories, groups before what is in them,
// have the ids c0, c1, ... in each of them, and groups are parents (`child`) without values.
//
//   value       the numbers in the cells; an object when fewer than half of the places have one
//   status      of cells with footnotes: a code for each, separated by commas
//   note        of the dataset: its caption and the footnotes of title and caption; of a dimension
//               and of a category: the footnotes of its label
//   extension   status.label: for each code the text of the footnote;
//               text: what cells say that are more than their number, by place
//
// Nothing is kept in memory but the categories of the table that is being written. A stream that
// fails ends the writing at once; the caller looks at its state. Text that is not UTF-8 is made so.
// Errors: std::bad_alloc, what the stream throws, and std::length_error for a table with 2^53
// places or more, which no reader of JSON can number; nothing of that table is written.

#ifndef OM_RENDER_JSONSTATWRITER_H_
#define OM_RENDER_JSONSTATWRITER_H_

#include <iosfwd>
#include <string>
#include <vector>

#include "output/OmOutputTree.h"
#include "render/Export.h"
#include "render/TableOptions.h"

namespace om::render {

struct JsonStatOptions {
  Marks marks = Marks::LETTERS;  // of which the codes in `status` are made
  // The names of the dimensions that have a role.
  std::vector<std::string> time = {};
  std::vector<std::string> geo = {};
  std::vector<std::string> metric = {"Statistics"};
};

OM_RENDER_API void writeJsonStat(const OmOutputTree& document, std::ostream& out,
                                 const JsonStatOptions& options = {});
OM_RENDER_API void writeJsonStat(OmPivotTable& table, std::ostream& out,
                                 const JsonStatOptions& options = {});

}  // namespace om::render

#endif  // OM_RENDER_JSONSTATWRITER_H_
