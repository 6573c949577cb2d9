// JSON as it is told of, value by value.

#include "render/internal/JsonEmitter.h"

#include <gtest/gtest.h>

#include <limits>
#include <nlohmann/json.hpp>
#include <sstream>
#include <string>

namespace om::test {
namespace {

using render::internal::ByteSink;
using render::internal::JsonEmitter;
using Layout = JsonEmitter::Layout;

std::string emitted(const auto& emit) {
  std::ostringstream out;
  ByteSink sink(out);
  JsonEmitter json(sink);
  emit(json);
  sink.flush();
  return out.str();
}

std::string emittedString(std::string_view text) {
  return emitted([&](JsonEmitter& json) { json.string(text); });
}

TEST(JsonEmitter, PutsMembersOnLinesOfTheirOwn) {
  EXPECT_EQ(emitted([](JsonEmitter& json) {
              json.beginObject();
              json.member("text", "a");
              json.key("list");
              json.beginArray();
              json.number(1);
              json.null();
              json.boolean(true);
              json.end();
              json.end();
            }),
            "{\n"
            "  \"text\": \"a\",\n"
            "  \"list\": [\n"
            "    1,\n"
            "    null,\n"
            "    true\n"
            "  ]\n"
            "}\n");
}

TEST(JsonEmitter, KeepsWhatIsWithinALineThere) {
  EXPECT_EQ(emitted([](JsonEmitter& json) {
              json.beginArray(Layout::LINE);
              json.beginObject();
              json.member("a", 1);
              json.member("b", std::vector<int>{1, 2});
              json.end();
              json.boolean(false);
              json.end();
            }),
            "[{\"a\":1,\"b\":[1,2]},false]\n");
}

TEST(JsonEmitter, WritesNothingBetweenTheBracketsOfWhatIsEmpty) {
  EXPECT_EQ(emitted([](JsonEmitter& json) {
              json.beginArray();
              json.beginObject();
              json.end();
              json.end();
            }),
            "[\n  {}\n]\n");
}

TEST(JsonEmitter, IndentsDeepLinesNoFurther) {
  constexpr int kDepth = 100;
  const std::string text = emitted([](JsonEmitter& json) {
    for (int i = 0; i < kDepth; ++i) json.beginArray();
    for (int i = 0; i < kDepth; ++i) json.end();
  });
  EXPECT_NE(text.find("\n" + std::string(64, ' ') + "[]\n"), std::string::npos);
  EXPECT_EQ(text.find(std::string(65, ' ')), std::string::npos);
}

TEST(JsonEmitter, EscapesWhatAStringCannotHold) {
  EXPECT_EQ(emittedString("a\"b\\c\n\r\t"), R"("a\"b\\c\n\r\t")");
  EXPECT_EQ(emittedString(std::string_view("\0\x1F\x7F", 3)), "\"\\u0000\\u001f\x7F\"");
  EXPECT_EQ(emittedString(""), "\"\"");
  EXPECT_EQ(emittedString("</script>"), "\"</script>\"");
}

TEST(JsonEmitter, KeepsUtf8AndReplacesOtherBytes) {
  EXPECT_EQ(emittedString("\xC3\xA9\xF0\x9F\x9A\x80"), "\"\xC3\xA9\xF0\x9F\x9A\x80\"");
  EXPECT_EQ(emittedString("a\xFF\xC3"), "\"a\xEF\xBF\xBD\xEF\xBF\xBD\"");
}

TEST(JsonEmitter, WritesEveryByteSoThatItCanBeReadBack) {
  for (int byte = 0; byte < 128; ++byte) {
    const std::string text(1, static_cast<char>(byte));
    EXPECT_EQ(nlohmann::json::parse(emittedString(text)).get<std::string>(), text) << byte;
  }
}

TEST(JsonEmitter, WritesNumbersInTheFewestDigits) {
  EXPECT_EQ(emitted([](JsonEmitter& json) {
              json.beginArray(Layout::LINE);
              json.number(0.1);
              json.number(-2.0);
              json.number(0.0);
              json.number(-0.0);
              json.number(1e300);
              json.number(5e-324);
              json.number(123456789012.5);
              json.number(std::numeric_limits<std::uint64_t>::max());
              json.number(std::numeric_limits<std::int64_t>::min());
              json.end();
            }),
            "[0.1,-2,0,-0,1e+300,5e-324,123456789012.5,18446744073709551615,"
            "-9223372036854775808]\n");
}

TEST(JsonEmitter, WritesBytesInBase64) {
  const auto written = [](std::string_view bytes) {
    return emitted([&](JsonEmitter& json) {
      json.beginArray(Layout::LINE);
      json.bytes(bytes);
      json.end();
    });
  };
  EXPECT_EQ(written(""), "[\"\"]\n");
  EXPECT_EQ(written("f"), "[\"Zg==\"]\n");
  EXPECT_EQ(written("fo"), "[\"Zm8=\"]\n");
  EXPECT_EQ(written("foo"), "[\"Zm9v\"]\n");
  EXPECT_EQ(written("\xFF\xEF\xBE"), "[\"/+++\"]\n");
}

TEST(JsonEmitter, WritesTextsThatAreLongerThanItsBuffer) {
  const std::string text(100'000, 'x');
  EXPECT_EQ(emittedString(text), '"' + text + '"');
}

}  // namespace
}  // namespace om::test
