// Dimensions far beyond the size of real ones, very deep and very wide: measured, edited at their
// ends and destroyed. Whatever recurses once a level runs out of stack here.

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "dimensions/OmDimension.h"
#include "dimensions/internal/DimensionFactory.h"
#include "external/cells/OmMemoryRegion.h"
#include "external/cells/OmStringCell.h"

namespace om::test {
namespace {

using Node = OmDimension::Node;

constexpr std::uint32_t kDepth = 10'000;
constexpr std::size_t kWidth = 100'000;

const OmStringCell kText("n");

std::string labelOf(const Node& node) { return std::string(*node->Text()); }

class OmDimensionScale : public testing::Test {
 protected:
  ~OmDimensionScale() override {
    dimension_.reset();
    EXPECT_EQ(region_.BlocksInUse(), 0U);
  }

  OmMemoryRegion region_{false};
  std::unique_ptr<OmDimension> dimension_ = internal::DimensionFactory::make(
      OmDimensionNode(OmStringCell("root"), 0, true, &region_), &region_);
};

// Groups "g", each the only child of the one before, on levels 1 to kDepth - 1, and below them a
// category "c" with subscript 0.
class OmDimensionDeep : public OmDimensionScale {
 protected:
  OmDimensionDeep() {
    Node at = dimension_->Root();
    for (std::uint32_t level = 1; level < kDepth; ++level) {
      at = dimension_->AddNewChild(at, OmStringCell("g"), ~0ULL, true);
    }
    dimension_->AddNewChild(at, OmStringCell("c"), 0, false);
  }

  Node top() { return dimension_->Root().ChildAt(0); }

  // Follows the last children.
  Node bottom() {
    Node at = dimension_->Root();
    while (at.ChildCount() != 0) at = at.ChildAt(at.ChildCount() - 1);
    return at;
  }

  void expectSound() { EXPECT_EQ(dimension_->checkInvariants(), nullptr); }
};

TEST_F(OmDimensionDeep, IsMeasured) {
  EXPECT_EQ(dimension_->getMaximumDepth(), kDepth + 1);
  EXPECT_EQ(dimension_->getMaxVisibleGroupCount(), 1U);
}

TEST_F(OmDimensionDeep, TakesACategoryAtTheBottom) {
  const Node last = bottom();
  dimension_->insertCategory(kText, last.Parent(), last, true);
  expectSound();
  EXPECT_EQ(labelOf(bottom()), "c");
  EXPECT_EQ(labelOf(bottom().Parent().ChildAt(0)), "n");
}

TEST_F(OmDimensionDeep, TakesACategoryAtTheTop) {
  dimension_->insertCategory(kText, dimension_->Root(), top(), true);
  expectSound();
  EXPECT_EQ(labelOf(top()), "n");
  EXPECT_EQ(bottom().Depth(), kDepth);
}

TEST_F(OmDimensionDeep, IsGatheredAtTheTopAndDissolvedAgain) {
  Node first = top();
  dimension_->insertChild(kText, {&first});
  expectSound();
  EXPECT_EQ(dimension_->getMaximumDepth(), kDepth + 2);
  Node group = top();
  dimension_->removeChild(group);
  expectSound();
  EXPECT_EQ(dimension_->getMaximumDepth(), kDepth + 1);
}

TEST_F(OmDimensionDeep, MovesItsBottomToTheTop) {
  Node last = bottom();
  Node first = top();
  dimension_->moveChild(last, &first, false);
  expectSound();
  EXPECT_EQ(labelOf(top()), "c");
  EXPECT_EQ(dimension_->getMaximumDepth(), kDepth);
}

TEST_F(OmDimensionDeep, MovesItsBottomOutOfHiddenGroups) {
  Node last = bottom();
  for (Node at = last.Parent(); at.Depth() != 0; at = at.Parent()) at->Hide(true);
  dimension_->moveChild(last, nullptr, false);
  expectSound();
  EXPECT_EQ(dimension_->Root().ChildCount(), 2U);
  EXPECT_EQ(labelOf(dimension_->Root().ChildAt(1)), "c");
}

TEST_F(OmDimensionDeep, MovesItsTopToTheBottomOfAnotherBranch) {
  Node other = dimension_->AddNewChild(dimension_->Root(), OmStringCell("o"), ~0ULL, true);
  Node target = dimension_->AddNewChild(other, OmStringCell("t"), 1, false);
  Node first = top();
  dimension_->moveChild(first, &target, false);
  expectSound();
  EXPECT_EQ(dimension_->getMaximumDepth(), kDepth + 2);
  EXPECT_EQ(labelOf(top()), "o");
}

TEST_F(OmDimensionDeep, ExchangesItsTopWithItsSibling) {
  Node other = dimension_->AddNewChild(dimension_->Root(), OmStringCell("o"), 1, false);
  Node first = top();
  dimension_->moveChild(first, &other, true);
  expectSound();
  EXPECT_EQ(labelOf(top()), "o");
  EXPECT_EQ(bottom().Depth(), kDepth);
}

TEST_F(OmDimensionDeep, LosesItsBottomAndThenAll) {
  Node last = bottom();
  dimension_->Delete(last);
  expectSound();
  EXPECT_EQ(dimension_->getMaximumDepth(), kDepth);
  Node first = top();
  dimension_->Delete(first);
  expectSound();
  EXPECT_EQ(dimension_->getMaximumDepth(), 1U);
}

// Categories "c" with subscripts 0 to kWidth - 1 under the root.
class OmDimensionWide : public OmDimensionScale {
 protected:
  OmDimensionWide() {
    const OmStringCell text("c");
    for (std::size_t i = 0; i < kWidth; ++i) {
      dimension_->AddNewChild(dimension_->Root(), text, i, false);
    }
  }

