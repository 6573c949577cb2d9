// Tables as JSON-stat, read back with a parser that is not ours.

#include "render/JsonStatWriter.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <sstream>
#include <stdexcept>
#include <string>

#include "external/cells/OmComposite.h"
#include "tests/render/SampleDocuments.h"
#include "tests/support/Golden.h"

namespace om::test {
namespace {

using nlohmann::json;
using render::JsonStatOptions;

std::string statOf(OmPivotTable& table, const JsonStatOptions& options = {}) {
  std::ostringstream out;
  render::writeJsonStat(table, out, options);
  return out.str();
}

json read(OmPivotTable& table, const JsonStatOptions& options = {}) {
  return json::parse(statOf(table, options));
}

// A table with cells of one dimension at the subscripts given.
SampleTable listTable(int categories, const std::vector<int>& cells) {
  SampleTable table = sampleTable("T");
  addSampleDimension(*table, "D",
                     std::vector<std::string>(static_cast<std::size_t>(categories), "c"));
  table->Rows().push_back(0);
  for (const int cell : cells) table->Cell({cell}, OmNumber(cell * 0.5));
  return table;
}

TEST(JsonStatWriter, WritesADatasetInTheOrderOfTheTable) {
  EXPECT_EQ(read(*flatTable()), json::parse(R"({
    "version": "2.0", "class": "dataset", "label": "Penguins by species",
    "note": ["Palmer Archipelago, 2007 to 2009."],
    "id": ["d0", "d1"], "size": [3, 3], "role": {"metric": ["d1"]},
    "dimension": {
      "d0": {"label": "Species", "category": {"index": ["c0", "c1", "c2"],
        "label": {"c0": "Adelie", "c1": "Chinstrap", "c2": "Gentoo"}}},
      "d1": {"label": "Statistics", "category": {"index": ["c0", "c1", "c2"],
        "label": {"c0": "N", "c1": "Per cent", "c2": "Mean mass"}}}},
    "value": [152, 44.2, 3700.66, 68, null, null, 1240, 36, -5076.02],
    "extension": {"text": {"5": "."}}})"));
}

TEST(JsonStatWriter, MakesGroupsParentsWithoutValues) {
  SampleTable table = sampleTable("T");
  OmDimension& dimension = table->AddDimension(OmStringCell("D"));
  const auto outer = addSampleGroup(dimension, dimension.Root(), "Outer");
  addSampleCategories(dimension, addSampleGroup(dimension, outer, "Inner"), {"a"});
  addSampleCategories(dimension, outer, {"b"});
  addSampleCategories(dimension, dimension.Root(), {"c"});
  table->Rows().push_back(0);
  for (int i = 0; i < 3; ++i) table->Cell({i}, OmNumber(i));
  const json dataset = read(*table);
  EXPECT_EQ(dataset["size"], json::parse("[5]"));
  EXPECT_EQ(dataset["dimension"]["d0"]["category"], json::parse(R"({
    "index": ["c0", "c1", "c2", "c3", "c4"],
    "label": {"c0": "Outer", "c1": "Inner", "c2": "a", "c3": "b", "c4": "c"},
    "child": {"c0": ["c1", "c3"], "c1": ["c2"]}})"));
  EXPECT_EQ(dataset["value"], json::parse("[null, null, 0, 1, 2]"));
}

TEST(JsonStatWriter, WritesAnObjectWhenFewerThanHalfOfThePlacesHaveANumber) {
  EXPECT_EQ(read(*listTable(5, {1, 4}))["value"], json::parse(R"({"1": 0.5, "4": 2})"));
  EXPECT_EQ(read(*listTable(4, {1, 3}))["value"], json::parse("[null, 0.5, null, 1.5]"));
  EXPECT_EQ(read(*listTable(3, {}))["value"], json::object());
}

TEST(JsonStatWriter, FindsTheCellsOfATableThatIsMostlyEmpty) {
  SampleTable table = sampleTable("T");
  addSampleDimension(*table, "D", std::vector<std::string>(100, "c"));
  addSampleDimension(*table, "E", std::vector<std::string>(1000, "c"));
  table->Rows().push_back(0);
  table->Columns().push_back(1);
  addSampleNote(*table, "Note");
  table->Cell({99, 999}, OmNumber(1));
  table->Cell({0, 1}, *noted("x", {0}));
  const json dataset = read(*table);
  EXPECT_EQ(dataset["value"], json::parse(R"({"99999": 1})"));
  EXPECT_EQ(dataset["status"], json::parse(R"({"1": "a"})"));
  EXPECT_EQ(dataset["extension"]["text"], json::parse(R"({"1": "x"})"));
}

TEST(JsonStatWriter, FindsCellsBehindOneThatWasCleared) {
  SampleTable table = listTable(3, {0, 1, 2});
  table->Cell({0}, nullptr);
  EXPECT_EQ(read(*table)["value"], json::parse("[null, 0.5, 1]"));
}

TEST(JsonStatWriter, PutsACellAtEachCategoryWithItsSubscript) {
  SampleTable table = sampleTable("T");
  OmDimension& dimension = table->AddDimension(OmStringCell("D"));
  for (const unsigned long long subscript : {1ULL, 1ULL, ~0ULL, 0ULL}) {
    dimension.AddNewChild(dimension.Root(), OmStringCell("c"), subscript, false);
  }
  table->Rows().push_back(0);
  table->Cell({1}, OmNumber(5));
  table->Cell({7}, OmNumber(6));
  EXPECT_EQ(read(*table)["value"], json::parse("[5, 5, null, null]"));
}

TEST(JsonStatWriter, PutsACellOfAMostlyEmptyTableAtEachCategoryWithItsSubscript) {
  SampleTable table = sampleTable("T");
  OmDimension& first = table->AddDimension(OmStringCell("D"));
  OmDimension& second = table->AddDimension(OmStringCell("E"));
  for (unsigned long long i = 0; i < 100; ++i) {
    first.AddNewChild(first.Root(), OmStringCell("c"), i == 10 ? 3ULL : i, false);
    second.AddNewChild(second.Root(), OmStringCell("c"), i == 20 ? 4ULL : i, false);
  }
  table->Cell({3, 4}, OmNumber(5));
  table->Cell({10, 4}, OmNumber(6));  // of no category
  EXPECT_EQ(read(*table)["value"], json::parse(R"({"304": 5, "320": 5, "1004": 5, "1020": 5})"));
}

TEST(JsonStatWriter, KeepsWhatCellsSayBeyondTheirNumber) {
  SampleTable table = listTable(2, {0, 1});
  OmComposite composite;
  composite.Append(OmNumber(2.5));
  composite.Append(OmNumber(0.5), 1);
  table->Cell({1}, composite);
  const json dataset = read(*table);
  EXPECT_EQ(dataset["value"], json::parse("[0, 2.5]"));
  EXPECT_EQ(dataset["extension"], json::parse(R"j({"text": {"1": "2.5 (0.5)"}})j"));
}

TEST(JsonStatWriter, LeavesOutACaptionThatIsNotShown) {
  const SampleTable table = footnoteTable();
  table->showCaption(false);
  EXPECT_EQ(read(*table)["note"], json::parse(R"(["In grams."])"));
}

TEST(JsonStatWriter, WritesFootnotesAsNotesAndStatus) {
  const json dataset = read(*footnoteTable());
  EXPECT_EQ(dataset["label"], "Weights of penguins");
  EXPECT_EQ(dataset["note"],
            json::parse(R"(["Measured on land.", "In grams.", "Weighted by island."])"));
  EXPECT_EQ(dataset["dimension"]["d0"]["note"], json::parse(R"(["Weighted by island."])"));
  EXPECT_EQ(dataset["dimension"]["d0"]["category"]["note"],
            json::parse(R"({"c1": ["Few birds."]})"));
  EXPECT_EQ(dataset["status"], json::parse(R"({"0": "d,e", "3": "d"})"));
  EXPECT_EQ(dataset["extension"]["status"]["label"], json::parse(R"({
    "a": "Weighted by island.", "b": "Nobody refers to this.", "c": "In grams.",
    "d": "Significant at 5 per cent.", "e": "Estimated.", "f": "Few birds."})"));
}

TEST(JsonStatWriter, MakesTheCodesOfTheMarksAskedFor) {
  EXPECT_EQ(read(*footnoteTable(), {.marks = render::Marks::NUMBERS})["status"],
            json::parse(R"({"0": "4,5", "3": "4"})"));
}

TEST(JsonStatWriter, GivesDimensionsTheRolesOfTheirNames) {
  JsonStatOptions options;
  options.time = {"Age", "Nothing"};
  options.geo = {"Region"};
  EXPECT_EQ(read(*nestedTable(), options)["role"],
            json::parse(R"({"time": ["d2"], "geo": ["d0"]})"));
  EXPECT_FALSE(read(*nestedTable()).contains("role"));
}

TEST(JsonStatWriter, WritesATableWithoutDimensions) {
  const json dataset = read(*sampleTable("T"));
  EXPECT_EQ(dataset["id"], json::array());
  EXPECT_EQ(dataset["value"], json::object());
}

TEST(JsonStatWriter, WritesATableWithADimensionWithoutCategories) {
  SampleTable table = listTable(2, {});
  table->AddDimension(OmStringCell("E"));
  const json dataset = read(*table);
  EXPECT_EQ(dataset["size"], json::parse("[2, 0]"));
  EXPECT_EQ(dataset["value"], json::array());
}

TEST(JsonStatWriter, RefusesMorePlacesThanCanBeNumbered) {
  SampleTable table = sampleTable("T");
  for (int i = 0; i < 53; ++i) addSampleDimension(*table, "D", {"a", "b"});
  std::ostringstream out;
  EXPECT_THROW(render::writeJsonStat(*table, out), std::length_error);
  EXPECT_EQ(out.str(), "");
}

TEST(JsonStatWriter, CountsNoPlacesWhereADimensionHasNoCategories) {
  SampleTable table = sampleTable("T");
  for (int i = 0; i < 70; ++i) addSampleDimension(*table, "D", {"a", "b"});
  table->AddDimension(OmStringCell("E"));
  EXPECT_EQ(read(*table)["value"], json::array());
}

TEST(JsonStatWriter, WritesADocumentAsACollection) {
  std::ostringstream out;
  render::writeJsonStat(sampleDocument(), out);
  const json collection = json::parse(out.str());
  EXPECT_EQ(collection["class"], "collection");
  std::vector<std::string> labels;
  for (const json& item : collection["link"]["item"]) labels.push_back(item["label"]);
  EXPECT_EQ(labels,
            (std::vector<std::string>{"Penguins by species", "Survival by region, sex and class",
                                      "Weights of penguins", "Notes", "Nothing was counted"}));
  expectGolden("jsonstat/sample.json", out.str());
}

TEST(JsonStatWriter, KeepsHostileTextsAsText) {
  const json dataset = read(*hostileTable());
  EXPECT_EQ(dataset["label"], hostileTexts()[0]);
  EXPECT_EQ(dataset["dimension"]["d0"]["category"]["label"]["c3"], hostileTexts()[3]);
  EXPECT_EQ(dataset["extension"]["text"]["3"], hostileTexts()[1]);
}

}  // namespace
}  // namespace om::test
