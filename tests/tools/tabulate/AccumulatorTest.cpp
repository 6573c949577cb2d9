// Sums, moments and medians of numbers with and without weights.

#include "tools/tabulate/Accumulator.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "tests/support/Oracle.h"

namespace om::test {
namespace {

using tabulate::CompensatedSum;
using tabulate::Moments;
using tabulate::ValueWeights;

TEST(CompensatedSum, KeepsWhatPlainAdditionLoses) {
  CompensatedSum sum;
  for (const double x : {1e16, 1.0, 1.0, -1e16}) sum.add(x);
  EXPECT_EQ(2, sum.value());
  CompensatedSum tenths;
  for (int i = 0; i < 1'000'000; ++i) tenths.add(0.1);
  EXPECT_EQ(100'000, tenths.value());
}

TEST(CompensatedSum, KeepsTheDigitsOfProducts) {
  // (2^27 + 1)^2 = 2^54 + 2^28 + 1, of which a double keeps no 1.
  const double a = 134217729;
  CompensatedSum sum;
  sum.addProduct(a, a);
  sum.add(-18014398777917440.0);  // 2^54 + 2^28
  EXPECT_EQ(1, sum.value());
}

TEST(CompensatedSum, MergesErrorsToo) {
  CompensatedSum left;
  left.add(1e16);
  left.add(1);
  CompensatedSum right;
  right.add(-1e16);
  right.add(1);
  left.merge(right);
  EXPECT_EQ(2, left.value());
}

TEST(CompensatedSum, BeyondTheLargestNumberIsInfinite) {
  CompensatedSum sum;
  sum.add(1.7e308);
  sum.add(1.7e308);
  EXPECT_EQ(std::numeric_limits<double>::infinity(), sum.value());
}

Moments momentsOf(std::initializer_list<double> numbers) {
  Moments moments;
  for (const double x : numbers) moments.add(x, 1);
  return moments;
}

TEST(Moments, AreThoseOfTheNumbers) {
  // Mean 5, squared deviations 9 1 1 1 0 0 4 16 = 32, divided by 7.
  const Moments moments = momentsOf({2, 4, 4, 4, 5, 5, 7, 9});
  EXPECT_EQ(8U, moments.n());
  EXPECT_EQ(40, moments.sum());
  EXPECT_EQ(5, moments.mean());
  EXPECT_NEAR(std::sqrt(32.0 / 7), moments.sd(), 1e-15);
  EXPECT_EQ(2, moments.least());
  EXPECT_EQ(9, moments.greatest());
}

TEST(Moments, DeviationIsRightFarFromZero) {
  // The mean is 1e9 + 10, the squared deviations are 36 9 9 36, and 90 / 3 is 30.
  const Moments moments = momentsOf({1e9 + 4, 1e9 + 7, 1e9 + 13, 1e9 + 16});
  EXPECT_DOUBLE_EQ(std::sqrt(30.0), moments.sd());
}

TEST(Moments, OfNothingHaveNoValues) {
  const Moments moments;
  EXPECT_EQ(0U, moments.n());
  EXPECT_TRUE(std::isnan(moments.mean()));
  EXPECT_TRUE(std::isnan(moments.sd()));
  EXPECT_TRUE(std::isnan(moments.least()));
  EXPECT_TRUE(std::isnan(moments.greatest()));
}

TEST(Moments, OneNumberHasNoDeviation) {
  EXPECT_TRUE(std::isnan(momentsOf({3}).sd()));
  EXPECT_EQ(3, momentsOf({3}).mean());
}

TEST(Moments, AWeightCountsAsSoManyRecords) {
  Moments weighted;
  weighted.add(2, 1);
  weighted.add(4, 3);
  weighted.add(5, 2);
  weighted.add(7, 1);
  weighted.add(9, 1);
  EXPECT_EQ(5U, weighted.n());
  EXPECT_EQ(8, weighted.weight());
  EXPECT_EQ(40, weighted.sum());
  EXPECT_EQ(5, weighted.mean());
  EXPECT_NEAR(std::sqrt(32.0 / 7), weighted.sd(), 1e-15);
}

TEST(Moments, AWeightOfZeroCountsOnlyForN) {
  Moments moments;
  moments.add(100, 0);
  EXPECT_EQ(1U, moments.n());
  EXPECT_TRUE(std::isnan(moments.mean()));
  EXPECT_TRUE(std::isnan(moments.greatest()));
  moments.add(3, 2);
  EXPECT_EQ(3, moments.mean());
  EXPECT_EQ(0, moments.sd());
  EXPECT_EQ(3, moments.greatest());
}

TEST(Moments, MergingIsAddingAll) {
  Moments left = momentsOf({2, 4, 4});
  left.merge(momentsOf({4, 5, 5, 7, 9}));
  left.merge(Moments());
  EXPECT_EQ(8U, left.n());
  EXPECT_EQ(40, left.sum());
  EXPECT_EQ(5, left.mean());
  EXPECT_NEAR(std::sqrt(32.0 / 7), left.sd(), 1e-15);
  EXPECT_EQ(2, left.least());
  EXPECT_EQ(9, left.greatest());
  Moments empty;
  empty.merge(left);
  EXPECT_NEAR(std::sqrt(32.0 / 7), empty.sd(), 1e-15);
}

double medianOf(std::initializer_list<std::pair<double, double>> numbers) {
  ValueWeights values;
  for (const auto& [x, weight] : numbers) values.add(x, weight);
  return values.median();
}

TEST(ValueWeights, MedianIsTheMiddleNumberOrBetweenTheTwo) {
  EXPECT_EQ(3, medianOf({{5, 1}, {1, 1}, {3, 1}}));
  EXPECT_EQ(4, medianOf({{5, 1}, {1, 1}, {3, 1}, {9, 1}}));
  EXPECT_EQ(7, medianOf({{7, 1}}));
  EXPECT_TRUE(std::isnan(medianOf({})));
}

TEST(ValueWeights, MedianOfWeightsIsThatOfSoManyRecords) {
  EXPECT_EQ(1, medianOf({{9, 1}, {1, 3}, {5, 1}}));       // 1 1 1 5 9
  EXPECT_EQ(3, medianOf({{1, 2}, {5, 1}, {9, 1}}));       // 1 1 5 9
  EXPECT_EQ(2, medianOf({{1, 0.5}, {2, 1}, {3, 0.25}}));  // half of 1.75 is within 2
  EXPECT_EQ(4, medianOf({{1, 0}, {4, 1}, {100, 0}}));
  EXPECT_TRUE(std::isnan(medianOf({{1, 0}})));
}

TEST(ValueWeights, MedianIsThatOfASortedList) {
  runRandomOperations(2, 200, [](Random& random) {
    ValueWeights values;
    ValueWeights merged;
    std::vector<double> list;
    const std::size_t count = 1 + random.below(500);
    for (std::size_t i = 0; i < count; ++i) {
      const auto x = static_cast<double>(random.below(200));
      list.push_back(x);
      (random.oneIn(2) ? values : merged).add(x, 1);
    }
    values.merge(merged);
    std::sort(list.begin(), list.end());
    EXPECT_EQ((list[(count - 1) / 2] + list[count / 2]) / 2, values.median());
  });
}

}  // namespace
}  // namespace om::test
