// One layer of a table as a grid.

#include "render/TableView.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "tests/render/GridText.h"

namespace om::test {
namespace {

using Place = render::TableView::Place;
using Path = std::vector<const OmDimensionNode*>;

// Dimension 0 on the rows, 1 and 2 on the columns (2 outermost), 3 on the layers.
TableText fourDimensions() {
  return {.dimensions = {"R(r0 r1 r2)", "C(c0 c1)", "D(d0 d1)", "L(l0 l1)"},
          .rows = {0},
          .columns = {1, 2},
          .layers = {3},
          .cells = {{0, 0, 0, 0}, {0, 1, 1, 0}, {2, 0, 1, 0}, {1, 0, 0, 1}}};
}

std::string bodyOf(const render::TableView& view) {
  std::vector<std::vector<std::string>> lines;
  for (std::uint64_t row = 0; row < view.rowCount(); ++row) {
    std::vector<std::string>& line = lines.emplace_back();
    for (std::uint64_t column = 0; column < view.columnCount(); ++column) {
      const OmCellText* const cell = view.cell({row, column});
      line.push_back(cell != nullptr ? std::string(*cell) : ".");
    }
  }
  return alignedText(lines);
}

std::string cornerTextOf(const render::TableView& view) {
  std::string text;
  for (const auto& cell : view.corner()) {
    if (!text.empty()) text += ' ';
    text += (cell.text != nullptr ? std::string(*cell.text) : "-") + "(" +
            std::to_string(cell.begin) + "-" + std::to_string(cell.end) + ")";
  }
  return text;
}

std::string textOf(const Path& path) {
  std::string text;
  for (const OmDimensionNode* const node : path) {
    text += (text.empty() ? "" : "/") + std::string(*node->Text());
  }
  return text;
}

// ---- Body

TEST(TableView, TheBodyIsTheCellsOfTheLayer) {
  // Columns: D is outermost, so c0 and c1 change fastest. Column (c1, d0) and row r1 are empty.
  const Viewed view(tableOf(fourDimensions()));
  EXPECT_EQ(view->rowCount(), 2U);
  EXPECT_EQ(view->columnCount(), 3U);
  EXPECT_EQ(bodyOf(*view),
            "0,0,0,0 .       0,1,1,0\n"
            ".       2,0,1,0 .");
}

TEST(TableView, EmptyRowsAndColumnsStayWhenTheyAreNotSkipped) {
  const Viewed view(tableOf(fourDimensions()), kEverything, 1);
  EXPECT_EQ(bodyOf(*view),
            ".       . . .\n"
            "1,0,0,1 . . .\n"
            ".       . . .");
}

TEST(TableView, AnIndexHasTheSubscriptsOfLayerRowAndColumn) {
  const Viewed view(tableOf(fourDimensions()), kEverything, 1);
  Index index;
  view->indexOf({2, 1}, index);
  EXPECT_EQ(index, (Index{2, 1, 0, 1}));
  view->indexOf({0, 2}, index);
  EXPECT_EQ(index, (Index{0, 0, 1, 1}));
}

TEST(TableView, IndexOfAllocatesNothingOnceTheIndexHasItsSize) {
  const Viewed view(tableOf(fourDimensions()));
  Index index(4);
  const int* const data = index.data();
  view->indexOf({1, 1}, index);
  EXPECT_EQ(index.data(), data);
}

TEST(TableView, SubscriptsAreThoseOfTheCategoriesNotTheirPositions) {
  const Viewed view(tableOf({.dimensions = {"R(a=7 b=2)"}, .rows = {0}, .cells = {{2}, {7}}}));
  EXPECT_EQ(bodyOf(*view), "7\n2");
}

TEST(TableView, ARowIsItsCells) {
  const Viewed view(tableOf(fourDimensions()), kEverything);
  std::vector<const OmCellText*> cells(17);
  for (std::uint64_t row = 0; row < view->rowCount(); ++row) {
    view->row(row, cells);
    ASSERT_EQ(cells.size(), 4U);
    for (std::uint64_t i = 0; i < 4; ++i) EXPECT_EQ(cells[i], view->cell({row, i}));
  }
}

TEST(TableView, ARangeOfARowIsItsCells) {
  const Viewed view(tableOf(fourDimensions()), kEverything);
  std::vector<const OmCellText*> cells;
  view->row(0, 2, 4, cells);
  EXPECT_EQ(cells, (std::vector{view->cell({0, 2}), view->cell({0, 3})}));
  EXPECT_NE(cells[1], nullptr);
  view->row(0, 3, 3, cells);
  EXPECT_TRUE(cells.empty());
}

TEST(TableView, AColumnWithoutACategoryDoesNotRepeatTheOneBeforeIt) {
  // Two categories, but one leaf: the second column is of no category.
  TableOwner table = tableOf({.dimensions = {"R(r)", "C(outer=1)"}, .rows = {0}, .columns = {1}});
  OmDimension& dimension = table->Dimension(1);
  dimension.AddNewChild(dimension.Root().ChildAt(0), OmStringCell("inner"), 0, false);
  store(*table, {0, 1}, "x");
  const Viewed view(std::move(table), kEverything);
  ASSERT_EQ(view->columnCount(), 2U);
  std::vector<const OmCellText*> cells;
  view->row(0, cells);
  EXPECT_EQ(cells[0], view->cell({0, 0}));
  EXPECT_NE(cells[0], nullptr);
  EXPECT_EQ(cells[1], nullptr);
}

TEST(TableView, ACategoryThatNoCellCanBelongToIsEmpty) {
  // The lower 32 bits of these subscripts are negative numbers.
  const Viewed view(tableOf({.dimensions = {"R(a=18446744073709551615 b=0)", "C(x=2147483648 y=0)"},
                             .rows = {0},
                             .columns = {1},
                             .cells = {{0, 0}}}),
                    kEverything);
  EXPECT_EQ(bodyOf(*view),
            ". .\n"
            ". 0,0");
  std::vector<const OmCellText*> cells;
  view->row(0, cells);
  EXPECT_EQ(cells, std::vector<const OmCellText*>(2));
}

TEST(TableView, ARowIsEmptyInAColumnThatNoCellCanBelongTo) {
  const Viewed view(tableOf({.dimensions = {"R(b=0)", "C(x=2147483648 y=0)"},
                             .rows = {0},
                             .columns = {1},
                             .cells = {{0, 0}}}),
                    kEverything);
  std::vector<const OmCellText*> cells;
  view->row(0, cells);
  ASSERT_EQ(cells.size(), 2U);
  EXPECT_EQ(cells[0], nullptr);
  EXPECT_EQ(cells[1], view->cell({0, 1}));
  EXPECT_NE(cells[1], nullptr);
}

TEST(TableView, ATableWithoutColumnDimensionsHasOneColumn) {
  const Viewed view(tableOf({.dimensions = {"R(a b)"}, .rows = {0}, .cells = {{0}, {1}}}));
  EXPECT_EQ(view->columnCount(), 1U);
  EXPECT_EQ(bodyOf(*view), "0\n1");
}

TEST(TableView, ATableWithoutRowDimensionsHasOneRowAndNoCorner) {
  const Viewed view(tableOf({.dimensions = {"C(a b)"}, .columns = {0}, .cells = {{0}, {1}}}));
  EXPECT_EQ(view->rowCount(), 1U);
  EXPECT_EQ(bodyOf(*view), "0 1");
  EXPECT_EQ(cornerTextOf(*view), "");
  EXPECT_EQ(view->headRows(), 2U);  // the name, and the categories below it
}

TEST(TableView, ATableWithoutCellsHasNoRowsAndColumns) {
  const Viewed view(tableOf({.dimensions = {"R(a)", "C(b)"}, .rows = {0}, .columns = {1}}));
  EXPECT_EQ(view->rowCount(), 0U);
  EXPECT_EQ(view->columnCount(), 0U);
}

TEST(TableView, ItDoesNotFollowWhenAnotherLayerIsSelected) {
  const TableOwner table = tableOf(fourDimensions());
  OmDisplayLayerHeading layers(*table, false);
  layers.SwitchLayer(1);
  const render::TableView view(layers, {});
  layers.SwitchLayer(0);
  EXPECT_EQ(view.layer(), 1);
  EXPECT_EQ(bodyOf(view), "1,0,0,1");
}

// ---- Corner

TEST(TableView, TheCornerHasTheNamesOfTheRowDimensionsOverTheirBlocks) {
  const Viewed view(tableOf({.dimensions = {"A(a b)", "X(G(x) y)"}, .rows = {0, 1}}), kEverything);
  EXPECT_EQ(cornerTextOf(*view), "X(0-2) A(2-3)");
  EXPECT_EQ(view->headRows(), 1U);
}

TEST(TableView, WithoutNamesTheCornerTextStandsOverAllLabelColumns) {
  TableOwner table = tableOf({.dimensions = {"A(a b)", "X(x)"}, .rows = {0, 1}});
  const OmStringCell text("text");
  table->CornerText(&text);
  const Viewed view(std::move(table), {.skipEmptyRows = false, .namesInCorner = false});
  EXPECT_EQ(cornerTextOf(*view), "text(0-4)");
}

TEST(TableView, WithoutAnyTextTheCornerIsOneEmptyCell) {
  const Viewed view(tableOf({.dimensions = {"A(a b)"}, .rows = {0}}),
                    {.skipEmptyRows = false, .namesInCorner = false});
  EXPECT_EQ(cornerTextOf(*view), "-(0-2)");
  EXPECT_EQ(view->headRows(), 0U);
}

TEST(TableView, AHiddenFirstNameLeavesAnEmptyCellInFrontOfTheNextOne) {
  const Viewed view(tableOf({.dimensions = {"A(a b)", "~X(x)"}, .rows = {0, 1}}), kEverything);
  EXPECT_EQ(cornerTextOf(*view), "-(0-1) A(1-2)");
}

// ---- Layers

TEST(TableView, LayerLabelsAreThePathsOfTheCurrentLayerOutermostFirst) {
  const Viewed view(tableOf({.dimensions = {"R(r)", "L(G(a) b)", "M(m n)"},
                             .rows = {0},
                             .layers = {1, 2},
                             .cells = {{0, 0, 0}, {0, 1, 1}}}),
                    {}, 2);
  // The first entry of the axis changes fastest: layers are (m, a), (m, b), (n, a), (n, b).
  ASSERT_EQ(view->layerLabels().size(), 2U);
  EXPECT_EQ(textOf(view->layerLabels()[0].path), "M/n");
  EXPECT_EQ(textOf(view->layerLabels()[1].path), "L/G/a");
  EXPECT_EQ(std::string(*view->layerLabels()[1].dimension->Text()), "L");
  EXPECT_EQ(std::string(*view->layerLabels()[1].category->Text()), "a");
}

TEST(TableView, ALayerPathLeavesOutWhatIsHidden) {
  const Viewed view(tableOf({.dimensions = {"R(r)", "~L(~G(a))"}, .rows = {0}, .layers = {1}}),
                    kEverything);
  ASSERT_EQ(view->layerLabels().size(), 1U);
  EXPECT_EQ(textOf(view->layerLabels()[0].path), "a");
}

// ---- Paths

TEST(TableView, PathsGoFromTheDimensionToTheCategoryHiddenOrNot) {
  const Viewed view(
      tableOf({.dimensions = {"R(~G(a) b)", "S(s)", "C(c)"}, .rows = {0, 1}, .columns = {2}}),
      kEverything);
  const std::vector<Path> first = view->rowPaths(0);
  ASSERT_EQ(first.size(), 2U);
  EXPECT_EQ(textOf(first[0]), "S/s");
  EXPECT_EQ(textOf(first[1]), "R/G/a");
  EXPECT_EQ(textOf(view->rowPaths(1)[1]), "R/b");
  ASSERT_EQ(view->columnPaths(0).size(), 1U);
  EXPECT_EQ(textOf(view->columnPaths(0)[0]), "C/c");
}

TEST(TableView, APathOfSkippedPlacesIsThatOfThePlaceShown) {
  const Viewed view(tableOf({.dimensions = {"R(a b c)"}, .rows = {0}, .cells = {{2}}}));
  EXPECT_EQ(textOf(view->rowPaths(0)[0]), "R/c");
}

// ---- From an index to its place

std::optional<Place> placeIn(const Viewed& view, const Index& index) {
  return view->placeOf(index);
}

TEST(TableView, PlaceOfIsTheInverseOfIndexOf) {
  const Viewed view(tableOf(fourDimensions()), kEverything);
  Index index;
  for (std::uint64_t row = 0; row < 3; ++row) {
    for (std::uint64_t column = 0; column < 4; ++column) {
      view->indexOf({row, column}, index);
      EXPECT_EQ(view->placeOf(index), (Place{row, column}));
    }
  }
}

TEST(TableView, PlaceOfCountsShownPlacesOnly) {
  const Viewed view(tableOf(fourDimensions()));
  EXPECT_EQ(placeIn(view, {2, 0, 1, 0}), (Place{1, 1}));
  EXPECT_EQ(placeIn(view, {0, 1, 1, 0}), (Place{0, 2}));
}

TEST(TableView, PlaceOfGivesNothingForWhatIsNotShown) {
  const Viewed view(tableOf(fourDimensions()));
  EXPECT_EQ(placeIn(view, {1, 0, 0, 0}), std::nullopt);  // an empty row
  EXPECT_EQ(placeIn(view, {0, 1, 0, 0}), std::nullopt);  // an empty column
  EXPECT_EQ(placeIn(view, {0, 0, 0, 1}), std::nullopt);  // another layer
}

TEST(TableView, PlaceOfGivesNothingForSubscriptsOfNoCategory) {
  const Viewed view(tableOf(fourDimensions()), kEverything);
  EXPECT_EQ(placeIn(view, {3, 0, 0, 0}), std::nullopt);
  EXPECT_EQ(placeIn(view, {0, 9, 0, 0}), std::nullopt);
  EXPECT_EQ(placeIn(view, {-1, 0, 0, 0}), std::nullopt);
  EXPECT_EQ(placeIn(view, {0, 0, 0}), std::nullopt);
  EXPECT_EQ(placeIn(view, {0, 0, 0, 0, 0}), std::nullopt);
}

TEST(TableView, PlaceOfGoesBySubscriptsNotByPositions) {
  const Viewed view(tableOf({.dimensions = {"R(a=7 G(b=2) c=5)"}, .rows = {0}}), kEverything);
  EXPECT_EQ(placeIn(view, {7}), (Place{0, 0}));
  EXPECT_EQ(placeIn(view, {2}), (Place{1, 0}));
  EXPECT_EQ(placeIn(view, {5}), (Place{2, 0}));
  EXPECT_EQ(placeIn(view, {0}), std::nullopt);
}

TEST(TableView, OfCategoriesWithOneSubscriptPlaceOfGivesTheFirst) {
  const Viewed view(tableOf({.dimensions = {"R(a=1 b=0 c=1)"}, .rows = {0}}), kEverything);
  EXPECT_EQ(placeIn(view, {1}), (Place{0, 0}));
}

TEST(TableView, OfCategoriesWithOneSubscriptPlaceOfGivesTheOneThatIsShown) {
  // One cell in 400 places: a sparse table, which shows the last row with its subscript.
  const Viewed view(tableOf({.dimensions = {"R(a=0 b=0)", flat("C", "c", 200)},
                             .rows = {0},
                             .columns = {1},
                             .cells = {{0, 0}}}));
  ASSERT_EQ(view->rowCount(), 1U);
  EXPECT_EQ(textOf(view->rowPaths(0)[0]), "R/b");
  EXPECT_EQ(placeIn(view, {0, 0}), (Place{0, 0}));
}

}  // namespace
}  // namespace om::test
