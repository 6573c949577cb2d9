// OmOutputTree: Erase and Prune delete the parts that they remove, each once, in a fixed order.

#include <gtest/gtest.h>

#include <cstddef>
#include <string>

#include "output/OmOutputTree.h"
#include "tests/output/PartTree.h"
#include "tests/support/Allocations.h"
#include "tests/support/Counted.h"

namespace om::test {
namespace {

using Node = OmOutputTree::Node;

// What is left after an operation, and who died in it: "r0 b1; died: a".
template <class Operation>
std::string outcome(const std::string& line, const std::string& name, Operation operation) {
  resetCounted();
  PartTree tree(line);
  Node node = tree.at(name);
  operation(tree, node);
  return lineOf(tree) + "; died: " + diedLine();
}

std::string erased(const std::string& line, const std::string& name) {
  return outcome(line, name, [](OmOutputTree& tree, Node& node) { tree.Erase(node); });
}

std::string pruned(const std::string& line, const std::string& name) {
  return outcome(line, name, [](OmOutputTree& tree, Node& node) { tree.Prune(node); });
}

TEST(OmOutputTreeErase, DeletesThePartOfALeaf) {
  EXPECT_EQ(erased("r0 a1 b2 c2 d1", "b"), "r0 a1 c2 d1; died: b");
}

TEST(OmOutputTreeErase, LiftsTheChildrenIntoThePlaceOfTheNode) {
  EXPECT_EQ(erased("r0 a1 b2 c3 d2 e1", "a"), "r0 b1 c2 d1 e1; died: a");
}

TEST(OmOutputTreeErase, LiftsTheChildrenOfANullItemAndDeletesNothing) {
  EXPECT_EQ(erased("r0 -1 a2 b3 c1", "-"), "r0 a1 b2 c1; died: ");
}

TEST(OmOutputTreeErase, ALoneRootLeavesAnEmptyTree) { EXPECT_EQ(erased("r0", "r"), "; died: r"); }

TEST(OmOutputTreeErase, TheEndNodeChangesNothing) {
  EXPECT_EQ(erased("r0 a1 b2", "none"), "r0 a1 b2; died: ");
  EXPECT_EQ(erased("", "none"), "; died: ");
}

TEST(OmOutputTreeErase, GoesByTheRecordsOwnLevel) {
  PartTree tree("r0 a1 b2 c3 d2");
  Node a = tree.at("a");
  Node b = tree.at("b");
  tree.Flatten(a);
  ASSERT_EQ(lineOf(tree), "r0 a1 b1 c2 d1");
  tree.Erase(b);
  EXPECT_EQ(lineOf(tree), "r0 a1 c1 d1");
  EXPECT_EQ(diedLine(), "b");
}

TEST(OmOutputTreeErase, HandlesOnOtherRecordsStayValid) {
  PartTree tree("r0 a1 b2 c1");
  Node a = tree.at("a");
  const Node b = tree.at("b");
  const Node c = tree.at("c");
  tree.Erase(a);
  EXPECT_EQ(nameOf(b.Item()), "b");
  EXPECT_EQ(nameOf(c.Item()), "c");
}

TEST(OmOutputTreePrune, ALeafGoesAlone) {
  EXPECT_EQ(pruned("r0 a1 b2 c2 d1", "b"), "r0 a1 c2 d1; died: b");
  EXPECT_EQ(pruned("r0 a1", "a"), "r0; died: a");
}

TEST(OmOutputTreePrune, ChildrenDieInTheirOrderBeforeTheNode) {
  EXPECT_EQ(pruned("r0 a1 b2 c2 d2 e1", "a"), "r0 e1; died: b c d a");
}

TEST(OmOutputTreePrune, AChildsSubtreeDiesBeforeTheChildAndBeforeTheNextChild) {
  EXPECT_EQ(pruned("r0 a1 b2 c3 d4 e3 f2 g3 h1", "a"), "r0 h1; died: d c e b g f a");
}

TEST(OmOutputTreePrune, AChainDiesFromTheBottomUp) {
  EXPECT_EQ(pruned("r0 a1 b2 c3 d4 e5 f1", "b"), "r0 a1 f1; died: e d c b");
}

TEST(OmOutputTreePrune, StopsAtTheNextSibling) {
  EXPECT_EQ(pruned("r0 a1 b2 c3 d2 e3", "b"), "r0 a1 d2 e3; died: c b");
}

TEST(OmOutputTreePrune, StopsAtARecordHigherUp) {
  EXPECT_EQ(pruned("r0 a1 b2 c3 d4 e1", "c"), "r0 a1 b2 e1; died: d c");
}

TEST(OmOutputTreePrune, GoesToTheEndOfTheTree) {
  EXPECT_EQ(pruned("r0 a1 b2 c1 d2 e3", "c"), "r0 a1 b2; died: e d c");
}

TEST(OmOutputTreePrune, TheRootEmptiesTheTree) {
  PartTree tree("r0 a1 b2 c1");
  Node root = tree.Root();
  tree.Prune(root);
  EXPECT_EQ(diedLine(), "b a c r");
  EXPECT_EQ(tree.Size(), 0);
  EXPECT_TRUE(tree.Root().IsEnd());
  EXPECT_EQ(tree.Root().Level(), 0);
}

TEST(OmOutputTreePrune, AnEmptiedTreeTakesANewRoot) {
  PartTree tree("r0 a1");
  Node root = tree.Root();
  tree.Prune(root);
  tree.AppendLast(counted("s"), 0);
  tree.Append(tree.Root(), counted("b"));
  EXPECT_EQ(lineOf(tree), "s0 b1");
}

TEST(OmOutputTreePrune, NullItemsGoWithoutADeletion) {
  EXPECT_EQ(pruned("r0 a1 -2 b3 -3 c2 -1", "a"), "r0 -1; died: b c a");
}

TEST(OmOutputTreePrune, ANullItemGoesWithTheSubtreeBelowIt) {
  EXPECT_EQ(pruned("r0 -1 a2 b3 c1", "-"), "r0 c1; died: b a");
}

TEST(OmOutputTreePrune, TheEndNodeRemovesNothing) {
  EXPECT_EQ(pruned("r0 a1 b2", "none"), "r0 a1 b2; died: ");
  EXPECT_EQ(pruned("", "none"), "; died: ");
}

// The end that a walk over the children arrives at has a level of its own.
TEST(OmOutputTreePrune, AnEndNodeWithALevelRemovesNothing) {
  PartTree tree("r0 a1 b2");
  Node sibling = tree.at("a").NextSibling();
  Node childrenEnd = tree.at("b").ChildrenEnd();
  ASSERT_TRUE(sibling.IsEnd() && sibling.Level() == 1);
  ASSERT_TRUE(childrenEnd.IsEnd() && childrenEnd.Level() == 3);
  tree.Prune(sibling);
  tree.Prune(childrenEnd);
  tree.Erase(sibling);
  tree.Erase(childrenEnd);
  EXPECT_EQ(lineOf(tree), "r0 a1 b2");
  EXPECT_EQ(diedLine(), "");
}

// Flatten lifts b to level 1 and c to level 2. The handle still says 2, and nothing behind b is
// deeper than that: only b goes.
TEST(OmOutputTreePrune, GoesByTheLevelThatTheHandleWasMadeWith) {
  PartTree tree("r0 a1 b2 c3 d4 e2");
  Node a = tree.at("a");
  Node b = tree.at("b");
  tree.Flatten(a);
  ASSERT_EQ(lineOf(tree), "r0 a1 b1 c2 d3 e1");
  tree.Prune(b);
  EXPECT_EQ(diedLine(), "b");
  EXPECT_EQ(lineOf(tree), "r0 a1 c2 d3 e1");
}

TEST(OmOutputTreePrune, AHandleMadeAfterFlattenTakesTheWholeSubtree) {
  PartTree tree("r0 a1 b2 c3 d4 e2");
  Node a = tree.at("a");
  tree.Flatten(a);
  Node b = tree.at("b");
  tree.Prune(b);
  EXPECT_EQ(diedLine(), "d c b");
  EXPECT_EQ(lineOf(tree), "r0 a1 e1");
}

// NextSibling keeps the level of the last child on the record that is higher up.
TEST(OmOutputTreePrune, ASiblingHandleThatLeftItsParentRemovesOneRecord) {
  PartTree tree("r0 a1 b2 c1 d2");
  Node c = tree.at("b").NextSibling();
  ASSERT_TRUE(c == tree.at("c") && c.Level() == 2);
  tree.Prune(c);
  EXPECT_EQ(diedLine(), "c");
  EXPECT_EQ(lineOf(tree), "r0 a1 b2 d2");
}

TEST(OmOutputTreePrune, HandlesOnOtherRecordsStayValid) {
  PartTree tree("r0 a1 b2 c2 d1");
  Node b = tree.at("b");
  const Node a = tree.at("a");
  const Node c = tree.at("c");
  const Node d = tree.at("d");
  tree.Prune(b);
  EXPECT_EQ(nameOf(a.Item()) + nameOf(c.Item()) + nameOf(d.Item()), "acd");
}

TEST(OmOutputTreePrune, ChildrenCanBePrunedInAWalkThatLooksAheadOnce) {
  PartTree tree("r0 a1 b2 c3 d2 e3 f1");
  const Node end = tree.at("a").ChildrenEnd();
  for (Node child = tree.at("a").FirstChild(); child != end;) {
    const Node next = child.NextSibling();
    tree.Prune(child);
    child = next;
  }
  EXPECT_EQ(diedLine(), "c b e d");
  EXPECT_EQ(lineOf(tree), "r0 a1 f1");
}

TEST(OmOutputTreePrune, TextBlocksGoAsWell) {
  PartTree tree("r0 a1 [b]2 [c]1");
  Node a = tree.at("a");
  tree.Prune(a);
  EXPECT_EQ(lineOf(tree), "r0 [c]1");
}

TEST(OmOutputTreeEdit, EraseAndPruneAllocateNothing) {
  PartTree tree("-0 -1 -2 -3 -2 -1 -2");
  Node first = tree.Root().FirstChild();
  Node second = first.NextSibling();
  const std::size_t before = totalNewBlocks();
  tree.Erase(first);
  tree.Prune(second);
  EXPECT_EQ(totalNewBlocks(), before);
  EXPECT_EQ(lineOf(tree), "-0 -1 -2 -1");
}

}  // namespace
}  // namespace om::test
