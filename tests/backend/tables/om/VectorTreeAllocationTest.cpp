// Vector trees when memory runs out or a value refuses to be copied: the tree is as before.

#include <gtest/gtest.h>

#include <cstddef>
#include <string>

#include "tests/backend/tables/om/VectorTreeText.h"
#include "tests/support/Allocations.h"

namespace om::test {
namespace {

constexpr const char* kSource = "20(21(22 23) 24(25))";

struct State {
  explicit State(Numbers& tree)
      : line(tree.line()),
        storage(tree.root().children.begin()),
        capacity(tree.root().children.capacity()),
        blocks(tree.region().BlocksInUse()) {}
  bool operator==(const State&) const = default;

  std::string line;
  const NumberEntry* storage;
  std::size_t capacity;
  std::size_t blocks;
};

template <class Operation>
std::size_t expectUnchangedByFailure(const std::string& line, Operation operation) {
  return failEveryAllocation([&](FailurePoint& point) {
    Numbers tree(line);
    Numbers source(kSource);
    const State before(tree);
    const long alive = Brittle::live;
    const bool completed = point.during([&] { operation(tree, source); });
    EXPECT_NE(completed, point.failed());
    EXPECT_EQ(source.line(), kSource);
    EXPECT_TRUE(linksAreRight(source.root()));
    if (completed) return;
    EXPECT_TRUE(State(tree) == before);
    EXPECT_EQ(Brittle::live, alive);
    EXPECT_EQ(NumberTree::checkInvariants(tree.root()), nullptr);
  });
}

template <class Operation>
long expectUnchangedByRefusal(const std::string& line, Operation operation) {
  for (long n = 1;; ++n) {
    Numbers tree(line);
    Numbers source(kSource);
    const State before(tree);
    const long alive = Brittle::live;
    if (!refusesCopy(n, [&] { operation(tree, source); })) return n - 1;
    EXPECT_TRUE(State(tree) == before);
    EXPECT_EQ(Brittle::live, alive);
    EXPECT_EQ(NumberTree::checkInvariants(tree.root()), nullptr);
  }
}

void append(Numbers& tree, const Numbers&) { appendNumber(tree.root(), 9); }
void appendCopy(Numbers& tree, Numbers& source) { NumberTree::Append(tree.root(), source.root()); }
void insertCopy(Numbers& tree, Numbers& source) {
  const Brittle sibling(3);
  NumberTree::InsertBefore(tree.root(), source.root(), &sibling);
}

TEST(VectorTreeAllocation, AppendingAValueToAFullVector) {
  EXPECT_EQ(expectUnchangedByFailure("1(2(6) 3 4 5)", append), 1U);
}

TEST(VectorTreeAllocation, AppendingTheFirstValue) {
  EXPECT_EQ(expectUnchangedByFailure("1", append), 1U);
}

TEST(VectorTreeAllocation, AppendingAValueWithRoomAllocatesNothing) {
  EXPECT_EQ(expectUnchangedByFailure("1(2 3)", append), 0U);
}

// One block for each of the three vectors of children, at least.
TEST(VectorTreeAllocation, AppendingACopyWithRoom) {
  EXPECT_GE(expectUnchangedByFailure("1(2 3)", appendCopy), 3U);
}

TEST(VectorTreeAllocation, AppendingACopyToAFullVector) {
  EXPECT_GE(expectUnchangedByFailure("1(2(6) 3 4 5)", appendCopy), 4U);
}

TEST(VectorTreeAllocation, InsertingACopyWithRoom) {
  EXPECT_GE(expectUnchangedByFailure("1(2(6) 3(7))", insertCopy), 3U);
}

TEST(VectorTreeAllocation, InsertingACopyIntoAFullVector) {
  EXPECT_GE(expectUnchangedByFailure("1(2(6) 3(7) 4 5)", insertCopy), 4U);
}

TEST(VectorTreeAllocation, ADeepCopyThatFailsLeavesNothingInItsRegion) {
  EXPECT_GE(failEveryAllocation([](FailurePoint& point) {
              Numbers source(kSource);
              OmMemoryRegion region(false);
              const long alive = Brittle::live;
              point.during([&] {
                const NumberEntry copy(source.root(), NumberTree::plainCopy, &region, nullptr);
              });
              EXPECT_EQ(region.BlocksInUse(), 0U);
              EXPECT_EQ(Brittle::live, alive);
              EXPECT_EQ(source.line(), kSource);
            }),
            3U);
}

TEST(VectorTreeAllocation, ARefusedCopyWhileAppendingWithRoom) {
  EXPECT_EQ(expectUnchangedByRefusal("1(2(6) 3)", appendCopy), 6);
}

TEST(VectorTreeAllocation, ARefusedCopyWhileAppendingToAFullVector) {
  EXPECT_EQ(expectUnchangedByRefusal("1(2(6) 3 4 5)", appendCopy), 6);
}

TEST(VectorTreeAllocation, ARefusedCopyWhileInserting) {
  EXPECT_EQ(expectUnchangedByRefusal("1(2(6) 3(7) 4 5)", insertCopy), 6);
}

}  // namespace
}  // namespace om::test
