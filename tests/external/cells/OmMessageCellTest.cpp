// Patterns that are filled with further texts.

#include "external/cells/OmMessageCell.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <memory>
#include <string>

#include "external/cells/OmMemoryRegion.h"
#include "external/cells/OmNumber.h"
#include "external/cells/OmStringCell.h"
#include "external/platform/icuTracker.h"
#include "tests/support/Counted.h"

namespace om::test {
namespace {

std::string filled(const std::string& pattern, std::initializer_list<const char*> arguments) {
  OmMessageCell message{OmStringCell(pattern)};
  for (const char* const argument : arguments) message.Append(OmStringCell(argument));
  return message;
}

TEST(OmMessageCell, FillsItsArgumentsInByTheirNumbers) {
  EXPECT_EQ(filled("{0} of {1}", {"2", "5"}), "2 of 5");
  EXPECT_EQ(filled("{1} of {0}", {"2", "5"}), "5 of 2");
  EXPECT_EQ(filled("{0}{0}-{1}", {"ab", ""}), "abab-");
}

TEST(OmMessageCell, NumbersHaveAnyNumberOfDigits) {
  EXPECT_EQ(filled("{10}/{9}", {"a", "b", "c", "d", "e", "f", "g", "h", "i", "j", "k"}), "k/j");
}

TEST(OmMessageCell, IsItsPatternWithoutNumbers) {
  EXPECT_EQ(filled("nothing to fill", {"x"}), "nothing to fill");
  EXPECT_EQ(filled("", {"x"}), "");
}

TEST(OmMessageCell, ANumberBeyondTheArgumentsStaysAsWritten) {
  EXPECT_EQ(filled("{7}", {"a"}), "{7}");
  EXPECT_EQ(filled("{0} of {1}", {"a"}), "a of {1}");
  EXPECT_EQ(filled("{0}", {}), "{0}");
}

TEST(OmMessageCell, AHugeNumberStaysAsWritten) {
  for (const char* const pattern :
       {"{4294967296}", "{18446744073709551615}", "{18446744073709551616}",
        "{99999999999999999999999999999999999999}"}) {
    EXPECT_EQ(filled(pattern, {"a", "b"}), pattern);
  }
}

TEST(OmMessageCell, AnyOtherBraceStaysAsWritten) {
  for (const char* const pattern : {"{", "}", "{}", "{x}", "{0", "{0 }", "{ 0}", "{-0}", "{+0}",
                                    "{0x0}", "a } b { c", "{{}}", "text {", "0}", "{0{"}) {
    EXPECT_EQ(filled(pattern, {"a"}), pattern);
  }
}

TEST(OmMessageCell, ABraceBeforeAFilledPlaceStaysAsWritten) {
  EXPECT_EQ(filled("{{0}}", {"a"}), "{a}");
  EXPECT_EQ(filled("{0{0}", {"a"}), "{0a");
  EXPECT_EQ(filled("{x{0}", {"a"}), "{xa");
}

TEST(OmMessageCell, WhatIsFilledInIsNoPattern) {
  EXPECT_EQ(filled("{0} {1}", {"{1}", "b"}), "{1} b");
  EXPECT_EQ(filled("{0}0}", {"{"}), "{0}");
}

TEST(OmMessageCell, KeepsBytesOfValueZero) {
  OmMessageCell message{OmStringCell(std::string("\0{0}\0", 5))};
  message.Append(OmStringCell(std::string("x\0", 2)));
  EXPECT_EQ(std::string(message), std::string("\0x\0\0", 4));
  EXPECT_EQ(message.Size(), 4U);
}

TEST(OmMessageCell, TakesArgumentsOfAnyKind) {
  OmMessageCell inner{OmStringCell("({0})")};
  inner.Append(OmNumber(12.5, {1, true, false}));
  OmMessageCell outer{OmStringCell("share {0}")};
  outer.Append(inner);
  EXPECT_EQ(std::string(outer), "share (12.5%)");
}

TEST(OmMessageCell, MayHaveAMessageForItsPattern) {
  OmMessageCell pattern{OmStringCell("{0}{1}")};
  pattern.Append(OmStringCell("{"));
  pattern.Append(OmStringCell("0}"));
  OmMessageCell message(static_cast<const OmCellText&>(pattern));
  message.Append(OmStringCell("filled"));
  EXPECT_EQ(std::string(message), "filled");
}

TEST(OmMessageCell, GivesPatternAndArgumentsBack) {
  OmMessageCell message{OmStringCell("{0}{1}")};
  message.Append(OmStringCell("a"));
  message.Append(OmNumber(2));
  EXPECT_EQ(std::string(message.Pattern()), "{0}{1}");
  ASSERT_EQ(message.Arguments().size(), 2U);
  EXPECT_EQ(std::string(*message.Arguments()[0]), "a");
  EXPECT_EQ(message.Arguments()[1]->Kind(), OmCellText::NUMBER);
}

TEST(OmMessageCell, TakesItselfAsAnArgument) {
  OmMessageCell message{OmStringCell("<{0}>")};
  message.Append(message);
  EXPECT_EQ(std::string(message), "<<{0}>>");
}

TEST(OmMessageCell, OwnsClonesInItsRegion) {
  OmMemoryRegion region(false);
  {
    OmMessageCell message(OmStringCell("{0} and {1}"), &region);
    message.Append(OmStringCell("one"));
    message.Append(OmStringCell("another one"));
    EXPECT_EQ(region.BlocksInUse(), 3U);
  }
  EXPECT_EQ(region.BlocksInUse(), 0U);
}

TEST(OmMessageCell, ClonesEveryTextInside) {
  OmMemoryRegion region(false);
  auto message = std::make_unique<OmMessageCell>(CountedText("{0}{1}"));
  message->Append(CountedText("a"));
  message->Append(CountedText("b"));
  EXPECT_EQ(CountedText::live(), 3);
  const std::unique_ptr<OmMessageCell> clone(message->Clone(&region));
  EXPECT_EQ(CountedText::live(), 6);
  EXPECT_EQ(region.BlocksInUse(), 4U);
  message.reset();
  EXPECT_EQ(CountedText::live(), 3);
  EXPECT_EQ(std::string(*clone), "ab");
}

TEST(OmMessageCell, ATextAppendedToACloneStandsInTheRegionOfTheClone) {
  OmMemoryRegion region(false);
  const OmMessageCell message{OmStringCell("{0}")};
  const std::unique_ptr<OmMessageCell> clone(message.Clone(&region));
  const std::size_t before = region.BlocksInUse();
  clone->Append(OmStringCell("a"));
  EXPECT_EQ(region.BlocksInUse(), before + 1);
  EXPECT_TRUE(message.Arguments().empty());
}

TEST(OmMessageCell, TheTextsInsideKeepTheirOwnTrackers) {
  icuTracker outer({true, "outer"});
  icuTracker inner({true, "inner"});
  OmStringCell argument("a");
  argument.setTracker(&inner);
  OmMessageCell message{OmStringCell("{0}")};
  message.Append(argument);
  message.setTracker(&outer);
  EXPECT_EQ(message.Pattern().getTracker(), nullptr);
  EXPECT_EQ(message.Arguments()[0]->getTracker(), &inner);
  const std::unique_ptr<OmMessageCell> clone(message.Clone(nullptr));
  EXPECT_EQ(clone->getTracker(), &outer);
  EXPECT_EQ(clone->Arguments()[0]->getTracker(), &inner);
}

}  // namespace
}  // namespace om::test
