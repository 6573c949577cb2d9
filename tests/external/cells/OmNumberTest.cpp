// The string form of numbers under their display formats.

#include "external/cells/OmNumber.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <memory>
#include <string>

#include "tests/support/Oracle.h"

namespace om::test {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();

std::string fixed(double value, int decimals) { return OmNumber(value, {decimals, false, false}); }
std::string percent(double value, int decimals) { return OmNumber(value, {decimals, true, false}); }
std::string grouped(double value, int decimals) { return OmNumber(value, {decimals, false, true}); }
std::string shortest(double value) { return OmNumber(value); }

TEST(OmNumber, ShowsTheDecimalsAskedFor) {
  EXPECT_EQ(fixed(3.14159, 0), "3");
  EXPECT_EQ(fixed(3.14159, 1), "3.1");
  EXPECT_EQ(fixed(3.14159, 4), "3.1416");
  EXPECT_EQ(fixed(3, 2), "3.00");
  EXPECT_EQ(fixed(0.25, 5), "0.25000");
}

TEST(OmNumber, ShowsNegativeValuesWithASign) {
  EXPECT_EQ(fixed(-12.75, 1), "-12.8");  // a tie: 12.8 ends in the even digit
  EXPECT_EQ(fixed(-12, 0), "-12");
  EXPECT_EQ(fixed(-0.01, 2), "-0.01");
}

TEST(OmNumber, RoundsHalfToEven) {
  EXPECT_EQ(fixed(0.5, 0), "0");
  EXPECT_EQ(fixed(1.5, 0), "2");
  EXPECT_EQ(fixed(2.5, 0), "2");
  EXPECT_EQ(fixed(3.5, 0), "4");
  EXPECT_EQ(fixed(-2.5, 0), "-2");
  EXPECT_EQ(fixed(0.125, 2), "0.12");
  EXPECT_EQ(fixed(0.375, 2), "0.38");
  EXPECT_EQ(fixed(0.0625, 3), "0.062");
  EXPECT_EQ(fixed(9.5, 0), "10");
}

TEST(OmNumber, RoundsTheBinaryValueAndNotItsShortForm) {
  EXPECT_EQ(fixed(2.675, 2), "2.67");  // stored as 2.67499999...
  EXPECT_EQ(fixed(1.005, 2), "1.00");  // stored as 1.00499999...
  EXPECT_EQ(fixed(0.1, 20), "0.10000000000000000555");
}

TEST(OmNumber, ZeroHasNoSign) {
  EXPECT_EQ(fixed(0, 0), "0");
  EXPECT_EQ(fixed(-0.0, 2), "0.00");
  EXPECT_EQ(shortest(-0.0), "0");
  EXPECT_EQ(shortest(0), "0");
}

TEST(OmNumber, AValueThatRoundsToZeroHasNoSign) {
  EXPECT_EQ(fixed(-0.5, 0), "0");
  EXPECT_EQ(fixed(-0.004, 2), "0.00");
  EXPECT_EQ(percent(-0.04, 1), "0.0%");
  EXPECT_EQ(fixed(-5e-324, 10), "0.0000000000");
  EXPECT_EQ(fixed(-0.006, 2), "-0.01");
}

TEST(OmNumber, AValueThatIsNoNumberShowsAsAPoint) {
  EXPECT_EQ(shortest(kNoNumber), ".");
  EXPECT_EQ(fixed(std::copysign(kNoNumber, -1.0), 2), ".");
  EXPECT_EQ(percent(kNoNumber, 2), ".");
  EXPECT_EQ(grouped(kNoNumber, 2), ".");
}

TEST(OmNumber, InfinitiesShowAsWords) {
  EXPECT_EQ(shortest(kInfinity), "inf");
  EXPECT_EQ(fixed(-kInfinity, 3), "-inf");
  EXPECT_EQ(percent(kInfinity, 1), "inf");
  EXPECT_EQ(grouped(-kInfinity, 1), "-inf");
}

TEST(OmNumber, PercentPutsASignBehindTheValue) {
  EXPECT_EQ(percent(12.5, 1), "12.5%");
  EXPECT_EQ(percent(-100, 0), "-100%");
  EXPECT_EQ(std::string(OmNumber(12.5, {-1, true, false})), "12.5%");
  EXPECT_EQ(std::string(OmNumber(1234.5, {2, true, true})), "1,234.50%");
}

TEST(OmNumber, GroupingPutsACommaBetweenThousands) {
  EXPECT_EQ(grouped(0, 0), "0");
  EXPECT_EQ(grouped(999, 0), "999");
  EXPECT_EQ(grouped(1000, 0), "1,000");
  EXPECT_EQ(grouped(12345, 0), "12,345");
  EXPECT_EQ(grouped(123456, 1), "123,456.0");
  EXPECT_EQ(grouped(1234567.891, 2), "1,234,567.89");
  EXPECT_EQ(grouped(-1234.5, 1), "-1,234.5");
  EXPECT_EQ(grouped(-123456, 0), "-123,456");
}

TEST(OmNumber, GroupingLooksAtTheRoundedValue) {
  EXPECT_EQ(grouped(999.5, 0), "1,000");
  EXPECT_EQ(grouped(-999999.75, 1), "-999,999.8");
  EXPECT_EQ(grouped(999999.5, 0), "1,000,000");
}

TEST(OmNumber, GroupingLeavesTheDecimalsAlone) {
  EXPECT_EQ(grouped(0.123456789, 9), "0.123456789");
  EXPECT_EQ(grouped(1000.0001, 4), "1,000.0001");
}

TEST(OmNumber, GroupsTheShortestFormToo) {
  EXPECT_EQ(grouped(1234567.5, -1), "1,234,567.5");
  EXPECT_EQ(grouped(12345, -1), "12,345");
}

// 2 to the power of n, by doubling decimal digits.
std::string powerOfTwo(int n) {
  std::string digits = "1";
  for (; n > 0; --n) {
    int carry = 0;
    for (auto digit = digits.rbegin(); digit != digits.rend(); ++digit) {
      const int doubled = 2 * (*digit - '0') + carry;
      *digit = static_cast<char>('0' + doubled % 10);
      carry = doubled / 10;
    }
    if (carry != 0) digits.insert(digits.begin(), '1');
  }
  return digits;
}

std::string withCommas(std::string digits) {
  for (std::size_t i = digits.size(); i > 3; i -= 3) digits.insert(i - 3, 1, ',');
  return digits;
}

TEST(OmNumber, ShowsEveryDigitOfHugeValues) {
  EXPECT_EQ(fixed(std::ldexp(1.0, 100), 0), "1267650600228229401496703205376");
  EXPECT_EQ(fixed(std::ldexp(1.0, 1023), 0), powerOfTwo(1023));
  EXPECT_EQ(fixed(-std::ldexp(1.0, 1023), OmNumber::kMaxDecimals),
            "-" + powerOfTwo(1023) + "." + std::string(64, '0'));
}

TEST(OmNumber, GroupsEveryDigitOfHugeValues) {
  EXPECT_EQ(grouped(std::ldexp(1.0, 1023), 0), withCommas(powerOfTwo(1023)));
  EXPECT_EQ(std::string(OmNumber(-std::ldexp(1.0, 1023), {64, true, true})),
            "-" + withCommas(powerOfTwo(1023)) + "." + std::string(64, '0') + "%");
}

TEST(OmNumber, GroupsTheValue1e308) {
  const std::string text = grouped(1e308, 0);
  ASSERT_EQ(text.size(), 309U + 102U);
  std::string digits;
  for (const char c : text) {
    if (c != ',') digits += c;
  }
  EXPECT_EQ(text, withCommas(digits));
  EXPECT_EQ(std::strtod(digits.c_str(), nullptr), 1e308);
}

TEST(OmNumber, ShowsAtMost64Decimals) {
  EXPECT_EQ(fixed(1.5, 64), "1.5" + std::string(63, '0'));
  EXPECT_EQ(fixed(1.5, 65), "1.5" + std::string(63, '0'));
  EXPECT_EQ(fixed(1.5, std::numeric_limits<int>::max()), "1.5" + std::string(63, '0'));
}

TEST(OmNumber, WithoutDecimalsShowsTheFewestDigits) {
  EXPECT_EQ(shortest(42), "42");
  EXPECT_EQ(shortest(0.1), "0.1");
  EXPECT_EQ(shortest(-7.25), "-7.25");
  EXPECT_EQ(shortest(1234.5), "1234.5");
  EXPECT_EQ(shortest(0.1 + 0.2), "0.30000000000000004");
  EXPECT_EQ(std::string(OmNumber(2.5, {std::numeric_limits<int>::min(), false, false})), "2.5");
}

TEST(OmNumber, TheFewestDigitsReadBackAsTheValue) {
  runRandomOperations(11, 20000, [](Random& random) {
    const auto value = std::bit_cast<double>(
        (static_cast<std::uint64_t>(random.below(std::size_t{1} << 32)) << 32) |
        static_cast<std::uint64_t>(random.below(std::size_t{1} << 32)));
    if (!std::isfinite(value)) return;
    EXPECT_EQ(std::strtod(shortest(value).c_str(), nullptr), value);
  });
}

TEST(OmNumber, GivesValueAndFormatBack) {
  const OmNumber::Format format{3, true, true};
  const OmNumber number(2.675, format);
  EXPECT_EQ(number.Value(), 2.675);
  EXPECT_EQ(number.DisplayFormat(), format);
  EXPECT_EQ(OmNumber(1).DisplayFormat(), (OmNumber::Format{-1, false, false}));
}

TEST(OmNumber, KeepsTheSignOfANegativeZero) { EXPECT_TRUE(std::signbit(OmNumber(-0.0).Value())); }

TEST(OmNumber, ACloneHasValueAndFormat) {
  const OmNumber number(-0.125, {2, true, false});
  const std::unique_ptr<OmNumber> clone(number.Clone(nullptr));
  EXPECT_EQ(clone->Value(), -0.125);
  EXPECT_EQ(clone->DisplayFormat(), number.DisplayFormat());
  EXPECT_EQ(std::string(*clone), "-0.12%");
}

}  // namespace
}  // namespace om::test
