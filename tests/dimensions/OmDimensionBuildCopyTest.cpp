// The copy of a dimension into a region: what it takes over, what not, and what it shares.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "external/platform/icuTracker.h"
#include "tests/dimensions/DimensionText.h"
#include "tests/support/Allocations.h"
#include "tests/support/Counted.h"

namespace om::test {
namespace {

// Categories b and a with a group G of d and c between them, all by Child: both indexes are out of
// the order of the children.
class OmDimensionCopy : public testing::Test {
 protected:
  OmDimensionCopy() {
    category(*dimension_, dimension_->Root(), "b", 0);
    const Node inner = group(*dimension_, dimension_->Root(), "G");
    category(*dimension_, inner, "d", 3)->Hide(true);
    category(*dimension_, inner, "c", 4)->Sort(OmSort::DOWN);
    category(*dimension_, dimension_->Root(), "a", 1)->HideLabels(true);
  }

  static constexpr const char* kLines =
      "Subscript: -1, Group: yes, hide: no, hideLabels: no, Children: 1, 2, 0, Text: name\n"
      "  Subscript: 0, Group: no, hide: no, hideLabels: no, Text: b\n"
      "  Subscript: -1, Group: yes, hide: no, hideLabels: no, Children: 1, 0, Text: G\n"
      "    Subscript: 3, Group: no, hide: yes, hideLabels: no, Text: d\n"
      "    Subscript: 4, Group: no, hide: no, hideLabels: no, Sort: down, Text: c\n"
      "  Subscript: 1, Group: no, hide: no, hideLabels: yes, Text: a\n";

  static void expectEachIn(const ConstNode& node, const OmMemoryRegion* region) {
    EXPECT_EQ(node->Region(), region) << std::string(*node->Text());
    EXPECT_EQ(node.Record()->children.region(), region) << std::string(*node->Text());
    for (const ConstNode child : node.Children()) expectEachIn(child, region);
  }

