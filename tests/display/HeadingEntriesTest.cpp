// Axis entries without a dimension, which are -1 and numbers beyond the dimensions of the table:
// they are positions of a heading without labels, categories or coordinates.

#include <gtest/gtest.h>

#include <climits>
#include <string>

#include "tests/display/DisplayTable.h"

namespace om::test {
namespace {

class HeadingEntries : public testing::TestWithParam<short> {};

TEST_P(HeadingEntries, ColumnsShowNothingOfAnEntryWithoutADimension) {
  const TableOwner table = tableOf({.dimensions = {"A(a b)"}, .columns = {0, GetParam()}});
  const Columns columns(table);
  EXPECT_EQ(columns->NDimensions(), 2);
  EXPECT_EQ(columns->getDimensionIndex(0), GetParam());
  EXPECT_EQ(columns->getDimensionIndex(1), 0);
  EXPECT_EQ(columns->VisibleHeight(0), 0);
  EXPECT_EQ(columns->VisibleHeight(1), 2);
  EXPECT_EQ(gridOf(*columns),
            "A A\n"
            "a b");
  EXPECT_EQ(filled(*columns, 1), (Index{1}));
  EXPECT_EQ(labelsOf(columns->ColumnCategories(1)), "- b");
}

TEST_P(HeadingEntries, PathsOfColumnsLeaveOutAnEntryWithoutADimension) {
  const TableOwner table = tableOf({.dimensions = {"A(a b)"}, .columns = {GetParam(), 0}});
  const Columns columns(table);
  EntryList path;
  EntryList dimensions;
  EntryList categories;
  columns->DimAllNodes(1, path);
  columns->DimCatNodes(1, dimensions, categories);
  EXPECT_EQ(labelsOf(path), "A b");
  EXPECT_EQ(labelsOf(dimensions), "A");
  EXPECT_EQ(labelsOf(categories), "b");
  EXPECT_EQ(labelsOf(columns->ColumnCategories(1)), "b -");
}

TEST_P(HeadingEntries, AnAxisOfSuchAnEntryAloneHasOnePosition) {
  const TableOwner table = tableOf({.dimensions = {"A(a b)"}, .columns = {GetParam()}});
  const Columns columns(table);
  EXPECT_EQ(gridOf(*columns), "0 x 1");
  EXPECT_EQ(labelsOf(columns->ColumnCategories(0)), "-");
  EXPECT_EQ(filled(*columns, 0), (Index{kUntouched}));
}

TEST_P(HeadingEntries, RowsHaveNoNameOfAnEntryWithoutADimension) {
  const TableOwner table = tableOf({.dimensions = {"A(a b)"}, .rows = {0, GetParam()}});
  const OmStringCell text("text");
  table->CornerText(&text);
  EXPECT_EQ(gridOf(*Rows(table, false, true)), "a\nb");
  EXPECT_EQ(cornerOf(*Rows(table, false, true)), "A");
  EXPECT_EQ(cornerOf(*Rows(table)), "text -");
}

TEST_P(HeadingEntries, RowsOfSuchAnEntryAloneHaveNoCorner) {
  const TableOwner table = tableOf({.dimensions = {"A(a b)"}, .rows = {GetParam()}});
  EXPECT_EQ(gridOf(*Rows(table, false, true)), "1 x 0");
  EXPECT_EQ(cornerOf(*Rows(table, false, true)), "");
}

TEST_P(HeadingEntries, LayersAreNotMultipliedByAnEntryWithoutADimension) {
  const TableOwner table =
      tableOf({.dimensions = {"A(a b)", "B(x y z)"}, .layers = {0, GetParam(), 1}});
  OmDisplayLayerHeading layers(*table, false);
  EXPECT_EQ(layers.NLayers(), 6u);
  EXPECT_EQ(layers.NDimensions(), 3);
  EXPECT_EQ(layers.VisibleWidth(1), 0);
  EXPECT_EQ(layersOf(layers), "0,0 1,0 0,1 1,1 0,2 1,2");
}

TEST_P(HeadingEntries, LayersOfSuchAnEntryAloneAreOne) {
  const TableOwner table = tableOf({.dimensions = {"A(a b)"}, .layers = {GetParam()}});
  OmDisplayLayerHeading layers(*table, false);
  EXPECT_TRUE(layers.NextLayer());
  EXPECT_FALSE(layers.NextLayer());
  EXPECT_TRUE(layers.Nodes(0).empty());
  EXPECT_EQ(layers.getCurrentCellIndex(), (Index{0}));
}

TEST_P(HeadingEntries, LayoutsOfLayersCloseUpOverAnEntryWithoutADimension) {
  // The digits stay at their positions: position 0, which has none but 0, meets the layout of A.
  const TableOwner table = tableOf({.dimensions = {"A(a b)"}, .layers = {0, GetParam()}});
  OmDisplayLayerHeading layers(*table, false);
  layers.SwitchLayer(1);
  EXPECT_EQ(filled(layers), (Index{1}));
  EXPECT_EQ(labelsOf(layers.Nodes(0)), "A a");
  EXPECT_TRUE(layers.Nodes(1).empty());
  EntryList path;
  layers.DimAllNodes(1, path);
  EXPECT_TRUE(path.empty());
  layers.DimAllNodes(0, path);
  EXPECT_EQ(labelsOf(path), "A a");
  EXPECT_EQ(layers.VisibleWidth(0), 0);
  EXPECT_EQ(layers.VisibleWidth(1), 2);
}

TEST_P(HeadingEntries, EmptyPositionsAreFoundBesideAnEntryWithoutADimension) {
  const TableOwner table = tableOf({.dimensions = {"A(a b c)", "R(r s)", "L(l m)"},
                                    .rows = {GetParam(), 1},
                                    .columns = {0, GetParam()},
                                    .layers = {GetParam(), 2},
                                    .cells = {{1, 1, 0}, {2, 0, 1}}});
  OmDisplayLayerHeading layers(*table, true);
  EXPECT_EQ(layers.NLayers(), 2u);
  layers.SwitchLayer(0);
  EXPECT_EQ(OmDisplayColumnHeading(layers, true).getNonEmptyColumns(), (Positions{1}));
  EXPECT_EQ(OmDisplayRowHeading(layers, true, false).getNonEmptyRows(), (Positions{1}));
}

TEST_P(HeadingEntries, CellsOfASparseTableAreFoundBesideAnEntryWithoutADimension) {
  const TableOwner table = tableOf({.dimensions = {flat("A", "a", 20), flat("R", "r", 20)},
                                    .rows = {GetParam(), 1},
                                    .columns = {0, GetParam()},
                                    .cells = {{4, 8}}});
  OmDisplayLayerHeading layers(*table, false);
  EXPECT_EQ(OmDisplayColumnHeading(layers, true).getNonEmptyColumns(), (Positions{4}));
  EXPECT_EQ(OmDisplayRowHeading(layers, true, true).getNonEmptyRows(), (Positions{8}));
}

INSTANTIATE_TEST_SUITE_P(NoDimension, HeadingEntries,
                         testing::Values(short{-1}, short{-2}, short{6}, short{7}, short{SHRT_MAX},
                                         short{SHRT_MIN}));

}  // namespace
}  // namespace om::test
