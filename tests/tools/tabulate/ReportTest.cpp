// The document around a table.

#include "tools/tabulate/Report.h"

#include <gtest/gtest.h>

#include "output/OmOutputWalker.h"
#include "output/OmPageTitle.h"
#include "output/OmProcedure.h"
#include "output/OmTextBlock.h"
#include "tests/tools/tabulate/Tabulated.h"

namespace om::test {
namespace {

using tabulate::Report;
using tabulate::TableRequest;

// One line for each part, indented by its level.
class Outline : public OmOutputWalker {
 public:
  using OmOutputPart::Visitor::Visit;
  void Visit(OmInteractive&) override {}
  void Visit(OmModel&) override {}
  void Visit(OmAnswerTree&) override {}
  void Visit(OmChart&) override {}
  void Visit(OmHeading& part) override { add("heading", part); }
  void Visit(OmProcedure& part) override { add("procedure", part, {part.Command()}); }
  void Visit(OmTextBlock& part) override { add("text", part, part.TextList()); }
  void Visit(OmPageTitle& part) override { add("page title", part, part.TextList()); }
  void Visit(OmPivotTable& part) override { add("table", part); }
  void Leave(OmOutputPart*, int) override { --level_; }

  std::string text;

 protected:
  void Enter(OmOutputPart* part, int level) override {
    level_ = level + 1;
    OmOutputWalker::Enter(part, level);
  }

 private:
  void add(const char* kind, const OmOutputPart& part, const std::list<std::string>& lines = {}) {
    text += std::string(static_cast<std::size_t>(level_ - 1), ' ') + kind + " \"" +
            std::string(part.Label()) + "\"";
    for (const std::string& line : lines) text += " | " + line;
    text += '\n';
  }

  int level_ = 0;
};

std::string outlineOf(const Report& report) {
  Outline outline;
  outline.Walk(report.document());
  return outline.text;
}

const std::string kCsv = "a\nx\ny\nx\n";

TEST(Report, HoldsCommandTitleSummaryAndTable) {
  Report report;
  TableRequest request = ask({"a"});
  request.data = "d.csv";
  const OmPivotTable* const table =
      report.add(request, countText(kCsv, request), {"tabulate d.csv --rows a"});
  ASSERT_NE(nullptr, table);
  EXPECT_EQ((Shown{{"x", "2"}, {"y", "1"}}), shownCells(*table));
  EXPECT_EQ(
      "heading \"Output\"\n"
      " procedure \"Tabulate\" | tabulate d.csv --rows a\n"
      "  text \"Log\" | tabulate d.csv --rows a\n"
      "  page title \"\" | a\n"
      "  table \"Data summary\"\n"
      "  table \"a\"\n",
      outlineOf(report));
}

TEST(Report, TakesSeveralTables) {
  Report report;
  for (const char* const title : {"First", "Second"}) {
    TableRequest request = ask({"a"});
    request.title = title;
    report.add(request, countText(kCsv, request), {"tabulate run j.json", title});
  }
  EXPECT_EQ(
      "heading \"Output\"\n"
      " procedure \"Tabulate\" | tabulate run j.json\n"
      "  text \"Log\" | tabulate run j.json | First\n"
      "  page title \"\" | First\n"
      "  table \"Data summary\"\n"
      "  table \"First\"\n"
      " procedure \"Tabulate\" | tabulate run j.json\n"
      "  text \"Log\" | tabulate run j.json | Second\n"
      "  page title \"\" | Second\n"
      "  table \"Data summary\"\n"
      "  table \"Second\"\n",
      outlineOf(report));
}

TEST(Report, PutsAMessageInThePlaceOfATableWithTooManyCells) {
  Report report;
  TableRequest request = ask({"a"});
  request.maxCells = 1;
  EXPECT_EQ(nullptr, report.add(request, countText(kCsv, request), {"tabulate"}));
  EXPECT_EQ(
      "heading \"Output\"\n"
      " procedure \"Tabulate\" | tabulate\n"
      "  text \"Log\" | tabulate\n"
      "  page title \"\" | a\n"
      "  table \"Data summary\"\n"
      "  text \"a\" | The table was dropped: it has more than 1 cells, which is the limit.\n",
      outlineOf(report));
}

// The summary of what was counted.
class Summary : public Outline {
 public:
  using Outline::Visit;
  void Visit(OmPivotTable& part) override {
    if (std::string(part.Label()) != "Data summary") return;
    cells = shownCells(part);
    caption = std::string(*part.Caption());
    findings = part.validate().size();
  }
  Shown cells;
  std::string caption;
  std::size_t findings = 1;
};

Summary summaryOf(const std::string& csv, const TableRequest& request) {
  Report report;
  report.add(request, countText(csv, request), {"tabulate"});
  Summary summary;
  summary.Walk(report.document());
  return summary;
}

TEST(DataSummary, TellsRecordsReadUsedAndLeftOut) {
  TableRequest request = ask({"a"});
  request.data = "d.csv";
  const Summary summary = summaryOf("a,b\nx,1\n,1\n,2\nx,3\n", request);
  EXPECT_EQ((Shown{{"Read|N", "4"},
                   {"Read|Percent", "100.0%"},
                   {"Used|N", "2"},
                   {"Used|Percent", "50.0%"},
                   {"Value missing|N", "2"},
                   {"Value missing|Percent", "50.0%"}}),
            summary.cells);
  EXPECT_EQ("Data: d.csv", summary.caption);
  EXPECT_EQ(0U, summary.findings);
}

TEST(DataSummary, TellsMissingWeightsWhereThereAreWeights) {
  TableRequest request = ask({"a"});
  request.data = "-";
  request.weight = "w";
  const Summary summary = summaryOf("a,w\nx,\n", request);
  EXPECT_EQ("1", summary.cells.at("Weight missing|N"));
  EXPECT_EQ("Data: standard input", summary.caption);
}

TEST(DataSummary, OfNoRecordsHasNoPercentages) {
  const Summary summary = summaryOf("a\n", ask({"a"}));
  EXPECT_EQ("0", summary.cells.at("Read|N"));
  EXPECT_EQ(".", summary.cells.at("Used|Percent"));
}

}  // namespace
}  // namespace om::test
