// The corner over the label columns of the rows: the names of the row dimensions, which then leave
// the labels, or the corner text of the table.

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "tests/display/DisplayTable.h"

namespace om::test {
namespace {

constexpr bool kNames = true;

// A table whose corner text is "text".
TableOwner withCornerText(const TableText& text) {
  TableOwner table = tableOf(text);
  const OmStringCell corner("text");
  table->CornerText(&corner);
  return table;
}
TableOwner withRows(const std::vector<std::string>& dimensions) {
  TableText text{.dimensions = dimensions};
  for (std::size_t i = 0; i < dimensions.size(); ++i) text.rows.push_back(static_cast<short>(i));
  return withCornerText(text);
}

Rows named(TableOwner&& table, bool skipEmpty = false) {
  return Rows(std::move(table), skipEmpty, kNames);
}

// ---- Labels

TEST(RowHeadingCorner, ANameInTheCornerLeavesTheLabels) {
  const Rows rows(withRows({"R(M F)"}), false, kNames);
  EXPECT_EQ(rows->NColumns(), 1);
  EXPECT_EQ(labelsOf(rows->Row(0)), "M");
  EXPECT_EQ(gridOf(*rows), "M\nF");
  EXPECT_EQ(cornerOf(*rows), "R");
}

TEST(RowHeadingCorner, WithoutNamesTheTableHasItsCornerText) {
  const Rows rows(withRows({"R(M F)"}));
  EXPECT_EQ(rows->NColumns(), 2);
  EXPECT_EQ(labelsOf(rows->Row(0)), "R M");
  EXPECT_EQ(cornerOf(*rows), "text -");
}

TEST(RowHeadingCorner, EachNameStandsOverTheFirstLabelColumnOfItsBlock) {
  const Rows rows = named(withRows({"A(a b)", "X(G(x) y)"}));
  EXPECT_EQ(rows->VisibleWidth(0), 2);
  EXPECT_EQ(rows->VisibleWidth(1), 1);
  EXPECT_EQ(cornerOf(*rows), "X - A");
  EXPECT_EQ(gridOf(*rows),
            "G x a\n"
            "G x b\n"
            "y - a\n"
            "y - b");
}

TEST(RowHeadingCorner, WithoutNamesOnlyTheFirstPlaceHoldsAText) {
  const Rows rows(withRows({"A(a)", "X(x)"}));
  EXPECT_EQ(gridOf(*rows), "X x A a");
  EXPECT_EQ(cornerOf(*rows), "text - - -");
}

TEST(RowHeadingCorner, NamesMoveNoCategoryAndNoWholePath) {
  const Rows rows = named(withRows({"A(a)", "X(x)"}));
  EXPECT_EQ(labelsOf(rows->RowCategories(0)), "x a");
  EntryList path;
  EntryList dimensions;
  EntryList categories;
  rows->DimAllNodes(0, path);
  rows->DimCatNodes(0, dimensions, categories);
  EXPECT_EQ(labelsOf(path), "X x A a");
  EXPECT_EQ(labelsOf(dimensions), "X A");
  EXPECT_EQ(labelsOf(categories), "x a");
}

TEST(RowHeadingCorner, NamesOfColumnsStayInTheirLabels) {
  const TableOwner table =
      withCornerText({.dimensions = {"R(r)", "C(c)"}, .rows = {0}, .columns = {1}});
  OmDisplayLayerHeading layers(*table, false);
  const OmDisplayRowHeading rows(layers, false, kNames);
  EXPECT_EQ(cornerOf(rows), "R");
  EXPECT_EQ(gridOf(OmDisplayColumnHeading(layers, false)), "C\nc");
}

TEST(RowHeadingCorner, HiddenGroupsAndLabelsLeaveThePathAlsoWithNames) {
  const Rows rows = named(withRows({"R(~G(a b) !H(c) d)"}));
  EXPECT_EQ(cornerOf(*rows), "R");
  EXPECT_EQ(gridOf(*rows), "a\nb\n-\nd");
}

// ---- Hidden roots

TEST(RowHeadingCorner, AHiddenRootPlacesNoNameAndKeepsTheLabelColumns) {
  const Rows rows = named(withRows({"~R(a G(b))"}));
  EXPECT_EQ(rows->VisibleWidth(0), 2);
  EXPECT_EQ(gridOf(*rows),
            "a -\n"
            "G b");
  EXPECT_EQ(cornerOf(*rows), "text -");
}

TEST(RowHeadingCorner, OneNameAmongHiddenRootsKeepsTheCornerTextAway) {
  EXPECT_EQ(cornerOf(*named(withRows({"A(a)", "~X(G(x))"}))), "- - A");
  EXPECT_EQ(cornerOf(*named(withRows({"~A(a)", "X(G(x))"}))), "X - -");
}

TEST(RowHeadingCorner, WhereAllRootsAreHiddenTheCornerTextStandsFirst) {
  const Rows rows = named(withRows({"~A(a)", "~X(G(x))"}));
  EXPECT_EQ(gridOf(*rows), "G x a");
  EXPECT_EQ(cornerOf(*rows), "text - -");
}

// ---- Names without a label column

TEST(RowHeadingCorner, ARootWithHiddenLabelsHasNoPlaceForItsName) {
  const Rows rows = named(withRows({"!R(a b)"}));
  EXPECT_EQ(gridOf(*rows), "2 x 0");
  EXPECT_EQ(cornerOf(*rows), "");
}

TEST(RowHeadingCorner, HiddenCategoriesLeaveNoPlaceForTheirDimensionsName) {
  const Rows rows = named(withRows({"R(~a ~b)"}));
  EXPECT_EQ(gridOf(*rows), "2 x 0");
  EXPECT_EQ(cornerOf(*rows), "");
}

TEST(RowHeadingCorner, AnotherNameIsPlacedBesideOneWithoutAPlace) {
  EXPECT_EQ(cornerOf(*named(withRows({"A(a)", "!X(x)"}))), "A");
  EXPECT_EQ(cornerOf(*named(withRows({"!A(a)", "X(x)"}))), "X");
  EXPECT_EQ(cornerOf(*named(withRows({"~A(a)", "!X(x)"}))), "text");
}

TEST(RowHeadingCorner, ARootThatIsACategoryLeavesTheLabelsEmpty) {
  const TableOwner table = withRows({"R(a)"});
  table->Dimension(0).Root()->IsGroup(false);
  const Rows rows(table, false, kNames);
  EXPECT_EQ(gridOf(*rows), "1 x 0");
  EXPECT_EQ(cornerOf(*rows), "");
  EXPECT_EQ(cornerOf(*Rows(table)), "text");
}

TEST(RowHeadingCorner, WithoutLabelColumnsThereIsNoPlaceForTheCornerText) {
  const Rows rows(withRows({"~R(~a)"}));
  EXPECT_EQ(gridOf(*rows), "1 x 0");
  EXPECT_EQ(cornerOf(*rows), "");
}

// ---- No rows

TEST(RowHeadingCorner, WithoutRowsThereIsNoCornerText) {
  const Rows rows(withRows({"R(a b)"}), true);
  EXPECT_EQ(rows->NRows(), 0);
  EXPECT_EQ(rows->NColumns(), 2);
  EXPECT_TRUE(rows->CornerText().empty());
}

TEST(RowHeadingCorner, WithoutRowsTheNamesAreStillPlaced) {
  const Rows rows = named(withRows({"A(a)", "X(G(x))"}), true);
  EXPECT_EQ(gridOf(*rows), "0 x 3");
  EXPECT_EQ(cornerOf(*rows), "X - A");
}

TEST(RowHeadingCorner, WithoutRowsHiddenRootsLeaveTheirPlacesEmpty) {
  const Rows rows = named(withRows({"~R(G(a))"}), true);
  EXPECT_EQ(gridOf(*rows), "0 x 2");
  EXPECT_EQ(cornerOf(*rows), "- -");
}

TEST(RowHeadingCorner, ADimensionWithoutCategoriesHasNoCorner) {
  EXPECT_EQ(cornerOf(*named(withRows({"R()"}))), "");
  EXPECT_EQ(cornerOf(*Rows(withRows({"R()"}))), "");
}

TEST(RowHeadingCorner, ATableWithoutRowDimensionsHasNoCorner) {
  const TableOwner table = withCornerText({.dimensions = {"C(c)"}, .columns = {0}});
  EXPECT_TRUE(Rows(table, false, kNames)->CornerText().empty());
  EXPECT_TRUE(Rows(table)->CornerText().empty());
}

// ---- Skipping

TEST(RowHeadingCorner, NamesArePlacedAlsoWhenTheFirstPositionIsEmpty) {
  const TableOwner table =
      withCornerText({.dimensions = {"A(a b)", "X(x y)"}, .rows = {0, 1}, .cells = {{1, 1}}});
  const Rows rows(table, true, kNames);
  EXPECT_EQ(gridOf(*rows), "y b");
  EXPECT_EQ(cornerOf(*rows), "X A");
}

TEST(RowHeadingCorner, TheCornerIsAsWideAsTheLabelsShown) {
  const TableOwner table =
      withCornerText({.dimensions = {"R(a G(b H(c)))"}, .rows = {0}, .cells = {{0}, {1}}});
  const Rows rows(table, true, kNames);
  EXPECT_EQ(gridOf(*rows),
            "a -\n"
            "G b");
  EXPECT_EQ(cornerOf(*rows), "R -");
  EXPECT_EQ(cornerOf(*Rows(table, true)), "text - -");
  EXPECT_EQ(cornerOf(*Rows(table, false)), "text - - -");
}

TEST(RowHeadingCorner, AShownCategoryWithoutLabelsLeavesNoPlaceForTheName) {
  // The first category shows its root alone, the second one would show more but is empty.
  const TableOwner table = withCornerText({.dimensions = {"R(~a b)"}, .rows = {0}, .cells = {{0}}});
  const Rows rows(table, true, kNames);
  EXPECT_EQ(gridOf(*rows), "1 x 0");
  EXPECT_EQ(cornerOf(*rows), "");
}

// ---- Texts

TEST(RowHeadingCorner, ATableWithoutACornerTextLeavesThePlaceEmpty) {
  EXPECT_EQ(cornerOf(*Rows(tableOf({.dimensions = {"R(a)"}, .rows = {0}}))), "- -");
}

TEST(RowHeadingCorner, TheTextsAreTheTables) {
  const TableOwner table = withRows({"R(a)"});
  const auto names = Rows(table, false, kNames)->CornerText();
  ASSERT_EQ(names.size(), 1u);
  EXPECT_EQ(names[0], &table->Dimension(0).Name());
  const auto texts = Rows(table)->CornerText();
  ASSERT_EQ(texts.size(), 2u);
  EXPECT_EQ(texts[0], table->CornerText());
}

TEST(RowHeadingCorner, TheTextsAreThoseOfTheTimeOfBuilding) {
  const TableOwner table = tableOf({.dimensions = {"R(a)"}, .rows = {0}});
  const Rows before(table);
  const OmStringCell text("later");
  table->CornerText(&text);
  EXPECT_EQ(cornerOf(*before), "- -");
  EXPECT_EQ(cornerOf(*Rows(table)), "later -");
}

TEST(RowHeadingCorner, TheCornerIsACopy) {
  const Rows rows(withRows({"R(a)"}));
  rows->CornerText().clear();
  EXPECT_EQ(cornerOf(*rows), "text -");
}

}  // namespace
}  // namespace om::test
