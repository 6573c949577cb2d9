// The labels of an axis as spans: what is merged, what is not, and what covers further levels.

#include "render/HeadingGrid.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/render/GridText.h"

namespace om::test {
namespace {

using render::Spans;

// The first dimension is the innermost one.
TableText axisOf(const std::vector<std::string>& dimensions, std::vector<short> TableText::*axis) {
  TableText text{.dimensions = dimensions};
  for (std::size_t i = 0; i < dimensions.size(); ++i) {
    (text.*axis).push_back(static_cast<short>(i));
  }
  return text;
}

std::string columnsOf(const std::vector<std::string>& dimensions, Spans spans = Spans::MERGE) {
  const Viewed view(tableOf(axisOf(dimensions, &TableText::columns)), kEverything, spans);
  return textOf(view->columns());
}

// With the names of the dimensions in the corner.
std::string rowsOf(const std::vector<std::string>& dimensions, Spans spans = Spans::MERGE) {
  const Viewed view(tableOf(axisOf(dimensions, &TableText::rows)), kEverything, spans);
  return textOf(view->rows());
}

const std::vector<std::string> kSexAndClass = {"Class(First Second)", "Sex(Female Male)"};

// ---- Merging

TEST(HeadingGrid, LabelsOfOneNodeAreOneSpanAndNoSpanCrossesAnOuterChange) {
  EXPECT_EQ(columnsOf(kSexAndClass),
            "Sex(0-4)\n"
            "Female(0-2) Male(2-4)\n"
            "Class(0-2) Class(2-4)\n"
            "First(0-1) Second(1-2) First(2-3) Second(3-4)");
}

TEST(HeadingGrid, FirstKeepsTheLabelAtTheFirstPlaceOfItsRun) {
  EXPECT_EQ(columnsOf(kSexAndClass, Spans::FIRST),
            "Sex(0-1) -(1-2) -(2-3) -(3-4)\n"
            "Female(0-1) -(1-2) Male(2-3) -(3-4)\n"
            "Class(0-1) -(1-2) Class(2-3) -(3-4)\n"
            "First(0-1) Second(1-2) First(2-3) Second(3-4)");
}

TEST(HeadingGrid, RepeatPutsTheLabelAtEachPlace) {
  EXPECT_EQ(columnsOf(kSexAndClass, Spans::REPEAT),
            "Sex(0-1) Sex(1-2) Sex(2-3) Sex(3-4)\n"
            "Female(0-1) Female(1-2) Male(2-3) Male(3-4)\n"
            "Class(0-1) Class(1-2) Class(2-3) Class(3-4)\n"
            "First(0-1) Second(1-2) First(2-3) Second(3-4)");
}

TEST(HeadingGrid, RowsAreMergedLikeColumns) {
  EXPECT_EQ(rowsOf(kSexAndClass),
            "Female(0-2) Male(2-4)\n"
            "First(0-1) Second(1-2) First(2-3) Second(3-4)");
}

TEST(HeadingGrid, RowsWithNamesBesideThemHaveALevelForEachName) {
  const Viewed view(tableOf(axisOf({"R(a b)"}, &TableText::rows)),
                    {.skipEmptyRows = false, .skipEmptyColumns = false, .namesInCorner = false});
  EXPECT_EQ(textOf(view->rows()), "R(0-2)\na(0-1) b(1-2)");
}

TEST(HeadingGrid, EqualTextsOfTwoNodesAreTwoSpans) {
  EXPECT_EQ(rowsOf({"X(a a)"}), "a(0-1) a(1-2)");
  EXPECT_EQ(rowsOf({"X(G(a) G(b))"}), "G(0-1) G(1-2)\na(0-1) b(1-2)");
}

TEST(HeadingGrid, AGroupIsMergedOverItsCategories) {
  EXPECT_EQ(rowsOf({"X(G(a b) H(c))"}), "G(0-2) H(2-3)\na(0-1) b(1-2) c(2-3)");
}

TEST(HeadingGrid, AnInnerDimensionWithOneCategoryIsNotMergedOverOuterOnes) {
  EXPECT_EQ(rowsOf({"Y(only)", "X(a b)"}), "a(0-1) b(1-2)\nonly(0-1) only(1-2)");
}

TEST(HeadingGrid, TheSameGroupInTwoOuterCategoriesIsTwoSpans) {
  EXPECT_EQ(rowsOf({"Y(G(c d))", "X(a b)"}),
            "a(0-2) b(2-4)\n"
            "G(0-2) G(2-4)\n"
            "c(0-1) d(1-2) c(2-3) d(3-4)");
}

// ---- Fewer labels than levels

TEST(HeadingGrid, ACategoryWithFewerLabelsCoversTheLevelsBelow) {
  EXPECT_EQ(rowsOf({"X(G(a c) y w)"}), "G(0-2) y(2-3)x2 w(3-4)x2\na(0-1) c(1-2)");
  EXPECT_EQ(rowsOf({"X(G(H(x y) z) w)"}),
            "G(0-3) w(3-4)x3\n"
            "H(0-2) z(2-3)x2\n"
            "x(0-1) y(1-2)");
}

TEST(HeadingGrid, ALabelCoversOnlyTheLevelsOfItsOwnDimension) {
  EXPECT_EQ(rowsOf({"Y(c d)", "X(G(a) y)"}),
            "G(0-2) y(2-4)x2\n"
            "a(0-2)\n"
            "c(0-1) d(1-2) c(2-3) d(3-4)");
}

TEST(HeadingGrid, AGroupOverHiddenCategoriesAloneCoversTheirLevel) {
  EXPECT_EQ(rowsOf({"X(G(~a ~b) H(c))"}), "G(0-2)x2 H(2-3)\nc(2-3)");
}

TEST(HeadingGrid, AGroupOverAHiddenAndAShownCategoryKeepsToItsLevel) {
  EXPECT_EQ(rowsOf({"X(G(~a b))"}), "G(0-2)\n-(0-1) b(1-2)");
}

// ---- Places without a label

TEST(HeadingGrid, BlanksOfOneCategoryAreMerged) {
  EXPECT_EQ(rowsOf({"Y(c d)", "X(a ~h b)"}),
            "a(0-2) -(2-4) b(4-6)\n"
            "c(0-1) d(1-2) c(2-3) d(3-4) c(4-5) d(5-6)");
}

TEST(HeadingGrid, BlanksOfTwoCategoriesAreNotMerged) {
  EXPECT_EQ(rowsOf({"Y(c d)", "X(a ~h ~i)"}),
            "a(0-2) -(2-4) -(4-6)\n"
            "c(0-1) d(1-2) c(2-3) d(3-4) c(4-5) d(5-6)");
}

TEST(HeadingGrid, ADimensionWithoutLabelsHasNoLevel) {
  EXPECT_EQ(rowsOf({"Y(c d)", "X(~h)"}), "c(0-1) d(1-2)");
}

TEST(HeadingGrid, CategoriesBelowHiddenLabelsAreBlanksOfTheirOwn) {
  EXPECT_EQ(rowsOf({"X(!G(a b) c)"}), "-(0-1) -(1-2) c(2-3)");
}

TEST(HeadingGrid, FirstAndRepeatLeaveBlanksBlank) {
  for (const Spans spans : {Spans::FIRST, Spans::REPEAT}) {
    EXPECT_EQ(rowsOf({"X(a ~h)"}, spans), "a(0-1) -(1-2)");
  }
}

TEST(HeadingGrid, ABlankCoversTheBlankLevelsBelow) {
  EXPECT_EQ(rowsOf({"X(G(a) ~h)"}), "G(0-1) -(1-2)x2\na(0-1)");
}

TEST(HeadingGrid, FirstAndRepeatKeepTheLevelsThatALabelCovers) {
  EXPECT_EQ(rowsOf({"Y(c d)", "X(G(a) y)"}, Spans::FIRST),
            "G(0-1) -(1-2) y(2-3)x2 -(3-4)x2\n"
            "a(0-1) -(1-2)\n"
            "c(0-1) d(1-2) c(2-3) d(3-4)");
  EXPECT_EQ(rowsOf({"Y(c d)", "X(G(a) y)"}, Spans::REPEAT),
            "G(0-1) G(1-2) y(2-3)x2 y(3-4)x2\n"
            "a(0-1) a(1-2)\n"
            "c(0-1) d(1-2) c(2-3) d(3-4)");
}

// ---- Sizes

TEST(HeadingGrid, AnAxisWithoutDimensionsHasOnePlaceAndNoLevels) {
  const Viewed view(tableOf({.dimensions = {"R(a)"}, .rows = {0}, .cells = {{0}}}));
  EXPECT_EQ(view->columns().places(), 1U);
  EXPECT_EQ(view->columns().levels(), 0U);
}

TEST(HeadingGrid, AnAxisWhosePlacesAreAllEmptyKeepsItsLevels) {
  const Viewed view(tableOf({.dimensions = {"R(a b)"}, .columns = {0}}));
  EXPECT_EQ(view->columns().places(), 0U);
  EXPECT_EQ(textOf(view->columns()), "\n");
}

TEST(HeadingGrid, WithoutAHeadingItIsEmpty) {
  const render::HeadingGrid grid;
  EXPECT_EQ(grid.places(), 0U);
  EXPECT_EQ(grid.levels(), 0U);
}

TEST(HeadingGrid, EmptyPlacesAreLeftOutBeforeLabelsAreMerged) {
  const Viewed view(tableOf(
      {.dimensions = {"Y(c d)", "X(a b)"}, .rows = {0, 1}, .cells = {{0, 0}, {0, 1}, {1, 1}}}));
  EXPECT_EQ(textOf(view->rows()), "a(0-1) b(1-3)\nc(0-1) c(1-2) d(2-3)");
}

// ---- Finding

TEST(HeadingGrid, FindGivesTheSpanThatCoversAPlace) {
  const Viewed view(tableOf(axisOf({"X(G(a c) y)"}, &TableText::rows)), kEverything);
  const render::HeadingGrid& rows = view->rows();
  for (const std::uint64_t place : {0U, 1U}) EXPECT_EQ(rows.find(0, place), rows.spans(0).data());
  EXPECT_EQ(textOf(*rows.find(1, 1)), "c(1-2)");
}

TEST(HeadingGrid, FindGivesNullWhereASpanOfALevelAboveCovers) {
  const Viewed view(tableOf(axisOf({"X(y G(a c))"}, &TableText::rows)), kEverything);
  EXPECT_EQ(textOf(view->rows()), "y(0-1)x2 G(1-3)\na(1-2) c(2-3)");
  EXPECT_EQ(view->rows().find(1, 0), nullptr);
  EXPECT_EQ(view->rows().find(1, 3), nullptr);
}

}  // namespace
}  // namespace om::test
