// What a walk through a document tells a writer.

#include "render/DocumentWalk.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "tests/render/SampleDocuments.h"

namespace om::test {
namespace {

using render::DocumentWalk;

// Writes down what it is told, a line each: the depth, what it is, its label.
class Recorder : public DocumentWalk {
 public:
  const std::string& lines() const { return lines_; }
  const std::vector<std::string>& textLines() const { return textLines_; }
  const std::vector<Object>& objects() const { return objects_; }
  static std::string textOfSize(std::uint64_t bytes) {
    return sizeOf({Kind::MODEL, "", bytes, {}, {}});
  }
  void throwAtObjects() { throws_ = true; }
  void stopAfter(int parts) { left_ = parts; }

 protected:
  bool isDone() const override { return left_ == 0; }
  void beginHeading(const Heading& heading, int depth) override {
    add(depth, nameOf(heading.kind), heading.label);
    EXPECT_EQ(heading.kind == Kind::PROCEDURE, heading.procedure == &heading.part);
    EXPECT_EQ(heading.kind == Kind::HEADING, heading.procedure == nullptr);
  }
  void endHeading(int depth) override { lines_ += std::to_string(depth) + " end\n"; }
  void table(OmPivotTable& table, int depth) override {
    add(depth, nameOf(Kind::TABLE), std::string(table.Label()));
  }
  void text(const Text& text, int depth) override {
    add(depth, nameOf(text.kind), text.label);
    textLines_ = linesOf(text);
  }
  void object(const Object& object, int depth) override {
    if (throws_) throw std::runtime_error("no more");
    add(depth, nameOf(object.kind), object.label);
    objects_.push_back(object);
  }

 private:
  void add(int depth, const char* name, const std::string& label) {
    lines_ += std::to_string(depth) + " " + name + ": " + label + "\n";
    --left_;
  }

