// The settings of the process: a plain value.

#include "external/settings/BackendSettings.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <type_traits>

#include "tests/support/Allocations.h"

namespace om::test {
namespace {

const std::string kLongLocale = "de_DE.a-code-page-with-a-long-name";

BackendSettings changedSettings() {
  BackendSettings settings;
  settings.setFastTables(false);
  settings.setUnicode(false);
  settings.setLocale(kLongLocale);
  settings.setMaxCells(12345678901);
  return settings;
}

void expectChanged(const BackendSettings& settings) {
  EXPECT_FALSE(settings.getFastTables());
  EXPECT_FALSE(settings.getUnicode());
  EXPECT_EQ(settings.getLocale(), kLongLocale);
  EXPECT_EQ(settings.getMaxCells(), 12345678901);
}

void expectDefaults(const BackendSettings& settings) {
  EXPECT_TRUE(settings.getFastTables());
  EXPECT_TRUE(settings.getUnicode());
  EXPECT_EQ(settings.getLocale(), "");
  EXPECT_EQ(settings.getMaxCells(), std::numeric_limits<long long>::max());
}

TEST(BackendSettings, StartsWithFastTablesAndUnicodeAndWithoutLocaleAndLimit) {
  expectDefaults(BackendSettings());
}

TEST(BackendSettings, EverySetterSetsItsSetting) { expectChanged(changedSettings()); }

TEST(BackendSettings, EverySetterSetsNothingElse) {
  BackendSettings settings;
  settings.setFastTables(false);
  EXPECT_TRUE(settings.getUnicode());
  settings.setUnicode(false);
  settings.setFastTables(true);
  EXPECT_FALSE(settings.getUnicode());
  settings.setUnicode(true);
  settings.setLocale("x");
  settings.setLocale("");
  settings.setMaxCells(1);
  settings.setMaxCells(std::numeric_limits<long long>::max());
  expectDefaults(settings);
}

TEST(BackendSettings, TheLimitOfCellsIsASigned64BitNumber) {
  static_assert(std::is_same_v<decltype(BackendSettings().getMaxCells()), long long>);
  BackendSettings settings;
  for (const long long limit : {0LL, -1LL, 1LL << 40, std::numeric_limits<long long>::min()}) {
    settings.setMaxCells(limit);
    EXPECT_EQ(settings.getMaxCells(), limit);
  }
}

TEST(BackendSettings, ACopyHasAllSettingsAndGoesItsOwnWay) {
  BackendSettings settings = changedSettings();
  const BackendSettings copy(settings);
  settings.setLocale("other");
  settings.setUnicode(true);
  expectChanged(copy);
}

TEST(BackendSettings, AnAssignmentTakesAllSettings) {
  BackendSettings settings;
  settings = changedSettings();
  expectChanged(settings);
  settings = BackendSettings();
  expectDefaults(settings);
}

TEST(BackendSettings, AnAssignmentToItselfChangesNothing) {
  BackendSettings settings = changedSettings();
  const BackendSettings& same = settings;
  settings = same;
  expectChanged(settings);
}

TEST(BackendSettings, TakesItsOwnLocaleAgain) {
  BackendSettings settings = changedSettings();
  settings.setLocale(settings.getLocale());
  expectChanged(settings);
}

TEST(BackendSettings, KeepsTheOldLocaleWhenMemoryRunsOut) {
  const std::size_t failures = failEveryAllocation([](FailurePoint& point) {
    BackendSettings settings;
    settings.setLocale("old");
    const bool completed = point.during([&] { settings.setLocale(kLongLocale); });
    EXPECT_EQ(settings.getLocale(), completed ? kLongLocale : "old");
  });
  EXPECT_EQ(failures, 1U);
}

TEST(BackendSettings, IsCopiedWholeOrNotAtAllWhenMemoryRunsOut) {
  const BackendSettings settings = changedSettings();
  const std::size_t failures = failEveryAllocation([&settings](FailurePoint& point) {
    std::optional<BackendSettings> copy;
    const bool completed = point.during([&] { copy.emplace(settings); });
    EXPECT_EQ(copy.has_value(), completed);
    if (completed) expectChanged(*copy);
  });
  EXPECT_EQ(failures, 1U);
}

TEST(BackendSettings, KeepsAllOldSettingsWhenMemoryRunsOutInAnAssignment) {
  const BackendSettings changed = changedSettings();
  const std::size_t failures = failEveryAllocation([&changed](FailurePoint& point) {
    BackendSettings settings;
    if (point.during([&] { settings = changed; })) {
      expectChanged(settings);
    } else {
      expectDefaults(settings);
    }
  });
  EXPECT_EQ(failures, 1U);
}

}  // namespace
}  // namespace om::test