  Node at(std::size_t position) { return dimension_->Root().ChildAt(position); }
  Node last() { return at(dimension_->Root().ChildCount() - 1); }

  void expectSound(std::size_t children) {
    EXPECT_EQ(dimension_->checkInvariants(), nullptr);
    EXPECT_EQ(dimension_->Root().ChildCount(), children);
  }
};

TEST_F(OmDimensionWide, IsMeasured) {
  EXPECT_EQ(dimension_->getMaximumDepth(), 2U);
  EXPECT_EQ(dimension_->getMaxVisibleGroupCount(), 1U);
  for (Node child = at(0); child != dimension_->Root().ChildrenEnd(); ++child) {
    child->IsGroup(true);
  }
  EXPECT_EQ(dimension_->getMaxVisibleGroupCount(), kWidth);
}

TEST_F(OmDimensionWide, TakesCategoriesAtBothEnds) {
  dimension_->insertCategory(kText, dimension_->Root(), at(0), true);
  dimension_->insertCategory(kText, dimension_->Root(), last(), false);
  expectSound(kWidth + 2);
  EXPECT_EQ(at(0)->Subscript(), kWidth);
  EXPECT_EQ(last()->Subscript(), kWidth + 1);
}

TEST_F(OmDimensionWide, MovesTheFirstToTheEndAndTheLastToTheFront) {
  Node first = at(0);
  dimension_->moveChild(first, nullptr, false);
  EXPECT_EQ(last()->Subscript(), 0U);
  Node moved = last();
  Node target = at(0);
  dimension_->moveChild(moved, &target, false);
  expectSound(kWidth);
  EXPECT_EQ(at(0)->Subscript(), 0U);
  EXPECT_EQ(last()->Subscript(), kWidth - 1);
}

TEST_F(OmDimensionWide, ExchangesItsEnds) {
  Node first = at(0);
  Node other = last();
  dimension_->moveChild(first, &other, true);
  expectSound(kWidth);
  EXPECT_EQ(at(0)->Subscript(), kWidth - 1);
  EXPECT_EQ(last()->Subscript(), 0U);
}

TEST_F(OmDimensionWide, GathersItsEndsAndDissolvesThem) {
  Node first = at(0);
  Node other = last();
  dimension_->insertChild(kText, {&first, &other});
  expectSound(kWidth - 1);
  EXPECT_EQ(at(0).ChildCount(), 2U);
  Node group = at(0);
  dimension_->removeChild(group);
  expectSound(kWidth);
  EXPECT_EQ(at(1)->Subscript(), kWidth - 1);
  EXPECT_EQ(group->Subscript(), 1U);
}

TEST_F(OmDimensionWide, GathersAllAndDissolvesAll) {
  std::vector<Node> nodes;
  for (std::size_t i = 0; i < kWidth; ++i) nodes.push_back(at(i));
  std::vector<Node*> pointers;
  for (Node& node : nodes) pointers.push_back(&node);
  dimension_->insertChild(kText, pointers);
  expectSound(1);
  EXPECT_EQ(at(0).ChildCount(), kWidth);
  Node group = at(0);
  dimension_->removeChild(group);
  expectSound(kWidth);
  EXPECT_EQ(last()->Subscript(), kWidth - 1);
}

TEST_F(OmDimensionWide, LosesItsEnds) {
  Node first = at(0);
  dimension_->Delete(first);
  EXPECT_EQ(dimension_->NumCategories(), static_cast<std::int32_t>(kWidth));
  Node other = last();
  dimension_->Delete(other);
  EXPECT_EQ(dimension_->NumCategories(), static_cast<std::int32_t>(kWidth - 1));
  expectSound(kWidth - 2);
}

}  // namespace
}  // namespace om::test
