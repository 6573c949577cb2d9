// A document as JSON, read back with a parser that is not ours.

#include "render/JsonWriter.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <sstream>
#include <string>

#include "tests/render/SampleDocuments.h"
#include "tests/support/Golden.h"

namespace om::test {
namespace {

using nlohmann::json;
using render::JsonOptions;

std::string jsonOf(const OmOutputTree& document, const JsonOptions& options = {}) {
  std::ostringstream out;
  render::writeJson(document, out, options);
  return out.str();
}

json read(const OmOutputTree& document, const JsonOptions& options = {}) {
  return json::parse(jsonOf(document, options));
}

// The object of a table that is the only part of a document.
json read(SampleTable table, const JsonOptions& options = {}) {
  OmOutputTree document;
  document.AppendLast(std::move(table), 1);
  return read(document, options)["parts"][0];
}

TEST(JsonWriter, WritesAnEmptyDocument) {
  EXPECT_EQ(jsonOf(OmOutputTree()),
            "{\n  \"format\": \"om-document\",\n  \"version\": 1,\n  \"parts\": []\n}\n");
}

TEST(JsonWriter, NestsPartsBelowHeadings) {
  OmOutputTree document;
  document.AppendLast(sampleHeading("A"), 1);
  document.AppendLast(sampleHeading("B"), 2);
  document.AppendLast(sampleBlock("C", {"x"}), 3);
  document.AppendLast(sampleBlock("D", {}), 1);
  EXPECT_EQ(read(document)["parts"], json::parse(R"([
    {"kind": "heading", "label": "A", "expanded": true, "footnotes": [], "parts": [
      {"kind": "heading", "label": "B", "expanded": true, "footnotes": [], "parts": [
        {"kind": "text", "label": "C", "lines": ["x"]}]}]},
    {"kind": "text", "label": "D", "lines": []}])"));
}

TEST(JsonWriter, WritesAProcedureWithItsCommand) {
  OmOutputTree document;
  auto procedure = sampleProcedure("Crosstabs");
  procedure->SetCommand("CROSSTABS\n  a BY b.");
  procedure->Expanded(false);
  const OmStringCell text("Note");
  const OmStringCell marker("*");
  procedure->Footnotes().push_back(OmFootnote(&text, &marker, nullptr));
  document.AppendLast(std::move(procedure), 1);
  EXPECT_EQ(read(document)["parts"][0], json::parse(R"({
    "kind": "procedure", "label": "Crosstabs", "command": "CROSSTABS\n  a BY b.",
    "translatedCommand": "", "language": "en", "locale": "en_GB", "codePage": "UTF-8",
    "expanded": false, "footnotes": [{"text": "Note", "marker": "*"}], "parts": []})"));
}

TEST(JsonWriter, ReadsTextsInTheirCodePage) {
  OmOutputTree document;
  document.AppendLast(sampleBlock("Log", {"caf\xE9"}, "windows-1252"), 1);
  EXPECT_EQ(read(document)["parts"][0],
            json::parse(R"({"kind": "log", "label": "Log", "lines": ["café"]})"));
}

TEST(JsonWriter, WritesObjectsByNameAndSizeAndTheImageOfAChart) {
  OmOutputTree document;
  document.AppendLast(sampleChart("Chart", "GIF89a"), 1);
  document.AppendLast(sampleChart("Unknown", "???"), 1);
  document.AppendLast(sampleModel("Model", 10), 1);
  document.AppendLast(sampleInteractive("Map"), 1);
  document.AppendLast(sampleAnswerTree("Tree"), 1);
  document.AppendLast(samplePageTitle({"Title"}), 1);
  EXPECT_EQ(read(document)["parts"], json::parse(R"([
    {"kind": "chart", "label": "Chart", "bytes": 14,
     "image": {"type": "image/gif", "base64": "R0lGODlh"}},
    {"kind": "chart", "label": "Unknown", "bytes": 11,
     "image": {"type": "", "base64": "Pz8/"}},
    {"kind": "model", "label": "Model", "bytes": 10},
    {"kind": "interactive", "label": "Map", "bytes": 2},
    {"kind": "answerTree", "label": "Tree", "bytes": 2048},
    {"kind": "pageTitle", "label": "", "lines": ["Title"]}])"));
}

TEST(JsonWriter, WritesTheTextsOfATableWithTheirFootnotes) {
  const json table = read(footnoteTable());
  EXPECT_EQ(table["kind"], "table");
  EXPECT_EQ(table["label"], json::parse(R"({"text": "Weights"})"));
  EXPECT_EQ(table["title"], json::parse(R"({"text": "Weights of penguins", "footnotes": [2]})"));
  EXPECT_EQ(table["template"], json::parse(R"({"text": "Sample"})"));
  EXPECT_EQ(table["caption"], json::parse(R"({"text": "Measured on land.", "footnotes": [0]})"));
  EXPECT_EQ(table["corner"], nullptr);
  EXPECT_EQ(table["footnotes"], json::parse(R"([
    {"text": "Weighted by island."}, {"text": "Nobody refers to this."}, {"text": "In grams."},
    {"text": "Significant at 5 per cent.", "marker": "*"}, {"text": "Estimated.", "marker": "b"},
    {"text": "Few birds."}])"));
}

TEST(JsonWriter, KeepsACaptionThatIsNotShown) {
  SampleTable table = footnoteTable();
  table->showCaption(false);
  const json written = read(std::move(table));
  EXPECT_EQ(written["caption"], json::parse(R"({"text": "Measured on land.", "footnotes": [0]})"));
  EXPECT_EQ(written["captionHidden"], true);
  EXPECT_FALSE(read(footnoteTable()).contains("captionHidden"));
}

TEST(JsonWriter, WritesDimensionsAsTrees) {
  const json table = read(nestedTable());
  EXPECT_EQ(table["dimensions"][0], json::parse(R"({"label": "Region", "categories": [
    {"label": "Europe", "categories": [
      {"label": "Britain", "subscript": 0}, {"label": "France", "subscript": 1}]},
    {"label": "Elsewhere", "subscript": 2}, {"label": "Nowhere", "subscript": 3}]})"));
  EXPECT_EQ(table["dimensions"][2], json::parse(R"({"label": "Age", "categories": [
    {"label": "Of age", "hidden": true, "categories": [{"label": "Adult", "subscript": 0}]},
    {"label": "Child", "subscript": 1}]})"));
  EXPECT_EQ(table["axes"], json::parse(R"({"layers": [4], "rows": [0, 1], "columns": [2, 3]})"));
}

