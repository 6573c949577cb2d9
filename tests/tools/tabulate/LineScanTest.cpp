// Records and lines in CSV text.

#include "tools/tabulate/LineScan.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/support/Oracle.h"

namespace om::test {
namespace {

using tabulate::LineScan;

LineScan scanned(const std::string& text) {
  LineScan scan;
  scan.scan(text);
  return scan;
}

TEST(LineScan, CountsLinesWithEveryKindOfBreak) {
  EXPECT_EQ(1U, scanned("a").line);
  EXPECT_EQ(3U, scanned("a\nb\nc").line);
  EXPECT_EQ(3U, scanned("a\r\nb\r\nc").line);
  EXPECT_EQ(3U, scanned("a\rb\rc").line);
  EXPECT_EQ(4U, scanned("a\n\r\n\rc").line);
}

TEST(LineScan, EmptyLinesAreNoRecords) {
  const LineScan scan = scanned("h\n\n\na\n");
  EXPECT_EQ(2U, scan.records);
  EXPECT_EQ(5U, scan.line);
}

TEST(LineScan, BreaksWithinQuotesDoNotEndARecord) {
  const LineScan scan = scanned("h\n\"a\n\"\"b\"\"\nc\"\nd");
  EXPECT_EQ(2U, scan.records);
  EXPECT_EQ(5U, scan.line);
  EXPECT_EQ(5U, scan.recordLine);
}

TEST(LineScan, StopsWhereTheRecordBegins) {
  LineScan scan;
  scan.scan("h\n\n\"a\nb\"\nc\nd\n", 2);
  EXPECT_EQ(5U, scan.recordLine);
}

TEST(LineScan, KnowsABreakThatLiesAcrossTwoTexts) {
  LineScan scan;
  scan.scan("a\r");
  scan.scan("\nb");
  EXPECT_EQ(2U, scan.line);
}

TEST(LineScan, SkippingComesToTheSamePlaceAsScanning) {
  runRandomOperations(4, 2'000, [](Random& random) {
    LineScan slow;
    LineScan fast;
    for (int block = 0; block < 4; ++block) {
      std::string text;
      const std::size_t size = random.below(12);
      for (std::size_t i = 0; i < size; ++i) text += "ab\n\r"[random.below(4)];
      text += random.oneIn(2) ? '\n' : '\r';
      slow.scan(text);
      fast.skip(text, slow.records);
    }
    EXPECT_EQ(slow.line, fast.line);
    EXPECT_EQ(slow.afterCr, fast.afterCr);
  });
}

}  // namespace
}  // namespace om::test
