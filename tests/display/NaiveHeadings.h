// The layer heading and the two axis headings over a naive layout, with every operation of the
// real ones.

#ifndef OM_TESTS_DISPLAY_NAIVEHEADINGS_H_
#define OM_TESTS_DISPLAY_NAIVEHEADINGS_H_

#include <algorithm>
#include <cstddef>
#include <deque>
#include <utility>
#include <vector>

#include "tests/display/NaiveLayout.h"

namespace om::test {

class NaiveLayers {
 public:
  NaiveLayers(const OmPivotTable& table, bool skipEmpty)
      : layout_(table),
        skipEmpty_(skipEmpty),
        currentCellIndex_(table.NDimensions(), 0),
        dimensions_(headingOrder(table.Layers())),
        positions_(table, dimensions_) {
    for (const short dimension : dimensions_) {
      const NaiveDimensionLayout* const layout = layout_.dimension(dimension);
      if (layout != nullptr) layerLayouts_.push_back(layout);
    }
    NaiveDimensions others = tableOrder(table.Rows());
    const NaiveDimensions columns = tableOrder(table.Columns());
    others.insert(others.end(), columns.begin(), columns.end());
    if (skipEmpty_) {
      nonEmpty_ = layout_.scan(positions_, NaivePositions(table, others), currentCellIndex_);
    }
    layerCount_ = skipEmpty_ ? nonEmpty_.size() : positions_.count();
  }

  const NaiveLayout& layout() const { return layout_; }
  unsigned long long layerCount() const { return layerCount_; }
  int nDimensions() const { return static_cast<int>(dimensions_.size()); }
  int visibleWidth(int position) const {
    const NaiveDimensionLayout* const layout =
        layout_.dimension(dimensions_[static_cast<std::size_t>(position)]);
    return layout != nullptr ? layout->maxVisibleDepth : 0;
  }
  // Lengthens the list to the position.
  int dimensionIndex(int position) {
    const auto place = static_cast<std::size_t>(position);
    if (place >= dimensions_.size()) dimensions_.resize(place + 1, -1);
    return dimensions_[place];
  }

  int layer() const { return static_cast<int>(currentLayer_); }
  bool switchLayer(int layer) {
    if (layer >= 0 && static_cast<unsigned long long>(layer) < layerCount_) {
      currentLayer_ = layer;
      fill(currentCellIndex_);
      return true;
    }
    if (layer == -1) currentLayer_ = -1;
    return false;
  }
  bool nextLayer() { return switchLayer(static_cast<int>(currentLayer_ + 1)); }
  void lastLayer() { switchLayer(static_cast<int>(layerCount_) - 1); }
  int restoreLayer() {
    currentLayer_ = layout_.table.getLayerLoc();
    return layer();
  }

  const std::vector<int>& currentCellIndex() const { return currentCellIndex_; }
  void fill(std::vector<int>& index) const {
    if (hasPosition()) layout_.fill(index, positions_, position());
  }
  NaiveLabels nodes(int position) const {
    const NaivePath* const path = pathAt(position);
    return path != nullptr ? layerLabels(*path) : NaiveLabels();
  }
  void dimAllNodes(int position, std::vector<const NaiveEntry*>& out) const {
    appendPath(pathAt(position), out);
  }
  void dimCatNodes(int position, const NaiveEntry*& root, const NaiveEntry*& category) const {
    const NaivePath* const path = pathAt(position);
    if (path == nullptr || path->size() <= 1) return;
    root = &path->back();
    category = &path->front();
  }

 private:
  // Whether a layer is current and, among those that are not skipped, is there.
  bool hasPosition() const {
    return currentLayer_ >= 0 &&
           (!skipEmpty_ || static_cast<std::size_t>(currentLayer_) < nonEmpty_.size());
  }
  unsigned long long position() const {
    const auto layer = static_cast<unsigned long long>(currentLayer_);
    return skipEmpty_ ? nonEmpty_[layer] : layer;
  }
  // Entries that are no dimensions have no layout, so that the layouts of later ones stand earlier.
  const NaivePath* pathAt(int heading) const {
    const auto k = static_cast<std::size_t>(heading);
    if (!hasPosition() || k >= layerLayouts_.size()) return nullptr;
    NaiveDigits digits;
    positions_.decode(position(), digits);
    return layerLayouts_[k]->path(digits[k]);
  }

