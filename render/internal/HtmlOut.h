// HtmlOut: writes a page through one buffer. What is markup and what is text is told apart by type:
// markup is a literal of this program, everything else comes out as text that cannot become markup.
//
//   out.markup("<th id=\"").attribute(id).markup("\">").text(label).markup("</th>");
//
// Text may hold any bytes. What is no UTF-8, and the characters that a page must not hold (controls
// and noncharacters), come out as U+FFFD; line ends of all kinds as line breaks.
//
// A stream that fails ends the writing: nothing is sent to it any more, and failed() says so.

#ifndef OM_RENDER_INTERNAL_HTMLOUT_H_
#define OM_RENDER_INTERNAL_HTMLOUT_H_

#include <cstddef>
#include <cstdint>
#include <iosfwd>
#include <string_view>

#include "render/internal/ByteSink.h"
#include "render/internal/NumberText.h"

namespace om::render::internal {

// Nothing but a literal becomes markup; the compiler refuses a text.
class Markup {
 public:
  template <std::size_t kSize>
  consteval Markup(const char (&literal)[kSize])  // NOLINT(google-explicit-constructor)
      : characters_(literal, kSize - 1) {}
  constexpr std::string_view characters() const { return characters_; }

 private:
  std::string_view characters_;
};

class HtmlOut {
 public:
  explicit HtmlOut(std::ostream& stream) : sink_(stream) {}
  HtmlOut(const HtmlOut&) = delete;
  HtmlOut& operator=(const HtmlOut&) = delete;

  HtmlOut& markup(const Markup& markup) { return write(markup.characters()); }

  // Text between tags; line ends become <br>.
  HtmlOut& text(std::string_view text);
  // The same, isolated from what stands around it when it may run from right to left.
  HtmlOut& isolated(std::string_view text);
  // Text in a <pre>; line ends stay.
  HtmlOut& preformatted(std::string_view text);
  // Text of an attribute value in double quotes, or of an element that holds text alone; line ends
  // become blanks.
  HtmlOut& attribute(std::string_view text);

  HtmlOut& number(std::uint64_t number) {
    sink_.putNumber(number);
    return *this;
  }
  // The string form of a number, which stands for itself.
  HtmlOut& number(const NumberText& number) { return write(number.view()); }
  HtmlOut& base64(std::string_view bytes);

  // Ids made of letters, digits and blanks, which stand for themselves.
  HtmlOut& ids(std::string_view ids) { return write(ids); }

  void flush() { sink_.flush(); }
  bool failed() const { return !sink_.ok(); }

 private:
  HtmlOut& write(std::string_view characters) {
    sink_.put(characters);
    return *this;
  }
  HtmlOut& escape(std::string_view text, std::string_view lineEnd);

  ByteSink sink_;
};

// Whether a text has a character that is written from right to left, or one that changes the
// direction.
bool mayRunRightToLeft(std::string_view text);

// Whether there is nothing to see in a text: it has blanks, line ends and the like alone.
bool isBlank(std::string_view text);

}  // namespace om::render::internal

#endif  // OM_RENDER_INTERNAL_HTMLOUT_H_
