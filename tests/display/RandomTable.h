// Random tables for the display headings: trees of every shape with hidden nodes and labels, groups
// without children, categories below categories, more categories than leaves, subscripts that
// several leaves share or that lie far out, axes with entries of -1 and with dimensions listed
// twice or not at all, and cells in anything from none to all of the places, some where no leaf is.

#ifndef OM_TESTS_DISPLAY_RANDOMTABLE_H_
#define OM_TESTS_DISPLAY_RANDOMTABLE_H_

#include <algorithm>
#include <cstddef>
#include <limits>
#include <memory>
#include <string>
#include <vector>

#include "external/cells/OmStringCell.h"
#include "pivot/OmPivotTable.h"
#include "tests/support/Oracle.h"

namespace om::test {

class RandomTable {
 public:
  explicit RandomTable(Random& random) : random_(random) {
    do {
      table_ = std::make_unique<OmPivotTable>(OmStringCell("title"), OmStringCell("name"), false);
      calm_ = random_.oneIn(4);
      hasManyPlaces_ = random_.oneIn(7);
      addDimensions();
      addAxes();
    } while (places() > kMostPlaces);
    addCells();
    if (random_.oneIn(2)) {
      const OmStringCell corner("corner");
      table_->CornerText(&corner);
    }
    table_->setLayerLoc(layer());
  }

  OmPivotTable& table() { return *table_; }

  // The axes, the categories and the cells, to be read after a failure.
  std::string text() const;

 private:
  using Node = OmDimension::Node;
  static constexpr std::size_t kMostPlaces = 2000;
  static constexpr std::uint32_t kDeepest = 4;

  std::size_t places() const;
  void addDimensions();
  void grow(OmDimension& dimension, const Node& parent, std::size_t leaves);
  void add(OmDimension& dimension, const Node& parent);
  unsigned long long subscript();
  void changeFlags(OmDimension& dimension);
  void deleteSome(OmDimension& dimension);
  void addAxes();
  void addCells();
  void addCellsFor(const std::vector<std::vector<int>>& subscripts, std::size_t perMille);
  std::vector<int> strayIndex();
  int layer();

  static std::vector<Node> nodesOf(OmDimension& dimension) {
    std::vector<Node> nodes;
    OmDimension::Tree::Walk(dimension.Root(), [&](const Node& node) {
      nodes.push_back(node);
      return true;
    });
    return nodes;
  }
  bool oneInUnlessCalm(std::size_t n) { return random_.oneIn(n) && !calm_; }

