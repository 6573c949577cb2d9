// Text on its way into a page.

#include "render/internal/HtmlOut.h"

#include <gtest/gtest.h>

#include <functional>
#include <sstream>
#include <string>

#include "render/internal/Sha256.h"

namespace om::test {
namespace {

using render::internal::HtmlOut;
using render::internal::isBlank;
using render::internal::mayRunRightToLeft;
using render::internal::sha256;

std::string written(const std::function<void(HtmlOut&)>& write) {
  std::ostringstream stream;
  HtmlOut out(stream);
  write(out);
  out.flush();
  return stream.str();
}

std::string text(std::string_view text) {
  return written([&](HtmlOut& out) { out.text(text); });
}
std::string attribute(std::string_view text) {
  return written([&](HtmlOut& out) { out.attribute(text); });
}
std::string preformatted(std::string_view text) {
  return written([&](HtmlOut& out) { out.preformatted(text); });
}
std::string isolated(std::string_view text) {
  return written([&](HtmlOut& out) { out.isolated(text); });
}
std::string base64(std::string_view bytes) {
  return written([&](HtmlOut& out) { out.base64(bytes); });
}

TEST(HtmlOut, LeavesPlainTextAsItIs) {
  EXPECT_EQ(text("Adelie, 44.2% 'n' [x] {y} =1+2 -- /*\t~"),
            "Adelie, 44.2% 'n' [x] {y} =1+2 -- /*\t~");
  EXPECT_EQ(text("Größe 漢字 👩‍🚀"), "Größe 漢字 👩‍🚀");
  EXPECT_EQ(text(""), "");
}

TEST(HtmlOut, EscapesWhatCouldBeMarkup) {
  EXPECT_EQ(text("<b class=\"x\">&amp;</b>"), "&lt;b class=&quot;x&quot;&gt;&amp;amp;&lt;/b&gt;");
  EXPECT_EQ(attribute("\"><script>"), "&quot;&gt;&lt;script&gt;");
  EXPECT_EQ(preformatted("</pre>]]>-->"), "&lt;/pre&gt;]]&gt;--&gt;");
}

TEST(HtmlOut, BreaksLinesAtEveryLineEnd) {
  EXPECT_EQ(text("a\nb\r\nc\rd\n"), "a<br>b<br>c<br>d<br>");
  EXPECT_EQ(attribute("a\nb\r\nc\rd"), "a b c d");
  EXPECT_EQ(preformatted("a\nb\r\nc\rd"), "a\nb\nc\nd");
}

TEST(HtmlOut, ReplacesControls) {
  EXPECT_EQ(text(std::string_view("a\0b\x01\x0B\x0C\x1B\x1F\x7F", 9)),
            "a\uFFFD"
            "b\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD");
  EXPECT_EQ(text("\xC2\x80\xC2\x9F"), "\uFFFD\uFFFD");
  EXPECT_EQ(text("\xC2\xA0"), "\xC2\xA0");
}

TEST(HtmlOut, ReplacesNoncharacters) {
  EXPECT_EQ(text("\xEF\xBF\xBE|\xEF\xBF\xBF|\xEF\xB7\x90|\xEF\xB7\xAF|\xF0\x9F\xBF\xBE"),
            "\uFFFD|\uFFFD|\uFFFD|\uFFFD|\uFFFD");
  EXPECT_EQ(text("\xEF\xB7\x8F|\xEF\xB7\xB0"), "\xEF\xB7\x8F|\xEF\xB7\xB0");
}

TEST(HtmlOut, ReplacesEachByteThatIsNotUtf8) {
  EXPECT_EQ(text("a\xFF"
                 "b\xC3("),
            "a\uFFFD"
            "b\uFFFD(");
  EXPECT_EQ(text("\xED\xA0\x80"), "\uFFFD\uFFFD\uFFFD");
  EXPECT_EQ(text("\xE6\xBC"), "\uFFFD\uFFFD");
}

TEST(HtmlOut, WritesTextsThatAreLongerThanItsBuffer) {
  const std::string half(100'000, 'x');
  EXPECT_EQ(text(half + "<" + half), half + "&lt;" + half);
}

TEST(HtmlOut, IsolatesWhatMayRunFromRightToLeft) {
  EXPECT_EQ(isolated("שלום <b>"), "<bdi>שלום &lt;b&gt;</bdi>");
  EXPECT_EQ(isolated("Größe 漢字"), "Größe 漢字");
}

TEST(HtmlOut, KnowsScriptsAndControlsThatRunFromRightToLeft) {
  for (const char* const each : {"שלום", "السكان", "ܐ", "ހ", "\u202E", "\u2067", "\u200F", "\uFB1D",
                                 "\uFE70", "\U00010800", "\U0001E900", "abc א"}) {
    EXPECT_TRUE(mayRunRightToLeft(each)) << each;
  }
  for (const char* const each : {"", "abc", "Ελλάδα", "Україна", "漢字", "\u2028", "\u200B",
                                 "👩‍🚀", "\u0900", "\xD7", "\xFF\xFF"}) {
    EXPECT_FALSE(mayRunRightToLeft(each)) << each;
  }
}

TEST(HtmlOut, WritesNumbersInFull) {
  EXPECT_EQ(written([](HtmlOut& out) { out.number(0).number(18446744073709551615U); }),
            "018446744073709551615");
}

TEST(HtmlOut, WritesBytesInBase64) {
  // The test vectors of RFC 4648.
  EXPECT_EQ(base64(""), "");
  EXPECT_EQ(base64("f"), "Zg==");
  EXPECT_EQ(base64("fo"), "Zm8=");
  EXPECT_EQ(base64("foo"), "Zm9v");
  EXPECT_EQ(base64("foob"), "Zm9vYg==");
  EXPECT_EQ(base64("foobar"), "Zm9vYmFy");
  EXPECT_EQ(base64("\xFB\xFF\xFE"), "+//+");
}

TEST(HtmlOut, SeesBlankTexts) {
  for (const char* const each : {"", " ", "\t\r\n "}) EXPECT_TRUE(isBlank(each));
  for (const char* const each : {".", " x ", "\x01"}) EXPECT_FALSE(isBlank(each));
}

TEST(Sha256, GivesTheDigestsOfTheStandardsExamples) {
  // Digests in base64, of no bytes, of "abc", and of 56 bytes, which need a second block.
  EXPECT_EQ(base64(sha256("")), "47DEQpj8HBSa+/TImW+5JCeuQeRkm5NMpJWZG3hSuFU=");
  EXPECT_EQ(base64(sha256("abc")), "ungWv48Bz+pBQUDeXa4iI7ADYaOWF3qctBD/YfIAFa0=");
  EXPECT_EQ(base64(sha256("abcdbcdecdefdefgefghfghighijhijkijkljklmklmnlmnomnopnopq")),
            "JI1qYdIGOLjlwCaTDD5gOaM85Flk/yFn9uzt1BnbBsE=");
}

TEST(Sha256, GoesOnBeyondABlock) {
  // A million times "a", an example of the standard.
  EXPECT_EQ(base64(sha256(std::string(1'000'000, 'a'))),
            "zcduXJkU+5KBocfihNc+Z/GAmkiklyAOBG05zMcRLNA=");
}

}  // namespace
}  // namespace om::test
