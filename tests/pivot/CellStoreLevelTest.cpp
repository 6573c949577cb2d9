// Dimensions that are added when cells are stored already, and the end of a store.

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "external/cells/OmMemoryRegion.h"
#include "pivot/internal/CellStore.h"
#include "tests/pivot/CellTable.h"
#include "tests/support/Counted.h"

namespace om::test {
namespace {

using internal::CellStore;

TEST(CellStoreLevel, CellsGetSubscript0AlongADimensionThatIsAdded) {
  const TableOwner table = makeTable(2);
  store(*table, {2, 3}, "a");
  store(*table, {0, 1}, "b");
  table->AddDimension(OmStringCell("d2"));
  EXPECT_EQ(cellAt(*table, {2, 3, 0}), "a");
  EXPECT_EQ(cellsOf(*table), "(0,1,0)=b (2,3,0)=a");
}

TEST(CellStoreLevel, TheFormerRootIsElement0OfTheNewOne) {
  const TableOwner table = makeTable(2);
  store(*table, {2, 3}, "a");
  const PointerVector* const former = rootOf(*table);
  table->AddDimension(OmStringCell("d2"));
  EXPECT_EQ(shapeOf(*table), "1/4{0:4/4{3:3/3{2:a}}}");
  EXPECT_EQ((*rootOf(*table))[0], former);
}

TEST(CellStoreLevel, ADimensionThatIsCopiedInAddsALevelToo) {
  const TableOwner table = makeTable(1);
  store(*table, {1}, "a");
  const TableOwner other = makeTable(1);
  table->AddDimension(other->Dimension(0));
  EXPECT_EQ(shapeOf(*table), "1/4{0:2/2{1:a}}");
}

TEST(CellStoreLevel, EveryFurtherDimensionAddsOne) {
  const TableOwner table = makeTable(1);
  store(*table, {1}, "a");
  table->AddDimension(OmStringCell("d1"));
  table->AddDimension(OmStringCell("d2"));
  EXPECT_EQ(shapeOf(*table), "1/4{0:1/4{0:2/2{1:a}}}");
  EXPECT_EQ(cellsOf(*table), "(1,0,0)=a");
}

TEST(CellStoreLevel, NothingIsMadeWhereThereIsNoRoot) {
  const TableOwner table = makeTable(1);
  table->AddDimension(OmStringCell("d1"));
  EXPECT_EQ(rootOf(*table), nullptr);
}

TEST(CellStoreLevel, ARootWithoutCellsIsPutUnderANewOneToo) {
  const TableOwner table = makeTable(1);
  store(*table, {0}, "a");
  table->deleteCell({0});
  table->AddDimension(OmStringCell("d1"));
  EXPECT_EQ(shapeOf(*table), "1/4{0:1/4{}}");
}

TEST(CellStoreLevel, IterationEndsAtTheFormerRootThatWasWithoutCells) {
  const TableOwner table = makeTable(1);
  store(*table, {0}, "a");
  table->deleteCell({0});
  table->AddDimension(OmStringCell("d1"));
  store(*table, {0, 1}, "b");
  EXPECT_EQ(cellsOf(*table), "");
  EXPECT_EQ(cellAt(*table, {0, 1}), "b");
}

TEST(CellStoreLevel, TheNewLevelTakesOtherSubscripts) {
  const TableOwner table = makeTable(1);
  store(*table, {1}, "a");
  table->AddDimension(OmStringCell("d1"));
  store(*table, {1, 2}, "b");
  store(*table, {0, 0}, "c");
  EXPECT_EQ(cellsOf(*table), "(0,0)=c (1,0)=a (1,2)=b");
}

TEST(CellStoreLevel, NoCellIsClonedOrDestroyed) {
  const TableOwner table = makeTable(1);
  table->Cell({0}, CountedText("a"));
  resetCounted();
  const OmCellText* const cell = table->Cell({0});
  table->AddDimension(OmStringCell("d1"));
  EXPECT_EQ(table->Cell({0, 0}), cell);
  EXPECT_EQ(CountedText::made(), 0);
  EXPECT_TRUE(CountedText::died().empty());
}

TEST(CellStoreLevel, TheCountStays) {
  const TableOwner table = makeTable(1);
  store(*table, {0}, "a");
  table->AddDimension(OmStringCell("d1"));
  EXPECT_EQ(table->getNumCells(), 1);
}

TEST(CellStoreLevel, DestroyEndsEveryCellOnceAndGivesTheNodesBack) {
  OmMemoryRegion region(false);
  CellStore cells(region);
  for (int i = 0; i < 12; ++i) {
    const CountedText text(std::to_string(i));
    cells.Reach({i % 2, i % 3, i / 6}).Put(std::unique_ptr<OmCellText>(text.Clone(&region)));
  }
  resetCounted();
  cells.Destroy(3);
  EXPECT_EQ(CountedText::died().size(), 12U);
  EXPECT_EQ(CountedText::live(), 0);
  EXPECT_EQ(region.BlocksInUse(), 0U);
  EXPECT_EQ(cells.Root(), nullptr);
}

TEST(CellStoreLevel, DestroyWithoutARootDoesNothing) {
  OmMemoryRegion region(false);
  CellStore cells(region);
  cells.Destroy(3);
  EXPECT_EQ(cells.Root(), nullptr);
  EXPECT_EQ(region.BlocksInUse(), 0U);
}

TEST(CellStoreLevel, DestroyReachesTheCellsBelowAnAddedLevel) {
  OmMemoryRegion region(false);
  CellStore cells(region);
  cells.Reach({3}).Put(std::unique_ptr<OmCellText>(CountedText("a").Clone(&region)));
  cells.AddLevel();
  cells.Reach({0, 2}).Put(std::unique_ptr<OmCellText>(CountedText("b").Clone(&region)));
  resetCounted();
  cells.Destroy(2);
  EXPECT_EQ(CountedText::died(), (std::vector<std::string>{"a", "b"}));
  EXPECT_EQ(region.BlocksInUse(), 0U);
}

}  // namespace
}  // namespace om::test
