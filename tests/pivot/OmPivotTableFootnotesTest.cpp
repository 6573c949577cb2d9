// The footnotes of a table: when one is added and when it is merged, what becomes of its marker and
// its count.

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <string>
#include <utility>
#include <vector>

#include "external/cells/OmNumber.h"
#include "external/cells/OmVariableCell.h"
#include "tests/pivot/TableText.h"
#include "tests/support/Counted.h"

namespace om::test {
namespace {

struct Table : OmPivotTable {
  Table() : OmPivotTable(OmStringCell("title"), OmStringCell("template"), false) {}
};

OmFootnote counted(OmFootnote note, int count) {
  note.Count(count);
  return note;
}

// The list as in "a(x) 2, b 1": text, marker if any, count.
std::string listOf(const OmPivotTable& table) {
  std::string list;
  for (const OmFootnote& note : table.Footnotes()) {
    if (!list.empty()) list += ", ";
    list += stringOf(note.Text());
    if (note.Marker() != nullptr) list += "(" + std::string(*note.Marker()) + ")";
    list += " " + std::to_string(note.Count());
  }
  return list;
}

long deathsOf(const std::string& name) {
  return std::count(CountedText::died().begin(), CountedText::died().end(), name);
}

TEST(OmPivotTableFootnotes, ANewTableHasNone) {
  const Table table;
  EXPECT_TRUE(table.Footnotes().empty());
}

TEST(OmPivotTableFootnotes, TheFirstHasPosition0AndCount1) {
  for (const bool append : {false, true}) {
    Table table;
    EXPECT_EQ(table.Footnote(noteOf("a"), append), 0);
    EXPECT_EQ(listOf(table), "a 1");
  }
}

TEST(OmPivotTableFootnotes, StandInTheOrderOfTheirFirstAddition) {
  Table table;
  EXPECT_EQ(table.Footnote(noteOf("b"), false), 0);
  EXPECT_EQ(table.Footnote(noteOf("a"), false), 1);
  EXPECT_EQ(table.Footnote(noteOf("c"), false), 2);
  EXPECT_EQ(table.Footnote(noteOf("a"), false), 1);
  EXPECT_EQ(listOf(table), "b 1, a 2, c 1");
}

TEST(OmPivotTableFootnotes, AnEqualTextIsMerged) {
  Table table;
  EXPECT_EQ(table.Footnote(noteOf("a"), false), 0);
  EXPECT_EQ(table.Footnote(noteOf("a"), false), 0);
  EXPECT_EQ(listOf(table), "a 2");
}

TEST(OmPivotTableFootnotes, AppendAddsAnEqualTextAgain) {
  Table table;
  table.Footnote(noteOf("a"), false);
  EXPECT_EQ(table.Footnote(noteOf("a"), true), 1);
  EXPECT_EQ(listOf(table), "a 1, a 1");
}

TEST(OmPivotTableFootnotes, AMergeGoesToTheFirstOfSeveralEqualTexts) {
  Table table;
  table.Footnote(noteOf("b"), true);
  table.Footnote(noteOf("a"), true);
  table.Footnote(noteOf("a"), true);
  EXPECT_EQ(table.Footnote(noteOf("a"), false), 1);
  EXPECT_EQ(listOf(table), "b 1, a 2, a 1");
}

TEST(OmPivotTableFootnotes, MarkersAndCountsPlayNoPartInTheMatch) {
  Table table;
  table.Footnote(counted(noteOf("a", "x"), -3), false);
  EXPECT_EQ(table.Footnote(counted(noteOf("a", "y"), 9), false), 0);
  EXPECT_EQ(table.Footnote(noteOf("b", "y"), false), 1);
}

TEST(OmPivotTableFootnotes, UpperAndLowerCaseAreDifferentTexts) {
  Table table;
  table.Footnote(noteOf("a"), false);
  EXPECT_EQ(table.Footnote(noteOf("A"), false), 1);
}

TEST(OmPivotTableFootnotes, TextsOfDifferentKindsAreNotMerged) {
  Table table;
  const OmVariableCell variable("v", "a");
  ASSERT_EQ(variable.Compare(OmStringCell("a")), 0);
  table.Footnote(noteOf("a"), false);
  EXPECT_EQ(table.Footnote(OmFootnote(&variable, nullptr, nullptr), false), 1);
  EXPECT_EQ(table.Footnote(OmFootnote(&variable, nullptr, nullptr), false), 1);
  EXPECT_EQ(table.Footnote(noteOf("a"), false), 0);
  EXPECT_EQ(listOf(table), "a 2, a 2");
}

// What compares as equal is equal, whatever it looks like.
TEST(OmPivotTableFootnotes, NumbersAreMergedByTheirValues) {
  Table table;
  const OmNumber plain(5);
  const OmNumber formatted(5, {2, false, false});
  table.Footnote(OmFootnote(&plain, nullptr, nullptr), false);
  EXPECT_EQ(table.Footnote(OmFootnote(&formatted, nullptr, nullptr), false), 0);
  EXPECT_EQ(listOf(table), "5 2");
}

TEST(OmPivotTableFootnotes, ANewOneKeepsItsMarker) {
  Table table;
  table.Footnote(noteOf("a", "x"), false);
  table.Footnote(noteOf("a"), true);
  table.Footnote(noteOf("a", "y"), true);
  EXPECT_EQ(listOf(table), "a(x) 1, a 1, a(y) 1");
}

TEST(OmPivotTableFootnotes, AMergeReplacesTheMarker) {
  Table table;
  table.Footnote(noteOf("a", "x"), false);
  table.Footnote(noteOf("a", "y"), false);
  EXPECT_EQ(listOf(table), "a(y) 2");
}

TEST(OmPivotTableFootnotes, AMergeWithoutAMarkerClearsIt) {
  Table table;
  table.Footnote(noteOf("a", "x"), false);
  EXPECT_EQ(table.Footnote(noteOf("a"), false), 0);
  EXPECT_EQ(table.Footnotes()[0].Marker(), nullptr);
  EXPECT_EQ(listOf(table), "a 2");
}

TEST(OmPivotTableFootnotes, AMergeBringsAMarker) {
  Table table;
  table.Footnote(noteOf("a"), false);
  table.Footnote(noteOf("a", "x"), false);
  EXPECT_EQ(listOf(table), "a(x) 2");
}

TEST(OmPivotTableFootnotes, AMergeDestroysTheFormerMarkerAndLeavesTheText) {
  Table table;
  const CountedText text("text");
  const CountedText marker("marker");
  table.Footnote(OmFootnote(&text, &marker, nullptr), false);
  const OmCellText* const kept = table.Footnotes()[0].Text();
  const OmFootnote merged = noteOf("text");
  resetCounted();
  table.Footnote(merged, false);
  EXPECT_EQ(CountedText::died(), std::vector<std::string>{"marker"});
  EXPECT_EQ(table.Footnotes()[0].Text(), kept);
}

TEST(OmPivotTableFootnotes, ANewOneCountsFrom1WhateverItBrings) {
  for (const int count : {0, 1, 7, INT_MAX}) {
    Table table;
    table.Footnote(counted(noteOf("a"), count), false);
    EXPECT_EQ(listOf(table), "a 1") << count;
  }
}

TEST(OmPivotTableFootnotes, ANewOneKeepsANegativeCount) {
  for (const int count : {-1, -5, INT_MIN}) {
    for (const bool append : {false, true}) {
      Table table;
      table.Footnote(counted(noteOf("a"), count), append);
      EXPECT_EQ(table.Footnotes()[0].Count(), count);
    }
  }
}

TEST(OmPivotTableFootnotes, AMergeAdds1ToANegativeCountAsWell) {
  Table table;
  table.Footnote(counted(noteOf("a"), -5), false);
  table.Footnote(noteOf("a"), false);
  EXPECT_EQ(listOf(table), "a -4");
}

TEST(OmPivotTableFootnotes, AMergeNeverLooksAtTheGivenCount) {
  Table table;
  table.Footnote(noteOf("a"), false);
  table.Footnote(counted(noteOf("a"), -9), false);
  EXPECT_EQ(listOf(table), "a 2");
  table.Footnote(counted(noteOf("a"), 40), false);
  EXPECT_EQ(listOf(table), "a 3");
}

TEST(OmPivotTableFootnotes, AreClonedIntoTheTable) {
  Table table;
  const CountedText text("text");
  const CountedText marker("marker");
  {
    const OmFootnote given(&text, &marker, nullptr);
    table.Footnote(given, false);
    EXPECT_NE(table.Footnotes()[0].Text(), given.Text());
    EXPECT_NE(table.Footnotes()[0].Marker(), given.Marker());
  }
  EXPECT_EQ(table.Footnotes()[0].Region(), &dataOf(table).region);
  EXPECT_EQ(listOf(table), "text(marker) 1");
}

TEST(OmPivotTableFootnotes, AreDestroyedWithTheTable) {
  const CountedText text("text");
  const CountedText marker("marker");
  {
    Table table;
    for (int i = 0; i < 6; ++i) table.Footnote(OmFootnote(&text, &marker, nullptr), true);
    resetCounted();
  }
  EXPECT_EQ(deathsOf("text"), 6);
  EXPECT_EQ(deathsOf("marker"), 6);
}

TEST(OmPivotTableFootnotes, OneOfTheListCanBeAppendedToIt) {
  Table table;
  table.Footnote(noteOf("a text longer than a few characters", "x"), false);
  std::string expected = "a text longer than a few characters(x) 1";
  const std::string entry = expected;
  for (int position = 1; position < 20; ++position) {
    EXPECT_EQ(table.Footnote(table.Footnotes()[0], true), position);
    expected += ", " + entry;
    EXPECT_EQ(listOf(table), expected);
  }
}

TEST(OmPivotTableFootnotes, OneOfTheListBringsItsNegativeCountAlong) {
  Table table;
  table.Footnote(counted(noteOf("a"), -2), false);
  table.Footnote(table.Footnotes()[0], true);
  EXPECT_EQ(listOf(table), "a -2, a -2");
}

TEST(OmPivotTableFootnotes, OneOfTheListCanBeMergedWithItself) {
  Table table;
  table.Footnote(noteOf("a", "a marker longer than a few characters"), false);
  EXPECT_EQ(table.Footnote(table.Footnotes()[0], false), 0);
  EXPECT_EQ(listOf(table), "a(a marker longer than a few characters) 2");
}

TEST(OmPivotTableFootnotes, OneOfTheListCanBeMergedWithAnEarlierOne) {
  Table table;
  table.Footnote(noteOf("a", "x"), true);
  table.Footnote(noteOf("a", "y"), true);
  EXPECT_EQ(table.Footnote(table.Footnotes()[1], false), 0);
  EXPECT_EQ(listOf(table), "a(y) 2, a(y) 1");
}

TEST(OmPivotTableFootnotes, AConstTableGivesTheSameList) {
  Table table;
  EXPECT_EQ(&std::as_const(table).Footnotes(), &table.Footnotes());
}

TEST(OmPivotTableFootnotes, TheListMayBeChangedByItsUsers) {
  Table table;
  table.Footnote(noteOf("a"), false);
  table.Footnote(noteOf("b"), false);
  table.Footnotes()[1].Text(OmStringCell("c"));
  table.Footnotes().erase(0);
  EXPECT_EQ(table.Footnote(noteOf("b"), false), 1);
  EXPECT_EQ(table.Footnote(noteOf("c"), false), 0);
  EXPECT_EQ(listOf(table), "c 2, b 1");
}

}  // namespace
}  // namespace om::test
