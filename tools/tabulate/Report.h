// Report: the output document. For each table a procedure heading with
//
//   a text block "Log"   the command
//   a page title         the table's title
//   a pivot table        the data summary: how many records were read, used and left out
//   a pivot table        the table; or, where it has too many cells, a text block that says so
//
// Ownership: the report owns its document.

#ifndef OM_TOOLS_TABULATE_REPORT_H_
#define OM_TOOLS_TABULATE_REPORT_H_

#include <string>
#include <vector>

#include "output/OmOutputTree.h"
#include "pivot/OmPivotTable.h"
#include "tools/tabulate/Counting.h"
#include "tools/tabulate/Request.h"

namespace om::tabulate {

class Report {
 public:
  Report() = default;
  Report(const Report&) = delete;
  Report& operator=(const Report&) = delete;

  // Adds a table. Gives the table, or null when it had more cells than the request allows.
  const OmPivotTable* add(const TableRequest& request, const Counted& counted,
                          const std::vector<std::string>& log);

  const OmOutputTree& document() const { return document_; }

 private:
  OmOutputTree document_;
};

}  // namespace om::tabulate

#endif  // OM_TOOLS_TABULATE_REPORT_H_
