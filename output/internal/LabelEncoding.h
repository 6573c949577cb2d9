// The labels of parts whose texts are in a code page rather than in UTF-8.

#ifndef OM_OUTPUT_INTERNAL_LABELENCODING_H_
#define OM_OUTPUT_INTERNAL_LABELENCODING_H_

#include <string>

class OmOutputPart;

namespace om::internal {

// Replaces the part's label by a string cell with the bytes that its string form has in the code
// page, or with the string form as it is when the code page is unknown or lacks a character. An
// empty code page leaves the label. Throws std::bad_alloc and what the label's string form throws;
// the label is then as before.
void encodeLabel(OmOutputPart& part, const std::string& codePage);

}  // namespace om::internal

#endif  // OM_OUTPUT_INTERNAL_LABELENCODING_H_
