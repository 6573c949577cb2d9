// The order and the equality of nodes, which do not agree: subscripts play a part in equality only,
// and the size of a text does so as well.

#include <gtest/gtest.h>

#include <string>

#include "external/cells/OmValueCell.h"
#include "tests/dimensions/DimensionText.h"

namespace om::test {
namespace {

OmDimensionNode made(const std::string& label, unsigned long long subscript = 0,
                     bool isGroup = false) {
  return OmDimensionNode(OmStringCell(label), subscript, isGroup, nullptr);
}

OmDimensionNode initial(const std::string& label) {
  return OmDimensionNode(InitialText(label), 0, false, nullptr);
}

TEST(OmDimensionNodeOrder, CategoriesAreOrderedByTheirTexts) {
  EXPECT_TRUE(made("a") < made("b"));
  EXPECT_FALSE(made("b") < made("a"));
  EXPECT_FALSE(made("a") < made("a"));
}

TEST(OmDimensionNodeOrder, GroupsAreOrderedByTheirTexts) {
  EXPECT_TRUE(made("a", 0, true) < made("b", 0, true));
  EXPECT_FALSE(made("b", 0, true) < made("a", 0, true));
  EXPECT_FALSE(made("a", 0, true) < made("a", 0, true));
}

TEST(OmDimensionNodeOrder, AGroupPrecedesACategoryWhateverTheLabels) {
  EXPECT_TRUE(made("z", 0, true) < made("a"));
  EXPECT_TRUE(made("a", 0, true) < made("a"));
  EXPECT_FALSE(made("a") < made("z", 0, true));
  EXPECT_FALSE(made("a") < made("a", 0, true));
}

TEST(OmDimensionNodeOrder, SubscriptsPlayNoPart) {
  EXPECT_FALSE(made("a", 1) < made("a", 2));
  EXPECT_FALSE(made("a", 2) < made("a", 1));
  EXPECT_TRUE(made("a", 2) < made("b", 1));
}

TEST(OmDimensionNodeOrder, OtherFlagsAndTheSortOrderPlayNoPart) {
  OmDimensionNode hidden = OmDimensionNode(OmStringCell("a"), 0, false, nullptr);
  hidden.Hide(true);
  hidden.HideLabels(true);
  hidden.Sort(OmSort::UP);
  EXPECT_FALSE(hidden < made("a"));
  EXPECT_FALSE(made("a") < hidden);
  EXPECT_TRUE(hidden == made("a"));
}

TEST(OmDimensionNodeOrder, TheSizesOfTheTextsPlayNoPart) {
  EXPECT_FALSE(initial("ab") < initial("abc"));
  EXPECT_FALSE(initial("abc") < initial("ab"));
}

TEST(OmDimensionNodeOrder, PrecedesIsTheOrderOfNodesThatAreNotThere) {
  const OmStringCell a("a");
  const OmStringCell b("b");
  EXPECT_TRUE(OmDimensionNode::Precedes(true, b, false, a));
  EXPECT_FALSE(OmDimensionNode::Precedes(false, a, true, b));
  EXPECT_TRUE(OmDimensionNode::Precedes(false, a, false, b));
  EXPECT_FALSE(OmDimensionNode::Precedes(false, b, false, a));
  EXPECT_FALSE(OmDimensionNode::Precedes(true, a, true, a));
}

TEST(OmDimensionNodeEquality, HoldsForTheSameTextSubscriptAndGroupFlag) {
  EXPECT_TRUE(made("a", 3) == made("a", 3));
  EXPECT_TRUE(made("a", 3, true) == made("a", 3, true));
}

TEST(OmDimensionNodeEquality, NeedsTheSameSubscriptThoughNeitherNodePrecedesTheOther) {
  EXPECT_FALSE(made("a", 1) == made("a", 2));
  EXPECT_FALSE(made("a", 1) == made("a", 0x100000001ULL));
  EXPECT_FALSE(made("a", 1) < made("a", 2));
  EXPECT_FALSE(made("a", 2) < made("a", 1));
}

TEST(OmDimensionNodeEquality, NeedsTheSameGroupFlag) {
  EXPECT_FALSE(made("a", 1, true) == made("a", 1, false));
}

TEST(OmDimensionNodeEquality, NeedsTextsThatCompareEqual) { EXPECT_FALSE(made("a") == made("b")); }

TEST(OmDimensionNodeEquality, NeedsTextsOfTheSameSize) {
  EXPECT_FALSE(initial("ab") == initial("abc"));
  EXPECT_TRUE(initial("ab") == initial("ax"));
}

TEST(OmDimensionNodeEquality, TextsOfDifferentKindsMayBeEqual) {
  const OmDimensionNode value(OmValueCell("1", "yes"), 0, false, nullptr);
  EXPECT_TRUE(value == made("yes"));
}

TEST(OmDimensionNodeEquality, OfANodeWithItselfHolds) {
  const OmDimensionNode node = made("a", 4);
  EXPECT_TRUE(node == node);
}

}  // namespace
}  // namespace om::test
