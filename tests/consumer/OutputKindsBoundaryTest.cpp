// A program that uses the shared library as it is shipped: charts, models, interactive outputs and
// answer trees are filled, copied, found and refused across the boundary.

#include <gtest/gtest.h>

#include <backend/OMSException.h>
#include <external/cells/OmStringCell.h>
#include <output/OmAnswerTree.h>
#include <output/OmChart.h>
#include <output/OmInteractive.h>
#include <output/OmModel.h>
#include <output/OmOutputTree.h>
#include <output/OmOutputWalker.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace {

class Kinds final : public OmOutputWalker {
 public:
  std::vector<std::string> seen;

  void Visit(OmInteractive& part) override { seen.push_back("json " + part.getInteractiveJSON()); }
  void Visit(OmModel& part) override { seen.push_back("pmml " + part.GetPMML()); }
  void Visit(OmAnswerTree& part) override { seen.push_back("path " + part.GetPath()); }
  void Visit(OmChart& part) override { seen.push_back("image " + part.GetImageData()); }
  void Visit(OmTextBlock&) override {}
  void Visit(OmHeading&) override {}
  void Visit(OmPivotTable&) override {}
};

TEST(OutputKindsBoundary, AVisitorOfTheProgramFindsWhatWasStored) {
  const std::string codePage = "UTF-8";
  auto chart = std::make_unique<OmChart>(OmStringCell("a"), codePage, 1);
  auto model = std::make_unique<OmModel>(OmStringCell("b"));
  auto interactive = std::make_unique<OmInteractive>(OmStringCell("c"), codePage, 2);
  auto answers = std::make_unique<OmAnswerTree>(OmStringCell("d"), codePage);
  chart->SetImageStream("png", 3);
  model->SetPMML("<x/>", 4);
  interactive->setInteractiveJSON("{}", 2);
  answers->SetPath("/p", 2);

  OmOutputTree tree;
  tree.AppendLast(std::move(chart), 1);
  tree.AppendLast(std::move(model), 1);
  tree.AppendLast(std::move(interactive), 1);
  tree.AppendLast(std::move(answers), 1);
  Kinds kinds;
  EXPECT_TRUE(kinds.Walk(tree));
  EXPECT_EQ(kinds.seen, (std::vector<std::string>{"image png", "pmml <x/>", "json {}", "path /p"}));
}

TEST(OutputKindsBoundary, ALabelIsPutIntoTheCodePageOfTheChart) {
  const OmChart chart(OmStringCell("Z\u00FCrich"), "windows-1252", 1);
  EXPECT_EQ(std::string(chart.Label()), "Z\xFCrich");
}

TEST(OutputKindsBoundary, ACopyOutlivesTheChartThatATreeDeletes) {
  OmOutputTree tree;
  auto chart = std::make_unique<OmChart>(OmStringCell("label"), "", 1);
  chart->SetImageStream("png", 3);
  const OmChart copy(*chart);
  OmOutputTree::Node node = tree.AppendLast(std::move(chart), 1);
  tree.Prune(node);
  EXPECT_EQ(copy.GetImageData(), "png");
  EXPECT_EQ(std::string(copy.Label()), "label");
}

TEST(OutputKindsBoundary, MapInformationThatEndsTooEarlyIsRefused) {
  OmChart chart(OmStringCell("label"), "", 1);
  chart.SetMapInfo("\1\0\5", 3);
  std::string text = "untouched";
  EXPECT_THROW(chart.getMapInfo(text, text, text, text), OMSException);
  EXPECT_EQ(text, "untouched");
}

// A chart that the library has never seen, delivered to through the kind that it knows.
class Metered final : public OmChart {
 public:
  using OmChart::OmChart;
  void SetBinaryDataStream(const char* data, unsigned length) override {
    bytes += length;
    OmChart::SetBinaryDataStream(data, length);
  }
  unsigned long long bytes = 0;
};

TEST(OutputKindsBoundary, AChartOfTheProgramListensToItsDelivery) {
  Metered metered(OmStringCell("label"), "", 1);
  OmChart& chart = metered;
  chart.SetBinaryDataStream("abc", 3);
  EXPECT_EQ(metered.bytes, 3U);
  EXPECT_EQ(chart.viewXmlData(), "abc");
  const OmOutputPart& part = metered;
  EXPECT_NE(dynamic_cast<const OmChart*>(&part), nullptr);
  EXPECT_EQ(dynamic_cast<const OmModel*>(&part), nullptr);
}

}  // namespace
