// Requests whose parts do not go together.

#include "tools/tabulate/Request.h"

#include <gtest/gtest.h>

#include "tools/tabulate/Failure.h"

namespace om::test {
namespace {

using tabulate::Axis;
using tabulate::Statistic;
using tabulate::TableRequest;

std::string refusal(const TableRequest& request) {
  try {
    request.check();
  } catch (const tabulate::Failure& failure) {
    EXPECT_EQ(tabulate::ExitCode::USAGE, failure.code());
    return failure.what();
  }
  return "";
}

TableRequest sound() {
  TableRequest request;
  request.dimensions[Axis::ROWS] = {{"a", "b"}};
  request.dimensions[Axis::LAYERS] = {{"c"}};
  request.weight = "w";
  return request;
}

TEST(Request, IsSoundWithoutRepetitions) {
  EXPECT_EQ("", refusal(sound()));
  TableRequest request = sound();
  request.measures = {"a", "w"};
  EXPECT_EQ("", refusal(request));
}

TEST(Request, NeedsADimension) {
  EXPECT_EQ("there is no variable on rows, columns or layers", refusal(TableRequest()));
}

TEST(Request, UsesAVariableOnce) {
  TableRequest request = sound();
  request.dimensions[Axis::COLUMNS] = {{"b"}};
  EXPECT_EQ("the variable \"b\" is given twice", refusal(request));
  request = sound();
  request.weight = "c";
  EXPECT_EQ("the variable \"c\" is given twice", refusal(request));
  request = sound();
  request.measures = {"x", "y", "x"};
  EXPECT_EQ("the variable \"x\" is given twice", refusal(request));
}

TEST(Request, HasMeasuresWithTheirStatisticsAndTheOtherWayRound) {
  TableRequest request = sound();
  request.statistics = {Statistic::N};
  EXPECT_EQ("", refusal(request));
  request.statistics = {Statistic::COUNT, Statistic::MEAN};
  EXPECT_EQ("there is no measure to take the \"mean\" of", refusal(request));
  request.measures = {"x"};
  EXPECT_EQ("", refusal(request));
  request.statistics = {Statistic::COUNT};
  EXPECT_EQ("there is a measure, but no statistic of it", refusal(request));
}

TEST(Request, NamesAStatisticOnce) {
  TableRequest request = sound();
  request.statistics = {Statistic::COUNT, Statistic::N, Statistic::COUNT};
  EXPECT_EQ("the statistic \"count\" is given twice", refusal(request));
}

}  // namespace
}  // namespace om::test
