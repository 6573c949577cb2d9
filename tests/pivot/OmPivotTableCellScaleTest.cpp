// Stores that are far out, wide and deep: what they cost, and that they stay readable.

#include <gtest/gtest.h>

#include <climits>
#include <cstddef>
#include <memory>
#include <new>
#include <string>
#include <utility>
#include <vector>

#include "external/cells/OmMemoryRegion.h"
#include "tests/pivot/CellTable.h"
#include "tests/support/Oracle.h"

namespace om::test {
namespace {

std::size_t bytesOf(const OmPivotTable& table) { return dataOf(table).region.BytesInUse(); }
std::size_t blocksOf(const OmPivotTable& table) { return dataOf(table).region.BlocksInUse(); }

TEST(OmPivotTableCellScale, AFarSubscriptTakesOneExactAllocation) {
  constexpr int kFar = 1'000'000;
  const TableOwner table = makeTable(1);
  store(*table, {0}, "a");
  const std::size_t blocks = blocksOf(*table);
  const std::size_t bytes = bytesOf(*table);
  store(*table, {kFar}, "b");
  EXPECT_EQ(rootOf(*table)->size(), kFar + 1U);
  EXPECT_EQ(rootOf(*table)->capacity(), kFar + 1U);
  EXPECT_EQ(blocksOf(*table), blocks + 1);  // the cell; the storage was exchanged
  EXPECT_LE(bytesOf(*table), bytes + (kFar + 1) * sizeof(void*) + 1000);
  EXPECT_EQ(cellsOf(*table), "(0)=a (1000000)=b");
  EXPECT_EQ(cellAt(*table, {kFar - 1}), "none");
}

TEST(OmPivotTableCellScale, AFarSubscriptAlongAnInnerDimensionIsExactToo) {
  constexpr int kFar = 1'000'000;
  const TableOwner table = makeTable(3);
  store(*table, {0, 0, 0}, "a");
  store(*table, {1, kFar, 0}, "b");
  const auto* const inner = static_cast<const PointerVector*>((*rootOf(*table))[0]);
  EXPECT_EQ(inner->size(), kFar + 1U);
  EXPECT_EQ(inner->capacity(), kFar + 1U);
  EXPECT_EQ(cellsOf(*table), "(0,0,0)=a (1,1000000,0)=b");
}

TEST(OmPivotTableCellScale, AFarBranchIsGivenBackWhenItsCellIsDeleted) {
  constexpr int kFar = 1'000'000;
  const TableOwner table = makeTable(2);
  store(*table, {0, 0}, "a");
  const std::size_t bytes = bytesOf(*table);
  store(*table, {kFar, 1}, "b");
  EXPECT_GT(bytesOf(*table), bytes + kFar * sizeof(void*));
  table->deleteCell({kFar, 1});
  EXPECT_EQ(bytesOf(*table), bytes);
}

// Without an iteration: it would read all of what is reserved.
TEST(OmPivotTableCellScale, TheLargestSubscriptsAreStoredExactlyOrLeaveTheTableReadable) {
  constexpr int kLargest = INT_MAX - 1;
  TableOwner table = makeTable(1);
  store(*table, {0}, "a");
  store(*table, {3}, "b");
  bool stored = false;
  try {
    stored = store(*table, {kLargest}, "far");
  } catch (const std::bad_alloc&) {
    EXPECT_EQ(rootOf(*table)->size(), 4U);
    EXPECT_EQ(rootOf(*table)->capacity(), 4U);
  }
  if (stored) {
    EXPECT_EQ(rootOf(*table)->size(), static_cast<std::size_t>(INT_MAX));
    EXPECT_EQ(rootOf(*table)->capacity(), static_cast<std::size_t>(INT_MAX));
  }
  EXPECT_EQ(cellAt(*table, {0}), "a");
  EXPECT_EQ(cellAt(*table, {1}), "none");
  EXPECT_EQ(cellAt(*table, {3}), "b");
  EXPECT_EQ(cellAt(*table, {1'000'000'000}), "none");
  EXPECT_EQ(cellAt(*table, {kLargest}), stored ? "far" : "none");
  EXPECT_EQ(cellAt(*table, {INT_MAX}), "none");
  EXPECT_EQ(table->getNumCells(), 3);
}

TEST(OmPivotTableCellScale, MemoryGoesWithThePathsAndNotWithTheProductOfTheSizes) {
  const TableOwner table = makeTable(6);
  const std::size_t before = bytesOf(*table);
  store(*table, {999, 999, 999, 999, 999, 999}, "x");
  // Six nodes with 1000 pointers each, and the cell.
  EXPECT_LE(bytesOf(*table) - before, 6 * (1000 * sizeof(void*) + 200) + 200);
  EXPECT_EQ(cellsOf(*table), "(999,999,999,999,999,999)=x");
}

TEST(OmPivotTableCellScale, CellsOfAFullTableTakeAtMost16BytesBesideTheirText) {
  constexpr int kSize = 64;
  const TableOwner table = makeTable(3);
  const OmStringCell text("x");
  const std::size_t before = bytesOf(*table);
  const std::unique_ptr<OmCellText> clone(text.Clone(&dataOf(*table).region));
  const std::size_t textBytes = bytesOf(*table) - before;
  const std::size_t start = bytesOf(*table);
  for (int k = 0; k < kSize; ++k) {
    for (int j = 0; j < kSize; ++j) {
      for (int i = 0; i < kSize; ++i) table->Cell({i, j, k}, text);
    }
  }
  constexpr std::size_t kCells = std::size_t{kSize} * kSize * kSize;
  EXPECT_LE(bytesOf(*table) - start, kCells * (textBytes + 16));
}

TEST(OmPivotTableCellScale, ManyCellsStoredInRandomOrderAreIteratedInOrder) {
  constexpr std::size_t kSize = 30;
  const TableOwner table = makeTable(3);
  Random random(41);
  std::vector<int> places(kSize * kSize * kSize);
  for (std::size_t i = 0; i < places.size(); ++i) places[i] = static_cast<int>(i);
  for (std::size_t i = places.size(); i > 1; --i) {
    std::swap(places[i - 1], places[random.below(i)]);
  }
  constexpr int kSide = static_cast<int>(kSize);
  for (const int place : places) {
    store(*table, {place % kSide, place / kSide % kSide, place / kSide / kSide},
          std::to_string(place));
  }
  int expected = 0;
  for (const auto& [index, text] : *table) {
    ASSERT_EQ(std::string(text), std::to_string(expected));
    ++expected;
  }
  EXPECT_EQ(expected, static_cast<int>(places.size()));
}

TEST(OmPivotTableCellScale, ManyDimensionsMakeAsManyLevels) {
  constexpr std::size_t kDimensions = 200;
  const TableOwner table = makeTable(kDimensions);
  Index index(kDimensions, 1);
  store(*table, index, "a");
  index.front() = 2;
  store(*table, index, "b");
  index.back() = 0;
  store(*table, index, "c");
  auto at = table->FirstCell();
  EXPECT_EQ(at.Index(), index);
  EXPECT_EQ(std::string(*at.Cell()), "c");
  EXPECT_EQ(std::string(*(++at).Cell()), "a");
  EXPECT_EQ(std::string(*(++at).Cell()), "b");
  EXPECT_EQ((++at).Cell(), nullptr);
  table->deleteCell(index);
  EXPECT_EQ(cellAt(*table, index), "none");
}

TEST(OmPivotTableCellScale, DeletingEveryCellLeavesTheEmptyRoot) {
  const TableOwner table = makeTable(3);
  for (int i = 0; i < 1000; ++i) store(*table, {i % 10, i / 10 % 10, i / 100}, "x");
  for (int i = 999; i >= 0; --i) table->deleteCell({i % 10, i / 10 % 10, i / 100});
  EXPECT_EQ(shapeOf(*table), "10/16{}");
  EXPECT_EQ(cellsOf(*table), "");
}

}  // namespace
}  // namespace om::test
