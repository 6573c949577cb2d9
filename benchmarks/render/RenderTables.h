// The tables that the rendering benchmarks build and write: dense ones as `tabulate` makes them,
// with three nested row variables, and two dimensions on the columns.
//
//                             | class 1         | class 2 ...
//   Region   | Area  | Town   | Count |  Mean   | Count | ...
//   Region 1 | Area 1| Town 1 | 1,204 |  17.25  |

#ifndef OM_BENCHMARKS_RENDER_RENDERTABLES_H_
#define OM_BENCHMARKS_RENDER_RENDERTABLES_H_

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "external/cells/OmNumber.h"
#include "external/cells/OmStringCell.h"
#include "pivot/OmPivotTable.h"

namespace om::bench {

struct RenderShape {
  int regions;
  int areas;
  int towns;
  int classes;

  std::size_t rows() const { return static_cast<std::size_t>(regions * areas * towns); }
  std::size_t cells() const { return rows() * static_cast<std::size_t>(classes) * 2; }
};

inline constexpr RenderShape kSmallShape{10, 20, 30, 7};   // 84,000 cells
inline constexpr RenderShape kLargeShape{20, 25, 40, 25};  // 10^6 cells

enum class Content {
  COUNTS,            // of two sexes
  COUNTS_AND_MEANS,  // half of the numbers have a fraction with all the digits of a double
};

// Any numbers, but always the same.
inline std::uint64_t scrambled(std::uint64_t number) {
  number = (number + 1) * 0x9E3779B97F4A7C15;
  number = (number ^ (number >> 30)) * 0xBF58476D1CE4E5B9;
  return number ^ (number >> 31);
}

inline OmNumber numberAt(std::uint64_t cell, Content content) {
  const std::uint64_t random = scrambled(cell);
  if (content == Content::COUNTS_AND_MEANS && cell % 2 == 1) {
    return OmNumber(static_cast<double>(random % 1'000'000) / 700, {2, false, false});
  }
  const std::uint64_t root = random % 160;  // most counts are small
  return OmNumber(static_cast<double>(root * root), {0, false, true});
}

inline void addDimension(OmPivotTable& table, const std::string& name,
                         const std::vector<std::string>& labels) {
  OmDimension& dimension = table.AddDimension(OmStringCell(name));
  for (std::size_t i = 0; i < labels.size(); ++i) {
    dimension.AddNewChild(dimension.Root(), OmStringCell(labels[i]), i, false);
  }
}

inline std::vector<std::string> numbered(const std::string& name, int count) {
  std::vector<std::string> labels;
  for (int i = 1; i <= count; ++i) labels.push_back(name + ' ' + std::to_string(i));
  return labels;
}

// Calls visit(index, number) for each cell in the order of the store, row by row.
void visitNumbers(const RenderShape& shape, Content content, const auto& visit) {
  std::vector<int> index(5);
  std::uint64_t cell = 0;
  for (int& region = index[4] = 0; region < shape.regions; ++region) {
    for (int& area = index[3] = 0; area < shape.areas; ++area) {
      for (int& town = index[2] = 0; town < shape.towns; ++town) {
        for (int& type = index[1] = 0; type < shape.classes; ++type) {
          for (int& inner = index[0] = 0; inner < 2; ++inner) {
            visit(index, numberAt(cell++, content));
          }
        }
      }
    }
  }
}

inline std::unique_ptr<OmPivotTable> renderTable(const RenderShape& shape, Content content) {
  auto table = std::make_unique<OmPivotTable>(OmStringCell("Inhabitants by place and class"),
                                              OmStringCell("Tabulation"), false);
  BackendSettings settings;
  settings.setMaxCells(static_cast<long long>(shape.cells()));
  table->setBackendSettings(settings);
  if (content == Content::COUNTS) {
    addDimension(*table, "Sex", {"Female", "Male"});
  } else {
    addDimension(*table, "Statistics", {"Count", "Mean"});
  }
  addDimension(*table, "Class", numbered("Class", shape.classes));
  addDimension(*table, "Town", numbered("Town", shape.towns));
  addDimension(*table, "Area", numbered("Area", shape.areas));
  addDimension(*table, "Region", numbered("Region", shape.regions));
  for (short i = 0; i < 5; ++i) (i < 2 ? table->Columns() : table->Rows()).push_back(i);
  visitNumbers(shape, content, [&](const std::vector<int>& index, const OmNumber& number) {
    table->Cell(index, number);
  });
  table->EndTable();
  return table;
}

}  // namespace om::bench

#endif  // OM_BENCHMARKS_RENDER_RENDERTABLES_H_
