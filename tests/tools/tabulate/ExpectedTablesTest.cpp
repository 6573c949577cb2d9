// Every table of the expected results, which two other systems have computed from the same data:
// cells, margins, statistics and the orders of the labels.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <fstream>

#include "tests/tools/tabulate/ReadTable.h"
#include "tests/tools/tabulate/TestData.h"
#include "tools/tabulate/Counting.h"
#include "tools/tabulate/TableBuilder.h"

namespace om::test {
namespace {

using tabulate::Axis;
using tabulate::Counted;
using tabulate::kAxes;
using tabulate::Statistic;
using tabulate::TableRequest;

const std::string kExpected = std::string(OM_TEST_DATA) + "/expected/";
const Path kTotal{"Total"};

// One of the tables, by its record in the list of tables.
class ExpectedTable : public testing::TestWithParam<Named> {
 protected:
  ExpectedTable() {
    variables_ = {partsOf(GetParam().at("rows")), partsOf(GetParam().at("cols")),
                  partsOf(GetParam().at("layers"))};
    for (const auto& axis : variables_) all_.insert(all_.end(), axis.begin(), axis.end());
  }

  std::string file(const std::string& part) const {
    return kExpected + GetParam().at("table") + "." + part + ".csv";
  }

  // A hierarchy for each axis, or a dimension for each variable.
  TableRequest request(bool hierarchies) const {
    TableRequest result;
    for (const Axis axis : kAxes) {
      const std::vector<std::string>& names = variables_[static_cast<std::size_t>(axis)];
      if (hierarchies && !names.empty()) result.dimensions[axis].push_back(names);
      if (!hierarchies) {
        for (const std::string& name : names) result.dimensions[axis].push_back({name});
      }
      result.totals[axis] = true;
    }
    result.weight = GetParam().at("weight");
    result.missing = GetParam().at("missing") == "exclude" ? tabulate::Missing::EXCLUDE
                                                           : tabulate::Missing::CATEGORY;
    result.measures = partsOf(GetParam().at("variables"));
    result.statistics = {Statistic::COUNT, Statistic::N};
    if (!result.measures.empty()) {
      result.statistics = {Statistic::COUNT, Statistic::N,   Statistic::SUM, Statistic::MEAN,
                           Statistic::SD,    Statistic::MIN, Statistic::MAX, Statistic::MEDIAN};
    }
    return result;
  }

  Counted count(const TableRequest& asked) const {
    std::ifstream in(dataFile(GetParam().at("data")), std::ios::binary);
    return tabulate::countRecords(in, GetParam().at("data"), asked, [](std::uint64_t) {});
  }

  // Cells by one label for each variable, "Total" where it is summed over, then the statistic.
  std::map<Path, double> cells(bool hierarchies) const {
    const TableRequest asked = request(hierarchies);
    const Counted counted = count(asked);
    const auto table = tabulate::buildTable(asked, counted);
    EXPECT_TRUE(table->validate().empty());
    std::vector<int> order = dimensionOrder(*table);
    const auto statistics = std::find(order.begin(), order.end(), 0);  // the first dimension
    std::rotate(statistics, statistics + 1, order.end());

    std::map<Path, double> result;
    for (const auto& [key, value] : cellsOf(*table, order)) {
      Path labels;
      std::size_t dimension = 0;
      for (const auto& names : variables_) {
        if (hierarchies && !names.empty()) {
          Path path = key[dimension++];
          path.resize(names.size(), "Total");
          labels.insert(labels.end(), path.begin(), path.end());
        } else if (!hierarchies) {
          for (std::size_t i = 0; i < names.size(); ++i) labels.push_back(key[dimension++].at(0));
        }
      }
      labels.insert(labels.end(), key.back().begin(), key.back().end());
      result[labels] = value;
    }
    return result;
  }

  // The labels of an expected record, with totals for what is not named in `over`.
  Path labelsOf(const Named& record) const {
    const auto over = record.find("over");
    Path labels;
    for (const std::string& name : all_) {
      const bool kept = over == record.end() || [&] {
        const std::vector<std::string> names = partsOf(over->second);
        return std::find(names.begin(), names.end(), name) != names.end();
      }();
      labels.push_back(kept ? record.at(name) : "Total");
    }
    return labels;
  }

