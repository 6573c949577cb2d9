// Rendering: the one door from the program to what writes documents.

#ifndef OM_TOOLS_TABULATE_RENDERING_H_
#define OM_TOOLS_TABULATE_RENDERING_H_

#include <cstdint>
#include <map>
#include <ostream>

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
  int terminalWidth = 0;                                  // 0: text may be as wide as it gets

  const TableRendering& of(const OmPivotTable& table) const {
    const auto own = special.find(&table);
    return own != special.end() ? own->second : tables;
  }
};

// Writes the document. Throws Failure (usage) for a format that this build cannot write; it writes
// nothing then. Whether writing succeeded is for the caller to ask the stream.
void writeDocument(const OmOutputTree& document, OutputFormat format,
                   const RenderingOptions& options, std::ostream& out);

}  // namespace om::tabulate

#endif  // OM_TOOLS_TABULATE_RENDERING_H_
