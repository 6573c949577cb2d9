// The harness itself: each of its checks is shown to be able to fail.

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

#include "external/cells/OmMemoryRegion.h"
#include "tests/support/Allocations.h"
#include "tests/support/Asserts.h"
#include "tests/support/Counted.h"
#include "tests/support/Leaks.h"
#include "tests/support/Oracle.h"

namespace om::test {
namespace {

TEST(LeakCheck, FindsNothingWhereEverythingWasGivenBack) {
  const LeakCheck check;
  { const std::vector<int> values(100); }
  OmMemoryRegion::Release(OmMemoryRegion::DefaultHeap()->Allocate(10));
  EXPECT_EQ(check.findings(), "");
}

TEST(LeakCheck, FindsABlockOfOperatorNew) {
  const LeakCheck check;
  // By its name: a compiler may leave out what a new expression would allocate.
  const std::unique_ptr<void, void (*)(void*)> left(::operator new(10),
                                                    [](void* block) { ::operator delete(block); });
  EXPECT_NE(check.findings().find("blocks of operator new"), std::string::npos);
}

TEST(LeakCheck, FindsABlockOfTheDefaultHeap) {
  const LeakCheck check;
  void* const left = OmMemoryRegion::DefaultHeap()->Allocate(10);
  EXPECT_NE(check.findings().find("blocks of the default heap"), std::string::npos);
  OmMemoryRegion::Release(left);
}

TEST(LeakCheck, FindsALivingTextAndALivingPart) {
  const LeakCheck check;
  const CountedText text("t");
  const CountedPart part("p");
  const std::string findings = check.findings();
  EXPECT_NE(findings.find("counted texts"), std::string::npos);
  EXPECT_NE(findings.find("counted parts"), std::string::npos);
}

TEST(FailEveryAllocation, FailsEachAllocationOfBothKindsOnce) {
  std::vector<std::string> outcomes;
  outcomes.reserve(16);
  const std::size_t failures = failEveryAllocation([&](FailurePoint& point) {
    std::unique_ptr<int> first;
    void* second = nullptr;
    point.during([&] {
      first = std::make_unique<int>(1);
      second = OmMemoryRegion::DefaultHeap()->Allocate(10);
    });
    outcomes.emplace_back(first == nullptr ? "none" : second == nullptr ? "first" : "both");
    OmMemoryRegion::Release(second);
  });
  EXPECT_EQ(failures, 2U);
  EXPECT_EQ(outcomes, (std::vector<std::string>{"none", "first", "both"}));
}

TEST(FailEveryAllocation, NamesTheAllocationAfterWhichSomethingWasLeft) {
  ignoreNewBlocks();
  static void* left = nullptr;
  EXPECT_NONFATAL_FAILURE(failEveryAllocation([](FailurePoint& point) {
                            point.during([] { left = OmMemoryRegion::DefaultHeap()->Allocate(1); });
                          }),
                          "after allocation 2 had failed");
  OmMemoryRegion::Release(left);
}

TEST(AssertCollector, CollectsTheReportsOfItsLifetime) {
  const AssertCollector outer;
  omAssertFailed(L"a", L"b", 1);
  {
    const AssertCollector inner;
    omAssertFailed(L"c", L"d", 2);
    EXPECT_EQ(inner.reports(), (std::vector<Report>{{L"c", L"d", 2}}));
  }
  EXPECT_EQ(outer.reports(), (std::vector<Report>{{L"a", L"b", 1}}));
}

TEST(AssertCollector, AReportWithoutACollectorFailsTheTest) {
  ignoreNewBlocks();
  EXPECT_NONFATAL_FAILURE(omAssertFailed(L"lost", L"source", 1), "lost");
}

TEST(CountedText, WritesDownWhoWasClonedAndWhoDied) {
  {
    const CountedText text("abc");
    const std::unique_ptr<OmCellText> clone(text.Clone(nullptr));
    EXPECT_EQ(CountedText::live(), 2);
  }
  EXPECT_EQ(CountedText::made(), 2);
  EXPECT_EQ(CountedText::cloned(), 1);
  EXPECT_EQ(CountedText::died(), (std::vector<std::string>{"abc", "abc"}));
}

// In a process of its own, because the failure must be the running test's.
TEST(RunRandomOperationsDeathTest, StopsAtTheFirstFailureAndNamesSeedAndStep) {
  ignoreNewBlocks();
  EXPECT_EXIT(
      {
        int steps = 0;
        runRandomOperations(7, 10, [&steps](Random&) {
          if (++steps == 3) ADD_FAILURE() << "diverged";
        });
        std::fprintf(stderr, "%d steps, failed: %d", steps, testing::Test::HasFailure());
        std::exit(0);
      },
      testing::ExitedWithCode(0), "3 steps, failed: 1");
}

}  // namespace
}  // namespace om::test
