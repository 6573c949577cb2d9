// The dumps of a table.

#include <iostream>

#include "pivot/OmPivotTable.h"
#include "pivot/internal/PivotTableData.h"

void OmPivotTable::Print() const {
  const std::string title = *_my->tableTitle;
  std::cout << "Starting table " << title << std::endl;
  for (const OmDimension* const dimension : _my->dimensions) dimension->Print();
  std::cout << "Cells" << std::endl;
  for (ConstIterator at = FirstCell(); at.Cell() != nullptr; ++at) {
    std::cout << std::string(*at.Cell()) << std::endl;
  }
  if (_my->cornerText) std::cout << "  Corner Text: " << std::string(*_my->cornerText) << std::endl;
  if (_my->caption) std::cout << "  Caption: " << std::string(*_my->caption) << std::endl;
  if (!_my->footnotes.empty()) std::cout << "  Footnotes" << std::endl;
  for (const OmFootnote& footnote : _my->footnotes) {
    std::cout << "      ";
    if (footnote.Text() != nullptr) std::cout << std::string(*footnote.Text());
    std::cout << std::endl;
  }
  std::cout << "Done with table " << title << std::endl;
}

// The index of the node itself deliberately stands at every level; those above it are not shown.
void OmPivotTable::PrintCells(PointerVector* node, std::size_t depth, std::size_t index) const {
  for (std::size_t level = 0; level < depth; ++level) std::cout << "    [" << index << "] ";
  std::cout << static_cast<const void*>(node);
  if (depth >= NDimensions()) {
    const void* const element = node;
    if (element != nullptr) {
      std::cout << " - " << std::string(*static_cast<const OmCellText*>(element));
    }
    std::cout << std::endl;
    return;
  }
  std::cout << std::endl;
  if (node == nullptr) return;
  for (std::size_t i = 0; i < node->size(); ++i) {
    PrintCells(static_cast<PointerVector*>((*node)[i]), depth + 1, i);
  }
}
