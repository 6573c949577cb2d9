// The two dumps of a table, byte for byte.

#include <gtest/gtest.h>

#include <cstddef>
#include <iostream>
#include <sstream>
#include <string>

#include "external/cells/OmMessageCell.h"
#include "external/cells/OmNumber.h"
#include "tests/pivot/TableText.h"

namespace om::test {
namespace {

using om::internal::PivotTableInternals;
using om::internal::PointerVector;

struct Table : OmPivotTable {
  Table() : OmPivotTable(OmStringCell("label"), OmStringCell("template"), false) {
    SetTableTitle(OmStringCell("T"));
  }
};

TEST(OmPivotTablePrint, OfATableWithNothingInIt) {
  EXPECT_EQ(printed(Table()), "Starting table T\nCells\nDone with table T\n");
}

TEST(OmPivotTablePrint, ListsTheTreesOfTheDimensions) {
  Table table;
  addDimension(table, "Sex", {"Male", "Female"});
  addDimension(table, "Empty", {});
  EXPECT_EQ(printed(table),
            "Starting table T\n"
            "Subscript: 0, Group: yes, hide: no, hideLabels: no, Children: 0, 1, Text: Sex\n"
            "  Subscript: 0, Group: no, hide: no, hideLabels: no, Text: Male\n"
            "  Subscript: 1, Group: no, hide: no, hideLabels: no, Text: Female\n"
            "Subscript: 1, Group: yes, hide: no, hideLabels: no, Text: Empty\n"
            "Cells\n"
            "Done with table T\n");
}

TEST(OmPivotTablePrint, ListsCategoriesBehindTheirGroups) {
  Table table;
  OmDimension& dimension = table.AddDimension(OmStringCell("D"));
  dimension.AddNewChild(dimension.Root(), OmStringCell("G"), ~0ULL, true);
  dimension.AddNewChild(dimension.Root(), OmStringCell("b"), 1, false);
  dimension.AddNewChild(dimension.Root().FirstChild(), OmStringCell("a"), 0, false);
  EXPECT_EQ(printed(table),
            "Starting table T\n"
            "Subscript: 0, Group: yes, hide: no, hideLabels: no, Children: 0, 1, Text: D\n"
            "  Subscript: -1, Group: yes, hide: no, hideLabels: no, Children: 0, Text: G\n"
            "    Subscript: 0, Group: no, hide: no, hideLabels: no, Text: a\n"
            "  Subscript: 1, Group: no, hide: no, hideLabels: no, Text: b\n"
            "Cells\n"
            "Done with table T\n");
}

// What stands between the line "Cells" and the last line.
std::string behindCells(const OmPivotTable& table) {
  const std::string text = printed(table);
  const std::string start = "\nCells\n";
  const std::string end = "Done with table T\n";
  const std::size_t from = text.find(start) + start.size();
  EXPECT_EQ(text.substr(text.size() - end.size()), end);
  return text.substr(from, text.size() - end.size() - from);
}

TEST(OmPivotTablePrint, ListsTheCellsWithTheFirstDimensionFastest) {
  Table table;
  addDimension(table, "A", {"a", "b"});
  addDimension(table, "B", {"c", "d"});
  table.Cell({1, 1}, OmStringCell("11"));
  table.Cell({0, 1}, OmStringCell("01"));
  table.Cell({1, 0}, OmStringCell("10"));
  table.Cell({0, 0}, OmNumber(0.5, {2, false, false}));
  EXPECT_EQ(behindCells(table), "0.50\n10\n01\n11\n");
}

TEST(OmPivotTablePrint, LeavesOutPlacesWithoutACell) {
  Table table;
  addDimension(table, "A", {"a", "b", "c"});
  table.Cell({2}, OmStringCell("2"));
  table.Cell({0}, OmStringCell("0"));
  table.Cell({0}, nullptr);
  EXPECT_EQ(behindCells(table), "2\n");
}

TEST(OmPivotTablePrint, PrintsWholeMessages) {
  Table table;
  addDimension(table, "A", {"a"});
  OmMessageCell message(OmStringCell("{0} of {1}"));
  message.Append(OmNumber(1));
  message.Append(OmNumber(2));
  table.Cell({0}, message);
  table.Caption(&message);
  EXPECT_EQ(behindCells(table), "1 of 2\n  Caption: 1 of 2\n");
}

TEST(OmPivotTablePrint, PutsTheCornerTextInFrontOfTheCaption) {
  Table table;
  const OmStringCell caption("the caption");
  const OmStringCell corner("the corner");
  table.Caption(&caption);
  table.CornerText(&corner);
  EXPECT_EQ(behindCells(table), "  Corner Text: the corner\n  Caption: the caption\n");
}

TEST(OmPivotTablePrint, PrintsACornerTextOrACaptionAlone) {
  const OmStringCell text("text");
  Table corner;
  corner.CornerText(&text);
  EXPECT_EQ(behindCells(corner), "  Corner Text: text\n");
  Table caption;
  caption.Caption(&text);
  EXPECT_EQ(behindCells(caption), "  Caption: text\n");
}

TEST(OmPivotTablePrint, PrintsAnEmptyTextThatIsSet) {
  Table table;
  const OmStringCell empty("");
  table.CornerText(&empty);
  table.Caption(&empty);
  EXPECT_EQ(behindCells(table), "  Corner Text: \n  Caption: \n");
}

TEST(OmPivotTablePrint, PrintsACaptionThatIsNotShown) {
  Table table;
  const OmStringCell text("text");
  table.Caption(&text);
  table.showCaption(false);
  EXPECT_EQ(behindCells(table), "  Caption: text\n");
}

TEST(OmPivotTablePrint, ListsTheTextsOfTheFootnotesWithoutMarkersAndCounts) {
  Table table;
  table.Footnote(noteOf("b", "x"), false);
  table.Footnote(noteOf("a"), false);
  table.Footnote(noteOf("b", "y"), false);
  table.Footnote(noteOf("b"), true);
  EXPECT_EQ(behindCells(table), "  Footnotes\n      b\n      a\n      b\n");
}

TEST(OmPivotTablePrint, PrintsEverythingInItsOrder) {
  Table table;
  addDimension(table, "D", {"a"});
  table.Cell({0}, OmStringCell("cell"));
  const OmStringCell caption("caption");
  const OmStringCell corner("corner");
  table.Caption(&caption);
  table.CornerText(&corner);
  table.Footnote(noteOf("note", "*"), false);
  EXPECT_EQ(printed(table),
            "Starting table T\n"
            "Subscript: 0, Group: yes, hide: no, hideLabels: no, Children: 0, Text: D\n"
            "  Subscript: 0, Group: no, hide: no, hideLabels: no, Text: a\n"
            "Cells\n"
            "cell\n"
            "  Corner Text: corner\n"
            "  Caption: caption\n"
            "  Footnotes\n"
            "      note\n"
            "Done with table T\n");
}

TEST(OmPivotTablePrint, ChangesNothing) {
  Table table;
  addDimension(table, "D", {"a", "b"});
  table.Cell({1}, OmStringCell("cell"));
  const std::string first = printed(table);
  EXPECT_EQ(printed(table), first);
  EXPECT_EQ(table.getNumCells(), 1);
}

// A buffer that counts the flushes that come directly behind an end of line.
class FlushCounter : public std::stringbuf {
 public:
  std::size_t flushedLines = 0;

