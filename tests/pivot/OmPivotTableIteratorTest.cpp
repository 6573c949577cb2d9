// Iterators over the stored cells: their order, their end, where they end early, and their copies.

#include <gtest/gtest.h>

#include <climits>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "pivot/internal/CellIteration.h"
#include "tests/pivot/CellTable.h"

namespace om::test {
namespace {

using Iterator = OmPivotTable::Iterator;
using ConstIterator = OmPivotTable::ConstIterator;

static_assert(std::is_same_v<decltype(std::declval<OmPivotTable&>().FirstCell()), Iterator>);
static_assert(
    std::is_same_v<decltype(std::declval<const OmPivotTable&>().FirstCell()), ConstIterator>);
static_assert(std::is_same_v<decltype(std::declval<const Iterator&>().Cell()), OmCellText*>);
static_assert(
    std::is_same_v<decltype(std::declval<const ConstIterator&>().Cell()), const OmCellText*>);
static_assert(std::is_same_v<decltype(++std::declval<Iterator&>()), Iterator&>);

TableOwner tableWith(std::size_t dimensions, const std::vector<Index>& indexes) {
  TableOwner table = makeTable(dimensions);
  for (const Index& index : indexes) store(*table, index, "x");
  return table;
}

TEST(OmPivotTableIterator, TheFirstCellOfAnEmptyTableIsNull) {
  for (std::size_t dimensions = 0; dimensions < 4; ++dimensions) {
    const TableOwner table = makeTable(dimensions);
    EXPECT_EQ(table->FirstCell().Cell(), nullptr);
    EXPECT_EQ(std::as_const(*table).FirstCell().Cell(), nullptr);
  }
}

TEST(OmPivotTableIterator, Dimension0VariesFastestAndTheLastOneSlowest) {
  const TableOwner table = tableWith(
      3, {{1, 1, 1}, {0, 0, 1}, {0, 1, 0}, {1, 0, 0}, {0, 0, 0}, {1, 0, 1}, {1, 1, 0}, {0, 1, 1}});
  EXPECT_EQ(cellsOf(*table),
            "(0,0,0)=x (1,0,0)=x (0,1,0)=x (1,1,0)=x (0,0,1)=x (1,0,1)=x (0,1,1)=x (1,1,1)=x");
}

TEST(OmPivotTableIterator, OnlyStoredCellsAreVisited) {
  const TableOwner table = tableWith(2, {{7, 3}, {2, 9}, {0, 3}, {40, 3}});
  EXPECT_EQ(cellsOf(*table), "(0,3)=x (7,3)=x (40,3)=x (2,9)=x");
}

TEST(OmPivotTableIterator, TheOrderDoesNotDependOnTheOrderOfStoring) {
  EXPECT_EQ(cellsOf(*tableWith(1, {{30}, {4}, {11}, {0}})), "(0)=x (4)=x (11)=x (30)=x");
}

TEST(OmPivotTableIterator, CategoriesDoNotBoundTheIteration) {
  const TableOwner table = tableWith(2, {{5, 5}});
  addCategories(table->Dimension(0), 2);
  EXPECT_EQ(cellsOf(*table), "(5,5)=x");
}

TEST(OmPivotTableIterator, GivesTheStoredCellItself) {
  const TableOwner table = tableWith(2, {{1, 2}});
  EXPECT_EQ(table->FirstCell().Cell(), table->Cell({1, 2}));
  EXPECT_EQ(std::as_const(*table).FirstCell().Cell(), table->Cell({1, 2}));
}

TEST(OmPivotTableIterator, TheIndexFollowsTheCell) {
  const TableOwner table = tableWith(3, {{1, 2, 3}, {4, 2, 3}, {0, 0, 5}});
  Iterator at = table->FirstCell();
  EXPECT_EQ(at.Index(), (Index{1, 2, 3}));
  ++at;
  EXPECT_EQ(at.Index(), (Index{4, 2, 3}));
  ++at;
  EXPECT_EQ(at.Index(), (Index{0, 0, 5}));
}

TEST(OmPivotTableIterator, TheIndexFindsTheCellAgain) {
  const TableOwner table = tableWith(2, {{1, 0}, {3, 0}, {0, 4}});
  for (Iterator at = table->FirstCell(); at.Cell() != nullptr; ++at) {
    EXPECT_EQ(table->Cell(at.Index()), at.Cell());
  }
}

TEST(OmPivotTableIterator, StaysAtTheEnd) {
  const TableOwner table = tableWith(2, {{0, 0}, {1, 1}});
  Iterator at = table->FirstCell();
  ++ ++at;
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(at.Cell(), nullptr);
    ++at;
  }
  EXPECT_EQ(at, table->end());
}

TEST(OmPivotTableIterator, IncrementGivesTheIterator) {
  const TableOwner table = tableWith(1, {{0}, {1}});
  Iterator at = table->FirstCell();
  EXPECT_EQ(&++at, &at);
}

TEST(OmPivotTableIterator, ADefaultOneIsAtTheEndAndStaysThere) {
  Iterator at;
  EXPECT_EQ(at.Cell(), nullptr);
  EXPECT_EQ((++at).Cell(), nullptr);
  EXPECT_EQ(at, Iterator());
  ConstIterator constant;
  EXPECT_EQ((++constant).Cell(), nullptr);
}

TEST(OmPivotTableIterator, AnEmptyLeafBehindTheFirstCellIsPassedOver) {
  const TableOwner table = tableWith(2, {{0, 0}, {0, 1}, {0, 2}});
  clear(*table, {0, 1});
  EXPECT_EQ(cellsOf(*table), "(0,0)=x (0,2)=x");
}

TEST(OmPivotTableIterator, ManyEmptyBranchesBehindTheFirstCellArePassedOver) {
  const TableOwner table = tableWith(3, {{0, 0, 0}});
  for (int i = 1; i < 30; ++i) clear(*table, {i, i % 3 + 1, i % 5});
  store(*table, {2, 1, 9}, "y");
  EXPECT_EQ(cellsOf(*table), "(0,0,0)=x (2,1,9)=y");
}

TEST(OmPivotTableIterator, AClearedCellInAFilledLeafIsPassedOver) {
  const TableOwner table = tableWith(2, {{0, 0}, {1, 0}});
  clear(*table, {0, 0});
  EXPECT_EQ(cellsOf(*table), "(1,0)=x");
}

TEST(OmPivotTableIterator, EndsAtOnceWhenTheFirstLeafIsEmpty) {
  const TableOwner table = tableWith(2, {{0, 0}, {0, 1}});
  clear(*table, {0, 0});
  EXPECT_EQ(table->FirstCell().Cell(), nullptr);
  EXPECT_EQ(std::as_const(*table).FirstCell().Cell(), nullptr);
  EXPECT_EQ(table->begin(), table->end());
  EXPECT_EQ(cellAt(*table, {0, 1}), "x");
}

TEST(OmPivotTableIterator, EndsAtOnceWhenTheFirstLeafOfALowerLevelIsEmpty) {
  const TableOwner table = tableWith(3, {{0, 0, 0}, {0, 1, 0}, {0, 0, 1}});
  clear(*table, {0, 0, 0});
  EXPECT_EQ(cellsOf(*table), "");
}

TEST(OmPivotTableIterator, EndsAtOnceForAnEmptyFirstLeafThatClearingMade) {
  const TableOwner table = tableWith(2, {{0, 1}});
  EXPECT_EQ(cellsOf(*table), "(0,1)=x");
  clear(*table, {5, 0});
  EXPECT_EQ(cellsOf(*table), "");
}

TEST(OmPivotTableIterator, StaysAtAnEarlyEnd) {
  const TableOwner table = tableWith(2, {{0, 0}, {0, 1}});
  clear(*table, {0, 0});
  Iterator at = table->FirstCell();
  for (int i = 0; i < 3; ++i) EXPECT_EQ((++at).Cell(), nullptr);
}

TEST(OmPivotTableIterator, DeletingTheClearedPlaceMakesTheIterationWholeAgain) {
  const TableOwner table = tableWith(2, {{0, 0}, {0, 1}});
  clear(*table, {0, 0});
  table->deleteCell({0, 0});
  EXPECT_EQ(cellsOf(*table), "(0,1)=x");
}

TEST(OmPivotTableIterator, FillingTheClearedPlaceMakesTheIterationWholeAgain) {
  const TableOwner table = tableWith(2, {{0, 0}, {0, 1}});
  clear(*table, {0, 0});
  store(*table, {3, 0}, "y");
  EXPECT_EQ(cellsOf(*table), "(3,0)=y (0,1)=x");
}

TEST(OmPivotTableIterator, ACopyGoesItsOwnWay) {
  const TableOwner table = tableWith(2, {{0, 0}, {1, 0}, {0, 1}});
  Iterator at = table->FirstCell();
  ++at;
  Iterator copy(at);
  EXPECT_EQ(copy, at);
  ++at;
  EXPECT_EQ(at.Index(), (Index{0, 1}));
  EXPECT_EQ(copy.Index(), (Index{1, 0}));
  ++copy;
  EXPECT_EQ(copy.Index(), (Index{0, 1}));
  EXPECT_EQ((++copy).Cell(), nullptr);
  EXPECT_NE(at.Cell(), nullptr);
}

TEST(OmPivotTableIterator, ACopyOutlivesItsSource) {
  const TableOwner table = tableWith(1, {{3}, {5}});
  ConstIterator copy;
  {
    const ConstIterator at = std::as_const(*table).FirstCell();
    copy = at;
  }
  EXPECT_EQ(copy.Index(), Index{3});
  EXPECT_EQ((++copy).Index(), Index{5});
}

TEST(OmPivotTableIterator, AssignmentReplacesThePlace) {
  const TableOwner table = tableWith(1, {{3}, {5}});
  const TableOwner other = tableWith(2, {{1, 2}});
  Iterator at = table->FirstCell();
  at = other->FirstCell();
  EXPECT_EQ(at.Index(), (Index{1, 2}));
  const Iterator end;
  at = end;
  EXPECT_EQ(at.Cell(), nullptr);
}

TEST(OmPivotTableIterator, AssignmentToItselfChangesNothing) {
  const TableOwner table = tableWith(1, {{3}, {5}});
  Iterator at = table->FirstCell();
  Iterator& same = at;
  at = same;
  EXPECT_EQ(at.Index(), Index{3});
  EXPECT_EQ((++at).Index(), Index{5});
}

TEST(OmPivotTableIterator, AMovedOneGoesOn) {
  const TableOwner table = tableWith(1, {{3}, {5}});
  Iterator at = table->FirstCell();
  Iterator moved(std::move(at));
  EXPECT_EQ(moved.Index(), Index{3});
  Iterator assigned;
  assigned = std::move(moved);
  EXPECT_EQ((++assigned).Index(), Index{5});
}

TEST(OmPivotTableIterator, EqualAreTwoOnTheSameCellOrAtTheEnd) {
  const TableOwner table = tableWith(1, {{3}, {5}});
  EXPECT_EQ(table->FirstCell(), table->FirstCell());
  EXPECT_NE(table->FirstCell(), ++table->FirstCell());
  EXPECT_NE(table->FirstCell(), table->end());
  EXPECT_EQ(++ ++table->FirstCell(), table->end());
}

TEST(OmPivotTableIterator, TheCellCanBeChangedInPlace) {
  const TableOwner table = tableWith(1, {{3}});
  table->FirstCell().Cell()->Footnotes().push_back(7);
  EXPECT_EQ(table->Cell({3})->Footnotes(), std::vector<short>{7});
}

// The iteration within the library that looks for the first cell everywhere.
TEST(OmPivotTableIterator, ACompleteIterationGoesBeyondAnEmptyFirstBranch) {
  const TableOwner table = tableWith(3, {{0, 0, 0}, {2, 1, 0}, {1, 0, 1}});
  clear(*table, {0, 0, 0});
  internal::CellIteration iteration(rootOf(*table), table->SizeVector());
  std::vector<Index> visited;
  for (iteration.Complete(); iteration.Cell() != nullptr; iteration.Next()) {
    visited.push_back(iteration.Index());
  }
  EXPECT_EQ(visited, (std::vector<Index>{{2, 1, 0}, {1, 0, 1}}));
}

TEST(OmPivotTableIterator, ACompleteIterationWithoutCellsIsAtItsEnd) {
  const TableOwner table = makeTable(2);
  internal::CellIteration without(rootOf(*table), table->SizeVector());
  without.Complete();
  EXPECT_EQ(without.Cell(), nullptr);
  clear(*table, {0, 0});
  internal::CellIteration empty(rootOf(*table), table->SizeVector());
  empty.Complete();
  EXPECT_EQ(empty.Cell(), nullptr);
}

}  // namespace
}  // namespace om::test
