// Walkers for tests that look at the walk, not at the kinds of the parts.

#ifndef OM_TESTS_OUTPUT_COUNTINGWALKER_H_
#define OM_TESTS_OUTPUT_COUNTINGWALKER_H_

#include <algorithm>

#include "output/OmOutputWalker.h"

namespace om::test {

// Does nothing in any visit.
class SilentWalker : public OmOutputWalker {
 public:
  void Visit(OmInteractive&) override {}
  void Visit(OmModel&) override {}
  void Visit(OmAnswerTree&) override {}
  void Visit(OmChart&) override {}
  void Visit(OmTextBlock&) override {}
  void Visit(OmHeading&) override {}
  void Visit(OmPivotTable&) override {}
};

// Counts the records of a walk of a whole tree.
class CountingWalker : public SilentWalker {
 public:
  int entered = 0;
  int left = 0;
  int deepest = 0;
  // Whether each level was the number of records that were entered and not yet left.
  bool balanced = true;

 protected:
  void Enter(OmOutputPart* part, int level) override {
    balanced = balanced && level == entered - left;
    ++entered;
    deepest = std::max(deepest, level);
    OmOutputWalker::Enter(part, level);
  }
  void Leave(OmOutputPart*, int level) override {
    ++left;
    balanced = balanced && level == entered - left;
  }
};

}  // namespace om::test

#endif  // OM_TESTS_OUTPUT_COUNTINGWALKER_H_
