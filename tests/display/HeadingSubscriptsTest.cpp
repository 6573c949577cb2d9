// Cells and categories whose subscripts do not match one to one, in the search for empty positions:
// subscripts that two categories share, and cells at subscripts that no category has.

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <vector>

#include "tests/display/DisplayTable.h"

namespace om::test {
namespace {

// The positions of the columns with cells, in a table of these columns beside `rows` rows, so that
// some cells are few or not.
Positions columnsOf(const std::string& dimension, std::size_t rows,
                    const std::vector<Index>& cells) {
  return Columns(tableOf({.dimensions = {dimension, flat("R", "r", rows)},
                          .rows = {1},
                          .columns = {0},
                          .cells = cells}),
                 true)
      ->getNonEmptyColumns();
}

TEST(HeadingSubscripts, EveryCategoryOfASharedSubscriptShowsItsCellsInADenseTable) {
  EXPECT_EQ(columnsOf("C(a=0 b=0 c=1)", 2, {{0, 1}}), (Positions{0, 1}));
  EXPECT_EQ(columnsOf("C(a=1 b=0 c=1)", 2, {{1, 0}}), (Positions{0, 2}));
}

TEST(HeadingSubscripts, OnlyTheLastCategoryOfASharedSubscriptShowsItsCellsInASparseTable) {
  EXPECT_EQ(columnsOf("C(a=0 b=0 c=1)", 50, {{0, 1}}), (Positions{1}));
  EXPECT_EQ(columnsOf("C(a=1 b=0 c=1)", 50, {{1, 0}}), (Positions{2}));
}

TEST(HeadingSubscripts, CategoriesOfASharedSubscriptFillTheSameIndex) {
  const Columns columns(tableOf({.dimensions = {"C(a=3 b=3)"}, .columns = {0}}));
  EXPECT_EQ(filled(*columns, 0), (Index{3}));
  EXPECT_EQ(filled(*columns, 1), (Index{3}));
}

TEST(HeadingSubscripts, ACellBetweenTheSubscriptsBelongsToNoColumn) {
  // 100 x 2 places; two cells are enough to be dense.
  EXPECT_EQ(columnsOf("C(a=0 b=5)", 100, {{3, 0}}), (Positions{}));
  EXPECT_EQ(columnsOf("C(a=0 b=5)", 2, {{3, 0}}), (Positions{}));
}

TEST(HeadingSubscripts, ACellBehindTheSubscriptsBelongsToNoColumn) {
  EXPECT_EQ(columnsOf("C(a=0 b=5)", 100, {{9, 0}}), (Positions{}));
  EXPECT_EQ(columnsOf("C(a=0 b=5)", 2, {{9, 0}}), (Positions{}));
}

TEST(HeadingSubscripts, ACellThatBelongsToNoColumnKeepsNoOtherCellAway) {
  // 150 x 2 places are sparse with two cells.
  EXPECT_EQ(columnsOf("C(a=0 b=5)", 150, {{3, 0}, {5, 1}}), (Positions{1}));
  EXPECT_EQ(columnsOf("C(a=0 b=5)", 2, {{3, 0}, {5, 1}}), (Positions{1}));
}

TEST(HeadingSubscripts, ACellWithoutAColumnInOneOfTwoDimensionsIsLeftOut) {
  // (b, x) is position 1; the other cells lack a category in A or in B.
  const TableOwner table = tableOf({.dimensions = {"A(a=0 b=2)", "B(x=1 y=3)", flat("R", "r", 100)},
                                    .rows = {2},
                                    .columns = {0, 1},
                                    .cells = {{1, 1, 0}, {2, 2, 1}, {2, 1, 2}}});
  EXPECT_EQ(Columns(table, true)->getNonEmptyColumns(), (Positions{1}));
}

TEST(HeadingSubscripts, ACellWithoutARowKeepsItsColumnOnlyInASparseTable) {
  // The search by cells looks at the columns' own subscripts alone.
  EXPECT_EQ(columnsOf("C(a b)", 100, {{1, 200}}), (Positions{1}));
  EXPECT_EQ(columnsOf("C(a b)", 2, {{1, 200}}), (Positions{}));
}

TEST(HeadingSubscripts, CellsOfADenseTableAreLookedForAtTheSubscriptsOfTheRows) {
  const TableOwner table = tableOf({.dimensions = {"C(c d e)", "R(r=7 s=3)"},
                                    .rows = {1},
                                    .columns = {0},
                                    .cells = {{0, 3}, {1, 4}, {2, 7}}});
  EXPECT_EQ(Columns(table, true)->getNonEmptyColumns(), (Positions{0, 2}));
}

TEST(HeadingSubscripts, CellsOfLayersBetweenTheSubscriptsMakeNoLayer) {
  const TableOwner table = tableOf({.dimensions = {flat("R", "r", 100), "L(l=0 m=5)"},
                                    .rows = {0},
                                    .layers = {1},
                                    .cells = {{0, 4}}});
  EXPECT_EQ(OmDisplayLayerHeading(*table, true).NLayers(), 0u);
}

TEST(HeadingSubscripts, SubscriptsBeyondTheNumberOfCategoriesAreFoundByTheirCells) {
  EXPECT_EQ(columnsOf("C(a=40 b=30)", 100, {{30, 7}}), (Positions{1}));
  EXPECT_EQ(columnsOf("C(a=40 b=30)", 2, {{30, 1}}), (Positions{1}));
}

}  // namespace
}  // namespace om::test
