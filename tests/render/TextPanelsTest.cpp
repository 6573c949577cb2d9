// Tables that are wider than a page, in panels.

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <string>
#include <vector>

#include "render/TextWriter.h"
#include "render/internal/DisplayWidth.h"
#include "tests/render/SampleDocuments.h"

namespace om::test {
namespace {

std::string textOf(OmPivotTable& table, std::size_t width) {
  std::ostringstream out;
  render::writeText(table, out, {.width = width, .ascii = true});
  return out.str();
}

// Columns "a0", "a1", ... of one digit each, without the dimension's name, in one row.
SampleTable tableOfColumns(int count, const std::string& row = "r") {
  SampleTable table = sampleTable("T");
  addSampleDimension(*table, "R", {row});
  std::vector<std::string> labels;
  for (int i = 0; i < count; ++i) labels.push_back("a" + std::to_string(i));
  addSampleDimension(*table, "C", labels).Root()->Hide(true);
  table->Rows().push_back(0);
  table->Columns().push_back(1);
  for (int i = 0; i < count; ++i) table->Cell({0, i}, OmNumber(i));
  return table;
}

std::size_t widestLineOf(const std::string& text) {
  std::istringstream lines(text);
  std::size_t widest = 0;
  for (std::string line; std::getline(lines, line);) {
    widest = std::max(widest, render::internal::displayWidth(line));
  }
  return widest;
}

TEST(TextPanels, ATableThatFitsIsOnePanelWithoutANote) {
  // "| R |" takes 5, each column 5 more.
  EXPECT_EQ(textOf(*tableOfColumns(3), 20),
            "T\n"
            "+---+----+----+----+\n"
            "| R | a0 | a1 | a2 |\n"
            "+---+----+----+----+\n"
            "| r |  0 |  1 |  2 |\n"
            "+---+----+----+----+\n");
}

// The label gets 20 columns of the 54: the rest of the table takes 34.
TEST(TextPanels, RowLabelsAreWrappedSoThatATableFits) {
  EXPECT_EQ(textOf(*tableOfColumns(6, "a long label of thirty letters"), 54),
            "T\n"
            "+----------------------+----+----+----+----+----+----+\n"
            "| R                    | a0 | a1 | a2 | a3 | a4 | a5 |\n"
            "+----------------------+----+----+----+----+----+----+\n"
            "| a long label of      |  0 |  1 |  2 |  3 |  4 |  5 |\n"
            "|   thirty letters     |    |    |    |    |    |    |\n"
            "+----------------------+----+----+----+----+----+----+\n");
}

TEST(TextPanels, RowLabelsKeepHalfOfThePageRatherThanFewerThanSixteenColumns) {
  const SampleTable table = tableOfColumns(6, "a long label of thirty letters");
  EXPECT_EQ(textOf(*table, 50).find("(column"), std::string::npos);
  EXPECT_NE(textOf(*table, 49).find("| R                        | a0 | a1 | a2 | a3 |\n"),
            std::string::npos);
}

TEST(TextPanels, ATableThatIsTooWideByOneIsSplitAndRepeatsItsRowLabels) {
  EXPECT_EQ(textOf(*tableOfColumns(3), 19),
            "T\n"
            "(columns 1 to 2 of\n3)\n"
            "+---+----+----+\n"
            "| R | a0 | a1 |\n"
            "+---+----+----+\n"
            "| r |  0 |  1 |\n"
            "+---+----+----+\n"
            "\n"
            "(column 3 of 3)\n"
            "+---+----+\n"
            "| R | a2 |\n"
            "+---+----+\n"
            "| r |  2 |\n"
            "+---+----+\n");
}

TEST(TextPanels, WithoutAWidthThereIsOnePanel) {
  const std::string text = textOf(*tableOfColumns(200), 0);
  EXPECT_EQ(text.find("(column"), std::string::npos);
  EXPECT_NE(text.find("| a199 |"), std::string::npos);
}

TEST(TextPanels, APanelEndsInFrontOfAGroupThatItWouldCut) {
  const SampleTable table = wideTable();
  const std::string text = textOf(*table, 80);
  EXPECT_NE(text.find("(columns 1 to 6 of 12)"), std::string::npos);
  EXPECT_NE(text.find("(columns 7 to 12 of 12)"), std::string::npos);
}

TEST(TextPanels, AGroupThatFillsAPanelIsCutAndItsLabelRepeated) {
  SampleTable table = sampleTable("T");
  OmDimension& dimension = table->AddDimension(OmStringCell("C"));
  dimension.Root()->Hide(true);
  const auto group = addSampleGroup(dimension, dimension.Root(), "Group");
  addSampleCategories(dimension, group, {"aa", "bb", "cc", "dd", "ee"});
  table->Columns().push_back(0);
  for (int i = 0; i < 5; ++i) table->Cell({i}, OmNumber(i));
  EXPECT_EQ(textOf(*table, 16),
            "T\n"
            "(columns 1 to 3\nof 5)\n"
            "+--------------+\n"
            "|    Group     |\n"
            "+----+----+----+\n"
            "| aa | bb | cc |\n"
            "+----+----+----+\n"
            "|  0 |  1 |  2 |\n"
            "+----+----+----+\n"
            "\n"
            "(columns 4 to 5\nof 5)\n"
            "+---------+\n"
            "|  Group  |\n"
            "+----+----+\n"
            "| dd | ee |\n"
            "+----+----+\n"
            "|  3 |  4 |\n"
            "+----+----+\n");
}

TEST(TextPanels, ACutLabelGetsTheRoomThatItsPanelHas) {
  SampleTable table = sampleTable("T");
  OmDimension& dimension = table->AddDimension(OmStringCell("C"));
  dimension.Root()->Hide(true);
  const auto group = addSampleGroup(dimension, dimension.Root(), "Long group");
  addSampleCategories(dimension, group, {"a", "b", "c", "d"});
  table->Columns().push_back(0);
  for (int i = 0; i < 4; ++i) table->Cell({i}, OmNumber(i));
  // Four columns of one digit have 13 places together, which is enough for "Long group". Three of
  // them fill the page and have 9 places for it; so has the fourth, which has a page for itself.
  EXPECT_EQ(textOf(*table, 13),
            "T\n"
            "(columns 1 to\n3 of 4)\n"
            "+-----------+\n"
            "|   Long    |\n"
            "|   group   |\n"
            "+---+---+---+\n"
            "| a | b | c |\n"
            "+---+---+---+\n"
            "| 0 | 1 | 2 |\n"
            "+---+---+---+\n"
            "\n"
            "(column 4 of\n4)\n"
            "+-----------+\n"
            "|      Long |\n"
            "|     group |\n"
            "+-----------+\n"
            "|         d |\n"
            "+-----------+\n"
            "|         3 |\n"
            "+-----------+\n");
}

TEST(TextPanels, NotesAndCaptionStandUnderTheLastPanel) {
  const SampleTable table = tableOfColumns(3);
  const OmStringCell caption("Caption");
  table->Caption(&caption);
  const std::string text = textOf(*table, 19);
  EXPECT_TRUE(text.ends_with("| r |  2 |\n+---+----+\nCaption\n"));
  EXPECT_EQ(text.find("Caption"), text.rfind("Caption"));
}

TEST(TextPanels, NoLineIsWiderThanThePage) {
  for (const std::size_t width : {40U, 60U, 80U, 100U, 132U}) {
    for (auto* const make : {&flatTable, &nestedTable, &footnoteTable, &wideTable, &hostileTable}) {
      const SampleTable table = make();
      EXPECT_LE(widestLineOf(textOf(*table, width)), width) << textOf(*table, width);
    }
  }
}

TEST(TextPanels, NoLineOfADocumentIsWiderThanThePage) {
  for (const bool isAscii : {false, true}) {
    std::ostringstream out;
    render::writeText(hostileDocument(), out, {.width = 60, .ascii = isAscii});
    EXPECT_LE(widestLineOf(out.str()), 60U);
  }
}

TEST(TextPanels, APageThatIsTooNarrowForOneColumnIsExceeded) {
  const std::string text = textOf(*tableOfColumns(2), 3);
  EXPECT_NE(text.find("| R | a0 |\n"), std::string::npos);
  EXPECT_NE(text.find("| R | a1 |\n"), std::string::npos);
}

}  // namespace
}  // namespace om::test
