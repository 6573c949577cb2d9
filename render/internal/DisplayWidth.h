// How many columns of a terminal a text takes, counted by grapheme clusters: what a reader takes
// for one character takes one or two columns, or none, whatever the number of code points in it.

#ifndef OM_RENDER_INTERNAL_DISPLAYWIDTH_H_
#define OM_RENDER_INTERNAL_DISPLAYWIDTH_H_

#include <cstddef>
#include <string_view>

namespace om::render::internal {

struct Cluster {
  std::size_t bytes;
  std::size_t width;
};

// The cluster at the start of a text. It is as wide as its widest code point; a flag, and a
// character that a variation selector makes an emoji, take two columns.
// REQUIRES: the text is UTF-8 and not empty.
Cluster firstCluster(std::string_view text);

// The width of a text on one line. REQUIRES: it is UTF-8.
std::size_t displayWidth(std::string_view text);

// Whether each byte is a character of ASCII that takes one column.
bool isPlainAscii(std::string_view text);

}  // namespace om::render::internal

#endif  // OM_RENDER_INTERNAL_DISPLAYWIDTH_H_
