// What texts and pages show of a table without a layer to show: its title, that there is nothing,
// its caption and its footnotes. scripts/check-xlsx looks at the same in a workbook.

#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "render/TextWriter.h"
#include "tests/render/Html.h"
#include "tests/render/SampleTables.h"

namespace om::test {
namespace {

// Its title, its caption and its only cell, if there is one, have a footnote each.
SampleTable notedTable(bool hasCell) {
  SampleTable table = sampleTable("Weights");
  table->SetTableTitle(*noted("Weights of penguins", {2}));
  addSampleNote(*table, "On land.");
  addSampleNote(*table, "Of the cell.");
  addSampleNote(*table, "In grams.");
  addSampleDimension(*table, "Species", {"Adelie"});
  table->Rows().push_back(0);
  if (hasCell) table->Cell({0}, *noted(count(5), {1}));
  table->Caption(noted("Measured.", {0}).get());
  return table;
}

template <class Options>
Options atLayer(int layer) {
  Options options;
  options.tables.layers = render::Layers::ONE;
  options.tables.layer = layer;
  return options;
}

std::string textOf(OmPivotTable& table, const render::TextOptions& options = {}) {
  std::ostringstream out;
  render::writeText(table, out, options);
  return out.str();
}

std::string partOf(OmPivotTable& table, const render::HtmlOptions& options = {}) {
  return between(htmlOf(table, options), "<div class=\"part\">\n", "</main>");
}

TEST(NoLayer, ATextShowsTitleMessageCaptionAndNotes) {
  EXPECT_EQ(textOf(*notedTable(false)),
            "Weights of penguins[a]\n(no cells)\nMeasured.[b]\n[a] In grams.\n[b] On land.\n");
}

TEST(NoLayer, ATextSaysThatThereIsNoSuchLayer) {
  EXPECT_EQ(textOf(*notedTable(true), atLayer<render::TextOptions>(1)),
            "Weights of penguins[a]\n(no such layer)\nMeasured.[b]\n[a] In grams.\n"
            "[b] On land.\n");
}

std::string markOf(int note, const std::string& mark) {
  const std::string number = std::to_string(note);
  return "<sup><a id=\"t1m" + number + "\" href=\"#t1n" + number +
         "\" role=\"doc-noteref\" aria-label=\"Footnote " + mark + "\">" + mark + "</a></sup>";
}

std::string noteOf(int note, const std::string& mark, const std::string& text) {
  const std::string number = std::to_string(note);
  return "<li id=\"t1n" + number + "\"><a href=\"#t1m" + number +
         "\" role=\"doc-backlink\" aria-label=\"Back to footnote " + mark + "\">" + mark + "</a> " +
         text + "</li>\n";
}

std::string expectedPart(const std::string& message) {
  return "<div class=\"part\">\n<div><span class=\"title\">Weights of penguins" + markOf(0, "a") +
         "</span></div>\n<p class=\"empty\">" + message + "</p>\n<p class=\"caption\">Measured." +
         markOf(1, "b") + "</p>\n<ul class=\"notes\">\n" + noteOf(0, "a", "In grams.") +
         noteOf(1, "b", "On land.") + "</ul>\n</div>\n</main>";
}

TEST(NoLayer, APageShowsTitleMessageCaptionAndNotes) {
  EXPECT_EQ(partOf(*notedTable(false)), expectedPart("(no cells)"));
}

TEST(NoLayer, APageSaysThatThereIsNoSuchLayer) {
  EXPECT_EQ(partOf(*notedTable(true), atLayer<render::HtmlOptions>(1)),
            expectedPart("(no such layer)"));
}

// A layer that is not skipped, without rows.
TEST(NoLayer, AnEmptyLayerSaysWhichItIs) {
  const SampleTable table = sampleTable("Births");
  addSampleDimension(*table, "Town", {"Ash"});
  addSampleDimension(*table, "Year", {"2019", "2020"});
  table->Rows().push_back(0);
  table->Layers().push_back(1);
  table->Cell({0, 0}, count(1));
  auto html = atLayer<render::HtmlOptions>(1);
  html.tables.skipEmptyLayers = false;
  EXPECT_EQ(partOf(*table, html),
            "<div class=\"part\">\n<div><span class=\"title\">Births</span> "
            "<span class=\"at\">Year: 2020</span></div>\n<p class=\"empty\">(no cells)</p>\n"
            "</div>\n</main>");
  auto text = atLayer<render::TextOptions>(1);
  text.tables.skipEmptyLayers = false;
  EXPECT_EQ(textOf(*table, text), "Births\nYear: 2020\n(no cells)\n");
}

}  // namespace
}  // namespace om::test
