// Writes a document as one HTML page that needs nothing else: an outline beside the content, layers
// to choose from, footnotes linked both ways.
//
// Nothing is kept in memory but the headings of the table that is being written. A stream that
// fails ends the writing at once; the caller looks at its state. Text that is not UTF-8 is made so.
// Errors: std::bad_alloc, and what the stream throws.

#ifndef OM_RENDER_HTMLWRITER_H_
#define OM_RENDER_HTMLWRITER_H_

#include <iosfwd>
#include <string>

#include "output/OmOutputTree.h"
#include "render/Export.h"
#include "render/TableOptions.h"

namespace om::render {

struct HtmlOptions {
  DocumentTableOptions tables = {};
  std::string title = "Output";  // of the page
  std::string language = "en";   // a BCP 47 tag
};

OM_RENDER_API void writeHtml(const OmOutputTree& document, std::ostream& out,
                             const HtmlOptions& options = {});
OM_RENDER_API void writeHtml(OmPivotTable& table, std::ostream& out,
                             const HtmlOptions& options = {});

}  // namespace om::render

#endif  // OM_RENDER_HTMLWRITER_H_
