// Jobs: what they ask for and what they are refused for.

#include "tools/tabulate/JobFile.h"

#include <gtest/gtest.h>

#include "tools/tabulate/Failure.h"

namespace om::test {
namespace {

using tabulate::Axis;
using tabulate::JobTable;
using tabulate::parseJob;
using tabulate::Statistic;

std::vector<JobTable> parse(const std::string& text) { return parseJob(text, "j.json"); }

// A job of one table that has rows and data besides what is given.
std::vector<JobTable> parseOne(const std::string& more) {
  return parse(R"({"tables": [{"data": "d.csv", "rows": ["a"])" + more + "}]}");
}

std::string refusal(const std::string& text) {
  try {
    parse(text);
  } catch (const tabulate::Failure& failure) {
    EXPECT_EQ(tabulate::ExitCode::USAGE, failure.code());
    return failure.what();
  }
  return "none";
}

std::string refusalOfOne(const std::string& more) {
  return refusal(R"({"tables": [{"data": "d.csv", "rows": ["a"])" + more + "}]}");
}

TEST(Job, HasTablesWithOptionsOfTheirOwn) {
  const std::vector<JobTable> tables = parse(R"({"tables": [
      {"data": "a.csv", "rows": ["x"]},
      {"data": "b/b.csv", "rows": [["p", "q"], "r"], "columns": ["s,t/u"], "layers": [["v"]],
       "weight": "w", "measure": ["m", "m/n"], "statistics": ["sum", "count"],
       "statistics-on": "rows", "totals": ["layers"], "missing": "category", "order": "sorted",
       "title": "T", "caption": "C", "notes": ["one", "two"], "encoding": "latin1",
       "max-cells": 9, "skip-empty": [], "names-in-corner": true, "layer": 2}]})");
  ASSERT_EQ(2U, tables.size());
  EXPECT_EQ("a.csv", tables[0].request.data);
  EXPECT_TRUE(tables[0].rendering.skipEmpty[Axis::ROWS]);
  const tabulate::TableRequest& request = tables[1].request;
  using Dimensions = std::vector<tabulate::DimensionRequest>;
  EXPECT_EQ("b/b.csv", request.data);
  EXPECT_EQ((Dimensions{{"p", "q"}, {"r"}}), request.dimensions[Axis::ROWS]);
  EXPECT_EQ((Dimensions{{"s,t/u"}}), request.dimensions[Axis::COLUMNS]);
  EXPECT_EQ((Dimensions{{"v"}}), request.dimensions[Axis::LAYERS]);
  EXPECT_EQ("w", request.weight);
  EXPECT_EQ((std::vector<std::string>{"m", "m/n"}), request.measures);
  EXPECT_EQ((std::vector<Statistic>{Statistic::SUM, Statistic::COUNT}), request.statistics);
  EXPECT_EQ(Axis::ROWS, request.statisticsOn);
  EXPECT_TRUE(request.totals[Axis::LAYERS]);
  EXPECT_EQ(tabulate::Missing::CATEGORY, request.missing);
  EXPECT_EQ(tabulate::Order::SORTED, request.order);
  EXPECT_EQ("T", request.title);
  EXPECT_EQ("C", request.caption);
  EXPECT_EQ((std::vector<std::string>{"one", "two"}), request.notes);
  EXPECT_EQ("latin1", request.encoding);
  EXPECT_EQ(9, request.maxCells);
  EXPECT_FALSE(tables[1].rendering.skipEmpty[Axis::ROWS]);
  EXPECT_TRUE(tables[1].rendering.namesInCorner);
  EXPECT_EQ(1, tables[1].rendering.layer);
}

TEST(Job, LayerMayBeAll) {
  EXPECT_EQ(tabulate::TableRendering::kAllLayers,
            parseOne(R"(, "layer": "all")").at(0).rendering.layer);
}

TEST(Job, NothingIsSkippedForNone) {
  for (const std::string list : {"[]", "[\"none\"]"}) {
    const JobTable table = parseOne(", \"skip-empty\": " + list).at(0);
    for (const Axis axis : tabulate::kAxes) EXPECT_FALSE(table.rendering.skipEmpty[axis]);
  }
}

TEST(JobRefusal, OfWhatIsNoJson) {
  EXPECT_EQ("j.json: it is no JSON at line 1, byte 1", refusal(""));
  EXPECT_EQ("j.json: it is no JSON at line 2, byte 3", refusal("{\n  x}"));
  EXPECT_EQ("j.json: it is no JSON at line 1, byte 3", refusal("{}x"));
  EXPECT_EQ("j.json: it is no JSON at line 1, byte 2", refusal("\"\xff\""));
  EXPECT_EQ("j.json: it holds a number that is out of range", refusal("[1e999]"));
}

TEST(JobRefusal, OfAnotherShape) {
  const std::string shape = "j.json: an object with a list \"tables\" is needed";
  for (const char* const text :
       {"[]", "{}", "null", "3", R"({"tables": 3})", R"({"tables": {}})"}) {
    EXPECT_EQ(shape, refusal(text)) << text;
  }
  EXPECT_EQ("j.json: the list \"tables\" is empty", refusal(R"({"tables": []})"));
  EXPECT_EQ("j.json: table 1: an object is needed", refusal(R"({"tables": [3]})"));
}

