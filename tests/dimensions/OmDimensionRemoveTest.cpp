// OmDimension::removeChild: a group is dissolved into its parent, and what happens where there is
// nothing to dissolve.

#include <gtest/gtest.h>

#include "tests/dimensions/EditTree.h"
#include "tests/support/Counted.h"

namespace om::test {
namespace {

using Node = OmDimension::Node;

constexpr unsigned long long kDissolved = ~0ULL - 1;

Node dissolve(EditTree& tree, Node node) {
  tree->removeChild(node);
  return node;
}

TEST(OmDimensionRemoveChild, PutsTheChildrenInThePlaceOfTheGroup) {
  EditTree tree("a0 b1 G[c2 d3 e4] f5");
  dissolve(tree, tree.find("G"));
  EXPECT_EQ(tree.line(), "a0 b1 c2 d3 e4 f5");
  EXPECT_EQ(tree->checkInvariants(), nullptr);
}

TEST(OmDimensionRemoveChild, DissolvesTheFirstChildAndTheLast) {
  EditTree tree("A[a0 b1] B[c2]");
  dissolve(tree, tree.find("B"));
  EXPECT_EQ(tree.line(), "A[a0 b1] c2");
  dissolve(tree, tree.find("A"));
  EXPECT_EQ(tree.line(), "a0 b1 c2");
}

TEST(OmDimensionRemoveChild, DissolvesBelowAnInnerNode) {
  EditTree tree("A[B[a0 b1] c2] D[d3]");
  dissolve(tree, tree.find("B"));
  EXPECT_EQ(tree.line(), "A[a0 b1 c2] D[d3]");
  EXPECT_EQ(tree->checkInvariants(), nullptr);
}

TEST(OmDimensionRemoveChild, DissolvesACategoryThatHasChildrenAndKeepsTheExtent) {
  EditTree tree("x0(a1 b2) c3");
  dissolve(tree, tree.find("x"));
  EXPECT_EQ(tree.line(), "a1 b2 c3");
  EXPECT_EQ(tree->NumCategories(), 4);
}

TEST(OmDimensionRemoveChild, KeepsSubtreesFlagsAndIndexesOfThePromotedOnes) {
  EditTree tree("G[!A[a0 b1] x4(c2)] d3");
  tree.find("A")->Sort(OmSort::UP);
  tree.find("x")->HideLabels(true);
  dissolve(tree, tree.find("G"));
  EXPECT_EQ(tree.line(), "!A[a0 b1] x4(c2) d3");
  EXPECT_EQ(tree.index("A"), "0, 1");
  EXPECT_EQ(tree.find("A")->Sort(), OmSort::UP);
  EXPECT_TRUE(tree.find("x")->HideLabels());
  EXPECT_EQ(tree->checkInvariants(), nullptr);
}

TEST(OmDimensionRemoveChild, KeepsTheExtentAndTheParentsIndex) {
  EditTree tree("a0 G[b1 c2 d3] e4");
  dissolve(tree, tree.find("G"));
  EXPECT_EQ(tree->NumCategories(), 5);
  EXPECT_EQ(tree.index("root"), "0, 1, 2");
}

TEST(OmDimensionRemoveChild, LeavesTheHandleAtWhatStandsBehindTheFormerChildren) {
  EditTree tree("A[a0 G[b1 c2] d3]");
  const Node behind = dissolve(tree, tree.find("G"));
  EXPECT_EQ(behind, tree.find("d"));
  EXPECT_EQ(behind.Depth(), 2U);
}

TEST(OmDimensionRemoveChild, LeavesTheHandleAtTheEndBehindTheLastChild) {
  EditTree tree("a0 G[b1 c2]");
  const Node behind = dissolve(tree, tree.find("G"));
  EXPECT_EQ(behind, tree->Root().ChildrenEnd());
}

TEST(OmDimensionRemoveChild, OfALeafOnlyChangesItsSubscript) {
  EditTree tree("a0 b1 G[c2]");
  const Node a = dissolve(tree, tree.find("a"));
  EXPECT_EQ(a->Subscript(), kDissolved);
  EXPECT_EQ(tree.line(), "a-2 b1 G[c2]");
  EXPECT_EQ(tree->NumCategories(), 3);
  EXPECT_EQ(tree.index("root"), "0, 1, 2");
}

TEST(OmDimensionRemoveChild, OfAChildlessGroupOnlyChangesItsSubscript) {
  EditTree tree("a0 G[] b1");
  EXPECT_EQ(dissolve(tree, tree.find("G")), tree.find("G"));
  EXPECT_EQ(tree.line(), "a0 G-2[] b1");
}

TEST(OmDimensionRemoveChild, OfTheRootOnlyChangesItsSubscript) {
  EditTree tree("a0 G[b1]");
  EXPECT_EQ(dissolve(tree, tree->Root()), tree->Root());
  EXPECT_EQ(tree->Root()->Subscript(), kDissolved);
  EXPECT_EQ(tree.line(), "a0 G[b1]");
}

// The changed subscript makes the group unequal to a sibling that it equalled before.
TEST(OmDimensionRemoveChild, PassesOverAnEarlierSiblingThatEqualledTheGroupBefore) {
  EditTree tree("G[a0] x1 G[b2 c3] y4");
  dissolve(tree, tree.at(2));
  EXPECT_EQ(tree.line(), "G[a0] x1 b2 c3 y4");
}

TEST(OmDimensionRemoveChild, PutsTheChildrenBeforeAnEarlierSiblingThatEqualsTheGroupNow) {
  EditTree tree("z0 G-2[] x1 G[b2 c3] y4");
  const Node behind = dissolve(tree, tree.at(3));
  EXPECT_EQ(tree.line(), "z0 b2 c3 G-2[] x1 y4");
  EXPECT_EQ(behind, tree.find("y"));
  EXPECT_EQ(tree->checkInvariants(), nullptr);
}

TEST(OmDimensionRemoveChild, MeetsALaterSiblingThatEqualsTheGroupNowWithoutHarm) {
  EditTree tree("G[b2 c3] x1 G-2[d4]");
  dissolve(tree, tree.at(0));
  EXPECT_EQ(tree.line(), "b2 c3 x1 G-2[d4]");
}

TEST(OmDimensionRemoveChild, PutsLaterChildrenBeforeAPromotedOneThatEqualsTheGroup) {
  EditTree tree("z5 G[a0 G-2[p3] b1 c2] y4");
  dissolve(tree, tree.at(1));
  EXPECT_EQ(tree.line(), "z5 a0 b1 c2 G-2[p3] y4");
  EXPECT_EQ(tree->checkInvariants(), nullptr);
}

TEST(OmDimensionRemoveChild, KeepsAllLinksWhenLaterSiblingsMove) {
  EditTree tree("G[a0 B[b1] c2 d3] E[e4 F[f5]]");
  dissolve(tree, tree.find("G"));
  EXPECT_EQ(tree.line(), "a0 B[b1] c2 d3 E[e4 F[f5]]");
  EXPECT_EQ(tree->checkInvariants(), nullptr);
}

TEST(OmDimensionRemoveChild, DestroysTheTextOfTheGroupAlone) {
  EditTree tree("z9");
  const Node group = tree->AddNewChild(tree->Root(), CountedText("G"), 0, true);
  tree->AddNewChild(group, CountedText("a"), 0, false);
  const long before = CountedText::live();
  dissolve(tree, tree.find("G"));
  EXPECT_EQ(CountedText::live(), before - 1);
  EXPECT_EQ(tree.line(), "z9 a0");
}

TEST(OmDimensionRemoveChild, UndoesAGathering) {
  EditTree tree("a0 b1 c2 d3");
  Node b = tree.find("b");
  Node c = tree.find("c");
  tree->insertChild(OmStringCell("G"), {&b, &c});
  dissolve(tree, tree.find("G"));
  EXPECT_EQ(tree.line(), "a0 b1 c2 d3");
}

}  // namespace
}  // namespace om::test
