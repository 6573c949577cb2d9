// Cell indexes written by the three headings, and whole tables laid out with them.

#include <gtest/gtest.h>

#include <cstddef>
#include <string>

#include "tests/display/DisplayTable.h"
#include "tests/support/Allocations.h"

namespace om::test {
namespace {

// Dimension 0 is on the columns, 1 on the rows, 2 on the layers, 3 on the rows outside of 1.
TableOwner fourDimensions() {
  return tableOf({.dimensions = {"C(c=5 d=3)", "R(r=2 s=4 t=0)", "L(l=1 m=8)", "S(u=6 v=7)"},
                  .rows = {1, 3},
                  .columns = {0},
                  .layers = {2}});
}

// Fills an index that has its size and tells whether that took an allocation.
template <class Fill>
bool allocates(const Fill& fill) {
  FailurePoint first(1);
  first.during(fill);
  return first.failed();
}

TEST(HeadingFill, AColumnHeadingWritesTheSubscriptsOfItsDimensions) {
  const Columns columns(fourDimensions());
  EXPECT_EQ(filled(*columns, 0), (Index{5, kUntouched, kUntouched, kUntouched}));
  EXPECT_EQ(filled(*columns, 1), (Index{3, kUntouched, kUntouched, kUntouched}));
}

TEST(HeadingFill, ARowHeadingWritesTheSubscriptsOfItsDimensions) {
  const Rows rows(fourDimensions());
  EXPECT_EQ(filled(*rows, 0), (Index{kUntouched, 2, kUntouched, 6}));
  EXPECT_EQ(filled(*rows, 2), (Index{kUntouched, 0, kUntouched, 6}));
  EXPECT_EQ(filled(*rows, 4), (Index{kUntouched, 4, kUntouched, 7}));
}

TEST(HeadingFill, ALayerHeadingWritesTheSubscriptsOfItsDimensions) {
  const TableOwner table = fourDimensions();
  OmDisplayLayerHeading layers(*table, false);
  layers.SwitchLayer(1);
  EXPECT_EQ(filled(layers), (Index{kUntouched, kUntouched, 8, kUntouched}));
  EXPECT_EQ(layers.getCurrentCellIndex(), (Index{0, 0, 8, 0}));
}

TEST(HeadingFill, HiddenCategoriesAreCoordinatesToo) {
  const TableOwner table = tableOf({.dimensions = {"C(~c !G(d))"}, .columns = {0}});
  const Columns columns(table);
  EXPECT_EQ(filled(*columns, 0), (Index{0}));
  EXPECT_EQ(filled(*columns, 1), (Index{1}));
}

TEST(HeadingFill, NamesInTheCornerChangeNoCoordinate) {
  EXPECT_EQ(filled(*Rows(fourDimensions(), false, true), 4), (Index{kUntouched, 4, kUntouched, 7}));
}

TEST(HeadingFill, TheColumnIsTheOneShownWhenEmptyOnesAreSkipped) {
  const TableOwner table =
      tableOf({.dimensions = {"C(a=4 b=1 c=2)"}, .columns = {0}, .cells = {{1}, {2}}});
  const Columns columns(table, true);
  EXPECT_EQ(filled(*columns, 0), (Index{1}));
  EXPECT_EQ(filled(*columns, 1), (Index{2}));
}

TEST(HeadingFill, AShortIndexIsLengthenedWithZeros) {
  const TableOwner table = fourDimensions();
  OmDisplayLayerHeading layers(*table, false);
  layers.SwitchLayer(1);
  Index ofLayer;
  layers.Fill(ofLayer);
  EXPECT_EQ(ofLayer, (Index{0, 0, 8, 0}));
  Index ofColumn{9};
  OmDisplayColumnHeading(layers, false).Fill(ofColumn, 0);
  EXPECT_EQ(ofColumn, (Index{5, 0, 0, 0}));
  Index ofRow{9, 9};
  OmDisplayRowHeading(layers, false, false).Fill(ofRow, 0);
  EXPECT_EQ(ofRow, (Index{9, 2, 0, 6}));
}

TEST(HeadingFill, ALongIndexIsShortened) {
  const TableOwner table =
      tableOf({.dimensions = {"C(c d)", "L(l m)"}, .columns = {0}, .layers = {1}});
  OmDisplayLayerHeading layers(*table, false);
  layers.SwitchLayer(1);
  Index ofLayer{9, 9, 9, 9};
  layers.Fill(ofLayer);
  EXPECT_EQ(ofLayer, (Index{9, 1}));
  Index ofColumn{9, 9, 9};
  OmDisplayColumnHeading(layers, false).Fill(ofColumn, 1);
  EXPECT_EQ(ofColumn, (Index{1, 9}));
}

TEST(HeadingFill, AnIndexThatHasItsSizeIsFilledWithoutAnAllocation) {
  const TableOwner table = fourDimensions();
  OmDisplayLayerHeading layers(*table, false);
  layers.SwitchLayer(1);
  const OmDisplayColumnHeading columns(layers, false);
  const OmDisplayRowHeading rows(layers, false, true);
  Index index(4, 0);
  EXPECT_FALSE(allocates([&] { layers.Fill(index); }));
  EXPECT_FALSE(allocates([&] { columns.Fill(index, 1); }));
  EXPECT_FALSE(allocates([&] { rows.Fill(index, 5); }));
  EXPECT_EQ(index, (Index{3, 0, 8, 7}));
}

TEST(HeadingFill, AlsoWithSkippingNoAllocationIsNeeded) {
  TableOwner table = fourDimensions();
  storeAt(*table, {{3, 4, 8, 7}});
  OmDisplayLayerHeading layers(*table, true);
  layers.SwitchLayer(0);
  const OmDisplayColumnHeading columns(layers, true);
  const OmDisplayRowHeading rows(layers, true, false);
  Index index(4, 0);
  EXPECT_FALSE(allocates([&] { layers.Fill(index); }));
  EXPECT_FALSE(allocates([&] { columns.Fill(index, 0); }));
  EXPECT_FALSE(allocates([&] { rows.Fill(index, 0); }));
  EXPECT_EQ(index, (Index{3, 4, 8, 7}));
}

// ---- Whole tables

TEST(HeadingFill, RowsAndColumnsMeetInTheirCells) {
  const TableOwner table = tableOf({.dimensions = {"R(r=1 s=0)", "C(c=2 d=0 e=1)"},
                                    .rows = {0},
                                    .columns = {1},
                                    .cells = {{0, 0}, {0, 2}, {1, 1}, {1, 2}}});
  OmDisplayLayerHeading layers(*table, false);
  layers.NextLayer();
  EXPECT_EQ(bodyOf(layers, OmDisplayRowHeading(layers, false, false),
                   OmDisplayColumnHeading(layers, false)),
            "1,2 -   1,1\n"
            "0,2 0,0 -");
}

TEST(HeadingFill, NestedDimensionsMeetInTheirCells) {
  const TableOwner table = tableOf({.dimensions = {"A(a b)", "R(r s)", "B(x y)", "L(l m)"},
                                    .rows = {1},
                                    .columns = {0, 2},
                                    .layers = {3},
                                    .cells = {{0, 0, 0, 0}, {1, 0, 0, 1}, {0, 1, 1, 1}}});
  OmDisplayLayerHeading layers(*table, false);
  layers.SwitchLayer(1);
  EXPECT_EQ(bodyOf(layers, OmDisplayRowHeading(layers, false, false),
                   OmDisplayColumnHeading(layers, false)),
            "- 1,0,0,1 -       -\n"
            "- -       0,1,1,1 -");
}

TEST(HeadingFill, SkippingOnAllAxesLeavesNoEmptyLayerRowOrColumn) {
  const TableOwner table = tableOf({.dimensions = {"R(r s t)", "C(c d e)", "L(l m n)"},
                                    .rows = {0},
                                    .columns = {1},
                                    .layers = {2},
                                    .cells = {{2, 0, 0}, {0, 2, 2}, {2, 1, 2}}});
  OmDisplayLayerHeading layers(*table, true);
  std::string body;
  for (int layer = 0; layers.SwitchLayer(layer); ++layer) {
    body += bodyOf(layers, OmDisplayRowHeading(layers, true, false),
                   OmDisplayColumnHeading(layers, true)) +
            "\n\n";
  }
  EXPECT_EQ(body,
            "2,0,0\n"
            "\n"
            "-     0,2,2\n"
            "2,1,2 -\n"
            "\n");
}

TEST(HeadingFill, SkippingASparseTableOnAllAxesKeepsWhatIsFilledInAnyLayer) {
  const TableOwner table =
      tableOf({.dimensions = {flat("R", "r", 10), flat("C", "c", 10), "L(l m n)"},
               .rows = {0},
               .columns = {1},
               .layers = {2},
               .cells = {{9, 0, 0}, {4, 8, 2}}});
  OmDisplayLayerHeading layers(*table, true);
  EXPECT_TRUE(layers.SwitchLayer(1));
  const OmDisplayRowHeading rows(layers, true, false);
  const OmDisplayColumnHeading columns(layers, true);
  EXPECT_EQ(gridOf(rows),
            "R r4\n"
            "R r9");
  EXPECT_EQ(gridOf(columns),
            "C  C\n"
            "c0 c8");
  EXPECT_EQ(bodyOf(layers, rows, columns),
            "- 4,8,2\n"
            "- -");
}

TEST(HeadingFill, ATableWithoutRowsOrColumnsHasOneCell) {
  const TableOwner table = tableOf({.dimensions = {"L(l m)"}, .layers = {0}, .cells = {{0}, {1}}});
  OmDisplayLayerHeading layers(*table, false);
  layers.SwitchLayer(1);
  EXPECT_EQ(bodyOf(layers, OmDisplayRowHeading(layers, false, false),
                   OmDisplayColumnHeading(layers, false)),
            "1");
}

}  // namespace
}  // namespace om::test
