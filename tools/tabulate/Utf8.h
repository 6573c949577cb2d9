// Well-formed UTF-8: nothing overlong, no surrogates, nothing above U+10FFFF.

#ifndef OM_TOOLS_TABULATE_UTF8_H_
#define OM_TOOLS_TABULATE_UTF8_H_

#include <cstddef>
#include <string_view>

namespace om::tabulate::utf8 {

// The length in bytes of the character that the text begins with; 0 where there is none, or none
// yet. REQUIRES: the text is not empty.
std::size_t sequenceLength(std::string_view text);

// How many bytes from the start are whole well-formed characters.
std::size_t validPrefix(std::string_view text);

// Whether the text could be the beginning of a character that is cut off behind it.
bool isBeginning(std::string_view text);

}  // namespace om::tabulate::utf8

#endif  // OM_TOOLS_TABULATE_UTF8_H_
