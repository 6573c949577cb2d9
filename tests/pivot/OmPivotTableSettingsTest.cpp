// The settings of a table, the trackers that it makes from them, and the helper that hands a
// tracker to a text of any kind.

#include <gtest/gtest.h>

#include <string>

#include "external/cells/OmComposite.h"
#include "external/cells/OmDateCell.h"
#include "external/cells/OmMessageCell.h"
#include "external/cells/OmNumber.h"
#include "external/cells/OmValueCell.h"
#include "external/cells/OmVariableCell.h"
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

// A table with a tracker, and one of its own for a text to bring along.
class OmPivotTableHelper : public testing::Test {
 protected:
  OmPivotTableHelper() { table_.setBackendSettings(settingsOf(true, true, "table")); }

  Table table_;
  icuTracker* const tracker_ = table_.getICUTracker();
  icuTracker foreign_{std::pair(false, std::string("foreign"))};
};


TEST_F(OmPivotTableHelper, GivesTheTrackerToEachSimpleKind) {
  OmStringCell string("string");
  OmNumber number(1);
  OmVariableCell variable("name", "label");
  OmValueCell value("value", "label");
  OmDateCell date({2026, 11, 21, 0, 0, 0});
  for (OmCellText* const text :
       std::initializer_list<OmCellText*>{&string, &number, &variable, &value, &date}) {
    table_.setHelper(*text);
    EXPECT_EQ(text->getTracker(), tracker_) << text->Kind();
  }
}

TEST_F(OmPivotTableHelper, TakesThePlaceOfAnotherTracker) {
  OmStringCell text("text");
  text.setTracker(&foreign_);
  table_.setHelper(text);
  EXPECT_EQ(text.getTracker(), tracker_);
}

TEST_F(OmPivotTableHelper, GivesTheTrackerToAMessageAndItsTexts) {
  OmMessageCell message(OmStringCell("{0} of {1}"));
  message.Append(OmNumber(1));
  message.Append(OmStringCell("two"));
  table_.setHelper(message);
  EXPECT_EQ(message.getTracker(), tracker_);
  EXPECT_EQ(message.Pattern().getTracker(), tracker_);
  EXPECT_EQ(message.Arguments()[0]->getTracker(), tracker_);
  EXPECT_EQ(message.Arguments()[1]->getTracker(), tracker_);
}

TEST_F(OmPivotTableHelper, LooksOnlyOneLevelIntoAMessage) {
  OmMessageCell inner(OmStringCell("inner {0}"));
  inner.Append(OmStringCell("innermost"));
  OmMessageCell outer(static_cast<const OmCellText&>(inner));
  outer.Append(inner);
  table_.setHelper(outer);
  EXPECT_EQ(outer.Pattern().getTracker(), tracker_);
  EXPECT_EQ(outer.Arguments()[0]->getTracker(), tracker_);
  auto& pattern = static_cast<OmMessageCell&>(outer.Pattern());
  auto& argument = static_cast<OmMessageCell&>(*outer.Arguments()[0]);
  for (OmMessageCell* const each : {&pattern, &argument}) {
    EXPECT_EQ(each->Pattern().getTracker(), nullptr);
    EXPECT_EQ(each->Arguments()[0]->getTracker(), nullptr);
  }
}

TEST_F(OmPivotTableHelper, GivesTheTrackerToACompositeInAMessageButNotToItsCells) {
  OmComposite composite;
  composite.Append(OmStringCell("cell"));
  OmMessageCell message(OmStringCell("{0}"));
  message.Append(composite);
  table_.setHelper(message);
  const auto& inside = static_cast<const OmComposite&>(*message.Arguments()[0]);
  EXPECT_EQ(inside.getTracker(), tracker_);
  EXPECT_EQ(inside.Components()[0].cell->getTracker(), nullptr);
}

// A message that keeps another tracker than the one it is given.
class StubbornMessage : public OmMessageCell {
 public:
  StubbornMessage(icuTracker* kept, const OmCellText& pattern)
      : OmMessageCell(pattern), kept_(kept) {}
  void setTracker(icuTracker*) override { OmMessageCell::setTracker(kept_); }

 private:
  icuTracker* kept_;
};

TEST_F(OmPivotTableHelper, PassesOnWhatTheMessageThenHolds) {
  StubbornMessage message(&foreign_, OmStringCell("{0}"));
  message.Append(OmNumber(1));
  table_.setHelper(message);
  EXPECT_EQ(message.getTracker(), &foreign_);
  EXPECT_EQ(message.Pattern().getTracker(), &foreign_);
  EXPECT_EQ(message.Arguments()[0]->getTracker(), &foreign_);
}

TEST_F(OmPivotTableHelper, LeavesACompositeAlone) {
  OmComposite composite;
  composite.Append(OmStringCell("cell"));
  composite.Append(OmStringCell("below"), 1);
  composite.setTracker(&foreign_);
  table_.setHelper(composite);
  EXPECT_EQ(composite.getTracker(), &foreign_);
  for (const OmComposite::Component& component : composite.Components()) {
    EXPECT_EQ(component.cell->getTracker(), nullptr);
  }
}

TEST_F(OmPivotTableHelper, OfATableWithoutTrackerLeavesTheText) {
  Table table;
  OmStringCell text("text");
  text.setTracker(&foreign_);
  table.setHelper(text);
  EXPECT_EQ(text.getTracker(), &foreign_);
}

TEST_F(OmPivotTableHelper, StillGivesTheTrackerOnceFastTablesAreOff) {
  table_.setBackendSettings(settingsOf(false, true, ""));
  OmStringCell text("text");
  table_.setHelper(text);
  EXPECT_EQ(text.getTracker(), tracker_);
}

TEST_F(OmPivotTableHelper, GivesTheFirstOfTwoTrackers) {
  Table table;
  table.setBackendSettings(settingsOf(true, false, ""));
  OmStringCell text("text");
  table.setHelper(text);
  EXPECT_EQ(text.getTracker(), table.getICUTracker());
  EXPECT_NE(text.getTracker(), table.getU8Tracker());
}

TEST_F(OmPivotTableHelper, OfItsOwnHasNoTrackerUntilItIsGivenOne) {
  OmPivotTable::ICUHelper helper;
  EXPECT_EQ(helper.Tracker(), nullptr);
  OmStringCell text("text");
  text.setTracker(&foreign_);
  text.Accept(helper);
  EXPECT_EQ(text.getTracker(), nullptr);
  helper.Tracker(&foreign_);
  text.Accept(helper);
  EXPECT_EQ(text.getTracker(), &foreign_);
}

}  // namespace
}  // namespace om::test
