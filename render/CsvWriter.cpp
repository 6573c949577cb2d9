#include "render/CsvWriter.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <map>
#include <optional>
#include <set>
#include <utility>
#include <vector>

#include "pivot/OmPivotTable.h"
#include "render/DocumentWalk.h"
#include "render/internal/ByteSink.h"
#include "render/internal/CellText.h"
#include "render/internal/CsvDimension.h"
#include "render/internal/CsvField.h"
#include "render/internal/ShownText.h"

namespace om::render {

namespace {

using internal::ByteSink;
using internal::CsvDimension;
using internal::CsvField;

constexpr std::array<const char*, 3> kAxisNames = {"layer", "row", "column"};

// How many dimensions stand on the layers, the rows and the columns.
using AxisSizes = std::array<std::size_t, 3>;

std::array<const PuppetVector<short>*, 3> axesOf(const OmPivotTable& table) {
  return {&table.Layers(), &table.Rows(), &table.Columns()};
}

std::string fieldName(std::size_t axis, std::size_t position) {
  return kAxisNames[axis] + std::to_string(position + 1);
}

class MostDimensions : public DocumentWalk {
 public:
  explicit MostDimensions(const OmOutputTree& document) { walk(document); }
  const AxisSizes& sizes() const { return sizes_; }

 private:
  void table(OmPivotTable& table, int) override {
    const auto axes = axesOf(table);
    for (std::size_t a = 0; a < axes.size(); ++a) sizes_[a] = std::max(sizes_[a], axes[a]->size());
  }

  AxisSizes sizes_{};
};

// The records of one table.
class TableRecords {
 public:
  // With `sizes`, the columns are those of a document.
  TableRecords(OmPivotTable& table, std::size_t number, const CsvOptions& options,
               const std::optional<AxisSizes>& sizes, ByteSink& sink)
      : table_(table),
        options_(options),
        sizes_(sizes),
        sink_(sink),
        field_(options.guardFormulas) {
    const auto axes = axesOf(table);
    for (std::size_t a = 0; a < axes.size(); ++a) {
      for (std::size_t k = axes[a]->size(); k-- != 0;)
        positions_[a].push_back(fields((*axes[a])[k]));
    }
    for (const Axis axis : {ROWS, COLUMNS}) isSure_[axis] = isToldBySubscripts(axis);
    start_ = std::to_string(number) + ',';
    start_ += field_(std::string(titleOf(table)));
    start_ += ',';
  }

  void writeNames() {
    std::set<std::string> taken = {"table", "title", "text", "number", "notes"};
    sink_.put("table,title,");
    for (std::size_t a = 0; a < positions_.size(); ++a) {
      for (std::size_t k = 0; k < positions_[a].size(); ++k) {
        const CsvDimension* const dimension = positions_[a][k];
        const std::string name = dimension != nullptr && !dimension->name().empty()
                                     ? dimension->name()
                                     : fieldName(a, k);
        std::string unique = name;
        for (int i = 2; !taken.insert(unique).second; ++i) {
          unique = name + " (" + std::to_string(i) + ')';
        }
        sink_.put(field_(unique));
        sink_.put(',');
      }
    }
    sink_.put("text,number,notes");
    endRecord();
  }

  void writeCells() {
    for (LayerWalk walk(table_, options_.tables.of(table_)); sink_.ok() && walk.next();)
      writeLayer(walk);
  }

 private:
  enum Axis : std::size_t { LAYERS, ROWS, COLUMNS };

  // Null where there is no such dimension.
  const CsvDimension* fields(short which) {
    if (which < 0 || static_cast<std::size_t>(which) >= table_.NDimensions()) return nullptr;
    auto found = dimensions_.find(which);
    if (found == dimensions_.end()) {
      const OmDimension& dimension = std::as_const(table_).Dimension(which);
      found = dimensions_.try_emplace(which, which, dimension, options_).first;
    }
    return &found->second;
  }

  // `fieldOf` gives the field of the category at a position of the axis, which has a dimension.
  void addFields(Axis axis, const auto& fieldOf, std::string& record) const {
    const auto& positions = positions_[axis];
    for (std::size_t k = 0; k < positions.size(); ++k) {
      const CsvDimension* const dimension = positions[k];
      if (sizes_) record += dimension != nullptr ? dimension->nameField() : ",";
      record += dimension != nullptr ? fieldOf(k) : ",";
    }
    if (sizes_) record.append(2 * ((*sizes_)[axis] - positions.size()), ',');
  }

  void addLayer(const TableView& view, std::string& record) const {
    const auto fieldOf = [&](std::size_t k) -> const std::string& {
      const CsvDimension& dimension = *positions_[LAYERS][k];
      for (const TableView::LayerLabel& label : view.layerLabels()) {
        if (label.dimension == dimension.root()) return dimension.field(label.category);
      }
      return dimension.field(nullptr);
    };
    addFields(LAYERS, fieldOf, record);
  }

