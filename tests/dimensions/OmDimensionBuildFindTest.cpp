// The order that Child keeps in a parent's index, what FindChild finds by it, and how many labels
// are compared for that.

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <utility>

#include "external/cells/OmNumber.h"
#include "tests/dimensions/DimensionText.h"
#include "tests/support/Allocations.h"

namespace om::test {
namespace {

int found(const ConstNode& parent, const std::string& label, bool isGroup = false) {
  return OmDimension::FindChild(parent, OmStringCell(label), isGroup);
}

// Four digits, so that the order of the labels is that of the numbers.
std::string numbered(std::size_t number) {
  const std::string digits = std::to_string(number);
  return std::string(4 - digits.size(), '0') + digits;
}

TEST(OmDimensionIndex, PutsAnEarlierLabelFirstThoughItsChildStandsLast) {
  const DimensionOwner dimension = dimensionNamed("name");
  category(*dimension, dimension->Root(), "b");
  category(*dimension, dimension->Root(), "a");
  EXPECT_EQ(labelsBelow(dimension->Root()), "b a");
  EXPECT_EQ(indexOf(*dimension->Root()), "1, 0");
}

TEST(OmDimensionIndex, PutsALabelBetweenTwoOthers) {
  const DimensionOwner dimension = dimensionNamed("name");
  for (const char* label : {"d", "a", "c", "b"}) category(*dimension, dimension->Root(), label);
  EXPECT_EQ(indexOf(*dimension->Root()), "1, 3, 2, 0");
}

TEST(OmDimensionIndex, PutsGroupsFirstAndBothByLabel) {
  const DimensionOwner dimension = dimensionNamed("name");
  category(*dimension, dimension->Root(), "b");
  group(*dimension, dimension->Root(), "z");
  category(*dimension, dimension->Root(), "a");
  group(*dimension, dimension->Root(), "y");
  EXPECT_EQ(labelsBelow(dimension->Root()), "b z a y");
  EXPECT_EQ(indexOf(*dimension->Root()), "3, 1, 2, 0");
}

TEST(OmDimensionIndex, IsInTheOrderInWhichTextsCompare) {
  const DimensionOwner dimension = dimensionNamed("name");
  dimension->Child(dimension->Root(), OmNumber(10), 0, false);
  dimension->Child(dimension->Root(), OmNumber(9), 1, false);
  dimension->Child(dimension->Root(), OmNumber(100), 2, false);
  EXPECT_EQ(indexOf(*dimension->Root()), "1, 0, 2");
}

TEST(OmDimensionIndex, AsksNothingOfSubscriptsOrSortOrders) {
  const DimensionOwner dimension = dimensionNamed("name");
  dimension->Root()->Sort(OmSort::DOWN);
  OmDimensionNode node(OmStringCell("a"), 9, false, nullptr);
  node.Sort(OmSort::DOWN);
  dimension->Child(dimension->Root(), node);
  category(*dimension, dimension->Root(), "b", 0);
  EXPECT_EQ(indexOf(*dimension->Root()), "0, 1");
}

TEST(OmDimensionIndex, StaysAsItIsWhereChildFinds) {
  const DimensionOwner dimension = dimensionNamed("name");
  for (const char* label : {"b", "a", "b", "a"}) category(*dimension, dimension->Root(), label);
  EXPECT_EQ(indexOf(*dimension->Root()), "1, 0");
}

TEST(OmDimensionIndex, TakesChildBetweenWhatWasAddedInOrder) {
  const DimensionOwner dimension = dimensionNamed("name");
  addCategory(*dimension, dimension->Root(), "a");
  addCategory(*dimension, dimension->Root(), "c");
  category(*dimension, dimension->Root(), "b");
  EXPECT_EQ(labelsBelow(dimension->Root()), "a c b");
  EXPECT_EQ(indexOf(*dimension->Root()), "0, 2, 1");
}

TEST(OmDimensionFindChild, GivesThePositionAmongTheChildren) {
  const DimensionOwner dimension = dimensionNamed("name");
  for (const char* label : {"c", "a", "b"}) category(*dimension, dimension->Root(), label);
  EXPECT_EQ(found(dimension->Root(), "a"), 1);
  EXPECT_EQ(found(dimension->Root(), "b"), 2);
  EXPECT_EQ(found(dimension->Root(), "c"), 0);
}

TEST(OmDimensionFindChild, GivesMinusOneBeforeBetweenAndBehindTheLabels) {
  const DimensionOwner dimension = dimensionNamed("name");
  for (const char* label : {"d", "b"}) category(*dimension, dimension->Root(), label);
  for (const char* label : {"a", "c", "e", ""}) {
    EXPECT_EQ(found(dimension->Root(), label), -1) << label;
  }
}

TEST(OmDimensionFindChild, GivesMinusOneWithoutChildren) {
  const DimensionOwner dimension = dimensionNamed("name");
  EXPECT_EQ(found(dimension->Root(), "name"), -1);
  EXPECT_EQ(found(dimension->Root(), "name", true), -1);
}

TEST(OmDimensionFindChild, TellsAGroupFromACategoryWithTheSameLabel) {
  const DimensionOwner dimension = dimensionNamed("name");
  category(*dimension, dimension->Root(), "a");
  group(*dimension, dimension->Root(), "a");
  EXPECT_EQ(found(dimension->Root(), "a", false), 0);
  EXPECT_EQ(found(dimension->Root(), "a", true), 1);
}

TEST(OmDimensionFindChild, FindsNoGroupForACategoryNorTheReverse) {
  const DimensionOwner dimension = dimensionNamed("name");
  category(*dimension, dimension->Root(), "a");
  group(*dimension, dimension->Root(), "g");
  EXPECT_EQ(found(dimension->Root(), "a", true), -1);
  EXPECT_EQ(found(dimension->Root(), "g", false), -1);
}

TEST(OmDimensionFindChild, AsksNothingOfSubscriptsAndFlags) {
  const DimensionOwner dimension = dimensionNamed("name");
  const Node child = category(*dimension, dimension->Root(), "a", 12);
  child->Hide(true);
  child->HideLabels(true);
  child->Sort(OmSort::UP);
  EXPECT_EQ(found(dimension->Root(), "a"), 0);
}

TEST(OmDimensionFindChild, LooksOneLevelDeepOnly) {
  const DimensionOwner dimension = dimensionNamed("name");
  const Node outer = group(*dimension, dimension->Root(), "G");
  category(*dimension, outer, "a");
  EXPECT_EQ(found(dimension->Root(), "a"), -1);
  EXPECT_EQ(found(outer, "a"), 0);
}

TEST(OmDimensionFindChild, LooksBelowAParentThatIsNoGroup) {
  const DimensionOwner dimension =
      DimensionFactory::make(OmDimensionNode(OmStringCell("name"), 0, false, nullptr), nullptr);
  addCategory(*dimension, dimension->Root(), "a");
  addCategory(*dimension, dimension->Root(), "b");
  EXPECT_EQ(found(std::as_const(*dimension).Root(), "b"), 1);
}

TEST(OmDimensionFindChild, FindsWhatWasAddedInTheOrderOfLabelsGroupsFirst) {
  const DimensionOwner dimension = dimensionNamed("name");
  for (const char* label : {"y", "z"}) addGroup(*dimension, dimension->Root(), label);
  for (const char* label : {"a", "b", "c"}) addCategory(*dimension, dimension->Root(), label);
  EXPECT_EQ(found(dimension->Root(), "y", true), 0);
  EXPECT_EQ(found(dimension->Root(), "z", true), 1);
  EXPECT_EQ(found(dimension->Root(), "a"), 2);
  EXPECT_EQ(found(dimension->Root(), "b"), 3);
  EXPECT_EQ(found(dimension->Root(), "c"), 4);
}

TEST(OmDimensionFindChild, ChangesNothingAndLeavesNothing) {
  OmMemoryRegion region(false);
  const DimensionOwner dimension = dimensionNamed("name", &region);
  for (const char* label : {"b", "a"}) category(*dimension, dimension->Root(), label);
  const std::string before = printed(*dimension);
  const std::size_t blocks = region.BlocksInUse();
  found(dimension->Root(), "a");
  found(dimension->Root(), "c");
  EXPECT_EQ(printed(*dimension), before);
  EXPECT_EQ(region.BlocksInUse(), blocks);
  EXPECT_EQ(dimension->NumCategories(), 2);
}

// 7 * 143 = 1001, so the label k is added as number 143 k, both modulo 1000.
TEST(OmDimensionFindChild, FindsEachOfAThousandAddedInNoOrder) {
  const DimensionOwner dimension = dimensionNamed("name");
  for (std::size_t i = 0; i < 1000; ++i) {
    category(*dimension, dimension->Root(), numbered(i * 7 % 1000), i);
  }
  for (std::size_t label = 0; label < 1000; ++label) {
    ASSERT_EQ(found(dimension->Root(), numbered(label)), static_cast<int>(label * 143 % 1000));
  }
  EXPECT_EQ(dimension->NumCategories(), 1000);
}

// A string cell that counts how often one is compared.
class ComparedText : public OmStringCell {
 public:
  explicit ComparedText(const std::string& text) : OmStringCell(text) {}
  ComparedText* Clone(OmMemoryRegion* region) const override {
    return new (region) ComparedText(*this);
  }
  short Compare(const OmCellText& other) const override {
    ++compares;
    return OmStringCell::Compare(other);
  }

