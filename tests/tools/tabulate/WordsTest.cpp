// The words of options and job files.

#include "tools/tabulate/Words.h"

#include <gtest/gtest.h>

#include <cstdint>

#include "tools/tabulate/Failure.h"

namespace om::test {
namespace {

namespace words = tabulate::words;
using tabulate::Axis;
using tabulate::DimensionRequest;
using tabulate::Statistic;
using Dimensions = std::vector<DimensionRequest>;

template <class Use>
void expectRefused(const std::string& text, const Use& use) {
  try {
    use();
    ADD_FAILURE() << "not refused: " << text;
  } catch (const tabulate::Failure& failure) {
    EXPECT_EQ(text, failure.what());
    EXPECT_EQ(tabulate::ExitCode::USAGE, failure.code());
  }
}

TEST(Words, CommaNestsDimensionsAndSlashLevels) {
  EXPECT_EQ((Dimensions{{"a"}}), words::dimensions("a"));
  EXPECT_EQ((Dimensions{{"a", "b", "c"}, {"d"}}), words::dimensions("a/b/c,d"));
  EXPECT_EQ((Dimensions{{" a b "}}), words::dimensions(" a b "));
}

TEST(Words, BackslashTakesACharacterAsItIs) {
  EXPECT_EQ((Dimensions{{"Delta 15 N (o/oo)", "a,b"}, {"\\"}}),
            words::dimensions("Delta 15 N (o\\/oo)/a\\,b,\\\\"));
}

TEST(Words, ListsTakeSlashesAsTheyAre) {
  EXPECT_EQ((std::vector<std::string>{"Delta 15 N (o/oo)", "a,b"}),
            words::list("Delta 15 N (o/oo),a\\,b"));
}

TEST(Words, NamesAreNotEmpty) {
  for (const std::string text : {"", ",", "a,", "/a", "a//b", "a/"}) {
    expectRefused("there is an empty name in \"" + text + "\"", [&] { words::dimensions(text); });
  }
  expectRefused("there is nothing behind the backslash", [] { words::dimensions("a\\"); });
}

TEST(Words, StandForWhatTheySay) {
  EXPECT_EQ(Statistic::ROW_PERCENT, words::statistic("row%"));
  EXPECT_EQ(Statistic::MEDIAN, words::statistic("median"));
  EXPECT_EQ(Axis::LAYERS, words::axis("layers"));
  EXPECT_EQ(tabulate::Missing::CATEGORY, words::missing("category"));
  EXPECT_EQ(tabulate::Order::TYPED, words::order("typed"));
  EXPECT_EQ(tabulate::OutputFormat::JSON_STAT, words::format("jsonstat"));
  EXPECT_EQ(tabulate::Progress::When::NEVER, words::when("never"));
}

TEST(Words, OthersAreRefusedWithTheList) {
  expectRefused("\"x\" is none of rows, columns, layers", [] { words::axis("x"); });
  expectRefused("\"\" is none of exclude, category", [] { words::missing(""); });
  expectRefused("\"Data\" is none of data, sorted, typed", [] { words::order("Data"); });
  expectRefused("\"pdf\" is none of text, html, csv, json, jsonstat, xlsx",
                [] { words::format("pdf"); });
  expectRefused("\"x\" is none of auto, always, never", [] { words::when("x"); });
  expectRefused(
      "\"mode\" is none of count, row%, column%, total%, n, sum, mean, sd, min, max, median",
      [] { words::statistic("mode"); });
}

TEST(Words, AxesAreThoseNamed) {
  const tabulate::PerAxis<bool> axes = words::axes({"rows", "layers"});
  EXPECT_TRUE(axes[Axis::ROWS]);
  EXPECT_FALSE(axes[Axis::COLUMNS]);
  EXPECT_TRUE(axes[Axis::LAYERS]);
  expectRefused("\"rows\" is given twice", [] { words::axes({"rows", "rows"}); });
}

TEST(Words, LayersAreNumberedFromOne) {
  EXPECT_EQ(0, words::layer("1"));
  EXPECT_EQ(41, words::layer("42"));
  EXPECT_EQ(tabulate::TableRendering::kAllLayers, words::layer("all"));
  for (const std::string text : {"0", "-1", "x", "1x", "", "1.5", "-99999999999"}) {
    expectRefused('"' + text + "\" is neither a number from 1 nor all",
                  [&] { words::layer(text); });
  }
}

TEST(Words, CountsAreWholeNumbersFromOne) {
  EXPECT_EQ(5'000'000'000, words::count("5000000000"));
  for (const std::string text : {"0", "-1", "1.5", "1e6", "", " 1"}) {
    expectRefused('"' + text + "\" is no whole number from 1 up", [&] { words::count(text); });
  }
}

TEST(Words, NumbersThatAreTooLargeAreCalledSo) {
  EXPECT_EQ(INT64_MAX, words::count("9223372036854775807"));
  EXPECT_EQ(INT32_MAX, words::width("2147483647"));
  expectRefused("\"9223372036854775808\" is too large",
                [] { words::count("9223372036854775808"); });
  expectRefused("\"2147483648\" is too large", [] { words::layer("2147483648"); });
  expectRefused("\"2147483648\" is too large", [] { words::width("2147483648"); });
}

TEST(Words, WidthsAreWholeNumbersAndZero) {
  EXPECT_EQ(0, words::width("0"));
  EXPECT_EQ(1, words::width("1"));
  EXPECT_EQ(40, words::width("40"));
  for (const std::string text : {"-1", "00", "4.0", "40x", " 40", "wide", ""}) {
    expectRefused('"' + text + "\" is no whole number from 0 up", [&] { words::width(text); });
  }
}

TEST(Words, NoAxisIsChosenByNoneAlone) {
  const tabulate::PerAxis<bool> none = words::axesOrNone({"none"});
  for (const Axis axis : tabulate::kAxes) EXPECT_FALSE(none[axis]);
  EXPECT_TRUE(words::axesOrNone({"columns"})[Axis::COLUMNS]);
  expectRefused("\"none\" is none of rows, columns, layers", [] {
    words::axesOrNone({"rows", "none"});
  });
}

}  // namespace
}  // namespace om::test
