// Tables for the tests of the display headings, made from a compact text, and what the headings
// show of them as lines of text.

#ifndef OM_TESTS_DISPLAY_DISPLAYTABLE_H_
#define OM_TESTS_DISPLAY_DISPLAYTABLE_H_

#include <algorithm>
#include <cstddef>
#include <deque>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "display/OmDisplayColumnHeading.h"
#include "display/OmDisplayLayerHeading.h"
#include "display/OmDisplayRowHeading.h"
#include "external/cells/OmStringCell.h"
#include "pivot/OmPivotTable.h"
#include "tests/pivot/CellTable.h"

namespace om::test {

using Entry = OmDisplayLayerHeading::ConstNode;
using Entries = std::deque<Entry*>;
using EntryList = std::vector<Entry*>;
using Positions = std::vector<unsigned long long>;

// A dimension as text, as in "Sex(Female Male)". Brackets make a node a group. In front of a name,
// '~' hides the node and '!' its labels. "=5" behind the name of a category is its subscript, which
// otherwise is one more than that of the category before it, 0 at first.
class DimensionText {
 public:
  explicit DimensionText(const std::string& text) : text_(text) {}

  OmDimension& addTo(OmPivotTable& table) {
    const Marks marks = takeMarks();
    OmDimension& dimension = table.AddDimension(OmStringCell(takeName()));
    marks.apply(*dimension.Root());
    takeChildren(dimension, dimension.Root());
    if (at_ != text_.size()) throw std::invalid_argument("more than a dimension: " + text_);
    return dimension;
  }

 private:
  struct Marks {
    bool hide = false;
    bool hideLabels = false;

    void apply(OmDimensionNode& node) const {
      node.Hide(hide);
      node.HideLabels(hideLabels);
    }
  };

  char next() const { return at_ < text_.size() ? text_[at_] : '\0'; }
  bool take(char wanted) {
    const bool found = next() == wanted;
    at_ += found ? 1 : 0;
    return found;
  }
  Marks takeMarks() {
    Marks marks;
    marks.hide = take('~');
    marks.hideLabels = take('!');
    return marks;
  }
  std::string takeName() {
    const std::size_t end = std::min(text_.find_first_of("~!=() ", at_), text_.size());
    if (end == at_) throw std::invalid_argument("no name in " + text_);
    const std::size_t begin = at_;
    at_ = end;
    return text_.substr(begin, end - begin);
  }
  void takeChildren(OmDimension& dimension, const OmDimension::Node& parent) {
    if (!take('(')) throw std::invalid_argument("no bracket in " + text_);
    while (!take(')')) {
      if (take(' ')) continue;
      const Marks marks = takeMarks();
      const OmStringCell name(takeName());
      const bool isGroup = next() == '(';
      if (take('=')) subscript_ = std::stoull(takeName());
      const OmDimension::Node child =
          dimension.AddNewChild(parent, name, isGroup ? ~0ULL : subscript_, isGroup);
      marks.apply(*child);
      if (isGroup) {
        takeChildren(dimension, child);
      } else {
        ++subscript_;
      }
    }
  }

