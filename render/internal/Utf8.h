// UTF-8: what comes from a document is made valid before it is measured or written.

#ifndef OM_RENDER_INTERNAL_UTF8_H_
#define OM_RENDER_INTERNAL_UTF8_H_

#include <cstddef>
#include <string>
#include <string_view>

namespace om::render::internal {

// U+FFFD, which stands for what cannot be shown.
inline constexpr std::string_view kReplacement = "\xEF\xBF\xBD";

// The length of the well-formed sequence at the start of `bytes`, 1 to 4; 0 when there is none.
std::size_t sequenceLength(std::string_view bytes);

bool isUtf8(std::string_view bytes);

// The text with U+FFFD in the place of each byte that belongs to no well-formed sequence.
std::string validUtf8(std::string_view bytes);

// The same text when it is UTF-8; otherwise what it says in the code page, or, when it is not of
// that either, what validUtf8 makes of it.
std::string toUtf8(std::string_view bytes, const std::string& codePage);

}  // namespace om::render::internal

#endif  // OM_RENDER_INTERNAL_UTF8_H_
