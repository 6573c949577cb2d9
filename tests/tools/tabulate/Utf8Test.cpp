// What counts as UTF-8.

#include "tools/tabulate/Utf8.h"

#include <gtest/gtest.h>

#include <string>

namespace om::test {
namespace {

using namespace std::string_view_literals;
using tabulate::utf8::isBeginning;
using tabulate::utf8::sequenceLength;
using tabulate::utf8::validPrefix;

TEST(Utf8, CharactersTakeOneToFourBytes) {
  EXPECT_EQ(1U, sequenceLength("a"));
  EXPECT_EQ(1U, sequenceLength("\0"sv));
  EXPECT_EQ(2U, sequenceLength("\u00e9x"));
  EXPECT_EQ(3U, sequenceLength("\u20ac"));
  EXPECT_EQ(4U, sequenceLength("\U0001f427"));
}

TEST(Utf8, TheEndsOfEachLengthAreCharacters) {
  for (const char* text : {"\xc2\x80", "\xdf\xbf", "\xe0\xa0\x80", "\xed\x9f\xbf", "\xee\x80\x80",
                           "\xef\xbf\xbf", "\xf0\x90\x80\x80", "\xf4\x8f\xbf\xbf"}) {
    EXPECT_EQ(std::string_view(text).size(), sequenceLength(text)) << text;
  }
}

TEST(Utf8, OverlongFormsSurrogatesAndWhatIsBeyondTheEndAreNone) {
  for (const char* text :
       {"\x80", "\xbf", "\xc0\x80", "\xc1\xbf", "\xe0\x9f\xbf", "\xed\xa0\x80", "\xf0\x8f\xbf\xbf",
        "\xf4\x90\x80\x80", "\xf5\x80\x80\x80", "\xff", "\xc3(", "\xe2\x82("}) {
    EXPECT_EQ(0U, sequenceLength(text)) << text;
  }
}

TEST(Utf8, PrefixEndsInFrontOfTheFirstWrongByteWhereverItIs) {
  for (std::size_t at = 0; at < 200; ++at) {
    std::string text(200, 'x');
    EXPECT_EQ(200U, validPrefix(text));
    text[at] = '\xff';
    EXPECT_EQ(at, validPrefix(text));
  }
}

TEST(Utf8, PrefixGoesOverCharactersThatLieAcrossItsStride) {
  for (std::size_t before = 0; before < 130; ++before) {
    const std::string text = std::string(before, 'x') + "\U0001f427\u20ac" + std::string(80, 'y');
    EXPECT_EQ(text.size(), validPrefix(text));
    EXPECT_EQ(before, validPrefix(text.substr(0, before + 3)));
  }
}

TEST(Utf8, BeginningIsACharacterThatIsCutOff) {
  EXPECT_TRUE(isBeginning("\xc3"));
  EXPECT_TRUE(isBeginning("\xf0\x9f\x90"));
  EXPECT_FALSE(isBeginning(""));
  EXPECT_FALSE(isBeginning("a"));
  EXPECT_FALSE(isBeginning("\xc3\xa9"));
  EXPECT_FALSE(isBeginning("\xff"));
  EXPECT_FALSE(isBeginning("\xe0\x80"));
}

}  // namespace
}  // namespace om::test
