// OmDimension::moveChild as an exchange of two nodes: of siblings, of nodes under different
// parents, and among siblings that equal each other.

#include <gtest/gtest.h>

#include "tests/dimensions/EditTree.h"

namespace om::test {
namespace {

using Node = OmDimension::Node;

void exchange(EditTree& tree, Node a, Node b) { tree->moveChild(a, &b, true); }

void expectExchanged(const std::string& line, const std::string& a, const std::string& b,
                     const std::string& expected) {
  EditTree tree(line);
  const std::int32_t extent = tree->NumCategories();
  exchange(tree, tree.find(a), tree.find(b));
  EXPECT_EQ(tree.line(), expected);
  EXPECT_EQ(tree->checkInvariants(), nullptr);
  EXPECT_EQ(tree->NumCategories(), extent);
}

void expectNothingHappens(const std::string& line, const std::string& a, const std::string& b) {
  EditTree tree(line);
  const std::string before = tree.everything();
  exchange(tree, tree.find(a), tree.find(b));
  EXPECT_EQ(tree.everything(), before);
}

TEST(OmDimensionExchange, SwapsSiblingsThatStandApart) {
  expectExchanged("a0 b1 c2 d3 e4", "b", "d", "a0 d3 c2 b1 e4");
  expectExchanged("a0 b1 c2 d3 e4", "d", "b", "a0 d3 c2 b1 e4");
}

TEST(OmDimensionExchange, SwapsNeighboursInBothDirections) {
  expectExchanged("a0 b1 c2 d3", "b", "c", "a0 c2 b1 d3");
  expectExchanged("a0 b1 c2 d3", "c", "b", "a0 c2 b1 d3");
}

TEST(OmDimensionExchange, SwapsTheLastTwoInBothDirections) {
  expectExchanged("a0 b1 c2", "b", "c", "a0 c2 b1");
  expectExchanged("a0 b1 c2", "c", "b", "a0 c2 b1");
}

TEST(OmDimensionExchange, SwapsTheOnlyTwoChildren) {
  expectExchanged("a0 b1", "a", "b", "b1 a0");
  expectExchanged("a0 b1", "b", "a", "b1 a0");
}

TEST(OmDimensionExchange, SwapsTheFirstAndTheLast) {
  expectExchanged("a0 b1 c2 d3", "a", "d", "d3 b1 c2 a0");
  expectExchanged("a0 b1 c2 d3", "d", "a", "d3 b1 c2 a0");
}

TEST(OmDimensionExchange, SwapsBelowAnInnerNode) {
  expectExchanged("A[a0 B[b1] c2] D[d3]", "a", "B", "A[B[b1] a0 c2] D[d3]");
  expectExchanged("A[a0 B[b1] c2] D[d3]", "c", "a", "A[c2 B[b1] a0] D[d3]");
}

TEST(OmDimensionExchange, TakesSubtreesFlagsAndIndexesAlong) {
  EditTree tree("!A[a0 b1] z9 B[c2 d3 e4]");
  tree.find("B")->Sort(OmSort::UP);
  exchange(tree, tree.find("A"), tree.find("B"));
  EXPECT_EQ(tree.line(), "B[c2 d3 e4] z9 !A[a0 b1]");
  EXPECT_EQ(tree.index("A"), "0, 1");
  EXPECT_EQ(tree.index("B"), "0, 1, 2");
  EXPECT_EQ(tree.index("root"), "0, 1, 2");
  EXPECT_EQ(tree.find("B")->Sort(), OmSort::UP);
  EXPECT_EQ(tree->checkInvariants(), nullptr);
}

TEST(OmDimensionExchange, SendsNodesOfDifferentParentsToTheEndOfTheirOwn) {
  expectExchanged("A[a0 b1 c2] B[d3 e4 f5]", "a", "d", "A[b1 c2 a0] B[e4 f5 d3]");
  expectExchanged("A[a0 b1 c2] B[d3 e4 f5]", "e", "b", "A[a0 c2 b1] B[d3 f5 e4]");
}

TEST(OmDimensionExchange, LeavesTheLastChildrenOfDifferentParentsWhereTheyAre) {
  expectExchanged("A[a0 b1] B[c2 d3]", "b", "d", "A[a0 b1] B[c2 d3]");
}

TEST(OmDimensionExchange, GoesBeforeASiblingOfItsOwnThatEqualsTheOthersNext) {
  expectExchanged("A[a0 b1 y7] B[d3 y7 e4]", "a", "d", "A[b1 a0 y7] B[y7 e4 d3]");
  expectExchanged("A[b1 y7 a0 c2] B[e4 d3 y7]", "d", "a", "A[b1 a0 y7 c2] B[e4 y7 d3]");
}

TEST(OmDimensionExchange, BothGoBeforeASiblingThatEqualsTheOthersNext) {
  expectExchanged("A[x8 a0 y7] B[y7 b1 x8]", "a", "b", "A[a0 x8 y7] B[b1 y7 x8]");
}

TEST(OmDimensionExchange, WithANodeBelowALaterSiblingWhichMovesDown) {
  expectExchanged("a0 B[d1 e2] c3", "a", "d", "B[e2 d1] c3 a0");
  expectExchanged("a0 B[d1 e2] c3", "d", "a", "B[e2 d1] c3 a0");
}

TEST(OmDimensionExchange, WithANodeBelowASiblingWhichMovesUpAgain) {
  expectExchanged("y5 a0 B[d1 y5 C[c2]]", "a", "d", "a0 y5 B[y5 C[c2] d1]");
  expectExchanged("y5 a0 B[d1 y5 C[c2]]", "d", "a", "a0 y5 B[y5 C[c2] d1]");
}

TEST(OmDimensionExchange, OfNodesOnDifferentLevels) {
  expectExchanged("A[a0 B[b1 c2] d3] E[e4 F[f5 g6]]", "b", "E", "A[a0 B[c2 b1] d3] E[e4 F[f5 g6]]");
  expectExchanged("A[a0 B[b1 c2] d3] E[e4 F[f5 g6]]", "a", "f", "A[B[b1 c2] d3 a0] E[e4 F[g6 f5]]");
}

TEST(OmDimensionExchange, StandsBeforeTheFirstOfEqualReferences) {
  expectExchanged("a0 x1 b2 x1", "a", "b", "a0 b2 x1 x1");
}

TEST(OmDimensionExchange, OfNeighboursStandsBeforeTheFirstThatEqualsTheirNext) {
  expectExchanged("y0 a1 b2 y0", "a", "b", "b2 a1 y0 y0");
  expectExchanged("y0 a1 b2 y0", "b", "a", "b2 a1 y0 y0");
}

TEST(OmDimensionExchange, OfNodesThatEqualEachOtherSwapsTheirSubtrees) {
  EditTree tree("x0(p1) a2 x0(q3)");
  exchange(tree, tree.at(0), tree.at(2));
  EXPECT_EQ(tree.line(), "x0(q3) a2 x0(p1)");
  EXPECT_EQ(tree->checkInvariants(), nullptr);
}

// The other node is found again by its value.
TEST(OmDimensionExchange, LosesTheFirstSiblingThatEqualsTheOtherNode) {
  EditTree tree("x1(p2) a0 x1(q3)");
  exchange(tree, tree.at(1), tree.at(2));
  EXPECT_EQ(tree.line(), "x1(q3) x1(q3) a0");
  EXPECT_EQ(tree->NumCategories(), 5);
  EXPECT_EQ(tree->checkInvariants(), nullptr);
}

TEST(OmDimensionExchange, LosesTheFirstSiblingThatEqualsTheOtherUnderItsParent) {
  EditTree tree("A[a0 b1] B[x2(p3) c4 x2(q5) d6]");
  exchange(tree, tree.find("a"), tree.at(1, 2));
  EXPECT_EQ(tree.line(), "A[b1 a0] B[c4 x2(q5) d6 x2(q5)]");
  EXPECT_EQ(tree->checkInvariants(), nullptr);
}

TEST(OmDimensionExchange, OfOneAboveTheOtherDoesNothing) {
  expectNothingHappens("A[a0 B[b1]] c2", "A", "a");
  expectNothingHappens("A[a0 B[b1]] c2", "a", "A");
  expectNothingHappens("A[a0 B[b1]] c2", "A", "b");
  expectNothingHappens("A[a0 B[b1]] c2", "b", "A");
}

TEST(OmDimensionExchange, OfANodeWithItselfDoesNothing) {
  expectNothingHappens("A[a0] b1 c2", "A", "A");
  expectNothingHappens("A[a0] b1 c2", "c", "c");
}

TEST(OmDimensionExchange, WithTheRootDoesNothing) {
  expectNothingHappens("A[a0] b1", "root", "a");
  expectNothingHappens("A[a0] b1", "a", "root");
  expectNothingHappens("A[a0] b1", "root", "root");
}

}  // namespace
}  // namespace om::test
