// Titles, captions and footnotes of tables, and the limit of cells.

#include <gtest/gtest.h>

#include "tests/tools/tabulate/Tabulated.h"

namespace om::test {
namespace {

using tabulate::Axis;
using tabulate::Missing;
using tabulate::Statistic;
using tabulate::TableRequest;
using tabulate::titleOf;

using Texts = std::vector<std::string>;

Texts notesOf(const OmPivotTable& table) {
  Texts notes;
  for (std::size_t i = 0; i < table.Footnotes().size(); ++i) {
    notes.push_back(std::string(*table.Footnotes()[i].Text()));
  }
  return notes;
}

TEST(TableTitle, NamesWhatIsTabulatedByWhat) {
  EXPECT_EQ("a, b by c by d", titleOf(ask({"a", "b"}, {"c"}, {"d"})));
  EXPECT_EQ("c", titleOf(ask({}, {"c"})));
  TableRequest request;
  request.dimensions[Axis::ROWS] = {{"a", "b"}, {"c"}};
  EXPECT_EQ("a / b, c", titleOf(request));
}

TEST(TableTitle, NamesTheOnlyStatistic) {
  TableRequest request = ask({"a"});
  request.statistics = {Statistic::COLUMN_PERCENT};
  EXPECT_EQ("Column %: a", titleOf(request));
  request.statistics = {Statistic::MEAN};
  request.measures = {"x"};
  EXPECT_EQ("Mean of x: a", titleOf(request));
  request.measures = {"x", "y"};
  EXPECT_EQ("a", titleOf(request));
}

TEST(TableTitle, IsTheOneAskedFor) {
  TableRequest request = ask({"a"});
  request.title = "People";
  request.caption = "In 1912";
  const auto table = tableOf("a\nx\n", request);
  EXPECT_EQ("People", std::string(table->TableTitle()));
  EXPECT_EQ("People", std::string(table->Label()));
  EXPECT_EQ("In 1912", std::string(*table->Caption()));
}

TEST(TableNotes, StandAtTheTitle) {
  TableRequest request = ask({"a"});
  request.weight = "w";
  request.notes = {"First", "Second"};
  const auto table = tableOf("a,w\nx,1\n,1\n,1\ny,\n", request);
  EXPECT_EQ((Texts{"Weighted by w.",
                   "Left out: 2 records in which a value of the variables on rows, columns or "
                   "layers is missing.",
                   "Left out: 1 record without a weight.", "First", "Second"}),
            notesOf(*table));
  EXPECT_EQ((std::vector<short>{0, 1, 2, 3, 4}), table->TableTitle().Footnotes());
}

TEST(TableNotes, ATableOfAllRecordsHasNone) {
  const auto table = tableOf("a\nx\n", ask({"a"}));
  EXPECT_TRUE(notesOf(*table).empty());
  EXPECT_TRUE(table->TableTitle().Footnotes().empty());
}

TEST(TableNotes, AreTwiceThereWhenTheyAreGivenTwice) {
  TableRequest request = ask({"a"});
  request.notes = {"Same", "Same"};
  EXPECT_EQ((Texts{"Same", "Same"}), notesOf(*tableOf("a\nx\n", request)));
}

TEST(TableNotes, OneIsAtEveryLabelOfAMissingValue) {
  TableRequest request = ask({"a"}, {"b"});
  request.missing = Missing::CATEGORY;
  const auto table = tableOf("a,b\nx,\n,p\n", request);
  EXPECT_EQ((Texts{"The value is missing."}), notesOf(*table));
  for (const short dimension : {table->Rows()[0], table->Columns()[0]}) {
    const OmDimension::ConstNode root =
        static_cast<const OmPivotTable&>(*table).Dimension(dimension).Root();
    for (std::size_t i = 0; i < 2; ++i) {
      const OmCellText& label = *root.ChildAt(i)->Text();
      EXPECT_EQ(std::string(label).empty() ? std::vector<short>{0} : std::vector<short>{},
                label.Footnotes());
    }
  }
}

TEST(TableNotes, AMeasureSaysHowManyOfItsValuesAreMissing) {
  TableRequest request = ask({"a"});
  request.measures = {"x", "y"};
  const std::string csv = "a,x,y\nx,1,1\nx,,2\n";
  const auto table = tableOf(csv, request);
  EXPECT_EQ((Texts{"1 record without a value of x."}), notesOf(*table));
  const OmDimension::ConstNode root =
      static_cast<const OmPivotTable&>(*table).Dimension(table->Columns()[0]).Root();
  EXPECT_EQ((std::vector<short>{0}), root.ChildAt(0)->Text()->Footnotes());
  EXPECT_TRUE(root.ChildAt(1)->Text()->Footnotes().empty());

  request.measures = {"x"};
  request.statistics = {Statistic::MEAN};
  const auto single = tableOf(csv, request);
  EXPECT_EQ((Texts{"1 record without a value of x."}), notesOf(*single));
  EXPECT_EQ((std::vector<short>{0}), single->TableTitle().Footnotes());
}

TEST(TableLimit, IsTheNumberOfCellsThatATableMayHave) {
  TableRequest request = ask({"a"});
  const std::string csv = "a\nx\ny\nz\n";
  request.maxCells = 3;
  EXPECT_FALSE(tableOf(csv, request)->IsScratched());
  request.maxCells = 2;
  EXPECT_TRUE(tableOf(csv, request)->IsScratched());
  request.maxCells = 1;
  EXPECT_TRUE(tableOf(csv, request)->IsScratched());
}

TEST(TableLimit, CountsTotalsAndStatistics) {
  TableRequest request = ask({"a"});
  request.totals = {true, false, false};
  request.statistics = {Statistic::COUNT, Statistic::N};
  const std::string csv = "a\nx\ny\nz\n";
  request.maxCells = 8;
  EXPECT_FALSE(tableOf(csv, request)->IsScratched());
  request.maxCells = 7;
  EXPECT_TRUE(tableOf(csv, request)->IsScratched());
}

TEST(TableLimit, EndsTheWorkEarly) {
  // A thousand categories in each of eight dimensions with totals would be 2^8 thousand cells.
  std::string csv = "a,b,c,d,e,f,g,h\n";
  for (int i = 0; i < 1'000; ++i) {
    const std::string label = std::to_string(i);
    for (int k = 0; k < 8; ++k) csv += label + (k < 7 ? "," : "\n");
  }
  TableRequest request = ask({"a", "b", "c", "d", "e", "f", "g", "h"});
  request.totals = {true, false, false};
  request.maxCells = 100;
  EXPECT_TRUE(tableOf(csv, request)->IsScratched());
}

}  // namespace
}  // namespace om::test
