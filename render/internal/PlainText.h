// Plain text that is safe to send to a terminal, whatever it is made from: no byte of it can move
// the cursor, change colours or turn the direction of what follows.

#ifndef OM_RENDER_INTERNAL_PLAINTEXT_H_
#define OM_RENDER_INTERNAL_PLAINTEXT_H_

#include <string>
#include <string_view>

namespace om::render::internal {

// The text as UTF-8 in which each kind of line break is a line feed, a tab is a blank, and what
// else controls a terminal or the direction of a line is U+FFFD. It lies in `room`, or is the text
// itself when that is plain already.
std::string_view plainText(std::string_view text, std::string& room);

// The same on one line: a line break is a blank.
std::string_view plainLine(std::string_view text, std::string& room);

}  // namespace om::render::internal

#endif  // OM_RENDER_INTERNAL_PLAINTEXT_H_
