// Reads a table that was built back into plain lists and maps, by the labels of its categories
// alone.

#ifndef OM_TESTS_TOOLS_TABULATE_READTABLE_H_
#define OM_TESTS_TOOLS_TABULATE_READTABLE_H_

#include <map>
#include <stdexcept>
#include <string>
#include <vector>

#include "external/cells/OmNumber.h"
#include "pivot/OmPivotTable.h"

namespace om::test {

using Path = std::vector<std::string>;

// The label paths of a dimension's categories as they stand, without the dimension's name.
inline std::vector<std::pair<Path, int>> categoriesOf(const OmDimension& dimension) {
  std::vector<std::pair<Path, int>> result;
  Path path;
  const auto visit = [&](const auto& self, const OmDimension::ConstNode& node) -> void {
    for (std::size_t i = 0; i < node.ChildCount(); ++i) {
      const OmDimension::ConstNode child = node.ChildAt(i);
      path.push_back(std::string(*child->Text()));
      if (child->IsGroup()) {
        self(self, child);
      } else {
        result.emplace_back(path, static_cast<int>(child->Subscript()));
      }
      path.pop_back();
    }
  };
  visit(visit, dimension.Root());
  return result;
}

// The paths alone.
inline std::vector<Path> pathsOf(const OmDimension& dimension) {
  std::vector<Path> paths;
  for (const auto& [path, subscript] : categoriesOf(dimension)) paths.push_back(path);
  return paths;
}

// The numbers of the cells by the paths of their categories, dimension after dimension, in the
// order of `dimensions`, which lists all of the table's.
inline std::map<std::vector<Path>, double> cellsOf(const OmPivotTable& table,
                                                   const std::vector<int>& dimensions) {
  std::vector<std::map<int, Path>> labels(table.NDimensions());
  for (int i = 0; i < static_cast<int>(table.NDimensions()); ++i) {
    for (const auto& [path, subscript] : categoriesOf(table.Dimension(i))) {
      labels[static_cast<std::size_t>(i)][subscript] = path;
    }
  }
  std::map<std::vector<Path>, double> cells;
  for (const auto& [index, text] : table) {
    std::vector<Path> key;
    for (const int i : dimensions) {
      key.push_back(labels[static_cast<std::size_t>(i)].at(index[static_cast<std::size_t>(i)]));
    }
    if (!cells.emplace(key, dynamic_cast<const OmNumber&>(text).Value()).second) {
      throw std::runtime_error("two cells have the same labels");
    }
  }
  return cells;
}

// The positions of the dimensions from the outermost row to the innermost layer.
inline std::vector<int> dimensionOrder(const OmPivotTable& table) {
  std::vector<int> order;
  for (const PuppetVector<short>* const axis : {&table.Rows(), &table.Columns(), &table.Layers()}) {
    for (std::size_t i = axis->size(); i > 0; --i) order.push_back((*axis)[i - 1]);
  }
  return order;
}

}  // namespace om::test

#endif  // OM_TESTS_TOOLS_TABULATE_READTABLE_H_
