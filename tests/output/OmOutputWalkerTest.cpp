// OmOutputWalker: what is visited, entered and left, in which order, and how a walk ends.

#include "output/OmOutputWalker.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>

#include "output/OmOutputTree.h"
#include "output/OmPageTitle.h"
#include "output/OmProcedure.h"
#include "tests/output/PartTree.h"

namespace om::test {
namespace {

// Adds a word to its log for each visit, and acts where a word is awaited.
class Logger : public OmOutputWalker {
 public:
  void Visit(OmHeading& part) override { add(nameOf(&part)); }
  void Visit(OmTextBlock& part) override { add(nameOf(&part)); }
  void Visit(OmInteractive&) override { add("interactive"); }
  void Visit(OmModel&) override { add("model"); }
  void Visit(OmAnswerTree&) override { add("answer tree"); }
  void Visit(OmChart&) override { add("chart"); }
  void Visit(OmPivotTable&) override { add("pivot table"); }

  // The words of the walks so far.
  std::string log;
  // Calls `action` when the word is added.
  void at(const std::string& word, std::function<void(Logger&)> action) {
    word_ = word;
    action_ = std::move(action);
  }
  using OmOutputWalker::SkipSubtree;
  using OmOutputWalker::Stop;

 protected:
  void add(const std::string& word) {
    log += (log.empty() ? "" : " ") + word;
    if (action_ && word == word_) action_(*this);
  }

