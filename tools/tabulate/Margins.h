// Margins: the tally of a table's cells by their subscripts, with the cells of the totals, and the
// tallies that percentages are taken of.

#ifndef OM_TOOLS_TABULATE_MARGINS_H_
#define OM_TOOLS_TABULATE_MARGINS_H_

#include <cstddef>
#include <vector>

#include "tools/tabulate/Categories.h"
#include "tools/tabulate/Tally.h"

namespace om::tabulate {

// Gives each cell of `tally` to every combination of the subscripts that it counts towards: one
// code for each of the dimensions, which is 0 for those that are null, over which it is summed.
// The result has the content asked for, in the order in which its cells first come; it ends early,
// with more than `limit` cells, when there are more.
// REQUIRES: the tally has the content asked for, and the categories are those of its cells.
Tally expand(const Tally& tally, const std::vector<const Categories*>& dimensions,
             const Tally::Content& content, std::size_t limit);

}  // namespace om::tabulate

#endif  // OM_TOOLS_TABULATE_MARGINS_H_
