// What can be wrong with a table.

#include <algorithm>
#include <memory>
#include <set>
#include <utility>

#include "pivot/OmPivotTable.h"
#include "pivot/internal/CellIteration.h"
#include "pivot/internal/PivotTableData.h"

namespace {

using Findings = std::vector<OmTableFinding>;
using Subscripts = std::set<long long>;

std::string dimensionPlace(std::size_t dimension) {
  return "dimension " + std::to_string(dimension);
}

template <class Numbers>
std::string joined(const Numbers& numbers, const char* separator) {
  std::string text;
  for (const auto number : numbers) {
    if (!text.empty()) text += separator;
    text += std::to_string(number);
  }
  return text;
}

// Checks the entries of one axis and counts how often each dimension stands on one.
void checkAxis(const std::string& name, const PuppetVector<short>& axis, std::vector<int>& uses,
               Findings& findings) {
  for (std::size_t i = 0; i < axis.size(); ++i) {
    const short entry = axis[i];
    if (entry == -1) continue;
    const std::string place = name + "[" + std::to_string(i) + "]";
    if (entry < 0 || static_cast<std::size_t>(entry) >= uses.size()) {
      findings.push_back({OmTableFinding::AXIS_ENTRY_WITHOUT_DIMENSION, place, entry});
    } else if (uses[static_cast<std::size_t>(entry)]++ > 0) {
      findings.push_back({OmTableFinding::DIMENSION_ON_AXES_TWICE, place, entry});
    }
  }
}

void checkFootnotes(const std::string& place, const OmCellText* text, std::size_t count,
                    Findings& findings) {
  if (text == nullptr) return;
  for (const short position : text->Footnotes()) {
    if (position >= 0 && static_cast<std::size_t>(position) < count) continue;
    findings.push_back({OmTableFinding::FOOTNOTE_BEYOND_LIST, place, position});
  }
}

// Checks one dimension, and gives the subscripts of its categories.
Subscripts checkDimension(std::size_t position, const OmDimension& dimension, std::size_t footnotes,
                          Findings& findings) {
  const long long size = dimension.NumCategories();
  Subscripts subscripts;
  std::vector<std::size_t> path;  // the positions of the node and its ancestors below the root
  std::vector<const OmDimension::Tree::Entry*> records;  // of the root, ..., the parent, the node
  OmDimension::Tree::Walk(dimension.Root(), [&](const OmDimension::ConstNode& node) {
    const std::size_t depth = node.Depth();
    std::string place = dimensionPlace(position);
    if (depth > 0) {
      const std::size_t offset = path.size() < depth ? 0 : path[depth - 1] + 1;
      path.resize(depth);
      path.back() = offset;
      place += ", node " + joined(path, "/");
      if (node.Record()->parent != records[depth - 1]) {
        findings.push_back({OmTableFinding::STALE_PARENT_LINK, place, 0});
      }
    }
    records.resize(depth);
    records.push_back(node.Record());

    checkFootnotes(place, node->Text(), footnotes, findings);
    if (node->IsGroup() || node.Depth() == 0) return true;

    const auto subscript = static_cast<long long>(node->Subscript());
    if (!subscripts.insert(subscript).second) {
      findings.push_back({OmTableFinding::DUPLICATE_SUBSCRIPT, place, subscript});
    }
    if (subscript < 0 || subscript >= size) {
      findings.push_back({OmTableFinding::SUBSCRIPT_BEYOND_SIZE, place, subscript});
    }
    return true;
  });

  long long next = 0;
  const auto expectNext = [&](long long subscript) {
    if (subscript > next) {
      findings.push_back({OmTableFinding::MISSING_SUBSCRIPT, dimensionPlace(position), next});
    }
    next = subscript + 1;
  };
  for (const long long subscript : subscripts) {
    if (subscript >= 0 && subscript < size) expectNext(subscript);
  }
  expectNext(size);
  return subscripts;
}

}  // namespace

std::vector<OmTableFinding> OmPivotTable::validate() const {
  Findings findings;
  std::vector<int> uses(NDimensions());
  checkAxis("rows", _my->rows, uses, findings);
  checkAxis("columns", _my->columns, uses, findings);
  checkAxis("layers", _my->layers, uses, findings);
  for (std::size_t i = 0; i < uses.size(); ++i) {
    if (uses[i] != 0) continue;
    findings.push_back({OmTableFinding::DIMENSION_ON_NO_AXIS, dimensionPlace(i), 0});
  }

  const std::size_t footnotes = _my->footnotes.size();
  checkFootnotes("label", &Label(), footnotes, findings);
  checkFootnotes("table title", _my->tableTitle.get(), footnotes, findings);
  checkFootnotes("corner text", _my->cornerText.get(), footnotes, findings);
  checkFootnotes("caption", _my->caption.get(), footnotes, findings);

  std::vector<Subscripts> subscripts;
  for (std::size_t i = 0; i < NDimensions(); ++i) {
    subscripts.push_back(checkDimension(i, *_my->dimensions[i], footnotes, findings));
  }

  om::internal::CellIteration at(_my->cells.Root(), SizeVector());
  for (at.Complete(); at.Cell() != nullptr; at.Next()) {
    const std::vector<int>& index = at.Index();
    const std::string place = "cell (" + joined(index, ", ") + ")";
    for (std::size_t i = 0; i < index.size(); ++i) {
      if (subscripts[i].count(index[i]) != 0) continue;
      findings.push_back({OmTableFinding::UNREACHABLE_CELL, place, static_cast<long long>(i)});
    }
    checkFootnotes(place, at.Cell(), footnotes, findings);
  }
  return findings;
}
