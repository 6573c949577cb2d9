// Conversions that succeed, with the bytes of each code page.

#include "external/platform/MultibyteConverter.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace om::test {
namespace {

std::unique_ptr<MultibyteConverter> converterTo(const std::string& codePage) {
  return std::unique_ptr<MultibyteConverter>(MultibyteConverter::create(codePage));
}

// REQUIRES: the conversion succeeds, or the test fails.
std::string converted(const std::string& codePage, const std::string& utf8) {
  std::string bytes = "untouched";
  EXPECT_EQ(converterTo(codePage)->fromUtf8(utf8, bytes), 0) << codePage;
  return bytes;
}

std::string repeated(const std::string& piece, std::size_t times) {
  std::string text;
  for (std::size_t i = 0; i < times; ++i) text += piece;
  return text;
}

TEST(MultibyteConverter, ConvertsToWindows1252) {
  // u with diaeresis, the euro sign, typographic quotation marks, y with diaeresis
  EXPECT_EQ(converted("windows-1252", "Z\u00FCrich \u20AC5 \u201Cq\u201D \u00FF"),
            "Z\xFCrich \x80"
            "5 \x93q\x94 \xFF");
}

TEST(MultibyteConverter, ConvertsToGreek) {
  // alpha, capital omega, capital alpha with tonos
  EXPECT_EQ(converted("ISO-8859-7", "a\u03B1\u03A9\u0386"), "a\xE1\xD9\xB6");
}

TEST(MultibyteConverter, ConvertsToShiftJis) {
  // two kanji, a hiragana, a half-width katakana, and a kanji whose second byte is a backslash
  EXPECT_EQ(converted("Shift_JIS", "A\u65E5\u672C\u3042\uFF71\u8868"),
            "A\x93\xFA\x96\x7B\x82\xA0\xB1\x95\x5C");
}

TEST(MultibyteConverter, ConvertsToCyrillic) {
  EXPECT_EQ(converted("KOI8-R", "\u043F\u0440\u0438\u0432\u0435\u0442 \u041F"),
            "\xD0\xD2\xC9\xD7\xC5\xD4 \xF0");
}

TEST(MultibyteConverter, ConvertsUtf8ToItself) {
  const std::string text = "a \u00E9 \u65E5 \U0001F600";
  EXPECT_EQ(converted("UTF-8", text), text);
}

TEST(MultibyteConverter, ConvertsToUtf16) {
  EXPECT_EQ(converted("UTF-16LE", "A\u20AC\U0001F600"),
            std::string("A\0\xAC\x20\x3D\xD8\x00\xDE", 8));
}

TEST(MultibyteConverter, ClosesAStatefulTextInItsFirstState) {
  // ESC $ B goes to kanji, ESC ( B back to ASCII.
  EXPECT_EQ(converted("ISO-2022-JP", "A\u65E5\u672C"), "A\x1B$BF|K\\\x1B(B");
  EXPECT_EQ(converted("ISO-2022-JP",
                      "\u65E5"
                      "A"),
            "\x1B$BF|\x1B(BA");
}

TEST(MultibyteConverter, BeginsEveryTextInTheFirstState) {
  const auto converter = converterTo("ISO-2022-JP");
  std::string bytes;
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(converter->fromUtf8("\u65E5", bytes), 0);
    EXPECT_EQ(bytes, "\x1B$BF|\x1B(B");
    EXPECT_EQ(converter->fromUtf8("F|", bytes), 0);
    EXPECT_EQ(bytes, "F|");
  }
}

TEST(MultibyteConverter, AnEmptyTextGivesAnEmptyText) {
  for (const char* const codePage : {"windows-1252", "UTF-8", "ISO-2022-JP"}) {
    EXPECT_EQ(converted(codePage, ""), "");
  }
}

TEST(MultibyteConverter, BytesOfValueZeroEndNoText) {
  EXPECT_EQ(converted("windows-1252", std::string("a\0\xC3\xA9\0", 5)),
            std::string("a\0\xE9\0", 4));
}

TEST(MultibyteConverter, UpperAndLowerCaseOfANameAreTheSame) {
  EXPECT_EQ(converted("WINDOWS-1252", "\u00E9"), "\xE9");
  EXPECT_EQ(converted("koi8-r", "\u043F"), "\xD0");
  EXPECT_EQ(converted("shift_jis", "\u3042"), "\x82\xA0");
  EXPECT_EQ(converted("iso-8859-7", "\u03B1"), "\xE1");
}

TEST(MultibyteConverter, ConvertsLongTextsWhole) {
  for (const std::size_t length : {511U, 512U, 513U, 1024U, 10000U}) {
    EXPECT_EQ(converted("windows-1252", repeated("\u00E9", length)), std::string(length, '\xE9'));
    EXPECT_EQ(converted("UTF-8", std::string(length, 'x')), std::string(length, 'x'));
  }
}

TEST(MultibyteConverter, ConvertsLongTextsOfCharactersWithSeveralBytes) {
  // With an odd beginning every power of two lies within a character.
  EXPECT_EQ(converted("Shift_JIS", "a" + repeated("\u65E5", 3000)),
            "a" + repeated("\x93\xFA", 3000));
  EXPECT_EQ(converted("ISO-2022-JP", repeated("\u65E5"
                                              "a",
                                              1000)),
            repeated("\x1B$BF|\x1B(Ba", 1000));
}

TEST(MultibyteConverter, TheClosingSequenceFitsBehindAnyLength) {
  for (std::size_t length = 240; length < 260; ++length) {
    EXPECT_EQ(converted("ISO-2022-JP", repeated("\u65E5", length)),
              "\x1B$B" + repeated("F|", length) + "\x1B(B");
  }
}

TEST(MultibyteConverter, InputAndOutputMayBeOneString) {
  std::string text = repeated("\u00E9", 2000);
  EXPECT_EQ(converterTo("windows-1252")->fromUtf8(text, text), 0);
  EXPECT_EQ(text, std::string(2000, '\xE9'));
}

TEST(MultibyteConverter, ConvertersDoNotDisturbEachOther) {
  const auto one = converterTo("windows-1252");
  const auto other = converterTo("UTF-8");
  std::string bytes;
  EXPECT_EQ(one->fromUtf8("\u00E9", bytes), 0);
  EXPECT_EQ(other->fromUtf8("\u00E9", bytes), 0);
  EXPECT_EQ(bytes, "\xC3\xA9");
  EXPECT_EQ(one->fromUtf8("\u00E9", bytes), 0);
  EXPECT_EQ(bytes, "\xE9");
}

}  // namespace
}  // namespace om::test