TEST(JobRefusal, OfKeysThatAreUnknownOrRepeated) {
  EXPECT_EQ("j.json: there is no key \"output\"",
            refusal(R"({"output": "/etc/passwd", "tables": [{"data": "a", "rows": ["x"]}]})"));
  EXPECT_EQ("j.json: table 1: there is no key \"wieght\"", refusalOfOne(R"(, "wieght": "w")"));
  EXPECT_EQ("j.json: table 2: there is no key \"row\\x0as\"",
            refusal(R"({"tables": [{"data": "a", "rows": ["x"]}, {"row\ns": 1}]})"));
  EXPECT_EQ("j.json: the key \"rows\" is given twice", refusalOfOne(R"(, "rows": ["b"])"));
  EXPECT_EQ("j.json: the key \"tables\" is given twice",
            refusal(R"({"tables": [], "tables": []})"));
}

TEST(JobRefusal, OfDepth) {
  EXPECT_EQ("j.json: it is nested too deeply",
            refusal(std::string(100'000, '[') + std::string(100'000, ']')));
}

TEST(JobRefusal, OfValuesOfAnotherKind) {
  const auto inTable = [](const std::string& text) { return "j.json: table 1: " + text; };
  EXPECT_EQ(inTable("\"title\": a text is needed"), refusalOfOne(R"(, "title": 3)"));
  EXPECT_EQ(inTable("\"notes\": a list of texts is needed"), refusalOfOne(R"(, "notes": "x")"));
  EXPECT_EQ(inTable("\"notes\": a text is needed"), refusalOfOne(R"(, "notes": [1])"));
  EXPECT_EQ(inTable("\"columns\": a list of dimensions is needed"),
            refusalOfOne(R"(, "columns": "b")"));
  EXPECT_EQ(inTable("\"columns\": a dimension has no names"), refusalOfOne(R"(, "columns": [[]])"));
  EXPECT_EQ(inTable("\"columns\": a name is empty"), refusalOfOne(R"(, "columns": [""])"));
  EXPECT_EQ(inTable("\"columns\": a text is needed"), refusalOfOne(R"(, "columns": [[["b"]]])"));
  EXPECT_EQ(inTable("\"weight\": a name is empty"), refusalOfOne(R"(, "weight": "")"));
  EXPECT_EQ(inTable("\"order\": \"up\" is none of data, sorted, typed"),
            refusalOfOne(R"(, "order": "up")"));
  EXPECT_EQ(inTable("\"max-cells\": a whole number is needed"),
            refusalOfOne(R"(, "max-cells": 1.5)"));
  EXPECT_EQ(inTable("\"max-cells\": \"0\" is no whole number from 1 up"),
            refusalOfOne(R"(, "max-cells": 0)"));
  EXPECT_EQ(inTable("\"max-cells\": \"18446744073709551615\" is too large"),
            refusalOfOne(R"(, "max-cells": 18446744073709551615)"));
  EXPECT_EQ(inTable("\"names-in-corner\": true or false is needed"),
            refusalOfOne(R"(, "names-in-corner": 1)"));
  EXPECT_EQ(inTable("\"layer\": \"0\" is neither a number from 1 nor all"),
            refusalOfOne(R"(, "layer": 0)"));
  EXPECT_EQ(inTable("\"layer\": a whole number or \"all\" is needed"),
            refusalOfOne(R"(, "layer": 1.5)"));
}

TEST(JobRefusal, OfTablesThatDoNotGoTogether) {
  EXPECT_EQ("j.json: table 1: \"data\" is missing", refusal(R"({"tables": [{"rows": ["a"]}]})"));
  EXPECT_EQ("j.json: table 1: there is no variable on rows, columns or layers",
            refusal(R"({"tables": [{"data": "d"}]})"));
  EXPECT_EQ("j.json: table 1: the variable \"a\" is given twice",
            refusalOfOne(R"(, "columns": [["b", "a"]])"));
  EXPECT_EQ("j.json: the standard input can be read once only",
            refusal(R"({"tables": [{"data": "-", "rows": ["a"]}, {"data": "-", "rows": ["a"]}]})"));
}

TEST(JobRefusal, OfDataOutsideItsFolder) {
  for (const std::string file : {"/etc/passwd", "../x.csv", "a/../../x.csv", "..", "a/.."}) {
    EXPECT_EQ("j.json: table 1: \"data\": \"" + file +
                  "\" does not lie in the folder of the job or below it",
              refusal(R"({"tables": [{"rows": ["a"], "data": ")" + file + "\"}]}"));
  }
  EXPECT_EQ(
      "j.json: table 1: \"data\": \"a\\x00b\" does not lie in the folder of the job or below it",
      refusal(R"({"tables": [{"rows": ["a"], "data": "a\u0000b"}]})"));
}

}  // namespace
}  // namespace om::test