  OmMemoryRegion region_{false};
  OmMemoryRegion another_{false};
  DimensionOwner dimension_ = dimensionNamed("name", &region_);
};

TEST_F(OmDimensionCopy, HasEveryNodeWithEveryField) {
  const DimensionOwner copy = DimensionFactory::copy(*dimension_, &another_);
  EXPECT_EQ(printed(*copy), kLines);
  EXPECT_EQ(copy->checkInvariants(), nullptr);
  EXPECT_EQ(copy->Root().Depth(), 0U);
}

TEST_F(OmDimensionCopy, LeavesTheOtherAsItWas) {
  const std::size_t blocks = region_.BlocksInUse();
  const DimensionOwner copy = DimensionFactory::copy(*dimension_, &another_);
  EXPECT_EQ(printed(*dimension_), kLines);
  EXPECT_EQ(dimension_->NumCategories(), 4);
  EXPECT_EQ(dimension_->checkInvariants(), nullptr);
  EXPECT_EQ(region_.BlocksInUse(), blocks);
}

TEST_F(OmDimensionCopy, TakesTheExtentOver) {
  EXPECT_EQ(DimensionFactory::copy(*dimension_, &another_)->NumCategories(), 4);
}

TEST_F(OmDimensionCopy, TakesTheExtentOverAlsoWhereItIsNotTheNumberOfCategories) {
  const DimensionOwner emptied = dimensionNamed("name");
  Node only = category(*emptied, emptied->Root(), "a");
  emptied->Delete(only);
  ASSERT_EQ(emptied->NumCategories(), 1);
  const DimensionOwner copy = DimensionFactory::copy(*emptied, &another_);
  EXPECT_EQ(copy->NumCategories(), 1);
  EXPECT_EQ(copy->Root().ChildCount(), 0U);
}

TEST_F(OmDimensionCopy, DoesNotTakeOverThatTheLastCategoryIsDisplayed) {
  dimension_->DisplayLastCategory(true);
  const DimensionOwner copy = DimensionFactory::copy(*dimension_, &another_);
  EXPECT_FALSE(copy->DisplayLastCategory());
  EXPECT_TRUE(dimension_->DisplayLastCategory());
}

TEST_F(OmDimensionCopy, IsAllInTheRegion) {
  const DimensionOwner copy = DimensionFactory::copy(*dimension_, &another_);
  EXPECT_EQ(&copy->Region(), &another_);
  expectEachIn(copy->Root(), &another_);
}

TEST_F(OmDimensionCopy, PutsTheRootIntoTheRegionWhereverItWas) {
  OmMemoryRegion ofNode(false);
  const DimensionOwner original =
      DimensionFactory::make(OmDimensionNode(OmStringCell("name"), 0, true, &ofNode), &region_);
  const std::size_t blocks = ofNode.BlocksInUse();
  const DimensionOwner copy = DimensionFactory::copy(*original, &another_);
  EXPECT_EQ(copy->Root()->Region(), &another_);
  EXPECT_EQ(ofNode.BlocksInUse(), blocks);
  EXPECT_EQ(another_.BlocksInUse(), 1U);
}

TEST_F(OmDimensionCopy, AllocatesNothingThatStaysOutsideTheRegion) {
  const std::size_t onTheHeap = OmMemoryRegion::DefaultHeap()->BlocksInUse();
  const std::size_t byNew = liveNewBlocks();
  const DimensionOwner copy = DimensionFactory::copy(*dimension_, &another_);
  EXPECT_EQ(OmMemoryRegion::DefaultHeap()->BlocksInUse(), onTheHeap);
  EXPECT_EQ(liveNewBlocks(), byNew + 1);  // the dimension itself
}

TEST_F(OmDimensionCopy, GivesAllStorageBack) {
  DimensionFactory::copy(*dimension_, &another_).reset();
  EXPECT_EQ(another_.BlocksInUse(), 0U);
}

TEST_F(OmDimensionCopy, WithoutARegionIsOnTheDefaultHeap) {
  const DimensionOwner copy = DimensionFactory::copy(*dimension_, nullptr);
  expectEachIn(copy->Root(), OmMemoryRegion::DefaultHeap());
  EXPECT_EQ(printed(*copy), kLines);
}

TEST_F(OmDimensionCopy, MayBeInTheSameRegion) {
  const DimensionOwner copy = DimensionFactory::copy(*dimension_, &region_);
  expectEachIn(copy->Root(), &region_);
  EXPECT_EQ(printed(*copy), kLines);
}

TEST_F(OmDimensionCopy, OutlivesTheOther) {
  const DimensionOwner copy = DimensionFactory::copy(*dimension_, &another_);
  dimension_.reset();
  EXPECT_EQ(region_.BlocksInUse(), 0U);
  EXPECT_EQ(printed(*copy), kLines);
}

TEST_F(OmDimensionCopy, IsIndependentOfTheOther) {
  const DimensionOwner copy = DimensionFactory::copy(*dimension_, &another_);
  category(*copy, copy->Root().ChildAt(1), "e", 9);
  copy->Root().ChildAt(0)->Text(OmStringCell("x"));
  copy->Name().setTracker(nullptr);
  EXPECT_EQ(printed(*dimension_), kLines);
  EXPECT_EQ(dimension_->NumCategories(), 4);
  EXPECT_EQ(copy->NumCategories(), 5);
}

TEST_F(OmDimensionCopy, IsOneToLookThingsUpIn) {
  const DimensionOwner copy = DimensionFactory::copy(*dimension_, &another_);
  EXPECT_EQ(OmDimension::FindChild(copy->Root(), OmStringCell("a"), false), 2);
  EXPECT_EQ(OmDimension::FindChild(copy->Root().ChildAt(1), OmStringCell("c"), false), 1);
  EXPECT_EQ(category(*copy, copy->Root(), "b"), copy->Root().ChildAt(0));
}

TEST_F(OmDimensionCopy, IsOneToAddTo) {
  const DimensionOwner copy = DimensionFactory::copy(*dimension_, &another_);
  for (const char* label : {"e", "A", "f"}) category(*copy, copy->Root(), label);
  EXPECT_EQ(labelsBelow(copy->Root()), "b G a e A f");
  // G; A, a, b, e, f
  EXPECT_EQ(indexOf(*copy->Root()), "1, 4, 2, 0, 3, 5");
  EXPECT_EQ(copy->checkInvariants(), nullptr);
  EXPECT_EQ(copy->NumCategories(), 7);
}

TEST_F(OmDimensionCopy, TakesTheIndexOverAsItIs) {
  const DimensionOwner original = dimensionNamed("name");
  for (const char* label : {"c", "a", "b"}) addCategory(*original, original->Root(), label);
  const DimensionOwner copy = DimensionFactory::copy(*original, &another_);
  EXPECT_EQ(indexOf(*copy->Root()), "0, 1, 2");
}

TEST_F(OmDimensionCopy, HasTheTrackersOfTheTexts) {
  icuTracker ofName({true, "en_US"});
  icuTracker ofLeaf({false, "C"});
  dimension_->Name().setTracker(&ofName);
  dimension_->Root().ChildAt(1).ChildAt(0)->Text()->setTracker(&ofLeaf);
  const DimensionOwner copy = DimensionFactory::copy(*dimension_, &another_);
  EXPECT_EQ(copy->Name().getTracker(), &ofName);
  EXPECT_EQ(copy->Root().ChildAt(1).ChildAt(0)->Text()->getTracker(), &ofLeaf);
  EXPECT_EQ(copy->Root().ChildAt(0)->Text()->getTracker(), nullptr);
}

TEST_F(OmDimensionCopy, OfACategoryThatHasChildrenHasThem) {
  const Node leaf = dimension_->Root().ChildAt(0);
  addCategory(*dimension_, leaf, "x", 8);
  const DimensionOwner copy = DimensionFactory::copy(*dimension_, &another_);
  EXPECT_EQ(labelsBelow(copy->Root().ChildAt(0)), "x");
}

TEST_F(OmDimensionCopy, OfARootWithoutATextHasNone) {
  const DimensionOwner original = DimensionFactory::make(OmDimensionNode(), nullptr);
  addCategory(*original, original->Root(), "a");
  const DimensionOwner copy = DimensionFactory::copy(*original, &another_);
  EXPECT_EQ(copy->Root()->Text(), nullptr);
  EXPECT_EQ(labelsBelow(copy->Root()), "a");
}

TEST_F(OmDimensionCopy, OfACopyIsTheSameOnceMore) {
  const DimensionOwner copy = DimensionFactory::copy(*dimension_, &another_);
  const DimensionOwner second = DimensionFactory::copy(*copy, nullptr);
  EXPECT_EQ(printed(*second), kLines);
}

// Delete leaves the links below the siblings that move up to its caller.
TEST_F(OmDimensionCopy, HasRightLinksWhereTheOtherHasNot) {
  Node first = dimension_->Root().ChildAt(0);
  dimension_->Delete(first);
  const DimensionOwner copy = DimensionFactory::copy(*dimension_, &another_);
  EXPECT_EQ(copy->checkInvariants(), nullptr);
  EXPECT_EQ(printed(*copy), printed(*dimension_));
  EXPECT_EQ(labelsBelow(copy->Root().ChildAt(0)), "d c");
}

TEST(OmDimensionCopyTexts, AreClonesOneForEachNode) {
  const DimensionOwner dimension =
      DimensionFactory::make(OmDimensionNode(CountedText("name"), 0, true, nullptr), nullptr);
  dimension->AddNewChild(dimension->Root(), CountedText("a"), 0, false);
  resetCounted();
  const DimensionOwner copy = DimensionFactory::copy(*dimension, nullptr);
  EXPECT_EQ(CountedText::cloned(), 2);
  EXPECT_EQ(CountedText::live(), 4);
  EXPECT_NE(copy->Root().ChildAt(0)->Text(), dimension->Root().ChildAt(0)->Text());
}

}  // namespace
}  // namespace om::test
