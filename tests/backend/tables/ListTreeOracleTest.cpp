// ListTree against a naive tree of nested vectors, under random operations on two trees.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <memory>
#include <utility>
#include <vector>

#include "backend/tables/ListTree.h"
#include "tests/support/Oracle.h"

namespace om::test {
namespace {

using Tree = ListTree<int>;
using Flat = std::vector<std::pair<int, int>>;  // items and levels in pre-order

struct NaiveNode {
  explicit NaiveNode(int theItem, NaiveNode* theParent = nullptr)
      : item(theItem), parent(theParent) {}

  int item;
  NaiveNode* parent;
  std::vector<std::unique_ptr<NaiveNode>> children;

  int level() const { return parent == nullptr ? 0 : parent->level() + 1; }
  std::size_t place() const {
    const auto& all = parent->children;
    return static_cast<std::size_t>(
        std::find_if(all.begin(), all.end(), [this](const auto& n) { return n.get() == this; }) -
        all.begin());
  }
  NaiveNode* nextSibling() const {
    if (parent == nullptr || place() + 1 == parent->children.size()) return nullptr;
    return parent->children[place() + 1].get();
  }
  void collect(std::vector<NaiveNode*>& nodes) {
    nodes.push_back(this);
    for (const auto& child : children) child->collect(nodes);
  }
  void write(Flat& flat, int atLevel) const {
    flat.emplace_back(item, atLevel);
    for (const auto& child : children) child->write(flat, atLevel + 1);
  }
  std::unique_ptr<NaiveNode> copy(NaiveNode* newParent = nullptr) const {
    auto result = std::make_unique<NaiveNode>(item, newParent);
    for (const auto& child : children) result->children.push_back(child->copy(result.get()));
    return result;
  }
  // Puts the nodes in front of the child at the place.
  void adopt(std::size_t atPlace, std::vector<std::unique_ptr<NaiveNode>> nodes) {
    for (const auto& node : nodes) node->parent = this;
    children.insert(children.begin() + static_cast<std::ptrdiff_t>(atPlace),
                    std::make_move_iterator(nodes.begin()), std::make_move_iterator(nodes.end()));
  }
  // Takes `count` children out, from the place on.
  std::vector<std::unique_ptr<NaiveNode>> release(std::size_t atPlace, std::size_t count) {
    const auto first = children.begin() + static_cast<std::ptrdiff_t>(atPlace);
    const auto last = first + static_cast<std::ptrdiff_t>(count);
    std::vector<std::unique_ptr<NaiveNode>> nodes(std::make_move_iterator(first),
                                                  std::make_move_iterator(last));
    children.erase(first, last);
    return nodes;
  }
};

// A tree and its model.
class Both {
 public:
  explicit Both(int rootItem) : tree(rootItem), root(std::make_unique<NaiveNode>(rootItem)) {}

  std::vector<NaiveNode*> nodes() const {
    std::vector<NaiveNode*> result;
    root->collect(result);
    return result;
  }
  Tree::Node handle(std::size_t index) {
    return {tree, std::next(tree.List().begin(), static_cast<std::ptrdiff_t>(index))};
  }
  std::size_t size() const { return static_cast<std::size_t>(tree.Size()); }
  Flat model() const {
    Flat flat;
    root->write(flat, 0);
    return flat;
  }
  bool agree() const {
    auto record = tree.List().begin();
    return agreeFrom(*root, 0, record) && record == tree.List().end();
  }

  Tree tree;
  std::unique_ptr<NaiveNode> root;

