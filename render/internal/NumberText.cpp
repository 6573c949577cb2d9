#include "render/internal/NumberText.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <optional>

namespace om::render::internal {

namespace {

// From here on, doubles have no fractions.
constexpr double kNoFractions = 4503599627370496;  // 2^52

constexpr std::array<double, 16> kPowersOfTen = {1,   1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                                 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};

// value * scale as a whole number, rounded half to even on the exact product. It can differ from
// the rounded product only where that is half way between two numbers; which side the exact one is
// on is then told by the error of the product. REQUIRES: the product is below kNoFractions.
double roundedProduct(double value, double scale, double product) {
  const double rounded = (product + kNoFractions) - kNoFractions;
  if (std::fabs(product - rounded) != 0.5) return rounded;
  const double error = std::fma(value, scale, -product);
  if (error == 0) return rounded;
  return error > 0 ? product + 0.5 : product - 0.5;
}

// The digits of the numbers from 0 to 999, three of each.
constexpr std::array<std::array<char, 3>, 1000> kTriples = [] {
  std::array<std::array<char, 3>, 1000> triples{};
  for (std::size_t i = 0; i < triples.size(); ++i) {
    triples[i] = {static_cast<char>('0' + i / 100), static_cast<char>('0' + i / 10 % 10),
                  static_cast<char>('0' + i % 10)};
  }
  return triples;
}();

// Of a number below 1000 units, how many digits it has from the units on, but for the first one.
// Without a branch, which would be foreseen badly.
std::size_t digitsBehindFirst(std::uint64_t number, std::uint64_t unit) {
  return (number >= 10 * unit ? 1U : 0U) + (number >= 100 * unit ? 1U : 0U);
}

std::size_t wholePartOf(std::string_view text) {
  const auto isWhole = [](char c) { return (c >= '0' && c <= '9') || c == '-' || c == ','; };
  const auto end = std::find_if_not(text.begin(), text.end(), isWhole);
  const bool hasDigits = end != text.begin() && *(end - 1) != '-';
  return hasDigits ? static_cast<std::size_t>(end - text.begin()) : text.size();
}

// A number that is written digit by digit: most of them.
struct Scaled {
  std::uint64_t digits;  // the magnitude times a power of ten
  std::size_t decimals;
  bool isNegative;
};

std::optional<Scaled> scaled(const OmNumber& number) {
  const double magnitude = std::fabs(number.Value());
  int decimals = number.DisplayFormat().decimals;
  // Without a number of decimals, a whole number has none.
  if (decimals < 0 && magnitude < kNoFractions && std::trunc(magnitude) == magnitude) decimals = 0;
  const auto power = static_cast<std::size_t>(decimals);
  if (power >= kPowersOfTen.size()) return std::nullopt;
  const double product = magnitude * kPowersOfTen[power];
  if (!(product < kNoFractions)) return std::nullopt;
  const double rounded = roundedProduct(magnitude, kPowersOfTen[power], product);
  // A value that rounds to zero has no sign.
  return Scaled{static_cast<std::uint64_t>(static_cast<std::int64_t>(rounded)), power,
                number.Value() < 0 && rounded != 0};
}

}  // namespace

NumberText::Size NumberText::sizeOf(const OmNumber& number) {
  const std::optional<Scaled> form = scaled(number);
  if (!form) {
    const std::string text(number);
    const std::size_t whole = wholePartOf(text);
    return {whole, text.size() - whole};
  }
  std::size_t digits = 1;
  std::uint64_t unit = 1;
  for (; form->digits >= 1000 * unit; unit *= 1000) digits += 3;
  digits += digitsBehindFirst(form->digits, unit);
  digits = digits > form->decimals ? digits - form->decimals : 1;
  const OmNumber::Format& format = number.DisplayFormat();
  const std::size_t commas = format.grouping ? (digits - 1) / 3 : 0;
  return {digits + commas + (form->isNegative ? 1 : 0),
          (form->decimals != 0 ? form->decimals + 1 : 0) + (format.percent ? 1 : 0)};
}

void NumberText::assign(const OmNumber& number) {
  if (const std::optional<Scaled> form = scaled(number)) {
    return write(form->digits, form->decimals, form->isNegative, number.DisplayFormat());
  }
  long_ = std::string(number);
  view_ = long_;
  whole_ = wholePartOf(view_);
}

// Writes from the last character to the first.
void NumberText::write(std::uint64_t scaled, std::size_t decimals, bool isNegative,
                       const OmNumber::Format& format) {
  char* const end = room_.data() + room_.size();
  char* at = end;
  if (format.percent) *--at = '%';
  for (std::size_t i = 0; i < decimals; ++i) {
    *--at = static_cast<char>('0' + scaled % 10);
    scaled /= 10;
  }
  if (decimals != 0) *--at = '.';
  const char* const wholeEnd = at;
  for (; scaled >= 1000; scaled /= 1000) {
    at -= 3;
    std::memcpy(at, kTriples[scaled % 1000].data(), 3);
    if (format.grouping) *--at = ',';
  }
  std::memcpy(at - 3, kTriples[scaled].data(), 3);
  at -= 1 + digitsBehindFirst(scaled, 1);
  if (isNegative) *--at = '-';
  view_ = {at, static_cast<std::size_t>(end - at)};
  whole_ = static_cast<std::size_t>(wholeEnd - at);
}

}  // namespace om::render::internal
