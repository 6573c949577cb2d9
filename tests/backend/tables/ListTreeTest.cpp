// ListTree: construction, copying, comparison, access, and the check of its invariants.

#include "backend/tables/ListTree.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <list>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "tests/backend/tables/Brittle.h"
#include "tests/backend/tables/TreeText.h"
#include "tests/support/Counted.h"

namespace om::test {
namespace {

static_assert(std::is_same_v<decltype(std::declval<TextTree&>().List()),
                             std::list<ListTreeData<std::string>>&>);
static_assert(std::is_same_v<decltype(std::declval<const TextTree&>().List()),
                             const std::list<ListTreeData<std::string>>&>);
static_assert(std::is_same_v<decltype(std::declval<const TextTree&>().Size()), int>);
static_assert(std::is_same_v<decltype(ListTreeData<int>::_level), std::int32_t>);

TEST(ListTree, HoldsNothingButTheList) {
  EXPECT_EQ(sizeof(ListTree<int>), sizeof(std::list<ListTreeData<int>>));
}

TEST(ListTree, AnEmptyTreeHasNoRecordsAndItsRootIsTheEndNode) {
  TextTree tree;
  EXPECT_EQ(tree.Size(), 0);
  EXPECT_TRUE(tree.List().empty());
  EXPECT_TRUE(tree.Root().IsEnd());
  EXPECT_EQ(tree.Root().Iter(), tree.List().end());
  EXPECT_EQ(tree.Root().Level(), 0);
}

TEST(ListTree, TheRootOfAConstEmptyTreeIsTheEndNode) {
  const TextTree tree;
  EXPECT_TRUE(tree.Root().IsEnd());
  EXPECT_EQ(tree.Root().Level(), 0);
}

TEST(ListTree, IsMadeFromAnItemAsItsRoot) {
  std::string item = "r";
  const TextTree tree(item);
  EXPECT_EQ(lineOf(tree), "r0");
  EXPECT_EQ(item, "r");
  EXPECT_EQ(tree.Size(), 1);
}

TEST(ListTree, IsMadeFromAConstItemAsItsRoot) {
  const int item = 7;
  const ListTree<int> tree(item);
  ASSERT_EQ(tree.Size(), 1);
  EXPECT_EQ(tree.List().front()._data, 7);
  EXPECT_EQ(tree.List().front()._level, 0);
}

TEST(ListTree, RootIsTheFirstRecordWithItsLevel) {
  TextTree tree = treeOf("r0 a1 b2");
  EXPECT_EQ(tree.Root().Iter(), tree.List().begin());
  EXPECT_EQ(tree.Root().Level(), 0);
  EXPECT_EQ(tree.Root().Item(), "r");
  const TextTree& constTree = tree;
  EXPECT_EQ(constTree.Root().Iter(), constTree.List().begin());
  EXPECT_EQ(constTree.Root().Item(), "r");
}

TEST(ListTree, RootCachesTheLevelThatTheFirstRecordHas) {
  TextTree tree = treeOf("a3");
  EXPECT_EQ(tree.Root().Level(), 3);
}

TEST(ListTree, SizeCountsTheRecords) { EXPECT_EQ(treeOf("r0 a1 b2 c1").Size(), 4); }

TEST(ListTree, ListIsTheTreeItself) {
  TextTree tree = treeOf("r0");
  tree.List().push_back({"a", 1});
  EXPECT_EQ(lineOf(tree), "r0 a1");
  tree.List().clear();
  EXPECT_TRUE(tree.Root().IsEnd());
}

TEST(ListTree, ACopyHasEveryRecordInOrder) {
  TextTree tree = treeOf("r0 a1 b2 c2 d1");
  const TextTree copy(tree);
  EXPECT_EQ(lineOf(copy), "r0 a1 b2 c2 d1");
}

TEST(ListTree, ACopyIsIndependentOfItsSource) {
  TextTree tree = treeOf("r0 a1");
  TextTree copy(tree);
  copy.Root().Item() = "x";
  copy.Root().AppendChild("y");
  EXPECT_EQ(lineOf(tree), "r0 a1");
  EXPECT_EQ(lineOf(copy), "x0 a1 y1");
}

TEST(ListTree, ACopyOfPointersSharesTheItems) {
  int root = 1;
  int child = 2;
  ListTree<int*> tree(&root);
  tree.Root().AppendChild(&child);
  const ListTree<int*> copy(tree);
  EXPECT_EQ(copy.List().front()._data, &root);
  EXPECT_EQ(copy.List().back()._data, &child);
}

TEST(ListTree, ACopyOfAnEmptyTreeIsEmpty) {
  const TextTree tree;
  const TextTree copy(tree);
  EXPECT_EQ(copy.Size(), 0);
}

TEST(ListTree, DestroyingATreeLeavesWhatItsItemsPointTo) {
  CountedText text("t");
  { const ListTree<CountedText*> tree(&text); }
  EXPECT_EQ(CountedText::live(), 1);
}

TEST(ListTree, DestroyingATreeDestroysItsRecordsOnce) {
  const long before = Brittle::live;
  {
    ListTree<Brittle> tree{Brittle(1)};
    tree.Root().AppendChild(Brittle(2));
    EXPECT_EQ(Brittle::live, before + 2);
  }
  EXPECT_EQ(Brittle::live, before);
}

TEST(ListTree, TreesWithTheSameRecordsAreEqual) {
  EXPECT_TRUE(treeOf("r0 a1 b2") == treeOf("r0 a1 b2"));
  EXPECT_FALSE(treeOf("r0 a1 b2") != treeOf("r0 a1 b2"));
  EXPECT_TRUE(TextTree() == TextTree());
}

TEST(ListTree, TreesOfDifferentSizesAreUnequal) {
  EXPECT_FALSE(treeOf("r0 a1") == treeOf("r0 a1 b2"));
  EXPECT_TRUE(treeOf("r0 a1") != treeOf("r0 a1 b2"));
  EXPECT_TRUE(TextTree() != treeOf("r0"));
}

TEST(ListTree, AnItemThatDiffersMakesTreesUnequal) {
  EXPECT_FALSE(treeOf("r0 a1 b2") == treeOf("r0 a1 c2"));
  EXPECT_TRUE(treeOf("r0 a1 b2") != treeOf("r0 a1 c2"));
}

TEST(ListTree, TheSameItemsAtDifferentLevelsMakeTreesUnequal) {
  EXPECT_FALSE(treeOf("r0 a1 b2") == treeOf("r0 a1 b1"));
  EXPECT_TRUE(treeOf("r0 a1 b2") != treeOf("r0 a1 b1"));
}

TEST(ListTree, EqualTreesAreNotLess) {
  EXPECT_FALSE(treeOf("r0 a1") < treeOf("r0 a1"));
  EXPECT_FALSE(TextTree() < TextTree());
}

TEST(ListTree, AProperPrefixIsLess) {
  EXPECT_TRUE(treeOf("r0 a1") < treeOf("r0 a1 a2"));
  EXPECT_FALSE(treeOf("r0 a1 a2") < treeOf("r0 a1"));
  EXPECT_TRUE(TextTree() < treeOf("r0"));
  EXPECT_FALSE(treeOf("r0") < TextTree());
}

TEST(ListTree, TheFirstRecordThatDiffersDecidesTheOrder) {
  EXPECT_TRUE(treeOf("r0 a1 z1") < treeOf("r0 b1"));
  EXPECT_FALSE(treeOf("r0 b1") < treeOf("r0 a1 z1"));
}

TEST(ListTree, RecordsAreOrderedByLevelBeforeTheirItems) {
  EXPECT_TRUE(treeOf("r0 a1 z1") < treeOf("r0 a1 b2"));
  EXPECT_FALSE(treeOf("r0 a1 b2") < treeOf("r0 a1 z1"));
}

TEST(ListTree, RecordsOfOneLevelAreOrderedByTheirItems) {
  EXPECT_TRUE(treeOf("r0 a1") < treeOf("r0 b1"));
  EXPECT_FALSE(treeOf("r0 b1") < treeOf("r0 a1"));
}

TEST(ListTree, PointersAreOrderedByAddress) {
  std::array<int, 2> items{9, 1};
  const ListTree<int*> first(&items[0]);
  const ListTree<int*> second(&items[1]);
  EXPECT_TRUE(first < second);
  EXPECT_FALSE(second < first);
}

TEST(ListTree, CheckInvariantsAcceptsAWellFormedTree) {
  EXPECT_EQ(TextTree().checkInvariants(), nullptr);
  EXPECT_EQ(treeOf("r0").checkInvariants(), nullptr);
  EXPECT_EQ(treeOf("r0 a1 b2 c3 d1 e1 f2").checkInvariants(), nullptr);
}

TEST(ListTree, CheckInvariantsFindsAFirstRecordThatIsNotAtLevelZero) {
  EXPECT_STREQ(treeOf("r1").checkInvariants(), "the first record is at level 0");
  TextTree negative;
  negative.List().push_back({"r", -1});
  EXPECT_STREQ(negative.checkInvariants(), "the first record is at level 0");
}

TEST(ListTree, CheckInvariantsFindsASecondRecordAtLevelZero) {
  EXPECT_STREQ(treeOf("r0 a0").checkInvariants(), "no other record is at level 0");
  EXPECT_STREQ(treeOf("r0 a1 b0").checkInvariants(), "no other record is at level 0");
  TextTree negative = treeOf("r0 a1");
  negative.List().push_back({"b", -1});
  EXPECT_STREQ(negative.checkInvariants(), "no other record is at level 0");
}

TEST(ListTree, CheckInvariantsFindsALevelThatWasSkipped) {
  EXPECT_STREQ(treeOf("r0 a2").checkInvariants(),
               "a level is at most one more than the one before it");
  EXPECT_STREQ(treeOf("r0 a1 b1 c3").checkInvariants(),
               "a level is at most one more than the one before it");
}

}  // namespace
}  // namespace om::test
