// Stands for the writer of workbooks in builds without the library for it.

#include <stdexcept>

#include "render/XlsxWriter.h"

namespace om::render {

bool canWriteXlsx() { return false; }

void writeXlsx(const OmOutputTree&, const std::string&, const XlsxOptions&) {
  throw std::runtime_error("this build cannot write workbooks");
}

}  // namespace om::render
