// Headings when memory runs out: whichever allocation fails, nothing is left behind and the heading
// is as before.

#include <gtest/gtest.h>

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "tests/display/DisplayTable.h"
#include "tests/support/Allocations.h"

namespace om::test {
namespace {

// All kinds of nodes, with cells in some places of two of the layers.
TableText ordinary() {
  return {.dimensions = {"R(r G(s ~t))", "C(c !H(d) e)", "L(l ~K(m) n)"},
          .rows = {0},
          .columns = {1},
          .layers = {2},
          .cells = {{0, 0, 0}, {1, 2, 2}, {2, 2, 2}}};
}
// The same, made so large that its cells are few.
TableText sparse() {
  TableText text = ordinary();
  text.dimensions.push_back(flat("X", "x", 20));
  for (Index& cell : text.cells) cell.push_back(0);
  text.columns.push_back(3);
  return text;
}

// The three headings of a table.
struct Headings {
  explicit Headings(OmPivotTable& table, bool skipEmpty = true)
      : layers(table, skipEmpty), columns(layers, skipEmpty), rows(layers, skipEmpty, true) {}

  OmDisplayLayerHeading layers;
  OmDisplayColumnHeading columns;
  OmDisplayRowHeading rows;
};

// What the headings show, without a change to any of them.
std::string everything(Headings& of) {
  std::string all = std::to_string(of.layers.getLayer()) + " of " +
                    std::to_string(of.layers.NLayers()) + " at " +
                    textOfIndex(of.layers.getCurrentCellIndex()) + "\n";
  if (of.layers.NDimensions() > 0) all += labelsOf(of.layers.Nodes(0)) + "\n";
  all += gridOf(of.columns) + "\n" + gridOf(of.rows) + "\n" + cornerOf(of.rows) + "\n";
  for (const int number :
       {of.layers.NDimensions(), of.columns.NDimensions(), of.rows.NDimensions(),
        of.columns.VisibleHeight(0), of.rows.VisibleWidth(0), of.layers.VisibleWidth(0)}) {
    all += std::to_string(number) + " ";
  }
  return all;
}

using Operation = std::function<void(Headings&)>;

// Fails each allocation of an operation on the headings of a table. Gives the number of failures.
std::size_t failuresOf(const TableText& text, bool skipEmpty, const Operation& operation) {
  const TableOwner table = tableOf(text);
  return failEveryAllocation([&](FailurePoint& point) {
    Headings headings(*table, skipEmpty);
    headings.layers.SwitchLayer(1);
    const std::string before = everything(headings);
    const bool completed = point.during([&] { operation(headings); });
    EXPECT_NE(completed, point.failed());
    if (!completed) {
      EXPECT_EQ(everything(headings), before);
    }
  });
}
std::size_t failuresOf(const Operation& operation) {
  return failuresOf(ordinary(), true, operation);
}

// Fails each allocation of making a heading.
std::size_t failuresOfMaking(const TableText& text,
                             const std::function<std::shared_ptr<void>(Headings&)>& make) {
  const TableOwner table = tableOf(text);
  return failEveryAllocation([&](FailurePoint& point) {
    Headings headings(*table);
    headings.layers.SwitchLayer(1);
    const std::string before = everything(headings);
    std::shared_ptr<void> made;
    const bool completed = point.during([&] { made = make(headings); });
    EXPECT_NE(completed, point.failed());
    EXPECT_EQ(made != nullptr, completed);
    EXPECT_EQ(everything(headings), before);
  });
}

// ---- Construction

TEST(HeadingAllocation, ALayerHeadingLeavesNothingBehindWhenItCannotBeMade) {
  const auto make = [](bool skipEmpty) {
    return [skipEmpty](Headings& headings) {
      return std::make_shared<OmDisplayLayerHeading>(headings.layers.Table(), skipEmpty);
    };
  };
  EXPECT_GE(failuresOfMaking(ordinary(), make(false)), 6u);
  EXPECT_GE(failuresOfMaking(ordinary(), make(true)), 7u);
  EXPECT_GE(failuresOfMaking(sparse(), make(true)), 7u);
}

TEST(HeadingAllocation, AColumnHeadingLeavesNothingBehindWhenItCannotBeMade) {
  const auto make = [](bool skipEmpty) {
    return [skipEmpty](Headings& headings) {
      return std::make_shared<OmDisplayColumnHeading>(headings.layers, skipEmpty);
    };
  };
  EXPECT_GE(failuresOfMaking(ordinary(), make(false)), 3u);
  EXPECT_GE(failuresOfMaking(ordinary(), make(true)), 4u);
  EXPECT_GE(failuresOfMaking(sparse(), make(true)), 4u);
}

TEST(HeadingAllocation, ARowHeadingLeavesNothingBehindWhenItCannotBeMade) {
  const auto make = [](bool skipEmpty, bool namesInCorner) {
    return [skipEmpty, namesInCorner](Headings& headings) {
      return std::make_shared<OmDisplayRowHeading>(headings.layers, skipEmpty, namesInCorner);
    };
  };
  EXPECT_GE(failuresOfMaking(ordinary(), make(false, false)), 4u);
  EXPECT_GE(failuresOfMaking(ordinary(), make(false, true)), 4u);
  EXPECT_GE(failuresOfMaking(ordinary(), make(true, true)), 5u);
  EXPECT_GE(failuresOfMaking(sparse(), make(true, true)), 5u);
}

// ---- The layer heading

TEST(HeadingAllocation, SwitchLayerLeavesTheLayerOrSelectsIt) {
  const TableOwner table = tableOf(ordinary());
  failEveryAllocation([&](FailurePoint& point) {
    OmDisplayLayerHeading layers(*table, true);
    layers.SwitchLayer(0);
    const bool completed = point.during([&] { layers.SwitchLayer(1); });
    EXPECT_NE(completed, point.failed());
    EXPECT_EQ(layers.getLayer(), completed ? 1 : 0);
    EXPECT_EQ(layers.getCurrentCellIndex()[2], completed ? 2 : 0);
  });
}

TEST(HeadingAllocation, LayersLaterInTheWalkAreAsBefore) {
  const TableOwner table = tableOf(ordinary());
  failEveryAllocation([&](FailurePoint& point) {
    OmDisplayLayerHeading layers(*table, false);
    const bool completed = point.during([&] {
      for (int i = 0; i < 3; ++i) layers.NextLayer();
    });
    EXPECT_NE(completed, point.failed());
    if (completed) {
      EXPECT_EQ(layers.getLayer(), 2);
    }
    layers.LastLayer();
    EXPECT_EQ(labelsOf(layers.Nodes(0)), "L n");
  });
}

TEST(HeadingAllocation, AListOfLayerDimensionsThatCannotGrowStays) {
  EXPECT_GE(failuresOf([](Headings& of) { of.layers.getDimensionIndex(100); }), 1u);
}

TEST(HeadingAllocation, NodesOfALayerLeaveTheHeadingAsItWas) {
  EXPECT_GE(failuresOf([](Headings& of) { of.layers.Nodes(0); }), 1u);
}

TEST(HeadingAllocation, NodesOfALayerBeyondTheEndLeaveTheListAsItWas) {
  // The list grows or not; what comes behind it may fail as well.
  const TableOwner table = tableOf(ordinary());
  const std::size_t failures = failEveryAllocation([&](FailurePoint& point) {
    OmDisplayLayerHeading layers(*table, true);
    layers.SwitchLayer(1);
    const bool completed = point.during([&] { layers.Nodes(100); });
    EXPECT_NE(completed, point.failed());
    EXPECT_TRUE(layers.NDimensions() == 1 || layers.NDimensions() == 101);
    if (completed) {
      EXPECT_EQ(layers.NDimensions(), 101);
    }
    EXPECT_EQ(labelsOf(layers.Nodes(0)), "L n");
  });
  EXPECT_GE(failures, 1u);
}

TEST(HeadingAllocation, WholePathsOfALayerLeaveTheHeadingAsItWas) {
  EXPECT_GE(failuresOf([](Headings& of) {
              EntryList path;
              of.layers.DimAllNodes(0, path);
            }),
            1u);
}

TEST(HeadingAllocation, AnIndexThatCannotGrowIsNotFilled) {
  const auto expectUntouched = [](const std::function<void(Headings&, Index&)>& fill) {
    const TableOwner table = tableOf(ordinary());
    const std::size_t failures = failEveryAllocation([&](FailurePoint& point) {
      Headings headings(*table);
      headings.layers.SwitchLayer(1);
      Index index{9};
      const bool completed = point.during([&] { fill(headings, index); });
      EXPECT_NE(completed, point.failed());
      EXPECT_EQ(index.size(), completed ? 3u : 1u);
      if (!completed) {
        EXPECT_EQ(index, (Index{9}));
      }
    });
    EXPECT_GE(failures, 1u);
  };
  expectUntouched([](Headings& of, Index& index) { of.layers.Fill(index); });
  expectUntouched([](Headings& of, Index& index) { of.columns.Fill(index, 0); });
  expectUntouched([](Headings& of, Index& index) { of.rows.Fill(index, 0); });
}

TEST(HeadingAllocation, ACopyOfTheCellIndexLeavesTheHeadingAsItWas) {
  EXPECT_GE(failuresOf([](Headings& of) { of.layers.getCurrentCellIndex(); }), 1u);
}

// ---- Column and row headings

TEST(HeadingAllocation, LabelsLeaveTheHeadingAsItWas) {
  EXPECT_GE(failuresOf([](Headings& of) { of.columns.Column(0); }), 1u);
  EXPECT_GE(failuresOf([](Headings& of) { of.columns.Row(0); }), 1u);
  EXPECT_GE(failuresOf([](Headings& of) { of.rows.Row(0); }), 1u);
  EXPECT_GE(failuresOf([](Headings& of) { of.rows.Column(0); }), 1u);
}

TEST(HeadingAllocation, CategoriesLeaveTheHeadingAsItWas) {
  EXPECT_GE(failuresOf([](Headings& of) { of.columns.ColumnCategories(0); }), 1u);
  EXPECT_GE(failuresOf([](Headings& of) { of.rows.RowCategories(0); }), 1u);
}

TEST(HeadingAllocation, WholePathsLeaveTheHeadingAsItWas) {
  EXPECT_GE(failuresOf([](Headings& of) {
              EntryList path;
              of.columns.DimAllNodes(0, path);
              of.rows.DimAllNodes(0, path);
            }),
            1u);
  EXPECT_GE(failuresOf([](Headings& of) {
              EntryList dimensions;
              EntryList categories;
              of.columns.DimCatNodes(0, dimensions, categories);
              of.rows.DimCatNodes(0, dimensions, categories);
            }),
            2u);
}

TEST(HeadingAllocation, AListOfDimensionsThatCannotGrowStays) {
  EXPECT_GE(failuresOf([](Headings& of) { of.columns.getDimensionIndex(100); }), 1u);
  EXPECT_GE(failuresOf([](Headings& of) { of.rows.getDimensionIndex(100); }), 1u);
}

TEST(HeadingAllocation, ACornerLeavesTheHeadingAsItWas) {
  EXPECT_GE(failuresOf([](Headings& of) { of.rows.CornerText(); }), 1u);
}

TEST(HeadingAllocation, ThePositionsShownCanBeAskedForAgain) {
  const TableOwner table = tableOf(ordinary());
  const std::size_t failures = failEveryAllocation([&](FailurePoint& point) {
    Headings headings(*table, false);
    const std::string before = everything(headings);
    const bool columns = point.during([&] { headings.columns.getNonEmptyColumns(); });
    const bool rows = point.during([&] { headings.rows.getNonEmptyRows(); });
    EXPECT_NE(columns && rows, point.failed());
    EXPECT_EQ(everything(headings), before);
    EXPECT_EQ(headings.columns.getNonEmptyColumns(), (Positions{0, 1, 2}));
    EXPECT_EQ(headings.rows.getNonEmptyRows(), (Positions{0, 1, 2}));
  });
  EXPECT_GE(failures, 2u);
}

}  // namespace
}  // namespace om::test
