// What validate finds in the axes, dimensions and cells of a table: every kind of finding with its
// place, its value and its message, and nothing in sound tables.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/pivot/Validated.h"

namespace om::test {
namespace {

TEST(OmPivotTableValidate, FindsNothingInATableWithoutDimensions) {
  const OmPivotTable table(OmStringCell("title"), OmStringCell("template"), false);
  EXPECT_EQ(messagesOf(table), Messages());
}

TEST(OmPivotTableValidate, FindsNothingInASoundTable) {
  SoundTable table;
  table.Cell({0, 0}, OmStringCell("x"));
  table.Cell({1, 1}, NotedText(0));
  table.Footnote(noteOf("note"), false);
  table.EndTable();
  EXPECT_EQ(messagesOf(table), Messages());
}

TEST(OmPivotTableValidate, FindsNothingInGroupsAndInSubscriptsOutOfOrder) {
  OneDimension table;
  table.add(table.root(), 2);
  const OmDimension::Node group = table.addGroup(table.root());
  table.add(group, 0);
  table.add(group, 1);
  table.addGroup(table.root());
  table.Cell({2}, OmStringCell("x"));
  EXPECT_EQ(messagesOf(table), Messages());
}

TEST(OmPivotTableValidate, FindsNothingInADimensionWithoutCategories) {
  EXPECT_EQ(messagesOf(OneDimension()), Messages());
}

TEST(OmPivotTableValidate, EntriesWithoutADimensionAreLegal) {
  SoundTable table;
  table.Rows().push_back(-1);
  table.Layers()[1] = -1;
  EXPECT_EQ(messagesOf(table), Messages());
}

// The entry makes up for the dimension that stands nowhere, so it stays.
TEST(OmPivotTableValidate, AnEntryWithoutADimensionThatEndTableKeptIsLegal) {
  SoundTable table;
  table.Columns()[0] = -1;
  table.EndTable();
  ASSERT_EQ(table.Columns().size(), 1U);
  expectOnly(table, OmTableFinding::DIMENSION_ON_NO_AXIS, "dimension 1", 0,
             "dimension 1: it stands on no axis");
}

TEST(OmPivotTableValidate, FindsAnAxisEntryWithoutDimension) {
  SoundTable table;
  table.Rows().push_back(7);
  expectOnly(table, OmTableFinding::AXIS_ENTRY_WITHOUT_DIMENSION, "rows[1]", 7,
             "rows[1]: there is no dimension 7");
}

TEST(OmPivotTableValidate, FindsTheFirstPositionBehindTheDimensions) {
  SoundTable table;
  table.Columns().push_back(2);
  expectOnly(table, OmTableFinding::AXIS_ENTRY_WITHOUT_DIMENSION, "columns[1]", 2,
             "columns[1]: there is no dimension 2");
}

TEST(OmPivotTableValidate, FindsANegativeAxisEntry) {
  SoundTable table;
  table.Layers()[2] = -2;
  expectOnly(table, OmTableFinding::AXIS_ENTRY_WITHOUT_DIMENSION, "layers[2]", kMinus1 - 1,
             "layers[2]: there is no dimension -2");
}

TEST(OmPivotTableValidate, FindsADimensionOnNoAxis) {
  SoundTable table;
  table.Columns().clear();
  expectOnly(table, OmTableFinding::DIMENSION_ON_NO_AXIS, "dimension 1", 0,
             "dimension 1: it stands on no axis");
}

TEST(OmPivotTableValidate, FindsADimensionTwiceOnOneAxis) {
  SoundTable table;
  table.Columns().push_back(1);
  expectOnly(table, OmTableFinding::DIMENSION_ON_AXES_TWICE, "columns[1]", 1,
             "columns[1]: dimension 1 stands on the axes already");
}

TEST(OmPivotTableValidate, FindsEachEntryOfADimensionBeyondTheFirst) {
  SoundTable table;
  table.Columns().push_back(0);
  table.Layers().push_back(0);
  EXPECT_EQ(messagesOf(table), (Messages{"columns[1]: dimension 0 stands on the axes already",
                                         "layers[0]: dimension 0 stands on the axes already"}));
}

TEST(OmPivotTableValidate, FindsADuplicateSubscript) {
  SoundTable table;
  OmDimension& dimension = table.Dimension(1);
  dimension.AddNewChild(dimension.Root(), OmStringCell("b2"), 2, false);
  dimension.AddNewChild(dimension.Root(), OmStringCell("again"), 3, false);
  dimension.Root().ChildAt(3)->Subscript(1);
  EXPECT_EQ(messagesOf(table), (Messages{"dimension 1, node 3: an earlier category has the "
                                         "subscript 1",
                                         "dimension 1: no category has the subscript 3"}));
  const std::vector<OmTableFinding> findings = table.validate();
  const OmTableFinding expected{OmTableFinding::DUPLICATE_SUBSCRIPT, "dimension 1, node 3", 1};
  EXPECT_TRUE(findings[0] == expected || findings[1] == expected);
}

// The root's subscript is the dimension's position, and a group's has no meaning.
TEST(OmPivotTableValidate, SubscriptsOfRootAndGroupsAreNotThoseOfCategories) {
  OneDimension table;
  table.addGroup(table.root())->Subscript(0);
  table.add(table.root(), 0);
  EXPECT_EQ(messagesOf(table), Messages());
}

TEST(OmPivotTableValidate, FindsTheFirstOfARunOfMissingSubscripts) {
  OneDimension table;
  for (unsigned long long i = 0; i < 5; ++i) table.add(table.root(), i);
  for (int i = 0; i < 2; ++i) {
    OmDimension::Node second = table.root().ChildAt(1);
    table.Dimension(0).Delete(second);
  }
  expectOnly(table, OmTableFinding::MISSING_SUBSCRIPT, "dimension 0", 1,
             "dimension 0: no category has the subscript 1");
}

TEST(OmPivotTableValidate, FindsEachRunOfMissingSubscripts) {
  OneDimension table;
  for (const unsigned long long subscript : {1ULL, 1ULL, 4ULL, 1ULL, 4ULL, 4ULL}) {
    table.add(table.root(), subscript);
  }
  EXPECT_EQ(messagesOf(table),
            (Messages{"dimension 0, node 1: an earlier category has the subscript 1",
                      "dimension 0, node 3: an earlier category has the subscript 1",
                      "dimension 0, node 4: an earlier category has the subscript 4",
                      "dimension 0, node 5: an earlier category has the subscript 4",
                      "dimension 0: no category has the subscript 0",
                      "dimension 0: no category has the subscript 2",
                      "dimension 0: no category has the subscript 5"}));
}

// A node that came as a group was not counted as a category.
TEST(OmPivotTableValidate, FindsASubscriptBeyondTheSize) {
  OneDimension table;
  table.addGroup(table.root());
  table.add(table.root().FirstChild(), 0);
  const OmDimension::Node late = table.addGroup(table.root().FirstChild());
  late->IsGroup(false);
  late->Subscript(9);
  expectOnly(table, OmTableFinding::SUBSCRIPT_BEYOND_SIZE, "dimension 0, node 0/1", 9,
             "dimension 0, node 0/1: the subscript 9 is beyond the size of the dimension");
}

TEST(OmPivotTableValidate, FindsTheSubscriptThatEqualsTheSize) {
  OneDimension table;
  table.add(table.root(), 1);
  EXPECT_EQ(messagesOf(table),
            (Messages{"dimension 0, node 0: the subscript 1 is beyond the size of the dimension",
                      "dimension 0: no category has the subscript 0"}));
}

TEST(OmPivotTableValidate, FindsACategoryThatWasLeftWithoutASubscript) {
  OneDimension table;
  table.add(table.root(), ~0ULL);
  EXPECT_EQ(messagesOf(table), (Messages{"dimension 0, node 0: the subscript -1 is beyond the size "
                                         "of the dimension",
                                         "dimension 0: no category has the subscript 0"}));
}

// A group in front of another one with a category; deleting it moves the other one up.
struct TableWithStaleLink : OneDimension {
  TableWithStaleLink() {
    addGroup(root());
    addGroup(root());
    add(root().ChildAt(1), 0);
    OmDimension::Node first = root().FirstChild();
    Dimension(0).Delete(first);
  }
};

TEST(OmPivotTableValidate, FindsTheNodeWithAStaleParentLink) {
  expectOnly(TableWithStaleLink(), OmTableFinding::STALE_PARENT_LINK, "dimension 0, node 0/0", 0,
             "dimension 0, node 0/0: the link to the parent is stale");
}

TEST(OmPivotTableValidate, FindsNoStaleLinkOnceTheLinksAreRestored) {
  TableWithStaleLink table;
  OmDimension::Tree::Reparent(*table.root().Record(), true);
  EXPECT_EQ(messagesOf(table), Messages());
}

TEST(OmPivotTableValidate, FindsACellThatNoCategoryLeadsTo) {
  SoundTable table;
  table.Cell({1, 5}, OmStringCell("x"));
  expectOnly(table, OmTableFinding::UNREACHABLE_CELL, "cell (1, 5)", 1,
             "cell (1, 5): no category leads to it along dimension 1");
}

TEST(OmPivotTableValidate, FindsACellOnceForEachDimensionThatDoesNotLeadToIt) {
  SoundTable table;
  table.Cell({2, 3}, OmStringCell("x"));
  EXPECT_EQ(messagesOf(table),
            (Messages{"cell (2, 3): no category leads to it along dimension 0",
                      "cell (2, 3): no category leads to it along dimension 1"}));
}

TEST(OmPivotTableValidate, FindsACellWithinTheSizeThatNoCategoryLeadsTo) {
  OneDimension table;
  for (unsigned long long i = 0; i < 3; ++i) table.add(table.root(), i);
  OmDimension::Node middle = table.root().ChildAt(1);
  table.Dimension(0).Delete(middle);
  table.Cell({1}, OmStringCell("x"));
  EXPECT_EQ(messagesOf(table), (Messages{"cell (1): no category leads to it along dimension 0",
                                         "dimension 0: no category has the subscript 1"}));
}

TEST(OmPivotTableValidate, FindsCellsBehindAWayThatLeadsToNone) {
  SoundTable table;
  table.Cell({0, 0}, OmStringCell("x"));
  table.Cell({0, 0}, nullptr);
  table.Cell({0, 4}, OmStringCell("x"));
  ASSERT_EQ(table.FirstCell().Cell(), nullptr);
  expectOnly(table, OmTableFinding::UNREACHABLE_CELL, "cell (0, 4)", 1,
             "cell (0, 4): no category leads to it along dimension 1");
}

TEST(OmPivotTableValidate, APlaceThatWasClearedIsNoCell) {
  SoundTable table;
  table.Cell({5, 5}, OmStringCell("x"));
  table.Cell({5, 5}, nullptr);
  EXPECT_EQ(messagesOf(table), Messages());
}

TEST(OmPivotTableValidate, NamesANodeByThePositionsOnTheWayToIt) {
  OneDimension table;
  table.add(table.root(), 0);
  table.addGroup(table.root());
  table.add(table.root().ChildAt(1), 1);
  table.addGroup(table.root().ChildAt(1));
  const OmDimension::Node inner = table.root().ChildAt(1).ChildAt(1);
  for (unsigned long long i = 2; i < 5; ++i) table.add(inner, i);
  inner.ChildAt(2)->Text()->Footnotes().push_back(0);
  expectOnly(table, OmTableFinding::FOOTNOTE_BEYOND_LIST, "dimension 0, node 1/1/2", 0,
             "dimension 0, node 1/1/2: there is no footnote 0");
}

TEST(OmPivotTableValidate, GivesTheAxesThenTheTextsThenDimensionsThenCells) {
  SoundTable table;
  table.Cell({0, 9}, OmStringCell("x"));
  table.Dimension(0).Name().Footnotes().push_back(0);
  table.SetTableTitle(NotedText(0));
  table.Layers().push_back(8);
  std::vector<std::string> places;
  for (const OmTableFinding& finding : table.validate()) places.push_back(finding.place);
  EXPECT_EQ(places,
            (std::vector<std::string>{"layers[0]", "table title", "dimension 0", "cell (0, 9)"}));
}

TEST(OmPivotTableValidate, ChangesNothing) {
  SoundTable table;
  table.SetTableTitle(OmStringCell("T"));
  table.Cell({0, 9}, OmStringCell("x"));
  const std::string before = printed(table);
  const std::vector<OmTableFinding> first = table.validate();
  EXPECT_EQ(table.validate(), first);
  EXPECT_EQ(printed(table), before);
  EXPECT_EQ(table.getNumCells(), 1);
}

}  // namespace
}  // namespace om::test
