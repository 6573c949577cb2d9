#include "render/internal/TextLines.h"

#include <array>

namespace om::render::internal {

void TextLines::crossing(const Crossing& crossing) {
  static constexpr std::array<std::string_view, 16> kBoxes = {
      " ", "╵", "╷", "│", "╴", "┘", "┐", "┤", "╶", "└", "┌", "├", "─", "┴", "┬", "┼"};
  const bool isVertical = crossing.up || crossing.down;
  const bool isHorizontal = crossing.left || crossing.right;
  if (!ascii_) {
    out_.put(kBoxes[(crossing.up ? 1U : 0U) + (crossing.down ? 2U : 0U) +
                    (crossing.left ? 4U : 0U) + (crossing.right ? 8U : 0U)]);
  } else if (isVertical && isHorizontal) {
    out_.put('+');
  } else {
    out_.put(isVertical ? '|' : isHorizontal ? '-' : ' ');
  }
}

void TextLines::horizontal(std::size_t width) {
  for (std::size_t i = 0; i < width + 2; ++i) out_.put(ascii_ ? "-" : "─");
}

void TextLines::rule(std::span<const std::size_t> widths, const std::vector<bool>& up,
                     const std::vector<bool>& down) {
  for (std::size_t i = 0; i <= widths.size(); ++i) {
    crossing({!up.empty() && up[i], !down.empty() && down[i], i != 0, i != widths.size()});
    if (i != widths.size()) horizontal(widths[i]);
  }
  endLine();
}

void TextLines::text(const TextLine* line, std::size_t width, Align align) {
  const std::size_t used = line != nullptr ? line->indent + line->width : 0;
  const std::size_t spare = width > used ? width - used : 0;
  const std::size_t before = align == Align::LEFT ? 0 : align == Align::RIGHT ? spare : spare / 2;
  if (line == nullptr) return blanks(width + 2);
  among(1 + before + line->indent, line->text, spare - before + 1);
}

}  // namespace om::render::internal
