// The nodes that storing cells makes: which level belongs to which dimension, and how they grow.

#include "pivot/internal/CellStore.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <vector>

#include "external/cells/OmMemoryRegion.h"
#include "tests/pivot/CellTable.h"

namespace om::test {
namespace {

// The nodes of a new table after cells "x" were stored at these indexes.
std::string shapeAfter(const std::vector<Index>& indexes) {
  const TableOwner table = makeTable(indexes.front().size());
  for (const Index& index : indexes) store(*table, index, "x");
  return shapeOf(*table);
}

TEST(CellStoreGrow, ThereIsNoRootUntilACellIsStored) {
  const TableOwner table = makeTable(2);
  table->Cell({0, 0});
  table->deleteCell({0, 0});
  table->FirstCell();
  EXPECT_EQ(rootOf(*table), nullptr);
  store(*table, {0, 0}, "a");
  EXPECT_NE(rootOf(*table), nullptr);
}

TEST(CellStoreGrow, TheRootBelongsToTheLastDimensionAndTheLeafToTheFirst) {
  EXPECT_EQ(shapeAfter({{1, 2, 3}}), "4/4{3:3/3{2:2/2{1:x}}}");
}

TEST(CellStoreGrow, ATableOfOneDimensionHasItsCellsInTheRoot) {
  EXPECT_EQ(shapeAfter({{0}}), "1/4{0:x}");
}

TEST(CellStoreGrow, ALeafReachesToItsLargestSubscriptWithNullsBelow) {
  EXPECT_EQ(shapeAfter({{5, 0}}), "1/4{0:6/6{5:x}}");
}

TEST(CellStoreGrow, CellsShareTheNodesOfTheirCommonSubscripts) {
  EXPECT_EQ(shapeAfter({{0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {0, 0, 1}}),
            "2/4{0:2/4{0:2/4{0:x 1:x} 1:1/4{0:x}} 1:1/4{0:1/4{0:x}}}");
}

TEST(CellStoreGrow, SubscriptsInOrderDoubleTheCapacity) {
  const TableOwner table = makeTable(1);
  const std::vector<std::size_t> expected{4, 4, 4, 4, 8, 8, 8, 8, 16};
  for (std::size_t i = 0; i < expected.size(); ++i) {
    store(*table, {static_cast<int>(i)}, "x");
    EXPECT_EQ(rootOf(*table)->size(), i + 1);
    EXPECT_EQ(rootOf(*table)->capacity(), expected[i]) << "at subscript " << i;
  }
}

TEST(CellStoreGrow, ALeafGrowsExactlyForASubscriptBeyondTwiceItsCapacity) {
  EXPECT_EQ(shapeAfter({{0}, {100}}), "101/101{0:x 100:x}");
  EXPECT_EQ(shapeAfter({{0}, {9}}), "10/10{0:x 9:x}");
}

TEST(CellStoreGrow, ALeafDoublesForASubscriptOfTwiceItsCapacity) {
  EXPECT_EQ(shapeAfter({{0}, {8}}), "9/16{0:x 8:x}");
}

TEST(CellStoreGrow, AnInnerNodeGrowsByTheSameRule) {
  EXPECT_EQ(shapeAfter({{0, 0}, {0, 9}}), "10/10{0:1/4{0:x} 9:1/4{0:x}}");
  EXPECT_EQ(shapeAfter({{0, 0}, {0, 8}}), "9/16{0:1/4{0:x} 8:1/4{0:x}}");
  EXPECT_EQ(shapeAfter({{0, 0, 0}, {0, 100, 0}}), "1/4{0:101/101{0:1/4{0:x} 100:1/4{0:x}}}");
}

TEST(CellStoreGrow, ANodeGrowsOnFromAnExactCapacityByTheSequence) {
  // 6/6 is full: the next capacity of 4, 8, 16 ... above 6 is 8.
  EXPECT_EQ(shapeAfter({{5}, {6}}), "7/8{5:x 6:x}");
  // 12 is not beyond twice 6, 13 is.
  EXPECT_EQ(shapeAfter({{5}, {12}}), "13/16{5:x 12:x}");
  EXPECT_EQ(shapeAfter({{5}, {13}}), "14/14{5:x 13:x}");
}

TEST(CellStoreGrow, ASmallerSubscriptLeavesTheSizeAlone) {
  EXPECT_EQ(shapeAfter({{5, 2}, {1, 1}, {0, 2}}), "3/3{1:2/2{1:x} 2:6/6{0:x 5:x}}");
}

TEST(CellStoreGrow, OneAllocationAtMostForANodeWhateverTheSubscript) {
  const TableOwner table = makeTable(1);
  store(*table, {0}, "x");
  const std::size_t before = dataOf(*table).region.BlocksInUse();
  store(*table, {1000}, "x");
  // The storage was exchanged; the new cell is the only block more.
  EXPECT_EQ(dataOf(*table).region.BlocksInUse(), before + 1);
}

TEST(CellStoreGrow, ClearingAPlaceMakesTheWayToItAllTheSame) {
  const TableOwner table = makeTable(2);
  EXPECT_TRUE(clear(*table, {5, 1}));
  EXPECT_EQ(shapeOf(*table), "2/2{1:6/6{}}");
}

TEST(CellStoreGrow, ClearingACellLeavesTheNodes) {
  const TableOwner table = makeTable(2);
  store(*table, {1, 2}, "x");
  clear(*table, {1, 2});
  EXPECT_EQ(shapeOf(*table), "3/3{2:2/2{}}");
}

TEST(CellStoreGrow, FindingMakesNoWay) {
  const TableOwner table = makeTable(2);
  store(*table, {0, 0}, "x");
  table->Cell({7, 0});
  table->Cell({0, 7});
  EXPECT_EQ(shapeOf(*table), "1/4{0:1/4{0:x}}");
}

TEST(CellStoreGrow, AStoreThatThrowsOrIsBeyondTheLimitMakesNoWay) {
  const TableOwner table = makeTable(2);
  thrownBy([&] { store(*table, {0, -1}, "x"); });
  thrownBy([&] { store(*table, {0}, "x"); });
  limitCells(*table, 1);
  store(*table, {0, 0}, "x");
  EXPECT_EQ(rootOf(*table), nullptr);
}

TEST(CellStoreGrow, NodesStorageAndCellsComeFromTheRegionOfTheTable) {
  const TableOwner table = makeTable(2);
  const std::size_t heap = OmMemoryRegion::DefaultHeap()->BlocksInUse();
  const std::size_t before = dataOf(*table).region.BlocksInUse();
  store(*table, {0, 0}, "x");
  EXPECT_EQ(OmMemoryRegion::DefaultHeap()->BlocksInUse(), heap);
  // Two nodes, each with its storage, and the cell.
  EXPECT_EQ(dataOf(*table).region.BlocksInUse(), before + 5);
}

}  // namespace
}  // namespace om::test
