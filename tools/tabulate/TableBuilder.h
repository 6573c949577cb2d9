// TableBuilder: makes a pivot table of what was counted.
//
//   dimensions  one for each that was asked for, named after its columns ("region / country")
//   statistics  a dimension "Statistics", innermost on its axis, when there is more than one; the
//               statistics of a measure stand in a group with the measure's name
//   totals      categories "Total": at the end of the dimension, and of each group
//   cells       those that records fall into, also with a weight of 0, and no others. A statistic
//               that has no value there, as the mean of no number, is a number that shows as "."
//   footnotes   at the title: the weight, what was left out, the notes of the request; at the label
//               of the missing value, which is empty; at a measure with missing values

#ifndef OM_TOOLS_TABULATE_TABLEBUILDER_H_
#define OM_TOOLS_TABULATE_TABLEBUILDER_H_

#include <memory>
#include <string>

#include "pivot/OmPivotTable.h"
#include "tools/tabulate/Counting.h"
#include "tools/tabulate/Request.h"

namespace om::tabulate {

// The title of the request, or one that names what is tabulated by what.
std::string titleOf(const TableRequest& request);

// A table that has more cells than the request allows is marked as scratched, and not complete.
std::unique_ptr<OmPivotTable> buildTable(const TableRequest& request, const Counted& counted);

}  // namespace om::tabulate

#endif  // OM_TOOLS_TABULATE_TABLEBUILDER_H_
