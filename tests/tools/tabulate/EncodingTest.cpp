// Bytes of several encodings, in blocks of any size, and bytes that are wrong in them.

#include "tools/tabulate/Encoding.h"

#include <gtest/gtest.h>

#include "tools/tabulate/Failure.h"

namespace om::test {
namespace {

using namespace std::string_literals;
using tabulate::Decoder;
using tabulate::ExitCode;
using tabulate::Failure;

struct Decoded {
  std::string text;
  bool fine = true;

  bool operator==(const Decoded&) const = default;
};

void PrintTo(const Decoded& decoded, std::ostream* out) {
  *out << decoded.text << (decoded.fine ? "" : " and wrong bytes");
}

Decoded decode(const std::string& encoding, const std::string& bytes, std::size_t block) {
  Decoder decoder(encoding);
  Decoded result;
  for (std::size_t at = 0; at < bytes.size() && result.fine; at += block) {
    result.fine = decoder.decode(std::string_view(bytes).substr(at, block), result.text);
  }
  if (result.fine) result.fine = decoder.finish(result.text);
  return result;
}

// The result must not depend on where the blocks end.
void expectDecoded(const Decoded& expected, const std::string& encoding, const std::string& bytes) {
  for (const std::size_t block : {1UL, 2UL, 3UL, 5UL, 1000UL}) {
    EXPECT_EQ(expected, decode(encoding, bytes, block)) << encoding << " by " << block;
  }
}

TEST(Decoder, TakesUtf8AsItIs) {
  expectDecoded({"a\u00e9\u20ac\U0001f427", true}, "UTF-8", "a\u00e9\u20ac\U0001f427");
  expectDecoded({"", true}, "utf8", "");
}

TEST(Decoder, ConvertsCodePages) {
  expectDecoded({"Stra\u00dfe", true}, "ISO-8859-1",
                "Stra\xdf"
                "e");
  expectDecoded({"\u20ac5", true}, "windows-1252",
                "\x80"
                "5");
  expectDecoded({"\u65e5\u672c", true}, "Shift_JIS", "\x93\xfa\x96\x7b");
  expectDecoded({"ab", true}, "UTF-16LE", "a\0b\0"s);
  expectDecoded({"\u65e5", true}, "ISO-2022-JP", "\x1b$B\x46\x7c\x1b(B");
}

TEST(Decoder, ConvertsMoreThanItsRoomHolds) {
  std::string expected;
  for (int i = 0; i < 50'000; ++i) expected += "\u00df";
  EXPECT_EQ((Decoded{expected, true}), decode("ISO-8859-1", std::string(50'000, '\xdf'), 100'000));
}

TEST(Decoder, LeavesAByteOrderMarkOutWhichDecidesOnTheEncoding) {
  expectDecoded({"a\u00e9", true}, "UTF-8",
                "\xef\xbb\xbf"
                "a\u00e9");
  expectDecoded({"a\u00e9", true}, "ISO-8859-1",
                "\xef\xbb\xbf"
                "a\u00e9");
  expectDecoded({"ab", true}, "UTF-8",
                "\xff\xfe"
                "a\0b\0"s);
  expectDecoded({"ab", true}, "UTF-8", "\xfe\xff\0a\0b"s);
  expectDecoded({"a", true}, "UTF-8", "\xff\xfe\0\0a\0\0\0"s);
  expectDecoded({"a", true}, "UTF-8", "\0\0\xfe\xff\0\0\0a"s);
  expectDecoded({"", true}, "UTF-8", "\xef\xbb\xbf");
}

TEST(Decoder, TellsTheEncodingThatTheMarkDecidedOn) {
  Decoder decoder("latin1");
  EXPECT_EQ("latin1", decoder.name());
  std::string text;
  decoder.decode(
      "\xff\xfe"
      "a\0"s,
      text);
  EXPECT_EQ("UTF-16LE", decoder.name());
}

TEST(Decoder, AMarkFurtherOnIsACharacter) { expectDecoded({"a\ufeff", true}, "UTF-8", "a\ufeff"); }

TEST(Decoder, StopsInFrontOfWrongBytes) {
  expectDecoded({"abcd", false}, "UTF-8",
                "abcd\xff"
                "ef");
  expectDecoded({"abcd", false}, "UTF-8", "abcd\xed\xa0\x80");
  expectDecoded({"abcd", false}, "ASCII", "abcd\xc3\xa9");
  expectDecoded({"", false}, "UTF-16LE",
                "\x00\xdc"
                "a\0"s);
}

TEST(Decoder, RefusesACharacterThatIsCutOffAtTheEnd) {
  expectDecoded({"abc", false}, "UTF-8", "abc\xe2\x82");
  expectDecoded({"a", false}, "UTF-16LE", "a\0b"s);
}

TEST(Decoder, RefusesNamesThatIconvDoesNotKnow) {
  for (const std::string name : {"klingon", "", "ASCII//IGNORE", "ASCII//TRANSLIT", "a,b"}) {
    try {
      Decoder decoder(name);
      ADD_FAILURE() << name;
    } catch (const Failure& failure) {
      EXPECT_EQ("there is no encoding \"" + name + "\"", std::string(failure.what()));
      EXPECT_EQ(ExitCode::USAGE, failure.code());
    }
  }
}

}  // namespace
}  // namespace om::test
