// The texts that a table owns: template name, caption, corner text and table title.

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "tests/pivot/TableText.h"
#include "tests/support/Counted.h"

namespace om::test {
namespace {

// One of the texts that can be set.
struct Slot {
  const char* name;
  void (*set)(OmPivotTable& table, const OmCellText& text);
  const OmCellText* (*get)(const OmPivotTable& table);
};

constexpr Slot kCaption = {
    "caption", [](OmPivotTable& table, const OmCellText& text) { table.Caption(&text); },
    [](const OmPivotTable& table) { return table.Caption(); }};
constexpr Slot kCornerText = {
    "corner text", [](OmPivotTable& table, const OmCellText& text) { table.CornerText(&text); },
    [](const OmPivotTable& table) { return table.CornerText(); }};
constexpr Slot kTableTitle = {
    "table title", [](OmPivotTable& table, const OmCellText& text) { table.SetTableTitle(text); },
    [](const OmPivotTable& table) { return table.GetTableTitle(); }};
constexpr Slot kSlots[] = {kCaption, kCornerText, kTableTitle};

struct Table : OmPivotTable {
  Table() : OmPivotTable(OmStringCell("title"), OmStringCell("template"), false) {}
};

long deathsOf(const std::string& name) {
  return std::count(CountedText::died().begin(), CountedText::died().end(), name);
}

// A text that writes down for which region it was cloned last.
class RegionText : public OmStringCell {
 public:
  explicit RegionText(const std::string& text) : OmStringCell(text) {}
  RegionText* Clone(OmMemoryRegion* region) const override {
    lastRegion = region;
    return new (region) RegionText(*this);
  }

  static inline const OmMemoryRegion* lastRegion = nullptr;