  NaiveLayout layout_;
  bool skipEmpty_;
  std::vector<int> currentCellIndex_;
  NaiveDimensions dimensions_;
  NaivePositions positions_;
  std::vector<const NaiveDimensionLayout*> layerLayouts_;
  NaiveNumbers nonEmpty_;
  unsigned long long layerCount_ = 0;
  long long currentLayer_ = -1;
};

// The columns of a table, or its rows.
class NaiveAxis {
 public:
  static NaiveAxis columns(const NaiveLayers& layers, bool skipEmpty) {
    const OmPivotTable& table = layers.layout().table;
    return {layers, table.Columns(), table.Rows(), skipEmpty, false};
  }
  static NaiveAxis rows(const NaiveLayers& layers, bool skipEmpty, bool namesInCorner) {
    const OmPivotTable& table = layers.layout().table;
    NaiveAxis axis(layers, table.Rows(), table.Columns(), skipEmpty, namesInCorner);
    axis.makeCorner();
    return axis;
  }

  int nDimensions() const { return static_cast<int>(dimensions_.size()); }
  int dimensionIndex(int position) {
    const auto place = static_cast<std::size_t>(position);
    if (place >= dimensions_.size()) dimensions_.resize(place + 1, -1);
    return dimensions_[place];
  }
  // With those that are skipped.
  int allPositions() const { return static_cast<int>(positions_.count()); }
  int positionCount() const { return static_cast<int>(positionCount_); }
  int totalLevels() const { return totalLevels_; }
  int levels(int position) const { return levels_[static_cast<std::size_t>(position)]; }

  // The labels of one column (or row).
  NaiveLabels labels(int number) const {
    NaiveDigits digits;
    positions_.decode(shown(number), digits);
    NaiveLabels all;
    for (std::size_t k = 0; k < digits.size(); ++k) {
      const NaiveLabels block = axisLabels(pathAt(k, digits[k]), levels_[k], namesInCorner_);
      all.insert(all.end(), block.begin(), block.end());
    }
    return all;
  }
  // The labels of one level of all columns (or rows).
  NaiveLabels level(int level) const {
    NaiveLabels all;
    for (int j = 0; j < positionCount(); ++j) {
      all.push_back(labels(j)[static_cast<std::size_t>(level)]);
    }
    return all;
  }
  NaiveLabels categories(int number) const {
    NaiveDigits digits;
    positions_.decode(shown(number), digits);
    NaiveLabels all;
    for (std::size_t k = 0; k < digits.size(); ++k) {
      const NaivePath* const path = pathAt(k, digits[k]);
      all.push_back(path != nullptr ? &path->front() : nullptr);
    }
    return all;
  }
  void fill(std::vector<int>& index, int number) const {
    layout_.fill(index, positions_, shown(number));
  }
  void dimAllNodes(int number, std::vector<const NaiveEntry*>& out) const {
    NaiveDigits digits;
    positions_.decode(shownOrAny(number), digits);
    for (std::size_t k = 0; k < digits.size(); ++k) appendPath(pathAt(k, digits[k]), out);
  }
  void dimCatNodes(int number, std::vector<const NaiveEntry*>& roots,
                   std::vector<const NaiveEntry*>& categories) const {
    NaiveDigits digits;
    positions_.decode(shownOrAny(number), digits);
    for (std::size_t k = 0; k < digits.size(); ++k) {
      appendEnds(pathAt(k, digits[k]), roots, categories);
    }
  }
  NaiveNumbers shownPositions() const {
    if (skipEmpty_) return nonEmpty_;
    NaiveNumbers all;
    for (unsigned long long p = 0; p < positionCount_; ++p) all.push_back(p);
    return all;
  }
  const std::vector<const OmCellText*>& cornerTexts() const { return cornerTexts_; }

