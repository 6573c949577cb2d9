#include "render/internal/DisplayWidth.h"

#include <utf8proc.h>

#include <algorithm>

namespace om::render::internal {

namespace {

using CodePoint = utf8proc_int32_t;

constexpr CodePoint kEmojiSelector = 0xFE0F;

bool isAscii(char byte) { return static_cast<unsigned char>(byte) < 0x80; }

std::size_t decode(std::string_view text, CodePoint& point) {
  const auto* const bytes = reinterpret_cast<const utf8proc_uint8_t*>(text.data());
  const utf8proc_ssize_t length =
      utf8proc_iterate(bytes, static_cast<utf8proc_ssize_t>(text.size()), &point);
  return length > 0 ? static_cast<std::size_t>(length) : 1;
}

// What is not assigned yet takes what its neighbours take: the supplementary planes of ideographs,
// and the blocks in which emoji are added, are wide.
std::size_t widthOfUnassigned(CodePoint point) {
  const bool isIdeographic = point >= 0x20000 && point <= 0x3FFFD;
  const bool isEmoji = point >= 0x1F300 && point <= 0x1FAFF;
  return isIdeographic || isEmoji ? 2 : 1;
}

std::size_t widthOf(CodePoint point) {
  if (utf8proc_category(point) == UTF8PROC_CATEGORY_CN) return widthOfUnassigned(point);
  return static_cast<std::size_t>(std::max(0, utf8proc_charwidth(point)));
}

int boundClassOf(CodePoint point) {
  return static_cast<int>(utf8proc_get_property(point)->boundclass);
}

bool isFlagLetter(CodePoint point) {
  return boundClassOf(point) == UTF8PROC_BOUNDCLASS_REGIONAL_INDICATOR;
}

// Characters that may be shown as an emoji: pictographs and what stands on the keys of a telephone.
bool canBeEmoji(CodePoint point) {
  return boundClassOf(point) == UTF8PROC_BOUNDCLASS_EXTENDED_PICTOGRAPHIC ||
         (point >= '0' && point <= '9') || point == '#' || point == '*';
}

}  // namespace

Cluster firstCluster(std::string_view text) {
  if (isAscii(text[0]) && (text.size() == 1 || isAscii(text[1]))) {
    return {1, text[0] >= ' ' && text[0] != '\x7F' ? std::size_t{1} : 0};
  }
  CodePoint point = 0;
  std::size_t bytes = decode(text, point);
  std::size_t width = widthOf(point);
  utf8proc_int32_t state = 0;
  while (bytes < text.size()) {
    CodePoint next = 0;
    const std::size_t length = decode(text.substr(bytes), next);
    if (utf8proc_grapheme_break_stateful(point, next, &state) != 0) break;
    width = std::max(width, widthOf(next));
    if (next == kEmojiSelector && canBeEmoji(point)) width = 2;
    if (isFlagLetter(point) && isFlagLetter(next)) width = 2;
    point = next;
    bytes += length;
  }
  return {bytes, width};
}

std::size_t displayWidth(std::string_view text) {
  if (isPlainAscii(text)) return text.size();
  std::size_t width = 0;
  while (!text.empty()) {
    const Cluster cluster = firstCluster(text);
    width += cluster.width;
    text.remove_prefix(cluster.bytes);
  }
  return width;
}

bool isPlainAscii(std::string_view text) {
  return std::all_of(text.begin(), text.end(), [](char c) { return c >= ' ' && c < '\x7F'; });
}

}  // namespace om::render::internal
