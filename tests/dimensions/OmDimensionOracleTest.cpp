// Random operations on a dimension and on a naive one, compared after each. Labels and subscripts
// are few, so that equal siblings are frequent.

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "backend/OMSException.h"
#include "dimensions/OmDimension.h"
#include "dimensions/internal/DimensionFactory.h"
#include "external/cells/OmMemoryRegion.h"
#include "external/cells/OmStringCell.h"
#include "tests/dimensions/NaiveDimension.h"
#include "tests/support/Oracle.h"
#include "tests/support/StandardOutput.h"

namespace om::test {
namespace {

using Node = OmDimension::Node;
using ConstNode = OmDimension::ConstNode;

constexpr std::size_t kLargestTree = 40;

class Pair {
 public:
  explicit Pair(Random& random)
      : random_(random),
        naive_("root", random.below(4), !random.oneIn(8)),
        dimension_(internal::DimensionFactory::make(
            OmDimensionNode(OmStringCell("root"), naive_.root->value.subscript,
                            naive_.root->value.group, &region_),
            &region_)) {}
  ~Pair() {
    dimension_.reset();
    EXPECT_EQ(region_.BlocksInUse(), 0U);
  }
  Pair(const Pair&) = delete;
  Pair& operator=(const Pair&) = delete;

  std::size_t size() const { return naive_.all().size(); }

  void step();
  void compare(bool whole) const;

 private:
  std::string label() { return std::string(1, "abc"[random_.below(3)]); }
  unsigned long long subscript() {
    if (!random_.oneIn(40)) return random_.below(4);
    return random_.oneIn(2) ? ~0ULL - random_.below(3) : 0x1'0000'0000ULL + random_.below(6);
  }
  NaiveNode* anyNode() {
    const std::vector<NaiveNode*> nodes = naive_.all();
    return nodes[random_.below(nodes.size())];
  }
  // The node, or another one where it is the root and there is another.
  NaiveNode* anyButTheRoot() {
    const std::vector<NaiveNode*> nodes = naive_.all();
    return nodes.size() == 1 ? nodes[0] : nodes[1 + random_.below(nodes.size() - 1)];
  }
  // Mostly a node near the given one, which is what makes equal siblings and neighbours meet.
  NaiveNode* anotherFor(const NaiveNode* node) {
    if (node->parent == nullptr || random_.oneIn(2)) return anyNode();
    const auto& siblings = node->parent->children;
    return siblings[random_.below(siblings.size())].get();
  }

  Node real(const NaiveNode* node) const {
    if (node->parent == nullptr) return dimension_->Root();
    return real(node->parent).ChildAt(node->position());
  }

  void addNewChild();
  void child();
  void findChild();
  void deleteNode();
  void insertCategory();
  void insertChild();
  void removeChild();
  void move();
  void changeFlags();
  void measure() const;
  void replaceByCopy();

  static bool isSame(const ConstNode& real, const NaiveNode& naive);
  static std::string printed(const NaiveNode& node);