TEST(JsonWriter, WritesLabelsWithFootnotesAndHiddenLabels) {
  SampleTable table = footnoteTable();
  table->Dimension(1).Root()->HideLabels(true);
  const json written = read(std::move(table));
  EXPECT_EQ(written["dimensions"], json::parse(R"([
    {"label": "Species", "footnotes": [0], "categories": [
      {"label": "Adelie", "subscript": 0},
      {"label": "Gentoo", "subscript": 1, "footnotes": [5]}]},
    {"label": "Statistics", "labelsHidden": true, "categories": [
      {"label": "Mean", "subscript": 0}, {"label": "Difference", "subscript": 1}]}])"));
}

TEST(JsonWriter, WritesCellsWithPlaceIndexTextNumberAndFootnotes) {
  const json layers = read(footnoteTable())["layers"];
  ASSERT_EQ(layers.size(), 1U);
  EXPECT_EQ(layers[0], json::parse(R"({"number": 0, "categories": [],
    "notes": [
      {"mark": "a", "footnote": 2}, {"mark": "c", "footnote": 0}, {"mark": "*", "footnote": 3},
      {"mark": "b", "footnote": 4}, {"mark": "d", "footnote": 5}],
    "rows": 2, "columns": 2, "cells": [
      {"row": 0, "column": 0, "index": [0, 0], "text": "3700.7", "number": 3700.7,
       "footnotes": [3, 4]},
      {"row": 0, "column": 1, "index": [0, 1], "text": "-12.25", "number": -12.25},
      {"row": 1, "column": 0, "index": [1, 0], "text": "5076", "number": 5076},
      {"row": 1, "column": 1, "index": [1, 1], "text": "1375.3", "number": 1375.3,
       "footnotes": [3]}]})"));
}

