// Tables for the tests of cells, what they hold as lines of text, and what an operation throws.

#ifndef OM_TESTS_PIVOT_CELLTABLE_H_
#define OM_TESTS_PIVOT_CELLTABLE_H_

#include <cstddef>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "backend/OMSException.h"
#include "external/cells/OmCellText.h"
#include "external/cells/OmStringCell.h"
#include "external/settings/BackendSettings.h"
#include "pivot/OmPivotTable.h"
#include "pivot/internal/PivotTableData.h"

namespace om::test {

using Index = std::vector<int>;
using TableOwner = std::unique_ptr<OmPivotTable>;
using internal::PointerVector;

inline internal::PivotTableInternals::Data& dataOf(const OmPivotTable& table) {
  return internal::PivotTableInternals::dataOf(table);
}
inline const PointerVector* rootOf(const OmPivotTable& table) { return dataOf(table).cells.Root(); }

// A table with dimensions "d0", "d1", ... that have no categories.
inline TableOwner makeTable(std::size_t dimensions) {
  auto table = std::make_unique<OmPivotTable>(OmStringCell("title"), OmStringCell("name"), false);
  for (std::size_t i = 0; i < dimensions; ++i) {
    table->AddDimension(OmStringCell("d" + std::to_string(i)));
  }
  return table;
}

inline void addCategories(OmDimension& dimension, unsigned long long count) {
  for (unsigned long long i = 0; i < count; ++i) {
    dimension.AddNewChild(dimension.Root(), OmStringCell("c" + std::to_string(i)), i, false);
  }
}

inline bool store(OmPivotTable& table, const Index& index, const std::string& text) {
  return table.Cell(index, OmStringCell(text));
}
inline bool clear(OmPivotTable& table, const Index& index) { return table.Cell(index, nullptr); }

// Without trackers.
inline void limitCells(OmPivotTable& table, long long limit) {
  BackendSettings settings;
  settings.setFastTables(false);
  settings.setMaxCells(limit);
  table.setBackendSettings(settings);
}

inline std::string textOf(const OmCellText* text) {
  return text != nullptr ? std::string(*text) : "none";
}
inline std::string cellAt(const OmPivotTable& table, const Index& index) {
  return textOf(table.Cell(index));
}

// The cells in the order of iteration, as in "(0,1)=a (2,1)=b".
inline std::string cellsOf(const OmPivotTable& table) {
  std::string cells;
  for (auto at = table.FirstCell(); at.Cell() != nullptr; ++at) {
    cells += cells.empty() ? "(" : " (";
    const Index index = at.Index();
    for (std::size_t i = 0; i < index.size(); ++i) {
      cells += (i == 0 ? "" : ",") + std::to_string(index[i]);
    }
    cells += ")=" + std::string(*at.Cell());
  }
  return cells;
}

// The nodes below `node`, which leads to leaves `depth` levels down, as
// "size/capacity{position:child position:child}", where the child of a leaf is a cell's text.
inline std::string shapeOf(const PointerVector* node, std::size_t depth) {
  if (node == nullptr) return "none";
  std::string shape = std::to_string(node->size()) + "/" + std::to_string(node->capacity()) + "{";
  bool first = true;
  for (std::size_t i = 0; i < node->size(); ++i) {
    const void* const element = (*node)[i];
    if (element == nullptr) continue;
    shape += (first ? "" : " ") + std::to_string(i) + ":";
    shape += depth > 1 ? shapeOf(static_cast<const PointerVector*>(element), depth - 1)
                       : std::string(*static_cast<const OmCellText*>(element));
    first = false;
  }
  return shape + "}";
}
inline std::string shapeOf(const OmPivotTable& table) {
  return shapeOf(rootOf(table), table.NDimensions());
}

// What an operation throws; an empty message when it throws nothing.
struct Thrown {
  std::string message;
  double value1 = 0;
  double value2 = 0;

  bool operator==(const Thrown&) const = default;
  friend std::ostream& operator<<(std::ostream& out, const Thrown& thrown) {
    return out << '"' << thrown.message << "\" (" << thrown.value1 << ", " << thrown.value2 << ")";
  }
};

template <class Operation>
Thrown thrownBy(const Operation& operation) {
  try {
    operation();
  } catch (const OMSException& exception) {
    return {exception.getMessage(), exception.getValue1(), exception.getValue2()};
  }
  return {};
}

}  // namespace om::test

#endif  // OM_TESTS_PIVOT_CELLTABLE_H_
