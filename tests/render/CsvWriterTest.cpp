// Tables as CSV in long form.

#include "render/CsvWriter.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "external/cells/OmComposite.h"
#include "tests/render/SampleDocuments.h"
#include "tests/support/Golden.h"

namespace om::test {
namespace {

using render::CsvOptions;

std::string csvOf(OmPivotTable& table, const CsvOptions& options = {}) {
  std::ostringstream out;
  render::writeCsv(table, out, options);
  return out.str();
}

std::string csvOf(const OmOutputTree& document, const CsvOptions& options = {}) {
  std::ostringstream out;
  render::writeCsv(document, out, options);
  return out.str();
}

// A table with the cells of one row dimension.
SampleTable rowsTable(const std::string& name, const std::vector<std::string>& labels) {
  SampleTable table = sampleTable("T");
  addSampleDimension(*table, name, labels);
  table->Rows().push_back(0);
  for (int i = 0; i < static_cast<int>(labels.size()); ++i) table->Cell({i}, OmNumber(i));
  return table;
}

TEST(CsvWriter, WritesARecordForEachCellThatExists) {
  EXPECT_EQ(csvOf(*flatTable()),
            "table,title,Species,Statistics,text,number,notes\n"
            "1,Penguins by species,Adelie,N,152,152,\n"
            "1,Penguins by species,Adelie,Per cent,44.2%,44.2,\n"
            "1,Penguins by species,Adelie,Mean mass,3700.66,3700.66,\n"
            "1,Penguins by species,Chinstrap,N,68,68,\n"
            "1,Penguins by species,Chinstrap,Mean mass,.,,\n"
            "1,Penguins by species,Gentoo,N,\"1,240\",1240,\n"
            "1,Penguins by species,Gentoo,Per cent,36.0%,36,\n"
            "1,Penguins by species,Gentoo,Mean mass,-5076.020,-5076.02,\n");
}

TEST(CsvWriter, WritesLayersThenRowsThenColumnsFromTheOutermostIn) {
  const std::string csv = csvOf(*nestedTable());
  EXPECT_EQ(csv.substr(0, csv.find('\n')),
            "table,title,Class,Region,Sex,Age,Survived,text,number,notes");
}

TEST(CsvWriter, WritesWholePathsHiddenNodesIncluded) {
  EXPECT_NE(csvOf(*nestedTable())
                .find("\n1,\"Survival by region, sex and class\",First,Europe/Britain,Female,"
                      "Of age/Adult,No,0,0,\n"),
            std::string::npos);
}

TEST(CsvWriter, EscapesTheSeparatorWithinLabelsWhereThereAreGroups) {
  SampleTable table = sampleTable("T");
  OmDimension& dimension = table->AddDimension(OmStringCell("D"));
  addSampleCategories(dimension, addSampleGroup(dimension, dimension.Root(), "N/A"), {"a\\b"});
  addSampleCategories(dimension, dimension.Root(), {"km/h"});
  table->Rows().push_back(0);
  table->Cell({0}, OmNumber(1));
  table->Cell({1}, OmNumber(2));
  EXPECT_EQ(csvOf(*table),
            "table,title,D,text,number,notes\n"
            "1,T,N\\/A/a\\\\b,1,1,\n"
            "1,T,km\\/h,2,2,\n");
  EXPECT_EQ(csvOf(*table, {.pathSeparator = " > "}),
            "table,title,D,text,number,notes\n"
            "1,T,N/A > a\\\\b,1,1,\n"
            "1,T,km/h,2,2,\n");
}

TEST(CsvWriter, LeavesLabelsAloneWhereThereAreNoGroups) {
  EXPECT_EQ(csvOf(*rowsTable("D", {"km/h", "C:\\x"})),
            "table,title,D,text,number,notes\n"
            "1,T,km/h,0,0,\n"
            "1,T,C:\\x,1,1,\n");
}

TEST(CsvWriter, MakesTheNamesOfColumnsDifferentAndNeverEmpty) {
  SampleTable table = sampleTable("T");
  addSampleDimension(*table, "text", {"a"});
  addSampleDimension(*table, "text", {"b"});
  addSampleDimension(*table, "", {"c"});
  table->Rows().push_back(2);
  table->Rows().push_back(1);
  table->Rows().push_back(0);
  table->Cell({0, 0, 0}, OmNumber(1));
  EXPECT_EQ(csvOf(*table),
            "table,title,text (2),text (3),row3,text,number,notes\n"
            "1,T,a,b,c,1,1,\n");
}

TEST(CsvWriter, WritesNumbersSoThatTheyCanBeReadBackExactly) {
  SampleTable table = rowsTable("D", {"a", "b", "c", "d", "e", "f"});
  const double values[] = {0.1 + 0.2, -0.0, 1e6, 9007199254740992, 1e21, 1e-7};
  for (int i = 0; i < 6; ++i) table->Cell({i}, OmNumber(values[i], {.decimals = 0}));
  EXPECT_EQ(csvOf(*table),
            "table,title,D,text,number,notes\n"
            "1,T,a,0,0.30000000000000004,\n"
            "1,T,b,0,-0,\n"
            "1,T,c,1000000,1000000,\n"
            "1,T,d,9007199254740992,9007199254740992,\n"
            "1,T,e,1000000000000000000000,1e+21,\n"
            "1,T,f,0,1e-07,\n");
}

TEST(CsvWriter, WritesTheFirstNumberOfAComposite) {
  SampleTable table = rowsTable("D", {"a"});
  OmComposite composite;
  composite.Append(OmNumber(2.5));
  composite.Append(OmNumber(0.5), 1);
  table->Cell({0}, composite);
  EXPECT_EQ(csvOf(*table), "table,title,D,text,number,notes\n1,T,a,2.5 (0.5),2.5,\n");
}

TEST(CsvWriter, WritesTheMarksOfACell) {
  EXPECT_EQ(csvOf(*footnoteTable()),
            "table,title,Species,Statistics,text,number,notes\n"
            "1,Weights of penguins,Adelie,Mean,3700.7,3700.7,\"*,b\"\n"
            "1,Weights of penguins,Adelie,Difference,-12.25,-12.25,\n"
            "1,Weights of penguins,Gentoo,Mean,5076,5076,\n"
            "1,Weights of penguins,Gentoo,Difference,1375.3,1375.3,*\n");
}

TEST(CsvWriter, GuardsAgainstFormulasInEveryField) {
  SampleTable table = sampleTable("=title");
  addSampleDimension(*table, "=name", {"=label"});
  table->Rows().push_back(0);
  table->Cell({0}, OmStringCell("=cell"));
  EXPECT_EQ(csvOf(*table), "table,title,'=name,text,number,notes\n1,'=title,'=label,'=cell,,\n");
  EXPECT_EQ(csvOf(*table, {.guardFormulas = false}),
            "table,title,=name,text,number,notes\n1,=title,=label,=cell,,\n");
}

TEST(CsvWriter, EndsRecordsWithBothBytesWhenAskedTo) {
  EXPECT_EQ(csvOf(*rowsTable("D", {"a"}), {.crlf = true}),
            "table,title,D,text,number,notes\r\n1,T,a,0,0,\r\n");
}

TEST(CsvWriter, WritesOnlyTheNamesOfATableWithoutCells) {
  EXPECT_EQ(csvOf(*emptyTable()), "table,title,Rows,Columns,text,number,notes\n");
}

TEST(CsvWriter, WritesEmptyFieldsForEntriesOfAnAxisThatAreNoDimensions) {
  SampleTable table = rowsTable("D", {"a"});
  table->Columns().push_back(-1);
  EXPECT_EQ(csvOf(*table), "table,title,D,column1,text,number,notes\n1,T,a,,0,0,\n");
}

TEST(CsvWriter, TellsCategoriesWithOneSubscriptApart) {
  SampleTable table = sampleTable("T");
  OmDimension& dimension = table->AddDimension(OmStringCell("D"));
  for (const char* const label : {"a", "b"}) {
    dimension.AddNewChild(dimension.Root(), OmStringCell(label), 0, false);
  }
  table->Rows().push_back(0);
  table->Cell({0}, OmNumber(5));
  EXPECT_EQ(csvOf(*table), "table,title,D,text,number,notes\n1,T,a,5,5,\n1,T,b,5,5,\n");
}

TEST(CsvWriter, FollowsSubscriptsThatLieFarOut) {
  SampleTable table = sampleTable("T");
  OmDimension& dimension = table->AddDimension(OmStringCell("D"));
  dimension.AddNewChild(dimension.Root(), OmStringCell("a"), 1000, false);
  dimension.AddNewChild(dimension.Root(), OmStringCell("b"), 7, false);
  table->Columns().push_back(0);
  table->Cell({7}, OmNumber(1));
  table->Cell({1000}, OmNumber(2));
  EXPECT_EQ(csvOf(*table), "table,title,D,text,number,notes\n1,T,a,2,2,\n1,T,b,1,1,\n");
}

TEST(CsvWriter, FollowsSubscriptsInAnyOrder) {
  SampleTable table = sampleTable("T");
  OmDimension& dimension = table->AddDimension(OmStringCell("D"));
  dimension.AddNewChild(dimension.Root(), OmStringCell("a"), 1, false);
  dimension.AddNewChild(dimension.Root(), OmStringCell("b"), 0, false);
  table->Rows().push_back(0);
  table->Cell({0}, OmNumber(1));
  table->Cell({1}, OmNumber(2));
  EXPECT_EQ(csvOf(*table), "table,title,D,text,number,notes\n1,T,a,2,2,\n1,T,b,1,1,\n");
}

TEST(CsvWriter, WritesTheLayerThatTheOptionsAskFor) {
  CsvOptions options;
  options.tables.layers = render::Layers::ONE;
  options.tables.layer = 1;
  const std::string csv = csvOf(*nestedTable(), options);
  EXPECT_EQ(csv.find(",First,"), std::string::npos);
  EXPECT_NE(csv.find(",Third,"), std::string::npos);
}

TEST(CsvWriter, GivesADocumentAsManyColumnsAsItsTablesNeed) {
  OmOutputTree document;
  document.AppendLast(rowsTable("D", {"a"}), 1);
  SampleTable table = sampleTable("U");
  addSampleDimension(*table, "E", {"b"});
  addSampleDimension(*table, "F", {"c"});
  table->Layers().push_back(0);
  table->Columns().push_back(1);
  table->Cell({0, 0}, OmNumber(5));
  document.AppendLast(std::move(table), 1);
  EXPECT_EQ(csvOf(document),
            "table,title,layer1_dimension,layer1,row1_dimension,row1,column1_dimension,column1,"
            "text,number,notes\n"
            "1,T,,,D,a,,,0,0,\n"
            "2,U,E,b,,,F,c,5,5,\n");
}

TEST(CsvWriter, WritesADocumentWithoutTables) {
  EXPECT_EQ(csvOf(OmOutputTree()), "table,title,text,number,notes\n");
}

TEST(CsvWriter, WritesTheSampleDocument) {
  expectGolden("csv/sample.csv", csvOf(sampleDocument()));
}

TEST(CsvWriter, WritesTheHostileDocument) {
  expectGolden("csv/hostile.csv", csvOf(hostileDocument()));
}

}  // namespace
}  // namespace om::test
