// ListTree::Move: what it moves, and the four conditions that it reports.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/backend/tables/Brittle.h"
#include "tests/backend/tables/TreeText.h"
#include "tests/support/Asserts.h"

namespace om::test {
namespace {

using Node = TextTree::Node;

constexpr const wchar_t* kSource = L"backend/tables/ListTree";

// Two trees that records are moved between.
struct Pair {
  TextTree to = treeOf("r0 a1 b2 c1");
  TextTree from = treeOf("s0 x1 y2 z1");
  AssertCollector asserts;

  void expectUnmoved(const Report& report) const {
    EXPECT_EQ(asserts.reports(), std::vector<Report>{report});
    EXPECT_EQ(lineOf(to), "r0 a1 b2 c1");
    EXPECT_EQ(lineOf(from), "s0 x1 y2 z1");
  }
};

TEST(ListTreeMove, MovesASubtreeInFrontOfTheTarget) {
  Pair trees;
  const Node x = nodeOf(trees.from, "x");
  trees.to.Move(nodeOf(trees.to, "c"), x, x.NextSibling());
  EXPECT_EQ(lineOf(trees.to), "r0 a1 b2 x1 y2 c1");
  EXPECT_EQ(lineOf(trees.from), "s0 z1");
  EXPECT_TRUE(trees.asserts.reports().empty());
}

TEST(ListTreeMove, MovesSeveralSubtreesInOrder) {
  Pair trees;
  trees.to.Move(nodeOf(trees.to, "a"), nodeOf(trees.from, "x"), endOf(trees.from));
  EXPECT_EQ(lineOf(trees.to), "r0 x1 y2 z1 a1 b2 c1");
  EXPECT_EQ(lineOf(trees.from), "s0");
}

TEST(ListTreeMove, TheFirstMovedRecordBecomesThePrecedingSiblingOfTheTarget) {
  Pair trees;
  const Node z = nodeOf(trees.from, "z");
  trees.to.Move(nodeOf(trees.to, "c"), z, z.NextSibling());
  EXPECT_TRUE(nodeOf(trees.to, "z").NextSibling() == nodeOf(trees.to, "c"));
  EXPECT_TRUE(nodeOf(trees.to, "z").Parent() == trees.to.Root());
}

TEST(ListTreeMove, ChildrenEndAsTargetAddsLastChildren) {
  Pair trees;
  const Node y = nodeOf(trees.from, "y");
  trees.to.Move(nodeOf(trees.to, "a").ChildrenEnd(), y, y.NextSibling());
  EXPECT_EQ(lineOf(trees.to), "r0 a1 b2 y2 c1");
  EXPECT_EQ(lineOf(trees.from), "s0 x1 z1");
  EXPECT_TRUE(trees.asserts.reports().empty());
}

TEST(ListTreeMove, ChildrenEndOnTheEndOfTheListAddsThere) {
  Pair trees;
  const Node x = nodeOf(trees.from, "x");
  trees.to.Move(trees.to.Root().ChildrenEnd(), x, x.NextSibling());
  EXPECT_EQ(lineOf(trees.to), "r0 a1 b2 c1 x1 y2");
  EXPECT_TRUE(trees.asserts.reports().empty());
}

TEST(ListTreeMove, TheEndNodeAsTargetTakesARangeThatStartsAtLevelZero) {
  Pair trees;
  trees.to.Move(endOf(trees.to), trees.from.Root(), endOf(trees.from));
  EXPECT_EQ(lineOf(trees.to), "r0 a1 b2 c1 s0 x1 y2 z1");
  EXPECT_EQ(lineOf(trees.from), "");
  EXPECT_TRUE(trees.asserts.reports().empty());
}

TEST(ListTreeMove, AnEmptyTreeTakesAWholeTree) {
  TextTree to;
  TextTree from = treeOf("s0 x1");
  to.Move(to.Root(), from.Root(), endOf(from));
  EXPECT_EQ(lineOf(to), "s0 x1");
  EXPECT_EQ(from.Size(), 0);
}

TEST(ListTreeMove, LevelsStayAsTheyAreWhateverTheRange) {
  Pair trees;
  trees.to.Move(nodeOf(trees.to, "c"), nodeOf(trees.from, "x"), nodeOf(trees.from, "y"));
  EXPECT_EQ(lineOf(trees.to), "r0 a1 b2 x1 c1");
  EXPECT_EQ(lineOf(trees.from), "s0 y2 z1");
}

TEST(ListTreeMove, AnEmptyRangeMovesNothing) {
  Pair trees;
  trees.to.Move(nodeOf(trees.to, "c"), nodeOf(trees.from, "x"), nodeOf(trees.from, "x"));
  EXPECT_EQ(lineOf(trees.to), "r0 a1 b2 c1");
  EXPECT_EQ(lineOf(trees.from), "s0 x1 y2 z1");
  EXPECT_TRUE(trees.asserts.reports().empty());
}

TEST(ListTreeMove, TheLevelOfTheRangesEndDoesNotMatter) {
  Pair trees;
  const Node y = nodeOf(trees.from, "y");
  ASSERT_EQ(nodeOf(trees.from, "z").Level(), 1);
  trees.to.Move(nodeOf(trees.to, "b"), y, nodeOf(trees.from, "z"));
  EXPECT_EQ(lineOf(trees.to), "r0 a1 y2 b2 c1");
  EXPECT_TRUE(trees.asserts.reports().empty());
}

TEST(ListTreeMove, HandlesOnRecordsThatWereNotMovedStayValid) {
  Pair trees;
  const Node c = nodeOf(trees.to, "c");
  const Node z = nodeOf(trees.from, "z");
  trees.to.Move(c, nodeOf(trees.from, "x"), z);
  EXPECT_EQ(c.Item(), "c");
  EXPECT_EQ(z.Item(), "z");
}

TEST(ListTreeMove, ReportsATargetOfAnotherTree) {
  Pair trees;
  const Node x = nodeOf(trees.from, "x");
  trees.to.Move(nodeOf(trees.from, "z"), x, x.NextSibling());
  trees.expectUnmoved({L"target._tree == this", kSource, 503});
}

TEST(ListTreeMove, ReportsARangeOfTwoTrees) {
  Pair trees;
  TextTree third = treeOf("t0 u1");
  trees.to.Move(nodeOf(trees.to, "c"), nodeOf(trees.from, "x"), endOf(third));
  trees.expectUnmoved({L"begin._tree == end._tree", kSource, 504});
  EXPECT_EQ(lineOf(third), "t0 u1");
}

TEST(ListTreeMove, ReportsARangeOfItsOwnTree) {
  Pair trees;
  trees.to.Move(nodeOf(trees.to, "c"), nodeOf(trees.to, "a"), nodeOf(trees.to, "c"));
  trees.expectUnmoved({L"target._tree != begin._tree", kSource, 505});
}

TEST(ListTreeMove, ReportsARangeAtAnotherLevel) {
  Pair trees;
  trees.to.Move(nodeOf(trees.to, "c"), nodeOf(trees.from, "y"), nodeOf(trees.from, "z"));
  trees.expectUnmoved({L"begin.Level() == target.Level()", kSource, 506});
}

TEST(ListTreeMove, AnEmptyRangeIsHeldToTheConditionsAsWell) {
  Pair trees;
  trees.to.Move(nodeOf(trees.to, "c"), endOf(trees.from), endOf(trees.from));
  trees.expectUnmoved({L"begin.Level() == target.Level()", kSource, 506});
}

TEST(ListTreeMove, ReportsOnlyTheTargetWhenNoConditionHolds) {
  Pair trees;
  trees.to.Move(nodeOf(trees.from, "y"), nodeOf(trees.from, "x"), endOf(trees.to));
  trees.expectUnmoved({L"target._tree == this", kSource, 503});
}

TEST(ListTreeMove, ReportsOnlyTheRangeOfTwoTreesWhenTheLaterConditionsFailToo) {
  Pair trees;
  trees.to.Move(nodeOf(trees.to, "c"), nodeOf(trees.to, "b"), endOf(trees.from));
  trees.expectUnmoved({L"begin._tree == end._tree", kSource, 504});
}

TEST(ListTreeMove, ReportsOnlyItsOwnTreeWhenTheLevelsDifferToo) {
  Pair trees;
  trees.to.Move(nodeOf(trees.to, "c"), nodeOf(trees.to, "b"), nodeOf(trees.to, "c"));
  trees.expectUnmoved({L"target._tree != begin._tree", kSource, 505});
}

TEST(ListTreeMove, ComparesTheCachedLevels) {
  Pair trees;
  const Node b = nodeOf(trees.to, "b");
  Node a = nodeOf(trees.to, "a");
  trees.to.Flatten(a);
  ASSERT_EQ(lineOf(trees.to), "r0 a1 b1 c1");
  trees.to.Move(b, nodeOf(trees.from, "x"), nodeOf(trees.from, "y"));
  EXPECT_EQ(trees.asserts.reports(),
            (std::vector<Report>{{L"begin.Level() == target.Level()", kSource, 506}}));
  trees.to.Move(b, nodeOf(trees.from, "y"), nodeOf(trees.from, "z"));
  EXPECT_EQ(trees.asserts.reports().size(), 1U);
  EXPECT_EQ(lineOf(trees.to), "r0 a1 y2 b1 c1");
}

TEST(ListTreeMove, ACopyThatThrowsLeavesBothTreesAsBefore) {
  long refused = 0;
  for (long n = 1;; ++n) {
    ListTree<Brittle> to{Brittle(0)};
    ListTree<Brittle> from{Brittle(10)};
    const auto target = to.Root().AppendChild(Brittle(1));
    for (int i = 11; i <= 13; ++i) from.Root().AppendChild(Brittle(i));
    const ListTree<Brittle> toBefore(to);
    const ListTree<Brittle> fromBefore(from);
    const auto first = from.Root().FirstChild();
    const long live = Brittle::live;
    if (!refusesCopy(n, [&] { to.Move(target, first, from.Root().ChildrenEnd()); })) {
      EXPECT_EQ(to.Size(), 5);
      EXPECT_EQ(from.Size(), 1);
      break;
    }
    ++refused;
    EXPECT_TRUE(to == toBefore) << "copy " << n;
    EXPECT_TRUE(from == fromBefore) << "copy " << n;
    EXPECT_TRUE(first == from.Root().FirstChild()) << "the source keeps its records";
    EXPECT_EQ(Brittle::live, live);
    if (HasFailure()) return;
  }
  EXPECT_GE(refused, 3);
}

}  // namespace
}  // namespace om::test