 private:
  RegionText(const RegionText&) = default;
};

struct CloneRefused {};
class UniqueText : public OmStringCell {
 public:
  using OmStringCell::OmStringCell;
  UniqueText* Clone(OmMemoryRegion*) const override { throw CloneRefused(); }
};

TEST(OmPivotTableTexts, AreNullUntilTheyAreSet) {
  Table table;
  for (const Slot& slot : kSlots) EXPECT_EQ(slot.get(table), nullptr) << slot.name;
  EXPECT_EQ(table.Caption(), nullptr);
  EXPECT_EQ(table.CornerText(), nullptr);
}

TEST(OmPivotTableTexts, TheTitleBecomesTheLabelAndNotTheTableTitle) {
  const Table table;
  EXPECT_EQ(stringOf(&table.Label()), "title");
  EXPECT_EQ(table.GetTableTitle(), nullptr);
}

TEST(OmPivotTableTexts, TheTemplateNameIsClonedAtConstruction) {
  const RegionText name("name");
  OmPivotTable table(OmStringCell("title"), name, false);
  EXPECT_NE(table.TemplateName(), &name);
  EXPECT_EQ(stringOf(table.TemplateName()), "name");
  EXPECT_EQ(RegionText::lastRegion, &dataOf(table).region);
  EXPECT_EQ(std::as_const(table).TemplateName(), table.TemplateName());
}

TEST(OmPivotTableTexts, AreClonedIntoTheRegionOfTheTable) {
  for (const Slot& slot : kSlots) {
    Table table;
    const RegionText text("a text longer than a few characters");
    RegionText::lastRegion = nullptr;
    slot.set(table, text);
    EXPECT_NE(slot.get(table), &text) << slot.name;
    EXPECT_EQ(stringOf(slot.get(table)), "a text longer than a few characters") << slot.name;
    EXPECT_EQ(RegionText::lastRegion, &dataOf(table).region) << slot.name;
  }
}

TEST(OmPivotTableTexts, AreKeptEachForItself) {
  Table table;
  kCaption.set(table, OmStringCell("caption"));
  EXPECT_EQ(table.CornerText(), nullptr);
  EXPECT_EQ(table.GetTableTitle(), nullptr);
  table.SetTableTitle(OmStringCell("table title"));
  EXPECT_EQ(table.CornerText(), nullptr);
  const OmStringCell corner("corner");
  table.CornerText(&corner);
  EXPECT_EQ(stringOf(table.Caption()), "caption");
  EXPECT_EQ(stringOf(table.CornerText()), "corner");
  EXPECT_EQ(stringOf(table.GetTableTitle()), "table title");
  EXPECT_EQ(stringOf(table.TemplateName()), "template");
  EXPECT_EQ(stringOf(&table.Label()), "title");
}

TEST(OmPivotTableTexts, AConstTableGivesTheSameTexts) {
  Table table;
  for (const Slot& slot : kSlots) slot.set(table, OmStringCell(slot.name));
  EXPECT_EQ(std::as_const(table).Caption(), table.Caption());
  EXPECT_EQ(std::as_const(table).CornerText(), table.CornerText());
  EXPECT_EQ(table.GetTableTitle(), &table.TableTitle());
}

TEST(OmPivotTableTexts, ANewTextDestroysTheOldOneOnce) {
  for (const Slot& slot : kSlots) {
    resetCounted();
    Table table;
    const CountedText old("old");
    const CountedText next("next");
    slot.set(table, old);
    EXPECT_EQ(deathsOf("old"), 0) << slot.name;
    slot.set(table, next);
    EXPECT_EQ(deathsOf("old"), 1) << slot.name;
    EXPECT_EQ(deathsOf("next"), 0) << slot.name;
    EXPECT_EQ(CountedText::live(), 3) << slot.name;
    EXPECT_EQ(stringOf(slot.get(table)), "next") << slot.name;
  }
}

TEST(OmPivotTableTexts, AreDestroyedWithTheTable) {
  for (const Slot& slot : kSlots) {
    resetCounted();
    const CountedText text("text");
    {
      Table table;
      slot.set(table, text);
      EXPECT_EQ(CountedText::live(), 2) << slot.name;
    }
    EXPECT_EQ(deathsOf("text"), 1) << slot.name;
  }
}

TEST(OmPivotTableTexts, TemplateNameAndLabelAreDestroyedWithTheTable) {
  const CountedText title("title");
  const CountedText name("name");
  { const OmPivotTable table(title, name, false); }
  EXPECT_EQ(deathsOf("title"), 1);
  EXPECT_EQ(deathsOf("name"), 1);
}

TEST(OmPivotTableTexts, DieInTheOrderTemplateNameCornerTextCaptionTableTitle) {
  {
    OmPivotTable table(OmStringCell("title"), CountedText("template"), false);
    for (const Slot& slot : kSlots) slot.set(table, CountedText(slot.name));
    resetCounted();
  }
  EXPECT_EQ(CountedText::died(),
            (std::vector<std::string>{"template", "corner text", "caption", "table title"}));
}

TEST(OmPivotTableTexts, NullClearsTheCaption) {
  Table table;
  kCaption.set(table, CountedText("caption"));
  resetCounted();
  table.Caption(nullptr);
  EXPECT_EQ(table.Caption(), nullptr);
  EXPECT_EQ(deathsOf("caption"), 1);
  table.Caption(nullptr);
  EXPECT_EQ(table.Caption(), nullptr);
}

TEST(OmPivotTableTexts, NullClearsTheCornerText) {
  Table table;
  kCornerText.set(table, CountedText("corner"));
  resetCounted();
  table.CornerText(nullptr);
  EXPECT_EQ(table.CornerText(), nullptr);
  EXPECT_EQ(deathsOf("corner"), 1);
  table.CornerText(nullptr);
  EXPECT_EQ(table.CornerText(), nullptr);
}

TEST(OmPivotTableTexts, CanBeSetToThemselves) {
  for (const Slot& slot : kSlots) {
    Table table;
    slot.set(table, CountedText("a text longer than a few characters"));
    resetCounted();
    slot.set(table, *slot.get(table));
    EXPECT_EQ(stringOf(slot.get(table)), "a text longer than a few characters") << slot.name;
    EXPECT_EQ(CountedText::died().size(), 1U) << slot.name;
    EXPECT_EQ(CountedText::live(), 1) << slot.name;
  }
}

TEST(OmPivotTableTexts, CanBeSetToOneAnother) {
  for (const Slot& slot : kSlots) {
    for (const Slot& other : kSlots) {
      Table table;
      slot.set(table, CountedText(slot.name));
      if (other.get(table) == nullptr) other.set(table, CountedText("former"));
      slot.set(table, *other.get(table));
      EXPECT_EQ(stringOf(slot.get(table)), stringOf(other.get(table))) << slot.name;
      EXPECT_EQ(slot.get(table) == other.get(table), &slot == &other) << slot.name;
    }
  }
}

TEST(OmPivotTableTexts, CanBeSetToTextsOfTheTableOfOtherKinds) {
  Table table;
  addDimension(table, "Sex", {"Male"});
  table.Footnote(noteOf("note"), false);
  table.Caption(&table.Dimension(0).Name());
  table.CornerText(table.Footnotes()[0].Text());
  table.SetTableTitle(table.Label());
  EXPECT_EQ(stringOf(table.Caption()), "Sex");
  EXPECT_EQ(stringOf(table.CornerText()), "note");
  EXPECT_EQ(stringOf(table.GetTableTitle()), "title");
}

TEST(OmPivotTableTexts, AClearedTextCanBeSetAgain) {
  Table table;
  const OmStringCell text("again");
  table.Caption(&text);
  table.Caption(nullptr);
  table.Caption(&text);
  EXPECT_EQ(stringOf(table.Caption()), "again");
}

TEST(OmPivotTableTexts, AreAsBeforeWhenATextRefusesToBeCloned) {
  for (const Slot& slot : kSlots) {
    Table table;
    slot.set(table, CountedText("old"));
    resetCounted();
    EXPECT_THROW(slot.set(table, UniqueText("new")), CloneRefused) << slot.name;
    EXPECT_EQ(stringOf(slot.get(table)), "old") << slot.name;
    EXPECT_EQ(deathsOf("old"), 0) << slot.name;
  }
}

}  // namespace
}  // namespace om::test
