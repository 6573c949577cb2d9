// Writes a whole document as JSON for other programs. The schema is in docs/render-json.md.
//
// Nothing is kept in memory but the headings of the table that is being written. A stream that
// fails ends the writing at once; the caller looks at its state. Text that is not UTF-8 is made so.
// Errors: std::bad_alloc, and what the stream throws.

#ifndef OM_RENDER_JSONWRITER_H_
#define OM_RENDER_JSONWRITER_H_

#include <iosfwd>

#include "output/OmOutputTree.h"
#include "render/Export.h"
#include "render/TableOptions.h"

namespace om::render {

struct JsonOptions {
  DocumentTableOptions tables = {};
  // For each layer also its corner and the spans of its headings, for programs that draw it.
  bool grid = false;
};

OM_RENDER_API void writeJson(const OmOutputTree& document, std::ostream& out,
                             const JsonOptions& options = {});

}  // namespace om::render

#endif  // OM_RENDER_JSONWRITER_H_
