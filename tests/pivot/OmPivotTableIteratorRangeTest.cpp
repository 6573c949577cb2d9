// A table as a range of (index, text), and its iterators with the standard algorithms.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <ranges>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "tests/pivot/CellTable.h"

namespace om::test {
namespace {

using Iterator = OmPivotTable::Iterator;
using ConstIterator = OmPivotTable::ConstIterator;

static_assert(std::input_iterator<Iterator>);
static_assert(std::input_iterator<ConstIterator>);
static_assert(std::sentinel_for<Iterator, Iterator>);
static_assert(std::sentinel_for<ConstIterator, ConstIterator>);
static_assert(std::regular<Iterator> && std::regular<ConstIterator>);
static_assert(std::ranges::input_range<OmPivotTable&>);
static_assert(std::ranges::input_range<const OmPivotTable&>);
static_assert(
    std::is_same_v<std::iterator_traits<Iterator>::iterator_category, std::input_iterator_tag>);
static_assert(std::is_same_v<decltype((*std::declval<Iterator&>()).text), OmCellText&>);
static_assert(std::is_same_v<decltype((*std::declval<ConstIterator&>()).text), const OmCellText&>);
static_assert(std::is_nothrow_move_constructible_v<Iterator>);
static_assert(std::is_nothrow_move_assignable_v<Iterator>);

TableOwner threeCells() {
  TableOwner table = makeTable(2);
  store(*table, {4, 0}, "a");
  store(*table, {1, 2}, "b");
  store(*table, {3, 2}, "c");
  return table;
}

TEST(OmPivotTableIteratorRange, ARangeForVisitsIndexAndText) {
  const TableOwner table = threeCells();
  std::string visited;
  for (auto [index, text] : *table) {
    static_assert(std::is_same_v<decltype(text), OmCellText&>);
    visited += std::to_string(index[0]) + std::to_string(index[1]) + std::string(text) + " ";
  }
  EXPECT_EQ(visited, "40a 12b 32c ");
}

TEST(OmPivotTableIteratorRange, ARangeForOverAConstTableVisitsConstTexts) {
  const TableOwner table = threeCells();
  std::string visited;
  for (auto [index, text] : std::as_const(*table)) {
    static_assert(std::is_same_v<decltype(text), const OmCellText&>);
    visited += std::to_string(index[0]) + std::to_string(index[1]) + std::string(text) + " ";
  }
  EXPECT_EQ(visited, "40a 12b 32c ");
}

TEST(OmPivotTableIteratorRange, TheTextsOfARangeAreThoseOfTheTable) {
  const TableOwner table = threeCells();
  for (const auto& [index, text] : *table) EXPECT_EQ(&text, table->Cell(index));
}

TEST(OmPivotTableIteratorRange, AnEmptyTableIsAnEmptyRange) {
  for (std::size_t dimensions = 0; dimensions < 3; ++dimensions) {
    const TableOwner table = makeTable(dimensions);
    EXPECT_EQ(table->begin(), table->end());
    EXPECT_EQ(std::ranges::distance(*table), 0);
  }
}

TEST(OmPivotTableIteratorRange, BeginIsTheFirstCell) {
  const TableOwner table = threeCells();
  EXPECT_EQ(table->begin(), table->FirstCell());
  EXPECT_EQ(std::as_const(*table).begin(), std::as_const(*table).FirstCell());
}

TEST(OmPivotTableIteratorRange, ARangeEndsEarlyAsTheIterationDoes) {
  const TableOwner table = threeCells();
  clear(*table, {4, 0});
  EXPECT_EQ(table->begin(), table->end());
}

TEST(OmPivotTableIteratorRange, PostIncrementGivesThePlaceBefore) {
  const TableOwner table = threeCells();
  Iterator at = table->begin();
  const Iterator before = at++;
  EXPECT_EQ(before.Index(), (Index{4, 0}));
  EXPECT_EQ(at.Index(), (Index{1, 2}));
  EXPECT_EQ(std::string((*at++).text), "b");
  EXPECT_EQ(std::string((*at).text), "c");
}

TEST(OmPivotTableIteratorRange, PostIncrementAtTheEndStaysThere) {
  Iterator at;
  EXPECT_EQ(at++, Iterator());
  EXPECT_EQ(at, Iterator());
}

TEST(OmPivotTableIteratorRange, AnEntryGivesIndexAndCellOfItsIterator) {
  const TableOwner table = threeCells();
  const ConstIterator at = std::as_const(*table).begin();
  const ConstIterator::Entry entry = *at;
  EXPECT_EQ(&entry.index, &at.Index());
  EXPECT_EQ(&entry.text, at.Cell());
}

TEST(OmPivotTableIteratorRange, DistanceIsTheNumberOfCells) {
  const TableOwner table = threeCells();
  EXPECT_EQ(std::distance(table->begin(), table->end()), 3);
  EXPECT_EQ(std::ranges::distance(std::as_const(*table)), 3);
}

TEST(OmPivotTableIteratorRange, FindIfStopsAtTheCell) {
  const TableOwner table = threeCells();
  const Iterator found =
      std::find_if(table->begin(), table->end(),
                   [](const Iterator::Entry& entry) { return std::string(entry.text) == "b"; });
  ASSERT_NE(found, table->end());
  EXPECT_EQ(found.Index(), (Index{1, 2}));
  EXPECT_EQ(std::ranges::find_if(*table, [](const auto& entry) { return entry.index[0] == 9; }),
            table->end());
}

TEST(OmPivotTableIteratorRange, CountIfAndForEachVisitEveryCell) {
  const TableOwner table = threeCells();
  EXPECT_EQ(std::count_if(table->begin(), table->end(),
                          [](const Iterator::Entry& entry) { return entry.index[1] == 2; }),
            2);
  std::string visited;
  std::ranges::for_each(std::as_const(*table),
                        [&](const auto& entry) { visited += std::string(entry.text); });
  EXPECT_EQ(visited, "abc");
}

TEST(OmPivotTableIteratorRange, TransformCopiesTheIndexes) {
  const TableOwner table = threeCells();
  std::vector<Index> indexes;
  std::transform(table->begin(), table->end(), std::back_inserter(indexes),
                 [](const Iterator::Entry& entry) { return entry.index; });
  EXPECT_EQ(indexes, (std::vector<Index>{{4, 0}, {1, 2}, {3, 2}}));
}

TEST(OmPivotTableIteratorRange, NextGoesSeveralCellsAhead) {
  const TableOwner table = threeCells();
  EXPECT_EQ(std::ranges::next(table->begin(), 2).Index(), (Index{3, 2}));
  EXPECT_EQ(std::ranges::next(table->begin(), 9, table->end()), table->end());
}

}  // namespace
}  // namespace om::test