  Random& random_;
  std::unique_ptr<OmPivotTable> table_;
  bool calm_ = false;
  bool hasManyPlaces_ = false;
  bool mixedSubscripts_ = false;
  unsigned long long nextSubscript_ = 0;
};

// The larger of the places of cells and of the positions of the axes.
inline std::size_t RandomTable::places() const {
  const std::vector<int> sizes = table_->SizeVector();
  std::size_t cells = 1;
  for (const int size : sizes) cells *= static_cast<std::size_t>(size);
  std::size_t positions = 1;
  for (const auto* axis : {&table_->Rows(), &table_->Columns(), &table_->Layers()}) {
    for (const short d : *axis) {
      const auto place = static_cast<std::size_t>(d);
      if (d >= 0 && place < sizes.size()) positions *= static_cast<std::size_t>(sizes[place]);
    }
  }
  return std::max(cells, positions);
}

inline void RandomTable::addDimensions() {
  std::size_t left = hasManyPlaces_ ? 150 + random_.below(450) : 1 + random_.below(60);
  const std::size_t count = hasManyPlaces_ ? 2 + random_.below(4) : random_.below(6);
  for (std::size_t i = 0; i < count; ++i) {
    OmDimension& dimension = table_->AddDimension(OmStringCell("d" + std::to_string(i)));
    const std::size_t most = std::min<std::size_t>(left, hasManyPlaces_ ? 30 : 8);
    std::size_t leaves = random_.oneIn(20) ? 0 : 1 + random_.below(most);
    if (hasManyPlaces_ && i + 1 == count) leaves = std::min<std::size_t>(left, 60);
    left = std::max<std::size_t>(1, left / std::max<std::size_t>(1, leaves));
    nextSubscript_ = 0;
    mixedSubscripts_ = random_.oneIn(5);
    grow(dimension, dimension.Root(), leaves);
    changeFlags(dimension);
    if (random_.oneIn(5)) deleteSome(dimension);
  }
}

// Leaves and groups in any order; some groups have no children, some leaves have.
inline void RandomTable::grow(OmDimension& dimension, const Node& parent, std::size_t leaves) {
  std::size_t position = parent.ChildCount();
  while (leaves != 0) {
    const bool asGroup = parent.Depth() + 1 < kDeepest && random_.oneIn(3);
    if (!asGroup) {
      add(dimension, parent);
      if (oneInUnlessCalm(30)) add(dimension, parent.ChildAt(position));
      --leaves;
    } else {
      dimension.AddNewChild(parent, OmStringCell("g"), ~0ULL, true);
      const std::size_t below = random_.below(leaves + 1);
      grow(dimension, parent.ChildAt(position), below);
      leaves -= below;
    }
    ++position;
  }
}

inline void RandomTable::add(OmDimension& dimension, const Node& parent) {
  dimension.AddNewChild(parent, OmStringCell("c"), subscript(), false);
}

// In order; or in any order with some missing, some for several leaves, and some far out. What does
// not fit into 32 bits counts by its low ones.
inline unsigned long long RandomTable::subscript() {
  const unsigned long long inOrder = nextSubscript_++;
  if (!mixedSubscripts_) return inOrder;
  if (random_.oneIn(40)) return 20 + random_.below(300);
  if (random_.oneIn(200)) return 0x1'0000'0000ULL + random_.below(6);
  return random_.oneIn(3) ? random_.below(8) : inOrder;
}

inline void RandomTable::changeFlags(OmDimension& dimension) {
  if (calm_) return;
  const std::size_t rarity = 3 + random_.below(12);
  for (const Node& node : nodesOf(dimension)) {
    node->Hide(random_.oneIn(rarity));
    node->HideLabels(random_.oneIn(node->IsGroup() ? rarity : 20));
    if (random_.oneIn(60)) {
      // A category without a place of its own, or a group that counted for none.
      if (node->IsGroup()) node->Subscript(random_.below(6));
      node->IsGroup(!node->IsGroup());
    }
  }
}

// What is deleted leaves a gap unless it is the last.
inline void RandomTable::deleteSome(OmDimension& dimension) {
  for (std::size_t i = 1 + random_.below(2); i > 0; --i) {
    const std::vector<Node> nodes = nodesOf(dimension);
    if (nodes.size() < 2) return;
    Node deleted = nodes[1 + random_.below(nodes.size() - 1)];
    dimension.Delete(deleted);
    OmDimension::Tree::Reparent(*dimension.Root().Record(), true);
  }
}

inline void RandomTable::addAxes() {
  PuppetVector<short>* const axes[] = {&table_->Rows(), &table_->Columns(), &table_->Layers()};
  std::vector<short> entries;
  for (std::size_t d = 0; d < table_->NDimensions(); ++d) {
    if (!random_.oneIn(15)) entries.push_back(static_cast<short>(d));
    if (random_.oneIn(25)) entries.push_back(static_cast<short>(d));
  }
  if (random_.oneIn(8)) entries.push_back(-1);
  if (random_.oneIn(12)) entries.push_back(-1);
  if (random_.oneIn(60)) {
    entries.push_back(static_cast<short>(table_->NDimensions() + random_.below(3)));
  }
  while (!entries.empty()) {
    const std::size_t drawn = random_.below(entries.size());
    const std::size_t axis = random_.below(5);  // layers less often
    axes[axis / 2]->push_back(entries[drawn]);
    entries.erase(entries.begin() + static_cast<std::ptrdiff_t>(drawn));
  }
}

inline void RandomTable::addCells() {
  if (table_->NDimensions() == 0) return;
  std::vector<std::vector<int>> subscripts;
  for (std::size_t d = 0; d < table_->NDimensions(); ++d) {
    std::vector<int>& along = subscripts.emplace_back();
    const std::size_t kept = random_.oneIn(3) ? 2 : 1000;  // or else some leaves have no cells
    for (const Node& node : nodesOf(table_->Dimension(static_cast<int>(d)))) {
      if (!node->IsGroup() && (kept == 1000 || random_.oneIn(kept))) {
        along.push_back(static_cast<int>(node->Subscript()));
      }
    }
  }
  static constexpr std::size_t kPerMilleOfMany[] = {1, 2, 5, 5, 8, 20, 100, 1000};
  static constexpr std::size_t kPerMilleOfFew[] = {0, 20, 100, 300, 500, 900, 1000, 1000};
  addCellsFor(subscripts, (hasManyPlaces_ ? kPerMilleOfMany : kPerMilleOfFew)[random_.below(8)]);
  const std::size_t strays = random_.oneIn(2) ? 0 : random_.below(4);
  for (std::size_t i = 0; i < strays; ++i) table_->Cell(strayIndex(), OmStringCell("x"));
  if (random_.oneIn(4)) {
    for (std::size_t i = random_.below(6); i > 0; --i) {
      const auto first = table_->FirstCell();
      const std::vector<int> index =
          random_.oneIn(3) && first.Cell() != nullptr ? first.Index() : strayIndex();
      if (random_.oneIn(2)) {
        table_->Cell(index, nullptr);
      } else {
        table_->deleteCell(index);
      }
    }
  }
}

inline void RandomTable::addCellsFor(const std::vector<std::vector<int>>& subscripts,
                                     std::size_t perMille) {
  std::size_t count = perMille == 0 ? 0 : 1;
  for (const std::vector<int>& along : subscripts) count *= along.size();
  const OmStringCell text("x");
  std::vector<int> index(subscripts.size());
  for (std::size_t place = 0; place < count; ++place) {
    if (perMille != 1000 && random_.below(1000) >= perMille) continue;
    std::size_t rest = place;
    for (std::size_t d = 0; d < index.size(); ++d) {
      index[d] = subscripts[d][rest % subscripts[d].size()];
      rest /= subscripts[d].size();
    }
    table_->Cell(index, text);
  }
}

// Near the leaves, but perhaps where there is none.
inline std::vector<int> RandomTable::strayIndex() {
  std::vector<int> index;
  for (const int size : table_->SizeVector()) {
    index.push_back(static_cast<int>(random_.below(static_cast<std::size_t>(size) + 2)));
    if (random_.oneIn(50)) index.back() += 300;
  }
  return index;
}

inline int RandomTable::layer() {
  if (random_.oneIn(20)) return random_.oneIn(2) ? -5 : std::numeric_limits<int>::max();
  return static_cast<int>(random_.below(random_.oneIn(3) ? 200 : 8)) - 1;
}

inline std::string RandomTable::text() const {
  std::string text;
  const auto addAxis = [&text](const char* name, const PuppetVector<short>& axis) {
    text += name;
    for (const short d : axis) text += " " + std::to_string(d);
    text += "\n";
  };
  addAxis("rows", table_->Rows());
  addAxis("columns", table_->Columns());
  addAxis("layers", table_->Layers());
  text += "stored layer " + std::to_string(table_->getLayerLoc()) + "\n";
  for (std::size_t d = 0; d < table_->NDimensions(); ++d) {
    OmDimension& dimension = table_->Dimension(static_cast<int>(d));
    text += "size " + std::to_string(dimension.NumCategories()) + "\n";
    for (const Node& node : nodesOf(dimension)) {
      text += std::string(2 + 2 * node.Depth(), ' ') + std::string(*node->Text());
      text += node->IsGroup() ? " group" : " " + std::to_string(node->Subscript());
      text += std::string(node->Hide() ? " hidden" : "") + (node->HideLabels() ? " no labels" : "");
      text += "\n";
    }
  }
  std::size_t listed = 0;
  text += "cells";
  for (auto at = table_->FirstCell(); at.Cell() != nullptr && listed < 100; ++at, ++listed) {
    text += " (";
    for (const int subscript : at.Index()) text += " " + std::to_string(subscript);
    text += " )";
  }
  return text + (listed == 100 ? " ...\n" : "\n");
}

}  // namespace om::test

#endif  // OM_TESTS_DISPLAY_RANDOMTABLE_H_
