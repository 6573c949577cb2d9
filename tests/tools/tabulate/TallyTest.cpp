// Records by combinations of codes.

#include "tools/tabulate/Tally.h"

#include <gtest/gtest.h>

#include <array>
#include <map>

#include "tests/support/Allocations.h"
#include "tests/support/Oracle.h"

namespace om::test {
namespace {

using tabulate::Tally;
using Codes = std::array<Tally::Code, 3>;

TEST(Tally, CountsRecordsByCombination) {
  Tally tally(2, {});
  const std::array<Tally::Code, 2> a{1, 2};
  const std::array<Tally::Code, 2> b{2, 1};
  tally.addRecord(tally.cellOf(a.data()), 5, 1);
  tally.addRecord(tally.cellOf(b.data()), 6, 1);
  tally.addRecord(tally.cellOf(a.data()), 7, 1);
  ASSERT_EQ(2U, tally.size());
  EXPECT_EQ(2U, tally.records(0));
  EXPECT_EQ(2, tally.count(0));
  EXPECT_EQ(5U, tally.first(0));
  EXPECT_EQ(6U, tally.first(1));
  EXPECT_EQ(2U, tally.key(1)[0]);
}

TEST(Tally, ACellMayHaveRecordsAndNoWeight) {
  Tally tally(1, {.weighted = true});
  const Tally::Code code = 3;
  tally.addRecord(tally.cellOf(&code), 1, 0);
  EXPECT_EQ(1U, tally.records(0));
  EXPECT_EQ(0, tally.count(0));
}

TEST(Tally, FindsOnlyWhatIsThere) {
  Tally tally(1, {});
  const Tally::Code there = 3;
  const Tally::Code absent = 4;
  tally.cellOf(&there);
  EXPECT_EQ(0U, tally.find(&there));
  EXPECT_EQ(tally.size(), tally.find(&absent));
}

TEST(Tally, ACombinationOfNothingIsOneCell) {
  Tally tally(0, {});
  EXPECT_EQ(0U, tally.cellOf(nullptr));
  EXPECT_EQ(0U, tally.cellOf(nullptr));
  EXPECT_EQ(1U, tally.size());
}

TEST(Tally, KeepsEachMeasureOfEachCell) {
  Tally tally(1, {.weighted = false, .measures = 2, .values = true});
  for (const Tally::Code code : {0U, 1U}) {
    const std::size_t cell = tally.cellOf(&code);
    tally.addValue(cell, 0, 10 + code, 1);
    tally.addValue(cell, 1, 20 + code, 1);
  }
  EXPECT_EQ(10, tally.moments(0, 0).mean());
  EXPECT_EQ(20, tally.moments(0, 1).mean());
  EXPECT_EQ(11, tally.moments(1, 0).mean());
  EXPECT_EQ(21, tally.values(1, 1).median());
}

TEST(Tally, MergeTakesOverWhatItKeepsItself) {
  Tally from(1, {.weighted = true, .measures = 1, .values = true});
  const Tally::Code code = 7;
  const std::size_t cell = from.cellOf(&code);
  from.addRecord(cell, 9, 2.5);
  from.addValue(cell, 0, 4, 2.5);

  Tally weights(1, {.weighted = true});
  weights.addRecord(weights.cellOf(&code), 11, 1);
  weights.merge(0, from, cell);
  EXPECT_EQ(2U, weights.records(0));
  EXPECT_EQ(3.5, weights.count(0));
  EXPECT_EQ(9U, weights.first(0));
}

TEST(Tally, AnswersAsAMapDoes) {
  Tally tally(3, {.weighted = true});
  std::map<Codes, std::pair<std::uint64_t, double>> model;
  std::uint64_t record = 0;
  runRandomOperations(3, 100'000, [&](Random& random) {
    Codes codes{};
    for (Tally::Code& code : codes) code = static_cast<Tally::Code>(random.below(40));
    const auto weight = static_cast<double>(random.below(5));
    const std::size_t cell = tally.cellOf(codes.data());
    tally.addRecord(cell, ++record, weight);
    auto& [records, count] = model[codes];
    ++records;
    count += weight;
    ASSERT_EQ(records, tally.records(cell));
    ASSERT_EQ(count, tally.count(cell));
    ASSERT_EQ(model.size(), tally.size());
  });
  for (const auto& [codes, content] : model) {
    EXPECT_EQ(content.first, tally.records(tally.find(codes.data())));
  }
}

TEST(Tally, IsAsBeforeWhenMemoryRunsOut) {
  const std::size_t failures = failEveryAllocation([](FailurePoint& failure) {
    Tally tally(1, {.weighted = true, .measures = 1, .values = true});
    for (Tally::Code code = 0; code < 80; ++code) {
      std::size_t cell = 0;
      if (!failure.during([&] { cell = tally.cellOf(&code); })) {
        EXPECT_EQ(code, tally.size());
        cell = tally.cellOf(&code);
      }
      EXPECT_EQ(code, cell);
      EXPECT_EQ(code, tally.key(cell)[0]);
    }
  });
  EXPECT_GT(failures, 10U);
}

}  // namespace
}  // namespace om::test
