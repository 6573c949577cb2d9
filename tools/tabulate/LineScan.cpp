#include "tools/tabulate/LineScan.h"

#include <algorithm>

namespace om::tabulate {

void LineScan::scan(std::string_view text, std::uint64_t untilRecord) {
  for (const char c : text) {
    if (begun && records == untilRecord) return;
    const bool lineFeedOfCr = c == '\n' && afterCr;
    afterCr = c == '\r';
    if (c == '\r' || c == '\n') {
      if (lineFeedOfCr) continue;
      ++line;
      if (begun && !quoted) {
        ++records;
        begun = false;
      }
      continue;
    }
    if (!begun) {
      begun = true;
      recordLine = line;
    }
    if (c == '"') quoted = !quoted;
  }
}

void LineScan::skip(std::string_view text, std::uint64_t recordsEnded) {
  line += static_cast<std::uint64_t>(std::count(text.begin(), text.end(), '\n'));
  if (text.find('\r') != text.npos) {
    line += static_cast<std::uint64_t>(std::count(text.begin(), text.end(), '\r'));
    for (std::size_t at = text.find("\r\n"); at != text.npos; at = text.find("\r\n", at + 2))
      --line;
  }
  if (afterCr && text.starts_with('\n')) --line;
  records = recordsEnded;
  begun = false;
  quoted = false;
  if (!text.empty()) afterCr = text.back() == '\r';
}

}  // namespace om::tabulate
