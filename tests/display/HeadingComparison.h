// The headings of one table beside naive ones: everything that can be asked of them, in every
// layer. What differs first is kept as a text.

#ifndef OM_TESTS_DISPLAY_HEADINGCOMPARISON_H_
#define OM_TESTS_DISPLAY_HEADINGCOMPARISON_H_

#include <algorithm>
#include <cstddef>
#include <deque>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "display/OmDisplayColumnHeading.h"
#include "display/OmDisplayLayerHeading.h"
#include "display/OmDisplayRowHeading.h"
#include "tests/display/NaiveHeadings.h"
#include "tests/support/Asserts.h"
#include "tests/support/Oracle.h"

namespace om::test {

// How often what was met.
struct HeadingTally {
  std::size_t tables = 0;
  std::size_t sparseTables = 0;  // with cells
  std::size_t gridPositions = 0;
  std::size_t cells = 0;             // among them
  std::size_t denseScans = 0;        // of an axis, in a table with cells
  std::size_t sparseScans = 0;       // the same
  std::size_t skippedPositions = 0;  // of an axis
  std::size_t surplusPositions = 0;  // without a category
  std::size_t unseenCells = 0;       // sparse scans that found none of the cells
  std::size_t layersOutOfRange = 0;
  std::size_t reports = 0;
};

// A column heading and a row heading under common names.
class AxisHeading {
 public:
  AxisHeading(OmDisplayLayerHeading& layers, bool skipEmpty)
      : columns_(new Columns(layers, skipEmpty)) {}
  AxisHeading(OmDisplayLayerHeading& layers, bool skipEmpty, bool namesInCorner)
      : rows_(new Rows(layers, skipEmpty, namesInCorner)) {}

  OmPivotTable& table() const { return rows_ ? rows_->Table() : columns_->Table(); }
  bool skipEmpty() const { return rows_ ? rows_->SkipEmpty() : columns_->SkipEmpty(); }
  int nDimensions() const { return rows_ ? rows_->NDimensions() : columns_->NDimensions(); }
  int dimensionIndex(int k) const {
    return rows_ ? rows_->getDimensionIndex(k) : columns_->getDimensionIndex(k);
  }
  int positionCount() const { return rows_ ? rows_->NRows() : columns_->NColumns(); }
  int totalLevels() const { return rows_ ? rows_->NColumns() : columns_->NRows(); }
  int levels(int k) const { return rows_ ? rows_->VisibleWidth(k) : columns_->VisibleHeight(k); }
  auto labels(int j) const { return rows_ ? rows_->Row(j) : columns_->Column(j); }
  auto level(int level) const { return rows_ ? rows_->Column(level) : columns_->Row(level); }
  auto categories(int j) const {
    return rows_ ? rows_->RowCategories(j) : columns_->ColumnCategories(j);
  }
  void fill(std::vector<int>& index, int j) const {
    rows_ ? rows_->Fill(index, j) : columns_->Fill(index, j);
  }
  void dimAllNodes(int j, std::vector<NaiveEntry*>& out) const {
    rows_ ? rows_->DimAllNodes(j, out) : columns_->DimAllNodes(j, out);
  }
  void dimCatNodes(int j, std::vector<NaiveEntry*>& roots,
                   std::vector<NaiveEntry*>& categories) const {
    rows_ ? rows_->DimCatNodes(j, roots, categories) : columns_->DimCatNodes(j, roots, categories);
  }
  const NaiveNumbers& shownPositions() const {
    return rows_ ? rows_->getNonEmptyRows() : columns_->getNonEmptyColumns();
  }
  const OmDisplayRowHeading* rows() const { return rows_.get(); }

 private:
  using Columns = OmDisplayColumnHeading;
  using Rows = OmDisplayRowHeading;

  std::unique_ptr<Columns> columns_;
  std::unique_ptr<Rows> rows_;
};

class HeadingComparison {
 public:
  HeadingComparison(OmPivotTable& table, Random& random, HeadingTally& tally)
      : table_(table),
        random_(random),
        tally_(tally),
        skipEmptyLayers_(random.oneIn(2)),
        real_(table, skipEmptyLayers_),
        naive_(table, skipEmptyLayers_) {}

  // What differs first; empty when nothing does.
  const std::string& run();

 private:
  using Entries = std::vector<NaiveEntry*>;
  using NaiveEntriesOut = std::vector<const NaiveEntry*>;

