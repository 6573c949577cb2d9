// OmVector: where its storage comes from, how it grows, and where elements go.

#include "backend/tables/OmVector.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <limits>
#include <stdexcept>
#include <string>
#include <vector>

#include "backend/tables/OmFootnote.h"
#include "external/cells/OmMemoryRegion.h"

namespace om::test {
namespace {

static_assert(omMovesBitwise<int> && omMovesBitwise<int*> && omMovesBitwise<OmFootnote>);
static_assert(!omMovesBitwise<std::string>, "a string points into itself");

template <class T>
std::vector<T> elementsOf(const OmVector<T>& vector) {
  return {vector.begin(), vector.end()};
}

OmVector<int> vectorOf(const std::vector<int>& values) {
  OmVector<int> vector;
  for (const int value : values) vector.push_back(value);
  return vector;
}

std::size_t heapBlocks() { return OmMemoryRegion::DefaultHeap()->BlocksInUse(); }

TEST(OmVector, HoldsFourPointers) { EXPECT_EQ(sizeof(OmVector<int>), 4 * sizeof(void*)); }

TEST(OmVector, ANullRegionMeansTheDefaultHeap) {
  EXPECT_EQ(OmVector<int>().region(), OmMemoryRegion::DefaultHeap());
  EXPECT_EQ(OmVector<int>(nullptr, 0).region(), OmMemoryRegion::DefaultHeap());
  EXPECT_EQ(OmVector<int>(nullptr, 3).region(), OmMemoryRegion::DefaultHeap());
}

TEST(OmVector, HoldsNoStorageUntilTheFirstElementArrives) {
  const std::size_t before = heapBlocks();
  OmVector<int> vector(nullptr, 0);
  EXPECT_EQ(vector.begin(), nullptr);
  EXPECT_EQ(vector.end(), nullptr);
  EXPECT_EQ(vector.capacity(), 0U);
  EXPECT_EQ(vector.size(), 0U);
  EXPECT_TRUE(vector.empty());
  EXPECT_EQ(heapBlocks(), before);
  EXPECT_EQ(vector.checkInvariants(), nullptr);
  vector.push_back(1);
  EXPECT_NE(vector.begin(), nullptr);
  EXPECT_EQ(heapBlocks(), before + 1);
}

TEST(OmVector, TakesAnInitialCapacityExactly) {
  OmMemoryRegion region(false);
  const OmVector<int> vector(&region, 5);
  EXPECT_EQ(vector.region(), &region);
  EXPECT_NE(vector.begin(), nullptr);
  EXPECT_EQ(vector.end(), vector.begin());
  EXPECT_EQ(vector.capacity(), 5U);
  EXPECT_EQ(region.BlocksInUse(), 1U);
  EXPECT_EQ(vector.checkInvariants(), nullptr);
}

TEST(OmVector, GivesItsStorageBackToItsRegion) {
  OmMemoryRegion region(false);
  const std::size_t heapBefore = heapBlocks();
  {
    OmVector<int> vector(&region);
    for (int i = 0; i < 100; ++i) vector.push_back(i);
    EXPECT_EQ(region.BlocksInUse(), 1U);
    EXPECT_EQ(heapBlocks(), heapBefore);
  }
  EXPECT_EQ(region.BlocksInUse(), 0U);
}

TEST(OmVector, GrowsToFourThenByDoubling) {
  OmVector<int> vector;
  std::vector<std::size_t> capacities;
  for (int i = 0; i < 17; ++i) {
    vector.push_back(i);
    capacities.push_back(vector.capacity());
  }
  EXPECT_EQ(capacities,
            (std::vector<std::size_t>{4, 4, 4, 4, 8, 8, 8, 8, 16, 16, 16, 16, 16, 16, 16, 16, 32}));
}

TEST(OmVector, TheFifthElementMovesTheOthersIntoStorageForEight) {
  OmVector<int> vector = vectorOf({1, 2, 3, 4});
  ASSERT_EQ(vector.capacity(), 4U);
  const int* const before = vector.begin();
  vector.push_back(5);
  EXPECT_EQ(vector.capacity(), 8U);
  EXPECT_NE(vector.begin(), before);
  EXPECT_EQ(elementsOf(vector), (std::vector<int>{1, 2, 3, 4, 5}));
}

TEST(OmVector, GrowsFromAnyCapacityToThePowerOfTwoAboveItsSize) {
  const std::vector<std::pair<std::size_t, std::size_t>> cases = {
      {1, 4}, {2, 4}, {3, 4}, {4, 8}, {5, 8}, {7, 8}, {8, 16}, {9, 16}, {100, 128}};
  for (const auto& [full, grown] : cases) {
    OmVector<int> vector(nullptr, full);
    for (std::size_t i = 0; i < full; ++i) vector.push_back(0);
    EXPECT_EQ(vector.capacity(), full);
    vector.push_back(0);
    EXPECT_EQ(vector.capacity(), grown) << "from " << full;
  }
}

TEST(OmVector, InsertGrowsByTheSameRule) {
  OmVector<int> vector(nullptr, 5);
  for (int i = 0; i < 5; ++i) vector.insert(0, i);
  EXPECT_EQ(vector.capacity(), 5U);
  vector.insert(0, 5);
  EXPECT_EQ(vector.capacity(), 8U);
  OmVector<int> empty;
  empty.insert(0, 1);
  EXPECT_EQ(empty.capacity(), 4U);
}

TEST(OmVector, ReserveTakesExactlyWhatIsAskedFor) {
  OmMemoryRegion region(false);
  OmVector<int> vector(&region);
  vector.push_back(1);
  vector.push_back(2);
  vector.reserve(7);
  EXPECT_EQ(vector.capacity(), 7U);
  EXPECT_EQ(elementsOf(vector), (std::vector<int>{1, 2}));
  EXPECT_EQ(region.BlocksInUse(), 1U);
}

TEST(OmVector, ReserveDoesNothingWhereThereIsRoom) {
  OmVector<int> vector = vectorOf({1, 2, 3, 4, 5});
  ASSERT_EQ(vector.capacity(), 8U);
  const int* const before = vector.begin();
  vector.reserve(8);
  vector.reserve(6);
  vector.reserve(0);
  EXPECT_EQ(vector.begin(), before);
  EXPECT_EQ(vector.capacity(), 8U);
}

TEST(OmVector, ReserveOfNothingTakesNoStorage) {
  OmVector<int> vector;
  vector.reserve(0);
  EXPECT_EQ(vector.begin(), nullptr);
}

TEST(OmVector, MakeRoomGrowsAsAddingOneByOneWould) {
  struct Case {
    std::size_t capacity, size, more;
  };
  for (const auto& [capacity, size, more] : {Case{0, 0, 1},
                                             {0, 0, 5},
                                             {4, 4, 1},
                                             {4, 4, 5},
                                             {5, 5, 3},
                                             {5, 5, 4},
                                             {5, 3, 3},
                                             {9, 2, 40}}) {
    OmVector<int> atOnce(nullptr, capacity);
    OmVector<int> oneByOne(nullptr, capacity);
    for (std::size_t i = 0; i < size; ++i) atOnce.push_back(0);
    for (std::size_t i = 0; i < size + more; ++i) oneByOne.push_back(0);
    atOnce.makeRoom(more);
    EXPECT_EQ(atOnce.capacity(), oneByOne.capacity()) << capacity << ' ' << size << ' ' << more;
    EXPECT_EQ(atOnce.size(), size);
  }
}

TEST(OmVector, MakeRoomForOneMoreGrowsAFullVectorOfFourToEight) {
  OmVector<int> vector = vectorOf({1, 2, 3, 4});
  vector.makeRoom();
  EXPECT_EQ(vector.capacity(), 8U);
  EXPECT_EQ(elementsOf(vector), (std::vector<int>{1, 2, 3, 4}));
}

TEST(OmVector, MakeRoomDoesNothingWhereThereIsRoom) {
  OmVector<int> vector = vectorOf({1, 2, 3});
  const int* const before = vector.begin();
  vector.makeRoom(1);
  vector.makeRoom(0);
  EXPECT_EQ(vector.begin(), before);
  EXPECT_EQ(vector.capacity(), 4U);
}

TEST(OmVector, AbandonGivesTheStorageBackAndLeavesAnEmptyVector) {
  OmMemoryRegion region(false);
  OmVector<int> vector(&region);
  vector.push_back(1);
  vector.abandon();
  EXPECT_EQ(region.BlocksInUse(), 0U);
  EXPECT_EQ(vector.begin(), nullptr);
  EXPECT_EQ(vector.end(), nullptr);
  EXPECT_EQ(vector.capacity(), 0U);
  EXPECT_EQ(vector.region(), &region);
  vector.push_back(2);
  EXPECT_EQ(elementsOf(vector), (std::vector<int>{2}));
}

TEST(OmVector, GivesItsElements) {
  OmVector<int> vector = vectorOf({1, 2, 3});
  EXPECT_EQ(vector.front(), 1);
  EXPECT_EQ(vector[1], 2);
  EXPECT_EQ(vector.back(), 3);
  vector.front() = 10;
  vector[1] = 20;
  vector.back() = 30;
  const OmVector<int>& constVector = vector;
  EXPECT_EQ(constVector.front(), 10);
  EXPECT_EQ(constVector[1], 20);
  EXPECT_EQ(constVector.back(), 30);
  EXPECT_EQ(constVector.size(), 3U);
  EXPECT_FALSE(constVector.empty());
}

TEST(OmVector, EmplaceGivesTheNewElement) {
  OmVector<int> vector;
  int& added = vector.emplace_back(7);
  EXPECT_EQ(&added, &vector.back());
  EXPECT_EQ(vector.back(), 7);
}

TEST(OmVector, InsertsAtEveryPositionWhileThereIsRoom) {
  for (std::size_t position = 0; position <= 3; ++position) {
    OmVector<int> vector = vectorOf({1, 2, 3});
    std::vector<int> expected{1, 2, 3};
    expected.insert(expected.begin() + static_cast<std::ptrdiff_t>(position), 9);
    const int& inserted = vector.insert(position, 9);
    EXPECT_EQ(&inserted, vector.begin() + position);
    EXPECT_EQ(elementsOf(vector), expected);
  }
}

TEST(OmVector, InsertsAtEveryPositionWhileItGrows) {
  for (std::size_t position = 0; position <= 4; ++position) {
    OmVector<int> vector = vectorOf({1, 2, 3, 4});
    std::vector<int> expected{1, 2, 3, 4};
    expected.insert(expected.begin() + static_cast<std::ptrdiff_t>(position), 9);
    const int& inserted = vector.insert(position, 9);
    EXPECT_EQ(&inserted, vector.begin() + position);
    EXPECT_EQ(elementsOf(vector), expected);
  }
}

TEST(OmVector, ErasesAtEveryPosition) {
  for (std::size_t position = 0; position < 4; ++position) {
    OmVector<int> vector = vectorOf({1, 2, 3, 4});
    std::vector<int> expected{1, 2, 3, 4};
    expected.erase(expected.begin() + static_cast<std::ptrdiff_t>(position));
    vector.erase(position);
    EXPECT_EQ(elementsOf(vector), expected);
    EXPECT_EQ(vector.capacity(), 4U);
  }
}

TEST(OmVector, ErasingTheOnlyElementKeepsTheStorage) {
  OmVector<int> vector = vectorOf({1});
  const int* const before = vector.begin();
  vector.erase(0);
  EXPECT_TRUE(vector.empty());
  EXPECT_EQ(vector.begin(), before);
  EXPECT_EQ(vector.capacity(), 4U);
}

TEST(OmVector, ClearKeepsTheStorage) {
  OmVector<int> vector = vectorOf({1, 2, 3, 4, 5});
  const int* const before = vector.begin();
  vector.clear();
  EXPECT_TRUE(vector.empty());
  EXPECT_EQ(vector.begin(), before);
  EXPECT_EQ(vector.end(), before);
  EXPECT_EQ(vector.capacity(), 8U);
  vector.push_back(6);
  EXPECT_EQ(vector.begin(), before);
  EXPECT_EQ(elementsOf(vector), (std::vector<int>{6}));
}

TEST(OmVector, ClearOfAVectorWithoutStorageDoesNothing) {
  OmVector<int> vector;
  vector.clear();
  EXPECT_EQ(vector.begin(), nullptr);
  EXPECT_EQ(vector.checkInvariants(), nullptr);
}

TEST(OmVector, ACopyLivesInTheRegionOfItsSource) {
  OmMemoryRegion region(false);
  OmVector<int> vector(&region);
  vector.push_back(1);
  vector.push_back(2);
  OmVector<int> copy(vector);
  EXPECT_EQ(copy.region(), &region);
  EXPECT_EQ(region.BlocksInUse(), 2U);
  copy[0] = 9;
  EXPECT_EQ(elementsOf(copy), (std::vector<int>{9, 2}));
  EXPECT_EQ(elementsOf(vector), (std::vector<int>{1, 2}));
}

TEST(OmVector, ACopyIsMadeInAnotherRegionOnDemand) {
  OmMemoryRegion region(false);
  OmMemoryRegion other(false);
  OmVector<int> vector(&region);
  vector.push_back(1);
  const OmVector<int> copy(vector, &other);
  EXPECT_EQ(copy.region(), &other);
  EXPECT_EQ(other.BlocksInUse(), 1U);
  EXPECT_EQ(elementsOf(copy), (std::vector<int>{1}));
  const OmVector<int> inHeap(vector, nullptr);
  EXPECT_EQ(inHeap.region(), OmMemoryRegion::DefaultHeap());
}

TEST(OmVector, ACopyOfAnEmptyVectorHoldsNoStorage) {
  const OmVector<int> empty;
  const OmVector<int> copy(empty);
  EXPECT_EQ(copy.begin(), nullptr);
}

TEST(OmVector, AssignmentCopiesTheElementsAndKeepsItsOwnRegion) {
  OmMemoryRegion region(false);
  OmMemoryRegion other(false);
  OmVector<int> vector(&region);
  vector.push_back(1);
  OmVector<int> source(&other);
  source.push_back(2);
  source.push_back(3);
  EXPECT_EQ(&(vector = source), &vector);
  EXPECT_EQ(vector.region(), &region);
  EXPECT_EQ(region.BlocksInUse(), 1U);
  EXPECT_EQ(other.BlocksInUse(), 1U);
  EXPECT_EQ(elementsOf(vector), (std::vector<int>{2, 3}));
  EXPECT_EQ(elementsOf(source), (std::vector<int>{2, 3}));
}

TEST(OmVector, AssignmentToItselfChangesNothing) {
  OmVector<int> vector = vectorOf({1, 2});
  const int* const before = vector.begin();
  const OmVector<int>& itself = vector;
  vector = itself;
  EXPECT_EQ(vector.begin(), before);
  EXPECT_EQ(elementsOf(vector), (std::vector<int>{1, 2}));
}

TEST(OmVector, MoreElementsThanAddressesAreALengthError) {
  constexpr std::size_t kMost = std::numeric_limits<std::ptrdiff_t>::max() / sizeof(std::int64_t);
  OmVector<std::int64_t> vector;
  vector.push_back(1);
  const std::int64_t* const before = vector.begin();
  for (const std::size_t count : {kMost + 1, std::numeric_limits<std::size_t>::max()}) {
    std::string text;
    try {
      vector.reserve(count);
    } catch (const std::length_error& error) {
      text = error.what();
    }
    EXPECT_EQ(text, "vector<T> too long");
  }
  EXPECT_EQ(vector.begin(), before);
  EXPECT_EQ(elementsOf(vector), (std::vector<std::int64_t>{1}));
}

TEST(OmVector, AnInitialCapacityBeyondTheLimitIsALengthError) {
  OmMemoryRegion region(false);
  std::string text;
  try {
    const OmVector<int> vector(&region, std::numeric_limits<std::size_t>::max());
  } catch (const std::length_error& error) {
    text = error.what();
  }
  EXPECT_EQ(text, "vector<T> too long");
  EXPECT_EQ(region.BlocksInUse(), 0U);
}

}  // namespace
}  // namespace om::test
