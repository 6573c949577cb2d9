// The entry point of every test program: a test that leaves something behind, or meets an assertion
// that it did not ask for, fails.

#include <gtest/gtest.h>

#include <optional>

#include "tests/support/Asserts.h"
#include "tests/support/Counted.h"
#include "tests/support/Leaks.h"

namespace {

class LeakListener : public testing::EmptyTestEventListener {
  void OnTestStart(const testing::TestInfo&) override {
    om::test::ignoreNewBlocks(false);
    om::test::resetCounted();
    before_.emplace();
  }

  // Messages of a failed test are blocks as well, so only a test that passed is looked at.
  void OnTestEnd(const testing::TestInfo& test) override {
    om::test::resetCounted();
    if (test.result()->Failed() || test.result()->Skipped()) return;
    const std::string findings = before_->findings();
    if (!findings.empty()) ADD_FAILURE() << "the test leaves behind: " << findings;
  }

  std::optional<om::test::LeakCheck> before_;
};

}  // namespace

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  testing::UnitTest::GetInstance()->listeners().Append(new LeakListener);
  om::test::installAssertCheck();
  return RUN_ALL_TESTS();
}
