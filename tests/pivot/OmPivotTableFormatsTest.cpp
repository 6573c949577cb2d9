// The formats of a table's areas, which the table owns, and the styles of its cells.

#include <gtest/gtest.h>

#include <climits>
#include <map>
#include <utility>
#include <vector>

#include "tests/pivot/TableText.h"
#include "tests/support/Allocations.h"

namespace om::test {
namespace {

struct Table : OmPivotTable {
  Table() : OmPivotTable(OmStringCell("title"), OmStringCell("template"), false) {}
};

FormatArea::Area areaOf(int number) { return static_cast<FormatArea::Area>(number); }

FormatArea* newFormat(int area, const std::string& fontName) {
  auto* const format = new FormatArea(areaOf(area));
  format->setFontName(fontName);
  return format;
}

TEST(OmPivotTableFormats, ANewTableHasNone) {
  const Table table;
  for (int area = 0; area <= 8; ++area) {
    EXPECT_EQ(table.getAreaFormat(areaOf(area)), nullptr) << area;
  }
}

TEST(OmPivotTableFormats, AreFoundByTheirAreas) {
  Table table;
  std::vector<FormatArea*> formats;
  for (int area = 0; area <= 8; ++area) {
    formats.push_back(newFormat(area, "font"));
    table.setAreaFormat(formats.back());
  }
  for (int area = 0; area <= 8; ++area) {
    EXPECT_EQ(table.getAreaFormat(areaOf(area)), formats[static_cast<std::size_t>(area)]) << area;
  }
}

TEST(OmPivotTableFormats, OneAreaSaysNothingAboutAnother) {
  Table table;
  table.setAreaFormat(newFormat(4, "font"));
  EXPECT_EQ(table.getAreaFormat(areaOf(3)), nullptr);
  EXPECT_EQ(table.getAreaFormat(areaOf(5)), nullptr);
}

TEST(OmPivotTableFormats, TheTableKeepsTheObjectItself) {
  Table table;
  FormatArea* const format = newFormat(2, "before");
  table.setAreaFormat(format);
  format->setFontName("after");
  EXPECT_EQ(table.getAreaFormat(areaOf(2))->getFontName(), "after");
}

TEST(OmPivotTableFormats, AskingForAnAreaMakesAnEmptyEntry) {
  const Table table;
  EXPECT_EQ(table.getAreaFormat(areaOf(3)), nullptr);
  EXPECT_EQ(dataOf(table).areaFormats.size(), 1U);
  EXPECT_EQ(table.getAreaFormat(areaOf(3)), nullptr);
  EXPECT_EQ(dataOf(table).areaFormats.size(), 1U);
}

TEST(OmPivotTableFormats, AnEmptyEntryCanBeFilled) {
  Table table;
  EXPECT_EQ(table.getAreaFormat(areaOf(3)), nullptr);
  FormatArea* const format = newFormat(3, "font");
  table.setAreaFormat(format);
  EXPECT_EQ(table.getAreaFormat(areaOf(3)), format);
}

TEST(OmPivotTableFormats, AskingForAnAreaAbove8AddsNothing) {
  const Table table;
  EXPECT_EQ(table.getAreaFormat(areaOf(9)), nullptr);
  EXPECT_EQ(table.getAreaFormat(areaOf(INT_MAX)), nullptr);
  EXPECT_TRUE(dataOf(table).areaFormats.empty());
}

// The comparison with 8 is one of signed numbers.
TEST(OmPivotTableFormats, ANegativeAreaIsOneLikeAnyOther) {
  Table table;
  FormatArea* const format = newFormat(-1, "font");
  table.setAreaFormat(format);
  EXPECT_EQ(table.getAreaFormat(areaOf(-1)), format);
  EXPECT_EQ(table.getAreaFormat(areaOf(INT_MIN)), nullptr);
}

TEST(OmPivotTableFormats, ASecondFormatDestroysTheFirst) {
  Table table;
  table.setAreaFormat(newFormat(6, "a name that is too long for the string itself"));
  const std::size_t before = liveNewBlocks();
  FormatArea* const second = newFormat(6, "another name that is too long for the string");
  table.setAreaFormat(second);
  EXPECT_EQ(liveNewBlocks(), before);
  EXPECT_EQ(table.getAreaFormat(areaOf(6)), second);
  EXPECT_EQ(second->getFontName(), "another name that is too long for the string");
}

TEST(OmPivotTableFormats, ASecondFormatLeavesThoseOfOtherAreas) {
  Table table;
  FormatArea* const other = newFormat(0, "other");
  table.setAreaFormat(other);
  table.setAreaFormat(newFormat(1, "first"));
  table.setAreaFormat(newFormat(1, "second"));
  EXPECT_EQ(table.getAreaFormat(areaOf(0)), other);
  EXPECT_EQ(other->getFontName(), "other");
}

TEST(OmPivotTableFormats, NullChangesNothing) {
  Table table;
  FormatArea* const format = newFormat(0, "font");
  table.setAreaFormat(format);
  table.setAreaFormat(nullptr);
  EXPECT_EQ(table.getAreaFormat(areaOf(0)), format);
  EXPECT_EQ(dataOf(table).areaFormats.size(), 1U);
}

TEST(OmPivotTableFormats, AreDestroyedWithTheTable) {
  const std::size_t before = liveNewBlocks();
  {
    Table table;
    for (const int area : {0, 8}) {
      table.setAreaFormat(newFormat(area, "a name that is too long for the string itself"));
    }
  }
  EXPECT_EQ(liveNewBlocks(), before);
}

TEST(OmPivotTableFormats, OneForAnAreaAbove8IsNeverGivenBack) {
  Table table;
  table.setAreaFormat(newFormat(9, "font"));
  EXPECT_EQ(table.getAreaFormat(areaOf(9)), nullptr);
}

TEST(OmPivotTableFormats, AllForAreasAbove8AreDestroyedByTheTable) {
  const std::size_t before = liveNewBlocks();
  {
    Table table;
    for (const int area : {9, 9, INT_MAX, 9}) table.setAreaFormat(newFormat(area, "font"));
  }
  EXPECT_EQ(liveNewBlocks(), before);
}

TEST(OmPivotTableCellStyles, ANewTableHasNone) {
  Table table;
  EXPECT_TRUE(table.cellStyles().empty());
  EXPECT_TRUE(table.emptyCellStyles().empty());
}

TEST(OmPivotTableCellStyles, AreKeptInTheirOrder) {
  Table table;
  OmCellProperties bold;
  bold.fontStyle = 1;
  table.cellStyles().push_back(bold);
  table.cellStyles().push_back(OmCellProperties());
  EXPECT_EQ(table.cellStyles(), (std::vector<OmCellProperties>{bold, OmCellProperties()}));
}

TEST(OmPivotTableCellStyles, AConstTableGivesTheListToBeChanged) {
  Table table;
  const OmPivotTable& constTable = table;
  constTable.getCellStyles().emplace_back();
  EXPECT_EQ(&constTable.getCellStyles(), &table.cellStyles());
  EXPECT_EQ(table.cellStyles().size(), 1U);
}

TEST(OmPivotTableCellStyles, AConstTableGivesTheStylesOfEmptyCellsToBeChanged) {
  Table table;
  const OmPivotTable& constTable = table;
  constTable.getEmptyCellStyles()[7] = 2;
  EXPECT_EQ(&constTable.getEmptyCellStyles(), &table.emptyCellStyles());
  EXPECT_EQ(table.emptyCellStyles(), (std::map<unsigned long long, unsigned short>{{7, 2}}));
}

TEST(OmPivotTableCellStyles, OfEmptyCellsHave64BitKeysAnd16BitValues) {
  Table table;
  table.emptyCellStyles()[ULLONG_MAX] = USHRT_MAX;
  EXPECT_EQ(table.emptyCellStyles().begin()->first, ULLONG_MAX);
  EXPECT_EQ(table.emptyCellStyles().begin()->second, USHRT_MAX);
}

TEST(OmPivotTableCellStyles, BelongToOneTable) {
  Table one;
  Table other;
  one.cellStyles().emplace_back();
  one.emptyCellStyles()[1] = 1;
  EXPECT_TRUE(other.cellStyles().empty());
  EXPECT_TRUE(other.emptyCellStyles().empty());
}

}  // namespace
}  // namespace om::test
