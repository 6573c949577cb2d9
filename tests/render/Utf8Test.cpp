// What is UTF-8, and what is made of what is not.

#include "render/internal/Utf8.h"

#include <gtest/gtest.h>

#include <string>

namespace om::test {
namespace {

using render::internal::isUtf8;
using render::internal::sequenceLength;
using render::internal::toUtf8;
using render::internal::validUtf8;

const std::string kLost = "\xEF\xBF\xBD";

TEST(Utf8, SequencesHaveOneToFourBytes) {
  EXPECT_EQ(sequenceLength("a"), 1U);
  EXPECT_EQ(sequenceLength(std::string(1, '\0')), 1U);
  EXPECT_EQ(sequenceLength("\x7F"), 1U);
  EXPECT_EQ(sequenceLength("\xC2\x80"), 2U);
  EXPECT_EQ(sequenceLength("\xDF\xBF"), 2U);
  EXPECT_EQ(sequenceLength("\xE0\xA0\x80"), 3U);
  EXPECT_EQ(sequenceLength("\xEF\xBF\xBF"), 3U);
  EXPECT_EQ(sequenceLength("\xF0\x90\x80\x80"), 4U);
  EXPECT_EQ(sequenceLength("\xF4\x8F\xBF\xBF"), 4U);  // U+10FFFF
}

TEST(Utf8, OnlyTheFirstSequenceCounts) { EXPECT_EQ(sequenceLength("\xC3\xA9\xFF"), 2U); }

TEST(Utf8, NothingIsNoSequence) { EXPECT_EQ(sequenceLength(""), 0U); }

TEST(Utf8, LoneBytesAreNoSequence) {
  for (const char* const bytes :
       {"\x80", "\xBF", "\xC3", "\xE2\x82", "\xF0\x9F\x98", "\xFE", "\xFF"}) {
    EXPECT_EQ(sequenceLength(bytes), 0U);
  }
}

TEST(Utf8, LongerFormsThanNeededAreNoSequence) {
  for (const char* const bytes : {"\xC0\xAF", "\xC1\xBF", "\xE0\x9F\xBF", "\xF0\x8F\xBF\xBF"}) {
    EXPECT_EQ(sequenceLength(bytes), 0U);
  }
}

TEST(Utf8, SurrogatesAndWhatIsBeyondTheLastCodePointAreNoSequence) {
  EXPECT_EQ(sequenceLength("\xED\x9F\xBF"), 3U);  // U+D7FF
  EXPECT_EQ(sequenceLength("\xED\xA0\x80"), 0U);
  EXPECT_EQ(sequenceLength("\xED\xBF\xBF"), 0U);
  EXPECT_EQ(sequenceLength("\xEE\x80\x80"), 3U);  // U+E000
  EXPECT_EQ(sequenceLength("\xF4\x90\x80\x80"), 0U);
  EXPECT_EQ(sequenceLength("\xF5\x80\x80\x80"), 0U);
}

TEST(Utf8, ASequenceThatIsCutOffOrBrokenIsNone) {
  EXPECT_EQ(sequenceLength("\xC3"
                           "a"),
            0U);
  EXPECT_EQ(sequenceLength("\xE2\x82"
                           "a"),
            0U);
  EXPECT_EQ(sequenceLength("\xF0\x9F\x98"
                           "a"),
            0U);
}

TEST(Utf8, ATextIsUtf8WhenAllOfItIs) {
  EXPECT_TRUE(isUtf8(""));
  EXPECT_TRUE(isUtf8("na\xC3\xAFve \xF0\x9F\x98\x80"));
  EXPECT_FALSE(isUtf8("na\xEFve"));
  EXPECT_FALSE(isUtf8("a\xC3"));
}

TEST(Utf8, ValidTextStaysAsItIs) {
  const std::string text("a\0\xC3\xA9\xE6\xBC\xA2", 7);
  EXPECT_EQ(validUtf8(text), text);
  EXPECT_EQ(validUtf8(""), "");
}

TEST(Utf8, EachByteOfNoSequenceIsReplaced) {
  EXPECT_EQ(validUtf8("a\xFF"
                      "b"),
            "a" + kLost + "b");
  EXPECT_EQ(validUtf8("\xED\xA0\x80"), kLost + kLost + kLost);
  EXPECT_EQ(validUtf8("\xC3\x28"), kLost + "(");
  EXPECT_EQ(validUtf8("\xE2\x82"), kLost + kLost);
  EXPECT_EQ(validUtf8("\xC3\xC3\xA9"), kLost + "\xC3\xA9");
}

TEST(Utf8, TextInACodePageIsConverted) {
  EXPECT_EQ(toUtf8("na\xEFve", "windows-1252"), "na\xC3\xAFve");
  EXPECT_EQ(toUtf8("\x93\x80\x94", "windows-1252"), "\xE2\x80\x9C\xE2\x82\xAC\xE2\x80\x9D");
  EXPECT_EQ(toUtf8("\x83\x65", "Shift_JIS"), "\xE3\x83\x86");  // katakana te
}

TEST(Utf8, LongTextInACodePageIsConvertedWhole) {
  std::string expected;
  for (int i = 0; i < 5000; ++i) expected += "\xC3\xAF";
  EXPECT_EQ(toUtf8(std::string(5000, '\xEF'), "windows-1252"), expected);
}

TEST(Utf8, TextThatIsUtf8AlreadyIsNotConverted) {
  EXPECT_EQ(toUtf8("na\xC3\xAFve", "windows-1252"), "na\xC3\xAFve");
}

TEST(Utf8, WhatIsNotOfTheCodePageIsReplaced) {
  EXPECT_EQ(toUtf8("a\x81", "windows-1252"), "a" + kLost);  // 0x81 is no character there
  EXPECT_EQ(toUtf8("a\x83", "Shift_JIS"), "a" + kLost);     // half a character
}

TEST(Utf8, WithoutAKnownCodePageEachByteIsReplaced) {
  EXPECT_EQ(toUtf8("a\xEF", "no such code page"), "a" + kLost);
  EXPECT_EQ(toUtf8("a\xEF", ""), "a" + kLost);
}

}  // namespace
}  // namespace om::test
