// The one order of texts, over all kinds.

#ifndef OM_EXTERNAL_CELLS_INTERNAL_TEXTORDER_H_
#define OM_EXTERNAL_CELLS_INTERNAL_TEXTORDER_H_

#include <string_view>

#include "external/cells/OmCellText.h"

namespace om::internal {

// Order by unsigned bytes, a shorter text before its continuations.
short compareBytes(std::string_view a, std::string_view b) noexcept;

// The order of OmCellText::Compare for any two texts: numbers, dates, the rest by string form.
short compareTexts(const OmCellText& a, const OmCellText& b);

}  // namespace om::internal

#endif  // OM_EXTERNAL_CELLS_INTERNAL_TEXTORDER_H_
