// The editing and measuring of dimensions when memory runs out: whichever allocation fails, the
// tree is as before, and nothing is left behind.

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "tests/dimensions/EditTree.h"
#include "tests/support/Allocations.h"

namespace om::test {
namespace {

using Node = OmDimension::Node;

// Every parent that takes a node below has exactly four children, so that it has to grow. Labels of
// more than eight letters take room of their own.
const char* const kLine =
    "alphabetical0 beta1 !Gathering[gamma2 deltadelta3 !Hidden[epsilon4 Inner[zeta5]] eta6] "
    "Others[theta7 Iotas[iota8] kappa9 lambda10]";

std::size_t walked(const Node& node) {
  std::size_t count = 1;
  for (const Node child : node.Children()) count += walked(child);
  return count;
}

// The operation has found its nodes by `prepare`, before memory runs out.
std::size_t expectUnchangedByFailure(
    const std::string& line, const std::function<std::function<void()>(EditTree&)>& prepare) {
  return failEveryAllocation([&](FailurePoint& point) {
    EditTree tree(line);
    const std::string before = tree.everything();
    const std::size_t nodes = walked(tree->Root());
    const std::function<void()> operation = prepare(tree);
    const bool completed = point.during(operation);
    EXPECT_NE(completed, point.failed());
    EXPECT_EQ(tree->checkInvariants(), nullptr);
    if (completed) return;
    EXPECT_EQ(tree.everything(), before);
    EXPECT_EQ(walked(tree->Root()), nodes);
  });
}

std::function<void()> moving(EditTree& tree, const std::string& node, const std::string& target,
                             bool exchange) {
  const Node moved = tree.find(node);
  const Node other = tree.find(target);
  return [&tree, moved, other, exchange] {
    Node from = moved;
    Node to = other;
    tree->moveChild(from, &to, exchange);
  };
}

std::function<void()> movingToEnd(EditTree& tree, const std::string& node) {
  const Node moved = tree.find(node);
  return [&tree, moved] {
    Node from = moved;
    tree->moveChild(from, nullptr, false);
  };
}

// The links are restored behind the operation, which leaves that to its caller.
TEST(OmDimensionEditAllocation, DeleteLeavesTheTreeAsItWas) {
  EXPECT_GE(expectUnchangedByFailure(kLine,
                                     [](EditTree& tree) {
                                       return [&tree, node = tree.find("beta")]() mutable {
                                         tree->Delete(node);
                                         OmDimension::Tree::Reparent(*tree->Root().Record(), true);
                                       };
                                     }),
            1U);
}

TEST(OmDimensionEditAllocation, InsertCategoryInFrontLeavesTheTreeAsItWas) {
  const OmStringCell text("new category");
  EXPECT_GE(expectUnchangedByFailure(kLine,
                                     [&text](EditTree& tree) {
                                       return [&, node = tree.find("alphabetical")] {
                                         tree->insertCategory(text, tree->Root(), node, true);
                                       };
                                     }),
            4U);
}

TEST(OmDimensionEditAllocation, MovingBeforeASiblingLeavesTheTreeAsItWas) {
  EXPECT_GE(expectUnchangedByFailure(
                kLine, [](EditTree& tree) { return moving(tree, "Others", "beta", false); }),
            10U);
}

TEST(OmDimensionEditAllocation, MovingIntoAFullParentLeavesTheTreeAsItWas) {
  EXPECT_GE(expectUnchangedByFailure(
                kLine, [](EditTree& tree) { return moving(tree, "alphabetical", "kappa", false); }),
            4U);
}

TEST(OmDimensionEditAllocation, MovingOutOfAParentLeavesTheTreeAsItWas) {
  EXPECT_GE(expectUnchangedByFailure(
                kLine, [](EditTree& tree) { return moving(tree, "Hidden", "Others", false); }),
            10U);
}

TEST(OmDimensionEditAllocation, MovingToTheEndOfAnAncestorLeavesTheTreeAsItWas) {
  EXPECT_GE(
      expectUnchangedByFailure(kLine, [](EditTree& tree) { return movingToEnd(tree, "Inner"); }),
      6U);
}

TEST(OmDimensionEditAllocation, ExchangingSiblingsLeavesTheTreeAsItWas) {
  EXPECT_GE(expectUnchangedByFailure(
                kLine, [](EditTree& tree) { return moving(tree, "Gathering", "beta", true); }),
            10U);
}

TEST(OmDimensionEditAllocation, ExchangingUnderDifferentParentsLeavesTheTreeAsItWas) {
  EXPECT_GE(expectUnchangedByFailure(
                kLine, [](EditTree& tree) { return moving(tree, "Hidden", "Iotas", true); }),
            10U);
}

TEST(OmDimensionEditAllocation, MeasuringLeavesTheTreeAsItWas) {
  EXPECT_GE(expectUnchangedByFailure(kLine,
                                     [](EditTree& tree) {
                                       return [&tree] {
                                         tree->getMaximumDepth();
                                         tree->getMaxVisibleGroupCount();
                                       };
                                     }),
            3U);
}

TEST(OmDimensionEditAllocation, InsertChildLeavesTheTreeAsItWas) {
  const OmStringCell text("new group over both");
  EXPECT_GE(failEveryAllocation([&](FailurePoint& point) {
              EditTree tree(kLine);
              const std::string before = tree.everything();
              Node first = tree.find("Others");
              Node second = tree.find("alphabetical");
              const std::vector<Node*> nodes{&first, &second};
              const bool completed = point.during([&] { tree->insertChild(text, nodes); });
              EXPECT_NE(completed, point.failed());
              EXPECT_EQ(tree->checkInvariants(), nullptr);
              if (completed) return;
              EXPECT_EQ(tree.everything(), before);
            }),
            10U);
}

// The subscript alone changes first.
TEST(OmDimensionEditAllocation, RemoveChildLeavesTheTreeAsItWasButForTheSubscript) {
  EXPECT_GE(failEveryAllocation([](FailurePoint& point) {
              EditTree tree(kLine);
              const std::string before = tree.everything();
              Node node = tree.find("Gathering");
              const bool completed = point.during([&] { tree->removeChild(node); });
              EXPECT_NE(completed, point.failed());
              EXPECT_EQ(tree->checkInvariants(), nullptr);
              if (completed) return;
              EXPECT_EQ(node, tree.find("Gathering"));
              EXPECT_EQ(node->Subscript(), ~0ULL - 1);
              node->Subscript(~0ULL);
              EXPECT_EQ(tree.everything(), before);
            }),
            10U);
}

// A failed operation leaves nothing in the way of the same one afterwards.
TEST(OmDimensionEditAllocation, AnExchangeThatFailedSucceedsWhenItIsRepeated) {
  EXPECT_GE(failEveryAllocation([](FailurePoint& point) {
              EditTree tree("a0 B[b1 C[c2]] D[d3] e4");
              Node b = tree.find("B");
              Node d = tree.find("D");
              if (!point.during([&] { tree->moveChild(b, &d, true); })) {
                tree->moveChild(b, &d, true);
              }
              EXPECT_EQ(tree.line(), "a0 D[d3] B[b1 C[c2]] e4");
              EXPECT_EQ(tree->checkInvariants(), nullptr);
            }),
            5U);
}

}  // namespace
}  // namespace om::test