  void same(bool isSame, const char* what) {
    if (!isSame && difference_.empty()) difference_ = what;
  }
  // Calls both; they must report the same.
  template <class Real, class Naive>
  void both(const char* what, const Real& real, const Naive& naive) {
    const AssertCollector ofReal;
    real();
    const AssertCollector ofNaive;
    naive();
    same(ofReal.reports() == ofNaive.reports(), what);
    tally_.reports += ofNaive.reports().size();
  }
  static bool isSame(const NaiveEntry* real, const NaiveEntry* naive) {
    if (real == nullptr || naive == nullptr) return real == naive;
    return real->Record() == naive->Record() && real->Depth() == naive->Depth();
  }
  template <class Real, class Naive>
  static bool areSame(const Real& real, const Naive& naive) {
    return std::equal(real.begin(), real.end(), naive.begin(), naive.end(),
                      [](const NaiveEntry* a, const NaiveEntry* b) { return isSame(a, b); });
  }
  // A cell index that is filled already, now and then of another length.
  std::vector<int> anyIndex() {
    std::vector<int> index(random_.oneIn(8) ? random_.below(7) : table_.NDimensions());
    for (int& subscript : index) subscript = static_cast<int>(random_.below(4));
    return index;
  }

  void compareLayerHeading();
  void compareLayer();
  void lengthen();
  void compareGrid();
  void compareAxis(const AxisHeading& real, NaiveAxis& naive, bool skipEmpty);
  void comparePositions(const AxisHeading& real, const NaiveAxis& naive);
  void compareNodes(const AxisHeading& real, const NaiveAxis& naive, int position);
  void compareCells(const AxisHeading& rows, const NaiveAxis& naiveRows, const AxisHeading& columns,
                    const NaiveAxis& naiveColumns);

