// OmOutputTree against a naive tree of nested nodes, under random operations on two trees: after
// each, the shapes, the parts, their labels and the order of the deletions are compared.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "backend/OMSException.h"
#include "output/OmHeading.h"
#include "output/OmOutputTree.h"
#include "tests/output/CountingWalker.h"
#include "tests/output/NaiveTree.h"
#include "tests/output/PartTree.h"
#include "tests/support/Counted.h"
#include "tests/support/Oracle.h"

namespace om::test {
namespace {

using Node = OmOutputTree::Node;
using Labels = std::vector<std::string>;

constexpr std::size_t kMostRecords = 50;

// A tree, empty at first, and its model.
class Both {
 public:
  Both() {
    Node made = tree.Root();
    tree.Prune(made);
  }

  // The nodes of the model in pre-order.
  std::vector<NaiveNode*> nodes() const {
    std::vector<NaiveNode*> result;
    if (root != nullptr) root->collect(result);
    return result;
  }
  std::size_t size() const { return tree.List().size(); }
  Node handle(std::size_t index) {
    return {tree, std::next(tree.List().begin(), static_cast<std::ptrdiff_t>(index))};
  }
  void compare() const {
    EXPECT_EQ(tree.checkInvariants(), nullptr);
    auto record = tree.List().begin();
    const bool agree = root == nullptr || agreeFrom(record, *root, 0);
    EXPECT_TRUE(agree && record == tree.List().end()) << lineOf(tree) << " instead of " << model();
  }

  OmOutputTree tree;
  std::unique_ptr<NaiveNode> root;

 private:
  // Moves `record` behind the subtree.
  bool agreeFrom(OmOutputTree::Records::const_iterator& record, const NaiveNode& node,
                 int level) const {
    if (record == tree.List().end() || record->_level != level || record->_data != node.part ||
        nameOf(record->_data) != node.name()) {
      return false;
    }
    ++record;
    for (const auto& child : node.children) {
      if (!agreeFrom(record, *child, level + 1)) return false;
    }
    return true;
  }
  std::string model() const {
    std::string line;
    for (const NaiveNode* const node : nodes()) {
      line += node->name() + std::to_string(node->level()) + " ";
    }
    return line;
  }
};

// Parts whose labels write down when they die, each with a number of its own; some are null.
class Parts {
 public:
  std::string nextLabel() { return std::to_string(++last_); }
  std::unique_ptr<OmOutputPart> make(Random& random) {
    if (random.oneIn(8)) return nullptr;
    auto part = std::make_unique<OmHeading>(CountedText(nextLabel()));
    resetCounted();
    return part;
  }