  std::array<std::vector<std::string>, 3> variables_;
  std::vector<std::string> all_;
};

Path with(Path labels, std::initializer_list<std::string> more) {
  labels.insert(labels.end(), more);
  return labels;
}

// As a relative error, so that 0 must be met exactly.
void expectClose(double expected, double actual, const Path& key) {
  EXPECT_LE(std::abs(actual - expected), 1e-12 * std::abs(expected))
      << testing::PrintToString(key) << ": " << actual << " instead of " << expected;
}

class ExpectedCounts : public ExpectedTable {};

TEST_P(ExpectedCounts, OfHierarchiesAreAllThatIsExpectedAndNothingElse) {
  std::map<Path, double> expected;
  for (const char* const part : {"cells", "margins"}) {
    for (const Named& record : namedRecordsOf(file(part))) {
      expected[with(labelsOf(record), {"Count"})] = std::stod(record.at("count"));
      expected[with(labelsOf(record), {"N"})] = std::stod(record.at("records"));
    }
  }
  EXPECT_EQ(expected, cells(true));
}

TEST_P(ExpectedCounts, OfNestedDimensionsHoldAllThatIsExpected) {
  const std::map<Path, double> actual = cells(false);
  for (const char* const part : {"cells", "margins"}) {
    for (const Named& record : namedRecordsOf(file(part))) {
      const auto count = actual.find(with(labelsOf(record), {"Count"}));
      const auto records = actual.find(with(labelsOf(record), {"N"}));
      ASSERT_TRUE(count != actual.end() && records != actual.end())
          << testing::PrintToString(labelsOf(record));
      EXPECT_EQ(std::stod(record.at("count")), count->second);
      EXPECT_EQ(std::stod(record.at("records")), records->second);
    }
  }
}

TEST_P(ExpectedCounts, SummaryHoldsOfWhatWasRead) {
  const std::vector<Named> summaries = namedRecordsOf(kExpected + "summary.csv");
  const auto summary = std::find_if(summaries.begin(), summaries.end(), [](const Named& record) {
    return record.at("table") == GetParam().at("table");
  });
  ASSERT_NE(summaries.end(), summary);
  const Counted counted = count(request(true));
  EXPECT_EQ(summary->at("data_records"), std::to_string(counted.read));
  EXPECT_EQ(summary->at("used_records"), std::to_string(counted.used));
  EXPECT_EQ(counted.read, counted.used + counted.missing + counted.missingWeight);
  EXPECT_EQ(summary->at("cells"), std::to_string(counted.tally.size()));
  std::size_t zeros = 0;
  for (std::size_t cell = 0; cell < counted.tally.size(); ++cell) {
    zeros += counted.tally.count(cell) == 0 ? 1 : 0;
  }
  EXPECT_EQ(summary->at("zero_cells"), std::to_string(zeros));
}

// The paths of an axis file in the order of one of its columns of ranks.
std::vector<Path> expectedPaths(const std::string& file, std::size_t depth,
                                const std::string& rank) {
  const std::vector<std::vector<std::string>> records = recordsOf(file);
  const auto column = std::find(records[0].begin(), records[0].end(), rank) - records[0].begin();
  std::vector<Path> paths(records.size() - 1);
  for (std::size_t i = 1; i < records.size(); ++i) {
    const std::size_t at = std::stoul(records[i].at(static_cast<std::size_t>(column))) - 1;
    paths.at(at).assign(records[i].begin(), records[i].begin() + static_cast<long>(depth));
  }
  return paths;
}

constexpr const char* kAxisFiles[] = {"rows", "cols", "layers"};

TEST_P(ExpectedCounts, LabelsStandInTheOrderAskedFor) {
  const std::map<tabulate::Order, std::string> ranks{{tabulate::Order::DATA, "ord_nested"},
                                                     {tabulate::Order::SORTED, "ord_sorted"},
                                                     {tabulate::Order::TYPED, "ord_typed"}};
  TableRequest asked = request(true);
  for (const Axis axis : kAxes) asked.totals[axis] = false;
  const Counted counted = count(asked);
  for (const auto& [order, rank] : ranks) {
    asked.order = order;
    const auto table = tabulate::buildTable(asked, counted);
    const PuppetVector<short>* const axes[] = {&table->Rows(), &table->Columns(), &table->Layers()};
    for (std::size_t axis = 0; axis < 3; ++axis) {
      if (variables_[axis].empty()) continue;
      const int outermost = (*axes[axis])[axes[axis]->size() - 1];
      EXPECT_EQ(expectedPaths(file(kAxisFiles[axis]), variables_[axis].size(), rank),
                pathsOf(table->Dimension(outermost)))
          << kAxisFiles[axis] << " by " << rank;
    }
  }
}

TEST_P(ExpectedCounts, DimensionsOfTheirOwnStandInTheOrderOfTheirLevels) {
  TableRequest asked = request(false);
  for (const Axis axis : kAxes) asked.totals[axis] = false;
  const Counted counted = count(asked);
  const auto table = tabulate::buildTable(asked, counted);
  const std::vector<int> order = dimensionOrder(*table);
  std::map<std::string, std::map<std::string, std::size_t>> places;
  for (const int i : order) {
    const std::vector<Path> paths = pathsOf(table->Dimension(i));
    for (std::size_t k = 0; k < paths.size(); ++k) {
      places[std::string(table->Dimension(i).Name())][paths[k].at(0)] = k;
    }
  }
  for (std::size_t axis = 0; axis < 3; ++axis) {
    if (variables_[axis].empty()) continue;
    std::vector<Path> paths =
        expectedPaths(file(kAxisFiles[axis]), variables_[axis].size(), "ord_sorted");
    const auto rank = [&](const Path& path) {
      std::vector<std::size_t> ranks;
      for (std::size_t i = 0; i < path.size(); ++i) {
        ranks.push_back(places.at(variables_[axis][i]).at(path[i]));
      }
      return ranks;
    };
    std::sort(paths.begin(), paths.end(),
              [&](const Path& a, const Path& b) { return rank(a) < rank(b); });
    EXPECT_EQ(expectedPaths(file(kAxisFiles[axis]), variables_[axis].size(), "ord_level"), paths);
  }
}

TEST_P(ExpectedCounts, FirstRecordsOfPathsAreKnown) {
  const Counted counted = count(request(true));
  std::size_t level = 0;
  for (std::size_t axis = 0; axis < 3; ++axis) {
    const std::size_t depth = variables_[axis].size();
    std::map<Path, std::uint64_t> first;
    for (std::size_t cell = 0; cell < counted.tally.size(); ++cell) {
      Path path;
      for (std::size_t i = level; i < level + depth; ++i) {
        path.emplace_back(counted.dictionaries[i].label(counted.tally.key(cell)[i]));
      }
      const auto entry = first.emplace(path, counted.tally.first(cell)).first;
      entry->second = std::min(entry->second, counted.tally.first(cell));
    }
    level += depth;
    if (depth == 0) continue;
    const std::vector<std::vector<std::string>> records = recordsOf(file(kAxisFiles[axis]));
    const auto column = std::find(records[0].begin(), records[0].end(), "first_record");
    const auto at = static_cast<std::size_t>(column - records[0].begin());
    EXPECT_EQ(records.size() - 1, first.size());
    for (std::size_t i = 1; i < records.size(); ++i) {
      const Path path(records[i].begin(), records[i].begin() + static_cast<long>(depth));
      EXPECT_EQ(records[i].at(at), std::to_string(first[path]));
    }
  }
}

class ExpectedStatistics : public ExpectedTable {};

TEST_P(ExpectedStatistics, AreMetInHierarchiesAndNestedDimensions) {
  const std::map<std::string, std::string> labels{
      {"n", "N"},         {"sum", "Sum"},     {"mean", "Mean"},    {"sd", "Standard deviation"},
      {"min", "Minimum"}, {"max", "Maximum"}, {"median", "Median"}};
  const std::vector<Named> records = namedRecordsOf(file("stats"));
  ASSERT_FALSE(records.empty());
  for (const bool hierarchies : {true, false}) {
    const std::map<Path, double> actual = cells(hierarchies);
    std::size_t seen = 0;
    for (const Named& record : records) {
      const Path group = labelsOf(record);
      EXPECT_EQ(std::stod(record.at("records")), actual.at(with(group, {"Count"})));
      for (const auto& [column, label] : labels) {
        const Path key = with(group, {record.at("variable"), label});
        const double value = actual.at(key);
        ++seen;
        if (record.at(column).empty()) {
          EXPECT_TRUE(std::isnan(value)) << testing::PrintToString(key);
        } else if (column == "n") {
          EXPECT_EQ(std::stod(record.at(column)), value);
          EXPECT_EQ(std::stod(record.at("records")) - value, std::stod(record.at("missing")));
        } else {
          expectClose(std::stod(record.at(column)), value, key);
        }
      }
    }
    if (hierarchies) {
      const std::size_t variables = partsOf(GetParam().at("variables")).size();
      EXPECT_EQ(actual.size(), seen + records.size() / variables);
    }
  }
}

std::vector<Named> tablesOfKind(const std::string& kind) {
  std::vector<Named> tables = namedRecordsOf(kExpected + "tables.csv");
  std::erase_if(tables, [&](const Named& table) { return table.at("kind") != kind; });
  return tables;
}

std::string nameOf(const testing::TestParamInfo<Named>& info) { return info.param.at("table"); }

INSTANTIATE_TEST_SUITE_P(Tables, ExpectedCounts, testing::ValuesIn(tablesOfKind("count")), nameOf);
INSTANTIATE_TEST_SUITE_P(Tables, ExpectedStatistics, testing::ValuesIn(tablesOfKind("stats")),
                         nameOf);

TEST(ExpectedTables, AreTwenty) {
  EXPECT_EQ(20U, tablesOfKind("count").size() + tablesOfKind("stats").size());
}

}  // namespace
}  // namespace om::test
