#include "tools/tabulate/Utf8.h"

#include <cstdint>
#include <cstring>

namespace om::tabulate::utf8 {

namespace {

struct Lead {
  std::size_t length;  // 0: no character begins with this byte
  unsigned char low;   // the bounds of the second byte
  unsigned char high;
};

Lead leadOf(unsigned char byte) {
  if (byte < 0x80) return {1, 0, 0};
  if (byte < 0xc2) return {0, 0, 0};
  if (byte < 0xe0) return {2, 0x80, 0xbf};
  if (byte < 0xf0) {
    const bool surrogates = byte == 0xed;
    return {3, static_cast<unsigned char>(byte == 0xe0 ? 0xa0 : 0x80),
            static_cast<unsigned char>(surrogates ? 0x9f : 0xbf)};
  }
  if (byte < 0xf5) {
    return {4, static_cast<unsigned char>(byte == 0xf0 ? 0x90 : 0x80),
            static_cast<unsigned char>(byte == 0xf4 ? 0x8f : 0xbf)};
  }
  return {0, 0, 0};
}

// How many bytes at the start fit a character, of how many that it has.
struct Match {
  std::size_t matched;
  std::size_t length;
};

Match match(std::string_view text) {
  const Lead lead = leadOf(static_cast<unsigned char>(text[0]));
  if (lead.length == 0) return {0, 0};
  std::size_t matched = 1;
  while (matched < lead.length && matched < text.size()) {
    const auto byte = static_cast<unsigned char>(text[matched]);
    const bool fits = matched == 1 ? byte >= lead.low && byte <= lead.high : (byte & 0xc0) == 0x80;
    if (!fits) break;
    ++matched;
  }
  return {matched, lead.length};
}

}  // namespace

std::size_t sequenceLength(std::string_view text) {
  const Match found = match(text);
  return found.matched == found.length ? found.length : 0;
}

std::size_t validPrefix(std::string_view text) {
  constexpr std::size_t kStride = 64;
  constexpr std::uint64_t kHighBits = 0x8080808080808080U;
  std::size_t position = 0;
  while (position < text.size()) {
    if (text.size() - position >= kStride) {
      std::uint64_t words[kStride / 8];
      std::memcpy(words, text.data() + position, kStride);
      std::uint64_t any = 0;
      for (const std::uint64_t word : words) any |= word;
      if ((any & kHighBits) == 0) {
        position += kStride;
        continue;
      }
    }
    const std::size_t stop = position + kStride < text.size() ? position + kStride : text.size();
    while (position < stop) {
      const std::size_t length = sequenceLength(text.substr(position));
      if (length == 0) return position;
      position += length;
    }
  }
  return position;
}

bool isBeginning(std::string_view text) {
  if (text.empty()) return false;
  const Match found = match(text);
  return found.matched == text.size() && found.matched < found.length;
}

}  // namespace om::tabulate::utf8
