// The end of a record: its value first, then its children in order, then their storage.

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "tests/backend/tables/om/VectorTreeText.h"

namespace om::test {
namespace {

std::vector<int> deathsOf(const std::string& line) {
  std::optional<Numbers> tree(line);
  const Deaths deaths;
  tree.reset();
  return deaths.values();
}

TEST(VectorTreeDestruction, OfALeafDestroysItsValue) {
  EXPECT_EQ(deathsOf("1"), std::vector<int>{1});
}

TEST(VectorTreeDestruction, GoesFromTheValueToTheChildrenInOrder) {
  EXPECT_EQ(deathsOf("1(2 3 4)"), (std::vector<int>{1, 2, 3, 4}));
}

TEST(VectorTreeDestruction, GoesThroughASubtreeBeforeTheNextSibling) {
  EXPECT_EQ(deathsOf("1(2(3 4(5)) 6(7) 8)"), (std::vector<int>{1, 2, 3, 4, 5, 6, 7, 8}));
}

TEST(VectorTreeDestruction, LeavesNoValueAlive) {
  const long before = Brittle::live;
  deathsOf("1(2(3 4(5)) 6(7) 8)");
  EXPECT_EQ(Brittle::live, before);
}

TEST(VectorTreeDestruction, GivesAllStorageBackToTheRegion) {
  OmMemoryRegion region(false);
  {
    NumberEntry root([] { return Brittle(1); }, &region, nullptr);
    Numbers source("2(3(4) 5)");
    NumberTree::Append(root, source.root());
    EXPECT_EQ(region.BlocksInUse(), 3U);
  }
  EXPECT_EQ(region.BlocksInUse(), 0U);
}

TEST(VectorTreeDestruction, DoesNotFollowStaleLinks) {
  std::optional<Numbers> tree("1(2(4 5) 3(6))");
  tree->record({0}).parent = nullptr;
  tree->record({0, 0}).parent = &tree->record({1});
  tree->record({0, 1}).parent = nullptr;
  tree->record({1, 0}).parent = &tree->record({0});
  const Deaths deaths;
  tree.reset();
  EXPECT_EQ(deaths.values(), (std::vector<int>{1, 2, 4, 5, 3, 6}));
}

TEST(VectorTreeDestruction, OfADetachedRecordThatNobodyTookDestroysItsSubtree) {
  Numbers source("2(3 4)");
  OmMemoryRegion region(false);
  std::vector<int> dead;
  {
    const NumberTree::Detached record(std::in_place, source.root(), NumberTree::plainCopy, &region,
                                      nullptr);
    Brittle::deaths = &dead;
  }
  Brittle::deaths = nullptr;
  EXPECT_EQ(dead, (std::vector<int>{2, 3, 4}));
  EXPECT_EQ(region.BlocksInUse(), 0U);
}

}  // namespace
}  // namespace om::test
