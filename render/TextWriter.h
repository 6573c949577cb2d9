// Writes documents and tables as plain text for terminals and files: tables in box drawing,
// wrapped, numbers aligned on their decimal mark, in panels where a table is wider than the page.
//
// Nothing is kept in memory but the headings of the table that is being written. A stream that
// fails ends the writing at once; the caller looks at its state. Text that is not UTF-8 is made so.
// Errors: std::bad_alloc, and what the stream throws.

#ifndef OM_RENDER_TEXTWRITER_H_
#define OM_RENDER_TEXTWRITER_H_

#include <cstddef>
#include <iosfwd>

#include "output/OmOutputTree.h"
#include "render/Export.h"
#include "render/TableOptions.h"

namespace om::render {

struct TextOptions {
  DocumentTableOptions tables = {};
  // Terminal columns, as counted for grapheme clusters; 0: as wide as it needs.
  std::size_t width = 80;
  bool ascii = false;  // lines of tables from "+", "-" and "|"
};

OM_RENDER_API void writeText(const OmOutputTree& document, std::ostream& out,
                             const TextOptions& options = {});
OM_RENDER_API void writeText(OmPivotTable& table, std::ostream& out,
                             const TextOptions& options = {});

}  // namespace om::render

#endif  // OM_RENDER_TEXTWRITER_H_
