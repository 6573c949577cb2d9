// The census of a table's cells, the set of positions, and the two scans, seen from inside.

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "display/internal/EmptinessScan.h"
#include "display/internal/PositionSet.h"
#include "tests/display/DisplayTable.h"
#include "tests/support/Oracle.h"

namespace om::test {
namespace {

using internal::PositionSet;
using internal::takeCensus;

// A table of 10 x 100 places with cells in the first ones of its first row.
TableOwner thousandPlaces(int cells) {
  TableOwner table = tableOf({.dimensions = {flat("A", "a", 100), flat("B", "b", 10)}});
  for (int i = 0; i < cells; ++i) store(*table, {i, 0}, "x");
  return table;
}

TEST(Census, OneCellLessThanOnePerCentIsSparse) {
  EXPECT_TRUE(takeCensus(*thousandPlaces(9)).sparse);
  EXPECT_EQ(takeCensus(*thousandPlaces(9)).cells, 9U);
}

TEST(Census, OnePerCentIsNotSparse) {
  EXPECT_FALSE(takeCensus(*thousandPlaces(10)).sparse);
  EXPECT_FALSE(takeCensus(*thousandPlaces(11)).sparse);
}

TEST(Census, StopsToCountWhenItIsCertain) { EXPECT_EQ(takeCensus(*thousandPlaces(50)).cells, 10U); }

TEST(Census, OnePerCentIsRoundedHalfUp) {
  // 49 places need no cell to be not sparse, 50 to 149 need one, 150 two.
  EXPECT_FALSE(takeCensus(*tableOf({.dimensions = {flat("A", "a", 49)}})).sparse);
  EXPECT_TRUE(takeCensus(*tableOf({.dimensions = {flat("A", "a", 50)}})).sparse);
  const TableText one{.dimensions = {flat("A", "a", 149)}, .cells = {{0}}};
  EXPECT_FALSE(takeCensus(*tableOf(one)).sparse);
  const TableText two{.dimensions = {flat("A", "a", 150)}, .cells = {{0}}};
  EXPECT_TRUE(takeCensus(*tableOf(two)).sparse);
}

TEST(Census, NoPlacesAndNoDimensionsAreNotSparse) {
  EXPECT_FALSE(takeCensus(*tableOf({})).sparse);
  EXPECT_FALSE(takeCensus(*tableOf({.dimensions = {flat("A", "a", 1000), "B(G())"}})).sparse);
}

TEST(Census, CountsTheCellsThatAnIterationMeets) {
  // The way to (0, 0) is left behind by clearing it, and an iteration deliberately ends there.
  const TableOwner table = thousandPlaces(0);
  store(*table, {0, 0}, "x");
  clear(*table, {0, 0});
  for (int i = 0; i < 50; ++i) store(*table, {i, 1}, "x");
  EXPECT_TRUE(takeCensus(*table).sparse);
  EXPECT_EQ(takeCensus(*table).cells, 0U);
}

TEST(Census, MorePlacesThanCanBeCountedAreSparse) {
  TableOwner table = tableOf({});
  for (int i = 0; i < 5; ++i) {
    OmDimension& dimension = table->AddDimension(OmStringCell("far"));
    dimension.AddNewChild(dimension.Root(), OmStringCell("a"), 2000000000, false);
    OmDimension::Node doomed = dimension.AddNewChild(dimension.Root(), OmStringCell("b"), 0, false);
    dimension.Delete(doomed);  // counts the categories anew, up to the largest subscript
  }
  ASSERT_EQ(table->Size(0), 2000000001U);
  EXPECT_TRUE(takeCensus(*table).sparse);
}

TEST(PositionSet, GivesEachPositionOnceAndAscending) {
  for (const std::uint64_t expected : {std::uint64_t{0}, std::uint64_t{1000}}) {  // few; many
    PositionSet set(10000, expected);
    for (const std::uint64_t position : {9999ULL, 0ULL, 64ULL, 63ULL, 0ULL, 9999ULL}) {
      set.insert(position);
    }
    EXPECT_EQ(set.ascending(), (Positions{0, 63, 64, 9999}));
  }
}

TEST(PositionSet, IsEmptyAtFirst) {
  EXPECT_TRUE(PositionSet(100, 100).ascending().empty());
  EXPECT_TRUE(PositionSet(1ULL << 60, 3).ascending().empty());
}

TEST(PositionSet, HoldsPositionsOfAnAxisWithoutPlaces) {
  EXPECT_TRUE(PositionSet(0, 0).ascending().empty());
}

TEST(PositionSet, IsAnOrderedSet) {
  Random random(62);
  for (int run = 0; run < 200; ++run) {
    const std::size_t axis = 1 + random.below(5000);
    const std::size_t count = random.below(200);
    PositionSet set(axis, count);
    std::set<unsigned long long> naive;
    for (std::size_t i = 0; i < count; ++i) {
      const std::size_t position = random.below(axis);
      set.insert(position);
      naive.insert(position);
    }
    ASSERT_EQ(set.ascending(), Positions(naive.begin(), naive.end())) << "run " << run;
  }
}

// ---- Tables whose positions are found in memory and time that follow the cells

TEST(SparseScan, FindsTheCellsOfAnAxisOfManyPositions) {
  // 3000 x 3000 rows and 3000 columns; cells at (i, 2 i, 3 i).
  TableOwner table = tableOf({.rows = {0, 1}, .columns = {2}});
  for (const char* const name : {"A", "B", "C"}) {
    addCategories(table->AddDimension(OmStringCell(name)), 3000);
  }
  for (int i = 0; i < 1000; ++i) store(*table, {i, 2 * i, 3 * i}, "x");
  OmDisplayLayerHeading layers(*table, false);
  layers.NextLayer();
  const OmDisplayRowHeading rows(layers, true, false);
  const OmDisplayColumnHeading columns(layers, true);
  ASSERT_EQ(rows.NRows(), 1000);
  ASSERT_EQ(columns.NColumns(), 1000);
  for (int i = 0; i < 1000; ++i) {
    ASSERT_EQ(textOfIndex(filled(rows, i)),
              std::to_string(i) + "," + std::to_string(2 * i) + ",-7");
    ASSERT_EQ(textOfIndex(filled(columns, i)), "-7,-7," + std::to_string(3 * i));
  }
}

// A category whose subscript no cell can have holds none, and is no error.
TEST(DenseScan, ACategoryThatCanHaveNoCellIsEmpty) {
  const TableOwner table = tableOf({.dimensions = {"A(a0 a1 a2)", "B(b0 b1)"},
                                    .rows = {0},
                                    .columns = {1},
                                    .cells = {{0, 0}, {1, 0}, {1, 1}}});
  table->Dimension(0).Root().FirstChild()->Subscript(~0ULL);
  OmDisplayLayerHeading layers(*table, false);
  layers.NextLayer();
  EXPECT_EQ(OmDisplayRowHeading(layers, true, false).getNonEmptyRows(), Positions{1});
  EXPECT_EQ(OmDisplayColumnHeading(layers, true).getNonEmptyColumns(), (Positions{0, 1}));
}

}  // namespace
}  // namespace om::test
