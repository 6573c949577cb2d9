// Writes the tables of a document as a workbook: one sheet for each table and layer.
//
// The workbook is written to a file, which is incomplete after an error. Rows are written as they
// come, in constant memory but for the texts that the sheets share.
// Errors: std::runtime_error with the reason that the file could not be written, std::bad_alloc.

#ifndef OM_RENDER_XLSXWRITER_H_
#define OM_RENDER_XLSXWRITER_H_

#include <string>

#include "output/OmOutputTree.h"
#include "render/Export.h"
#include "render/TableOptions.h"

namespace om::render {

struct XlsxOptions {
  TableOptions tables;
};

// Whether this build can write workbooks: the library for it is optional.
OM_RENDER_API bool canWriteXlsx();

// Throws std::runtime_error when canWriteXlsx() is false.
OM_RENDER_API void writeXlsx(const OmOutputTree& document, const std::string& path,
                             const XlsxOptions& options = {});

}  // namespace om::render

#endif  // OM_RENDER_XLSXWRITER_H_