 private:
  int sync() override {
    const std::string text = str();
    if (!text.empty() && text.back() == '\n' && text.size() != flushed_) ++flushedLines;
    flushed_ = text.size();
    return 0;
  }

  std::size_t flushed_ = 0;
};

TEST(OmPivotTablePrint, FlushesBehindEveryLine) {
  Table table;
  addDimension(table, "D", {"a"});
  table.Cell({0}, OmStringCell("cell"));
  const OmStringCell text("text");
  table.Caption(&text);
  table.CornerText(&text);
  table.Footnote(noteOf("note"), false);
  FlushCounter buffer;
  std::streambuf* const former = std::cout.rdbuf(&buffer);
  table.Print();
  std::cout.rdbuf(former);
  EXPECT_EQ(buffer.flushedLines, 10U);
}

std::string printedCells(const OmPivotTable& table, PointerVector* node, std::size_t depth,
                         std::size_t index) {
  const StandardOutput output;
  PivotTableInternals::printCells(table, node, depth, index);
  return output.text();
}

// A pointer as the stream writes it.
std::string shown(const void* pointer) {
  std::ostringstream text;
  text << pointer;
  return text.str();
}

PointerVector* rootOf(const OmPivotTable& table) {
  return const_cast<PointerVector*>(dataOf(table).cells.Root());
}

TEST(OmPivotTablePrintCells, OfOneDimension) {
  Table table;
  addDimension(table, "A", {"a", "b"});
  table.Cell({0}, OmStringCell("first"));
  table.Cell({1}, OmStringCell("second"));
  EXPECT_EQ(printedCells(table, rootOf(table), 0, 0),
            shown(rootOf(table)) + "\n    [0] " + shown(table.Cell({0})) + " - first\n    [1] " +
                shown(table.Cell({1})) + " - second\n");
}

TEST(OmPivotTablePrintCells, ANullCellHasNoText) {
  Table table;
  addDimension(table, "A", {"a", "b"});
  table.Cell({1}, OmStringCell("second"));
  EXPECT_EQ(printedCells(table, rootOf(table), 0, 0), shown(rootOf(table)) + "\n    [0] " +
                                                          shown(nullptr) + "\n    [1] " +
                                                          shown(table.Cell({1})) + " - second\n");
}

TEST(OmPivotTablePrintCells, RepeatsTheIndexOfTheNodeForEveryLevel) {
  Table table;
  addDimension(table, "A", {"a", "b"});
  addDimension(table, "B", {"c"});
  addDimension(table, "C", {"d"});
  table.Cell({1, 0, 0}, OmStringCell("x"));
  PointerVector* const root = rootOf(table);
  const auto* const middle = static_cast<const PointerVector*>((*root)[0]);
  const void* const leaf = (*middle)[0];
  EXPECT_EQ(printedCells(table, root, 0, 0),
            shown(root) + "\n    [0] " + shown(middle) + "\n    [0]     [0] " + shown(leaf) +
                "\n    [0]     [0]     [0] " + shown(nullptr) + "\n    [1]     [1]     [1] " +
                shown(table.Cell({1, 0, 0})) + " - x\n");
}

TEST(OmPivotTablePrintCells, ANullNodeIsALine) {
  Table table;
  addDimension(table, "A", {"a", "b"});
  addDimension(table, "B", {"c", "d"});
  table.Cell({0, 1}, OmStringCell("x"));
  PointerVector* const root = rootOf(table);
  EXPECT_EQ(printedCells(table, root, 0, 0),
            shown(root) + "\n    [0] " + shown(nullptr) + "\n    [1] " + shown((*root)[1]) +
                "\n    [0]     [0] " + shown(table.Cell({0, 1})) + " - x\n");
}

TEST(OmPivotTablePrintCells, TheIndexGivenStandsAtEveryLevelOfTheFirstLine) {
  Table table;
  addDimension(table, "A", {"a"});
  addDimension(table, "B", {"c"});
  table.Cell({0, 0}, OmStringCell("x"));
  auto* const leaf = static_cast<PointerVector*>((*rootOf(table))[0]);
  EXPECT_EQ(printedCells(table, leaf, 1, 12), "    [12] " + shown(leaf) + "\n    [0]     [0] " +
                                                  shown(table.Cell({0, 0})) + " - x\n");
}

TEST(OmPivotTablePrintCells, ADepthBeyondTheDimensionsIsThatOfACell) {
  Table table;
  addDimension(table, "A", {"a"});
  table.Cell({0}, OmStringCell("x"));
  auto* const cell = static_cast<PointerVector*>((*rootOf(table))[0]);
  EXPECT_EQ(printedCells(table, cell, 2, 3),
            "    [3]     [3] " + shown(table.Cell({0})) + " - x\n");
}

}  // namespace
}  // namespace om::test
