// ListTree far beyond the size of real output: very deep and very wide.

#include <gtest/gtest.h>

#include <iterator>

#include "backend/tables/ListTree.h"

namespace om::test {
namespace {

using Tree = ListTree<int>;

constexpr int kDepth = 100'000;
constexpr int kWidth = 1'000'000;

// Records 0, 1, 2 ... each the only child of the one before.
Tree deepTree() {
  Tree tree;
  for (int i = 0; i < kDepth; ++i) tree.List().push_back({i, i});
  return tree;
}

// A root, item 0, with children 1, 2, 3 ...
Tree wideTree() {
  Tree tree;
  tree.List().push_back({0, 0});
  for (int i = 1; i <= kWidth; ++i) tree.List().push_back({i, 1});
  return tree;
}

TEST(ListTreeScale, ADeepTreeIsCopiedAndCompared) {
  const Tree tree = deepTree();
  EXPECT_EQ(tree.Size(), kDepth);
  EXPECT_EQ(tree.checkInvariants(), nullptr);
  Tree copy(tree);
  EXPECT_TRUE(copy == tree);
  EXPECT_FALSE(copy < tree);
  copy.List().back()._data += 1;
  EXPECT_TRUE(copy != tree);
  EXPECT_TRUE(tree < copy);
  copy = tree;
  EXPECT_TRUE(copy == tree);
}

TEST(ListTreeScale, TheDeepestNodeKnowsItsParentAndTakesAChild) {
  Tree tree = deepTree();
  const Tree::Node deepest(tree, std::prev(tree.List().end()));
  EXPECT_TRUE(deepest.IsLeaf());
  EXPECT_EQ(deepest.Parent().Item(), kDepth - 2);
  EXPECT_EQ(deepest.AppendChild(-1).Level(), kDepth);
}

TEST(ListTreeScale, ADeepTreeIsFlattenedErasedAndPruned) {
  Tree tree = deepTree();
  Tree::Node first = tree.Root().FirstChild();
  tree.Flatten(first);
  EXPECT_EQ(tree.List().back()._level, kDepth - 2);
  tree.Erase(first);
  EXPECT_EQ(tree.Size(), kDepth - 1);
  EXPECT_EQ(tree.Root().FirstChild().Item(), 2);
  EXPECT_EQ(tree.List().back()._level, kDepth - 2);
  EXPECT_EQ(tree.checkInvariants(), nullptr);
  tree.Prune(Tree::Node(tree, std::next(tree.List().begin(), 50'000)));
  EXPECT_EQ(tree.Size(), 50'000);
  EXPECT_EQ(tree.List().back()._data, 50'000);
}

TEST(ListTreeScale, ADeepTreeIsErasedFromTheBottomUp) {
  Tree tree = deepTree();
  while (tree.Size() > 1) {
    Tree::Node last(tree, std::prev(tree.List().end()));
    tree.Erase(last);
  }
  EXPECT_TRUE(tree.Root().IsLeaf());
}

TEST(ListTreeScale, AWideTreeIsCopiedAndCompared) {
  const Tree tree = wideTree();
  EXPECT_EQ(tree.Size(), kWidth + 1);
  EXPECT_EQ(tree.checkInvariants(), nullptr);
  Tree copy(tree);
  EXPECT_TRUE(copy == tree);
  copy.List().pop_back();
  EXPECT_TRUE(copy < tree);
  EXPECT_TRUE(copy != tree);
}

TEST(ListTreeScale, TheChildrenOfAWideTreeAreWalked) {
  const Tree tree = wideTree();
  int children = 0;
  long long sum = 0;
  const Tree::ConstNode end = tree.Root().ChildrenEnd();
  for (auto node = tree.Root().FirstChild(); node != end; node = node.NextSibling()) {
    ++children;
    sum += node.Item();
  }
  EXPECT_EQ(children, kWidth);
  EXPECT_EQ(sum, 500'000'500'000LL);
}

TEST(ListTreeScale, AWideTreeIsFlattenedErasedAndPruned) {
  Tree tree = wideTree();
  for (int i = 0; i < kWidth / 2; ++i) {
    Tree::Node first = tree.Root().FirstChild();
    tree.Erase(first);
  }
  EXPECT_EQ(tree.Root().FirstChild().Item(), kWidth / 2 + 1);
  for (int i = 0; i < 1'000; ++i) tree.Prune(tree.Root().FirstChild());
  EXPECT_EQ(tree.Size(), 1 + kWidth / 2 - 1'000);
  Tree::Node root = tree.Root();
  tree.Flatten(root);
  EXPECT_EQ(tree.List().back()._level, 0);
  EXPECT_TRUE(root.IsLeaf());
  tree.Prune(root);
  EXPECT_EQ(tree.Size(), kWidth / 2 - 1'000);
}

}  // namespace
}  // namespace om::test
