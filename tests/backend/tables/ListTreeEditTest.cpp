// ListTree: Flatten, Erase, Prune and assignment.

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <vector>

#include "tests/backend/tables/Brittle.h"
#include "tests/backend/tables/TreeText.h"
#include "tests/support/Allocations.h"
#include "tests/support/Counted.h"

namespace om::test {
namespace {

using Node = TextTree::Node;

std::string flattened(const std::string& line, const std::string& item) {
  TextTree tree = treeOf(line);
  Node node = nodeOf(tree, item);
  tree.Flatten(node);
  return lineOf(tree);
}

std::string erased(const std::string& line, const std::string& item) {
  TextTree tree = treeOf(line);
  Node node = nodeOf(tree, item);
  tree.Erase(node);
  return lineOf(tree);
}

std::string pruned(const std::string& line, const std::string& item) {
  TextTree tree = treeOf(line);
  tree.Prune(nodeOf(tree, item));
  return lineOf(tree);
}

template <class T>
std::vector<const void*> recordsOf(const ListTree<T>& tree) {
  std::vector<const void*> records;
  for (const auto& record : tree.List()) records.push_back(&record);
  return records;
}

TEST(ListTreeFlatten, TheChildrenBecomeNextSiblingsAndKeepTheirSubtrees) {
  EXPECT_EQ(flattened("r0 a1 b2 c3 d2 e1", "a"), "r0 a1 b1 c2 d1 e1");
}

TEST(ListTreeFlatten, StopsAtTheNextSibling) {
  EXPECT_EQ(flattened("r0 a1 b2 c1 d2", "a"), "r0 a1 b1 c1 d2");
}

TEST(ListTreeFlatten, StopsAtARecordHigherUp) {
  EXPECT_EQ(flattened("r0 a1 b2 c3 d1 e2", "b"), "r0 a1 b2 c2 d1 e2");
}

TEST(ListTreeFlatten, GoesToTheEndOfTheTree) {
  EXPECT_EQ(flattened("r0 a1 b2 c3", "a"), "r0 a1 b1 c2");
}

TEST(ListTreeFlatten, ALeafStaysAsItIs) {
  EXPECT_EQ(flattened("r0 a1 b2 c1", "b"), "r0 a1 b2 c1");
  EXPECT_EQ(flattened("r0 a1", "a"), "r0 a1");
}

TEST(ListTreeFlatten, TheRootLiftsEveryTopLevelNodeToLevelZero) {
  EXPECT_EQ(flattened("r0 a1 b2 c1 d2", "r"), "r0 a0 b1 c0 d1");
}

TEST(ListTreeFlatten, TheEndNodeChangesNothing) {
  EXPECT_EQ(flattened("r0 a1 b2", "none"), "r0 a1 b2");
  EXPECT_EQ(flattened("", "none"), "");
}

TEST(ListTreeFlatten, MakesTheNodeALeaf) {
  TextTree tree = treeOf("r0 a1 b2");
  Node a = nodeOf(tree, "a");
  tree.Flatten(a);
  EXPECT_TRUE(a.IsLeaf());
}

TEST(ListTreeFlatten, GoesByTheRecordsOwnLevel) {
  TextTree tree = treeOf("r0 a1 b2 c3 d2");
  Node a = nodeOf(tree, "a");
  Node b = nodeOf(tree, "b");
  tree.Flatten(a);
  ASSERT_EQ(lineOf(tree), "r0 a1 b1 c2 d1");
  tree.Flatten(b);
  EXPECT_EQ(lineOf(tree), "r0 a1 b1 c1 d1");
}

TEST(ListTreeErase, TheChildrenTakeThePlaceOfTheNodeInTheirOrder) {
  EXPECT_EQ(erased("r0 a1 b2 c3 d2 e1", "a"), "r0 b1 c2 d1 e1");
}

TEST(ListTreeErase, ALeafJustGoes) {
  EXPECT_EQ(erased("r0 a1 b2 c2 d1", "b"), "r0 a1 c2 d1");
  EXPECT_EQ(erased("r0 a1", "a"), "r0");
}

TEST(ListTreeErase, AnInnerNodeLeavesItsParentAndNeighboursAlone) {
  EXPECT_EQ(erased("r0 a1 b2 c3 d4 e2 f1", "b"), "r0 a1 c2 d3 e2 f1");
}

TEST(ListTreeErase, TheOnlyRecordLeavesAnEmptyTree) { EXPECT_EQ(erased("r0", "r"), ""); }

TEST(ListTreeErase, TheRootLeavesItsChildrenAtLevelZero) {
  EXPECT_EQ(erased("r0 a1 b2", "r"), "a0 b1");
}

TEST(ListTreeErase, TheEndNodeChangesNothing) {
  EXPECT_EQ(erased("r0 a1 b2", "none"), "r0 a1 b2");
  EXPECT_EQ(erased("", "none"), "");
}

TEST(ListTreeErase, GoesByTheRecordsOwnLevel) {
  TextTree tree = treeOf("r0 a1 b2 c3 d2");
  Node a = nodeOf(tree, "a");
  Node b = nodeOf(tree, "b");
  tree.Flatten(a);
  tree.Erase(b);
  EXPECT_EQ(lineOf(tree), "r0 a1 c1 d1");
}

TEST(ListTreeErase, TheItemIsNotDestroyed) {
  CountedText root("r");
  CountedText child("c");
  ListTree<CountedText*> tree(&root);
  ListTree<CountedText*>::Node node = tree.Root().AppendChild(&child);
  tree.Erase(node);
  EXPECT_EQ(tree.Size(), 1);
  EXPECT_EQ(CountedText::live(), 2);
}

TEST(ListTreeErase, HandlesOnOtherRecordsStayValid) {
  TextTree tree = treeOf("r0 a1 b2 c1");
  Node a = nodeOf(tree, "a");
  const Node b = nodeOf(tree, "b");
  const Node c = nodeOf(tree, "c");
  tree.Erase(a);
  EXPECT_EQ(b.Item(), "b");
  EXPECT_EQ(c.Item(), "c");
}

TEST(ListTreePrune, TheNodeGoesWithItsWholeSubtree) {
  EXPECT_EQ(pruned("r0 a1 b2 c3 d2 e1 f2", "a"), "r0 e1 f2");
  EXPECT_EQ(pruned("r0 a1 b2 c3 d2 e1 f2", "b"), "r0 a1 d2 e1 f2");
}

TEST(ListTreePrune, ALeafGoesAlone) {
  EXPECT_EQ(pruned("r0 a1 b2 c2", "b"), "r0 a1 c2");
  EXPECT_EQ(pruned("r0 a1 b2 c2", "c"), "r0 a1 b2");
}

TEST(ListTreePrune, TheRootLeavesAnEmptyTree) { EXPECT_EQ(pruned("r0 a1 b2", "r"), ""); }

TEST(ListTreePrune, TheEndNodeRemovesNothing) {
  EXPECT_EQ(pruned("r0 a1 b2", "none"), "r0 a1 b2");
  EXPECT_EQ(pruned("", "none"), "");
}

TEST(ListTreePrune, GoesByTheCachedLevel) {
  TextTree tree = treeOf("r0 a1 b2 c3 d2");
  Node a = nodeOf(tree, "a");
  const Node b = nodeOf(tree, "b");
  tree.Flatten(a);
  ASSERT_EQ(lineOf(tree), "r0 a1 b1 c2 d1");
  tree.Prune(b);
  EXPECT_EQ(lineOf(tree), "r0 a1 c2 d1");
}

TEST(ListTreePrune, ItemsAreNotDestroyed) {
  CountedText root("r");
  CountedText child("c");
  ListTree<CountedText*> tree(&root);
  tree.Root().AppendChild(&child);
  tree.Prune(tree.Root());
  EXPECT_EQ(tree.Size(), 0);
  EXPECT_EQ(CountedText::live(), 2);
}

TEST(ListTreeEdit, FlattenEraseAndPruneAllocateNothing) {
  TextTree tree = treeOf("r0 a1 b2 c3 d1 e2");
  Node a = nodeOf(tree, "a");
  Node b = nodeOf(tree, "b");
  const Node d = nodeOf(tree, "d");
  const std::size_t before = totalNewBlocks();
  tree.Flatten(a);
  tree.Erase(b);
  tree.Prune(d);
  EXPECT_EQ(totalNewBlocks(), before);
  EXPECT_EQ(lineOf(tree), "r0 a1 c1");
}

TEST(ListTreeAssign, TheRecordsBecomeACopyOfTheOthers) {
  TextTree tree = treeOf("r0 a1");
  const TextTree other = treeOf("x0 y1 z2");
  TextTree& result = (tree = other);
  EXPECT_EQ(&result, &tree);
  EXPECT_EQ(lineOf(tree), "x0 y1 z2");
  EXPECT_EQ(lineOf(other), "x0 y1 z2");
}

TEST(ListTreeAssign, OverwritesRecordsInPlaceAndAppendsTheRest) {
  TextTree tree = treeOf("r0 a1 b2");
  const auto before = recordsOf(tree);
  tree = treeOf("v0 w1 x2 y2 z1");
  const auto after = recordsOf(tree);
  EXPECT_EQ(lineOf(tree), "v0 w1 x2 y2 z1");
  ASSERT_EQ(after.size(), 5U);
  EXPECT_EQ(std::vector<const void*>(after.begin(), after.begin() + 3), before);
}

TEST(ListTreeAssign, OverwritesRecordsInPlaceAndErasesTheSurplus) {
  TextTree tree = treeOf("r0 a1 b2 c1");
  auto before = recordsOf(tree);
  tree = treeOf("x0 y1");
  before.resize(2);
  EXPECT_EQ(lineOf(tree), "x0 y1");
  EXPECT_EQ(recordsOf(tree), before);
}

TEST(ListTreeAssign, AnEmptyTreeTakesAndGivesNothing) {
  TextTree tree;
  tree = treeOf("r0 a1");
  EXPECT_EQ(lineOf(tree), "r0 a1");
  tree = TextTree();
  EXPECT_EQ(tree.Size(), 0);
}

TEST(ListTreeAssign, ToItselfHasNoEffect) {
  TextTree tree = treeOf("r0 a1 b2");
  const auto before = recordsOf(tree);
  const TextTree& itself = tree;
  EXPECT_EQ(&(tree = itself), &tree);
  EXPECT_EQ(lineOf(tree), "r0 a1 b2");
  EXPECT_EQ(recordsOf(tree), before);
}

TEST(ListTreeAssign, ToItselfCopiesNoItem) {
  ListTree<Brittle> tree{Brittle(1)};
  const ListTree<Brittle>& itself = tree;
  const long before = Brittle::copies;
  tree = itself;
  EXPECT_EQ(Brittle::copies, before);
}

TEST(ListTreeAssign, SharesWhatPointersPointTo) {
  int item = 1;
  const ListTree<int*> source(&item);
  ListTree<int*> tree;
  tree = source;
  EXPECT_EQ(tree.Root().Item(), &item);
}

// Whichever copy fails, and whether the tree grows, shrinks or keeps its size.
TEST(ListTreeAssign, ACopyThatThrowsLeavesTheTreeAsBefore) {
  for (const int sourceSize : {2, 3, 5}) {
    ListTree<Brittle> source{Brittle(10)};
    for (int i = 1; i < sourceSize; ++i) source.Root().AppendChild(Brittle(10 + i));
    long refused = 0;
    for (long n = 1;; ++n) {
      ListTree<Brittle> tree{Brittle(0)};
      tree.Root().AppendChild(Brittle(1)).AppendChild(Brittle(2));
      const ListTree<Brittle> before(tree);
      if (!refusesCopy(n, [&] { tree = source; })) {
        EXPECT_TRUE(tree == source);
        break;
      }
      ++refused;
      EXPECT_TRUE(tree == before) << "copy " << n << " of " << sourceSize << " items";
      if (HasFailure()) return;
    }
    EXPECT_GE(refused, sourceSize);
  }
}

}  // namespace
}  // namespace om::test
