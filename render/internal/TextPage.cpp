#include "render/internal/TextPage.h"

#include <algorithm>
#include <limits>

namespace om::render::internal {

namespace {

constexpr std::size_t kLeastWidth = 8;  // of a paragraph on a page that is narrower than that

}  // namespace

void TextPage::beginBlock() {
  if (!isEmpty_) emptyLine();
  isEmpty_ = false;
}

std::size_t TextPage::paragraph(std::string_view text, const Style& style) {
  const std::size_t before = style.prefixWidth;
  const std::size_t room = std::max(kLeastWidth, width_ > before ? width_ - before : 0);
  const std::size_t limit = width_ != 0 ? room : std::numeric_limits<std::size_t>::max();
  lines_.clear();
  wrap(text, {limit, std::min(style.hang, kLeastWidth / 2)}, lines_);
  std::size_t widest = 0;
  for (const TextLine& line : lines_) {
    const std::size_t used = line.indent + line.width;
    const bool isCentred = style.align == Align::CENTRE && width_ > before + used;
    sink_.put(style.prefix);
    repeated(" ", line.indent + (isCentred ? (width_ - before - used) / 2 : 0));
    sink_.put(line.text);
    sink_.put('\n');
    widest = std::max(widest, used);
  }
  return widest;
}

void TextPage::repeated(std::string_view piece, std::size_t count) {
  for (; count != 0; --count) sink_.put(piece);
}

}  // namespace om::render::internal
