// Child: which child it finds, what it adds where there is none, and the parents that it refuses.

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "backend/OMSException.h"
#include "external/platform/icuTracker.h"
#include "tests/dimensions/DimensionText.h"
#include "tests/support/Allocations.h"
#include "tests/support/Counted.h"

namespace om::test {
namespace {

// Every line of the print, and the extent: all that can be seen of a dimension.
std::string everything(const OmDimension& dimension) {
  return printed(dimension) + std::to_string(dimension.NumCategories());
}

TEST(OmDimensionChild, AddsACategoryWithWhatItIsGivenAndDefaults) {
  const DimensionOwner dimension = dimensionNamed("name");
  const Node added = dimension->Child(dimension->Root(), OmStringCell("a"), 7, false);
  EXPECT_EQ(printed(*added), "Subscript: 7, Group: no, hide: no, hideLabels: no, Text: a\n");
  EXPECT_EQ(added.ChildCount(), 0U);
}

TEST(OmDimensionChild, AddsAtTheEndOneLevelBelowTheParent) {
  const DimensionOwner dimension = dimensionNamed("name");
  const Node outer = group(*dimension, dimension->Root(), "G");
  category(*dimension, outer, "b");
  const Node added = category(*dimension, outer, "a");
  EXPECT_EQ(added, outer.ChildAt(1));
  EXPECT_EQ(added.Depth(), 2U);
  EXPECT_EQ(added.Parent(), outer);
}

TEST(OmDimensionChild, CountsEachNewCategoryAndNoGroup) {
  const DimensionOwner dimension = dimensionNamed("name");
  const Node outer = group(*dimension, dimension->Root(), "G");
  EXPECT_EQ(dimension->NumCategories(), 0);
  category(*dimension, outer, "a", 100);
  category(*dimension, dimension->Root(), "a", 200);
  EXPECT_EQ(dimension->NumCategories(), 2);
}

TEST(OmDimensionChild, FindsTheSameLabelWithItsFirstSubscriptAndCountsItOnce) {
  const DimensionOwner dimension = dimensionNamed("name");
  const Node first = category(*dimension, dimension->Root(), "a", 3);
  const Node second = category(*dimension, dimension->Root(), "a", 8);
  EXPECT_EQ(second, first);
  EXPECT_EQ(second.Depth(), 1U);
  EXPECT_EQ(second->Subscript(), 3U);
  EXPECT_EQ(dimension->Root().ChildCount(), 1U);
  EXPECT_EQ(dimension->NumCategories(), 1);
}

TEST(OmDimensionChild, ChangesNothingWhereItFinds) {
  icuTracker ofChild({true, "en_US"});
  OmMemoryRegion region(false);
  const DimensionOwner dimension = dimensionNamed("name", &region);
  for (const char* label : {"c", "a", "b"}) category(*dimension, dimension->Root(), label, 1);
  const Node child = dimension->Root().ChildAt(1);
  child->Text()->setTracker(&ofChild);
  child->Hide(true);
  child->Sort(OmSort::DOWN);
  const std::string before = everything(*dimension);
  const std::size_t blocks = region.BlocksInUse();
  EXPECT_EQ(dimension->Child(dimension->Root(), OmStringCell("a"), 9, false), child);
  EXPECT_EQ(everything(*dimension), before);
  EXPECT_EQ(region.BlocksInUse(), blocks);
  EXPECT_EQ(child->Text()->getTracker(), &ofChild);
}

TEST(OmDimensionChild, AGroupAndACategoryWithOneLabelAreTwoChildren) {
  const DimensionOwner dimension = dimensionNamed("name");
  category(*dimension, dimension->Root(), "a");
  group(*dimension, dimension->Root(), "a");
  EXPECT_EQ(dimension->Root().ChildCount(), 2U);
  EXPECT_EQ(category(*dimension, dimension->Root(), "a"), dimension->Root().ChildAt(0));
  EXPECT_EQ(group(*dimension, dimension->Root(), "a"), dimension->Root().ChildAt(1));
  EXPECT_EQ(dimension->Root().ChildCount(), 2U);
}

TEST(OmDimensionChild, LooksAmongTheChildrenOfTheParentAlone) {
  const DimensionOwner dimension = dimensionNamed("name");
  category(*dimension, dimension->Root(), "a");
  const Node outer = group(*dimension, dimension->Root(), "G");
  const Node added = category(*dimension, outer, "a");
  EXPECT_EQ(added, outer.ChildAt(0));
  EXPECT_EQ(dimension->NumCategories(), 2);
}

TEST(OmDimensionChild, TakesForTheSameWhatComparesAsTheSame) {
  const DimensionOwner dimension = dimensionNamed("name");
  const Node first = dimension->Child(dimension->Root(), InitialText("alpha"), 0, false);
  const Node second = dimension->Child(dimension->Root(), InitialText("another"), 1, false);
  EXPECT_EQ(second, first);
  EXPECT_EQ(labelsBelow(dimension->Root()), "alpha");
}

TEST(OmDimensionChild, FindsAmongChildrenThatWereAddedInTheOrderOfLabels) {
  const DimensionOwner dimension = dimensionNamed("name");
  addGroup(*dimension, dimension->Root(), "y");
  addGroup(*dimension, dimension->Root(), "z");
  for (const char* label : {"a", "b", "c"}) addCategory(*dimension, dimension->Root(), label);
  EXPECT_EQ(group(*dimension, dimension->Root(), "z"), dimension->Root().ChildAt(1));
  EXPECT_EQ(category(*dimension, dimension->Root(), "b"), dimension->Root().ChildAt(3));
  EXPECT_EQ(dimension->Root().ChildCount(), 5U);
}

TEST(OmDimensionChild, GivesTheTextTheTrackerOfTheParentsText) {
  icuTracker ofGroup({false, "C"});
  icuTracker ofText({true, "fr_FR"});
  const DimensionOwner dimension = dimensionNamed("name");
  const Node inner = group(*dimension, dimension->Root(), "G");
  inner->Text()->setTracker(&ofGroup);
  OmStringCell text("a");
  text.setTracker(&ofText);
  EXPECT_EQ(dimension->Child(inner, text, 0, false)->Text()->getTracker(), &ofGroup);
  const OmDimensionNode node(text, 0, true, nullptr);
  EXPECT_EQ(dimension->Child(inner, node)->Text()->getTracker(), &ofGroup);
  EXPECT_EQ(node.Text()->getTracker(), &ofText);
}

TEST(OmDimensionChild, TakesTheTrackerAwayWhereTheParentsTextHasNone) {
  icuTracker ofText({true, "fr_FR"});
  const DimensionOwner dimension = dimensionNamed("name");
  OmStringCell text("a");
  text.setTracker(&ofText);
  EXPECT_EQ(dimension->Child(dimension->Root(), text, 0, false)->Text()->getTracker(), nullptr);
}

TEST(OmDimensionChild, KeepsOneCloneOfANewChildAndNoneOfAFoundOne) {
  const DimensionOwner dimension = dimensionNamed("name");
  const CountedText text("a");
  dimension->Child(dimension->Root(), text, 0, false);
  EXPECT_EQ(CountedText::live(), 2);
  dimension->Child(dimension->Root(), text, 0, false);
  EXPECT_EQ(CountedText::live(), 2);
}

TEST(OmDimensionChild, PutsANewChildIntoTheRegionOfTheDimension) {
  OmMemoryRegion ofNode(false);
  OmMemoryRegion region(false);
  const DimensionOwner dimension =
      DimensionFactory::make(OmDimensionNode(OmStringCell("name"), 0, true, nullptr), &region);
  const Node outer =
      dimension->Child(dimension->Root(), OmDimensionNode(OmStringCell("G"), 0, true, &ofNode));
  const Node leaf = category(*dimension, outer, "a category with a long label");
  EXPECT_EQ(outer->Region(), &region);
  EXPECT_EQ(leaf->Region(), &region);
  EXPECT_EQ(leaf.Record()->children.region(), &region);
  EXPECT_EQ(ofNode.BlocksInUse(), 0U);
}

TEST(OmDimensionChild, AllocatesNothingThatStaysOutsideTheRegion) {
  OmMemoryRegion region(false);
  const DimensionOwner dimension = dimensionNamed("name", &region);
  const OmStringCell outerText("a group with a long label");
  const OmStringCell text("a category with a long label");
  const std::size_t onTheHeap = OmMemoryRegion::DefaultHeap()->BlocksInUse();
  const std::size_t byNew = totalNewBlocks();
  Node at = dimension->Root();
  for (unsigned i = 0; i < 100; ++i) {
    at = dimension->Child(at, outerText, kAllBits, true);
    dimension->Child(at, text, i, false);
  }
  EXPECT_EQ(totalNewBlocks(), byNew);
  EXPECT_EQ(OmMemoryRegion::DefaultHeap()->BlocksInUse(), onTheHeap);
  EXPECT_EQ(dimension->NumCategories(), 100);
}

TEST(OmDimensionChildNode, ANewChildHasEveryFieldOfTheNode) {
  const DimensionOwner dimension = dimensionNamed("name");
  OmDimensionNode node(OmStringCell("a"), 0x1'0000'0005ULL, false, nullptr);
  node.Hide(true);
  node.HideLabels(true);
  node.Sort(OmSort::DOWN);
  const Node added = dimension->Child(dimension->Root(), node);
  EXPECT_EQ(printed(*added),
            "Subscript: 5, Group: no, hide: yes, hideLabels: yes, Sort: down, Text: a\n");
  EXPECT_EQ(added->Subscript(), 0x1'0000'0005ULL);
}

TEST(OmDimensionChildNode, TheNodeKeepsItsText) {
  const DimensionOwner dimension = dimensionNamed("name");
  const OmDimensionNode node(OmStringCell("a"), 1, false, nullptr);
  const Node added = dimension->Child(dimension->Root(), node);
  ASSERT_NE(node.Text(), nullptr);
  EXPECT_NE(added->Text(), node.Text());
  EXPECT_EQ(std::string(*node.Text()), "a");
}

TEST(OmDimensionChildNode, AFoundChildKeepsItsOwnFields) {
  const DimensionOwner dimension = dimensionNamed("name");
  const Node first = category(*dimension, dimension->Root(), "a", 1);
  OmDimensionNode node(OmStringCell("a"), 2, false, nullptr);
  node.Hide(true);
  node.HideLabels(true);
  node.Sort(OmSort::UP);
  EXPECT_EQ(dimension->Child(dimension->Root(), node), first);
  EXPECT_EQ(printed(*first), "Subscript: 1, Group: no, hide: no, hideLabels: no, Text: a\n");
}

TEST(OmDimensionChildNode, EntersWithoutChildrenWhateverIndexItCarried) {
  const DimensionOwner other = dimensionNamed("other");
  category(*other, other->Root(), "b");
  category(*other, other->Root(), "a");
  const DimensionOwner dimension = dimensionNamed("name");
  const Node added = dimension->Child(dimension->Root(), *other->Root());
  EXPECT_EQ(printed(*added), "Subscript: -1, Group: yes, hide: no, hideLabels: no, Text: other\n");
  EXPECT_EQ(added.ChildCount(), 0U);
  EXPECT_EQ(indexOf(*other->Root()), "1, 0");
  category(*dimension, added, "c");
  EXPECT_EQ(OmDimension::FindChild(added, OmStringCell("c"), false), 0);
}

TEST(OmDimensionChildNode, MayBeTheParentItself) {
  const DimensionOwner dimension = dimensionNamed("name");
  const Node outer = group(*dimension, dimension->Root(), "G");
  category(*dimension, outer, "a");
  const Node added = dimension->Child(outer, *outer);
  EXPECT_EQ(labelsBelow(outer), "a G");
  EXPECT_EQ(indexOf(*outer), "1, 0");
  EXPECT_EQ(indexOf(*added), "");
}

// The index does not know the inserted category, so that Child adds it once more.
TEST(OmDimensionChildNode, MayStandAmongTheChildrenThatMove) {
  const DimensionOwner dimension = dimensionNamed("name");
  for (const char* label : {"a", "b", "c"}) category(*dimension, dimension->Root(), label, 5);
  dimension->insertCategory(OmStringCell("x"), dimension->Root(), dimension->Root().ChildAt(2),
                            false);
  const Node added = dimension->Child(dimension->Root(), *dimension->Root().ChildAt(3));
  EXPECT_EQ(added, dimension->Root().ChildAt(4));
  EXPECT_EQ(labelsBelow(dimension->Root()), "a b c x x");
  EXPECT_EQ(added->Subscript(), 6U);
  EXPECT_EQ(dimension->NumCategories(), 5);
}

// Calls Child by a text and by a node.
class OmDimensionChildRefusal : public testing::TestWithParam<bool> {
 protected:
  static Node call(OmDimension& dimension, const Node& parent, const std::string& label,
                   bool isGroup) {
    if (GetParam()) return dimension.Child(parent, OmStringCell(label), 1, isGroup);
    return dimension.Child(parent, OmDimensionNode(OmStringCell(label), 1, isGroup, nullptr));
  }

