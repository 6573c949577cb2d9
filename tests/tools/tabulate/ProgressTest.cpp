// The bar: when it is drawn, what it shows, and that it goes away.

#include "tools/tabulate/Progress.h"

#include <gtest/gtest.h>

#include <sstream>

namespace om::test {
namespace {

using std::chrono::milliseconds;
using tabulate::Progress;
using When = Progress::When;

// A progress whose clock is set by hand.
class ProgressOf {
 public:
  ProgressOf(When when, bool isTerminal)
      : progress(out, when, isTerminal, [this] { return now; }) {}

  // What an advance after so many milliseconds more writes.
  std::string after(int time, std::uint64_t done) {
    now += milliseconds(time);
    out.str("");
    progress.advance(done);
    return out.str();
  }

  std::ostringstream out;
  std::chrono::steady_clock::time_point now;
  Progress progress;
};

TEST(Progress, ShowsNothingForHalfASecond) {
  ProgressOf of(When::AUTO, true);
  of.progress.begin("d.csv", 100);
  EXPECT_EQ("", of.after(0, 10));
  EXPECT_EQ("", of.after(499, 50));
  EXPECT_EQ("\rd.csv [###############...............] 50 %", of.after(1, 50));
}

TEST(Progress, IsDrawnTenTimesASecond) {
  ProgressOf of(When::AUTO, true);
  of.progress.begin("d.csv", 100);
  EXPECT_NE("", of.after(600, 10));
  EXPECT_EQ("", of.after(99, 20));
  EXPECT_EQ("\rd.csv [#########.....................] 30 %", of.after(1, 30));
}

TEST(Progress, ShowsWhatWasReadWhereTheSizeIsNotKnown) {
  ProgressOf of(When::AUTO, true);
  of.progress.begin("standard input", 0);
  EXPECT_EQ("\rstandard input 3 MiB", of.after(500, 3 << 20));
}

TEST(Progress, IsWipedAway) {
  ProgressOf of(When::AUTO, true);
  of.progress.begin("x", 0);
  EXPECT_EQ("\rx 0 MiB", of.after(500, 0));
  of.out.str("");
  of.progress.clear();
  EXPECT_EQ("\r       \r", of.out.str());
  of.out.str("");
  of.progress.clear();
  EXPECT_EQ("", of.out.str());
}

TEST(Progress, IsForTerminalsUnlessToldOtherwise) {
  ProgressOf piped(When::AUTO, false);
  piped.progress.begin("x", 10);
  EXPECT_EQ("", piped.after(1'000, 5));
  ProgressOf never(When::NEVER, true);
  never.progress.begin("x", 10);
  EXPECT_EQ("", never.after(1'000, 5));
  ProgressOf always(When::ALWAYS, false);
  always.progress.begin("x", 10);
  EXPECT_EQ("\rx [###############...............] 50 %", always.after(0, 5));
}

TEST(Progress, NeverShowsMoreThanAllAndKeepsNamesShort) {
  ProgressOf of(When::ALWAYS, true);
  of.progress.begin("a\n" + std::string(100, 'x'), 10);
  EXPECT_EQ("\ra\\x0a" + std::string(35, 'x') + "... [##############################] 100 %",
            of.after(0, 25));
}

}  // namespace
}  // namespace om::test
