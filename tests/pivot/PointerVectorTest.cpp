// The node of the cell store alone: its growth, its padding and its scan for the next element.

#include "pivot/internal/PointerVector.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include "external/cells/OmMemoryRegion.h"
#include "tests/support/Allocations.h"

namespace om::test {
namespace {

using internal::PointerVector;

static_assert(sizeof(PointerVector) == 4 * sizeof(void*));

class PointerVectorTest : public testing::Test {
 protected:
  // "size/capacity"
  static std::string form(const PointerVector& vector) {
    return std::to_string(vector.size()) + "/" + std::to_string(vector.capacity());
  }
  void* element(std::size_t i) { return &targets_[i]; }
  void push(PointerVector& vector, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) vector.push_back(element(i));
  }
  // Leaves blocks behind in the region that are not filled with zeros.
  void soil(std::size_t bytes) {
    std::vector<void*> blocks;
    for (int i = 0; i < 4; ++i) {
      blocks.push_back(region_.Allocate(bytes));
      std::memset(blocks.back(), 0xFF, bytes);
    }
    for (void* const block : blocks) OmMemoryRegion::Release(block);
  }

  OmMemoryRegion region_{false};
  char targets_[256] = {};
};

TEST_F(PointerVectorTest, IsEmptyAndWithoutStorageFromTheStart) {
  const PointerVector vector(region_);
  EXPECT_EQ(form(vector), "0/0");
  EXPECT_EQ(region_.BlocksInUse(), 0U);
}

TEST_F(PointerVectorTest, IsItselfDrawnFromTheRegionAndGivenBackWithItsStorage) {
  std::unique_ptr<PointerVector> vector(new (region_) PointerVector(region_));
  EXPECT_EQ(region_.BlocksInUse(), 1U);
  vector->push_back(element(0));
  EXPECT_EQ(region_.BlocksInUse(), 2U);
  vector.reset();
  EXPECT_EQ(region_.BlocksInUse(), 0U);
}

TEST_F(PointerVectorTest, PushBackKeepsTheElementsInOrder) {
  PointerVector vector(region_);
  push(vector, 20);
  ASSERT_EQ(vector.size(), 20U);
  for (std::size_t i = 0; i < 20; ++i) EXPECT_EQ(vector[i], element(i));
}

TEST_F(PointerVectorTest, PushBackGrowsFrom4ByDoubling) {
  PointerVector vector(region_);
  const std::vector<std::size_t> expected{4,  4,  4,  4,  8,  8,  8,  8, 16,
                                          16, 16, 16, 16, 16, 16, 16, 32};
  for (const std::size_t capacity : expected) {
    vector.push_back(nullptr);
    EXPECT_EQ(vector.capacity(), capacity) << "at size " << vector.size();
  }
}

TEST_F(PointerVectorTest, PushBackGoesFromAnyFullCapacityToTheNextOfTheSequence) {
  const auto grownFrom = [this](std::size_t capacity) {
    PointerVector vector(region_);
    vector.reserve(capacity);
    push(vector, capacity + 1);
    return vector.capacity();
  };
  EXPECT_EQ(grownFrom(1), 4U);
  EXPECT_EQ(grownFrom(3), 4U);
  EXPECT_EQ(grownFrom(4), 8U);
  EXPECT_EQ(grownFrom(6), 8U);
  EXPECT_EQ(grownFrom(8), 16U);
  EXPECT_EQ(grownFrom(101), 128U);
}

TEST_F(PointerVectorTest, PushBackKeepsACapacityThatIsNotFull) {
  PointerVector vector(region_);
  vector.reserve(6);
  push(vector, 6);
  EXPECT_EQ(form(vector), "6/6");
}

TEST_F(PointerVectorTest, ReserveMakesExactlyAsMuchRoomAndAddsNothing) {
  PointerVector vector(region_);
  vector.reserve(7);
  EXPECT_EQ(form(vector), "0/7");
}

TEST_F(PointerVectorTest, ReserveDoesNothingWhereThereIsRoom) {
  PointerVector vector(region_);
  vector.reserve(7);
  vector.push_back(element(0));
  void** const storage = &vector[0];
  vector.reserve(7);
  vector.reserve(3);
  vector.reserve(0);
  EXPECT_EQ(form(vector), "1/7");
  EXPECT_EQ(&vector[0], storage);
}

TEST_F(PointerVectorTest, ReserveTakesTheElementsAlongAndReleasesTheFormerStorage) {
  PointerVector vector(region_);
  push(vector, 3);
  vector.reserve(50);
  EXPECT_EQ(form(vector), "3/50");
  for (std::size_t i = 0; i < 3; ++i) EXPECT_EQ(vector[i], element(i));
  EXPECT_EQ(region_.BlocksInUse(), 1U);
}

TEST_F(PointerVectorTest, AnElementCanBeReplaced) {
  PointerVector vector(region_);
  push(vector, 2);
  vector[1] = element(9);
  const PointerVector& same = vector;
  EXPECT_EQ(same[0], element(0));
  EXPECT_EQ(same[1], element(9));
}

TEST_F(PointerVectorTest, ReachReservesExactlyBeyondTwiceTheCapacity) {
  const auto reached = [this](std::size_t capacity, std::size_t position) {
    PointerVector vector(region_);
    push(vector, capacity);
    vector.reach(position);
    return form(vector);
  };
  EXPECT_EQ(reached(0, 1), "2/2");
  EXPECT_EQ(reached(0, 5), "6/6");
  EXPECT_EQ(reached(4, 9), "10/10");
  EXPECT_EQ(reached(4, 100), "101/101");
  EXPECT_EQ(reached(8, 17), "18/18");
}

TEST_F(PointerVectorTest, ReachGrowsByDoublingUpToTwiceTheCapacity) {
  const auto reached = [this](std::size_t capacity, std::size_t position) {
    PointerVector vector(region_);
    push(vector, capacity);
    vector.reach(position);
    return form(vector);
  };
  EXPECT_EQ(reached(0, 0), "1/4");
  EXPECT_EQ(reached(4, 4), "5/8");
  EXPECT_EQ(reached(4, 7), "8/8");
  EXPECT_EQ(reached(4, 8), "9/16");
  EXPECT_EQ(reached(8, 16), "17/32");
}

TEST_F(PointerVectorTest, ReachGoesByTheCapacityAndNotByTheSize) {
  PointerVector vector(region_);
  vector.reserve(6);
  vector.push_back(element(0));
  vector.reach(12);
  EXPECT_EQ(form(vector), "13/16");

  PointerVector farther(region_);
  farther.reserve(6);
  farther.push_back(element(0));
  farther.reach(13);
  EXPECT_EQ(form(farther), "14/14");
}

TEST_F(PointerVectorTest, ReachWithinTheCapacityAllocatesNothing) {
  PointerVector vector(region_);
  vector.reserve(10);
  vector.push_back(element(0));
  void** const storage = &vector[0];
  EXPECT_EQ(vector.reach(9), nullptr);
  EXPECT_EQ(form(vector), "10/10");
  EXPECT_EQ(&vector[0], storage);
}

TEST_F(PointerVectorTest, ReachWithinTheSizeOnlyGivesTheElement) {
  PointerVector vector(region_);
  push(vector, 3);
  EXPECT_EQ(vector.reach(1), element(1));
  EXPECT_EQ(form(vector), "3/4");
}

TEST_F(PointerVectorTest, ReachGivesTheElementForWriting) {
  PointerVector vector(region_);
  vector.reach(3) = element(5);
  EXPECT_EQ(vector[3], element(5));
}

TEST_F(PointerVectorTest, PadsWithNullsInStorageThatWasUsedBefore) {
  soil(6 * sizeof(void*));
  PointerVector vector(region_);
  vector.reach(5) = element(0);
  for (std::size_t i = 0; i < 5; ++i) EXPECT_EQ(vector[i], nullptr) << i;
}

TEST_F(PointerVectorTest, PadsWithNullsBehindPushedElements) {
  soil(4 * sizeof(void*));
  soil(8 * sizeof(void*));
  PointerVector vector(region_);
  push(vector, 1);
  vector.reach(3);
  for (std::size_t i = 1; i < 4; ++i) EXPECT_EQ(vector[i], nullptr) << i;
  push(vector, 1);
  vector.reach(7);
  for (std::size_t i = 5; i < 8; ++i) EXPECT_EQ(vector[i], nullptr) << i;
}

TEST_F(PointerVectorTest, FindsTheNextElementBehindNullRunsOfEveryLength) {
  for (std::size_t from = 0; from < 20; ++from) {
    for (std::size_t at = from; at < 40; ++at) {
      PointerVector vector(region_);
      vector.reach(39);
      vector[at] = element(0);
      if (from > 0) vector[from - 1] = element(1);  // must be passed over
      EXPECT_EQ(vector.nextNonNull(from), at) << "from " << from;
    }
  }
}

TEST_F(PointerVectorTest, TheNextElementIsTheSizeWhereThereIsNone) {
  PointerVector vector(region_);
  EXPECT_EQ(vector.nextNonNull(0), 0U);
  vector.reach(29);
  for (std::size_t from = 0; from <= 30; ++from) EXPECT_EQ(vector.nextNonNull(from), 30U) << from;
}

TEST_F(PointerVectorTest, IsAllNullUnlessOneElementIsNot) {
  PointerVector vector(region_);
  EXPECT_TRUE(vector.allNull());
  vector.reach(24);
  EXPECT_TRUE(vector.allNull());
  for (std::size_t i = 0; i < 25; ++i) {
    vector[i] = element(0);
    EXPECT_FALSE(vector.allNull()) << i;
    vector[i] = nullptr;
  }
}

TEST_F(PointerVectorTest, StaysAsItWasWhenItCannotGrow) {
  const auto expectUnchanged = [this](const auto& operation) {
    EXPECT_EQ(failEveryAllocation([&](FailurePoint& point) {
                PointerVector vector(region_);
                push(vector, 4);
                if (point.during([&] { operation(vector); })) return;
                EXPECT_EQ(form(vector), "4/4");
                for (std::size_t i = 0; i < 4; ++i) EXPECT_EQ(vector[i], element(i));
              }),
              1U);
  };
  expectUnchanged([](PointerVector& vector) { vector.push_back(nullptr); });
  expectUnchanged([](PointerVector& vector) { vector.reserve(5); });
  expectUnchanged([](PointerVector& vector) { vector.reach(8); });
  expectUnchanged([](PointerVector& vector) { vector.reach(100); });
}

}  // namespace
}  // namespace om::test
