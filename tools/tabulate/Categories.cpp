#include "tools/tabulate/Categories.h"

#include <algorithm>
#include <unordered_map>

#include "tools/tabulate/Number.h"

namespace om::tabulate {

Categories::Categories(const Tally& tally, std::span<const Dictionary> dictionaries,
                       std::size_t level, std::size_t depth, Order order, bool totals)
    : depth_(depth) {
  build(tally, dictionaries, level);
  sort(order);
  if (totals) addTotals();
  number();
}

void Categories::build(const Tally& tally, std::span<const Dictionary> dictionaries,
                       std::size_t level) {
  const auto addNode = [this](std::string_view label, std::size_t parent, std::size_t at) {
    nodes_.push_back({label, parent, kNone, UINT64_MAX, {}, false, at < depth_});
    levelOfNode_.push_back(at);
    if (parent != kNone) nodes_[parent].children.push_back(nodes_.size() - 1);
    return nodes_.size() - 1;
  };
  addNode({}, kNone, 0);
  std::vector<std::unordered_map<std::uint64_t, std::size_t>> known(depth_);
  leafOfCell_.reserve(tally.size());
  for (std::size_t cell = 0; cell < tally.size(); ++cell) {
    std::size_t node = 0;
    for (std::size_t i = 0; i < depth_; ++i) {
      const Dictionary::Code code = tally.key(cell)[level + i];
      const auto [entry, isNew] = known[i].try_emplace(std::uint64_t{node} << 32 | code, kNone);
      if (isNew) entry->second = addNode(dictionaries[level + i].label(code), node, i + 1);
      node = entry->second;
      nodes_[node].first = std::min(nodes_[node].first, tally.first(cell));
    }
    leafOfCell_.push_back(node);
  }
}

std::vector<char> Categories::numericLevels() const {
  std::vector<char> numeric(depth_ + 1, 1);
  for (std::size_t i = 1; i < nodes_.size(); ++i) {
    const std::string_view label = nodes_[i].label;
    Number number;
    if (!label.empty() && !(isPlainDecimal(label) && parseNumber(label, number))) {
      numeric[levelOfNode_[i]] = 0;
    }
  }
  return numeric;
}

void Categories::sort(Order order) {
  const std::vector<char> numeric =
      order == Order::TYPED ? numericLevels() : std::vector<char>(depth_ + 1, 0);
  std::vector<double> values(nodes_.size());
  for (std::size_t i = 1; i < nodes_.size(); ++i) {
    Number number;
    if (numeric[levelOfNode_[i]] != 0 && parseNumber(nodes_[i].label, number)) {
      values[i] = number.value;
    }
  }
  const auto precedes = [&](std::size_t a, std::size_t b) {
    const std::string_view left = nodes_[a].label;
    const std::string_view right = nodes_[b].label;
    if (order != Order::DATA) {
      if (left.empty() != right.empty()) return left.empty();
      const bool byValue = numeric[levelOfNode_[a]] != 0;
      if (byValue && values[a] != values[b]) return values[a] < values[b];
      if (!byValue && left != right) return left < right;
    }
    return nodes_[a].first < nodes_[b].first;
  };
  for (Node& node : nodes_) std::sort(node.children.begin(), node.children.end(), precedes);
}

void Categories::addTotals() {
  const std::size_t count = nodes_.size();
  for (std::size_t i = 0; i < count; ++i) {
    if (!nodes_[i].isGroup) continue;
    nodes_[i].children.push_back(nodes_.size());
    nodes_.push_back({{}, i, kNone, UINT64_MAX, {}, true, false});
    levelOfNode_.push_back(levelOfNode_[i] + 1);
  }
}

void Categories::number() {
  std::vector<std::size_t> open{0};
  std::vector<std::size_t> totalIn(nodes_.size(), kNone);
  while (!open.empty()) {
    const std::size_t at = open.back();
    open.pop_back();
    Node& node = nodes_[at];
    if (!node.isGroup) {
      node.subscript = leaves_++;
      if (node.isTotal) totalIn[node.parent] = node.subscript;
    }
    open.insert(open.end(), node.children.rbegin(), node.children.rend());
  }
  subscripts_.resize(nodes_.size());
  for (std::size_t i = 0; i < nodes_.size(); ++i) {
    if (nodes_[i].isGroup || nodes_[i].isTotal) continue;
    subscripts_[i].push_back(nodes_[i].subscript);
    for (std::size_t up = nodes_[i].parent; up != kNone; up = nodes_[up].parent) {
      if (totalIn[up] != kNone) subscripts_[i].push_back(totalIn[up]);
    }
  }
}

}  // namespace om::tabulate
