// The footnotes that a text refers to.

#ifndef OM_RENDER_INTERNAL_FOOTNOTENUMBERS_H_
#define OM_RENDER_INTERNAL_FOOTNOTENUMBERS_H_

#include <algorithm>
#include <cstddef>
#include <vector>

#include "external/cells/OmCellText.h"

namespace om::render::internal {

// Makes `numbers` the positions of the text's footnotes in a list of `count`, in the text's order
// and each once. What is no position in the list is passed over; null has none.
inline void readFootnoteNumbers(const OmCellText* text, std::size_t count,
                                std::vector<std::size_t>& numbers) {
  numbers.clear();
  if (text == nullptr || count == 0) return;
  for (const short number : text->Footnotes()) {
    const auto which = static_cast<std::size_t>(number);
    const bool isNew = std::find(numbers.begin(), numbers.end(), which) == numbers.end();
    if (which < count && isNew) numbers.push_back(which);
  }
}

}  // namespace om::render::internal

#endif  // OM_RENDER_INTERNAL_FOOTNOTENUMBERS_H_
