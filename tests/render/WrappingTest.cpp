// Texts broken into lines.

#include "render/internal/Wrapping.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "render/internal/DisplayWidth.h"

namespace om::test {
namespace {

using render::internal::LineWidth;
using render::internal::TextLine;
using render::internal::widthOfLines;
using render::internal::widthOfWords;

// The lines between bars, each behind its indent.
std::string wrapped(std::string_view text, const LineWidth& within) {
  std::vector<TextLine> lines;
  render::internal::wrap(text, within, lines);
  std::string result = "|";
  for (const TextLine& line : lines) {
    EXPECT_EQ(line.width, render::internal::displayWidth(line.text)) << line.text;
    result += std::string(line.indent, ' ') + std::string(line.text) + "|";
  }
  return result;
}
std::string wrapped(std::string_view text, std::size_t width) {
  return wrapped(text, LineWidth{width});
}

TEST(Wrapping, ATextThatFitsIsOneLine) {
  EXPECT_EQ(wrapped("two words", 9), "|two words|");
  EXPECT_EQ(wrapped("", 9), "||");
}

TEST(Wrapping, LinesEndAtBlanks) {
  EXPECT_EQ(wrapped("one two three", 7), "|one two|three|");
  EXPECT_EQ(wrapped("one two three", 8), "|one two|three|");
  EXPECT_EQ(wrapped("one two three", 5), "|one|two|three|");
}

TEST(Wrapping, BlanksAtTheEndOfALineAreDropped) {
  EXPECT_EQ(wrapped("one    two", 5), "|one|two|");
  EXPECT_EQ(wrapped("one two    ", 5), "|one|two|");
}

TEST(Wrapping, BlanksWithinALineAndInFrontOfTheTextStay) {
  EXPECT_EQ(wrapped("a  b cc", 4), "|a  b|cc|");
  EXPECT_EQ(wrapped("  a bb", 4), "|  a|bb|");
}

TEST(Wrapping, AWordThatIsLongerThanALineIsBroken) {
  EXPECT_EQ(wrapped("abcdefgh", 3), "|abc|def|gh|");
  EXPECT_EQ(wrapped("a bcdefg", 3), "|a|bcd|efg|");
}

TEST(Wrapping, ALineMayEndBehindAHyphen) {
  EXPECT_EQ(wrapped("well-known", 6), "|well-|known|");
  EXPECT_EQ(wrapped("a--b", 3), "|a--|b|");
}

TEST(Wrapping, AHyphenInFrontOfAWordStaysWithIt) {
  EXPECT_EQ(wrapped("a -1", 3), "|a|-1|");
  EXPECT_EQ(wrapped("ab --cd-ef", 6), "|ab|--cd-|ef|");
  EXPECT_EQ(widthOfWords("ab --cd-ef"), 5U);
}

TEST(Wrapping, ANoBreakSpaceHoldsWordsTogether) {
  EXPECT_EQ(wrapped("a b\u00A0c", 4), "|a|b\u00A0c|");
}

TEST(Wrapping, LinesMayEndBesideIdeographs) {
  EXPECT_EQ(wrapped("漢字漢字", 4), "|漢字|漢字|");
  EXPECT_EQ(wrapped("漢字漢字", 5), "|漢字|漢字|");
  EXPECT_EQ(wrapped("ab漢cd", 3), "|ab|漢|cd|");
  EXPECT_EQ(wrapped("ab 漢", 3), "|ab|漢|");
}

TEST(Wrapping, ClustersAreNotBroken) {
  EXPECT_EQ(wrapped("e\u0301e\u0301e\u0301", 2), "|e\u0301e\u0301|e\u0301|");
  EXPECT_EQ(wrapped("👩\u200D🚀👩\u200D🚀", 3), "|👩\u200D🚀|👩\u200D🚀|");
}

TEST(Wrapping, AClusterThatIsWiderThanALineHasOneOfItsOwn) {
  EXPECT_EQ(wrapped("漢字", 1), "|漢|字|");
}

TEST(Wrapping, ALineFeedEndsALine) {
  EXPECT_EQ(wrapped("a\nb c\n", 9), "|a|b c||");
  EXPECT_EQ(wrapped("one two\nthree", 4), "|one|two|thre|e|");
}

TEST(Wrapping, FurtherLinesMayBeIndented) {
  EXPECT_EQ(wrapped("one two three", {7, 2}), "|one two|  three|");
  EXPECT_EQ(wrapped("abcdefgh", {4, 2}), "|abcd|  ef|  gh|");
}

TEST(Wrapping, ATextOfBlanksIsAnEmptyLine) { EXPECT_EQ(wrapped("     ", 3), "||"); }

TEST(Wrapping, AMillionWordsTakeLinearTime) {
  std::string text;
  for (int i = 0; i < 1'000'000; ++i) text += "ab ";
  std::vector<TextLine> lines;
  render::internal::wrap(text, {5}, lines);
  EXPECT_EQ(lines.size(), 500'000U);
}

TEST(Wrapping, TheWidthOfLinesIsThatOfTheWidest) {
  EXPECT_EQ(widthOfLines("one\nfour\n漢"), 4U);
  EXPECT_EQ(widthOfLines(""), 0U);
}

TEST(Wrapping, TheWidthOfWordsIsThatOfTheWidestPartThatStaysTogether) {
  EXPECT_EQ(widthOfWords("one three two"), 5U);
  EXPECT_EQ(widthOfWords("one-three"), 5U);
  EXPECT_EQ(widthOfWords("漢字 abc"), 3U);
  EXPECT_EQ(widthOfWords("one\nthree"), 5U);
  EXPECT_EQ(widthOfWords(""), 0U);
}

}  // namespace
}  // namespace om::test
