// Lays out a pivot table layer by layer and prints each as a grid: labels, corner and cells.

#include <iomanip>
#include <iostream>
#include <string>
#include <vector>

#include "display/OmDisplayColumnHeading.h"
#include "display/OmDisplayLayerHeading.h"
#include "display/OmDisplayRowHeading.h"
#include "external/cells/OmNumber.h"
#include "external/cells/OmStringCell.h"
#include "pivot/OmPivotTable.h"

namespace {

// Adds a dimension with its categories; the subscripts are 0, 1, 2 ...
void addDimension(OmPivotTable& table, const char* name, const std::vector<const char*>& labels) {
  OmDimension& dimension = table.AddDimension(OmStringCell(name));
  unsigned long long subscript = 0;
  for (const char* const label : labels) {
    dimension.AddNewChild(dimension.Root(), OmStringCell(label), subscript++, false);
  }
}

void write(const OmCellText* text) {
  std::cout << std::left << std::setw(11) << (text != nullptr ? std::string(*text) : "");
}

void writeLabel(const OmDisplayLayerHeading::ConstNode* entry) {
  write(entry != nullptr ? (*entry)->Text() : nullptr);
}

void writeGrid(OmDisplayLayerHeading& layers) {
  const OmDisplayRowHeading rows(layers, true, true);
  const OmDisplayColumnHeading columns(layers, true);

  for (int line = 0; line < columns.NRows(); ++line) {
    const bool last = line + 1 == columns.NRows();
    for (const OmCellText* const text : rows.CornerText()) write(last ? text : nullptr);
    for (const auto* const entry : columns.Row(line)) writeLabel(entry);
    std::cout << '\n';
  }
  std::vector<int> index;
  layers.Fill(index);
  for (int row = 0; row < rows.NRows(); ++row) {
    for (const auto* const entry : rows.Row(row)) writeLabel(entry);
    rows.Fill(index, row);
    for (int column = 0; column < columns.NColumns(); ++column) {
      columns.Fill(index, column);
      write(layers.Table().Cell(index));
    }
    std::cout << '\n';
  }
}

}  // namespace

int main() {
  OmPivotTable table(OmStringCell("Admissions"), OmStringCell("Crosstab"), false);
  addDimension(table, "Gender", {"Women", "Men", "Unknown"});
  addDimension(table, "Outcome", {"Admitted", "Rejected"});
  addDimension(table, "Department", {"A", "B"});
  table.Rows().push_back(0);
  table.Columns().push_back(1);
  table.Layers().push_back(2);

  const double counts[2][2][2] = {{{89, 17}, {19, 8}}, {{512, 353}, {313, 207}}};
  for (int gender = 0; gender < 2; ++gender) {
    for (int outcome = 0; outcome < 2; ++outcome) {
      for (int department = 0; department < 2; ++department) {
        table.Cell({gender, outcome, department}, OmNumber(counts[gender][outcome][department]));
      }
    }
  }

  OmDisplayLayerHeading layers(table, true);
  while (layers.NextLayer()) {
    for (const auto* const entry : layers.Nodes(0)) writeLabel(entry);
    std::cout << '\n';
    writeGrid(layers);
  }
}
