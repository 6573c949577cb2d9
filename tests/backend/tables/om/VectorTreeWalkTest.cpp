// Walking a vector tree, and telling which of its invariants does not hold.

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "tests/backend/tables/om/VectorTreeText.h"

namespace om::test {
namespace {

std::vector<std::pair<int, std::uint32_t>> walked(const ConstNumberNode& top, int leftOut = -1) {
  std::vector<std::pair<int, std::uint32_t>> seen;
  NumberTree::Walk(top, [&](const ConstNumberNode& node) {
    seen.emplace_back(node->value(), node.Depth());
    return node->value() != leftOut;
  });
  return seen;
}

using Seen = std::vector<std::pair<int, std::uint32_t>>;

TEST(VectorTreeWalk, VisitsParentsBeforeChildrenInOrder) {
  Numbers tree("1(2(3 4(5)) 6)");
  EXPECT_EQ(walked(tree.rootNode()), (Seen{{1, 0}, {2, 1}, {3, 2}, {4, 2}, {5, 3}, {6, 1}}));
}

TEST(VectorTreeWalk, StartsAtTheNodeAndKeepsToWhatIsBelow) {
  Numbers tree("1(2(3 4) 5)");
  EXPECT_EQ(walked(tree.at({0})), (Seen{{2, 1}, {3, 2}, {4, 2}}));
}

TEST(VectorTreeWalk, LeavesOutWhatIsBelowANodeThatIsAnsweredWithFalse) {
  Numbers tree("1(2(3 4) 5(6))");
  EXPECT_EQ(walked(tree.rootNode(), 2), (Seen{{1, 0}, {2, 1}, {5, 1}, {6, 2}}));
}

TEST(VectorTreeWalk, DoesNotFollowStaleLinks) {
  Numbers tree("1(2(3) 4)");
  tree.record({0}).parent = nullptr;
  tree.record({0, 0}).parent = &tree.record({1});
  EXPECT_EQ(walked(tree.rootNode()), (Seen{{1, 0}, {2, 1}, {3, 2}, {4, 1}}));
}

TEST(VectorTreeCheckInvariants, FindsNothingInATreeWithRightLinks) {
  Numbers tree("1(2(3 4) 5)");
  EXPECT_EQ(NumberTree::checkInvariants(tree.root()), nullptr);
}

TEST(VectorTreeCheckInvariants, TellsOfALinkThatIsNotRight) {
  Numbers tree("1(2(3 4) 5)");
  tree.record({0, 1}).parent = &tree.root();
  EXPECT_STREQ(NumberTree::checkInvariants(tree.root()),
               "a record's parent is the one that holds it");
}

TEST(VectorTreeCheckInvariants, TellsOfARootWithAParent) {
  Numbers tree("1(2(3))");
  EXPECT_STREQ(NumberTree::checkInvariants(tree.record({0})), "the parent of the root is null");
}

TEST(VectorTreeCheckInvariants, TellsOfChildrenOnAnotherRegion) {
  OmMemoryRegion region(false);
  OmMemoryRegion another(false);
  NumberEntry root([] { return Brittle(1); }, &region, nullptr);
  root.children.emplace_back([] { return Brittle(2); }, &another, &root);
  EXPECT_STREQ(NumberTree::checkInvariants(root), "all children are on one region");
}

}  // namespace
}  // namespace om::test
