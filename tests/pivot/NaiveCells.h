// A cell store that takes its rules literally: the nodes with their sizes and capacities as a tree
// of maps, the cells besides in one map by their index.

#ifndef OM_TESTS_PIVOT_NAIVECELLS_H_
#define OM_TESTS_PIVOT_NAIVECELLS_H_

#include <algorithm>
#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace om::test {

using NaiveIndex = std::vector<int>;

struct NaiveCell {
  std::string text;
  std::string meta;  // empty for none

  bool operator==(const NaiveCell&) const = default;
};

struct NaiveNode {
  std::size_t size = 0;
  std::size_t capacity = 0;
  std::map<int, NaiveNode> children;  // of an inner node
  std::map<int, std::string> cells;   // of a leaf

  // Makes room for exactly one more than k beyond twice the capacity, then adds nulls one by one.
  void reach(std::size_t k) {
    if (2 * capacity < k) capacity = k + 1;
    while (size <= k) {
      if (size == capacity) {
        capacity = 4;
        while (capacity <= size) capacity *= 2;
      }
      ++size;
    }
  }

  bool allNull() const { return children.empty() && cells.empty(); }

  // As shapeOf has it.
  std::string shape() const {
    std::string shape = std::to_string(size) + "/" + std::to_string(capacity) + "{";
    const char* separator = "";
    for (const auto& [position, child] : children) {
      shape += std::exchange(separator, " ") + std::to_string(position) + ":" + child.shape();
    }
    for (const auto& [position, text] : cells) {
      shape += std::exchange(separator, " ") + std::to_string(position) + ":" + text;
    }
    return shape + "}";
  }
};

class NaiveCells {
 public:
  // Dimension 0 fastest.
  struct Order {
    bool operator()(const NaiveIndex& a, const NaiveIndex& b) const {
      return std::lexicographical_compare(a.rbegin(), a.rend(), b.rbegin(), b.rend());
    }
  };
  using Cells = std::map<NaiveIndex, NaiveCell, Order>;

  std::size_t dimensions = 0;
  long count = 0;
  long long limit = 0;
  bool scratched = false;

  // Null for none.
  const NaiveCell* find(const NaiveIndex& index) const {
    const auto found = cells_.find(index);
    return found != cells_.end() ? &found->second : nullptr;
  }

  // Whether the store is let through; it counts in any case.
  bool admit() {
    const long long before = count++;
    if (before <= limit) return true;
    scratched = true;
    return false;
  }

  void store(const NaiveIndex& index, std::optional<NaiveCell> cell) {
    if (!root_) root_.emplace();
    NaiveNode* node = &*root_;
    for (std::size_t i = index.size() - 1; i > 0; --i) {
      node->reach(static_cast<std::size_t>(index[i]));
      node = &node->children[index[i]];
    }
    node->reach(static_cast<std::size_t>(index[0]));
    if (!cell) {
      node->cells.erase(index[0]);
      cells_.erase(index);
      return;
    }
    node->cells[index[0]] = cell->text;
    if (const NaiveCell* const former = find(index); former != nullptr && !former->meta.empty()) {
      cell->meta = former->meta;
    }
    cells_[index] = std::move(*cell);
  }

  void erase(const NaiveIndex& index) {
    if (!root_ || index.size() != dimensions) return;
    NaiveNode* leaf = &*root_;
    for (std::size_t i = index.size() - 1; i > 0; --i) {
      const auto child = leaf->children.find(index[i]);
      if (child == leaf->children.end()) return;
      leaf = &child->second;
    }
    // A place beyond the end of its leaf is left alone, and so is the way to it.
    if (index[0] < 0 || static_cast<std::size_t>(index[0]) >= leaf->size) return;
    leaf->cells.erase(index[0]);
    cells_.erase(index);
    while (pruneOne(index)) {
    }
  }

  void addLevel() {
    ++dimensions;
    if (root_) {
      NaiveNode above;
      above.reach(0);
      above.children.emplace(0, std::move(*root_));
      root_ = std::move(above);
    }
    Cells moved;
    for (auto& [index, cell] : cells_) {
      NaiveIndex longer = index;
      longer.push_back(0);
      moved.emplace(std::move(longer), std::move(cell));
    }
    cells_ = std::move(moved);
  }

  // The cells that an iteration visits: none when the first way ends without a cell.
  const Cells& iterated() const {
    static const Cells none;
    if (!root_) return none;
    const NaiveNode* node = &*root_;
    for (std::size_t i = dimensions - 1; i > 0; --i) {
      if (node->children.empty()) return none;
      node = &node->children.begin()->second;
    }
    return node->cells.empty() ? none : cells_;
  }

  const Cells& cells() const { return cells_; }
  std::string shape() const { return root_ ? root_->shape() : "none"; }

 private:
  bool pruneOne(const NaiveIndex& index) {
    NaiveNode* node = &*root_;
    for (std::size_t i = index.size() - 1; i > 0; --i) {
      const auto child = node->children.find(index[i]);
      if (child == node->children.end()) return false;
      if (child->second.allNull()) {
        node->children.erase(child);
        return true;
      }
      node = &child->second;
    }
    return false;
  }

  std::optional<NaiveNode> root_;
  Cells cells_;
};

}  // namespace om::test

#endif  // OM_TESTS_PIVOT_NAIVECELLS_H_
