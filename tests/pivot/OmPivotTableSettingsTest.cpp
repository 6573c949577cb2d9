// The settings of a table and the trackers that it makes from them.

#include <gtest/gtest.h>

#include <string>

#include "external/platform/icuTracker.h"
#include "tests/pivot/TableText.h"

namespace om::test {
namespace {

struct Table : OmPivotTable {
  Table() : OmPivotTable(OmStringCell("title"), OmStringCell("template"), false) {}
};

TEST(OmPivotTableSettings, ANewTableHasThoseOfANewSettingsObjectAndNoTrackers) {
  const Table table;
  EXPECT_TRUE(table.getBackendSettings().getFastTables());
  EXPECT_TRUE(table.getBackendSettings().getUnicode());
  EXPECT_EQ(table.getBackendSettings().getLocale(), "");
  EXPECT_EQ(table.getBackendSettings().getMaxCells(), BackendSettings().getMaxCells());
  EXPECT_TRUE(table.fastTable());
  EXPECT_EQ(table.getICUTracker(), nullptr);
  EXPECT_EQ(table.getU8Tracker(), nullptr);
}

TEST(OmPivotTableSettings, AreCopied) {
  Table table;
  BackendSettings settings = settingsOf(false, false, "en_US");
  settings.setMaxCells(17);
  table.setBackendSettings(settings);
  settings.setLocale("changed");
  EXPECT_FALSE(table.getBackendSettings().getFastTables());
  EXPECT_FALSE(table.getBackendSettings().getUnicode());
  EXPECT_EQ(table.getBackendSettings().getLocale(), "en_US");
  EXPECT_EQ(table.getBackendSettings().getMaxCells(), 17);
}

TEST(OmPivotTableSettings, AConstTableGivesItsCopyToBeChanged) {
  Table table;
  const OmPivotTable& constTable = table;
  constTable.getBackendSettings().setMaxCells(5);
  EXPECT_EQ(table.getBackendSettings().getMaxCells(), 5);
}

TEST(OmPivotTableSettings, CanBeSetToTheirOwnCopy) {
  Table table;
  table.getBackendSettings().setLocale("a locale with a name that is too long for the string");
  table.setBackendSettings(table.getBackendSettings());
  EXPECT_EQ(table.getBackendSettings().getLocale(),
            "a locale with a name that is too long for the string");
  ASSERT_NE(table.getICUTracker(), nullptr);
  EXPECT_EQ(table.getICUTracker()->getLocale(),
            "a locale with a name that is too long for the string");
}

TEST(OmPivotTableSettings, DecideWhetherTheTableIsFast) {
  Table table;
  table.setBackendSettings(settingsOf(false, true, ""));
  EXPECT_FALSE(table.fastTable());
  table.setBackendSettings(settingsOf(true, true, ""));
  EXPECT_TRUE(table.fastTable());
  table.setBackendSettings(settingsOf(false, true, ""));
  EXPECT_FALSE(table.fastTable());
}

TEST(OmPivotTableSettings, WithFastTablesOffThereAreNoTrackers) {
  for (const bool unicode : {true, false}) {
    Table table;
    table.setBackendSettings(settingsOf(false, unicode, "en_US"));
    EXPECT_EQ(table.getICUTracker(), nullptr) << unicode;
    EXPECT_EQ(table.getU8Tracker(), nullptr) << unicode;
  }
}

// The settings have the last word: they set the flag before it is read.
TEST(OmPivotTableSettings, TheFlagOfTheTableDoesNotDecideAboutTrackers) {
  Table table;
  table.setFastTable(true);
  table.setBackendSettings(settingsOf(false, true, ""));
  EXPECT_EQ(table.getICUTracker(), nullptr);
  table.setFastTable(false);
  table.setBackendSettings(settingsOf(true, true, ""));
  EXPECT_NE(table.getICUTracker(), nullptr);
}

TEST(OmPivotTableSettings, TheFlagOfTheTableMakesNoTrackers) {
  Table table;
  table.setBackendSettings(settingsOf(false, true, ""));
  table.setFastTable(true);
  EXPECT_TRUE(table.fastTable());
  EXPECT_EQ(table.getICUTracker(), nullptr);
}

TEST(OmPivotTableSettings, InUnicodeModeTheTrackersAreOne) {
  Table table;
  table.setBackendSettings(settingsOf(true, true, "en_US"));
  ASSERT_NE(table.getICUTracker(), nullptr);
  EXPECT_EQ(table.getU8Tracker(), table.getICUTracker());
  EXPECT_TRUE(table.getICUTracker()->getUnicode());
  EXPECT_EQ(table.getICUTracker()->getLocale(), "en_US");
}

TEST(OmPivotTableSettings, InCodePageModeTheTrackersAreTwo) {
  Table table;
  table.setBackendSettings(settingsOf(true, false, "de_DE"));
  ASSERT_NE(table.getICUTracker(), nullptr);
  ASSERT_NE(table.getU8Tracker(), nullptr);
  EXPECT_NE(table.getU8Tracker(), table.getICUTracker());
  EXPECT_FALSE(table.getICUTracker()->getUnicode());
  EXPECT_EQ(table.getICUTracker()->getLocale(), "de_DE");
  EXPECT_TRUE(table.getU8Tracker()->getUnicode());
  EXPECT_EQ(table.getU8Tracker()->getLocale(), "de_DE");
}

TEST(OmPivotTableSettings, ASecondCallLeavesTheTrackers) {
  for (const bool unicode : {true, false}) {
    Table table;
    table.setBackendSettings(settingsOf(true, unicode, "en_US"));
    icuTracker* const tracker = table.getICUTracker();
    icuTracker* const utf8Tracker = table.getU8Tracker();
    table.setBackendSettings(settingsOf(true, !unicode, "fr_FR"));
    EXPECT_EQ(table.getICUTracker(), tracker) << unicode;
    EXPECT_EQ(table.getU8Tracker(), utf8Tracker) << unicode;
    EXPECT_EQ(tracker->getUnicode(), unicode);
    EXPECT_EQ(tracker->getLocale(), "en_US");
  }
}

TEST(OmPivotTableSettings, ASecondCallCopiesTheSettingsAndTheFlag) {
  Table table;
  table.setBackendSettings(settingsOf(true, true, "en_US"));
  table.setBackendSettings(settingsOf(false, false, "fr_FR"));
  EXPECT_EQ(table.getBackendSettings().getLocale(), "fr_FR");
  EXPECT_FALSE(table.getBackendSettings().getUnicode());
  EXPECT_FALSE(table.fastTable());
  EXPECT_NE(table.getICUTracker(), nullptr);
}

TEST(OmPivotTableSettings, ALaterCallMakesTheTrackersThatTheFirstDidNot) {
  Table table;
  table.setBackendSettings(settingsOf(false, true, "en_US"));
  table.setBackendSettings(settingsOf(true, false, "fr_FR"));
  ASSERT_NE(table.getICUTracker(), nullptr);
  EXPECT_EQ(table.getICUTracker()->getLocale(), "fr_FR");
  EXPECT_NE(table.getU8Tracker(), table.getICUTracker());
}

TEST(OmPivotTableSettings, EachTableHasTrackersOfItsOwn) {
  Table one;
  Table other;
  one.setBackendSettings(settingsOf(true, true, ""));
  other.setBackendSettings(settingsOf(true, true, ""));
  EXPECT_NE(one.getICUTracker(), other.getICUTracker());
}

}  // namespace
}  // namespace om::test
