// Writes tables as JSON-stat 2.0: a dataset for one table, a collection for a document.
//
// Nothing is kept in memory but the headings of the table that is being written. A stream that
// fails ends the writing at once; the caller looks at its state. Text that is not UTF-8 is made so.
// Errors: std::bad_alloc, and what the stream throws.

#ifndef OM_RENDER_JSONSTATWRITER_H_
#define OM_RENDER_JSONSTATWRITER_H_

#include <iosfwd>

#include "output/OmOutputTree.h"
#include "render/Export.h"
#include "render/TableOptions.h"

namespace om::render {

struct JsonStatOptions {
  Marks marks = Marks::LETTERS;
};

OM_RENDER_API void writeJsonStat(const OmOutputTree& document, std::ostream& out,
                                 const JsonStatOptions& options = {});
OM_RENDER_API void writeJsonStat(OmPivotTable& table, std::ostream& out,
                                 const JsonStatOptions& options = {});

}  // namespace om::render

#endif  // OM_RENDER_JSONSTATWRITER_H_
