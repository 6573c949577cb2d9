// Tables when memory runs out: whichever allocation fails, the table is as before but for the count
// of cells, and nothing is left behind.

#include <gtest/gtest.h>

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "external/cells/OmMemoryRegion.h"
#include "external/cells/OmVariableCell.h"
#include "tests/pivot/CellTable.h"
#include "tests/support/Allocations.h"

namespace om::test {
namespace {

const char* const kLong = "a text of more than eight characters";

// A text whose characters are blocks of operator new, so that it is missed when it is not
// destroyed.
OmVariableCell variable(const std::string& label) { return {"a name that takes a block", label}; }

// All that a table shows of dimensions, axes and cells.
std::string everything(const OmPivotTable& table) {
  std::string all = cellsOf(table) + ";";
  for (std::size_t i = 0; i < table.NDimensions(); ++i) {
    const OmDimension& dimension = table.Dimension(static_cast<int>(i));
    all += " " + std::string(dimension.Name()) + "=" + std::to_string(dimension.NumCategories()) +
           "/" + std::to_string(dimension.Root()->Subscript());
  }
  for (const auto* const axis : {&table.Rows(), &table.Columns(), &table.Layers()}) {
    all += ";";
    for (const short entry : *axis) all += " " + std::to_string(entry);
  }
  return all + (table.IsScratched() ? "; scratched" : "");
}

using Axis = std::vector<short>;
using Operation = std::function<void(OmPivotTable&)>;

// Fails each allocation of an operation on a new table of two dimensions with these cells. Gives
// the number of failures.
std::size_t expectUnchangedByFailure(const std::vector<Index>& cells, const Operation& operation) {
  return failEveryAllocation([&](FailurePoint& point) {
    const TableOwner table = makeTable(2);
    for (const Index& index : cells) table->Cell(index, variable(kLong));
    const std::string before = everything(*table);
    const bool completed = point.during([&] { operation(*table); });
    EXPECT_NE(completed, point.failed());
    if (!completed) {
      EXPECT_EQ(everything(*table), before);
    }
  });
}

// The same for storing at an index, where also the region has to be as before.
std::size_t expectStoreFails(const std::vector<Index>& cells, const Index& index) {
  const OmVariableCell text = variable("another text of more than eight");
  return failEveryAllocation([&](FailurePoint& point) {
    const TableOwner table = makeTable(2);
    for (const Index& cell : cells) table->Cell(cell, variable(kLong));
    const std::string before = everything(*table);
    const std::size_t blocks = dataOf(*table).region.BlocksInUse();
    bool stored = false;
    if (point.during([&] { stored = table->Cell(index, text); })) {
      EXPECT_TRUE(stored);
      EXPECT_EQ(table->Cell(index)->Compare(text), 0);
      return;
    }
    EXPECT_EQ(everything(*table), before);
    EXPECT_EQ(dataOf(*table).region.BlocksInUse(), blocks);
    EXPECT_EQ(table->getNumCells(), static_cast<long>(cells.size()) + 1);
  });
}

TEST(OmPivotTableCellAllocation, TheFirstCellLeavesNoRootWhenItFails) {
  // Clone, its characters, two nodes and their storage.
  EXPECT_GE(expectStoreFails({}, {0, 0}), 5U);
  EXPECT_EQ(failEveryAllocation([](FailurePoint& point) {
              const TableOwner table = makeTable(2);
              const Index index{0, 0};
              if (!point.during([&] { table->Cell(index, nullptr); })) {
                EXPECT_EQ(rootOf(*table), nullptr);
              }
            }),
            4U);
}

TEST(OmPivotTableCellAllocation, ACellOnANewBranchLeavesNoBranchWhenItFails) {
  EXPECT_GE(expectStoreFails({{0, 3}}, {2, 5}), 3U);
}

// An iteration would end at a first branch without a cell.
TEST(OmPivotTableCellAllocation, ABranchBeforeTheFirstCellIsTakenBackWhenItFails) {
  EXPECT_GE(expectStoreFails({{0, 3}}, {2, 0}), 3U);
}

TEST(OmPivotTableCellAllocation, AGrowingLeafStaysAsItWas) {
  EXPECT_GE(expectStoreFails({{0, 0}, {1, 0}, {2, 0}, {3, 0}}, {4, 0}), 2U);
  EXPECT_GE(expectStoreFails({{0, 0}}, {1000, 0}), 2U);
}

TEST(OmPivotTableCellAllocation, AGrowingRootStaysAsItWas) {
  EXPECT_GE(expectStoreFails({{0, 0}, {0, 1}, {0, 2}, {0, 3}}, {0, 4}), 4U);
  EXPECT_GE(expectStoreFails({{0, 0}}, {0, 1000}), 4U);
}

TEST(OmPivotTableCellAllocation, AReplacedCellStays) {
  EXPECT_GE(expectStoreFails({{0, 0}, {1, 1}}, {1, 1}), 1U);
}

TEST(OmPivotTableCellAllocation, AReplacedCellStaysAlsoWhenItsMetadataCannotBeKept) {
  const OmVariableCell text = variable("new");
  const OmCellMetaData meta{"a statistic with a long name", {"variable"}, "details"};
  EXPECT_GE(failEveryAllocation([&](FailurePoint& point) {
              const TableOwner table = makeTable(1);
              table->Cell({0}, variable("old"));
              table->Cell({0})->setMeta(meta);
              const Index index{0};
              const bool completed = point.during([&] { table->Cell(index, text); });
              EXPECT_EQ(cellAt(*table, {0}), completed ? "new" : "old");
              EXPECT_EQ(table->Cell({0})->getMeta(), meta);
            }),
            2U);
}

TEST(OmPivotTableCellAllocation, ACellStoredOverItselfStays) {
  EXPECT_GE(expectUnchangedByFailure({{0, 0}},
                                     [](OmPivotTable& table) {
                                       const Index index{0, 0};
                                       table.Cell(index, table.Cell(index));
                                     }),
            2U);
}

TEST(OmPivotTableCellAllocation, ClearingAFarPlaceLeavesTheTableAsItWas) {
  EXPECT_GE(expectUnchangedByFailure({{0, 1}},
                                     [](OmPivotTable& table) {
                                       const Index index{1000, 0};
                                       table.Cell(index, nullptr);
                                     }),
            3U);
}

TEST(OmPivotTableCellAllocation, AStoreThatFailedSucceedsWhenItIsRepeated) {
  const OmStringCell text("x");
  EXPECT_GE(failEveryAllocation([&](FailurePoint& point) {
              const TableOwner table = makeTable(3);
              store(*table, {0, 0, 1}, "a");
              const Index index{9, 9, 0};
              if (!point.during([&] { table->Cell(index, text); })) table->Cell(index, text);
              EXPECT_EQ(cellsOf(*table), "(9,9,0)=x (0,0,1)=a");
            }),
            5U);
}

TEST(OmPivotTableCellAllocation, ClearingAndDeletingAStoredCellAllocatesNothing) {
  const TableOwner table = makeTable(2);
  for (int i = 0; i < 5; ++i) table->Cell({i, i}, variable(kLong));
  FailurePoint point(1);
  const Index first{1, 1};
  const Index second{2, 2};
  EXPECT_TRUE(point.during([&] {
    table->Cell(first, nullptr);
    table->deleteCell(first);
    table->deleteCell(second);
  }));
  EXPECT_EQ(table->Cell(first), nullptr);
  EXPECT_EQ(table->Cell(second), nullptr);
}

TEST(OmPivotTableCellAllocation, ADimensionThatCannotBeMadeLeavesTheTableAsItWas) {
  const OmVariableCell label = variable("a label of more than eight characters");
  EXPECT_GE(expectUnchangedByFailure({{0, 1}, {2, 0}},
                                     [&](OmPivotTable& table) { table.AddDimension(label); }),
            4U);
  EXPECT_GE(expectUnchangedByFailure({}, [&](OmPivotTable& table) { table.AddDimension(label); }),
            3U);
}

TEST(OmPivotTableCellAllocation, ADimensionThatCannotBeCopiedLeavesTheTableAsItWas) {
  const TableOwner other = makeTable(0);
  OmDimension& source = other->AddDimension(variable(kLong));
  addCategories(source, 5);
  source.Child(source.Root(), variable(kLong), 5, false);
  EXPECT_GE(expectUnchangedByFailure({{0, 1}, {2, 0}},
                                     [&](OmPivotTable& table) { table.AddDimension(source); }),
            10U);
}

TEST(OmPivotTableCellAllocation, AFullListOfDimensionsStaysAsItWas) {
  const OmStringCell label("x");
  EXPECT_GE(failEveryAllocation([&](FailurePoint& point) {
              const TableOwner table = makeTable(4);
              store(*table, {1, 2, 3, 0}, "a");
              const std::string before = everything(*table);
              const bool completed = point.during([&] { table->AddDimension(label); });
              EXPECT_EQ(table->NDimensions(), completed ? 5U : 4U);
              if (!completed) {
                EXPECT_EQ(everything(*table), before);
              }
            }),
            4U);
}

TEST(OmPivotTableCellAllocation, DimensionsThatCannotAllBeCopiedLeaveTheTableWithoutAny) {
  const TableOwner other = makeTable(5);
  other->AddDimension(variable(kLong));
  EXPECT_GE(failEveryAllocation([&](FailurePoint& point) {
              const TableOwner table = makeTable(0);
              const bool completed = point.during([&] { table->CopyDimensions(*other); });
              EXPECT_EQ(table->NDimensions(), completed ? 6U : 0U);
            }),
            12U);
}

TEST(OmPivotTableCellAllocation, ATableThatCannotBeMadeLeavesNothing) {
  const OmVariableCell title = variable("a title of more than eight characters");
  const OmVariableCell name = variable("a name of more than eight characters");
  EXPECT_GE(failEveryAllocation([&](FailurePoint& point) {
              TableOwner table;
              const bool completed =
                  point.during([&] { table = std::make_unique<OmPivotTable>(title, name, false); });
              EXPECT_EQ(table != nullptr, completed);
            }),
            5U);
}

TEST(OmPivotTableCellAllocation, AxesThatCannotBeReconciledStayAsTheyWere) {
  EXPECT_GE(failEveryAllocation([](FailurePoint& point) {
              const TableOwner table = makeTable(3);
              for (const short entry : Axis{-1, 0}) table->Rows().push_back(entry);
              for (const short entry : Axis{1, -1}) table->Columns().push_back(entry);
              for (const short entry : Axis{-1, 2}) table->Layers().push_back(entry);
              const std::string before = everything(*table);
              const bool completed = point.during([&] { table->EndTable(); });
              if (!completed) {
                EXPECT_EQ(everything(*table), before);
              }
              if (completed) {
                EXPECT_EQ(table->Layers().size(), 1U);
              }
            }),
            3U);
}

TEST(OmPivotTableCellAllocation, AnIterationThatCannotBeginLeavesTheTableAsItWas) {
  EXPECT_GE(expectUnchangedByFailure({{0, 1}}, [](OmPivotTable& table) { table.FirstCell(); }), 3U);
}

TEST(OmPivotTableCellAllocation, AnIteratorThatCannotBeCopiedStaysOnItsCell) {
  const TableOwner table = makeTable(2);
  store(*table, {0, 0}, "a");
  store(*table, {1, 0}, "b");
  EXPECT_GE(failEveryAllocation([&](FailurePoint& point) {
              auto at = table->FirstCell();
              point.during([&] { const OmPivotTable::Iterator copy(at); });
              EXPECT_EQ(at.Index(), (Index{0, 0}));
              EXPECT_EQ((++at).Index(), (Index{1, 0}));
            }),
            3U);
}

TEST(OmPivotTableCellAllocation, AnIteratorThatCannotBeAssignedToStaysOnItsCell) {
  const TableOwner table = makeTable(2);
  store(*table, {0, 0}, "a");
  store(*table, {1, 0}, "b");
  EXPECT_GE(failEveryAllocation([&](FailurePoint& point) {
              const auto first = table->FirstCell();
              auto second = table->FirstCell();
              ++second;
              const bool completed = point.during([&] { second = first; });
              EXPECT_EQ(second.Index(), completed ? (Index{0, 0}) : (Index{1, 0}));
            }),
            3U);
}

TEST(OmPivotTableCellAllocation, GoingOnAndMovingIteratorsAllocatesNothing) {
  const TableOwner table = makeTable(3);
  for (int i = 0; i < 20; ++i) store(*table, {i % 3, i % 5, i}, "x");
  auto at = table->FirstCell();
  FailurePoint point(1);
  int visited = 0;
  EXPECT_TRUE(point.during([&] {
    for (; at.Cell() != nullptr; ++at) ++visited;
    OmPivotTable::Iterator moved(std::move(at));
    at = std::move(moved);
  }));
  EXPECT_EQ(visited, 20);
}

}  // namespace
}  // namespace om::test
