// A new dimension: its root, its region and its accessors, and what its end leaves behind.

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "external/platform/icuTracker.h"
#include "tests/dimensions/DimensionText.h"
#include "tests/support/Counted.h"

namespace om::test {
namespace {

static_assert(!std::is_copy_constructible_v<OmDimension>);
static_assert(!std::is_copy_assignable_v<OmDimension>);
static_assert(!std::is_constructible_v<OmDimension, const OmDimensionNode&, OmMemoryRegion*>);
static_assert(!std::is_constructible_v<OmDimension, const OmDimension&, OmMemoryRegion*>);
static_assert(std::is_same_v<decltype(std::declval<OmDimension&>().Root()), Node>);
static_assert(std::is_same_v<decltype(std::declval<const OmDimension&>().Root()), ConstNode>);
static_assert(std::is_same_v<decltype(std::declval<OmDimension&>().Name()), OmCellText&>);
static_assert(
    std::is_same_v<decltype(std::declval<const OmDimension&>().Name()), const OmCellText&>);
static_assert(
    std::is_same_v<decltype(std::declval<const OmDimension&>().Region()), OmMemoryRegion&>);
static_assert(
    std::is_same_v<decltype(std::declval<const OmDimension&>().NumCategories()), std::int32_t>);

TEST(OmDimensionConstruct, HasNoChildrenNoCategoriesAndDoesNotDisplayTheLastCategory) {
  const DimensionOwner dimension = dimensionNamed("name");
  EXPECT_EQ(dimension->Root().ChildCount(), 0U);
  EXPECT_EQ(dimension->NumCategories(), 0);
  EXPECT_FALSE(dimension->DisplayLastCategory());
  EXPECT_EQ(dimension->checkInvariants(), nullptr);
}

TEST(OmDimensionConstruct, TheRootIsAtDepthZeroWithoutAParent) {
  const DimensionOwner dimension = dimensionNamed("name");
  EXPECT_EQ(dimension->Root().Depth(), 0U);
  EXPECT_EQ(dimension->Root().Record()->parent, nullptr);
}

TEST(OmDimensionConstruct, TheReadOnlyRootIsTheSameNode) {
  const DimensionOwner dimension = dimensionNamed("name");
  const ConstNode root = std::as_const(*dimension).Root();
  EXPECT_EQ(root, ConstNode(dimension->Root()));
  EXPECT_EQ(root.Depth(), 0U);
}

TEST(OmDimensionConstruct, TheRootHasEveryFieldOfTheNode) {
  OmDimensionNode node(OmStringCell("name"), 12, false, nullptr);
  node.Hide(true);
  node.HideLabels(true);
  node.Sort(OmSort::UP);
  const DimensionOwner dimension = DimensionFactory::make(node, nullptr);
  EXPECT_EQ(printed(*dimension->Root()),
            "Subscript: 12, Group: no, hide: yes, hideLabels: yes, Sort: up, Text: name\n");
}

TEST(OmDimensionConstruct, TheNodeKeepsItsText) {
  const OmDimensionNode node(OmStringCell("name"), 0, true, nullptr);
  const DimensionOwner dimension = DimensionFactory::make(node, nullptr);
  ASSERT_NE(node.Text(), nullptr);
  EXPECT_NE(dimension->Root()->Text(), node.Text());
  EXPECT_EQ(std::string(*node.Text()), "name");
}

TEST(OmDimensionConstruct, ARootThatIsNoGroupIsNotCounted) {
  const OmDimensionNode node(OmStringCell("name"), 3, false, nullptr);
  const DimensionOwner dimension = DimensionFactory::make(node, nullptr);
  EXPECT_EQ(dimension->NumCategories(), 0);
}

TEST(OmDimensionConstruct, ARootMayBeWithoutAText) {
  const DimensionOwner dimension = DimensionFactory::make(OmDimensionNode(), nullptr);
  EXPECT_EQ(dimension->Root()->Text(), nullptr);
  EXPECT_EQ(dimension->Root()->Subscript(), kAllBits);
}

TEST(OmDimensionConstruct, TheRootsValueIsInTheRegionOfTheNode) {
  OmMemoryRegion ofNode(false);
  OmMemoryRegion region(false);
  const OmDimensionNode node(OmStringCell("name"), 0, true, &ofNode);
  const std::size_t before = ofNode.BlocksInUse();
  const DimensionOwner dimension = DimensionFactory::make(node, &region);
  EXPECT_EQ(dimension->Root()->Region(), &ofNode);
  EXPECT_EQ(ofNode.BlocksInUse(), before + 1);
  EXPECT_EQ(region.BlocksInUse(), 0U);
}

TEST(OmDimensionConstruct, TheRegionIsTheOneOfTheChildren) {
  OmMemoryRegion ofNode(false);
  OmMemoryRegion region(false);
  const DimensionOwner dimension =
      DimensionFactory::make(OmDimensionNode(OmStringCell("name"), 0, true, &ofNode), &region);
  EXPECT_EQ(&dimension->Region(), &region);
  EXPECT_EQ(dimension->Root().Record()->children.region(), &region);
}

TEST(OmDimensionConstruct, WithoutARegionIsOnTheDefaultHeap) {
  OmMemoryRegion ofNode(false);
  const DimensionOwner dimension =
      DimensionFactory::make(OmDimensionNode(OmStringCell("name"), 0, true, &ofNode), nullptr);
  EXPECT_EQ(&dimension->Region(), OmMemoryRegion::DefaultHeap());
}

TEST(OmDimensionAccessors, NameIsTheTextOfTheRoot) {
  const DimensionOwner dimension = dimensionNamed("name");
  EXPECT_EQ(std::string(dimension->Name()), "name");
  EXPECT_EQ(&dimension->Name(), dimension->Root()->Text());
  EXPECT_EQ(&std::as_const(*dimension).Name(), dimension->Root()->Text());
}

TEST(OmDimensionAccessors, NameFollowsTheTextOfTheRoot) {
  const DimensionOwner dimension = dimensionNamed("name");
  dimension->Root()->Text(OmStringCell("another"));
  EXPECT_EQ(std::string(dimension->Name()), "another");
}

TEST(OmDimensionAccessors, TheNameCanBeChangedInPlace) {
  icuTracker tracker({true, "en_US"});
  const DimensionOwner dimension = dimensionNamed("name");
  dimension->Name().setTracker(&tracker);
  EXPECT_EQ(dimension->Root()->Text()->getTracker(), &tracker);
}

TEST(OmDimensionAccessors, DisplayLastCategoryIsKeptAndNothingElseChanges) {
  const DimensionOwner dimension = dimensionNamed("name");
  addCategory(*dimension, dimension->Root(), "a");
  const std::string before = printed(*dimension);
  dimension->DisplayLastCategory(true);
  EXPECT_TRUE(dimension->DisplayLastCategory());
  EXPECT_EQ(printed(*dimension), before);
  EXPECT_EQ(dimension->NumCategories(), 1);
  dimension->DisplayLastCategory(false);
  EXPECT_FALSE(dimension->DisplayLastCategory());
}

TEST(OmDimensionDestroy, GivesAllStorageBackToItsRegion) {
  OmMemoryRegion region(false);
  {
    const DimensionOwner dimension = dimensionNamed("a name of some length", &region);
    for (const char* label : {"a", "b", "c", "d", "e"}) {
      const Node inner = group(*dimension, dimension->Root(), label);
      category(*dimension, inner, "a category with a long label");
    }
    EXPECT_GT(region.BlocksInUse(), 10U);
  }
  EXPECT_EQ(region.BlocksInUse(), 0U);
}

TEST(OmDimensionDestroy, GivesTheRootBackToTheRegionOfTheNode) {
  OmMemoryRegion ofNode(false);
  OmMemoryRegion region(false);
  {
    const DimensionOwner dimension =
        DimensionFactory::make(OmDimensionNode(OmStringCell("name"), 0, true, &ofNode), &region);
    category(*dimension, dimension->Root(), "a");
  }
  EXPECT_EQ(ofNode.BlocksInUse(), 0U);
  EXPECT_EQ(region.BlocksInUse(), 0U);
}

TEST(OmDimensionDestroy, DestroysTextsFromTheRootDownInOrder) {
  OmMemoryRegion region(false);
  DimensionOwner dimension =
      DimensionFactory::make(OmDimensionNode(CountedText("root"), 0, true, &region), &region);
  const Node inner = dimension->AddNewChild(dimension->Root(), CountedText("G"), kAllBits, true);
  dimension->AddNewChild(inner, CountedText("a"), 0, false);
  dimension->AddNewChild(inner, CountedText("b"), 1, false);
  dimension->AddNewChild(dimension->Root(), CountedText("c"), 2, false);
  EXPECT_EQ(CountedText::live(), 5);
  resetCounted();
  dimension.reset();
  EXPECT_EQ(CountedText::live(), 0);
  EXPECT_EQ(CountedText::died(), (std::vector<std::string>{"root", "G", "a", "b", "c"}));
}

}  // namespace
}  // namespace om::test
