// The value of a node of a dimension: how it is made and copied, its region and its accessors.

#include "dimensions/OmDimensionNode.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "external/platform/icuTracker.h"
#include "tests/dimensions/DimensionText.h"
#include "tests/support/Counted.h"

namespace om::test {
namespace {

static_assert(OmSort::UP == 0 && OmSort::DOWN == 1 && OmSort::NONE == 2);
static_assert(sizeof(OmSort::Order) == sizeof(std::int32_t));
static_assert(std::is_same_v<decltype(std::declval<OmDimensionNode>().Sort()), OmSort::Order>);
static_assert(
    std::is_same_v<decltype(std::declval<OmDimensionNode>().Subscript()), unsigned long long>);
static_assert(std::is_same_v<decltype(std::declval<OmDimensionNode&>().Text()), OmCellText*>);
static_assert(
    std::is_same_v<decltype(std::declval<const OmDimensionNode&>().Text()), const OmCellText*>);

TEST(OmDimensionNode, MadeOfARegionIsACategoryWithoutATextOrASubscript) {
  OmMemoryRegion region(false);
  const OmDimensionNode node(&region);
  EXPECT_EQ(node.Text(), nullptr);
  EXPECT_EQ(node.Subscript(), 0xFFFFFFFFFFFFFFFFULL);
  EXPECT_EQ(node.Sort(), OmSort::NONE);
  EXPECT_FALSE(node.IsGroup());
  EXPECT_FALSE(node.Hide());
  EXPECT_FALSE(node.HideLabels());
  EXPECT_EQ(node.Region(), &region);
  EXPECT_EQ(indexOf(node), "");
}

TEST(OmDimensionNode, MadeOfNothingIsOnTheDefaultHeap) {
  const OmDimensionNode node;
  EXPECT_EQ(node.Region(), OmMemoryRegion::DefaultHeap());
  EXPECT_EQ(node.Text(), nullptr);
  EXPECT_EQ(node.Subscript(), kAllBits);
}

TEST(OmDimensionNode, MadeOfANullRegionIsOnTheDefaultHeap) {
  const OmDimensionNode bare(nullptr);
  const OmDimensionNode node(OmStringCell("a"), 1, false, nullptr);
  EXPECT_EQ(bare.Region(), OmMemoryRegion::DefaultHeap());
  EXPECT_EQ(node.Region(), OmMemoryRegion::DefaultHeap());
}

TEST(OmDimensionNode, MadeOfATextHasWhatItIsGivenAndDefaults) {
  OmMemoryRegion region(false);
  const OmDimensionNode node(OmStringCell("a"), 7, true, &region);
  EXPECT_EQ(std::string(*node.Text()), "a");
  EXPECT_EQ(node.Subscript(), 7U);
  EXPECT_TRUE(node.IsGroup());
  EXPECT_EQ(node.Sort(), OmSort::NONE);
  EXPECT_FALSE(node.Hide());
  EXPECT_FALSE(node.HideLabels());
  EXPECT_EQ(node.Region(), &region);
  EXPECT_EQ(indexOf(node), "");
}

TEST(OmDimensionNode, MadeOfATextClonesItOnceInTheRegion) {
  OmMemoryRegion region(false);
  const CountedText text("a");
  const OmDimensionNode node(text, 7, false, &region);
  EXPECT_NE(node.Text(), &text);
  EXPECT_EQ(CountedText::cloned(), 1);
  EXPECT_EQ(region.BlocksInUse(), 1U);
}

TEST(OmDimensionNode, TheCloneCarriesTheTracker) {
  icuTracker tracker({true, "en_US"});
  OmStringCell text("a");
  text.setTracker(&tracker);
  const OmDimensionNode node(text, 0, false, nullptr);
  EXPECT_EQ(node.Text()->getTracker(), &tracker);
  EXPECT_EQ(OmDimensionNode(node).Text()->getTracker(), &tracker);
}

TEST(OmDimensionNode, DestroysItsText) {
  {
    const OmDimensionNode node(CountedText("a"), 0, false, nullptr);
    EXPECT_EQ(CountedText::live(), 1);
  }
  EXPECT_EQ(CountedText::live(), 0);
}

TEST(OmDimensionNode, GivesAllItsStorageBack) {
  OmMemoryRegion region(false);
  const DimensionOwner dimension = dimensionNamed("name");
  addCategory(*dimension, dimension->Root(), "a");
  {
    const OmDimensionNode copy(*dimension->Root(), &region);
    EXPECT_EQ(region.BlocksInUse(), 2U);
  }
  EXPECT_EQ(region.BlocksInUse(), 0U);
}

// A node with every field away from its default; the index is that of a dimension's root.
class OmDimensionNodeCopy : public testing::Test {
 protected:
  OmDimensionNodeCopy() {
    category(*dimension_, dimension_->Root(), "b");
    category(*dimension_, dimension_->Root(), "a");
    OmDimensionNode& root = *dimension_->Root();
    root.Subscript(5);
    root.Sort(OmSort::DOWN);
    root.Hide(true);
    root.HideLabels(true);
  }