  // The categories of a row or column are told by subscripts where that is possible, which takes
  // less time than their paths.
  bool isToldBySubscripts(Axis axis) const {
    const auto& positions = positions_[axis];
    const bool areSure = std::all_of(
        positions.begin(), positions.end(),
        [](const CsvDimension* dimension) { return dimension != nullptr && dimension->isSure(); });
    return areSure && std::set(positions.begin(), positions.end()).size() == positions.size();
  }

  void addPlace(const TableView& view, Axis axis, const TableView::Place& place,
                std::string& record) {
    if (isSure_[axis]) {
      view.indexOf(place, index_);
      const auto fieldOf = [&](std::size_t k) -> const std::string& {
        const CsvDimension& dimension = *positions_[axis][k];
        return dimension.field(index_[dimension.number()]);
      };
      return addFields(axis, fieldOf, record);
    }
    const auto paths = axis == ROWS ? view.rowPaths(place.row) : view.columnPaths(place.column);
    const auto fieldOf = [&](std::size_t k) -> const std::string& {
      return positions_[axis][k]->field(paths[k].empty() ? nullptr : paths[k].back());
    };
    addFields(axis, fieldOf, record);
  }

  void writeLayer(const LayerWalk& walk) {
    const TableView& view = walk.view();
    std::string layer = start_;
    addLayer(view, layer);
    std::vector<std::string> columns(view.rowCount() != 0 ? view.columnCount() : 0);
    for (std::uint64_t column = 0; column < columns.size(); ++column) {
      addPlace(view, COLUMNS, {0, column}, columns[column]);
    }
    std::vector<const OmCellText*> cells;
    std::string record;
    for (std::uint64_t row = 0; row < view.rowCount() && sink_.ok(); ++row) {
      view.row(row, cells);
      record.clear();
      internal::visitRow(cells, [&](std::size_t column) {
        if (cells[column] == nullptr) return;
        if (record.empty()) addPlace(view, ROWS, {row, 0}, record = layer);
        sink_.put(record);
        sink_.put(columns[column]);
        writeCell(*cells[column], walk.marks());
      });
    }
  }

  void writeCell(const OmCellText& cell, const FootnoteMarks& marks) {
    const OmNumber* const number = internal::numberOf(&cell);
    if (number == &cell) {
      writeText(*number);
    } else {
      sink_.put(field_(read_(&cell)));
    }
    sink_.put(',');
    if (number != nullptr) sink_.putNumber(number->Value());
    sink_.put(',');
    if (!marks.notes().empty()) sink_.put(field_(marks.marksOf(&cell)));
    endRecord();
  }

  // The string form of a finite number is never a formula, and needs quotes for its commas only.
  void writeText(const OmNumber& number) {
    number_.assign(number);
    const std::string_view text = number_.view();
    const bool quoted = number.DisplayFormat().grouping && text.find(',') != text.npos;
    if (quoted) sink_.put('"');
    sink_.put(text);
    if (quoted) sink_.put('"');
  }

  void endRecord() {
    if (options_.crlf) sink_.put('\r');
    sink_.put('\n');
  }

  OmPivotTable& table_;
  const CsvOptions& options_;
  const std::optional<AxisSizes>& sizes_;
  ByteSink& sink_;
  CsvField field_;
  internal::TextReader read_;
  internal::NumberText number_;
  std::map<short, CsvDimension> dimensions_;
  std::array<std::vector<const CsvDimension*>, 3> positions_;  // of the axes, outermost first
  std::array<bool, 3> isSure_{};                               // whether subscripts are enough
  std::string start_;
  std::vector<int> index_;  // of the last cell, to have room for it
};

class CsvDocument : public DocumentWalk {
 public:
  CsvDocument(const CsvOptions& options, const AxisSizes& sizes, ByteSink& sink)
      : options_(options), sizes_(sizes), sink_(sink) {
    sink_.put("table,title,");
    for (std::size_t a = 0; a < sizes.size(); ++a) {
      for (std::size_t k = 0; k < sizes[a]; ++k) {
        sink_.put(fieldName(a, k) + "_dimension," + fieldName(a, k) + ',');
      }
    }
    sink_.put(options.crlf ? "text,number,notes\r\n" : "text,number,notes\n");
  }

 private:
  void table(OmPivotTable& table, int) override {
    TableRecords(table, ++tables_, options_, sizes_, sink_).writeCells();
  }
  bool isDone() const override { return !sink_.ok(); }

  const CsvOptions& options_;
  const std::optional<AxisSizes> sizes_;
  ByteSink& sink_;
  std::size_t tables_ = 0;
};

}  // namespace

void writeCsv(const OmOutputTree& document, std::ostream& out, const CsvOptions& options) {
  ByteSink sink(out);
  CsvDocument(options, MostDimensions(document).sizes(), sink).walk(document);
  sink.flush();
}

void writeCsv(OmPivotTable& table, std::ostream& out, const CsvOptions& options) {
  ByteSink sink(out);
  const std::optional<AxisSizes> byName;
  TableRecords records(table, 1, options, byName, sink);
  records.writeNames();
  records.writeCells();
  sink.flush();
}

}  // namespace om::render
