// Tables as they are built: dimensions, statistics, totals, percentages, formats.

#include "tools/tabulate/TableBuilder.h"

#include <gtest/gtest.h>

#include "tests/support/Allocations.h"
#include "tests/tools/tabulate/Tabulated.h"

namespace om::test {
namespace {

using tabulate::Axis;
using tabulate::Missing;
using tabulate::Statistic;
using tabulate::TableRequest;

const std::string kFour = "a,b,l\nx,p,1\nx,q,1\ny,p,1\nx,p,2\n";

std::string nameOf(const OmPivotTable& table, short dimension) {
  return std::string(table.Dimension(dimension).Name());
}

TEST(TableBuilder, AxesListTheInnermostDimensionFirst) {
  TableRequest request = ask({"a", "b"}, {"l"});
  const auto table = tableOf(kFour, request);
  ASSERT_EQ(2U, table->Rows().size());
  EXPECT_EQ("b", nameOf(*table, table->Rows()[0]));
  EXPECT_EQ("a", nameOf(*table, table->Rows()[1]));
  EXPECT_EQ("l", nameOf(*table, table->Columns()[0]));
  EXPECT_TRUE(table->Layers().empty());
  EXPECT_TRUE(table->validate().empty());
}

TEST(TableBuilder, AHierarchyIsOneDimensionNamedAfterItsLevels) {
  TableRequest request;
  request.dimensions[Axis::LAYERS] = {{"a", "b"}};
  const auto table = tableOf(kFour, request);
  ASSERT_EQ(1U, table->NDimensions());
  EXPECT_EQ("a / b", nameOf(*table, 0));
  EXPECT_EQ((Shown{{"x/p", "2"}, {"x/q", "1"}, {"y/p", "1"}}), shownCells(*table));
}

TEST(TableBuilder, OneStatisticMakesNoDimensionAndStandsInTheCorner) {
  const auto table = tableOf(kFour, ask({"a"}));
  EXPECT_EQ(1U, table->NDimensions());
  EXPECT_EQ("Count", std::string(*table->CornerText()));
}

TEST(TableBuilder, StatisticsAreADimensionInnermostOnTheColumns) {
  TableRequest request = ask({"a"}, {"b"});
  request.statistics = {Statistic::COUNT, Statistic::N};
  const auto table = tableOf(kFour, request);
  ASSERT_EQ(2U, table->Columns().size());
  EXPECT_EQ("Statistics", nameOf(*table, table->Columns()[0]));
  EXPECT_EQ("b", nameOf(*table, table->Columns()[1]));
  EXPECT_EQ(nullptr, table->CornerText());
}

TEST(TableBuilder, StatisticsStandOnAnotherAxisWhenToldSo) {
  TableRequest request = ask({"a"}, {"b"});
  request.statistics = {Statistic::COUNT, Statistic::N};
  request.statisticsOn = Axis::ROWS;
  const auto table = tableOf(kFour, request);
  EXPECT_EQ("Statistics", nameOf(*table, table->Rows()[0]));
  EXPECT_EQ("a", nameOf(*table, table->Rows()[1]));
  EXPECT_EQ(1U, table->Columns().size());
  EXPECT_TRUE(table->validate().empty());
}

TEST(TableBuilder, StatisticsOfAMeasureStandInItsGroup) {
  TableRequest request = ask({"g"});
  request.measures = {"x", "y"};
  request.statistics = {Statistic::MEAN, Statistic::COUNT, Statistic::MAX};
  const auto table = tableOf("g,x,y\na,1,10\na,2,20\n", request);
  EXPECT_EQ((std::vector<Path>{
                {"Count"}, {"x", "Mean"}, {"x", "Maximum"}, {"y", "Mean"}, {"y", "Maximum"}}),
            pathsOf(table->Dimension(0)));
  EXPECT_EQ((Shown{{"a|Count", "2"},
                   {"a|x/Mean", "1.50"},
                   {"a|x/Maximum", "2"},
                   {"a|y/Mean", "15.00"},
                   {"a|y/Maximum", "20"}}),
            shownCells(*table));
}

TEST(TableBuilder, OnlyCellsWithRecordsExist) {
  EXPECT_EQ((Shown{{"x|p", "2"}, {"x|q", "1"}, {"y|p", "1"}}),
            shownCells(*tableOf(kFour, ask({"a"}, {"b"}))));
}

TEST(TableBuilder, RecordsOfWeightZeroMakeACell) {
  TableRequest request = ask({"g"});
  request.weight = "w";
  request.statistics = {Statistic::COUNT, Statistic::N, Statistic::TOTAL_PERCENT};
  EXPECT_EQ((Shown{{"a|Count", "0"},
                   {"a|N", "2"},
                   {"a|Total %", "0.0%"},
                   {"b|Count", "5"},
                   {"b|N", "1"},
                   {"b|Total %", "100.0%"}}),
            shownCells(*tableOf("g,w\na,0\nb,5\na,0\n", request)));
}

TEST(TableBuilder, APercentageOfNothingHasNoValue) {
  TableRequest request = ask({"g"});
  request.weight = "w";
  request.statistics = {Statistic::ROW_PERCENT};
  EXPECT_EQ((Shown{{"a", "."}}), shownCells(*tableOf("g,w\na,0\n", request)));
}

TEST(TableBuilder, TotalsAreCategoriesOfTheDimensionsOfTheirAxis) {
  TableRequest request = ask({"a"}, {"b"});
  request.totals = {true, true, false};
  EXPECT_EQ((Shown{{"x|p", "2"},
                   {"x|q", "1"},
                   {"x|Total", "3"},
                   {"y|p", "1"},
                   {"y|Total", "1"},
                   {"Total|p", "3"},
                   {"Total|q", "1"},
                   {"Total|Total", "4"}}),
            shownCells(*tableOf(kFour, request)));
}

TEST(TableBuilder, PercentagesAreOfTheRowTheColumnAndTheLayer) {
  TableRequest request = ask({"a"}, {"b"}, {"l"});
  request.totals = {true, false, false};
  request.statistics = {Statistic::ROW_PERCENT, Statistic::COLUMN_PERCENT,
                        Statistic::TOTAL_PERCENT};
  const Shown cells = shownCells(*tableOf(kFour, request));
  const auto three = [&](const std::string& row, const std::string& column) {
    return cells.at(row + "|" + column + "|Row %|1") + " " +
           cells.at(row + "|" + column + "|Column %|1") + " " +
           cells.at(row + "|" + column + "|Total %|1");
  };
  EXPECT_EQ("50.0% 50.0% 33.3%", three("x", "p"));
  EXPECT_EQ("50.0% 100.0% 33.3%", three("x", "q"));
  EXPECT_EQ("100.0% 50.0% 33.3%", three("y", "p"));
  EXPECT_EQ("66.7% 100.0% 66.7%", three("Total", "p"));
  EXPECT_EQ("100.0%", cells.at("x|p|Total %|2"));
}

TEST(TableBuilder, RowPercentagesGoOverAllColumnDimensions) {
  TableRequest request = ask({"a"}, {"b", "l"});
  request.statistics = {Statistic::ROW_PERCENT};
  EXPECT_EQ(
      (Shown{{"x|p|1", "33.3%"}, {"x|q|1", "33.3%"}, {"x|p|2", "33.3%"}, {"y|p|1", "100.0%"}}),
      shownCells(*tableOf(kFour, request)));
}

TEST(TableBuilder, TotalsOfStatisticsAreThoseOfAllTheirNumbers) {
  TableRequest request = ask({"g"});
  request.measures = {"x"};
  request.totals = {true, false, false};
  request.statistics = {Statistic::N,   Statistic::SUM, Statistic::MEAN,  Statistic::SD,
                        Statistic::MIN, Statistic::MAX, Statistic::MEDIAN};
  const Shown cells =
      shownCells(*tableOf("g,x\na,2\na,4\nb,4\nb,4\na,5\nb,5\na,7\nb,9\na,\n", request));
  EXPECT_EQ("8", cells.at("Total|x/N"));
  EXPECT_EQ("40", cells.at("Total|x/Sum"));
  EXPECT_EQ("5.00", cells.at("Total|x/Mean"));
  EXPECT_EQ("2.14", cells.at("Total|x/Standard deviation"));
  EXPECT_EQ("2", cells.at("Total|x/Minimum"));
  EXPECT_EQ("9", cells.at("Total|x/Maximum"));
  EXPECT_EQ("4.5", cells.at("Total|x/Median"));
}

TEST(TableBuilder, StatisticsOfNoNumbersHaveNoValue) {
  TableRequest request = ask({"g"});
  request.measures = {"x"};
  request.statistics = {Statistic::N,   Statistic::SUM, Statistic::MEAN,  Statistic::SD,
                        Statistic::MIN, Statistic::MAX, Statistic::MEDIAN};
  EXPECT_EQ((Shown{{"a|x/N", "0"},
                   {"a|x/Sum", "."},
                   {"a|x/Mean", "."},
                   {"a|x/Standard deviation", "."},
                   {"a|x/Minimum", "."},
                   {"a|x/Maximum", "."},
                   {"a|x/Median", "."}}),
            shownCells(*tableOf("g,x\na,\n", request)));
}

TEST(TableBuilder, NumbersShowWithTheDecimalsOfTheirData) {
  TableRequest request = ask({"g"});
  request.measures = {"x"};
  request.statistics = {Statistic::COUNT, Statistic::SUM, Statistic::MEAN, Statistic::MIN,
                        Statistic::MEDIAN};
  std::string csv = "g,x\n";
  for (int i = 0; i < 1'500; ++i) csv += "a,1890.5\n";
  EXPECT_EQ((Shown{{"a|Count", "1,500"},
                   {"a|x/Sum", "2,835,750.0"},
                   {"a|x/Mean", "1890.500"},
                   {"a|x/Minimum", "1890.5"},
                   {"a|x/Median", "1890.50"}}),
            shownCells(*tableOf(csv, request)));
}

TEST(TableBuilder, CountsOfFractionsShowTwoDecimalsAtMost) {
  TableRequest request = ask({"g"});
  request.weight = "w";
  EXPECT_EQ((Shown{{"a", "0.88"}}), shownCells(*tableOf("g,w\na,0.5\na,0.375\n", request)));
}

TEST(TableBuilder, LeavesNothingBehindWhenMemoryRunsOut) {
  TableRequest request = ask({"a"}, {"b"}, {"l"});
  request.totals = {true, true, true};
  request.statistics = {Statistic::COUNT, Statistic::ROW_PERCENT};
  request.caption = "A caption";
  request.notes = {"A note"};
  const tabulate::Counted counted = countText(kFour, request);
  const std::size_t failures = failEveryAllocation([&](FailurePoint& failure) {
    failure.during([&] { tabulate::buildTable(request, counted); });
  });
  EXPECT_GT(failures, 50U);
}

}  // namespace
}  // namespace om::test
