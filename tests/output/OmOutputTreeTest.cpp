// OmOutputTree: its root, adding parts, and what happens to the parts that leave it.

#include "output/OmOutputTree.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <string>
#include <type_traits>
#include <typeinfo>
#include <utility>
#include <vector>

#include "backend/OMSException.h"
#include "output/OmHeading.h"
#include "tests/output/PartTree.h"
#include "tests/support/Allocations.h"
#include "tests/support/Asserts.h"
#include "tests/support/Counted.h"

namespace om::test {
namespace {

using Node = OmOutputTree::Node;

// The text of the exception that the operation throws.
template <class Operation>
std::string refusal(Operation operation) {
  try {
    operation();
  } catch (const OMSException& exception) {
    return exception.what();
  }
  return "nothing was thrown";
}

TEST(OmOutputTree, ANewTreeIsItsRootAlone) {
  const OmOutputTree tree;
  EXPECT_EQ(tree.Size(), 1);
  EXPECT_EQ(tree.Root().Level(), 0);
  EXPECT_TRUE(tree.Root().IsLeaf());
  EXPECT_EQ(tree.checkInvariants(), nullptr);
}

TEST(OmOutputTree, TheRootIsAHeadingLabelledOutput) {
  const OmOutputTree tree;
  const OmOutputPart* const root = tree.Root().Item();
  ASSERT_NE(root, nullptr);
  EXPECT_TRUE(typeid(*root) == typeid(OmHeading));
  EXPECT_EQ(std::string(root->Label()), "Output");
}

TEST(OmOutputTree, TheLabelOfTheRootIsAUtf8StringCell) {
  const OmOutputTree tree;
  const auto* const label = dynamic_cast<const OmStringCell*>(&tree.Root().Item()->Label());
  ASSERT_NE(label, nullptr);
  EXPECT_TRUE(label->IsUtf8());
}

TEST(OmOutputTree, EachTreeHasARootOfItsOwn) {
  const OmOutputTree first;
  const OmOutputTree second;
  EXPECT_NE(first.Root().Item(), second.Root().Item());
}

TEST(OmOutputTree, IsAListTreeAndAddsNoData) {
  EXPECT_TRUE((std::is_convertible_v<OmOutputTree*, ListTree<OmOutputPart*>*>));
  EXPECT_EQ(sizeof(OmOutputTree), sizeof(ListTree<OmOutputPart*>));
}

TEST(OmOutputTree, TheDestructorDeletesEachPartOnceInTheOrderOfTheRecords) {
  { const PartTree tree("r0 a1 b2 c3 d2 e1"); }
  EXPECT_EQ(diedLine(), "r a b c d e");
  EXPECT_EQ(CountedPart::live(), 0);
}

TEST(OmOutputTree, TheDestructorPassesOverNullItems) {
  { const PartTree tree("-0 a1 -2 b3 -1"); }
  EXPECT_EQ(diedLine(), "a b");
}

TEST(OmOutputTree, TheDestructorOfAnEmptyTreeDeletesNothing) {
  { const PartTree tree(""); }
  EXPECT_EQ(diedLine(), "");
}

TEST(OmOutputTree, OwnsThePartsThatItsRecordsAreGivenDirectly) {
  {
    OmOutputTree tree;
    tree.Root().AppendChild(counted("a").release());
    tree.List().push_back({counted("b").release(), 2});
    EXPECT_EQ(lineOf(tree), "Output0 a1 b2");
  }
  EXPECT_EQ(diedLine(), "a b");
}

TEST(OmOutputTreeAppend, AddsTheLastChildOfTheParent) {
  PartTree tree("r0 a1 b2 c3 d1");
  tree.Append(tree.at("a"), counted("x"));
  EXPECT_EQ(lineOf(tree), "r0 a1 b2 c3 x2 d1");
}

TEST(OmOutputTreeAppend, AddsTheFirstChildOfALeaf) {
  PartTree tree("r0 a1 b1");
  tree.Append(tree.at("a"), counted("x"));
  EXPECT_EQ(lineOf(tree), "r0 a1 x2 b1");
}

TEST(OmOutputTreeAppend, AddsToTheRootAtTheEndOfTheTree) {
  PartTree tree("r0 a1 b2");
  tree.Append(tree.Root(), counted("x"));
  EXPECT_EQ(lineOf(tree), "r0 a1 b2 x1");
}

TEST(OmOutputTreeAppend, GivesTheNewRecord) {
  PartTree tree("r0 a1 b2 c1");
  std::unique_ptr<OmOutputPart> part = counted("x");
  const OmOutputPart* const raw = part.get();
  const Node appended = tree.Append(tree.at("a"), std::move(part));
  EXPECT_EQ(appended.Item(), raw);
  EXPECT_EQ(appended.Level(), 2);
  EXPECT_TRUE(appended.NextSibling() == tree.at("c"));
}

TEST(OmOutputTreeAppend, TakesThePartOver) {
  {
    OmOutputTree tree;
    std::unique_ptr<OmOutputPart> part = counted("x");
    tree.Append(tree.Root(), std::move(part));
    EXPECT_EQ(part, nullptr);
    EXPECT_EQ(CountedPart::live(), 1);
  }
  EXPECT_EQ(diedLine(), "x");
}

TEST(OmOutputTreeAppend, TakesNull) {
  PartTree tree("r0 a1");
  const Node appended = tree.Append(tree.at("a"), nullptr);
  EXPECT_EQ(appended.Item(), nullptr);
  EXPECT_EQ(lineOf(tree), "r0 a1 -2");
}

TEST(OmOutputTreeAppend, RefusesTheEndAndLeavesThePartWithTheCaller) {
  PartTree tree("r0 a1");
  std::unique_ptr<OmOutputPart> part = counted("x");
  EXPECT_EQ(refusal([&] { tree.Append(tree.end(), std::move(part)); }),
            "OmOutputTree::Append() -- parent is the end, value 1 == 0, value 2 == 0");
  ASSERT_NE(part, nullptr);
  EXPECT_EQ(std::string(part->Label()), "x");
  EXPECT_EQ(lineOf(tree), "r0 a1");
}

TEST(OmOutputTreeAppend, RefusesTheRootOfAnEmptyTree) {
  PartTree tree("");
  EXPECT_EQ(refusal([&] { tree.Append(tree.Root(), counted("x")); }),
            "OmOutputTree::Append() -- parent is the end, value 1 == 0, value 2 == 0");
  EXPECT_EQ(lineOf(tree), "");
  EXPECT_EQ(CountedPart::live(), 0);
}

std::string appendedLast(const std::string& line, int level) {
  PartTree tree(line);
  const Node appended = tree.AppendLast(counted("x"), level);
  EXPECT_EQ(nameOf(appended.Item()), "x");
  EXPECT_EQ(appended.Level(), level);
  EXPECT_TRUE(appended == tree.at("x"));
  return lineOf(tree);
}

TEST(OmOutputTreeAppendLast, AddsAChildOfTheLastRecordThatIsLessDeep) {
  EXPECT_EQ(appendedLast("r0 a1 b2 c3", 1), "r0 a1 b2 c3 x1");
  EXPECT_EQ(appendedLast("r0 a1 b2 c3", 2), "r0 a1 b2 c3 x2");
  EXPECT_EQ(appendedLast("r0 a1 b2 c3", 3), "r0 a1 b2 c3 x3");
  EXPECT_EQ(appendedLast("r0 a1 b2 c3", 4), "r0 a1 b2 c3 x4");
}

TEST(OmOutputTreeAppendLast, AddsTheFirstChildOfTheRoot) {
  EXPECT_EQ(appendedLast("r0", 1), "r0 x1");
}

TEST(OmOutputTreeAppendLast, GivesAnEmptyTreeItsRoot) { EXPECT_EQ(appendedLast("", 0), "x0"); }

TEST(OmOutputTreeAppendLast, TakesThePartOver) {
  {
    OmOutputTree tree;
    std::unique_ptr<OmOutputPart> part = counted("x");
    tree.AppendLast(std::move(part), 1);
    EXPECT_EQ(part, nullptr);
  }
  EXPECT_EQ(diedLine(), "x");
}

TEST(OmOutputTreeAppendLast, TakesNull) {
  PartTree tree("r0 a1");
  tree.AppendLast(nullptr, 2);
  EXPECT_EQ(lineOf(tree), "r0 a1 -2");
}

TEST(OmOutputTreeAppendLast, AllocatesNothingButTheRecord) {
  PartTree tree("r0 a1 b2");
  std::unique_ptr<OmOutputPart> part = counted("x");
  const std::size_t before = totalNewBlocks();
  tree.AppendLast(std::move(part), 3);
  EXPECT_EQ(totalNewBlocks(), before + 1);
}

// The text of the exception; tree and part are looked at as well.
std::string refusedLast(const std::string& line, int level) {
  resetCounted();
  PartTree tree(line);
  std::unique_ptr<OmOutputPart> part = counted("x");
  const OmOutputPart* const raw = part.get();
  const std::string text = refusal([&] { tree.AppendLast(std::move(part), level); });
  EXPECT_EQ(part.get(), raw);
  EXPECT_EQ(lineOf(tree), line);
  EXPECT_EQ(diedLine(), "");
  return text;
}

TEST(OmOutputTreeAppendLast, RefusesASecondRootAndLeavesThePartWithTheCaller) {
  EXPECT_EQ(refusedLast("r0", 0),
            "OmOutputTree::AppendLast() -- level < 1, value 1 == 0, value 2 == 1");
  EXPECT_EQ(refusedLast("r0 a1 b2", 0),
            "OmOutputTree::AppendLast() -- level < 1, value 1 == 0, value 2 == 3");
}

TEST(OmOutputTreeAppendLast, RefusesANegativeLevelAndLeavesThePartWithTheCaller) {
  EXPECT_EQ(refusedLast("r0 a1", -7),
            "OmOutputTree::AppendLast() -- level < 1, value 1 == -7, value 2 == 2");
}

TEST(OmOutputTreeAppendLast, RefusesToLeaveOutALevelAndLeavesThePartWithTheCaller) {
  EXPECT_EQ(refusedLast("r0", 2),
            "OmOutputTree::AppendLast() -- level > last level + 1, value 1 == 2, value 2 == 1");
  EXPECT_EQ(refusedLast("r0 a1 b2 c1", 3),
            "OmOutputTree::AppendLast() -- level > last level + 1, value 1 == 3, value 2 == 2");
}

TEST(OmOutputTreeAppendLast, RefusesARootThatIsNotAtLevelZeroAndLeavesThePartWithTheCaller) {
  EXPECT_EQ(refusedLast("", 1),
            "OmOutputTree::AppendLast() -- level != 0, value 1 == 1, value 2 == 0");
  EXPECT_EQ(refusedLast("", -1),
            "OmOutputTree::AppendLast() -- level != 0, value 1 == -1, value 2 == 0");
}

TEST(OmOutputTreeAppendLast, RefusesNullAtAWrongLevel) {
  PartTree tree("r0");
  EXPECT_EQ(refusal([&] { tree.AppendLast(nullptr, 5); }),
            "OmOutputTree::AppendLast() -- level > last level + 1, value 1 == 5, value 2 == 1");
  EXPECT_EQ(lineOf(tree), "r0");
}

TEST(OmOutputTreeLeaving, AQualifiedEraseGivesThePartToTheCaller) {
  PartTree tree("r0 a1 b2");
  Node a = tree.at("a");
  const std::unique_ptr<OmOutputPart> part(a.Item());
  tree.ListTree::Erase(a);
  EXPECT_EQ(lineOf(tree), "r0 b1");
  EXPECT_EQ(diedLine(), "");
  EXPECT_EQ(std::string(part->Label()), "a");
}

TEST(OmOutputTreeLeaving, AQualifiedPruneGivesThePartsToTheCaller) {
  PartTree tree("r0 a1 b2 c1");
  const std::unique_ptr<OmOutputPart> a(tree.at("a").Item());
  const std::unique_ptr<OmOutputPart> b(tree.at("b").Item());
  tree.ListTree::Prune(tree.at("a"));
  EXPECT_EQ(lineOf(tree), "r0 c1");
  EXPECT_EQ(diedLine(), "");
  EXPECT_EQ(std::string(a->Label()) + std::string(b->Label()), "ab");
}

TEST(OmOutputTreeLeaving, FlattenDeletesNothing) {
  PartTree tree("r0 a1 b2 c3 d1");
  Node a = tree.at("a");
  tree.Flatten(a);
  EXPECT_EQ(lineOf(tree), "r0 a1 b1 c2 d1");
  EXPECT_EQ(diedLine(), "");
}

TEST(OmOutputTreeLeaving, MoveHandsThePartsToTheTreeThatReceivesThem) {
  PartTree target("t0 u1");
  {
    PartTree source("r0 a1 b2 c1 d1");
    target.Move(target.at("u"), source.at("a"), source.at("d"));
    EXPECT_EQ(lineOf(source), "r0 d1");
    EXPECT_EQ(diedLine(), "");
  }
  EXPECT_EQ(diedLine(), "r d");
  EXPECT_EQ(lineOf(target), "t0 a1 b2 c1 u1");
  Node a = target.at("a");
  target.Prune(a);
  EXPECT_EQ(diedLine(), "r d b a");
}

TEST(OmOutputTreeLeaving, AMoveThatIsRefusedLeavesThePartsWithTheirTree) {
  const AssertCollector asserts;
  PartTree target("t0");
  {
    PartTree source("r0 a1 b2");
    target.Move(target.Root().ChildrenEnd(), source.at("b"), source.end());
    EXPECT_EQ(asserts.reports(), (std::vector<Report>{{L"begin.Level() == target.Level()",
                                                       L"backend/tables/ListTree", 506}}));
    EXPECT_EQ(lineOf(source), "r0 a1 b2");
  }
  EXPECT_EQ(diedLine(), "r a b");
  EXPECT_EQ(lineOf(target), "t0");
}

TEST(OmOutputTreeLeaving, ATreeTakenApartThroughItsListLeavesThePartsAlone) {
  const std::unique_ptr<OmOutputPart> part = counted("a");
  {
    PartTree tree("");
    tree.List().push_back({part.get(), 0});
    tree.List().clear();
  }
  EXPECT_EQ(diedLine(), "");
}

}  // namespace
}  // namespace om::test
