// A format of a table's area: its defaults, and that each attribute is kept for itself.

#include <gtest/gtest.h>

#include <climits>
#include <string>
#include <type_traits>
#include <vector>

#include "pivot/FormatArea.h"
#include "pivot/OmPivotTable.h"
#include "tests/support/Allocations.h"

namespace om::test {
namespace {

static_assert(std::is_same_v<OmPivotTable::FormatArea, FormatArea>);
static_assert(sizeof(FormatArea::Area) == 4);
static_assert(sizeof(FormatArea) == sizeof(void*));

struct Number {
  const char* name;
  int (FormatArea::*get)() const;
  void (FormatArea::*set)(int);
  int fromTheStart;
};

struct Flag {
  const char* name;
  bool (FormatArea::*get)() const;
  void (FormatArea::*set)(bool);
};

struct String {
  const char* name;
  const std::string& (FormatArea::*get)() const;
  void (FormatArea::*set)(const std::string&);
};

constexpr Number kNumbers[] = {
    {"FontStyle", &FormatArea::getFontStyle, &FormatArea::setFontStyle, -1},
    {"MarginLeft", &FormatArea::getMarginLeft, &FormatArea::setMarginLeft, 6},
    {"MarginRight", &FormatArea::getMarginRight, &FormatArea::setMarginRight, 2},
    {"MarginTop", &FormatArea::getMarginTop, &FormatArea::setMarginTop, 2},
    {"MarginBottom", &FormatArea::getMarginBottom, &FormatArea::setMarginBottom, 2},
    {"HorizontalAlignment", &FormatArea::getHorizontalAlignment,
     &FormatArea::setHorizontalAlignment, -1},
    {"VerticalAlignment", &FormatArea::getVerticalAlignment, &FormatArea::setVerticalAlignment, -1},
};

constexpr Flag kFlags[] = {
    {"Underline", &FormatArea::getUnderline, &FormatArea::setUnderline},
    {"UseAltRowColors", &FormatArea::getUseAltRowColors, &FormatArea::setUseAltRowColors},
};

constexpr String kStrings[] = {
    {"FontName", &FormatArea::getFontName, &FormatArea::setFontName},
    {"TextColor", &FormatArea::getTextColor, &FormatArea::setTextColor},
    {"BackgroundColor", &FormatArea::getBackgroundColor, &FormatArea::setBackgroundColor},
    {"AlternateTextColor", &FormatArea::getAlternateTextColor, &FormatArea::setAlternateTextColor},
    {"AlternateBackgroundColor", &FormatArea::getAlternateBackgroundColor,
     &FormatArea::setAlternateBackgroundColor},
};

// The names of the attributes that differ from those of a new format, each with a blank.
std::string changed(const FormatArea& format) {
  std::string names;
  const auto add = [&names](const char* name, bool isChanged) {
    if (isChanged) names += std::string(name) + ' ';
  };
  for (const Number& number : kNumbers) {
    add(number.name, (format.*number.get)() != number.fromTheStart);
  }
  for (const Flag& flag : kFlags) add(flag.name, (format.*flag.get)());
  for (const String& string : kStrings) add(string.name, !(format.*string.get)().empty());
  add("FontSize", format.getFontSize() != 0.0F);
  add("Area", format.getArea() != FormatArea::DATA);
  return names;
}

TEST(FormatAreaAttributes, OfANewFormatHaveTheirDefaults) {
  EXPECT_EQ(changed(FormatArea(FormatArea::DATA)), "");
}

TEST(FormatAreaAttributes, TheLeftMarginIsWiderThanTheOthers) {
  const FormatArea format(FormatArea::TITLE);
  EXPECT_EQ(format.getMarginLeft(), 6);
  EXPECT_EQ(format.getMarginRight(), 2);
  EXPECT_EQ(format.getMarginTop(), 2);
  EXPECT_EQ(format.getMarginBottom(), 2);
}

TEST(FormatAreaAttributes, TheAreaIsTheOneGiven) {
  for (const int area : {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, -1, INT_MAX, INT_MIN}) {
    EXPECT_EQ(FormatArea(static_cast<FormatArea::Area>(area)).getArea(), area);
  }
}

TEST(FormatAreaAttributes, NumbersAreKeptEachForItself) {
  for (const Number& number : kNumbers) {
    FormatArea format(FormatArea::DATA);
    for (const int value : {0, -7, INT_MIN, INT_MAX}) {
      (format.*number.set)(value);
      EXPECT_EQ((format.*number.get)(), value) << number.name;
    }
    EXPECT_EQ(changed(format), std::string(number.name) + ' ');
  }
}

TEST(FormatAreaAttributes, FlagsAreKeptEachForItself) {
  for (const Flag& flag : kFlags) {
    FormatArea format(FormatArea::DATA);
    (format.*flag.set)(true);
    EXPECT_TRUE((format.*flag.get)()) << flag.name;
    EXPECT_EQ(changed(format), std::string(flag.name) + ' ');
    (format.*flag.set)(false);
    EXPECT_EQ(changed(format), "") << flag.name;
  }
}

TEST(FormatAreaAttributes, StringsAreKeptEachForItself) {
  for (const String& string : kStrings) {
    FormatArea format(FormatArea::DATA);
    (format.*string.set)("not a colour, and not the name of a font either");
    EXPECT_EQ((format.*string.get)(), "not a colour, and not the name of a font either");
    EXPECT_EQ(changed(format), std::string(string.name) + ' ');
    (format.*string.set)("");
    EXPECT_EQ(changed(format), "") << string.name;
  }
}

TEST(FormatAreaAttributes, AStringIsGivenByReference) {
  FormatArea format(FormatArea::DATA);
  for (const String& string : kStrings) {
    const std::string& given = (format.*string.get)();
    (format.*string.set)("later");
    EXPECT_EQ(given, "later") << string.name;
  }
}

TEST(FormatAreaAttributes, AStringCanBeSetToItself) {
  FormatArea format(FormatArea::DATA);
  format.setFontName("a font with a name that is rather long");
  format.setFontName(format.getFontName());
  EXPECT_EQ(format.getFontName(), "a font with a name that is rather long");
}

TEST(FormatAreaAttributes, TheFontSizeIsKept) {
  FormatArea format(FormatArea::DATA);
  EXPECT_EQ(format.getFontSize(), 0.0F);
  format.setFontSize(10.5F);
  EXPECT_EQ(format.getFontSize(), 10.5F);
  EXPECT_EQ(changed(format), "FontSize ");
}

TEST(FormatAreaAttributes, AreReleasedWithTheFormat) {
  const std::size_t before = liveNewBlocks();
  {
    FormatArea format(FormatArea::DATA);
    for (const String& string : kStrings) {
      (format.*string.set)("a text that is too long for the string itself");
    }
    EXPECT_GT(liveNewBlocks(), before);
  }
  EXPECT_EQ(liveNewBlocks(), before);
}

TEST(FormatAreaAttributes, AFormatThatCannotBeMadeLeavesNothing) {
  EXPECT_GE(failEveryAllocation([](FailurePoint& point) {
              FormatArea* format = nullptr;
              const bool completed =
                  point.during([&format] { format = new FormatArea(FormatArea::CORNER); });
              EXPECT_EQ(format != nullptr, completed);
              delete format;
            }),
            2U);
}

TEST(FormatAreaAttributes, AStringThatCannotBeCopiedLeavesTheOldOne) {
  const std::string text = "a text that is too long for the string itself";
  for (const String& string : kStrings) {
    EXPECT_GE(failEveryAllocation([&](FailurePoint& point) {
                FormatArea format(FormatArea::DATA);
                (format.*string.set)("old");
                const bool completed = point.during([&] { (format.*string.set)(text); });
                EXPECT_EQ((format.*string.get)(), completed ? text : "old");
              }),
              1U)
        << string.name;
  }
}

}  // namespace
}  // namespace om::test
