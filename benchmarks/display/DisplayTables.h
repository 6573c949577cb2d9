// The tables that the display benchmark lays out.

#ifndef OM_BENCHMARKS_DISPLAY_DISPLAYTABLES_H_
#define OM_BENCHMARKS_DISPLAY_DISPLAYTABLES_H_

#include <cstddef>
#include <functional>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "external/cells/OmStringCell.h"
#include "pivot/OmPivotTable.h"

namespace om::bench {

using Table = std::unique_ptr<OmPivotTable>;
using Sizes = std::vector<int>;  // of dimensions, the outermost first
struct Shape {
  Sizes rows;
  Sizes columns;
};

inline const Shape kFlat{{1000}, {1000}};
inline const Shape kNested{{10, 20, 50}, {20, 25}};

// Leaves right below the root, or in groups of so many.
inline void addLeaves(OmDimension& dimension, int leaves, int inGroup) {
  OmDimension::Node parent = dimension.Root();
  for (int i = 0; i < leaves; ++i) {
    if (inGroup != 0 && i % inGroup == 0) {
      parent = dimension.AddNewChild(dimension.Root(), OmStringCell("group"), ~0ULL, true);
    }
    dimension.AddNewChild(parent, OmStringCell("category"), static_cast<unsigned long long>(i),
                          false);
  }
}

inline void addAxis(OmPivotTable& table, PuppetVector<short>& axis, const Sizes& sizes) {
  for (const int size : sizes) {
    axis.push_back(static_cast<short>(table.NDimensions()));
    addLeaves(table.AddDimension(OmStringCell("dimension")), size, 0);
  }
  axis.reverse();
}

// Without cells. The dimensions are numbered from the outermost of the rows on.
inline Table emptyTable(const Shape& shape) {
  auto table = std::make_unique<OmPivotTable>(OmStringCell("title"), OmStringCell("name"), false);
  addAxis(*table, table->Rows(), shape.rows);
  addAxis(*table, table->Columns(), shape.columns);
  return table;
}

inline int count(const Sizes& sizes) {
  int product = 1;
  for (const int size : sizes) product *= size;
  return product;
}

// Writes the digits of a position of an axis into an index, from its dimension `first` on.
inline void writePosition(std::vector<int>& index, std::size_t first, const Sizes& sizes,
                          int position) {
  for (std::size_t k = sizes.size(); k-- > 0; position /= sizes[k]) {
    index[first + k] = position % sizes[k];
  }
}

inline void storeAt(OmPivotTable& table, const Shape& shape, int row, int column) {
  static const OmStringCell text("1.5");
  std::vector<int> index(table.NDimensions());
  writePosition(index, 0, shape.rows, row);
  writePosition(index, shape.rows.size(), shape.columns, column);
  table.Cell(index, text);
}

// With a cell in each place for which `holds(row, column)` says so.
inline Table filledTable(const Shape& shape, const std::function<bool(int, int)>& holds) {
  Table table = emptyTable(shape);
  for (int column = 0; column < count(shape.columns); ++column) {
    for (int row = 0; row < count(shape.rows); ++row) {
      if (holds(row, column)) storeAt(*table, shape, row, column);
    }
  }
  return table;
}

// With so many cells in random places.
inline Table scatteredTable(const Shape& shape, std::size_t cells) {
  Table table = emptyTable(shape);
  std::mt19937_64 random(42);
  const auto draw = [&random](const Sizes& sizes) {
    return static_cast<int>(random() % static_cast<unsigned long long>(count(sizes)));
  };
  for (std::size_t i = 0; i < cells; ++i) {
    const int row = draw(shape.rows);
    storeAt(*table, shape, row, draw(shape.columns));
  }
  return table;
}

inline const char* const kFills[] = {
    "full",       "half",        "one_row_empty", "tenth_empty",       "tenth_of_rows_empty",
    "filled_10%", "filled_1.2%", "filled_0.5%",   "last_2%_of_columns"};

inline Table tableWith(const std::string& fill, const Shape& shape) {
  std::mt19937_64 random(42);
  const auto perMille = [&random](unsigned share) {
    return [&random, share](int, int) { return random() % 1000 < share; };
  };
  const int rows = count(shape.rows);
  const int columns = count(shape.columns);
  if (fill == "half") return filledTable(shape, perMille(500));
  if (fill == "tenth_empty") return filledTable(shape, perMille(900));
  if (fill == "filled_10%") return filledTable(shape, perMille(100));
  if (fill == "filled_1.2%") return filledTable(shape, perMille(12));
  if (fill == "filled_0.5%") return filledTable(shape, perMille(5));
  if (fill == "one_row_empty") {
    return filledTable(shape, [rows](int row, int) { return row != rows / 2; });
  }
  if (fill == "tenth_of_rows_empty") {
    return filledTable(shape, [](int row, int) { return row % 10 != 5; });
  }
  if (fill == "last_2%_of_columns") {
    return filledTable(shape, [columns](int, int column) { return column >= columns * 49 / 50; });
  }
  return filledTable(shape, [](int, int) { return true; });
}

}  // namespace om::bench

#endif  // OM_BENCHMARKS_DISPLAY_DISPLAYTABLES_H_
