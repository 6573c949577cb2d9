// What a cell says: its characters, and the number in it.

#include "render/internal/CellText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "external/cells/OmComposite.h"
#include "external/cells/OmDateCell.h"
#include "external/cells/OmMessageCell.h"
#include "external/cells/OmValueCell.h"

namespace om::test {
namespace {

using render::internal::isAllOf;
using render::internal::numberOf;
using render::internal::TextReader;

TEST(NumberOfCell, ANumberIsItsOwn) {
  const OmNumber number(1.5);
  EXPECT_EQ(numberOf(&number), &number);
  EXPECT_TRUE(isAllOf(number, number));
}

TEST(NumberOfCell, NothingHasNone) { EXPECT_EQ(numberOf(nullptr), nullptr); }

TEST(NumberOfCell, WhatIsNotFiniteIsNone) {
  const double infinity = std::numeric_limits<double>::infinity();
  for (const double value : {std::nan(""), infinity, -infinity}) {
    const OmNumber number(value);
    EXPECT_EQ(numberOf(&number), nullptr) << value;
  }
}

TEST(NumberOfCell, AStringOfDigitsIsNone) {
  const OmStringCell text("12");
  EXPECT_EQ(numberOf(&text), nullptr);
}

TEST(NumberOfCell, AValueAndADateHaveNone) {
  const OmValueCell value("2", "Male");
  EXPECT_EQ(numberOf(&value), nullptr);
  const OmDateCell date({.year = 2026});
  EXPECT_EQ(numberOf(&date), nullptr);
}

TEST(NumberOfCell, TheFirstNumberOfACompositeIsNotAllOfIt) {
  OmComposite composite;
  composite.Append(OmStringCell("mean"));
  composite.Append(OmNumber(2.5));
  composite.Append(OmNumber(0.5), 1);
  const OmNumber* const number = numberOf(&composite);
  ASSERT_NE(number, nullptr);
  EXPECT_EQ(number->Value(), 2.5);
  EXPECT_FALSE(isAllOf(composite, *number));
}

TEST(NumberOfCell, ACompositeOfOneNumberIsAllOfIt) {
  OmComposite composite;
  composite.Append(OmNumber(2.5, {.decimals = 2}));
  ASSERT_NE(numberOf(&composite), nullptr);
  EXPECT_TRUE(isAllOf(composite, *numberOf(&composite)));
}

TEST(NumberOfCell, AMessageThatIsOnlyItsNumberHasThatOne) {
  OmMessageCell message(OmStringCell("{0}"));
  message.Append(OmNumber(7));
  ASSERT_NE(numberOf(&message), nullptr);
  EXPECT_EQ(numberOf(&message)->Value(), 7);
  EXPECT_TRUE(isAllOf(message, *numberOf(&message)));
}

TEST(NumberOfCell, ANumberInASentenceIsNone) {
  OmMessageCell message(OmStringCell("{0} cases"));
  message.Append(OmNumber(7));
  EXPECT_EQ(numberOf(&message), nullptr);
  const OmMessageCell empty(OmStringCell("{0}"));
  EXPECT_EQ(numberOf(&empty), nullptr);
}

TEST(TextReader, GivesTheStringFormOfEveryKind) {
  TextReader read;
  const OmStringCell text(std::string("a\0b", 3));
  EXPECT_EQ(read(&text), std::string("a\0b", 3));
  const OmNumber number(1234.5, {.decimals = 2, .grouping = true});
  EXPECT_EQ(read(&number), "1,234.50");
  EXPECT_EQ(read(nullptr), "");
}

}  // namespace
}  // namespace om::test
