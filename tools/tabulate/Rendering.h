// Rendering: the one door from the program to what writes documents.

#ifndef OM_TOOLS_TABULATE_RENDERING_H_
#define OM_TOOLS_TABULATE_RENDERING_H_

#include <cstddef>
#include <cstdint>
#include <map>
#include <ostream>
#include <string>

#include "output/OmOutputTree.h"
#include "pivot/OmPivotTable.h"
#include "tools/tabulate/Request.h"

namespace om::tabulate {

enum class OutputFormat : std::int32_t { TEXT, HTML, CSV, JSON, JSON_STAT, XLSX };

// How one table is shown.
struct TableRendering {
  static constexpr int kAllLayers = -1;

  PerAxis<bool> skipEmpty{true, true, true};
  bool namesInCorner = false;
  int layer = kAllLayers;  // its number from 0 among those that are shown, or all of them
};

struct RenderingOptions {
  TableRendering tables;                                  // for tables that are not among:
  std::map<const OmPivotTable*, TableRendering> special;  // tables of their own ways
  std::string title;                                      // of a page
  std::size_t width = 0;                                  // of text; 0: as wide as it gets
  bool ascii = false;                                     // text draws its lines in ASCII
};

// Workbooks need a file, which is written by its name; all else goes to a stream.
bool isWorkbook(OutputFormat format);

// Throws Failure (usage) for a format that this build cannot write.
void checkFormat(OutputFormat format);

// Writes the document. Whether writing succeeded is for the caller to ask the stream.
// REQUIRES: the format is no workbook.
void writeDocument(const OmOutputTree& document, OutputFormat format,
                   const RenderingOptions& options, std::ostream& out);

// Writes the document to the file `path`, which is `name` in messages. Throws Failure (data) that
// names it, and tells why it cannot be written, or that a table is too large for a sheet.
void writeWorkbook(const OmOutputTree& document, const RenderingOptions& options,
                   const std::string& path, const std::string& name);

}  // namespace om::tabulate

#endif  // OM_TOOLS_TABULATE_RENDERING_H_
