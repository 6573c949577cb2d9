// The categories of a dimension: their order, their groups and their totals.

#include "tools/tabulate/Categories.h"

#include <gtest/gtest.h>

#include "tests/tools/tabulate/Tabulated.h"

namespace om::test {
namespace {

using tabulate::Axis;
using tabulate::Missing;
using tabulate::Order;
using tabulate::TableRequest;

using Paths = std::vector<Path>;

// The paths of the only dimension of a table.
Paths rowPaths(const std::string& csv, TableRequest request) {
  request.missing = Missing::CATEGORY;
  const auto table = tableOf(csv, request);
  const auto categories = categoriesOf(table->Dimension(0));
  for (std::size_t i = 0; i < categories.size(); ++i) {
    EXPECT_EQ(static_cast<int>(i), categories[i].second);
  }
  return pathsOf(table->Dimension(0));
}

TableRequest hierarchy(const std::vector<std::string>& levels) {
  TableRequest request;
  request.dimensions[Axis::ROWS] = {levels};
  return request;
}

TEST(Categories, StandInOrderOfAppearance) {
  EXPECT_EQ((Paths{{"b"}, {"a"}, {"c"}}), rowPaths("g\nb\na\nb\nc\na\n", ask({"g"})));
}

TEST(Categories, ChildrenStandTogetherUnderTheirGroups) {
  EXPECT_EQ((Paths{{"b", "2"}, {"b", "1"}, {"a", "1"}}),
            rowPaths("g,h\nb,2\na,1\nb,1\nb,2\n", hierarchy({"g", "h"})));
}

TEST(Categories, SortByCodePointAndTheEmptyLabelComesFirst) {
  TableRequest request = ask({"g"});
  request.order = Order::SORTED;
  EXPECT_EQ((Paths{{""}, {"10"}, {"9"}, {"B"}, {"a"}, {"\u00e9"}, {"\uff5e"}, {"\U0001f427"}}),
            rowPaths("g,h\na,1\n\U0001f427,1\n\uff5e,1\n9,1\n10,1\n\u00e9,1\n,1\nB,1\n", request));
}

TEST(Categories, TypedOrderTakesNumbersByValueLevelByLevel) {
  TableRequest request = hierarchy({"g", "h"});
  request.order = Order::TYPED;
  EXPECT_EQ((Paths{{"-1", "x10"}, {"-1", "x9"}, {"9", "x9"}, {"10", "a"}}),
            rowPaths("g,h\n10,a\n9,x9\n-1,x9\n-1,x10\n", request));
}

TEST(Categories, OneLabelThatIsNoNumberMakesALevelText) {
  TableRequest request = ask({"g"});
  request.order = Order::TYPED;
  EXPECT_EQ((Paths{{""}, {"10"}, {"9"}, {"x"}}), rowPaths("g,h\n9,1\n10,1\nx,1\n,1\n", request));
  EXPECT_EQ((Paths{{""}, {"9"}, {"10"}}), rowPaths("g,h\n10,1\n9,1\n,1\n", request));
}

TEST(Categories, NumbersOfOneValueStayInOrderOfAppearance) {
  TableRequest request = ask({"g"});
  request.order = Order::TYPED;
  EXPECT_EQ((Paths{{"0.5"}, {"1.0"}, {"1"}, {"01"}, {"2"}}),
            rowPaths("g\n2\n1.0\n1\n01\n0.5\n", request));
}

TEST(Categories, NumbersThatNoDoubleHoldsMakeALevelText) {
  TableRequest request = ask({"g"});
  request.order = Order::TYPED;
  const std::string huge(400, '9');
  EXPECT_EQ((Paths{{"10"}, {"9"}, {huge}}), rowPaths("g\n9\n" + huge + "\n10\n", request));
}

TEST(Categories, TotalsEndTheDimensionAndEachGroup) {
  TableRequest request = hierarchy({"g", "h"});
  request.totals[Axis::ROWS] = true;
  EXPECT_EQ((Paths{{"a", "1"}, {"a", "2"}, {"a", "Total"}, {"b", "1"}, {"b", "Total"}, {"Total"}}),
            rowPaths("g,h\na,1\na,2\nb,1\n", request));
}

TEST(Categories, ACellCountsTowardsItselfAndTheTotalsAroundIt) {
  const std::string csv = "g,h\na,1\na,2\nb,1\n";
  TableRequest request = hierarchy({"g", "h"});
  const tabulate::Counted counted = countText(csv, request);
  const tabulate::Categories categories(counted.tally, counted.dictionaries, 0, 2, Order::DATA,
                                        true);
  EXPECT_EQ(6U, categories.size());
  EXPECT_EQ((std::vector<std::size_t>{1, 2, 5}), categories.subscriptsOf(1));
  EXPECT_EQ((std::vector<std::size_t>{3, 4, 5}), categories.subscriptsOf(2));
}

TEST(Categories, OfNoRecordsAreNoneOrATotal) {
  TableRequest request = ask({"g"});
  EXPECT_TRUE(rowPaths("g\n", request).empty());
  request.totals[Axis::ROWS] = true;
  EXPECT_EQ((Paths{{"Total"}}), rowPaths("g\n", request));
}

}  // namespace
}  // namespace om::test
