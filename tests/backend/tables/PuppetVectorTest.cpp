// PuppetVector: a vector that access beyond its end lengthens.

#include "backend/tables/PuppetVector.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <limits>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "tests/support/Allocations.h"

namespace om::test {
namespace {

using Axis = PuppetVector<short>;

static_assert(std::is_same_v<decltype(std::declval<Axis&>()[0]), short&>);

Axis axisOf(const std::vector<short>& entries) {
  Axis axis;
  for (const short entry : entries) axis.push_back(entry);
  return axis;
}

std::vector<short> entriesOf(const Axis& axis) { return {axis.begin(), axis.end()}; }

std::string lengthErrorOf(Axis& axis, std::size_t position) {
  try {
    axis[position] = 1;
  } catch (const std::length_error& error) {
    return error.what();
  }
  return "none";
}

TEST(PuppetVector, IsEmptyAtFirstAndItsDefaultValueIsMinusOne) {
  const Axis axis;
  EXPECT_EQ(axis.size(), 0U);
  EXPECT_TRUE(axis.empty());
  EXPECT_EQ(axis.begin(), axis.end());
  EXPECT_EQ(axis.defaultValue(), -1);
}

TEST(PuppetVector, TheEmptyEntryHasAllBitsSet) {
  EXPECT_EQ(static_cast<std::uint16_t>(Axis().defaultValue()), 0xFFFF);
}

TEST(PuppetVector, AppendsEntriesInOrder) {
  const Axis axis = axisOf({3, 1, 2});
  EXPECT_EQ(axis.size(), 3U);
  EXPECT_FALSE(axis.empty());
  EXPECT_EQ(entriesOf(axis), (std::vector<short>{3, 1, 2}));
}

TEST(PuppetVector, GivesTheEntryAtAPosition) {
  Axis axis = axisOf({3, 1});
  EXPECT_EQ(axis[0], 3);
  axis[1] = 7;
  EXPECT_EQ(entriesOf(axis), (std::vector<short>{3, 7}));
}

TEST(PuppetVector, AccessAtTheEndAddsOneDefaultValue) {
  Axis axis = axisOf({3, 1});
  EXPECT_EQ(axis[2], -1);
  EXPECT_EQ(entriesOf(axis), (std::vector<short>{3, 1, -1}));
}

TEST(PuppetVector, AccessBeyondTheEndLengthensUntilThePositionExists) {
  Axis axis = axisOf({3});
  EXPECT_EQ(axis[4], -1);
  EXPECT_EQ(entriesOf(axis), (std::vector<short>{3, -1, -1, -1, -1}));
}

TEST(PuppetVector, AccessLengthensAnEmptyVector) {
  Axis axis;
  EXPECT_EQ(axis[0], -1);
  EXPECT_EQ(axis.size(), 1U);
}

TEST(PuppetVector, TheLengtheningEntryCanBeWritten) {
  Axis axis;
  axis[2] = 5;
  EXPECT_EQ(entriesOf(axis), (std::vector<short>{-1, -1, 5}));
}

TEST(PuppetVector, AccessToAnEntryThatExistsLengthensNothing) {
  Axis axis = axisOf({3, 1});
  EXPECT_EQ(axis[1], 1);
  EXPECT_EQ(axis.size(), 2U);
}

TEST(PuppetVector, AConstVectorReadsItsEntries) {
  const Axis axis = axisOf({3, 1});
  EXPECT_EQ(axis[0], 3);
  EXPECT_EQ(axis[1], 1);
}

TEST(PuppetVector, AConstVectorReadsTheDefaultValueBeyondItsEndAndStaysAsItIs) {
  const Axis axis = axisOf({3, 1});
  EXPECT_EQ(axis[2], -1);
  EXPECT_EQ(axis[100], -1);
  EXPECT_EQ(axis[std::numeric_limits<std::size_t>::max()], -1);
  EXPECT_EQ(axis.size(), 2U);
}

TEST(PuppetVector, ErasesTheEntryAtEveryPosition) {
  const std::vector<std::vector<short>> expected = {{2, 3}, {1, 3}, {1, 2}};
  for (std::size_t position = 0; position < 3; ++position) {
    Axis axis = axisOf({1, 2, 3});
    axis.erase(position);
    EXPECT_EQ(entriesOf(axis), expected[position]);
  }
}

TEST(PuppetVector, ErasingTheOnlyEntryLeavesAnEmptyVector) {
  Axis axis = axisOf({1});
  axis.erase(0);
  EXPECT_TRUE(axis.empty());
}

TEST(PuppetVector, ClearRemovesAllEntriesAndKeepsTheDefaultValue) {
  Axis axis = axisOf({1, 2});
  axis.clear();
  EXPECT_TRUE(axis.empty());
  EXPECT_EQ(axis[0], -1);
}

TEST(PuppetVector, ReversesItsEntries) {
  Axis axis = axisOf({1, 2, -1});
  axis.reverse();
  EXPECT_EQ(entriesOf(axis), (std::vector<short>{-1, 2, 1}));
  axis.push_back(4);
  axis.reverse();
  EXPECT_EQ(entriesOf(axis), (std::vector<short>{4, 1, 2, -1}));
  Axis empty;
  empty.reverse();
  EXPECT_TRUE(empty.empty());
}

TEST(PuppetVector, ACopyHasTheEntriesAndTheDefaultValue) {
  const Axis axis = axisOf({1, 2});
  Axis copy(axis);
  EXPECT_EQ(copy.defaultValue(), -1);
  EXPECT_EQ(copy[3], -1);
  EXPECT_EQ(entriesOf(copy), (std::vector<short>{1, 2, -1, -1}));
  EXPECT_EQ(entriesOf(axis), (std::vector<short>{1, 2}));
}

TEST(PuppetVector, AssignmentReplacesTheEntriesAndKeepsTheDefaultValue) {
  Axis axis = axisOf({1, 2, 3});
  axis = axisOf({4});
  EXPECT_EQ(entriesOf(axis), (std::vector<short>{4}));
  EXPECT_EQ(axis[1], -1);
  const Axis& itself = axis;
  axis = itself;
  EXPECT_EQ(entriesOf(axis), (std::vector<short>{4, -1}));
}

TEST(PuppetVector, VectorsWithTheSameEntriesAreEqual) {
  EXPECT_TRUE(axisOf({1, 2}) == axisOf({1, 2}));
  EXPECT_FALSE(axisOf({1, 2}) == axisOf({2, 1}));
  EXPECT_FALSE(axisOf({1}) == axisOf({1, -1}));
}

TEST(PuppetVector, EntriesAreWalkedAndWritten) {
  Axis axis = axisOf({1, 2, 3});
  for (short& entry : axis) entry = static_cast<short>(entry * 10);
  EXPECT_EQ(entriesOf(axis), (std::vector<short>{10, 20, 30}));
}

TEST(PuppetVector, ThePositionsOfAShortAreReached) {
  Axis axis;
  axis[32767] = 32767;
  EXPECT_EQ(axis.size(), 32768U);
  EXPECT_EQ(axis[32766], -1);
  EXPECT_EQ(axis[32767], 32767);
}

TEST(PuppetVector, APositionThatNoVectorHasIsALengthErrorAndChangesNothing) {
  Axis axis = axisOf({1, 2});
  EXPECT_EQ(lengthErrorOf(axis, std::numeric_limits<std::size_t>::max()), "vector<T> too long");
  EXPECT_EQ(lengthErrorOf(axis, std::numeric_limits<std::size_t>::max() / 2), "vector<T> too long");
  EXPECT_EQ(lengthErrorOf(axis, std::numeric_limits<std::ptrdiff_t>::max() / sizeof(short)),
            "vector<T> too long");
  EXPECT_EQ(entriesOf(axis), (std::vector<short>{1, 2}));
}

// A copy that nobody sees may be optimised away with its allocation.
const short* volatile lastCopy = nullptr;

template <class Operation>
std::size_t expectUnchangedByFailure(Operation operation) {
  return failEveryAllocation([&](FailurePoint& point) {
    Axis axis = axisOf({1, 2, 3, 4});
    const Axis longer = axisOf({9, 8, 7, 6, 5, 4, 3, 2, 1});
    const bool completed = point.during([&] { operation(axis, longer); });
    EXPECT_NE(completed, point.failed());
    if (completed) return;
    EXPECT_EQ(entriesOf(axis), (std::vector<short>{1, 2, 3, 4}));
    EXPECT_EQ(axis.defaultValue(), -1);
  });
}

TEST(PuppetVector, AnAllocationThatFailsLeavesTheVectorAsBefore) {
  EXPECT_EQ(expectUnchangedByFailure([](Axis& axis, const Axis&) { axis[100] = 1; }), 1U);
  EXPECT_EQ(expectUnchangedByFailure([](Axis& axis, const Axis&) { axis.push_back(1); }), 1U);
  EXPECT_EQ(expectUnchangedByFailure([](Axis& axis, const Axis& longer) { axis = longer; }), 1U);
  EXPECT_EQ(expectUnchangedByFailure([](const Axis& axis, const Axis&) {
              const Axis copy(axis);
              lastCopy = &*copy.begin();
            }),
            1U);
}

TEST(PuppetVector, EraseClearReverseAndConstAccessAllocateNothing) {
  EXPECT_EQ(expectUnchangedByFailure([](Axis& axis, const Axis& longer) {
              axis.erase(0);
              axis.reverse();
              axis.clear();
              if (longer[1000] != -1) axis[1000] = 0;
            }),
            0U);
}

}  // namespace
}  // namespace om::test
