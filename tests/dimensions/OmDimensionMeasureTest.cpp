// OmDimension::getMaximumDepth and getMaxVisibleGroupCount on trees small enough to count by hand.

#include <gtest/gtest.h>

#include "tests/dimensions/EditTree.h"

namespace om::test {
namespace {

std::uint32_t depthOf(const std::string& line) { return EditTree(line)->getMaximumDepth(); }

unsigned long long groupsOf(const std::string& line) {
  return EditTree(line)->getMaxVisibleGroupCount();
}

TEST(OmDimensionMaximumDepth, IsOneWithoutChildren) { EXPECT_EQ(depthOf(""), 1U); }

TEST(OmDimensionMaximumDepth, IsTwoWithCategoriesUnderTheRoot) {
  EXPECT_EQ(depthOf("a0 b1 c2"), 2U);
}

TEST(OmDimensionMaximumDepth, IsThatOfTheDeepestBranchWhereverItStands) {
  EXPECT_EQ(depthOf("A[B[C[a0]]] D[b1] c2"), 5U);
  EXPECT_EQ(depthOf("c2 D[b1] A[B[C[a0]]]"), 5U);
  EXPECT_EQ(depthOf("c2 A[B[C[a0]]] D[b1]"), 5U);
}

TEST(OmDimensionMaximumDepth, CountsChildlessGroupsAndCategoriesWithChildren) {
  EXPECT_EQ(depthOf("A[B[]]"), 3U);
  EXPECT_EQ(depthOf("a0(b1(c2))"), 4U);
}

TEST(OmDimensionMaximumDepth, CountsHiddenNodes) { EXPECT_EQ(depthOf("!A[!B[!a0]] b1"), 4U); }

TEST(OmDimensionVisibleGroupCount, IsZeroWithoutChildren) { EXPECT_EQ(groupsOf(""), 0U); }

TEST(OmDimensionVisibleGroupCount, IsOneForCategoriesUnderTheRoot) {
  EXPECT_EQ(groupsOf("a0 b1 c2"), 1U);
}

TEST(OmDimensionVisibleGroupCount, CountsOneChildlessNodeForEachParent) {
  EXPECT_EQ(groupsOf("A[a0 b1 c2] B[d3 e4 f5]"), 2U);
}

// Level 1: A and B, and c for the childless. Level 2: one for each of A and B.
TEST(OmDimensionVisibleGroupCount, AddsTheChildlessToTheGroupsOfALevel) {
  EXPECT_EQ(groupsOf("A[a0] c2 d3 B[b1]"), 3U);
}

TEST(OmDimensionVisibleGroupCount, CountsEachChildlessGroupThatIsNotHidden) {
  EXPECT_EQ(groupsOf("A[] B[] C[]"), 3U);
  EXPECT_EQ(groupsOf("A[] a0 B[] b1"), 3U);
}

// Level 1: H. Level 2: one for each of G and H.
TEST(OmDimensionVisibleGroupCount, LeavesAHiddenGroupWithChildrenOut) {
  EXPECT_EQ(groupsOf("!G[a0] H[b1]"), 2U);
  EXPECT_EQ(groupsOf("!G[a0]"), 1U);
  EXPECT_EQ(groupsOf("!G[] !H[a0] !I[b1] J[]"), 2U);
}

TEST(OmDimensionVisibleGroupCount, TakesAHiddenChildlessGroupForOneOfTheChildless) {
  EXPECT_EQ(groupsOf("!G[] !H[] a0 b1"), 1U);
  EXPECT_EQ(groupsOf("A[] !G[] a0"), 2U);
}

// Level 1: nothing. Level 2: H, I and J. Level 3: a childless one for each of them.
TEST(OmDimensionVisibleGroupCount, CountsWhatIsBelowAHiddenGroup) {
  EXPECT_EQ(groupsOf("!G[H[a0] I[b1] J[c2]]"), 3U);
  EXPECT_EQ(groupsOf("!G[H[] I[] J[] K[]]"), 4U);
}

TEST(OmDimensionVisibleGroupCount, CountsHiddenLeavesLikeOthers) {
  EXPECT_EQ(groupsOf("!a0"), 1U);
  EXPECT_EQ(groupsOf("!a0 b1 !c2"), 1U);
  EXPECT_EQ(groupsOf("A[] !a0"), 2U);
}

// Level 1: b, and not the categories that have children. Level 2: one for each of these.
TEST(OmDimensionVisibleGroupCount, DoesNotCountCategoriesThatHaveChildren) {
  EXPECT_EQ(groupsOf("x0(a1) b2"), 1U);
  EXPECT_EQ(groupsOf("x0(a1) y2(b3) z4(c5)"), 3U);
  EXPECT_EQ(groupsOf("x0(A[] B[])"), 2U);
}

// Level 1: A, D. Level 2: a, B, C under A, d under D. Level 3: b and c.
TEST(OmDimensionVisibleGroupCount, IsThatOfTheWidestLevel) {
  EXPECT_EQ(groupsOf("A[a0 B[b1] C[c2]] D[d3]"), 4U);
}

// Level 1: A. Level 2: B. Level 3: C to F, g.
TEST(OmDimensionVisibleGroupCount, FindsTheWidestLevelAtTheBottomOfAnUnevenTree) {
  EXPECT_EQ(groupsOf("A[B[C[] D[] E[] F[] g0 h1]] i2"), 5U);
}

TEST(OmDimensionVisibleGroupCount, AsksNeitherHiddenLabelsNorSortOrders) {
  EditTree tree("A[a0] B[b1]");
  for (const char* const label : {"A", "B", "a", "b"}) {
    tree.find(label)->HideLabels(true);
    tree.find(label)->Sort(OmSort::UP);
  }
  EXPECT_EQ(tree->getMaxVisibleGroupCount(), 2U);
}

TEST(OmDimensionVisibleGroupCount, DoesNotCountTheRootWhetherHiddenOrNot) {
  EditTree tree("a0");
  EXPECT_EQ(tree->getMaxVisibleGroupCount(), 1U);
  tree->Root()->Hide(true);
  EXPECT_EQ(tree->getMaxVisibleGroupCount(), 1U);
  EditTree plain("", OmDimensionNode(OmStringCell("root"), 0, false, nullptr));
  EXPECT_EQ(plain->getMaxVisibleGroupCount(), 0U);
}

TEST(OmDimensionMeasures, FollowTheChangesOfTheTree) {
  EditTree tree("a0 b1 c2");
  OmDimension::Node b = tree.find("b");
  tree->insertChild(OmStringCell("G"), {&b});
  EXPECT_EQ(tree->getMaximumDepth(), 3U);
  EXPECT_EQ(tree->getMaxVisibleGroupCount(), 2U);
  OmDimension::Node group = tree.find("G");
  tree->removeChild(group);
  EXPECT_EQ(tree->getMaximumDepth(), 2U);
  EXPECT_EQ(tree->getMaxVisibleGroupCount(), 1U);
}

}  // namespace
}  // namespace om::test
