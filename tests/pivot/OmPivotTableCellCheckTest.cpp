// What the cell operations refuse, with the whole message, and the order of the checks.

#include <gtest/gtest.h>

#include <climits>
#include <string>
#include <utility>
#include <vector>

#include "tests/pivot/CellTable.h"
#include "tests/support/Counted.h"

namespace om::test {
namespace {

const char* const kLength = "OmPivotTable::Cell() -- nind != _my->_dimensions.size()";
const char* const kSign = "OmPivotTable::Cell() -- subscript < 0";

// 2^64 - 1 is not a double; the nearest one is 2^64.
constexpr double kMinusOneUnsigned = 18446744073709551616.0;

Thrown thrownByGet(OmPivotTable& table, const Index& index) {
  return thrownBy([&] { table.Cell(index); });
}
Thrown thrownByConstGet(const OmPivotTable& table, const Index& index) {
  return thrownBy([&] { table.Cell(index); });
}
Thrown thrownByStore(OmPivotTable& table, const Index& index) {
  return thrownBy([&] { store(table, index, "x"); });
}
Thrown thrownByClear(OmPivotTable& table, const Index& index) {
  return thrownBy([&] { clear(table, index); });
}

void expectThrownByAll(OmPivotTable& table, const Index& index, const Thrown& expected) {
  EXPECT_EQ(thrownByGet(table, index), expected);
  EXPECT_EQ(thrownByConstGet(table, index), expected);
  EXPECT_EQ(thrownByStore(table, index), expected);
  EXPECT_EQ(thrownByClear(table, index), expected);
}

TEST(OmPivotTableCellCheck, AShortIndexIsRefusedByAllForms) {
  const TableOwner table = makeTable(2);
  expectThrownByAll(*table, {0}, {kLength, 1, 2});
  expectThrownByAll(*table, {}, {kLength, 0, 2});
}

TEST(OmPivotTableCellCheck, ALongIndexIsRefusedByAllForms) {
  const TableOwner table = makeTable(2);
  expectThrownByAll(*table, {0, 0, 0}, {kLength, 3, 2});
}

TEST(OmPivotTableCellCheck, AnIndexIsRefusedByAllFormsOfATableWithoutDimensions) {
  const TableOwner table = makeTable(0);
  expectThrownByAll(*table, {0}, {kLength, 1, 0});
}

TEST(OmPivotTableCellCheck, TheEmptyIndexOfATableWithoutDimensionsFindsNothing) {
  const TableOwner table = makeTable(0);
  EXPECT_EQ(table->Cell({}), nullptr);
  EXPECT_EQ(std::as_const(*table).Cell({}), nullptr);
}

TEST(OmPivotTableCellCheck, TheEmptyIndexOfATableWithoutDimensionsIsRefusedByTheStoreForms) {
  const TableOwner table = makeTable(0);
  EXPECT_EQ(thrownByStore(*table, {}), (Thrown{kLength, 0, 0}));
  EXPECT_EQ(thrownByClear(*table, {}), (Thrown{kLength, 0, 0}));
}

TEST(OmPivotTableCellCheck, ANegativeSubscriptIsRefusedByAllFormsAndNamedAsUnsigned) {
  const TableOwner table = makeTable(2);
  expectThrownByAll(*table, {0, -1}, {kSign, kMinusOneUnsigned, 0});
  expectThrownByAll(*table, {-1, 0}, {kSign, kMinusOneUnsigned, 0});
}

TEST(OmPivotTableCellCheck, TheSmallestSubscriptIsNamedAsUnsigned) {
  const TableOwner table = makeTable(1);
  // 2^64 - 2^31 is a double.
  expectThrownByAll(*table, {INT_MIN}, {kSign, 18446744073709551616.0 - 2147483648.0, 0});
}

TEST(OmPivotTableCellCheck, TheFirstNegativeSubscriptIsNamed) {
  const TableOwner table = makeTable(3);
  // -4096 and -8192 are told apart by a double of this size.
  expectThrownByAll(*table, {0, -4096, -8192}, {kSign, 18446744073709551616.0 - 4096.0, 0});
  expectThrownByAll(*table, {-8192, 0, -4096}, {kSign, 18446744073709551616.0 - 8192.0, 0});
}

TEST(OmPivotTableCellCheck, ANegativeSubscriptIsRefusedWhateverIsStored) {
  const TableOwner table = makeTable(2);
  store(*table, {0, 0}, "a");
  store(*table, {3, 5}, "b");
  expectThrownByAll(*table, {-1, 5}, {kSign, kMinusOneUnsigned, 0});
  expectThrownByAll(*table, {9, -1}, {kSign, kMinusOneUnsigned, 0});
  expectThrownByAll(*table, {-1, 9}, {kSign, kMinusOneUnsigned, 0});
}

TEST(OmPivotTableCellCheck, TheLengthIsCheckedBeforeTheSigns) {
  const TableOwner table = makeTable(2);
  expectThrownByAll(*table, {-1}, {kLength, 1, 2});
  expectThrownByAll(*table, {-1, -1, -1}, {kLength, 3, 2});
}

TEST(OmPivotTableCellCheck, TheTextOfTheExceptionHasBothValues) {
  const TableOwner table = makeTable(2);
  try {
    store(*table, {0, -1}, "x");
    ADD_FAILURE() << "stored";
  } catch (const OMSException& exception) {
    EXPECT_STREQ(exception.what(),
                 "OmPivotTable::Cell() -- subscript < 0, value 1 == 1.84467e+19, value 2 == 0");
  }
}

TEST(OmPivotTableCellCheck, ARefusedStoreLeavesTheCellsAlone) {
  const TableOwner table = makeTable(2);
  store(*table, {0, 0}, "a");
  const std::string before = shapeOf(*table);
  for (const Index& index : std::vector<Index>{{}, {0}, {0, -1}, {-1, 0}, {0, 0, 0}}) {
    thrownByStore(*table, index);
    thrownByClear(*table, index);
  }
  EXPECT_EQ(shapeOf(*table), before);
}

TEST(OmPivotTableCellCheck, ARefusedStoreKeepsNoClone) {
  const TableOwner table = makeTable(2);
  const CountedText text("a");
  thrownBy([&] { table->Cell({0}, text); });
  thrownBy([&] { table->Cell({-1, 0}, text); });
  EXPECT_EQ(CountedText::live(), 1);
}

}  // namespace
}  // namespace om::test
