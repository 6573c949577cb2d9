// Random tables: their heading grids compared with the headings place by place, and the places of
// cells with a search of all places.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <map>
#include <string>
#include <vector>

#include "render/TableView.h"
#include "tests/display/RandomTable.h"
#include "tests/render/GridText.h"
#include "tests/support/Oracle.h"

namespace om::test {
namespace {

using render::HeadingGrid;
using render::TableView;
using Span = HeadingGrid::Span;
using Place = TableView::Place;

// One axis of a table as its heading shows it: the labels of a level, and the categories of a
// place.
struct Axis {
  std::vector<std::size_t> blocks;  // the dimension of each level
  std::vector<Entries> levels;
  std::vector<Entries> categories;
};

Axis axisOf(const OmDisplayColumnHeading& heading) {
  Axis axis;
  for (int k = 0; k < heading.NDimensions(); ++k) {
    axis.blocks.insert(axis.blocks.end(), static_cast<std::size_t>(heading.VisibleHeight(k)),
                       static_cast<std::size_t>(k));
  }
  for (int i = 0; i < heading.NRows(); ++i) axis.levels.push_back(heading.Row(i));
  for (int i = 0; i < heading.NColumns(); ++i) {
    axis.categories.push_back(heading.ColumnCategories(i));
  }
  return axis;
}
Axis axisOf(const OmDisplayRowHeading& heading) {
  Axis axis;
  for (int k = 0; k < heading.NDimensions(); ++k) {
    axis.blocks.insert(axis.blocks.end(), static_cast<std::size_t>(heading.VisibleWidth(k)),
                       static_cast<std::size_t>(k));
  }
  for (int i = 0; i < heading.NColumns(); ++i) axis.levels.push_back(heading.Column(i));
  for (int i = 0; i < heading.NRows(); ++i) axis.categories.push_back(heading.RowCategories(i));
  return axis;
}

// The span that covers a place on a level, of that level or of one above.
const Span* coverOf(const HeadingGrid& grid, std::size_t level, std::uint64_t place) {
  for (std::size_t above = level + 1; above-- != 0;) {
    const Span* const span = grid.find(above, place);
    if (span != nullptr && above + span->levels > level) return span;
  }
  return nullptr;
}

// Whether two neighbouring places show the same on a level.
bool isSame(const Axis& axis, std::size_t level, std::uint64_t place) {
  const Entry* const a = axis.levels[level][place - 1];
  const Entry* const b = axis.levels[level][place];
  if (a != nullptr || b != nullptr) return a != nullptr && b != nullptr && &**a == &**b;
  const Entry* const left = axis.categories[place - 1][axis.blocks[level]];
  const Entry* const right = axis.categories[place][axis.blocks[level]];
  return left != nullptr && right != nullptr && &**left == &**right;
}

void expectGridOf(const Axis& axis, const HeadingGrid& grid) {
  ASSERT_EQ(grid.places(), axis.categories.size());
  ASSERT_EQ(grid.levels(), axis.levels.size());
  for (std::size_t level = 0; level < grid.levels(); ++level) {
    std::uint64_t covered = 0;  // places that own spans of the level cover
    for (const Span& span : grid.spans(level)) covered += span.places();
    for (std::uint64_t place = 0; place < grid.places(); ++place) {
      const Entry* const entry = axis.levels[level][place];
      const Span* const own = grid.find(level, place);
      const Span* const cover = coverOf(grid, level, place);
      ASSERT_NE(cover, nullptr) << "nothing covers level " << level << ", place " << place;
      if (own != nullptr) {
        ASSERT_EQ(own, cover) << "two spans on level " << level << ", place " << place;
        ASSERT_EQ(own->node, entry != nullptr ? &**entry : nullptr);
        --covered;
      } else {
        ASSERT_EQ(entry, nullptr) << "a label is covered";
      }
      if (place == 0) continue;
      // Neighbours are of one span when they show the same and no level above parts them.
      bool isJoined = own != nullptr && isSame(axis, level, place);
      for (std::size_t above = 0; above < level; ++above) {
        isJoined = isJoined && coverOf(grid, above, place - 1) == coverOf(grid, above, place);
      }
      ASSERT_EQ(own != nullptr && grid.find(level, place - 1) == own, isJoined)
          << "level " << level << ", place " << place;
    }
    ASSERT_EQ(covered, 0U);
  }
}

TEST(ViewOracle, GridsAreTheHeadingsWithEqualNeighboursMerged) {
  runRandomOperations(20240612, 1500, [](Random& random) {
    RandomTable table(random);
    OmDisplayLayerHeading layers(table.table(), false);
    if (!layers.SwitchLayer(static_cast<int>(random.below(3)))) return;
    const bool skips = random.oneIn(2);
    const bool names = random.oneIn(2);
    const TableView view(
        layers, {.skipEmptyRows = skips, .skipEmptyColumns = skips, .namesInCorner = names});
    expectGridOf(axisOf(OmDisplayRowHeading(layers, skips, names)), view.rows());
    expectGridOf(axisOf(OmDisplayColumnHeading(layers, skips)), view.columns());
    if (testing::Test::HasFailure()) ADD_FAILURE() << table.text();
  });
}

// What a dimension that stands on an axis twice, or an entry without one, means for a place is
// decided by the headings; the search looks at other tables.
bool hasEachDimensionOnce(const OmPivotTable& table) {
  std::map<short, int> count;
  for (const auto* axis : {&table.Rows(), &table.Columns(), &table.Layers()}) {
    for (const short entry : *axis) {
      if (entry < 0 || static_cast<std::size_t>(entry) >= table.NDimensions()) return false;
      if (++count[entry] > 1) return false;
    }
  }
  return true;
}

bool isWhole(const Entries& categories) {
  return std::none_of(categories.begin(), categories.end(),
                      [](const Entry* entry) { return entry == nullptr; });
}

void expectPlaces(const TableView& view, const Axis& rows, const Axis& columns, Random& random) {
  std::map<Index, Place> first;
  Index index;
  for (std::uint64_t row = 0; row < view.rowCount(); ++row) {
    if (!isWhole(rows.categories[row])) continue;
    for (std::uint64_t column = 0; column < view.columnCount(); ++column) {
      if (!isWhole(columns.categories[column])) continue;
      view.indexOf({row, column}, index);
      first.try_emplace(index, Place{row, column});
    }
  }
  for (const auto& [where, place] : first) {
    ASSERT_EQ(view.placeOf(where), place) << textOfIndex(where);
  }
  // An index that is near those shown, but perhaps of another layer or of no category.
  for (int i = 0; i < 20 && !first.empty(); ++i) {
    Index other =
        std::next(first.begin(), static_cast<std::ptrdiff_t>(random.below(first.size())))->first;
    if (other.empty()) return;
    other[random.below(other.size())] += static_cast<int>(random.below(5)) - 2;
    const auto expected = first.find(other);
    const auto place = view.placeOf(other);
    ASSERT_EQ(place.has_value(), expected != first.end()) << textOfIndex(other);
    if (place) {
      ASSERT_EQ(*place, expected->second);
    }
  }
}

TEST(ViewOracle, PlaceOfFindsEachShownIndexAndNoOther) {
  runRandomOperations(20240613, 1500, [](Random& random) {
    RandomTable table(random);
    if (!hasEachDimensionOnce(table.table())) return;
    OmDisplayLayerHeading layers(table.table(), false);
    if (!layers.SwitchLayer(static_cast<int>(random.below(3)))) return;
    const bool skips = random.oneIn(2);
    const TableView view(layers, {.skipEmptyRows = skips, .skipEmptyColumns = skips});
    expectPlaces(view, axisOf(OmDisplayRowHeading(layers, skips, true)),
                 axisOf(OmDisplayColumnHeading(layers, skips)), random);
    if (testing::Test::HasFailure()) ADD_FAILURE() << table.text();
  });
}

TEST(ViewOracle, RowsAndCellsAgreeAndPathsEndInTheCategories) {
  runRandomOperations(20240614, 500, [](Random& random) {
    RandomTable table(random);
    OmDisplayLayerHeading layers(table.table(), false);
    if (!layers.SwitchLayer(0)) return;
    const TableView view(layers, {});
    const Axis rows = axisOf(OmDisplayRowHeading(layers, true, true));
    std::vector<const OmCellText*> cells;
    Index index;
    for (std::uint64_t row = 0; row < view.rowCount(); ++row) {
      view.row(row, cells);
      ASSERT_EQ(cells.size(), view.columnCount());
      for (std::uint64_t column = 0; column < cells.size(); ++column) {
        view.indexOf({row, column}, index);
        ASSERT_EQ(cells[column], table.table().Cell(index));
        ASSERT_EQ(view.cell({row, column}), cells[column]);
      }
      const auto paths = view.rowPaths(row);
      ASSERT_EQ(paths.size(), rows.categories[row].size());
      for (std::size_t k = 0; k < paths.size(); ++k) {
        const Entry* const category = rows.categories[row][k];
        ASSERT_EQ(paths[k].empty(), category == nullptr);
        if (category == nullptr) continue;
        ASSERT_EQ(paths[k].back(), &**category);
        ASSERT_EQ(paths[k].size(), category->Depth() + 1);
      }
    }
    if (testing::Test::HasFailure()) ADD_FAILURE() << table.text();
  });
}

}  // namespace
}  // namespace om::test
