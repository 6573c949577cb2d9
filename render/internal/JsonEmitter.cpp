#include "render/internal/JsonEmitter.h"

#include "render/internal/Utf8.h"

namespace om::render::internal {

namespace {

bool isPlain(char c) {
  const auto byte = static_cast<unsigned char>(c);
  return byte >= 0x20 && byte < 0x80 && c != '"' && c != '\\';
}

}  // namespace

void JsonEmitter::string(std::string_view text) {
  separate();
  sink_.put('"');
  while (!text.empty()) {
    const auto plain = static_cast<std::size_t>(
        std::find_if_not(text.begin(), text.end(), isPlain) - text.begin());
    sink_.put(text.substr(0, plain));
    text.remove_prefix(plain);
    if (text.empty()) break;
    const std::size_t length = sequenceLength(text);
    if (length > 1) {
      sink_.put(text.substr(0, length));
    } else if (length == 1) {
      escape(text.front());
    } else {
      sink_.put("\xEF\xBF\xBD");
    }
    text.remove_prefix(std::max<std::size_t>(length, 1));
  }
  sink_.put('"');
}

void JsonEmitter::escape(char c) {
  static constexpr std::string_view kHex = "0123456789abcdef";
  switch (c) {
    case '"':
      return sink_.put("\\\"");
    case '\\':
      return sink_.put("\\\\");
    case '\n':
      return sink_.put("\\n");
    case '\r':
      return sink_.put("\\r");
    case '\t':
      return sink_.put("\\t");
    default:
      sink_.put("\\u00");
      sink_.put(kHex[static_cast<unsigned char>(c) / 16]);
      sink_.put(kHex[static_cast<unsigned char>(c) % 16]);
  }
}

void JsonEmitter::bytes(std::string_view bytes) {
  static constexpr std::string_view kDigits =
      "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  separate();
  sink_.put('"');
  for (; !bytes.empty(); bytes.remove_prefix(std::min<std::size_t>(3, bytes.size()))) {
    unsigned group = 0;
    for (std::size_t i = 0; i < 3; ++i) {
      group = group * 256 + (i < bytes.size() ? static_cast<unsigned char>(bytes[i]) : 0);
    }
    for (std::size_t i = 0; i < 4; ++i) {
      sink_.put(i <= bytes.size() ? kDigits[group >> (18 - 6 * i) & 63] : '=');
    }
  }
  sink_.put('"');
}

}  // namespace om::render::internal
