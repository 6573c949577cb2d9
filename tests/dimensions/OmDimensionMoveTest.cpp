// OmDimension::moveChild without an exchange: before a target, or to the end of the nearest
// ancestor that is not hidden.

#include <gtest/gtest.h>

#include "tests/dimensions/EditTree.h"

namespace om::test {
namespace {

using Node = OmDimension::Node;

void moveBefore(EditTree& tree, Node node, Node target) { tree->moveChild(node, &target, false); }

void moveBefore(EditTree& tree, const std::string& node, const std::string& target) {
  moveBefore(tree, tree.find(node), tree.find(target));
}

void moveToEnd(EditTree& tree, Node node) { tree->moveChild(node, nullptr, false); }

void expectNothingHappens(const std::string& line, const std::string& node,
                          const std::string& target) {
  EditTree tree(line);
  const std::string before = tree.everything();
  moveBefore(tree, node, target);
  EXPECT_EQ(tree.everything(), before);
}

TEST(OmDimensionMoveBefore, MovesForwardsAmongSiblings) {
  EditTree tree("a0 b1 c2 d3");
  moveBefore(tree, "a", "d");
  EXPECT_EQ(tree.line(), "b1 c2 a0 d3");
}

TEST(OmDimensionMoveBefore, MovesBackwardsAmongSiblings) {
  EditTree tree("a0 b1 c2 d3");
  moveBefore(tree, "d", "a");
  EXPECT_EQ(tree.line(), "d3 a0 b1 c2");
}

TEST(OmDimensionMoveBefore, BeforeTheNextSiblingLeavesTheOrder) {
  EditTree tree("a0 B[b1] c2");
  moveBefore(tree, "a", "B");
  EXPECT_EQ(tree.line(), "a0 B[b1] c2");
  EXPECT_EQ(tree->checkInvariants(), nullptr);
}

TEST(OmDimensionMoveBefore, MovesToAnotherParent) {
  EditTree tree("A[a0 b1] B[c2 d3]");
  moveBefore(tree, "a", "d");
  EXPECT_EQ(tree.line(), "A[b1] B[c2 a0 d3]");
  EXPECT_EQ(tree->checkInvariants(), nullptr);
}

TEST(OmDimensionMoveBefore, LeavesAChildlessGroupBehind) {
  EditTree tree("A[a0] B[b1]");
  moveBefore(tree, "a", "b");
  EXPECT_EQ(tree.line(), "A[] B[a0 b1]");
}

TEST(OmDimensionMoveBefore, IntoALaterSiblingWhichMovesDown) {
  EditTree tree("x0 G[a1 H[b2]] y3");
  moveBefore(tree, "x", "b");
  EXPECT_EQ(tree.line(), "G[a1 H[x0 b2]] y3");
  EXPECT_EQ(tree->checkInvariants(), nullptr);
}

TEST(OmDimensionMoveBefore, IntoAnEarlierSibling) {
  EditTree tree("G[a0 b1] x2 y3");
  moveBefore(tree, "x", "b");
  EXPECT_EQ(tree.line(), "G[a0 x2 b1] y3");
  EXPECT_EQ(tree->checkInvariants(), nullptr);
}

TEST(OmDimensionMoveBefore, OutOfItsParentWhichMovesUp) {
  EditTree tree("z9 G[a0 H[b1] c2] d3");
  moveBefore(tree, "a", "z");
  EXPECT_EQ(tree.line(), "a0 z9 G[H[b1] c2] d3");
  EXPECT_EQ(tree->checkInvariants(), nullptr);
}

TEST(OmDimensionMoveBefore, ItsOwnParent) {
  EditTree tree("A[a0 B[b1] c2]");
  moveBefore(tree, "a", "A");
  EXPECT_EQ(tree.line(), "a0 A[B[b1] c2]");
  EXPECT_EQ(tree->checkInvariants(), nullptr);
}

TEST(OmDimensionMoveBefore, ANodeTwoLevelsUpAndDown) {
  EditTree tree("A[B[a0 C[c1]]] D[d2]");
  moveBefore(tree, "C", "A");
  EXPECT_EQ(tree.line(), "C[c1] A[B[a0]] D[d2]");
  EXPECT_EQ(tree->checkInvariants(), nullptr);
  moveBefore(tree, "C", "a");
  EXPECT_EQ(tree.line(), "A[B[C[c1] a0]] D[d2]");
  EXPECT_EQ(tree->checkInvariants(), nullptr);
}

TEST(OmDimensionMoveBefore, KeepsLinksWhereTheTargetsParentGrows) {
  EditTree tree("G[A[a0] B[b1] C[c2] D[d3]] E[e4 F[f5]]");
  moveBefore(tree, "E", "B");
  EXPECT_EQ(tree.line(), "G[A[a0] E[e4 F[f5]] B[b1] C[c2] D[d3]]");
  EXPECT_EQ(tree->checkInvariants(), nullptr);
}

TEST(OmDimensionMoveBefore, StandsBeforeTheFirstSiblingThatEqualsTheTarget) {
  EditTree tree("x0 a1 x0 b2");
  moveBefore(tree, tree.find("b"), tree.at(2));
  EXPECT_EQ(tree.line(), "b2 x0 a1 x0");
}

TEST(OmDimensionMoveBefore, TellsSiblingsOfOneLabelApartBySubscriptAndGroupFlag) {
  EditTree tree("x0 x[] x1 a2");
  moveBefore(tree, tree.find("a"), tree.at(2));
  EXPECT_EQ(tree.line(), "x0 x[] a2 x1");
}

TEST(OmDimensionMoveBefore, OneThatEqualsTheTargetFindsWhatIsLeft) {
  EditTree tree("x0(p1) a2 x0(q3) b4");
  moveBefore(tree, tree.at(0), tree.at(2));
  EXPECT_EQ(tree.line(), "a2 x0(p1) x0(q3) b4");
}

TEST(OmDimensionMoveBefore, ItselfGoesToTheEnd) {
  EditTree tree("a0 b1 c2");
  moveBefore(tree, "a", "a");
  EXPECT_EQ(tree.line(), "b1 c2 a0");
}

TEST(OmDimensionMoveBefore, ItselfGoesBeforeTheFirstEqualSibling) {
  EditTree tree("x0(p1) a2 x0(q3)");
  moveBefore(tree, tree.at(2), tree.at(2));
  EXPECT_EQ(tree.line(), "x0(q3) x0(p1) a2");
}

TEST(OmDimensionMoveBefore, TakesSubtreeFlagsAndIndexAlong) {
  EditTree tree("z9 !A[a0 b1] c2");
  tree.find("A")->Sort(OmSort::DOWN);
  tree.find("A")->HideLabels(true);
  moveBefore(tree, "A", "z");
  EXPECT_EQ(tree.line(), "!A[a0 b1] z9 c2");
  EXPECT_EQ(tree.index("A"), "0, 1");
  EXPECT_EQ(tree.find("A")->Sort(), OmSort::DOWN);
  EXPECT_TRUE(tree.find("A")->HideLabels());
}

TEST(OmDimensionMoveBefore, LeavesBothParentsIndexesAndTheExtent) {
  EditTree tree("A[a0 b1] B[c2 d3]");
  moveBefore(tree, "a", "d");
  EXPECT_EQ(tree.index("A"), "0, 1");
  EXPECT_EQ(tree.index("B"), "0, 1");
  EXPECT_EQ(tree.index("root"), "0, 1");
  EXPECT_EQ(tree->NumCategories(), 4);
}

// The index of B then says 0 for b, where c has come to stand, and 1 for nothing.
TEST(OmDimensionMoveBefore, LeavesAPositionBehindThatMatchesNothing) {
  EditTree tree("A[a0] B[b1 c2]");
  moveBefore(tree, "b", "a");
  EXPECT_EQ(tree.line(), "A[b1 a0] B[c2]");
  EXPECT_EQ(OmDimension::FindChild(tree.find("B"), OmStringCell("b"), false), -1);
  EXPECT_EQ(OmDimension::FindChild(tree.find("B"), OmStringCell("c"), false), -1);
}

TEST(OmDimensionMoveBefore, ATargetBelowTheNodeDoesNothing) {
  expectNothingHappens("A[a0 B[b1]] c2", "A", "a");
  expectNothingHappens("A[a0 B[b1]] c2", "A", "b");
}

TEST(OmDimensionMoveBefore, TheRootNeitherMovesNorIsMovedBefore) {
  expectNothingHappens("A[a0] b1", "root", "a");
  expectNothingHappens("A[a0] b1", "a", "root");
  expectNothingHappens("A[a0] b1", "root", "root");
}

TEST(OmDimensionMoveToEnd, MovesToTheEndOfAParentThatIsNotHidden) {
  EditTree tree("a0 B[b1] c2");
  moveToEnd(tree, tree.find("a"));
  EXPECT_EQ(tree.line(), "B[b1] c2 a0");
  EXPECT_EQ(tree->checkInvariants(), nullptr);
}

TEST(OmDimensionMoveToEnd, StaysBelowAnInnerParentThatIsNotHidden) {
  EditTree tree("A[a0 B[b1] c2] d3");
  moveToEnd(tree, tree.find("a"));
  EXPECT_EQ(tree.line(), "A[B[b1] c2 a0] d3");
  EXPECT_EQ(tree->checkInvariants(), nullptr);
}

TEST(OmDimensionMoveToEnd, LeavesTheLastChildWhereItIs) {
  EditTree tree("a0 B[b1]");
  moveToEnd(tree, tree.find("B"));
  EXPECT_EQ(tree.line(), "a0 B[b1]");
  EXPECT_EQ(tree->checkInvariants(), nullptr);
}

TEST(OmDimensionMoveToEnd, MovesTheDesignatedOneOfEqualSiblings) {
  EditTree tree("x0(p1) a2 x0(q3) b4");
  moveToEnd(tree, tree.at(2));
  EXPECT_EQ(tree.line(), "x0(p1) a2 b4 x0(q3)");
}

TEST(OmDimensionMoveToEnd, LeavesAHiddenParent) {
  EditTree tree("!G[a0 H[b1]] c2");
  moveToEnd(tree, tree.find("a"));
  EXPECT_EQ(tree.line(), "!G[H[b1]] c2 a0");
  EXPECT_EQ(tree->checkInvariants(), nullptr);
}

TEST(OmDimensionMoveToEnd, StopsAtTheNearestAncestorThatIsNotHidden) {
  EditTree tree("A[!B[!C[a0 D[d1]] b2] c3] e4");
  moveToEnd(tree, tree.find("a"));
  EXPECT_EQ(tree.line(), "A[!B[!C[D[d1]] b2] c3 a0] e4");
  EXPECT_EQ(tree->checkInvariants(), nullptr);
}

TEST(OmDimensionMoveToEnd, DoesNotPassAVisibleParentBelowAHiddenOne) {
  EditTree tree("!A[B[a0 b1]] c2");
  moveToEnd(tree, tree.find("a"));
  EXPECT_EQ(tree.line(), "!A[B[b1 a0]] c2");
}

TEST(OmDimensionMoveToEnd, StopsAtTheRootEvenWhereThatIsHidden) {
  EditTree tree("!G[a0] b1");
  tree->Root()->Hide(true);
  moveToEnd(tree, tree.find("a"));
  EXPECT_EQ(tree.line(), "!G[] b1 a0");
  moveToEnd(tree, tree.find("b"));
  EXPECT_EQ(tree.line(), "!G[] a0 b1");
}

TEST(OmDimensionMoveToEnd, AsksNothingOfTheNodesOwnHideFlag) {
  EditTree tree("A[!a0 b1] c2");
  moveToEnd(tree, tree.find("a"));
  EXPECT_EQ(tree.line(), "A[b1 !a0] c2");
}

TEST(OmDimensionMoveToEnd, PlaysTheSameWithTheExchangeFlag) {
  EditTree tree("a0 b1 c2");
  Node a = tree.find("a");
  tree->moveChild(a, nullptr, true);
  EXPECT_EQ(tree.line(), "b1 c2 a0");
}

TEST(OmDimensionMoveToEnd, LeavesIndexesAndTheExtent) {
  EditTree tree("!G[a0 b1] c2");
  moveToEnd(tree, tree.find("a"));
  EXPECT_EQ(tree.index("G"), "0, 1");
  EXPECT_EQ(tree.index("root"), "0, 1");
  EXPECT_EQ(tree->NumCategories(), 3);
}

TEST(OmDimensionMoveToEnd, OfTheRootDoesNothing) {
  EditTree tree("A[a0] b1");
  const std::string before = tree.everything();
  moveToEnd(tree, tree->Root());
  EXPECT_EQ(tree.everything(), before);
}

TEST(OmDimensionMoveToEnd, KeepsLinksWhereTheAncestorGrows) {
  EditTree tree("A[a0] B[b1] C[c2] !D[d3 E[e4 F[f5]]]");
  moveToEnd(tree, tree.find("E"));
  EXPECT_EQ(tree.line(), "A[a0] B[b1] C[c2] !D[d3] E[e4 F[f5]]");
  EXPECT_EQ(tree->checkInvariants(), nullptr);
}

}  // namespace
}  // namespace om::test
