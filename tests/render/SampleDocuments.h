// A document with a part of each kind, for the tests of the writers.

#ifndef OM_TESTS_RENDER_SAMPLEDOCUMENTS_H_
#define OM_TESTS_RENDER_SAMPLEDOCUMENTS_H_

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "external/cells/OmStringCell.h"
#include "output/OmAnswerTree.h"
#include "output/OmChart.h"
#include "output/OmHeading.h"
#include "output/OmInteractive.h"
#include "output/OmModel.h"
#include "output/OmOutputTree.h"
#include "output/OmPageTitle.h"
#include "output/OmProcedure.h"
#include "output/OmTextBlock.h"
#include "tests/render/SampleTables.h"

namespace om::test {

// One grey pixel.
inline std::string tinyPng() {
  static constexpr unsigned char kBytes[] = {
      0x89, 0x50, 0x4E, 0x47, 0x0D, 0x0A, 0x1A, 0x0A, 0x00, 0x00, 0x00, 0x0D, 0x49, 0x48,
      0x44, 0x52, 0x00, 0x00, 0x00, 0x01, 0x00, 0x00, 0x00, 0x01, 0x08, 0x00, 0x00, 0x00,
      0x00, 0x3A, 0x7E, 0x9B, 0x55, 0x00, 0x00, 0x00, 0x0A, 0x49, 0x44, 0x41, 0x54, 0x78,
      0x9C, 0x63, 0x68, 0x00, 0x00, 0x00, 0x82, 0x00, 0x81, 0x77, 0xCD, 0x72, 0xB6, 0x00,
      0x00, 0x00, 0x00, 0x49, 0x45, 0x4E, 0x44, 0xAE, 0x42, 0x60, 0x82};
  return {reinterpret_cast<const char*>(kBytes), sizeof kBytes};
}

inline std::unique_ptr<OmTextBlock> sampleBlock(const std::string& label,
                                                const std::vector<std::string>& lines,
                                                const std::string& codePage = "UTF-8") {
  auto block = std::make_unique<OmTextBlock>(OmStringCell(label), codePage);
  block->TextList().assign(lines.begin(), lines.end());
  return block;
}

inline std::unique_ptr<OmPageTitle> samplePageTitle(const std::vector<std::string>& lines) {
  auto title = std::make_unique<OmPageTitle>("UTF-8");
  title->TextList().assign(lines.begin(), lines.end());
  return title;
}

inline std::unique_ptr<OmChart> sampleChart(const std::string& label, std::string_view image) {
  auto chart = std::make_unique<OmChart>(OmStringCell(label), "UTF-8", 1);
  chart->SetXmlDescription("<chart/>", 8);
  chart->SetImageStream(image.data(), static_cast<unsigned>(image.size()));
  return chart;
}

inline std::unique_ptr<OmModel> sampleModel(const std::string& label, unsigned bytes) {
  auto model = std::make_unique<OmModel>(OmStringCell(label));
  model->SetPMML(std::string(bytes, 'm').data(), bytes);
  return model;
}

inline std::unique_ptr<OmInteractive> sampleInteractive(const std::string& label) {
  auto interactive = std::make_unique<OmInteractive>(OmStringCell(label), "UTF-8", 2);
  interactive->setInteractiveJSON("{}", 2);
  return interactive;
}

inline std::unique_ptr<OmAnswerTree> sampleAnswerTree(const std::string& label) {
  auto tree = std::make_unique<OmAnswerTree>(OmStringCell(label), "UTF-8");
  tree->SetUncompressedXML(std::string(2048, 't').data(), 2048);
  return tree;
}

inline std::unique_ptr<OmHeading> sampleHeading(const std::string& label) {
  return std::make_unique<OmHeading>(OmStringCell(label));
}

inline std::unique_ptr<OmProcedure> sampleProcedure(const std::string& label) {
  return std::make_unique<OmProcedure>(OmStringCell(label), "en", "UTF-8", "en_GB");
}

// Every kind of part, headings nested three deep, one of them with a footnote, and a part that is
// not visible.
inline OmOutputTree sampleDocument() {
  OmOutputTree tree;
  auto regions = sampleHeading("By region");
  regions->Label().Footnotes().push_back(0);
  regions->Footnotes().push_back(sampleNote("Regions as they were in 1912."));
  tree.AppendLast(samplePageTitle({"Penguins and passengers", "A sample"}), 1);
  tree.AppendLast(sampleProcedure("Crosstabs"), 1);
  tree.AppendLast(sampleBlock("Log", {"CROSSTABS", "  /TABLES = species BY island."}), 2);
  tree.AppendLast(flatTable(), 2);
  tree.AppendLast(std::move(regions), 2);
  tree.AppendLast(nestedTable(), 3);
  tree.AppendLast(sampleHeading("Details"), 3);
  tree.AppendLast(footnoteTable(), 4);
  tree.AppendLast(sampleBlock("Warning", {"Some weights were estimated."}), 4);
  auto hidden = sampleHeading("Not shown");
  hidden->Visible(false);
  tree.AppendLast(std::move(hidden), 1);
  tree.AppendLast(sampleBlock("Text", {"not shown either"}), 2);
  tree.AppendLast(sampleHeading("Objects"), 1);
  tree.AppendLast(sampleChart("Mass by species", tinyPng()), 2);
  tree.AppendLast(sampleChart("Without image", {}), 2);
  tree.AppendLast(sampleModel("Regression", 1'500'000), 2);
  tree.AppendLast(sampleInteractive("Map"), 2);
  tree.AppendLast(sampleAnswerTree("Tree of decisions"), 2);
  tree.AppendLast(sampleBlock("Too large to be kept", {}), 2);
  tree.AppendLast(columnlessTable(), 1);
  tree.AppendLast(emptyTable(), 1);
  return tree;
}

// Hostile texts wherever a document has a text.
inline OmOutputTree hostileDocument() {
  const std::vector<std::string>& texts = hostileTexts();
  OmOutputTree tree;
  for (const std::string& text : texts) {
    tree.AppendLast(sampleHeading(text), 1);
    tree.AppendLast(sampleBlock(text, {text, text}), 2);
  }
  tree.AppendLast(samplePageTitle(texts), 1);
  tree.AppendLast(sampleProcedure(texts[0]), 1);
  tree.AppendLast(sampleBlock("Log", texts, "windows-1252"), 2);
  tree.AppendLast(sampleChart(texts[5], tinyPng()), 2);
  tree.AppendLast(hostileTable(), 2);
  return tree;
}

}  // namespace om::test

#endif  // OM_TESTS_RENDER_SAMPLEDOCUMENTS_H_
