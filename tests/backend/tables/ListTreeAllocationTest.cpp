// ListTree when memory runs out: whichever allocation fails, every tree is as before.

#include <gtest/gtest.h>

#include <string>

#include "tests/backend/tables/TreeText.h"
#include "tests/support/Allocations.h"

namespace om::test {
namespace {

// Items too long for a string's own room, so that each copy of one allocates.
const char* const kLongTree =
    "the_root_of_the_long_tree0 the_first_child_of_the_root1 the_only_grandchild_of_the_root2 "
    "the_second_child_of_the_root1";

template <class Operation>
std::size_t expectUnchangedByFailure(const std::string& line, Operation operation) {
  return failEveryAllocation([&](FailurePoint& point) {
    TextTree tree = treeOf(line);
    TextTree other = treeOf(kLongTree);
    const bool completed = point.during([&] { operation(tree, other); });
    EXPECT_NE(completed, point.failed());
    if (completed) return;
    EXPECT_EQ(lineOf(tree), line);
    EXPECT_EQ(lineOf(other), kLongTree);
  });
}

TEST(ListTreeAllocation, MakingATreeFromAnItemLeavesNothingBehind) {
  const std::string item = "the root of a tree with one record";
  EXPECT_GE(failEveryAllocation(
                [&](FailurePoint& point) { point.during([&] { const TextTree tree(item); }); }),
            2U);
}

TEST(ListTreeAllocation, CopyingLeavesTheSourceAsItWas) {
  EXPECT_GE(expectUnchangedByFailure(
                "r0 a1", [](TextTree&, TextTree& other) { const TextTree copy(other); }),
            8U);
}

TEST(ListTreeAllocation, AppendChildLeavesTheTreeAsItWas) {
  EXPECT_GE(expectUnchangedByFailure("r0 a1 b2 c1",
                                     [](TextTree& tree, TextTree& other) {
                                       tree.Root().FirstChild().AppendChild(other.Root().Item());
                                     }),
            2U);
}

TEST(ListTreeAllocation, MoveLeavesBothTreesAsTheyWere) {
  EXPECT_GE(expectUnchangedByFailure("r0 a1 b2 c1",
                                     [](TextTree& tree, TextTree& other) {
                                       tree.Move(tree.Root().FirstChild(),
                                                 other.Root().FirstChild(), endOf(other));
                                     }),
            6U);
}

TEST(ListTreeAllocation, AssigningToAShorterTreeLeavesItAsItWas) {
  EXPECT_GE(expectUnchangedByFailure("r0 a1",
                                     [](TextTree& tree, const TextTree& other) { tree = other; }),
            6U);
}

TEST(ListTreeAllocation, AssigningToALongerTreeLeavesItAsItWas) {
  EXPECT_GE(expectUnchangedByFailure("r0 a1 b2 c1 d1 e1",
                                     [](TextTree& tree, const TextTree& other) { tree = other; }),
            4U);
}

}  // namespace
}  // namespace om::test
