// Counterpart: the node of a dimension that stands where a node stands in a dimension of the same
// shape.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/dimensions/DimensionText.h"
#include "tests/support/Asserts.h"

namespace om::test {
namespace {

const std::vector<Report> kOutOfRange = {
    {L"0 <= offset && offset < vec.size()", L"backend/tables/om/VectorTree", 384}};

// name: G[a b], H[c]
class OmDimensionCounterpart : public testing::Test {
 protected:
  OmDimensionCounterpart() {
    const Node first = addGroup(*dimension_, dimension_->Root(), "G");
    addCategory(*dimension_, first, "a", 0);
    addCategory(*dimension_, first, "b", 1);
    addCategory(*dimension_, addGroup(*dimension_, dimension_->Root(), "H"), "c", 2);
    copy_ = DimensionFactory::copy(*dimension_, nullptr);
  }

  DimensionOwner dimension_ = dimensionNamed("name");
  DimensionOwner copy_;
};

TEST_F(OmDimensionCounterpart, OfTheRootIsTheRoot) {
  const Node mapped = copy_->Counterpart(dimension_->Root());
  EXPECT_EQ(mapped, copy_->Root());
  EXPECT_EQ(mapped.Depth(), 0U);
}

TEST_F(OmDimensionCounterpart, OfAChildIsTheOneAtItsPosition) {
  const Node mapped = copy_->Counterpart(dimension_->Root().ChildAt(1));
  EXPECT_EQ(mapped, copy_->Root().ChildAt(1));
  EXPECT_EQ(mapped.Depth(), 1U);
}

TEST_F(OmDimensionCounterpart, OfACategoryHasTheSamePathAndDepth) {
  const Node mapped = copy_->Counterpart(dimension_->Root().ChildAt(0).ChildAt(1));
  EXPECT_EQ(mapped, copy_->Root().ChildAt(0).ChildAt(1));
  EXPECT_EQ(mapped.Depth(), 2U);
  EXPECT_EQ(std::string(*mapped->Text()), "b");
}

TEST_F(OmDimensionCounterpart, LeadsBackToTheNode) {
  const Node node = dimension_->Root().ChildAt(1).ChildAt(0);
  EXPECT_EQ(dimension_->Counterpart(copy_->Counterpart(node)), node);
}

TEST_F(OmDimensionCounterpart, OfItsOwnNodeIsTheNode) {
  const Node node = dimension_->Root().ChildAt(0).ChildAt(0);
  EXPECT_EQ(dimension_->Counterpart(node), node);
}

TEST_F(OmDimensionCounterpart, AsksNothingOfLabels) {
  copy_->Root().ChildAt(0)->Text(OmStringCell("renamed"));
  copy_->Root().ChildAt(0)->IsGroup(false);
  EXPECT_EQ(copy_->Counterpart(dimension_->Root().ChildAt(0)), copy_->Root().ChildAt(0));
}

TEST_F(OmDimensionCounterpart, BehindTheChildrenIsReportedAndGivesTheirEnd) {
  const Node extra = addGroup(*dimension_, dimension_->Root(), "extra");
  const AssertCollector asserts;
  EXPECT_EQ(copy_->Counterpart(extra), copy_->Root().ChildrenEnd());
  EXPECT_EQ(asserts.reports(), kOutOfRange);
}

TEST_F(OmDimensionCounterpart, BelowALeafIsReportedAndChangesNothing) {
  const Node leaf = dimension_->Root().ChildAt(1).ChildAt(0);
  const Node below = addCategory(*dimension_, leaf, "x");
  const std::string before = printed(*copy_);
  const AssertCollector asserts;
  EXPECT_EQ(copy_->Counterpart(below), copy_->Root().ChildAt(1).ChildAt(0).ChildrenEnd());
  EXPECT_EQ(asserts.reports(), kOutOfRange);
  EXPECT_EQ(printed(*copy_), before);
}

}  // namespace
}  // namespace om::test
