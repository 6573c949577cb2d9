// Operations on the properties of a table that run out of memory: nothing is left behind, and the
// table is as it was.

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "external/cells/OmMessageCell.h"
#include "tests/pivot/TableText.h"
#include "tests/support/Allocations.h"

namespace om::test {
namespace {

const char* const kLong = "something that is too long to be kept within a string or a text itself";

// A table with something of everything.
struct FullTable : OmPivotTable {
  FullTable() : OmPivotTable(OmStringCell("label"), OmStringCell("template"), false) {
    SetTableTitle(OmStringCell("old title"));
    const OmStringCell caption("old caption");
    Caption(&caption);
    const OmStringCell corner("old corner");
    CornerText(&corner);
    addDimension(*this, "A", {"a0", "a1"});
    Cell({0}, OmStringCell("cell"));
    Footnote(noteOf("first", "x"), false);
    Footnote(noteOf("second"), false);
    TableLocale("old locale");
    addMiscProperty("old property");
  }
};

// All that the table shows, and the footnotes' markers and counts.
std::string everythingOf(const OmPivotTable& table) {
  std::string text = printed(table);
  for (const OmFootnote& note : table.Footnotes()) {
    text += stringOf(note.Marker()) + std::to_string(note.Count()) + '\n';
  }
  for (const std::string& string :
       {table.TableLocale(), table.getBorderInfo(), table.getTableLookInfo(),
        table.getTablePropertiesInfo(), table.getMiscProperties()}) {
    text += string + '\n';
  }
  for (const unsigned int width : table.getTableCustomWidths()) text += std::to_string(width) + 'w';
  for (const unsigned int height : table.getTableCustomHeights()) {
    text += std::to_string(height) + 'h';
  }
  return text;
}

// Runs the operation on a full table with each of its allocations failing in turn. Afterwards the
// table is as before, or else as the operation leaves it. Gives the number of failures.
std::size_t expectAllOrNothing(const std::function<void(OmPivotTable&)>& operation) {
  return failEveryAllocation([&operation](FailurePoint& point) {
    FullTable table;
    const std::string before = everythingOf(table);
    const std::size_t blocks = dataOf(table).region.BlocksInUse();
    const bool completed = point.during([&] { operation(table); });
    EXPECT_NE(completed, point.failed());
    if (completed) {
      EXPECT_NE(everythingOf(table), before);
      return;
    }
    EXPECT_EQ(everythingOf(table), before);
    EXPECT_EQ(dataOf(table).region.BlocksInUse(), blocks);
    operation(table);
    EXPECT_NE(everythingOf(table), before);
  });
}

TEST(OmPivotTablePropertiesAllocation, OfACaption) {
  const OmStringCell text(kLong);
  EXPECT_GE(expectAllOrNothing([&text](OmPivotTable& table) { table.Caption(&text); }), 1U);
}

TEST(OmPivotTablePropertiesAllocation, OfACaptionWithTextsInside) {
  OmMessageCell message(OmStringCell("{0}{1}"));
  for (int i = 0; i < 2; ++i) message.Append(OmStringCell(kLong));
  EXPECT_GE(expectAllOrNothing([&message](OmPivotTable& table) { table.Caption(&message); }), 4U);
}

TEST(OmPivotTablePropertiesAllocation, OfACornerText) {
  const OmStringCell text(kLong);
  EXPECT_GE(expectAllOrNothing([&text](OmPivotTable& table) { table.CornerText(&text); }), 1U);
}

TEST(OmPivotTablePropertiesAllocation, OfATableTitle) {
  const OmStringCell text(kLong);
  EXPECT_GE(expectAllOrNothing([&text](OmPivotTable& table) { table.SetTableTitle(text); }), 1U);
}

TEST(OmPivotTablePropertiesAllocation, OfClearingATextThereIsNone) {
  EXPECT_EQ(failEveryAllocation([](FailurePoint& point) {
              FullTable table;
              point.during([&table] {
                table.Caption(nullptr);
                table.CornerText(nullptr);
              });
              EXPECT_EQ(table.Caption(), nullptr);
              EXPECT_EQ(table.CornerText(), nullptr);
            }),
            0U);
}

// Two at a time, so that the list has to grow.
TEST(OmPivotTablePropertiesAllocation, OfNewFootnotes) {
  const OmFootnote note = noteOf(kLong, kLong);
  EXPECT_GE(failEveryAllocation([&note](FailurePoint& point) {
              FullTable table;
              std::string before = everythingOf(table);
              for (std::size_t size = 2; size < 6; ++size) {
                const bool completed = point.during([&] { table.Footnote(note, true); });
                EXPECT_EQ(table.Footnotes().size(), completed ? size + 1 : size);
                if (!completed) {
                  EXPECT_EQ(everythingOf(table), before);
                  return;
                }
                before = everythingOf(table);
              }
            }),
            9U);
}

TEST(OmPivotTablePropertiesAllocation, OfAMergeThatBringsAMarker) {
  const OmFootnote note = noteOf("first", kLong);
  EXPECT_GE(expectAllOrNothing([&note](OmPivotTable& table) { table.Footnote(note, false); }), 1U);
}

TEST(OmPivotTablePropertiesAllocation, OfAMergeThatClearsAMarkerThereIsNone) {
  const OmFootnote note = noteOf("first");
  EXPECT_EQ(failEveryAllocation([&note](FailurePoint& point) {
              FullTable table;
              point.during([&] { table.Footnote(note, false); });
              EXPECT_EQ(table.Footnotes()[0].Marker(), nullptr);
              EXPECT_EQ(table.Footnotes()[0].Count(), 2);
            }),
            0U);
}

TEST(OmPivotTablePropertiesAllocation, OfAFootnoteOfTheListItself) {
  EXPECT_GE(
      expectAllOrNothing([](OmPivotTable& table) { table.Footnote(table.Footnotes()[0], true); }),
      2U);
}

TEST(OmPivotTablePropertiesAllocation, OfTheStrings) {
  using Setter = void (OmPivotTable::*)(const std::string&);
  const std::string text = kLong;
  for (const Setter set :
       {Setter(&OmPivotTable::TableLocale), Setter(&OmPivotTable::setBorderInfo),
        Setter(&OmPivotTable::setTableLookInfo), Setter(&OmPivotTable::setTablePropertiesInfo)}) {
    EXPECT_GE(expectAllOrNothing([&](OmPivotTable& table) { (table.*set)(text); }), 1U);
  }
}

TEST(OmPivotTablePropertiesAllocation, OfAMiscProperty) {
  const std::string text = kLong;
  EXPECT_GE(expectAllOrNothing([&](OmPivotTable& table) { table.addMiscProperty(text); }), 2U);
}

TEST(OmPivotTablePropertiesAllocation, OfTheCustomWidthsAndHeights) {
  using Setter = void (OmPivotTable::*)(const std::vector<unsigned int>&);
  const std::vector<unsigned int> widths(100, 7);
  for (const Setter set :
       {&OmPivotTable::setTableCustomWidths, &OmPivotTable::setTableCustomHeights}) {
    EXPECT_GE(expectAllOrNothing([&](OmPivotTable& table) { (table.*set)(widths); }), 1U);
  }
}

// The table takes the format over in any case, so that the caller has nothing to clean up.
TEST(OmPivotTablePropertiesAllocation, OfTheFormatOfAnArea) {
  EXPECT_GE(failEveryAllocation([](FailurePoint& point) {
              FullTable table;
              auto* const first = new FormatArea(FormatArea::TITLE);
              table.setAreaFormat(first);
              auto* const second = new FormatArea(FormatArea::DATA);
              const bool completed = point.during([&] { table.setAreaFormat(second); });
              EXPECT_EQ(table.getAreaFormat(FormatArea::TITLE), first);
              EXPECT_EQ(table.getAreaFormat(FormatArea::DATA), completed ? second : nullptr);
            }),
            1U);
}

TEST(OmPivotTablePropertiesAllocation, OfAFormatThatReplacesAnotherThereIsNone) {
  EXPECT_EQ(failEveryAllocation([](FailurePoint& point) {
              FullTable table;
              table.setAreaFormat(new FormatArea(FormatArea::DATA));
              auto* const second = new FormatArea(FormatArea::DATA);
              point.during([&] { table.setAreaFormat(second); });
              EXPECT_EQ(table.getAreaFormat(FormatArea::DATA), second);
            }),
            0U);
}

bool isUntouched(const OmPivotTable& table) {
  const BackendSettings& settings = table.getBackendSettings();
  return settings.getFastTables() && settings.getUnicode() && settings.getLocale().empty() &&
         settings.getMaxCells() == BackendSettings().getMaxCells() && table.fastTable() &&
         table.getICUTracker() == nullptr && table.getU8Tracker() == nullptr;
}

std::vector<icuTracker*> trackersOf(OmPivotTable& table) {
  return {table.Label().getTracker(),
          table.TemplateName()->getTracker(),
          table.TableTitle().getTracker(),
          table.Dimension(0).Name().getTracker(),
          table.Dimension(0).Root().FirstChild()->Text()->getTracker(),
          table.Footnotes()[0].Text()->getTracker(),
          table.Footnotes()[0].Marker()->getTracker()};
}

TEST(OmPivotTablePropertiesAllocation, OfSettingsWithTrackers) {
  for (const bool unicode : {true, false}) {
    BackendSettings settings = settingsOf(true, unicode, kLong);
    settings.setMaxCells(10);
    EXPECT_GE(failEveryAllocation([&settings](FailurePoint& point) {
                FullTable table;
                const std::string before = everythingOf(table);
                if (!point.during([&] { table.setBackendSettings(settings); })) {
                  EXPECT_TRUE(isUntouched(table));
                  EXPECT_EQ(trackersOf(table), std::vector<icuTracker*>(7, nullptr));
                  table.setBackendSettings(settings);
                }
                EXPECT_NE(table.getICUTracker(), nullptr);
                EXPECT_EQ(trackersOf(table), std::vector<icuTracker*>(7, table.getICUTracker()));
                EXPECT_EQ(table.getBackendSettings().getMaxCells(), 10);
                EXPECT_EQ(everythingOf(table), before);
              }),
              unicode ? 4U : 6U);
  }
}

TEST(OmPivotTablePropertiesAllocation, OfSettingsWithoutTrackers) {
  BackendSettings settings = settingsOf(false, false, kLong);
  settings.setMaxCells(10);
  EXPECT_GE(failEveryAllocation([&settings](FailurePoint& point) {
              FullTable table;
              const bool completed = point.during([&] { table.setBackendSettings(settings); });
              EXPECT_EQ(isUntouched(table), !completed);
              EXPECT_EQ(table.getBackendSettings().getLocale(), completed ? kLong : "");
            }),
            1U);
}

TEST(OmPivotTablePropertiesAllocation, OfLaterSettings) {
  const BackendSettings settings = settingsOf(false, false, kLong);
  EXPECT_GE(failEveryAllocation([&settings](FailurePoint& point) {
              FullTable table;
              table.setBackendSettings(settingsOf(true, true, "xx"));
              icuTracker* const tracker = table.getICUTracker();
              const bool completed = point.during([&] { table.setBackendSettings(settings); });
              EXPECT_EQ(table.getBackendSettings().getLocale(), completed ? kLong : "xx");
              EXPECT_EQ(table.getBackendSettings().getUnicode(), !completed);
              EXPECT_EQ(table.fastTable(), !completed);
              EXPECT_EQ(table.getICUTracker(), tracker);
            }),
            1U);
}

TEST(OmPivotTablePropertiesAllocation, OfConstructionLeavesNothing) {
  const OmStringCell title(kLong);
  const OmStringCell name(kLong);
  EXPECT_GE(failEveryAllocation([&](FailurePoint& point) {
              OmPivotTable* table = nullptr;
              const bool completed =
                  point.during([&] { table = new OmPivotTable(title, name, false); });
              EXPECT_EQ(table != nullptr, completed);
              delete table;
            }),
            3U);
}

TEST(OmPivotTablePropertiesAllocation, OfValidateLeavesTheTable) {
  EXPECT_GE(failEveryAllocation([](FailurePoint& point) {
              FullTable table;
              table.Cell({7}, OmStringCell("unreachable"));
              const std::string before = everythingOf(table);
              std::size_t findings = 0;
              const bool completed = point.during([&] { findings = table.validate().size(); });
              EXPECT_EQ(findings, completed ? 2U : 0U);
              EXPECT_EQ(everythingOf(table), before);
            }),
            5U);
}

}  // namespace
}  // namespace om::test
