// Deleting cells: the nodes that lead to no cell any more are forgotten, and only those on the way.

#include <gtest/gtest.h>

#include <climits>
#include <cstddef>
#include <string>
#include <vector>

#include "pivot/internal/CellStore.h"
#include "tests/pivot/CellTable.h"
#include "tests/support/Counted.h"

namespace om::test {
namespace {

TableOwner tableWith(std::size_t dimensions, const std::vector<Index>& indexes) {
  TableOwner table = makeTable(dimensions);
  for (const Index& index : indexes) store(*table, index, "x");
  return table;
}

TEST(CellStoreDelete, TheOnlyCellOfABranchTakesAllItsNodesAlongButTheRoot) {
  const TableOwner table = tableWith(3, {{1, 2, 3}});
  table->deleteCell({1, 2, 3});
  EXPECT_EQ(shapeOf(*table), "4/4{}");
  EXPECT_EQ(cellAt(*table, {1, 2, 3}), "none");
}

TEST(CellStoreDelete, ARootOfCellsStaysWithItsSize) {
  const TableOwner table = tableWith(1, {{5}});
  table->deleteCell({5});
  EXPECT_EQ(shapeOf(*table), "6/6{}");
}

TEST(CellStoreDelete, OtherCellsOfTheLeafKeepTheNodes) {
  const TableOwner table = tableWith(3, {{0, 0, 0}, {1, 0, 0}});
  table->deleteCell({0, 0, 0});
  EXPECT_EQ(shapeOf(*table), "1/4{0:1/4{0:2/4{1:x}}}");
}

TEST(CellStoreDelete, OtherBranchesKeepTheNodesAboveThem) {
  const TableOwner table = tableWith(3, {{0, 0, 0}, {0, 1, 0}});
  table->deleteCell({0, 1, 0});
  EXPECT_EQ(shapeOf(*table), "1/4{0:2/4{0:1/4{0:x}}}");
}

TEST(CellStoreDelete, DeepBranchesArePrunedFromTheLeafUp) {
  const TableOwner table = tableWith(5, {{0, 0, 0, 0, 0}, {0, 0, 0, 0, 1}});
  table->deleteCell({0, 0, 0, 0, 0});
  EXPECT_EQ(shapeOf(*table), "2/4{1:1/4{0:1/4{0:1/4{0:1/4{0:x}}}}}");
}

TEST(CellStoreDelete, APlaceThatWasClearedIsPruned) {
  const TableOwner table = tableWith(2, {{0, 0}, {0, 1}});
  clear(*table, {0, 0});
  EXPECT_EQ(shapeOf(*table), "2/4{0:1/4{} 1:1/4{0:x}}");
  table->deleteCell({0, 0});
  EXPECT_EQ(shapeOf(*table), "2/4{1:1/4{0:x}}");
}

TEST(CellStoreDelete, AnyNullPlaceOfAnEmptyLeafPrunesIt) {
  const TableOwner table = tableWith(2, {{5, 0}});
  clear(*table, {5, 0});
  table->deleteCell({2, 0});
  EXPECT_EQ(shapeOf(*table), "1/4{}");
}

TEST(CellStoreDelete, EmptyNodesBesideTheWayAreLeft) {
  const TableOwner table = tableWith(2, {{0, 0}, {0, 1}});
  clear(*table, {0, 0});
  table->deleteCell({0, 1});
  EXPECT_EQ(shapeOf(*table), "2/4{0:1/4{}}");
}

TEST(CellStoreDelete, ANodeWithAnEmptyChildBesideTheWayIsLeft) {
  const TableOwner table = tableWith(3, {{0, 0, 0}, {0, 1, 0}});
  clear(*table, {0, 0, 0});
  table->deleteCell({0, 1, 0});
  EXPECT_EQ(shapeOf(*table), "1/4{0:2/4{0:1/4{}}}");
}

TEST(CellStoreDelete, ANullPlaceOfAFilledLeafChangesNothing) {
  const TableOwner table = tableWith(2, {{2, 0}});
  table->deleteCell({1, 0});
  EXPECT_EQ(shapeOf(*table), "1/4{0:3/3{2:x}}");
}

TEST(CellStoreDelete, AWayThatEndsAtANullNodeChangesNothing) {
  const TableOwner table = tableWith(3, {{0, 0, 0}, {0, 2, 2}});
  const std::string before = shapeOf(*table);
  table->deleteCell({0, 0, 1});
  table->deleteCell({0, 1, 2});
  EXPECT_EQ(shapeOf(*table), before);
}

TEST(CellStoreDelete, SubscriptsOutOfReachChangeNothing) {
  const TableOwner table = tableWith(3, {{0, 0, 0}});
  const std::string before = shapeOf(*table);
  for (const int outside : {1, 4, 1000, INT_MAX, -1, INT_MIN}) {
    table->deleteCell({outside, 0, 0});
    table->deleteCell({0, outside, 0});
    table->deleteCell({0, 0, outside});
    EXPECT_EQ(shapeOf(*table), before) << outside;
  }
}

TEST(CellStoreDelete, ASubscriptWithinTheCapacityButBeyondTheSizeChangesNothing) {
  const TableOwner table = tableWith(2, {{0, 0}});
  table->deleteCell({3, 0});
  table->deleteCell({0, 3});
  EXPECT_EQ(shapeOf(*table), "1/4{0:1/4{0:x}}");
}

TEST(CellStoreDelete, AnIndexOfAnotherLengthChangesNothing) {
  const TableOwner table = tableWith(3, {{0, 0, 0}});
  const std::string before = shapeOf(*table);
  for (const Index& index : std::vector<Index>{{}, {0}, {0, 0}, {0, 0, 0, 0}}) {
    table->deleteCell(index);
    EXPECT_EQ(shapeOf(*table), before) << index.size() << " subscripts";
  }
}

TEST(CellStoreDelete, NothingHappensInATableWithoutCellsOrDimensions) {
  const TableOwner empty = makeTable(2);
  empty->deleteCell({0, 0});
  EXPECT_EQ(shapeOf(*empty), "none");
  const TableOwner bare = makeTable(0);
  bare->deleteCell({});
  bare->deleteCell({0});
  EXPECT_EQ(rootOf(*bare), nullptr);
}

TEST(CellStoreDelete, TheCellIsDestroyedOnceAndAtOnce) {
  const TableOwner table = makeTable(2);
  table->Cell({0, 0}, CountedText("a"));
  table->Cell({1, 0}, CountedText("b"));
  resetCounted();
  table->deleteCell({0, 0});
  EXPECT_EQ(CountedText::died(), std::vector<std::string>{"a"});
  table->deleteCell({0, 0});
  EXPECT_EQ(CountedText::died(), std::vector<std::string>{"a"});
}

TEST(CellStoreDelete, NodesAndCellAreGivenBackToTheRegion) {
  const TableOwner table = tableWith(3, {{0, 0, 0}});
  const std::size_t before = dataOf(*table).region.BlocksInUse();
  const std::size_t bytes = dataOf(*table).region.BytesInUse();
  store(*table, {50, 3, 0}, "y");
  store(*table, {50, 2, 0}, "y");
  table->deleteCell({50, 2, 0});
  table->deleteCell({50, 3, 0});
  EXPECT_EQ(dataOf(*table).region.BlocksInUse(), before);
  EXPECT_EQ(dataOf(*table).region.BytesInUse(), bytes);
}

TEST(CellStoreDelete, TheCountStays) {
  const TableOwner table = tableWith(1, {{0}, {1}});
  table->deleteCell({0});
  table->deleteCell({9});
  EXPECT_EQ(table->getNumCells(), 2);
}

TEST(CellStoreDelete, AnEmptyRootTakesCellsAgain) {
  const TableOwner table = tableWith(2, {{0, 2}});
  table->deleteCell({0, 2});
  store(*table, {1, 0}, "y");
  EXPECT_EQ(shapeOf(*table), "3/3{0:2/2{1:y}}");
  EXPECT_EQ(cellsOf(*table), "(1,0)=y");
}

}  // namespace
}  // namespace om::test
