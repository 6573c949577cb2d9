// The layers of a table that the options ask for, the title over them and the caption under them.

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "render/TableOptions.h"
#include "tests/render/SampleTables.h"

namespace om::test {
namespace {

using render::Layers;
using render::LayerWalk;
using render::TableOptions;

// Layers "l0" to "l3", of which "l1" has no cells.
SampleTable fourLayers() {
  SampleTable table = sampleTable("Title");
  addSampleDimension(*table, "R", {"r0", "r1"});
  addSampleDimension(*table, "L", {"l0", "l1", "l2", "l3"});
  table->Rows().push_back(0);
  table->Layers().push_back(1);
  for (const int layer : {0, 2, 3}) table->Cell({0, layer}, OmStringCell("x"));
  return table;
}

std::string layersOf(OmPivotTable& table, const TableOptions& options) {
  LayerWalk walk(table, options);
  std::string text = std::to_string(walk.count()) + ":";
  while (walk.next()) {
    text += " " + std::string(*walk.view().layerLabels().at(0).category->Text());
  }
  return walk.next() ? "it goes on" : text;
}

TEST(LayerWalk, AllLayersComeInTheirOrderWithoutEmptyOnes) {
  EXPECT_EQ(layersOf(*fourLayers(), {}), "3: l0 l2 l3");
}

TEST(LayerWalk, EmptyLayersComeWhenTheyAreNotSkipped) {
  EXPECT_EQ(layersOf(*fourLayers(), {.skipEmptyLayers = false}), "4: l0 l1 l2 l3");
}

TEST(LayerWalk, OneLayerCountsAmongThoseThatAreNotSkipped) {
  EXPECT_EQ(layersOf(*fourLayers(), {.layers = Layers::ONE, .layer = 1}), "1: l2");
  EXPECT_EQ(layersOf(*fourLayers(), {.skipEmptyLayers = false, .layers = Layers::ONE, .layer = 1}),
            "1: l1");
}

TEST(LayerWalk, ALayerThatDoesNotExistIsNone) {
  for (const int layer : {-1, 3, 1000}) {
    EXPECT_EQ(layersOf(*fourLayers(), {.layers = Layers::ONE, .layer = layer}), "0:");
  }
}

TEST(LayerWalk, TheStoredLayerIsTheOneThatTheTableRemembers) {
  const SampleTable table = fourLayers();
  table->setLayerLoc(2);
  EXPECT_EQ(layersOf(*table, {.layers = Layers::STORED}), "1: l3");
}

TEST(LayerWalk, AStoredLayerThatIsNotThereIsTheFirst) {
  for (const int layer : {-1, 3, 1000}) {
    const SampleTable table = fourLayers();
    table->setLayerLoc(layer);
    EXPECT_EQ(layersOf(*table, {.layers = Layers::STORED}), "1: l0");
  }
}

TEST(LayerWalk, ATableWithoutLayerDimensionsHasOneLayer) {
  const SampleTable table = flatTable();
  for (const Layers layers : {Layers::ALL, Layers::STORED, Layers::ONE}) {
    LayerWalk walk(*table, {.layers = layers});
    EXPECT_EQ(walk.count(), 1U);
    EXPECT_TRUE(walk.next());
    EXPECT_EQ(walk.view().rowCount(), 3U);
    EXPECT_FALSE(walk.next());
  }
}

TEST(LayerWalk, ATableWithoutCellsHasNoLayers) {
  const SampleTable table = emptyTable();
  for (const Layers layers : {Layers::ALL, Layers::STORED, Layers::ONE}) {
    LayerWalk walk(*table, {.layers = layers});
    EXPECT_EQ(walk.count(), 0U);
    EXPECT_FALSE(walk.next());
  }
}

TEST(LayerWalk, ViewAndMarksFollowTheOptions) {
  const SampleTable table = footnoteTable();
  LayerWalk walk(*table, {.view = {.namesInCorner = false}, .marks = render::Marks::NUMBERS});
  ASSERT_TRUE(walk.next());
  EXPECT_FALSE(walk.view().options().namesInCorner);
  EXPECT_EQ(walk.marks().notes().at(0).mark, "1");
}

TEST(DocumentTableOptions, ATableOfItsOwnWaysIsShownByThem) {
  const SampleTable table = fourLayers();
  const SampleTable other = fourLayers();
  render::DocumentTableOptions options;
  options.layers = Layers::STORED;
  options.special[&*table].layers = Layers::ALL;
  EXPECT_EQ(options.of(*table).layers, Layers::ALL);
  EXPECT_EQ(options.of(*other).layers, Layers::STORED);
}

TEST(LayerWalk, TheTitleIsTheTableTitleOrElseTheLabel) {
  const SampleTable table = sampleTable("Label");
  EXPECT_EQ(std::string(render::titleOf(*table)), "Label");
  table->SetTableTitle(OmStringCell("Title"));
  EXPECT_EQ(std::string(render::titleOf(*table)), "Title");
}

TEST(LayerWalk, TheCaptionIsNoneWhereThereIsNoneOrItIsNotShown) {
  const SampleTable table = sampleTable("Label");
  EXPECT_EQ(render::captionOf(*table), nullptr);
  const OmStringCell caption("Caption");
  table->Caption(&caption);
  EXPECT_EQ(render::captionOf(*table), table->Caption());
  table->showCaption(false);
  EXPECT_EQ(render::captionOf(*table), nullptr);
}

// ---- What is said in the place of a body

TEST(LayerWalk, ALayerWithABodySaysNothing) {
  const SampleTable table = flatTable();
  LayerWalk walk(*table, {});
  ASSERT_TRUE(walk.next());
  EXPECT_EQ(walk.noBody(), "");
}

TEST(LayerWalk, ATableWithoutCellsSaysSoWhateverLayerIsAskedFor) {
  const SampleTable table = emptyTable();
  EXPECT_EQ(LayerWalk(*table, {}).noBody(), "(no cells)");
  EXPECT_EQ(LayerWalk(*table, {.layers = Layers::ONE, .layer = 3}).noBody(), "(no cells)");
}

TEST(LayerWalk, ALayerWithoutRowsSaysThatThereAreNoCells) {
  const SampleTable table = emptyTable();
  LayerWalk walk(*table, {.skipEmptyLayers = false});
  ASSERT_TRUE(walk.next());
  EXPECT_EQ(walk.noBody(), "(no cells)");
}

TEST(LayerWalk, ALayerThatDoesNotExistIsSaidToBeMissing) {
  const SampleTable table = fourLayers();
  EXPECT_EQ(LayerWalk(*table, {.layers = Layers::ONE, .layer = 3}).noBody(), "(no such layer)");
}

}  // namespace
}  // namespace om::test
