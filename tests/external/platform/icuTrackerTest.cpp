// What a tracker says of where a text came from.

#include "external/platform/icuTracker.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>

#include "tests/support/Allocations.h"

namespace om::test {
namespace {

TEST(icuTracker, GivesTheUnicodeModeAndTheLocaleBack) {
  const icuTracker unicode({true, "en_US"});
  EXPECT_TRUE(unicode.getUnicode());
  EXPECT_EQ(unicode.getLocale(), "en_US");
  const icuTracker codePage({false, ""});
  EXPECT_FALSE(codePage.getUnicode());
  EXPECT_EQ(codePage.getLocale(), "");
}

TEST(icuTracker, KeepsACopyOfTheLocale) {
  std::pair<bool, std::string> origin(true, "a locale with quite a long name");
  const icuTracker tracker(origin);
  origin.second = "other";
  EXPECT_EQ(tracker.getLocale(), "a locale with quite a long name");
}

TEST(icuTracker, IsMadeWholeOrNotAtAllWhenMemoryRunsOut) {
  const std::pair<bool, std::string> origin(true, "a locale with quite a long name");
  const std::size_t failures = failEveryAllocation([&origin](FailurePoint& point) {
    std::unique_ptr<icuTracker> tracker;
    const bool completed = point.during([&] { tracker = std::make_unique<icuTracker>(origin); });
    EXPECT_EQ(tracker != nullptr, completed);
  });
  EXPECT_EQ(failures, 2U);  // the tracker, and the characters of its locale
}

}  // namespace
}  // namespace om::test
