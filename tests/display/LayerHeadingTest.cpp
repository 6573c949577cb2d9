// The layer heading: how many layers there are, in which order, which one is current, and which are
// left out as empty.

#include <gtest/gtest.h>

#include <climits>

#include "tests/display/DisplayTable.h"

namespace om::test {
namespace {

// Two layer dimensions of 2 and 3 categories: 6 layers.
TableOwner sixLayers() {
  return tableOf({.dimensions = {"A(a0 a1)", "B(b0 b1 b2)"}, .layers = {0, 1}});
}

TEST(LayerHeading, KnowsItsTableAndItsFlag) {
  const TableOwner table = sixLayers();
  const OmDisplayLayerHeading all(*table, false);
  const OmDisplayLayerHeading skipping(*table, true);
  EXPECT_EQ(&all.Table(), table.get());
  EXPECT_FALSE(all.SkipEmpty());
  EXPECT_TRUE(skipping.SkipEmpty());
}

TEST(LayerHeading, HasNoCurrentLayerAtFirst) {
  const TableOwner table = sixLayers();
  OmDisplayLayerHeading layers(*table, false);
  EXPECT_EQ(layers.getLayer(), -1);
  EXPECT_EQ(layers.getCurrentCellIndex(), (Index{0, 0}));
  EXPECT_TRUE(layers.Nodes(0).empty());
  Index index{9};
  layers.Fill(index);
  EXPECT_EQ(index, (Index{9}));
}

TEST(LayerHeading, ATableWithoutLayerDimensionsHasOneLayer) {
  const TableOwner table = tableOf({.dimensions = {"A(a0 a1)"}, .rows = {0}});
  OmDisplayLayerHeading layers(*table, false);
  EXPECT_EQ(layers.NLayers(), 1u);
  EXPECT_EQ(layers.NDimensions(), 0);
  EXPECT_TRUE(layers.NextLayer());
  EXPECT_EQ(layers.getLayer(), 0);
  EXPECT_EQ(filled(layers), (Index{kUntouched}));
  EXPECT_FALSE(layers.NextLayer());
}

TEST(LayerHeading, HasALayerForEachCombinationOfCategories) {
  const TableOwner table = sixLayers();
  const OmDisplayLayerHeading layers(*table, false);
  EXPECT_EQ(layers.NLayers(), 6u);
  EXPECT_EQ(layers.NDimensions(), 2);
}

TEST(LayerHeading, TheFirstEntryOfTheAxisChangesFastest) {
  const TableOwner table = sixLayers();
  OmDisplayLayerHeading layers(*table, false);
  EXPECT_EQ(layersOf(layers), "0,0 1,0 0,1 1,1 0,2 1,2");
}

TEST(LayerHeading, TheOrderOfTheAxisCountsAndNotThatOfTheTable) {
  const TableOwner table = sixLayers();
  table->Layers().reverse();
  OmDisplayLayerHeading layers(*table, false);
  EXPECT_EQ(layersOf(layers), "0,0 0,1 0,2 1,0 1,1 1,2");
}

TEST(LayerHeading, HeadingPositionsAreTheAxisInReverse) {
  const TableOwner table = tableOf({.dimensions = {"A(a)", "B(b)", "C(c)"}, .layers = {2, 0, 1}});
  const OmDisplayLayerHeading layers(*table, false);
  EXPECT_EQ(layers.getDimensionIndex(0), 1);
  EXPECT_EQ(layers.getDimensionIndex(1), 0);
  EXPECT_EQ(layers.getDimensionIndex(2), 2);
  EXPECT_EQ(layers.NDimensions(), 3);
}

TEST(LayerHeading, LeavesTheAxisOfTheTableAsItIs) {
  const TableOwner table = sixLayers();
  const OmDisplayLayerHeading layers(*table, false);
  EXPECT_EQ(table->Layers()[0], 0);
  EXPECT_EQ(table->Layers()[1], 1);
}

TEST(LayerHeading, SwitchLayerSelectsALayer) {
  const TableOwner table = sixLayers();
  OmDisplayLayerHeading layers(*table, false);
  EXPECT_TRUE(layers.SwitchLayer(3));
  EXPECT_EQ(layers.getLayer(), 3);
  EXPECT_EQ(layers.getCurrentCellIndex(), (Index{1, 1}));
  EXPECT_TRUE(layers.SwitchLayer(2));
  EXPECT_EQ(layers.getCurrentCellIndex(), (Index{0, 1}));
}

TEST(LayerHeading, SwitchLayerToANumberOutOfRangeChangesNothing) {
  const TableOwner table = sixLayers();
  OmDisplayLayerHeading layers(*table, false);
  layers.SwitchLayer(5);
  for (const int wild : {6, 7, -2, INT_MAX, INT_MIN}) {
    EXPECT_FALSE(layers.SwitchLayer(wild)) << wild;
    EXPECT_EQ(layers.getLayer(), 5) << wild;
    EXPECT_EQ(layers.getCurrentCellIndex(), (Index{1, 2})) << wild;
  }
}

TEST(LayerHeading, SwitchLayerToMinusOneMakesNoneCurrentAndKeepsTheCellIndex) {
  const TableOwner table = sixLayers();
  OmDisplayLayerHeading layers(*table, false);
  layers.SwitchLayer(5);
  EXPECT_FALSE(layers.SwitchLayer(-1));
  EXPECT_EQ(layers.getLayer(), -1);
  EXPECT_EQ(layers.getCurrentCellIndex(), (Index{1, 2}));
  EXPECT_EQ(filled(layers), (Index{kUntouched, kUntouched}));
}

TEST(LayerHeading, NextLayerStopsAtTheLastLayer) {
  const TableOwner table = sixLayers();
  OmDisplayLayerHeading layers(*table, false);
  layers.SwitchLayer(4);
  EXPECT_TRUE(layers.NextLayer());
  EXPECT_FALSE(layers.NextLayer());
  EXPECT_FALSE(layers.NextLayer());
  EXPECT_EQ(layers.getLayer(), 5);
}

TEST(LayerHeading, NextLayerBeginsAgainWhenNoneIsCurrent) {
  const TableOwner table = sixLayers();
  OmDisplayLayerHeading layers(*table, false);
  layers.SwitchLayer(5);
  layers.SwitchLayer(-1);
  EXPECT_TRUE(layers.NextLayer());
  EXPECT_EQ(layers.getLayer(), 0);
  EXPECT_EQ(layers.getCurrentCellIndex(), (Index{0, 0}));
}

TEST(LayerHeading, LastLayerSelectsTheLastOne) {
  const TableOwner table = sixLayers();
  OmDisplayLayerHeading layers(*table, false);
  layers.LastLayer();
  EXPECT_EQ(layers.getLayer(), 5);
  EXPECT_EQ(layers.getCurrentCellIndex(), (Index{1, 2}));
}

TEST(LayerHeading, LastLayerMakesNoneCurrentWhenThereAreNone) {
  const TableOwner table = tableOf({.dimensions = {"A()"}, .layers = {0}});
  table->setLayerLoc(3);
  OmDisplayLayerHeading layers(*table, false);
  EXPECT_EQ(layers.NLayers(), 0u);
  layers.restoreLayer();
  layers.LastLayer();
  EXPECT_EQ(layers.getLayer(), -1);
  EXPECT_FALSE(layers.NextLayer());
  EXPECT_EQ(layers.getLayer(), -1);
}

TEST(LayerHeading, TheCurrentCellIndexIsZeroBesideTheLayers) {
  const TableOwner table =
      tableOf({.dimensions = {"R(r0=4 r1=5)", "L(l0=2 l1=7)"}, .rows = {0}, .layers = {1}});
  OmDisplayLayerHeading layers(*table, false);
  layers.SwitchLayer(1);
  EXPECT_EQ(layers.getCurrentCellIndex(), (Index{0, 7}));
}

TEST(LayerHeading, TheCurrentCellIndexIsACopy) {
  const TableOwner table = sixLayers();
  OmDisplayLayerHeading layers(*table, false);
  layers.getCurrentCellIndex()[0] = 5;
  EXPECT_EQ(layers.getCurrentCellIndex(), (Index{0, 0}));
}

// ---- Empty layers

TEST(LayerHeading, LayersWithoutCellsAreSkipped) {
  const TableOwner table = tableOf({.dimensions = {"R(r0 r1)", "C(c0 c1)", "L(l0 l1 l2)"},
                                    .rows = {0},
                                    .columns = {1},
                                    .layers = {2},
                                    .cells = {{0, 0, 0}, {1, 1, 2}}});
  OmDisplayLayerHeading layers(*table, true);
  EXPECT_EQ(layers.NLayers(), 2u);
  EXPECT_EQ(layersOf(layers), "0,0,0 0,0,2");
  EXPECT_EQ(layers.getLayer(), 1);
}

TEST(LayerHeading, LayersWithoutCellsStayWhenTheyAreNotSkipped) {
  const TableOwner table = tableOf(
      {.dimensions = {"R(r0 r1)", "L(l0 l1 l2)"}, .rows = {0}, .layers = {1}, .cells = {{0, 2}}});
  OmDisplayLayerHeading layers(*table, false);
  EXPECT_EQ(layersOf(layers), "0,0 0,1 0,2");
}

TEST(LayerHeading, TheNumberOfALayerIsItsRankAmongThoseWithCells) {
  // Positions (A fastest): 1 is (a1, b0), 4 is (a0, b2).
  const TableOwner table = tableOf({.dimensions = {"A(a0 a1)", "B(b0 b1 b2)", "R(r0 r1)"},
                                    .rows = {2},
                                    .layers = {0, 1},
                                    .cells = {{0, 2, 1}, {1, 0, 0}}});
  OmDisplayLayerHeading layers(*table, true);
  EXPECT_EQ(layers.NLayers(), 2u);
  EXPECT_TRUE(layers.SwitchLayer(1));
  EXPECT_EQ(layers.getLayer(), 1);
  EXPECT_EQ(filled(layers), (Index{0, 2, kUntouched}));
  EXPECT_FALSE(layers.SwitchLayer(2));
  EXPECT_TRUE(layers.SwitchLayer(0));
  EXPECT_EQ(filled(layers), (Index{1, 0, kUntouched}));
}

TEST(LayerHeading, LastLayerIsTheLastOneWithCells) {
  const TableOwner table = tableOf({.dimensions = {"R(r0 r1)", "L(l0 l1 l2)"},
                                    .rows = {0},
                                    .layers = {1},
                                    .cells = {{0, 0}, {1, 1}}});
  OmDisplayLayerHeading layers(*table, true);
  layers.LastLayer();
  EXPECT_EQ(layers.getLayer(), 1);
  EXPECT_EQ(layers.getCurrentCellIndex(), (Index{0, 1}));
}

TEST(LayerHeading, ATableWithoutCellsHasNoLayersWhenTheyAreSkipped) {
  const TableOwner table =
      tableOf({.dimensions = {"R(r0)", "L(l0 l1)"}, .rows = {0}, .layers = {1}});
  OmDisplayLayerHeading layers(*table, true);
  EXPECT_EQ(layers.NLayers(), 0u);
  EXPECT_FALSE(layers.NextLayer());
  layers.LastLayer();
  EXPECT_EQ(layers.getLayer(), -1);
}

TEST(LayerHeading, TheOneLayerOfATableWithoutLayerDimensionsIsSkippedWhenEmpty) {
  const TableOwner table = tableOf({.dimensions = {"R(r0 r1)"}, .rows = {0}});
  const OmDisplayLayerHeading empty(*table, true);
  EXPECT_EQ(empty.NLayers(), 0u);
  storeAt(*table, {{1}});
  const OmDisplayLayerHeading filledIn(*table, true);
  EXPECT_EQ(filledIn.NLayers(), 1u);
}

TEST(LayerHeading, LayersOfASparseTableAreFoundByItsCells) {
  // 300 places, so fewer than 3 cells make it sparse.
  const TableOwner table =
      tableOf({.dimensions = {flat("R", "r", 10), flat("C", "c", 10), "L(l0 l1 l2)"},
               .rows = {0},
               .columns = {1},
               .layers = {2},
               .cells = {{9, 9, 2}, {3, 4, 0}}});
  OmDisplayLayerHeading layers(*table, true);
  EXPECT_EQ(layersOf(layers), "0,0,0 0,0,2");
}

TEST(LayerHeading, NestedLayersOfASparseTableAreNumberedAscending) {
  // 2 x 3 x 50 = 300 places. Positions (A fastest): 3 is (a1, b1), 4 is (a0, b2).
  const TableOwner table = tableOf({.dimensions = {"A(a0 a1)", flat("R", "r", 50), "B(b0 b1 b2)"},
                                    .rows = {1},
                                    .layers = {0, 2},
                                    .cells = {{0, 7, 2}, {1, 8, 1}}});
  OmDisplayLayerHeading layers(*table, true);
  EXPECT_EQ(layersOf(layers), "1,0,1 0,0,2");
}

// ---- The table's stored layer

TEST(LayerHeading, RestoreLayerTakesTheStoredLayerOver) {
  const TableOwner table = sixLayers();
  table->setLayerLoc(4);
  const OmDisplayLayerHeading layers(*table, false);
  EXPECT_EQ(layers.restoreLayer(), 4);
  EXPECT_EQ(layers.getLayer(), 4);
  EXPECT_EQ(filled(layers), (Index{0, 2}));
  EXPECT_EQ(labelsOf(layers.Nodes(0)), "B b2");
}

TEST(LayerHeading, RestoreLayerLeavesTheCurrentCellIndexAsItWas) {
  const TableOwner table = sixLayers();
  table->setLayerLoc(4);
  OmDisplayLayerHeading layers(*table, false);
  layers.SwitchLayer(1);
  layers.restoreLayer();
  EXPECT_EQ(layers.getCurrentCellIndex(), (Index{1, 0}));
}

TEST(LayerHeading, SwitchingToTheRestoredLayerBringsTheCellIndexUpToDate) {
  const TableOwner table = sixLayers();
  table->setLayerLoc(4);
  OmDisplayLayerHeading layers(*table, false);
  EXPECT_TRUE(layers.SwitchLayer(layers.restoreLayer()));
  EXPECT_EQ(layers.getCurrentCellIndex(), (Index{0, 2}));
}

TEST(LayerHeading, RestoreLayerMakesNoneCurrentInATableThatStoresNone) {
  const TableOwner table = sixLayers();
  OmDisplayLayerHeading layers(*table, false);
  layers.SwitchLayer(3);
  EXPECT_EQ(layers.restoreLayer(), -1);
  EXPECT_EQ(layers.getLayer(), -1);
  EXPECT_EQ(layers.getCurrentCellIndex(), (Index{1, 1}));
}

TEST(LayerHeading, TheStoredLayerIsARankWhereEmptyLayersAreSkipped) {
  const TableOwner table = tableOf({.dimensions = {"R(r0 r1)", "L(l0 l1 l2)"},
                                    .rows = {0},
                                    .layers = {1},
                                    .cells = {{0, 0}, {1, 2}}});
  table->setLayerLoc(1);
  const OmDisplayLayerHeading layers(*table, true);
  layers.restoreLayer();
  EXPECT_EQ(filled(layers), (Index{kUntouched, 2}));
  EXPECT_EQ(labelsOf(layers.Nodes(0)), "L l2");
}

TEST(LayerHeading, NextLayerGoesOnFromTheRestoredLayer) {
  const TableOwner table = sixLayers();
  table->setLayerLoc(4);
  OmDisplayLayerHeading layers(*table, false);
  layers.restoreLayer();
  EXPECT_TRUE(layers.NextLayer());
  EXPECT_EQ(layers.getLayer(), 5);
  EXPECT_EQ(layers.getCurrentCellIndex(), (Index{1, 2}));
}

}  // namespace
}  // namespace om::test
