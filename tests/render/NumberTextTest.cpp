// The string form of a number, and its decimal mark.

#include "render/internal/NumberText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <string>

#include "tests/support/Oracle.h"

namespace om::test {
namespace {

using render::internal::NumberText;

// With a bar in front of what follows the whole part.
std::string parts(double value, const OmNumber::Format& format = {}) {
  NumberText text;
  text.assign(OmNumber(value, format));
  return std::string(text.view()).insert(text.whole(), "|");
}

TEST(NumberText, AWholeNumberEndsAtItsDecimalMark) {
  EXPECT_EQ(parts(0, {.decimals = 0}), "0|");
  EXPECT_EQ(parts(1234567, {.decimals = 0}), "1234567|");
  EXPECT_EQ(parts(-5, {.decimals = 0}), "-5|");
  EXPECT_EQ(parts(42), "42|");
}

TEST(NumberText, DecimalsStandBehindTheMark) {
  EXPECT_EQ(parts(3.14159, {.decimals = 2}), "3|.14");
  EXPECT_EQ(parts(0.5, {.decimals = 3}), "0|.500");
  EXPECT_EQ(parts(-12.25, {.decimals = 1}), "-12|.2");
  EXPECT_EQ(parts(7, {.decimals = 2}), "7|.00");
  EXPECT_EQ(parts(0.25), "0|.25");
}

TEST(NumberText, PercentSignsAndExponentsStandBehindTheMark) {
  EXPECT_EQ(parts(45, {.decimals = 0, .percent = true}), "45|%");
  EXPECT_EQ(parts(45.1, {.decimals = 1, .percent = true}), "45|.1%");
  EXPECT_EQ(parts(1e-7), "1|e-07");
  EXPECT_EQ(parts(1.5e30), "1|.5e+30");
}

TEST(NumberText, ThousandsAreGrouped) {
  EXPECT_EQ(parts(999, {.decimals = 0, .grouping = true}), "999|");
  EXPECT_EQ(parts(1000, {.decimals = 0, .grouping = true}), "1,000|");
  EXPECT_EQ(parts(-1234567.5, {.decimals = 1, .grouping = true}), "-1,234,567|.5");
}

TEST(NumberText, HalvesAreRoundedToEvenOnTheExactValue) {
  EXPECT_EQ(parts(0.5, {.decimals = 0}), "0|");
  EXPECT_EQ(parts(1.5, {.decimals = 0}), "2|");
  EXPECT_EQ(parts(2.5, {.decimals = 0}), "2|");
  EXPECT_EQ(parts(0.125, {.decimals = 2}), "0|.12");
  EXPECT_EQ(parts(0.375, {.decimals = 2}), "0|.38");
  EXPECT_EQ(parts(1.005, {.decimals = 2}), "1|.00");  // is 1.00499999999999989...
  EXPECT_EQ(parts(1.115, {.decimals = 2}), "1|.11");  // is 1.11499999999999999...
  EXPECT_EQ(parts(2.675, {.decimals = 2}), "2|.67");  // is 2.67499999999999982...
  EXPECT_EQ(parts(0.145, {.decimals = 2}), "0|.14");  // is 0.14499999999999999...
  EXPECT_EQ(parts(1.45, {.decimals = 1}), "1|.4");    // is 1.44999999999999996...
  EXPECT_EQ(parts(8.345, {.decimals = 2}), "8|.35");  // is 8.34500000000000064...
}

TEST(NumberText, RoundingMayAddADigit) {
  EXPECT_EQ(parts(9.96, {.decimals = 1}), "10|.0");
  EXPECT_EQ(parts(999.6, {.decimals = 0, .grouping = true}), "1,000|");
}

TEST(NumberText, WhatRoundsToZeroHasNoSign) {
  EXPECT_EQ(parts(-0.4, {.decimals = 0}), "0|");
  EXPECT_EQ(parts(-0.0), "0|");
}

TEST(NumberText, WhatIsNoNumberIsAllInFrontOfTheMark) {
  EXPECT_EQ(parts(std::numeric_limits<double>::quiet_NaN()), ".|");
  EXPECT_EQ(parts(std::numeric_limits<double>::infinity()), "inf|");
  EXPECT_EQ(parts(-std::numeric_limits<double>::infinity()), "-inf|");
}

// Values of every size, many of them with few decimals, some half way between two of these.
double randomValue(Random& random) {
  const double sign = random.oneIn(3) ? -1 : 1;
  if (random.oneIn(4)) {
    const std::uint64_t bits = random.below(std::numeric_limits<std::size_t>::max());
    double value = 0;
    std::memcpy(&value, &bits, sizeof value);
    return value;
  }
  const double digits = static_cast<double>(random.below(std::size_t{1} << random.below(60)));
  return sign * digits / std::pow(10.0, static_cast<double>(random.below(10)));
}

TEST(NumberText, ItIsTheStringFormOfTheNumberAndSizeOfIsItsSize) {
  NumberText text;
  runRandomOperations(20240611, 200'000, [&](Random& random) {
    const OmNumber::Format format{static_cast<int>(random.below(20)) - 1, random.oneIn(4),
                                  random.oneIn(3)};
    const OmNumber number(randomValue(random), format);
    text.assign(number);
    const NumberText::Size size = NumberText::sizeOf(number);
    if (text.view() != std::string(number) || size.whole != text.whole() ||
        size.whole + size.rest != text.view().size()) {
      ADD_FAILURE() << "of " << number.Value() << " with " << format.decimals
                    << " decimals: " << text.view() << " instead of " << std::string(number)
                    << ", size " << size.whole << " + " << size.rest;
    }
  });
}

}  // namespace
}  // namespace om::test
