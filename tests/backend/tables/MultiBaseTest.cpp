// Mixed-radix numbers: encoding, decoding and the two reports.

#include "backend/tables/MultiBase.h"

#include <gtest/gtest.h>

#include <initializer_list>

#include "tests/support/Allocations.h"
#include "tests/support/Asserts.h"
#include "tests/support/Oracle.h"

namespace om::test {
namespace {

using Digits = MultiBase::Digits;

// Over dimensions 0, 1, ... with these sizes.
MultiBase baseOf(const std::vector<int>& sizes) {
  PuppetVector<short> dimensions;
  for (std::size_t i = 0; i < sizes.size(); ++i) dimensions.push_back(static_cast<short>(i));
  return {dimensions, sizes};
}

Digits decoded(const MultiBase& base, std::uint64_t position) {
  Digits digits;
  base.decode(position, digits);
  return digits;
}

const Report kUnequal{L"digit == end && i == size", L"backend/tables/MultiBase", 148};
const Report kRadix{L"b>0", L"backend/tables/MultiBase", 126};

TEST(MultiBase, TakesTheRadixOfEachListedDimensionFromTheSizes) {
  PuppetVector<short> dimensions;
  dimensions.push_back(2);
  dimensions.push_back(0);
  const MultiBase base(dimensions, {5, 6, 7});
  ASSERT_EQ(base.size(), 2U);
  EXPECT_EQ(base.dimension(0), 2);
  EXPECT_EQ(base.dimension(1), 0);
  EXPECT_EQ(base.radix(0), 7);
  EXPECT_EQ(base.radix(1), 5);
  EXPECT_EQ(base.count(), 35U);
}

TEST(MultiBase, GivesRadixOneToAnEntryWithoutADimension) {
  PuppetVector<short> dimensions;
  dimensions.push_back(-1);
  dimensions.push_back(1);
  dimensions.push_back(2);
  const MultiBase base(dimensions, {4, 3});
  EXPECT_EQ(base.radix(0), 1);
  EXPECT_EQ(base.radix(2), 1);
  EXPECT_EQ(base.count(), 3U);
  EXPECT_EQ(decoded(base, 2), (Digits{0, 2, 0}));
}

TEST(MultiBase, CountsOnePositionWithoutDimensions) {
  EXPECT_EQ(MultiBase().count(), 1U);
  EXPECT_EQ(baseOf({}).count(), 1U);
}

TEST(MultiBase, CountsNoPositionWithARadixOfZero) { EXPECT_EQ(baseOf({4, 0, 3}).count(), 0U); }

TEST(MultiBase, CountsBeyondThirtyTwoBits) {
  EXPECT_EQ(baseOf({100000, 100000}).count(), 10000000000ULL);
}

TEST(MultiBase, WeighsADigitByTheRadicesBehindIt) {
  const MultiBase base = baseOf({4, 5, 6});
  EXPECT_EQ(base.weight(0), 30U);
  EXPECT_EQ(base.weight(1), 6U);
  EXPECT_EQ(base.weight(2), 1U);
}

TEST(MultiBase, TheFirstDigitChangesSlowest) {
  const MultiBase base = baseOf({2, 3});
  EXPECT_EQ(decoded(base, 0), (Digits{0, 0}));
  EXPECT_EQ(decoded(base, 1), (Digits{0, 1}));
  EXPECT_EQ(decoded(base, 2), (Digits{0, 2}));
  EXPECT_EQ(decoded(base, 3), (Digits{1, 0}));
  EXPECT_EQ(decoded(base, 4), (Digits{1, 1}));
  EXPECT_EQ(decoded(base, 5), (Digits{1, 2}));
}

TEST(MultiBase, EncodesWhatItDecodes) {
  EXPECT_EQ(baseOf({2, 3}).encode({1, 2}), 5U);
  EXPECT_EQ(baseOf({3, 4}).encode({2, 1}), 9U);
  EXPECT_EQ(decoded(baseOf({3, 4}), 9), (Digits{2, 1}));
}

TEST(MultiBase, DoesNotReduceTheFirstDigit) {
  EXPECT_EQ(decoded(baseOf({2, 3}), 7), (Digits{2, 1}));
  EXPECT_EQ(decoded(baseOf({2}), 9), (Digits{9}));
  EXPECT_EQ(baseOf({2, 3}).encode({2, 1}), 7U);
}

TEST(MultiBase, EncodesWithoutEverUsingTheFirstRadix) {
  EXPECT_EQ(baseOf({0, 10}).encode({3, 4}), 34U);
}

TEST(MultiBase, EncodesNothingToPositionZero) { EXPECT_EQ(MultiBase().encode({}), 0U); }

TEST(MultiBase, ReportsMissingDigitsAndEncodesThoseItHas) {
  const AssertCollector collector;
  EXPECT_EQ(baseOf({2, 3, 4}).encode({1, 2}), 5U);
  EXPECT_EQ(collector.reports(), std::vector<Report>{kUnequal});
}

TEST(MultiBase, ReportsDigitsTooManyAndEncodesThoseWithARadix) {
  const AssertCollector collector;
  EXPECT_EQ(baseOf({2, 3}).encode({1, 2, 9}), 5U);
  EXPECT_EQ(collector.reports(), std::vector<Report>{kUnequal});
}

TEST(MultiBase, ReportsDigitsWithoutRadicesAndRadicesWithoutDigits) {
  const AssertCollector collector;
  EXPECT_EQ(MultiBase().encode({6}), 6U);
  EXPECT_EQ(collector.reports().size(), 1U);
  EXPECT_EQ(baseOf({4}).encode({}), 0U);
  EXPECT_EQ(collector.reports(), (std::vector<Report>{kUnequal, kUnequal}));
}

TEST(MultiBase, DecodesNoDigitsWithoutRadices) { EXPECT_TRUE(decoded(MultiBase(), 5).empty()); }

TEST(MultiBase, DecodesZeroWithoutLookingAtARadix) {
  EXPECT_EQ(decoded(baseOf({3, 0, 0}), 0), (Digits{0, 0, 0}));
}

TEST(MultiBase, ReportsARadixOfZeroAndGoesOnWithTheNextOne) {
  const AssertCollector collector;
  // 7 by the last radix is 3 and leaves 1; the second radix is passed over; 1 is left.
  EXPECT_EQ(decoded(baseOf({5, 0, 4}), 7), (Digits{1, 0, 3}));
  EXPECT_EQ(collector.reports(), std::vector<Report>{kRadix});
}

TEST(MultiBase, ReportsANegativeRadix) {
  const AssertCollector collector;
  EXPECT_EQ(decoded(baseOf({5, -2}), 7), (Digits{7, 0}));
  EXPECT_EQ(collector.reports(), std::vector<Report>{kRadix});
}

TEST(MultiBase, LooksAtARadixOnlyWhenSomethingIsLeftToDivide) {
  // 2 is the last digit, and nothing is left at the radix of zero.
  EXPECT_EQ(decoded(baseOf({5, 0, 4}), 2), (Digits{0, 0, 2}));
}

TEST(MultiBase, NeverLooksAtTheFirstRadixWhenItDecodes) {
  EXPECT_EQ(decoded(baseOf({0, 4}), 7), (Digits{1, 3}));
}

TEST(MultiBase, FormerDigitsLeaveNoTrace) {
  const MultiBase base = baseOf({2, 3});
  Digits digits{7, 7, 7};
  base.decode(1, digits);
  EXPECT_EQ(digits, (Digits{0, 1}));
}

TEST(MultiBase, DecodesWithoutAnAllocationWhereThereIsRoom) {
  const MultiBase base = baseOf({2, 3, 4});
  Digits digits(3);
  const std::size_t before = totalNewBlocks();
  base.decode(17, digits);
  EXPECT_EQ(totalNewBlocks(), before);
  EXPECT_EQ(digits, (Digits{1, 1, 1}));
}

TEST(MultiBase, OneDigitIsThatOfTheWholeNumber) {
  Random random(61);
  for (int run = 0; run < 2000; ++run) {
    std::vector<int> sizes(1 + random.below(5));
    for (int& size : sizes) size = static_cast<int>(1 + random.below(run % 2 == 0 ? 6 : 40000));
    if (sizes.size() > 4) sizes.resize(4);  // below 2^64 positions
    const MultiBase base = baseOf(sizes);
    const std::uint64_t position = random.below(base.count());
    const Digits digits = decoded(base, position);
    for (std::size_t i = 0; i < sizes.size(); ++i) {
      ASSERT_EQ(base.digit(position, i), digits[i]) << "position " << position << ", digit " << i;
    }
    ASSERT_EQ(base.encode(digits), position);
  }
}

}  // namespace
}  // namespace om::test