  Random& random_;
  OmMemoryRegion region_{false};
  NaiveDimension naive_;
  std::unique_ptr<OmDimension> dimension_;
};

void Pair::addNewChild() {
  NaiveNode* const parent = anyNode();
  const NaiveValue value{random_.oneIn(2), random_.oneIn(2) ? ~0ULL : subscript(), label()};
  const Node added = dimension_->AddNewChild(real(parent), OmStringCell(value.label),
                                             value.subscript, value.group);
  naive_.addNewChild(parent, value);
  EXPECT_EQ(added, real(parent->children.back().get()));
}

void Pair::child() {
  NaiveNode* const parent = anyNode();
  const NaiveValue value{random_.oneIn(3), subscript(), label()};
  const auto call = [&] {
    return dimension_->Child(real(parent), OmStringCell(value.label), value.subscript, value.group);
  };
  if (!parent->value.group) {
    EXPECT_THROW(call(), OMSException);
    return;
  }
  const Node found = call();
  const std::size_t position = naive_.child(parent, value);
  EXPECT_EQ(found, real(parent).ChildAt(position));
}

void Pair::findChild() {
  const NaiveNode* const parent = anyNode();
  const std::string text = label();
  const bool group = random_.oneIn(2);
  EXPECT_EQ(OmDimension::FindChild(real(parent), OmStringCell(text), group),
            naive_.findChild(parent, text, group));
}

void Pair::deleteNode() {
  NaiveNode* const node = anyButTheRoot();
  if (node->parent == nullptr) return;
  Node deleted = real(node);
  dimension_->Delete(deleted);
  naive_.erase(node);
  OmDimension::Tree::Reparent(*dimension_->Root().Record(), true);
}

void Pair::insertCategory() {
  NaiveNode* const parent = anyNode();
  const std::size_t sibling = random_.below(parent->children.size() + 1);
  const bool before = random_.oneIn(2);
  const std::string text = label();
  const Node above = real(parent);
  const OmDimensionNode added = dimension_->insertCategory(
      OmStringCell(text), above, Node(above.FirstChild().Record() + sibling, above.Depth() + 1),
      before);
  const NaiveValue expected = naive_.insertCategory(parent, text, sibling, before);
  EXPECT_EQ(added.Subscript(), expected.subscript);
  EXPECT_EQ(added.IsGroup(), expected.group);
  EXPECT_EQ(std::string(*added.Text()), expected.label);
}

void Pair::insertChild() {
  const NaiveNode* const first = anyNode();
  std::vector<NaiveNode*> nodes;
  if (first->parent == nullptr) {
    nodes.push_back(naive_.root.get());
  } else {
    const auto& siblings = first->parent->children;
    for (const auto& sibling : siblings) {
      if (random_.oneIn(3)) nodes.push_back(sibling.get());
    }
    if (random_.oneIn(4) && nodes.size() > 1) {
      std::swap(nodes[0], nodes[random_.below(nodes.size())]);
    }
    if (random_.oneIn(12) && !nodes.empty()) nodes.push_back(nodes[random_.below(nodes.size())]);
  }
  std::vector<Node> handles;
  for (const NaiveNode* node : nodes) handles.push_back(real(node));
  std::vector<Node*> pointers;
  for (Node& handle : handles) pointers.push_back(&handle);
  const std::string text = label();
  dimension_->insertChild(OmStringCell(text), pointers);
  naive_.insertChild(text, nodes);
}

void Pair::removeChild() {
  NaiveNode* const node = random_.oneIn(30) ? naive_.root.get() : anyButTheRoot();
  NaiveNode* const parent = node->parent;
  Node removed = real(node);
  dimension_->removeChild(removed);
  const std::optional<std::size_t> behind = naive_.removeChild(node);
  if (behind) {
    EXPECT_EQ(removed.Record(), real(parent).FirstChild().Record() + *behind);
    EXPECT_EQ(removed.Depth(), parent->depth() + 1);
  } else {
    EXPECT_EQ(removed, real(node));
  }
}

void Pair::move() {
  NaiveNode* const node = random_.oneIn(30) ? naive_.root.get() : anyButTheRoot();
  Node moved = real(node);
  if (random_.oneIn(4)) {
    dimension_->moveChild(moved, nullptr, random_.oneIn(2));
    naive_.moveToEnd(node);
    return;
  }
  NaiveNode* const target = anotherFor(node);
  Node other = real(target);
  if (random_.oneIn(2)) {
    dimension_->moveChild(moved, &other, false);
    naive_.moveBefore(node, target);
  } else if (!NaiveDimension::exchangeLosesTheParent(node, target)) {
    dimension_->moveChild(moved, &other, true);
    naive_.exchange(node, target);
  }
}

void Pair::changeFlags() {
  NaiveNode* const node = anyNode();
  const Node changed = real(node);
  node->hide = random_.oneIn(3);
  node->hideLabels = random_.oneIn(2);
  node->sort = static_cast<int>(random_.below(3));
  changed->Hide(node->hide);
  changed->HideLabels(node->hideLabels);
  changed->Sort(static_cast<OmSort::Order>(node->sort));
}

void Pair::measure() const {
  EXPECT_EQ(dimension_->getMaximumDepth(), naive_.maximumDepth());
  EXPECT_EQ(dimension_->getMaxVisibleGroupCount(), naive_.maxVisibleGroupCount());
}

void Pair::replaceByCopy() {
  std::unique_ptr<OmDimension> copy = internal::DimensionFactory::copy(*dimension_, &region_);
  dimension_ = std::move(copy);
}

void Pair::step() {
  switch (random_.below(20)) {
    case 0:
    case 1:
    case 2:
      return addNewChild();
    case 3:
    case 4:
      return child();
    case 5:
      return findChild();
    case 6:
      return deleteNode();
    case 7:
    case 8:
      return insertCategory();
    case 9:
    case 10:
      return insertChild();
    case 11:
    case 12:
      return removeChild();
    case 13:
      return changeFlags();
    case 14:
      return random_.oneIn(4) ? replaceByCopy() : measure();
    default:
      return move();
  }
}

bool Pair::isSame(const ConstNode& real, const NaiveNode& naive) {
  if (real->Subscript() != naive.value.subscript || real->IsGroup() != naive.value.group ||
      real->Hide() != naive.hide || real->HideLabels() != naive.hideLabels ||
      static_cast<int>(real->Sort()) != naive.sort ||
      static_cast<const OmStringCell&>(*real->Text()).View() != naive.value.label ||
      real.ChildCount() != naive.children.size()) {
    return false;
  }
  for (std::size_t i = 0; i < naive.children.size(); ++i) {
    if (!isSame(real.ChildAt(i), *naive.children[i])) return false;
  }
  return true;
}

std::string Pair::printed(const NaiveNode& node) {
  const auto yesNo = [](bool flag) { return flag ? "yes" : "no"; };
  std::string text(2 * node.depth(), ' ');
  text += "Subscript: " + std::to_string(static_cast<std::int32_t>(node.value.subscript));
  text += std::string(", Group: ") + yesNo(node.value.group);
  text += std::string(", hide: ") + yesNo(node.hide);
  text += std::string(", hideLabels: ") + yesNo(node.hideLabels);
  if (node.sort == 0) text += ", Sort: up";
  if (node.sort == 1) text += ", Sort: down";
  for (std::size_t i = 0; i < node.index.size(); ++i) {
    text += (i == 0 ? ", Children: " : ", ") + std::to_string(node.index[i]);
  }
  return text + ", Text: " + node.value.label + "\n";
}

// The child indexes can be seen only in the print, which is slow.
void Pair::compare(bool whole) const {
  ASSERT_EQ(dimension_->checkInvariants(), nullptr);
  ASSERT_EQ(dimension_->NumCategories(), naive_.numCategories);
  const bool same = isSame(std::as_const(*dimension_).Root(), *naive_.root);
  if (same && !whole) return;
  std::string expected;
  for (const NaiveNode* node : naive_.all()) expected += printed(*node);
  const StandardOutput output;
  dimension_->Print();
  ASSERT_EQ(output.text(), expected);
  ASSERT_TRUE(same);
}

void run(std::uint64_t seed) {
  constexpr std::size_t kSteps = 350'000;
  std::unique_ptr<Pair> pair;
  std::size_t steps = 0;
  runRandomOperations(seed, kSteps, [&](Random& random) {
    if (pair == nullptr || pair->size() > kLargestTree || random.oneIn(300)) {
      pair = std::make_unique<Pair>(random);
    }
    pair->step();
    pair->compare(++steps % 10 == 0);
  });
}

TEST(OmDimensionOracle, DoesAsTheNaiveDimension1) { run(34); }
TEST(OmDimensionOracle, DoesAsTheNaiveDimension2) { run(1034); }
TEST(OmDimensionOracle, DoesAsTheNaiveDimension3) { run(2034); }

}  // namespace
}  // namespace om::test