  const OmDimensionNode& full() { return *dimension_->Root(); }

  static constexpr const char* kLine =
      "Subscript: 5, Group: yes, hide: yes, hideLabels: yes, Sort: down, Children: 1, 0, "
      "Text: name\n";

  OmMemoryRegion region_{false};
  DimensionOwner dimension_ = dimensionNamed("name", &region_);
};

TEST_F(OmDimensionNodeCopy, HasEveryField) {
  const OmDimensionNode copy(full());
  EXPECT_EQ(printed(copy), kLine);
  EXPECT_EQ(printed(full()), kLine);
}

TEST_F(OmDimensionNodeCopy, IsInTheRegionOfTheOther) {
  const std::size_t before = region_.BlocksInUse();
  const OmDimensionNode copy(full());
  EXPECT_EQ(copy.Region(), &region_);
  EXPECT_EQ(region_.BlocksInUse(), before + 2);
}

TEST_F(OmDimensionNodeCopy, MadeForARegionHasEveryField) {
  OmMemoryRegion another(false);
  const OmDimensionNode copy(full(), &another);
  EXPECT_EQ(printed(copy), kLine);
}

TEST_F(OmDimensionNodeCopy, MadeForARegionIsInThatRegionAlone) {
  OmMemoryRegion another(false);
  const std::size_t before = region_.BlocksInUse();
  const OmDimensionNode copy(full(), &another);
  EXPECT_EQ(copy.Region(), &another);
  EXPECT_EQ(another.BlocksInUse(), 2U);
  EXPECT_EQ(region_.BlocksInUse(), before);
}

TEST_F(OmDimensionNodeCopy, MadeForANullRegionIsOnTheDefaultHeap) {
  const OmDimensionNode copy(full(), nullptr);
  EXPECT_EQ(copy.Region(), OmMemoryRegion::DefaultHeap());
  EXPECT_EQ(printed(copy), kLine);
}

TEST_F(OmDimensionNodeCopy, HasATextOfItsOwn) {
  OmDimensionNode copy(full());
  EXPECT_NE(copy.Text(), full().Text());
  copy.Text(OmStringCell("other"));
  EXPECT_EQ(printed(full()), kLine);
}

TEST_F(OmDimensionNodeCopy, OfANodeWithoutATextHasNone) {
  OmMemoryRegion another(false);
  const OmDimensionNode bare(&region_);
  EXPECT_EQ(OmDimensionNode(bare).Text(), nullptr);
  EXPECT_EQ(OmDimensionNode(bare, &another).Text(), nullptr);
  EXPECT_EQ(OmDimensionNode(bare).Subscript(), kAllBits);
}

TEST_F(OmDimensionNodeCopy, OutlivesTheOther) {
  std::optional<OmDimensionNode> other(std::in_place, OmStringCell("short-lived"), 3, false,
                                       nullptr);
  const OmDimensionNode copy(*other);
  other.reset();
  EXPECT_EQ(std::string(*copy.Text()), "short-lived");
}

TEST(OmDimensionNodeAccessors, SubscriptIsKept) {
  OmDimensionNode node;
  node.Subscript(0x123456789ABCDEF0ULL);
  EXPECT_EQ(node.Subscript(), 0x123456789ABCDEF0ULL);
}

TEST(OmDimensionNodeAccessors, EachFlagIsKeptByItself) {
  OmDimensionNode node;
  node.IsGroup(true);
  EXPECT_TRUE(node.IsGroup() && !node.Hide() && !node.HideLabels());
  node.IsGroup(false);
  node.Hide(true);
  EXPECT_TRUE(!node.IsGroup() && node.Hide() && !node.HideLabels());
  node.Hide(false);
  node.HideLabels(true);
  EXPECT_TRUE(!node.IsGroup() && !node.Hide() && node.HideLabels());
  node.HideLabels(false);
  EXPECT_TRUE(!node.IsGroup() && !node.Hide() && !node.HideLabels());
}

TEST(OmDimensionNodeAccessors, SortIsKept) {
  OmDimensionNode node;
  for (const OmSort::Order order : {OmSort::UP, OmSort::DOWN, OmSort::NONE}) {
    node.Sort(order);
    EXPECT_EQ(node.Sort(), order);
  }
}

TEST(OmDimensionNodeAccessors, TheTextCanBeChangedInPlace) {
  icuTracker tracker({false, "C"});
  OmDimensionNode node(OmStringCell("a"), 0, false, nullptr);
  node.Text()->setTracker(&tracker);
  EXPECT_EQ(std::as_const(node).Text()->getTracker(), &tracker);
  EXPECT_EQ(std::as_const(node).Text(), node.Text());
}

TEST(OmDimensionNodeText, IsReplacedByACloneInTheRegionOfTheNode) {
  OmMemoryRegion region(false);
  OmDimensionNode node(OmStringCell("a"), 0, false, &region);
  const OmStringCell text("b");
  node.Text(text);
  EXPECT_EQ(std::string(*node.Text()), "b");
  EXPECT_NE(node.Text(), &text);
  EXPECT_EQ(region.BlocksInUse(), 1U);
}

TEST(OmDimensionNodeText, TheFormerOneIsDestroyed) {
  OmDimensionNode node(CountedText("a"), 0, false, nullptr);
  resetCounted();
  node.Text(CountedText("b"));
  EXPECT_EQ(CountedText::cloned(), 1);
  EXPECT_EQ(CountedText::died(), (std::vector<std::string>{"a", "b"}));
  EXPECT_EQ(CountedText::live(), 1);
}

TEST(OmDimensionNodeText, IsGivenToANodeThatHadNone) {
  OmMemoryRegion region(false);
  OmDimensionNode node(&region);
  node.Text(OmStringCell("a"));
  EXPECT_EQ(std::string(*node.Text()), "a");
  EXPECT_EQ(region.BlocksInUse(), 1U);
}

TEST(OmDimensionNodeText, MayBeTheNodesOwn) {
  OmDimensionNode node(OmStringCell("a text of some length"), 0, false, nullptr);
  node.Text(*node.Text());
  EXPECT_EQ(std::string(*node.Text()), "a text of some length");
}

TEST(OmDimensionNodeText, LeavesTheOtherFieldsAlone) {
  OmDimensionNode node(OmStringCell("a"), 4, true, nullptr);
  node.Sort(OmSort::UP);
  node.Hide(true);
  node.Text(OmStringCell("b"));
  EXPECT_EQ(printed(node),
            "Subscript: 4, Group: yes, hide: yes, hideLabels: no, Sort: up, Text: b\n");
}

}  // namespace
}  // namespace om::test