  std::string text_;
  std::size_t at_ = 0;
  unsigned long long subscript_ = 0;
};

struct TableText {
  std::vector<std::string> dimensions = {};
  std::vector<short> rows = {};
  std::vector<short> columns = {};
  std::vector<short> layers = {};
  std::vector<Index> cells = {};
};

// "0,1,2" for the cell at (0, 1, 2).
inline std::string textOfIndex(const Index& index) {
  std::string text;
  for (const int subscript : index) text += (text.empty() ? "" : ",") + std::to_string(subscript);
  return text;
}

// Every cell holds its index as text.
inline void storeAt(OmPivotTable& table, const std::vector<Index>& cells) {
  for (const Index& index : cells) store(table, index, textOfIndex(index));
}

inline TableOwner tableOf(const TableText& text) {
  TableOwner table = makeTable(0);
  for (const std::string& dimension : text.dimensions) DimensionText(dimension).addTo(*table);
  for (const short entry : text.rows) table->Rows().push_back(entry);
  for (const short entry : text.columns) table->Columns().push_back(entry);
  for (const short entry : text.layers) table->Layers().push_back(entry);
  storeAt(*table, text.cells);
  return table;
}

// As in "R(r0 r1 r2)" for ("R", "r", 3).
inline std::string flat(const std::string& name, const std::string& category, std::size_t count) {
  std::string text = name + "(";
  for (std::size_t i = 0; i < count; ++i) {
    text += (i == 0 ? "" : " ") + category + std::to_string(i);
  }
  return text + ")";
}

// Leaves the links of what is below the siblings that move up as they are.
inline void deleteChild(OmDimension& dimension, const OmDimension::Node& parent,
                        std::size_t position) {
  OmDimension::Node child = parent.ChildAt(position);
  dimension.Delete(child);
}
inline void deleteChild(OmDimension& dimension, std::size_t position) {
  deleteChild(dimension, dimension.Root(), position);
}

inline std::string labelOf(const Entry* entry) {
  return entry != nullptr ? std::string(*(*entry)->Text()) : "-";
}

// The labels side by side, "-" for a null entry.
template <class List>
std::string labelsOf(const List& entries) {
  std::string labels;
  for (const Entry* const entry : entries) {
    if (!labels.empty()) labels += ' ';
    labels += labelOf(entry);
  }
  return labels;
}

// Lines of texts that are padded so that each stands under the one above it.
inline std::string alignedText(const std::vector<std::vector<std::string>>& lines) {
  std::vector<std::size_t> widths;
  for (const auto& line : lines) {
    widths.resize(std::max(widths.size(), line.size()));
    for (std::size_t i = 0; i < line.size(); ++i) widths[i] = std::max(widths[i], line[i].size());
  }
  std::string text;
  for (std::size_t l = 0; l < lines.size(); ++l) {
    if (l > 0) text += '\n';
    for (std::size_t i = 0; i < lines[l].size(); ++i) {
      text += lines[l][i];
      if (i + 1 == lines[l].size()) break;
      text.append(widths[i] + 1 - lines[l][i].size(), ' ');
    }
  }
  return text;
}

// The labels of a column or row heading as they stand on paper, "-" for an empty place; "2 x 0" for
// two rows of no columns. A heading whose rows say something else than its columns has no grid.
template <class Heading>
std::string gridOf(const Heading& heading) {
  std::vector<Entries> rows;
  std::vector<Entries> columns;
  for (int i = 0; i < heading.NRows(); ++i) rows.push_back(heading.Row(i));
  for (int i = 0; i < heading.NColumns(); ++i) columns.push_back(heading.Column(i));
  std::vector<std::vector<std::string>> lines;
  for (std::size_t row = 0; row < rows.size(); ++row) {
    if (rows[row].size() != columns.size()) return "a row of another length than NColumns()";
    lines.emplace_back();
    for (std::size_t column = 0; column < columns.size(); ++column) {
      if (columns[column].size() != rows.size()) return "a column of another length than NRows()";
      if (rows[row][column] != columns[column][row]) return "a row that differs from a column";
      lines.back().push_back(labelOf(rows[row][column]));
    }
  }
  if (!rows.empty() && !columns.empty()) return alignedText(lines);
  return std::to_string(rows.size()) + " x " + std::to_string(columns.size());
}

inline std::string cornerOf(const OmDisplayRowHeading& rows) {
  std::string corner;
  for (const OmCellText* const text : rows.CornerText()) {
    if (!corner.empty()) corner += ' ';
    corner += text != nullptr ? std::string(*text) : "-";
  }
  return corner;
}

// What stands in an index that held `kUntouched` everywhere after it was filled.
constexpr int kUntouched = -7;

template <class Heading>
Index filled(const Heading& heading, int position) {
  Index index(heading.Table().NDimensions(), kUntouched);
  heading.Fill(index, position);
  return index;
}
inline Index filled(const OmDisplayLayerHeading& layers) {
  Index index(layers.Table().NDimensions(), kUntouched);
  layers.Fill(index);
  return index;
}

// The cell indexes of all layers from the next one on, as in "0,1 2,1". Stops after one too many.
inline std::string layersOf(OmDisplayLayerHeading& layers) {
  std::string all;
  for (unsigned long long i = 0; i <= layers.NLayers() && layers.NextLayer(); ++i) {
    all += (all.empty() ? "" : " ") + textOfIndex(layers.getCurrentCellIndex());
  }
  return all;
}

// The cells of the current layer as they stand on paper, "-" where there is none.
inline std::string bodyOf(const OmDisplayLayerHeading& layers, const OmDisplayRowHeading& rows,
                          const OmDisplayColumnHeading& columns) {
  std::vector<std::vector<std::string>> lines;
  Index index;
  for (int row = 0; row < rows.NRows(); ++row) {
    lines.emplace_back();
    for (int column = 0; column < columns.NColumns(); ++column) {
      layers.Fill(index);
      rows.Fill(index, row);
      columns.Fill(index, column);
      const OmCellText* const cell = layers.Table().Cell(index);
      lines.back().push_back(cell != nullptr ? std::string(*cell) : "-");
    }
  }
  return alignedText(lines);
}

// A layer heading with the column heading that is built on it, for tests of the latter. It keeps a
// table that is handed over.
struct Columns {
  explicit Columns(const TableOwner& table, bool skipEmpty = false)
      : layers(*table, false), heading(layers, skipEmpty) {}
  explicit Columns(TableOwner&& table, bool skipEmpty = false)
      : owned(std::move(table)), layers(*owned, false), heading(layers, skipEmpty) {}
  const OmDisplayColumnHeading* operator->() const { return &heading; }
  const OmDisplayColumnHeading& operator*() const { return heading; }

  TableOwner owned;
  OmDisplayLayerHeading layers;
  OmDisplayColumnHeading heading;
};

// The same for a row heading.
struct Rows {
  explicit Rows(const TableOwner& table, bool skipEmpty = false, bool namesInCorner = false)
      : layers(*table, false), heading(layers, skipEmpty, namesInCorner) {}
  explicit Rows(TableOwner&& table, bool skipEmpty = false, bool namesInCorner = false)
      : owned(std::move(table)), layers(*owned, false), heading(layers, skipEmpty, namesInCorner) {}
  const OmDisplayRowHeading* operator->() const { return &heading; }
  const OmDisplayRowHeading& operator*() const { return heading; }

  TableOwner owned;
  OmDisplayLayerHeading layers;
  OmDisplayRowHeading heading;
};

}  // namespace om::test

#endif  // OM_TESTS_DISPLAY_DISPLAYTABLE_H_
