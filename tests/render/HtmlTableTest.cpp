// A table in a page: its caption, heading cells, spans, body cells and what these refer to.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "tests/render/Html.h"
#include "tests/render/SampleTables.h"

namespace om::test {
namespace {

std::string bodyOf(OmPivotTable& table, const render::HtmlOptions& options = {}) {
  return between(htmlOf(table, options), "<main", "</main>");
}

// The line of the table that begins with this.
std::string line(const std::string& page, const std::string& begin) {
  return between(page, begin, "\n");
}

TEST(HtmlTable, HasItsTitleAsCaption) {
  EXPECT_EQ(line(bodyOf(*flatTable()), "<caption"),
            "<caption id=\"t1l0t\"><span class=\"stay\"><span class=\"title\">Penguins by species"
            "</span></span></caption>\n");
}

TEST(HtmlTable, HasAHeadWithCornerAndColumnLabels) {
  EXPECT_EQ(between(bodyOf(*flatTable()), "<thead>", "</thead>"),
            "<thead>\n"
            "<tr><th scope=\"col\" id=\"t1l0k0\" class=\"row\" rowspan=\"2\">Species</th>"
            "<th scope=\"col\" id=\"t1l0c0p0\" class=\"over\" colspan=\"3\"><span>Statistics</span>"
            "</th></tr>\n"
            "<tr><th scope=\"col\" id=\"t1l0c1p0\">N</th><th scope=\"col\" id=\"t1l0c1p1\">Per cent"
            "</th><th scope=\"col\" id=\"t1l0c1p2\">Mean mass</th></tr>\n"
            "</thead>");
}

TEST(HtmlTable, HasABodyWhoseCellsNameTheirHeadings) {
  EXPECT_EQ(between(bodyOf(*flatTable()), "<tbody>", "</tbody>"),
            "<tbody>\n"
            "<tr><th scope=\"row\" id=\"t1l0r0p0\" class=\"row\">Adelie</th>"
            "<td headers=\"t1l0c0p0 t1l0c1p0 t1l0r0p0\">152</td>"
            "<td headers=\"t1l0c0p0 t1l0c1p1 t1l0r0p0\">44.2%</td>"
            "<td headers=\"t1l0c0p0 t1l0c1p2 t1l0r0p0\">3700.66</td></tr>\n"
            "<tr><th scope=\"row\" id=\"t1l0r0p1\" class=\"row\">Chinstrap</th>"
            "<td headers=\"t1l0c0p0 t1l0c1p0 t1l0r0p1\">68</td>"
            "<td headers=\"t1l0c0p0 t1l0c1p1 t1l0r0p1\"></td>"
            "<td headers=\"t1l0c0p0 t1l0c1p2 t1l0r0p1\">.</td></tr>\n"
            "<tr><th scope=\"row\" id=\"t1l0r0p2\" class=\"row\">Gentoo</th>"
            "<td headers=\"t1l0c0p0 t1l0c1p0 t1l0r0p2\">1,240</td>"
            "<td headers=\"t1l0c0p0 t1l0c1p1 t1l0r0p2\">36.0%</td>"
            "<td headers=\"t1l0c0p0 t1l0c1p2 t1l0r0p2\">-5076.020</td></tr>\n"
            "</tbody>");
}

TEST(HtmlTable, HasItsCaptionTextUnderIt) {
  EXPECT_EQ(line(bodyOf(*flatTable()), "</table>"), "</table>\n");
  EXPECT_EQ(between(bodyOf(*flatTable()), "</table>", "</p>"),
            "</table>\n</div>\n<p class=\"caption\">Palmer Archipelago, 2007 to 2009.</p>");
  const SampleTable hidden = flatTable();
  hidden->showCaption(false);
  EXPECT_EQ(countOf(bodyOf(*hidden), "Palmer"), 0U);
}

// Rows: Europe with Britain and France, and Elsewhere, which has no Male; Nowhere is empty.
TEST(HtmlTable, SpansRowsAndLabelColumns) {
  const std::string page = bodyOf(*nestedTable());
  EXPECT_EQ(
      between(page, "<th scope=\"row\" id=\"t1l0r0p0\"", "Female</th>"),
      "<th scope=\"row\" id=\"t1l0r0p0\" class=\"row\" rowspan=\"4\"><span>Europe</span></th>"
      "<th scope=\"row\" id=\"t1l0r1p0\" class=\"row l1\" rowspan=\"2\"><span>Britain</span></th>"
      "<th scope=\"row\" id=\"t1l0r2p0\" class=\"row l2\">Female</th>");
  EXPECT_EQ(
      between(page, "<th scope=\"row\" id=\"t1l0r1p2\"", "</th>"),
      "<th scope=\"row\" id=\"t1l0r1p2\" class=\"row l1\" rowspan=\"2\"><span>France</span></th>");
  EXPECT_EQ(between(page, "<th scope=\"row\" id=\"t1l0r0p4\"", "</th>"),
            "<th scope=\"row\" id=\"t1l0r0p4\" class=\"row\" colspan=\"2\">Elsewhere</th>");
  EXPECT_EQ(countOf(page, "id=\"t1l0r1p4\""), 0U);
  EXPECT_EQ(countOf(page, "Nowhere"), 0U);
}

// Columns: Age (Adult, Child), each with Survived (No, Yes); the group of the adults is hidden.
TEST(HtmlTable, SpansColumns) {
  EXPECT_EQ(
      between(bodyOf(*nestedTable()), "<thead>", "</thead>"),
      "<thead>\n"
      "<tr><th scope=\"col\" id=\"t1l0k0\" class=\"row\" colspan=\"2\" rowspan=\"4\">Region</th>"
      "<th scope=\"col\" id=\"t1l0k2\" class=\"row l2\" rowspan=\"4\">Sex</th>"
      "<th scope=\"col\" id=\"t1l0c0p0\" class=\"over\" colspan=\"4\"><span>Age</span></th></tr>\n"
      "<tr><th scope=\"col\" id=\"t1l0c1p0\" class=\"over\" colspan=\"2\"><span>Adult</span></th>"
      "<th scope=\"col\" id=\"t1l0c1p2\" class=\"over\" "
      "colspan=\"2\"><span>Child</span></th></tr>\n"
      "<tr><th scope=\"col\" id=\"t1l0c2p0\" class=\"over\" "
      "colspan=\"2\"><span>Survived</span></th>"
      "<th scope=\"col\" id=\"t1l0c2p2\" class=\"over\" "
      "colspan=\"2\"><span>Survived</span></th></tr>\n"
      "<tr><th scope=\"col\" id=\"t1l0c3p0\">No</th><th scope=\"col\" id=\"t1l0c3p1\">Yes</th>"
      "<th scope=\"col\" id=\"t1l0c3p2\">No</th><th scope=\"col\" id=\"t1l0c3p3\">Yes</th></tr>\n"
      "</thead>");
}

// The last cell of Elsewhere, of children who survived: 2 + 0 * 4 + 1 * 8 + 1 * 16 = 26.
TEST(HtmlTable, NamesTheHeadingsOfEveryLevel) {
  EXPECT_EQ(
      countOf(bodyOf(*nestedTable()),
              "<td headers=\"t1l0c0p0 t1l0c1p2 t1l0c2p2 t1l0c3p3 t1l0r0p4 t1l0r2p4\">676</td>"),
      1U);
}

TEST(HtmlTable, MarksWhereAGroupOfRowsBegins) {
  const std::string page = between(bodyOf(*nestedTable()), "<tbody>", "</tbody>");
  EXPECT_EQ(countOf(page, "<tr class=\"group\">"), 1U);
  EXPECT_TRUE(line(page, "<tr class=\"group\">").find(">Elsewhere<") != page.npos);
  EXPECT_EQ(countOf(bodyOf(*flatTable()), "class=\"group\""), 0U);
}

TEST(HtmlTable, RefersToIdsThatAreThereAndNoIdIsThereTwice) {
  for (const SampleTable& table : {flatTable(), nestedTable(), footnoteTable(), wideTable(),
                                   emptyTable(), columnlessTable(), hostileTable()}) {
    const std::string page = htmlOf(*table);
    const std::vector<std::string> list = valuesOf(page, "id");
    const std::set<std::string> ids(list.begin(), list.end());
    EXPECT_EQ(ids.size(), list.size());
    for (const char* const attribute : {"headers", "aria-labelledby"}) {
      for (const std::string& value : valuesOf(page, attribute)) {
        std::istringstream each(value);
        for (std::string id; each >> id;) EXPECT_TRUE(ids.contains(id)) << id;
      }
    }
    for (const std::string& link : valuesOf(page, "href")) {
      EXPECT_TRUE(ids.contains(link.substr(1))) << link;
    }
  }
}

TEST(HtmlTable, MakesNoIdFromALabel) {
  const std::set<char> plain{'t', 'l', 'k', 'c', 'r', 'p', 'n', 'm'};
  std::vector<std::string> ids = valuesOf(htmlOf(*hostileTable()), "id");
  ASSERT_EQ(ids.front(), "content");
  ids.erase(ids.begin());
  EXPECT_GT(ids.size(), 10U);
  for (const std::string& id : ids) {
    EXPECT_TRUE(std::all_of(id.begin(), id.end(), [&](char letter) {
      return plain.contains(letter) || (letter >= '0' && letter <= '9');
    })) << id;
  }
}

TEST(HtmlTable, SetsTextsToTheLeft) {
  const std::string page = bodyOf(*columnlessTable());
  EXPECT_TRUE(page.find("<td headers=\"t1l0r0p0\" class=\"text\">on a Monday</td>") != page.npos);
  EXPECT_TRUE(page.find("<td headers=\"t1l0r0p1\">344</td>") != page.npos);
}

// A column of texts has its label to the left, too; texts that are numbers are set like numbers.
TEST(HtmlTable, SetsAColumnByItsFirstCell) {
  const SampleTable table = sampleTable("Title");
  addSampleDimension(*table, "", {"Name", "Size", "Level"});
  table->Columns().push_back(0);
  table->Cell({0}, OmStringCell("Ash"));
  table->Cell({1}, OmStringCell("-1,234.5%"));
  table->Cell({2}, OmStringCell("<.001"));
  EXPECT_EQ(
      between(bodyOf(*table), "<thead>", "</tbody>"),
      "<thead>\n"
      "<tr><td colspan=\"3\"></td></tr>\n"
      "<tr><th scope=\"col\" id=\"t1l0c1p0\" class=\"text\">Name</th>"
      "<th scope=\"col\" id=\"t1l0c1p1\">Size</th>"
      "<th scope=\"col\" id=\"t1l0c1p2\">Level</th></tr>\n"
      "</thead>\n<tbody>\n"
      "<tr><td headers=\"t1l0c1p0\" class=\"text\">Ash</td><td headers=\"t1l0c1p1\">-1,234.5%</td>"
      "<td headers=\"t1l0c1p2\">&lt;.001</td></tr>\n</tbody>");
}

TEST(HtmlTable, ShowsTheCornerWithoutColumnLabels) {
  EXPECT_EQ(between(bodyOf(*columnlessTable()), "<thead>", "</thead>"),
            "<thead>\n<tr><th scope=\"col\" id=\"t1l0k0\" class=\"row\">Item</th><td></td></tr>\n"
            "</thead>");
  const SampleTable nameless = columnlessTable();
  render::HtmlOptions options;
  options.tables.view.namesInCorner = false;
  EXPECT_EQ(countOf(bodyOf(*nameless, options), "<thead>"), 0U);
}

TEST(HtmlTable, MakesNoHeadingOfABlankLabel) {
  const SampleTable table = sampleTable("Title");
  addSampleDimension(*table, "Row", {" ", "Second"});
  table->Rows().push_back(0);
  table->Cell({0}, count(1));
  table->Cell({1}, count(2));
  EXPECT_EQ(between(bodyOf(*table), "<tbody>", "</tbody>"),
            "<tbody>\n<tr><td class=\"row\"></td><td>1</td></tr>\n"
            "<tr><th scope=\"row\" id=\"t1l0r0p1\" class=\"row\">Second</th>"
            "<td headers=\"t1l0r0p1\">2</td></tr>\n</tbody>");
}

TEST(HtmlTable, MakesAHeadingOfABlankLabelWithAFootnote) {
  const SampleTable table = sampleTable("Title");
  addSampleNote(*table, "Missing.");
  for (const char* const name : {"Row", "Column"}) {
    OmDimension& dimension = table->AddDimension(OmStringCell(name));
    dimension.AddNewChild(dimension.Root(), *noted("", {0}), 0, false);
    dimension.Root()->Hide(true);
  }
  table->Rows().push_back(0);
  table->Columns().push_back(1);
  table->Cell({0, 0}, count(1));
  const std::string page = bodyOf(*table);
  EXPECT_EQ(between(page, "<thead>", "</thead>"),
            "<thead>\n<tr><td class=\"row\"></td><th scope=\"col\" id=\"t1l0c0p0\"><sup>"
            "<a id=\"t1l0m0\" href=\"#t1l0n0\" role=\"doc-noteref\" aria-label=\"Footnote a\">a"
            "</a></sup></th></tr>\n</thead>");
  EXPECT_EQ(between(page, "<tbody>", "</tbody>"),
            "<tbody>\n<tr><th scope=\"row\" id=\"t1l0r0p0\" class=\"row\"><sup>"
            "<a href=\"#t1l0n0\" role=\"doc-noteref\" aria-label=\"Footnote a\">a</a></sup></th>"
            "<td headers=\"t1l0c0p0 t1l0r0p0\">1</td></tr>\n</tbody>");
}

TEST(HtmlTable, WithoutCellsSaysSo) {
  const std::string expected =
      "<main id=\"content\">\n<h1>Output</h1>\n<div class=\"part\">\n"
      "<div><span class=\"title\">Nothing was counted</span></div>\n"
      "<p class=\"empty\">(no cells)</p>\n"
      "</div>\n</main>";
  EXPECT_EQ(bodyOf(*emptyTable()), expected);
  render::HtmlOptions options;
  options.tables.skipEmptyLayers = false;
  EXPECT_EQ(bodyOf(*emptyTable(), options), expected);
}

TEST(HtmlTable, WithoutCellsShowsItsLabelsWhenNothingIsSkipped) {
  render::HtmlOptions options;
  options.tables.skipEmptyLayers = false;
  options.tables.view.skipEmptyRows = false;
  options.tables.view.skipEmptyColumns = false;
  const std::string page = bodyOf(*emptyTable(), options);
  EXPECT_EQ(countOf(page, "<td headers="), 4U);
  EXPECT_EQ(countOf(page, ">Two</th>"), 1U);
}

TEST(HtmlTable, LeavesOutACaptionThatIsNotShown) {
  const SampleTable table = footnoteTable();
  table->showCaption(false);
  EXPECT_EQ(countOf(bodyOf(*table), "class=\"caption\""), 0U);
  EXPECT_EQ(countOf(bodyOf(*table), "Measured on land."), 0U);
}

TEST(HtmlTable, WithoutATitleHasAName) {
  EXPECT_EQ(line(bodyOf(*[] {
                   SampleTable table = columnlessTable();
                   table->SetTableTitle(OmStringCell(" "));
                   return table;
                 }()),
                 "<caption"),
            "<caption id=\"t1l0t\"><span class=\"stay\"><span class=\"title\">Table</span></span>"
            "</caption>\n");
}

// Browsers cut a colspan off at 1000.
TEST(HtmlTable, GoesOnInAnotherCellWhereAColumnLabelIsTooWide) {
  const SampleTable table = sampleTable("Title");
  OmDimension& columns = addSampleDimension(*table, "", {});
  const auto group = addSampleGroup(columns, columns.Root(), "Group");
  addSampleCategories(columns, group, std::vector<std::string>(1001, "leaf"));
  table->Columns().push_back(0);
  for (int i = 0; i < 1001; ++i) table->Cell({i}, count(i));
  const std::string page = bodyOf(*table);
  EXPECT_EQ(line(page, "<tr><td colspan"), "<tr><td colspan=\"1000\"></td><td></td></tr>\n");
  EXPECT_EQ(line(page, "<tr><th"),
            "<tr><th scope=\"col\" id=\"t1l0c1p0\" class=\"over\" "
            "colspan=\"1000\"><span>Group</span></th>"
            "<th scope=\"col\" id=\"t1l0c1p1000\" class=\"over\"><span>Group</span></th></tr>\n");
  EXPECT_EQ(countOf(page, "<td headers=\"t1l0c1p0 t1l0c2p999\">999</td>"), 1U);
  EXPECT_EQ(countOf(page, "<td headers=\"t1l0c1p1000 t1l0c2p1000\">1,000</td>"), 1U);
}

// And a rowspan at 65534.
TEST(HtmlTable, GoesOnInAnotherCellWhereARowLabelIsTooHigh) {
  const SampleTable table = sampleTable("Title");
  addSampleDimension(*table, "Inner", std::vector<std::string>(65535, "leaf"));
  addSampleDimension(*table, "Outer", {"Only"});
  for (const short dimension : std::to_array<short>({0, 1})) table->Rows().push_back(dimension);
  for (int i = 0; i < 65535; ++i) table->Cell({i, 0}, count(7));
  const std::string page = bodyOf(*table);
  EXPECT_EQ(
      between(page, "<th scope=\"row\" id=\"t1l0r0p0\"", "</th>"),
      "<th scope=\"row\" id=\"t1l0r0p0\" class=\"row\" rowspan=\"65534\"><span>Only</span></th>");
  EXPECT_EQ(countOf(page,
                    "<th scope=\"row\" id=\"t1l0r0p65534\" class=\"row\">Only</th>"
                    "<th scope=\"row\" id=\"t1l0r1p65534\" class=\"row l1\">leaf</th>"
                    "<td headers=\"t1l0r0p65534 t1l0r1p65534\">7</td>"),
            1U);
}

}  // namespace
}  // namespace om::test