 private:
  std::string word_;
  std::function<void(Logger&)> action_;
};

// Adds words for what is left as well: "a /a1" for a visit and for leaving.
class LeaveLogger : public Logger {
 protected:
  void Leave(OmOutputPart* part, int level) override {
    add("/" + nameOf(part) + std::to_string(level));
  }
};

// Adds words for what is entered, visits the part and adds words for what is left: "+a1 a /a1".
class EnterLogger : public LeaveLogger {
 protected:
  void Enter(OmOutputPart* part, int level) override {
    add("+" + nameOf(part) + std::to_string(level));
    OmOutputWalker::Enter(part, level);
  }
};

void skip(Logger& logger) { logger.SkipSubtree(); }
void stop(Logger& logger) { logger.Stop(); }
void fail(Logger&) { throw std::runtime_error("refused"); }

// The log of a whole walk, followed by its result.
template <class Walker>
std::string walked(const std::string& line) {
  const PartTree tree(line);
  Walker walker;
  const bool completed = walker.Walk(tree);
  return walker.log + (completed ? " true" : " false");
}

// The same, with an action at a word.
template <class Walker>
std::string walked(const std::string& line, const std::string& word,
                   const std::function<void(Logger&)>& action) {
  const PartTree tree(line);
  Walker walker;
  walker.at(word, action);
  const bool completed = walker.Walk(tree);
  return walker.log + (completed ? " true" : " false");
}

// The same, for the subtree of a part.
template <class Walker>
std::string walkedBelow(const std::string& line, const std::string& top) {
  PartTree tree(line);
  Walker walker;
  const bool completed = walker.Walk(tree.at(top));
  return walker.log + (completed ? " true" : " false");
}

TEST(OmOutputWalker, VisitsThePartsInPreOrder) {
  EXPECT_EQ(walked<Logger>("r0 a1 b2 c3 d2 e1"), "r a b c d e true");
}

TEST(OmOutputWalker, LeavesARecordAfterEverythingBelowIt) {
  EXPECT_EQ(walked<LeaveLogger>("r0 a1 b2 c2 d1"), "r a b /b2 c /c2 /a1 d /d1 /r0 true");
}

TEST(OmOutputWalker, LeavesAllThatEndWhereARecordHigherUpFollows) {
  EXPECT_EQ(walked<LeaveLogger>("r0 a1 b2 c3 d1"), "r a b c /c3 /b2 /a1 d /d1 /r0 true");
}

TEST(OmOutputWalker, LeavesAllAtTheEndChildrenBeforeParents) {
  EXPECT_EQ(walked<LeaveLogger>("r0 a1 b2 c3"), "r a b c /c3 /b2 /a1 /r0 true");
}

TEST(OmOutputWalker, EntersEachRecordWithItsLevel) {
  EXPECT_EQ(walked<EnterLogger>("r0 a1 b2 c1"), "+r0 r +a1 a +b2 b /b2 /a1 +c1 c /c1 /r0 true");
}

TEST(OmOutputWalker, EntersAndLeavesANullItemWithoutAVisit) {
  EXPECT_EQ(walked<EnterLogger>("r0 -1 a2 -2"), "+r0 r +-1 +a2 a /a2 +-2 /-2 /-1 /r0 true");
  EXPECT_EQ(walked<EnterLogger>("-0"), "+-0 /-0 true");
}

TEST(OmOutputWalker, VisitsBelowANullItem) { EXPECT_EQ(walked<Logger>("-0 -1 a2"), "a true"); }

TEST(OmOutputWalker, LetsEachPartAcceptItAsItsOwnKind) {
  PartTree tree("r0 [a]1");
  tree.Append(tree.Root(), std::make_unique<OmPageTitle>("page"));
  tree.Append(tree.Root(),
              std::make_unique<OmProcedure>(OmStringCell("p"), "en", "UTF-8", "en_GB"));
  class Kinds : public Logger {
   public:
    using Logger::Visit;
    void Visit(OmPageTitle&) override { add("title"); }
    void Visit(OmProcedure&) override { add("procedure"); }
  } kinds;
  EXPECT_TRUE(kinds.Walk(tree));
  EXPECT_EQ(kinds.log, "r [a] title procedure");
}

TEST(OmOutputWalker, AnOverrideOfEnterTakesThePlaceOfTheVisits) {
  class Names : public Logger {
   protected:
    void Enter(OmOutputPart* part, int) override { add("only " + nameOf(part)); }
  };
  EXPECT_EQ(walked<Names>("r0 a1 -2"), "only r only a only - true");
}

TEST(OmOutputWalker, AnEmptyTreeHasNothingToWalk) { EXPECT_EQ(walked<EnterLogger>(""), " true"); }

TEST(OmOutputWalker, PartsMayBeChangedDuringTheWalk) {
  PartTree tree("r0 a1 b1");
  class Renamer : public Logger {
   public:
    using Logger::Visit;
    void Visit(OmHeading& part) override { part.Label(OmStringCell(nameOf(&part) + "!")); }
  } renamer;
  EXPECT_TRUE(renamer.Walk(tree));
  EXPECT_EQ(lineOf(tree), "r!0 a!1 b!1");
}

TEST(OmOutputWalkerSubtree, WalksThePartAndWhatIsBelowItWithTheLevelsOfTheTree) {
  EXPECT_EQ(walkedBelow<EnterLogger>("r0 a1 b2 c3 d2 e1", "a"),
            "+a1 a +b2 b +c3 c /c3 /b2 +d2 d /d2 /a1 true");
}

TEST(OmOutputWalkerSubtree, EndsAtARecordHigherUp) {
  EXPECT_EQ(walkedBelow<LeaveLogger>("r0 a1 b2 c3 d1", "b"), "b c /c3 /b2 true");
}

TEST(OmOutputWalkerSubtree, EndsAtTheEndOfTheTree) {
  EXPECT_EQ(walkedBelow<LeaveLogger>("r0 a1 b1 c2", "b"), "b c /c2 /b1 true");
}

TEST(OmOutputWalkerSubtree, OfALeafIsTheLeaf) {
  EXPECT_EQ(walkedBelow<LeaveLogger>("r0 a1 b1", "a"), "a /a1 true");
}

TEST(OmOutputWalkerSubtree, OfTheRootIsTheWholeTree) {
  EXPECT_EQ(walkedBelow<LeaveLogger>("r0 a1 b1", "r"), "r a /a1 b /b1 /r0 true");
}

TEST(OmOutputWalkerSubtree, OfANullItemIsWalkedToo) {
  EXPECT_EQ(walkedBelow<LeaveLogger>("r0 -1 a2 b1", "-"), "a /a2 /-1 true");
}

TEST(OmOutputWalkerSubtree, AnEndNodeHasNone) {
  EXPECT_EQ(walkedBelow<EnterLogger>("r0 a1", "none"), " true");
}

TEST(OmOutputWalkerSubtree, AConstTreeIsWalkedThroughItsHandles) {
  const PartTree tree("r0 a1 b2 c1");
  Logger logger;
  EXPECT_TRUE(logger.Walk(tree.Root().FirstChild()));
  EXPECT_EQ(logger.log, "a b");
}

TEST(OmOutputWalkerSkip, FromAVisitLeavesOutWhatIsBelowThePart) {
  EXPECT_EQ(walked<LeaveLogger>("r0 a1 b2 c3 d1 e2", "a", skip), "r a /a1 d e /e2 /d1 /r0 true");
}

TEST(OmOutputWalkerSkip, FromEnterLeavesOutWhatIsBelowThePartButNotTheVisit) {
  EXPECT_EQ(walked<EnterLogger>("r0 a1 b2 c1", "+a1", skip), "+r0 r +a1 a /a1 +c1 c /c1 /r0 true");
}

TEST(OmOutputWalkerSkip, OnANullItemLeavesOutWhatIsBelowIt) {
  EXPECT_EQ(walked<EnterLogger>("r0 -1 a2 b1", "+-1", skip), "+r0 r +-1 /-1 +b1 b /b1 /r0 true");
}

TEST(OmOutputWalkerSkip, EndsAtARecordHigherUp) {
  EXPECT_EQ(walked<LeaveLogger>("r0 a1 b2 c3 d1", "b", skip), "r a b /b2 /a1 d /d1 /r0 true");
}

TEST(OmOutputWalkerSkip, OfTheLastSubtreeEndsTheWalk) {
  EXPECT_EQ(walked<LeaveLogger>("r0 a1 b2 c3", "a", skip), "r a /a1 /r0 true");
}

TEST(OmOutputWalkerSkip, OfTheRootLeavesTheRootAlone) {
  EXPECT_EQ(walked<LeaveLogger>("r0 a1 b2", "r", skip), "r /r0 true");
}

TEST(OmOutputWalkerSkip, OfALeafLeavesNothingOut) {
  EXPECT_EQ(walked<LeaveLogger>("r0 a1 b1 c2", "a", skip), "r a /a1 b c /c2 /b1 /r0 true");
}

TEST(OmOutputWalkerSkip, WorksInTheWalkOfASubtree) {
  PartTree tree("r0 a1 b2 c3 d2 e1");
  LeaveLogger logger;
  logger.at("b", skip);
  EXPECT_TRUE(logger.Walk(tree.at("a")));
  EXPECT_EQ(logger.log, "a b /b2 d /d2 /a1");
}

TEST(OmOutputWalkerStop, FromAVisitEndsTheWalkAndLeavesNothing) {
  EXPECT_EQ(walked<LeaveLogger>("r0 a1 b2 c1 d2 e1", "c", stop), "r a b /b2 /a1 c false");
}

TEST(OmOutputWalkerStop, FromTheLastVisitLeavesNothing) {
  EXPECT_EQ(walked<LeaveLogger>("r0 a1 b2", "b", stop), "r a b false");
}

TEST(OmOutputWalkerStop, FromEnterEndsTheWalk) {
  class Stopper : public LeaveLogger {
   protected:
    void Enter(OmOutputPart* part, int level) override {
      add("+" + nameOf(part) + std::to_string(level));
    }
  };
  EXPECT_EQ(walked<Stopper>("r0 a1 b2 c1", "+a1", stop), "+r0 +a1 false");
}

TEST(OmOutputWalkerStop, FromLeaveEndsTheWalkWithTheOtherRecordsNotLeft) {
  EXPECT_EQ(walked<LeaveLogger>("r0 a1 b2 c3 d1", "/b2", stop), "r a b c /c3 /b2 false");
}

TEST(OmOutputWalkerStop, FromLeaveAtTheEndOfTheTreeLeavesTheParentsUnleft) {
  EXPECT_EQ(walked<LeaveLogger>("r0 a1 b2", "/b2", stop), "r a b /b2 false");
}

TEST(OmOutputWalkerStop, TogetherWithSkipEndsTheWalk) {
  EXPECT_EQ(walked<LeaveLogger>("r0 a1 b2 c1", "a",
                                [](Logger& logger) {
                                  logger.SkipSubtree();
                                  logger.Stop();
                                }),
            "r a false");
}

TEST(OmOutputWalkerStop, EndsTheWalkOfASubtree) {
  PartTree tree("r0 a1 b2 c2");
  LeaveLogger logger;
  logger.at("b", stop);
  EXPECT_FALSE(logger.Walk(tree.at("a")));
  EXPECT_EQ(logger.log, "a b");
}

TEST(OmOutputWalkerThrow, WhatAVisitThrowsEndsTheWalkAndIsPassedOn) {
  const PartTree tree("r0 a1 b2 c1");
  LeaveLogger logger;
  logger.at("b", fail);
  try {
    logger.Walk(tree);
    ADD_FAILURE() << "nothing was thrown";
  } catch (const std::runtime_error& error) {
    EXPECT_EQ(std::string(error.what()), "refused");
  }
  EXPECT_EQ(logger.log, "r a b");
}

TEST(OmOutputWalkerThrow, WhatEnterAndLeaveThrowIsPassedOn) {
  const PartTree tree("r0 a1 b2 c1");
  EnterLogger entering;
  entering.at("+a1", fail);
  EXPECT_THROW(entering.Walk(tree), std::runtime_error);
  EXPECT_EQ(entering.log, "+r0 r +a1");
  LeaveLogger leaving;
  leaving.at("/b2", fail);
  EXPECT_THROW(leaving.Walk(tree), std::runtime_error);
  EXPECT_EQ(leaving.log, "r a b /b2");
}

// Walks once with the action at a, and once more without: the second walk is a whole one.
std::string walkedAfter(const std::function<void(Logger&)>& action) {
  const PartTree tree("r0 a1 b2 c1");
  LeaveLogger logger;
  logger.at("a", action);
  try {
    logger.Walk(tree);
  } catch (const std::runtime_error&) {
    logger.log += " threw";
  }
  logger.at("", nullptr);
  logger.log += ";";
  EXPECT_TRUE(logger.Walk(tree));
  return logger.log;
}

TEST(OmOutputWalkerReuse, AfterAWholeWalk) {
  EXPECT_EQ(walkedAfter(nullptr), "r a b /b2 /a1 c /c1 /r0; r a b /b2 /a1 c /c1 /r0");
}

TEST(OmOutputWalkerReuse, AfterASkip) {
  EXPECT_EQ(walkedAfter(skip), "r a /a1 c /c1 /r0; r a b /b2 /a1 c /c1 /r0");
}

TEST(OmOutputWalkerReuse, AfterAStop) {
  EXPECT_EQ(walkedAfter(stop), "r a; r a b /b2 /a1 c /c1 /r0");
}

TEST(OmOutputWalkerReuse, AfterAnException) {
  EXPECT_EQ(walkedAfter(fail), "r a threw; r a b /b2 /a1 c /c1 /r0");
}

TEST(OmOutputWalkerReuse, ForAnEndNodeAfterAStop) {
  PartTree tree("r0 a1");
  Logger logger;
  logger.at("r", stop);
  EXPECT_FALSE(logger.Walk(tree));
  EXPECT_TRUE(logger.Walk(tree.end()));
}

TEST(OmOutputWalkerReuse, AfterASkipThatAnExceptionFollowed) {
  const std::string log = walkedAfter([](Logger& logger) {
    logger.SkipSubtree();
    fail(logger);
  });
  EXPECT_EQ(log, "r a threw; r a b /b2 /a1 c /c1 /r0");
}

TEST(OmOutputWalkerReuse, WalksATreeThatHasChanged) {
  PartTree tree("r0 a1 b2 c1");
  Logger logger;
  EXPECT_TRUE(logger.Walk(tree));
  OmOutputTree::Node a = tree.at("a");
  tree.Prune(a);
  logger.log.clear();
  EXPECT_TRUE(logger.Walk(tree));
  EXPECT_EQ(logger.log, "r c");
}

}  // namespace
}  // namespace om::test
