#include "external/cells/OmNumber.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

OmNumber::~OmNumber() = default;

OmNumber* OmNumber::Clone(OmMemoryRegion* region) const { return new (region) OmNumber(*this); }

OmNumber::operator std::string() const {
  if (std::isnan(value_)) return ".";
  if (std::isinf(value_)) return value_ < 0 ? "-inf" : "inf";

  // The longest form: every digit of the largest value, the point, the decimals and a sign.
  std::array<char, std::numeric_limits<double>::max_exponent10 + kMaxDecimals + 8> digits;
  char* const begin = digits.data();
  char* const limit = begin + digits.size();
  const double magnitude = std::fabs(value_);
  const bool shortest = format_.decimals < 0;
  const std::to_chars_result result =
      shortest ? std::to_chars(begin, limit, magnitude)
               : std::to_chars(begin, limit, magnitude, std::chars_format::fixed,
                               std::min(format_.decimals, kMaxDecimals));
  char* const end = result.ptr;

  const bool zero = std::all_of(begin, end, [](char c) { return c == '0' || c == '.'; });
  std::string text = value_ < 0 && !zero ? "-" : "";
  // The shortest form of a large or small value has an exponent; its one digit is not grouped.
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
