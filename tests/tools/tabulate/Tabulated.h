// Tables of a few records, built and read back.

#ifndef OM_TESTS_TOOLS_TABULATE_TABULATED_H_
#define OM_TESTS_TOOLS_TABULATE_TABULATED_H_

#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "tests/tools/tabulate/ReadTable.h"
#include "tools/tabulate/Counting.h"
#include "tools/tabulate/TableBuilder.h"

namespace om::test {

inline tabulate::Counted countText(const std::string& csv, const tabulate::TableRequest& request) {
  std::istringstream stream(csv);
  return tabulate::countRecords(stream, "t.csv", request, [](std::uint64_t) {});
}

inline std::unique_ptr<OmPivotTable> tableOf(const std::string& csv,
                                             const tabulate::TableRequest& request) {
  const tabulate::Counted counted = countText(csv, request);
  return tabulate::buildTable(request, counted);
}

// A request with one dimension for each name.
inline tabulate::TableRequest ask(const std::vector<std::string>& rows,
                                  const std::vector<std::string>& columns = {},
                                  const std::vector<std::string>& layers = {}) {
  using tabulate::Axis;
  tabulate::TableRequest request;
  for (const std::string& name : rows) request.dimensions[Axis::ROWS].push_back({name});
  for (const std::string& name : columns) request.dimensions[Axis::COLUMNS].push_back({name});
  for (const std::string& name : layers) request.dimensions[Axis::LAYERS].push_back({name});
  return request;
}

// "A/x|Count" and so on: the labels of each cell from the outermost row to the innermost layer,
// with the text that it shows.
inline std::map<std::string, std::string> shownCells(const OmPivotTable& table) {
  std::vector<std::map<int, std::string>> labels(table.NDimensions());
  for (int i = 0; i < static_cast<int>(table.NDimensions()); ++i) {
    for (const auto& [path, subscript] : categoriesOf(table.Dimension(i))) {
      std::string& label = labels[static_cast<std::size_t>(i)][subscript];
      for (const std::string& part : path) label += (&part == &path.front() ? "" : "/") + part;
    }
  }
  std::map<std::string, std::string> cells;
  for (const auto& [index, text] : table) {
    std::string key;
    for (const int i : dimensionOrder(table)) {
      key += (key.empty() ? "" : "|") +
             labels[static_cast<std::size_t>(i)].at(index[static_cast<std::size_t>(i)]);
    }
    cells[key] = std::string(text);
  }
  return cells;
}

using Shown = std::map<std::string, std::string>;

}  // namespace om::test

#endif  // OM_TESTS_TOOLS_TABULATE_TABULATED_H_
