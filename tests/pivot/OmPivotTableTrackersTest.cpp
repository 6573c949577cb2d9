// Which texts of a table get its tracker, in which order, and that the tracker outlives them.

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "external/cells/OmComposite.h"
#include "external/cells/OmMessageCell.h"
#include "external/platform/icuTracker.h"
#include "tests/pivot/TableText.h"

namespace om::test {
namespace {

const BackendSettings& fast() {
  static const BackendSettings settings = settingsOf(true, true, "xx");
  return settings;
}

struct Table : OmPivotTable {
  Table() : OmPivotTable(OmStringCell("title"), OmStringCell("template"), false) {}
};

// While it lives, the texts that are given a tracker write down their names and the tracker.
class TrackerLog {
 public:
  TrackerLog() { current = this; }
  ~TrackerLog() { current = nullptr; }
  TrackerLog(const TrackerLog&) = delete;
  TrackerLog& operator=(const TrackerLog&) = delete;

  std::vector<std::string> names;
  std::vector<icuTracker*> trackers;
  static inline TrackerLog* current = nullptr;
};

class LoggedText : public OmStringCell {
 public:
  explicit LoggedText(const std::string& text) : OmStringCell(text) {}
  LoggedText* Clone(OmMemoryRegion* region) const override {
    return new (region) LoggedText(*this);
  }
  void setTracker(icuTracker* tracker) override {
    OmStringCell::setTracker(tracker);
    if (TrackerLog::current == nullptr) return;
    TrackerLog::current->names.emplace_back(View());
    TrackerLog::current->trackers.push_back(tracker);
  }

