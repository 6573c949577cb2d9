// Which texts are numbers.

#include "tools/tabulate/Number.h"

#include <gtest/gtest.h>

#include <string>

namespace om::test {
namespace {

using tabulate::isPlainDecimal;
using tabulate::Number;
using tabulate::parseNumber;

void expectNumber(double value, int decimals, const std::string& text) {
  Number number;
  ASSERT_TRUE(parseNumber(text, number)) << text;
  EXPECT_EQ(value, number.value) << text;
  EXPECT_EQ(decimals, number.decimals) << text;
}

TEST(Number, IsReadWithItsDecimals) {
  expectNumber(12, 0, "12");
  expectNumber(-0.5, 1, "-0.5");
  expectNumber(0.25, 2, ".25");
  expectNumber(5, 0, "5.");
  expectNumber(3.10, 2, "3.10");
  expectNumber(7, 0, "+7");
  expectNumber(9007199254740994, 0, "9007199254740994");
}

TEST(Number, ExponentMovesTheDecimals) {
  expectNumber(1500, 0, "1.5e3");
  expectNumber(0.0015, 4, "1.5E-3");
  expectNumber(15, 0, "1.5e+1");
  expectNumber(1e300, 0, "1e300");
}

TEST(Number, IsNothingElse) {
  Number number;
  for (const std::string text : {"", "-", "+", ".", "NA", "nan", "inf", "-inf", "1,5", "1 ", " 1",
                                 "1x", "0x10", "--1", "+-1", "e5", "1e", "1e999", "1e-999"}) {
    EXPECT_FALSE(parseNumber(text, number)) << text;
  }
}

TEST(Number, PlainDecimalsHaveNoPlusNorExponent) {
  for (const std::string text : {"0", "02", "-3", "1.50", "-0.5"}) {
    EXPECT_TRUE(isPlainDecimal(text)) << text;
  }
  for (const std::string text : {"", "-", "+1", "1e5", ".5", "5.", "1.", "1.2.3", "a", "1a"}) {
    EXPECT_FALSE(isPlainDecimal(text)) << text;
  }
}

}  // namespace
}  // namespace om::test
