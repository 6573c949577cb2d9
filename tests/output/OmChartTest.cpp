// Charts: what they are made with, the fields that are replaced, and the end of delivery.

#include "output/OmChart.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <limits>
#include <string>
#include <type_traits>

#include "external/cells/OmStringCell.h"
#include "output/internal/ChartRecord.h"
#include "tests/support/Allocations.h"

namespace om::test {
namespace {

class ANewChart : public testing::Test {
 protected:
  OmChart chart{OmStringCell("label"), "windows-1252", 7};
};

// Two 32-bit numbers as they stand in memory.
std::string numbers(std::int32_t first, std::int32_t second) {
  const std::int32_t values[] = {first, second};
  std::string bytes(sizeof(values), '\0');
  std::memcpy(bytes.data(), values, sizeof(values));
  return bytes;
}

TEST_F(ANewChart, HasItsCodePageAndItsId) {
  EXPECT_EQ(chart.LocaleCodePage(), "windows-1252");
  EXPECT_EQ(chart.getChartId(), 7);
}

TEST_F(ANewChart, HasTheDefaults) {
  EXPECT_EQ(chart.getOptions(), "");
  EXPECT_EQ(chart.GetEditor(), 1);
  EXPECT_EQ(chart.GetChartSubType(), 0);
  EXPECT_EQ(internal::PartRecords::of(chart).xmlUncompressedLength, 0U);
}

TEST_F(ANewChart, IsNotEditableBeforeDone) { EXPECT_EQ(chart.GetEditable(), 0); }

TEST(OmChart, KeepsACodePageThatNobodyKnowsAndAnEmptyOne) {
  EXPECT_EQ(OmChart(OmStringCell("label"), "no-such-code-page", 1).LocaleCodePage(),
            "no-such-code-page");
  EXPECT_EQ(OmChart(OmStringCell("label"), "", 1).LocaleCodePage(), "");
}

TEST(OmChart, KeepsACopyOfTheCodePage) {
  std::string codePage = "no code page, but a long name";
  const OmChart chart(OmStringCell("label"), codePage, 1);
  codePage = "another one";
  EXPECT_EQ(chart.LocaleCodePage(), "no code page, but a long name");
}

TEST(OmChart, KeepsIdsOf64Bits) {
  EXPECT_EQ(OmChart(OmStringCell("label"), "", std::numeric_limits<long long>::min()).getChartId(),
            std::numeric_limits<long long>::min());
  EXPECT_EQ(OmChart(OmStringCell("label"), "", std::numeric_limits<long long>::max()).getChartId(),
            std::numeric_limits<long long>::max());
  EXPECT_EQ(sizeof(long long), 8U);
}

TEST(OmChart, HasEnumerationsOf32Bits) {
  EXPECT_TRUE((std::is_same_v<std::underlying_type_t<OmChart::EDITABLE>, std::int32_t>));
  EXPECT_TRUE((std::is_same_v<std::underlying_type_t<OmChart::EDITOR>, std::int32_t>));
  EXPECT_TRUE((std::is_same_v<std::underlying_type_t<ChartXMLContentSubType>, std::int32_t>));
}

TEST_F(ANewChart, TakesEditableAndEditorFromDone) {
  chart.Done(numbers(0, 2).data());
  EXPECT_EQ(chart.GetEditable(), 0);
  EXPECT_EQ(chart.GetEditor(), 2);
}

TEST_F(ANewChart, TakesAnyValuesFromDone) {
  chart.Done(numbers(-1, std::numeric_limits<std::int32_t>::min()).data());
  EXPECT_EQ(chart.GetEditable(), -1);
  EXPECT_EQ(chart.GetEditor(), std::numeric_limits<std::int32_t>::min());
}

TEST_F(ANewChart, TakesTheValuesOfTheLastDone) {
  chart.Done(numbers(1, 2).data());
  chart.Done(numbers(3, 4).data());
  EXPECT_EQ(chart.GetEditable(), 3);
  EXPECT_EQ(chart.GetEditor(), 4);
}

TEST_F(ANewChart, NeedsNoAlignmentForDone) {
  for (std::size_t shift = 0; shift < 4; ++shift) {
    const std::string bytes = std::string(shift, 'x') + numbers(5, 6);
    chart.Done(bytes.data() + shift);
    EXPECT_EQ(chart.GetEditable(), 5) << shift;
    EXPECT_EQ(chart.GetEditor(), 6) << shift;
  }
}

TEST_F(ANewChart, CanBeDeliveredToAfterDone) {
  chart.Done(numbers(1, 1).data());
  chart.SetImageStream("abc", 3);
  EXPECT_EQ(chart.GetImageData(), "abc");
}

TEST_F(ANewChart, KeepsTheSubType) {
  chart.SetImageSubType(static_cast<ChartXMLContentSubType>(3));
  EXPECT_EQ(chart.GetChartSubType(), 3);
  chart.SetImageSubType(static_cast<ChartXMLContentSubType>(-1));
  EXPECT_EQ(chart.GetChartSubType(), -1);
}

TEST_F(ANewChart, KeepsTheLengthOfTheUncompressedXml) {
  chart.SetXmlUncompressedLength(100);
  chart.SetXmlUncompressedLength(4'000'000'000U);
  EXPECT_EQ(internal::PartRecords::of(chart).xmlUncompressedLength, 4'000'000'000U);
  EXPECT_EQ(chart.GetXmlDescription(), "");
}

TEST_F(ANewChart, ReplacesItsOptions) {
  chart.setOptions("first options");
  chart.setOptions("second");
  EXPECT_EQ(chart.getOptions(), "second");
  chart.setOptions("");
  EXPECT_EQ(chart.getOptions(), "");
}

TEST_F(ANewChart, KeepsItsOptionsWhenTheyReplaceThemselves) {
  chart.setOptions("some options with a long text");
  chart.setOptions(chart.getOptions());
  EXPECT_EQ(chart.getOptions(), "some options with a long text");
}

TEST(OmChart, KeepsItsOptionsWhenOthersCannotBeCopied) {
  const std::string options(100, 'x');
  const std::size_t failures = failEveryAllocation([&](FailurePoint& point) {
    OmChart chart(OmStringCell("label"), "", 1);
    chart.setOptions("former");
    const bool completed = point.during([&] { chart.setOptions(options); });
    EXPECT_EQ(completed, !point.failed());
    EXPECT_EQ(chart.getOptions(), completed ? options : "former");
  });
  EXPECT_EQ(failures, 1U);
}

TEST_F(ANewChart, LosesOnlyItsXmlDataWhenDataIsDeleted) {
  chart.SetXmlDescription("description", 11);
  chart.SetXmlUncompressedLength(100);
  chart.SetBinaryDataStream("data", 4);
  chart.SetImageStream("image", 5);
  chart.SetViZJSON("json", 4);
  chart.setVizJSONTemplate("template", 8);
  chart.SetMapInfo("map", 3);
  chart.addCSVFileName("c", 1);
  chart.addCSVFileContent("csv", 3);
  chart.addGeoJSONFileName("g", 1);
  chart.addGeoJSONFileContent("geo", 3);
  chart.setOptions("options");
  chart.setGraphServiceOptions("service", 7);
  chart.setGraphServiceVariables("variables", 9);
  chart.SetImageSubType(static_cast<ChartXMLContentSubType>(3));
  chart.Done(numbers(1, 2).data());

  chart.deleteData();
  EXPECT_EQ(chart.GetXmlData(), "");
  EXPECT_EQ(chart.GetXmlDescription(), "description");
  EXPECT_EQ(internal::PartRecords::of(chart).xmlUncompressedLength, 100U);
  EXPECT_EQ(chart.GetImageData(), "image");
  EXPECT_EQ(chart.GetViZJSONData(), "json");
  EXPECT_EQ(chart.getVizJSONTemplate(), "template");
  EXPECT_EQ(chart.viewMapInfoBuffer(), "map");
  EXPECT_EQ(chart.getCSVFileNames()[0] + chart.getCSVFiles()[0], "ccsv");
  EXPECT_EQ(chart.getGeoJSONFileNames()[0] + chart.getGeoJSONContent()[0], "ggeo");
  EXPECT_EQ(chart.getOptions(), "options");
  EXPECT_EQ(chart.getGraphServiceOptions(), "service");
  EXPECT_EQ(chart.getGraphServiceVariables(), "variables");
  EXPECT_EQ(chart.GetChartSubType(), 3);
  EXPECT_EQ(chart.GetEditable(), 1);
  EXPECT_EQ(chart.GetEditor(), 2);
  EXPECT_EQ(chart.LocaleCodePage(), "windows-1252");
  EXPECT_EQ(chart.getChartId(), 7);
  EXPECT_EQ(std::string(chart.Label()), "label");
}

TEST_F(ANewChart, KeepsTheRoomOfDataThatIsDeleted) {
  const std::string data(1000, 'x');
  chart.SetBinaryDataStream(data.data(), 1000);
  const char* const place = chart.viewXmlData().data();
  const std::size_t blocks = liveNewBlocks();
  chart.deleteData();
  EXPECT_EQ(liveNewBlocks(), blocks);
  chart.SetBinaryDataStream("more", 4);
  EXPECT_EQ(chart.viewXmlData().data(), place);
  EXPECT_EQ(chart.GetXmlData(), "more");
}

TEST_F(ANewChart, LetsAKindOfTheProgramListenToItsDelivery) {
  class Listening : public OmChart {
   public:
    using OmChart::OmChart;
    void SetImageStream(const char* data, unsigned length) override {
      ++pieces;
      OmChart::SetImageStream(data, length);
    }
    int pieces = 0;
  };
  Listening listening(OmStringCell("label"), "", 1);
  OmChart& base = listening;
  base.SetImageStream("a", 1);
  EXPECT_EQ(listening.pieces, 1);
  EXPECT_EQ(base.GetImageData(), "a");
}

}  // namespace
}  // namespace om::test
