// Headings asked for positions that do not exist, and headings of tables in which dimensions have
// no categories or which have no dimensions.

#include <gtest/gtest.h>

#include <climits>
#include <string>

#include "tests/display/DisplayTable.h"
#include "tests/support/Asserts.h"

namespace om::test {
namespace {

constexpr int kWild[] = {-1, -2, 6, 7, 1000, INT_MAX, INT_MIN};

// 6 columns, 6 rows, 6 layers.
TableOwner bySixes() {
  return tableOf({.dimensions = {"A(a b)", "B(x y z)", "C(c d)", "D(e f g)", "E(h i)", "F(j k l)"},
                  .rows = {0, 1},
                  .columns = {2, 3},
                  .layers = {4, 5}});
}

// ---- Lists that are lengthened

TEST(HeadingEdges, AskingForALayerDimensionBeyondTheEndLengthensTheList) {
  const TableOwner table = bySixes();
  OmDisplayLayerHeading layers(*table, false);
  EXPECT_EQ(layers.getDimensionIndex(4), -1);
  EXPECT_EQ(layers.NDimensions(), 5);
  EXPECT_EQ(layers.getDimensionIndex(0), 5);
  EXPECT_EQ(layers.NLayers(), 6u);
  EXPECT_EQ(layersOf(layers).substr(0, 23), "0,0,0,0,0,0 0,0,0,0,1,0");
  EXPECT_EQ(table->Layers().size(), 2u);
}

TEST(HeadingEdges, AskingForLayerNodesBeyondTheEndLengthensTheList) {
  const TableOwner table = bySixes();
  OmDisplayLayerHeading layers(*table, false);
  layers.SwitchLayer(3);
  EXPECT_TRUE(layers.Nodes(2).empty());
  EXPECT_EQ(layers.NDimensions(), 3);
  EXPECT_EQ(layers.VisibleWidth(2), 0);
  EntryList path;
  layers.DimAllNodes(2, path);
  EXPECT_TRUE(path.empty());
  EXPECT_EQ(labelsOf(layers.Nodes(0)), "F k");
  EXPECT_EQ(labelsOf(layers.Nodes(1)), "E i");
  EXPECT_EQ(filled(layers)[4], 1);
  EXPECT_EQ(filled(layers)[5], 1);
}

TEST(HeadingEdges, AskingForAnAxisDimensionBeyondTheEndLengthensTheListAlone) {
  const TableOwner table = bySixes();
  const Columns columns(table);
  const Rows rows(table);
  const std::string columnGrid = gridOf(*columns);
  const std::string rowGrid = gridOf(*rows);
  EXPECT_EQ(columns->getDimensionIndex(2), -1);
  EXPECT_EQ(rows->getDimensionIndex(7), -1);
  EXPECT_EQ(columns->NDimensions(), 3);
  EXPECT_EQ(rows->NDimensions(), 8);
  EXPECT_EQ(columns->VisibleHeight(2), 0);
  EXPECT_EQ(rows->VisibleWidth(7), 0);
  EXPECT_EQ(columns->NColumns(), 6);
  EXPECT_EQ(rows->NRows(), 6);
  EXPECT_EQ(gridOf(*columns), columnGrid);
  EXPECT_EQ(gridOf(*rows), rowGrid);
  EXPECT_EQ(filled(*columns, 3)[2], 1);
  EXPECT_EQ(filled(*columns, 3)[3], 1);
  EXPECT_EQ(table->Columns().size(), 2u);
}

// ---- Positions that do not exist

TEST(HeadingEdges, AColumnThatDoesNotExistHasNullsForLabelsAndCategories) {
  const TableOwner table = bySixes();
  const Columns columns(table);
  const Rows rows(table);
  for (const int wild : kWild) {
    EXPECT_EQ(labelsOf(columns->Column(wild)), "- - - -") << wild;
    EXPECT_EQ(labelsOf(rows->Row(wild)), "- - - -") << wild;
    EXPECT_EQ(labelsOf(columns->ColumnCategories(wild)), "- -") << wild;
    EXPECT_EQ(labelsOf(rows->RowCategories(wild)), "- -") << wild;
  }
}

TEST(HeadingEdges, ALabelRowThatDoesNotExistHasNullsInAllColumns) {
  const TableOwner table = bySixes();
  const Columns columns(table);
  const Rows rows(table);
  for (const int wild : kWild) {
    EXPECT_EQ(labelsOf(columns->Row(wild)), "- - - - - -") << wild;
    EXPECT_EQ(labelsOf(rows->Column(wild)), "- - - - - -") << wild;
  }
  EXPECT_EQ(labelsOf(columns->Row(4)), "- - - - - -");
}

TEST(HeadingEdges, FillingFromAPositionThatDoesNotExistLeavesTheEntries) {
  const TableOwner table = bySixes();
  const Columns columns(table);
  const Rows rows(table);
  for (const int wild : kWild) {
    EXPECT_EQ(filled(*columns, wild), Index(6, kUntouched)) << wild;
    EXPECT_EQ(filled(*rows, wild), Index(6, kUntouched)) << wild;
  }
}

TEST(HeadingEdges, FillingFromAPositionThatDoesNotExistStillGivesTheIndexItsSize) {
  const TableOwner table = tableOf({.dimensions = {"A(a b)", "B(x)"}, .rows = {1}, .columns = {0}});
  Index ofColumn{9};
  Columns(table)->Fill(ofColumn, 2);
  EXPECT_EQ(ofColumn, (Index{9, 0}));
  Index ofRow{9, 9, 9};
  Rows(table, true)->Fill(ofRow, 0);
  EXPECT_EQ(ofRow, (Index{9, 9}));
}

TEST(HeadingEdges, BeyondTheColumnsShownThereAreOnlyNulls) {
  const TableOwner table = bySixes();
  storeAt(*table, {{0, 0, 0, 0, 0, 0}, {0, 0, 1, 1, 0, 0}});
  const Columns columns(table, true);
  EXPECT_EQ(columns->NColumns(), 2);
  for (const int wild : {-1, 2, 3, 5, 6}) {
    EXPECT_EQ(labelsOf(columns->Column(wild)), "- - - -") << wild;
    EXPECT_EQ(labelsOf(columns->ColumnCategories(wild)), "- -") << wild;
    EXPECT_EQ(filled(*columns, wild), Index(6, kUntouched)) << wild;
  }
}

TEST(HeadingEdges, HeightsAndWidthsBeyondTheEndAreZero) {
  const TableOwner table = bySixes();
  const Columns columns(table);
  EXPECT_EQ(columns->VisibleHeight(2), 0);
  EXPECT_EQ(columns->VisibleHeight(1000), 0);
  EXPECT_EQ(Rows(table)->VisibleWidth(2), 0);
  EXPECT_EQ(columns.layers.VisibleWidth(2), 0);
  EXPECT_EQ(columns.layers.VisibleWidth(1000), 0);
}

TEST(HeadingEdges, PathsBeyondAllColumnsAreThoseOfTheInnerDigits) {
  // Column 7 of 6 is category 3 of D, which has 3, and category 1 of C.
  const TableOwner table = bySixes();
  const Columns columns(table);
  EntryList path;
  EntryList dimensions;
  EntryList categories;
  columns->DimAllNodes(7, path);
  columns->DimCatNodes(7, dimensions, categories);
  EXPECT_EQ(labelsOf(path), "C d");
  EXPECT_EQ(labelsOf(dimensions), "C");
  EXPECT_EQ(labelsOf(categories), "d");
}

// ---- Stored layers that do not exist

TEST(HeadingEdges, AStoredLayerBelowZeroShowsNothing) {
  const TableOwner table = bySixes();
  for (const int wild : {-2, -5, INT_MIN}) {
    table->setLayerLoc(wild);
    OmDisplayLayerHeading layers(*table, false);
    EXPECT_EQ(layers.restoreLayer(), wild);
    EXPECT_EQ(layers.getLayer(), wild);
    EXPECT_TRUE(layers.Nodes(0).empty());
    EXPECT_EQ(filled(layers), Index(6, kUntouched));
    EntryList path;
    layers.DimAllNodes(0, path);
    EXPECT_TRUE(path.empty());
    EXPECT_FALSE(layers.NextLayer());
  }
}

TEST(HeadingEdges, AStoredLayerBeyondTheLastOneShowsTheInnerDigits) {
  // Layer 7 of 6 is category 3 of F, which has 3, and category 1 of E.
  const TableOwner table = bySixes();
  table->setLayerLoc(7);
  OmDisplayLayerHeading layers(*table, false);
  EXPECT_EQ(layers.restoreLayer(), 7);
  EXPECT_TRUE(layers.Nodes(0).empty());
  EXPECT_EQ(labelsOf(layers.Nodes(1)), "E i");
  EXPECT_EQ(textOfIndex(filled(layers)), "-7,-7,-7,-7,1,-7");
  EntryList path;
  layers.DimAllNodes(0, path);
  EXPECT_TRUE(path.empty());
  layers.DimAllNodes(1, path);
  EXPECT_EQ(labelsOf(path), "E i");
}

TEST(HeadingEdges, AStoredLayerBeyondThoseWithCellsShowsNothing) {
  const TableOwner table = bySixes();
  storeAt(*table, {Index(6, 0)});
  for (const int wild : {1, 5, 1000, INT_MAX}) {
    table->setLayerLoc(wild);
    OmDisplayLayerHeading layers(*table, true);
    layers.restoreLayer();
    EXPECT_EQ(layers.getLayer(), wild);
    EXPECT_TRUE(layers.Nodes(1).empty());
    EXPECT_EQ(filled(layers), Index(6, kUntouched));
    Index index{9};
    layers.Fill(index);
    EXPECT_EQ(index, (Index{9}));
    Entry other;
    Entry* dimension = &other;
    Entry* category = &other;
    layers.DimCatNodes(1, dimension, category);
    EXPECT_EQ(dimension, &other);
    EXPECT_EQ(category, &other);
  }
}

TEST(HeadingEdges, NextLayerStaysAtAStoredLayerThatDoesNotExist) {
  const TableOwner table = bySixes();
  for (const int wild : {6, 1000, INT_MAX, INT_MIN}) {
    table->setLayerLoc(wild);
    OmDisplayLayerHeading layers(*table, false);
    layers.restoreLayer();
    EXPECT_FALSE(layers.NextLayer());
    EXPECT_EQ(layers.getLayer(), wild);
    EXPECT_EQ(layers.getCurrentCellIndex(), Index(6, 0));
  }
}

TEST(HeadingEdges, NextLayerFromMinusTwoMakesNoneCurrent) {
  const TableOwner table = bySixes();
  table->setLayerLoc(-2);
  OmDisplayLayerHeading layers(*table, false);
  layers.restoreLayer();
  EXPECT_FALSE(layers.NextLayer());
  EXPECT_EQ(layers.getLayer(), -1);
}

// ---- Tables and dimensions without anything

TEST(HeadingEdges, ATableWithoutDimensionsHasOneLayerOneRowAndOneColumn) {
  const TableOwner table = tableOf({});
  OmDisplayLayerHeading layers(*table, false);
  EXPECT_TRUE(layers.NextLayer());
  EXPECT_TRUE(layers.getCurrentCellIndex().empty());
  const OmDisplayColumnHeading columns(layers, false);
  const OmDisplayRowHeading rows(layers, false, true);
  EXPECT_EQ(gridOf(columns), "0 x 1");
  EXPECT_EQ(gridOf(rows), "1 x 0");
  EXPECT_EQ(bodyOf(layers, rows, columns), "-");
  Index index{4};
  columns.Fill(index, 0);
  EXPECT_TRUE(index.empty());
}

TEST(HeadingEdges, ATableWithoutDimensionsHasNothingThatIsNotEmpty) {
  const TableOwner table = tableOf({});
  OmDisplayLayerHeading layers(*table, true);
  EXPECT_EQ(layers.NLayers(), 0u);
  EXPECT_EQ(OmDisplayColumnHeading(layers, true).NColumns(), 0);
  EXPECT_EQ(OmDisplayRowHeading(layers, true, false).NRows(), 0);
}

TEST(HeadingEdges, ADimensionWithoutCategoriesLeavesNoColumns) {
  const TableOwner table = tableOf({.dimensions = {"A(a b)", "B(G())"}, .columns = {0, 1}});
  const Columns columns(table);
  EXPECT_EQ(columns->VisibleHeight(0), 0);
  EXPECT_EQ(gridOf(*columns), "2 x 0");
  EXPECT_TRUE(columns->getNonEmptyColumns().empty());
}

TEST(HeadingEdges, ADimensionWithoutCategoriesLeavesNoRows) {
  EXPECT_EQ(gridOf(*Rows(tableOf({.dimensions = {"A()"}, .rows = {0}}))), "0 x 0");
  EXPECT_EQ(gridOf(*Rows(tableOf({.dimensions = {"A(a)", "B()"}, .rows = {1, 0}}), false, true)),
            "0 x 1");
}

TEST(HeadingEdges, ADimensionWithoutCategoriesLeavesNoLayers) {
  const TableOwner table = tableOf({.dimensions = {"A(a b)", "B()"}, .layers = {0, 1}});
  OmDisplayLayerHeading layers(*table, false);
  EXPECT_EQ(layers.NLayers(), 0u);
  EXPECT_FALSE(layers.NextLayer());
  EXPECT_FALSE(layers.SwitchLayer(0));
  EXPECT_EQ(layers.VisibleWidth(0), 0);
  EXPECT_EQ(layers.VisibleWidth(1), 2);
}

TEST(HeadingEdges, WithoutRowsNoColumnAndNoLayerHoldsACell) {
  const TableOwner table = tableOf({.dimensions = {"R()", "C(c d)", "L(l m)"},
                                    .rows = {0},
                                    .columns = {1},
                                    .layers = {2},
                                    .cells = {{0, 0, 0}}});
  OmDisplayLayerHeading layers(*table, true);
  EXPECT_EQ(layers.NLayers(), 0u);
  EXPECT_EQ(OmDisplayColumnHeading(layers, true).NColumns(), 0);
  EXPECT_EQ(OmDisplayRowHeading(layers, true, false).NRows(), 0);
}

TEST(HeadingEdges, ADimensionWithoutCategoriesOnNoAxisMakesNoTableSparse) {
  const TableOwner table = tableOf({.dimensions = {flat("C", "c", 100), "L(l m)", "X()"},
                                    .columns = {0},
                                    .layers = {1},
                                    .cells = {{7, 1, 0}, {3, 0, 0}}});
  OmDisplayLayerHeading layers(*table, false);
  layers.SwitchLayer(0);
  EXPECT_EQ(OmDisplayColumnHeading(layers, true).getNonEmptyColumns(), (Positions{3}));
}

TEST(HeadingEdges, ARootThatIsACategoryWithoutAnyCategoriesIsNoPosition) {
  const TableOwner table = tableOf({.dimensions = {"A()"}, .columns = {0}});
  table->Dimension(0).Root()->IsGroup(false);
  EXPECT_EQ(gridOf(*Columns(table)), "0 x 0");
}

TEST(HeadingEdges, ADimensionWithoutCategoriesInsideOfOthersIsReportedOnlyBeyondTheFirstPosition) {
  const TableOwner table = tableOf({.dimensions = {"A(a b)", "B()"}, .columns = {1, 0}});
  const Columns columns(table);
  EntryList path;
  columns->DimAllNodes(0, path);
  EXPECT_EQ(labelsOf(path), "A a");
  AssertCollector asserts;
  path.clear();
  columns->DimAllNodes(1, path);
  EXPECT_EQ(labelsOf(path), "A b");
  ASSERT_EQ(asserts.reports().size(), 1u);
  EXPECT_EQ(asserts.reports()[0], (Report{L"b>0", L"backend/tables/MultiBase", 126}));
}

TEST(HeadingEdges, ADimensionWithoutCategoriesOutsideOfOthersIsNotReported) {
  const TableOwner table = tableOf({.dimensions = {"A(a b)", "B()"}, .columns = {0, 1}});
  const Columns columns(table);
  EntryList path;
  columns->DimAllNodes(1, path);
  columns->DimAllNodes(2, path);
  EXPECT_EQ(labelsOf(path), "A b A a");
}

TEST(HeadingEdges, AStoredLayerInATableWithoutLayersIsReported) {
  const TableOwner table = tableOf({.dimensions = {"A(a b)", "B()"}, .layers = {1, 0}});
  table->setLayerLoc(1);
  const OmDisplayLayerHeading layers(*table, false);
  layers.restoreLayer();
  AssertCollector asserts;
  EXPECT_EQ(labelsOf(layers.Nodes(0)), "A b");
  EXPECT_EQ(asserts.reports().size(), 1u);
  EXPECT_EQ(filled(layers), (Index{1, kUntouched}));
  EXPECT_EQ(asserts.reports().size(), 2u);
}

}  // namespace
}  // namespace om::test
