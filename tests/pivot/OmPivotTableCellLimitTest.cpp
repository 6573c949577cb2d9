// The count of stored cells and the limit: what counts, and what a table does beyond the limit.

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

#include "tests/pivot/CellTable.h"
#include "tests/support/Counted.h"

namespace om::test {
namespace {

TEST(OmPivotTableCellLimit, TheCountStartsAt0) { EXPECT_EQ(makeTable(2)->getNumCells(), 0); }

TEST(OmPivotTableCellLimit, EveryStoreCountsAlsoAtTheSamePlace) {
  const TableOwner table = makeTable(1);
  store(*table, {0}, "a");
  EXPECT_EQ(table->getNumCells(), 1);
  store(*table, {0}, "b");
  EXPECT_EQ(table->getNumCells(), 2);
  store(*table, {1}, "c");
  EXPECT_EQ(table->getNumCells(), 3);
}

TEST(OmPivotTableCellLimit, ClearingCounts) {
  const TableOwner table = makeTable(1);
  clear(*table, {0});
  EXPECT_EQ(table->getNumCells(), 1);
}

TEST(OmPivotTableCellLimit, FindingDeletingAndIteratingDoNotCount) {
  const TableOwner table = makeTable(1);
  store(*table, {0}, "a");
  table->Cell({0});
  thrownBy([&] { table->Cell({-1}); });
  thrownBy([&] { table->Cell({0, 0}); });
  table->FirstCell();
  table->deleteCell({0});
  EXPECT_EQ(table->getNumCells(), 1);
}

TEST(OmPivotTableCellLimit, TheGetFormOfATableWithoutDimensionsDoesNotCount) {
  const TableOwner table = makeTable(0);
  table->Cell({});
  EXPECT_EQ(table->getNumCells(), 0);
}

TEST(OmPivotTableCellLimit, RefusedStoresCount) {
  const TableOwner table = makeTable(2);
  thrownBy([&] { store(*table, {0, -1}, "x"); });
  EXPECT_EQ(table->getNumCells(), 1);
  thrownBy([&] { store(*table, {0}, "x"); });
  EXPECT_EQ(table->getNumCells(), 2);
  thrownBy([&] { clear(*table, {-1, 0}); });
  EXPECT_EQ(table->getNumCells(), 3);
  const TableOwner bare = makeTable(0);
  thrownBy([&] { store(*bare, {}, "x"); });
  EXPECT_EQ(bare->getNumCells(), 1);
}

TEST(OmPivotTableCellLimit, OneStoreMoreThanTheLimitSucceedsAndTheNextOneFails) {
  const TableOwner table = makeTable(1);
  limitCells(*table, 3);
  for (int i = 0; i < 4; ++i) {
    EXPECT_TRUE(store(*table, {i}, "x")) << i;
    EXPECT_FALSE(table->IsScratched()) << i;
  }
  EXPECT_FALSE(store(*table, {4}, "x"));
  EXPECT_TRUE(table->IsScratched());
  EXPECT_EQ(table->getNumCells(), 5);
  EXPECT_EQ(cellsOf(*table), "(0)=x (1)=x (2)=x (3)=x");
}

TEST(OmPivotTableCellLimit, ALimitOf0LetsOneStoreThrough) {
  const TableOwner table = makeTable(1);
  limitCells(*table, 0);
  EXPECT_TRUE(store(*table, {0}, "x"));
  EXPECT_FALSE(store(*table, {0}, "y"));
  EXPECT_EQ(cellAt(*table, {0}), "x");
}

TEST(OmPivotTableCellLimit, ANegativeLimitLetsNoneThrough) {
  const TableOwner table = makeTable(1);
  limitCells(*table, -1);
  EXPECT_FALSE(store(*table, {0}, "x"));
  EXPECT_TRUE(table->IsScratched());
  EXPECT_EQ(rootOf(*table), nullptr);
}

TEST(OmPivotTableCellLimit, ALimitOf64BitsIsComparedWhole) {
  const TableOwner table = makeTable(1);
  // As numbers of 32 bits these would be 0 and -1.
  limitCells(*table, 0x1'0000'0000LL);
  EXPECT_TRUE(store(*table, {0}, "x"));
  EXPECT_TRUE(store(*table, {1}, "x"));
  limitCells(*table, std::numeric_limits<long long>::max());
  EXPECT_TRUE(store(*table, {2}, "x"));
}

TEST(OmPivotTableCellLimit, ClearedDeletedAndRefusedPlacesUseTheLimitUp) {
  const TableOwner table = makeTable(1);
  limitCells(*table, 2);
  clear(*table, {0});
  store(*table, {0}, "x");
  table->deleteCell({0});
  thrownBy([&] { store(*table, {-1}, "x"); });
  EXPECT_FALSE(store(*table, {0}, "x"));
  EXPECT_EQ(cellsOf(*table), "");
}

TEST(OmPivotTableCellLimit, BeyondTheLimitNothingElseChanges) {
  const TableOwner table = makeTable(1);
  limitCells(*table, 0);
  table->Cell({0}, CountedText("a"));
  const std::string before = shapeOf(*table);
  resetCounted();
  EXPECT_FALSE(store(*table, {0}, "x"));
  EXPECT_FALSE(store(*table, {50}, "x"));
  EXPECT_FALSE(clear(*table, {0}));
  EXPECT_EQ(shapeOf(*table), before);
  EXPECT_TRUE(CountedText::died().empty());
  EXPECT_EQ(table->getNumCells(), 4);
}

TEST(OmPivotTableCellLimit, BeyondTheLimitAnIllFormedIndexGivesFalseAndCounts) {
  const TableOwner table = makeTable(2);
  limitCells(*table, -1);
  EXPECT_EQ(thrownBy([&] { EXPECT_FALSE(store(*table, {0}, "x")); }), Thrown());
  EXPECT_EQ(thrownBy([&] { EXPECT_FALSE(store(*table, {0, -1}, "x")); }), Thrown());
  EXPECT_EQ(thrownBy([&] { EXPECT_FALSE(clear(*table, {0, 0, 0})); }), Thrown());
  EXPECT_EQ(table->getNumCells(), 3);
  const TableOwner bare = makeTable(0);
  limitCells(*bare, -1);
  EXPECT_EQ(thrownBy([&] { EXPECT_FALSE(store(*bare, {}, "x")); }), Thrown());
  EXPECT_TRUE(bare->IsScratched());
}

TEST(OmPivotTableCellLimit, BeyondTheLimitTheGetFormStillThrows) {
  const TableOwner table = makeTable(2);
  limitCells(*table, -1);
  store(*table, {0, 0}, "x");
  EXPECT_EQ(thrownBy([&] { table->Cell({0}); }),
            (Thrown{"OmPivotTable::Cell() -- nind != _my->_dimensions.size()", 1, 2}));
}

TEST(OmPivotTableCellLimit, AnIllFormedStoreThatMeetsTheLimitExactlyThrows) {
  const TableOwner table = makeTable(1);
  limitCells(*table, 0);
  EXPECT_EQ(thrownBy([&] { store(*table, {}, "x"); }),
            (Thrown{"OmPivotTable::Cell() -- nind != _my->_dimensions.size()", 0, 1}));
  EXPECT_FALSE(table->IsScratched());
}

TEST(OmPivotTableCellLimit, TheLimitIsReadAtEachStore) {
  const TableOwner table = makeTable(1);
  limitCells(*table, 0);
  store(*table, {0}, "a");
  EXPECT_FALSE(store(*table, {1}, "b"));
  limitCells(*table, 2);
  EXPECT_TRUE(store(*table, {1}, "c"));
  // Raising the limit does not take the mark back.
  EXPECT_TRUE(table->IsScratched());
}

TEST(OmPivotTableCellLimit, TheMarkDoesNotKeepFromStoring) {
  const TableOwner table = makeTable(1);
  table->Scratch(true);
  EXPECT_TRUE(store(*table, {0}, "a"));
  EXPECT_EQ(cellAt(*table, {0}), "a");
}

TEST(OmPivotTableCellLimit, TheMarkIsSetAndTakenBackByHand) {
  const TableOwner table = makeTable(0);
  EXPECT_FALSE(table->IsScratched());
  table->Scratch(true);
  EXPECT_TRUE(table->IsScratched());
  table->Scratch(false);
  EXPECT_FALSE(table->IsScratched());
}

TEST(OmPivotTableCellLimit, ThereIsNoLimitByDefault) {
  const TableOwner table = makeTable(1);
  for (int i = 0; i < 5000; ++i) ASSERT_TRUE(store(*table, {i}, "x")) << i;
  EXPECT_FALSE(table->IsScratched());
  EXPECT_EQ(table->getNumCells(), 5000);
}

}  // namespace
}  // namespace om::test
