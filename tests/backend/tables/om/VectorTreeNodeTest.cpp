// The handles of a vector tree: what they reach, how they step, and when they are equal.

#include <gtest/gtest.h>

#include <type_traits>
#include <utility>
#include <vector>

#include "tests/backend/tables/om/VectorTreeText.h"

namespace om::test {
namespace {

static_assert(std::is_same_v<decltype(*std::declval<NumberNode>()), Brittle&>);
static_assert(std::is_same_v<decltype(*std::declval<ConstNumberNode>()), const Brittle&>);
static_assert(
    std::is_same_v<decltype(std::declval<ConstNumberNode>().operator->()), const Brittle*>);
static_assert(std::is_convertible_v<NumberNode, ConstNumberNode>);
static_assert(!std::is_convertible_v<ConstNumberNode, NumberNode>);
static_assert(std::is_same_v<decltype(NumberNode().Depth()), std::uint32_t>);

TEST(VectorTreeNode, DereferenceGivesTheValueItself) {
  Numbers tree("1(2 3)");
  const NumberNode node = tree.at({1});
  *node = Brittle(9);
  EXPECT_EQ(tree.line(), "1(2 9)");
  EXPECT_EQ(&*node, &tree.root().children[1].value);
}

TEST(VectorTreeNode, TheArrowReachesTheMembersOfTheValue) {
  Numbers tree("1(2 3)");
  EXPECT_EQ(tree.at({1})->value(), 3);
  EXPECT_EQ(ConstNumberNode(tree.at({0}))->value(), 2);
}

TEST(VectorTreeNode, AHandleMadeWithoutARecordHasNoneAndDepthZero) {
  const NumberNode node;
  EXPECT_EQ(node.Record(), nullptr);
  EXPECT_EQ(node.Depth(), 0U);
}

TEST(VectorTreeNode, TheFirstChildIsTheFirstRecordOneLevelDeeper) {
  Numbers tree("1(2(4) 3)");
  const NumberNode child = tree.rootNode().FirstChild();
  EXPECT_EQ(child.Record(), tree.root().children.begin());
  EXPECT_EQ(child.Depth(), 1U);
  EXPECT_EQ(child.FirstChild()->value(), 4);
  EXPECT_EQ(child.FirstChild().Depth(), 2U);
}

TEST(VectorTreeNode, ChildrenEndIsBehindTheLastRecordOneLevelDeeper) {
  Numbers tree("1(2 3)");
  const NumberNode end = tree.rootNode().ChildrenEnd();
  EXPECT_EQ(end.Record(), tree.root().children.begin() + 2);
  EXPECT_EQ(end.Depth(), 1U);
}

TEST(VectorTreeNode, ALeafHasNoFirstChildButTheEnd) {
  Numbers tree("1");
  EXPECT_TRUE(tree.rootNode().FirstChild() == tree.rootNode().ChildrenEnd());
  EXPECT_EQ(tree.rootNode().ChildCount(), 0U);
}

TEST(VectorTreeNode, StepsGoFromRecordToRecordOfOneVectorUpToItsEnd) {
  Numbers tree("1(2(5) 3(6) 4)");
  NumberNode child = tree.rootNode().FirstChild();
  std::vector<int> values;
  for (; !(child == tree.rootNode().ChildrenEnd()); ++child) {
    values.push_back(child->value());
    EXPECT_EQ(child.Depth(), 1U);
  }
  EXPECT_EQ(values, (std::vector<int>{2, 3, 4}));
}

TEST(VectorTreeNode, AStepGivesTheSteppedHandle) {
  Numbers tree("1(2 3)");
  NumberNode child = tree.rootNode().FirstChild();
  EXPECT_EQ(&++child, &child);
  EXPECT_EQ(child->value(), 3);
}

TEST(VectorTreeNode, TheParentIsOneLevelLessDeep) {
  Numbers tree("1(2 3(4))");
  const NumberNode parent = tree.at({1, 0}).Parent();
  EXPECT_EQ(parent.Record(), &tree.record({1}));
  EXPECT_EQ(parent.Depth(), 1U);
  EXPECT_EQ(parent.Parent().Record(), &tree.root());
  EXPECT_EQ(parent.Parent().Depth(), 0U);
}

TEST(VectorTreeNode, TheParentOfTheRootRecordIsNone) {
  Numbers tree("1(2)");
  EXPECT_EQ(tree.root().parent, nullptr);
}

TEST(VectorTreeNode, TheDepthIsTheNumberOfStepsToTheRoot) {
  Numbers tree("1(2(3(4)))");
  NumberNode node = tree.at({0, 0, 0});
  std::uint32_t steps = 0;
  for (; node.Record()->parent != nullptr; node = node.Parent()) ++steps;
  EXPECT_EQ(steps, 3U);
  EXPECT_EQ(tree.at({0, 0, 0}).Depth(), 3U);
  EXPECT_EQ(node.Depth(), 0U);
}

TEST(VectorTreeNode, ChildCountIsTheNumberOfDirectChildren) {
  Numbers tree("1(2(5 6) 3 4)");
  EXPECT_EQ(tree.rootNode().ChildCount(), 3U);
  EXPECT_EQ(tree.at({0}).ChildCount(), 2U);
}

TEST(VectorTreeNode, ChildAtGivesTheChildAtAPosition) {
  Numbers tree("1(2 3 4)");
  EXPECT_EQ(tree.rootNode().ChildAt(2)->value(), 4);
  EXPECT_EQ(tree.rootNode().ChildAt(2).Depth(), 1U);
}

TEST(VectorTreeNode, HandlesOfOneRecordAreEqualWhateverTheirDepths) {
  Numbers tree("1(2)");
  EXPECT_TRUE(NumberNode(&tree.root(), 0) == NumberNode(&tree.root(), 7));
  EXPECT_FALSE(NumberNode(&tree.root(), 0) != NumberNode(&tree.root(), 7));
}

TEST(VectorTreeNode, HandlesOfTwoRecordsAreUnequalWhateverTheirValues) {
  Numbers tree("1(2 2)");
  EXPECT_FALSE(tree.at({0}) == tree.at({1}));
}

TEST(VectorTreeNode, AReadOnlyHandleIsMadeFromAHandleWithTheSameFields) {
  Numbers tree("1(2(3))");
  const ConstNumberNode node = tree.at({0, 0});
  EXPECT_EQ(node.Record(), &tree.record({0, 0}));
  EXPECT_EQ(node.Depth(), 2U);
}

TEST(VectorTreeNode, AHandleAndAReadOnlyOneOfTheSameRecordAreEqual) {
  Numbers tree("1(2)");
  EXPECT_TRUE(ConstNumberNode(tree.at({0})) == ConstNumberNode(tree.at({0})));
  EXPECT_TRUE(ConstNumberNode(tree.at({0})) == tree.rootNode().FirstChild());
}

TEST(VectorTreeNode, AReadOnlyHandleStepsAsAHandleDoes) {
  Numbers tree("1(2 3(4))");
  ConstNumberNode child = ConstNumberNode(tree.rootNode()).FirstChild();
  ++child;
  EXPECT_EQ(child->value(), 3);
  EXPECT_EQ(child.FirstChild().Depth(), 2U);
  EXPECT_EQ(child.FirstChild().Parent()->value(), 3);
  EXPECT_EQ(child.ChildCount(), 1U);
  ++child;
  EXPECT_TRUE(child == ConstNumberNode(tree.rootNode()).ChildrenEnd());
}

TEST(VectorTreeNode, ALoopOverTheChildrenVisitsEachInOrder) {
  Numbers tree("1(2(9) 3 4)");
  std::vector<int> values;
  for (auto child : tree.rootNode().Children()) {
    values.push_back(child->value());
    EXPECT_EQ(child.Depth(), 1U);
  }
  EXPECT_EQ(values, (std::vector<int>{2, 3, 4}));
}

TEST(VectorTreeNode, ALoopOverTheChildrenCanChangeTheirValues) {
  Numbers tree("1(2 3)");
  for (auto child : tree.rootNode().Children()) *child = Brittle(child->value() + 10);
  EXPECT_EQ(tree.line(), "1(12 13)");
}

TEST(VectorTreeNode, ALoopOverTheChildrenOfAReadOnlyHandleGivesReadOnlyHandles) {
  Numbers tree("1(2 3)");
  int sum = 0;
  for (auto child : ConstNumberNode(tree.rootNode()).Children()) {
    static_assert(std::is_same_v<decltype(child), ConstNumberNode>);
    sum += child->value();
  }
  EXPECT_EQ(sum, 5);
}

TEST(VectorTreeNode, ALoopOverTheChildrenOfALeafVisitsNone) {
  Numbers tree("1");
  int visits = 0;
  for (auto child : tree.rootNode().Children()) visits += child->value();
  EXPECT_EQ(visits, 0);
}

TEST(VectorTreeNode, AfterAnInsertionInFrontAHandleDesignatesAnotherRecord) {
  Numbers tree("1(2 3)");
  Numbers source("8");
  const NumberNode node = tree.at({1});
  const Brittle sibling(2);
  NumberTree::InsertBefore(tree.root(), source.root(), &sibling);
  EXPECT_EQ(node->value(), 2);
}

}  // namespace
}  // namespace om::test
