// OmDimension::Delete: the subtree that goes, the extent, the parent's index, and the parent links
// that are deliberately left behind.

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

#include "tests/dimensions/EditTree.h"
#include "tests/support/Counted.h"

namespace om::test {
namespace {

using Tree = OmDimension::Tree;
using Node = OmDimension::Node;

void deleteNode(EditTree& tree, const std::string& label) {
  Node node = tree.find(label);
  tree->Delete(node);
}

TEST(OmDimensionDelete, RemovesTheNodeWithItsSubtree) {
  EditTree tree("z9 A[a0 B[b1]] c2");
  deleteNode(tree, "A");
  EXPECT_EQ(tree.line(), "z9 c2");
}

TEST(OmDimensionDelete, RemovesOnlyTheDesignatedOneOfEqualSiblings) {
  EditTree tree("x0(p1) y2 x0(q3)");
  Node second = tree.at(2);
  tree->Delete(second);
  EXPECT_EQ(tree.line(), "x0(p1) y2");
}

TEST(OmDimensionDelete, DestroysEveryTextOfTheSubtree) {
  EditTree tree("z9");
  const Node group = tree->AddNewChild(tree->Root(), CountedText("G"), 0, true);
  tree->AddNewChild(group, CountedText("a"), 0, false);
  tree->AddNewChild(group, CountedText("b"), 1, false);
  const long before = CountedText::live();
  deleteNode(tree, "G");
  EXPECT_EQ(CountedText::live(), before - 3);
}

TEST(OmDimensionDelete, MakesTheExtentOneMoreThanTheLargestSubscript) {
  EditTree tree("a0 b7 c9");
  ASSERT_EQ(tree->NumCategories(), 3);
  deleteNode(tree, "c");
  EXPECT_EQ(tree->NumCategories(), 8);
}

TEST(OmDimensionDelete, OfASubscriptThatIsNotTheLargestLeavesTheExtent) {
  EditTree tree("a0 b1 c2");
  deleteNode(tree, "a");
  EXPECT_EQ(tree->NumCategories(), 3);
  EXPECT_EQ(tree.line(), "b1 c2");
}

TEST(OmDimensionDelete, OfTheOnlyCategoryLeavesAnExtentOfOne) {
  EditTree tree("a5");
  deleteNode(tree, "a");
  EXPECT_EQ(tree->NumCategories(), 1);
}

TEST(OmDimensionDelete, LeavesAnExtentOfOneBesideSubscriptZero) {
  EditTree tree("a0 b1");
  deleteNode(tree, "b");
  EXPECT_EQ(tree->NumCategories(), 1);
}

TEST(OmDimensionDelete, OfAGroupInADimensionWithoutCategoriesRaisesTheExtentToOne) {
  EditTree tree("G[]");
  ASSERT_EQ(tree->NumCategories(), 0);
  deleteNode(tree, "G");
  EXPECT_EQ(tree->NumCategories(), 1);
}

TEST(OmDimensionDelete, TakesTheLargestSubscriptFromTheWholeTree) {
  EditTree tree("A[B[b6]] c2 d8");
  deleteNode(tree, "d");
  EXPECT_EQ(tree->NumCategories(), 7);
}

TEST(OmDimensionDelete, CountsNoSubscriptOfTheDeletedSubtree) {
  EditTree tree("A[B[b6]] c2");
  deleteNode(tree, "A");
  EXPECT_EQ(tree->NumCategories(), 3);
}

TEST(OmDimensionDelete, CountsNoSubscriptOfAGroup) {
  EditTree tree("G50[a0] b1");
  deleteNode(tree, "b");
  EXPECT_EQ(tree->NumCategories(), 1);
}

TEST(OmDimensionDelete, CountsTheSubscriptOfACategoryThatHasChildren) {
  EditTree tree("x7(a0) b9");
  deleteNode(tree, "b");
  EXPECT_EQ(tree->NumCategories(), 8);
}

TEST(OmDimensionDelete, CountsTheSubscriptOfARootThatIsNoGroup) {
  EditTree tree("a0 b1", OmDimensionNode(OmStringCell("root"), 7, false, nullptr));
  deleteNode(tree, "b");
  EXPECT_EQ(tree->NumCategories(), 8);
}

TEST(OmDimensionDelete, TakesTheLow32BitsOfASubscript) {
  EditTree tree("a4294967301 b2 c9");  // 2^32 + 5
  deleteNode(tree, "c");
  EXPECT_EQ(tree->NumCategories(), 6);
}

TEST(OmDimensionDelete, KeepsTheExtentInASigned32BitNumber) {
  EditTree tree("a2147483647 b0");  // 2^31 - 1
  deleteNode(tree, "b");
  EXPECT_EQ(tree->NumCategories(), std::numeric_limits<std::int32_t>::min());
}

TEST(OmDimensionDelete, WrapsAroundBehindTheLargestSubscriptOf32Bits) {
  EditTree tree("a-1 b3");
  deleteNode(tree, "b");
  EXPECT_EQ(tree->NumCategories(), 0);
}

TEST(OmDimensionDelete, TakesThePositionOutOfTheIndexAndLowersLaterOnes) {
  EditTree tree("a0 b1 c2 d3");
  deleteNode(tree, "b");
  EXPECT_EQ(tree.index("root"), "0, 1, 2");
}

TEST(OmDimensionDelete, KeepsTheIndexInTheOrderOfTheLabels) {
  EditTree tree("");
  for (const char* const label : {"c", "a", "d", "b"}) {
    tree->Child(tree->Root(), OmStringCell(label), 0, false);
  }
  ASSERT_EQ(tree.index("root"), "1, 3, 0, 2");
  deleteNode(tree, "a");
  EXPECT_EQ(tree.index("root"), "2, 0, 1");
  EXPECT_EQ(OmDimension::FindChild(tree->Root(), OmStringCell("a"), false), -1);
  EXPECT_EQ(OmDimension::FindChild(tree->Root(), OmStringCell("b"), false), 2);
  EXPECT_EQ(OmDimension::FindChild(tree->Root(), OmStringCell("c"), false), 0);
  EXPECT_EQ(OmDimension::FindChild(tree->Root(), OmStringCell("d"), false), 1);
}

TEST(OmDimensionDelete, OfTheFirstEntryAndOfTheLastLeavesTheOthersInOrder) {
  EditTree tree("");
  for (const char* const label : {"b", "a", "c"}) {
    tree->Child(tree->Root(), OmStringCell(label), 0, false);
  }
  deleteNode(tree, "a");
  EXPECT_EQ(tree.index("root"), "0, 1");
  deleteNode(tree, "c");
  EXPECT_EQ(tree.index("root"), "0");
  deleteNode(tree, "b");
  EXPECT_EQ(tree.index("root"), "");
}

TEST(OmDimensionDelete, LowersPositionsBeyondTheChildrenAsWell) {
  EditTree tree("a0 b1 c2 d3");
  Node b = tree.find("b");
  Node c = tree.find("c");
  tree->insertChild(OmStringCell("G"), {&b, &c});
  ASSERT_EQ(tree.line(), "a0 G[b1 c2] d3");
  ASSERT_EQ(tree.index("root"), "0, 1, 2, 3");
  deleteNode(tree, "a");
  EXPECT_EQ(tree.index("root"), "0, 1, 2");
}

TEST(OmDimensionDelete, OfAPositionThatTheIndexDoesNotHoldLeavesSmallerOnes) {
  EditTree tree("a0");
  tree->insertCategory(OmStringCell("n"), tree->Root(), tree.find("a"), false);
  ASSERT_EQ(tree.index("root"), "0");
  deleteNode(tree, "n");
  EXPECT_EQ(tree.index("root"), "0");
}

TEST(OmDimensionDelete, ChangesTheIndexOfTheParentAlone) {
  EditTree tree("a0 G[b1 H[c2 d3] e4] f5");
  deleteNode(tree, "b");
  EXPECT_EQ(tree.index("root"), "0, 1, 2");
  EXPECT_EQ(tree.index("G"), "0, 1");
  EXPECT_EQ(tree.index("H"), "0, 1");
}

TEST(OmDimensionDelete, LeavesTheChildrenOfLaterSiblingsPointingToTheFormerPlaces) {
  EditTree tree("F[f0] a1 G[b2] H[c3]");
  deleteNode(tree, "a");
  ASSERT_EQ(tree.line(), "F[f0] G[b2] H[c3]");
  EXPECT_EQ(tree.find("f").Parent(), tree.at(0));
  EXPECT_EQ(tree.find("b").Parent().Record(), tree.at(1).Record() + 1);
  EXPECT_EQ(tree.find("c").Parent().Record(), tree.at(2).Record() + 1);
  EXPECT_EQ(tree.at(1).Parent(), tree->Root());
  EXPECT_STREQ(tree->checkInvariants(), "a record's parent is the one that holds it");
}

TEST(OmDimensionDelete, IsFollowedByReparentWhereTheLinksAreNeeded) {
  EditTree tree("a1 G[b2 K[k4]] H[c3]");
  deleteNode(tree, "a");
  Tree::Reparent(*tree->Root().Record(), true);
  EXPECT_EQ(tree->checkInvariants(), nullptr);
  EXPECT_EQ(labelOf(*tree.find("b").Parent()), "G");
  EXPECT_EQ(labelOf(*tree.find("k").Parent().Parent()), "G");
}

TEST(OmDimensionDelete, OfTheLastChildLeavesEveryLinkRight) {
  EditTree tree("G[a0] H[b1 c2] d3");
  deleteNode(tree, "d");
  EXPECT_EQ(tree->checkInvariants(), nullptr);
  deleteNode(tree, "c");
  EXPECT_EQ(tree->checkInvariants(), nullptr);
  EXPECT_EQ(tree.line(), "G[a0] H[b1]");
}

TEST(OmDimensionDelete, LeavesTheLinksBelowEarlierLevelsRight) {
  EditTree tree("A[a0 B[b1]] C[c2]");
  deleteNode(tree, "a");
  EXPECT_EQ(tree.find("c").Parent(), tree.at(1));
  EXPECT_EQ(tree.at(0, 0).Parent(), tree.at(0));
}

TEST(OmDimensionDelete, OfAStaleDimensionCanBeDestroyedAndCopied) {
  EditTree tree("a0 A[b1 B[c2]] C[d3]");
  deleteNode(tree, "a");
  {
    OmMemoryRegion region(false);
    const auto copy = internal::DimensionFactory::copy(*tree, &region);
    EXPECT_EQ(copy->checkInvariants(), nullptr);
    EXPECT_EQ(copy->NumCategories(), 4);
  }
  EXPECT_EQ(tree.line(), "A[b1 B[c2]] C[d3]");
}

}  // namespace
}  // namespace om::test