  static void expectRefused(const std::function<void()>& operation) {
    try {
      operation();
      FAIL() << "nothing was thrown";
    } catch (const OMSException& exception) {
      EXPECT_EQ(exception.getMessage(), "OmDimension::Child -- parent is not group");
      EXPECT_EQ(exception.getValue1(), 0.0);
      EXPECT_EQ(exception.getValue2(), 0.0);
      EXPECT_STREQ(exception.what(),
                   "OmDimension::Child -- parent is not group, value 1 == 0, value 2 == 0");
    }
  }
};

TEST_P(OmDimensionChildRefusal, OfARootThatIsNoGroupLeavesTheTreeAsItWas) {
  OmMemoryRegion region(false);
  const DimensionOwner dimension =
      DimensionFactory::make(OmDimensionNode(OmStringCell("name"), 0, false, &region), &region);
  const std::string before = everything(*dimension);
  const std::size_t blocks = region.BlocksInUse();
  expectRefused([&] { call(*dimension, dimension->Root(), "a", false); });
  EXPECT_EQ(everything(*dimension), before);
  EXPECT_EQ(dimension->Root().ChildCount(), 0U);
  EXPECT_EQ(region.BlocksInUse(), blocks);
}

TEST_P(OmDimensionChildRefusal, OfACategoryLeavesTheTreeAsItWas) {
  const DimensionOwner dimension = dimensionNamed("name");
  const Node parent = category(*dimension, dimension->Root(), "a");
  const std::string before = everything(*dimension);
  expectRefused([&] { call(*dimension, parent, "b", false); });
  expectRefused([&] { call(*dimension, parent, "G", true); });
  EXPECT_EQ(everything(*dimension), before);
  EXPECT_EQ(dimension->checkInvariants(), nullptr);
}

TEST_P(OmDimensionChildRefusal, IsTheSameWhereTheChildIsThere) {
  const DimensionOwner dimension = dimensionNamed("name");
  const Node parent = category(*dimension, dimension->Root(), "a");
  addCategory(*dimension, parent, "b");
  const std::string before = everything(*dimension);
  expectRefused([&] { call(*dimension, parent, "b", false); });
  EXPECT_EQ(everything(*dimension), before);
}

TEST_P(OmDimensionChildRefusal, EndsWhenTheParentBecomesAGroup) {
  const DimensionOwner dimension = dimensionNamed("name");
  const Node parent = category(*dimension, dimension->Root(), "a");
  expectRefused([&] { call(*dimension, parent, "b", false); });
  parent->IsGroup(true);
  const Node added = call(*dimension, parent, "b", false);
  EXPECT_EQ(added, parent.ChildAt(0));
}

INSTANTIATE_TEST_SUITE_P(ByTextAndByNode, OmDimensionChildRefusal, testing::Bool(),
                         [](const testing::TestParamInfo<bool>& byText) {
                           return byText.param ? "ByText" : "ByNode";
                         });

}  // namespace
}  // namespace om::test