  static inline long compares = 0;

 private:
  ComparedText(const ComparedText&) = default;
};

// 1023 children, of which a search by halving looks at 10, and at one of them once more to tell
// whether it is the one.
class OmDimensionComparisons : public testing::Test {
 protected:
  static constexpr std::size_t kChildren = 1023;
  static constexpr long kMost = 11;

  // 500 and 1023 have no common divisor: every even number to 2044 comes once.
  OmDimensionComparisons() {
    for (std::size_t i = 0; i < kChildren; ++i) add(i * 500 % kChildren * 2);
  }

  Node add(std::size_t number) {
    ComparedText::compares = 0;
    return dimension_->Child(dimension_->Root(), ComparedText(numbered(number)), number, false);
  }

  DimensionOwner dimension_ = dimensionNamed("name");
};

TEST_F(OmDimensionComparisons, ToFindGrowWithTheLogarithm) {
  ASSERT_EQ(dimension_->Root().ChildCount(), kChildren);
  for (std::size_t number = 0; number < 2 * kChildren; ++number) {
    const ComparedText text(numbered(number));
    ComparedText::compares = 0;
    const int position = OmDimension::FindChild(dimension_->Root(), text, false);
    ASSERT_EQ(position != -1, number % 2 == 0) << number;
    ASSERT_GE(ComparedText::compares, 1) << number;
    ASSERT_LE(ComparedText::compares, kMost) << number;
  }
}

TEST_F(OmDimensionComparisons, ToFindByChildGrowWithTheLogarithm) {
  for (std::size_t number = 0; number < 2 * kChildren; number += 2) {
    ASSERT_EQ(add(number)->Subscript(), number);
    ASSERT_LE(ComparedText::compares, kMost) << number;
  }
  EXPECT_EQ(dimension_->Root().ChildCount(), kChildren);
}

// From 1024 on a search by halving may look at 11.
TEST_F(OmDimensionComparisons, ToAddGrowWithTheLogarithm) {
  for (std::size_t number = 1; number < 2 * kChildren; number += 2) {
    add(number);
    ASSERT_GE(ComparedText::compares, 1) << number;
    ASSERT_LE(ComparedText::compares, kMost + 1) << number;
  }
  EXPECT_EQ(dimension_->Root().ChildCount(), 2 * kChildren);
}

TEST_F(OmDimensionComparisons, AddNewChildNeedsNone) {
  ComparedText::compares = 0;
  dimension_->AddNewChild(dimension_->Root(), ComparedText("0501"), 0, false);
  EXPECT_EQ(ComparedText::compares, 0);
}

TEST_F(OmDimensionComparisons, CopyingNeedsNone) {
  ComparedText::compares = 0;
  const DimensionOwner copy = DimensionFactory::copy(*dimension_, nullptr);
  EXPECT_EQ(ComparedText::compares, 0);
  EXPECT_EQ(copy->Root().ChildCount(), kChildren);
}

}  // namespace
}  // namespace om::test
