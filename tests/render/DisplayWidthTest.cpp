// How many columns of a terminal texts take, and where their characters end.

#include "render/internal/DisplayWidth.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace om::test {
namespace {

using render::internal::displayWidth;
using render::internal::firstCluster;
using render::internal::isPlainAscii;

// The text is one cluster of this width.
testing::AssertionResult isOneOf(std::string_view text, std::size_t width) {
  const auto cluster = firstCluster(text);
  if (cluster.bytes == text.size() && cluster.width == width) return testing::AssertionSuccess();
  return testing::AssertionFailure() << text << ": the first cluster has " << cluster.bytes
                                     << " bytes and width " << cluster.width;
}

TEST(DisplayWidth, ACharacterOfAsciiTakesOneColumn) {
  EXPECT_TRUE(isOneOf("a", 1));
  EXPECT_TRUE(isOneOf(" ", 1));
  EXPECT_EQ(displayWidth("12,345.6%"), 9U);
  EXPECT_EQ(displayWidth(""), 0U);
}

TEST(DisplayWidth, ALetterOfAnotherAlphabetTakesOneColumn) {
  EXPECT_TRUE(isOneOf("é", 1));
  EXPECT_TRUE(isOneOf("Ж", 1));
  EXPECT_EQ(displayWidth("שלום"), 4U);
  EXPECT_EQ(displayWidth("‡§"), 2U);
}

TEST(DisplayWidth, CombiningMarksTakeNoColumnOfTheirOwn) {
  EXPECT_TRUE(isOneOf("e\u0301", 1));
  EXPECT_TRUE(isOneOf("o\u0302\u0323\u0301", 1));
  EXPECT_EQ(displayWidth("e\u0301e\u0301"), 2U);
}

TEST(DisplayWidth, IdeographsAndFullwidthFormsTakeTwoColumns) {
  EXPECT_TRUE(isOneOf("漢", 2));
  EXPECT_TRUE(isOneOf("カ", 2));
  EXPECT_TRUE(isOneOf("Ａ", 2));
  EXPECT_TRUE(isOneOf("　", 2));  // the ideographic space
  EXPECT_TRUE(isOneOf("ｶ", 1));   // a halfwidth form
  EXPECT_EQ(displayWidth("漢字a"), 5U);
}

TEST(DisplayWidth, AHangulSyllableFromItsLettersTakesTwoColumns) {
  EXPECT_TRUE(isOneOf("\u1112\u1161\u11AB", 2));
  EXPECT_TRUE(isOneOf("한", 2));
}

TEST(DisplayWidth, AnEmojiTakesTwoColumns) {
  EXPECT_TRUE(isOneOf("😀", 2));
  EXPECT_TRUE(isOneOf("👍\U0001F3FD", 2));  // with a skin tone
  EXPECT_TRUE(isOneOf("☝\U0001F3FD", 2));  // on a narrow base
}

TEST(DisplayWidth, EmojiThatAreJoinedTakeTwoColumnsTogether) {
  EXPECT_TRUE(isOneOf("👩\u200D🚀", 2));
  EXPECT_TRUE(isOneOf("👨\u200D👩\u200D👧\u200D👦", 2));
  EXPECT_TRUE(isOneOf("🏳\uFE0F\u200D🌈", 2));
}

TEST(DisplayWidth, FlagsArePairsOfLetters) {
  EXPECT_TRUE(isOneOf("\U0001F1E9\U0001F1EA", 2));
  EXPECT_EQ(displayWidth("\U0001F1E9\U0001F1EA\U0001F1EB\U0001F1F7"), 4U);
  // A third letter stands alone.
  EXPECT_EQ(firstCluster("\U0001F1E9\U0001F1EA\U0001F1EB").bytes, 8U);
  // A flag of a region of a country: a black flag and invisible tags.
  EXPECT_TRUE(isOneOf("🏴\U000E0067\U000E0062\U000E0073\U000E0063\U000E0074\U000E007F", 2));
}

TEST(DisplayWidth, TheEmojiSelectorMakesAPictographWide) {
  EXPECT_TRUE(isOneOf("❤", 1));
  EXPECT_TRUE(isOneOf("❤\uFE0F", 2));
  EXPECT_TRUE(isOneOf("1\uFE0F\u20E3", 2));  // a key
}

TEST(DisplayWidth, TheTextSelectorLeavesTheWidthOfItsBase) {
  EXPECT_TRUE(isOneOf("❤\uFE0E", 1));
  EXPECT_TRUE(isOneOf("⌚\uFE0E", 2));  // wide of its own
}

TEST(DisplayWidth, ASelectorBehindALetterChangesNothing) {
  EXPECT_TRUE(isOneOf("a\uFE0F", 1));
  EXPECT_TRUE(isOneOf("漢\U000E0100", 2));  // a form of an ideograph
}

TEST(DisplayWidth, InvisibleCharactersTakeNoColumn) {
  EXPECT_EQ(displayWidth("\u200B"), 0U);
  EXPECT_EQ(displayWidth("a\u2060b"), 2U);
  EXPECT_EQ(displayWidth("\u0301"), 0U);  // a mark without a base
}

TEST(DisplayWidth, CharactersThatAreNotAssignedTakeWhatTheirNeighboursTake) {
  EXPECT_TRUE(isOneOf("\u0378", 1));
  EXPECT_TRUE(isOneOf("\U0001FAFF", 2));
  EXPECT_TRUE(isOneOf("\U0002FFF0", 2));
}

TEST(DisplayWidth, PlainAsciiHasNoControls) {
  EXPECT_TRUE(isPlainAscii(""));
  EXPECT_TRUE(isPlainAscii(" ~"));
  EXPECT_FALSE(isPlainAscii("\x1F"));
  EXPECT_FALSE(isPlainAscii("\x7F"));
  EXPECT_FALSE(isPlainAscii("é"));
  EXPECT_FALSE(isPlainAscii(std::string_view("\0", 1)));
}

TEST(DisplayWidth, AClusterOfAMillionMarksIsOne) {
  std::string text = "a";
  for (int i = 0; i < 1'000'000; ++i) text += "\u0301";
  EXPECT_EQ(firstCluster(text).bytes, text.size());
  EXPECT_EQ(displayWidth(text), 1U);
}

}  // namespace
}  // namespace om::test
