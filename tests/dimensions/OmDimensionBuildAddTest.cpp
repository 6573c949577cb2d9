// AddNewChild: the child that it adds, the extent, the parent's index, handles and storage.

#include <gtest/gtest.h>

#include <string>

#include "external/platform/icuTracker.h"
#include "tests/dimensions/DimensionText.h"
#include "tests/support/Allocations.h"
#include "tests/support/Counted.h"

namespace om::test {
namespace {

TEST(OmDimensionAddNewChild, AddsACategoryWithWhatItIsGivenAndDefaults) {
  const DimensionOwner dimension = dimensionNamed("name");
  const Node added = dimension->AddNewChild(dimension->Root(), OmStringCell("a"), 7, false);
  EXPECT_EQ(printed(*added), "Subscript: 7, Group: no, hide: no, hideLabels: no, Text: a\n");
  EXPECT_EQ(added->Sort(), OmSort::NONE);
  EXPECT_EQ(added.ChildCount(), 0U);
}

TEST(OmDimensionAddNewChild, AddsAGroupWithWhatItIsGivenAndDefaults) {
  const DimensionOwner dimension = dimensionNamed("name");
  const Node added = dimension->AddNewChild(dimension->Root(), OmStringCell("G"), kAllBits, true);
  EXPECT_EQ(printed(*added), "Subscript: -1, Group: yes, hide: no, hideLabels: no, Text: G\n");
}

TEST(OmDimensionAddNewChild, AddsAtTheEndWhateverTheLabels) {
  const DimensionOwner dimension = dimensionNamed("name");
  for (const char* label : {"c", "a", "b"}) addCategory(*dimension, dimension->Root(), label);
  addGroup(*dimension, dimension->Root(), "G");
  EXPECT_EQ(labelsBelow(dimension->Root()), "c a b G");
}

TEST(OmDimensionAddNewChild, AlwaysAddsALabelThatIsThereAlready) {
  const DimensionOwner dimension = dimensionNamed("name");
  addCategory(*dimension, dimension->Root(), "a", 4);
  const Node second = addCategory(*dimension, dimension->Root(), "a", 4);
  EXPECT_EQ(labelsBelow(dimension->Root()), "a a");
  EXPECT_EQ(second, dimension->Root().ChildAt(1));
  EXPECT_EQ(dimension->NumCategories(), 2);
}

TEST(OmDimensionAddNewChild, GivesTheLastChildOneLevelBelowTheParent) {
  const DimensionOwner dimension = dimensionNamed("name");
  addCategory(*dimension, dimension->Root(), "a");
  const Node outer = addGroup(*dimension, dimension->Root(), "G");
  EXPECT_EQ(outer, dimension->Root().ChildAt(1));
  EXPECT_EQ(outer.Depth(), 1U);
  const Node inner = addCategory(*dimension, outer, "b");
  EXPECT_EQ(inner, outer.ChildAt(0));
  EXPECT_EQ(inner.Depth(), 2U);
  EXPECT_EQ(inner.Parent(), outer);
}

TEST(OmDimensionAddNewChild, AddsBelowARootThatIsNoGroup) {
  const DimensionOwner dimension =
      DimensionFactory::make(OmDimensionNode(OmStringCell("name"), 0, false, nullptr), nullptr);
  addCategory(*dimension, dimension->Root(), "a");
  EXPECT_EQ(labelsBelow(dimension->Root()), "a");
  EXPECT_EQ(indexOf(*dimension->Root()), "0");
}

TEST(OmDimensionAddNewChild, AddsBelowACategory) {
  const DimensionOwner dimension = dimensionNamed("name");
  const Node parent = addCategory(*dimension, dimension->Root(), "a", 0);
  addCategory(*dimension, parent, "b", 1);
  EXPECT_EQ(labelsBelow(parent), "b");
  EXPECT_FALSE(parent->IsGroup());
  EXPECT_EQ(dimension->NumCategories(), 2);
}

TEST(OmDimensionAddNewChild, KeepsAllBitsOfTheSubscript) {
  const DimensionOwner dimension = dimensionNamed("name");
  const Node added = addCategory(*dimension, dimension->Root(), "a", 0x123456789ABCDEF0ULL);
  EXPECT_EQ(added->Subscript(), 0x123456789ABCDEF0ULL);
}

TEST(OmDimensionAddNewChild, RenumbersNoSubscriptThatIsThere) {
  const DimensionOwner dimension = dimensionNamed("name");
  addCategory(*dimension, dimension->Root(), "a", 5);
  addCategory(*dimension, dimension->Root(), "b", 5);
  addCategory(*dimension, dimension->Root(), "c", 0);
  EXPECT_EQ(dimension->Root().ChildAt(0)->Subscript(), 5U);
  EXPECT_EQ(dimension->Root().ChildAt(1)->Subscript(), 5U);
  EXPECT_EQ(dimension->Root().ChildAt(2)->Subscript(), 0U);
}

TEST(OmDimensionAddNewChild, CountsEachCategoryWhateverItsSubscriptAndLevel) {
  const DimensionOwner dimension = dimensionNamed("name");
  addCategory(*dimension, dimension->Root(), "a", 100);
  EXPECT_EQ(dimension->NumCategories(), 1);
  const Node inner = addGroup(*dimension, dimension->Root(), "G");
  addCategory(*dimension, inner, "b", 3);
  EXPECT_EQ(dimension->NumCategories(), 2);
}

TEST(OmDimensionAddNewChild, CountsNoGroupWhateverItsSubscript) {
  const DimensionOwner dimension = dimensionNamed("name");
  addGroup(*dimension, dimension->Root(), "G");
  dimension->AddNewChild(dimension->Root(), OmStringCell("H"), 3, true);
  EXPECT_EQ(dimension->NumCategories(), 0);
}

TEST(OmDimensionAddNewChild, AppendsToTheIndexInTheOrderOfAddition) {
  const DimensionOwner dimension = dimensionNamed("name");
  for (const char* label : {"c", "a", "b"}) addCategory(*dimension, dimension->Root(), label);
  EXPECT_EQ(indexOf(*dimension->Root()), "0, 1, 2");
}

TEST(OmDimensionAddNewChild, AppendsBehindAnIndexThatChildHasOrdered) {
  const DimensionOwner dimension = dimensionNamed("name");
  category(*dimension, dimension->Root(), "c");
  category(*dimension, dimension->Root(), "b");
  addCategory(*dimension, dimension->Root(), "a");
  EXPECT_EQ(indexOf(*dimension->Root()), "1, 0, 2");
}

TEST(OmDimensionAddNewChild, ChangesTheIndexOfTheParentAlone) {
  const DimensionOwner dimension = dimensionNamed("name");
  const Node outer = addGroup(*dimension, dimension->Root(), "G");
  const Node inner = addGroup(*dimension, outer, "H");
  addCategory(*dimension, inner, "a");
  addCategory(*dimension, inner, "b");
  EXPECT_EQ(indexOf(*dimension->Root()), "0");
  EXPECT_EQ(indexOf(*outer), "0");
  EXPECT_EQ(indexOf(*inner), "0, 1");
  EXPECT_EQ(indexOf(*inner.ChildAt(0)), "");
}

TEST(OmDimensionAddNewChild, GivesTheTextTheTrackerOfTheParentsText) {
  icuTracker ofName({true, "en_US"});
  icuTracker ofGroup({false, "C"});
  icuTracker ofText({true, "fr_FR"});
  const DimensionOwner dimension = dimensionNamed("name");
  dimension->Name().setTracker(&ofName);
  const Node inner = addGroup(*dimension, dimension->Root(), "G");
  EXPECT_EQ(inner->Text()->getTracker(), &ofName);
  inner->Text()->setTracker(&ofGroup);
  OmStringCell text("a");
  text.setTracker(&ofText);
  const Node added = dimension->AddNewChild(inner, text, 0, false);
  EXPECT_EQ(added->Text()->getTracker(), &ofGroup);
  EXPECT_EQ(text.getTracker(), &ofText);
}

TEST(OmDimensionAddNewChild, TakesTheTrackerAwayWhereTheParentsTextHasNone) {
  icuTracker ofText({true, "fr_FR"});
  const DimensionOwner dimension = dimensionNamed("name");
  OmStringCell text("a");
  text.setTracker(&ofText);
  const Node added = dimension->AddNewChild(dimension->Root(), text, 0, false);
  EXPECT_EQ(added->Text()->getTracker(), nullptr);
}

TEST(OmDimensionAddNewChild, KeepsOneCloneAndLeavesTheTextToTheCaller) {
  const DimensionOwner dimension = dimensionNamed("name");
  {
    const CountedText text("a");
    const Node added = dimension->AddNewChild(dimension->Root(), text, 0, false);
    EXPECT_NE(added->Text(), &text);
    EXPECT_EQ(CountedText::live(), 2);
  }
  EXPECT_EQ(CountedText::live(), 1);
  EXPECT_EQ(labelsBelow(dimension->Root()), "a");
}

TEST(OmDimensionAddNewChild, TakesALabelOfTheSameTreeWhileItMoves) {
  const DimensionOwner dimension = dimensionNamed("name");
  const Node first = addCategory(*dimension, dimension->Root(), "alphabetical");
  for (int i = 0; i < 3; ++i) addCategory(*dimension, dimension->Root(), "b");
  const Node added = dimension->AddNewChild(dimension->Root(), *first->Text(), 9, false);
  EXPECT_EQ(std::string(*added->Text()), "alphabetical");
  EXPECT_EQ(labelsBelow(dimension->Root()), "alphabetical b b b alphabetical");
}

TEST(OmDimensionAddNewChild, TheFifthChildMovesTheOthersAndTheirChildrenFollow) {
  const DimensionOwner dimension = dimensionNamed("name");
  for (const char* label : {"A", "B", "C", "D"}) {
    const Node outer = addGroup(*dimension, dimension->Root(), label);
    addCategory(*dimension, addGroup(*dimension, outer, "inner"), "leaf");
  }
  addGroup(*dimension, dimension->Root(), "E");
  EXPECT_EQ(dimension->checkInvariants(), nullptr);
  for (std::size_t i = 0; i < 4; ++i) {
    const Node outer = dimension->Root().ChildAt(i);
    EXPECT_EQ(outer.ChildAt(0).ChildAt(0).Parent().Parent(), outer);
    EXPECT_EQ(outer.Parent(), dimension->Root());
  }
}

TEST(OmDimensionAddNewChild, LeavesTheHandleOfTheParentGood) {
  const DimensionOwner dimension = dimensionNamed("name");
  const Node inner = addGroup(*dimension, dimension->Root(), "G");
  for (unsigned i = 0; i < 100; ++i) addCategory(*dimension, inner, "a", i);
  EXPECT_EQ(inner, dimension->Root().ChildAt(0));
  EXPECT_EQ(inner.ChildCount(), 100U);
  EXPECT_EQ(inner.ChildAt(99)->Subscript(), 99U);
  EXPECT_EQ(dimension->checkInvariants(), nullptr);
}

TEST(OmDimensionAddNewChild, PutsEveryNodeIntoTheRegionOfTheDimension) {
  OmMemoryRegion ofNode(false);
  OmMemoryRegion region(false);
  const DimensionOwner dimension =
      DimensionFactory::make(OmDimensionNode(OmStringCell("name"), 0, true, &ofNode), &region);
  const Node outer = addGroup(*dimension, dimension->Root(), "G");
  const Node leaf = addCategory(*dimension, outer, "a category with a long label");
  EXPECT_EQ(outer->Region(), &region);
  EXPECT_EQ(leaf->Region(), &region);
  EXPECT_EQ(leaf.Record()->children.region(), &region);
}

TEST(OmDimensionAddNewChild, AllocatesNothingThatStaysOutsideTheRegion) {
  OmMemoryRegion region(false);
  const DimensionOwner dimension = dimensionNamed("name", &region);
  const OmStringCell text("a category with a long label");
  const std::size_t onTheHeap = OmMemoryRegion::DefaultHeap()->BlocksInUse();
  const std::size_t inTheRegion = region.BlocksInUse();
  const std::size_t byNew = totalNewBlocks();
  for (unsigned i = 0; i < 100; ++i) {
    const Node inner = dimension->AddNewChild(dimension->Root(), text, kAllBits, true);
    dimension->AddNewChild(inner, text, i, false);
  }
  EXPECT_EQ(totalNewBlocks(), byNew);
  EXPECT_EQ(OmMemoryRegion::DefaultHeap()->BlocksInUse(), onTheHeap);
  // At least a text for each of the 200 nodes.
  EXPECT_GE(region.BlocksInUse(), inTheRegion + 200);
}

}  // namespace
}  // namespace om::test
