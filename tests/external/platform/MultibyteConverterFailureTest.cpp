// Conversions that cannot be done: they say so, and replace nothing.

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "external/platform/MultibyteConverter.h"
#include "tests/support/Allocations.h"

namespace om::test {
namespace {

std::unique_ptr<MultibyteConverter> converterTo(const std::string& codePage) {
  return std::unique_ptr<MultibyteConverter>(MultibyteConverter::create(codePage));
}

void expectFailure(MultibyteConverter& converter, const std::string& utf8, int result) {
  std::string bytes = "kept as it was";
  EXPECT_EQ(converter.fromUtf8(utf8, bytes), result) << testing::PrintToString(utf8);
  EXPECT_EQ(bytes, "kept as it was") << testing::PrintToString(utf8);
}

TEST(MultibyteConverterFailure, AnUnknownNameFails) {
  for (const char* const name : {"no-such-code-page", "windows-99999", "x", "-", "12"}) {
    const auto converter = converterTo(name);
    ASSERT_NE(converter, nullptr) << name;
    expectFailure(*converter, "a", MultibyteConverter::UNKNOWN_CODE_PAGE);
    expectFailure(*converter, "", MultibyteConverter::UNKNOWN_CODE_PAGE);
  }
}

TEST(MultibyteConverterFailure, AnEmptyNameFails) {
  expectFailure(*converterTo(""), "a", MultibyteConverter::UNKNOWN_CODE_PAGE);
}

TEST(MultibyteConverterFailure, ANameThatAsksForReplacementsFails) {
  for (const char* const name : {"ISO-8859-1//TRANSLIT", "ASCII//IGNORE", "ASCII//TRANSLIT//IGNORE",
                                 "UTF-8//", "//", "/", "ASCII/", "//TRANSLIT", "ASCII,TRANSLIT"}) {
    expectFailure(*converterTo(name), "a", MultibyteConverter::UNKNOWN_CODE_PAGE);
  }
}

TEST(MultibyteConverterFailure, ANameWithOtherBytesFails) {
  for (const std::string& name : {std::string("UTF-8\0", 6), std::string("UTF-8\0x", 7),
                                  std::string(" "), std::string("UTF-8 "), std::string("UTF-8\n"),
                                  std::string("\xFF"), std::string(100000, '/')}) {
    expectFailure(*converterTo(name), "a", MultibyteConverter::UNKNOWN_CODE_PAGE);
  }
}

TEST(MultibyteConverterFailure, AVeryLongNameFails) {
  expectFailure(*converterTo(std::string(100000, 'A')), "a", MultibyteConverter::UNKNOWN_CODE_PAGE);
}

TEST(MultibyteConverterFailure, TextThatTheCodePageLacksFails) {
  const auto western = converterTo("windows-1252");
  expectFailure(*western, "\u65E5", MultibyteConverter::NOT_CONVERTIBLE);
  expectFailure(*western,
                "a\u03B1"
                "b",
                MultibyteConverter::NOT_CONVERTIBLE);
  expectFailure(*western, std::string(5000, 'a') + "\u65E5", MultibyteConverter::NOT_CONVERTIBLE);
  expectFailure(*converterTo("KOI8-R"), "\u20AC", MultibyteConverter::NOT_CONVERTIBLE);
  expectFailure(*converterTo("ISO-8859-7"), "\u00E9", MultibyteConverter::NOT_CONVERTIBLE);
  expectFailure(*converterTo("Shift_JIS"), "\u00E9", MultibyteConverter::NOT_CONVERTIBLE);
  expectFailure(*converterTo("ISO-2022-JP"), "\u65E5\u20AC", MultibyteConverter::NOT_CONVERTIBLE);
  expectFailure(*converterTo("ASCII"), "\u201Cq\u201D", MultibyteConverter::NOT_CONVERTIBLE);
}

// Characters that are not seen are text as well.
TEST(MultibyteConverterFailure, InvisibleCharactersThatTheCodePageLacksFail) {
  const auto western = converterTo("windows-1252");
  for (const char* const character : {"\u200B", "\u2060", "\uFEFF", "\u0301"}) {
    expectFailure(*western, std::string("a") + character, MultibyteConverter::NOT_CONVERTIBLE);
  }
}

TEST(MultibyteConverterFailure, TagCharactersThatTheCodePageLacksFail) {
  for (const char* const codePage : {"windows-1252", "ISO-8859-7", "Shift_JIS", "ISO-2022-JP"}) {
    expectFailure(*converterTo(codePage), "a\U000E0041", MultibyteConverter::NOT_CONVERTIBLE);
  }
}

constexpr const char* kMalformedTexts[] = {
    "\xFF",              // no byte of UTF-8
    "a\x80",             // a continuation without a beginning
    "\xC3",              // ends within a character
    "abc\xE2\x82",       // the same, with three bytes
    "\xF0\x9F\x98",      // the same, with four
    "\xC3(",             // a beginning without a continuation
    "\xC0\xAF",          // longer than needed
    "\xE0\x80\xAF",      // the same, with three bytes
    "\xF0\x80\x80\xAF",  // the same, with four
    "\xED\xA0\x80",      // half of a surrogate pair
    "\xED\xB0\x80",      // the other half
};

TEST(MultibyteConverterFailure, TextThatIsNoUtf8Fails) {
  for (const char* const codePage : {"windows-1252", "UTF-8", "Shift_JIS", "ISO-2022-JP"}) {
    const auto converter = converterTo(codePage);
    for (const char* const text : kMalformedTexts) {
      expectFailure(*converter, text, MultibyteConverter::NOT_CONVERTIBLE);
    }
  }
}

TEST(MultibyteConverterFailure, CodePointsBeyondUnicodeFail) {
  for (const char* const codePage : {"windows-1252", "UTF-8"}) {
    const auto converter = converterTo(codePage);
    expectFailure(*converter, "\xF4\x90\x80\x80", MultibyteConverter::NOT_CONVERTIBLE);
    expectFailure(*converter, "\xF8\x88\x80\x80\x80", MultibyteConverter::NOT_CONVERTIBLE);
  }
}

TEST(MultibyteConverterFailure, AConverterIsUsableAgainAfterAFailure) {
  const auto converter = converterTo("windows-1252");
  std::string bytes;
  for (const char* const text : kMalformedTexts) {
    expectFailure(*converter, text, MultibyteConverter::NOT_CONVERTIBLE);
    EXPECT_EQ(converter->fromUtf8("\u00E9", bytes), 0);
    EXPECT_EQ(bytes, "\xE9");
  }
}

TEST(MultibyteConverterFailure, AFailureInAShiftedStateDoesNotReachTheNextText) {
  const auto converter = converterTo("ISO-2022-JP");
  std::string bytes;
  expectFailure(*converter, "\u65E5\u20AC", MultibyteConverter::NOT_CONVERTIBLE);
  EXPECT_EQ(converter->fromUtf8("F|", bytes), 0);
  EXPECT_EQ(bytes, "F|");
}

TEST(MultibyteConverterFailure, OneStringForInputAndOutputKeepsTheInput) {
  std::string text = "\u65E5";
  EXPECT_NE(converterTo("windows-1252")->fromUtf8(text, text), 0);
  EXPECT_EQ(text, "\u65E5");
}

TEST(MultibyteConverterFailure, AConverterIsMadeWholeOrNotAtAllWhenMemoryRunsOut) {
  const std::string name = "windows-1252";
  const std::size_t failures = failEveryAllocation([&name](FailurePoint& point) {
    std::unique_ptr<MultibyteConverter> converter;
    const bool completed = point.during([&] { converter.reset(MultibyteConverter::create(name)); });
    EXPECT_EQ(converter != nullptr, completed);
  });
  EXPECT_GE(failures, 1U);
}

TEST(MultibyteConverterFailure, KeepsTheOutputWhenMemoryRunsOut) {
  const std::string text(3000, 'x');
  const auto converter = converterTo("windows-1252");
  const std::size_t failures = failEveryAllocation([&](FailurePoint& point) {
    std::string bytes = "kept as it was";
    const bool completed = point.during([&] { converter->fromUtf8(text, bytes); });
    EXPECT_EQ(bytes, completed ? text : "kept as it was");
  });
  EXPECT_GE(failures, 1U);
}

}  // namespace
}  // namespace om::test