 private:
  LoggedText(const LoggedText&) = default;
};

OmFootnote loggedNote(const std::string& text, const std::string& marker) {
  const LoggedText cell(text);
  const LoggedText markerCell(marker);
  return OmFootnote(&cell, &markerCell, nullptr);
}

TEST(OmPivotTableTrackers, AreGivenToTheTextsThatAreThereInAFixedOrder) {
  OmPivotTable table(LoggedText("label"), LoggedText("template name"), false);
  table.SetTableTitle(LoggedText("table title"));
  OmDimension& first = table.AddDimension(LoggedText("first"));
  first.AddNewChild(first.Root(), LoggedText("group"), 0, true);
  first.AddNewChild(first.Root(), LoggedText("b"), 1, false);
  first.AddNewChild(first.Root().FirstChild(), LoggedText("a"), 0, false);
  OmDimension& second = table.AddDimension(LoggedText("second"));
  second.AddNewChild(second.Root(), LoggedText("c"), 0, false);
  table.Footnote(loggedNote("note", "marker"), false);
  const LoggedText unmarked("unmarked note");
  table.Footnote(OmFootnote(&unmarked, nullptr, nullptr), false);
  table.Footnote(loggedNote("third note", "third marker"), false);
  {
    const TrackerLog log;
    table.setBackendSettings(fast());
    EXPECT_EQ(log.names,
              (std::vector<std::string>{"label", "template name", "table title", "first", "group",
                                        "a", "b", "second", "c", "note", "marker", "unmarked note",
                                        "third note", "third marker"}));
    EXPECT_EQ(log.trackers, std::vector<icuTracker*>(14, table.getICUTracker()));
  }
}

TEST(OmPivotTableTrackers, AreNotGivenToCellsCaptionAndCornerTextThatAreThere) {
  Table table;
  addDimension(table, "d", {"a"});
  table.Cell({0}, LoggedText("cell"));
  const LoggedText text("text");
  table.Caption(&text);
  table.CornerText(&text);
  const TrackerLog log;
  table.setBackendSettings(fast());
  EXPECT_TRUE(log.names.empty());
  EXPECT_EQ(table.Cell({0})->getTracker(), nullptr);
  EXPECT_EQ(table.Caption()->getTracker(), nullptr);
  EXPECT_EQ(table.CornerText()->getTracker(), nullptr);
}

TEST(OmPivotTableTrackers, AreNotGivenASecondTime) {
  OmPivotTable table(LoggedText("label"), LoggedText("template name"), false);
  table.setBackendSettings(fast());
  const TrackerLog log;
  table.setBackendSettings(settingsOf(true, false, "yy"));
  EXPECT_TRUE(log.names.empty());
}

TEST(OmPivotTableTrackers, AreNotGivenWithFastTablesOff) {
  OmPivotTable table(LoggedText("label"), LoggedText("template name"), false);
  const TrackerLog log;
  table.setBackendSettings(settingsOf(false, true, "xx"));
  EXPECT_TRUE(log.names.empty());
}

TEST(OmPivotTableTrackers, ReachTheTextsInsideTheTextsThatAreThere) {
  OmMessageCell message(OmStringCell("{0}"));
  message.Append(OmStringCell("argument"));
  OmPivotTable table(message, message, false);
  table.AddDimension(message);
  table.Footnote(OmFootnote(&message, &message, nullptr), false);
  table.setBackendSettings(fast());
  for (OmCellText* const text : {&table.Label(), table.TemplateName(), &table.Dimension(0).Name(),
                                 table.Footnotes()[0].Text(), table.Footnotes()[0].Marker()}) {
    auto& inside = static_cast<OmMessageCell&>(*text);
    EXPECT_EQ(inside.Pattern().getTracker(), table.getICUTracker());
    EXPECT_EQ(inside.Arguments()[0]->getTracker(), table.getICUTracker());
  }
}

TEST(OmPivotTableTrackers, LeaveCompositesThatAreThereAlone) {
  OmComposite composite;
  composite.Append(OmStringCell("cell"));
  OmPivotTable table(composite, composite, false);
  table.AddDimension(composite);
  table.setBackendSettings(fast());
  EXPECT_EQ(table.Label().getTracker(), nullptr);
  EXPECT_EQ(table.TemplateName()->getTracker(), nullptr);
  EXPECT_EQ(table.Dimension(0).Name().getTracker(), nullptr);
}

TEST(OmPivotTableTrackers, AreGivenToACellThatIsStoredLater) {
  Table table;
  addDimension(table, "d", {"a", "b"});
  table.Cell({0}, OmStringCell("before"));
  table.setBackendSettings(fast());
  table.Cell({1}, OmStringCell("after"));
  EXPECT_EQ(table.Cell({0})->getTracker(), nullptr);
  EXPECT_EQ(table.Cell({1})->getTracker(), table.getICUTracker());
}

TEST(OmPivotTableTrackers, AreGivenToCaptionCornerTextAndTitleThatAreSetLater) {
  Table table;
  table.setBackendSettings(fast());
  const OmStringCell text("text");
  table.Caption(&text);
  table.CornerText(&text);
  table.SetTableTitle(text);
  EXPECT_EQ(table.Caption()->getTracker(), table.getICUTracker());
  EXPECT_EQ(table.CornerText()->getTracker(), table.getICUTracker());
  EXPECT_EQ(table.TableTitle().getTracker(), table.getICUTracker());
  EXPECT_EQ(text.getTracker(), nullptr);
}

TEST(OmPivotTableTrackers, AreGivenToTheLabelOfADimensionThatIsAddedLater) {
  Table other;
  const OmDimension& source = addDimension(other, "source", {"category"});
  Table table;
  table.setBackendSettings(fast());
  EXPECT_EQ(table.AddDimension(OmStringCell("d")).Name().getTracker(), table.getICUTracker());
  const OmDimension& copy = table.AddDimension(source);
  EXPECT_EQ(copy.Name().getTracker(), table.getICUTracker());
  EXPECT_EQ(copy.Root().FirstChild()->Text()->getTracker(), nullptr);
}

// A category takes over the tracker of what it is put under.
TEST(OmPivotTableTrackers, ComeToACategoryThatIsAddedLaterFromItsParent) {
  Table table;
  OmDimension& dimension = table.AddDimension(OmStringCell("d"));
  table.setBackendSettings(fast());
  const auto category = dimension.Child(dimension.Root(), OmStringCell("a"), 0, false);
  EXPECT_EQ(category->Text()->getTracker(), table.getICUTracker());
}

TEST(OmPivotTableTrackers, AreNotGivenToCopiedDimensions) {
  Table other;
  addDimension(other, "source", {"category"});
  Table table;
  table.setBackendSettings(fast());
  table.CopyDimensions(other);
  EXPECT_EQ(table.Dimension(0).Name().getTracker(), nullptr);
}

TEST(OmPivotTableTrackers, AreGivenToANewFootnoteAndItsMarker) {
  Table table;
  table.setBackendSettings(fast());
  table.Footnote(noteOf("note", "*"), false);
  EXPECT_EQ(table.Footnotes()[0].Text()->getTracker(), table.getICUTracker());
  EXPECT_EQ(table.Footnotes()[0].Marker()->getTracker(), table.getICUTracker());
}

TEST(OmPivotTableTrackers, AreGivenToTheMarkerThatAMergeBrings) {
  Table table;
  table.setBackendSettings(fast());
  table.Footnote(noteOf("note"), false);
  table.Footnote(noteOf("note", "*"), false);
  EXPECT_EQ(table.Footnotes()[0].Marker()->getTracker(), table.getICUTracker());
}

// A tracker that the texts bring along, and a table without one of its own.
class OmPivotTableForeignTracker : public testing::Test {
 protected:
  OmPivotTableForeignTracker() { text_.setTracker(&foreign_); }

