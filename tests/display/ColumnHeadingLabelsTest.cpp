// The column heading without skipping: how many columns and label rows there are, and what stands
// in each place.

#include <gtest/gtest.h>

#include <string>

#include "tests/display/DisplayTable.h"

namespace om::test {
namespace {

// The labels of a table whose only dimension is on the columns.
std::string gridOfColumns(const std::string& dimension) {
  return gridOf(*Columns(tableOf({.dimensions = {dimension}, .columns = {0}})));
}

// A is the first, inner dimension and B the second, outer one.
TableOwner nested() {
  return tableOf({.dimensions = {"A(a0 a1)", "B(b0 b1 b2)"}, .columns = {0, 1}});
}

TEST(ColumnHeadingLabels, KnowsItsTableAndItsFlag) {
  const TableOwner table = nested();
  EXPECT_EQ(&Columns(table)->Table(), table.get());
  EXPECT_FALSE(Columns(table, false)->SkipEmpty());
  EXPECT_TRUE(Columns(table, true)->SkipEmpty());
}

TEST(ColumnHeadingLabels, TheRootStandsOverEachCategory) {
  EXPECT_EQ(gridOfColumns("Sex(F M)"),
            "Sex Sex\n"
            "F   M");
}

TEST(ColumnHeadingLabels, TheLastEntryOfTheAxisIsTheOutermostDimension) {
  const TableOwner table = nested();
  const Columns columns(table);
  EXPECT_EQ(columns->NDimensions(), 2);
  EXPECT_EQ(columns->getDimensionIndex(0), 1);
  EXPECT_EQ(columns->getDimensionIndex(1), 0);
  EXPECT_EQ(columns->NColumns(), 6);
  EXPECT_EQ(columns->NRows(), 4);
  EXPECT_EQ(gridOf(*columns),
            "B  B  B  B  B  B\n"
            "b0 b0 b1 b1 b2 b2\n"
            "A  A  A  A  A  A\n"
            "a0 a1 a0 a1 a0 a1");
}

TEST(ColumnHeadingLabels, TheOrderOfTheAxisCountsAndNotThatOfTheTable) {
  const TableOwner table = tableOf(
      {.dimensions = {"A(a b)", "R(r)", "C(c)", "X(x y)"}, .rows = {1}, .columns = {3, 0, 2}});
  const Columns columns(table);
  EXPECT_EQ(gridOf(*columns),
            "C C C C\n"
            "c c c c\n"
            "A A A A\n"
            "a a b b\n"
            "X X X X\n"
            "x y x y");
}

TEST(ColumnHeadingLabels, ColumnGivesTheLabelsOfOneColumnFromTopToBottom) {
  EXPECT_EQ(labelsOf(Columns(nested())->Column(1)), "B b0 A a1");
  EXPECT_EQ(labelsOf(Columns(nested())->Column(4)), "B b2 A a0");
}

TEST(ColumnHeadingLabels, RowGivesOneLabelOfEveryColumnFromLeftToRight) {
  EXPECT_EQ(labelsOf(Columns(nested())->Row(1)), "b0 b0 b1 b1 b2 b2");
  EXPECT_EQ(labelsOf(Columns(nested())->Row(3)), "a0 a1 a0 a1 a0 a1");
}

TEST(ColumnHeadingLabels, CategoriesStandInTheOrderOfTheTree) {
  EXPECT_EQ(gridOfColumns("D(G(x) a H(y))"),
            "D D D\n"
            "G a H\n"
            "x - y");
}

TEST(ColumnHeadingLabels, SubscriptsHaveNoPartInTheOrder) {
  EXPECT_EQ(gridOfColumns("D(a=2 b=0 c=1)"),
            "D D D\n"
            "a b c");
}

TEST(ColumnHeadingLabels, AShortPathIsFollowedByNullsAtTheBottomOfItsBlock) {
  EXPECT_EQ(
      gridOf(*Columns(tableOf({.dimensions = {"A(a)", "D(b G(c H(d)))"}, .columns = {0, 1}}))),
      "D D D\n"
      "b G G\n"
      "- c H\n"
      "- - d\n"
      "A A A\n"
      "a a a");
}

TEST(ColumnHeadingLabels, AGroupWithoutCategoriesContributesNothing) {
  EXPECT_EQ(gridOfColumns("D(a G() H(K()) b)"),
            "D D\n"
            "a b");
}

// ---- Hidden nodes

TEST(ColumnHeadingLabels, AHiddenRootTakesTheRowOfTheNameAway) {
  const TableOwner table = tableOf({.dimensions = {"~D(a b)", "X(x)"}, .columns = {0, 1}});
  const Columns columns(table);
  EXPECT_EQ(columns->VisibleHeight(0), 2);
  EXPECT_EQ(columns->VisibleHeight(1), 1);
  EXPECT_EQ(gridOf(*columns),
            "X X\n"
            "x x\n"
            "a b");
}

TEST(ColumnHeadingLabels, AHiddenCategoryKeepsItsColumnWithoutALabel) {
  EXPECT_EQ(gridOfColumns("D(a ~b c)"),
            "D D D\n"
            "a - c");
}

TEST(ColumnHeadingLabels, AHiddenGroupIsLeftOutOfThePath) {
  EXPECT_EQ(gridOfColumns("D(a ~G(b c) H(x))"),
            "D D D D\n"
            "a b c H\n"
            "- - - x");
}

TEST(ColumnHeadingLabels, HidingEverythingLeavesColumnsWithoutLabelRows) {
  EXPECT_EQ(gridOfColumns("~D(~a ~b)"), "0 x 2");
}

// ---- Hidden labels

TEST(ColumnHeadingLabels, LabelsEndInFrontOfAGroupWithHiddenLabels) {
  EXPECT_EQ(gridOfColumns("D(a !G(b c))"),
            "D D D\n"
            "a - -");
}

TEST(ColumnHeadingLabels, LabelsEndInFrontOfTheTopmostGroupWithHiddenLabels) {
  EXPECT_EQ(gridOfColumns("D(!G(!K(c)) H(!M(x)))"),
            "D D\n"
            "- H");
}

TEST(ColumnHeadingLabels, WhatIsBelowHiddenLabelsCountsForNoLabelRow) {
  EXPECT_EQ(gridOfColumns("D(!G(H(K(a))) b)"),
            "D D\n"
            "- b");
}

TEST(ColumnHeadingLabels, AHiddenGroupWithHiddenLabelsEndsThemAsWell) {
  // Unlike on the layers, where only groups that are not hidden do.
  EXPECT_EQ(gridOfColumns("D(~!G(b) a)"),
            "D D\n"
            "- a");
}

TEST(ColumnHeadingLabels, ARootWithHiddenLabelsLeavesNoLabels) {
  EXPECT_EQ(gridOfColumns("!D(a b)"), "0 x 2");
}

TEST(ColumnHeadingLabels, HiddenLabelsOfACategoryMeanNothing) {
  EXPECT_EQ(gridOfColumns("D(!a b)"),
            "D D\n"
            "a b");
}

TEST(ColumnHeadingLabels, ARootThatIsACategoryIsTheOnlyLabel) {
  const TableOwner table = tableOf({.dimensions = {"A(a)"}, .columns = {0}});
  table->Dimension(0).Root()->IsGroup(false);
  EXPECT_EQ(gridOf(*Columns(table)), "A");
}

TEST(ColumnHeadingLabels, WhatIsBelowACategoryIsNoPosition) {
  const TableOwner table = tableOf({.dimensions = {"D(G(a) b)"}, .columns = {0}});
  const OmDimension::Node former = table->Dimension(0).Root().ChildAt(0);
  former->IsGroup(false);
  former->Subscript(0);
  EXPECT_EQ(gridOf(*Columns(table)),
            "D D\n"
            "G b");
}

// ---- Counts

TEST(ColumnHeadingLabels, EachDimensionHasItsOwnNumberOfLabelRows) {
  const TableOwner table =
      tableOf({.dimensions = {"A(a)", "B(G(H(b)))", "!C(c)"}, .columns = {0, 1, 2}});
  const Columns columns(table);
  EXPECT_EQ(columns->VisibleHeight(0), 0);
  EXPECT_EQ(columns->VisibleHeight(1), 4);
  EXPECT_EQ(columns->VisibleHeight(2), 2);
  EXPECT_EQ(columns->NRows(), 6);
}

TEST(ColumnHeadingLabels, LabelRowsAreNotCountedByTheMeasuresOfTheDimension) {
  const TableOwner table = tableOf({.dimensions = {"D(~G(a))"}, .columns = {0}});
  table->Dimension(0).DisplayLastCategory(true);
  EXPECT_EQ(table->Dimension(0).getMaximumDepth(), 3u);
  EXPECT_EQ(gridOf(*Columns(table)), "D\na");
}

TEST(ColumnHeadingLabels, ATableWithoutColumnDimensionsHasOneColumnWithoutLabels) {
  const TableOwner table = tableOf({.dimensions = {"R(r)"}, .rows = {0}});
  const Columns columns(table);
  EXPECT_EQ(columns->NDimensions(), 0);
  EXPECT_EQ(gridOf(*columns), "0 x 1");
  EXPECT_TRUE(columns->ColumnCategories(0).empty());
}

TEST(ColumnHeadingLabels, DimensionsOfOtherAxesHaveNoPart) {
  EXPECT_EQ(gridOf(*Columns(tableOf({.dimensions = {"R(r s)", "C(c)", "L(l m)"},
                                     .rows = {0},
                                     .columns = {1},
                                     .layers = {2}}))),
            "C\nc");
}

TEST(ColumnHeadingLabels, AllPositionsAreShownInOrder) {
  const Columns columns(nested());
  EXPECT_EQ(columns->getNonEmptyColumns(), (Positions{0, 1, 2, 3, 4, 5}));
}

TEST(ColumnHeadingLabels, ThePositionsShownAreMadeOnce) {
  const Columns columns(nested());
  const Positions& first = columns->getNonEmptyColumns();
  EXPECT_EQ(&columns->getNonEmptyColumns(), &first);
  EXPECT_EQ(first.size(), 6u);
}

TEST(ColumnHeadingLabels, MakingThePositionsShownChangesNoLabel) {
  const Columns columns(nested());
  const std::string grid = gridOf(*columns);
  columns->getNonEmptyColumns();
  EXPECT_EQ(gridOf(*columns), grid);
  EXPECT_EQ(columns->VisibleHeight(0), 2);
}

// ---- Categories and whole paths

TEST(ColumnHeadingLabels, CategoriesAreGivenWhateverIsHidden) {
  const TableOwner table = tableOf({.dimensions = {"A(a ~b)", "~B(!G(x y))"}, .columns = {0, 1}});
  const Columns columns(table);
  EXPECT_EQ(labelsOf(columns->ColumnCategories(0)), "x a");
  EXPECT_EQ(labelsOf(columns->ColumnCategories(1)), "x b");
  EXPECT_EQ(labelsOf(columns->ColumnCategories(3)), "y b");
}

TEST(ColumnHeadingLabels, DimAllNodesAppendsTheWholePathsWhateverIsHidden) {
  const TableOwner table = tableOf({.dimensions = {"A(a ~b)", "~B(!G(x) y)"}, .columns = {0, 1}});
  const Columns columns(table);
  EntryList path;
  columns->DimAllNodes(1, path);
  EXPECT_EQ(labelsOf(path), "B G x A b");
  columns->DimAllNodes(2, path);
  EXPECT_EQ(labelsOf(path), "B G x A b B y A a");
}

TEST(ColumnHeadingLabels, DimCatNodesAppendsBothEndsOfThePaths) {
  const TableOwner table = tableOf({.dimensions = {"A(a ~b)", "~B(!G(x) y)"}, .columns = {0, 1}});
  const Columns columns(table);
  EntryList dimensions;
  EntryList categories;
  columns->DimCatNodes(1, dimensions, categories);
  columns->DimCatNodes(2, dimensions, categories);
  EXPECT_EQ(labelsOf(dimensions), "B A B A");
  EXPECT_EQ(labelsOf(categories), "x b y a");
}

TEST(ColumnHeadingLabels, ThePathOfARootAloneIsLeftOut) {
  const TableOwner table = tableOf({.dimensions = {"A(a)", "B(b)"}, .columns = {0, 1}});
  table->Dimension(1).Root()->IsGroup(false);
  const Columns columns(table);
  EntryList path;
  EntryList dimensions;
  EntryList categories;
  columns->DimAllNodes(0, path);
  columns->DimCatNodes(0, dimensions, categories);
  EXPECT_EQ(labelsOf(path), "A a");
  EXPECT_EQ(labelsOf(dimensions), "A");
  EXPECT_EQ(labelsOf(categories), "a");
  EXPECT_EQ(labelsOf(columns->ColumnCategories(0)), "B a");
}

// ---- Entries

TEST(ColumnHeadingLabels, EntriesAreTheNodesOfTheTableWithTheirDepths) {
  const TableOwner table = tableOf({.dimensions = {"D(~G(a))"}, .columns = {0}});
  const OmDimension::Node root = table->Dimension(0).Root();
  const Columns columns(table);
  const Entries labels = columns->Column(0);
  ASSERT_EQ(labels.size(), 2u);
  EXPECT_EQ(labels[0]->Record(), root.Record());
  EXPECT_EQ(labels[0]->Depth(), 0u);
  EXPECT_EQ(labels[1]->Record(), root.ChildAt(0).ChildAt(0).Record());
  EXPECT_EQ(labels[1]->Depth(), 2u);
}

TEST(ColumnHeadingLabels, ANodeHasOneEntryInAllColumns) {
  const TableOwner table = tableOf({.dimensions = {"D(G(a b))", "X(x y)"}, .columns = {0, 1}});
  const Columns columns(table);
  const Entries first = columns->Column(0);
  const Entries last = columns->Column(3);
  ASSERT_EQ(first.size(), 5u);
  ASSERT_EQ(last.size(), 5u);
  EXPECT_EQ(first[0], last[0]);
  EXPECT_NE(first[1], last[1]);
  EXPECT_EQ(first[2], last[2]);
  EXPECT_EQ(first[3], last[3]);
  EXPECT_NE(first[4], last[4]);
}

TEST(ColumnHeadingLabels, ANodeHasTheSameEntryWhoeverGivesIt) {
  const TableOwner table = tableOf({.dimensions = {"D(G(a))"}, .columns = {0}});
  const Columns columns(table);
  const Entries labels = columns->Column(0);
  ASSERT_EQ(labels.size(), 3u);
  EXPECT_EQ(columns->Column(0), labels);
  EXPECT_EQ(columns->Row(1), (Entries{labels[1]}));
  EXPECT_EQ(columns->ColumnCategories(0), (Entries{labels[2]}));
  EntryList path;
  columns->DimAllNodes(0, path);
  EXPECT_EQ(Entries(path.begin(), path.end()), labels);
}

TEST(ColumnHeadingLabels, EntriesStayValidAfterTheColumnHeading) {
  const TableOwner table = tableOf({.dimensions = {"D(G(a))"}, .columns = {0}});
  OmDisplayLayerHeading layers(*table, false);
  const Entries labels = OmDisplayColumnHeading(layers, false).Column(0);
  EXPECT_EQ(labelsOf(labels), "D G a");
  EXPECT_EQ(OmDisplayColumnHeading(layers, false).Column(0), labels);
}

TEST(ColumnHeadingLabels, SwitchingTheLayerChangesNoLabel) {
  const TableOwner table =
      tableOf({.dimensions = {"C(c d)", "L(l m)"}, .columns = {0}, .layers = {1}});
  OmDisplayLayerHeading layers(*table, false);
  const OmDisplayColumnHeading columns(layers, false);
  const Entries labels = columns.Column(1);
  layers.SwitchLayer(1);
  EXPECT_EQ(columns.Column(1), labels);
}

}  // namespace
}  // namespace om::test
