// The layout of one dimension, seen from inside: positions, paths, label counts, subscripts, what
// paths share, and stale links.

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "display/internal/LiveRecords.h"
#include "display/internal/OmDimensionLayout.h"
#include "tests/display/DisplayTable.h"
#include "tests/support/Allocations.h"

namespace om::test {
namespace {

using internal::LiveRecords;
using internal::OmDimensionLayout;

// A dimension in a table, with its layout in a region.
struct LaidOut {
  explicit LaidOut(const std::string& text) : LaidOut(tableOf({.dimensions = {text}})) {}
  explicit LaidOut(TableOwner owner)
      : table(std::move(owner)), layout(region, table->Dimension(0)) {}

  TableOwner table;
  OmMemoryRegion region{false};
  OmDimensionLayout layout;
};

// A leaf's path from the leaf up, each with its level, as in "a:2 G:1 root:0".
std::string pathOf(const OmDimensionLayout& layout, std::size_t position) {
  std::string path;
  for (const auto* entry = layout.path(position); entry != nullptr; entry = entry->above) {
    path += (path.empty() ? "" : " ") + labelOf(&entry->node) + ":" +
            std::to_string(entry->node.Depth());
  }
  return path;
}

std::string pathsOf(const OmDimensionLayout& layout) {
  std::string paths;
  for (std::size_t i = 0; i < layout.size(); ++i) {
    paths += (i == 0 ? "" : " | ") + pathOf(layout, i);
  }
  return paths;
}

std::vector<int> depthsOf(const OmDimensionLayout& layout) {
  std::vector<int> depths;
  for (std::size_t i = 0; i < layout.size(); ++i) depths.push_back(layout.visibleDepth(i));
  return depths;
}

// The labels of a leaf and one null behind them.
std::string labelsAt(const OmDimensionLayout& layout, std::size_t position) {
  std::vector<Entry*> labels;
  for (std::size_t row = 0; row <= layout.visibleDepth(position); ++row) {
    labels.push_back(layout.label(position, row));
  }
  return labelsOf(labels);
}

TEST(OmDimensionLayout, LeavesTakePositionsInTheOrderOfTheTree) {
  const LaidOut d("root(G(a b) c H(I(d) e))");
  EXPECT_EQ(pathsOf(d.layout),
            "a:2 G:1 root:0 | b:2 G:1 root:0 | c:1 root:0 | d:3 I:2 H:1 root:0 | "
            "e:2 H:1 root:0");
}

TEST(OmDimensionLayout, AGroupWithoutChildrenContributesNothing) {
  const LaidOut d("root(G() a H(I()))");
  EXPECT_EQ(pathsOf(d.layout), "a:1 root:0");
}

TEST(OmDimensionLayout, WhatIsBelowANodeThatIsNoGroupIsNotWalked) {
  TableOwner table = tableOf({.dimensions = {"root(a(x y) b)"}});
  table->Dimension(0).Root().FirstChild()->IsGroup(false);
  const LaidOut d(std::move(table));
  EXPECT_EQ(pathsOf(d.layout), "a:1 root:0 | b:1 root:0");
}

TEST(OmDimensionLayout, ARootThatIsNoGroupIsTheOnlyLeaf) {
  TableOwner table = tableOf({.dimensions = {"root(a b)"}});
  table->Dimension(0).Root()->IsGroup(false);
  table->Dimension(0).Root()->Subscript(1);
  const LaidOut d(std::move(table));
  EXPECT_EQ(pathsOf(d.layout), "root:0");
  EXPECT_FALSE(d.layout.isBelowRoot(0));
  EXPECT_EQ(d.layout.positionToSubscript(0), 1);
}

TEST(OmDimensionLayout, ADimensionWithoutCategoriesIsNotWalked) {
  TableOwner table = tableOf({.dimensions = {"root(G())"}});
  table->Dimension(0).Root().FirstChild()->IsGroup(false);  // a leaf that was counted by nobody
  const LaidOut d(std::move(table));
  EXPECT_EQ(d.layout.size(), 0U);
  EXPECT_EQ(d.layout.root(), nullptr);
  EXPECT_EQ(d.layout.maxVisibleDepth(), 0);
  EXPECT_FALSE(d.layout.rootIsLabel());
  EXPECT_EQ(d.layout.subscriptToPosition(0), -1);
}

TEST(OmDimensionLayout, CountsTheVisibleNodesOfEachPath) {
  const LaidOut d("root(G(a b) c ~H(d ~e))");
  EXPECT_EQ(depthsOf(d.layout), (std::vector<int>{3, 3, 2, 2, 1}));
  EXPECT_EQ(d.layout.maxVisibleDepth(), 3);
}

TEST(OmDimensionLayout, CountsOnlyWhatIsAboveTheTopmostGroupWithHiddenLabels) {
  const LaidOut d("root(G(!H(I(!J(a)))) b)");
  EXPECT_EQ(depthsOf(d.layout), (std::vector<int>{2, 2}));
  EXPECT_EQ(labelsAt(d.layout, 0), "root G -");
  EXPECT_EQ(labelsAt(d.layout, 1), "root b -");
}

TEST(OmDimensionLayout, AHiddenGroupWithHiddenLabelsEndsTheLabelsToo) {
  const LaidOut d("root(~!G(a) b)");
  EXPECT_EQ(depthsOf(d.layout), (std::vector<int>{1, 2}));
  EXPECT_EQ(labelsAt(d.layout, 0), "root -");
}

TEST(OmDimensionLayout, HiddenLabelsOfACategoryMeanNothing) {
  const LaidOut d("root(!a)");
  EXPECT_EQ(depthsOf(d.layout), std::vector<int>{2});
}

TEST(OmDimensionLayout, TheRootIsALabelUnlessItOrItsLabelsAreHidden) {
  EXPECT_TRUE(LaidOut("root(a)").layout.rootIsLabel());
  EXPECT_FALSE(LaidOut("~root(a)").layout.rootIsLabel());
  EXPECT_FALSE(LaidOut("!root(a)").layout.rootIsLabel());
  EXPECT_EQ(LaidOut("!root(a)").layout.maxVisibleDepth(), 0);
}

TEST(OmDimensionLayout, PathsShareTheEntriesOfTheGroupsThatTheyShare) {
  const LaidOut d("root(G(a b) c)");
  EXPECT_EQ(d.layout.path(0)->above, d.layout.path(1)->above);
  EXPECT_EQ(d.layout.path(0)->above->above, d.layout.path(2)->above);
  EXPECT_EQ(d.layout.path(2)->above, d.layout.root());
}

TEST(OmDimensionLayout, MapsPositionsToSubscriptsAndBack) {
  const LaidOut d("root(a=2 b=0 c=1)");
  EXPECT_EQ(d.layout.positionToSubscript(0), 2);
  EXPECT_EQ(d.layout.positionToSubscript(1), 0);
  EXPECT_EQ(d.layout.positionToSubscript(2), 1);
  EXPECT_EQ(d.layout.subscriptToPosition(0), 1);
  EXPECT_EQ(d.layout.subscriptToPosition(1), 2);
  EXPECT_EQ(d.layout.subscriptToPosition(2), 0);
  EXPECT_TRUE(d.layout.subscriptsAreFirst());
}

TEST(OmDimensionLayout, ASubscriptBeyondTheCategoriesLengthensTheMap) {
  const LaidOut d("root(a=0 b=1000000)");
  EXPECT_EQ(d.layout.subscriptToPosition(1000000), 1);
  EXPECT_EQ(d.layout.subscriptToPosition(999999), -1);
  EXPECT_EQ(d.layout.subscriptToPosition(1000001), -1);
  EXPECT_FALSE(d.layout.subscriptsAreFirst());
}

TEST(OmDimensionLayout, ASubscriptWithoutALeafHasNoPosition) {
  const LaidOut d("root(a=1)");
  EXPECT_EQ(d.layout.subscriptToPosition(0), -1);
  EXPECT_EQ(d.layout.subscriptToPosition(1), 0);
  EXPECT_EQ(d.layout.subscriptToPosition(-1), -1);
}

TEST(OmDimensionLayout, OfSeveralLeavesWithASubscriptTheLastOneIsFound) {
  const LaidOut d("root(a=0 b=1 c=0)");
  EXPECT_EQ(d.layout.subscriptToPosition(0), 2);
  EXPECT_FALSE(d.layout.subscriptsAreFirst());
}

TEST(OmDimensionLayout, ASubscriptThatNoCellCanHaveIsNegativeAndFoundNowhere) {
  TableOwner table = tableOf({.dimensions = {"root(a b)"}});
  table->Dimension(0).Root().FirstChild()->Subscript(~0ULL);
  const LaidOut d(std::move(table));
  EXPECT_EQ(d.layout.positionToSubscript(0), -1);
  EXPECT_EQ(d.layout.subscriptToPosition(-1), -1);
  EXPECT_EQ(d.layout.subscriptToPosition(1), 1);
  EXPECT_FALSE(d.layout.subscriptsAreFirst());
}

TEST(OmDimensionLayout, TheLargestSubscriptCostsNoMemoryThatIsTouched) {
  const LaidOut d("root(a=2147483647)");
  EXPECT_EQ(d.layout.subscriptToPosition(2147483647), 0);
  EXPECT_EQ(d.layout.subscriptToPosition(2147483646), -1);
}

TEST(OmDimensionLayout, CutsTheLabelsOfAVeryDeepLeaf) {
  TableOwner table = tableOf({.dimensions = {"root(a)"}});
  OmDimension& dimension = table->Dimension(0);
  OmDimension::Node at = dimension.Root();
  for (int i = 0; i < 70000; ++i) at = dimension.AddNewChild(at, OmStringCell("g"), 0, true);
  dimension.AddNewChild(at, OmStringCell("deep"), 1, false);
  const LaidOut d(std::move(table));
  ASSERT_EQ(d.layout.size(), 2U);
  EXPECT_EQ(d.layout.visibleDepth(1), 65535);
  EXPECT_NE(d.layout.label(1, 65534), nullptr);
  EXPECT_EQ(d.layout.label(1, 65535), nullptr);
  std::vector<Entry*> path;
  d.layout.appendPath(1, path);
  EXPECT_EQ(path.size(), 70002U);
  EXPECT_EQ(labelOf(path.back()), "deep");
}

TEST(OmDimensionLayout, ALayersPathKeepsAPlaceForEachHiddenNode) {
  const LaidOut d("root(~G(a) H(~b) !I(c) ~!J(d))");
  EXPECT_EQ(labelsOf(d.layout.layerPath(0)), "root - a");
  EXPECT_EQ(labelsOf(d.layout.layerPath(1)), "root H -");
  EXPECT_EQ(labelsOf(d.layout.layerPath(2)), "root");
  EXPECT_EQ(labelsOf(d.layout.layerPath(3)), "root - d");  // hidden, so its labels are not asked
}

TEST(OmDimensionLayout, AWholePathIsAppendedFromTheRootDown) {
  const LaidOut d("~root(!G(~a))");
  std::vector<Entry*> path{nullptr};
  d.layout.appendPath(0, path);
  EXPECT_EQ(labelsOf(path), "- root G a");
}

// ---- Links that OmDimension::Delete leaves stale

TEST(OmDimensionLayout, FollowsAStaleLinkToTheSiblingThatMovedThere) {
  TableOwner table = tableOf({.dimensions = {"root(A(a) B(b) C(c))"}});
  deleteChild(table->Dimension(0), 0);
  const LaidOut d(std::move(table));
  // The place of B, which moved up, is now that of C; the place of C is no record's any more.
  EXPECT_EQ(pathsOf(d.layout), "b:2 C:1 root:0 | c:2 C:1 root:0");
  EXPECT_EQ(labelsAt(d.layout, 0), "root C b -");
}

TEST(OmDimensionLayout, FollowsStaleLinksOnEveryLevel) {
  TableOwner table = tableOf({.dimensions = {"root(A(x(y)) B(K(k) L(l(m))) C(c))"}});
  OmDimension& dimension = table->Dimension(0);
  deleteChild(dimension, dimension.Root().ChildAt(1), 0);  // K: L moves up within B
  deleteChild(dimension, 0);                               // A: B and C move up
  const LaidOut d(std::move(table));
  // l still points to L's former place, which holds nothing, so L stands; L points to B's former
  // place, where C is now. c points to C's former place, which holds nothing.
  EXPECT_EQ(pathsOf(d.layout), "m:4 l:3 L:2 C:1 root:0 | c:2 C:1 root:0");
}

TEST(OmDimensionLayout, StalePathsEndInTheOneEntryOfTheRoot) {
  TableOwner table = tableOf({.dimensions = {"root(A(a) B(b) C(c))"}});
  deleteChild(table->Dimension(0), 0);
  const LaidOut d(std::move(table));
  EXPECT_EQ(d.layout.path(0)->above->above, d.layout.root());
}

TEST(OmDimensionLayout, ReparentedLinksAreRightAgain) {
  TableOwner table = tableOf({.dimensions = {"root(A(a) B(b) C(c))"}});
  deleteChild(table->Dimension(0), 0);
  OmDimension::Tree::Reparent(*table->Dimension(0).Root().Record(), true);
  const LaidOut d(std::move(table));
  EXPECT_EQ(pathsOf(d.layout), "b:2 B:1 root:0 | c:2 C:1 root:0");
}

TEST(LiveRecords, AreTheRecordsOfTheirLevel) {
  const TableOwner table = tableOf({.dimensions = {"root(A(a b) B(c))"}});
  const OmDimension& dimension = table->Dimension(0);
  const LiveRecords live(dimension);
  const auto* const a = dimension.Root().ChildAt(0).Record();
  const auto* const b = dimension.Root().ChildAt(1).Record();
  EXPECT_TRUE(live.contains(a, 1));
  EXPECT_TRUE(live.contains(b, 1));
  EXPECT_FALSE(live.contains(a - 1, 1));
  EXPECT_FALSE(live.contains(b + 1, 1));
  EXPECT_FALSE(live.contains(a, 2));
  EXPECT_TRUE(live.contains(&a->children[1], 2));
  EXPECT_FALSE(live.contains(&a->children[1], 1));
  EXPECT_FALSE(live.contains(nullptr, 1));
  // Between two records.
  EXPECT_FALSE(live.contains(
      reinterpret_cast<const LiveRecords::Record*>(reinterpret_cast<const char*>(a) + 8), 1));
}

TEST(OmDimensionLayout, EveryAllocationMayFail) {
  const TableOwner table = tableOf({.dimensions = {"root(A(a) B(b) C(c D(d e)))"}});
  deleteChild(table->Dimension(0), 0);
  const std::size_t failures = failEveryAllocation([&](FailurePoint& point) {
    OmMemoryRegion region(false);
    std::size_t size = 0;
    if (point.during([&] { size = OmDimensionLayout(region, table->Dimension(0)).size(); })) {
      EXPECT_EQ(size, 4U);
    }
  });
  EXPECT_GT(failures, 5U);
}

}  // namespace
}  // namespace om::test
