// Inserting, finding and erasing records of a vector tree, and setting their links right.

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "tests/backend/tables/om/VectorTreeText.h"

namespace om::test {
namespace {

constexpr std::uint32_t kNowhere = 0xFFFFFFFFU;

// Inserts a copy of the tree in the line in front of the sibling.
NumberEntry& insert(NumberEntry& parent, const std::string& line, int sibling) {
  Numbers source(line);
  const Brittle value(sibling);
  return NumberTree::InsertBefore(parent, source.root(), &value);
}

TEST(VectorTreeInsertBefore, WithoutASiblingPutsTheCopyAtTheEnd) {
  Numbers tree("1(2 3)");
  Numbers source("8(9)");
  const NumberEntry& added = NumberTree::InsertBefore(tree.root(), source.root(), nullptr);
  EXPECT_EQ(tree.line(), "1(2 3 8(9))");
  EXPECT_EQ(&added, &tree.record({2}));
}

TEST(VectorTreeInsertBefore, WithoutASiblingFillsAnEmptyParent) {
  Numbers tree("1");
  Numbers source("8");
  NumberTree::InsertBefore(tree.root(), source.root(), nullptr);
  EXPECT_EQ(tree.line(), "1(8)");
}

TEST(VectorTreeInsertBefore, PutsTheCopyInFrontOfTheSibling) {
  Numbers tree("1(2 3 4)");
  const NumberEntry& added = insert(tree.root(), "8", 3);
  EXPECT_EQ(tree.line(), "1(2 8 3 4)");
  EXPECT_EQ(&added, &tree.record({1}));
}

TEST(VectorTreeInsertBefore, PutsTheCopyInFrontOfTheFirstOfAll) {
  Numbers tree("1(2 3)");
  insert(tree.root(), "8", 2);
  EXPECT_EQ(tree.line(), "1(8 2 3)");
}

TEST(VectorTreeInsertBefore, FindsTheFirstOfTwoEqualSiblings) {
  Numbers tree("1(2 3(6) 3(7) 4)");
  const Brittle& second = tree.record({2}).value;
  Numbers source("8");
  NumberTree::InsertBefore(tree.root(), source.root(), &second);
  EXPECT_EQ(tree.line(), "1(2 8 3(6) 3(7) 4)");
}

TEST(VectorTreeInsertBefore, PutsTheCopyAtTheEndWhenNoSiblingIsEqual) {
  Numbers tree("1(2(9) 3)");
  insert(tree.root(), "8", 9);
  EXPECT_EQ(tree.line(), "1(2(9) 3 8)");
}

TEST(VectorTreeInsertBefore, CopiesTheWholeSubtree) {
  Numbers tree("1(2 3)");
  insert(tree.root(), "8(9(10) 11)", 3);
  EXPECT_EQ(tree.line(), "1(2 8(9(10) 11) 3)");
}

TEST(VectorTreeInsertBefore, SetsTheParentOfTheCopyAndUsesItsRegion) {
  Numbers tree("1(2 3)");
  const NumberEntry& added = insert(tree.root(), "8(9)", 3);
  EXPECT_EQ(added.parent, &tree.root());
  EXPECT_EQ(added.children.region(), &tree.region());
  EXPECT_EQ(added.children[0].children.region(), &tree.region());
}

TEST(VectorTreeInsertBefore, GrowsAFullVectorFromFourToEight) {
  Numbers tree("1(2 3 4 5)");
  insert(tree.root(), "8", 2);
  EXPECT_EQ(tree.line(), "1(8 2 3 4 5)");
  EXPECT_EQ(tree.root().children.capacity(), 8U);
}

TEST(VectorTreeInsertBefore, WithRoomKeepsTheStorage) {
  Numbers tree("1(2 3 4)");
  const NumberEntry* const former = tree.root().children.begin();
  insert(tree.root(), "8", 2);
  EXPECT_EQ(tree.root().children.begin(), former);
  EXPECT_EQ(tree.root().children.capacity(), 4U);
}

TEST(VectorTreeInsertBefore, LeavesTheLinksBelowTheMovedOnesToTheCaller) {
  Numbers tree("1(2(5) 3(6))");
  insert(tree.root(), "8", 3);
  EXPECT_EQ(tree.record({0, 0}).parent, &tree.record({0}));
  EXPECT_EQ(tree.record({2, 0}).parent, &tree.record({1}));
  EXPECT_FALSE(linksAreRight(tree.root()));
  NumberTree::Reparent(tree.root(), true);
  EXPECT_TRUE(linksAreRight(tree.root()));
}

TEST(VectorTreeInsertBefore, ACopyWithChildrenIsRightAfterReparent) {
  Numbers tree("1(2(5) 3)");
  insert(tree.root(), "8(9(10) 11)", 2);
  NumberTree::Reparent(tree.root(), true);
  EXPECT_TRUE(linksAreRight(tree.root()));
}

TEST(VectorTreeInsertBefore, TheRecordMayStandInTheVectorThatGrows) {
  Numbers tree("1(2 3 4 5(6))");
  const Brittle& sibling = tree.record({1}).value;
  NumberTree::InsertBefore(tree.root(), tree.record({3}), &sibling);
  EXPECT_EQ(tree.line(), "1(2 5(6) 3 4 5(6))");
}

TEST(VectorTreeInsertBefore, TakesADetachedRecordOverWithoutACopy) {
  Numbers tree("1(2 3)");
  Numbers source("8(9)");
  NumberTree::Detached record(std::in_place, source.root(), NumberTree::plainCopy, &tree.region(),
                              &tree.root());
  const Brittle sibling(3);
  const long before = Brittle::copies;
  const NumberEntry& added = NumberTree::InsertBefore(tree.root(), std::move(record), &sibling);
  EXPECT_EQ(Brittle::copies, before);
  EXPECT_EQ(tree.line(), "1(2 8(9) 3)");
  EXPECT_EQ(&added, &tree.record({1}));
}

TEST(VectorTreeIndexOf, GivesThePositionOfTheChild) {
  Numbers tree("1(2 3 4)");
  EXPECT_EQ(NumberTree::IndexOf(tree.rootNode(), Brittle(2)), 0U);
  EXPECT_EQ(NumberTree::IndexOf(tree.rootNode(), Brittle(3)), 1U);
  EXPECT_EQ(NumberTree::IndexOf(tree.rootNode(), Brittle(4)), 2U);
}

TEST(VectorTreeIndexOf, GivesTheFirstOfEqualChildren) {
  Numbers tree("1(2 3 3)");
  EXPECT_EQ(NumberTree::IndexOf(tree.rootNode(), tree.record({2}).value), 1U);
}

TEST(VectorTreeIndexOf, GivesAllBitsWhenNoneIsEqual) {
  Numbers tree("1(2 3)");
  static_assert(
      std::is_same_v<decltype(NumberTree::IndexOf(tree.rootNode(), Brittle(1))), std::uint32_t>);
  EXPECT_EQ(NumberTree::IndexOf(tree.rootNode(), Brittle(9)), kNowhere);
}

TEST(VectorTreeIndexOf, LooksAtNeitherTheParentNorTheGrandchildren) {
  Numbers tree("1(2(5) 3)");
  EXPECT_EQ(NumberTree::IndexOf(tree.rootNode(), Brittle(1)), kNowhere);
  EXPECT_EQ(NumberTree::IndexOf(tree.rootNode(), Brittle(5)), kNowhere);
  EXPECT_EQ(NumberTree::IndexOf(tree.at({0}), Brittle(5)), 0U);
}

TEST(VectorTreeIndexOf, FindsNothingInALeaf) {
  Numbers tree("1");
  EXPECT_EQ(NumberTree::IndexOf(tree.rootNode(), Brittle(1)), kNowhere);
}

TEST(VectorTreeErase, ClosesTheGap) {
  Numbers tree("1(2 3 4)");
  NumberTree::Erase(tree.at({1}));
  EXPECT_EQ(tree.line(), "1(2 4)");
  EXPECT_EQ(tree.rootNode().ChildCount(), 2U);
}

TEST(VectorTreeErase, DestroysTheRecordWithItsSubtreeAndNothingElse) {
  Numbers tree("1(2(6) 3(7 8(9)) 4)");
  const Deaths deaths;
  NumberTree::Erase(tree.at({1}));
  EXPECT_EQ(deaths.values(), (std::vector<int>{3, 7, 8, 9}));
  EXPECT_EQ(tree.line(), "1(2(6) 4)");
}

TEST(VectorTreeErase, DestroysTheDesignatedOneOfEqualSiblings) {
  Numbers tree("1(2(3) 2(4))");
  NumberTree::Erase(tree.at({1}));
  EXPECT_EQ(tree.line(), "1(2(3))");
}

TEST(VectorTreeErase, KeepsTheStorageOfTheVector) {
  Numbers tree("1(2 3 4 5 6)");
  const NumberEntry* const former = tree.root().children.begin();
  NumberTree::Erase(tree.at({0}));
  EXPECT_EQ(tree.root().children.begin(), former);
  EXPECT_EQ(tree.root().children.capacity(), 8U);
}

TEST(VectorTreeErase, GivesTheStorageBelowTheRecordBack) {
  Numbers tree("1(2(3(4)) 5)");
  ASSERT_EQ(tree.region().BlocksInUse(), 3U);
  NumberTree::Erase(tree.at({0}));
  EXPECT_EQ(tree.region().BlocksInUse(), 1U);
}

TEST(VectorTreeErase, OfTheOnlyChildLeavesALeaf) {
  Numbers tree("1(2(3))");
  NumberTree::Erase(tree.at({0}));
  EXPECT_EQ(tree.line(), "1");
}

TEST(VectorTreeErase, OfTheLastChildMovesNobody) {
  Numbers tree("1(2(5) 3(6))");
  NumberTree::Erase(tree.at({1}));
  EXPECT_TRUE(linksAreRight(tree.root()));
}

TEST(VectorTreeErase, LeavesTheLinksBelowTheMovedOnesToTheCaller) {
  Numbers tree("1(2 3(5) 4(6))");
  const NumberEntry* const second = &tree.record({1});
  const NumberEntry* const third = &tree.record({2});
  NumberTree::Erase(tree.at({0}));
  EXPECT_EQ(tree.record({0, 0}).parent, second);
  EXPECT_EQ(tree.record({1, 0}).parent, third);
  NumberTree::Reparent(tree.root(), true);
  EXPECT_TRUE(linksAreRight(tree.root()));
}

TEST(VectorTreeErase, WorksBelowTheRoot) {
  Numbers tree("1(2(3 4 5) 6)");
  NumberTree::Erase(tree.at({0, 1}));
  EXPECT_EQ(tree.line(), "1(2(3 5) 6)");
}

// Takes all links below the root away.
void unlink(NumberEntry& record) {
  for (NumberEntry& child : record.children) {
    child.parent = nullptr;
    unlink(child);
  }
}

TEST(VectorTreeReparent, WithoutRecursionSetsTheChildrenOnly) {
  Numbers tree("1(2(4(6)) 3(5))");
  unlink(tree.root());
  NumberTree::Reparent(tree.root(), false);
  EXPECT_EQ(tree.record({0}).parent, &tree.root());
  EXPECT_EQ(tree.record({1}).parent, &tree.root());
  EXPECT_EQ(tree.record({0, 0}).parent, nullptr);
  EXPECT_EQ(tree.record({1, 0}).parent, nullptr);
  EXPECT_EQ(tree.record({0, 0, 0}).parent, nullptr);
}

TEST(VectorTreeReparent, WithRecursionSetsTheWholeSubtree) {
  Numbers tree("1(2(4(6 7) 8) 3(5) 9(10(11)))");
  unlink(tree.root());
  NumberTree::Reparent(tree.root(), true);
  EXPECT_TRUE(linksAreRight(tree.root()));
}

TEST(VectorTreeReparent, WithRecursionLeavesSiblingsAndTheRecordItselfAlone) {
  Numbers tree("1(2(4(6)) 3(5))");
  unlink(tree.root());
  NumberTree::Reparent(tree.record({0}), true);
  EXPECT_EQ(tree.record({0}).parent, nullptr);
  EXPECT_EQ(tree.record({0, 0}).parent, &tree.record({0}));
  EXPECT_EQ(tree.record({0, 0, 0}).parent, &tree.record({0, 0}));
  EXPECT_EQ(tree.record({1, 0}).parent, nullptr);
}

TEST(VectorTreeReparent, OfALeafChangesNothing) {
  Numbers tree("1(2 3)");
  NumberTree::Reparent(tree.record({0}), true);
  NumberTree::Reparent(tree.record({1}), false);
  EXPECT_EQ(tree.line(), "1(2 3)");
  EXPECT_TRUE(linksAreRight(tree.root()));
}

}  // namespace
}  // namespace om::test
