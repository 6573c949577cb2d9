// The node at the same path in another tree, and what is reported where there is none.

#include <gtest/gtest.h>

#include <vector>

#include "tests/backend/tables/om/VectorTreeText.h"
#include "tests/support/Asserts.h"

namespace om::test {
namespace {

const Report kOutside{L"0 <= offset && offset < vec.size()", L"backend/tables/om/VectorTree", 384};

NumberNode counterpart(const NumberNode& node, Numbers& other) {
  return NumberTree::Counterpart(ConstNumberNode(node), other.rootNode());
}

TEST(VectorTreeCounterpart, OfTheRootIsTheOtherRootWithDepthZero) {
  Numbers tree("1(2)");
  Numbers other("7");
  const NumberNode mapped = counterpart(tree.rootNode(), other);
  EXPECT_EQ(mapped.Record(), &other.root());
  EXPECT_EQ(mapped.Depth(), 0U);
}

TEST(VectorTreeCounterpart, OfAnyHandleWithDepthZeroIsTheOtherRoot) {
  Numbers tree("1(2 3)");
  Numbers other("7(8 9)");
  EXPECT_EQ(counterpart(NumberNode(&tree.record({1}), 0), other).Record(), &other.root());
}

TEST(VectorTreeCounterpart, OfAChildIsTheChildAtTheSamePosition) {
  Numbers tree("1(2 3 4)");
  Numbers other("11(12 13 14)");
  const NumberNode mapped = counterpart(tree.at({2}), other);
  EXPECT_EQ(mapped.Record(), &other.record({2}));
  EXPECT_EQ(mapped.Depth(), 1U);
}

TEST(VectorTreeCounterpart, OfADeepNodeHasTheSamePathAndDepth) {
  Numbers tree("1(2 3(4 5 6(7 8)))");
  Numbers other("11(12 13(14 15 16(17 18)))");
  const NumberNode mapped = counterpart(tree.at({1, 2, 1}), other);
  EXPECT_EQ(mapped.Record(), &other.record({1, 2, 1}));
  EXPECT_EQ(mapped.Depth(), 3U);
}

TEST(VectorTreeCounterpart, InTheSameTreeIsTheNodeItself) {
  Numbers tree("1(2 3(4 5))");
  EXPECT_EQ(counterpart(tree.at({1, 1}), tree).Record(), &tree.record({1, 1}));
}

TEST(VectorTreeCounterpart, OfEqualSiblingsGoesByPosition) {
  Numbers tree("1(2 2)");
  Numbers other("1(2 2)");
  EXPECT_EQ(counterpart(tree.at({1}), other).Record(), &other.record({1}));
}

TEST(VectorTreeCounterpart, IsReadOnlyInATreeThatIs) {
  Numbers tree("1(2)");
  Numbers other("11(12)");
  const ConstNumberNode mapped =
      NumberTree::Counterpart(ConstNumberNode(tree.at({0})), ConstNumberNode(other.rootNode()));
  EXPECT_EQ(mapped->value(), 12);
}

TEST(VectorTreeCounterpart, BehindTheChildrenOfTheOtherTreeIsReportedAndGivesTheirEnd) {
  Numbers tree("1(2 3 4)");
  Numbers other("11(12 13)");
  const AssertCollector asserts;
  const NumberNode mapped = counterpart(tree.at({2}), other);
  EXPECT_EQ(asserts.reports(), std::vector<Report>{kOutside});
  EXPECT_TRUE(mapped == other.rootNode().ChildrenEnd());
  EXPECT_EQ(mapped.Depth(), 1U);
}

TEST(VectorTreeCounterpart, BelowALeafOfTheOtherTreeIsReported) {
  Numbers tree("1(2 3(4))");
  Numbers other("11(12 13)");
  const AssertCollector asserts;
  const NumberNode mapped = counterpart(tree.at({1, 0}), other);
  EXPECT_EQ(asserts.reports(), std::vector<Report>{kOutside});
  EXPECT_TRUE(mapped == other.at({1}).ChildrenEnd());
}

TEST(VectorTreeCounterpart, TheLastChildOfTheOtherTreeIsStillInside) {
  Numbers tree("1(2 3)");
  Numbers other("11(12 13)");
  EXPECT_EQ(counterpart(tree.at({1}), other)->value(), 13);
}

TEST(VectorTreeCounterpart, OfAMissingParentIsReportedOnceAndGivesTheEndAboveIt) {
  Numbers tree("1(2 3(4(5)))");
  Numbers other("11(12)");
  const AssertCollector asserts;
  const NumberNode mapped = counterpart(tree.at({1, 0, 0}), other);
  EXPECT_EQ(asserts.reports(), std::vector<Report>{kOutside});
  EXPECT_TRUE(mapped == other.rootNode().ChildrenEnd());
}

// Only the other tree's number of children counts, not that of the node's own parent.
TEST(VectorTreeCounterpart, IsCheckedAgainstTheChildrenOfTheOtherTree) {
  Numbers tree("1(2 3)");
  Numbers larger("11(12 13 14)");
  Numbers smaller("11(12)");
  EXPECT_EQ(counterpart(tree.at({1}), larger).Record(), &larger.record({1}));
  const AssertCollector asserts;
  EXPECT_TRUE(counterpart(tree.at({1}), smaller) == smaller.rootNode().ChildrenEnd());
  EXPECT_EQ(asserts.reports(), std::vector<Report>{kOutside});
}

TEST(VectorTreeCounterpart, OfAStaleLinkToALeafIsReported) {
  Numbers tree("1(2(4) 3)");
  Numbers other("11(12(14) 13)");
  const NumberNode node = tree.at({0, 0});
  node.Record()->parent = &tree.record({1});
  const AssertCollector asserts;
  const NumberNode mapped = counterpart(node, other);
  EXPECT_EQ(asserts.reports(), std::vector<Report>{kOutside});
  EXPECT_TRUE(mapped == other.at({1}).ChildrenEnd());
}

// After the first child is erased, the child of the one behind it names a place in which the next
// sibling stands now.
TEST(VectorTreeCounterpart, OfALinkToTheSiblingThatMovedUpIsReported) {
  Numbers tree("1(2 3(6) 4(7) 5)");
  Numbers other("1(2 3(6) 4(7) 5)");
  NumberTree::Erase(tree.at({0}));
  const NumberNode node = tree.at({0, 0});
  ASSERT_EQ(node->value(), 6);
  ASSERT_EQ(node.Record()->parent, &tree.record({1}));
  const AssertCollector asserts;
  const NumberNode mapped = counterpart(node, other);
  EXPECT_EQ(asserts.reports(), std::vector<Report>{kOutside});
  EXPECT_TRUE(mapped == other.at({1}).ChildrenEnd());
}

TEST(VectorTreeCounterpart, OfAnErasedTreeIsRightAgainAfterReparent) {
  Numbers tree("1(2 3(6) 4(7))");
  Numbers other("1(3(6) 4(7))");
  NumberTree::Erase(tree.at({0}));
  NumberTree::Reparent(tree.root(), true);
  EXPECT_EQ(counterpart(tree.at({1, 0}), other).Record(), &other.record({1, 0}));
}

}  // namespace
}  // namespace om::test
