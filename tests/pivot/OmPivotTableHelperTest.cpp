// How a text of any kind, and the texts inside it, get the tracker of a table.

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <utility>

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

// A table with a tracker, and one of its own for a text to bring along.
class OmPivotTableHelper : public testing::Test {
 protected:
  OmPivotTableHelper() {
    table_.setBackendSettings(settingsOf(true, true, "table"));
    tracker_ = table_.getICUTracker();
  }

  Table table_;
  icuTracker* tracker_;
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
