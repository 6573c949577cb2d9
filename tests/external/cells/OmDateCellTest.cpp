// Dates, with and without a time of day.

#include "external/cells/OmDateCell.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <string>

namespace om::test {
namespace {

TEST(OmDateCell, ShowsTheDateAlone) {
  EXPECT_EQ(std::string(OmDateCell({2026, 11, 21})), "2026-11-21");
  EXPECT_EQ(std::string(OmDateCell({2026, 11, 21, 13, 5, 0}, false)), "2026-11-21");
}

TEST(OmDateCell, ShowsDateAndTime) {
  EXPECT_EQ(std::string(OmDateCell({2026, 11, 21, 13, 5, 0}, true)), "2026-11-21 13:05:00");
  EXPECT_EQ(std::string(OmDateCell({2026, 11, 21, 23, 59, 59}, true)), "2026-11-21 23:59:59");
}

TEST(OmDateCell, FillsShortFieldsWithZeros) {
  EXPECT_EQ(std::string(OmDateCell({7, 1, 2, 3, 4, 5}, true)), "0007-01-02 03:04:05");
}

TEST(OmDateCell, ADateWithoutATimeShowsItsFirstSecond) {
  EXPECT_EQ(std::string(OmDateCell({2026, 1, 1}, true)), "2026-01-01 00:00:00");
}

TEST(OmDateCell, ShowsFieldsAsTheyAreGivenWhateverTheCalendarSays) {
  EXPECT_EQ(std::string(OmDateCell({2025, 2, 31, 25, 60, 61}, true)), "2025-02-31 25:60:61");
}

TEST(OmDateCell, ShowsTheLargestFieldsWhole) {
  constexpr unsigned kMost = std::numeric_limits<unsigned>::max();
  EXPECT_EQ(std::string(OmDateCell(
                {std::numeric_limits<int>::min(), kMost, kMost, kMost, kMost, kMost}, true)),
            "-2147483648-4294967295-4294967295 4294967295:4294967295:4294967295");
}

TEST(OmDateCell, GivesItsFieldsBack) {
  const OmDateCell date({2026, 11, 21, 13, 5, 7}, true);
  EXPECT_EQ(date.When().year, 2026);
  EXPECT_EQ(date.When().month, 11U);
  EXPECT_EQ(date.When().day, 21U);
  EXPECT_EQ(date.When().hour, 13U);
  EXPECT_EQ(date.When().minute, 5U);
  EXPECT_EQ(date.When().second, 7U);
  EXPECT_TRUE(date.ShowsTime());
  EXPECT_FALSE(OmDateCell({2026, 1, 1}).ShowsTime());
}

TEST(OmDateCell, ACloneHasItsFields) {
  const OmDateCell date({2026, 11, 21, 13, 5, 7}, true);
  const std::unique_ptr<OmDateCell> clone(date.Clone(nullptr));
  EXPECT_TRUE(clone->When() == date.When());
  EXPECT_TRUE(clone->ShowsTime());
}

}  // namespace
}  // namespace om::test
