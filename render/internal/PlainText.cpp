#include "render/internal/PlainText.h"

#include <algorithm>
#include <cstddef>

#include "render/internal/DisplayWidth.h"
#include "render/internal/Utf8.h"

namespace om::render::internal {

namespace {

// Next line, line separator, paragraph separator.
bool isLongLineBreak(std::string_view sequence) {
  return sequence == "\xC2\x85" || sequence == "\xE2\x80\xA8" || sequence == "\xE2\x80\xA9";
}

// The other controls of C1, and what embeds, overrides or isolates a direction.
bool isLongControl(std::string_view sequence) {
  if (sequence.size() == 2) return sequence[0] == '\xC2' && sequence[1] < '\xA0';
  if (sequence.starts_with("\xE2\x80")) return sequence[2] >= '\xAA' && sequence[2] <= '\xAE';
  if (sequence.starts_with("\xE2\x81")) return sequence[2] >= '\xA6' && sequence[2] <= '\xA9';
  return false;
}

// Appends what stands for the sequence at the start of a text and gives its length.
std::size_t appendFirst(std::string_view text, std::string& plain) {
  const char c = text[0];
  if (c == '\r') {
    plain += '\n';
    return text.size() > 1 && text[1] == '\n' ? 2 : 1;
  }
  if (c == '\n' || c == '\v' || c == '\f') {
    plain += '\n';
  } else if (c == '\t') {
    plain += ' ';
  } else if (c >= ' ' && c < '\x7F') {
    plain += c;
  } else {
    const std::size_t length = sequenceLength(text);
    const std::string_view sequence = text.substr(0, length);
    if (isLongLineBreak(sequence)) {
      plain += '\n';
    } else {
      plain += length < 2 || isLongControl(sequence) ? kReplacement : sequence;
    }
    return std::max<std::size_t>(1, length);
  }
  return 1;
}

}  // namespace

std::string_view plainText(std::string_view text, std::string& room) {
  if (isPlainAscii(text)) return text;
  room.clear();
  room.reserve(text.size());
  while (!text.empty()) text.remove_prefix(appendFirst(text, room));
  return room;
}

std::string_view plainLine(std::string_view text, std::string& room) {
  const std::string_view plain = plainText(text, room);
  if (plain.find('\n') == plain.npos) return plain;
  std::replace(room.begin(), room.end(), '\n', ' ');
  return room;
}

}  // namespace om::render::internal