 private:
  long last_ = 0;
};

std::string labelOf(const OmOutputPart* part) {
  return part == nullptr ? "" : std::string(part->Label());
}

// Compares who died since the last call.
void expectDied(const Labels& expected) {
  EXPECT_EQ(CountedText::died(), expected);
  resetCounted();
}

void append(Both& both, std::size_t index, std::unique_ptr<OmOutputPart> part) {
  NaiveNode* const added = both.nodes()[index]->add(part.get(), labelOf(part.get()));
  const Node result = both.tree.Append(both.handle(index), std::move(part));
  EXPECT_EQ(result.Item(), added->part);
  EXPECT_EQ(result.Level(), added->level());
  expectDied({});
}

void appendLast(Both& both, std::unique_ptr<OmOutputPart> part, Random& random) {
  const int highest = both.root == nullptr ? 0 : both.nodes().back()->level() + 1;
  const int level = static_cast<int>(random.below(static_cast<std::size_t>(highest) + 3)) - 1;
  OmOutputPart* const raw = part.get();
  if (level > highest || level < (both.root == nullptr ? 0 : 1)) {
    EXPECT_THROW(both.tree.AppendLast(std::move(part), level), OMSException);
    EXPECT_EQ(part.get(), raw);
    expectDied({});
    part.reset();
    resetCounted();
    return;
  }
  if (level == 0) {
    both.root = std::make_unique<NaiveNode>(raw, labelOf(raw), nullptr);
  } else {
    NaiveNode* parent = both.root.get();
    for (int i = 1; i < level; ++i) parent = parent->children.back().get();
    parent->add(raw, labelOf(raw));
  }
  const Node result = both.tree.AppendLast(std::move(part), level);
  EXPECT_EQ(result.Item(), raw);
  EXPECT_EQ(result.Level(), level);
  expectDied({});
}

// Removes a node from the model, after its children were lifted or together with them.
void removeFromModel(Both& both, NaiveNode* node) {
  if (node->parent == nullptr) {
    both.root.reset();
  } else {
    node->remove();
  }
}

void erase(Both& both, std::size_t index) {
  NaiveNode* const node = both.nodes()[index];
  if (node->parent == nullptr && !node->children.empty()) return;
  const Labels deaths = node->part == nullptr ? Labels() : Labels{node->label};
  if (node->parent != nullptr) node->flatten();
  removeFromModel(both, node);
  Node handle = both.handle(index);
  both.tree.Erase(handle);
  expectDied(deaths);
}

void prune(Both& both, std::size_t index) {
  NaiveNode* const node = both.nodes()[index];
  Labels deaths;
  node->writeDeaths(deaths);
  removeFromModel(both, node);
  Node handle = both.handle(index);
  both.tree.Prune(handle);
  expectDied(deaths);
}

void flatten(Both& both, std::size_t index) {
  both.nodes()[index]->flatten();
  Node handle = both.handle(index);
  both.tree.Flatten(handle);
  expectDied({});
}

// The parts stay alive and are deleted here.
void eraseQualified(Both& both, std::size_t index) {
  NaiveNode* const node = both.nodes()[index];
  const std::unique_ptr<OmOutputPart> part(node->part);
  node->flatten();
  node->remove();
  Node handle = both.handle(index);
  both.tree.ListTree::Erase(handle);
  expectDied({});
}

void pruneQualified(Both& both, std::size_t index) {
  std::vector<NaiveNode*> subtree;
  both.nodes()[index]->collect(subtree);
  std::vector<std::unique_ptr<OmOutputPart>> parts;
  for (const NaiveNode* const node : subtree) parts.emplace_back(node->part);
  subtree.front()->remove();
  both.tree.ListTree::Prune(both.handle(index));
  expectDied({});
}

void expectBlock(const Node& node, const std::string& label, const std::string& page) {
  const auto* const block = dynamic_cast<const OmTextBlock*>(node.Item());
  ASSERT_NE(block, nullptr);
  EXPECT_EQ(std::string(block->Label()), label);
  EXPECT_EQ(block->LocaleCodePage(), page);
  EXPECT_EQ(block->Size(), 0U);
}

// At level 0 or 1. The text is the label of a part that goes, if there is one to take, or a new
// one.
void amputateTop(Both& both, std::size_t index, const std::string& newLabel, Random& random) {
  NaiveNode* const node = both.nodes()[index];
  std::vector<NaiveNode*> subtree;
  node->collect(subtree);
  const CountedText newText(newLabel);
  const OmCellText* text = &newText;
  const OmOutputPart* const any = subtree[random.below(subtree.size())]->part;
  if (any != nullptr && random.oneIn(2)) text = &any->Label();
  const std::string label(*text);

  Labels deaths;
  for (const auto& child : node->children) child->writeDeaths(deaths);
  node->children.clear();
  NaiveNode* const block = node->add(nullptr, label);
  block->block = true;

  const Node result = Amputate(both.handle(index), text, "page " + label);
  expectDied(deaths);
  EXPECT_TRUE(result == both.handle(index + 1));
  EXPECT_EQ(result.Level(), block->level());
  expectBlock(result, label, "page " + label);
  block->part = result.Item();
}

void amputateDeep(Both& both, std::size_t index) {
  NaiveNode* const node = both.nodes()[index];
  const int level = node->level();
  if (node->part == nullptr) {
    const Node same = Amputate(both.handle(index), nullptr, "page");
    EXPECT_TRUE(same == both.handle(index));
    EXPECT_EQ(same.Level(), level);
    expectDied({});
    return;
  }
  const std::string label = node->label;
  NaiveNode* const block = node->add(nullptr, label);
  block->block = true;
  node->flatten();
  node->remove();

  const Node result = Amputate(both.handle(index), nullptr, "page " + label);
  expectDied({label});
  EXPECT_TRUE(result == both.handle(index));
  EXPECT_EQ(result.Level(), level);
  const std::vector<NaiveNode*> nodes = both.nodes();
  const auto place = std::find(nodes.begin(), nodes.end(), block) - nodes.begin();
  const Node blockNode = both.handle(static_cast<std::size_t>(place));
  ASSERT_FALSE(blockNode.IsEnd());
  expectBlock(blockNode, label, "page " + label);
  block->part = blockNode.Item();
}

// Moves some siblings, from the one at `index` on, to a place at the same level, if there is one.
void move(Both& to, Both& from, std::size_t index, Random& random) {
  NaiveNode* const begin = from.nodes()[index];
  const std::size_t count = random.below(begin->parent->children.size() - begin->place() + 1);
  const Node beginHandle = from.handle(index);
  Node end = beginHandle;
  for (std::size_t i = 0; i < count; ++i) end = end.NextSibling();

  const std::vector<NaiveNode*> targets = to.nodes();
  const std::size_t target = random.below(targets.size());
  const int level = targets[target]->level();
  const Node handle = to.handle(target);
  if (level == begin->level()) {
    to.tree.Move(handle, beginHandle, end);
    targets[target]->parent->adopt(targets[target]->place(),
                                   begin->parent->release(begin->place(), count));
  } else if (level + 1 == begin->level()) {
    to.tree.Move(handle.ChildrenEnd(), beginHandle, end);
    targets[target]->adopt(targets[target]->children.size(),
                           begin->parent->release(begin->place(), count));
  }
  expectDied({});
}

void copy(const Both& both) {
  OmOutputTree shared(both.tree);
  EXPECT_TRUE(shared == both.tree);
  shared.List().clear();
  expectDied({});
}

using Steps = std::vector<std::pair<const OmOutputPart*, int>>;

class Recorder : public SilentWalker {
 public:
  using SilentWalker::Visit;
  void Visit(OmTextBlock& part) override { visited.push_back(&part); }
  void Visit(OmHeading& part) override { visited.push_back(&part); }

