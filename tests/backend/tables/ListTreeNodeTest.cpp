// The handles of a ListTree: what they cache, where they step, and what they add.

#include <gtest/gtest.h>

#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "tests/backend/tables/TreeText.h"

namespace om::test {
namespace {

using Node = TextTree::Node;
using ConstNode = TextTree::ConstNode;

static_assert(std::is_convertible_v<Node, ConstNode>);
static_assert(!std::is_convertible_v<ConstNode, Node>);
static_assert(std::is_copy_constructible_v<Node> && std::is_copy_assignable_v<Node>);
static_assert(std::is_same_v<decltype(std::declval<Node>().Item()), std::string&>);
static_assert(std::is_same_v<decltype(std::declval<ConstNode>().Item()), const std::string&>);

// A handle on b that was made at level 2 and whose record stands at level 1 by now.
struct Stale {
  TextTree tree = treeOf("r0 a1 b2 c3 d2");
  Node b = nodeOf(tree, "b");
  Stale() {
    Node a = nodeOf(tree, "a");
    tree.Flatten(a);
  }
};

TEST(ListTreeNode, KnowsItsTreeItsRecordAndItsLevel) {
  TextTree tree = treeOf("r0 a1 b2");
  const Node node(tree, std::next(tree.List().begin(), 2));
  EXPECT_EQ(&node.Owner(), &tree);
  EXPECT_EQ(node.Iter(), std::next(tree.List().begin(), 2));
  EXPECT_EQ(node.Level(), 2);
  EXPECT_EQ(node.Item(), "b");
  EXPECT_FALSE(node.IsEnd());
}

TEST(ListTreeNode, TheEndNodeAnswersLevelZero) {
  TextTree tree = treeOf("r0 a1 b2");
  EXPECT_TRUE(endOf(tree).IsEnd());
  EXPECT_EQ(endOf(tree).Level(), 0);
}

TEST(ListTreeNode, ItemIsTheRecordsOwn) {
  TextTree tree = treeOf("r0 a1");
  nodeOf(tree, "a").Item() = "x";
  EXPECT_EQ(lineOf(tree), "r0 x1");
}

TEST(ListTreeNode, ACopiedHandleIsOnTheSameRecord) {
  TextTree tree = treeOf("r0 a1");
  const Node node = nodeOf(tree, "a");
  Node copy = node;
  EXPECT_TRUE(copy == node);
  copy = tree.Root();
  EXPECT_EQ(copy.Item(), "r");
  EXPECT_EQ(node.Item(), "a");
}

TEST(ListTreeNode, HandlesAreEqualWhenTheyAreOnTheSameRecord) {
  TextTree tree = treeOf("r0 a1 b1");
  EXPECT_TRUE(nodeOf(tree, "a") == nodeOf(tree, "a"));
  EXPECT_FALSE(nodeOf(tree, "a") == nodeOf(tree, "b"));
  EXPECT_TRUE(nodeOf(tree, "a") != nodeOf(tree, "b"));
}

TEST(ListTreeNode, CachedLevelsPlayNoPartInEquality) {
  TextTree tree = treeOf("r0 a1");
  const Node childrenEnd = tree.Root().ChildrenEnd();
  EXPECT_EQ(childrenEnd.Level(), 1);
  EXPECT_TRUE(childrenEnd == endOf(tree));
}

TEST(ListTreeNode, TheCachedLevelStaysWhenFlattenLiftsTheRecord) {
  const Stale stale;
  EXPECT_EQ(lineOf(stale.tree), "r0 a1 b1 c2 d1");
  EXPECT_EQ(stale.b.Level(), 2);
}

TEST(ListTreeNode, AConstHandleKeepsTheCachedLevelOfTheOneItWasMadeFrom) {
  const Stale stale;
  const ConstNode constNode = stale.b;
  EXPECT_EQ(constNode.Level(), 2);
  EXPECT_EQ(constNode.Item(), "b");
  EXPECT_EQ(&constNode.Owner(), &stale.tree);
}

TEST(ListTreeNode, IsALeafWhenTheNextRecordIsNotDeeper) {
  TextTree tree = treeOf("r0 a1 b2 c2 d1 e2");
  EXPECT_FALSE(nodeOf(tree, "r").IsLeaf());
  EXPECT_FALSE(nodeOf(tree, "a").IsLeaf());
  EXPECT_TRUE(nodeOf(tree, "b").IsLeaf());
  EXPECT_TRUE(nodeOf(tree, "c").IsLeaf());
  EXPECT_FALSE(nodeOf(tree, "d").IsLeaf());
}

TEST(ListTreeNode, TheLastRecordIsALeaf) {
  TextTree tree = treeOf("r0 a1");
  EXPECT_TRUE(nodeOf(tree, "a").IsLeaf());
  TextTree alone = treeOf("r0");
  EXPECT_TRUE(alone.Root().IsLeaf());
}

TEST(ListTreeNode, TheEndNodeIsALeafWithoutChildrenOrParent) {
  TextTree tree = treeOf("r0 a1");
  const Node end = endOf(tree);
  EXPECT_TRUE(end.IsLeaf());
  EXPECT_TRUE(end.FirstChild().IsEnd());
  EXPECT_TRUE(end.NextSibling().IsEnd());
  EXPECT_TRUE(end.ChildrenEnd().IsEnd());
  EXPECT_TRUE(end.Parent().IsEnd());
}

TEST(ListTreeNode, IsLeafGoesByTheCachedLevel) {
  const Stale stale;
  EXPECT_TRUE(stale.b.IsLeaf());
  EXPECT_FALSE(Node(stale.b.Owner(), stale.b.Iter()).IsLeaf());
}

TEST(ListTreeNode, FirstChildIsTheNextRecordWithItsOwnLevel) {
  TextTree tree = treeOf("r0 a1 b2");
  const Node child = tree.Root().FirstChild();
  EXPECT_EQ(child.Item(), "a");
  EXPECT_EQ(child.Level(), 1);
  EXPECT_EQ(child.FirstChild().Item(), "b");
  EXPECT_EQ(child.FirstChild().Level(), 2);
}

TEST(ListTreeNode, FirstChildOfALeafIsTheRecordBehindIt) {
  TextTree tree = treeOf("r0 a1 b2 c1");
  const Node behind = nodeOf(tree, "b").FirstChild();
  EXPECT_EQ(behind.Item(), "c");
  EXPECT_EQ(behind.Level(), 1);
}

TEST(ListTreeNode, FirstChildOfTheLastRecordIsTheEndNode) {
  TextTree tree = treeOf("r0 a1");
  const Node end = nodeOf(tree, "a").FirstChild();
  EXPECT_TRUE(end.IsEnd());
  EXPECT_EQ(end.Level(), 0);
}

TEST(ListTreeNode, NextSiblingStepsOverTheSubtree) {
  TextTree tree = treeOf("r0 a1 b2 c3 d1");
  const Node sibling = nodeOf(tree, "a").NextSibling();
  EXPECT_EQ(sibling.Item(), "d");
  EXPECT_EQ(sibling.Level(), 1);
}

TEST(ListTreeNode, NextSiblingOfTheLastChildIsTheNextRecordHigherUpWithTheSameCachedLevel) {
  TextTree tree = treeOf("r0 a1 b2 c3 d1");
  const Node next = nodeOf(tree, "b").NextSibling();
  EXPECT_EQ(next.Item(), "d");
  EXPECT_EQ(next.Level(), 2);
}

TEST(ListTreeNode, NextSiblingKeepsItsLevelOnTheEnd) {
  TextTree tree = treeOf("r0 a1 b2");
  const Node next = nodeOf(tree, "b").NextSibling();
  EXPECT_TRUE(next.IsEnd());
  EXPECT_EQ(next.Level(), 2);
}

TEST(ListTreeNode, NextSiblingGoesByTheCachedLevel) {
  const Stale stale;
  EXPECT_EQ(stale.b.NextSibling().Item(), "c");
  EXPECT_EQ(stale.b.NextSibling().Level(), 2);
}

TEST(ListTreeNode, ChildrenEndStandsBehindTheSubtreeWithTheChildrensLevel) {
  TextTree tree = treeOf("r0 a1 b2 c3 d1");
  const Node end = nodeOf(tree, "a").ChildrenEnd();
  EXPECT_EQ(end.Item(), "d");
  EXPECT_EQ(end.Level(), 2);
}

TEST(ListTreeNode, ChildrenEndKeepsTheChildrensLevelOnTheEnd) {
  TextTree tree = treeOf("r0 a1 b2");
  const Node end = nodeOf(tree, "b").ChildrenEnd();
  EXPECT_TRUE(end.IsEnd());
  EXPECT_EQ(end.Level(), 3);
}

TEST(ListTreeNode, ChildrenEndGoesByTheCachedLevel) {
  const Stale stale;
  EXPECT_EQ(stale.b.ChildrenEnd().Item(), "c");
  EXPECT_EQ(stale.b.ChildrenEnd().Level(), 3);
}

TEST(ListTreeNode, ChildrenAreWalkedFromFirstChildByNextSiblingToChildrenEnd) {
  TextTree tree = treeOf("r0 a1 b2 c2 d3 e2 f1 g2");
  const Node a = nodeOf(tree, "a");
  std::string children;
  for (Node n = a.FirstChild(); n != a.ChildrenEnd(); n = n.NextSibling()) children += n.Item();
  EXPECT_EQ(children, "bce");
}

TEST(ListTreeNode, ALeafHasNoChildrenToWalk) {
  TextTree tree = treeOf("r0 a1 b1");
  EXPECT_TRUE(nodeOf(tree, "a").FirstChild() == nodeOf(tree, "a").ChildrenEnd());
  EXPECT_TRUE(nodeOf(tree, "b").FirstChild() == nodeOf(tree, "b").ChildrenEnd());
}

TEST(ListTreeNode, ParentIsTheNearestRecordBeforeThatIsLessDeep) {
  TextTree tree = treeOf("r0 a1 b2 c3 d3 e2 f1");
  EXPECT_EQ(nodeOf(tree, "d").Parent().Item(), "b");
  EXPECT_EQ(nodeOf(tree, "d").Parent().Level(), 2);
  EXPECT_EQ(nodeOf(tree, "e").Parent().Item(), "a");
  EXPECT_EQ(nodeOf(tree, "f").Parent().Item(), "r");
  EXPECT_EQ(nodeOf(tree, "f").Parent().Level(), 0);
}

TEST(ListTreeNode, TheRootHasTheEndNodeAsParent) {
  TextTree tree = treeOf("r0 a1");
  EXPECT_TRUE(tree.Root().Parent().IsEnd());
}

TEST(ListTreeNode, ParentGoesByTheCachedLevel) {
  const Stale stale;
  EXPECT_EQ(stale.b.Parent().Item(), "a");
  EXPECT_EQ(Node(stale.b.Owner(), stale.b.Iter()).Parent().Item(), "r");
}

TEST(ListTreeNode, AppendChildAddsTheLastChildBehindTheSubtree) {
  TextTree tree = treeOf("r0 a1 b2 c3 d1");
  nodeOf(tree, "a").AppendChild("x");
  EXPECT_EQ(lineOf(tree), "r0 a1 b2 c3 x2 d1");
}

TEST(ListTreeNode, AppendChildGivesALeafItsFirstChild) {
  TextTree tree = treeOf("r0 a1 d1");
  nodeOf(tree, "a").AppendChild("x");
  EXPECT_EQ(lineOf(tree), "r0 a1 x2 d1");
}

TEST(ListTreeNode, AppendChildToTheRootAddsAtTheEnd) {
  TextTree tree = treeOf("r0 a1 b2");
  tree.Root().AppendChild("x");
  EXPECT_EQ(lineOf(tree), "r0 a1 b2 x1");
}

TEST(ListTreeNode, AppendChildGivesAHandleOnTheNewRecord) {
  TextTree tree = treeOf("r0 a1 b1");
  const Node added = nodeOf(tree, "a").AppendChild("x");
  EXPECT_EQ(added.Item(), "x");
  EXPECT_EQ(added.Level(), 2);
  EXPECT_EQ(&added.Owner(), &tree);
  EXPECT_TRUE(added == nodeOf(tree, "x"));
}

TEST(ListTreeNode, AppendChildTakesAnItemOfTheTreeItself) {
  TextTree tree = treeOf("r0 a1");
  tree.Root().AppendChild(nodeOf(tree, "a").Item());
  EXPECT_EQ(lineOf(tree), "r0 a1 a1");
}

TEST(ListTreeNode, OtherHandlesStayValidWhenRecordsAreAdded) {
  TextTree tree = treeOf("r0 a1 b1");
  const Node b = nodeOf(tree, "b");
  nodeOf(tree, "a").AppendChild("x");
  EXPECT_EQ(b.Item(), "b");
  EXPECT_EQ(b.Parent().Item(), "r");
}

TEST(ListTreeNode, AConstHandleStepsAsTheOtherDoes) {
  const TextTree tree = treeOf("r0 a1 b2 c2 d1");
  const ConstNode a = tree.Root().FirstChild();
  EXPECT_EQ(a.Item(), "a");
  EXPECT_FALSE(a.IsLeaf());
  EXPECT_EQ(a.FirstChild().Item(), "b");
  EXPECT_EQ(a.NextSibling().Item(), "d");
  EXPECT_EQ(a.ChildrenEnd().Item(), "d");
  EXPECT_EQ(a.ChildrenEnd().Level(), 2);
  EXPECT_EQ(a.Parent().Item(), "r");
  EXPECT_TRUE(a.NextSibling().NextSibling().IsEnd());
  EXPECT_EQ(a.NextSibling().NextSibling().Level(), 1);
}

TEST(ListTreeNode, AConstHandleIsComparedWithOneThatCanWrite) {
  TextTree tree = treeOf("r0 a1");
  const TextTree& constTree = tree;
  const ConstNode fromNode = tree.Root();
  EXPECT_TRUE(fromNode == constTree.Root());
}

}  // namespace
}  // namespace om::test
