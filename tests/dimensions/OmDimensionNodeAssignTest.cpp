// Assignment of nodes, which takes the text out of its source.

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <vector>

#include "tests/dimensions/DimensionText.h"
#include "tests/support/Counted.h"

namespace om::test {
namespace {

TEST(OmDimensionNodeAssign, TakesTheTextItselfOutOfTheConstSource) {
  OmDimensionNode target(OmStringCell("a"), 1, false, nullptr);
  const OmDimensionNode source(OmStringCell("b"), 2, false, nullptr);
  const OmCellText* const text = source.Text();
  target = source;
  EXPECT_EQ(target.Text(), text);
  EXPECT_EQ(source.Text(), nullptr);
}

TEST(OmDimensionNodeAssign, DestroysTheFormerTextAndClonesNone) {
  OmDimensionNode target(CountedText("a"), 1, false, nullptr);
  const OmDimensionNode source(CountedText("b"), 2, false, nullptr);
  resetCounted();
  target = source;
  EXPECT_EQ(CountedText::died(), std::vector<std::string>{"a"});
  EXPECT_EQ(CountedText::made(), 0);
}

TEST(OmDimensionNodeAssign, CopiesTheRestAndLeavesItInTheSource) {
  OmDimensionNode target(OmStringCell("a"), 1, false, nullptr);
  OmDimensionNode source(OmStringCell("b"), 2, true, nullptr);
  source.Sort(OmSort::DOWN);
  source.Hide(true);
  source.HideLabels(true);
  target = source;
  EXPECT_EQ(printed(target),
            "Subscript: 2, Group: yes, hide: yes, hideLabels: yes, Sort: down, Text: b\n");
  EXPECT_EQ(printed(source), "Subscript: 2, Group: yes, hide: yes, hideLabels: yes, Sort: down\n");
}

TEST(OmDimensionNodeAssign, CopiesTheFlagsThatAreOffToo) {
  OmDimensionNode target(OmStringCell("a"), 1, true, nullptr);
  target.Sort(OmSort::UP);
  target.Hide(true);
  target.HideLabels(true);
  const OmDimensionNode source(OmStringCell("b"), 2, false, nullptr);
  target = source;
  EXPECT_EQ(printed(target), "Subscript: 2, Group: no, hide: no, hideLabels: no, Text: b\n");
}

TEST(OmDimensionNodeAssign, FromANodeWithoutATextLeavesNone) {
  OmDimensionNode target(CountedText("a"), 1, false, nullptr);
  const OmDimensionNode source;
  target = source;
  EXPECT_EQ(target.Text(), nullptr);
  EXPECT_EQ(CountedText::live(), 0);
}

TEST(OmDimensionNodeAssign, ToANodeWithoutATextGivesItOne) {
  OmDimensionNode target;
  const OmDimensionNode source(OmStringCell("b"), 2, false, nullptr);
  target = source;
  EXPECT_EQ(std::string(*target.Text()), "b");
}

TEST(OmDimensionNodeAssign, BetweenNodesWithoutATextCopiesTheRest) {
  OmDimensionNode target;
  OmDimensionNode source;
  source.Subscript(3);
  target = source;
  EXPECT_EQ(target.Subscript(), 3U);
  EXPECT_EQ(target.Text(), nullptr);
}

TEST(OmDimensionNodeAssign, OfASourceTwiceGivesItsTextOnceOnly) {
  OmDimensionNode first;
  OmDimensionNode second;
  const OmDimensionNode source(OmStringCell("b"), 2, false, nullptr);
  first = source;
  second = source;
  EXPECT_EQ(std::string(*first.Text()), "b");
  EXPECT_EQ(second.Text(), nullptr);
  EXPECT_EQ(second.Subscript(), 2U);
}

TEST(OmDimensionNodeAssign, GivesTheTarget) {
  OmDimensionNode target;
  const OmDimensionNode source;
  EXPECT_EQ(&(target = source), &target);
}

TEST(OmDimensionNodeAssign, KeepsTheRegionOfTheTarget) {
  OmMemoryRegion targetRegion(false);
  OmMemoryRegion sourceRegion(false);
  OmDimensionNode target(OmStringCell("a"), 1, false, &targetRegion);
  const OmDimensionNode source(OmStringCell("b"), 2, false, &sourceRegion);
  target = source;
  EXPECT_EQ(target.Region(), &targetRegion);
  EXPECT_EQ(targetRegion.BlocksInUse(), 0U);
  EXPECT_EQ(sourceRegion.BlocksInUse(), 1U);
  target.Text(OmStringCell("c"));
  EXPECT_EQ(targetRegion.BlocksInUse(), 1U);
  EXPECT_EQ(sourceRegion.BlocksInUse(), 0U);
}

// The roots of two dimensions, as nodes with an index.
class OmDimensionNodeAssignIndex : public testing::Test {
 protected:
  OmDimensionNodeAssignIndex() {
    for (const char* const label : {"b", "a", "c"}) category(*three_, three_->Root(), label);
    category(*one_, one_->Root(), "z");
  }

  DimensionOwner three_ = dimensionNamed("three");
  DimensionOwner one_ = dimensionNamed("one");
};

TEST_F(OmDimensionNodeAssignIndex, TakesALongerIndexOver) {
  OmDimensionNode target(*one_->Root());
  const OmDimensionNode source(*three_->Root());
  target = source;
  EXPECT_EQ(indexOf(target), "1, 0, 2");
  EXPECT_EQ(indexOf(source), "1, 0, 2");
}

TEST_F(OmDimensionNodeAssignIndex, TakesAShorterIndexOver) {
  OmDimensionNode target(*three_->Root());
  const OmDimensionNode source(*one_->Root());
  target = source;
  EXPECT_EQ(indexOf(target), "0");
}

TEST_F(OmDimensionNodeAssignIndex, TakesAnEmptyIndexOver) {
  OmDimensionNode target(*three_->Root());
  const OmDimensionNode source(OmStringCell("empty"), 0, true, nullptr);
  target = source;
  EXPECT_EQ(indexOf(target), "");
}

TEST_F(OmDimensionNodeAssignIndex, PutsTheIndexInTheRegionOfTheTarget) {
  OmMemoryRegion region(false);
  OmDimensionNode target(&region);
  const OmDimensionNode source(*three_->Root());
  target = source;
  EXPECT_EQ(region.BlocksInUse(), 1U);
  EXPECT_EQ(indexOf(target), "1, 0, 2");
}

TEST_F(OmDimensionNodeAssignIndex, ToItselfChangesNothing) {
  OmDimensionNode node(*three_->Root());
  const OmCellText* const text = node.Text();
  const OmDimensionNode& same = node;
  node = same;
  EXPECT_EQ(node.Text(), text);
  EXPECT_EQ(printed(node),
            "Subscript: -1, Group: yes, hide: no, hideLabels: no, Children: 1, 0, 2, "
            "Text: three\n");
}

}  // namespace
}  // namespace om::test