TEST(JsonWriter, NamesEachFootnoteOfATextOnceAndOnlyThoseThatExist) {
  SampleTable table = sampleTable("T");
  addSampleNote(*table, "Note");
  addSampleDimension(*table, "D", {"a"});
  table->Rows().push_back(0);
  table->Cell({0}, *noted("x", {0, 7, 0, -1}));
  const json layer = read(std::move(table))["layers"][0];
  EXPECT_EQ(layer["cells"][0]["footnotes"], json::parse("[0]"));
}

TEST(JsonWriter, WritesNoNumberWhereThereIsNone) {
  const json cell = read(flatTable())["layers"][0]["cells"][4];
  EXPECT_EQ(cell, json::parse(R"({"row": 1, "column": 2, "index": [1, 2], "text": "."})"));
}

TEST(JsonWriter, WritesTheMetadataOfCells) {
  SampleTable table = columnlessTable();
  table->Cell({0})->setMeta({"mean", {"a", "b"}, "x"});
  EXPECT_EQ(read(std::move(table))["layers"][0]["cells"][0]["meta"],
            json::parse(R"({"statistic": "mean", "variables": ["a", "b"], "details": "x"})"));
}

TEST(JsonWriter, WritesTheLayersThatTheOptionsAskFor) {
  const json all = read(nestedTable())["layers"];
  ASSERT_EQ(all.size(), 2U);
  EXPECT_EQ(all[1]["number"], 1);
  EXPECT_EQ(all[1]["categories"],
            json::parse(R"([{"dimension": 4, "subscript": 2, "labels": ["Class", "Third"]}])"));
  JsonOptions options;
  options.tables.layers = render::Layers::ONE;
  options.tables.layer = 1;
  EXPECT_EQ(read(nestedTable(), options)["layers"], json::array({all[1]}));
}

TEST(JsonWriter, WritesATableWithoutCellsWithoutLayers) {
  EXPECT_EQ(read(emptyTable())["layers"], json::array());
}

TEST(JsonWriter, WritesNullForAnEntryOfAnAxisThatIsNoDimension) {
  SampleTable table = columnlessTable();
  table->Columns().push_back(-1);
  EXPECT_EQ(read(std::move(table))["axes"],
            json::parse(R"({"layers": [], "rows": [0], "columns": [null]})"));
}

TEST(JsonWriter, WritesTheGridWhenAskedTo) {
  SampleTable table = sampleTable("T");
  addSampleDimension(*table, "R", {"a", "b"});
  OmDimension& columns = table->AddDimension(OmStringCell("C"));
  addSampleCategories(columns, addSampleGroup(columns, columns.Root(), "G"), {"x"});
  addSampleCategories(columns, columns.Root(), {"y"});
  table->Rows().push_back(0);
  table->Columns().push_back(1);
  for (int i = 0; i < 4; ++i) table->Cell({i / 2, i % 2}, OmNumber(i));
  const json layer = read(std::move(table), {.grid = true})["layers"][0];
  EXPECT_EQ(layer["grid"], json::parse(R"({
    "corner": [{"begin": 0, "end": 1, "label": "R"}],
    "columnHeading": [
      [{"begin": 0, "end": 2, "label": "C"}],
      [{"begin": 0, "end": 1, "label": "G"},
       {"begin": 1, "end": 2, "levels": 2, "label": "y"}],
      [{"begin": 0, "end": 1, "label": "x"}]],
    "rowHeading": [[{"begin": 0, "end": 1, "label": "a"}, {"begin": 1, "end": 2, "label": "b"}]]
  })"));
  EXPECT_FALSE(read(flatTable())["layers"][0].contains("grid"));
}

TEST(JsonWriter, WritesTheSampleDocument) {
  JsonOptions options;
  options.grid = true;
  expectGolden("json/sample.json", jsonOf(sampleDocument(), options));
}

TEST(JsonWriter, KeepsHostileTextsAsText) {
  const json document = read(hostileDocument(), {.grid = true});
  const std::vector<std::string>& texts = hostileTexts();
  for (std::size_t which = 0; which < texts.size(); ++which) {
    if (which == 5) continue;  // not UTF-8: see below
    EXPECT_EQ(document["parts"][which]["label"], texts[which]) << which;
  }
  EXPECT_EQ(document["parts"][5]["label"],
            "broken \xEF\xBF\xBD\xEF\xBF\xBD( \xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD");
}

}  // namespace
}  // namespace om::test
