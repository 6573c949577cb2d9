// Random tables, laid out by the display headings and by a naive layout: no label, number, cell
// index or cell may differ.

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <string>

#include "tests/display/HeadingComparison.h"
#include "tests/display/RandomTable.h"
#include "tests/support/Oracle.h"

#if defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer)
#define OM_TEST_UNDER_A_SANITIZER
#endif
#endif
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#define OM_TEST_UNDER_A_SANITIZER
#endif

namespace om::test {
namespace {

#ifdef OM_TEST_UNDER_A_SANITIZER
constexpr std::size_t kTables = 1'260;
#else
constexpr std::size_t kTables = 12'600;
#endif

// A table for each seed; OM_TEST_SEED repeats the run from that table on.
void run(std::uint64_t fixedSeed) {
  const std::uint64_t first = seedOr(fixedSeed);
  HeadingTally tally;
  for (std::uint64_t seed = first; seed < first + kTables; ++seed) {
    Random random(seed);
    RandomTable table(random);
    const std::string difference = HeadingComparison(table.table(), random, tally).run();
    if (!difference.empty() || testing::Test::HasFailure()) {
      ADD_FAILURE() << difference << " of the table with OM_TEST_SEED=" << seed << "\n"
                    << table.text();
      return;
    }
  }
  ASSERT_EQ(tally.tables, kTables);
  // Nothing was seldom met.
  EXPECT_GE(tally.sparseTables, kTables / 50);
  EXPECT_GE(tally.sparseScans, kTables / 10);
  EXPECT_GE(tally.denseScans, kTables);
  EXPECT_GE(tally.skippedPositions, 10 * kTables);
  EXPECT_GE(tally.unseenCells, kTables / 200);
  EXPECT_GE(tally.gridPositions, 20 * kTables);
  EXPECT_GE(tally.cells, 4 * kTables);
  EXPECT_GE(tally.surplusPositions, 3 * kTables);
  EXPECT_GE(tally.layersOutOfRange, kTables);
  EXPECT_GE(tally.reports, kTables / 3);
}

TEST(HeadingOracle, LaysOutAsTheNaiveLayout1) { run(1'000'000); }
TEST(HeadingOracle, LaysOutAsTheNaiveLayout2) { run(2'000'000); }
TEST(HeadingOracle, LaysOutAsTheNaiveLayout3) { run(3'000'000); }
TEST(HeadingOracle, LaysOutAsTheNaiveLayout4) { run(4'000'000); }
TEST(HeadingOracle, LaysOutAsTheNaiveLayout5) { run(5'000'000); }
TEST(HeadingOracle, LaysOutAsTheNaiveLayout6) { run(6'000'000); }
TEST(HeadingOracle, LaysOutAsTheNaiveLayout7) { run(7'000'000); }
TEST(HeadingOracle, LaysOutAsTheNaiveLayout8) { run(8'000'000); }

}  // namespace
}  // namespace om::test
