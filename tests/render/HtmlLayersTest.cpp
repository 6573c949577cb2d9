// The layers of a table in a page, and the controls that choose one; its footnotes.

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "tests/render/Html.h"
#include "tests/render/SampleTables.h"

namespace om::test {
namespace {

// Two dimensions on the layers, Kind outside of Year. There is nothing for the second kind in the
// second year.
SampleTable layeredTable() {
  SampleTable table = sampleTable("Births");
  addSampleDimension(*table, "Town", {"Ash"});
  OmDimension& kind = table->AddDimension(OmStringCell("Kind"));
  const auto group = addSampleGroup(kind, kind.Root(), "Birds");
  addSampleCategories(kind, group, {"Owls"});
  addSampleCategories(kind, kind.Root(), {"Cats"});
  addSampleDimension(*table, "Year", {"2019", "2020"});
  table->Rows().push_back(0);
  for (const short dimension : std::to_array<short>({2, 1})) table->Layers().push_back(dimension);
  table->Cell({0, 0, 0}, count(1));
  table->Cell({0, 0, 1}, count(2));
  table->Cell({0, 1, 0}, count(3));
  return table;
}

TEST(HtmlLayers, HaveAListOfCategoriesForEachDimension) {
  EXPECT_EQ(between(htmlOf(*layeredTable()), "<fieldset", "</fieldset>"),
            "<fieldset class=\"chooser\">\n<legend>Layers of Births</legend>\n"
            "<label><span>Kind</span> <select autocomplete=\"off\">\n"
            "<option value=\"0\" selected>Birds › Owls</option>\n"
            "<option value=\"1\">Cats</option>\n</select></label>\n"
            "<label><span>Year</span> <select autocomplete=\"off\">\n"
            "<option value=\"0\" selected>2019</option>\n"
            "<option value=\"1\">2020</option>\n</select></label>\n</fieldset>");
}

TEST(HtmlLayers, AreFoundByThePositionsOfTheirCategories) {
  const std::string page = htmlOf(*layeredTable());
  EXPECT_EQ(valuesOf(page, "data-at"), (std::vector<std::string>{"0 0", "0 1", "1 0"}));
  EXPECT_EQ(countOf(page, "<section class=\"layer chosen\" data-at=\"0 0\">"), 1U);
  EXPECT_EQ(countOf(page, "<section class=\"layer\""), 2U);
}

TEST(HtmlLayers, SayWhichTheyAreInTheirCaptions) {
  EXPECT_EQ(between(htmlOf(*layeredTable()), "<caption id=\"t1l1t\">", "</caption>"),
            "<caption id=\"t1l1t\"><span class=\"stay\"><span class=\"title\">Births</span> "
            "<span class=\"at\">Kind: Birds › Owls; Year: 2020</span></span></caption>");
}

TEST(HtmlLayers, BeginWithTheOneThatTheTableRemembers) {
  const SampleTable table = layeredTable();
  table->setLayerLoc(2);
  const std::string page = htmlOf(*table);
  EXPECT_EQ(countOf(page, "<section class=\"layer chosen\" data-at=\"1 0\">"), 1U);
  EXPECT_EQ(countOf(page, "<option value=\"1\" selected>Cats</option>"), 1U);
  EXPECT_EQ(countOf(page, "<option value=\"0\" selected>2019</option>"), 1U);
}

TEST(HtmlLayers, BeginWithTheFirstOneWhenTheOneRememberedIsNotThere) {
  for (const int layer : {-1, 3, 1000}) {
    const SampleTable table = layeredTable();
    table->setLayerLoc(layer);
    EXPECT_EQ(countOf(htmlOf(*table), "<section class=\"layer chosen\" data-at=\"0 0\">"), 1U);
  }
}

TEST(HtmlLayers, HaveNoControlsWhenThereIsOne) {
  render::HtmlOptions options;
  options.tables.layers = render::Layers::ONE;
  options.tables.layer = 1;
  const std::string page = htmlOf(*layeredTable(), options);
  EXPECT_EQ(countOf(page, "<fieldset"), 0U);
  EXPECT_EQ(countOf(page, "<section"), 0U);
  EXPECT_EQ(countOf(page, "<table>"), 1U);
  EXPECT_EQ(countOf(page, "Kind: Birds › Owls; Year: 2020"), 1U);
  EXPECT_EQ(countOf(htmlOf(*flatTable()), "<fieldset"), 0U);
}

TEST(HtmlLayers, OfADimensionWithoutANameHaveOne) {
  const SampleTable table = sampleTable("Births");
  addSampleDimension(*table, " ", {"First", "", "\n"});
  table->Layers().push_back(0);
  for (int i = 0; i < 3; ++i) table->Cell({i}, count(i));
  EXPECT_EQ(between(htmlOf(*table), "<label>", "</label>"),
            "<label><span>Layer 1</span> <select autocomplete=\"off\">\n"
            "<option value=\"0\" selected>First</option>\n<option value=\"1\">2</option>\n"
            "<option value=\"2\">3</option>\n</select></label>");
}

// A dimension reaches further than its categories when one was deleted that is not the last: here
// there is nothing but the category with the subscript 2, and three places.
TEST(HtmlLayers, WithoutACategoryCanBeChosenToo) {
  const SampleTable table = sampleTable("Births");
  OmDimension& year = addSampleDimension(*table, "Year", {"2018", "2019", "2020"});
  for (int i = 0; i < 2; ++i) {
    auto first = year.Root().FirstChild();
    year.Delete(first);
  }
  ASSERT_EQ(year.NumCategories(), 3);
  table->Layers().push_back(0);
  table->Cell({0}, count(1));
  table->Cell({2}, count(2));
  render::HtmlOptions options;
  options.tables.skipEmptyLayers = false;
  options.tables.view.skipEmptyRows = false;
  options.tables.view.skipEmptyColumns = false;
  const std::string page = htmlOf(*table, options);
  EXPECT_EQ(valuesOf(page, "data-at"), (std::vector<std::string>{"0", "1", "1"}));
  EXPECT_EQ(
      countOf(page, "<option value=\"0\" selected>2020</option>\n<option value=\"1\">2</option>"),
      1U);
}

TEST(HtmlLayers, KeepDirectionsApart) {
  const SampleTable table = sampleTable("ילדים");
  addSampleDimension(*table, "שנה", {"א", "b"});
  table->Layers().push_back(0);
  for (int i = 0; i < 2; ++i) table->Cell({i}, count(i));
  const std::string page = htmlOf(*table);
  EXPECT_EQ(countOf(page, "<legend>Layers of <bdi>ילדים</bdi></legend>"), 1U);
  EXPECT_EQ(countOf(page, "<label><span><bdi>שנה</bdi></span>"), 1U);
  EXPECT_EQ(countOf(page, "<option value=\"0\" dir=\"auto\" selected>א</option>"), 1U);
  EXPECT_EQ(countOf(page, "<span class=\"at\"><bdi>שנה</bdi>: b</span>"), 1U);
}

// Footnotes of "Weights": c Weighted by island (dimension), a In grams (title), * Significant and
// b Estimated (cells), d Few birds (label).
TEST(HtmlNotes, AreListedInReadingOrder) {
  EXPECT_EQ(between(htmlOf(*footnoteTable()), "<ul class=\"notes\">", "</ul>"),
            "<ul class=\"notes\">\n"
            "<li id=\"t1l0n0\"><a href=\"#t1l0m0\" role=\"doc-backlink\" aria-label=\"Back to "
            "footnote a\">"
            "a</a> In grams.</li>\n"
            "<li id=\"t1l0n1\"><a href=\"#t1l0m1\" role=\"doc-backlink\" aria-label=\"Back to "
            "footnote c\">"
            "c</a> Weighted by island.</li>\n"
            "<li id=\"t1l0n2\"><a href=\"#t1l0m2\" role=\"doc-backlink\" aria-label=\"Back to "
            "footnote *\">"
            "*</a> Significant at 5 per cent.</li>\n"
            "<li id=\"t1l0n3\"><a href=\"#t1l0m3\" role=\"doc-backlink\" aria-label=\"Back to "
            "footnote b\">"
            "b</a> Estimated.</li>\n"
            "<li id=\"t1l0n4\"><a href=\"#t1l0m4\" role=\"doc-backlink\" aria-label=\"Back to "
            "footnote d\">"
            "d</a> Few birds.</li>\n</ul>");
}

TEST(HtmlNotes, HaveSeveralMarksOnOneCell) {
  EXPECT_EQ(countOf(htmlOf(*footnoteTable()),
                    "3700.7<sup><a id=\"t1l0m2\" href=\"#t1l0n2\" role=\"doc-noteref\" "
                    "aria-label=\"Footnote *\">*</a>, <a id=\"t1l0m3\" href=\"#t1l0n3\" "
                    "role=\"doc-noteref\" aria-label=\"Footnote b\">b</a></sup></td>"),
            1U);
}

TEST(HtmlNotes, LeadBackToTheirFirstMarkAlone) {
  EXPECT_EQ(countOf(htmlOf(*footnoteTable()),
                    "1375.3<sup class=\"hang\"><a href=\"#t1l0n2\" role=\"doc-noteref\" "
                    "aria-label=\"Footnote *\">*</a></sup></td>"),
            1U);
  EXPECT_EQ(countOf(htmlOf(*footnoteTable()), "id=\"t1l0m2\""), 1U);
}

TEST(HtmlNotes, HaveMarksOnTitleNamesLabelsAndCaption) {
  const std::string page = htmlOf(*footnoteTable());
  for (const char* const text : {"<span class=\"title\">Weights of penguins<sup>", ">Species<sup>",
                                 ">Gentoo<sup>", "<p class=\"caption\">Measured on land.<sup>"}) {
    EXPECT_EQ(countOf(page, text), 1U) << text;
  }
}

TEST(HtmlNotes, OfEachLayerAreItsOwn) {
  const SampleTable table = layeredTable();
  addSampleNote(*table, "Estimated.");
  table->Cell({0, 0, 1})->Footnotes().push_back(0);
  const std::string page = htmlOf(*table);
  EXPECT_EQ(countOf(page, "<ul class=\"notes\">"), 1U);
  EXPECT_EQ(countOf(page, "<li id=\"t1l1n0\">"), 1U);
  EXPECT_EQ(countOf(page, "2<sup class=\"hang\"><a id=\"t1l1m0\""), 1U);
}

}  // namespace
}  // namespace om::test