  icuTracker foreign_{std::pair(true, std::string("foreign"))};
  OmStringCell text_{"text"};
  Table table_;
};

TEST_F(OmPivotTableForeignTracker, DoesNotStayInACaption) {
  table_.Caption(&text_);
  EXPECT_EQ(table_.Caption()->getTracker(), nullptr);
}

TEST_F(OmPivotTableForeignTracker, DoesNotStayInATableTitle) {
  table_.SetTableTitle(text_);
  EXPECT_EQ(table_.TableTitle().getTracker(), nullptr);
}

TEST_F(OmPivotTableForeignTracker, DoesNotStayInsideAMessage) {
  OmMessageCell message(text_);
  message.Append(text_);
  table_.Caption(&message);
  auto& caption = static_cast<OmMessageCell&>(*table_.Caption());
  EXPECT_EQ(caption.Pattern().getTracker(), nullptr);
  EXPECT_EQ(caption.Arguments()[0]->getTracker(), nullptr);
}

TEST_F(OmPivotTableForeignTracker, StaysInACaptionThatIsAComposite) {
  OmComposite composite;
  composite.setTracker(&foreign_);
  table_.Caption(&composite);
  EXPECT_EQ(table_.Caption()->getTracker(), &foreign_);
}

TEST_F(OmPivotTableForeignTracker, StaysInAllOtherTexts) {
  table_.CornerText(&text_);
  EXPECT_EQ(table_.CornerText()->getTracker(), &foreign_);
  EXPECT_EQ(table_.AddDimension(text_).Name().getTracker(), &foreign_);
  table_.Cell({0}, text_);
  EXPECT_EQ(table_.Cell({0})->getTracker(), &foreign_);
  table_.Footnote(OmFootnote(&text_, &text_, nullptr), false);
  EXPECT_EQ(table_.Footnotes()[0].Text()->getTracker(), &foreign_);
  EXPECT_EQ(table_.Footnotes()[0].Marker()->getTracker(), &foreign_);
}

// A text that reads the locale of its tracker when it dies.
class Witness : public OmStringCell {
 public:
  explicit Witness(const std::string& text) : OmStringCell(text) {}
  ~Witness() override {
    if (getTracker() == nullptr) return;
    ++died;
    if (getTracker()->getLocale() == kLocale) ++diedBeforeTheirTracker;
  }
  Witness* Clone(OmMemoryRegion* region) const override { return new (region) Witness(*this); }

  static constexpr const char* kLocale = "a locale with a name that is too long for the string";
  static inline int died = 0;
  static inline int diedBeforeTheirTracker = 0;

 private:
  Witness(const Witness&) = default;
};

TEST(OmPivotTableTrackers, OutliveAllTextsOfTheTable) {
  for (const bool unicode : {true, false}) {
    Witness::died = Witness::diedBeforeTheirTracker = 0;
    const Witness text("witness");
    {
      OmPivotTable table(text, text, false);
      table.setBackendSettings(settingsOf(true, unicode, Witness::kLocale));
      OmDimension& dimension = table.AddDimension(text);
      dimension.AddNewChild(dimension.Root(), text, 0, false);
      table.Cell({0}, text);
      table.Cell({1}, text);
      table.Caption(&text);
      table.CornerText(&text);
      table.SetTableTitle(text);
      table.Footnote(OmFootnote(&text, &text, nullptr), false);
      Witness::died = Witness::diedBeforeTheirTracker = 0;
    }
    // Label, template name, two of the dimension, two cells, caption, corner text, table title, and
    // two of the footnote.
    EXPECT_EQ(Witness::died, 11) << unicode;
    EXPECT_EQ(Witness::diedBeforeTheirTracker, 11) << unicode;
  }
}

class Refusing : public OmStringCell {
 public:
  Refusing() : OmStringCell("refusing") {}
  Refusing* Clone(OmMemoryRegion* region) const override { return new (region) Refusing(*this); }
  void setTracker(icuTracker*) override { throw std::runtime_error("refused"); }

 private:
  Refusing(const Refusing&) = default;
};

// A way in the store that leads to no cell would end the iteration at once.
TEST(OmPivotTableTrackers, ATextThatRefusesItsTrackerLeavesNothingBehindInTheStore) {
  Table table;
  table.setBackendSettings(fast());
  for (const char* const name : {"rows", "columns"}) table.AddDimension(OmStringCell(name));
  EXPECT_THROW(table.Cell({0, 0}, Refusing()), std::runtime_error);
  table.Cell({0, 1}, OmStringCell("stored"));
  ASSERT_NE(table.FirstCell().Cell(), nullptr);
  EXPECT_EQ(std::string(*table.FirstCell().Cell()), "stored");
  EXPECT_EQ(table.getNumCells(), 2);
}

}  // namespace
}  // namespace om::test
