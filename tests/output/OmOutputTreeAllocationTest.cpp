// OmOutputTree when memory runs out: whichever allocation fails, the tree is as before and can be
// walked and destroyed, and a part that was to be added is still the caller's.

#include <gtest/gtest.h>

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <utility>

#include "output/OmOutputTree.h"
#include "tests/output/CountingWalker.h"
#include "tests/output/PartTree.h"
#include "tests/support/Allocations.h"
#include "tests/support/Counted.h"

namespace om::test {
namespace {

using Node = OmOutputTree::Node;

void expectWalks(const OmOutputTree& tree) {
  CountingWalker counter;
  EXPECT_TRUE(counter.Walk(tree));
  EXPECT_EQ(counter.entered, tree.Size());
  EXPECT_EQ(counter.left, tree.Size());
}

// Forgets who died after each run, or the list of them would count as left behind.
std::size_t failEvery(const std::function<void(FailurePoint&)>& scenario) {
  return failEveryAllocation([&scenario](FailurePoint& point) {
    scenario(point);
    resetCounted();
  });
}

// Runs the operation on the tree of the line; a failure leaves the tree as it was. The parts that
// the operation may delete are text blocks: a counted part that dies allocates.
template <class Operation>
std::size_t expectUnchangedByFailure(const std::string& line, Operation operation) {
  return failEvery([&](FailurePoint& point) {
    PartTree tree(line);
    const bool completed = point.during([&] { operation(tree); });
    EXPECT_NE(completed, point.failed());
    expectWalks(tree);
    EXPECT_EQ(tree.checkInvariants(), nullptr);
    if (completed) return;
    EXPECT_EQ(lineOf(tree), line);
  });
}

// The same for an operation that adds a part.
template <class Operation>
std::size_t expectPartKeptOnFailure(const std::string& line, Operation operation) {
  return failEvery([&](FailurePoint& point) {
    PartTree tree(line);
    std::unique_ptr<OmOutputPart> part = counted("x");
    const OmOutputPart* const raw = part.get();
    const bool completed = point.during([&] { operation(tree, std::move(part)); });
    EXPECT_NE(completed, point.failed());
    EXPECT_EQ(part.get(), completed ? nullptr : raw);
    EXPECT_EQ(lineOf(tree) == line, !completed);
    EXPECT_EQ(diedLine(), "");
    expectWalks(tree);
  });
}

// The heading, the text of its label, and a record at the least.
TEST(OmOutputTreeAllocation, ATreeThatCannotBeMadeLeavesNothingBehind) {
  EXPECT_GE(failEvery([](FailurePoint& point) { point.during([] { const OmOutputTree tree; }); }),
            3U);
}

TEST(OmOutputTreeAllocation, AppendLeavesThePartWithTheCaller) {
  EXPECT_GE(expectPartKeptOnFailure("r0 a1 b2 c1",
                                    [](PartTree& tree, std::unique_ptr<OmOutputPart>&& part) {
                                      tree.Append(tree.Root().FirstChild(), std::move(part));
                                    }),
            1U);
}

TEST(OmOutputTreeAllocation, AppendLastLeavesThePartWithTheCaller) {
  EXPECT_GE(expectPartKeptOnFailure("r0 a1 b2 c1",
                                    [](PartTree& tree, std::unique_ptr<OmOutputPart>&& part) {
                                      tree.AppendLast(std::move(part), 2);
                                    }),
            1U);
}

TEST(OmOutputTreeAllocation, AppendLastToAnEmptyTreeLeavesThePartWithTheCaller) {
  EXPECT_GE(expectPartKeptOnFailure("",
                                    [](PartTree& tree, std::unique_ptr<OmOutputPart>&& part) {
                                      tree.AppendLast(std::move(part), 0);
                                    }),
            1U);
}

const char* const kLongText = "a message that is too long for a text to hold it inside itself";

// The block, its label, its code page and the record.
TEST(OmOutputTreeAllocation, AmputateOfTheRootLeavesTheTreeAsItWas) {
  const OmStringCell text(kLongText);
  const std::string codePage = kLongText;
  EXPECT_GE(
      expectUnchangedByFailure("r0 [a]1 [b]2 -3 [c]1",
                               [&](PartTree& tree) { Amputate(tree.Root(), &text, codePage); }),
      4U);
}

TEST(OmOutputTreeAllocation, AmputateOfATopLevelNodeLeavesTheTreeAsItWas) {
  const OmStringCell text(kLongText);
  const std::string codePage = kLongText;
  EXPECT_GE(expectUnchangedByFailure(
                "r0 a1 [b]2 [c]3 d1",
                [&](PartTree& tree) { Amputate(tree.Root().FirstChild(), &text, codePage); }),
            4U);
}

TEST(OmOutputTreeAllocation, AmputateOfADeeperNodeLeavesTheTreeAsItWas) {
  const std::string codePage = kLongText;
  EXPECT_GE(expectUnchangedByFailure("r0 a1 [b]2 [c]3 d1",
                                     [&](PartTree& tree) {
                                       const Node b = tree.Root().FirstChild().FirstChild();
                                       Amputate(b, nullptr, codePage);
                                     }),
            4U);
}

TEST(OmOutputTreeAllocation, CopyingLeavesTheSourceAsItWas) {
  EXPECT_GE(expectUnchangedByFailure("r0 a1 b2 c1",
                                     [](PartTree& tree) {
                                       OmOutputTree copy(tree);
                                       copy.List().clear();
                                     }),
            4U);
}

// From one record to four: the three that are missing are made first.
TEST(OmOutputTreeAllocation, AssigningLeavesBothTreesAsTheyWere) {
  EXPECT_GE(failEvery([](FailurePoint& point) {
              const PartTree source("s0 x1 y2 z1");
              PartTree target("r0");
              const std::unique_ptr<OmOutputPart> former(target.Root().Item());
              const bool completed =
                  point.during([&] { static_cast<OmOutputTree&>(target) = source; });
              EXPECT_NE(completed, point.failed());
              EXPECT_EQ(lineOf(target), completed ? "s0 x1 y2 z1" : "r0");
              EXPECT_EQ(lineOf(source), "s0 x1 y2 z1");
              EXPECT_EQ(CountedPart::live(), 5);
              expectWalks(target);
              target.List().clear();
            }),
            3U);
}

TEST(OmOutputTreeAllocation, MoveLeavesBothTreesAsTheyWere) {
  EXPECT_GE(failEvery([](FailurePoint& point) {
              PartTree source("s0 x1 y2 z1");
              PartTree target("r0 a1");
              const bool completed = point.during([&] {
                target.Move(target.Root().FirstChild(), source.Root().FirstChild(), source.end());
              });
              EXPECT_NE(completed, point.failed());
              EXPECT_EQ(lineOf(target), completed ? "r0 x1 y2 z1 a1" : "r0 a1");
              EXPECT_EQ(lineOf(source), completed ? "s0" : "s0 x1 y2 z1");
              EXPECT_EQ(CountedPart::live(), 6);
            }),
            3U);
}

TEST(OmOutputTreeAllocation, AWalkThatRanOutOfMemoryCanBeRepeated) {
  EXPECT_GE(failEvery([](FailurePoint& point) {
              const PartTree tree("r0 a1 b2 c3 d4 e1 -2");
              CountingWalker counter;
              const bool completed = point.during([&] { counter.Walk(tree); });
              EXPECT_NE(completed, point.failed());
              EXPECT_EQ(completed, counter.left == 7);
              counter.entered = counter.left = 0;
              EXPECT_TRUE(counter.Walk(tree));
              EXPECT_EQ(counter.entered, 7);
              EXPECT_EQ(counter.left, 7);
            }),
            1U);
}

}  // namespace
}  // namespace om::test
