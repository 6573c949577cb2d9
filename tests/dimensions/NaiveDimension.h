// The same tree of categories once more, as plainly as it can be written: nodes are shared
// pointers, values are compared and indexes are searched step by step. Made to be compared with
// OmDimension.

#ifndef OM_TESTS_DIMENSIONS_NAIVEDIMENSION_H_
#define OM_TESTS_DIMENSIONS_NAIVEDIMENSION_H_

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace om::test {

// What decides whether two nodes are equal.
struct NaiveValue {
  bool group = false;
  unsigned long long subscript = 0;
  std::string label;

  bool operator==(const NaiveValue&) const = default;
};

struct NaiveNode {
  NaiveValue value;
  bool hide = false;
  bool hideLabels = false;
  int sort = 2;
  std::vector<int> index;
  std::vector<std::shared_ptr<NaiveNode>> children;
  NaiveNode* parent = nullptr;

  std::size_t position() const {
    std::size_t at = 0;
    while (parent->children[at].get() != this) ++at;
    return at;
  }
  std::size_t depth() const { return parent == nullptr ? 0 : parent->depth() + 1; }
  bool isAtOrBelow(const NaiveNode* top) const {
    return this == top || (parent != nullptr && parent->isAtOrBelow(top));
  }
  // This node, and what is below it.
  void collect(std::vector<NaiveNode*>& nodes) {
    nodes.push_back(this);
    for (const auto& child : children) child->collect(nodes);
  }
};

class NaiveDimension {
 public:
  using Pointer = std::shared_ptr<NaiveNode>;

  NaiveDimension(const std::string& label, unsigned long long subscript, bool group) {
    root->value = {group, subscript, label};
  }

  const Pointer root = std::make_shared<NaiveNode>();
  std::int32_t numCategories = 0;

  void addNewChild(NaiveNode* parent, const NaiveValue& value) {
    parent->index.push_back(static_cast<int>(parent->index.size()));
    append(parent, value);
  }

  // The position that is found or added.
  std::size_t child(NaiveNode* parent, const NaiveValue& value) {
    const std::size_t at = search(parent, value);
    if (isMatch(parent, at, value)) return static_cast<std::size_t>(parent->index[at]);
    const int entry = static_cast<int>(parent->index.size());
    parent->index.insert(parent->index.begin() + static_cast<std::ptrdiff_t>(at), entry);
    append(parent, value);
    return parent->children.size() - 1;
  }

  int findChild(const NaiveNode* parent, const std::string& label, bool group) const {
    const NaiveValue probe{group, 0, label};
    const std::size_t at = search(parent, probe);
    return isMatch(parent, at, probe) ? parent->index[at] : -1;
  }

  void erase(NaiveNode* node) {
    NaiveNode* const parent = node->parent;
    const int offset = static_cast<int>(node->position());
    take(node);
    std::vector<int> left;
    for (const int entry : parent->index) {
      if (entry != offset) left.push_back(entry > offset ? entry - 1 : entry);
    }
    parent->index = left;
    numCategories = static_cast<std::int32_t>(largest() + 1U);
  }

  // `sibling` is a position, at the end or beyond as well.
  NaiveValue insertCategory(NaiveNode* parent, const std::string& label, std::size_t sibling,
                            bool before) {
    const Pointer node = std::make_shared<NaiveNode>();
    node->value = {false, largest() + 1U, label};
    const std::size_t place = before ? sibling : sibling + 1;
    insertBefore(parent, node, valueAt(parent, place));
    ++numCategories;
    return node->value;
  }

  // The nodes are children of one parent.
  void insertChild(const std::string& label, const std::vector<NaiveNode*>& nodes) {
    if (nodes.empty() || nodes.front()->parent == nullptr) return;
    NaiveNode* const parent = nodes.front()->parent;
    const Pointer group = std::make_shared<NaiveNode>();
    group->value = {true, ~0ULL, label};
    for (const NaiveNode* node : nodes) adopt(group.get(), copy(*node), group->children.size());

    const auto isGiven = [&nodes](const NaiveNode* node) {
      return std::find(nodes.begin(), nodes.end(), node) != nodes.end();
    };
    // As many stay in front of the group as stay of those in front of the first node.
    std::size_t place = 0;
    for (std::size_t i = 0; i < nodes.front()->position(); ++i) {
      if (!isGiven(parent->children[i].get())) ++place;
    }
    std::erase_if(parent->children, [&](const Pointer& child) { return isGiven(child.get()); });
    insertBefore(parent, group, valueAt(parent, place));
  }

  // The position of what stands behind the former children, where the node was dissolved.
  std::optional<std::size_t> removeChild(NaiveNode* node) {
    node->value.subscript = ~0ULL - 1;
    if (node->parent == nullptr || node->children.empty()) return std::nullopt;
    NaiveNode* const parent = node->parent;
    const NaiveValue value = node->value;
    for (const Pointer& child : node->children) insertBefore(parent, copy(*child), value);
    const std::size_t behind = node->position();
    take(node);
    return behind;
  }

  void moveBefore(NaiveNode* node, NaiveNode* target) {
    if (node->parent == nullptr || target->parent == nullptr) return;
    if (target != node && target->isAtOrBelow(node)) return;
    NaiveNode* const parent = target->parent;
    const NaiveValue value = target->value;
    const Pointer moved = take(node);
    insertBefore(parent, moved, value);
  }

  void moveToEnd(NaiveNode* node) {
    if (node->parent == nullptr) return;
    NaiveNode* ancestor = node->parent;
    while (ancestor->hide && ancestor->parent != nullptr) ancestor = ancestor->parent;
    insertBefore(ancestor, take(node), std::nullopt);
  }

  // Whether the sibling that is taken for `b`, because it equals it and stands before it, holds
  // `a`. The exchange would lose the place that `a` is to come back to.
  static bool exchangeLosesTheParent(const NaiveNode* a, const NaiveNode* b) {
    if (a->parent == nullptr || b->parent == nullptr) return false;
    for (const Pointer& child : b->parent->children) {
      if (child.get() != a && child->value == b->value) {
        return child.get() != b && a->isAtOrBelow(child.get());
      }
    }
    return false;
  }

  void exchange(NaiveNode* a, NaiveNode* b) {
    if (a->isAtOrBelow(b) || b->isAtOrBelow(a)) return;
    NaiveNode* const parentOfA = a->parent;
    NaiveNode* const parentOfB = b->parent;
    const std::size_t placeOfA = a->position();
    const std::size_t placeOfB = b->position();
    const std::optional<NaiveValue> behindA = valueAt(parentOfA, placeOfA + 1);
    const std::optional<NaiveValue> behindB = valueAt(parentOfB, placeOfB + 1);
    const bool bFollows = parentOfA == parentOfB && placeOfB == placeOfA + 1;
    const bool aFollows = parentOfA == parentOfB && placeOfA == placeOfB + 1;
    const std::optional<NaiveValue> referenceOfA = aFollows ? behindA : behindB;
    const std::optional<NaiveValue> referenceOfB = bFollows ? behindB : behindA;
    const Pointer copyOfA = copy(*a);
    const Pointer copyOfB = copy(*b);
    take(a);
    take(parentOfB->children[firstEqual(parentOfB, copyOfB->value)].get());
    if (bFollows) insertBefore(parentOfB, copyOfB, referenceOfB);
    insertBefore(parentOfA, copyOfA, referenceOfA);
    if (!bFollows) insertBefore(parentOfB, copyOfB, referenceOfB);
  }

  std::uint32_t maximumDepth() const {
    std::size_t deepest = 0;
    for (const NaiveNode* node : all()) deepest = std::max(deepest, node->depth());
    return static_cast<std::uint32_t>(deepest + 1);
  }

  unsigned long long maxVisibleGroupCount() const {
    std::map<std::size_t, unsigned long long> counts;
    unsigned long long most = 0;
    for (const NaiveNode* node : all()) {
      bool anyChildless = false;
      unsigned long long groups = 0;
      for (const Pointer& child : node->children) {
        const bool visibleGroup = child->value.group && !child->hide;
        if (visibleGroup) ++groups;
        anyChildless = anyChildless || (!visibleGroup && child->children.empty());
      }
      counts[node->depth()] += groups + (anyChildless ? 1 : 0);
      most = std::max(most, counts[node->depth()]);
    }
    return most;
  }

  std::vector<NaiveNode*> all() const {
    std::vector<NaiveNode*> nodes;
    root->collect(nodes);
    return nodes;
  }

 private:
  static bool precedes(const NaiveValue& a, const NaiveValue& b) {
    return a.group != b.group ? a.group : a.label < b.label;
  }

  // By halving, whether or not the index is in order. An entry beyond the children precedes all.
  static std::size_t search(const NaiveNode* parent, const NaiveValue& value) {
    std::size_t from = 0;
    std::size_t to = parent->index.size();
    while (from < to) {
      const std::size_t middle = from + (to - from) / 2;
      const auto entry = static_cast<std::size_t>(parent->index[middle]);
      if (entry >= parent->children.size() || precedes(parent->children[entry]->value, value)) {
        from = middle + 1;
      } else {
        to = middle;
      }
    }
    return from;
  }

  static bool isMatch(const NaiveNode* parent, std::size_t at, const NaiveValue& value) {
    if (at >= parent->index.size()) return false;
    const auto entry = static_cast<std::size_t>(parent->index[at]);
    return entry < parent->children.size() && !precedes(value, parent->children[entry]->value);
  }

  static Pointer copy(const NaiveNode& node) {
    const Pointer made = std::make_shared<NaiveNode>(node);
    made->parent = nullptr;
    for (Pointer& child : made->children) {
      child = copy(*child);
      child->parent = made.get();
    }
    return made;
  }

  static void adopt(NaiveNode* parent, const Pointer& node, std::size_t position) {
    node->parent = parent;
    parent->children.insert(parent->children.begin() + static_cast<std::ptrdiff_t>(position), node);
  }

  static Pointer take(NaiveNode* node) {
    const auto place =
        node->parent->children.begin() + static_cast<std::ptrdiff_t>(node->position());
    const Pointer taken = *place;
    node->parent->children.erase(place);
    return taken;
  }

  static std::optional<NaiveValue> valueAt(const NaiveNode* parent, std::size_t position) {
    if (position >= parent->children.size()) return std::nullopt;
    return parent->children[position]->value;
  }

  static std::size_t firstEqual(const NaiveNode* parent, const NaiveValue& value) {
    std::size_t at = 0;
    while (at < parent->children.size() && parent->children[at]->value != value) ++at;
    return at;
  }

  static void insertBefore(NaiveNode* parent, const Pointer& node,
                           const std::optional<NaiveValue>& sibling) {
    adopt(parent, node, sibling ? firstEqual(parent, *sibling) : parent->children.size());
  }

  void append(NaiveNode* parent, const NaiveValue& value) {
    const Pointer node = std::make_shared<NaiveNode>();
    node->value = value;
    adopt(parent, node, parent->children.size());
    if (!value.group) ++numCategories;
  }

  std::uint32_t largest() const {
    std::uint32_t most = 0;
    for (const NaiveNode* node : all()) {
      if (!node->value.group)
        most = std::max(most, static_cast<std::uint32_t>(node->value.subscript));
    }
    return most;
  }
};

}  // namespace om::test

#endif  // OM_TESTS_DIMENSIONS_NAIVEDIMENSION_H_
