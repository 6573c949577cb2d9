#include "tools/tabulate/Rendering.h"

#include <stdexcept>

#include "render/CsvWriter.h"
#include "render/HtmlWriter.h"
#include "render/JsonStatWriter.h"
#include "render/JsonWriter.h"
#include "render/TextWriter.h"
#include "render/XlsxWriter.h"
#include "tools/tabulate/Failure.h"

namespace om::tabulate {

namespace {

render::TableOptions optionsOf(const TableRendering& rendering) {
  render::TableOptions options;
  options.view.skipEmptyRows = rendering.skipEmpty[Axis::ROWS];
  options.view.skipEmptyColumns = rendering.skipEmpty[Axis::COLUMNS];
  options.view.namesInCorner = rendering.namesInCorner;
  options.skipEmptyLayers = rendering.skipEmpty[Axis::LAYERS];
  if (rendering.layer != TableRendering::kAllLayers) {
    options.layers = render::Layers::ONE;
    options.layer = rendering.layer;
  }
  return options;
}

render::DocumentTableOptions optionsOf(const RenderingOptions& options) {
  render::DocumentTableOptions result{optionsOf(options.tables)};
  for (const auto& [table, rendering] : options.special) {
    result.special[table] = optionsOf(rendering);
  }
  return result;
}

}  // namespace

bool isWorkbook(OutputFormat format) { return format == OutputFormat::XLSX; }

void checkFormat(OutputFormat format) {
  if (isWorkbook(format) && !render::canWriteXlsx()) {
    throw usageFailure("this build cannot write xlsx");
  }
}

void writeDocument(const OmOutputTree& document, OutputFormat format,
                   const RenderingOptions& options, std::ostream& out) {
  switch (format) {
    case OutputFormat::TEXT:
      return render::writeText(document, out, {optionsOf(options), options.width, options.ascii});
    case OutputFormat::HTML:
      return render::writeHtml(document, out,
                               {.tables = optionsOf(options), .title = options.title});
    case OutputFormat::CSV:
      return render::writeCsv(document, out, {.tables = optionsOf(options)});
    case OutputFormat::JSON:
      return render::writeJson(document, out, {.tables = optionsOf(options)});
    case OutputFormat::JSON_STAT:
      return render::writeJsonStat(document, out);
    case OutputFormat::XLSX:
      break;
  }
}

void writeWorkbook(const OmOutputTree& document, const RenderingOptions& options,
                   const std::string& path, const std::string& name) {
  try {
    render::writeXlsx(document, path, {.tables = optionsOf(options)});
  } catch (const std::runtime_error& error) {
    throw dataFailure(printable(name) + ": " + printable(error.what()));
  }
}

}  // namespace om::tabulate
