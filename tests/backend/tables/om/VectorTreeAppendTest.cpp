// Appending to a vector of children: growth, and the links of those that move.

#include <gtest/gtest.h>

#include <cstddef>

#include "tests/backend/tables/om/VectorTreeText.h"

namespace om::test {
namespace {

TEST(VectorTreeAppend, ANewRecordHasTheValueNoChildrenAndTheParent) {
  Numbers tree("1(2)");
  NumberEntry& added = appendNumber(tree.root(), 3);
  EXPECT_EQ(tree.line(), "1(2 3)");
  EXPECT_EQ(added.parent, &tree.root());
  EXPECT_TRUE(added.children.empty());
  EXPECT_EQ(added.children.capacity(), 0U);
}

TEST(VectorTreeAppend, TheNewRecordItselfIsGiven) {
  Numbers tree("1(2 3 4 5)");
  const NumberEntry& added = appendNumber(tree.root(), 6);
  EXPECT_EQ(&added, &tree.record({4}));
}

TEST(VectorTreeAppend, AValueIsMadeInItsPlaceWithoutACopy) {
  Numbers tree("1");
  const long before = Brittle::copies;
  appendNumber(tree.root(), 2);
  EXPECT_EQ(Brittle::copies, before);
}

TEST(VectorTreeAppend, ARecordIsCopiedToTheEndWithItsWholeSubtree) {
  Numbers tree("1(2)");
  Numbers source("3(4(5) 6)");
  NumberEntry& added = NumberTree::Append(tree.root(), source.root());
  EXPECT_EQ(tree.line(), "1(2 3(4(5) 6))");
  EXPECT_EQ(&added, &tree.record({1}));
  EXPECT_TRUE(linksAreRight(tree.root()));
}

TEST(VectorTreeAppend, TheCopyAndItsSourceAreIndependent) {
  Numbers tree("1");
  Numbers source("3(4)");
  NumberTree::Append(tree.root(), source.root());
  source.record({0}).value = Brittle(9);
  EXPECT_EQ(tree.line(), "1(3(4))");
  EXPECT_EQ(source.line(), "3(9)");
  EXPECT_TRUE(linksAreRight(source.root()));
}

TEST(VectorTreeAppend, CapacityGoesToFourEightSixteenAndThirtyTwo) {
  Numbers tree("1");
  EXPECT_EQ(tree.root().children.capacity(), 0U);
  for (std::size_t size = 1; size <= 17; ++size) {
    appendNumber(tree.root(), 2);
    const std::size_t expected = size <= 4 ? 4U : size <= 8 ? 8U : size <= 16 ? 16U : 32U;
    EXPECT_EQ(tree.root().children.capacity(), expected) << size;
  }
}

TEST(VectorTreeAppend, CapacityOfACopyThatIsFullGoesToThePowerOfTwoAboveItsSize) {
  Numbers tree("1");
  Numbers source("2(3 4 5 6 7)");
  NumberEntry& copy = NumberTree::Append(tree.root(), source.root());
  ASSERT_EQ(copy.children.capacity(), 5U);
  appendNumber(copy, 8);
  EXPECT_EQ(copy.children.capacity(), 8U);
}

TEST(VectorTreeAppend, CapacityOfACopyWithFewerThanFourGoesToFour) {
  Numbers tree("1");
  Numbers source("2(3 4)");
  NumberEntry& copy = NumberTree::Append(tree.root(), source.root());
  ASSERT_EQ(copy.children.capacity(), 2U);
  appendNumber(copy, 8);
  EXPECT_EQ(copy.children.capacity(), 4U);
  EXPECT_TRUE(linksAreRight(tree.root()));
}

TEST(VectorTreeAppend, TheFifthChildMovesTheOthersAndTheirChildrenFollow) {
  Numbers tree("1(2(6) 3(7 8) 4 5(9))");
  const NumberEntry* const former = tree.root().children.begin();
  appendNumber(tree.root(), 10);
  ASSERT_NE(tree.root().children.begin(), former);
  EXPECT_EQ(tree.record({0, 0}).parent, &tree.record({0}));
  EXPECT_EQ(tree.record({1, 0}).parent, &tree.record({1}));
  EXPECT_EQ(tree.record({1, 1}).parent, &tree.record({1}));
  EXPECT_EQ(tree.record({3, 0}).parent, &tree.record({3}));
  EXPECT_EQ(tree.line(), "1(2(6) 3(7 8) 4 5(9) 10)");
}

TEST(VectorTreeAppend, TheMovedOnesKeepTheirParent) {
  Numbers tree("1(2(3 4 5 6))");
  appendNumber(tree.record({0}), 7);
  for (std::size_t i = 0; i < 5; ++i) EXPECT_EQ(tree.record({0, i}).parent, &tree.record({0}));
}

TEST(VectorTreeAppend, RecordsDeeperThanTheGrandchildrenStayWhereTheyAre) {
  Numbers tree("1(2(6(7)) 3 4 5)");
  const NumberEntry* const grandchild = &tree.record({0, 0});
  const NumberEntry* const below = &tree.record({0, 0, 0});
  appendNumber(tree.root(), 8);
  EXPECT_EQ(&tree.record({0, 0}), grandchild);
  EXPECT_EQ(&tree.record({0, 0, 0}), below);
  EXPECT_EQ(below->parent, grandchild);
}

TEST(VectorTreeAppend, WithRoomNothingMoves) {
  Numbers tree("1(2(5) 3 4)");
  const NumberEntry* const former = tree.root().children.begin();
  appendNumber(tree.root(), 6);
  EXPECT_EQ(tree.root().children.begin(), former);
  EXPECT_TRUE(linksAreRight(tree.root()));
}

TEST(VectorTreeAppend, ACopyWithChildrenThatMakesTheVectorGrowHasRightLinks) {
  Numbers tree("1(2(9) 3 4 5)");
  Numbers source("6(7(8))");
  NumberTree::Append(tree.root(), source.root());
  EXPECT_EQ(tree.line(), "1(2(9) 3 4 5 6(7(8)))");
  EXPECT_TRUE(linksAreRight(tree.root()));
}

TEST(VectorTreeAppend, TheFirstChildMayComeWithChildren) {
  Numbers tree("1");
  Numbers source("6(7(8))");
  NumberTree::Append(tree.root(), source.root());
  EXPECT_TRUE(linksAreRight(tree.root()));
}

TEST(VectorTreeAppend, ARecordOfTheVectorThatGrowsIsCopied) {
  Numbers tree("1(2(6) 3 4 5)");
  NumberTree::Append(tree.root(), tree.record({0}));
  EXPECT_EQ(tree.line(), "1(2(6) 3 4 5 2(6))");
  EXPECT_TRUE(linksAreRight(tree.root()));
}

TEST(VectorTreeAppend, ATreeIsCopiedAsItWasBelowOneOfItsLeaves) {
  Numbers tree("1(2 3)");
  NumberTree::Append(tree.record({0}), tree.root());
  EXPECT_EQ(tree.line(), "1(2(1(2 3)) 3)");
  EXPECT_TRUE(linksAreRight(tree.root()));
}

TEST(VectorTreeAppend, ATreeIsCopiedAsItWasBelowItself) {
  Numbers tree("1(2 3(4))");
  NumberTree::Append(tree.root(), tree.root());
  EXPECT_EQ(tree.line(), "1(2 3(4) 1(2 3(4)))");
  EXPECT_TRUE(linksAreRight(tree.root()));
}

TEST(VectorTreeAppend, ChildrenAreOnTheRegionOfTheirParent) {
  Numbers tree("1(2)");
  Numbers source("3(4(5))");
  NumberTree::Append(tree.record({0}), source.root());
  EXPECT_EQ(tree.record({0}).children.region(), &tree.region());
  EXPECT_EQ(tree.record({0, 0}).children.region(), &tree.region());
  EXPECT_EQ(tree.record({0, 0, 0, 0}).children.region(), &tree.region());
}

TEST(VectorTreeAppend, EachVectorOfChildrenIsOneBlockOfTheRegion) {
  Numbers tree("1(2(4 5) 3)");
  EXPECT_EQ(tree.region().BlocksInUse(), 2U);
  appendNumber(tree.root(), 6);
  EXPECT_EQ(tree.region().BlocksInUse(), 2U);
  appendNumber(tree.record({2}), 7);
  EXPECT_EQ(tree.region().BlocksInUse(), 3U);
}

TEST(VectorTreeAppend, GrowthGivesTheFormerStorageBack) {
  Numbers tree("1(2 3 4 5)");
  ASSERT_EQ(tree.region().BlocksInUse(), 1U);
  appendNumber(tree.root(), 6);
  EXPECT_EQ(tree.region().BlocksInUse(), 1U);
}

TEST(VectorTreeAppend, ARecordWithoutARegionKeepsItsChildrenOnTheDefaultHeap) {
  const std::size_t before = OmMemoryRegion::DefaultHeap()->BlocksInUse();
  {
    NumberEntry root([] { return Brittle(1); }, nullptr, nullptr);
    EXPECT_EQ(root.children.region(), OmMemoryRegion::DefaultHeap());
    appendNumber(root, 2);
    EXPECT_EQ(OmMemoryRegion::DefaultHeap()->BlocksInUse(), before + 1);
    EXPECT_EQ(root.children[0].children.region(), OmMemoryRegion::DefaultHeap());
  }
  EXPECT_EQ(OmMemoryRegion::DefaultHeap()->BlocksInUse(), before);
}

}  // namespace
}  // namespace om::test