  Steps steps;
  std::vector<const OmOutputPart*> visited;

 protected:
  void Enter(OmOutputPart* part, int level) override {
    steps.emplace_back(part, level);
    OmOutputWalker::Enter(part, level);
  }
  void Leave(OmOutputPart* part, int level) override { steps.emplace_back(part, -1 - level); }
};

void walk(Both& both, std::size_t index) {
  NaiveNode* const node = both.nodes()[index];
  Steps steps;
  node->writeWalk(steps, node->level());
  std::vector<const OmOutputPart*> visited;
  for (const auto& [part, level] : steps) {
    if (part != nullptr && level >= 0) visited.push_back(part);
  }
  Recorder recorder;
  EXPECT_TRUE(recorder.Walk(both.handle(index)));
  EXPECT_EQ(recorder.steps, steps);
  EXPECT_EQ(recorder.visited, visited);
}

void step(Both& both, Both& other, Parts& parts, Random& random) {
  const std::size_t size = both.size();
  const std::size_t operation = random.below(200);
  if (size == 0 || (size < kMostRecords && operation < 60)) {
    appendLast(both, parts.make(random), random);
    return;
  }
  const std::size_t any = random.below(size);
  if (size < kMostRecords && operation < 110) {
    append(both, any, parts.make(random));
    return;
  }
  const std::size_t inner = size == 1 ? 0 : 1 + random.below(size - 1);
  if (operation < 120) {
    erase(both, any);
  } else if (operation == 120 || (operation < 130 && inner != 0)) {
    prune(both, operation == 120 ? 0 : inner);
  } else if (operation < 145) {
    if (both.nodes()[any]->level() <= 1) {
      amputateTop(both, any, parts.nextLabel(), random);
      resetCounted();
    } else {
      amputateDeep(both, any);
    }
  } else if (operation < 150) {
    copy(both);
  } else if (operation < 155) {
    walk(both, any);
  } else if (inner == 0) {
    erase(both, 0);
  } else if (operation < 165) {
    flatten(both, inner);
  } else if (operation < 175) {
    eraseQualified(both, inner);
    resetCounted();
  } else if (operation < 180) {
    pruneQualified(both, inner);
    resetCounted();
  } else if (other.size() != 0 && other.size() < kMostRecords) {
    move(other, both, inner, random);
  }
}

TEST(OmOutputTreeOracle, AgreesWithATreeOfNestedNodes) {
  Both first;
  Both second;
  Parts parts;
  std::size_t largest = 0;
  std::size_t emptied = 0;
  runRandomOperations(30'011, 200'000, [&](Random& random) {
    const bool swap = random.oneIn(2);
    step(swap ? second : first, swap ? first : second, parts, random);
    first.compare();
    second.compare();
    largest = std::max({largest, first.size(), second.size()});
    if (first.size() == 0) ++emptied;
  });
  // The run went through trees of every size.
  EXPECT_GE(largest, kMostRecords / 2);
  EXPECT_GE(emptied, 10U);
}

}  // namespace
}  // namespace om::test
