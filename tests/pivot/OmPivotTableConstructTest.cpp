// Making a table, visiting it as a part, and the order in which everything in it ends.

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <type_traits>
#include <vector>

#include "tests/output/CountingWalker.h"
#include "tests/pivot/CellTable.h"
#include "tests/support/Counted.h"
#include "tests/support/Leaks.h"

namespace om::test {
namespace {

using Names = std::vector<std::string>;

static_assert(std::is_base_of_v<OmOutputPart, OmPivotTable>);
static_assert(!std::is_copy_constructible_v<OmPivotTable>);
static_assert(!std::is_copy_assignable_v<OmPivotTable>);
static_assert(!std::is_move_constructible_v<OmPivotTable>);
static_assert(std::has_virtual_destructor_v<OmPivotTable>);
// The base and one pointer.
static_assert(sizeof(OmPivotTable) <= sizeof(OmOutputPart) + sizeof(void*));

TableOwner named(const std::string& templateName) {
  return std::make_unique<OmPivotTable>(OmStringCell("title"), OmStringCell(templateName), false);
}

TEST(OmPivotTableConstruct, TheTitleIsTheLabelOfThePart) {
  const OmPivotTable table(OmStringCell("title"), OmStringCell("name"), false);
  EXPECT_EQ(std::string(table.Label()), "title");
  EXPECT_TRUE(table.Visible());
  EXPECT_TRUE(table.Expanded());
  EXPECT_EQ(table.ClientData(), nullptr);
}

TEST(OmPivotTableConstruct, TheTemplateNameIsClonedIntoTheRegion) {
  const CountedText name("name");
  const OmPivotTable table(OmStringCell("title"), name, false);
  EXPECT_EQ(textOf(table.TemplateName()), "name");
  EXPECT_NE(table.TemplateName(), &name);
  EXPECT_EQ(CountedText::cloned(), 1);
  EXPECT_TRUE(named("plain")->TemplateName() != nullptr);
  const TableOwner plain = named("plain");
  EXPECT_TRUE(plain->TemplateName()->endsWith(dataOf(*plain).region));
}

TEST(OmPivotTableConstruct, TheFlagOfSplitsIsTheThirdArgument) {
  EXPECT_TRUE(OmPivotTable(OmStringCell("t"), OmStringCell("n"), true).HasSplits());
  EXPECT_FALSE(OmPivotTable(OmStringCell("t"), OmStringCell("n"), false).HasSplits());
}

TEST(OmPivotTableConstruct, WarningsMakeATableOfWarnings) {
  EXPECT_TRUE(named("Warnings")->IsWarnings());
  EXPECT_FALSE(named("Warnings")->IsNotes());
}

TEST(OmPivotTableConstruct, NotesMakeATableOfNotes) {
  EXPECT_TRUE(named("Notes")->IsNotes());
  EXPECT_FALSE(named("Notes")->IsWarnings());
}

TEST(OmPivotTableConstruct, OnlyTheExactNamesCount) {
  for (const char* const name : {"warnings", "WARNINGS", "Warning", "Warnings ", " Warnings",
                                 "notes", "NOTES", "Note", "Notes2", "", "WarningsNotes"}) {
    EXPECT_FALSE(named(name)->IsWarnings()) << name;
    EXPECT_FALSE(named(name)->IsNotes()) << name;
  }
  EXPECT_FALSE(named(std::string("Notes\0", 6))->IsNotes());
}

TEST(OmPivotTableConstruct, TheTitleDoesNotMakeATableOfWarnings) {
  const OmPivotTable table(OmStringCell("Warnings"), OmStringCell("name"), false);
  EXPECT_FALSE(table.IsWarnings());
}

TEST(OmPivotTableConstruct, ATableHasNoCellsNoDimensionsAndNoMark) {
  const TableOwner table = named("name");
  EXPECT_EQ(table->NDimensions(), 0U);
  EXPECT_EQ(rootOf(*table), nullptr);
  EXPECT_EQ(table->getNumCells(), 0);
  EXPECT_FALSE(table->IsScratched());
}

TEST(OmPivotTableConstruct, AcceptMakesTheVisitOfATable) {
  class Visitor : public SilentWalker {
   public:
    void Visit(OmPivotTable& part) override { visited.push_back(&part); }
    std::vector<OmPivotTable*> visited;
  } visitor;
  const TableOwner table = named("name");
  OmOutputPart& part = *table;
  part.Accept(visitor);
  EXPECT_EQ(visitor.visited, std::vector<OmPivotTable*>{table.get()});
}

TEST(OmPivotTableConstruct, EveryTextEndsOnceAndInOrder) {
  auto table = std::make_unique<OmPivotTable>(CountedText("title"), CountedText("template"), false);
  const CountedText note("footnote");
  table->Footnote(OmFootnote(&note, nullptr, nullptr), true);
  table->AddDimension(CountedText("dimension 0"));
  table->AddDimension(CountedText("dimension 1"));
  const CountedText caption("caption");
  const CountedText corner("corner");
  table->Caption(&caption);
  table->CornerText(&corner);
  table->SetTableTitle(CountedText("table title"));
  table->Cell({0, 0}, CountedText("cell"));
  table->Cell({5, 2}, CountedText("cell"));
  const long others = 3;  // the three above that are not in the table
  EXPECT_EQ(CountedText::live(), others + 10);
  resetCounted();
  table.reset();
  EXPECT_EQ(CountedText::died(),
            (Names{"template", "corner", "caption", "table title", "cell", "cell", "dimension 0",
                   "dimension 1", "footnote", "title"}));
  EXPECT_EQ(CountedText::live(), others);
}

TEST(OmPivotTableConstruct, TheCategoriesOfADimensionEndWithIt) {
  TableOwner table = makeTable(0);
  OmDimension& dimension = table->AddDimension(CountedText("d"));
  dimension.AddNewChild(dimension.Root(), CountedText("c"), 0, false);
  table->Cell({0}, CountedText("cell"));
  EXPECT_EQ(CountedText::live(), 3);
  resetCounted();
  table.reset();
  ASSERT_EQ(CountedText::died().size(), 3U);
  EXPECT_EQ(CountedText::died().front(), "cell");
}

TEST(OmPivotTableConstruct, CellsAmongPlainOnesEndOnceToo) {
  TableOwner table = makeTable(2);
  for (int i = 0; i < 10; ++i) store(*table, {i, 0}, "plain");
  table->Cell({3, 0}, CountedText("replaced"));
  table->Cell({4, 0}, CountedText("b"));
  table->Cell({0, 7}, CountedText("c"));
  store(*table, {3, 0}, "plain");
  resetCounted();
  table.reset();
  EXPECT_EQ(CountedText::died(), (Names{"b", "c"}));
}

TEST(OmPivotTableConstruct, NothingIsLeftOfATableWithEverything) {
  const LeakCheck leaks;
  {
    const TableOwner table = named("name");
    for (int i = 0; i < 6; ++i) {
      addCategories(table->AddDimension(OmStringCell("a dimension with a long name")), 5);
    }
    for (int i = 0; i < 100; ++i) {
      store(*table, {i % 7, i % 5, 0, i, 1, 2}, "a cell with a text that is long");
    }
    table->setAreaFormat(new FormatArea(FormatArea::TITLE));
    for (short i = 0; i < 6; ++i) table->Rows().push_back(i);
    table->EndTable();
  }
  EXPECT_EQ(leaks.findings(), "");
}

}  // namespace
}  // namespace om::test