 private:
  // Whether the records from `record` on are those of the node's subtree; steps behind them.
  bool agreeFrom(const NaiveNode& node, int level, Tree::Records::const_iterator& record) const {
    if (record == tree.List().end()) return false;
    if (record->_data != node.item || record->_level != level) return false;
    ++record;
    return std::all_of(node.children.begin(), node.children.end(),
                       [&](const auto& child) { return agreeFrom(*child, level + 1, record); });
  }
};

constexpr std::size_t kMostRecords = 40;

void append(Both& both, std::size_t index, int item) {
  NaiveNode* const parent = both.nodes()[index];
  parent->children.push_back(std::make_unique<NaiveNode>(item, parent));
  const Tree::Node added = both.handle(index).AppendChild(item);
  EXPECT_EQ(added.Item(), item);
  EXPECT_EQ(added.Level(), parent->level() + 1);
}

void flattenModel(NaiveNode* node) {
  auto children = node->release(0, node->children.size());
  node->parent->adopt(node->place() + 1, std::move(children));
}

void flatten(Both& both, std::size_t index) {
  flattenModel(both.nodes()[index]);
  Tree::Node node = both.handle(index);
  both.tree.Flatten(node);
}

void erase(Both& both, std::size_t index) {
  NaiveNode* const node = both.nodes()[index];
  flattenModel(node);
  node->parent->release(node->place(), 1);
  Tree::Node handle = both.handle(index);
  both.tree.Erase(handle);
}

void prune(Both& both, std::size_t index) {
  NaiveNode* const node = both.nodes()[index];
  node->parent->release(node->place(), 1);
  both.tree.Prune(both.handle(index));
}

// Moves some siblings, from the one at `index` on, to a place at the same level, if there is one.
void move(Both& to, Both& from, std::size_t index, Random& random) {
  NaiveNode* const begin = from.nodes()[index];
  const std::size_t count = random.below(begin->parent->children.size() - begin->place() + 1);
  const Tree::Node beginHandle = from.handle(index);
  Tree::Node end = beginHandle;
  for (std::size_t i = 0; i < count; ++i) end = end.NextSibling();

  const std::vector<NaiveNode*> targets = to.nodes();
  const std::size_t target = random.below(targets.size());
  const int level = targets[target]->level();
  const Tree::Node handle = to.handle(target);
  if (level == begin->level()) {
    to.tree.Move(handle, beginHandle, end);
    targets[target]->parent->adopt(targets[target]->place(),
                                   begin->parent->release(begin->place(), count));
  } else if (level + 1 == begin->level()) {
    to.tree.Move(handle.ChildrenEnd(), beginHandle, end);
    targets[target]->adopt(targets[target]->children.size(),
                           begin->parent->release(begin->place(), count));
  }
}

void compare(Both& left, Both& right) {
  const Flat a = left.model();
  const Flat b = right.model();
  const auto recordLess = [](const auto& x, const auto& y) {
    return std::pair(x.second, x.first) < std::pair(y.second, y.first);
  };
  const bool less =
      std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(), recordLess);
  EXPECT_EQ(left.tree == right.tree, a == b);
  EXPECT_EQ(left.tree != right.tree, a != b);
  EXPECT_EQ(left.tree < right.tree, less);
}

void assign(Both& to, const Both& from) {
  to.tree = from.tree;
  to.root = from.root->copy();
}

void navigate(Both& both, std::size_t index) {
  const NaiveNode* const model = both.nodes()[index];
  const Tree::Node node = both.handle(index);
  EXPECT_EQ(node.IsLeaf(), model->children.empty());
  EXPECT_EQ(node.Level(), model->level());
  if (model->parent == nullptr) {
    EXPECT_TRUE(node.Parent().IsEnd());
  } else {
    EXPECT_EQ(node.Parent().Item(), model->parent->item);
  }
  if (const NaiveNode* const sibling = model->nextSibling()) {
    EXPECT_EQ(node.NextSibling().Item(), sibling->item);
  }
  auto child = node.FirstChild();
  for (const auto& expected : model->children) {
    EXPECT_EQ(child.Item(), expected->item);
    child = child.NextSibling();
  }
  EXPECT_TRUE(child == node.ChildrenEnd());
}

TEST(ListTreeOracle, AgreesWithATreeOfNestedVectors) {
  Both first(0);
  Both second(1);
  int item = 1;
  runRandomOperations(20'011, 200'000, [&](Random& random) {
    const bool swap = random.oneIn(2);
    Both& both = swap ? second : first;
    Both& other = swap ? first : second;
    const std::size_t any = random.below(both.size());
    const std::size_t inner = both.size() == 1 ? 0 : 1 + random.below(both.size() - 1);
    const std::size_t operation = random.below(100);
    if (both.size() == 1 || (operation < 60 && both.size() < kMostRecords)) {
      append(both, any, ++item);
    } else if (operation < 70) {
      flatten(both, inner);
    } else if (operation < 80) {
      erase(both, inner);
    } else if (operation < 85) {
      prune(both, inner);
    } else if (operation < 95) {
      if (other.size() < kMostRecords) move(other, both, inner, random);
    } else if (operation < 97) {
      assign(other, both);
    } else {
      compare(both, other);
    }
    navigate(both, random.below(both.size()));
    EXPECT_TRUE(first.agree());
    EXPECT_TRUE(second.agree());
    EXPECT_EQ(first.tree.checkInvariants(), nullptr);
    EXPECT_EQ(second.tree.checkInvariants(), nullptr);
  });
}

}  // namespace
}  // namespace om::test
