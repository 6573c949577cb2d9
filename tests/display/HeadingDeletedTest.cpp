// Headings of tables after categories were deleted: positions that are left without a category, and
// labels along the links to parents that deletion leaves as they were.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/display/DisplayTable.h"

namespace om::test {
namespace {

void reparent(OmDimension& dimension) {
  OmDimension::Tree::Reparent(*dimension.Root().Record(), true);
}

// The labels of a table of one dimension, on its columns.
std::string gridOfColumns(const TableOwner& table) { return gridOf(*Columns(table)); }

TableOwner onColumns(const std::string& dimension, const std::vector<Index>& cells = {}) {
  return tableOf({.dimensions = {dimension}, .columns = {0}, .cells = cells});
}

// ---- More positions than categories: deletion keeps the number that the largest subscript gives

TEST(HeadingDeleted, APositionWithoutACategoryHasNullsForLabels) {
  const TableOwner table = onColumns("C(c d e)");
  deleteChild(table->Dimension(0), 0);
  const Columns columns(table);
  EXPECT_EQ(columns->NColumns(), 3);
  EXPECT_EQ(gridOf(*columns),
            "C C -\n"
            "d e -");
  EXPECT_EQ(labelsOf(columns->ColumnCategories(2)), "-");
}

TEST(HeadingDeleted, APositionWithoutACategoryLeavesTheOtherDimensionsLabels) {
  const TableOwner table = tableOf({.dimensions = {"A(a b)", "X(x y)"}, .rows = {0, 1}});
  deleteChild(table->Dimension(0), 0);
  EXPECT_EQ(gridOf(*Rows(table)),
            "X x A b\n"
            "X x - -\n"
            "X y A b\n"
            "X y - -");
  EXPECT_EQ(labelsOf(Rows(table)->RowCategories(3)), "y -");
  EXPECT_EQ(cornerOf(*Rows(table, false, true)), "X A");
}

TEST(HeadingDeleted, APositionWithoutACategoryLeavesTheEntryOfAnIndex) {
  const TableOwner table = onColumns("C(c d e)");
  deleteChild(table->Dimension(0), 0);
  const Columns columns(table);
  EXPECT_EQ(filled(*columns, 0), (Index{1}));
  EXPECT_EQ(filled(*columns, 1), (Index{2}));
  EXPECT_EQ(filled(*columns, 2), (Index{kUntouched}));
}

TEST(HeadingDeleted, APositionWithoutACategoryHasNoPath) {
  const TableOwner table = onColumns("C(c d e)");
  deleteChild(table->Dimension(0), 0);
  const Columns columns(table);
  EntryList path;
  EntryList dimensions;
  EntryList categories;
  columns->DimAllNodes(2, path);
  columns->DimCatNodes(2, dimensions, categories);
  EXPECT_TRUE(path.empty());
  EXPECT_TRUE(dimensions.empty());
  EXPECT_TRUE(categories.empty());
}

TEST(HeadingDeleted, ADimensionWithoutAnyCategoryLeftHasOnePosition) {
  const TableOwner table = onColumns("C(c)");
  deleteChild(table->Dimension(0), 0);
  const Columns columns(table);
  EXPECT_EQ(gridOf(*columns), "0 x 1");
  EXPECT_EQ(filled(*columns, 0), (Index{kUntouched}));
  table->Rows().push_back(0);
  EXPECT_EQ(gridOf(*Rows(table, false, true)), "1 x 0");
  EXPECT_EQ(cornerOf(*Rows(table, false, true)), "");
}

TEST(HeadingDeleted, ALayerWithoutACategoryCanBeSelectedAndShowsNothing) {
  const TableOwner table =
      tableOf({.dimensions = {"L(l m n)", "R(r)"}, .rows = {1}, .layers = {0}});
  deleteChild(table->Dimension(0), 0);
  OmDisplayLayerHeading layers(*table, false);
  EXPECT_EQ(layers.NLayers(), 3u);
  EXPECT_TRUE(layers.SwitchLayer(2));
  EXPECT_TRUE(layers.Nodes(0).empty());
  EXPECT_EQ(filled(layers), (Index{kUntouched, kUntouched}));
  EntryList path;
  layers.DimAllNodes(0, path);
  EXPECT_TRUE(path.empty());
}

TEST(HeadingDeleted, ALayerWithoutACategoryKeepsTheCellIndexOfTheLayerBefore) {
  const TableOwner table = tableOf({.dimensions = {"L(l m n)"}, .layers = {0}});
  deleteChild(table->Dimension(0), 0);
  OmDisplayLayerHeading layers(*table, false);
  layers.SwitchLayer(0);
  layers.SwitchLayer(2);
  EXPECT_EQ(layers.getCurrentCellIndex(), (Index{1}));
  layers.SwitchLayer(1);
  layers.SwitchLayer(2);
  EXPECT_EQ(layers.getCurrentCellIndex(), (Index{2}));
}

// ---- The search for empty positions

TEST(HeadingDeleted, APositionWithoutACategorySeesTheCellsOfThePositionBefore) {
  const TableOwner last = onColumns("C(c d e)", {{2}});
  deleteChild(last->Dimension(0), 0);
  EXPECT_EQ(Columns(last, true)->getNonEmptyColumns(), (Positions{1, 2}));
  const TableOwner first = onColumns("C(c d e)", {{1}});
  deleteChild(first->Dimension(0), 0);
  EXPECT_EQ(Columns(first, true)->getNonEmptyColumns(), (Positions{0}));
}

TEST(HeadingDeleted, AllPositionsWithoutACategorySeeTheCellsOfTheLastCategory) {
  const TableOwner table = tableOf(
      {.dimensions = {"C(c d e f)", "R(r s)"}, .rows = {1}, .columns = {0}, .cells = {{3, 1}}});
  deleteChild(table->Dimension(0), 0);
  deleteChild(table->Dimension(0), 0);
  const Columns columns(table, true);
  EXPECT_EQ(columns->getNonEmptyColumns(), (Positions{1, 2, 3}));
  EXPECT_EQ(gridOf(*columns),
            "C - -\n"
            "f - -");
}

TEST(HeadingDeleted, APositionWithoutACategoryInsideAnotherDimensionSeesThePositionBefore) {
  // Columns (B outside): (a, x), nothing in x, (a, y), nothing in y. Only (a, y) holds a cell.
  const TableOwner table =
      tableOf({.dimensions = {"A(d a)", "B(x y)"}, .columns = {0, 1}, .cells = {{1, 1}}});
  deleteChild(table->Dimension(0), 0);
  EXPECT_EQ(Columns(table, true)->getNonEmptyColumns(), (Positions{2, 3}));
}

TEST(HeadingDeleted, APositionWithoutACategoryFollowsTheOtherDimensionOfItsAxis) {
  // B is left with x, so that its second position stays at x, where a holds a cell.
  const TableOwner table =
      tableOf({.dimensions = {"A(a c)", "B(d x)"}, .columns = {0, 1}, .cells = {{0, 1}}});
  deleteChild(table->Dimension(1), 0);
  EXPECT_EQ(Columns(table, true)->getNonEmptyColumns(), (Positions{0, 2}));
}

TEST(HeadingDeleted, WithoutAnyCategoryTheSearchStaysAtTheCurrentCellIndex) {
  const TableOwner table =
      tableOf({.dimensions = {"C(c)", "R(r s)"}, .rows = {1}, .columns = {0}, .cells = {{0, 1}}});
  deleteChild(table->Dimension(0), 0);
  EXPECT_EQ(Columns(table, true)->getNonEmptyColumns(), (Positions{0}));
  EXPECT_EQ(Rows(table, true)->getNonEmptyRows(), (Positions{1}));
}

TEST(HeadingDeleted, CellsOfADeletedRowKeepNoColumn) {
  const TableOwner table = tableOf({.dimensions = {"C(c d)", "R(r s t)"},
                                    .rows = {1},
                                    .columns = {0},
                                    .cells = {{0, 0}, {1, 2}}});
  deleteChild(table->Dimension(1), 0);
  EXPECT_EQ(Columns(table, true)->getNonEmptyColumns(), (Positions{1}));
}

TEST(HeadingDeleted, CellsOfARowBeyondThePositionsKeepNoColumn) {
  // Three categories are left for two positions, so that t, with subscript 1, is never looked at.
  const TableOwner table = tableOf({.dimensions = {"C(c d)", "R(r=0 s=0 t=1 u=2)"},
                                    .rows = {1},
                                    .columns = {0},
                                    .cells = {{0, 1}, {1, 0}}});
  deleteChild(table->Dimension(1), 3);
  EXPECT_EQ(Columns(table, true)->getNonEmptyColumns(), (Positions{1}));
}

TEST(HeadingDeleted, InASparseTableAPositionWithoutACategoryIsEmpty) {
  const TableOwner table = tableOf({.dimensions = {"C(c d e)", flat("R", "r", 50)},
                                    .rows = {1},
                                    .columns = {0},
                                    .cells = {{2, 7}}});
  deleteChild(table->Dimension(0), 0);
  EXPECT_EQ(Columns(table, true)->getNonEmptyColumns(), (Positions{1}));
}

TEST(HeadingDeleted, InASparseTableTheCellsOfADeletedCategoryBelongToNoColumn) {
  const TableOwner table = tableOf({.dimensions = {"C(c d e)", flat("R", "r", 100)},
                                    .rows = {1},
                                    .columns = {0},
                                    .cells = {{0, 7}, {1, 8}}});
  deleteChild(table->Dimension(0), 0);
  EXPECT_EQ(Columns(table, true)->getNonEmptyColumns(), (Positions{0}));
}

TEST(HeadingDeleted, MoreCategoriesThanPositionsAreShownAsFarAsThereArePositions) {
  const TableOwner table = onColumns("C(c=0 d=0 e=1)", {{0}});
  deleteChild(table->Dimension(0), 2);
  EXPECT_EQ(gridOfColumns(table), "C\nc");
  EXPECT_EQ(Columns(table, true)->getNonEmptyColumns(), (Positions{0}));
}

TEST(HeadingDeleted, InASparseTableACategoryBeyondThePositionsHasNoColumn) {
  // Both categories have subscript 0; the cells belong to the last one, at position 1 of 1.
  const TableOwner table = tableOf({.dimensions = {"C(c=0 d=0 e=1)", flat("R", "r", 200)},
                                    .rows = {1},
                                    .columns = {0},
                                    .cells = {{0, 7}}});
  deleteChild(table->Dimension(0), 2);
  EXPECT_EQ(Columns(table, true)->NColumns(), 0);
}

// ---- Links to parents. Deleting A moves B and C one place up; b's link then leads to C's place,
// c's link to a place that holds no record any more.

TEST(HeadingDeleted, LabelsFollowALinkToWhatStandsThereNow) {
  const TableOwner table = onColumns("R(A(a) B(b) C(c))");
  deleteChild(table->Dimension(0), 0);
  EXPECT_EQ(gridOfColumns(table),
            "R R -\n"
            "C C -\n"
            "b c -");
}

TEST(HeadingDeleted, LinksThatWereRestoredLeadToTheParents) {
  const TableOwner table = onColumns("R(A(a) B(b) C(c))");
  deleteChild(table->Dimension(0), 0);
  reparent(table->Dimension(0));
  EXPECT_EQ(gridOfColumns(table),
            "R R -\n"
            "B C -\n"
            "b c -");
}

TEST(HeadingDeleted, SiblingsInFrontOfTheDeletedOneKeepTheirLinks) {
  const TableOwner table = onColumns("R(A(a) B(b) C(c) D(d))");
  deleteChild(table->Dimension(0), 1);
  EXPECT_EQ(gridOfColumns(table),
            "R R R -\n"
            "A D D -\n"
            "a c d -");
}

TEST(HeadingDeleted, LinksAreFollowedFromAnyDepth) {
  const TableOwner table = onColumns("R(A(a) B(G(b)) C(H(c)))");
  deleteChild(table->Dimension(0), 0);
  EXPECT_EQ(gridOfColumns(table),
            "R R -\n"
            "C C -\n"
            "G H -\n"
            "b c -");
}

TEST(HeadingDeleted, AlsoDeletingBelowAGroupLeavesLinks) {
  const TableOwner table = onColumns("R(T(A(a) B(b) C(c)))");
  OmDimension& dimension = table->Dimension(0);
  deleteChild(dimension, dimension.Root().ChildAt(0), 0);
  EXPECT_EQ(gridOfColumns(table),
            "R R -\n"
            "T T -\n"
            "C C -\n"
            "b c -");
}

TEST(HeadingDeleted, ALinkMayLeadToACategory) {
  const TableOwner table = onColumns("R(A(a) B(b) c)");
  deleteChild(table->Dimension(0), 0);
  EXPECT_EQ(gridOfColumns(table),
            "R R -\n"
            "c c -\n"
            "b - -");
}

TEST(HeadingDeleted, ALinkLeadsToWhatWasAddedInThatPlaceLater) {
  const TableOwner table = onColumns("R(A(a) B(b) C(c))");
  OmDimension& dimension = table->Dimension(0);
  deleteChild(dimension, 0);
  const OmDimension::Node added =
      dimension.AddNewChild(dimension.Root(), OmStringCell("D"), ~0ULL, true);
  dimension.AddNewChild(added, OmStringCell("d"), 3, false);
  EXPECT_EQ(gridOfColumns(table),
            "R R R -\n"
            "C D D -\n"
            "b c d -");
}

TEST(HeadingDeleted, FlagsAreThoseOfTheNodesThatLinksLeadTo) {
  const TableOwner table = onColumns("R(A(a) B(b) ~C(c) D(d))");
  deleteChild(table->Dimension(0), 0);
  EXPECT_EQ(gridOfColumns(table),
            "R R R -\n"
            "b D D -\n"
            "- c d -");
}

TEST(HeadingDeleted, HiddenLabelsAreThoseOfTheNodesThatLinksLeadTo) {
  const TableOwner table = onColumns("R(A(a) B(b) !C(c) D(d))");
  deleteChild(table->Dimension(0), 0);
  EXPECT_EQ(gridOfColumns(table),
            "R R R -\n"
            "- D D -\n"
            "- c d -");
}

TEST(HeadingDeleted, LayersFollowLinksToo) {
  const TableOwner table = tableOf({.dimensions = {"R(A(a) B(b) ~C(c))"}, .layers = {0}});
  deleteChild(table->Dimension(0), 0);
  OmDisplayLayerHeading layers(*table, false);
  layers.SwitchLayer(0);
  EXPECT_EQ(labelsOf(layers.Nodes(0)), "R - b");
  EntryList path;
  layers.DimAllNodes(0, path);
  EXPECT_EQ(labelsOf(path), "R C b");
}

TEST(HeadingDeleted, LinksThatLeadToNoRecordAreFollowedAfterSeveralDeletions) {
  const TableOwner table = onColumns("R(A(a) B(b) C(c) D(d))");
  OmDimension& dimension = table->Dimension(0);
  deleteChild(dimension, 0);
  deleteChild(dimension, 0);
  EXPECT_EQ(gridOfColumns(table),
            "R R - -\n"
            "C D - -\n"
            "c d - -");
}

}  // namespace
}  // namespace om::test
