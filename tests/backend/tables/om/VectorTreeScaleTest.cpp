// Vector trees that are very deep or very wide. Whatever calls itself once a level runs out of
// stack here, and whatever is not linear does not come to an end.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "tests/backend/tables/om/VectorTreeText.h"
#include "tests/support/Allocations.h"

namespace om::test {
namespace {

constexpr std::uint32_t kDepth = 300'000;
constexpr int kWidth = 1'000'000;

// A chain of records, each with a second child that is a leaf.
class Chain {
 public:
  Chain() : root_([] { return Brittle(0); }, &region_, nullptr) {
    NumberEntry* last = &root_;
    for (std::uint32_t depth = 1; depth <= kDepth; ++depth) {
      appendNumber(*last, 1);
      appendNumber(*last, 2);
      last = last->children.begin();
    }
    last_ = last;
  }

  NumberEntry& root() { return root_; }
  NumberNode rootNode() { return {&root_, 0}; }
  NumberNode deepest() { return {last_, kDepth}; }

 private:
  OmMemoryRegion region_{false};
  NumberEntry root_;
  NumberEntry* last_;
};

TEST(VectorTreeScale, ADeepTreeIsDestroyed) {
  const long before = Brittle::live;
  {
    const Chain chain;
    EXPECT_EQ(Brittle::live, before + 1 + 2 * static_cast<long>(kDepth));
  }
  EXPECT_EQ(Brittle::live, before);
}

TEST(VectorTreeScale, ADeepTreeIsCopiedWalkedAndChecked) {
  Chain chain;
  OmMemoryRegion region(false);
  const NumberEntry copy(chain.root(), NumberTree::plainCopy, &region, nullptr);
  std::uint32_t deepest = 0;
  std::uint32_t visits = 0;
  NumberTree::Walk(ConstNumberNode(&copy, 0), [&](const ConstNumberNode& node) {
    deepest = std::max(deepest, node.Depth());
    ++visits;
    return true;
  });
  EXPECT_EQ(deepest, kDepth);
  EXPECT_EQ(visits, 1 + 2 * kDepth);
  EXPECT_EQ(NumberTree::checkInvariants(copy), nullptr);
}

TEST(VectorTreeScale, ADeepTreeIsReparented) {
  Chain chain;
  chain.deepest().Record()->parent = nullptr;
  NumberTree::Reparent(chain.root(), true);
  EXPECT_EQ(NumberTree::checkInvariants(chain.root()), nullptr);
}

TEST(VectorTreeScale, ADeepNodeHasACounterpart) {
  Chain chain;
  Chain other;
  const NumberNode mapped =
      NumberTree::Counterpart(ConstNumberNode(chain.deepest()), other.rootNode());
  EXPECT_EQ(mapped.Record(), other.deepest().Record());
  EXPECT_EQ(mapped.Depth(), kDepth);
}

TEST(VectorTreeScale, ADeepTreeIsErased) {
  Chain chain;
  const long before = Brittle::live;
  NumberTree::Erase(NumberNode(chain.root().children.begin(), 1));
  EXPECT_EQ(Brittle::live, before + 1 - 2 * static_cast<long>(kDepth));
}

TEST(VectorTreeScale, AMillionChildrenAreAddedWithoutAnAllocationOutsideTheRegion) {
  Numbers tree("1");
  const std::size_t made = totalNewBlocks();
  const std::size_t onHeap = OmMemoryRegion::DefaultHeap()->BlocksInUse();
  for (int i = 0; i < kWidth; ++i) appendNumber(tree.root(), i);
  EXPECT_EQ(totalNewBlocks(), made);
  EXPECT_EQ(OmMemoryRegion::DefaultHeap()->BlocksInUse(), onHeap);
  EXPECT_EQ(tree.region().BlocksInUse(), 1U);
  EXPECT_EQ(tree.root().children.capacity(), std::size_t{1} << 20);
  EXPECT_EQ(NumberTree::checkInvariants(tree.root()), nullptr);
}

TEST(VectorTreeScale, TheChildrenOfANodeStandSideBySide) {
  Numbers tree("1");
  for (int i = 0; i < 1000; ++i) appendNumber(tree.root(), i);
  const NumberNode first = tree.rootNode().FirstChild();
  for (std::size_t i = 0; i < 1000; ++i) {
    EXPECT_EQ(tree.rootNode().ChildAt(i).Record(), first.Record() + i);
    EXPECT_EQ(tree.rootNode().ChildAt(i)->value(), static_cast<int>(i));
  }
}

}  // namespace
}  // namespace om::test
