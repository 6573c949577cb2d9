// Leaving out empty columns: which columns are found to hold cells, by positions in a dense table
// and by cells in a sparse one, and what remains of the labels.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/display/DisplayTable.h"

namespace om::test {
namespace {

// A small table, which is never sparse: below 50 places no number of cells is small enough.
TableOwner denseTable(const std::vector<Index>& cells) {
  return tableOf(
      {.dimensions = {"R(r0 r1)", "C(c0 c1 c2)"}, .rows = {0}, .columns = {1}, .cells = cells});
}

// The columns that hold cells after the layer was selected.
Positions columnsIn(OmDisplayLayerHeading& layers, int layer) {
  layers.SwitchLayer(layer);
  return OmDisplayColumnHeading(layers, true).getNonEmptyColumns();
}
Positions columnsIn(const TableOwner& table, int layer) {
  OmDisplayLayerHeading layers(*table, false);
  return columnsIn(layers, layer);
}

TEST(ColumnHeadingSkip, ColumnsWithoutCellsAreLeftOut) {
  const Columns columns(denseTable({{0, 0}, {1, 2}}), true);
  EXPECT_EQ(columns->NColumns(), 2);
  EXPECT_EQ(columns->getNonEmptyColumns(), (Positions{0, 2}));
  EXPECT_EQ(gridOf(*columns),
            "C  C\n"
            "c0 c2");
}

TEST(ColumnHeadingSkip, OneCellInAnyRowKeepsAColumn) {
  EXPECT_EQ(Columns(denseTable({{1, 1}}), true)->getNonEmptyColumns(), (Positions{1}));
  EXPECT_EQ(Columns(denseTable({{0, 1}, {1, 1}}), true)->getNonEmptyColumns(), (Positions{1}));
}

TEST(ColumnHeadingSkip, EmptyColumnsStayWhenTheyAreNotSkipped) {
  EXPECT_EQ(gridOf(*Columns(denseTable({{0, 0}, {1, 2}}), false)),
            "C  C  C\n"
            "c0 c1 c2");
}

TEST(ColumnHeadingSkip, EachHeadingHasItsOwnFlag) {
  const TableOwner table = denseTable({{1, 2}});
  OmDisplayLayerHeading layers(*table, true);
  const OmDisplayColumnHeading all(layers, false);
  const OmDisplayColumnHeading skipping(layers, true);
  EXPECT_EQ(all.NColumns(), 3);
  EXPECT_EQ(skipping.NColumns(), 1);
}

TEST(ColumnHeadingSkip, CombinationsOfNestedDimensionsAreLeftOutOneByOne) {
  // Positions (A fastest): 1 is (a1, b0), 2 is (a0, b1), 5 is (a1, b2).
  const TableOwner table = tableOf({.dimensions = {"A(a b)", "B(x y z)", "R(r s)"},
                                    .rows = {2},
                                    .columns = {0, 1},
                                    .cells = {{1, 0, 0}, {0, 1, 1}, {1, 2, 1}}});
  const Columns columns(table, true);
  EXPECT_EQ(columns->getNonEmptyColumns(), (Positions{1, 2, 5}));
  EXPECT_EQ(gridOf(*columns),
            "B B B\n"
            "x y z\n"
            "A A A\n"
            "b a b");
}

TEST(ColumnHeadingSkip, ACellInAnyCombinationOfTheRowsKeepsAColumn) {
  const TableOwner table = tableOf({.dimensions = {"A(a b)", "B(x y)", "C(c d)"},
                                    .rows = {0, 1},
                                    .columns = {2},
                                    .cells = {{1, 0, 0}, {0, 1, 1}}});
  EXPECT_EQ(Columns(table, true)->getNonEmptyColumns(), (Positions{0, 1}));
}

TEST(ColumnHeadingSkip, ATableWithoutRowDimensionsHasOneCellInEachColumn) {
  const TableOwner table =
      tableOf({.dimensions = {"C(c d e)"}, .columns = {0}, .cells = {{0}, {2}}});
  EXPECT_EQ(Columns(table, true)->getNonEmptyColumns(), (Positions{0, 2}));
}

TEST(ColumnHeadingSkip, TheOneColumnWithoutColumnDimensionsIsSkippedWhenEmpty) {
  const TableOwner table = tableOf({.dimensions = {"R(r s)"}, .rows = {0}});
  EXPECT_EQ(Columns(table, true)->NColumns(), 0);
  storeAt(*table, {{1}});
  EXPECT_EQ(Columns(table, true)->getNonEmptyColumns(), (Positions{0}));
}

TEST(ColumnHeadingSkip, AHiddenCategoryWithCellsKeepsItsColumn) {
  const TableOwner table = tableOf({.dimensions = {"R(r)", "C(a ~b c)"},
                                    .rows = {0},
                                    .columns = {1},
                                    .cells = {{0, 0}, {0, 1}}});
  EXPECT_EQ(gridOf(*Columns(table, true)),
            "C C\n"
            "a -");
}

TEST(ColumnHeadingSkip, WithoutCellsThereAreNoColumnsButAllLabelRows) {
  const Columns columns(denseTable({}), true);
  EXPECT_EQ(columns->NColumns(), 0);
  EXPECT_EQ(gridOf(*columns), "2 x 0");
  EXPECT_EQ(columns->VisibleHeight(0), 2);
}

TEST(ColumnHeadingSkip, WithoutCellsTheListOfPositionsStaysEmpty) {
  const Columns columns(denseTable({}), true);
  EXPECT_TRUE(columns->getNonEmptyColumns().empty());
  EXPECT_TRUE(columns->getNonEmptyColumns().empty());
}

// ---- Label rows

TEST(ColumnHeadingSkip, OnlyTheCategoriesShownCountForTheLabelRows) {
  const TableOwner table = tableOf({.dimensions = {"R(r)", "C(a G(b H(c)) d)"},
                                    .rows = {0},
                                    .columns = {1},
                                    .cells = {{0, 0}, {0, 3}}});
  EXPECT_EQ(gridOf(*Columns(table, true)),
            "C C\n"
            "a d");
  storeAt(*table, {{0, 1}});
  EXPECT_EQ(gridOf(*Columns(table, true)),
            "C C C\n"
            "a G d\n"
            "- b -");
  EXPECT_EQ(Columns(table, false)->NRows(), 4);
}

TEST(ColumnHeadingSkip, TheCategoriesShownAreCountedInEachDimension) {
  // (a, y) and (b, x): the deep w of B is not shown.
  const TableOwner table = tableOf({.dimensions = {"A(a G(b))", "B(x y G(w))", "R(r)"},
                                    .rows = {2},
                                    .columns = {0, 1},
                                    .cells = {{0, 1, 0}, {1, 0, 0}}});
  const Columns columns(table, true);
  EXPECT_EQ(columns->VisibleHeight(0), 2);
  EXPECT_EQ(columns->VisibleHeight(1), 3);
  EXPECT_EQ(gridOf(*columns),
            "B B\n"
            "x y\n"
            "A A\n"
            "G a\n"
            "b -");
}

TEST(ColumnHeadingSkip, CategoriesShownWithoutAnyLabelLeaveNoLabelRow) {
  const TableOwner table =
      tableOf({.dimensions = {"R(r)", "~C(~a b)"}, .rows = {0}, .columns = {1}, .cells = {{0, 0}}});
  EXPECT_EQ(gridOf(*Columns(table, true)), "0 x 1");
}

// ---- Paths

TEST(ColumnHeadingSkip, CategoriesAndPathsAreThoseOfTheColumnsShown) {
  const Columns columns(denseTable({{0, 0}, {1, 2}}), true);
  EXPECT_EQ(labelsOf(columns->ColumnCategories(1)), "c2");
  EntryList path;
  EntryList dimensions;
  EntryList categories;
  columns->DimAllNodes(1, path);
  columns->DimCatNodes(1, dimensions, categories);
  EXPECT_EQ(labelsOf(path), "C c2");
  EXPECT_EQ(labelsOf(dimensions), "C");
  EXPECT_EQ(labelsOf(categories), "c2");
}

TEST(ColumnHeadingSkip, BeyondTheColumnsShownPathsAreThoseOfAPositionAmongAll) {
  const Columns columns(denseTable({{0, 2}}), true);
  EntryList path;
  EntryList dimensions;
  EntryList categories;
  columns->DimAllNodes(0, path);
  columns->DimAllNodes(1, path);
  columns->DimCatNodes(1, dimensions, categories);
  EXPECT_EQ(labelsOf(path), "C c2 C c1");
  EXPECT_EQ(labelsOf(dimensions), "C");
  EXPECT_EQ(labelsOf(categories), "c1");
}

// ---- Layers of a dense table

TableOwner layered() {
  return tableOf({.dimensions = {"R(r0 r1)", "C(c0 c1 c2)", "L(l0 l1)"},
                  .rows = {0},
                  .columns = {1},
                  .layers = {2},
                  .cells = {{0, 0, 0}, {1, 1, 1}, {0, 2, 1}}});
}

TEST(ColumnHeadingSkip, OnlyCellsOfTheCurrentLayerCount) {
  EXPECT_EQ(columnsIn(layered(), 0), (Positions{0}));
  EXPECT_EQ(columnsIn(layered(), 1), (Positions{1, 2}));
}

TEST(ColumnHeadingSkip, SwitchingTheLayerLaterChangesNothing) {
  const TableOwner table = layered();
  OmDisplayLayerHeading layers(*table, false);
  layers.SwitchLayer(1);
  const OmDisplayColumnHeading columns(layers, true);
  layers.SwitchLayer(0);
  EXPECT_EQ(columns.getNonEmptyColumns(), (Positions{1, 2}));
  EXPECT_EQ(gridOf(columns),
            "C  C\n"
            "c1 c2");
}

TEST(ColumnHeadingSkip, WithoutACurrentLayerSubscriptZeroOfTheLayersCounts) {
  const TableOwner table = tableOf({.dimensions = {"R(r)", "C(c d)", "L(l=1 m=0)"},
                                    .rows = {0},
                                    .columns = {1},
                                    .layers = {2},
                                    .cells = {{0, 1, 0}, {0, 0, 1}}});
  EXPECT_EQ(Columns(table, true)->getNonEmptyColumns(), (Positions{1}));
  EXPECT_EQ(columnsIn(table, 0), (Positions{0}));
}

TEST(ColumnHeadingSkip, TheLayerSelectedLastStillCountsAfterItWasCleared) {
  const TableOwner table = layered();
  OmDisplayLayerHeading layers(*table, false);
  layers.SwitchLayer(1);
  EXPECT_EQ(columnsIn(layers, -1), (Positions{1, 2}));
}

TEST(ColumnHeadingSkip, ARestoredLayerCountsOnlyOnceItWasSelected) {
  const TableOwner table = layered();
  table->setLayerLoc(1);
  OmDisplayLayerHeading layers(*table, false);
  layers.restoreLayer();
  EXPECT_EQ(OmDisplayColumnHeading(layers, true).getNonEmptyColumns(), (Positions{0}));
  EXPECT_EQ(columnsIn(layers, layers.restoreLayer()), (Positions{1, 2}));
}

TEST(ColumnHeadingSkip, OfADimensionOnNoAxisOnlySubscriptZeroCounts) {
  const TableOwner table = tableOf({.dimensions = {"R(r)", "C(c d)", "X(x y)"},
                                    .rows = {0},
                                    .columns = {1},
                                    .cells = {{0, 0, 1}, {0, 1, 0}}});
  EXPECT_EQ(Columns(table, true)->getNonEmptyColumns(), (Positions{1}));
}

// ---- Sparse and dense

// 2 x 20 x 25 = 1000 places. Cells stand in column 4 of layer 1, all others in column 0 of layer 0.
TableOwner thousandPlaces(int cells) {
  TableOwner table = tableOf({.dimensions = {flat("R", "r", 20), flat("C", "c", 25), "L(l m)"},
                              .rows = {0},
                              .columns = {1},
                              .layers = {2},
                              .cells = {{3, 4, 1}}});
  for (int row = 0; row + 1 < cells; ++row) storeAt(*table, {{row, 0, 0}});
  return table;
}

TEST(ColumnHeadingSkip, InASparseTableACellInAnyLayerKeepsAColumn) {
  const TableOwner table = thousandPlaces(2);
  EXPECT_EQ(columnsIn(table, 0), (Positions{0, 4}));
  EXPECT_EQ(columnsIn(table, 1), (Positions{0, 4}));
}

TEST(ColumnHeadingSkip, ATableIsSparseWithLessThanOneCellInAHundredPlaces) {
  EXPECT_EQ(columnsIn(thousandPlaces(9), 0), (Positions{0, 4}));
}

TEST(ColumnHeadingSkip, ATableIsDenseWithOneCellInAHundredPlaces) {
  EXPECT_EQ(columnsIn(thousandPlaces(10), 0), (Positions{0}));
  EXPECT_EQ(columnsIn(thousandPlaces(10), 1), (Positions{4}));
}

TEST(ColumnHeadingSkip, HalfOfAHundredPlacesIsRoundedUp) {
  // A hundredth of 150 places is 2, of 148 places 1, so one cell is few or not.
  const auto columnsOf = [](std::size_t columns) {
    return columnsIn(tableOf({.dimensions = {flat("C", "c", columns), "L(l m)"},
                              .columns = {0},
                              .layers = {1},
                              .cells = {{5, 1}}}),
                     0);
  };
  EXPECT_EQ(columnsOf(75), (Positions{5}));
  EXPECT_EQ(columnsOf(74), (Positions{}));
}

TEST(ColumnHeadingSkip, AlsoPlacesOfDimensionsOnNoAxisCount) {
  // 40 x 2 places are dense with one cell; 40 x 2 x 2 are sparse.
  const auto columnsOf = [](std::vector<std::string> dimensions, const Index& cell) {
    dimensions.insert(dimensions.begin(), {flat("C", "c", 40), "L(l m)"});
    return columnsIn(
        tableOf({.dimensions = dimensions, .columns = {0}, .layers = {1}, .cells = {cell}}), 0);
  };
  EXPECT_EQ(columnsOf({}, {5, 1}), (Positions{}));
  EXPECT_EQ(columnsOf({"X(x y)"}, {5, 1, 0}), (Positions{5}));
}

TEST(ColumnHeadingSkip, TheColumnsOfASparseTableAreAscendingWithoutRepeats) {
  const TableOwner table = tableOf({.dimensions = {flat("C", "c", 30), flat("R", "r", 30)},
                                    .rows = {1},
                                    .columns = {0},
                                    .cells = {{7, 0}, {29, 1}, {7, 2}, {2, 3}, {7, 29}}});
  const Columns columns(table, true);
  EXPECT_EQ(columns->getNonEmptyColumns(), (Positions{2, 7, 29}));
  EXPECT_EQ(gridOf(*columns),
            "C  C  C\n"
            "c2 c7 c29");
}

TEST(ColumnHeadingSkip, NestedColumnsOfASparseTableAreFoundByTheirSubscripts) {
  // Subscripts run against the tree. (A=1, B=4) is the first category of A in the second of B.
  const TableOwner table = tableOf({.dimensions = {"A(a=1 b=0)", flat("R", "r", 50), "B(x=5 y=4)"},
                                    .rows = {1},
                                    .columns = {0, 2},
                                    .cells = {{1, 9, 4}}});
  const Columns columns(table, true);
  EXPECT_EQ(columns->getNonEmptyColumns(), (Positions{2}));
  EXPECT_EQ(labelsOf(columns->Column(0)), "B y A a");
}

TEST(ColumnHeadingSkip, InASparseTableEverySubscriptOfADimensionOnNoAxisCounts) {
  const TableOwner table = tableOf({.dimensions = {"R(r)", flat("C", "c", 100), "X(x y)"},
                                    .rows = {0},
                                    .columns = {1},
                                    .cells = {{0, 8, 1}}});
  EXPECT_EQ(Columns(table, true)->getNonEmptyColumns(), (Positions{8}));
}

TEST(ColumnHeadingSkip, OnlyTheCategoriesShownOfASparseTableCountForTheLabelRows) {
  const TableOwner table = tableOf({.dimensions = {flat("R", "r", 99), "C(a G(b) c)"},
                                    .rows = {0},
                                    .columns = {1},
                                    .cells = {{50, 2}}});
  EXPECT_EQ(gridOf(*Columns(table, true)), "C\nc");
}

TEST(ColumnHeadingSkip, AWayToAClearedCellInFrontOfAllOthersHidesThemFromASparseTable) {
  // Iteration goes down the first way of the cells and ends when that leads to none.
  const TableOwner table = tableOf({.dimensions = {flat("R", "r", 10), flat("C", "c", 10)},
                                    .rows = {0},
                                    .columns = {1},
                                    .cells = {{0, 0}, {5, 5}}});
  EXPECT_EQ(Columns(table, true)->getNonEmptyColumns(), (Positions{0, 5}));
  clear(*table, {0, 0});
  EXPECT_EQ(Columns(table, true)->NColumns(), 0);
}

TEST(ColumnHeadingSkip, AWayToAClearedCellHidesNothingFromASmallTable) {
  const TableOwner table = denseTable({{0, 0}, {1, 2}});
  clear(*table, {0, 0});
  EXPECT_EQ(Columns(table, true)->getNonEmptyColumns(), (Positions{2}));
}

}  // namespace
}  // namespace om::test
