// The row heading without names in the corner: which rows there are, and the labels beside them.

#include <gtest/gtest.h>

#include <string>

#include "tests/display/DisplayTable.h"

namespace om::test {
namespace {

std::string gridOfRows(const std::string& dimension) {
  return gridOf(*Rows(tableOf({.dimensions = {dimension}, .rows = {0}})));
}

// A is the first, inner dimension and B the second, outer one.
TableOwner nested() { return tableOf({.dimensions = {"A(a b)", "B(x y z)"}, .rows = {0, 1}}); }

TEST(RowHeading, KnowsItsTableAndItsFlags) {
  const TableOwner table = nested();
  EXPECT_EQ(&Rows(table)->Table(), table.get());
  EXPECT_FALSE(Rows(table, false, true)->SkipEmpty());
  EXPECT_TRUE(Rows(table, true, false)->SkipEmpty());
  EXPECT_FALSE(Rows(table, true, false)->DimNamesInCorner());
  EXPECT_TRUE(Rows(table, false, true)->DimNamesInCorner());
}

TEST(RowHeading, TheRootStandsBesideEachCategory) {
  EXPECT_EQ(gridOfRows("Sex(F M)"),
            "Sex F\n"
            "Sex M");
}

TEST(RowHeading, TheLastEntryOfTheAxisIsTheOutermostDimension) {
  const Rows rows(nested());
  EXPECT_EQ(rows->NDimensions(), 2);
  EXPECT_EQ(rows->getDimensionIndex(0), 1);
  EXPECT_EQ(rows->getDimensionIndex(1), 0);
  EXPECT_EQ(rows->NRows(), 6);
  EXPECT_EQ(rows->NColumns(), 4);
  EXPECT_EQ(gridOf(*rows),
            "B x A a\n"
            "B x A b\n"
            "B y A a\n"
            "B y A b\n"
            "B z A a\n"
            "B z A b");
}

TEST(RowHeading, RowGivesTheLabelsOfOneRowFromLeftToRight) {
  EXPECT_EQ(labelsOf(Rows(nested())->Row(4)), "B z A a");
}

TEST(RowHeading, ColumnGivesOneLabelOfEveryRowFromTopToBottom) {
  EXPECT_EQ(labelsOf(Rows(nested())->Column(1)), "x x y y z z");
  EXPECT_EQ(labelsOf(Rows(nested())->Column(3)), "a b a b a b");
}

TEST(RowHeading, AShortPathIsFollowedByNullsAtTheRightOfItsBlock) {
  EXPECT_EQ(gridOf(*Rows(tableOf({.dimensions = {"A(a)", "D(b G(c H(d)))"}, .rows = {0, 1}}))),
            "D b - - A a\n"
            "D G c - A a\n"
            "D G H d A a");
}

TEST(RowHeading, HiddenNodesAreLeftOutOfThePath) {
  EXPECT_EQ(gridOfRows("D(a ~G(b ~c) ~H(K(d)))"),
            "D a -\n"
            "D b -\n"
            "D - -\n"
            "D K d");
}

TEST(RowHeading, LabelsEndInFrontOfTheTopmostGroupWithHiddenLabels) {
  EXPECT_EQ(gridOfRows("D(a !G(!K(b)) H(!M(c)) ~!N(d))"),
            "D a\n"
            "D -\n"
            "D H\n"
            "D -");
}

TEST(RowHeading, AHiddenRootTakesTheColumnOfTheNameAway) {
  const Rows rows(tableOf({.dimensions = {"~D(a b)", "X(x)"}, .rows = {0, 1}}));
  EXPECT_EQ(rows->VisibleWidth(0), 2);
  EXPECT_EQ(rows->VisibleWidth(1), 1);
  EXPECT_EQ(gridOf(*rows),
            "X x a\n"
            "X x b");
}

TEST(RowHeading, ATableWithoutRowDimensionsHasOneRowWithoutLabels) {
  const Rows rows(tableOf({.dimensions = {"C(c d)"}, .columns = {0}}));
  EXPECT_EQ(rows->NDimensions(), 0);
  EXPECT_EQ(gridOf(*rows), "1 x 0");
  EXPECT_TRUE(rows->RowCategories(0).empty());
}

TEST(RowHeading, AllPositionsAreShownInOrder) {
  const Rows rows(nested());
  const Positions& shown = rows->getNonEmptyRows();
  EXPECT_EQ(shown, (Positions{0, 1, 2, 3, 4, 5}));
  EXPECT_EQ(&rows->getNonEmptyRows(), &shown);
}

TEST(RowHeading, CategoriesAreGivenWhateverIsHidden) {
  const Rows rows(tableOf({.dimensions = {"A(a ~b)", "~B(!G(x y))"}, .rows = {0, 1}}));
  EXPECT_EQ(labelsOf(rows->RowCategories(1)), "x b");
  EXPECT_EQ(labelsOf(rows->RowCategories(2)), "y a");
}

TEST(RowHeading, DimAllNodesAppendsTheWholePathsWhateverIsHidden) {
  const Rows rows(tableOf({.dimensions = {"A(a ~b)", "~B(!G(x) y)"}, .rows = {0, 1}}));
  EntryList path;
  rows->DimAllNodes(1, path);
  rows->DimAllNodes(2, path);
  EXPECT_EQ(labelsOf(path), "B G x A b B y A a");
}

TEST(RowHeading, DimCatNodesAppendsBothEndsOfThePaths) {
  const Rows rows(tableOf({.dimensions = {"A(a ~b)", "~B(!G(x) y)"}, .rows = {0, 1}}));
  EntryList dimensions;
  EntryList categories;
  rows->DimCatNodes(1, dimensions, categories);
  rows->DimCatNodes(2, dimensions, categories);
  EXPECT_EQ(labelsOf(dimensions), "B A B A");
  EXPECT_EQ(labelsOf(categories), "x b y a");
}

TEST(RowHeading, ItsEntriesAreThoseOfTheLayerHeadingItIsBuiltOn) {
  const TableOwner table = tableOf({.dimensions = {"D(G(a b))"}, .rows = {0}});
  OmDisplayLayerHeading layers(*table, false);
  const OmDisplayRowHeading rows(layers, false, false);
  const OmDisplayRowHeading named(layers, false, true);
  const Entries labels = rows.Row(1);
  ASSERT_EQ(labels.size(), 3u);
  EXPECT_EQ(rows.Row(1), labels);
  EXPECT_EQ(named.Row(1), (Entries{labels[1], labels[2]}));
  EXPECT_EQ(rows.RowCategories(1), (Entries{labels[2]}));
  EXPECT_EQ(rows.Column(1)[0], labels[1]);
  EXPECT_EQ(labels[2]->Record(), table->Dimension(0).Root().ChildAt(0).ChildAt(1).Record());
  EXPECT_EQ(labels[2]->Depth(), 2u);
}

// ---- Empty rows

TEST(RowHeading, RowsWithoutCellsAreLeftOut) {
  const Rows rows(tableOf({.dimensions = {"R(r s t)", "C(c d)"},
                           .rows = {0},
                           .columns = {1},
                           .cells = {{2, 0}, {0, 1}}}),
                  true);
  EXPECT_EQ(rows->NRows(), 2);
  EXPECT_EQ(rows->getNonEmptyRows(), (Positions{0, 2}));
  EXPECT_EQ(gridOf(*rows),
            "R r\n"
            "R t");
  EXPECT_EQ(labelsOf(rows->RowCategories(1)), "t");
}

TEST(RowHeading, CombinationsOfNestedDimensionsAreLeftOutOneByOne) {
  const Rows rows(tableOf({.dimensions = {"A(a b)", "C(c d)", "B(x G(y z))"},
                           .rows = {0, 2},
                           .columns = {1},
                           .cells = {{0, 1, 0}, {1, 0, 0}, {1, 1, 0}}}),
                  true);
  EXPECT_EQ(rows->getNonEmptyRows(), (Positions{0, 1}));
  EXPECT_EQ(rows->VisibleWidth(0), 2);
  EXPECT_EQ(gridOf(*rows),
            "B x A a\n"
            "B x A b");
}

TEST(RowHeading, ACellInAnyCombinationOfTheColumnsKeepsARow) {
  const Rows rows(tableOf({.dimensions = {"A(a b)", "B(x y)", "R(r s t)"},
                           .rows = {2},
                           .columns = {0, 1},
                           .cells = {{1, 0, 2}, {0, 1, 1}}}),
                  true);
  EXPECT_EQ(rows->getNonEmptyRows(), (Positions{1, 2}));
}

TEST(RowHeading, OnlyCellsOfTheCurrentLayerCount) {
  const TableOwner table = tableOf(
      {.dimensions = {"R(r s)", "L(l m)"}, .rows = {0}, .layers = {1}, .cells = {{0, 0}, {1, 1}}});
  OmDisplayLayerHeading layers(*table, false);
  layers.SwitchLayer(1);
  const OmDisplayRowHeading rows(layers, true, false);
  EXPECT_EQ(rows.getNonEmptyRows(), (Positions{1}));
  layers.SwitchLayer(0);
  EXPECT_EQ(rows.getNonEmptyRows(), (Positions{1}));
  EXPECT_EQ(OmDisplayRowHeading(layers, true, false).getNonEmptyRows(), (Positions{0}));
}

TEST(RowHeading, InASparseTableACellInAnyLayerKeepsARow) {
  const TableOwner table = tableOf({.dimensions = {flat("R", "r", 75), "L(l m)"},
                                    .rows = {0},
                                    .layers = {1},
                                    .cells = {{70, 1}}});
  OmDisplayLayerHeading layers(*table, false);
  layers.SwitchLayer(0);
  EXPECT_EQ(OmDisplayRowHeading(layers, true, false).getNonEmptyRows(), (Positions{70}));
}

TEST(RowHeading, WithoutCellsThereAreNoRowsButAllLabelColumns) {
  const Rows rows(tableOf({.dimensions = {"R(r G(s))"}, .rows = {0}}), true);
  EXPECT_EQ(gridOf(*rows), "0 x 3");
  EXPECT_TRUE(rows->getNonEmptyRows().empty());
  EXPECT_EQ(rows->VisibleWidth(0), 3);
}

TEST(RowHeading, BeyondTheRowsShownPathsAreThoseOfAPositionAmongAll) {
  const Rows rows(tableOf({.dimensions = {"R(r s t)"}, .rows = {0}, .cells = {{2}}}), true);
  EntryList path;
  EntryList dimensions;
  EntryList categories;
  rows->DimAllNodes(0, path);
  rows->DimAllNodes(1, path);
  rows->DimCatNodes(1, dimensions, categories);
  EXPECT_EQ(labelsOf(path), "R t R s");
  EXPECT_EQ(labelsOf(dimensions), "R");
  EXPECT_EQ(labelsOf(categories), "s");
}

TEST(RowHeading, RowsAndColumnsAreSkippedByFlagsOfTheirOwn) {
  const TableOwner table = tableOf(
      {.dimensions = {"R(r s t)", "C(c d e)"}, .rows = {0}, .columns = {1}, .cells = {{1, 2}}});
  OmDisplayLayerHeading layers(*table, false);
  EXPECT_EQ(OmDisplayRowHeading(layers, true, false).NRows(), 1);
  EXPECT_EQ(OmDisplayRowHeading(layers, false, false).NRows(), 3);
  EXPECT_EQ(OmDisplayColumnHeading(layers, true).NColumns(), 1);
  EXPECT_EQ(OmDisplayColumnHeading(layers, false).NColumns(), 3);
}

}  // namespace
}  // namespace om::test