  OmPivotTable& table_;
  Random& random_;
  HeadingTally& tally_;
  bool skipEmptyLayers_;
  OmDisplayLayerHeading real_;
  NaiveLayers naive_;
  std::string difference_;
};

inline const std::string& HeadingComparison::run() {
  ++tally_.tables;
  if (naive_.layout().sparse && table_.FirstCell().Cell() != nullptr) ++tally_.sparseTables;
  compareLayerHeading();
  compareLayer();
  if (random_.oneIn(3)) compareGrid();
  for (bool isThere = true; isThere && difference_.empty();) {
    isThere = naive_.nextLayer();
    same(real_.NextLayer() == isThere, "NextLayer");
    compareLayer();
    if (isThere) compareGrid();
  }
  for (int i = 0; i < 3 && difference_.empty(); ++i) {
    const int count = static_cast<int>(std::min<unsigned long long>(naive_.layerCount(), 1000));
    const int layer = static_cast<int>(random_.below(static_cast<std::size_t>(count) + 4)) - 2;
    same(real_.SwitchLayer(layer) == naive_.switchLayer(layer), "SwitchLayer");
    compareLayer();
  }
  same(real_.restoreLayer() == naive_.restoreLayer(), "restoreLayer");
  compareLayer();
  if (random_.oneIn(2)) lengthen();
  if (random_.oneIn(2)) compareGrid();  // of the layer that was selected before
  same(real_.SwitchLayer(real_.restoreLayer()) == naive_.switchLayer(naive_.restoreLayer()),
       "SwitchLayer(restoreLayer)");
  compareLayer();
  if (random_.oneIn(2)) compareGrid();
  same(real_.NextLayer() == naive_.nextLayer(), "NextLayer behind restoreLayer");
  compareLayer();
  real_.LastLayer();
  naive_.lastLayer();
  compareLayer();
  return difference_;
}

inline void HeadingComparison::compareLayerHeading() {
  same(&real_.Table() == &table_, "Table");
  same(real_.SkipEmpty() == skipEmptyLayers_, "SkipEmpty");
  same(real_.NLayers() == naive_.layerCount(), "NLayers");
  same(real_.NDimensions() == naive_.nDimensions(), "NDimensions");
  for (int k = 0; k < naive_.nDimensions(); ++k) {
    same(real_.getDimensionIndex(k) == naive_.dimensionIndex(k), "getDimensionIndex");
    same(real_.VisibleWidth(k) == naive_.visibleWidth(k), "VisibleWidth of a layer dimension");
  }
}

inline void HeadingComparison::compareLayer() {
  if (!difference_.empty()) return;
  same(real_.getLayer() == naive_.layer(), "getLayer");
  same(real_.getCurrentCellIndex() == naive_.currentCellIndex(), "getCurrentCellIndex");
  if (naive_.layer() >= 0 &&
      static_cast<unsigned long long>(naive_.layer()) >= naive_.layerCount()) {
    ++tally_.layersOutOfRange;
  }
  std::vector<int> index = anyIndex();
  std::vector<int> naiveIndex = index;
  both(
      "reports of a layer's Fill", [&] { real_.Fill(index); }, [&] { naive_.fill(naiveIndex); });
  same(index == naiveIndex, "Fill of a layer");

  Entries all(random_.below(2), nullptr);
  NaiveEntriesOut naiveAll(all.size(), nullptr);
  for (int k = 0; k < naive_.nDimensions(); ++k) {
    std::deque<NaiveEntry*> nodes;
    NaiveLabels naiveNodes;
    both(
        "reports of Nodes", [&] { nodes = real_.Nodes(k); }, [&] { naiveNodes = naive_.nodes(k); });
    same(areSame(nodes, naiveNodes), "Nodes");
    both(
        "reports of a layer's DimAllNodes", [&] { real_.DimAllNodes(k, all); },
        [&] { naive_.dimAllNodes(k, naiveAll); });
    NaiveEntry untouched;
    NaiveEntry* root = &untouched;
    NaiveEntry* category = &untouched;
    const NaiveEntry* naiveRoot = &untouched;
    const NaiveEntry* naiveCategory = &untouched;
    both(
        "reports of a layer's DimCatNodes", [&] { real_.DimCatNodes(k, root, category); },
        [&] { naive_.dimCatNodes(k, naiveRoot, naiveCategory); });
    same(isSame(root, naiveRoot) && isSame(category, naiveCategory), "DimCatNodes of a layer");
  }
  real_.DimAllNodes(naive_.nDimensions() + 1, all);
  same(areSame(all, naiveAll), "DimAllNodes of a layer");
}

inline void HeadingComparison::lengthen() {
  const int beyond = naive_.nDimensions() + static_cast<int>(random_.below(3));
  same(real_.VisibleWidth(beyond) == 0, "VisibleWidth beyond the end");
  same(real_.NDimensions() == naive_.nDimensions(), "NDimensions, as VisibleWidth leaves it");
  if (random_.oneIn(2)) {
    same(real_.Nodes(beyond).empty(), "Nodes beyond the end");
    naive_.dimensionIndex(beyond);
    same(real_.NDimensions() == naive_.nDimensions(), "NDimensions of a list lengthened by Nodes");
  }
  same(real_.getDimensionIndex(beyond) == naive_.dimensionIndex(beyond),
       "getDimensionIndex beyond the end");
  same(real_.NDimensions() == naive_.nDimensions(), "NDimensions of a lengthened list");
  same(real_.VisibleWidth(beyond) == 0, "VisibleWidth of a lengthened list");
  compareLayer();
}

// Column and row headings for what is current in the layer heading.
inline void HeadingComparison::compareGrid() {
  if (!difference_.empty()) return;
  const bool skipColumns = random_.oneIn(2);
  const bool skipRows = random_.oneIn(2);
  const bool corner = random_.oneIn(2);
  const AxisHeading columns(real_, skipColumns);
  NaiveAxis naiveColumns = NaiveAxis::columns(naive_, skipColumns);
  compareAxis(columns, naiveColumns, skipColumns);
  const AxisHeading rows(real_, skipRows, corner);
  NaiveAxis naiveRows = NaiveAxis::rows(naive_, skipRows, corner);
  compareAxis(rows, naiveRows, skipRows);
  same(rows.rows()->DimNamesInCorner() == corner, "DimNamesInCorner");
  same(rows.rows()->CornerText() == naiveRows.cornerTexts(), "CornerText");
  if (difference_.empty()) compareCells(rows, naiveRows, columns, naiveColumns);
}

inline void HeadingComparison::compareAxis(const AxisHeading& real, NaiveAxis& naive,
                                           bool skipEmpty) {
  if (!difference_.empty()) return;
  same(&real.table() == &table_, "Table of an axis");
  same(real.skipEmpty() == skipEmpty, "SkipEmpty of an axis");
  same(real.nDimensions() == naive.nDimensions(), "NDimensions of an axis");
  for (int k = 0; k < naive.nDimensions(); ++k) {
    same(real.dimensionIndex(k) == naive.dimensionIndex(k), "getDimensionIndex of an axis");
    same(real.levels(k) == naive.levels(k), "the number of levels of a dimension");
  }
  if (random_.oneIn(8)) {
    const int beyond = naive.nDimensions() + static_cast<int>(random_.below(3));
    same(real.dimensionIndex(beyond) == naive.dimensionIndex(beyond),
         "getDimensionIndex of an axis beyond the end");
    same(real.nDimensions() == naive.nDimensions(), "NDimensions of a lengthened axis");
  }
  same(real.totalLevels() == naive.totalLevels(), "the number of levels");
  same(real.positionCount() == naive.positionCount(), "the number of positions");
  if (!difference_.empty()) return;
  comparePositions(real, naive);
  same(real.shownPositions() == naive.shownPositions(), "the positions shown");

  if (!skipEmpty) return;
  tally_.skippedPositions +=
      static_cast<std::size_t>(naive.allPositions()) - naive.shownPositions().size();
  const bool hasCells = table_.FirstCell().Cell() != nullptr;
  if (!hasCells) return;
  const bool sparse = naive_.layout().sparse;
  ++(sparse ? tally_.sparseScans : tally_.denseScans);
  if (sparse && naive.positionCount() == 0) ++tally_.unseenCells;
}

// A level has that entry of each position's labels.
inline void HeadingComparison::comparePositions(const AxisHeading& real, const NaiveAxis& naive) {
  std::vector<std::deque<NaiveEntry*>> levels;
  for (int level = 0; level < naive.totalLevels(); ++level) {
    levels.push_back(real.level(level));
    same(levels.back().size() == static_cast<std::size_t>(naive.positionCount()),
         "the length of a level");
  }
  for (int j = 0; j < naive.positionCount() && difference_.empty(); ++j) {
    const NaiveLabels labels = naive.labels(j);
    same(areSame(real.labels(j), labels), "the labels of a position");
    for (std::size_t level = 0; level < levels.size(); ++level) {
      same(isSame(levels[level][static_cast<std::size_t>(j)], labels[level]),
           "the labels of a level");
    }
    const NaiveLabels categories = naive.categories(j);
    same(areSame(real.categories(j), categories), "the categories of a position");
    if (std::find(categories.begin(), categories.end(), nullptr) != categories.end()) {
      ++tally_.surplusPositions;
    }
    if (random_.oneIn(3)) compareNodes(real, naive, j);
  }
  for (int i = 0; i < 3; ++i) {
    compareNodes(real, naive, naive.positionCount() + static_cast<int>(random_.below(200)));
  }
}

inline void HeadingComparison::compareNodes(const AxisHeading& real, const NaiveAxis& naive,
                                            int position) {
  Entries all(random_.below(2), nullptr);
  NaiveEntriesOut naiveAll(all.size(), nullptr);
  both(
      "reports of DimAllNodes", [&] { real.dimAllNodes(position, all); },
      [&] { naive.dimAllNodes(position, naiveAll); });
  same(areSame(all, naiveAll), "DimAllNodes of a position");
  Entries roots(random_.below(2), nullptr);
  Entries categories;
  NaiveEntriesOut naiveRoots(roots.size(), nullptr);
  NaiveEntriesOut naiveCategories;
  both(
      "reports of DimCatNodes", [&] { real.dimCatNodes(position, roots, categories); },
      [&] { naive.dimCatNodes(position, naiveRoots, naiveCategories); });
  same(areSame(roots, naiveRoots) && areSame(categories, naiveCategories),
       "DimCatNodes of a position");
}

// Both axes fill an index that the layer has filled, or one that holds anything.
inline void HeadingComparison::compareCells(const AxisHeading& rows, const NaiveAxis& naiveRows,
                                            const AxisHeading& columns,
                                            const NaiveAxis& naiveColumns) {
  const AssertCollector known;  // of a layer out of range, whose Fill has been compared
  const std::vector<int> start = anyIndex();
  std::vector<int> index;
  std::vector<int> naiveIndex;
  for (int i = 0; i < naiveRows.positionCount(); ++i) {
    for (int j = 0; j < naiveColumns.positionCount(); ++j) {
      index = start;
      naiveIndex = start;
      real_.Fill(index);
      rows.fill(index, i);
      columns.fill(index, j);
      naive_.fill(naiveIndex);
      naiveRows.fill(naiveIndex, i);
      naiveColumns.fill(naiveIndex, j);
      ++tally_.gridPositions;
      if (index != naiveIndex) return same(false, "the cell index of a place in the grid");
      const OmCellText* const cell = table_.Cell(index);
      if (cell != table_.Cell(naiveIndex)) return same(false, "the cell of a place in the grid");
      if (cell != nullptr) ++tally_.cells;
    }
  }
}

}  // namespace om::test

#endif  // OM_TESTS_DISPLAY_HEADINGCOMPARISON_H_
