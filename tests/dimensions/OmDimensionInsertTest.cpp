// OmDimension::insertCategory and insertChild: where the new node stands, what it is like, and what
// the parent's index says afterwards.

#include <gtest/gtest.h>

#include <cstddef>
#include <vector>

#include "external/platform/icuTracker.h"
#include "tests/dimensions/EditTree.h"

namespace om::test {
namespace {

using Node = OmDimension::Node;

OmDimensionNode insertBefore(EditTree& tree, const Node& sibling) {
  return tree->insertCategory(OmStringCell("n"), sibling.Parent(), sibling, true);
}

OmDimensionNode insertBehind(EditTree& tree, const Node& sibling) {
  return tree->insertCategory(OmStringCell("n"), sibling.Parent(), sibling, false);
}

// Gathers children of the root, by position, under "G".
void gather(EditTree& tree, const std::vector<std::size_t>& positions) {
  std::vector<Node> nodes;
  for (const std::size_t position : positions) nodes.push_back(tree.at(position));
  std::vector<Node*> pointers;
  for (Node& node : nodes) pointers.push_back(&node);
  tree->insertChild(OmStringCell("G"), pointers);
}

TEST(OmDimensionInsertCategory, BeforeTheFirstChildPutsTheCategoryFirst) {
  EditTree tree("a0 b1");
  insertBefore(tree, tree.find("a"));
  EXPECT_EQ(tree.line(), "n2 a0 b1");
}

TEST(OmDimensionInsertCategory, BehindTheFirstChildPutsItSecond) {
  EditTree tree("a0 b1");
  insertBehind(tree, tree.find("a"));
  EXPECT_EQ(tree.line(), "a0 n2 b1");
}

TEST(OmDimensionInsertCategory, BeforeTheLastChildPutsItBeforeThat) {
  EditTree tree("a0 b1");
  insertBefore(tree, tree.find("b"));
  EXPECT_EQ(tree.line(), "a0 n2 b1");
}

TEST(OmDimensionInsertCategory, BehindTheLastChildAppends) {
  EditTree tree("a0 b1");
  insertBehind(tree, tree.find("b"));
  EXPECT_EQ(tree.line(), "a0 b1 n2");
}

TEST(OmDimensionInsertCategory, AtTheEndOfTheChildrenAppendsOnBothSides) {
  EditTree tree("a0 b1");
  tree->insertCategory(OmStringCell("n"), tree->Root(), tree->Root().ChildrenEnd(), true);
  tree->insertCategory(OmStringCell("m"), tree->Root(), tree->Root().ChildrenEnd(), false);
  EXPECT_EQ(tree.line(), "a0 b1 n2 m3");
}

TEST(OmDimensionInsertCategory, IntoAnEmptyParentAppendsOnBothSides) {
  EditTree tree("A[] B[]");
  const Node a = tree.find("A");
  tree->insertCategory(OmStringCell("n"), a, a.FirstChild(), true);
  const Node b = tree.find("B");
  tree->insertCategory(OmStringCell("m"), b, b.FirstChild(), false);
  EXPECT_EQ(tree.line(), "A[n1] B[m2]");
}

TEST(OmDimensionInsertCategory, StandsBeforeTheFirstChildThatEqualsTheSibling) {
  EditTree tree("x0 a1 x0");
  insertBefore(tree, tree.at(2));
  EXPECT_EQ(tree.line(), "n2 x0 a1 x0");
}

TEST(OmDimensionInsertCategory, BehindAChildStandsBeforeTheFirstThatEqualsTheNext) {
  EditTree tree("x0 a1 x0");
  insertBehind(tree, tree.find("a"));
  EXPECT_EQ(tree.line(), "n2 x0 a1 x0");
}

TEST(OmDimensionInsertCategory, TellsSiblingsApartByLabelGroupFlagAndSubscript) {
  EditTree tree("x0 y2 x-1 x[] x2");
  insertBefore(tree, tree.at(4));
  EXPECT_EQ(tree.line(), "x0 y2 x-1 x[] n0 x2");
}

TEST(OmDimensionInsertCategory, TakesOneMoreThanTheLargestSubscriptAndRaisesTheExtent) {
  EditTree tree("a0 b1 c2 d3 e4");
  const OmDimensionNode added = insertBefore(tree, tree.find("c"));
  EXPECT_EQ(added.Subscript(), 5U);
  EXPECT_EQ(tree->NumCategories(), 6);
  EXPECT_EQ(tree.line(), "a0 b1 n5 c2 d3 e4");
}

TEST(OmDimensionInsertCategory, GivesTheFirstCategoryOfADimensionSubscriptOne) {
  EditTree tree("");
  const Node root = tree->Root();
  const OmDimensionNode added =
      tree->insertCategory(OmStringCell("n"), root, root.FirstChild(), true);
  EXPECT_EQ(added.Subscript(), 1U);
  EXPECT_EQ(tree->NumCategories(), 1);
}

TEST(OmDimensionInsertCategory, LooksForTheLargestSubscriptInTheWholeTreeButNotAtGroups) {
  EditTree tree("G90[a0 b1] H[I[c7]] x11(d2)");
  EXPECT_EQ(insertBefore(tree, tree.find("a")).Subscript(), 12U);
}

TEST(OmDimensionInsertCategory, CountsTheSubscriptOfARootThatIsNoGroup) {
  EditTree tree("a0", OmDimensionNode(OmStringCell("root"), 7, false, nullptr));
  EXPECT_EQ(insertBefore(tree, tree.find("a")).Subscript(), 8U);
}

TEST(OmDimensionInsertCategory, RaisesTheExtentByOneWhateverTheSubscriptIs) {
  EditTree tree("a40");
  insertBehind(tree, tree.find("a"));
  EXPECT_EQ(tree->NumCategories(), 2);
}

TEST(OmDimensionInsertCategory, TakesTheLow32BitsOfTheSubscriptsPresent) {
  EditTree tree("a4294967301 b3");  // 2^32 + 5
  EXPECT_EQ(insertBehind(tree, tree.find("b")).Subscript(), 6U);
}

TEST(OmDimensionInsertCategory, BehindADissolvedCategoryReachesTheEndOf32BitsAndWraps) {
  EditTree tree("a0 b1");
  Node a = tree.find("a");
  tree->removeChild(a);
  EXPECT_EQ(insertBehind(tree, tree.find("b")).Subscript(), 0xFFFFFFFFU);
  EXPECT_EQ(insertBehind(tree, tree.find("b")).Subscript(), 0U);
}

TEST(OmDimensionInsertCategory, GivesACopyOfThePlainCategoryOnTheDefaultHeap) {
  EditTree tree("a0 b1");
  const OmDimensionNode added = insertBehind(tree, tree.find("a"));
  EXPECT_EQ(labelOf(added), "n");
  EXPECT_FALSE(added.IsGroup());
  EXPECT_FALSE(added.Hide());
  EXPECT_FALSE(added.HideLabels());
  EXPECT_EQ(added.Sort(), OmSort::NONE);
  EXPECT_EQ(OmMemoryRegion::OrDefaultHeap(added.Region()), OmMemoryRegion::DefaultHeap());
  EXPECT_NE(added.Text(), tree.find("n")->Text());
  EXPECT_EQ(added, *tree.find("n"));
}

TEST(OmDimensionInsertCategory, CopiesTheCategoryIntoTheDimensionsRegion) {
  EditTree tree("a0 b1");
  const std::size_t before = tree.region().BlocksInUse();
  insertBehind(tree, tree.find("a"));
  EXPECT_EQ(tree.find("n")->Region(), &tree.region());
  EXPECT_GT(tree.region().BlocksInUse(), before);
  EXPECT_FALSE(tree.find("n")->IsGroup());
  EXPECT_EQ(tree.find("n")->Sort(), OmSort::NONE);
}

TEST(OmDimensionInsertCategory, TakesTheTrackerOfTheParentsText) {
  icuTracker parents({true, "en"});
  icuTracker own({false, "de"});
  EditTree tree("G[a0]");
  tree.find("G")->Text()->setTracker(&parents);
  OmStringCell text("n");
  text.setTracker(&own);
  const OmDimensionNode added = tree->insertCategory(text, tree.find("G"), tree.find("a"), true);
  EXPECT_EQ(added.Text()->getTracker(), &parents);
  EXPECT_EQ(tree.find("n")->Text()->getTracker(), &parents);
  EXPECT_EQ(text.getTracker(), &own);
}

TEST(OmDimensionInsertCategory, LeavesTheIndexSoThatTheCategoryIsNotFound) {
  EditTree tree("a0 b1");
  insertBehind(tree, tree.find("b"));
  EXPECT_EQ(tree.index("root"), "0, 1");
  EXPECT_EQ(OmDimension::FindChild(tree->Root(), OmStringCell("n"), false), -1);
}

TEST(OmDimensionInsertCategory, MakesTheNextAddedChildsEntryFallShortOfItsPosition) {
  EditTree tree("a0 b1");
  insertBehind(tree, tree.find("a"));
  tree->AddNewChild(tree->Root(), OmStringCell("y"), 9, false);
  EXPECT_EQ(tree.line(), "a0 n2 b1 y9");
  EXPECT_EQ(tree.index("root"), "0, 1, 2");
}

TEST(OmDimensionInsertCategory, KeepsAllLinksWhenChildrenMoveUp) {
  EditTree tree("A[a0 K[k5]] B[b1] C[c2]");
  insertBefore(tree, tree.find("A"));
  EXPECT_EQ(tree->checkInvariants(), nullptr);
  insertBefore(tree, tree.find("B"));
  EXPECT_EQ(tree.line(), "n6 A[a0 K[k5]] n7 B[b1] C[c2]");
  EXPECT_EQ(tree->checkInvariants(), nullptr);
}

TEST(OmDimensionInsertCategory, KeepsTheIndexesAndFlagsOfTheSiblings) {
  EditTree tree("!A[a0 b1] c2");
  insertBefore(tree, tree.find("A"));
  EXPECT_EQ(tree.line(), "n3 !A[a0 b1] c2");
  EXPECT_EQ(tree.index("A"), "0, 1");
}

TEST(OmDimensionInsertChild, GathersNeighboursAtThePlaceOfTheFirst) {
  EditTree tree("a0 b1 c2 d3 e4");
  gather(tree, {1, 2});
  EXPECT_EQ(tree.line(), "a0 G[b1 c2] d3 e4");
  EXPECT_EQ(tree->NumCategories(), 5);
}

TEST(OmDimensionInsertChild, GathersFromTheFirstChildOn) {
  EditTree tree("a0 b1 c2");
  gather(tree, {0, 1});
  EXPECT_EQ(tree.line(), "G[a0 b1] c2");
}

TEST(OmDimensionInsertChild, GathersTheLastChildrenAtTheEnd) {
  EditTree tree("a0 b1 c2");
  gather(tree, {1, 2});
  EXPECT_EQ(tree.line(), "a0 G[b1 c2]");
}

TEST(OmDimensionInsertChild, GathersAllChildren) {
  EditTree tree("a0 b1 c2");
  gather(tree, {0, 1, 2});
  EXPECT_EQ(tree.line(), "G[a0 b1 c2]");
}

TEST(OmDimensionInsertChild, GathersSiblingsThatStandApart) {
  EditTree tree("a0 b1 c2 d3 e4");
  gather(tree, {1, 3});
  EXPECT_EQ(tree.line(), "a0 G[b1 d3] c2 e4");
}

TEST(OmDimensionInsertChild, KeepsTheOrderInWhichTheNodesAreGiven) {
  EditTree tree("a0 b1 c2 d3 e4");
  gather(tree, {3, 1});
  EXPECT_EQ(tree.line(), "a0 c2 G[d3 b1] e4");
}

TEST(OmDimensionInsertChild, StandsAtThePlaceOfTheFirstAlsoBehindAnotherGatheredOne) {
  EditTree tree("a0 b1 c2 d3");
  gather(tree, {2, 1});
  EXPECT_EQ(tree.line(), "a0 G[c2 b1] d3");
}

TEST(OmDimensionInsertChild, StandsBeforeTheFirstChildThatEqualsTheOneAtItsPlace) {
  EditTree tree("x0 a1 x0");
  gather(tree, {1});
  EXPECT_EQ(tree.line(), "G[a1] x0 x0");
}

TEST(OmDimensionInsertChild, ErasesTheGivenOneOfEqualSiblings) {
  EditTree tree("x0(p1) a2 x0(q3) b4");
  gather(tree, {2});
  EXPECT_EQ(tree.line(), "x0(p1) a2 G[x0(q3)] b4");
}

TEST(OmDimensionInsertChild, CopiesANodeThatIsGivenTwiceAndErasesItOnce) {
  EditTree tree("a0 b1 c2");
  gather(tree, {1, 1});
  EXPECT_EQ(tree.line(), "a0 G[b1 b1] c2");
  EXPECT_EQ(tree->checkInvariants(), nullptr);
}

TEST(OmDimensionInsertChild, GathersBelowAnInnerNode) {
  EditTree tree("A[a0 b1 c2] d3");
  Node b = tree.find("b");
  Node c = tree.find("c");
  tree->insertChild(OmStringCell("G"), {&b, &c});
  EXPECT_EQ(tree.line(), "A[a0 G[b1 c2]] d3");
  EXPECT_EQ(tree->checkInvariants(), nullptr);
}

TEST(OmDimensionInsertChild, MakesAPlainGroupInTheDimensionsRegion) {
  EditTree tree("a0 b1");
  gather(tree, {0});
  const OmDimensionNode& group = *tree.find("G");
  EXPECT_TRUE(group.IsGroup());
  EXPECT_EQ(group.Subscript(), ~0ULL);
  EXPECT_EQ(group.Sort(), OmSort::NONE);
  EXPECT_FALSE(group.Hide());
  EXPECT_FALSE(group.HideLabels());
  EXPECT_EQ(group.Region(), &tree.region());
}

TEST(OmDimensionInsertChild, TakesSubtreesFlagsAndIndexesAlong) {
  EditTree tree("z9 !A[a0 b1] x3(c2) y4");
  tree.find("x")->Sort(OmSort::DOWN);
  tree.find("x")->HideLabels(true);
  gather(tree, {1, 2});
  EXPECT_EQ(tree.line(), "z9 G[!A[a0 b1] x3(c2)] y4");
  EXPECT_EQ(tree.index("A"), "0, 1");
  EXPECT_EQ(tree.index("x"), "0");
  EXPECT_EQ(tree.find("x")->Sort(), OmSort::DOWN);
  EXPECT_TRUE(tree.find("x")->HideLabels());
  EXPECT_EQ(tree->checkInvariants(), nullptr);
}

TEST(OmDimensionInsertChild, LeavesTheParentsIndexAndGivesTheGroupNone) {
  EditTree tree("a0 b1 c2 d3");
  gather(tree, {1, 2});
  EXPECT_EQ(tree.index("root"), "0, 1, 2, 3");
  EXPECT_EQ(tree.index("G"), "");
  EXPECT_EQ(OmDimension::FindChild(tree.find("G"), OmStringCell("b"), false), -1);
}

TEST(OmDimensionInsertChild, LeavesPositionsBehindThatMatchNothing) {
  EditTree tree("a0 b1");
  gather(tree, {0, 1});
  ASSERT_EQ(tree.index("root"), "0, 1");
  EXPECT_EQ(OmDimension::FindChild(tree->Root(), OmStringCell("b"), false), -1);
  EXPECT_EQ(OmDimension::FindChild(tree->Root(), OmStringCell("G"), true), -1);
  tree->Child(tree->Root(), OmStringCell("G"), 5, true);
  EXPECT_EQ(tree.line(), "G[a0 b1] G5[]");
  EXPECT_EQ(tree.index("root"), "0, 1, 2");
}

TEST(OmDimensionInsertChild, TakesTheTrackerOfTheFirstNodesOwnText) {
  icuTracker parents({true, "en"});
  icuTracker firsts({false, "de"});
  EditTree tree("a0 b1 c2");
  tree->Name().setTracker(&parents);
  tree.find("c")->Text()->setTracker(&firsts);
  gather(tree, {2, 1});
  EXPECT_EQ(tree.find("G")->Text()->getTracker(), &firsts);
  EXPECT_EQ(tree.find("b")->Text()->getTracker(), nullptr);
}

TEST(OmDimensionInsertChild, OfNoNodesDoesNothing) {
  EditTree tree("A[a0] b1");
  const std::string before = tree.everything();
  tree->insertChild(OmStringCell("G"), {});
  EXPECT_EQ(tree.everything(), before);
}

TEST(OmDimensionInsertChild, OfTheRootDoesNothing) {
  EditTree tree("A[a0] b1");
  const std::string before = tree.everything();
  Node root = tree->Root();
  tree->insertChild(OmStringCell("G"), {&root});
  EXPECT_EQ(tree.everything(), before);
}

TEST(OmDimensionInsertChild, KeepsAllLinksOfTheSiblingsThatMove) {
  EditTree tree("a0 B[b1] c2 D[d3 E[e4]] F[f5]");
  gather(tree, {0, 1, 2});
  EXPECT_EQ(tree.line(), "G[a0 B[b1] c2] D[d3 E[e4]] F[f5]");
  EXPECT_EQ(tree->checkInvariants(), nullptr);
  EXPECT_EQ(labelOf(*tree.find("e").Parent().Parent()), "D");
}

TEST(OmDimensionInsertChild, TakesALabelFromTheGatheredNodeItself) {
  EditTree tree("a0 b1");
  Node b = tree.find("b");
  tree->insertChild(*b->Text(), {&b});
  EXPECT_EQ(tree.line(), "a0 b[b1]");
}

}  // namespace
}  // namespace om::test
