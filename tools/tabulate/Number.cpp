#include "tools/tabulate/Number.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <system_error>

namespace om::tabulate {

namespace {

bool isDigit(char c) { return c >= '0' && c <= '9'; }

std::size_t digitsAt(std::string_view text, std::size_t at) {
  std::size_t end = at;
  while (end < text.size() && isDigit(text[end])) ++end;
  return end - at;
}

}  // namespace

bool parseNumber(std::string_view text, Number& number) {
  const std::size_t sign = text.starts_with('-') || text.starts_with('+') ? 1 : 0;
  // Keeps out the words that from_chars would make something of, and a second sign.
  if (text.size() <= sign || (!isDigit(text[sign]) && text[sign] != '.')) return false;
  if (text[0] == '+') text.remove_prefix(1);
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, number.value);
  if (error != std::errc() || stop != end || !std::isfinite(number.value)) return false;

  const std::size_t point = text.find('.');
  int decimals = point == text.npos ? 0 : static_cast<int>(digitsAt(text, point + 1));
  const std::size_t exponent = text.find_first_of("eE");
  if (exponent != text.npos) {
    int shift = 0;
    const char* from = text.data() + exponent + 1;
    if (*from == '+') ++from;
    std::from_chars(from, end, shift);
    decimals = std::clamp(decimals - std::clamp(shift, -1000, 1000), 0, 1000);
  }
  number.decimals = decimals;
  return true;
}

bool isPlainDecimal(std::string_view text) {
  if (text.starts_with('-')) text.remove_prefix(1);
  const std::size_t whole = digitsAt(text, 0);
  if (whole == 0) return false;
  if (whole == text.size()) return true;
  if (text[whole] != '.') return false;
  const std::size_t fraction = digitsAt(text, whole + 1);
  return fraction != 0 && whole + 1 + fraction == text.size();
}

}  // namespace om::tabulate
