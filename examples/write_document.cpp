// Writes a document with a table as text, and as a page when it is told a file name.

#include <fstream>
#include <iostream>
#include <memory>
#include <utility>

#include "external/cells/OmNumber.h"
#include "external/cells/OmStringCell.h"
#include "output/OmOutputTree.h"
#include "pivot/OmPivotTable.h"
#include "render/HtmlWriter.h"
#include "render/TextWriter.h"

namespace {

std::unique_ptr<OmPivotTable> makeTable() {
  auto table = std::make_unique<OmPivotTable>(OmStringCell("Penguins"), OmStringCell(""), false);
  OmDimension& islands = table->AddDimension(OmStringCell("Island"));
  islands.AddNewChild(islands.Root(), OmStringCell("Biscoe"), 0, false);
  islands.AddNewChild(islands.Root(), OmStringCell("Dream"), 1, false);
  OmDimension& species = table->AddDimension(OmStringCell("Species"));
  species.AddNewChild(species.Root(), OmStringCell("Adelie"), 0, false);
  species.AddNewChild(species.Root(), OmStringCell("Chinstrap"), 1, false);
  species.AddNewChild(species.Root(), OmStringCell("Gentoo"), 2, false);
  table->Rows().push_back(0);
  table->Columns().push_back(1);
  table->Cell({0, 0}, OmNumber(44));
  table->Cell({0, 2}, OmNumber(124));
  table->Cell({1, 0}, OmNumber(56));
  table->Cell({1, 1}, OmNumber(68));
  return table;
}

}  // namespace

int main(int argc, char** argv) {
  OmOutputTree document;
  document.Append(document.Root(), makeTable());
  om::render::writeText(document, std::cout, {.width = 100});
  if (argc == 2) {
    std::ofstream page(argv[1]);
    om::render::writeHtml(document, page, {.title = "Penguins"});
    if (!page.flush()) return 1;
  }
  return 0;
}