  std::string lines_;
  std::vector<std::string> textLines_;
  std::vector<Object> objects_;
  bool throws_ = false;
  int left_ = -1;  // how many parts are still to be told; negative: all
};

std::string linesOf(const OmOutputTree& tree) {
  Recorder recorder;
  recorder.walk(tree);
  return recorder.lines();
}

OmOutputTree treeOf(std::unique_ptr<OmOutputPart> part) {
  OmOutputTree tree;
  tree.AppendLast(std::move(part), 1);
  return tree;
}

TEST(DocumentWalk, EveryVisiblePartIsToldInOrderWithTheEndsOfHeadings) {
  EXPECT_EQ(linesOf(sampleDocument()),
            "1 Page title: \n"
            "1 Procedure: Crosstabs\n"
            "2 Log: Log\n"
            "2 Table: Penguins by species\n"
            "2 Heading: By region\n"
            "3 Table: Survival by region, sex and class\n"
            "3 Heading: Details\n"
            "4 Table: Weights\n"
            "4 Text: Warning\n"
            "3 end\n"
            "2 end\n"
            "1 end\n"
            "1 Heading: Objects\n"
            "2 Chart: Mass by species\n"
            "2 Chart: Without image\n"
            "2 Model: Regression\n"
            "2 Interactive output: Map\n"
            "2 Answer tree: Tree of decisions\n"
            "2 Text: Too large to be kept\n"
            "1 end\n"
            "1 Table: Notes\n"
            "1 Table: Nothing was counted\n");
}

TEST(DocumentWalk, AnEmptyDocumentTellsNothing) { EXPECT_EQ(linesOf(OmOutputTree()), ""); }

TEST(DocumentWalk, APartThatIsNotVisibleHidesWhatIsBelowIt) {
  OmOutputTree tree;
  auto hidden = sampleHeading("hidden");
  hidden->Visible(false);
  tree.AppendLast(std::move(hidden), 1);
  tree.AppendLast(sampleHeading("below"), 2);
  auto block = sampleBlock("hidden block", {});
  block->Visible(false);
  tree.AppendLast(std::move(block), 1);
  tree.AppendLast(sampleHeading("shown"), 1);
  EXPECT_EQ(linesOf(tree), "1 Heading: shown\n1 end\n");
}

TEST(DocumentWalk, ARootThatIsNotVisibleHidesTheDocument) {
  OmOutputTree tree = treeOf(sampleHeading("below"));
  tree.Root().Item()->Visible(false);
  EXPECT_EQ(linesOf(tree), "");
}

TEST(DocumentWalk, ATableThatIsNotToBeShownHidesNothingButItself) {
  SampleTable table = flatTable();
  table->Show(false);
  OmOutputTree tree = treeOf(std::move(table));
  tree.AppendLast(sampleHeading("below"), 2);
  EXPECT_EQ(linesOf(tree), "2 Heading: below\n2 end\n");
}

TEST(DocumentWalk, APlaceWithoutAPartIsPassedOverAndWhatIsBelowItTold) {
  OmOutputTree tree;
  tree.AppendLast(nullptr, 1);
  tree.AppendLast(sampleHeading("below"), 2);
  EXPECT_EQ(linesOf(tree), "2 Heading: below\n2 end\n");
}

TEST(DocumentWalk, PartsBelowOtherKindsAreToldAtTheirDepth) {
  OmOutputTree tree = treeOf(sampleBlock("Log", {}));
  tree.AppendLast(sampleBlock("Text", {}), 2);
  EXPECT_EQ(linesOf(tree), "1 Log: Log\n2 Text: Text\n");
}

TEST(DocumentWalk, WhatTheWriterThrowsIsPassedOn) {
  const OmOutputTree tree = sampleDocument();
  Recorder recorder;
  recorder.throwAtObjects();
  EXPECT_THROW(recorder.walk(tree), std::runtime_error);
  EXPECT_TRUE(recorder.lines().ends_with("1 Heading: Objects\n"));
}

TEST(DocumentWalk, AWriterThatIsDoneIsToldNothingMore) {
  const OmOutputTree tree = sampleDocument();
  Recorder recorder;
  recorder.stopAfter(3);
  recorder.walk(tree);
  EXPECT_EQ(recorder.lines(), "1 Page title: \n1 Procedure: Crosstabs\n2 Log: Log\n");
  Recorder before;
  before.stopAfter(0);
  before.walk(tree);
  EXPECT_EQ(before.lines(), "");
}

// A writer of images, for one, need not care for the other parts.
TEST(DocumentWalk, PartsThatAWriterDoesNotAskForArePassedOver) {
  class Images : public DocumentWalk {
   public:
    int count = 0;

   private:
    void object(const Object& object, int) override { count += object.image.empty() ? 0 : 1; }
  };
  Images images;
  images.walk(sampleDocument());
  EXPECT_EQ(images.count, 1);
}

TEST(DocumentWalk, AWalkCanBeRepeated) {
  const OmOutputTree tree = treeOf(sampleHeading("only"));
  Recorder recorder;
  recorder.walk(tree);
  recorder.walk(tree);
  EXPECT_EQ(recorder.lines(), "1 Heading: only\n1 end\n1 Heading: only\n1 end\n");
}

// ---- Texts

std::vector<std::string> textOf(std::unique_ptr<OmOutputPart> block) {
  const OmOutputTree tree = treeOf(std::move(block));
  Recorder recorder;
  recorder.walk(tree);
  return recorder.textLines();
}

TEST(DocumentWalk, LinesAreConvertedFromTheCodePageOfTheirBlock) {
  EXPECT_EQ(textOf(sampleBlock("Log", {"plain", "na\xEFve"}, "windows-1252")),
            (std::vector<std::string>{"plain", "na\xC3\xAFve"}));
}

TEST(DocumentWalk, LinesThatAreUtf8AlreadyStayWhateverTheCodePage) {
  EXPECT_EQ(textOf(sampleBlock("Log", {"na\xC3\xAFve"}, "windows-1252")),
            (std::vector<std::string>{"na\xC3\xAFve"}));
}

TEST(DocumentWalk, BytesThatNothingCanReadAreReplaced) {
  EXPECT_EQ(textOf(sampleBlock("Log", {"a\xFFz"}, "UTF-8")),
            (std::vector<std::string>{"a\xEF\xBF\xBDz"}));
  EXPECT_EQ(textOf(samplePageTitle({"a\xFFz"})), (std::vector<std::string>{"a\xEF\xBF\xBDz"}));
}

TEST(DocumentWalk, LabelsAreConvertedFromTheCodePageOfTheirPart) {
  OmOutputTree tree;
  const OmStringCell naive("na\xEFve");
  tree.AppendLast(std::make_unique<OmProcedure>(naive, "fr", "windows-1252", "fr_FR"), 1);
  tree.AppendLast(sampleBlock("na\xEFve", {}, "windows-1252"), 2);
  EXPECT_EQ(linesOf(tree), "1 Procedure: na\xC3\xAFve\n2 Text: na\xC3\xAFve\n1 end\n");
}

TEST(DocumentWalk, ALabelWithoutACodePageIsMadeUtf8) {
  EXPECT_EQ(linesOf(treeOf(sampleHeading("a\xFF"))), "1 Heading: a\xEF\xBF\xBD\n1 end\n");
}

// ---- Objects

// Size, type and length of the image of a chart with this image.
std::string chartWith(const std::string& image) {
  const OmOutputTree tree = treeOf(sampleChart("Chart", image));
  Recorder recorder;
  recorder.walk(tree);
  const auto& chart = recorder.objects().at(0);
  return std::to_string(chart.bytes) + " " + std::string(chart.imageType) + " " +
         std::to_string(chart.image.size());
}

TEST(DocumentWalk, TheTypeOfAnImageIsToldByItsFirstBytes) {
  // The description of a sample chart has 8 bytes.
  EXPECT_EQ(chartWith(tinyPng()), "75 image/png 67");
  EXPECT_EQ(chartWith("\xFF\xD8\xFF\xE0"), "12 image/jpeg 4");
  EXPECT_EQ(chartWith("GIF87a"), "14 image/gif 6");
  EXPECT_EQ(chartWith("GIF89a"), "14 image/gif 6");
  EXPECT_EQ(chartWith("RIFF1234WEBPVP8 "), "24 image/webp 16");
  EXPECT_EQ(chartWith("BM1234"), "14 image/bmp 6");
  EXPECT_EQ(chartWith("<svg/>"), "14 image/svg+xml 6");
  EXPECT_EQ(chartWith("<?xml?><svg/>"), "21 image/svg+xml 13");
}

TEST(DocumentWalk, AnImageOfAnotherKindHasNoType) {
  EXPECT_EQ(chartWith("RIFF1234WAVE"), "20  12");
  EXPECT_EQ(chartWith("<?xml?><html/>"), "22  14");
  EXPECT_EQ(chartWith("PNG"), "11  3");
  EXPECT_EQ(chartWith(""), "8  0");
}

TEST(DocumentWalk, TheSizeOfAnObjectIsThatOfAllItHolds) {
  auto chart = sampleChart("Chart", "12345");
  chart->SetBinaryDataStream("123", 3);
  chart->addCSVFileName("name", 4);
  chart->addCSVFileContent("12", 2);
  chart->addGeoJSONFileContent("1", 1);
  chart->SetViZJSON("{}", 2);
  chart->setVizJSONTemplate("[]", 2);
  auto interactive = sampleInteractive("Map");
  interactive->addGeoJSONFileContent("123", 3);
  OmOutputTree tree;
  tree.AppendLast(std::move(chart), 1);
  tree.AppendLast(std::move(interactive), 1);
  tree.AppendLast(sampleModel("Model", 7), 1);
  tree.AppendLast(sampleAnswerTree("Tree"), 1);
  Recorder recorder;
  recorder.walk(tree);
  std::vector<std::uint64_t> sizes;
  for (const auto& object : recorder.objects()) sizes.push_back(object.bytes);
  EXPECT_EQ(sizes, (std::vector<std::uint64_t>{8 + 5 + 3 + 2 + 1 + 2 + 2, 2 + 3, 7, 2048}));
}

TEST(DocumentWalk, ASizeIsToldInTheLargestUnitOfWhichItHasOne) {
  for (const auto& [bytes, size] : std::vector<std::pair<std::uint64_t, std::string>>{
           {0, "0 bytes"},
           {1, "1 byte"},
           {1023, "1023 bytes"},
           {1024, "1.0 KiB"},
           {1'500'000, "1.4 MiB"},        // 1.43
           {1024 * 1024 - 1, "1.0 MiB"},  // not 1024.0 KiB
           {std::uint64_t(1) << 40, "1.0 TiB"},
           {~std::uint64_t(0), "16.0 EiB"}}) {
    EXPECT_EQ(Recorder::textOfSize(bytes), size);
  }
}

TEST(DocumentWalk, TheLabelOfAnObjectIsUtf8) {
  auto model = sampleModel("a\xFF", 1);
  auto chart = std::make_unique<OmChart>(OmStringCell("na\xC3\xAFve"), "windows-1252", 1);
  OmOutputTree tree;
  tree.AppendLast(std::move(model), 1);
  tree.AppendLast(std::move(chart), 1);  // its label is one of the code page from now on
  EXPECT_EQ(linesOf(tree), "1 Model: a\xEF\xBF\xBD\n1 Chart: na\xC3\xAFve\n");
}

}  // namespace
}  // namespace om::test
