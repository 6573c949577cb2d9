// What a workbook can hold of texts and formats.

#ifndef OM_RENDER_INTERNAL_XLSXTEXT_H_
#define OM_RENDER_INTERNAL_XLSXTEXT_H_

#include <cstddef>
#include <string>
#include <string_view>

#include "external/cells/OmNumber.h"

namespace om::render::internal {

constexpr std::size_t kMostXlsxUnits = 32767;  // in a cell, in units of UTF-16

// The number of units of UTF-16 in a text that is UTF-8.
std::size_t xlsxUnits(std::string_view utf8);

// The text as a cell shows it, valid UTF-8, in `most` units at most.
std::string xlsxText(std::string_view text, std::size_t most = kMostXlsxUnits);

// "<number> <title>" as the name of a sheet: 31 units at most, without what a name must not have.
// Names with different numbers are different for every program.
std::string xlsxSheetName(const std::string& number, std::string_view title);

// The code by which a program shows a number in the way the cell does, with marks behind it.
std::string xlsxNumberFormat(const OmNumber& number, std::string_view marks);

// Whether marks can stand in the code of a number format.
bool fitXlsxFormat(std::string_view marks);

}  // namespace om::render::internal

#endif  // OM_RENDER_INTERNAL_XLSXTEXT_H_
