// Writes the cells of a document's tables as CSV in long form: one record a cell.
//
// Nothing is kept in memory but the headings of the table that is being written. A stream that
// fails ends the writing at once; the caller looks at its state. Text that is not UTF-8 is made so.
// Errors: std::bad_alloc, and what the stream throws.

#ifndef OM_RENDER_CSVWRITER_H_
#define OM_RENDER_CSVWRITER_H_

#include <iosfwd>

#include "output/OmOutputTree.h"
#include "render/Export.h"
#include "render/TableOptions.h"

namespace om::render {

struct CsvOptions {
  TableOptions tables;
};

OM_RENDER_API void writeCsv(const OmOutputTree& document, std::ostream& out,
                            const CsvOptions& options = {});
OM_RENDER_API void writeCsv(OmPivotTable& table, std::ostream& out, const CsvOptions& options = {});

}  // namespace om::render

#endif  // OM_RENDER_CSVWRITER_H_
