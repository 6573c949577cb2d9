// Tables as plain text: lines, alignment, spans, wrapping, footnotes.

#include "render/TextWriter.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "external/cells/OmComposite.h"
#include "tests/display/DisplayTable.h"
#include "tests/render/SampleTables.h"

namespace om::test {
namespace {

using render::Layers;
using render::TextOptions;

std::string textOf(OmPivotTable& table, const TextOptions& options = {}) {
  std::ostringstream out;
  render::writeText(table, out, options);
  return out.str();
}

// In "+", "-" and "|", so that widths can be seen here.
std::string ascii(OmPivotTable& table, std::size_t width = 80) {
  return textOf(table, {.width = width, .ascii = true});
}

// The names of the row dimensions stand in the corner. Titled "T".
TableOwner titled(const TableText& text) {
  TableOwner table = tableOf(text);
  table->SetTableTitle(OmStringCell("T"));
  return table;
}

// One column "C", "c" with these cells, and rows "r0", "r1", ...
SampleTable columnOf(const std::vector<const OmCellText*>& cells) {
  SampleTable table = sampleTable("T");
  std::vector<std::string> rows;
  for (std::size_t i = 0; i < cells.size(); ++i) rows.push_back("r" + std::to_string(i));
  addSampleDimension(*table, "R", rows);
  OmDimension& column = addSampleDimension(*table, "C", {"c"});
  column.Root()->Hide(true);
  table->Rows().push_back(0);
  table->Columns().push_back(1);
  for (std::size_t i = 0; i < cells.size(); ++i) {
    table->Cell({static_cast<int>(i), 0}, cells[i]);
  }
  return table;
}

// ---- Lines

TEST(TextWriter, ATableHasLinesAroundItAndUnderItsHead) {
  const TableOwner table = titled(
      {.dimensions = {"R(a b)", "C(x)"}, .rows = {0}, .columns = {1}, .cells = {{0, 0}, {1, 0}}});
  EXPECT_EQ(textOf(*table),
            "T\n"
            "┌───┬─────┐\n"
            "│   │ C   │\n"
            "│   ├─────┤\n"
            "│ R │ x   │\n"
            "├───┼─────┤\n"
            "│ a │ 0,0 │\n"
            "│ b │ 1,0 │\n"
            "└───┴─────┘\n");
}

TEST(TextWriter, LinesMayBeOfAscii) {
  const TableOwner table = titled(
      {.dimensions = {"R(a b)", "C(x)"}, .rows = {0}, .columns = {1}, .cells = {{0, 0}, {1, 0}}});
  EXPECT_EQ(ascii(*table),
            "T\n"
            "+---+-----+\n"
            "|   | C   |\n"
            "|   +-----+\n"
            "| R | x   |\n"
            "+---+-----+\n"
            "| a | 0,0 |\n"
            "| b | 1,0 |\n"
            "+---+-----+\n");
}

TEST(TextWriter, ALabelOverSeveralColumnsIsCentredOverThem) {
  const TableOwner table = titled({.dimensions = {"C(x y)", "S(f m)"},
                                   .columns = {0, 1},
                                   .cells = {{0, 0}, {1, 0}, {0, 1}, {1, 1}}});
  EXPECT_EQ(textOf(*table),
            "T\n"
            "┌───────────────────────┐\n"
            "│           S           │\n"
            "├───────────┬───────────┤\n"
            "│     f     │     m     │\n"
            "├───────────┼───────────┤\n"
            "│     C     │     C     │\n"
            "├─────┬─────┼─────┬─────┤\n"
            "│ x   │ y   │ x   │ y   │\n"
            "├─────┼─────┼─────┼─────┤\n"
            "│ 0,0 │ 1,0 │ 0,1 │ 1,1 │\n"
            "└─────┴─────┴─────┴─────┘\n");
}

TEST(TextWriter, ACategoryWithFewerLabelsStandsBesideTheLevelsBelow) {
  const TableOwner table =
      titled({.dimensions = {"C(G(x y) z)"}, .columns = {0}, .cells = {{0}, {1}, {2}}});
  EXPECT_EQ(textOf(*table),
            "T\n"
            "┌───────────┐\n"
            "│     C     │\n"
            "├───────┬───┤\n"
            "│   G   │   │\n"
            "├───┬───┤   │\n"
            "│ x │ y │ z │\n"
            "├───┼───┼───┤\n"
            "│ 0 │ 1 │ 2 │\n"
            "└───┴───┴───┘\n");
}

TEST(TextWriter, RowLabelsAreWrittenOnceAndOutermostGroupsPartedByLines) {
  const TableOwner table = titled({.dimensions = {"S(f m)", "K(G(x) y)"},
                                   .rows = {0, 1},
                                   .cells = {{0, 0}, {1, 0}, {0, 1}, {1, 1}}});
  EXPECT_EQ(textOf(*table),
            "T\n"
            "┌───────┬───┬─────┐\n"
            "│ K     │ S │     │\n"
            "├───┬───┼───┼─────┤\n"
            "│ G │ x │ f │ 0,0 │\n"
            "│   │   │ m │ 1,0 │\n"
            "├───┴───┼───┼─────┤\n"
            "│ y     │ f │ 0,1 │\n"
            "│       │ m │ 1,1 │\n"
            "└───────┴───┴─────┘\n");
}

TEST(TextWriter, RepeatedRowLabelsHaveNoLinesBetweenThem) {
  const TableOwner table = titled(
      {.dimensions = {"S(f m)", "K(x y)"}, .rows = {0, 1}, .cells = {{0, 0}, {1, 0}, {0, 1}}});
  TextOptions options{.ascii = true};
  options.tables.view.rowSpans = render::Spans::REPEAT;
  EXPECT_EQ(textOf(*table, options),
            "T\n"
            "+---+---+-----+\n"
            "| K | S |     |\n"
            "+---+---+-----+\n"
            "| x | f | 0,0 |\n"
            "| x | m | 1,0 |\n"
            "| y | f | 0,1 |\n"
            "+---+---+-----+\n");
}

TEST(TextWriter, FirstRowLabelsArePartedLikeMergedOnes) {
  const TableOwner table = titled(
      {.dimensions = {"S(f m)", "K(x y)"}, .rows = {0, 1}, .cells = {{0, 0}, {1, 0}, {0, 1}}});
  TextOptions merged{.ascii = true};
  TextOptions first = merged;
  first.tables.view.rowSpans = render::Spans::FIRST;
  EXPECT_EQ(textOf(*table, first), textOf(*table, merged));
}

TEST(TextWriter, WithoutLabelsAndCornerThereIsNoHead) {
  const TableOwner table = titled({.dimensions = {"R(a b)"}, .rows = {0}, .cells = {{0}, {1}}});
  TextOptions options{.ascii = true};
  options.tables.view.namesInCorner = false;
  EXPECT_EQ(textOf(*table, options),
            "T\n"
            "+---+---+---+\n"
            "| R | a | 0 |\n"
            "|   | b | 1 |\n"
            "+---+---+---+\n");
}

TEST(TextWriter, ATableWithoutRowLabelsBeginsWithItsCells) {
  const TableOwner table = titled({.dimensions = {"C(x y)"}, .columns = {0}, .cells = {{0}, {1}}});
  EXPECT_EQ(ascii(*table),
            "T\n"
            "+-------+\n"
            "|   C   |\n"
            "+---+---+\n"
            "| x | y |\n"
            "+---+---+\n"
            "| 0 | 1 |\n"
            "+---+---+\n");
}

// ---- Numbers

TEST(TextWriter, NumbersAreAlignedOnTheirDecimalMark) {
  const OmNumber a(1234.5, {.decimals = 1, .grouping = true});
  const OmNumber b(-2, {.decimals = 0});
  const OmNumber c(0.125, {.decimals = 3});
  const OmNumber d(45, {.decimals = 0, .percent = true});
  EXPECT_EQ(ascii(*columnOf({&a, &b, &c, &d})),
            "T\n"
            "+----+-----------+\n"
            "| R  |         c |\n"
            "+----+-----------+\n"
            "| r0 | 1,234.5   |\n"
            "| r1 |    -2     |\n"
            "| r2 |     0.125 |\n"
            "| r3 |    45%    |\n"
            "+----+-----------+\n");
}

TEST(TextWriter, MarksOfNumbersStandOutsideOfTheAlignment) {
  const OmNumber one(1.5);
  const OmNumber ten(10);
  const auto marked = noted(OmNumber(100), {0, 1});
  const SampleTable table = columnOf({&one, &ten, marked.get()});
  addSampleNote(*table, "first");
  addSampleNote(*table, "second", "+");
  EXPECT_EQ(ascii(*table),
            "T\n"
            "+----+----------+\n"
            "| R  |        c |\n"
            "+----+----------+\n"
            "| r0 |   1.5    |\n"
            "| r1 |  10      |\n"
            "| r2 | 100[a,+] |\n"
            "+----+----------+\n"
            "[a] first\n"
            "[+] second\n");
}

TEST(TextWriter, TextsAmongNumbersStandLeft) {
  const OmNumber number(7);
  const OmStringCell text("none at all");
  EXPECT_EQ(ascii(*columnOf({&number, &text})),
            "T\n"
            "+----+-------------+\n"
            "| R  |           c |\n"
            "+----+-------------+\n"
            "| r0 |           7 |\n"
            "| r1 | none at all |\n"
            "+----+-------------+\n");
}

TEST(TextWriter, ACompositeThatIsANumberIsAlignedLikeOne) {
  OmComposite composite;
  composite.Append(OmNumber(5));
  const OmNumber number(10.5);
  EXPECT_EQ(ascii(*columnOf({&composite, &number})),
            "T\n"
            "+----+------+\n"
            "| R  |    c |\n"
            "+----+------+\n"
            "| r0 |  5   |\n"
            "| r1 | 10.5 |\n"
            "+----+------+\n");
}

TEST(TextWriter, AMissingValueStandsUnderTheUnits) {
  const OmNumber missing(std::stod("nan"));
  const OmNumber number(12.5);
  EXPECT_EQ(ascii(*columnOf({&missing, &number})),
            "T\n"
            "+----+------+\n"
            "| R  |    c |\n"
            "+----+------+\n"
            "| r0 |  .   |\n"
            "| r1 | 12.5 |\n"
            "+----+------+\n");
}

TEST(TextWriter, NumbersThatAreTooLongToBeAlignedStandRight) {
  const OmNumber exact(0.5, {.decimals = 64});  // 66 characters
  const OmNumber number(12);
  EXPECT_EQ(ascii(*columnOf({&exact, &number})),
            "T\n"
            "+----+----------------------------------+\n"
            "| R  |                                c |\n"
            "+----+----------------------------------+\n"
            "| r0 | 0.500000000000000000000000000000 |\n"
            "|    | 00000000000000000000000000000000 |\n"
            "|    |                               00 |\n"
            "| r1 |                               12 |\n"
            "+----+----------------------------------+\n");
}

// ---- Wrapping

TEST(TextWriter, LongCellsAreWrapped) {
  const OmStringCell text("one two three four five six seven eight");
  const OmStringCell lines("a\nb");
  EXPECT_EQ(ascii(*columnOf({&text, &lines})),
            "T\n"
            "+----+----------------------------------+\n"
            "| R  | c                                |\n"
            "+----+----------------------------------+\n"
            "| r0 | one two three four five six      |\n"
            "|    | seven eight                      |\n"
            "| r1 | a                                |\n"
            "|    | b                                |\n"
            "+----+----------------------------------+\n");
}

TEST(TextWriter, LongColumnLabelsAreWrappedAndStandAtTheBottom) {
  SampleTable table = sampleTable("T");
  addSampleDimension(*table, "R", {"r"});
  addSampleDimension(*table, "C", {"Per cent of all respondents", "x"}).Root()->Hide(true);
  table->Rows().push_back(0);
  table->Columns().push_back(1);
  table->Cell({0, 0}, OmNumber(1));
  table->Cell({0, 1}, OmNumber(2));
  EXPECT_EQ(ascii(*table),
            "T\n"
            "+---+--------------------+---+\n"
            "|   |    Per cent of all |   |\n"
            "| R |        respondents | x |\n"
            "+---+--------------------+---+\n"
            "| r |                  1 | 2 |\n"
            "+---+--------------------+---+\n");
}

SampleTable tableWithALongLabel() {
  SampleTable table = sampleTable("T");
  addSampleDimension(*table, "S", {"f", "m"});
  addSampleDimension(*table, "K", {"a group of rows with quite a long label", "x"});
  table->Rows().push_back(0);
  table->Rows().push_back(1);
  for (const int i : {0, 1}) {
    for (const int j : {0, 1}) table->Cell({i, j}, OmNumber(i + j));
  }
  return table;
}

TEST(TextWriter, FurtherLinesOfARowLabelStandBesideTheNextRowsOfItsSpan) {
  EXPECT_EQ(ascii(*tableWithALongLabel(), 44),
            "T\n"
            "+----------------------------------+---+---+\n"
            "| K                                | S |   |\n"
            "+----------------------------------+---+---+\n"
            "| a group of rows with quite a     | f | 0 |\n"
            "|   long label                     | m | 1 |\n"
            "+----------------------------------+---+---+\n"
            "| x                                | f | 1 |\n"
            "|                                  | m | 2 |\n"
            "+----------------------------------+---+---+\n");
}

TEST(TextWriter, RowLabelsTakeAllThatTheBodyLeaves) {
  EXPECT_EQ(ascii(*tableWithALongLabel(), 51),
            "T\n"
            "+-----------------------------------------+---+---+\n"
            "| K                                       | S |   |\n"
            "+-----------------------------------------+---+---+\n"
            "| a group of rows with quite a long label | f | 0 |\n"
            "|                                         | m | 1 |\n"
            "+-----------------------------------------+---+---+\n"
            "| x                                       | f | 1 |\n"
            "|                                         | m | 2 |\n"
            "+-----------------------------------------+---+---+\n");
}

TEST(TextWriter, TheLastRowOfASpanIsAsHighAsItsLabelNeeds) {
  SampleTable table = sampleTable("T");
  addSampleDimension(*table, "S", {"f", "m"});
  addSampleDimension(*table, "K", {"1\n2\n3\n4"});
  table->Rows().push_back(0);
  table->Rows().push_back(1);
  table->Cell({0, 0}, OmNumber(5));
  table->Cell({1, 0}, OmNumber(6));
  EXPECT_EQ(ascii(*table),
            "T\n"
            "+---+---+---+\n"
            "| K | S |   |\n"
            "+---+---+---+\n"
            "| 1 | f | 5 |\n"
            "| 2 | m | 6 |\n"
            "| 3 |   |   |\n"
            "| 4 |   |   |\n"
            "+---+---+---+\n");
}

TEST(TextWriter, WideCharactersAndMarksDoNotBreakTheLines) {
  const OmStringCell cjk("漢字");
  const OmStringCell accent("e\u0301");
  const OmStringCell emoji("👩\u200D🚀!");
  EXPECT_EQ(ascii(*columnOf({&cjk, &accent, &emoji})),
            "T\n"
            "+----+------+\n"
            "| R  | c    |\n"
            "+----+------+\n"
            "| r0 | 漢字 |\n"
            "| r1 | e\u0301    |\n"
            "| r2 | 👩\u200D🚀!  |\n"
            "+----+------+\n");
}

// ---- Around the grid

TEST(TextWriter, EachLayerIsATableWithItsLabels) {
  const TableOwner table = titled(
      {.dimensions = {"R(a)", "L(G(x) y)"}, .rows = {0}, .layers = {1}, .cells = {{0, 0}, {0, 1}}});
  EXPECT_EQ(ascii(*table),
            "T\n"
            "L: G > x\n"
            "+---+-----+\n"
            "| R |     |\n"
            "+---+-----+\n"
            "| a | 0,0 |\n"
            "+---+-----+\n"
            "\n"
            "T\n"
            "L: y\n"
            "+---+-----+\n"
            "| R |     |\n"
            "+---+-----+\n"
            "| a | 0,1 |\n"
            "+---+-----+\n");
}

TEST(TextWriter, TitleLabelsAndCaptionHaveTheirMarks) {
  const SampleTable table = footnoteTable();
  EXPECT_EQ(ascii(*table),
            "Weights of penguins[a]\n"
            "+------------+--------------------------+\n"
            "|            |        Statistics        |\n"
            "|            +-------------+------------+\n"
            "| Species[c] |        Mean | Difference |\n"
            "+------------+-------------+------------+\n"
            "| Adelie     | 3700.7[*,b] |   -12.25   |\n"
            "| Gentoo[d]  | 5076        |  1375.3[*] |\n"
            "+------------+-------------+------------+\n"
            "Measured on land.[c]\n"
            "[a] In grams.\n"
            "[c] Weighted by island.\n"
            "[*] Significant at 5 per cent.\n"
            "[b] Estimated.\n"
            "[d] Few birds.\n");
}

TEST(TextWriter, ACaptionThatIsNotToBeShownIsNot) {
  const SampleTable table = flatTable();
  EXPECT_NE(ascii(*table).find("Palmer"), std::string::npos);
  table->showCaption(false);
  EXPECT_EQ(ascii(*table).find("Palmer"), std::string::npos);
}

TEST(TextWriter, ATableWithoutCellsSaysSo) {
  EXPECT_EQ(ascii(*emptyTable()), "Nothing was counted\n(no cells)\n");
  TextOptions options;
  options.tables.skipEmptyLayers = false;
  EXPECT_EQ(textOf(*emptyTable(), options), "Nothing was counted\n(no cells)\n");
}

TEST(TextWriter, ALayerThatDoesNotExistIsSaidToBeMissing) {
  TextOptions options;
  options.tables.layers = Layers::ONE;
  options.tables.layer = 5;
  EXPECT_EQ(textOf(*wideTable(), options), "Births by month\n(no such layer)\n");
}

TEST(TextWriter, TitleAndNotesAreWrappedToThePage) {
  const auto marked = noted("x", {0});
  const SampleTable table = columnOf({marked.get()});
  table->SetTableTitle(OmStringCell("A title of several words"));
  addSampleNote(*table, "A footnote of several words");
  EXPECT_EQ(ascii(*table, 16),
            "A title of\n"
            "several words\n"
            "+----+------+\n"
            "| R  | c    |\n"
            "+----+------+\n"
            "| r0 | x[a] |\n"
            "+----+------+\n"
            "[a] A footnote\n"
            "    of several\n"
            "    words\n");
}

}  // namespace
}  // namespace om::test
