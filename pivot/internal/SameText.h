// The notion of equality by which dimensions are found and footnotes are merged. (Category nodes
// have another one.)

#ifndef OM_PIVOT_INTERNAL_SAMETEXT_H_
#define OM_PIVOT_INTERNAL_SAMETEXT_H_

#include "external/cells/OmCellText.h"

namespace om::internal {

// Of the same kind, and comparing as equal. A text that is not there equals none.
inline bool sameText(const OmCellText* a, const OmCellText* b) {
  return a != nullptr && b != nullptr && a->Kind() == b->Kind() && a->Compare(*b) == 0;
}

}  // namespace om::internal

#endif  // OM_PIVOT_INTERNAL_SAMETEXT_H_
