// The buffer with a chart's map information, a packed record:
//
//   | mark: 16 bits | length: 32 | bytes | length: 16 | bytes | length: 32 | bytes | length: 16 |
//   bytes |
//
// The mark is 1 in the byte order of whoever wrote the buffer, which the lengths are in too. Their
// mixed widths belong to the format.

#ifndef OM_OUTPUT_INTERNAL_MAPINFO_H_
#define OM_OUTPUT_INTERNAL_MAPINFO_H_

#include <string_view>

#include "output/OmChart.h"

namespace om::internal {

// The four strings as views into the buffer, wherever it is aligned; what follows the fourth is not
// looked at. Throws OMSException "OmChart::getMapInfo() -- length > remaining" with (announced
// length or width of the number, bytes left) where the buffer ends too early.
OmChart::MapInfo readMapInfo(std::string_view buffer);

}  // namespace om::internal

#endif  // OM_OUTPUT_INTERNAL_MAPINFO_H_
