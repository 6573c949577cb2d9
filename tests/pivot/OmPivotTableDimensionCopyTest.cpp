// Copying all dimensions of another table.

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <vector>

#include "external/cells/OmMemoryRegion.h"
#include "tests/pivot/CellTable.h"
#include "tests/support/Counted.h"

namespace om::test {
namespace {

TEST(OmPivotTableDimensionCopy, TakesOverAllInOrderWithTheirCategories) {
  const TableOwner other = makeTable(3);
  addCategories(other->Dimension(1), 2);
  const TableOwner table = makeTable(0);
  table->CopyDimensions(*other);
  ASSERT_EQ(table->NDimensions(), 3U);
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(std::string(table->Dimension(i).Name()), "d" + std::to_string(i));
  }
  EXPECT_EQ(table->SizeVector(), (std::vector<int>{0, 2, 0}));
  EXPECT_EQ(textOf(table->Dimension(1).Root().ChildAt(1)->Text()), "c1");
}

TEST(OmPivotTableDimensionCopy, KeepsTheSubscriptsOfTheRoots) {
  const TableOwner other = makeTable(2);
  other->Dimension(0).Root()->Subscript(7);
  other->Dimension(1).Root()->Subscript(~0ULL);
  const TableOwner table = makeTable(0);
  table->CopyDimensions(*other);
  EXPECT_EQ(table->Dimension(0).Root()->Subscript(), 7U);
  EXPECT_EQ(table->Dimension(1).Root()->Subscript(), ~0ULL);
}

TEST(OmPivotTableDimensionCopy, CopiesLiveInTheRegionOfTheTableAndOnTheirOwn) {
  TableOwner other = makeTable(1);
  addCategories(other->Dimension(0), 1);
  const TableOwner table = makeTable(0);
  table->CopyDimensions(*other);
  other.reset();
  EXPECT_EQ(&table->Dimension(0).Region(), &dataOf(*table).region);
  EXPECT_TRUE(table->Dimension(0).Name().endsWith(dataOf(*table).region));
  EXPECT_EQ(textOf(table->Dimension(0).Root().FirstChild()->Text()), "c0");
}

TEST(OmPivotTableDimensionCopy, TakesOverNeitherCellsNorAxes) {
  const TableOwner other = makeTable(2);
  store(*other, {0, 0}, "x");
  other->Rows().push_back(0);
  other->Columns().push_back(1);
  const TableOwner table = makeTable(0);
  table->CopyDimensions(*other);
  EXPECT_EQ(rootOf(*table), nullptr);
  EXPECT_EQ(table->getNumCells(), 0);
  EXPECT_EQ(table->Rows().size() + table->Columns().size(), 0U);
}

TEST(OmPivotTableDimensionCopy, LeavesTheOtherTableAlone) {
  const TableOwner other = makeTable(2);
  store(*other, {1, 2}, "x");
  const TableOwner table = makeTable(0);
  table->CopyDimensions(*other);
  table->Dimension(0).Root()->Subscript(9);
  EXPECT_EQ(other->NDimensions(), 2U);
  EXPECT_EQ(other->Dimension(0).Root()->Subscript(), 0U);
  EXPECT_EQ(cellsOf(*other), "(1,2)=x");
}

TEST(OmPivotTableDimensionCopy, CellsCanBeStoredAlongTheCopies) {
  const TableOwner other = makeTable(3);
  const TableOwner table = makeTable(0);
  table->CopyDimensions(*other);
  EXPECT_TRUE(store(*table, {1, 2, 3}, "x"));
  EXPECT_EQ(shapeOf(*table), "4/4{3:3/3{2:2/2{1:x}}}");
}

TEST(OmPivotTableDimensionCopy, NothingToCopyChangesNothing) {
  const TableOwner other = makeTable(0);
  const TableOwner table = makeTable(0);
  table->CopyDimensions(*other);
  table->CopyDimensions(*table);
  EXPECT_EQ(table->NDimensions(), 0U);
}

TEST(OmPivotTableDimensionCopy, IsRefusedByATableThatHasDimensions) {
  const TableOwner other = makeTable(3);
  const TableOwner table = makeTable(2);
  const Thrown expected{"OmPivotTable::CopyDimensions() -- _my->_dimensions.size() != 0", 2, 0};
  EXPECT_EQ(thrownBy([&] { table->CopyDimensions(*other); }), expected);
  EXPECT_EQ(thrownBy([&] { table->CopyDimensions(*table); }), expected);
  EXPECT_EQ(table->NDimensions(), 2U);
}

TEST(OmPivotTableDimensionCopy, IsRefusedAlsoWhereThereIsNothingToCopy) {
  const TableOwner other = makeTable(0);
  const TableOwner table = makeTable(1);
  EXPECT_EQ(thrownBy([&] { table->CopyDimensions(*other); }),
            (Thrown{"OmPivotTable::CopyDimensions() -- _my->_dimensions.size() != 0", 1, 0}));
}

TEST(OmPivotTableDimensionCopy, EndsEachCopiedTextOnce) {
  {
    const TableOwner other = makeTable(0);
    other->AddDimension(CountedText("a"));
    other->AddDimension(CountedText("b"));
    const TableOwner table = makeTable(0);
    table->CopyDimensions(*other);
    EXPECT_EQ(CountedText::live(), 4);
    resetCounted();
  }
  EXPECT_EQ(CountedText::died(), (std::vector<std::string>{"a", "b", "a", "b"}));
}

}  // namespace
}  // namespace om::test