 private:
  NaiveAxis(const NaiveLayers& layers, const PuppetVector<short>& own,
            const PuppetVector<short>& other, bool skipEmpty, bool namesInCorner)
      : layout_(layers.layout()),
        skipEmpty_(skipEmpty),
        namesInCorner_(namesInCorner),
        dimensions_(headingOrder(own)),
        positions_(layout_.table, dimensions_) {
    if (skipEmpty_) {
      nonEmpty_ = layout_.scan(positions_, NaivePositions(layout_.table, headingOrder(other)),
                               layers.currentCellIndex());
    }
    positionCount_ = skipEmpty_ ? nonEmpty_.size() : positions_.count();
    for (std::size_t k = 0; k < dimensions_.size(); ++k) {
      levels_.push_back(levelCount(k));
      totalLevels_ += levels_.back();
    }
  }

  int levelCount(std::size_t k) const {
    const NaiveDimensionLayout* const layout = layout_.dimension(dimensions_[k]);
    if (layout == nullptr) return 0;
    int levels = layout->maxVisibleDepth;
    if (!nonEmpty_.empty()) {
      std::vector<bool> occurs(static_cast<std::size_t>(positions_.radices[k]));
      NaiveDigits digits;
      for (const unsigned long long position : nonEmpty_) {
        positions_.decode(position, digits);
        occurs[digits[k]] = true;
      }
      levels = 0;
      for (std::size_t leaf = 0; leaf < occurs.size() && levels < layout->maxVisibleDepth; ++leaf) {
        if (occurs[leaf] && leaf < layout->visibleDepth.size()) {
          levels = std::max(levels, layout->visibleDepth[leaf]);
        }
      }
    }
    const bool nameMovesAway = namesInCorner_ && !layout->paths.empty() && levels != 0 &&
                               !layout->paths.front().back()->Hide();
    return nameMovesAway ? levels - 1 : levels;
  }

  void makeCorner() {
    bool placed = false;
    if (!dimensions_.empty() && namesInCorner_) {
      for (std::size_t k = 0; k < dimensions_.size(); ++k) {
        const NaivePath* const path = pathAt(k, 0);
        if (path == nullptr) continue;
        const OmDimensionNode& root = *path->back();
        std::vector<const OmCellText*> block;
        if (!root.Hide()) block.push_back(root.Text());
        block.resize(static_cast<std::size_t>(levels_[k]), nullptr);
        if (!block.empty() && block.front() != nullptr) placed = true;
        cornerTexts_.insert(cornerTexts_.end(), block.begin(), block.end());
      }
    }
    if (positionCount_ != 0 && !placed) {
      cornerTexts_.resize(static_cast<std::size_t>(totalLevels_), nullptr);
      if (totalLevels_ != 0) cornerTexts_.front() = layout_.table.CornerText();
    }
  }

  const NaivePath* pathAt(std::size_t k, unsigned long long digit) const {
    const NaiveDimensionLayout* const layout = layout_.dimension(positions_.dimensions[k]);
    return layout != nullptr ? layout->path(digit) : nullptr;
  }
  unsigned long long shown(int number) const {
    const auto place = static_cast<unsigned long long>(number);
    return skipEmpty_ ? nonEmpty_[place] : place;
  }
  // Beyond the end, the number counts among all positions, the empty ones too.
  unsigned long long shownOrAny(int number) const {
    const auto place = static_cast<unsigned long long>(number);
    return skipEmpty_ && place < nonEmpty_.size() ? nonEmpty_[place] : place;
  }

  const NaiveLayout& layout_;
  bool skipEmpty_;
  bool namesInCorner_;
  NaiveDimensions dimensions_;
  NaivePositions positions_;
  NaiveNumbers nonEmpty_;
  unsigned long long positionCount_ = 0;
  std::vector<int> levels_;
  int totalLevels_ = 0;
  std::vector<const OmCellText*> cornerTexts_;
};

}  // namespace om::test

#endif  // OM_TESTS_DISPLAY_NAIVEHEADINGS_H_
