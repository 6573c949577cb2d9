// The dimensions of a table: adding, copying, finding and measuring them.

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "external/cells/OmMemoryRegion.h"
#include "external/cells/OmVariableCell.h"
#include "tests/pivot/CellTable.h"
#include "tests/support/Counted.h"

namespace om::test {
namespace {

using Tables = const OmPivotTable&;
static_assert(std::is_same_v<decltype(std::declval<Tables>().NDimensions()), std::size_t>);
static_assert(std::is_same_v<decltype(std::declval<Tables>().Size(0)), std::size_t>);
static_assert(
    std::is_same_v<
        decltype(std::declval<Tables>().FindDimension(std::declval<const OmCellText&>())), int>);
static_assert(std::is_same_v<decltype(std::declval<Tables>().Dimension(0)), const OmDimension&>);

std::string nameOf(const OmPivotTable& table, int which) {
  return std::string(table.Dimension(which).Name());
}

TEST(OmPivotTableDimension, ATableHasNoneFromTheStart) {
  const TableOwner table = makeTable(0);
  EXPECT_EQ(table->NDimensions(), 0U);
  EXPECT_EQ(table->SizeVector(), std::vector<int>());
}

TEST(OmPivotTableDimension, AreKeptInTheOrderOfTheirAddition) {
  const TableOwner table = makeTable(3);
  EXPECT_EQ(table->NDimensions(), 3U);
  EXPECT_EQ(nameOf(*table, 0), "d0");
  EXPECT_EQ(nameOf(*table, 1), "d1");
  EXPECT_EQ(nameOf(*table, 2), "d2");
}

TEST(OmPivotTableDimension, TheAddedOneIsGivenBack) {
  const TableOwner table = makeTable(1);
  OmDimension& byLabel = table->AddDimension(OmStringCell("x"));
  EXPECT_EQ(&byLabel, &table->Dimension(1));
  OmDimension& byCopy = table->AddDimension(byLabel);
  EXPECT_EQ(&byCopy, &table->Dimension(2));
  EXPECT_EQ(&byCopy, &std::as_const(*table).Dimension(2));
}

TEST(OmPivotTableDimension, StaysInPlaceWhenOthersAreAdded) {
  const TableOwner table = makeTable(1);
  const OmDimension* const first = &table->Dimension(0);
  for (int i = 0; i < 20; ++i) table->AddDimension(OmStringCell("x"));
  EXPECT_EQ(&table->Dimension(0), first);
}

TEST(OmPivotTableDimension, ANewOneIsAnEmptyGroupWithItsPositionForASubscript) {
  const TableOwner table = makeTable(3);
  for (int i = 0; i < 3; ++i) {
    const OmDimension& dimension = table->Dimension(i);
    EXPECT_TRUE(dimension.Root()->IsGroup());
    EXPECT_EQ(dimension.Root()->Subscript(), static_cast<unsigned long long>(i));
    EXPECT_EQ(dimension.Root().ChildCount(), 0U);
    EXPECT_EQ(dimension.NumCategories(), 0);
  }
}

TEST(OmPivotTableDimension, TheCategoriesOfANewOneLiveInTheRegionOfTheTable) {
  const TableOwner table = makeTable(1);
  EXPECT_EQ(&table->Dimension(0).Region(), &dataOf(*table).region);
  addCategories(table->Dimension(0), 1);
  EXPECT_TRUE(table->Dimension(0).Root().FirstChild()->Text()->endsWith(dataOf(*table).region));
}

TEST(OmPivotTableDimension, TheGivenLabelIsCloned) {
  const TableOwner table = makeTable(0);
  { table->AddDimension(CountedText("label")); }
  EXPECT_EQ(nameOf(*table, 0), "label");
  EXPECT_EQ(CountedText::live(), 1);
}

TEST(OmPivotTableDimension, ACopyHasTheCategoriesOfTheOther) {
  const TableOwner other = makeTable(1);
  addCategories(other->Dimension(0), 3);
  const TableOwner table = makeTable(1);
  OmDimension& added = table->AddDimension(other->Dimension(0));
  EXPECT_EQ(nameOf(*table, 1), "d0");
  EXPECT_EQ(added.NumCategories(), 3);
  ASSERT_EQ(added.Root().ChildCount(), 3U);
  EXPECT_EQ(textOf(added.Root().ChildAt(2)->Text()), "c2");
  EXPECT_EQ(added.Root().ChildAt(2)->Subscript(), 2U);
}

TEST(OmPivotTableDimension, TheRootOfACopyGetsItsPositionForASubscript) {
  const TableOwner other = makeTable(1);
  const TableOwner table = makeTable(2);
  EXPECT_EQ(table->AddDimension(other->Dimension(0)).Root()->Subscript(), 2U);
  EXPECT_EQ(other->Dimension(0).Root()->Subscript(), 0U);
}

TEST(OmPivotTableDimension, ACopyLivesInTheRegionOfTheTableAndOnItsOwn) {
  TableOwner other = makeTable(1);
  addCategories(other->Dimension(0), 1);
  const TableOwner table = makeTable(0);
  OmDimension& added = table->AddDimension(other->Dimension(0));
  other.reset();
  EXPECT_EQ(&added.Region(), &dataOf(*table).region);
  EXPECT_TRUE(added.Name().endsWith(dataOf(*table).region));
  EXPECT_EQ(textOf(added.Root().FirstChild()->Text()), "c0");
}

TEST(OmPivotTableDimension, ATableMayCopyItsOwn) {
  const TableOwner table = makeTable(1);
  addCategories(table->Dimension(0), 2);
  // A full list: it has to grow while the dimension is copied.
  for (int i = 0; i < 4; ++i) table->AddDimension(table->Dimension(0));
  EXPECT_EQ(table->SizeVector(), (std::vector<int>{2, 2, 2, 2, 2}));
}

TEST(OmPivotTableDimension, ANegativePositionIsRefused) {
  const TableOwner table = makeTable(2);
  const Thrown expected{"OmPivotTable::Dimension() -- which < 0", -1, 0};
  EXPECT_EQ(thrownBy([&] { table->Dimension(-1); }), expected);
  EXPECT_EQ(thrownBy([&] { std::as_const(*table).Dimension(-1); }), expected);
  EXPECT_EQ(thrownBy([&] { table->Size(-7); }),
            (Thrown{"OmPivotTable::Size() -- which < 0", -7, 0}));
}

TEST(OmPivotTableDimension, APositionBeyondTheLastIsRefused) {
  const TableOwner table = makeTable(2);
  const Thrown expected{"OmPivotTable::Dimension() -- which < NDimensions()", 2, 2};
  EXPECT_EQ(thrownBy([&] { table->Dimension(2); }), expected);
  EXPECT_EQ(thrownBy([&] { std::as_const(*table).Dimension(2); }), expected);
  EXPECT_EQ(thrownBy([&] { table->Size(5); }),
            (Thrown{"OmPivotTable::Size() -- which < NDimensions()", 5, 2}));
}

TEST(OmPivotTableDimension, EveryPositionIsRefusedWithoutDimensions) {
  const TableOwner table = makeTable(0);
  EXPECT_EQ(thrownBy([&] { table->Dimension(0); }),
            (Thrown{"OmPivotTable::Dimension() -- which < NDimensions()", 0, 0}));
  EXPECT_EQ(thrownBy([&] { table->Size(0); }),
            (Thrown{"OmPivotTable::Size() -- which < NDimensions()", 0, 0}));
}

TEST(OmPivotTableDimension, SizesAreTheNumbersOfCategories) {
  const TableOwner table = makeTable(3);
  addCategories(table->Dimension(0), 4);
  addCategories(table->Dimension(2), 1);
  EXPECT_EQ(table->Size(0), 4U);
  EXPECT_EQ(table->Size(1), 0U);
  EXPECT_EQ(table->Size(2), 1U);
  EXPECT_EQ(table->SizeVector(), (std::vector<int>{4, 0, 1}));
}

TEST(OmPivotTableDimension, SizesDoNotGoByTheCells) {
  const TableOwner table = makeTable(1);
  store(*table, {9}, "x");
  EXPECT_EQ(table->Size(0), 0U);
}

TEST(OmPivotTableDimension, IsFoundByItsLabel) {
  const TableOwner table = makeTable(3);
  EXPECT_EQ(table->FindDimension(OmStringCell("d0")), 0);
  EXPECT_EQ(table->FindDimension(OmStringCell("d2")), 2);
}

TEST(OmPivotTableDimension, IsNotFoundByAnotherLabel) {
  const TableOwner table = makeTable(2);
  addCategories(table->Dimension(0), 1);
  EXPECT_EQ(table->FindDimension(OmStringCell("D0")), -1);
  EXPECT_EQ(table->FindDimension(OmStringCell("d")), -1);
  EXPECT_EQ(table->FindDimension(OmStringCell("c0")), -1);
  EXPECT_EQ(makeTable(0)->FindDimension(OmStringCell("d0")), -1);
}

TEST(OmPivotTableDimension, TheFirstOfEqualLabelsIsFound) {
  const TableOwner table = makeTable(2);
  table->AddDimension(OmStringCell("d1"));
  EXPECT_EQ(table->FindDimension(OmStringCell("d1")), 1);
}

TEST(OmPivotTableDimension, IsNotFoundByALabelOfAnotherKindThatComparesAsEqual) {
  const TableOwner table = makeTable(0);
  const OmStringCell text("x");
  const OmVariableCell variable("x", "x");
  ASSERT_EQ(text.Compare(variable), 0);
  table->AddDimension(variable);
  EXPECT_EQ(table->FindDimension(text), -1);
  table->AddDimension(text);
  EXPECT_EQ(table->FindDimension(text), 1);
  EXPECT_EQ(table->FindDimension(variable), 0);
}

}  // namespace
}  // namespace om::test
