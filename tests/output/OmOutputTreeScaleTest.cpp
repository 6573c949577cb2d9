// OmOutputTree far beyond the size of real output: very deep and very wide. Whatever recurses once
// a level runs out of stack here, and whatever is not linear does not come to an end.

#include <gtest/gtest.h>

#include <cstddef>
#include <iterator>
#include <string>

#include "output/OmOutputTree.h"
#include "tests/output/CountingWalker.h"
#include "tests/output/PartTree.h"
#include "tests/support/Allocations.h"
#include "tests/support/Counted.h"

namespace om::test {
namespace {

using Node = OmOutputTree::Node;

constexpr int kDepth = 100'000;
constexpr int kWidth = 1'000'000;

// Below the root, level 1, 2, 3 ... each the only child of the one before and named by its level.
void growDeep(OmOutputTree& tree) {
  for (int level = 1; level < kDepth; ++level) {
    tree.AppendLast(counted(std::to_string(level)), level);
  }
}

// Null items, so that the records are what the test costs.
void growWide(OmOutputTree& tree) {
  for (int i = 0; i < kWidth; ++i) tree.AppendLast(nullptr, 1);
}

Node nodeAt(OmOutputTree& tree, int index) { return {tree, std::next(tree.List().begin(), index)}; }

TEST(OmOutputTreeScale, ADeepTreeIsWalked) {
  OmOutputTree tree;
  growDeep(tree);
  EXPECT_EQ(tree.checkInvariants(), nullptr);
  CountingWalker counter;
  EXPECT_TRUE(counter.Walk(tree));
  EXPECT_EQ(counter.entered, kDepth);
  EXPECT_EQ(counter.left, kDepth);
  EXPECT_EQ(counter.deepest, kDepth - 1);
  EXPECT_TRUE(counter.balanced);
}

TEST(OmOutputTreeScale, ADeepTreeIsCopiedAndCompared) {
  OmOutputTree tree;
  growDeep(tree);
  OmOutputTree copy(tree);
  EXPECT_TRUE(copy == tree);
  EXPECT_FALSE(copy < tree);
  copy.List().pop_back();
  EXPECT_TRUE(copy < tree);
  copy.List().clear();
}

TEST(OmOutputTreeScale, ADeepTreeIsDestroyedFromTheTopDown) {
  {
    OmOutputTree tree;
    growDeep(tree);
  }
  ASSERT_EQ(CountedPart::died().size(), std::size_t{kDepth - 1});
  EXPECT_EQ(CountedPart::died().front(), "1");
  EXPECT_EQ(CountedPart::died().back(), "99999");
}

TEST(OmOutputTreeScale, ADeepSubtreeIsPrunedFromTheBottomUp) {
  OmOutputTree tree;
  growDeep(tree);
  Node first = tree.Root().FirstChild();
  tree.Prune(first);
  EXPECT_EQ(tree.Size(), 1);
  ASSERT_EQ(CountedPart::died().size(), std::size_t{kDepth - 1});
  for (int i = 1; i < kDepth; ++i) {
    ASSERT_EQ(CountedPart::died()[static_cast<std::size_t>(i - 1)], std::to_string(kDepth - i));
  }
}

// On the way down each record but the last has one child; on the way up each has a second one.
TEST(OmOutputTreeScale, ADeepTreeThatComesUpStepByStepIsWalkedAndPruned) {
  constexpr int kHalf = kDepth / 2;
  OmOutputTree tree;
  for (int level = 1; level <= kHalf; ++level) tree.AppendLast(nullptr, level);
  for (int level = kHalf; level >= 1; --level) tree.AppendLast(nullptr, level);
  CountingWalker counter;
  EXPECT_TRUE(counter.Walk(tree));
  EXPECT_EQ(counter.left, 2 * kHalf + 1);
  EXPECT_TRUE(counter.balanced);
  Node root = tree.Root();
  tree.Prune(root);
  EXPECT_EQ(tree.Size(), 0);
}

TEST(OmOutputTreeScale, ADeepTreeIsErasedFromTheBottomUp) {
  OmOutputTree tree;
  for (int level = 1; level < kDepth; ++level) tree.AppendLast(nullptr, level);
  while (tree.Size() > 1) {
    Node last(tree, std::prev(tree.List().end()));
    tree.Erase(last);
  }
  EXPECT_TRUE(tree.Root().IsLeaf());
}

TEST(OmOutputTreeScale, ADeepTreeIsAmputatedAtADeepNode) {
  OmOutputTree tree;
  growDeep(tree);
  const Node result = Amputate(nodeAt(tree, kDepth / 2), nullptr, "");
  EXPECT_EQ(result.Level(), kDepth / 2);
  EXPECT_EQ(nameOf(result.Item()), "50001");
  EXPECT_EQ(nameOf(tree.List().back()._data), "[50000]");
  EXPECT_EQ(tree.List().back()._level, kDepth / 2);
  EXPECT_EQ(diedLine(), "50000");
  EXPECT_EQ(tree.checkInvariants(), nullptr);
}

TEST(OmOutputTreeScale, ADeepTreeIsAmputatedAtTheRoot) {
  OmOutputTree tree;
  growDeep(tree);
  const OmStringCell text("T");
  Amputate(tree.Root(), &text, "");
  EXPECT_EQ(lineOf(tree), "Output0 [T]1");
  EXPECT_EQ(CountedPart::died().front(), "99999");
  EXPECT_EQ(CountedPart::died().back(), "1");
}

TEST(OmOutputTreeScale, AWideTreeIsWalkedInMemoryThatFollowsItsDepth) {
  OmOutputTree tree;
  growWide(tree);
  EXPECT_EQ(tree.checkInvariants(), nullptr);
  CountingWalker counter;
  const std::size_t before = totalNewBlocks();
  EXPECT_TRUE(counter.Walk(tree));
  EXPECT_LE(totalNewBlocks() - before, 16U);
  EXPECT_EQ(counter.entered, kWidth + 1);
  EXPECT_EQ(counter.left, kWidth + 1);
  EXPECT_EQ(counter.deepest, 1);
  EXPECT_TRUE(counter.balanced);
}

TEST(OmOutputTreeScale, AWideTreeIsCopiedAssignedComparedAndAmputated) {
  OmOutputTree tree;
  growWide(tree);
  OmOutputTree copy(tree);
  EXPECT_TRUE(copy == tree);
  copy.List().pop_back();
  EXPECT_TRUE(copy < tree);
  EXPECT_TRUE(copy != tree);
  copy = tree;
  EXPECT_TRUE(copy == tree);
  copy.List().clear();
  const OmStringCell text("T");
  EXPECT_EQ(Amputate(tree.Root(), &text, "").Level(), 1);
  EXPECT_EQ(lineOf(tree), "Output0 [T]1");
}

TEST(OmOutputTreeScale, AWideTreeIsPrunedChildByChildFromTheFrontAndThenAtTheRoot) {
  OmOutputTree tree;
  growWide(tree);
  for (int i = 0; i < kWidth / 2; ++i) {
    Node first = tree.Root().FirstChild();
    tree.Prune(first);
  }
  EXPECT_EQ(tree.Size(), 1 + kWidth / 2);
  Node root = tree.Root();
  tree.Prune(root);
  EXPECT_EQ(tree.Size(), 0);
}

TEST(OmOutputTreeScale, ManyPartsArePrunedAndDestroyed) {
  constexpr int kHalf = 100'000;
  OmOutputTree tree;
  for (int i = 1; i <= kHalf; ++i) tree.AppendLast(counted(std::to_string(i)), 1);
  Node last(tree, std::prev(tree.List().end()));
  for (int i = 1; i <= kHalf; ++i) tree.AppendLast(counted("below"), 2);
  EXPECT_EQ(CountedPart::live(), 2 * kHalf);
  tree.Prune(last);
  EXPECT_EQ(tree.Size(), kHalf);
  ASSERT_EQ(CountedPart::died().size(), std::size_t{kHalf + 1});
  EXPECT_EQ(CountedPart::died().front(), "below");
  EXPECT_EQ(CountedPart::died().back(), "100000");
}

TEST(OmOutputTreeScale, ANodeWithManyChildrenIsAmputated) {
  OmOutputTree tree;
  tree.AppendLast(nullptr, 1);
  tree.AppendLast(counted("a"), 2);
  for (int i = 0; i < kWidth / 2; ++i) tree.AppendLast(nullptr, 3);
  const Node result = Amputate(nodeAt(tree, 2), nullptr, "");
  EXPECT_EQ(result.Level(), 2);
  EXPECT_TRUE(result == tree.Root().FirstChild().FirstChild());
  EXPECT_EQ(tree.Size(), kWidth / 2 + 3);
  EXPECT_EQ(nameOf(tree.List().back()._data), "[a]");
  EXPECT_EQ(tree.List().back()._level, 2);
}

}  // namespace
}  // namespace om::test
