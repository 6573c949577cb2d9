// Text that is safe to send to a terminal.

#include "render/internal/PlainText.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace om::test {
namespace {

std::string plain(std::string_view text) {
  std::string room;
  return std::string(render::internal::plainText(text, room));
}
std::string line(std::string_view text) {
  std::string room;
  return std::string(render::internal::plainLine(text, room));
}

const std::string kLost = "\uFFFD";

TEST(PlainText, PlainTextIsNotCopied) {
  const std::string_view text = "a (b) ~";
  std::string room;
  EXPECT_EQ(render::internal::plainText(text, room).data(), text.data());
}

TEST(PlainText, TextOfAnyAlphabetStays) {
  EXPECT_EQ(plain("naïve 漢字 שלום 👩\u200D🚀"), "naïve 漢字 שלום 👩\u200D🚀");
}

TEST(PlainText, ControlsAreReplaced) {
  EXPECT_EQ(plain("a\x1B[31mb"), "a" + kLost + "[31mb");
  EXPECT_EQ(plain(std::string_view("a\0\a\b\x7F", 5)), "a" + kLost + kLost + kLost + kLost);
  EXPECT_EQ(plain("a\u009B31m"), "a" + kLost + "31m");  // a control of two bytes
  EXPECT_EQ(plain("a\u00A0b"), "a\u00A0b");             // not a control any more
}

TEST(PlainText, BytesThatAreNotUtf8AreReplacedOneByOne) {
  EXPECT_EQ(plain("a\xFF\xC3(\xE2\x82"), "a" + kLost + kLost + "(" + kLost + kLost);
}

TEST(PlainText, EveryKindOfLineBreakIsALineFeed) {
  EXPECT_EQ(plain("a\nb\rc\r\nd\ve\ff"), "a\nb\nc\nd\ne\nf");
  EXPECT_EQ(plain("a\u0085b\u2028c\u2029d"), "a\nb\nc\nd");
  EXPECT_EQ(plain("a\n\nb\r"), "a\n\nb\n");
}

TEST(PlainText, ATabIsABlank) { EXPECT_EQ(plain("a\tb"), "a b"); }

TEST(PlainText, WhatTurnsTheDirectionOfALineIsReplaced) {
  EXPECT_EQ(plain("\u202Aa\u202Eb\u202C"), kLost + "a" + kLost + "b" + kLost);
  EXPECT_EQ(plain("\u2066a\u2069"), kLost + "a" + kLost);
  EXPECT_EQ(plain("a\u200Fb\u2029"), "a\u200Fb\n");  // a mark turns nothing else
  EXPECT_EQ(plain("\u2065\u206A"), "\u2065\u206A");
}

TEST(PlainText, OnALineALineBreakIsABlank) {
  EXPECT_EQ(line("a\r\nb\u2028c"), "a b c");
  EXPECT_EQ(line("plain"), "plain");
}

}  // namespace
}  // namespace om::test
