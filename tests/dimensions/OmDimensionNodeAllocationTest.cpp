// Nodes when memory runs out or a text refuses to be cloned: every node is as before.

#include <gtest/gtest.h>

#include <cstddef>
#include <string>

#include "tests/dimensions/DimensionText.h"
#include "tests/support/Allocations.h"

namespace om::test {
namespace {

constexpr const char* kTarget =
    "Subscript: 1, Group: no, hide: no, hideLabels: no, Text: the former text\n";
constexpr const char* kSource =
    "Subscript: -1, Group: yes, hide: no, hideLabels: no, Children: 1, 0, Text: name\n";

// A target without an index, and a source with an index of two.
template <class Operation>
std::size_t expectUnchangedByFailure(Operation operation) {
  return failEveryAllocation([&](FailurePoint& point) {
    OmMemoryRegion region(false);
    const DimensionOwner dimension = dimensionNamed("name", &region);
    category(*dimension, dimension->Root(), "b");
    category(*dimension, dimension->Root(), "a");
    const OmDimensionNode source(*dimension->Root());
    OmDimensionNode target(OmStringCell("the former text"), 1, false, &region);
    const std::size_t blocks = region.BlocksInUse();
    const bool completed = point.during([&] { operation(target, source); });
    EXPECT_NE(completed, point.failed());
    if (completed) return;
    EXPECT_EQ(printed(target), kTarget);
    EXPECT_EQ(printed(source), kSource);
    EXPECT_EQ(region.BlocksInUse(), blocks);
  });
}

TEST(OmDimensionNodeAllocation, MakingOneOfAText) {
  EXPECT_EQ(failEveryAllocation([](FailurePoint& point) {
              OmMemoryRegion region(false);
              const OmStringCell text("a");
              point.during([&] { const OmDimensionNode node(text, 0, false, &region); });
              EXPECT_EQ(region.BlocksInUse(), 0U);
            }),
            1U);
}

TEST(OmDimensionNodeAllocation, MakingOneOfARegionNeedsNone) {
  EXPECT_EQ(failEveryAllocation(
                [](FailurePoint& point) { point.during([] { const OmDimensionNode node; }); }),
            0U);
}

TEST(OmDimensionNodeAllocation, Copying) {
  EXPECT_EQ(expectUnchangedByFailure([](const OmDimensionNode&, const OmDimensionNode& source) {
              const OmDimensionNode copy(source);
            }),
            2U);
}

TEST(OmDimensionNodeAllocation, CopyingIntoAnotherRegion) {
  EXPECT_EQ(failEveryAllocation([](FailurePoint& point) {
              const DimensionOwner dimension = dimensionNamed("name");
              category(*dimension, dimension->Root(), "a");
              OmMemoryRegion another(false);
              point.during([&] { const OmDimensionNode copy(*dimension->Root(), &another); });
              EXPECT_EQ(another.BlocksInUse(), 0U);
            }),
            2U);
}

TEST(OmDimensionNodeAllocation, Assigning) {
  EXPECT_EQ(expectUnchangedByFailure(
                [](OmDimensionNode& target, const OmDimensionNode& source) { target = source; }),
            1U);
}

TEST(OmDimensionNodeAllocation, ReplacingTheText) {
  EXPECT_EQ(expectUnchangedByFailure([](OmDimensionNode& target, const OmDimensionNode& source) {
              target.Text(*source.Text());
            }),
            1U);
}

TEST(OmDimensionNodeAllocation, ATextThatIsNotClonedLeavesTheFormerOne) {
  OmDimensionNode node(OmStringCell("a"), 0, false, nullptr);
  EXPECT_THROW(node.Text(UniqueText("b")), CloneRefused);
  EXPECT_EQ(std::string(*node.Text()), "a");
}

TEST(OmDimensionNodeAllocation, ATextThatIsNotClonedMakesNoNode) {
  EXPECT_THROW(OmDimensionNode(UniqueText("b"), 0, false, nullptr), CloneRefused);
}

}  // namespace
}  // namespace om::test
