#include "tools/tabulate/Failure.h"

#include "tools/tabulate/Utf8.h"

namespace om::tabulate {

std::string printable(std::string_view text, std::size_t limit) {
  static constexpr char kDigits[] = "0123456789abcdef";
  std::string result;
  while (!text.empty()) {
    if (result.size() >= limit) return result + "...";
    const std::size_t length = utf8::sequenceLength(text);
    const auto byte = static_cast<unsigned char>(text[0]);
    // C1 controls are U+0080 to U+009F, which UTF-8 writes as C2 80 to C2 9F.
    const bool control =
        byte < 0x20 || byte == 0x7f ||
        (length == 2 && byte == 0xc2 && static_cast<unsigned char>(text[1]) < 0xa0);
    if (length == 0 || control) {
      for (std::size_t i = 0; i < (length == 0 ? 1 : length); ++i) {
        const auto raw = static_cast<unsigned char>(text[i]);
        result += "\\x";
        result += kDigits[raw >> 4];
        result += kDigits[raw & 15];
      }
    } else {
      result.append(text.substr(0, length));
    }
    text.remove_prefix(length == 0 ? 1 : length);
  }
  return result;
}

std::string inQuotes(std::string_view text) { return '"' + printable(text, 60) + '"'; }

}  // namespace om::tabulate
