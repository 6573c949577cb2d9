#include "external/cells/OmNumber.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace {

// Gives the end of what it wrote.
char* write(char* begin, char* limit, double magnitude, int decimals) {
  if (decimals >= 0) {
    return std::to_chars(begin, limit, magnitude, std::chars_format::fixed,
                         std::min(decimals, OmNumber::kMaxDecimals))
        .ptr;
  }
  const bool plain = magnitude == 0 || (magnitude >= 1e-6 && magnitude < 1e21);
  return std::to_chars(begin, limit, magnitude,
                       plain ? std::chars_format::fixed : std::chars_format::scientific)
      .ptr;
}

}  // namespace

OmNumber::~OmNumber() = default;

OmNumber* OmNumber::Clone(OmMemoryRegion* region) const {
  return endingWith(region, new (region) OmNumber(*this));
}

OmNumber::operator std::string() const {
  if (std::isnan(value_)) return ".";
  if (std::isinf(value_)) return value_ < 0 ? "-inf" : "inf";

  // The longest form: every digit of the largest value, the point, the decimals and a sign.
  std::array<char, std::numeric_limits<double>::max_exponent10 + kMaxDecimals + 8> digits;
  char* const begin = digits.data();
  char* const limit = begin + digits.size();
  const double magnitude = std::fabs(value_);
  char* const end = write(begin, limit, magnitude, format_.decimals);

  const bool zero = std::all_of(begin, end, [](char c) { return c == '0' || c == '.'; });
  std::string text = value_ < 0 && !zero ? "-" : "";
  const auto whole = std::find_if(begin, end, [](char c) { return c < '0' || c > '9'; }) - begin;
  for (auto i = 0 * whole; i < whole; ++i) {
    if (format_.grouping && i > 0 && (whole - i) % 3 == 0) text += ',';
    text += begin[i];
  }
  text.append(begin + whole, end);
  if (format_.percent) text += '%';
  return text;
}

int OmNumber::Kind() const { return NUMBER; }

void OmNumber::Accept(Visitor& visitor) { visitor.Visit(*this); }
