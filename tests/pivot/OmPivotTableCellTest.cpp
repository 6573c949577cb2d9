// Storing, finding and clearing cells: what is cloned, what is destroyed, what is kept.

#include <gtest/gtest.h>

#include <climits>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "external/cells/OmMemoryRegion.h"
#include "tests/pivot/CellTable.h"
#include "tests/support/Counted.h"
#include "tests/support/Leaks.h"

namespace om::test {
namespace {

using Names = std::vector<std::string>;

static_assert(std::is_same_v<decltype(std::declval<OmPivotTable&>().Cell(Index())), OmCellText*>);
static_assert(
    std::is_same_v<decltype(std::declval<const OmPivotTable&>().Cell(Index())), const OmCellText*>);
static_assert(std::is_same_v<decltype(std::declval<const OmPivotTable&>().getNumCells()), long>);

OmCellMetaData meta(const std::string& statistic) { return {statistic, {"v1", "v2"}, "details"}; }

OmStringCell* withMeta(OmStringCell& text, const std::string& statistic) {
  text.setMeta(meta(statistic));
  return &text;
}

TEST(OmPivotTableCell, AStoredCellIsFoundAtItsIndexOnly) {
  const TableOwner table = makeTable(3);
  EXPECT_TRUE(store(*table, {1, 2, 3}, "a"));
  EXPECT_EQ(cellAt(*table, {1, 2, 3}), "a");
  EXPECT_EQ(cellAt(*table, {3, 2, 1}), "none");
  EXPECT_EQ(cellAt(*table, {1, 2, 2}), "none");
  EXPECT_EQ(cellAt(*table, {1, 1, 3}), "none");
  EXPECT_EQ(cellAt(*table, {0, 2, 3}), "none");
}

TEST(OmPivotTableCell, BothGetFormsGiveTheSameCell) {
  const TableOwner table = makeTable(1);
  store(*table, {0}, "a");
  OmCellText* const cell = table->Cell({0});
  EXPECT_EQ(std::as_const(*table).Cell({0}), cell);
}

TEST(OmPivotTableCell, SubscriptsBeyondAllStoredOnesFindNothing) {
  const TableOwner table = makeTable(2);
  EXPECT_EQ(cellAt(*table, {0, 0}), "none");
  store(*table, {1, 1}, "a");
  for (const int beyond : {2, 3, 4, 1000, INT_MAX}) {
    EXPECT_EQ(cellAt(*table, {beyond, 1}), "none");
    EXPECT_EQ(cellAt(*table, {1, beyond}), "none");
  }
}

TEST(OmPivotTableCell, CategoriesDoNotBoundTheSubscripts) {
  const TableOwner table = makeTable(1);
  addCategories(table->Dimension(0), 2);
  EXPECT_TRUE(store(*table, {7}, "a"));
  EXPECT_EQ(cellAt(*table, {7}), "a");
}

TEST(OmPivotTableCell, TheTextIsClonedIntoTheRegionOfTheTable) {
  const TableOwner table = makeTable(1);
  const OmStringCell text("a");
  EXPECT_TRUE(table->Cell({0}, text));
  EXPECT_NE(table->Cell({0}), &text);
  EXPECT_TRUE(table->Cell({0})->endsWith(dataOf(*table).region));
}

TEST(OmPivotTableCell, ThePointerFormStoresAClone) {
  const TableOwner table = makeTable(1);
  {
    const CountedText text("a");
    const OmCellText* const pointer = &text;
    EXPECT_TRUE(table->Cell({0}, pointer));
    EXPECT_EQ(CountedText::cloned(), 1);
  }
  EXPECT_EQ(CountedText::live(), 1);
  EXPECT_EQ(cellAt(*table, {0}), "a");
}

TEST(OmPivotTableCell, ANewCellReplacesTheOldOneWhichIsDestroyedOnce) {
  const TableOwner table = makeTable(1);
  table->Cell({0}, CountedText("old"));
  const CountedText text("new");
  resetCounted();
  EXPECT_TRUE(table->Cell({0}, text));
  EXPECT_EQ(CountedText::died(), Names{"old"});
  EXPECT_EQ(CountedText::cloned(), 1);
  EXPECT_EQ(cellAt(*table, {0}), "new");
}

TEST(OmPivotTableCell, NullClearsThePlaceAndDestroysTheCell) {
  const TableOwner table = makeTable(1);
  table->Cell({0}, CountedText("a"));
  resetCounted();
  EXPECT_TRUE(clear(*table, {0}));
  EXPECT_EQ(CountedText::died(), Names{"a"});
  EXPECT_EQ(cellAt(*table, {0}), "none");
}

TEST(OmPivotTableCell, NullAtAnEmptyPlaceSucceeds) {
  const TableOwner table = makeTable(1);
  EXPECT_TRUE(clear(*table, {3}));
  EXPECT_TRUE(clear(*table, {3}));
  EXPECT_EQ(cellAt(*table, {3}), "none");
}

TEST(OmPivotTableCell, AClearedPlaceCanBeFilledAgain) {
  const TableOwner table = makeTable(2);
  store(*table, {1, 1}, "a");
  clear(*table, {1, 1});
  EXPECT_TRUE(store(*table, {1, 1}, "b"));
  EXPECT_EQ(cellsOf(*table), "(1,1)=b");
}

TEST(OmPivotTableCell, ACellMayBeStoredOverItself) {
  const TableOwner table = makeTable(1);
  table->Cell({0}, CountedText("a rather long text that is not kept inline"));
  table->Cell({0})->setMeta(meta("mean"));
  resetCounted();
  EXPECT_TRUE(table->Cell({0}, *table->Cell({0})));
  EXPECT_EQ(cellAt(*table, {0}), "a rather long text that is not kept inline");
  EXPECT_EQ(table->Cell({0})->getMeta(), meta("mean"));
  EXPECT_EQ(CountedText::died().size(), 1U);
  EXPECT_EQ(CountedText::live(), 1);
}

TEST(OmPivotTableCell, ACellMayBeStoredAtAnotherPlaceOfItsTable) {
  const TableOwner table = makeTable(1);
  store(*table, {0}, "a");
  EXPECT_TRUE(table->Cell({100}, table->Cell({0})));
  EXPECT_EQ(cellsOf(*table), "(0)=a (100)=a");
}

TEST(OmPivotTableCell, TheMetadataOfAReplacedCellIsKept) {
  const TableOwner table = makeTable(1);
  OmStringCell text("a");
  table->Cell({0}, withMeta(text, "mean"));
  store(*table, {0}, "b");
  ASSERT_TRUE(table->Cell({0})->hasMeta());
  EXPECT_EQ(table->Cell({0})->getMeta(), meta("mean"));
  EXPECT_EQ(cellAt(*table, {0}), "b");
}

TEST(OmPivotTableCell, TheMetadataOfAReplacedCellPrevailsOverTheNewOnes) {
  const TableOwner table = makeTable(1);
  OmStringCell text("a");
  table->Cell({0}, withMeta(text, "mean"));
  table->Cell({0}, withMeta(text, "median"));
  EXPECT_EQ(table->Cell({0})->getMeta(), meta("mean"));
  // The caller's own text keeps what it has.
  EXPECT_EQ(text.getMeta(), meta("median"));
}

TEST(OmPivotTableCell, MetadataAreTakenFromTheTextWhereTheReplacedCellHasNone) {
  const TableOwner table = makeTable(1);
  store(*table, {0}, "a");
  OmStringCell text("b");
  table->Cell({0}, withMeta(text, "median"));
  EXPECT_EQ(table->Cell({0})->getMeta(), meta("median"));
}

TEST(OmPivotTableCell, ThereAreNoMetadataWhereNeitherTextHasAny) {
  const TableOwner table = makeTable(1);
  store(*table, {0}, "a");
  store(*table, {0}, "b");
  EXPECT_FALSE(table->Cell({0})->hasMeta());
}

TEST(OmPivotTableCell, MetadataEndWithAClearedCell) {
  const TableOwner table = makeTable(1);
  OmStringCell text("a");
  table->Cell({0}, withMeta(text, "mean"));
  clear(*table, {0});
  store(*table, {0}, "b");
  EXPECT_FALSE(table->Cell({0})->hasMeta());
}

TEST(OmPivotTableCell, MetadataEndWithADeletedCell) {
  const TableOwner table = makeTable(1);
  OmStringCell text("a");
  table->Cell({0}, withMeta(text, "mean"));
  table->deleteCell({0});
  store(*table, {0}, "b");
  EXPECT_FALSE(table->Cell({0})->hasMeta());
}

TEST(OmPivotTableCell, FootnotePositionsGoWithTheClone) {
  const TableOwner table = makeTable(1);
  OmStringCell text("a");
  text.Footnotes() = {3, 1};
  table->Cell({0}, text);
  EXPECT_EQ(table->Cell({0})->Footnotes(), (std::vector<short>{3, 1}));
}

TEST(OmPivotTableCell, WhatWasGivenToCellsInPlaceEndsWithTheTable) {
  const LeakCheck leaks;
  {
    const TableOwner table = makeTable(2);
    for (int i = 0; i < 10; ++i) {
      store(*table, {i, 1}, "x");
      table->Cell({i, 1})->setMeta(meta("a statistic with quite a long name"));
      table->Cell({i, 1})->Footnotes().assign(100, 1);
    }
  }
  EXPECT_EQ(leaks.findings(), "");
}

}  // namespace
}  // namespace om::test
