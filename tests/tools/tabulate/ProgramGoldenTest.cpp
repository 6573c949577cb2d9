// Whole documents of the shipped data in each format that is text, compared with golden files.

#include <gtest/gtest.h>

#include "tests/support/Golden.h"
#include "tests/tools/tabulate/RunProgram.h"
#include "tests/tools/tabulate/TemporaryFolder.h"
#include "tests/tools/tabulate/TestData.h"

namespace om::test {
namespace {

using tabulate::ExitCode;

// The data is read from standard input, so that no document names a folder of this machine.
std::string documentOf(const std::string& data, Arguments arguments) {
  arguments.insert(arguments.begin(), "-");
  const Ran ran = run(arguments, contentOf(dataFile(data)));
  EXPECT_EQ("", ran.err);
  EXPECT_EQ(ExitCode::DONE, ran.code);
  return ran.out;
}

void cut(std::string& text, const std::string& begin, const std::string& end) {
  const std::size_t from = text.find(begin);
  const std::size_t to = text.find(end, from);
  ASSERT_TRUE(from != text.npos && to != text.npos) << begin << " ... " << end;
  text.replace(from, to + end.size() - from, begin + "..." + end);
}

// The style sheet and the script are no matter of this program.
std::string withoutCode(std::string page) {
  cut(page, "<meta http-equiv=\"Content-Security-Policy\"", ">");
  cut(page, "<style>", "</style>");
  cut(page, "<script>", "</script>");
  return page;
}

TEST(ProgramGolden, Help) {
  expectGolden("help.txt", run({"--help"}).out);
  expectGolden("run_help.txt", run({"run", "--help"}).out);
}

TEST(ProgramGolden, TextOfNestedRowsInLayersWithTotalsAndNotes) {
  expectGolden(
      "text/nested_layers.txt",
      documentOf("titanic.csv", {"--rows", "Class,Sex", "--columns", "Survived", "--layers", "Age",
                                 "--statistics", "count,row%", "--totals", "rows,columns",
                                 "--title", "People aboard", "--caption", "One record a person.",
                                 "--note", "From a public inquiry.", "--note", "In 1912."}));
}

TEST(ProgramGolden, TextOfOneLayerWithNamesInTheCorner) {
  expectGolden(
      "text/second_layer.txt",
      documentOf("titanic.csv", {"--rows", "Class,Sex", "--columns", "Survived", "--layers", "Age",
                                 "--layer", "2", "--names-in-corner", "--statistics", "total%"}));
}

TEST(ProgramGolden, TextOfAHierarchyWithMissingValues) {
  expectGolden("text/hierarchy.txt",
               documentOf("penguins.csv",
                          {"--rows", "Region/Island/Species", "--columns", "Sex", "--missing",
                           "category", "--order", "sorted", "--totals", "rows,columns"}));
}

TEST(ProgramGolden, TextInAsciiOfWeightedPercentages) {
  expectGolden(
      "text/weighted_ascii.txt",
      documentOf("penguins.csv", {"--ascii", "--weight", "Body Mass (g)", "--rows", "Island",
                                  "--columns", "Sex", "--statistics", "count,n,column%",
                                  "--statistics-on", "rows", "--totals", "columns"}));
}

TEST(ProgramGolden, TextInPanelsWhereItIsNarrow) {
  expectGolden("text/panels.txt",
               documentOf("penguins.csv",
                          {"--width", "60", "--rows", "Species", "--columns", "Sex", "--measure",
                           "Body Mass (g),Flipper Length (mm)", "--statistics", "n,mean,median"}));
}

TEST(ProgramGolden, HtmlWithAGroupedDimensionLayersAndFootnotes) {
  expectGolden(
      "html/layers.html",
      withoutCode(documentOf("titanic.csv",
                             {"--format", "html", "--rows", "Class/Sex", "--columns", "Survived",
                              "--layers", "Age", "--statistics", "row%", "--caption",
                              "One person each.", "--note", "From a public inquiry."})));
}

TEST(ProgramGolden, CsvWithLayersTotalsAndNotes) {
  expectGolden(
      "csv/layers.csv",
      documentOf("titanic.csv", {"--format", "csv", "--rows", "Class,Sex", "--columns", "Survived",
                                 "--layers", "Age", "--totals", "columns", "--order", "sorted",
                                 "--note", "From a public inquiry."}));
}

TEST(ProgramGolden, JsonOfAWeightedHierarchyWithMissingValues) {
  expectGolden("json/hierarchy.json",
               documentOf("penguins.csv", {"--format", "json", "--rows", "Region/Island",
                                           "--columns", "Sex", "--missing", "category", "--weight",
                                           "Culmen Depth (mm)", "--statistics", "count,column%"}));
}

TEST(ProgramGolden, JsonStatOfMeasuresInAHierarchy) {
  expectGolden(
      "jsonstat/measures.json",
      documentOf("penguins.csv", {"--format", "jsonstat", "--rows", "Island/Species", "--columns",
                                  "Sex", "--measure", "Body Mass (g)", "--statistics", "n,mean,max",
                                  "--totals", "rows", "--note", "In one season."}));
}

// Two tables and a dropped one in one document.
class ProgramJobGolden : public testing::Test {
 protected:
  ProgramJobGolden() : inFolder_(folder_.path()) {
    for (const char* const name : {"penguins.csv", "titanic.csv"}) {
      folder_.write(name, contentOf(dataFile(name)));
    }
    folder_.write("job.json", R"job({"tables": [
      {"data": "titanic.csv", "rows": ["Class"], "columns": ["Survived"], "totals": ["rows"],
       "title": "People aboard"},
      {"data": "penguins.csv", "rows": ["Individual ID"], "columns": ["Date Egg"],
       "max-cells": 100, "title": "Too many birds"},
      {"data": "penguins.csv", "rows": [["Island", "Species"]], "measure": ["Body Mass (g)"],
       "order": "sorted", "notes": ["Weighed once."]}]})job");
  }

  std::string documentAs(const std::string& format) const {
    const Ran ran = run({"run", "job.json", "--format", format});
    EXPECT_EQ("tabulate: dropped for having more cells than --max-cells: \"Too many birds\"\n",
              ran.err);
    EXPECT_EQ(ExitCode::DROPPED, ran.code);
    return ran.out;
  }

 private:
  const TemporaryFolder folder_;
  const WorkingFolder inFolder_;
};

TEST_F(ProgramJobGolden, Text) { expectGolden("text/job.txt", documentAs("text")); }

TEST_F(ProgramJobGolden, Html) { expectGolden("html/job.html", withoutCode(documentAs("html"))); }

}  // namespace
}  // namespace om::test
