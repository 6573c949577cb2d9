// OMSException: what it holds, the text it composes, and how it is thrown.

#include "backend/OMSException.h"

#include <gtest/gtest.h>

#include <exception>
#include <locale>
#include <memory>
#include <string>
#include <type_traits>

namespace om::test {
namespace {

static_assert(std::is_base_of_v<std::exception, OMSException>);
static_assert(std::is_copy_constructible_v<OMSException>);

std::string whatOf(double value1, double value2) {
  return OMSException("m", value1, value2).what();
}

// Numbers with a decimal comma, in groups of three.
class CommaNumbers : public std::numpunct<char> {
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\3"; }
};

class GlobalLocale {
 public:
  explicit GlobalLocale(const std::locale& locale) : former_(std::locale::global(locale)) {}
  ~GlobalLocale() { std::locale::global(former_); }
  GlobalLocale(const GlobalLocale&) = delete;
  GlobalLocale& operator=(const GlobalLocale&) = delete;

 private:
  std::locale former_;
};

TEST(OMSException, KeepsMessageAndBothValues) {
  const OMSException exception("OmPivotTable::Size() -- which < 0", -1, 2.5);
  EXPECT_EQ(exception.getMessage(), "OmPivotTable::Size() -- which < 0");
  EXPECT_EQ(exception.getValue1(), -1.0);
  EXPECT_EQ(exception.getValue2(), 2.5);
}

TEST(OMSException, TwoValuesOfZeroBelongToAMessageAlone) {
  const OMSException exception("A::B() -- c");
  EXPECT_EQ(exception.getMessage(), "A::B() -- c");
  EXPECT_EQ(exception.getValue1(), 0.0);
  EXPECT_EQ(exception.getValue2(), 0.0);
  EXPECT_STREQ(exception.what(), "A::B() -- c, value 1 == 0, value 2 == 0");
}

TEST(OMSException, TheTextIsTheMessageFollowedByBothValues) {
  EXPECT_STREQ(OMSException("A::B() -- c", 3, 4).what(), "A::B() -- c, value 1 == 3, value 2 == 4");
}

TEST(OMSException, AnEmptyMessageLeavesOnlyTheValues) {
  EXPECT_STREQ(OMSException("", 1, 2).what(), ", value 1 == 1, value 2 == 2");
}

TEST(OMSException, ValuesAreWrittenAsAStreamWritesThem) {
  EXPECT_EQ(whatOf(0, -7), "m, value 1 == 0, value 2 == -7");
  EXPECT_EQ(whatOf(0.5, -0.25), "m, value 1 == 0.5, value 2 == -0.25");
  EXPECT_EQ(whatOf(1e20, 1e-7), "m, value 1 == 1e+20, value 2 == 1e-07");
  EXPECT_EQ(whatOf(123456, 999999), "m, value 1 == 123456, value 2 == 999999");
}

TEST(OMSException, ValuesShowSixSignificantDigits) {
  EXPECT_EQ(whatOf(1234567, 3.14159265), "m, value 1 == 1.23457e+06, value 2 == 3.14159");
  EXPECT_EQ(whatOf(18446744073709551615.0, 2147483648.0),
            "m, value 1 == 1.84467e+19, value 2 == 2.14748e+09");
}

TEST(OMSException, TheGlobalLocaleDoesNotTouchTheText) {
  const GlobalLocale comma(std::locale(std::locale::classic(), new CommaNumbers));
  EXPECT_EQ(whatOf(0.5, 123456), "m, value 1 == 0.5, value 2 == 123456");
}

TEST(OMSException, TheTextStaysInPlaceAsLongAsTheException) {
  const OMSException exception("stable", 1, 2);
  const char* const first = exception.what();
  const std::string other = OMSException("another", 3, 4).what();
  EXPECT_EQ(exception.what(), first);
  EXPECT_STREQ(first, "stable, value 1 == 1, value 2 == 2");
  EXPECT_EQ(other, "another, value 1 == 3, value 2 == 4");
}

TEST(OMSException, DoesNotHoldOnToTheMessageItWasMadeFrom) {
  std::string message = "a message that is longer than a string's own room";
  const OMSException exception(message, 1, 2);
  message.assign(message.size(), 'x');
  EXPECT_EQ(exception.getMessage(), "a message that is longer than a string's own room");
}

TEST(OMSException, ACopyOutlivesTheOriginal) {
  auto original = std::make_unique<OMSException>("A::B() -- c", 5, 6);
  const OMSException copy(*original);
  original.reset();
  EXPECT_EQ(copy.getMessage(), "A::B() -- c");
  EXPECT_EQ(copy.getValue1(), 5.0);
  EXPECT_EQ(copy.getValue2(), 6.0);
  EXPECT_STREQ(copy.what(), "A::B() -- c, value 1 == 5, value 2 == 6");
}

TEST(OMSException, IsThrownByValueAndCaughtAsTheStandardException) {
  std::string caught;
  try {
    throw OMSException("A::B() -- c", 1, 0);
  } catch (const std::exception& exception) {
    caught = exception.what();
  }
  EXPECT_EQ(caught, "A::B() -- c, value 1 == 1, value 2 == 0");
}

TEST(OMSException, IsFoundAgainBehindTheStandardException) {
  const OMSException exception("A::B() -- c", 1, 2);
  const std::exception& base = exception;
  const auto* const found = dynamic_cast<const OMSException*>(&base);
  ASSERT_NE(found, nullptr);
  EXPECT_EQ(found->getValue2(), 2.0);
}

}  // namespace
}  // namespace om::test
