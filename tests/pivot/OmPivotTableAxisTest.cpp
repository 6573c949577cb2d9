// EndTable: the reconciliation of the axes with the dimensions.

#include <gtest/gtest.h>

#include <cstddef>
#include <ostream>
#include <vector>

#include "tests/pivot/CellTable.h"

namespace om::test {
namespace {

using Axis = std::vector<short>;

struct Axes {
  Axis rows;
  Axis columns;
  Axis layers;

  bool operator==(const Axes&) const = default;
  friend std::ostream& operator<<(std::ostream& out, const Axes& axes) {
    const auto write = [&out](const char* name, const Axis& axis) {
      out << name << '{';
      for (const short entry : axis) out << ' ' << entry;
      out << " } ";
    };
    write("rows", axes.rows);
    write("columns", axes.columns);
    write("layers", axes.layers);
    return out;
  }
};

TableOwner tableWith(std::size_t dimensions, const Axes& axes) {
  TableOwner table = makeTable(dimensions);
  for (const short entry : axes.rows) table->Rows().push_back(entry);
  for (const short entry : axes.columns) table->Columns().push_back(entry);
  for (const short entry : axes.layers) table->Layers().push_back(entry);
  return table;
}

Axes axesOf(const OmPivotTable& table) {
  return {Axis(table.Rows().begin(), table.Rows().end()),
          Axis(table.Columns().begin(), table.Columns().end()),
          Axis(table.Layers().begin(), table.Layers().end())};
}

Axes ended(std::size_t dimensions, const Axes& axes) {
  const TableOwner table = tableWith(dimensions, axes);
  table->EndTable();
  return axesOf(*table);
}

// Expects that EndTable throws these numbers and leaves the axes alone.
void expectRefused(std::size_t dimensions, const Axes& axes, double left) {
  const TableOwner table = tableWith(dimensions, axes);
  EXPECT_EQ(thrownBy([&] { table->EndTable(); }),
            (Thrown{"OmPivotTable::Data::ReindexAxis() -- ndim != nCount",
                    static_cast<double>(dimensions), left}));
  EXPECT_EQ(axesOf(*table), axes);
}

TEST(OmPivotTableAxis, AxesThatAddUpStayAsTheyAre) {
  EXPECT_EQ(ended(3, {{2}, {0, 1}, {}}), (Axes{{2}, {0, 1}, {}}));
}

TEST(OmPivotTableAxis, NothingIsReorderedOrChecked) {
  EXPECT_EQ(ended(4, {{3, 1}, {0}, {2}}), (Axes{{3, 1}, {0}, {2}}));
  EXPECT_EQ(ended(3, {{7}, {7}, {-2}}), (Axes{{7}, {7}, {-2}}));
}

TEST(OmPivotTableAxis, ATableWithoutDimensionsNeedsNoAxes) { EXPECT_EQ(ended(0, {}), Axes()); }

TEST(OmPivotTableAxis, EmptyEntriesThatMakeUpTheNumberStay) {
  EXPECT_EQ(ended(2, {{0}, {-1}, {}}), (Axes{{0}, {-1}, {}}));
  EXPECT_EQ(ended(3, {{-1}, {-1}, {-1}}), (Axes{{-1}, {-1}, {-1}}));
}

TEST(OmPivotTableAxis, SurplusEmptyEntriesAreDropped) {
  EXPECT_EQ(ended(3, {{0}, {1, -1}, {2}}), (Axes{{0}, {1}, {2}}));
}

TEST(OmPivotTableAxis, EmptyEntriesAreDroppedFromEveryAxisAndTheOrderStays) {
  EXPECT_EQ(ended(6, {{-1, 5, -1, 0}, {1, -1, -1, 4}, {-1, 3, 2, -1}}),
            (Axes{{5, 0}, {1, 4}, {3, 2}}));
}

TEST(OmPivotTableAxis, OnlyEmptyEntriesAreDroppedToo) {
  EXPECT_EQ(ended(1, {{-1, -1}, {-1}, {0}}), (Axes{{}, {}, {0}}));
  EXPECT_EQ(ended(0, {{-1}, {-1}, {-1}}), Axes());
}

TEST(OmPivotTableAxis, AllEmptyEntriesAreDroppedOrNone) {
  // Dropping one of the two would make the number fit.
  expectRefused(2, {{0}, {-1, -1}, {}}, 1);
}

TEST(OmPivotTableAxis, OtherNegativeEntriesAreNotEmpty) {
  EXPECT_EQ(ended(2, {{-2, -1}, {0}, {}}), (Axes{{-2}, {0}, {}}));
}

TEST(OmPivotTableAxis, TooFewEntriesAreRefused) {
  expectRefused(3, {{0}, {1}, {}}, 2);
  expectRefused(1, {}, 0);
}

TEST(OmPivotTableAxis, TooManyEntriesAreRefused) {
  expectRefused(2, {{0}, {1}, {0}}, 3);
  expectRefused(0, {{0}, {}, {}}, 1);
}

TEST(OmPivotTableAxis, TheCountOfARefusalIsTheOneAfterTheDropping) {
  expectRefused(3, {{0, -1}, {-1}, {-1}}, 1);
  expectRefused(1, {{0, 1, -1}, {2, -1}, {-1}}, 3);
}

TEST(OmPivotTableAxis, ARefusalLeavesEmptyEntriesOfEveryAxisInPlace) {
  expectRefused(9, {{-1, 0}, {1, -1}, {-1, 2, -1}}, 3);
}

TEST(OmPivotTableAxis, ARefusedTableCanBeMendedAndEnded) {
  const TableOwner table = tableWith(2, {{0, -1, -1}, {}, {}});
  EXPECT_NE(thrownBy([&] { table->EndTable(); }), Thrown());
  table->Columns().push_back(1);
  table->EndTable();
  EXPECT_EQ(axesOf(*table), (Axes{{0}, {1}, {}}));
}

TEST(OmPivotTableAxis, EndingTwiceChangesNothingMore) {
  const TableOwner table = tableWith(2, {{0, -1}, {1}, {}});
  table->EndTable();
  table->EndTable();
  EXPECT_EQ(axesOf(*table), (Axes{{0}, {1}, {}}));
}

TEST(OmPivotTableAxis, ATableCanBeChangedAfterItsEnd) {
  const TableOwner table = tableWith(1, {{0}, {}, {}});
  table->EndTable();
  table->AddDimension(OmStringCell("d1"));
  EXPECT_TRUE(store(*table, {0, 0}, "x"));
  table->Columns().push_back(1);
  table->EndTable();
  EXPECT_EQ(axesOf(*table), (Axes{{0}, {1}, {}}));
}

TEST(OmPivotTableAxis, CellsAndDimensionsAreLeftAlone) {
  const TableOwner table = tableWith(2, {{0, -1}, {1}, {}});
  store(*table, {1, 2}, "x");
  table->EndTable();
  EXPECT_EQ(cellsOf(*table), "(1,2)=x");
  EXPECT_EQ(table->NDimensions(), 2U);
  EXPECT_EQ(table->getNumCells(), 1);
}

}  // namespace
}  // namespace om::test
