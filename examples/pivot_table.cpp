// Builds a pivot table of two dimensions, checks it, and goes through its cells.

#include <iostream>
#include <string>
#include <vector>

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

}  // namespace

int main() {
  OmPivotTable table(OmStringCell("Admissions"), OmStringCell("Crosstab"), false);
  table.setBackendSettings(BackendSettings());

  addDimension(table, "Gender", {"Women", "Men"});
  addDimension(table, "Outcome", {"Admitted", "Rejected"});
  table.Rows().push_back(0);
  table.Columns().push_back(1);

  const double counts[2][2] = {{557, 1278}, {1198, 1493}};
  for (int gender = 0; gender < 2; ++gender) {
    for (int outcome = 0; outcome < 2; ++outcome) {
      table.Cell({gender, outcome}, OmNumber(counts[gender][outcome]));
    }
  }
  const OmStringCell source("The six largest departments.");
  const int note = table.Footnote(OmFootnote(&source, nullptr, nullptr), false);
  table.Cell({0, 0})->Footnotes().push_back(static_cast<short>(note));
  table.EndTable();

  for (const OmTableFinding& finding : table.validate()) std::cout << finding.Message() << '\n';
  for (const auto& [index, text] : table) {
    std::cout << index[0] << ", " << index[1] << ": " << std::string(text) << '\n';
  }
}
