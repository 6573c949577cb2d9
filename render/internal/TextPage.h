// A page of plain text: blocks with an empty line between them, made from paragraphs that are
// wrapped to the page.

#ifndef OM_RENDER_INTERNAL_TEXTPAGE_H_
#define OM_RENDER_INTERNAL_TEXTPAGE_H_

#include <cstddef>
#include <iosfwd>
#include <string_view>
#include <vector>

#include "render/internal/ByteSink.h"
#include "render/internal/TextLines.h"
#include "render/internal/Wrapping.h"

namespace om::render::internal {

class TextPage {
 public:
  // `width` 0: as wide as it needs.
  TextPage(std::ostream& out, std::size_t width, bool ascii)
      : sink_(out), width_(width), ascii_(ascii) {}

  struct Style {
    std::string_view prefix = {};  // in front of each line
    std::size_t prefixWidth = 0;
    std::size_t hang = 0;  // how far the lines behind the first one are indented
    Align align = Align::LEFT;
  };

  void beginBlock();
  // Gives the width of its widest line. REQUIRES: the text is plain (plainText).
  std::size_t paragraph(std::string_view text, const Style& style);
  std::size_t paragraph(std::string_view text) { return paragraph(text, Style{}); }
  void emptyLine() { sink_.put('\n'); }
  void repeated(std::string_view piece, std::size_t count);

  std::size_t width() const { return width_; }
  bool ascii() const { return ascii_; }
  ByteSink& sink() { return sink_; }

 private:
  ByteSink sink_;
  const std::size_t width_;
  const bool ascii_;
  bool isEmpty_ = true;
  std::vector<TextLine> lines_;
};

}  // namespace om::render::internal

#endif  // OM_RENDER_INTERNAL_TEXTPAGE_H_
