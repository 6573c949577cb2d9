// Writes the tables of a document as a workbook: one sheet for each table and layer.
//
// A sheet shows the title, what the layer shows of each layer dimension, the headings, whose labels
// are merged cells as the options ask for and stay in sight, the body, the caption and the
// footnotes. Numbers are numbers, in the format that their cells have, with the marks of their
// footnotes in it; everything else is text, and never a formula or a link. Text keeps its line
// ends; other control characters become U+FFFD, and beyond the 32767 characters that a cell takes
// it is cut off, with "…" at the end. A number is stored with 16 digits, as spreadsheet programs
// do. A table without a layer to show has a sheet that says so.
//
// The workbook is written to a file, which is incomplete after an error. Rows are written as they
// come, in constant memory, unless there are more than 100 sheets: each of them would keep a
// temporary file open.
// Errors: std::runtime_error with the reason that the file could not be written, or that a table is
// too large for a sheet (1,048,576 rows, 16,384 columns); std::bad_alloc.

#ifndef OM_RENDER_XLSXWRITER_H_
#define OM_RENDER_XLSXWRITER_H_

#include <string>

#include "output/OmOutputTree.h"
#include "render/Export.h"
#include "render/TableOptions.h"

namespace om::render {

struct XlsxOptions {
  DocumentTableOptions tables = {};
};

// Whether this build can write workbooks: the library for it is optional.
OM_RENDER_API bool canWriteXlsx();

// Throws std::runtime_error when canWriteXlsx() is false.
OM_RENDER_API void writeXlsx(const OmOutputTree& document, const std::string& path,
                             const XlsxOptions& options = {});

}  // namespace om::render

#endif  // OM_RENDER_XLSXWRITER_H_
