// The deep copy of a record.

#include <gtest/gtest.h>

#include <cstddef>

#include "tests/backend/tables/om/VectorTreeText.h"

namespace om::test {
namespace {

// A deep copy in a region of its own.
struct Copy {
  explicit Copy(const NumberEntry& source, NumberEntry* above = nullptr)
      : root(source, NumberTree::plainCopy, &region, above) {}

  OmMemoryRegion region{false};
  NumberEntry root;
};

TEST(VectorTreeCopy, HasTheSameValuesInTheSameOrder) {
  Numbers tree("1(2(3 4(5)) 6 7(8))");
  const Copy copy(tree.root());
  EXPECT_EQ(lineOf(copy.root), "1(2(3 4(5)) 6 7(8))");
  EXPECT_EQ(tree.line(), "1(2(3 4(5)) 6 7(8))");
}

TEST(VectorTreeCopy, OfALeafIsALeaf) {
  Numbers tree("1");
  const Copy copy(tree.root());
  EXPECT_EQ(lineOf(copy.root), "1");
  EXPECT_EQ(copy.region.BlocksInUse(), 0U);
}

TEST(VectorTreeCopy, HasItsOwnLinksAtEveryLevel) {
  Numbers tree("1(2(3 4(5)) 6)");
  const Copy copy(tree.root());
  EXPECT_TRUE(linksAreRight(copy.root));
  EXPECT_TRUE(linksAreRight(tree.root()));
}

TEST(VectorTreeCopy, HasTheParentThatItIsGiven) {
  Numbers tree("1(2(3))");
  const Copy copy(tree.record({0}), &tree.root());
  EXPECT_EQ(copy.root.parent, &tree.root());
  const Copy root(tree.record({0}));
  EXPECT_EQ(root.root.parent, nullptr);
}

TEST(VectorTreeCopy, ReservesExactlyTheNumberOfChildren) {
  Numbers tree("1(2(7 8 9 10 11) 3 4)");
  ASSERT_EQ(tree.root().children.capacity(), 4U);
  ASSERT_EQ(tree.record({0}).children.capacity(), 8U);
  const Copy copy(tree.root());
  EXPECT_EQ(copy.root.children.capacity(), 3U);
  EXPECT_EQ(copy.root.children[0].children.capacity(), 5U);
  EXPECT_EQ(copy.root.children[1].children.capacity(), 0U);
}

TEST(VectorTreeCopy, KeepsTheChildrenOfEveryLevelInTheRegion) {
  Numbers tree("1(2(3) 4)");
  const std::size_t before = tree.region().BlocksInUse();
  const Copy copy(tree.root());
  EXPECT_EQ(copy.root.children.region(), &copy.region);
  EXPECT_EQ(copy.root.children[0].children.region(), &copy.region);
  EXPECT_EQ(copy.root.children[0].children[0].children.region(), &copy.region);
  EXPECT_EQ(copy.region.BlocksInUse(), 2U);
  EXPECT_EQ(tree.region().BlocksInUse(), before);
}

TEST(VectorTreeCopy, WithoutARegionIsOnTheDefaultHeap) {
  Numbers tree("1(2)");
  const NumberEntry copy(tree.root(), NumberTree::plainCopy, nullptr, nullptr);
  EXPECT_EQ(copy.children.region(), OmMemoryRegion::DefaultHeap());
  EXPECT_EQ(copy.children[0].children.region(), OmMemoryRegion::DefaultHeap());
}

TEST(VectorTreeCopy, CopiesEachValueOnce) {
  Numbers tree("1(2(3 4) 5)");
  const long before = Brittle::copies;
  const Copy copy(tree.root());
  EXPECT_EQ(Brittle::copies, before + 5);
}

TEST(VectorTreeCopy, MakesEachValueAsItIsTold) {
  Numbers tree("1(2(3) 4)");
  const NumberEntry copy(
      tree.root(), [](const Brittle& value) { return Brittle(value.value() * 10); }, nullptr,
      nullptr);
  EXPECT_EQ(lineOf(copy), "10(20(30) 40)");
}

TEST(VectorTreeCopy, OfRecordsWithStaleLinksHasRightLinks) {
  Numbers tree("1(2(3(6) 4) 5)");
  tree.record({0}).parent = nullptr;
  tree.record({0, 0}).parent = &tree.record({1});
  tree.record({0, 0, 0}).parent = nullptr;
  const Copy copy(tree.root());
  EXPECT_EQ(lineOf(copy.root), "1(2(3(6) 4) 5)");
  EXPECT_TRUE(linksAreRight(copy.root));
}

TEST(VectorTreeCopy, OfABranchLeavesOutItsSiblings) {
  Numbers tree("1(2 3(4 5(6)) 7)");
  const Copy copy(tree.record({1}));
  EXPECT_EQ(lineOf(copy.root), "3(4 5(6))");
}

}  // namespace
}  // namespace om::test
