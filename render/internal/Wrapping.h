// Texts broken into lines of a given width: at blanks, behind hyphens and beside wide characters,
// and within words that are longer than a line.

#ifndef OM_RENDER_INTERNAL_WRAPPING_H_
#define OM_RENDER_INTERNAL_WRAPPING_H_

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace om::render::internal {

struct TextLine {
  std::string_view text;
  std::size_t width;   // without the indent
  std::size_t indent;  // blanks in front of it
};

struct LineWidth {
  std::size_t width;
  std::size_t hang = 0;  // how far the lines behind the first one are indented; less than `width`
};

// Appends the lines of a text, which they refer to: one at least. A cluster that is wider than a
// line has a line of its own. REQUIRES: the text is plain (plainText).
void wrap(std::string_view text, const LineWidth& within, std::vector<TextLine>& lines);

// The width of its widest line, if it is broken at its line feeds only.
std::size_t widthOfLines(std::string_view text);
// The width of its widest part that has no place to break.
std::size_t widthOfWords(std::string_view text);

// A text with its lines.
class WrappedText {
 public:
  WrappedText() = default;
  WrappedText(const WrappedText&) = delete;  // the lines refer to the text
  WrappedText& operator=(const WrappedText&) = delete;

  void assign(std::string_view text, const LineWidth& within);
  void clear();
  const std::vector<TextLine>& lines() const { return lines_; }

 private:
  std::string text_;
  std::vector<TextLine> lines_;
};

}  // namespace om::render::internal

#endif  // OM_RENDER_INTERNAL_WRAPPING_H_
