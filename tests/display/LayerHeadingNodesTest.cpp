// The labels of the current layer: which nodes of a category's path are shown, which stand as
// nulls, and the whole path as it is.

#include <gtest/gtest.h>

#include <string>

#include "tests/display/DisplayTable.h"

namespace om::test {
namespace {

// The labels of one layer of a table whose only dimension is on the layers.
std::string nodesOf(const std::string& dimension, int layer = 0) {
  const TableOwner table = tableOf({.dimensions = {dimension}, .layers = {0}});
  OmDisplayLayerHeading layers(*table, false);
  EXPECT_TRUE(layers.SwitchLayer(layer));
  return labelsOf(layers.Nodes(0));
}

int widthOf(const std::string& dimension) {
  const TableOwner table = tableOf({.dimensions = {dimension}, .layers = {0}});
  return OmDisplayLayerHeading(*table, false).VisibleWidth(0);
}

// ---- Nodes

TEST(LayerHeadingNodes, LeadFromTheRootDownToTheCategory) {
  EXPECT_EQ(nodesOf("D(G(H(a)))"), "D G H a");
}

TEST(LayerHeadingNodes, AreThoseOfTheCurrentLayersCategory) {
  EXPECT_EQ(nodesOf("D(a G(b c) d)", 0), "D a");
  EXPECT_EQ(nodesOf("D(a G(b c) d)", 1), "D G b");
  EXPECT_EQ(nodesOf("D(a G(b c) d)", 2), "D G c");
  EXPECT_EQ(nodesOf("D(a G(b c) d)", 3), "D d");
}

TEST(LayerHeadingNodes, EachPositionHasThoseOfItsDimension) {
  const TableOwner table = tableOf({.dimensions = {"A(a0 a1)", "B(b0 b1 b2)"}, .layers = {0, 1}});
  OmDisplayLayerHeading layers(*table, false);
  layers.SwitchLayer(3);
  EXPECT_EQ(labelsOf(layers.Nodes(0)), "B b1");
  EXPECT_EQ(labelsOf(layers.Nodes(1)), "A a1");
}

TEST(LayerHeadingNodes, AHiddenNodeStandsAsANull) {
  EXPECT_EQ(nodesOf("D(~G(a))"), "D - a");
  EXPECT_EQ(nodesOf("~D(G(a))"), "- G a");
  EXPECT_EQ(nodesOf("D(G(~a))"), "D G -");
  EXPECT_EQ(nodesOf("~D(~G(~a))"), "- - -");
}

TEST(LayerHeadingNodes, EndInFrontOfAGroupWithHiddenLabels) {
  EXPECT_EQ(nodesOf("D(!G(a))"), "D");
  EXPECT_EQ(nodesOf("D(G(!H(a)))"), "D G");
  EXPECT_EQ(nodesOf("!D(a)"), "");
}

TEST(LayerHeadingNodes, EndInFrontOfTheTopmostGroupWithHiddenLabels) {
  EXPECT_EQ(nodesOf("D(!G(!H(a)))"), "D");
  EXPECT_EQ(nodesOf("D(!G(H(a)))"), "D");
}

TEST(LayerHeadingNodes, AHiddenGroupWithHiddenLabelsStandsAsANullAndDoesNotEndThem) {
  EXPECT_EQ(nodesOf("D(~!G(a))"), "D - a");
  EXPECT_EQ(nodesOf("~!D(a)"), "- a");
  EXPECT_EQ(nodesOf("D(~!G(!H(a)))"), "D -");
}

TEST(LayerHeadingNodes, HiddenLabelsOfACategoryMeanNothing) { EXPECT_EQ(nodesOf("D(!a)"), "D a"); }

TEST(LayerHeadingNodes, NothingIsAppendedToAShortPath) {
  EXPECT_EQ(nodesOf("D(a G(H(b)))", 0), "D a");
}

TEST(LayerHeadingNodes, AreThoseOfTheShownLayersWhenEmptyOnesAreSkipped) {
  const TableOwner table = tableOf({.dimensions = {"R(r)", "L(l0 l1 l2)"},
                                    .rows = {0},
                                    .layers = {1},
                                    .cells = {{0, 1}, {0, 2}}});
  OmDisplayLayerHeading layers(*table, true);
  layers.SwitchLayer(1);
  EXPECT_EQ(labelsOf(layers.Nodes(0)), "L l2");
  EntryList path;
  layers.DimAllNodes(0, path);
  EXPECT_EQ(labelsOf(path), "L l2");
  Entry* dimension = nullptr;
  Entry* category = nullptr;
  layers.DimCatNodes(0, dimension, category);
  EXPECT_EQ(labelOf(category), "l2");
}

TEST(LayerHeadingNodes, AreNoneAfterTheLayerWasCleared) {
  const TableOwner table = tableOf({.dimensions = {"L(l0 l1)"}, .layers = {0}});
  OmDisplayLayerHeading layers(*table, false);
  layers.SwitchLayer(1);
  layers.SwitchLayer(-1);
  EXPECT_TRUE(layers.Nodes(0).empty());
}

// ---- VisibleWidth

TEST(LayerHeadingNodes, TheWidthIsTheDepthOfTheDeepestCategory) {
  EXPECT_EQ(widthOf("D(a b)"), 2);
  EXPECT_EQ(widthOf("D(a G(b H(c)) d)"), 4);
}

TEST(LayerHeadingNodes, TheWidthCountsNoHiddenNode) {
  EXPECT_EQ(widthOf("~D(a)"), 1);
  EXPECT_EQ(widthOf("D(~G(a))"), 2);
  EXPECT_EQ(widthOf("D(G(~a))"), 2);
  EXPECT_EQ(widthOf("~D(~a)"), 0);
}

TEST(LayerHeadingNodes, TheWidthCountsWhatIsAboveTheTopmostGroupWithHiddenLabels) {
  EXPECT_EQ(widthOf("D(!G(a))"), 1);
  EXPECT_EQ(widthOf("D(G(!H(!K(a))))"), 2);
  EXPECT_EQ(widthOf("!D(a)"), 0);
}

TEST(LayerHeadingNodes, AHiddenGroupWithHiddenLabelsEndsTheCountOfTheWidth) {
  EXPECT_EQ(widthOf("D(~!G(a))"), 1);
}

TEST(LayerHeadingNodes, EachPositionHasTheWidthOfItsDimension) {
  const TableOwner table =
      tableOf({.dimensions = {"A(a)", "B(G(b))", "R(r)"}, .rows = {2}, .layers = {0, 1}});
  const OmDisplayLayerHeading layers(*table, false);
  EXPECT_EQ(layers.VisibleWidth(0), 3);
  EXPECT_EQ(layers.VisibleWidth(1), 2);
}

TEST(LayerHeadingNodes, TheWidthIsThatOfAllLayersAlsoWhenEmptyOnesAreSkipped) {
  const TableOwner table =
      tableOf({.dimensions = {"R(r)", "L(a G(b))"}, .rows = {0}, .layers = {1}, .cells = {{0, 0}}});
  const OmDisplayLayerHeading layers(*table, true);
  EXPECT_EQ(layers.NLayers(), 1u);
  EXPECT_EQ(layers.VisibleWidth(0), 3);
}

// ---- DimAllNodes and DimCatNodes

TEST(LayerHeadingNodes, DimAllNodesAppendsTheWholePathWhateverIsHidden) {
  const TableOwner table = tableOf({.dimensions = {"~D(!G(~!H(~a)))", "B(b)"}, .layers = {0, 1}});
  OmDisplayLayerHeading layers(*table, false);
  layers.SwitchLayer(0);
  EntryList path;
  layers.DimAllNodes(1, path);
  EXPECT_EQ(labelsOf(path), "D G H a");
  layers.DimAllNodes(0, path);
  EXPECT_EQ(labelsOf(path), "D G H a B b");
}

TEST(LayerHeadingNodes, DimAllNodesAppendsNothingWithoutALayerOrBeyondTheEnd) {
  const TableOwner table = tableOf({.dimensions = {"A(a)"}, .layers = {0}});
  OmDisplayLayerHeading layers(*table, false);
  EntryList path;
  layers.DimAllNodes(0, path);
  EXPECT_TRUE(path.empty());
  layers.SwitchLayer(0);
  layers.DimAllNodes(1, path);
  EXPECT_TRUE(path.empty());
  EXPECT_EQ(layers.NDimensions(), 1);
}

TEST(LayerHeadingNodes, DimCatNodesGivesBothEndsOfThePath) {
  const TableOwner table = tableOf({.dimensions = {"~D(G(a ~b))"}, .layers = {0}});
  OmDisplayLayerHeading layers(*table, false);
  layers.SwitchLayer(1);
  Entry* dimension = nullptr;
  Entry* category = nullptr;
  layers.DimCatNodes(0, dimension, category);
  EXPECT_EQ(labelOf(dimension), "D");
  EXPECT_EQ(labelOf(category), "b");
}

TEST(LayerHeadingNodes, DimCatNodesChangesNothingWithoutALayerOrBeyondTheEnd) {
  const TableOwner table = tableOf({.dimensions = {"A(a)"}, .layers = {0}});
  OmDisplayLayerHeading layers(*table, false);
  Entry other;
  Entry* dimension = &other;
  Entry* category = &other;
  layers.DimCatNodes(0, dimension, category);
  layers.SwitchLayer(0);
  layers.DimCatNodes(1, dimension, category);
  EXPECT_EQ(dimension, &other);
  EXPECT_EQ(category, &other);
  EXPECT_EQ(layers.NDimensions(), 1);
}

TEST(LayerHeadingNodes, ARootThatIsACategoryIsShownButIsNoPathOfADimension) {
  const TableOwner table = tableOf({.dimensions = {"A(a)"}, .layers = {0}});
  table->Dimension(0).Root()->IsGroup(false);
  OmDisplayLayerHeading layers(*table, false);
  EXPECT_TRUE(layers.SwitchLayer(0));
  EXPECT_EQ(labelsOf(layers.Nodes(0)), "A");
  EntryList path;
  layers.DimAllNodes(0, path);
  EXPECT_TRUE(path.empty());
  Entry other;
  Entry* dimension = &other;
  Entry* category = &other;
  layers.DimCatNodes(0, dimension, category);
  EXPECT_EQ(dimension, &other);
  EXPECT_EQ(category, &other);
}

// ---- Entries

TEST(LayerHeadingNodes, EntriesAreTheNodesOfTheTableWithTheirDepths) {
  const TableOwner table = tableOf({.dimensions = {"D(G(a))"}, .layers = {0}});
  const OmDimension::Node root = table->Dimension(0).Root();
  OmDisplayLayerHeading layers(*table, false);
  layers.SwitchLayer(0);
  const Entries entries = layers.Nodes(0);
  ASSERT_EQ(entries.size(), 3u);
  EXPECT_EQ(entries[0]->Record(), root.Record());
  EXPECT_EQ(entries[1]->Record(), root.ChildAt(0).Record());
  EXPECT_EQ(entries[2]->Record(), root.ChildAt(0).ChildAt(0).Record());
  EXPECT_EQ(entries[0]->Depth(), 0u);
  EXPECT_EQ(entries[1]->Depth(), 1u);
  EXPECT_EQ(entries[2]->Depth(), 2u);
}

TEST(LayerHeadingNodes, EntriesStayValidWhenTheLayerIsSwitched) {
  const TableOwner table = tableOf({.dimensions = {"D(a G(b))"}, .layers = {0}});
  OmDisplayLayerHeading layers(*table, false);
  layers.SwitchLayer(1);
  const Entries entries = layers.Nodes(0);
  layers.SwitchLayer(0);
  EXPECT_EQ(labelsOf(layers.Nodes(0)), "D a");
  EXPECT_EQ(labelsOf(entries), "D G b");
}

TEST(LayerHeadingNodes, ANodeHasTheSameEntryWhoeverGivesIt) {
  const TableOwner table = tableOf({.dimensions = {"D(G(a))"}, .layers = {0}});
  OmDisplayLayerHeading layers(*table, false);
  layers.SwitchLayer(0);
  const Entries entries = layers.Nodes(0);
  EXPECT_EQ(layers.Nodes(0), entries);
  EntryList path;
  layers.DimAllNodes(0, path);
  EXPECT_EQ(Entries(path.begin(), path.end()), entries);
  Entry* dimension = nullptr;
  Entry* category = nullptr;
  layers.DimCatNodes(0, dimension, category);
  EXPECT_EQ(dimension, entries.front());
  EXPECT_EQ(category, entries.back());
}

TEST(LayerHeadingNodes, NodesThatLayersShareHaveOneEntry) {
  const TableOwner table = tableOf({.dimensions = {"D(G(a b))"}, .layers = {0}});
  OmDisplayLayerHeading layers(*table, false);
  layers.SwitchLayer(0);
  const Entries first = layers.Nodes(0);
  layers.SwitchLayer(1);
  const Entries second = layers.Nodes(0);
  ASSERT_EQ(first.size(), 3u);
  ASSERT_EQ(second.size(), 3u);
  EXPECT_EQ(first[0], second[0]);
  EXPECT_EQ(first[1], second[1]);
  EXPECT_NE(first[2], second[2]);
}

}  // namespace
}  // namespace om::test
