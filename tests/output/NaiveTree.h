// A tree of nested nodes, each owning its children: what the oracle of the output tree compares it
// with. It names the parts that an operation deletes and never touches them.

#ifndef OM_TESTS_OUTPUT_NAIVETREE_H_
#define OM_TESTS_OUTPUT_NAIVETREE_H_

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "output/OmOutputPart.h"

namespace om::test {

struct NaiveNode {
  NaiveNode(OmOutputPart* thePart, std::string theLabel, NaiveNode* theParent)
      : part(thePart), label(std::move(theLabel)), parent(theParent) {}

  using Children = std::vector<std::unique_ptr<NaiveNode>>;

  OmOutputPart* part;
  std::string label;  // empty for a null item
  bool block = false;
  NaiveNode* parent;
  Children children;

  std::string name() const { return part == nullptr ? "-" : block ? "[" + label + "]" : label; }
  int level() const { return parent == nullptr ? 0 : parent->level() + 1; }
  std::size_t place() const {
    const auto isThis = [this](const auto& node) { return node.get() == this; };
    const auto found = std::find_if(parent->children.begin(), parent->children.end(), isThis);
    return static_cast<std::size_t>(found - parent->children.begin());
  }
  // The subtree in pre-order.
  void collect(std::vector<NaiveNode*>& nodes) {
    nodes.push_back(this);
    for (const auto& child : children) child->collect(nodes);
  }
  // The labels in the order in which Prune deletes the parts.
  void writeDeaths(std::vector<std::string>& labels) const {
    for (const auto& child : children) child->writeDeaths(labels);
    if (part != nullptr) labels.push_back(label);
  }
  // What a walk enters, as (part, level), and leaves, as (part, -1 - level).
  void writeWalk(std::vector<std::pair<const OmOutputPart*, int>>& steps, int atLevel) const {
    steps.emplace_back(part, atLevel);
    for (const auto& child : children) child->writeWalk(steps, atLevel + 1);
    steps.emplace_back(part, -1 - atLevel);
  }

  NaiveNode* add(OmOutputPart* newPart, const std::string& newLabel) {
    children.push_back(std::make_unique<NaiveNode>(newPart, newLabel, this));
    return children.back().get();
  }
  // Puts the nodes in front of the child at the place.
  void adopt(std::size_t atPlace, Children nodes) {
    for (const auto& node : nodes) node->parent = this;
    children.insert(children.begin() + static_cast<std::ptrdiff_t>(atPlace),
                    std::make_move_iterator(nodes.begin()), std::make_move_iterator(nodes.end()));
  }
  // Takes `count` children out, from the place on.
  Children release(std::size_t atPlace, std::size_t count) {
    const auto first = children.begin() + static_cast<std::ptrdiff_t>(atPlace);
    const auto last = first + static_cast<std::ptrdiff_t>(count);
    Children nodes(std::make_move_iterator(first), std::make_move_iterator(last));
    children.erase(first, last);
    return nodes;
  }
  // Makes the children next siblings.
  void flatten() { parent->adopt(place() + 1, release(0, children.size())); }
  // Takes the node and what is below it out of its parent; it is gone afterwards.
  void remove() { parent->release(place(), 1); }
};

}  // namespace om::test

#endif  // OM_TESTS_OUTPUT_NAIVETREE_H_
